#include "API/AudioTrimmerController/EZAudio/EZAudioUtilities.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace tavi {

namespace {

constexpr std::uint32_t kSampleBytes = sizeof(float);

std::atomic<bool> exitOnFail = true;

AudioStreamBasicDescription linearPCM(std::uint32_t flags, std::uint32_t bytesPerFrame, std::uint32_t channels,
                                      double sampleRate) {
    return {.sampleRate = sampleRate,
            .formatID = kAudioFormatLinearPCM,
            .formatFlags = flags,
            .bytesPerPacket = bytesPerFrame,
            .framesPerPacket = 1,
            .bytesPerFrame = bytesPerFrame,
            .channelsPerFrame = channels,
            .bitsPerChannel = 8 * kSampleBytes};
}

AudioStreamBasicDescription compressed(std::uint32_t formatID, std::uint32_t channels, double sampleRate,
                                       const AudioConverters& converters, const char* operation) {
    AudioStreamBasicDescription format{.sampleRate = sampleRate, .formatID = formatID, .channelsPerFrame = channels};
    EZAudioUtilities::checkResult(converters.formatInfo(format), operation);
    return format;
}

std::array<char, 5> characters(std::uint32_t code) {
    return {static_cast<char>(code >> 24), static_cast<char>(code >> 16), static_cast<char>(code >> 8),
            static_cast<char>(code), '\0'};
}

template <typename... Arguments>
std::string formatted(const char* text, Arguments... arguments) {
    const int length = std::snprintf(nullptr, 0, text, arguments...);
    std::string result(static_cast<std::size_t>(std::max(length, 0)), '\0');
    std::snprintf(result.data(), result.size() + 1, text, arguments...);
    return result;
}

}  // namespace

void EZAudioUtilities::setShouldExitOnCheckResultFail(bool shouldExit) {
    exitOnFail = shouldExit;
}

bool EZAudioUtilities::shouldExitOnCheckResultFail() {
    return exitOnFail;
}

void EZAudioUtilities::checkResult(AudioStatus result, const char* operation) {
    if (result == kAudioNoError) {
        return;
    }
    std::fprintf(stderr, "Error: %s (%s)\n", operation,
                 stringFromUInt32Code(static_cast<std::uint32_t>(result)).c_str());
    if (exitOnFail) {
        std::exit(-1);  // NOLINT(concurrency-mt-unsafe): the end of the process is wanted.
    }
}

AudioStreamBasicDescription EZAudioUtilities::AIFFFormatWithNumberOfChannels(std::uint32_t channels,
                                                                             double sampleRate) {
    return linearPCM(kAudioFormatFlagIsBigEndian | kAudioFormatFlagIsSignedInteger | kAudioFormatFlagIsPacked,
                     kSampleBytes * channels, channels, sampleRate);
}

AudioStreamBasicDescription EZAudioUtilities::floatFormatWithNumberOfChannels(std::uint32_t channels,
                                                                              double sampleRate) {
    return linearPCM(kAudioFormatFlagIsFloat | kAudioFormatFlagIsNonInterleaved, kSampleBytes, channels, sampleRate);
}

AudioStreamBasicDescription EZAudioUtilities::monoCanonicalFormatWithSampleRate(double sampleRate) {
    return linearPCM(kAudioFormatFlagIsFloat | kAudioFormatFlagIsPacked | kAudioFormatFlagIsNonInterleaved,
                     kSampleBytes, 1, sampleRate);
}

AudioStreamBasicDescription EZAudioUtilities::monoFloatFormatWithSampleRate(double sampleRate) {
    return linearPCM(kAudioFormatFlagIsFloat | kAudioFormatFlagIsPacked, kSampleBytes, 1, sampleRate);
}

AudioStreamBasicDescription EZAudioUtilities::stereoCanonicalNonInterleavedFormatWithSampleRate(double sampleRate) {
    return linearPCM(kAudioFormatFlagIsFloat | kAudioFormatFlagIsPacked | kAudioFormatFlagIsNonInterleaved,
                     kSampleBytes, 2, sampleRate);
}

AudioStreamBasicDescription EZAudioUtilities::stereoFloatInterleavedFormatWithSampleRate(double sampleRate) {
    return linearPCM(kAudioFormatFlagIsFloat, 2 * kSampleBytes, 2, sampleRate);
}

AudioStreamBasicDescription EZAudioUtilities::stereoFloatNonInterleavedFormatWithSampleRate(double sampleRate) {
    return floatFormatWithNumberOfChannels(2, sampleRate);
}

void EZAudioUtilities::setCanonicalAudioStreamBasicDescription(AudioStreamBasicDescription& format,
                                                               std::uint32_t channels, bool interleaved) {
    const std::uint32_t flags = kAudioFormatFlagIsFloat | kAudioFormatFlagIsPacked;
    format = interleaved
                 ? linearPCM(flags, kSampleBytes * channels, channels, format.sampleRate)
                 : linearPCM(flags | kAudioFormatFlagIsNonInterleaved, kSampleBytes, channels, format.sampleRate);
}

AudioStreamBasicDescription EZAudioUtilities::iLBCFormatWithSampleRate(double sampleRate,
                                                                       const AudioConverters& converters) {
    return compressed(kAudioFormatiLBC, 1, sampleRate, converters,
                      "Failed to fill out the rest of the iLBC AudioStreamBasicDescription");
}

AudioStreamBasicDescription EZAudioUtilities::M4AFormatWithNumberOfChannels(std::uint32_t channels, double sampleRate,
                                                                            const AudioConverters& converters) {
    return compressed(kAudioFormatMPEG4AAC, channels, sampleRate, converters,
                      "Failed to fill out the rest of the m4a AudioStreamBasicDescription");
}

bool EZAudioUtilities::isFloatFormat(const AudioStreamBasicDescription& format) {
    return (format.formatFlags & kAudioFormatFlagIsFloat) != 0;
}

bool EZAudioUtilities::isInterleaved(const AudioStreamBasicDescription& format) {
    return (format.formatFlags & kAudioFormatFlagIsNonInterleaved) == 0;
}

bool EZAudioUtilities::isLinearPCM(const AudioStreamBasicDescription& format) {
    return format.formatID == kAudioFormatLinearPCM;
}

AudioBufferList* EZAudioUtilities::audioBufferListWithNumberOfFrames(std::uint32_t frames, std::uint32_t channels,
                                                                     bool interleaved) {
    // Sized for one buffer a channel whatever the layout, so that a list can be turned into the other one in place.
    const std::size_t extra = channels > 1 ? channels - 1 : 0;
    auto* list = static_cast<AudioBufferList*>(std::calloc(1, sizeof(AudioBufferList) + extra * sizeof(AudioBuffer)));
    list->numberBuffers = interleaved ? 1 : channels;
    for (std::uint32_t i = 0; i < list->numberBuffers; ++i) {
        AudioBuffer& buffer = list->buffers[i];
        buffer.numberChannels = interleaved ? channels : 1;
        buffer.dataByteSize = frames * buffer.numberChannels * kSampleBytes;
        buffer.data = std::calloc(1, buffer.dataByteSize);
    }
    return list;
}

void EZAudioUtilities::freeBufferList(AudioBufferList* bufferList) {
    if (bufferList == nullptr) {
        return;
    }
    for (std::uint32_t i = 0; i < bufferList->numberBuffers; ++i) {
        std::free(bufferList->buffers[i].data);
    }
    std::free(bufferList);
}

float** EZAudioUtilities::floatBuffersWithNumberOfFrames(std::uint32_t frames, std::uint32_t channels) {
    auto** buffers = static_cast<float**>(std::malloc(sizeof(float*) * channels));
    for (std::uint32_t i = 0; i < channels; ++i) {
        buffers[i] = static_cast<float*>(std::malloc(sizeof(float) * frames));
    }
    return buffers;
}

void EZAudioUtilities::freeFloatBuffers(float** buffers, std::uint32_t channels) {
    // On purpose: an array without a first block is only half built, and nothing tells what of it may be freed.
    if (buffers == nullptr || channels == 0 || buffers[0] == nullptr) {
        return;
    }
    for (std::uint32_t i = 0; i < channels; ++i) {
        std::free(buffers[i]);
    }
    std::free(buffers);
}

std::string EZAudioUtilities::stringForAudioStreamBasicDescription(const AudioStreamBasicDescription& format) {
    return formatted(
        "\nSample Rate:       %10.0f,\nFormat ID:           %10s,\nFormat Flags:        %10X,\n"
        "Bytes per Packet:    %10d,\nFrames per Packet:   %10d,\nBytes per Frame:     %10d,\n"
        "Channels per Frame:  %10d,\nBits per Channel:    %10d,\nIsInterleaved:       %i,\nIsFloat:             %i,",
        format.sampleRate, characters(format.formatID).data(), format.formatFlags, format.bytesPerPacket,
        format.framesPerPacket, format.bytesPerFrame, format.channelsPerFrame, format.bitsPerChannel,
        isInterleaved(format) ? 1 : 0, isFloatFormat(format) ? 1 : 0);
}

void EZAudioUtilities::printASBD(const AudioStreamBasicDescription& format) {
    // In one piece, so that other threads' lines do not come in between.
    const std::string lines = formatted(
        "  Sample Rate:         %10.0f\n  Format ID:           %10s\n  Format Flags:        %10X\n"
        "  Bytes per Packet:    %10d\n  Frames per Packet:   %10d\n  Bytes per Frame:     %10d\n"
        "  Channels per Frame:  %10d\n  Bits per Channel:    %10d\n",
        format.sampleRate, characters(format.formatID).data(), format.formatFlags, format.bytesPerPacket,
        format.framesPerPacket, format.bytesPerFrame, format.channelsPerFrame, format.bitsPerChannel);
    std::fputs(lines.c_str(), stderr);
}

std::string EZAudioUtilities::stringFromUInt32Code(std::uint32_t code) {
    const auto text = characters(code);
    const bool printable =
        std::all_of(text.begin(), text.end() - 1, [](char character) { return character >= ' ' && character <= '~'; });
    return printable ? formatted("'%s'", text.data()) : std::to_string(static_cast<std::int32_t>(code));
}

std::string EZAudioUtilities::displayTimeStringFromSeconds(double seconds) {
    constexpr double kMost = 1e15;
    const auto total =
        std::isnan(seconds) ? 0 : static_cast<std::int64_t>(std::ceil(std::clamp(seconds, -kMost, kMost)));
    // Hours are dropped: the places that show these texts have room for minutes and seconds.
    return formatted("%02d:%02d", static_cast<int>(total / 60 % 60), static_cast<int>(total % 60));
}

std::string EZAudioUtilities::noteNameStringForFrequency(double frequency, bool includeOctave) {
    static constexpr std::array kNames = {"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"};
    // The natural logarithm of a semitone, ln(2) / 12, and 440 Hz as the ninth semitone of the fourth octave.
    constexpr double kSemitone = 0.057762311286495956;
    constexpr int kSemitonesToA = 4 * 12 + 9;
    const double index = std::round(std::log(frequency / 440.0) / kSemitone);
    if (!std::isfinite(index)) {
        return {};
    }
    const int note = static_cast<int>(index) + kSemitonesToA;
    const int octave = static_cast<int>(std::floor(note / 12.0));
    std::string name = kNames[static_cast<std::size_t>(note - 12 * octave)];
    return includeOctave ? name + formatted("%i", octave) : name;
}

void EZAudioUtilities::getColorComponentsFromCGColor(std::span<const double> color, double& red, double& green,
                                                     double& blue, double& alpha) {
    if (color.size() == 4) {
        red = color[0];
        green = color[1];
        blue = color[2];
        alpha = color[3];
    }
}

}  // namespace tavi
