#include "adapters/webdav/SyncDecision.h"

namespace tavi {

namespace {

SyncAction decideWithoutLocal(const SyncSituation& situation) {
    if (situation.remote == SyncSide::Missing) {
        return SyncAction::Forget;
    }
    if (situation.isRemovedHere && situation.remote == SyncSide::Same) {
        return SyncAction::RemoveRemote;
    }
    // What is missing here for any other reason has not been removed, and what has changed there is not what was.
    return situation.isWanted ? SyncAction::Download : SyncAction::Offer;
}

SyncAction decideWithoutRemote(const SyncSituation& situation) {
    return situation.isAgreed && situation.local == SyncSide::Same ? SyncAction::RemoveLocal : SyncAction::Upload;
}

}  // namespace

SyncAction decide(const SyncSituation& situation) {
    if (situation.local == SyncSide::Missing) {
        return decideWithoutLocal(situation);
    }
    if (situation.remote == SyncSide::Missing) {
        return decideWithoutRemote(situation);
    }
    if (!situation.isAgreed) {
        return SyncAction::Compare;
    }
    if (situation.local == SyncSide::Same) {
        return situation.remote == SyncSide::Same ? SyncAction::Nothing : SyncAction::ReplaceLocal;
    }
    return situation.remote == SyncSide::Same ? SyncAction::ReplaceRemote : SyncAction::Compare;
}

}  // namespace tavi
