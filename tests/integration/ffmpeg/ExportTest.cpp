#include <sys/resource.h>

#include <QDir>
#include <csignal>
#include <map>
#include <random>

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

const Edges& edgesOf(const Type& type) {
    const auto found = std::ranges::find(kTypes, std::string_view(type.extension), &Type::extension);
    return kEdges[static_cast<std::size_t>(found - kTypes.begin())];
}

struct ExportTest : RecordingFixture {
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

    /// All samples, as the program itself hears them.
    std::vector<std::int16_t> heard(const std::filesystem::path& path) {
        std::vector<std::int16_t> samples;
        const auto reader = m_assets.assetReader(m_assets.assetWithURL(path));
        if (reader && (*reader)->startReading()) {
            while (const auto buffer = (*reader)->copyNextSampleBuffer()) {
                samples.insert(samples.end(), buffer->samples.begin(), buffer->samples.end());
            }
        }
        return samples;
    }

    /// Exports a stretch, over what an export before left.
    void expectCompleted(AssetExportSession& session, std::int32_t timescale, std::int64_t start, std::int64_t length) {
        std::filesystem::remove(target());
        session.setTimeRange({{start, timescale}, {length, timescale}});
        EXPECT_EQ(run(session), AssetExportStatus::Completed) << qPrintable(session.error().text);
    }

    std::filesystem::path target() const { return folder() / "Trim.out"; }
    /// Every name in the folder, beside the sources.
    QStringList leftovers() const {
        QStringList names = QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden);
        names.removeIf([](const QString& name) { return name.startsWith(QLatin1String("recording.")); });
        return names;
    }
};

TEST_F(ExportTest, PacketsOfEveryRecordingAreCutExactly) {
    for (const auto& [type, quality] : allKinds()) {
        const Edges& edges = edgesOf(type);
        const auto source = recording(type, quality);
        const Asset asset = m_assets.assetWithURL(source);
        const std::int64_t frames = asset.duration.value;
        const auto channels = static_cast<std::size_t>(quality.channels);
        const auto whole = heard(source);
        const auto decoded = decodeSound(source);
        ASSERT_EQ(whole.size(), static_cast<std::size_t>(frames) * channels);
        ASSERT_TRUE(decoded);
        for (const auto& [start, length] : {std::pair<std::int64_t, std::int64_t>{0, 1},
                                            {0, frames},
                                            {63, 2},
                                            {64, 64},
                                            {1023, 3000},
                                            {2048, 1024},
                                            {frames / 2 + 17, frames},
                                            {frames - 100, 100}}) {
            SCOPED_TRACE(testing::Message() << source << " " << quality.rate << " from " << start << " for " << length);
            expectCompleted(*session(source, target(), edges.type), asset.duration.timescale, start, length);
            const std::int64_t cut = std::min(length, frames - start);
            const std::int64_t kept = storedFrames(type, quality, cut);
            const auto from = static_cast<std::size_t>(start);

            auto own = heard(target());
            EXPECT_EQ(m_assets.assetWithURL(target()).duration, (AssetTime{kept, asset.duration.timescale}));
            ASSERT_EQ(own.size(), static_cast<std::size_t>(kept) * channels);
            // The frame that makes the bytes even is the last one again.
            EXPECT_TRUE(kept == cut || own.end()[-1] == own.end()[-2]);
            own.resize(static_cast<std::size_t>(cut) * channels);
            EXPECT_LE(difference(whole, (from + edges.unlike) * channels, own, edges.unlike * channels),
                      start == 0 ? kExact : edges.tolerance);
            // Within a step of the coding.
            EXPECT_LE(difference(whole, from * channels, own, 0), edges.tolerance + 0.12);

            auto other = decodeSound(target());
            ASSERT_TRUE(other);
            EXPECT_EQ(other->codec, type.codec);
            EXPECT_EQ(other->container, edges.type == AssetFileType::AppleM4A ? kTypes[0].container : type.container);
            // What the other decoder plays before the start, being unable to begin within a packet.
            const auto early = static_cast<std::size_t>(start % edges.packet);
            EXPECT_GE(other->frames(), early + static_cast<std::size_t>(kept));
            EXPECT_LT(other->frames(), early + static_cast<std::size_t>(kept + edges.longer));
            const std::size_t unlike = edges.unlike == 0 ? 0 : edges.unlike - early;
            other->planes[0].resize(other->planes[0].size() - static_cast<std::size_t>(kept - cut));
            EXPECT_LE(difference(decoded->planes[0], from + unlike, other->planes[0], early + unlike),
                      start == 0 ? 1e-9 : edges.tolerance + 1e-9);
        }
    }
}

TEST_F(ExportTest, FragmentsAndWhatOthersMakeAreCutExactlyToo) {
    const auto finished = recording(kTypes[0], kQualities[2]);
    struct Source {
        std::filesystem::path path;
        AssetFileType type;
        double tolerance;
        /// Frames that a file with less than a packet may have more.
        std::size_t more;
    };
    const auto m4a = AssetFileType::AppleM4A;
    // In the one called late the header tells of the first second, the fragments of the rest.
    const Source sources[] = {
        {converted(finished, "recording.late", "-c:a alac -movflags frag_keyframe -frag_duration 1000000 -f mp4"), m4a,
         kExact, 0},
        {converted(finished, "recording.flac", "-c:a flac"), m4a, kExact, 0},
        {converted(finished, "recording.mp3", "-c:a libmp3lame -b:a 96k"), m4a, 0.001, 1152},
        {converted(finished, "recording.pcm.caf", "-c:a pcm_s16le"), AssetFileType::CoreAudioFormat, kExact, 0},
        {recording(kTypes[3], kQualities[2], false), m4a, kNoise, 0},
        {recording(kTypes[0], kQualities[2], false), m4a, kExact, 0},
    };
    for (const auto& [path, type, tolerance, more] : sources) {
        const auto whole = heard(path);
        const std::size_t frames = whole.size() / 2;
        for (const auto& [start, length] :
             {std::pair<std::size_t, std::size_t>{0, 2000}, {1023, 3000}, {100003, 50000}, {frames - 100, 100}}) {
            SCOPED_TRACE(testing::Message() << path << " from " << start << " for " << length);
            expectCompleted(*session(path, target(), type), 44100, static_cast<std::int64_t>(start),
                            static_cast<std::int64_t>(length));
            auto own = heard(target());
            EXPECT_GE(own.size(), length * 2);
            EXPECT_LE(own.size(), (length + (length == 100 ? more : 0)) * 2);
            own.resize(length * 2);
            EXPECT_LE(difference(whole, start * 2, own, 0), tolerance);
        }
        // Only what was interrupted can be made whole.
        EXPECT_EQ(finalize(path), path == pathFor(kTypes[0]) || path == pathFor(kTypes[3])) << path;
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
            const auto from = static_cast<std::size_t>(start) * 44100 * 2;
            const auto own = heard(target());
            ASSERT_EQ(own.size(), std::min(whole.size() - from, static_cast<std::size_t>(length) * 44100 * 2));
            // Half as loud, and in step with the source: a frame sooner or later would fit worse.
            const auto rest = [&](std::size_t lag, double gain = 2) {
                double sum = 0;
                for (std::size_t i = 2; i + 2 < own.size(); ++i) {
                    sum += std::pow(gain * own[i - 2 + 2 * lag] - whole[from + i], 2);
                }
                return sum;
            };
            EXPECT_LT(rest(1), std::min({rest(0), rest(2), 0.3 * rest(1, 0)}));
            EXPECT_EQ(decodeSound(target())->container, kTypes[0].container);
        }
    }
}

TEST_F(ExportTest, WhatDoesNotFitOrIsBrokenFailsAndLeavesNothing) {
    const auto failed = [this](AssetExportSession& session, const char* text) {
        EXPECT_EQ(run(session), AssetExportStatus::Failed);
        EXPECT_TRUE(session.error().text.contains(QLatin1String(text))) << qPrintable(session.error().text);
        EXPECT_FALSE(session.error().text.isEmpty());
        EXPECT_EQ(leftovers(), QStringList());
    };
    std::signal(SIGXFSZ, SIG_IGN);
    for (const Type& type : {kTypes[1], kTypes[2], kTypes[0], kTypes[4]}) {
        SCOPED_TRACE(type.extension);
        const auto source = recording(type, kQualities[2]);
        const AssetFileType fit = edgesOf(type).type;
        const auto unfit = fit == AssetFileType::AppleM4A ? AssetFileType::CoreAudioFormat : AssetFileType::AppleM4A;
        if (type.formatID != kAudioFormatAppleLossless) {
            failed(*session(source, target(), unfit), "cannot be put into such a file");
        }
        // No room: for the first bytes, and for the last.
        for (const rlim_t bytes : {rlim_t{10}, rlim_t{30000}}) {
            const auto full = session(source, target(), fit);
            const rlimit small{bytes, RLIM_INFINITY};
            ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
            run(*full);
            const rlimit none{RLIM_INFINITY, RLIM_INFINITY};
            ::setrlimit(RLIMIT_FSIZE, &none);
            failed(*full, "The file could not be written: ");
        }
        // The source becomes shorter, or goes, after it has been looked at.
        const auto shorter = session(source, target(), fit);
        const auto gone = session(source, target(), fit);
        const auto size = std::filesystem::file_size(source);
        std::filesystem::resize_file(source,
                                     type.priming == 0 && fit == AssetFileType::AppleM4A ? size - 100 : size / 2);
        failed(*shorter, "");
        std::filesystem::remove(source);
        failed(*gone, "could not be opened");
    }
}

TEST_F(ExportTest, ExportsSideBySideAndCancelledOnesDoNotDisturbEachOther) {
    const auto source = recording(kTypes[1], kQualities[2]);
    const auto target = [&](int number) { return folder() / ("Trim.out" + std::to_string(number)); };
    const auto wav = session(source, target(0), AssetFileType::Wave);
    const auto m4a = session(source, target(1), AssetFileType::AppleM4A, AssetExportPreset::AppleM4A);
    const auto cancelled = session(source, target(2), AssetFileType::AppleM4A, AssetExportPreset::AppleM4A);
    for (const auto& each : {&m4a, &cancelled, &wav}) {
        (*each)->exportAsynchronously([] {});
    }
    cancelled->cancelExport();
    for (const auto& each : {&m4a, &cancelled, &wav}) {
        (*each)->waitUntilFinished();
    }
    EXPECT_EQ(m4a->status(), AssetExportStatus::Completed);
    EXPECT_EQ(wav->status(), AssetExportStatus::Completed);
    EXPECT_EQ(heard(target(0)), heard(source));
    // It may have been over before.
    QStringList expected = {QStringLiteral("Trim.out0"), QStringLiteral("Trim.out1")};
    if (cancelled->status() != AssetExportStatus::Cancelled) {
        expected.append(QStringLiteral("Trim.out2"));
    }
    EXPECT_EQ(leftovers(), expected);
    {
        // One that nobody holds any more ends with the factory, whole or without a trace.
        FfmpegAssets assets;
        auto lost = assets.exportSession(m_assets.assetWithURL(source), AssetExportPreset::AppleM4A);
        (*lost)->setOutputURL(target(3));
        (*lost)->setOutputFileType(AssetFileType::AppleM4A);
        (*lost)->exportAsynchronously([] {});
        lost->reset();
    }
    std::filesystem::remove(target(3));
    EXPECT_EQ(leftovers(), expected);
}

TEST_F(ExportTest, DamagedRecordingsAreNeitherBelievedNorACrash) {
    std::mt19937 random(11);
    for (int round = 0; round < 300; ++round) {
        const Type& type = kTypes[static_cast<std::size_t>(round) % kTypes.size()];
        const bool isFinished = round / 5 % 2 == 0;
        SCOPED_TRACE(testing::Message() << type.extension << " " << isFinished << " " << round);
        static std::map<std::pair<std::string, bool>, QByteArray> made;
        QByteArray& whole = made[{type.extension, isFinished}];
        whole = whole.isEmpty() ? contents(recording(type, kQualities[0], isFinished)) : whole;
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
        if (const auto session = this->session(path, target(), edgesOf(type).type)) {
            session->setTimeRange({{1, 3}, {3, 1}});
            const bool isDone = run(*session) == AssetExportStatus::Completed;
            EXPECT_EQ(leftovers().size(), isDone ? 1 : 0);
            EXPECT_EQ(session->error().text.isEmpty(), isDone);
            // Nothing makes a stretch much longer than all.
            EXPECT_LT(QFile(target()).size(), whole.size() + 4096);
            std::filesystem::remove(target());
            heard(path);
        }
        // Either it can be made whole, or it is left as it is.
        EXPECT_TRUE(finalize(path) || contents(path) == damaged);
    }
}

}  // namespace

}  // namespace tavi::test
