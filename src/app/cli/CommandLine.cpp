#include "app/cli/CommandLine.h"

#include <QRegularExpression>
#include <array>
#include <utility>

namespace tavi {

namespace {

using Command = CommandLine::Command;

constexpr std::array<QLatin1String, 3> kSchemes = {QLatin1String("tavirecordstart"), QLatin1String("tavirecordstop"),
                                                   QLatin1String("taviliteconnect")};

/// A word that stands for a command, and how many arguments follow it.
struct Word {
    QLatin1String name;
    Command command;
    int arguments;
    /// What is missing, for the error.
    QLatin1String needs;
};

constexpr std::array<Word, 8> kWords = {{
    {QLatin1String("record"), Command::Record, 0, {}},
    {QLatin1String("stop"), Command::Stop, 0, {}},
    {QLatin1String("library"), Command::Library, 0, {}},
    {QLatin1String("list"), Command::List, 0, {}},
    {QLatin1String("get"), Command::Get, 1, QLatin1String("the key of a setting")},
    {QLatin1String("set"), Command::Set, 2, QLatin1String("the key of a setting and its value")},
    {QLatin1String("waveform"), Command::Waveform, 1, QLatin1String("a file")},
    {QLatin1String("trim"), Command::Trim, 1, QLatin1String("a file")},
}};

bool isHelp(const QString& argument) {
    return argument == QLatin1String("--help") || argument == QLatin1String("-h");
}

/// A URL of one of the program's schemes, or why it is none.
Result<QUrl> ownUrl(const QString& text) {
    static const QRegularExpression kScheme(QStringLiteral("^([A-Za-z][A-Za-z0-9+.-]*):"));
    const QRegularExpressionMatch match = kScheme.match(text);
    const QString scheme = match.captured(1).toLower();
    if (scheme == QLatin1String("file") || (scheme.isEmpty() && text.contains(QLatin1Char('/')))) {
        return failure(QStringLiteral("files cannot be imported from the command line: “%1”").arg(text));
    }
    if (scheme.isEmpty()) {
        return failure(QStringLiteral("unknown command “%1”").arg(text));
    }
    for (const QLatin1String own : kSchemes) {
        if (scheme == own) {
            const QUrl url(text, QUrl::StrictMode);
            return url.isValid() ? Result<QUrl>(url) : failure(QStringLiteral("“%1” is not a valid URL").arg(text));
        }
    }
    return failure(QStringLiteral("the scheme of “%1” is not one that the recorder opens").arg(text));
}

/// Reads the options before the command; leaves the rest in arguments.
Result<void> takeOptions(QStringList& arguments, CommandLine& line) {
    const QLatin1String container("--container");
    while (!arguments.isEmpty() && arguments.first().startsWith(QLatin1Char('-'))) {
        const QString option = arguments.takeFirst();
        if (isHelp(option)) {
            line.command = Command::Help;
            return {};
        }
        if (option == QLatin1String("--version")) {
            line.command = Command::Version;
            return {};
        }
        if (option == QLatin1String("--")) {
            return {};
        }
        if (option == container && !arguments.isEmpty()) {
            line.container = arguments.takeFirst();
        } else if (option.startsWith(container + QLatin1Char('='))) {
            line.container = option.mid(container.size() + 1);
        } else if (option != container) {
            return failure(QStringLiteral("unknown option “%1”").arg(option));
        }
        if (line.container.isEmpty()) {
            return failure(QStringLiteral("--container needs a folder"));
        }
        if (line.container.contains(QChar(QChar::ReplacementCharacter))) {
            return failure(QStringLiteral("the name of the container is not text: “%1”").arg(line.container));
        }
    }
    return {};
}

Result<CommandLine> withUrls(CommandLine line, const QStringList& texts) {
    line.command = Command::Url;
    for (const QString& text : texts) {
        const auto url = ownUrl(text);
        if (!url) {
            return tl::unexpected(url.error());
        }
        line.urls.append(*url);
    }
    return line;
}

Result<CommandLine> withArguments(CommandLine line, const Word& word, QStringList arguments) {
    line.command = word.command;
    if (arguments.size() == 1 && isHelp(arguments.first())) {
        line.command = Command::Help;
        return line;
    }
    if (word.command == Command::List && arguments.removeOne(QLatin1String("--json"))) {
        line.json = true;
    }
    if (arguments.size() < word.arguments) {
        return failure(QStringLiteral("“%1” needs %2").arg(word.name, word.needs));
    }
    if (arguments.size() > word.arguments) {
        return failure(QStringLiteral("“%1” does not take “%2”").arg(QString(word.name), arguments.at(word.arguments)));
    }
    if (word.arguments > 0) {
        line.key = arguments.at(0);
        line.value = arguments.value(1);
        if (line.key.isEmpty()) {
            return failure(QStringLiteral("the key of a setting is not empty"));
        }
    }
    return line;
}

/// A number that an option names, from least to most.
Result<double> numberOf(const QString& option, const QString& text, double least, double most) {
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber || !(number >= least && number <= most)) {
        return failure(
            QStringLiteral("%1 needs a number from %2 to %3, not “%4”").arg(option).arg(least).arg(most).arg(text));
    }
    return number;
}

/// Takes the value that follows an option of "waveform" or "trim".
Result<void> takeValue(CommandLine& line, const QString& option, const QByteArray& value) {
    constexpr double kMostPoints = 8192;
    constexpr double kMostSeconds = 1e9;
    const QString text = QString::fromLocal8Bit(value);
    if (option == QLatin1String("--png") || option == QLatin1String("--out")) {
        line.output = value;
        return value.isEmpty() ? failure(QStringLiteral("%1 needs a file").arg(option)) : Result<void>();
    }
    const bool isPoints = option == QLatin1String("--points");
    const auto number = numberOf(option, text, isPoints ? 1 : 0, isPoints ? kMostPoints : kMostSeconds);
    if (!number) {
        return tl::unexpected(number.error());
    }
    if (isPoints) {
        line.points = static_cast<int>(*number);
        if (static_cast<double>(line.points) != *number) {
            return failure(QStringLiteral("--points needs a whole number, not “%1”").arg(text));
        }
    } else {
        (option == QLatin1String("--from") ? line.from : line.to) = *number;
    }
    return {};
}

/// "waveform FILE" and "trim FILE", their options before or behind the file.
Result<CommandLine> withFile(CommandLine line, const Word& word, const QList<QByteArray>& arguments) {
    line.command = word.command;
    const QStringList valued =
        word.command == Command::Trim
            ? QStringList{QStringLiteral("--from"), QStringLiteral("--to"), QStringLiteral("--out")}
            : QStringList{QStringLiteral("--points"), QStringLiteral("--png")};
    QStringList given;
    bool onlyFiles = false;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString text = QString::fromLocal8Bit(arguments.at(i));
        if (!onlyFiles && isHelp(text)) {
            line.command = Command::Help;
            return line;
        }
        if (!onlyFiles && text == QLatin1String("--")) {
            onlyFiles = true;
        } else if (!onlyFiles && valued.contains(text)) {
            if (++i == arguments.size()) {
                return failure(QStringLiteral("%1 needs a value").arg(text));
            }
            if (const auto taken = takeValue(line, text, arguments.at(i)); !taken) {
                return tl::unexpected(taken.error());
            }
            given.append(text);
        } else if (!onlyFiles && text == QLatin1String("--json") && word.command == Command::Waveform) {
            line.json = true;
        } else if ((!onlyFiles && text.startsWith(QLatin1Char('-')) && text.size() > 1) || !line.file.isEmpty()) {
            return failure(QStringLiteral("“%1” does not take “%2”").arg(QString(word.name), text));
        } else {
            line.file = arguments.at(i);
        }
    }
    if (line.file.isEmpty()) {
        return failure(QStringLiteral("“%1” needs %2").arg(word.name, word.needs));
    }
    if (word.command == Command::Trim && !(given.contains(valued.at(0)) && given.contains(valued.at(1)))) {
        return failure(QStringLiteral("“trim” needs --from and --to"));
    }
    if (line.json && !line.output.isEmpty()) {
        return failure(QStringLiteral("“waveform” prints or draws, not both"));
    }
    return line;
}

}  // namespace

Result<CommandLine> parseCommandLine(const QList<QByteArray>& arguments) {
    CommandLine line;
    QStringList rest;
    for (const QByteArray& argument : arguments) {
        rest.append(QString::fromLocal8Bit(argument));
    }
    if (const auto taken = takeOptions(rest, line); !taken) {
        return tl::unexpected(taken.error());
    }
    if (rest.isEmpty() || line.command != Command::Open) {
        return line;
    }
    for (const Word& word : kWords) {
        if (rest.first() == word.name) {
            if (word.command == Command::Waveform || word.command == Command::Trim) {
                return withFile(std::move(line), word, arguments.mid(arguments.size() - rest.size() + 1));
            }
            return withArguments(std::move(line), word, rest.mid(1));
        }
    }
    if (rest.first() == QLatin1String("import")) {
        return failure(QStringLiteral("files cannot be imported from the command line"));
    }
    return withUrls(std::move(line), rest);
}

QString helpText() {
    return QStringLiteral(
        "Usage: tavi [--container DIR] [COMMAND]\n"
        "\n"
        "Record sound from the microphone, and look after the recordings.\n"
        "\n"
        "Commands that go to the running program, or start it:\n"
        "  (none)           show the window\n"
        "  record           start recording; pause or resume the one that is running\n"
        "  stop             stop recording and save\n"
        "  library          show the library\n"
        "  URL...           open URLs, as a companion does: TaviRecordStart: is record,\n"
        "                   TaviRecordStop: is stop, TaviliteConnect: is library\n"
        "\n"
        "Commands that print and end:\n"
        "  get KEY          print a setting\n"
        "  set KEY VALUE    change a setting; yes or no is true or false\n"
        "  list [--json]    print the recordings, one a line or as JSON\n"
        "  waveform FILE [--points N] [--json | --png OUT]\n"
        "                   print the loudness of a sound file in N points, 1024 if not\n"
        "                   said otherwise, a line each or as JSON, or draw it\n"
        "  trim FILE --from SECONDS --to SECONDS [--out FILE]\n"
        "                   copy a part of a recording into a new one: among the\n"
        "                   recordings, or where --out says\n"
        "\n"
        "Options, before the command:\n"
        "  --container DIR  store everything below DIR: recordings, settings, caches.\n"
        "                   Such a program runs beside the one without a container.\n"
        "  -h, --help       print this text\n"
        "  --version        print the version\n"
        "\n"
        "Exit status: 0 when it worked, 1 when it failed, 2 when the command line is wrong.\n"
        "\n"
        "Examples:\n"
        "  tavi record                         start recording, or pause and resume\n"
        "  tavi stop                           save what has been recorded\n"
        "  tavi set AudioFileType wav          make the next recordings WAVE files\n"
        "  tavi --container /tmp/try list      print the recordings below /tmp/try\n");
}

QString versionText() {
    return QStringLiteral("tavi " TAVI_VERSION "\n");
}

}  // namespace tavi
