#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include <QByteArray>

namespace tavi {

/// The sound of a file as 16-bit samples, channels interleaved, from the beginning to the end. One thread at a time.
class AssetSamples {
public:
    virtual ~AssetSamples() = default;

    virtual std::uint32_t channels() const = 0;
    /// The next whole frames, valid until the next call; none at the end.
    virtual std::span<const std::int16_t> next() = 0;
};

/// The fastest way there is for a file; null when it cannot be read, or has more channels than eight.
///
/// 8- and 16-bit WAV files and IMA4 in CAF files are taken from large reads. Of other files that can be sought in, two
/// threads decode stretches in turn. Noise that AAC substitutes is not the same in every such stretch as in one pass.
std::unique_ptr<AssetSamples> openAssetSamples(const QByteArray& path);

}  // namespace tavi
