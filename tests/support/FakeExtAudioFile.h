#pragma once

#include <algorithm>
#include <atomic>
#include <cmath>
#include <filesystem>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <vector>

#include "platform/ExtAudioFile.h"

namespace tavi::test {

/// A sound file in memory: one plane of samples a channel.
struct FakeSound {
    double rate = 44100;
    std::vector<std::vector<float>> planes;
    bool isRandomAccess = true;
    /// What is to happen while a file is read, such as a call on another thread.
    std::function<void()> onRead;
    std::atomic<AudioStatus> readStatus = kAudioNoError;
    /// Frames that are really there; the length stays what the planes make it.
    std::atomic<std::int64_t> readable = std::numeric_limits<std::int64_t>::max();

    std::int64_t frames() const { return planes.empty() ? 0 : static_cast<std::int64_t>(planes.front().size()); }
};

/// Gives 32-bit floats. Converts by taking the nearest frame at or before, and the mean of channels that are too many.
struct FakeExtAudioFile : ExtAudioFile {
    FakeExtAudioFile(std::shared_ptr<const FakeSound> sound, std::vector<std::uint32_t>& reads)
        : m_sound(std::move(sound)), m_reads(reads) {}

    AudioStatus fileDataFormat(AudioStreamBasicDescription& format) const override {
        format = {};
        format.sampleRate = m_sound->rate;
        format.formatID = kAudioFormatLinearPCM;
        format.formatFlags = kAudioFormatFlagIsFloat | kAudioFormatFlagIsPacked;
        format.framesPerPacket = 1;
        format.channelsPerFrame = static_cast<std::uint32_t>(m_sound->planes.size());
        format.bytesPerFrame = format.bytesPerPacket = 4 * format.channelsPerFrame;
        format.bitsPerChannel = 32;
        return kAudioNoError;
    }
    AudioStatus fileLengthFrames(std::int64_t& frames) const override {
        frames = m_sound->frames();
        return kAudioNoError;
    }
    AudioStatus fileMaxPacketSize(std::uint32_t& bytes) const override {
        bytes = 4 * static_cast<std::uint32_t>(m_sound->planes.size());
        return kAudioNoError;
    }
    AudioStatus infoDictionary(AudioFileInfo& info) const override {
        info.clear();
        return kAudioNoError;
    }
    bool isRandomAccess() const override { return m_sound->isRandomAccess; }
    AudioStatus setClientDataFormat(const AudioStreamBasicDescription& format) override {
        if (format.formatID != kAudioFormatLinearPCM) {
            return kAudioFileUnsupportedDataFormatError;
        }
        std::int64_t frame = 0;
        tell(frame);
        m_client = format;
        return seek(frame);
    }
    AudioStatus read(std::uint32_t& frames, AudioBufferList& data) override {
        const std::uint32_t wanted = std::exchange(frames, 0);
        if (m_client.channelsPerFrame == 0) {
            return kAudioParameterError;
        }
        m_reads.push_back(wanted);
        if (m_sound->onRead) {
            m_sound->onRead();
        }
        if (const AudioStatus status = m_sound->readStatus; status != kAudioNoError) {
            return status;
        }
        const std::int64_t end = clientFrame(std::min(m_sound->frames(), m_sound->readable.load()));
        frames = static_cast<std::uint32_t>(std::clamp<std::int64_t>(end - m_position, 0, wanted));
        const bool isPlanar = (m_client.formatFlags & kAudioFormatFlagIsNonInterleaved) != 0;
        for (std::uint32_t channel = 0; channel < m_client.channelsPerFrame; ++channel) {
            AudioBuffer& buffer = data.buffers[isPlanar ? channel : 0];
            for (std::uint32_t i = 0; i < frames; ++i) {
                static_cast<float*>(buffer.data)[isPlanar ? i : i * m_client.channelsPerFrame + channel] =
                    sample(channel, m_position + i);
            }
            buffer.dataByteSize = frames * m_client.bytesPerFrame;
        }
        m_position += frames;
        m_sought = frames > 0 ? -1 : m_sought;
        return kAudioNoError;
    }
    AudioStatus seek(std::int64_t frame) override {
        if (frame < 0) {
            return kAudioParameterError;
        }
        m_sought = std::min(frame, m_sound->frames());
        m_position = clientFrame(m_sought);
        return kAudioNoError;
    }
    AudioStatus tell(std::int64_t& frame) const override {
        const double rate = m_client.sampleRate > 0 ? m_client.sampleRate : m_sound->rate;
        frame = m_sought >= 0 ? m_sought
                              : static_cast<std::int64_t>(static_cast<double>(m_position) * m_sound->rate / rate);
        return kAudioNoError;
    }

private:
    std::int64_t clientFrame(std::int64_t frame) const {
        const double rate = m_client.sampleRate > 0 ? m_client.sampleRate : m_sound->rate;
        return static_cast<std::int64_t>(std::ceil(static_cast<double>(frame) * rate / m_sound->rate));
    }
    float sample(std::uint32_t channel, std::int64_t position) const {
        const double at = static_cast<double>(position) * m_sound->rate / m_client.sampleRate;
        const auto& planes = m_sound->planes;
        if (m_client.channelsPerFrame < planes.size()) {
            float sum = 0;
            for (const auto& plane : planes) {
                sum += plane[static_cast<std::size_t>(at)];
            }
            return sum / static_cast<float>(planes.size());
        }
        return planes[planes.size() == 1 ? 0 : channel][static_cast<std::size_t>(at)];
    }
    std::shared_ptr<const FakeSound> m_sound;
    std::vector<std::uint32_t>& m_reads;
    AudioStreamBasicDescription m_client;
    std::int64_t m_position = 0;
    std::int64_t m_sought = 0;
};

/// Files by their paths. Whoever opens them outlives none of them.
struct FakeExtAudioFiles : ExtAudioFiles {
    AudioStatus open(const std::filesystem::path& path, std::unique_ptr<ExtAudioFile>& file,
                     const std::stop_token& = {}) override {
        file.reset();
        ++opened;
        if (failingOpens > 0 && opened >= failingOpens) {
            return openFailure;
        }
        const auto found = sounds.find(path);
        if (found == sounds.end()) {
            return kAudioFileFileNotFoundError;
        }
        if (found->second->planes.empty()) {
            return kAudioFileUnsupportedFileTypeError;
        }
        reads.emplace_back(std::make_unique<std::vector<std::uint32_t>>());
        file = std::make_unique<FakeExtAudioFile>(found->second, *reads.back());
        return kAudioNoError;
    }

    std::map<std::filesystem::path, std::shared_ptr<FakeSound>> sounds;
    /// What each file that was opened has been asked for.
    std::vector<std::unique_ptr<std::vector<std::uint32_t>>> reads;
    int opened = 0;
    /// From this opening on all fail; 0 for none.
    int failingOpens = 0;
    AudioStatus openFailure = kAudioFilePermissionsError;
};

}  // namespace tavi::test
