#pragma once

#include <QFile>
#include <algorithm>
#include <filesystem>
#include <map>
#include <utility>

#include "platform/AssetExportSession.h"
#include "platform/AssetReader.h"
#include "platform/RunLoop.h"

namespace tavi::test {

/// An export whose work is one small file. It runs as background work of the run loop, or when a test says so.
struct FakeAssetExportSession : AssetExportSession {
    /// Outlives the session, as a running export does.
    struct State {
        Asset asset;
        AssetExportPreset preset = AssetExportPreset::Passthrough;
        std::filesystem::path outputURL;
        std::optional<AssetFileType> outputFileType;
        std::optional<AssetTimeRange> timeRange;
        AssetAudioMix audioMix;
        AssetExportStatus status = AssetExportStatus::Unknown;
        float progress = 0.0F;
        Error error;
        std::function<void()> completion;
        /// What the new file will hold.
        QByteArray contents = "sound";

        bool isRunning() const { return status == AssetExportStatus::Exporting; }
        /// Ends a running export as it would end by itself.
        void finish() {
            if (!isRunning()) {
                return;
            }
            QFile file(outputURL);
            const bool isTypeUsable = preset == AssetExportPreset::Passthrough
                                          ? outputFileType.has_value()
                                          : outputFileType == AssetFileType::AppleM4A;
            if (!isTypeUsable) {
                end(AssetExportStatus::Failed, {QStringLiteral("The file type is not supported.")});
            } else if (!isRangeUsable()) {
                end(AssetExportStatus::Failed, {QStringLiteral("Nothing is selected.")});
            } else if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly) &&
                       file.write(contents) == contents.size()) {
                progress = 1.0F;
                end(AssetExportStatus::Completed, {});
            } else {
                end(AssetExportStatus::Failed, {file.errorString()});
            }
        }
        void end(AssetExportStatus how, const Error& why) {
            if (isRunning()) {
                status = how;
                error = why;
                std::exchange(completion, nullptr)();
            }
        }

    private:
        bool isRangeUsable() const {
            const auto range = timeRange.value_or(AssetTimeRange{{0, 1}, asset.duration});
            const double end = std::min(range.start.seconds() + range.duration.seconds(), asset.duration.seconds());
            return range.duration.value > 0 && std::max(range.start.seconds(), 0.0) < end;
        }
    };

    FakeAssetExportSession(RunLoop& runLoop, std::shared_ptr<State> state, bool isHeldBack)
        : m_runLoop(runLoop), m_state(std::move(state)), m_isHeldBack(isHeldBack) {}

    void setOutputURL(const std::filesystem::path& path) override { m_state->outputURL = path; }
    void setOutputFileType(AssetFileType type) override { m_state->outputFileType = type; }
    void setTimeRange(const AssetTimeRange& range) override { m_state->timeRange = range; }
    void setAudioMix(const AssetAudioMix& mix) override { m_state->audioMix = mix; }
    std::vector<AssetFileType> supportedFileTypes() const override {
        return m_state->preset == AssetExportPreset::Passthrough
                   ? std::vector{AssetFileType::Wave, AssetFileType::CoreAudioFormat, AssetFileType::AppleM4A}
                   : std::vector{AssetFileType::AppleM4A};
    }
    void exportAsynchronously(std::function<void()> completion) override {
        if (m_state->status != AssetExportStatus::Unknown) {
            return;
        }
        m_state->status = AssetExportStatus::Exporting;
        m_state->completion = std::move(completion);
        if (!m_isHeldBack) {
            m_runLoop.dispatchBackground([state = m_state] { state->finish(); });
        }
    }
    void cancelExport() override {
        if (m_state->isRunning()) {
            m_runLoop.dispatchBackground([state = m_state] { state->end(AssetExportStatus::Cancelled, {}); });
        }
    }
    /// Ends the export here and now, as if its time had passed.
    void waitUntilFinished() override { m_state->finish(); }
    AssetExportStatus status() const override { return m_state->status; }
    float progress() const override { return m_state->progress; }
    Error error() const override { return m_state->error; }

private:
    RunLoop& m_runLoop;
    std::shared_ptr<State> m_state;
    bool m_isHeldBack;
};

/// A reader that hands out what the test's file holds, in two pieces.
struct FakeAssetReader : AssetReader {
    FakeAssetReader(std::vector<std::int16_t> samples, std::uint32_t channels, std::int32_t timescale)
        : m_samples(std::move(samples)), m_channels(channels), m_timescale(timescale) {}

    bool startReading() override {
        const bool isFirst = m_status == AssetReaderStatus::Unknown;
        m_status = isFirst ? AssetReaderStatus::Reading : m_status;
        return isFirst;
    }
    std::optional<SampleBuffer> copyNextSampleBuffer() override {
        const std::size_t frames = m_samples.size() / m_channels;
        if (m_status != AssetReaderStatus::Reading || m_taken == frames) {
            m_status = m_status == AssetReaderStatus::Reading ? AssetReaderStatus::Completed : m_status;
            return std::nullopt;
        }
        const std::size_t count = m_taken == 0 ? (frames + 1) / 2 : frames - m_taken;
        const auto piece = std::span<const std::int16_t>(m_samples).subspan(m_taken * m_channels, count * m_channels);
        const AssetTime start{static_cast<std::int64_t>(m_taken), m_timescale};
        m_taken += count;
        return SampleBuffer{piece, m_channels, start, {static_cast<std::int64_t>(count), m_timescale}};
    }
    void cancelReading() override { m_status = AssetReaderStatus::Cancelled; }
    AssetReaderStatus status() const override { return m_status; }
    Error error() const override { return {}; }

private:
    std::vector<std::int16_t> m_samples;
    std::uint32_t m_channels;
    std::int32_t m_timescale;
    std::size_t m_taken = 0;
    AssetReaderStatus m_status = AssetReaderStatus::Unknown;
};

/// Assets that a test describes, by file name. Sound is stereo unless a test says otherwise.
struct FakeAssets : AssetExportSessions, AssetReaders {
    struct File {
        AssetTime duration;
        std::uint32_t channels = 2;
        std::vector<std::int16_t> samples;
    };

    explicit FakeAssets(RunLoop& runLoop) : m_runLoop(runLoop) {}

    Asset assetWithURL(const std::filesystem::path& path) override {
        const auto file = files.find(path.filename());
        Asset asset{path, {}, {}};
        if (file != files.end()) {
            AudioStreamBasicDescription format;
            format.sampleRate = file->second.duration.timescale;
            format.channelsPerFrame = file->second.channels;
            asset.duration = file->second.duration;
            asset.audioTracks = {{{{format}}}};
        }
        return asset;
    }
    std::vector<AssetExportPreset> exportPresetsCompatibleWithAsset(const Asset& asset) override {
        return asset.audioTracks.empty() ? std::vector<AssetExportPreset>{}
                                         : std::vector{AssetExportPreset::Passthrough, AssetExportPreset::AppleM4A,
                                                       AssetExportPreset::HighestQuality};
    }
    Result<std::unique_ptr<AssetExportSession>> exportSession(const Asset& asset, AssetExportPreset preset) override {
        if (asset.audioTracks.empty()) {
            return failure(QStringLiteral("There is no sound."));
        }
        sessions.push_back(std::make_shared<FakeAssetExportSession::State>());
        sessions.back()->asset = asset;
        sessions.back()->preset = preset;
        return std::make_unique<FakeAssetExportSession>(m_runLoop, sessions.back(), areExportsHeldBack);
    }
    Result<std::unique_ptr<AssetReader>> assetReader(const Asset& asset) override {
        if (asset.audioTracks.empty()) {
            return failure(QStringLiteral("There is no sound."));
        }
        const File& file = files[asset.path.filename()];
        return std::make_unique<FakeAssetReader>(file.samples, file.channels, file.duration.timescale);
    }

    /// Any other name is no sound file.
    std::map<std::filesystem::path, File> files;
    /// Exports end only by finish() or end() of their state.
    bool areExportsHeldBack = false;
    /// In the order in which they were made.
    std::vector<std::shared_ptr<FakeAssetExportSession::State>> sessions;

private:
    RunLoop& m_runLoop;
};

}  // namespace tavi::test
