#include "API/AudioTrimmerController/EZAudio/EZAudioFile.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <system_error>
#include <thread>

#include "API/AudioTrimmerController/EZAudio/EZAudioUtilities.h"
#include "API/AudioTrimmerController/EZAudio/WaveformReduction.h"

namespace tavi {

namespace {

constexpr std::uint32_t kFloatDataFrames = 1024;
constexpr std::uint32_t kDefaultPoints = 1024;
/// More than any file has, and less than overflows.
constexpr double kMostFrames = 1e18;
/// A shorter file is read before a second thread has begun.
constexpr double kSecondsWorthTwoThreads = 30;

}  // namespace

/// The reader's lock for as long as this lives, where it was free.
class EZAudioFile::TriedLock {
public:
    explicit TriedLock(std::atomic_flag& flag)
        : m_flag(flag.test_and_set(std::memory_order_acquire) ? nullptr : &flag) {}
    TriedLock(const TriedLock&) = delete;
    TriedLock& operator=(const TriedLock&) = delete;
    ~TriedLock() { release(); }

    explicit operator bool() const { return m_flag != nullptr; }
    void release() {
        if (m_flag != nullptr) {
            m_flag->clear(std::memory_order_release);
            m_flag = nullptr;
        }
    }

private:
    std::atomic_flag* m_flag;
};

EZAudioFile::EZAudioFile(const Services& services)
    : m_services(services), m_waveformQueue("com.ezaudio.waveformQueue", services.queues) {}

std::shared_ptr<EZAudioFile> EZAudioFile::audioFileWithURL(const std::filesystem::path& url, const Services& services,
                                                           std::weak_ptr<EZAudioFileDelegate> delegate) {
    return audioFileWithURL(url, services, std::move(delegate), defaultClientFormat());
}

std::shared_ptr<EZAudioFile> EZAudioFile::audioFileWithURL(const std::filesystem::path& url, const Services& services,
                                                           std::weak_ptr<EZAudioFileDelegate> delegate,
                                                           const AudioStreamBasicDescription& clientFormat) {
    std::shared_ptr<EZAudioFile> file(new EZAudioFile(services));
    file->m_delegate = std::move(delegate);
    if (!file->open(url)) {
        return nullptr;
    }
    file->setClientFormat(clientFormat);
    return file;
}

template <class Call>
AudioStatus EZAudioFile::onFile(const Call& call) const {
    return m_info->extAudioFile ? call(*m_info->extAudioFile) : kAudioParameterError;
}

bool EZAudioFile::open(const std::filesystem::path& url) {
    m_info->sourceURL = url;
    const AudioStatus status = m_services.files.open(url, m_info->extAudioFile);
    if (status == kAudioFileFileNotFoundError) {
        return false;
    }
    EZAudioUtilities::checkResult(status, "Failed to create ExtAudioFileRef");
    m_info->audioFileID = m_info->extAudioFile.get();
    EZAudioUtilities::checkResult(m_info->audioFileID != nullptr ? kAudioNoError : kAudioParameterError,
                                  "Failed to get underlying AudioFileID");
    EZAudioUtilities::checkResult(
        onFile([this](ExtAudioFile& file) { return file.fileDataFormat(m_info->fileFormat); }),
        "Failed to get file audio format on existing audio file");
    EZAudioUtilities::checkResult(
        onFile([this](ExtAudioFile& file) { return file.fileLengthFrames(m_info->totalFrames); }),
        "Failed to get total frames");
    const double rate = m_info->fileFormat.sampleRate;
    m_info->duration = rate > 0 ? static_cast<double>(m_info->totalFrames) / rate : 0;
    return true;
}

AudioStreamBasicDescription EZAudioFile::defaultClientFormat() {
    return EZAudioUtilities::stereoFloatNonInterleavedFormatWithSampleRate(defaultClientFormatSampleRate());
}

void EZAudioFile::setClientFormat(const AudioStreamBasicDescription& clientFormat) {
    m_floatData.reset();
    m_info->clientFormat = clientFormat;
    EZAudioUtilities::checkResult(onFile([&](ExtAudioFile& file) { return file.setClientDataFormat(clientFormat); }),
                                  "Couldn't set client data format on file");
    m_floatConverter = EZAudioFloatConverter::converterWithInputFormat(clientFormat, m_services.converters);
    std::uint32_t maxPacketSize = 0;
    EZAudioUtilities::checkResult(onFile([&](ExtAudioFile& file) { return file.fileMaxPacketSize(maxPacketSize); }),
                                  "Failed to get max packet size");
    const std::uint32_t channels = clientFormat.channelsPerFrame;
    m_floatData = OwnedFloatBuffers(EZAudioUtilities::floatBuffersWithNumberOfFrames(kFloatDataFrames, channels),
                                    FreeFloatBuffers{channels});
}

AudioFileInfo EZAudioFile::metadata() const {
    AudioFileInfo info;
    if (m_info->audioFileID != nullptr) {
        m_info->audioFileID->infoDictionary(info);
    }
    return info;
}

std::string EZAudioFile::description() const {
    std::string entries = "{";
    for (const auto& [key, value] : metadata()) {
        entries.append("\n    ").append(key).append(" = \"").append(value).append("\";");
    }
    entries += "\n}";
    char numbers[128];
    std::snprintf(numbers, sizeof numbers, "    duration: %f,\n    totalFrames: %lld,\n", duration(),
                  static_cast<long long>(totalFrames()));
    return "EZAudioFile {\n    url: " + url().native() + ",\n" + numbers + "    metadata: " + entries +
           ",\n    fileFormat: { " + EZAudioUtilities::stringForAudioStreamBasicDescription(fileFormat()) +
           " },\n    clientFormat: { " + EZAudioUtilities::stringForAudioStreamBasicDescription(clientFormat()) +
           " } \n}";
}

void EZAudioFile::readFrames(std::uint32_t frames, AudioBufferList* audioBufferList, std::uint32_t* bufferSize,
                             bool* eof) {
    const TriedLock lock(m_lock);
    if (!lock) {
        return;
    }
    EZAudioUtilities::checkResult(onFile([&](ExtAudioFile& file) { return file.read(frames, *audioBufferList); }),
                                  "Failed to read audio data from file");
    frames = m_info->extAudioFile ? frames : 0;
    *bufferSize = frames;
    *eof = frames == 0;
    askFrameIndex();
    sendPosition();
    const auto delegate = m_delegate.lock();
    if (delegate && delegate->wantsAudio()) {
        // The arrays hold no more.
        const std::uint32_t count = std::min(frames, kFloatDataFrames);
        m_floatConverter->convertDataFromAudioBufferList(audioBufferList, count, m_floatData.get());
        delegate->audioFile(*this, m_floatData.get(), count, m_info->clientFormat.channelsPerFrame);
    }
}

void EZAudioFile::seekToFrame(std::int64_t frame) {
    TriedLock lock(m_lock);
    if (!lock) {
        return;
    }
    seekFile(frame);
    askFrameIndex();
    lock.release();
    sendPosition();
}

void EZAudioFile::seekFile(std::int64_t frame) {
    EZAudioUtilities::checkResult(onFile([&](ExtAudioFile& file) { return file.seek(frame); }),
                                  "Failed to seek frame position within audio file");
}

void EZAudioFile::sendPosition() {
    if (const auto delegate = m_delegate.lock()) {
        delegate->audioFileUpdatedPosition(*this);
        delegate->audioFile(*this, m_frameIndex.load());
    }
}

std::int64_t EZAudioFile::askFrameIndex() const {
    std::int64_t frame = 0;
    EZAudioUtilities::checkResult(onFile([&](const ExtAudioFile& file) { return file.tell(frame); }),
                                  "Failed to get frame index");
    m_frameIndex = frame;
    return frame;
}

std::int64_t EZAudioFile::frameIndex() const {
    const TriedLock lock(m_lock);
    return lock ? askFrameIndex() : m_frameIndex.load();
}

std::int64_t EZAudioFile::totalClientFrames() const {
    const double rate = m_info->clientFormat.sampleRate;
    return rate == m_info->fileFormat.sampleRate
               ? m_info->totalFrames
               : static_cast<std::int64_t>(std::clamp(rate * m_info->duration, 0.0, kMostFrames));
}

double EZAudioFile::currentTime() const {
    // In double precision: a float cannot name every frame of more than six minutes.
    return totalFrames() > 0 ? static_cast<double>(frameIndex()) / static_cast<double>(totalFrames()) * duration() : 0;
}

void EZAudioFile::setCurrentTime(double currentTime) {
    const double frame = duration() > 0 ? currentTime / duration() * static_cast<double>(totalFrames()) : 0;
    // Half a thousandth of a frame forgives the rounding of a time that names one.
    seekToFrame(static_cast<std::int64_t>(std::clamp(frame + 0.0005, -1.0, kMostFrames)));
}

std::string EZAudioFile::formattedDuration() const {
    return EZAudioUtilities::displayTimeStringFromSeconds(duration());
}

std::string EZAudioFile::formattedCurrentTime() const {
    return EZAudioUtilities::displayTimeStringFromSeconds(currentTime());
}

std::unique_ptr<ExtAudioFile> EZAudioFile::openForHalf(std::uint32_t numberOfPoints) const {
    const double rate = m_info->clientFormat.sampleRate;
    const bool isLong = static_cast<double>(totalClientFrames()) > kSecondsWorthTwoThreads * rate;
    if (numberOfPoints < 2 || !isLong || !m_info->extAudioFile || !m_info->extAudioFile->isRandomAccess()) {
        return nullptr;
    }
    std::unique_ptr<ExtAudioFile> file;
    AudioStreamBasicDescription format;
    std::int64_t frames = 0;
    // Another file may have come to that path since.
    const bool isSame = m_services.files.open(url(), file) == kAudioNoError &&
                        file->fileDataFormat(format) == kAudioNoError && format == fileFormat() &&
                        file->fileLengthFrames(frames) == kAudioNoError && frames == totalFrames() &&
                        file->setClientDataFormat(clientFormat()) == kAudioNoError;
    return isSame ? std::move(file) : nullptr;
}

std::unique_ptr<EZAudioFloatData> EZAudioFile::getWaveformDataWithNumberOfPoints(std::uint32_t numberOfPoints) {
    const TriedLock lock(m_lock);
    const std::uint32_t channels = m_info->clientFormat.channelsPerFrame;
    if (!lock || channels == 0 || !m_info->extAudioFile || !EZAudioUtilities::isFloatFormat(m_info->clientFormat)) {
        return nullptr;
    }
    const std::int64_t frameIndex = askFrameIndex();
    // A pass over no points still makes one.
    const std::uint32_t passes = std::max(numberOfPoints, 1U);
    std::vector<std::vector<float>> values(channels, std::vector<float>(passes));
    std::vector<float*> points;
    points.reserve(values.size());
    for (auto& channel : values) {
        points.push_back(channel.data());
    }
    constexpr std::int64_t kMost = std::numeric_limits<std::uint32_t>::max();
    const auto framesPerPoint = static_cast<std::uint32_t>(
        numberOfPoints == 0 ? 0 : std::clamp<std::int64_t>(totalClientFrames() / numberOfPoints, 0, kMost));
    seekFile(0);
    const WaveformReduction reduction{*m_info->extAudioFile, m_info->clientFormat, framesPerPoint, points};
    const std::uint32_t middle = passes / 2;
    std::thread helper;
    const auto half = openForHalf(numberOfPoints);
    if (half && seekToClientFrame(*half, std::int64_t{middle} * framesPerPoint)) {
        try {
            helper = std::thread([&] {
                WaveformReduction{*half, m_info->clientFormat, framesPerPoint, points}.reduce(middle, passes);
            });
        } catch (const std::system_error&) {
            // No more threads: this one reads all.
        }
    }
    reduction.reduce(0, helper.joinable() ? middle : passes);
    if (helper.joinable()) {
        helper.join();
    }
    seekFile(frameIndex);
    return EZAudioFloatData::dataWithNumberOfChannels(static_cast<int>(channels), points.data(), numberOfPoints);
}

bool EZAudioFile::seekToClientFrame(ExtAudioFile& file, std::int64_t frame) const {
    // After a seek comes the first client frame that does not stand before it; some client frames more may be left to
    // read where no frame of the file stands at the time of the one that is wanted.
    const double ratio = m_info->clientFormat.sampleRate / m_info->fileFormat.sampleRate;
    const auto from = static_cast<std::int64_t>(static_cast<double>(frame) * m_info->fileFormat.sampleRate /
                                                m_info->clientFormat.sampleRate);
    const double reached =
        std::ceil(static_cast<double>(from) * m_info->clientFormat.sampleRate / m_info->fileFormat.sampleRate);
    const auto surplus = static_cast<std::uint32_t>(std::clamp(static_cast<double>(frame) - reached, 0.0, ratio + 1));
    if (file.seek(from) != kAudioNoError) {
        return false;
    }
    const OwnedBufferList list(EZAudioUtilities::audioBufferListWithNumberOfFrames(
        surplus, m_info->clientFormat.channelsPerFrame, EZAudioUtilities::isInterleaved(m_info->clientFormat)));
    std::uint32_t frames = surplus;
    return surplus == 0 || file.read(frames, *list) == kAudioNoError;
}

std::unique_ptr<EZAudioFloatData> EZAudioFile::getWaveformData() {
    return getWaveformDataWithNumberOfPoints(kDefaultPoints);
}

void EZAudioFile::getWaveformDataWithCompletionBlock(WaveformCompletion completion) {
    getWaveformDataWithNumberOfPoints(kDefaultPoints, std::move(completion));
}

void EZAudioFile::getWaveformDataWithNumberOfPoints(std::uint32_t numberOfPoints, WaveformCompletion completion) {
    if (!completion) {
        return;
    }
    m_waveformQueue.async(
        [weak = weak_from_this(), &queues = m_services.queues, numberOfPoints, completion = std::move(completion)] {
            std::shared_ptr<EZAudioFloatData> data;
            if (const auto self = weak.lock()) {
                data = self->getWaveformDataWithNumberOfPoints(numberOfPoints);
            }
            queues.dispatchMain([data, completion] {
                completion(data ? data->buffers() : nullptr, data ? static_cast<int>(data->bufferSize()) : 0);
            });
        });
}

}  // namespace tavi
