#include "adapters/recorder/CaptureRecorder.h"

#include <QLoggingCategory>
#include <algorithm>
#include <cmath>

#include "adapters/recorder/SeamFade.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcRecorder, "tavi.recorder", QtInfoMsg)

/// The largest sample of 16 bits.
constexpr double kFullScale = 32767.0 / 32768.0;
constexpr float kSilence = -160.0F;
/// Half the length of the dip at a seam: short enough not to be heard as one.
constexpr int kRampsPerSecond = 200;
/// Seconds after which an input that does not answer a stop is closed: longer than any input takes by its own promise.
constexpr double kDrainDeadline = 1.0;

float decibels(double sumOfSquares, std::int64_t frames) {
    const double meanSquare = sumOfSquares / static_cast<double>(frames);
    return meanSquare > 0.0 ? std::clamp(static_cast<float>(10.0 * std::log10(meanSquare)), kSilence, 0.0F) : kSilence;
}

}  // namespace

CaptureRecorder::CaptureRecorder(AudioInputs& inputs, std::unique_ptr<AudioFileWriter> writer, RunLoop& runLoop)
    : m_inputs(inputs), m_runLoop(runLoop), m_writer(std::move(writer)), m_averagePower{kSilence, kSilence} {
    m_encoder = std::thread([this] { encode(); });
}

CaptureRecorder::~CaptureRecorder() {
    m_input.reset();
    if (m_encoder.joinable()) {
        m_buffer.end(std::nullopt);
        m_encoder.join();
    }
}

bool CaptureRecorder::prepareToRecord() {
    if (m_input != nullptr || m_isStopped || m_isFinished) {
        return m_input != nullptr;
    }
    auto input = m_inputs.open(m_buffer);
    if (!input) {
        // Nothing can call the buffer yet; the encoder thread reports this as it does every other end.
        m_buffer.end(input.error());
        m_isStopped = true;
        return false;
    }
    m_input = std::move(*input);
    return true;
}

bool CaptureRecorder::record() {
    if (m_isStopped || !prepareToRecord()) {
        return false;
    }
    if (!m_isRunning) {
        m_isRunning = true;
        m_input->resume();
    }
    return true;
}

void CaptureRecorder::pause() {
    if (!m_isStopped) {
        pauseInput();
    }
}

void CaptureRecorder::pauseInput() {
    if (m_isRunning) {
        m_isRunning = false;
        m_buffer.willPause();
        m_input->pause();
    }
}

void CaptureRecorder::stop() {
    if (m_isStopped || m_isFinished) {
        return;
    }
    m_isStopped = true;
    pauseInput();
    m_buffer.requestEnd();
    m_runLoop.dispatchAfter(kDrainDeadline, [this, alive = std::weak_ptr<int>(m_lifetime)] {
        if (!alive.expired()) {
            giveUpDraining();
        }
    });
}

void CaptureRecorder::bringToDisk(std::shared_ptr<void> until) {
    if (!m_isFinished) {
        const std::lock_guard lock(m_untilSyncedMutex);
        m_untilSynced.push_back(std::move(until));
        m_buffer.wake();
    }
}

std::vector<std::shared_ptr<void>> CaptureRecorder::takeUntilSynced() {
    const std::lock_guard lock(m_untilSyncedMutex);
    return std::exchange(m_untilSynced, {});
}

void CaptureRecorder::giveUpDraining() {
    if (!m_buffer.isEnded()) {
        m_input.reset();
        m_buffer.end(std::nullopt);
    }
}

void CaptureRecorder::waitUntilFinished() {
    if (m_isFinished) {
        return;
    }
    stop();
    if (!m_buffer.waitForEnd(kDrainDeadline)) {
        giveUpDraining();
    }
    finished();
}

void CaptureRecorder::updateMeters() {
    if (!m_isMetering) {
        return;
    }
    const CaptureBuffer::Level level = m_buffer.takeLevel();
    if (level.frames == 0) {
        return;
    }
    m_hasClipped = m_hasClipped || level.peak >= kFullScale;
    const auto channels = static_cast<std::size_t>(m_buffer.format().channels);
    for (std::size_t channel = 0; channel < std::min(channels, m_averagePower.size()); ++channel) {
        m_averagePower[channel] = decibels(level.sumOfSquares[channel], level.frames);
    }
}

float CaptureRecorder::averagePowerForChannel(int channel) const {
    const auto index = static_cast<std::size_t>(channel);
    return index < m_averagePower.size() ? m_averagePower[index] : kSilence;
}

void CaptureRecorder::encode() {
    std::vector<std::shared_ptr<void>> untilSynced;
    for (bool isEnded = false; !isEnded && !m_error;) {
        m_buffer.wait();
        isEnded = m_buffer.isEnded();
        untilSynced = takeUntilSynced();
        if (const auto result = encodeWaiting(isEnded); !result) {
            m_error = result.error();
        } else if (!untilSynced.empty() && !isEnded) {
            // What the disk says to it is told by the next write, or at the end.
            static_cast<void>(m_writer->sync());
            untilSynced.clear();
        }
        logLosses();
    }
    const Result<void> finish = m_writer->finish();
    m_writer.reset();
    if (!m_error && m_buffer.isEnded()) {
        m_error = m_buffer.error();
    }
    if (!m_error && !finish) {
        m_error = finish.error();
    }
    m_runLoop.dispatchMain([this, alive = std::weak_ptr<int>(m_lifetime)] {
        if (!alive.expired()) {
            finished();
        }
    });
}

Result<void> CaptureRecorder::encodeWaiting(bool isLast) {
    const AudioInputFormat format = m_buffer.format();
    if (format.sampleRate == 0) {
        return {};
    }
    if (!m_formatIsSet) {
        m_formatIsSet = true;
        if (auto result = m_writer->setInputFormat(format); !result) {
            return result;
        }
    }
    const int ramp = format.sampleRate / kRampsPerSecond;
    CaptureBuffer::Waiting waiting = m_buffer.waiting();
    // A seam is known before the sound that follows it, so the ramp before a seam stays behind until what follows is
    // here.
    const std::size_t held = isLast ? 0 : static_cast<std::size_t>(ramp);
    if (m_framesEncoded == 0 && waiting.frames > held) {
        qCDebug(lcRecorder, "first-captured-frame %zu %d", waiting.frames, format.sampleRate);
    }
    const std::int64_t end = m_framesEncoded + static_cast<std::int64_t>(waiting.frames);
    waiting.frames -= std::min(waiting.frames, held);
    while (const auto seam = m_buffer.takeSeam()) {
        m_seams.push_back(*seam);
    }
    while (!m_seams.empty() && m_seams.front() + ramp <= m_framesEncoded) {
        m_seams.pop_front();
    }
    for (const std::int64_t seam : m_seams) {
        // A pause with nothing after it is the end of the recording, not a seam.
        if (seam < end) {
            fadeSeam(waiting.interleaved, m_framesEncoded, waiting.frames, format.channels, seam, ramp);
        }
    }
    auto written = m_writer->write(waiting.interleaved, waiting.frames);
    m_framesEncoded += static_cast<std::int64_t>(waiting.frames);
    m_buffer.consume(waiting.frames);
    if (!written || isLast) {
        return written;
    }
    if (m_seams.empty() || m_seams.back() != end || m_pausedAt == end) {
        return m_writer->flush();
    }
    m_pausedAt = end;
    return m_writer->pause();
}

void CaptureRecorder::logLosses() {
    const std::int64_t lost = m_buffer.framesLost();
    if (lost > m_lossesLogged) {
        qCWarning(lcRecorder, "%lld frames of the recording were lost so far", static_cast<long long>(lost));
        m_lossesLogged = lost;
    }
}

void CaptureRecorder::finished() {
    if (m_isFinished) {
        return;
    }
    m_encoder.join();
    m_isFinished = true;
    m_isRunning = false;
    m_input.reset();
    takeUntilSynced();
    if (m_delegate != nullptr) {
        m_delegate->audioRecorderDidFinishRecording(*this, m_error);
    }
}

Result<std::unique_ptr<AudioRecorder>> CaptureRecorders::recorderWithPath(const std::filesystem::path& path,
                                                                          const AudioRecordSettings& settings) {
    auto writer = m_writers.create(path, settings);
    if (!writer) {
        return tl::unexpected(writer.error());
    }
    return std::make_unique<CaptureRecorder>(m_inputs, std::move(*writer), m_runLoop);
}

}  // namespace tavi
