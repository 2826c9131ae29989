#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>

#include "platform/AudioInput.h"
#include "platform/AudioRecorder.h"
#include "platform/Error.h"

namespace tavi {

/// Encodes sound into one file. One thread at a time.
class AudioFileWriter {
public:
    virtual ~AudioFileWriter() = default;

    /// The most seconds of sound that the codec keeps to itself after flush(). Any thread.
    virtual double secondsHeld() const = 0;
    /// Tells what write() is given; once, before the first write.
    virtual Result<void> setInputFormat(const AudioInputFormat& format) = 0;
    /// Appends frames in the input format. After a failure, here or in the next two, nothing more is taken, but
    /// finish() still makes a whole file of what came before.
    virtual Result<void> write(const float* interleaved, std::size_t frames) = 0;
    /// Brings what was written into the file, so that a kill does not lose it; but for the packet or two that the codec
    /// has not completed. From time to time it is brought to the disk, too, which nobody waits for.
    virtual Result<void> flush() = 0;
    /// Sound pauses here: as flush(), with a packet of less than the usual length where the codec has such, and to the
    /// disk in any case.
    virtual Result<void> pause() = 0;
    /// As pause(), and waits until it is on the disk.
    virtual Result<void> sync() = 0;
    /// Drains the encoder, completes the container's headers and brings the file to the disk. Once.
    virtual Result<void> finish() = 0;
};

class AudioFileWriters {
public:
    virtual ~AudioFileWriters() = default;

    /// Creates the file and its encoder. Fails when the file exists or the settings cannot be met.
    virtual Result<std::unique_ptr<AudioFileWriter>> create(const std::filesystem::path& path,
                                                            const AudioRecordSettings& settings) = 0;
};

}  // namespace tavi
