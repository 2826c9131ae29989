#include "adapters/ffmpeg/reading/AssetSamples.h"

#include <fcntl.h>

#include <condition_variable>
#include <cstring>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

#include "adapters/ffmpeg/reading/FfmpegExtAudioFiles.h"
#include "files/PositionedIo.h"
#include "sound/caf/CafHeader.h"
#include "sound/caf/Ima4Packet.h"
#include "sound/wav/WavHeader.h"

namespace tavi {

namespace {

/// Little enough to stay in the processor's cache.
constexpr std::uint32_t kPieceFrames = 16384;
constexpr std::uint32_t kMaximumChannels = 8;

/// Linear PCM of 8 or 16 bits.
class WavSamples : public AssetSamples {
public:
    WavSamples(FileDescriptor file, const WavHeader& header)
        : m_file(std::move(file)),
          m_header(header),
          m_bytes(std::size_t{kPieceFrames} * header.frameBytes),
          m_samples(std::size_t{kPieceFrames} * header.channels) {}

    /// Nothing for a file of another kind.
    static std::optional<WavHeader> headerOf(int fd) {
        const auto header = readWavHeader(fd);
        const std::uint32_t bytes = header ? header->bitsPerSample / 8 : 0;
        const bool isOurs = header && !header->isFloat && (header->bitsPerSample == 8 || header->bitsPerSample == 16) &&
                            header->channels >= 1 && header->channels <= kMaximumChannels &&
                            header->frameBytes == bytes * header->channels;
        return isOurs ? header : std::nullopt;
    }

    std::uint32_t channels() const override { return m_header.channels; }
    std::span<const std::int16_t> next() override {
        const std::int64_t wanted = std::min<std::int64_t>(kPieceFrames, m_header.frames - m_position);
        const auto bytes = static_cast<std::size_t>(wanted * m_header.frameBytes);
        const std::int64_t offset = m_header.dataOffset + m_position * m_header.frameBytes;
        const bool isWide = m_header.bitsPerSample == 16;
        void* target = isWide ? static_cast<void*>(m_samples.data()) : m_bytes.data();
        const std::size_t frames = readFully(m_file.get(), target, bytes, offset) / m_header.frameBytes;
        const std::size_t count = frames * m_header.channels;
        for (std::size_t i = 0; !isWide && i < count; ++i) {
            m_samples[i] = static_cast<std::int16_t>((m_bytes[i] - 128) * 256);
        }
        m_position += static_cast<std::int64_t>(frames);
        return std::span<const std::int16_t>(m_samples).first(count);
    }

private:
    FileDescriptor m_file;
    WavHeader m_header;
    std::int64_t m_position = 0;
    std::vector<std::uint8_t> m_bytes;
    std::vector<std::int16_t> m_samples;
};

class Ima4Samples : public AssetSamples {
public:
    Ima4Samples(FileDescriptor file, const CafHeader& header)
        : m_file(std::move(file)),
          m_header(header),
          m_states(header.channels),
          m_bytes(kBlockPackets * header.packetBytes),
          m_decoded(kPieceFrames),
          m_samples(std::size_t{kPieceFrames} * header.channels) {}

    static std::optional<CafHeader> headerOf(int fd) {
        const auto header = readCafHeader(fd);
        const bool isOurs = header && header->formatID == kAudioFormatAppleIMA4 && header->channels >= 1 &&
                            header->channels <= kMaximumChannels &&
                            header->packetBytes == kIma4PacketBytes * header->channels &&
                            header->packetFrames == kIma4PacketFrames;
        return isOurs ? header : std::nullopt;
    }

    std::uint32_t channels() const override { return m_header.channels; }
    std::span<const std::int16_t> next() override {
        for (;;) {
            const std::int64_t start = m_packet * m_header.packetBytes;
            const auto blockBytes = static_cast<std::int64_t>(m_bytes.size());
            const auto wanted = std::clamp<std::int64_t>(m_header.dataBytes - start, 0, blockBytes);
            const std::size_t packets =
                readFully(m_file.get(), m_bytes.data(), static_cast<std::size_t>(wanted), m_header.dataOffset + start) /
                m_header.packetBytes;
            decode(packets);
            // Priming before, and the rest of the last packet behind.
            const std::int64_t first = m_packet * static_cast<std::int64_t>(kIma4PacketFrames) - m_header.primingFrames;
            m_packet += static_cast<std::int64_t>(packets);
            const auto decoded = static_cast<std::int64_t>(packets * kIma4PacketFrames);
            const std::int64_t from = std::clamp<std::int64_t>(-first, 0, decoded);
            const std::int64_t to = std::clamp<std::int64_t>(m_header.frames - first, from, decoded);
            if (to > from || packets == 0) {
                const auto all = std::span<const std::int16_t>(m_samples);
                return all.subspan(static_cast<std::size_t>(from) * m_header.channels,
                                   static_cast<std::size_t>(to - from) * m_header.channels);
            }
        }
    }

private:
    static constexpr std::size_t kBlockPackets = kPieceFrames / kIma4PacketFrames;

    void decode(std::size_t packets) {
        const std::size_t count = m_header.channels;
        for (std::size_t channel = 0; channel < count; ++channel) {
            decodeIma4Packets(m_bytes.data() + channel * kIma4PacketBytes, m_header.packetBytes, packets,
                              m_states[channel], m_decoded.data());
            for (std::size_t frame = 0; frame < packets * kIma4PacketFrames; ++frame) {
                m_samples[frame * count + channel] = m_decoded[frame];
            }
        }
    }

    FileDescriptor m_file;
    CafHeader m_header;
    std::vector<Ima4State> m_states;
    std::int64_t m_packet = 0;
    std::vector<std::uint8_t> m_bytes;
    /// Of one channel.
    std::vector<std::int16_t> m_decoded;
    std::vector<std::int16_t> m_samples;
};

/// A file that delivers 16-bit samples as it is.
std::unique_ptr<ExtAudioFile> openFile(const std::string& path, AudioStreamBasicDescription& format) {
    std::unique_ptr<ExtAudioFile> file;
    if (FfmpegExtAudioFiles().open(path, file) != kAudioNoError || file->fileDataFormat(format) != kAudioNoError) {
        return nullptr;
    }
    AudioStreamBasicDescription client;
    client.sampleRate = format.sampleRate;
    client.formatID = kAudioFormatLinearPCM;
    client.formatFlags = kAudioFormatFlagIsSignedInteger | kAudioFormatFlagIsPacked;
    client.channelsPerFrame = format.channelsPerFrame;
    client.bitsPerChannel = 16;
    client.framesPerPacket = 1;
    client.bytesPerFrame = client.bytesPerPacket = 2 * format.channelsPerFrame;
    return file->setClientDataFormat(client) == kAudioNoError ? std::move(file) : nullptr;
}

/// Reads until the samples are full; how many frames came.
std::size_t fill(ExtAudioFile& file, std::uint32_t channels, std::span<std::int16_t> samples) {
    auto frames = static_cast<std::uint32_t>(samples.size() / channels);
    AudioBufferList list{1, {{channels, static_cast<std::uint32_t>(samples.size_bytes()), samples.data()}}};
    return file.read(frames, list) == kAudioNoError ? frames : 0;
}

class FileSamples : public AssetSamples {
public:
    FileSamples(std::unique_ptr<ExtAudioFile> file, std::uint32_t channels)
        : m_file(std::move(file)), m_channels(channels), m_samples(std::size_t{kPieceFrames} * channels) {}

    std::uint32_t channels() const override { return m_channels; }
    std::span<const std::int16_t> next() override {
        return std::span<const std::int16_t>(m_samples).first(fill(*m_file, m_channels, m_samples) * m_channels);
    }

private:
    std::unique_ptr<ExtAudioFile> m_file;
    std::uint32_t m_channels;
    std::vector<std::int16_t> m_samples;
};

/// Two threads decode every other stretch each, and keep one ready.
class SharedSamples : public AssetSamples {
public:
    SharedSamples(std::string path, std::unique_ptr<ExtAudioFile> file, std::uint32_t channels, std::int64_t frames)
        : m_path(std::move(path)), m_channels(channels), m_frames(frames) {
        m_files[0] = std::move(file);
    }
    ~SharedSamples() override {
        {
            const std::lock_guard lock(m_mutex);
            m_isOver = true;
        }
        m_changed.notify_all();
        for (std::thread& thread : m_threads) {
            if (thread.joinable()) {
                thread.join();
            }
        }
    }
    SharedSamples(const SharedSamples&) = delete;
    SharedSamples& operator=(const SharedSamples&) = delete;

    /// False when there can be no threads.
    bool start() {
        try {
            for (std::size_t i = 0; i < kThreads; ++i) {
                m_threads[i] = std::thread([this, i] { decode(i); });
            }
            return true;
        } catch (const std::system_error&) {
            return false;
        }
    }

    std::uint32_t channels() const override { return m_channels; }
    std::span<const std::int16_t> next() override {
        std::unique_lock lock(m_mutex);
        Stretch& stretch = m_stretches[m_turn];
        if (m_isTaken) {
            stretch.isReady = false;
            m_turn = (m_turn + 1) % kThreads;
            m_changed.notify_all();
        }
        m_isTaken = true;
        Stretch& wanted = m_stretches[m_turn];
        m_changed.wait(lock, [&] { return wanted.isReady; });
        return wanted.samples;
    }

private:
    static constexpr std::size_t kThreads = 2;
    static constexpr std::int64_t kStretchFrames = std::int64_t{1} << 18;

    struct Stretch {
        std::vector<std::int16_t> samples;
        bool isReady = false;
    };

    void decode(std::size_t which) {
        AudioStreamBasicDescription format;
        auto& file = m_files[which];
        if (!file) {
            file = openFile(m_path, format);
        }
        std::vector<std::int16_t> samples;
        const auto step = static_cast<std::int64_t>(kThreads) * kStretchFrames;
        for (std::int64_t start = static_cast<std::int64_t>(which) * kStretchFrames;; start += step) {
            const std::int64_t frames = std::clamp<std::int64_t>(m_frames - start, 0, kStretchFrames);
            samples.resize(static_cast<std::size_t>(frames) * m_channels);
            const bool isThere = frames > 0 && file && file->seek(start) == kAudioNoError;
            samples.resize((isThere ? fill(*file, m_channels, samples) : 0) * m_channels);
            std::unique_lock lock(m_mutex);
            Stretch& stretch = m_stretches[which];
            m_changed.wait(lock, [&] { return m_isOver || !stretch.isReady; });
            if (m_isOver) {
                return;
            }
            std::swap(stretch.samples, samples);
            stretch.isReady = true;
            m_changed.notify_all();
            if (stretch.samples.empty()) {
                return;
            }
        }
    }

    std::string m_path;
    std::uint32_t m_channels;
    std::int64_t m_frames;
    std::array<std::unique_ptr<ExtAudioFile>, kThreads> m_files;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::array<Stretch, kThreads> m_stretches;
    std::size_t m_turn = 0;
    bool m_isTaken = false;
    bool m_isOver = false;
    std::array<std::thread, kThreads> m_threads;
};

}  // namespace

std::unique_ptr<AssetSamples> openAssetSamples(const QByteArray& path) {
    // Shorter files are not worth a second decoder.
    constexpr double kSharedSeconds = 60;
    const std::string name = path.toStdString();
    // Not blocking, as a pipe of that name would.
    FileDescriptor descriptor = FileDescriptor::open(name, O_RDONLY | O_NONBLOCK);
    if (!descriptor.isValid() || regularFileSize(descriptor.get()) < 0) {
        return nullptr;
    }
    const auto wav = WavSamples::headerOf(descriptor.get());
    if (wav) {
        return std::make_unique<WavSamples>(std::move(descriptor), *wav);
    }
    const auto caf = Ima4Samples::headerOf(descriptor.get());
    if (caf) {
        return std::make_unique<Ima4Samples>(std::move(descriptor), *caf);
    }
    AudioStreamBasicDescription format;
    std::unique_ptr<ExtAudioFile> file = openFile(name, format);
    if (!file || format.channelsPerFrame > kMaximumChannels) {
        return nullptr;
    }
    std::int64_t frames = 0;
    if (file->isRandomAccess() && file->fileLengthFrames(frames) == kAudioNoError &&
        static_cast<double>(frames) > kSharedSeconds * format.sampleRate) {
        auto shared = std::make_unique<SharedSamples>(name, std::move(file), format.channelsPerFrame, frames);
        if (shared->start()) {
            return shared;
        }
        shared.reset();
        file = openFile(name, format);
    }
    return file ? std::make_unique<FileSamples>(std::move(file), format.channelsPerFrame) : nullptr;
}

}  // namespace tavi
