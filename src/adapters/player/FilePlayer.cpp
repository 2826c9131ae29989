#include "adapters/player/FilePlayer.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <mutex>
#include <utility>

#include "adapters/player/PlaybackBuffer.h"
#include "adapters/player/PlaybackClock.h"
#include "adapters/player/PlaybackReader.h"

namespace tavi {

namespace {

constexpr float kSilence = -160.0F;
constexpr float kSlowest = 0.5F;
constexpr float kFastest = 2.0F;
/// What sound servers take.
constexpr double kHighestRate = 192000.0;
constexpr double kLowestRate = 1000.0;

std::int64_t monotonicNanoseconds() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
}

AudioStreamBasicDescription clientFormat(const AudioOutputFormat& format) {
    AudioStreamBasicDescription client;
    client.sampleRate = format.sampleRate;
    client.formatID = kAudioFormatLinearPCM;
    client.formatFlags = kAudioFormatFlagIsFloat | kAudioFormatFlagIsPacked;
    client.channelsPerFrame = static_cast<std::uint32_t>(format.channels);
    client.bitsPerChannel = 8 * sizeof(float);
    client.framesPerPacket = 1;
    client.bytesPerFrame = static_cast<std::uint32_t>(sizeof(float)) * client.channelsPerFrame;
    client.bytesPerPacket = client.bytesPerFrame;
    return client;
}

}  // namespace

/// What the three threads share. It lasts until the last of them has let go.
struct PlaybackCore {
    PlaybackCore(std::unique_ptr<ExtAudioFile> file, const AudioOutputFormat& format, double fileFramesPerFrame,
                 std::int64_t length, AudioTempos& tempos, PlaybackFeed::Ended ended)
        : buffer(format),
          feed(buffer, clock, std::move(ended)),
          reader(std::move(file), fileFramesPerFrame, length, tempos, buffer, clock) {}

    void setOutput(AudioOutput* newOutput) {
        const std::lock_guard lock(mutex);
        output = newOutput;
    }
    void wakePlayback() {
        const std::lock_guard lock(mutex);
        if (output != nullptr) {
            output->wake();
        }
    }

    PlaybackBuffer buffer;
    PlaybackClock clock;
    PlaybackFeed feed;
    PlaybackReader reader;
    std::mutex mutex;
    AudioOutput* output = nullptr;
};

FilePlayer::FilePlayer(std::unique_ptr<ExtAudioFile> file, const AudioOutputFormat& format, double fileFramesPerFrame,
                       std::int64_t length, AudioTempos& tempos, AudioOutputs& outputs, RunLoop& runLoop)
    : m_format(format), m_length(length), m_outputs(outputs), m_runLoop(runLoop), m_averagePower{kSilence, kSilence} {
    const auto whenEnded = [this, &runLoop, alive = std::weak_ptr<int>(m_lifetime)](const PlaybackFeed::End& end) {
        runLoop.dispatchMain([this, alive, end] {
            if (!alive.expired()) {
                ended(end);
            }
        });
    };
    m_core = std::make_shared<PlaybackCore>(std::move(file), format, fileFramesPerFrame, length, tempos, whenEnded);
    m_thread = std::make_shared<std::jthread>([core = m_core] { core->reader.run([&core] { core->wakePlayback(); }); });
}

FilePlayer::~FilePlayer() {
    stop();
    m_core->reader.quit();
    // A disk that hangs keeps the decoding thread, but not this one.
    m_runLoop.dispatchBackground([thread = std::move(m_thread)]() mutable { thread.reset(); });
}

bool FilePlayer::isValid() const {
    return m_core->buffer.isValid();
}

bool FilePlayer::prepareToPlay() {
    if (m_output == nullptr) {
        m_jump = m_core->reader.jump(m_frame);
        m_output = m_outputs.open(m_format, std::shared_ptr<AudioOutputSource>(m_core, &m_core->feed));
        m_core->setOutput(m_output.get());
    }
    return true;
}

bool FilePlayer::play() {
    if (m_isPlaying) {
        return true;
    }
    if (m_frame >= m_length) {
        goTo(0);
    }
    prepareToPlay();
    m_isPlaying = true;
    m_core->feed.setPlaying(true);
    m_output->wake();
    return true;
}

void FilePlayer::pause() {
    if (m_isPlaying) {
        const std::int64_t frame = currentFrame();
        m_isPlaying = false;
        m_core->feed.setPlaying(false);
        // What has been heard by now is what counts, although the output cannot stop before it has heard a little more.
        goTo(frame);
        m_output->wake();
    }
}

void FilePlayer::stop() {
    pause();
    closeOutput();
}

void FilePlayer::closeOutput() {
    m_core->setOutput(nullptr);
    m_output.reset();
}

std::int64_t FilePlayer::currentFrame() const {
    if (m_isPlaying) {
        const PlaybackPosition position = m_core->clock.read();
        if (position.jump == m_jump) {
            const double media = position.mediaOf(position.heardAt(monotonicNanoseconds()));
            return std::clamp<std::int64_t>(std::llround(media), 0, m_length);
        }
    }
    return m_frame;
}

double FilePlayer::currentTime() const {
    return seconds(currentFrame());
}

void FilePlayer::setCurrentTime(double time) {
    if (!std::isnan(time)) {
        goTo(std::llround(std::clamp(time, 0.0, duration()) * m_format.sampleRate));
    }
}

void FilePlayer::goTo(std::int64_t frame) {
    m_frame = std::min(frame, m_length);
    if (m_output != nullptr) {
        m_jump = m_core->reader.jump(m_frame);
    }
}

void FilePlayer::setEnableRate(bool enabled) {
    m_isRateEnabled = enabled;
    applyRate();
}

void FilePlayer::setRate(float rate) {
    if (!std::isnan(rate)) {
        m_rate = std::clamp(rate, kSlowest, kFastest);
        applyRate();
    }
}

void FilePlayer::applyRate() {
    m_core->reader.setRate(m_isRateEnabled ? static_cast<double>(m_rate) : 1.0);
}

void FilePlayer::setMeteringEnabled(bool enabled) {
    m_isMetering = enabled;
    m_core->feed.setMetering(enabled);
}

void FilePlayer::updateMeters() {
    if (!m_isMetering) {
        return;
    }
    const PlaybackPosition position = m_core->clock.read();
    const PlaybackFeed::Level level = m_core->feed.takeLevel(position.heardAt(monotonicNanoseconds()));
    if (level.frames == 0 && m_isPlaying) {
        // Sound comes in larger pieces than this is asked for.
        return;
    }
    for (std::size_t channel = 0; channel < m_averagePower.size(); ++channel) {
        const double mean = level.frames > 0 ? level.sumOfSquares[channel] / static_cast<double>(level.frames) : 0.0;
        m_averagePower[channel] =
            mean > 0.0 ? std::clamp(static_cast<float>(10.0 * std::log10(mean)), kSilence, 0.0F) : kSilence;
    }
}

float FilePlayer::averagePowerForChannel(int channel) const {
    const auto index = static_cast<std::size_t>(channel);
    return index < m_averagePower.size() ? m_averagePower[index] : kSilence;
}

void FilePlayer::ended(const PlaybackFeed::End& end) {
    using Reason = PlaybackFeed::End::Reason;
    const bool hasOutputFailed = end.reason == Reason::NoOutput;
    // The number of a jump tells what has ended from what has been asked for since.
    if (!hasOutputFailed && (!m_isPlaying || end.jump != m_jump)) {
        return;
    }
    const bool wasPlaying = m_isPlaying;
    const bool successfully = end.reason == Reason::Whole;
    m_error = end.reason == Reason::CutShort ? Error{qtTrId("error_recording_cut_short")} : end.error;
    m_frame = successfully ? m_length : currentFrame();
    m_isPlaying = false;
    m_core->feed.setPlaying(false);
    if (hasOutputFailed) {
        closeOutput();
    }
    if (wasPlaying && m_delegate != nullptr) {
        m_delegate->audioPlayerDidFinishPlaying(*this, successfully);
    }
}

Result<std::unique_ptr<AudioPlayer>> FilePlayers::playerWithContentsOfURL(const std::filesystem::path& path) {
    const auto fails = [](AudioStatus status) {
        return failure(QStringLiteral("The file cannot be played (%1).").arg(status));
    };
    std::unique_ptr<ExtAudioFile> file;
    if (const AudioStatus status = m_files.open(path, file); status != kAudioNoError) {
        return fails(status);
    }
    AudioStreamBasicDescription description;
    std::int64_t fileFrames = 0;
    AudioStatus status = file->fileDataFormat(description);
    if (status == kAudioNoError) {
        status = file->fileLengthFrames(fileFrames);
    }
    if (status != kAudioNoError || description.sampleRate < 1.0 || description.channelsPerFrame == 0) {
        return fails(status);
    }
    const double rate = std::round(std::clamp(description.sampleRate, kLowestRate, kHighestRate));
    const AudioOutputFormat format{static_cast<int>(rate), description.channelsPerFrame == 1 ? 1 : 2};
    status = file->setClientDataFormat(clientFormat(format));
    if (status != kAudioNoError) {
        return fails(status);
    }
    const double fileFramesPerFrame = description.sampleRate / rate;
    const auto length = std::llround(static_cast<double>(fileFrames) / fileFramesPerFrame);
    auto player = std::make_unique<FilePlayer>(std::move(file), format, fileFramesPerFrame, length, m_tempos, m_outputs,
                                               m_runLoop);
    if (!player->isValid()) {
        return failure(QStringLiteral("There is not enough memory to play."));
    }
    return player;
}

}  // namespace tavi
