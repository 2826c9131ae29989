#pragma once

#include <QString>
#include <filesystem>
#include <functional>
#include <memory>

#include "platform/AppContainer.h"
#include "platform/AudioRecorder.h"
#include "platform/AudioSession.h"

namespace tavi {

/// The trimmer's small recorder, and its two scratch files in the documents folder. Main thread only.
class ScratchRecorder : private AudioRecorderDelegate {
public:
    struct Services {
        AudioRecorders& recorders;
        AudioSession& audioSession;
    };

    /// finished is called when a recording's file is whole; services and container must outlive the recorder.
    ScratchRecorder(const Services& services, const AppContainer& container, std::function<void()> finished);
    ~ScratchRecorder() override;
    ScratchRecorder(const ScratchRecorder&) = delete;
    ScratchRecorder& operator=(const ScratchRecorder&) = delete;

    /// What is recorded into, and the copy of it that stays until the next recording or reset.
    std::filesystem::path strOriginalAudioURL() const { return m_folder / "originalRecording.wav"; }
    std::filesystem::path strAudioURL() const { return m_folder / "recording.wav"; }

    /// Makes a recorder over a new file. False, with the reason in the log, when that cannot be.
    bool prepareToRecordAudio();
    void record();
    void stop();
    /// Sets the session up for playing.
    void activatePlayback();
    /// Makes the copy anew. Any thread; takes as long as the disk needs.
    static void replaceCopy(const std::filesystem::path& original, const std::filesystem::path& copy);

private:
    void audioRecorderDidFinishRecording(AudioRecorder& recorder, const std::optional<Error>& error) override;
    bool fail(const Error& error);

    Services m_services;
    std::filesystem::path m_folder;
    std::function<void()> m_finished;
    std::unique_ptr<AudioRecorder> m_recorder;
};

}  // namespace tavi
