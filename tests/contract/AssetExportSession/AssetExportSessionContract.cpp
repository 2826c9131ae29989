#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <atomic>

#include "adapters/ffmpeg/exporting/FfmpegAssets.h"
#include "support/FakeAssets.h"
#include "support/ManualRunLoop.h"
#include "support/WavFile.h"

namespace tavi::test {
namespace {

/// Two seconds of stereo sound at 44.1 kHz in "sound.wav".
struct FakeWorld {
    explicit FakeWorld(const QString&) { assets.files["sound.wav"] = {{88200, 44100}, 2, {1, 2, 3, 4, 5, 6}}; }

    ManualRunLoop runLoop;
    FakeAssets assets{runLoop};
};

struct FfmpegWorld {
    explicit FfmpegWorld(const QString& folder) {
        QByteArray samples;
        for (int sample = 1; sample <= 2 * 88200; ++sample) {
            samples.append(static_cast<char>(sample)).append(static_cast<char>(sample >> 8));
        }
        QFile file(folder + QStringLiteral("/sound.wav"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(wavFile(2, 44100, 16, samples)) > 0);
    }

    FfmpegAssets assets;
};

template <class World>
struct AssetExportSessionContract : ::testing::Test {
    std::filesystem::path path(const char* name) const { return m_folder.filePath(QLatin1String(name)).toStdString(); }
    Asset sound() { return m_world.assets.assetWithURL(path("sound.wav")); }
    std::unique_ptr<AssetExportSession> session(const char* name, AssetFileType type,
                                                AssetExportPreset preset = AssetExportPreset::Passthrough) {
        auto session = m_world.assets.exportSession(sound(), preset);
        (*session)->setOutputURL(path(name));
        (*session)->setOutputFileType(type);
        return std::move(*session);
    }
    /// Exports to the end.
    AssetExportStatus run(AssetExportSession& session) {
        session.exportAsynchronously([this] { ++m_completions; });
        session.waitUntilFinished();
        return session.status();
    }
    QStringList files() const {
        QStringList names = QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden);
        names.removeAll(QStringLiteral("sound.wav"));
        return names;
    }

    QTemporaryDir m_folder;
    World m_world{m_folder.path()};
    std::atomic<int> m_completions = 0;
};

using Worlds = ::testing::Types<FakeWorld, FfmpegWorld>;
TYPED_TEST_SUITE(AssetExportSessionContract, Worlds);

TYPED_TEST(AssetExportSessionContract, TellsWhatAFileIs) {
    const Asset asset = this->sound();
    EXPECT_EQ(asset.duration, (AssetTime{88200, 44100}));
    ASSERT_EQ(asset.audioTracks.size(), 1U);
    EXPECT_EQ(asset.audioTracks[0].formatDescriptions.at(0).streamDescription->channelsPerFrame, 2U);
    EXPECT_EQ(this->m_world.assets.exportPresetsCompatibleWithAsset(asset).size(), 3U);

    const Asset none = this->m_world.assets.assetWithURL(this->path("missing.wav"));
    EXPECT_EQ(none.duration.value, 0);
    EXPECT_TRUE(none.audioTracks.empty());
    EXPECT_TRUE(this->m_world.assets.exportPresetsCompatibleWithAsset(none).empty());
    EXPECT_FALSE(this->m_world.assets.exportSession(none, AssetExportPreset::Passthrough));
    EXPECT_FALSE(this->m_world.assets.assetReader(none));
}

TYPED_TEST(AssetExportSessionContract, WritesAWholeFileAndCompletesOnce) {
    const auto session = this->session("out.m4a", AssetFileType::AppleM4A, AssetExportPreset::AppleM4A);
    session->setTimeRange({{1, 2}, {100, 1}});
    EXPECT_EQ(session->status(), AssetExportStatus::Unknown);
    session->cancelExport();
    EXPECT_EQ(this->run(*session), AssetExportStatus::Completed);
    EXPECT_EQ(session->progress(), 1.0F);
    EXPECT_EQ(this->files(), QStringList{QStringLiteral("out.m4a")});
    session->cancelExport();
    EXPECT_EQ(this->run(*session), AssetExportStatus::Completed);
    EXPECT_EQ(this->m_completions, 1);
}

TYPED_TEST(AssetExportSessionContract, FailsAndLeavesNothingBehind) {
    const auto fails = [this](AssetExportSession& session) {
        const int before = this->m_completions;
        EXPECT_EQ(this->run(session), AssetExportStatus::Failed);
        EXPECT_FALSE(session.error().text.isEmpty());
        EXPECT_EQ(this->m_completions, before + 1);
        EXPECT_EQ(this->files(), QStringList());
    };
    for (const auto& range : {AssetTimeRange{{1, 1}, {0, 1}}, {{1, 1}, {-1, 1}}, {{2, 1}, {1, 1}}, {{-5, 1}, {5, 1}}}) {
        const auto session = this->session("out.wav", AssetFileType::Wave);
        session->setTimeRange(range);
        fails(*session);
    }
    fails(*this->session("none/out.wav", AssetFileType::Wave));
    fails(*this->session("out.wav", AssetFileType::Wave, AssetExportPreset::AppleM4A));

    QFile there(this->path("there.wav"));
    ASSERT_TRUE(there.open(QIODevice::WriteOnly) && there.write("mine") == 4);
    there.close();
    const auto session = this->session("there.wav", AssetFileType::Wave);
    EXPECT_EQ(this->run(*session), AssetExportStatus::Failed);
    EXPECT_EQ(there.size(), 4);
}

TYPED_TEST(AssetExportSessionContract, AReaderHandsOutEveryFrameOnce) {
    const auto reader = this->m_world.assets.assetReader(this->sound());
    ASSERT_TRUE(reader);
    EXPECT_FALSE((*reader)->copyNextSampleBuffer());
    EXPECT_EQ((*reader)->status(), AssetReaderStatus::Unknown);
    ASSERT_TRUE((*reader)->startReading());
    EXPECT_FALSE((*reader)->startReading());
    std::vector<std::int16_t> samples;
    while (const auto buffer = (*reader)->copyNextSampleBuffer()) {
        EXPECT_EQ(buffer->presentationTime.value, static_cast<std::int64_t>(samples.size() / 2));
        EXPECT_EQ(buffer->duration.value, static_cast<std::int64_t>(buffer->samples.size() / 2));
        samples.insert(samples.end(), buffer->samples.begin(), buffer->samples.end());
    }
    EXPECT_EQ((*reader)->status(), AssetReaderStatus::Completed);
    ASSERT_GE(samples.size(), 6U);
    EXPECT_EQ(std::vector<std::int16_t>(samples.begin(), samples.begin() + 6),
              (std::vector<std::int16_t>{1, 2, 3, 4, 5, 6}));

    const auto cancelled = this->m_world.assets.assetReader(this->sound());
    (*cancelled)->startReading();
    EXPECT_TRUE((*cancelled)->copyNextSampleBuffer());
    (*cancelled)->cancelReading();
    EXPECT_FALSE((*cancelled)->copyNextSampleBuffer());
    EXPECT_EQ((*cancelled)->status(), AssetReaderStatus::Cancelled);
}

}  // namespace
}  // namespace tavi::test
