#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "API/AudioTrimmerController/EZAudio/TPCircularBuffer/TPCircularBuffer.h"
#include "platform/AudioConverter.h"
#include "platform/AudioTypes.h"

namespace tavi {

/// The recent samples behind a rolling level plot.
struct PlotHistoryInfo {
    /// The window handed to the plot: bufferSize samples, oldest first, in a block of the maximum length.
    float* buffer;
    std::int32_t bufferSize;
    /// The most recent samples, in bytes.
    TPCircularBuffer circularBuffer;
};

/// Stream descriptions, sample buffers, levels and level histories, and the one error check of the audio engine.
///
/// Any thread; what only reads or writes given memory may be called from a real-time thread, and so may the appends to
/// a PlotHistoryInfo, from one thread at a time. Blocks come from malloc. Formats are linear PCM of one frame a packet
/// and 32 bits a channel unless their names say otherwise.
class EZAudioUtilities {
public:
    /// Whether a failed check ends the process. On at first, as users of the engine expect; the program turns it off,
    /// because a damaged recording must not end it.
    static void setShouldExitOnCheckResultFail(bool shouldExit);
    static bool shouldExitOnCheckResultFail();
    /// Every call of the engine into the platform goes through here: on a status other than 0 a line with the operation
    /// and the code is written to standard error, and the process may exit with status -1.
    static void checkResult(AudioStatus result, const char* operation);

    static AudioStreamBasicDescription AIFFFormatWithNumberOfChannels(std::uint32_t channels, double sampleRate);
    static AudioStreamBasicDescription floatFormatWithNumberOfChannels(std::uint32_t channels, double sampleRate);
    static AudioStreamBasicDescription monoCanonicalFormatWithSampleRate(double sampleRate);
    static AudioStreamBasicDescription monoFloatFormatWithSampleRate(double sampleRate);
    static AudioStreamBasicDescription stereoCanonicalNonInterleavedFormatWithSampleRate(double sampleRate);
    static AudioStreamBasicDescription stereoFloatInterleavedFormatWithSampleRate(double sampleRate);
    static AudioStreamBasicDescription stereoFloatNonInterleavedFormatWithSampleRate(double sampleRate);
    static void setCanonicalAudioStreamBasicDescription(AudioStreamBasicDescription& format, std::uint32_t channels,
                                                        bool interleaved);
    /// Compressed formats, completed by what the converters know of their codecs.
    static AudioStreamBasicDescription iLBCFormatWithSampleRate(double sampleRate, const AudioConverters& converters);
    static AudioStreamBasicDescription M4AFormatWithNumberOfChannels(std::uint32_t channels, double sampleRate,
                                                                     const AudioConverters& converters);
    static bool isFloatFormat(const AudioStreamBasicDescription& format);
    static bool isInterleaved(const AudioStreamBasicDescription& format);
    static bool isLinearPCM(const AudioStreamBasicDescription& format);

    /// A list of zeroed 32-bit samples: one buffer of all channels, or one a channel. freeBufferList() takes it back.
    static AudioBufferList* audioBufferListWithNumberOfFrames(std::uint32_t frames, std::uint32_t channels,
                                                              bool interleaved);
    static void freeBufferList(AudioBufferList* bufferList);
    /// One block of frames samples a channel, not zeroed. freeFloatBuffers() takes them back.
    static float** floatBuffersWithNumberOfFrames(std::uint32_t frames, std::uint32_t channels);
    static void freeFloatBuffers(float** buffers, std::uint32_t channels);

    static std::string stringForAudioStreamBasicDescription(const AudioStreamBasicDescription& format);
    /// Logs the fields to standard error.
    static void printASBD(const AudioStreamBasicDescription& format);
    /// The code's four characters in quotes where all can be printed, otherwise its signed decimal value.
    static std::string stringFromUInt32Code(std::uint32_t code);
    /// Minutes and seconds, rounded up to whole seconds. Hours are dropped.
    static std::string displayTimeStringFromSeconds(double seconds);

    static float MAP(float value, float leftMin, float leftMax, float rightMin, float rightMax);
    /// Root mean square of length samples; not a number for none. Within 1e-6 of the exact value for any length.
    static float RMS(const float* buffer, std::int32_t length);
    static int SGN(float value);
    /// Copies the components of a colour that has exactly four; of any other, nothing.
    static void getColorComponentsFromCGColor(std::span<const double> color, double& red, double& green, double& blue,
                                              double& alpha);
    /// The note of twelve-tone tuning next to a frequency, with the octave of scientific pitch notation when asked;
    /// empty where there is none.
    static std::string noteNameStringForFrequency(double frequency, bool includeOctave);

    /// Moves the history left by the buffer's length and copies the buffer to its end.
    static void appendBufferAndShift(const float* buffer, std::int32_t bufferSize, float* scrollHistory,
                                     std::int32_t scrollHistorySize);
    static void appendValue(float value, float* scrollHistory, std::int32_t scrollHistorySize);
    /// Appends the buffer's level to the first length values of the history, unless the resolution is changing. A null
    /// history is allocated, zeroed, with room for 8192 values; free() takes it back.
    static void updateScrollHistory(float** scrollHistory, std::int32_t length, std::int32_t* index,
                                    const float* buffer, std::int32_t bufferSize, bool isResolutionChanging);

    /// A history that shows defaultLength of up to maximumLength samples. freeHistoryInfo() takes it back.
    static PlotHistoryInfo* historyInfoWithDefaultLength(std::int32_t defaultLength, std::int32_t maximumLength);
    static void freeHistoryInfo(PlotHistoryInfo* historyInfo);
    /// Appends samples, all or none of them, and brings the window up to date.
    static void appendBuffer(const float* buffer, std::uint32_t bufferSize, PlotHistoryInfo* historyInfo);
    /// Appends the buffer's level as one sample.
    static void appendBufferRMS(const float* buffer, std::uint32_t bufferSize, PlotHistoryInfo* historyInfo);
    static void clearHistoryInfo(PlotHistoryInfo* historyInfo);

    static void circularBuffer(TPCircularBuffer* circularBuffer, std::int32_t size);
    /// Produces the bytes of the list's first buffer, all or none of them.
    static void appendDataToCircularBuffer(TPCircularBuffer* circularBuffer, const AudioBufferList* bufferList);
    static void freeCircularBuffer(TPCircularBuffer* circularBuffer);
};

}  // namespace tavi
