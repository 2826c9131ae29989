#pragma once

#include <cstdint>

namespace tavi {

/// A four-character code as the audio file formats spell it, such as 'alac'.
constexpr std::uint32_t fourCharacterCode(const char (&text)[5]) {
    std::uint32_t code = 0;
    for (int i = 0; i < 4; ++i) {
        code = code << 8 | static_cast<unsigned char>(text[i]);
    }
    return code;
}

inline constexpr std::uint32_t kAudioFormatLinearPCM = fourCharacterCode("lpcm");
inline constexpr std::uint32_t kAudioFormatAppleIMA4 = fourCharacterCode("ima4");
inline constexpr std::uint32_t kAudioFormatMPEG4AAC = fourCharacterCode("aac ");
inline constexpr std::uint32_t kAudioFormatAppleLossless = fourCharacterCode("alac");
inline constexpr std::uint32_t kAudioFormatiLBC = fourCharacterCode("ilbc");

inline constexpr std::uint32_t kAudioFormatFlagIsFloat = 0x1;
inline constexpr std::uint32_t kAudioFormatFlagIsBigEndian = 0x2;
inline constexpr std::uint32_t kAudioFormatFlagIsSignedInteger = 0x4;
inline constexpr std::uint32_t kAudioFormatFlagIsPacked = 0x8;
inline constexpr std::uint32_t kAudioFormatFlagIsNonInterleaved = 0x20;

/// How a stream of samples is laid out. In non-interleaved streams bytes and packets are those of one channel.
struct AudioStreamBasicDescription {
    double sampleRate = 0.0;
    std::uint32_t formatID = 0;
    std::uint32_t formatFlags = 0;
    std::uint32_t bytesPerPacket = 0;
    std::uint32_t framesPerPacket = 0;
    std::uint32_t bytesPerFrame = 0;
    std::uint32_t channelsPerFrame = 0;
    std::uint32_t bitsPerChannel = 0;
    std::uint32_t reserved = 0;

    bool operator==(const AudioStreamBasicDescription&) const = default;
};

/// Where a packet of a compressed stream starts in its buffer, and how long it is.
struct AudioStreamPacketDescription {
    std::int64_t startOffset = 0;
    std::uint32_t variableFramesInPacket = 0;
    std::uint32_t dataByteSize = 0;
};

/// The samples of one channel, or of all of them interleaved.
struct AudioBuffer {
    std::uint32_t numberChannels;
    std::uint32_t dataByteSize;
    void* data;
};

/// A count, and behind it in the same block of memory as many buffers.
struct AudioBufferList {
    std::uint32_t numberBuffers;
    AudioBuffer buffers[1];
};

/// What a call into the platform's audio services answers: 0 for success, otherwise a code, often of four characters.
using AudioStatus = std::int32_t;

inline constexpr AudioStatus kAudioNoError = 0;
inline constexpr AudioStatus kAudioFileUnspecifiedError = static_cast<AudioStatus>(fourCharacterCode("wht?"));
/// No file of a type that can be read.
inline constexpr AudioStatus kAudioFileUnsupportedFileTypeError = static_cast<AudioStatus>(fourCharacterCode("typ?"));
/// The file holds no sound that can be decoded, or a format is asked for that cannot be made of it.
inline constexpr AudioStatus kAudioFileUnsupportedDataFormatError = static_cast<AudioStatus>(fourCharacterCode("fmt?"));
/// The file is damaged.
inline constexpr AudioStatus kAudioFileInvalidFileError = static_cast<AudioStatus>(fourCharacterCode("dta?"));
inline constexpr AudioStatus kAudioFilePermissionsError = static_cast<AudioStatus>(fourCharacterCode("prm?"));
inline constexpr AudioStatus kAudioFileFileNotFoundError = -43;
/// An argument is out of its range.
inline constexpr AudioStatus kAudioParameterError = -50;

}  // namespace tavi
