#include "app/cli/CommandLine.h"

#include <gmock/gmock.h>

namespace tavi::test {

namespace {

using Command = CommandLine::Command;

QList<QByteArray> words(const char* line) {
    QList<QByteArray> words = QByteArray(line).split('|');
    words.removeAll(QByteArray());
    return words;
}

TEST(CommandLine, UnderstandsEveryCommand) {
    struct Case {
        const char* arguments;
        Command command;
        const char* container = "";
        const char* key = "";
        const char* value = "";
        const char* urls = "";
        bool json = false;
    };
    const Case cases[] = {
        {"", Command::Open},
        {"--container|/tmp/a b", Command::Open, "/tmp/a b"},
        {"--container=dir|record", Command::Record, "dir"},
        {"--|library", Command::Library},
        {"list|--json", Command::List, "", "", "", "", true},
        {"get|AudioFileType", Command::Get, "", "AudioFileType"},
        {"set|RewindSong|-5", Command::Set, "", "RewindSong", "-5"},
        {"set|note|--help", Command::Set, "", "note", "--help"},
        {"taviRECORDstop://x?y=1|TaviliteConnect://", Command::Url, "", "", "",
         "tavirecordstop://x?y=1 taviliteconnect://"},
        {"--help", Command::Help},
        {"--container|d|--version|nonsense", Command::Version, "d"},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.arguments);
        const auto line = parseCommandLine(words(test.arguments));
        ASSERT_TRUE(line.has_value()) << qPrintable(line.error().text);
        EXPECT_EQ(line->command, test.command);
        EXPECT_EQ(line->container, QLatin1String(test.container));
        EXPECT_EQ(line->key, QLatin1String(test.key));
        EXPECT_EQ(line->value, QLatin1String(test.value));
        EXPECT_EQ(QUrl::toStringList(line->urls).join(QLatin1Char(' ')), QLatin1String(test.urls));
        EXPECT_EQ(line->json, test.json);
    }
    EXPECT_EQ(parseCommandLine({"set", "k", ""})->value, QString());
}

TEST(CommandLine, ReadsWhatIsDoneWithAFile) {
    const auto wave = parseCommandLine(words("--container|d|waveform|--points|7|a\xff b.wav|--png|out.png"));
    ASSERT_TRUE(wave.has_value());
    EXPECT_EQ(wave->command, Command::Waveform);
    EXPECT_EQ(wave->file, "a\xff b.wav");
    EXPECT_EQ(wave->output, "out.png");
    EXPECT_EQ(wave->points, 7);
    const auto trim = parseCommandLine(words("trim|--to|2.5|--from|0.25|--|-x.m4a"));
    ASSERT_TRUE(trim.has_value());
    EXPECT_EQ(trim->file, "-x.m4a");
    EXPECT_EQ(trim->from, 0.25);
    EXPECT_EQ(trim->to, 2.5);
}

TEST(CommandLine, SaysWhatIsWrong) {
    const std::pair<const char*, const char*> cases[] = {
        {"--container", "--container needs a folder"},
        {"--container=", "--container needs a folder"},
        {"record|now", "“record” does not take “now”"},
        {"set|key", "“set” needs the key of a setting and its value"},
        {"waveform|a|--from|1", "“waveform” does not take “--from”"},
        {"waveform|a|--points|0", "--points needs a number from 1 to 8192, not “0”"},
        {"waveform|a|--json|--png|b", "“waveform” prints or draws, not both"},
        {"trim|a|--from|1", "“trim” needs --from and --to"},
        {"trim|a|--from|x|--to|2", "--from needs a number from 0 to 1e+09, not “x”"},
        {"trim|a|--from|1|--to", "--to needs a value"},
        {"music/a.wav", "files cannot be imported from the command line: “music/a.wav”"},
        {"https://example.org/", "the scheme of “https://example.org/” is not one that the recorder opens"},
        {"TaviRecordStop:|stop", "unknown command “stop”"},
        {"TaviRecordStop://[", "“TaviRecordStop://[” is not a valid URL"},
    };
    for (const auto& [arguments, error] : cases) {
        SCOPED_TRACE(arguments);
        const auto line = parseCommandLine(words(arguments));
        ASSERT_FALSE(line.has_value());
        EXPECT_EQ(line.error().text.toStdString(), error);
    }
    EXPECT_FALSE(parseCommandLine({"get", ""}).has_value());
}

}  // namespace

}  // namespace tavi::test
