#pragma once

#include <algorithm>
#include <atomic>
#include <cstring>
#include <limits>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/ExtAudioFile.h"

namespace tavi::test {

/// Sound that a test made up, and what goes wrong with its file.
struct FakeSound {
    double sampleRate = 48000.0;
    std::uint32_t channels = 1;
    /// Interleaved.
    std::vector<float> samples;
    /// Frames that are really there; the length stays what the samples make it.
    std::atomic<std::int64_t> readable = std::numeric_limits<std::int64_t>::max();
    std::atomic<AudioStatus> readStatus = kAudioNoError;

    std::int64_t frames() const { return static_cast<std::int64_t>(samples.size()) / channels; }
};

/// A file of such sound, which is read as it is: interleaved floats at its own rate.
class FakeExtAudioFile : public ExtAudioFile {
public:
    explicit FakeExtAudioFile(std::shared_ptr<FakeSound> sound) : m_sound(std::move(sound)) {}

    AudioStatus fileDataFormat(AudioStreamBasicDescription& format) const override {
        format = {};
        format.sampleRate = m_sound->sampleRate;
        format.channelsPerFrame = m_sound->channels;
        return kAudioNoError;
    }
    AudioStatus fileLengthFrames(std::int64_t& frames) const override {
        frames = m_sound->frames();
        return kAudioNoError;
    }
    AudioStatus fileMaxPacketSize(std::uint32_t&) const override { return kAudioFileUnspecifiedError; }
    AudioStatus infoDictionary(AudioFileInfo&) const override { return kAudioNoError; }
    AudioStatus setClientDataFormat(const AudioStreamBasicDescription& format) override {
        const bool isOurs = format.sampleRate == m_sound->sampleRate && format.channelsPerFrame == m_sound->channels &&
                            format.formatFlags == (kAudioFormatFlagIsFloat | kAudioFormatFlagIsPacked);
        return isOurs ? kAudioNoError : kAudioFileUnsupportedDataFormatError;
    }
    AudioStatus read(std::uint32_t& frames, AudioBufferList& data) override {
        const std::int64_t end = std::min(m_sound->frames(), m_sound->readable.load());
        frames = static_cast<std::uint32_t>(std::clamp<std::int64_t>(end - m_frame, 0, frames));
        const std::size_t size = sizeof(float) * m_sound->channels * frames;
        std::memcpy(data.buffers[0].data, m_sound->samples.data() + m_frame * m_sound->channels, size);
        data.buffers[0].dataByteSize = static_cast<std::uint32_t>(size);
        m_frame += frames;
        return m_sound->readStatus;
    }
    AudioStatus seek(std::int64_t frame) override {
        m_frame = std::min(frame, m_sound->frames());
        return frame < 0 ? kAudioParameterError : kAudioNoError;
    }
    AudioStatus tell(std::int64_t& frame) const override {
        frame = m_frame;
        return kAudioNoError;
    }

private:
    std::shared_ptr<FakeSound> m_sound;
    std::int64_t m_frame = 0;
};

/// Opens the files that a test put here.
class FakeExtAudioFiles : public ExtAudioFiles {
public:
    AudioStatus open(const std::string& path, std::unique_ptr<ExtAudioFile>& file) override {
        const auto found = sounds.find(path);
        if (found == sounds.end()) {
            return kAudioFileFileNotFoundError;
        }
        file = std::make_unique<FakeExtAudioFile>(found->second);
        return kAudioNoError;
    }

    std::map<std::string, std::shared_ptr<FakeSound>> sounds;
};

}  // namespace tavi::test
