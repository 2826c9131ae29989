#include <sys/resource.h>

#include <QDir>
#include <csignal>
#include <random>

#include "adapters/ffmpeg/exporting/FfmpegAssets.h"
#include "integration/ffmpeg/RecordingFixture.h"

namespace tavi::test {

namespace {

/// How a pass-through export of a recording differs at its edges from the same stretch of the recording.
struct Edges {
    AssetFileType type;
    /// Frames at the start that need not be identical, as a decoder comes into the midst of the sound.
    std::size_t unlike;
    /// Other decoders start with the packet of so many frames.
    std::int64_t packet;
    /// They end with a packet, too.
    std::int64_t longer;
    /// What the decoder makes of the same packets when it comes from elsewhere.
    double tolerance;
};

constexpr double kExact = 0;
/// Noise substitution draws other random numbers.
constexpr double kNoise = 0.02;
constexpr std::array<Edges, kTypes.size()> kEdges{{
    {AssetFileType::AppleM4A, 0, 1, 4096, kExact},
    {AssetFileType::Wave, 0, 1, 1, kExact},
    {AssetFileType::CoreAudioFormat, 64, 64, 64, kExact},
    {AssetFileType::AppleM4A, 0, 1, 1024, kNoise},
    {AssetFileType::AppleM4A, 0, 1, 1024, kNoise},
}};

class ExportTest : public RecordingFixture {
protected:
    /// Six seconds of a tone that grows, under a little noise, so that every place sounds different.
    std::filesystem::path recording(const Type& type, const Quality& quality, bool isFinished = true) {
        const int rate = static_cast<int>(quality.rate);
        const std::size_t frames = static_cast<std::size_t>(rate) * 6;
        const AudioInputFormat format{rate, quality.channels};
        std::vector<float> samples = tone(format, frames);
        std::mt19937 random(7);
        // AAC would replace it by other noise.
        const double hiss = type.formatID == kAudioFormatMPEG4AAC ? 0 : 0.05;
        for (std::size_t i = 0; i < samples.size(); ++i) {
            const double noise = static_cast<double>(random() % 2001) / 1000 - 1;
            const double loudness = static_cast<double>(i) / static_cast<double>(samples.size());
            samples[i] = static_cast<float>(double{samples[i]} * loudness + hiss * noise);
        }
        return record(type, quality, samples, format, isFinished);
    }

    static std::vector<std::int16_t> drain(AssetReader& reader) {
        std::vector<std::int16_t> samples;
        while (const auto buffer = reader.copyNextSampleBuffer()) {
            samples.insert(samples.end(), buffer->samples.begin(), buffer->samples.end());
        }
        return samples;
    }

    /// All samples, as the program itself hears them.
    std::vector<std::int16_t> heard(const std::filesystem::path& path) {
        const auto reader = m_assets.assetReader(m_assets.assetWithURL(path));
        EXPECT_TRUE(reader && (*reader)->startReading()) << path;
        const auto samples = reader ? drain(**reader) : std::vector<std::int16_t>();
        EXPECT_TRUE(reader && (*reader)->status() == AssetReaderStatus::Completed);
        return samples;
    }

    std::unique_ptr<AssetExportSession> session(const std::filesystem::path& from, const std::filesystem::path& to,
                                                AssetFileType type,
                                                AssetExportPreset preset = AssetExportPreset::Passthrough) {
        auto session = m_assets.exportSession(m_assets.assetWithURL(from), preset);
        if (!session) {
            return nullptr;
        }
        (*session)->setOutputURL(to);
        (*session)->setOutputFileType(type);
        return std::move(*session);
    }

    /// Exports a stretch, over what an export before left.
    void expectCompleted(AssetExportSession& session, std::int32_t timescale, std::int64_t start, std::int64_t length) {
        std::filesystem::remove(target());
        session.setTimeRange({{start, timescale}, {length, timescale}});
        EXPECT_EQ(run(session), AssetExportStatus::Completed) << qPrintable(session.error().text);
    }

    void expectFailed(const AssetExportSession& session, const char* text) {
        EXPECT_EQ(session.status(), AssetExportStatus::Failed);
        EXPECT_TRUE(session.error().text.contains(QLatin1String(text))) << qPrintable(session.error().text);
        EXPECT_FALSE(session.error().text.isEmpty());
        EXPECT_EQ(leftovers(), QStringList());
    }

    static AssetExportStatus run(AssetExportSession& session) {
        session.exportAsynchronously([] {});
        session.waitUntilFinished();
        return session.status();
    }

    std::filesystem::path target() const { return folder() / "Trim.out"; }
    /// Every name in the folder, beside the sources.
    QStringList leftovers() const {
        QStringList names = QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden);
        names.removeIf([](const QString& name) { return name.startsWith(QLatin1String("recording.")); });
        return names;
    }

    FfmpegAssets m_assets;
};

/// The largest difference between a stretch of a and all of b, full scale 1.
template <class T>
double difference(const std::vector<T>& a, std::size_t from, const std::vector<T>& b, std::size_t bFrom,
                  double fullScale) {
    double largest = 0;
    for (std::size_t i = 0; bFrom + i < b.size() && from + i < a.size(); ++i) {
        largest = std::max(largest, std::abs(static_cast<double>(a[from + i]) - static_cast<double>(b[bFrom + i])));
    }
    return largest / fullScale;
}

TEST_F(ExportTest, PacketsOfEveryRecordingAreCutExactly) {
    for (std::size_t index = 0; index < kTypes.size(); ++index) {
        const Edges& edges = kEdges[index];
        for (const Quality& quality : kQualities) {
            const auto source = recording(kTypes[index], quality);
            const Asset asset = m_assets.assetWithURL(source);
            const std::int64_t frames = asset.duration.value;
            const auto whole = heard(source);
            const auto decoded = decodeSound(source);
            ASSERT_EQ(whole.size(), static_cast<std::size_t>(frames * quality.channels));
            ASSERT_TRUE(decoded);
            const std::pair<std::int64_t, std::int64_t> stretches[] = {{0, 1},
                                                                       {0, frames},
                                                                       {63, 2},
                                                                       {64, 64},
                                                                       {1023, 3000},
                                                                       {2048, 1024},
                                                                       {frames / 2 + 17, frames},
                                                                       {frames - 100, 100}};
            for (const auto& [start, length] : stretches) {
                SCOPED_TRACE(testing::Message() << kTypes[index].extension << " " << quality.rate << " from " << start
                                                << " for " << length);
                expectCompleted(*session(source, target(), edges.type), asset.duration.timescale, start, length);
                const std::int64_t cut = std::min(length, frames - start);
                const std::int64_t kept = storedFrames(kTypes[index], quality, cut);
                const auto channels = static_cast<std::size_t>(quality.channels);
                const auto from = static_cast<std::size_t>(start);

                auto own = heard(target());
                EXPECT_EQ(m_assets.assetWithURL(target()).duration, (AssetTime{kept, asset.duration.timescale}));
                ASSERT_EQ(own.size(), static_cast<std::size_t>(kept) * channels);
                // The frame that makes the bytes even is the last one again.
                EXPECT_TRUE(kept == cut || own.end()[-1] == own.end()[-2]);
                own.resize(static_cast<std::size_t>(cut) * channels);
                EXPECT_LE(difference(whole, (from + edges.unlike) * channels, own, edges.unlike * channels, 32768),
                          start == 0 ? kExact : edges.tolerance);
                // Within a step of the coding.
                EXPECT_LE(difference(whole, from * channels, own, 0, 32768), edges.tolerance + 0.12);

                auto other = decodeSound(target());
                ASSERT_TRUE(other);
                EXPECT_EQ(other->codec, kTypes[index].codec);
                EXPECT_EQ(other->container,
                          edges.type == AssetFileType::AppleM4A ? kTypes[0].container : kTypes[index].container);
                // What the other decoder plays before the start, being unable to begin within a packet.
                const auto early = static_cast<std::size_t>(start % edges.packet);
                EXPECT_GE(other->frames(), early + static_cast<std::size_t>(kept));
                EXPECT_LT(other->frames(), early + static_cast<std::size_t>(kept + edges.longer));
                const std::size_t unlike = edges.unlike == 0 ? 0 : edges.unlike - early;
                other->planes[0].resize(other->planes[0].size() - static_cast<std::size_t>(kept - cut));
                EXPECT_LE(difference(decoded->planes[0], from + unlike, other->planes[0], early + unlike, 1),
                          start == 0 ? 1e-9 : edges.tolerance + 1e-9);
            }
        }
    }
}

TEST_F(ExportTest, FragmentsAndWhatOthersMakeAreCutExactlyToo) {
    const auto finished = recording(kTypes[0], kQualities[2]);
    // In these the header tells of the first second, the fragments of the rest.
    const auto late =
        converted(finished, "recording.late", "-c:a alac -movflags frag_keyframe -frag_duration 1000000 -f mp4");
    const auto flac = converted(finished, "recording.flac", "-c:a flac");
    for (const auto& [index, source] : {std::pair(0, std::filesystem::path()), {3, {}}, {0, late}, {0, flac}}) {
        const Type& type = kTypes[static_cast<std::size_t>(index)];
        const double tolerance = kEdges[static_cast<std::size_t>(index)].tolerance;
        const auto path = source.empty() ? recording(type, kQualities[2], false) : source;
        const auto whole = heard(path);
        const auto frames = static_cast<std::int64_t>(whole.size() / 2);
        for (const auto& [start, length] :
             {std::pair<std::int64_t, std::int64_t>{0, 1}, {1023, 3000}, {100003, 50000}, {frames - 100, 100}}) {
            SCOPED_TRACE(testing::Message() << path << " from " << start << " for " << length);
            expectCompleted(*session(path, target(), AssetFileType::AppleM4A), 44100, start, length);
            const auto own = heard(target());
            EXPECT_EQ(own.size(), static_cast<std::size_t>(length) * 2);
            EXPECT_LE(difference(whole, static_cast<std::size_t>(start) * 2, own, 0, 32768), tolerance);
        }
        EXPECT_EQ(finalize(path), source.empty());
        EXPECT_TRUE(heard(path) == whole);
    }
}

TEST_F(ExportTest, EncodingKeepsTheStretchExactly) {
    for (const Type& type : {kTypes[1], kTypes[2], kTypes[4]}) {
        const auto source = recording(type, kQualities[2]);
        const auto whole = heard(source);
        // The last one is longer than what is there.
        for (const auto& [start, length] : {std::pair(2, 3), {5, 100}}) {
            SCOPED_TRACE(testing::Message() << type.extension << " from " << start);
            const auto session = this->session(source, target(), AssetFileType::AppleM4A, AssetExportPreset::AppleM4A);
            session->setAudioMix({{{0.5F}}});
            expectCompleted(*session, 1, start, length);
            const auto from = static_cast<std::size_t>(start) * 44100;
            const std::size_t frames = std::min(whole.size() / 2 - from, static_cast<std::size_t>(length) * 44100);
            const auto own = heard(target());
            ASSERT_EQ(own.size(), frames * 2);
            // Half as loud, and in step with the source: a frame sooner or later would fit worse.
            std::array<double, 3> rest{};
            double all = 0;
            for (std::size_t i = 2; i + 2 < own.size(); ++i) {
                all += std::pow(whole[from * 2 + i], 2);
                for (std::size_t lag = 0; lag < rest.size(); ++lag) {
                    rest[lag] += std::pow(2.0 * own[i - 2 + 2 * lag] - whole[from * 2 + i], 2);
                }
            }
            EXPECT_LT(rest[1], 0.3 * all);
            EXPECT_LT(rest[1], std::min(rest[0], rest[2]));
            EXPECT_EQ(decodeSound(target())->container, kTypes[0].container);
            EXPECT_GE(decodeSound(target())->frames(), frames);
        }
    }
}

TEST_F(ExportTest, WhatDoesNotFitOrIsBrokenFailsAndLeavesNothing) {
    const auto wav = recording(kTypes[1], kQualities[2]);
    const auto caf = recording(kTypes[2], kQualities[2]);
    const auto m4a = recording(kTypes[0], kQualities[2]);
    const auto aac = recording(kTypes[4], kQualities[2]);
    for (const auto& [source, type] : {std::pair(caf, AssetFileType::AppleM4A),
                                       {wav, AssetFileType::AppleM4A},
                                       {wav, AssetFileType::CoreAudioFormat},
                                       {aac, AssetFileType::CoreAudioFormat}}) {
        SCOPED_TRACE(source);
        const auto unfit = session(source, target(), type);
        run(*unfit);
        expectFailed(*unfit, "cannot be put into such a file");
    }
    for (const auto& [source, type] : {std::pair(wav, AssetFileType::Wave),
                                       {caf, AssetFileType::CoreAudioFormat},
                                       {m4a, AssetFileType::AppleM4A},
                                       {aac, AssetFileType::AppleM4A}}) {
        SCOPED_TRACE(source);
        // No room: for the first bytes, and for the last.
        std::signal(SIGXFSZ, SIG_IGN);
        for (const rlim_t bytes : {rlim_t{10}, rlim_t{30000}}) {
            const auto full = session(source, target(), type);
            rlimit limit{bytes, RLIM_INFINITY};
            ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
            run(*full);
            limit.rlim_cur = RLIM_INFINITY;
            ::setrlimit(RLIMIT_FSIZE, &limit);
            expectFailed(*full, "The file could not be written: ");
        }
        // The source becomes shorter, or goes, after it has been looked at.
        const auto shorter = session(source, target(), type);
        const auto gone = session(source, target(), type);
        const qint64 size = QFile(source).size();
        std::filesystem::resize_file(source, source == m4a ? size - 100 : size / 2);
        run(*shorter);
        expectFailed(*shorter, "");
        std::filesystem::remove(source);
        run(*gone);
        expectFailed(*gone, "could not be opened");
    }
}

TEST_F(ExportTest, ExportsSideBySideAndCancelledOnesDoNotDisturbEachOther) {
    const auto source = recording(kTypes[1], kQualities[2]);
    const auto target = [](int number) { return "Trim.out" + std::to_string(number); };
    std::vector<std::unique_ptr<AssetExportSession>> sessions;
    for (const int number : {0, 1, 2}) {
        const auto type = number == 0 ? AssetFileType::Wave : AssetFileType::AppleM4A;
        const auto preset = number == 0 ? AssetExportPreset::Passthrough : AssetExportPreset::AppleM4A;
        sessions.push_back(session(source, folder() / target(number), type, preset));
    }
    for (const int number : {1, 2, 0}) {
        sessions[number]->exportAsynchronously([] {});
    }
    sessions[2]->cancelExport();
    QStringList files;
    for (const int number : {0, 1, 2}) {
        sessions[number]->waitUntilFinished();
        // The one that is cancelled may have been over before.
        if (number < 2 || sessions[2]->status() != AssetExportStatus::Cancelled) {
            EXPECT_EQ(sessions[number]->status(), AssetExportStatus::Completed);
            files.append(QString::fromStdString(target(number)));
        }
    }
    EXPECT_EQ(leftovers(), files);
    EXPECT_EQ(heard(folder() / target(0)), heard(source));

    {
        // One that nobody holds any more ends with the factory, whole or without a trace.
        FfmpegAssets assets;
        auto lost = assets.exportSession(m_assets.assetWithURL(source), AssetExportPreset::AppleM4A);
        (*lost)->setOutputURL(folder() / target(3));
        (*lost)->setOutputFileType(AssetFileType::AppleM4A);
        (*lost)->exportAsynchronously([] {});
        lost->reset();
    }
    QStringList left = leftovers();
    left.removeOne(QString::fromStdString(target(3)));
    EXPECT_EQ(left, files);
}

TEST_F(ExportTest, DamagedRecordingsAreNeitherBelievedNorACrash) {
    std::mt19937 random(11);
    for (std::size_t index = 0; index < 2 * kTypes.size(); ++index) {
        const Type& type = kTypes[index / 2];
        const QByteArray whole = contents(recording(type, kQualities[0], index % 2 == 0));
        for (int round = 0; round < 30; ++round) {
            SCOPED_TRACE(testing::Message() << type.extension << (index % 2 == 0 ? " " : " interrupted ") << round);
            QByteArray damaged = whole;
            for (auto count = random() % 6; count > 0; --count) {
                // Headers stand at both ends.
                const auto at = static_cast<qsizetype>(random() % 900);
                damaged[random() % 2 == 0 ? at : whole.size() - 1 - at] =
                    static_cast<char>(random() % 3 == 0 ? 0xff : random());
            }
            damaged.truncate(random() % 5 == 0 ? static_cast<qsizetype>(random()) % whole.size() : whole.size());
            const auto path = file("recording.damaged", damaged);
            const double seconds = m_durations.durationOfFile(path);
            EXPECT_TRUE(seconds >= 0 && std::isfinite(seconds));
            if (const auto session = this->session(path, target(), kEdges[index / 2].type)) {
                session->setTimeRange({{1, 3}, {3, 1}});
                const bool isDone = run(*session) == AssetExportStatus::Completed;
                EXPECT_EQ(leftovers().size(), isDone ? 1 : 0);
                EXPECT_EQ(session->error().text.isEmpty(), isDone);
                // Nothing makes a stretch much longer than all.
                EXPECT_LT(QFile(target()).size(), whole.size() + 4096);
                std::filesystem::remove(target());
            }
            const auto reader = m_assets.assetReader(m_assets.assetWithURL(path));
            if (reader && (*reader)->startReading()) {
                drain(**reader);
            }
            // Either it can be made whole, or it is left as it is.
            if (!finalize(path)) {
                EXPECT_EQ(contents(path), damaged);
            }
        }
    }
}

}  // namespace

}  // namespace tavi::test
