#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <utility>

#include "API/AudioTrimmerController/EZAudio/SerialQueue.h"
#include "files/FileIdentity.h"
#include "platform/Error.h"

namespace tavi {

/// The trimmer's two scratch files in the documents folder: a re-recording, and a copy of it. Main thread only; bytes
/// are copied in the background.
///
/// The names belong to the user as well: a file that was not made here steps aside to a free name before one is made.
class ScratchFiles {
public:
    ScratchFiles(std::filesystem::path folder, DispatchQueues& queues);
    ~ScratchFiles() { close(); }
    ScratchFiles(const ScratchFiles&) = delete;
    ScratchFiles& operator=(const ScratchFiles&) = delete;

    std::filesystem::path original() const { return m_folder / "originalRecording.wav"; }
    std::filesystem::path copy() const { return m_folder / "recording.wav"; }

    /// Frees the name of the original for a recording, until keepRecording() or dropRecording().
    Result<void> beginRecording();
    /// The recording is whole: it takes the place of the one before.
    void keepRecording();
    /// Nothing came of it: what was there before is back. A file that holds something all the same stays beside.
    void dropRecording(bool holdsSound);

    /// Makes the copy anew; without an original only an earlier copy goes.
    void replaceCopy();
    /// The copy goes, and the re-recording gets a free name. Nothing more is made.
    void close();

private:
    /// What the copying shares with the main thread.
    struct Copying;

    std::filesystem::path m_folder;
    SerialQueue m_queue;
    std::shared_ptr<Copying> m_copying;
    /// The re-recording as it was made.
    std::optional<FileIdentity> m_recording;
    /// What has made room for a recording, and whether that is the re-recording before.
    std::optional<std::pair<std::filesystem::path, bool>> m_aside;
};

}  // namespace tavi
