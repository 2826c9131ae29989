#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>

#include "platform/Error.h"

namespace tavi {

/// What is to be said of a file beyond that it is in the container.
enum class MirrorState {
    /// The cloud has what is here.
    There,
    /// It is to be sent.
    Waiting,
    Sending,
    /// It is not here.
    OnlyThere,
    /// It is not here, and has been asked for.
    Arriving,
    /// Here is an older version.
    Old,
};

/// What keeps a container's documents in step with a place elsewhere. Any thread; a call takes no longer than writing a
/// line to a disk.
class CloudMirror {
public:
    virtual ~CloudMirror() = default;

    /// Calls on whatever thread after every change of states(); nullptr for nobody, and none is under way then.
    virtual void setObserver(std::function<void()> observer) = 0;
    /// By the names of the files; what is not named is here and has not been looked at.
    virtual std::map<std::filesystem::path, MirrorState> states() const = 0;

    /// Something here may have changed.
    virtual void documentsChanged() = 0;
    virtual Result<void> download(const std::filesystem::path& name) = 0;
    /// Whether the cloud has what is here, so that the copy here may go. It is not sent as missing afterwards.
    virtual Result<void> willEvict(const std::filesystem::path& name) = 0;
    /// The user removes a file, be it here or not: it is to go elsewhere, too. Said before it goes here.
    virtual Result<void> willRemove(const std::filesystem::path& name) = 0;
    /// It could not be removed here.
    virtual void didNotRemove(const std::filesystem::path& name) = 0;
    /// The user renames a file that may be here or not. Said before it is renamed here.
    virtual Result<void> willMove(const std::filesystem::path& from, const std::filesystem::path& to) = 0;
    /// It could not be renamed here.
    virtual void didNotMove(const std::filesystem::path& from, const std::filesystem::path& to) = 0;
};

}  // namespace tavi
