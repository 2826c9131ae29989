#include "app/cli/CommandLine.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QRegularExpression>
#include <QSet>

namespace tavi::test {

namespace {

/// What stands for the line, whose words are divided by "|": "[container] " where there is one, and the quick action
/// and URLs that the program is asked for, the text that is printed, "prints" for a command that prints, or "! " and
/// what is wrong.
std::string meaning(const QByteArray& line) {
    const auto parsed = parseCommandLine(line.isEmpty() ? QList<QByteArray>() : line.split('|'));
    if (!parsed) {
        return "! " + parsed.error().text.toStdString();
    }
    const std::string where = parsed->container.empty() ? "" : "[" + parsed->container.native() + "] ";
    if (const auto* request = std::get_if<ProgramRequest>(&parsed->command)) {
        const QStringList asked = QStringList{request->shortcutType} + QUrl::toStringList(request->urls);
        const auto channel = request->companionChannel;
        const std::string way = channel ? "(" + std::to_string(static_cast<int>(*channel)) + ")" : "";
        std::string text = where + way + asked.join(QLatin1Char(' ')).trimmed().toStdString();
        for (const std::filesystem::path& file : request->files) {
            text += " <" + file.native() + '>';
        }
        return text;
    }
    const auto* text = std::get_if<QByteArray>(&parsed->command);
    return where + (text != nullptr ? text->toStdString() : "prints");
}

QString helpOf(const QString& command) {
    return QString::fromStdString(meaning(command.toUtf8() + "--help"));
}

QStringList allMatches(const QString& text, const char* expression) {
    QStringList found;
    const QRegularExpression pattern(QString::fromLatin1(expression), QRegularExpression::MultilineOption);
    for (auto match = pattern.globalMatch(text); match.hasNext();) {
        found.append(match.next().captured(1));
    }
    return found;
}

TEST(CommandLine, IsUnderstoodOrSaysWhatIsWrong) {
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {"--container|/tmp/a b", "[/tmp/a b] "},
        {"--container=dir|record", "[dir] Record"},
        {"stop", "tavirecordstop:"},
        {"library", "Recordings"},
        {"taviRECORDstop://x?y=1|TaviliteConnect://", "tavirecordstop://x?y=1 taviliteconnect://"},
        {"--container|d|--version|nonsense", "tavi " TAVI_VERSION "\n"},
        {"--companion-channel|record", "(0)Record"},
        {"--companion-channel=message|TaviRecordStop:", "(4)tavirecordstop:"},
        {"list|--json", "prints"},
        {"waveform|--points|8192|--|--x=", "prints"},
        {"trim|record|--from|0|--to|1e9", "prints"},
        {"import|--|--x=|list|./stop", "prints"},
        {"fly|a b\xff.wav|./list", " <fly> <a b\xff.wav> <./list>"},
        {"--|list|-x.wav", " <list> <-x.wav>"},
        {"FILE:///a%20b%FF|TaviRecordStop:", "tavirecordstop: </a b\xff>"},

        {"--container", "! --container needs a value"},
        {"--container|a|--container|b|list", "! --container is given twice"},
        {"--container|list", "! --container: no folder before “list”; one of that name is ./list"},
        {"--container|--json|list", "! --container: no folder before “--json”; one of that name is ./--json"},
        {"--container=|record", "! --container= needs a value"},
        {"--container||list", "! --container: the name is empty"},
        {"--container|\xff", "! --container: the name is not text: “\uFFFD”"},
        {"record|stop", "? stop"},
        {"--companion-channel=pigeon", "? pigeon"},
        {"--companion-channel|list", "! --companion-channel is for the program with the window"},
        {"set|key", "? VALUE"},
        {"waveform|a|--from|1", "? --from"},
        {"waveform|a|--points|0", "? --points"},
        {"waveform|a|--points|8193", "? 8193"},
        {"waveform|a|--json|--png|b", "? --png"},
        {"trim|a|--from|1", "? --to"},
        {"trim|a|--from|x|--to|2", "! --from: “x” is no number of seconds"},
        {"trim|a|--from|0|--to|nan", "! --to: “nan” is no number of seconds"},
        {"trim|a|--from|-1|--to|1", "! --from: “-1” is no number of seconds"},
        {"trim|a|--from|1|--to", "? --to"},
        {"import", "? FILE"},
        {"delete|--permanently", "? NAME"},
        {"rename|a|b|c", "? c"},
        {"export|a", "? TO"},
        {"file://elsewhere/a.wav", "! “file://elsewhere/a.wav” is no file on this machine"},
        {"https://example.org/", "! the scheme of “https://example.org/” is not one that the recorder opens"},
        {"TaviRecordStop:|stop", "! files or URLs and commands do not go together"},
        {"TaviRecordStop://[", "! “TaviRecordStop://[” is not a valid URL"},
    };
    for (const auto& [line, expected] : cases) {
        const std::string meant = meaning(line);
        if (*expected == '?') {
            // The library's words; they have to name what is wrong.
            EXPECT_THAT(meant, ::testing::AllOf(::testing::StartsWith("! "), ::testing::HasSubstr(expected + 2)))
                << line;
        } else {
            EXPECT_EQ(meant, expected) << line;
        }
    }
}

TEST(CommandLine, HelpAndManualPageTellTheSame) {
    QFile file(QStringLiteral(TAVI_MANUAL));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString manual = QString::fromUtf8(file.readAll()).remove(QLatin1Char('\\'));
    const QString help = helpOf({});
    const QStringList commands = allMatches(help.section(QLatin1String("\nCommands"), 1), "^  ([a-z]+)  ");
    ASSERT_EQ(commands.size(), 14);
    const QString described = manual.section(QLatin1String(".SS"), 1).section(QLatin1String(".SH"), 0, 0);
    EXPECT_EQ(allMatches(described, "^\\.TP\n\\.BR?I? \"?([a-z]+)"), commands);
    for (const QString& command : commands) {
        QString helps = helpOf(command + QLatin1Char('|'));
        for (const QString& word : allMatches(helps.section(QLatin1String("\nCommands"), 1), "^  ([a-z]+)  ")) {
            helps += helpOf(command + QLatin1Char('|') + word + QLatin1Char('|'));
        }
        QStringList options = allMatches(helps, "(--[a-z]+)");
        options.removeAll(QLatin1String("--help"));
        const QString from = described.section(QRegularExpression(QStringLiteral("\\.BR?I? ") + command), 1);
        const QStringList told = allMatches(from.section(QLatin1String(".TP"), 0, 0), "(--[a-z]+)");
        EXPECT_EQ(QSet(told.begin(), told.end()), QSet(options.begin(), options.end())) << qPrintable(command);
    }
}

}  // namespace

}  // namespace tavi::test
