#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>

#include "platform/Asset.h"
#include "platform/Error.h"

namespace tavi {

enum class AssetReaderStatus { Unknown, Reading, Completed, Failed, Cancelled };

/// A piece of a track's sound. The samples are valid until the next piece is taken or the reader is gone.
struct SampleBuffer {
    /// 16-bit integers in the machine's (little-endian) order, channels interleaved: whole frames.
    std::span<const std::int16_t> samples;
    std::uint32_t channels = 0;
    /// Where the piece begins and how long it is, in the time scale of the asset.
    AssetTime presentationTime;
    AssetTime duration;
};

/// Reads the first audio track of an asset from the beginning to the end, decoded to 16-bit samples at the track's own
/// rate and with its own channels. One thread at a time.
class AssetReader {
public:
    virtual ~AssetReader() = default;

    /// Opens the file. False when that cannot be, with status() Failed; and when called twice.
    virtual bool startReading() = 0;
    /// The next piece, at most some seconds long. Nothing at the end and after a failure: status() is no longer
    /// Reading then. Damage is skipped as the decoder can, and a file that became shorter ends early.
    virtual std::optional<SampleBuffer> copyNextSampleBuffer() = 0;
    virtual void cancelReading() = 0;

    /// Unknown before startReading().
    virtual AssetReaderStatus status() const = 0;
    /// Why it failed; empty in any other state.
    virtual Error error() const = 0;
};

/// Makes readers. Any thread.
class AssetReaders {
public:
    virtual ~AssetReaders() = default;

    /// Fails for an asset without an audio track.
    virtual Result<std::unique_ptr<AssetReader>> assetReader(const Asset& asset) = 0;
};

}  // namespace tavi
