#include "adapters/ffmpeg/reading/FfmpegAssetReader.h"

namespace tavi {

bool FfmpegAssetReader::startReading() {
    if (m_status != AssetReaderStatus::Unknown) {
        return false;
    }
    m_samples = openAssetSamples(m_asset.path);
    m_status = m_samples ? AssetReaderStatus::Reading : AssetReaderStatus::Failed;
    if (!m_samples) {
        m_error = {QStringLiteral("The sound file could not be read.")};
    }
    return m_samples != nullptr;
}

std::optional<SampleBuffer> FfmpegAssetReader::copyNextSampleBuffer() {
    if (m_status != AssetReaderStatus::Reading) {
        return std::nullopt;
    }
    const auto samples = m_samples->next();
    if (samples.empty()) {
        m_status = AssetReaderStatus::Completed;
        m_samples.reset();
        return std::nullopt;
    }
    const auto frames = static_cast<std::int64_t>(samples.size() / m_samples->channels());
    const std::int32_t timescale = m_asset.duration.timescale;
    const AssetTime start{m_position, timescale};
    m_position += frames;
    return SampleBuffer{samples, m_samples->channels(), start, {frames, timescale}};
}

void FfmpegAssetReader::cancelReading() {
    if (m_status == AssetReaderStatus::Reading) {
        m_status = AssetReaderStatus::Cancelled;
        m_samples.reset();
    }
}

}  // namespace tavi
