#pragma once

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "API/AudioTrimmerController/EZAudio/EZAudioFileDelegate.h"
#include "API/AudioTrimmerController/EZAudio/EZAudioFloatConverter.h"
#include "API/AudioTrimmerController/EZAudio/EZAudioFloatData.h"
#include "API/AudioTrimmerController/EZAudio/EZAudioMemory.h"
#include "API/AudioTrimmerController/EZAudio/SerialQueue.h"
#include "platform/AudioConverter.h"
#include "platform/ExtAudioFile.h"

namespace tavi {

/// Reads a sound file in a client format, and reduces it to points of loudness.
///
/// Every failure of the platform goes to EZAudioUtilities::checkResult(), and the reader goes on. The read position is
/// guarded by a lock that is only ever tried: what finds it taken does nothing, so that a thread which plays never
/// waits for a waveform. Any thread; setClientFormat() while nobody reads.
class EZAudioFile : public std::enable_shared_from_this<EZAudioFile> {
public:
    struct Services {
        ExtAudioFiles& files;
        AudioConverters& converters;
        DispatchQueues& queues;
    };
    /// The points of each channel and their number; null and 0 when there are none. Valid until it returns.
    using WaveformCompletion = std::function<void(float** waveformData, int length)>;

    /// Null when there is no file at that path.
    static std::shared_ptr<EZAudioFile> audioFileWithURL(const std::filesystem::path& url, const Services& services,
                                                         std::weak_ptr<EZAudioFileDelegate> delegate = {});
    static std::shared_ptr<EZAudioFile> audioFileWithURL(const std::filesystem::path& url, const Services& services,
                                                         std::weak_ptr<EZAudioFileDelegate> delegate,
                                                         const AudioStreamBasicDescription& clientFormat);
    EZAudioFile(const EZAudioFile&) = delete;
    EZAudioFile& operator=(const EZAudioFile&) = delete;
    /// A new reader of the same file.
    std::shared_ptr<EZAudioFile> copy() const { return audioFileWithURL(url(), m_services); }

    /// Stereo, 32-bit float, not interleaved, 44,100 Hz.
    static AudioStreamBasicDescription defaultClientFormat();
    static double defaultClientFormatSampleRate() { return 44100.0; }
    AudioStreamBasicDescription floatFormat() const { return defaultClientFormat(); }

    void setDelegate(std::weak_ptr<EZAudioFileDelegate> delegate) { m_delegate = std::move(delegate); }
    const AudioStreamBasicDescription& clientFormat() const { return m_info->clientFormat; }
    void setClientFormat(const AudioStreamBasicDescription& clientFormat);
    const AudioStreamBasicDescription& fileFormat() const { return m_info->fileFormat; }
    const std::filesystem::path& url() const { return m_info->sourceURL; }
    AudioFileInfo metadata() const;
    std::string description() const;

    /// Reads up to frames client frames; tells how many, and whether there were none. With a delegate that wants
    /// audio, at most 1024 at a time are handed on.
    void readFrames(std::uint32_t frames, AudioBufferList* audioBufferList, std::uint32_t* bufferSize, bool* eof);
    /// A frame of the file.
    void seekToFrame(std::int64_t frame);

    /// Where the reader is; while another thread reads, where it was before.
    std::int64_t frameIndex() const;
    std::int64_t totalFrames() const { return m_info->totalFrames; }
    std::int64_t totalClientFrames() const;
    /// Seconds.
    double duration() const { return m_info->duration; }
    double totalDuration() const { return m_info->duration; }
    double currentTime() const;
    void setCurrentTime(double currentTime);
    std::string formattedDuration() const;
    std::string formattedCurrentTime() const;

    /// The file's loudness in that many equal parts, one RMS a part and channel; null when the lock is taken, and for a
    /// client format that is not of floats. Long files are read by two threads where that is faster.
    std::unique_ptr<EZAudioFloatData> getWaveformDataWithNumberOfPoints(std::uint32_t numberOfPoints);
    std::unique_ptr<EZAudioFloatData> getWaveformData();
    /// The same on the reader's own queue; the completion is called on the main thread.
    void getWaveformDataWithNumberOfPoints(std::uint32_t numberOfPoints, WaveformCompletion completion);
    void getWaveformDataWithCompletionBlock(WaveformCompletion completion);

private:
    struct Info {
        /// The file as its headers describe it; the same object as extAudioFile.
        const ExtAudioFile* audioFileID = nullptr;
        AudioStreamBasicDescription clientFormat;
        double duration = 0;
        std::unique_ptr<ExtAudioFile> extAudioFile;
        AudioStreamBasicDescription fileFormat;
        std::int64_t totalFrames = 0;
        std::filesystem::path sourceURL;
    };
    class TriedLock;

    explicit EZAudioFile(const Services& services);

    bool open(const std::filesystem::path& url);
    /// What a call on the open file answers; kAudioParameterError where none is open.
    template <class Call>
    AudioStatus onFile(const Call& call) const;
    std::int64_t askFrameIndex() const;
    void seekFile(std::int64_t frame);
    void sendPosition();
    /// A second reader of the same file, for one half of a waveform; null where one is not worth it.
    std::unique_ptr<ExtAudioFile> openForHalf(std::uint32_t numberOfPoints) const;
    bool seekToClientFrame(ExtAudioFile& file, std::int64_t frame) const;

    Services m_services;
    std::weak_ptr<EZAudioFileDelegate> m_delegate;
    std::unique_ptr<Info> m_info = std::make_unique<Info>();
    /// Set while the file's position is in use. A flag and no mutex: a delegate may call from inside a read.
    mutable std::atomic_flag m_lock;
    mutable std::atomic<std::int64_t> m_frameIndex = 0;
    std::unique_ptr<EZAudioFloatConverter> m_floatConverter;
    OwnedFloatBuffers m_floatData;
    SerialQueue m_waveformQueue;
};

}  // namespace tavi
