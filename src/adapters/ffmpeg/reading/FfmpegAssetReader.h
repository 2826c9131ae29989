#pragma once

#include "adapters/ffmpeg/reading/AssetSamples.h"
#include "platform/AssetReader.h"

namespace tavi {

/// Reads by the fastest way that there is for the file.
class FfmpegAssetReader : public AssetReader {
public:
    explicit FfmpegAssetReader(const Asset& asset) : m_asset(asset) {}

    bool startReading() override;
    std::optional<SampleBuffer> copyNextSampleBuffer() override;
    void cancelReading() override;
    AssetReaderStatus status() const override { return m_status; }
    Error error() const override { return m_error; }

private:
    Asset m_asset;
    AssetReaderStatus m_status = AssetReaderStatus::Unknown;
    Error m_error;
    std::unique_ptr<AssetSamples> m_samples;
    std::int64_t m_position = 0;
};

}  // namespace tavi
