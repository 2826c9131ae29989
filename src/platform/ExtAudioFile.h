#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <stop_token>
#include <string>

#include "platform/AudioTypes.h"

namespace tavi {

/// What a file says about itself, such as "title" or "artist". The keys are the decoder's; texts are UTF-8.
using AudioFileInfo = std::map<std::string, std::string>;

/// An open sound file, read in a format of the caller's choice. One thread at a time.
///
/// Positions and lengths are frames at the file's own rate and count what is meant to be heard: an encoder's declared
/// priming and padding are left out, and edit lists are followed.
class ExtAudioFile {
public:
    virtual ~ExtAudioFile() = default;

    virtual AudioStatus fileDataFormat(AudioStreamBasicDescription& format) const = 0;
    /// The exact length; of a container that counts in units coarser than frames, to these units. Where a header does
    /// not tell it this may read through the file.
    virtual AudioStatus fileLengthFrames(std::int64_t& frames) const = 0;
    virtual AudioStatus fileMaxPacketSize(std::uint32_t& bytes) const = 0;
    virtual AudioStatus infoDictionary(AudioFileInfo& info) const = 0;
    /// Whether seek() costs much less than reading up to there, so that several readers can share the work on a file.
    virtual bool isRandomAccess() const = 0;

    /// Chooses what read() delivers: linear PCM, 32-bit float or 16-bit signed integer, interleaved or not, at any rate
    /// and with 1 to 8 channels. Mono goes to every channel as it is; more channels are mixed into fewer by the usual
    /// matrix. Until it is called, read() fails.
    virtual AudioStatus setClientDataFormat(const AudioStreamBasicDescription& format) = 0;
    /// Takes up to frames client frames into the list, whose buffers must have room for them; sets frames to those
    /// read and every dataByteSize to what is filled. Fewer than asked for come at the end only, 0 from then on. Damage
    /// in the middle is skipped as the decoder can; a file that became shorter ends early.
    virtual AudioStatus read(std::uint32_t& frames, AudioBufferList& data) = 0;
    /// Goes to a frame, exact to the sample: what is read from there is what reading from the start would have given.
    /// Where the rates differ the next client frame is the first that does not stand before that frame, which is number
    /// ceil(frame * client rate / file rate) from the start. Positions behind the end are the end; a negative one fails
    /// with kAudioParameterError.
    virtual AudioStatus seek(std::int64_t frame) = 0;
    /// The frame that read() delivers next.
    virtual AudioStatus tell(std::int64_t& frame) const = 0;
};

/// Opens sound files. Any thread.
class ExtAudioFiles {
public:
    virtual ~ExtAudioFiles() = default;

    /// Opens the file at a path. On failure file is left empty. One of the
    /// kAudioFile codes tells why; a folder, a pipe and a device are no files of a known type. Asking for the stop ends
    /// what takes long soon, in opening and in the file: it fails, or the sound is at its end.
    virtual AudioStatus open(const std::filesystem::path& path, std::unique_ptr<ExtAudioFile>& file,
                             const std::stop_token& stop = {}) = 0;
};

}  // namespace tavi
