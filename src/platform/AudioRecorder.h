#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>

#include "platform/AudioTypes.h"
#include "platform/Error.h"

namespace tavi {

/// What a recording is written as.
struct AudioRecordSettings {
    std::uint32_t formatID = kAudioFormatAppleLossless;
    double sampleRate = 44100.0;
    int numberOfChannels = 2;
    /// Encoder and sample-rate-converter quality, 0 (minimum) to 127 (maximum).
    int encoderAudioQuality = 127;
    int sampleRateConverterAudioQuality = 127;
    int linearPCMBitDepth = 8;
    bool linearPCMIsBigEndian = false;
    bool linearPCMIsFloat = false;

    bool operator==(const AudioRecordSettings&) const = default;
};

class AudioRecorder;

/// Told how a recording ended. Main thread.
class AudioRecorderDelegate {
public:
    virtual ~AudioRecorderDelegate() = default;

    /// The file is closed and whole: after stop(), or, with an error, because the input or the disk gave up. With an
    /// error the file holds what was captured until then; the recorder's framesRecorded() tells how much.
    virtual void audioRecorderDidFinishRecording(AudioRecorder& recorder, const std::optional<Error>& error) = 0;
};

/// Records from the default microphone into one file. Main thread only.
///
/// Destroying a recorder that has not finished waits until its file is finalised.
class AudioRecorder {
public:
    virtual ~AudioRecorder() = default;

    virtual void setDelegate(AudioRecorderDelegate* delegate) = 0;
    /// Opens the input so that record() starts quickly. False when there is none; record() then reports why.
    virtual bool prepareToRecord() = 0;
    virtual void setMeteringEnabled(bool enabled) = 0;
    /// Starts, or goes on after pause() in the same file.
    virtual bool record() = 0;
    /// Leaves out what comes from now on. The file holds every frame captured while running and none else.
    virtual void pause() = 0;
    /// Ends the recording with what was captured until now; returns at once. The delegate hears when the file is whole.
    virtual void stop() = 0;
    /// Brings what was captured until now to the disk while the recording goes on, and then lets go of until: on
    /// whatever thread, and also where the disk fails.
    virtual void bringToDisk(std::shared_ptr<void> until) = 0;
    /// Blocks until the file is whole, and tells the delegate before it returns. For the end of the program only.
    virtual void waitUntilFinished() = 0;
    virtual bool isRecording() const = 0;
    /// What people call the device that is listened to now; empty as long as it is not known.
    virtual QString inputName() const = 0;
    /// Frames in the file so far, at the input's rate.
    virtual std::int64_t framesRecorded() const = 0;
    /// Takes the mean power of what arrived since the last update; keeps the old one when nothing did.
    virtual void updateMeters() = 0;
    /// RMS in dBFS of a channel of the input at the last update, -160 (silence) to 0.
    virtual float averagePowerForChannel(int channel) const = 0;
    /// Whether a sample at full scale was metered since the last call: the input is too loud.
    virtual bool takeClipped() = 0;
};

/// Makes recorders.
class AudioRecorders {
public:
    virtual ~AudioRecorders() = default;

    /// A recorder that writes to path, replacing nothing: fails when the file exists, cannot be made, or the settings
    /// name no format that can be written. The container follows from the format and the path's extension.
    virtual Result<std::unique_ptr<AudioRecorder>> recorderWithPath(const std::filesystem::path& path,
                                                                    const AudioRecordSettings& settings) = 0;
};

}  // namespace tavi
