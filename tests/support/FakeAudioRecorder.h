#pragma once

#include <QFile>
#include <QPointer>
#include <filesystem>
#include <memory>
#include <optional>

#include "platform/AudioRecorder.h"
#include "platform/RunLoop.h"

namespace tavi::test {

/// A recorder that makes an empty file at once and captures what a test says.
struct FakeAudioRecorder : QObject, AudioRecorder {
    FakeAudioRecorder(const std::filesystem::path& path, RunLoop& runLoop) : m_file(path), m_runLoop(runLoop) {
        if (!m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
            qFatal("cannot write %s", path.c_str());
        }
    }

    void setDelegate(AudioRecorderDelegate* delegate) override { m_delegate = delegate; }
    bool prepareToRecord() override { return true; }
    void setMeteringEnabled(bool enabled) override { m_isMetering = enabled; }
    bool record() override { return m_isRunning = !m_isStopped; }
    void pause() override { m_isRunning = false; }
    void stop() override {
        if (!m_isStopped) {
            endLater(std::nullopt);
        }
    }
    void bringToDisk(std::shared_ptr<void> until) override {
        m_runLoop.dispatchBackground([until = std::move(until)] {});
    }
    void waitUntilFinished() override {
        m_isStopped = true;
        finish(std::nullopt);
    }
    bool isRecording() const override { return m_isRunning; }
    QString inputName() const override { return input; }
    std::int64_t framesRecorded() const override { return m_frames; }
    void updateMeters() override { m_power = m_isMetering ? m_arrived : m_power; }
    float averagePowerForChannel(int channel) const override { return channel == 0 ? m_power : -160.0F; }
    bool takeClipped() override { return m_power >= 0.0F; }

    /// Sound arrives: it is recorded, and metered at the next update, if the recorder runs.
    void capture(std::int64_t frames, float power) {
        if (m_isRunning) {
            if (frames > 0 && m_frames == 0 && !(m_file.write("sound") == 5 && m_file.flush())) {
                qFatal("cannot write");
            }
            m_frames += frames;
            m_arrived = power;
        }
    }
    QString input = QStringLiteral("Desk");
    /// The input or the disk gives up.
    void fail(const Error& error) { endLater(error); }

private:
    void endLater(const std::optional<Error>& error) {
        m_isRunning = false;
        m_isStopped = true;
        m_runLoop.dispatchMain([self = QPointer(this), error] {
            if (self) {
                self->finish(error);
            }
        });
    }
    void finish(const std::optional<Error>& error) {
        if (!std::exchange(m_isFinished, true) && m_delegate != nullptr) {
            m_delegate->audioRecorderDidFinishRecording(*this, error);
        }
    }

    QFile m_file;
    RunLoop& m_runLoop;
    AudioRecorderDelegate* m_delegate = nullptr;
    bool m_isRunning = false;
    bool m_isStopped = false;
    bool m_isFinished = false;
    bool m_isMetering = false;
    std::int64_t m_frames = 0;
    float m_arrived = -160.0F;
    float m_power = -160.0F;
};

/// Makes fake recorders.
struct FakeAudioRecorders : AudioRecorders {
    explicit FakeAudioRecorders(RunLoop& runLoop) : m_runLoop(runLoop) {}

    Result<std::unique_ptr<AudioRecorder>> recorderWithPath(const std::filesystem::path& path,
                                                            const AudioRecordSettings& settings) override {
        lastPath = path;
        lastSettings = settings;
        if (!creation || std::filesystem::exists(path)) {
            return failure(creation ? QStringLiteral("The file exists.") : creation.error().text);
        }
        auto recorder = std::make_unique<FakeAudioRecorder>(path, m_runLoop);
        m_last = recorder.get();
        return recorder;
    }

    /// The recorder made last; null when it is gone.
    FakeAudioRecorder* last() const { return m_last; }

    /// What making a recorder answers; an error here makes it fail.
    Result<void> creation;
    std::filesystem::path lastPath;
    AudioRecordSettings lastSettings;

private:
    RunLoop& m_runLoop;
    QPointer<FakeAudioRecorder> m_last;
};

}  // namespace tavi::test
