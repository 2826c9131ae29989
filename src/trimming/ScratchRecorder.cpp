#include "trimming/ScratchRecorder.h"

#include <QLoggingCategory>

#include "files/NativePath.h"

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

ScratchRecorder::ScratchRecorder(const Services& services, const AppContainer& container,
                                 std::function<void()> finished)
    : m_services(services), m_folder(container.documentsPath()), m_finished(std::move(finished)) {}

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
    m_recorder.reset();
    removeAt(strOriginalAudioURL());
    AudioSession& session = m_services.audioSession;
    if (const auto set = session.setCategory(AudioSession::Category::PlayAndRecord, AudioSession::CategoryOption::None);
        !set) {
        return fail(set.error());
    }
    session.setActive(true);
    auto recorder = m_services.recorders.recorderWithPath(strOriginalAudioURL(), scratchSettings());
    if (!recorder) {
        return fail(recorder.error());
    }
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
    if (m_recorder != nullptr) {
        m_recorder->stop();
    }
}

void ScratchRecorder::activatePlayback() {
    m_services.audioSession.setCategory(AudioSession::Category::Playback, AudioSession::CategoryOption::None);
    m_services.audioSession.setActive(true);
}

void ScratchRecorder::replaceCopy(const std::filesystem::path& original, const std::filesystem::path& copy) {
    removeAt(copy);
    std::error_code ignored;
    std::filesystem::copy_file(original, copy, ignored);
}

void ScratchRecorder::audioRecorderDidFinishRecording(AudioRecorder&, const std::optional<Error>& error) {
    if (error) {
        qCWarning(lcTrimming, "Audio Session Error: %s", qUtf8Printable(error->text));
    }
    m_finished();
}

}  // namespace tavi
