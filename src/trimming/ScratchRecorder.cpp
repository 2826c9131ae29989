#include "trimming/ScratchRecorder.h"

#include <QLoggingCategory>
#include <QPointer>
#include <utility>

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcTrimming, "tavi.trimming", QtInfoMsg)

AudioRecordSettings scratchSettings() {
    AudioRecordSettings settings;
    settings.formatID = kAudioFormatLinearPCM;
    settings.sampleRate = 11025.0;
    settings.numberOfChannels = 1;
    settings.linearPCMBitDepth = 16;
    return settings;
}

}  // namespace

ScratchRecorder::ScratchRecorder(const Services& services, AssetExportSessions& assets, RunLoop& runLoop,
                                 const std::filesystem::path& folder, QObject* parent)
    : QObject(parent), m_services(services), m_assets(assets), m_runLoop(runLoop), m_files(folder, runLoop) {}

ScratchRecorder::~ScratchRecorder() {
    if (m_recorder != nullptr) {
        m_recorder->setDelegate(nullptr);
    }
}

bool ScratchRecorder::fail(const Error& error) {
    qCWarning(lcTrimming, "Audio Session Error: %s", qUtf8Printable(error.text));
    m_recorder.reset();
    return false;
}

bool ScratchRecorder::prepareToRecordAudio() {
    if (m_isBusy) {
        return false;
    }
    m_recorder.reset();
    AudioSession& session = m_services.audioSession;
    if (const auto set = session.setCategory(AudioSession::Category::PlayAndRecord, AudioSession::CategoryOption::None);
        !set) {
        return fail(set.error());
    }
    session.setActive(true);
    if (const auto begun = m_files.beginRecording(); !begun) {
        return fail(begun.error());
    }
    auto recorder = m_services.recorders.recorderWithPath(m_files.original(), scratchSettings());
    if (!recorder) {
        m_files.dropRecording(true);
        return fail(recorder.error());
    }
    m_isBusy = true;
    m_recorder = std::move(*recorder);
    m_recorder->setDelegate(this);
    m_recorder->setMeteringEnabled(true);
    m_recorder->prepareToRecord();
    return true;
}

void ScratchRecorder::record() {
    m_services.audioSession.setActive(true);
    m_recorder->record();
}

void ScratchRecorder::stop() {
    if (m_isBusy) {
        m_recorder->stop();
    }
}

void ScratchRecorder::close() {
    m_isClosing = true;
    if (m_isBusy) {
        m_recorder->stop();
    } else {
        m_files.close();
    }
}

void ScratchRecorder::audioRecorderDidFinishRecording(AudioRecorder& recorder, const std::optional<Error>& error) {
    if (error) {
        qCWarning(lcTrimming, "Audio Session Error: %s", qUtf8Printable(error->text));
    }
    const QPointer<ScratchRecorder> self(this);
    m_runLoop.dispatchBackground([self, &assets = m_assets, &runLoop = m_runLoop, path = m_files.original(),
                                  holdsSound = recorder.framesRecorded() > 0] {
        const double seconds = assets.assetWithURL(path).duration.seconds();
        runLoop.dispatchMain([self, seconds, holdsSound] {
            if (self) {
                self->didMeasure(seconds, holdsSound);
            }
        });
    });
}

void ScratchRecorder::didMeasure(double seconds, bool holdsSound) {
    m_isBusy = false;
    if (seconds > 0.0) {
        m_files.keepRecording();
        m_files.replaceCopy();
    } else {
        qCWarning(lcTrimming, "Audio Session Error: nothing was recorded");
        m_files.dropRecording(holdsSound);
    }
    if (m_isClosing) {
        m_files.close();
    }
    m_services.audioSession.setCategory(AudioSession::Category::Playback, AudioSession::CategoryOption::None);
    m_services.audioSession.setActive(true);
    Q_EMIT recorded(seconds);
}

}  // namespace tavi
