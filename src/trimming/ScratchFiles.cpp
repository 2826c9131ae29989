#include "trimming/ScratchFiles.h"

#include <QLoggingCategory>
#include <mutex>
#include <system_error>
#include <utility>

#include "files/FileMove.h"
#include "files/FileNames.h"
#include "files/PathText.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcTrimming, "tavi.trimming", QtInfoMsg)

using Made = std::optional<FileIdentity>;

bool isAt(const std::filesystem::path& path, const Made& made) {
    return made && FileIdentity::at(path) == made;
}

/// Frees a name: what was made goes, and what was not steps aside.
bool free(const std::filesystem::path& path, const Made& made) {
    if (isAt(path, made)) {
        removeAt(path);
    } else if (existsAt(path)) {
        if (const auto aside = stepAside(path); !aside) {
            qCWarning(lcTrimming, "%s", aside.error().text.c_str());
            return false;
        }
    }
    return true;
}

}  // namespace

struct ScratchFiles::Copying {
    std::mutex mutex;
    Made copy;
    bool isClosed = false;
};

ScratchFiles::ScratchFiles(std::filesystem::path folder, DispatchQueues& queues)
    : m_folder(std::move(folder)),
      m_queue("com.quillfen.voicerecorder.scratch", queues),
      m_copying(std::make_shared<Copying>()) {}

Result<void> ScratchFiles::beginRecording() {
    if (!existsAt(original())) {
        return {};
    }
    const bool isOwn = isAt(original(), m_recording);
    const auto aside = stepAside(original());
    if (!aside) {
        return tl::unexpected(errorOf(aside.error()));
    }
    m_aside = {*aside, isOwn};
    return {};
}

void ScratchFiles::keepRecording() {
    m_recording = FileIdentity::at(original());
    if (const auto before = std::exchange(m_aside, std::nullopt); before && before->second) {
        removeAt(before->first);
    }
}

void ScratchFiles::dropRecording(bool holdsSound) {
    if (holdsSound) {
        free(original(), std::nullopt);
    } else {
        removeAt(original());
    }
    if (const auto before = std::exchange(m_aside, std::nullopt)) {
        renameWithoutReplacing(before->first, original());
    }
}

void ScratchFiles::replaceCopy() {
    m_queue.async([copying = m_copying, from = original(), to = copy()] {
        std::unique_lock lock(copying->mutex);
        if (copying->isClosed) {
            return;
        }
        if (!existsAt(from)) {
            if (isAt(to, copying->copy)) {
                removeAt(to);
            }
            return;
        }
        if (!free(to, copying->copy)) {
            return;
        }
        lock.unlock();
        std::error_code error;
        std::filesystem::copy_file(from, to, error);
        lock.lock();
        // What came to the name meanwhile is not the copy.
        copying->copy = error == std::errc::file_exists ? std::nullopt : FileIdentity::at(to);
        if (copying->isClosed && copying->copy) {
            removeAt(to);
        }
    });
}

void ScratchFiles::close() {
    const std::lock_guard lock(m_copying->mutex);
    if (std::exchange(m_copying->isClosed, true)) {
        return;
    }
    if (isAt(copy(), m_copying->copy)) {
        removeAt(copy());
    }
    if (isAt(original(), m_recording)) {
        free(original(), std::nullopt);
    }
}

}  // namespace tavi
