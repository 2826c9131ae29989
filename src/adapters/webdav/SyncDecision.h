#pragma once

namespace tavi {

/// What one side has of a file, beside what both had when they agreed last.
enum class SyncSide {
    Missing,
    /// What was agreed on.
    Same,
    /// Something else, or there was no agreement.
    Other,
};

/// A file as it is known before anything is done about it.
struct SyncSituation {
    /// Whether both sides have ever been seen to have the same.
    bool isAgreed = false;
    SyncSide local = SyncSide::Missing;
    SyncSide remote = SyncSide::Missing;
    /// The user has removed it here.
    bool isRemovedHere = false;
    /// It has been asked for.
    bool isWanted = false;
};

enum class SyncAction {
    Nothing,
    /// It is nowhere any more.
    Forget,
    /// It can be asked for.
    Offer,
    Download,
    Upload,
    /// The older version there is the one that was seen.
    ReplaceRemote,
    /// The older version here is the one that was seen.
    ReplaceLocal,
    /// Both may hold the same; if not, both stay.
    Compare,
    RemoveRemote,
    /// It was removed there: the copy here goes to the trash.
    RemoveLocal,
};

/// What is to be done. Where a side has changed since, it is never removed or replaced.
SyncAction decide(const SyncSituation& situation);

}  // namespace tavi
