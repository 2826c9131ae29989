#pragma once

#include <array>
#include <deque>
#include <filesystem>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include "adapters/recorder/CaptureBuffer.h"
#include "platform/AudioFileWriter.h"
#include "platform/AudioInput.h"
#include "platform/AudioRecorder.h"
#include "platform/RunLoop.h"

namespace tavi {

/// Records from an input into a file: the capture thread fills a ring, a thread of the recorder's own encodes from it,
/// the main thread only starts and stops. Ten seconds fit into the ring; sound that finds no room is counted and
/// logged.
class CaptureRecorder : public AudioRecorder {
public:
    CaptureRecorder(AudioInputs& inputs, std::unique_ptr<AudioFileWriter> writer, RunLoop& runLoop);
    ~CaptureRecorder() override;

    void setDelegate(AudioRecorderDelegate* delegate) override { m_delegate = delegate; }
    bool prepareToRecord() override;
    void setMeteringEnabled(bool enabled) override { m_isMetering = enabled; }
    bool record() override;
    void pause() override;
    void stop() override;
    void bringToDisk(std::shared_ptr<void> until) override;
    void waitUntilFinished() override;
    bool isRecording() const override { return m_isRunning; }
    QString inputName() const override { return m_input ? m_input->deviceName() : QString(); }
    std::int64_t framesRecorded() const override { return m_buffer.framesCaptured(); }
    void updateMeters() override;
    float averagePowerForChannel(int channel) const override;
    bool takeClipped() override { return std::exchange(m_hasClipped, false); }

private:
    // Encoder thread.
    void encode();
    Result<void> encodeWaiting(bool isLast);
    void logLosses();
    std::vector<std::shared_ptr<void>> takeUntilSynced();

    void pauseInput();
    void giveUpDraining();
    void finished();

    AudioInputs& m_inputs;
    RunLoop& m_runLoop;
    AudioRecorderDelegate* m_delegate = nullptr;
    std::unique_ptr<AudioFileWriter> m_writer;
    CaptureBuffer m_buffer{m_writer->secondsHeld()};
    std::unique_ptr<AudioInput> m_input;
    bool m_isRunning = false;
    bool m_isStopped = false;
    bool m_isFinished = false;
    bool m_isMetering = false;
    std::array<float, 2> m_averagePower;
    bool m_hasClipped = false;

    // Encoder thread, and the main thread once it has ended.
    bool m_formatIsSet = false;
    std::int64_t m_framesEncoded = 0;
    std::int64_t m_lossesLogged = 0;
    std::deque<std::int64_t> m_seams;
    /// The last seam that the writer was told of as a pause.
    std::int64_t m_pausedAt = 0;
    std::optional<Error> m_error;

    /// What is let go of once all that was captured is on the disk.
    std::mutex m_untilSyncedMutex;
    std::vector<std::shared_ptr<void>> m_untilSynced;

    /// Expires with the recorder, so that what the encoder thread posted finds out.
    std::shared_ptr<int> m_lifetime = std::make_shared<int>(0);
    std::thread m_encoder;
};

/// Makes recorders from the inputs and writers that the program has; all of them must outlive the recorders.
class CaptureRecorders : public AudioRecorders {
public:
    CaptureRecorders(AudioInputs& inputs, AudioFileWriters& writers, RunLoop& runLoop)
        : m_inputs(inputs), m_writers(writers), m_runLoop(runLoop) {}

    Result<std::unique_ptr<AudioRecorder>> recorderWithPath(const std::filesystem::path& path,
                                                            const AudioRecordSettings& settings) override;

private:
    AudioInputs& m_inputs;
    AudioFileWriters& m_writers;
    RunLoop& m_runLoop;
};

}  // namespace tavi
