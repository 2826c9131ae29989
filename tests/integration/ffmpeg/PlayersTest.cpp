#include <cstdlib>

#include "files/PathText.h"
#include "integration/ffmpeg/RecordingFixture.h"

namespace tavi::test {

namespace {

/// What the programs of others make of a type that we write.
struct Played {
    AssetFileType cut;
    /// MediaInfo's names of the container, and of the codec; and those of a cut.
    const char* name;
    const char* cutName;
    /// Frames that GStreamer leaves out at the end: of AAC at low rates it drops the last packet, whoever wrote the
    /// file. Negative where it has no reader for the container.
    int lost;
    /// Frames that players may play beside those that are meant to be heard: they know of whole packets only.
    int more;
};

constexpr std::array<Played, kTypes.size()> kPlayed{{
    {AssetFileType::AppleM4A, "MPEG-4 ALAC", "MPEG-4 ALAC", 0, 4096},
    {AssetFileType::Wave, "Wave PCM", "Wave PCM", 0, 0},
    {AssetFileType::CoreAudioFormat, "CAF ADPCM", "CAF ADPCM", -1, 127},
    {AssetFileType::AppleM4A, "MPEG-4 AAC", "MPEG-4 AAC", 1024, 2048},
    {AssetFileType::AppleM4A, "ADTS AAC", "MPEG-4 AAC", 1024, 2048},
}};

/// Files that GStreamer, mpv and MediaInfo are to read, as they are on people's desktops.
struct PlayersTest : RecordingFixture {
    /// An odd number of bytes at 8 bits and one channel, behind which GStreamer's reader of WAV files gives up.
    static constexpr int kFrames = 12001;

    std::filesystem::path cut(const std::filesystem::path& source, AssetFileType type) {
        auto path = folder() / "cut";
        std::filesystem::remove(path);
        const auto session = this->session(source, path, type);
        session->setTimeRange({{100, 8000}, {kFrames - 2000, 8000}});
        EXPECT_EQ(run(*session), AssetExportStatus::Completed);
        return path;
    }

    /// What a shell command writes to "%1", having "%2" as its source.
    QByteArray outputOf(const char* command, const std::filesystem::path& source) const {
        const auto output = file("output", {});
        const QString whole = QString::fromLatin1(command).arg(pathText(output), pathText(source));
        EXPECT_EQ(std::system(qPrintable(whole)), 0);
        return contents(output);
    }

    void expectPlayed(const std::filesystem::path& path, const Type& type, const Quality& quality, const char* name,
                      const Played& players) {
        const QByteArray told = outputOf(
            "mediainfo '--Inform=General;%Format% ' '%2' >'%1'; "
            "mediainfo '--Inform=Audio;%Format% %SamplingRate% %Channels%' '%2' >>'%1'",
            path);
        const QByteArray start = QByteArray(name) + ' ' + QByteArray::number(quality.rate);
        const QByteArray end = ' ' + QByteArray::number(quality.channels);
        EXPECT_TRUE(told.simplified().startsWith(start) && told.simplified().endsWith(end)) << told.constData();
        const double rate = quality.rate;
        const auto frames = static_cast<std::size_t>(std::llround(m_durations.durationOfFile(path) * rate));
        const auto expectTone = [&](const QByteArray& played, int lost) {
            // The first channel.
            std::vector<float> samples;
            for (qsizetype at = 0; at < played.size(); at += qsizetype{4} * quality.channels) {
                std::memcpy(&samples.emplace_back(), played.constData() + at, sizeof(float));
            }
            EXPECT_GE(samples.size() + static_cast<std::size_t>(lost), frames);
            EXPECT_LE(samples.size(), frames + static_cast<std::size_t>(players.more));
            EXPECT_NEAR(levelOf(middleOf(samples)), -9.03, type.decibels);
            EXPECT_NEAR(frequencyOf(middleOf(samples), static_cast<int>(rate)), 1000, 2);
        };
        expectTone(outputOf("mpv --no-config --really-quiet --no-video --ao=pcm --audio-format=float "
                            "--ao-pcm-waveheader=no --ao-pcm-file='%1' '%2'",
                            path),
                   0);
        if (players.lost >= 0) {
            expectTone(outputOf("gst-launch-1.0 -q filesrc location='%2' ! decodebin ! audioconvert ! "
                                "audio/x-raw,format=F32LE,layout=interleaved ! filesink location='%1'",
                                path),
                       players.lost);
        }
    }
};

TEST_F(PlayersTest, OthersPlayAllThatIsRecordedCutAndLeftByAKilledProgram) {
    for (std::size_t index = 0; index < kTypes.size(); ++index) {
        const Type& type = kTypes[index];
        const Played& players = kPlayed[index];
        for (const Quality& quality : kQualities) {
            SCOPED_TRACE(testing::Message() << type.extension << " " << quality.rate);
            const AudioInputFormat format{static_cast<int>(quality.rate), quality.channels};
            const auto whole = record(type, quality, tone(format, kFrames), format);
            expectPlayed(whole, type, quality, players.name, players);
            if (quality.value == 0) {
                SCOPED_TRACE("cut");
                expectPlayed(cut(whole, players.cut), type, quality, players.cutName, players);
            }
        }
        SCOPED_TRACE(testing::Message() << type.extension << " interrupted");
        const Quality& low = kQualities[0];
        const auto path = record(type, low, tone({8000, 1}, 3 * kFrames), {8000, 1}, false);
        finalize(path);
        expectPlayed(path, type, low, players.name, players);
    }
}

}  // namespace

}  // namespace tavi::test
