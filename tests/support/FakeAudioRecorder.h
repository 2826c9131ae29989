#pragma once

#include <QFile>
#include <filesystem>
#include <memory>
#include <optional>

#include "platform/AudioRecorder.h"
#include "platform/RunLoop.h"

namespace tavi::test {

/// A recorder that makes a small file at once and captures what a test says.
class FakeAudioRecorder : public AudioRecorder {
public:
    FakeAudioRecorder(const std::filesystem::path& path, RunLoop& runLoop, std::shared_ptr<FakeAudioRecorder*> self)
        : m_runLoop(runLoop), m_self(std::move(self)) {
        *m_self = this;
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly) || file.write("sound") != 5) {
            qFatal("cannot write %s", path.c_str());
        }
    }
    ~FakeAudioRecorder() override { *m_self = nullptr; }
    FakeAudioRecorder(const FakeAudioRecorder&) = delete;
    FakeAudioRecorder& operator=(const FakeAudioRecorder&) = delete;

    void setDelegate(AudioRecorderDelegate* delegate) override { m_delegate = delegate; }
    bool prepareToRecord() override { return true; }
    void setMeteringEnabled(bool enabled) override { m_isMetering = enabled; }
    bool record() override {
        m_isRunning = !m_isStopped && !m_isFinished;
        return m_isRunning;
    }
    void pause() override { m_isRunning = false; }
    void stop() override {
        if (!std::exchange(m_isStopped, true)) {
            m_isRunning = false;
            finishLater(std::nullopt);
        }
    }
    void waitUntilFinished() override {
        m_isStopped = true;
        finish(std::nullopt);
    }
    bool isRecording() const override { return m_isRunning; }
    std::int64_t framesRecorded() const override { return m_frames; }
    void updateMeters() override {
        if (m_isMetering && m_arrived) {
            m_power = *std::exchange(m_arrived, std::nullopt);
        }
    }
    float averagePowerForChannel(int channel) const override { return channel == 0 ? m_power : -160.0F; }

    /// Sound arrives: it is recorded, and metered at the next update, if the recorder runs.
    void capture(std::int64_t frames, float power) {
        if (m_isRunning) {
            m_frames += frames;
            m_arrived = power;
        }
    }
    /// The input or the disk gives up.
    void fail(const Error& error) {
        m_isRunning = false;
        m_isStopped = true;
        finishLater(error);
    }

private:
    void finishLater(const std::optional<Error>& error) {
        m_runLoop.dispatchMain([self = m_self, error] {
            if (*self != nullptr) {
                (*self)->finish(error);
            }
        });
    }
    void finish(const std::optional<Error>& error) {
        if (!std::exchange(m_isFinished, true) && m_delegate != nullptr) {
            m_delegate->audioRecorderDidFinishRecording(*this, error);
        }
    }

    RunLoop& m_runLoop;
    std::shared_ptr<FakeAudioRecorder*> m_self;
    AudioRecorderDelegate* m_delegate = nullptr;
    bool m_isRunning = false;
    bool m_isStopped = false;
    bool m_isFinished = false;
    bool m_isMetering = false;
    std::int64_t m_frames = 0;
    std::optional<float> m_arrived;
    float m_power = -160.0F;
};

/// Makes fake recorders.
class FakeAudioRecorders : public AudioRecorders {
public:
    explicit FakeAudioRecorders(RunLoop& runLoop) : m_runLoop(runLoop) {}

    Result<std::unique_ptr<AudioRecorder>> recorderWithPath(const std::filesystem::path& path,
                                                            const AudioRecordSettings& settings) override {
        lastPath = path;
        lastSettings = settings;
        if (!creation) {
            return tl::unexpected(creation.error());
        }
        if (std::filesystem::exists(path)) {
            return failure(QStringLiteral("The file exists."));
        }
        m_last = std::make_shared<FakeAudioRecorder*>(nullptr);
        return std::make_unique<FakeAudioRecorder>(path, m_runLoop, m_last);
    }

    /// The recorder made last; null when it is gone.
    FakeAudioRecorder* last() const { return m_last == nullptr ? nullptr : *m_last; }

    /// What making a recorder answers; an error here makes it fail.
    Result<void> creation;
    std::filesystem::path lastPath;
    AudioRecordSettings lastSettings;

private:
    RunLoop& m_runLoop;
    std::shared_ptr<FakeAudioRecorder*> m_last;
};

}  // namespace tavi::test
