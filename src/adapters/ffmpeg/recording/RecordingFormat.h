#pragma once

#include <QString>
#include <cstdint>
#include <filesystem>

#include "adapters/ffmpeg/AvHandles.h"
#include "platform/AudioRecorder.h"

namespace tavi {

/// How recording settings are met with FFmpeg.
///
/// | formatID | encoder                                 | container                                       |
/// |----------|-----------------------------------------|-------------------------------------------------|
/// | 'alac'   | Apple Lossless, 16 bit                  | M4A, fragmented while it grows                  |
/// | 'lpcm'   | 8-bit unsigned or 16-bit signed PCM     | WAV, as RF64 (EBU Tech 3306) from 4 GiB on      |
/// | 'ima4'   | IMA 4:1 ADPCM in packets of 64 frames   | CAF                                             |
/// | 'aac '   | AAC-LC                                  | ADTS for paths that end in ".aac", else MP4,    |
/// |          |                                         | fragmented while it grows                       |
///
/// | quality    | AAC bits a second and channel | AAC coder | resampler: taps, phases, cutoff |
/// |------------|-------------------------------|-----------|---------------------------------|
/// | 0 to 31    | 24,000                        | fast      | 16, 256, 0.91                   |
/// | 32 to 95   | 32,000                        | fast      | 32, 1024, 0.95                  |
/// | 96 to 127  | 96,000                        | two-loop  | 64, 1024, 0.97                  |
///
/// AAC never gets more than the 6 bits a sample that its decoder's buffer holds (ISO/IEC 14496-3, 4.5.3). The coder and
/// the bit rate follow the encoder's quality, the resampler the converter's.
struct RecordingFormat {
    AVCodecID codec = AV_CODEC_ID_NONE;
    AVSampleFormat sampleFormat = AV_SAMPLE_FMT_NONE;
    /// FFmpeg's name of the container.
    const char* muxer = nullptr;
    /// The container is MP4 or M4A.
    bool isFragmented = false;
    /// Frames in a packet where the codec takes any number; 0 where it does not.
    int packetFrames = 0;
    int sampleRate = 0;
    int channels = 0;
    /// 0 where the codec sets it.
    std::int64_t bitRate = 0;
    const char* aacCoder = "fast";

    struct Resampler {
        int filterSize = 16;
        int phaseShift = 8;
        double cutoff = 0.91;
    };
    Resampler resampler;
};

/// Fails when the settings name nothing that can be written.
Result<RecordingFormat> recordingFormat(const std::filesystem::path& path, const AudioRecordSettings& settings);

}  // namespace tavi
