#include "app/cli/CommandLine.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <QRegularExpression>
#include <algorithm>
#include <memory>
#include <type_traits>
#include <utility>

#include "app/cli/Cloud.h"
#include "app/cli/Get.h"
#include "app/cli/Import.h"
#include "app/cli/List.h"
#include "app/cli/Recordings.h"
#include "app/cli/Recover.h"
#include "app/cli/Set.h"
#include "app/cli/Trim.h"
#include "app/cli/Waveform.h"
#include "files/FileUri.h"
#include "platform/Application.h"

namespace tavi {

namespace {

constexpr const char* kFooter =
    "tavi COMMAND --help says what a command takes.\n"
    "\n"
    "Exit status: 0 when it worked, 1 when it failed, 2 when the command line is wrong,\n"
    "3 when the recorder is locked.\n"
    "\n"
    "Examples:\n"
    "  tavi record                         start recording, or pause and resume\n"
    "  tavi stop                           save what has been recorded\n"
    "  tavi import talk.wav                copy a file among the recordings\n"
    "  tavi set AudioFileType wav          make the next recordings WAVE files\n"
    "  tavi --container /tmp/try list      print the recordings below /tmp/try";

/// Adds a word that is no command to what the program is to open: a URL, or else a file's name.
Result<void> addOpened(ProgramRequest& request, const std::string& word) {
    static const QRegularExpression kScheme(QStringLiteral("^([A-Za-z][A-Za-z0-9+.-]*):"));
    const QString text = QString::fromLocal8Bit(word);
    const QString scheme = kScheme.match(text).captured(1).toLower();
    if (scheme.isEmpty()) {
        request.files.emplace_back(word);
        return {};
    }
    const QUrl url(text, QUrl::StrictMode);
    if (scheme == QLatin1String("file")) {
        const auto file = pathOfFileUri(url.toEncoded().toStdString());
        if (!file) {
            return failure(QStringLiteral("“%1” is no file on this machine").arg(text));
        }
        request.files.push_back(*file);
    } else if (std::find(kOwnSchemes.begin(), kOwnSchemes.end(), scheme) == kOwnSchemes.end()) {
        return failure(QStringLiteral("the scheme of “%1” is not one that the recorder opens").arg(text));
    } else if (!url.isValid()) {
        return failure(QStringLiteral("“%1” is not a valid URL").arg(text));
    } else {
        request.urls.append(url);
    }
    return {};
}

/// What commands return, in the one form.
Result<CommandOutput> outputOf(Result<CommandOutput> output) {
    return output;
}
Result<CommandOutput> outputOf(const Result<QByteArray>& text) {
    return text.map([](const QByteArray& printed) { return CommandOutput{.text = printed}; });
}

/// The words and options of the program, and what they come to.
class Grammar {
public:
    Grammar();

    Result<CommandLine> parse(std::vector<std::string> arguments);

private:
    void addRequest(const char* name, const char* summary, const ProgramRequest& request);
    /// The command's words and options go into what it returns; the library fills them in before the command runs.
    template <class Options>
    std::pair<CLI::App*, std::shared_ptr<Options>> addPrinting(const char* name, const char* summary) {
        return addPrinting<Options>(m_app, name, summary);
    }
    template <class Options>
    std::pair<CLI::App*, std::shared_ptr<Options>> addPrinting(CLI::App& parent, const char* name, const char* summary);
    void addGet();
    void addSet();
    void addList();
    void addWaveform();
    void addTrim();
    void addImport();
    void addRename();
    void addDelete();
    void addExport();
    void addCloud();
    Result<CommandLine> finish();

    CLI::App m_app{"Record sound from the microphone, and look after the recordings.\n", "tavi"};
    std::string m_container;
    std::string m_channel;
    std::vector<std::string> m_words;
    CommandLine m_line;
};

/// Takes a length of time. (The library's own range lets through what is no number, and tells its limits in digits.)
CLI::Validator seconds() {
    constexpr double kMost = 1e9;
    const auto check = [](const std::string& text) {
        double number = 0.0;
        const bool isNumber = CLI::detail::lexical_cast(text, number);
        return isNumber && number >= 0.0 && number <= kMost ? std::string() : "“" + text + "” is no number of seconds";
    };
    return CLI::Validator(check, "");
}

/// Takes the name of a folder for the settings, whose file has to have a name that is text. An option or a command in
/// its place is a folder that was forgotten; so is no name at all, which would mean the user's own recordings.
CLI::Validator folderName(const CLI::App& app) {
    const auto check = [&app](const std::string& name) {
        if (name.empty()) {
            return std::string("the name is empty");
        }
        const auto isNamed = [&name](const CLI::App* command) { return command->get_name() == name; };
        if (name.starts_with('-') || !app.get_subcommands(isNamed).empty()) {
            return "no folder before “" + name + "”; one of that name is ./" + name;
        }
        const bool isText = !QString::fromLocal8Bit(name).contains(QChar(QChar::ReplacementCharacter));
        return isText ? std::string() : "the name is not text: “" + name + "”";
    };
    return CLI::Validator(check, "");
}

Grammar::Grammar() {
    m_app.require_subcommand(0, 1);
    m_app.footer(kFooter);
    m_app.get_formatter()->label("SUBCOMMAND", "COMMAND");
    m_app.get_formatter()->label("TEXT", "");
    m_app.get_formatter()->label("REQUIRED", "");
    m_app.get_formatter()->label("Positionals", "Arguments");
    m_app.set_help_flag("-h,--help", "print this text");
    m_app.set_version_flag("--version", "tavi " TAVI_VERSION, "print the version");
    m_app
        .add_option("--container", m_container,
                    "store everything below DIR: recordings, settings, caches.\n"
                    "Such a program runs beside the one without a container.")
        ->type_name("DIR")
        ->check(folderName(m_app));
    m_app
        .add_flag("--companion-channel{file}", m_channel,
                  "take messages of companions, which travel by\nfile, coordinated, context, transfer or message")
        ->check(CLI::IsMember(std::vector<std::string>(kTransitingTypeNames.begin(), kTransitingTypeNames.end())));
    m_app.add_option("FILE|URL", m_words,
                     "import sound files in the window; or open URLs, as a companion does:\n"
                     "TaviRecordStart: is record, TaviRecordStop: is stop,\n"
                     "TaviliteConnect: is library. A file whose name is a command's is ./NAME.");
    addRequest("record", "start recording; pause or resume the one that is running", {QStringLiteral("Record"), {}});
    addRequest("stop", "stop recording and save", {{}, {QUrl(QStringLiteral("TaviRecordStop:"))}});
    addRequest("library", "show the library", {QStringLiteral("Recordings"), {}});
    addGet();
    addSet();
    addList();
    addPrinting<RecoverOptions>("recover", "save the recordings that were not saved");
    addImport();
    addWaveform();
    addTrim();
    addRename();
    addDelete();
    addExport();
    addCloud();
    for (CLI::App* command : m_app.get_subcommands({})) {
        command->footer(std::string());
        for (CLI::App* word : command->get_subcommands({})) {
            word->footer(std::string());
        }
    }
}

void Grammar::addRequest(const char* name, const char* summary, const ProgramRequest& request) {
    m_app.add_subcommand(name, summary)
        ->group("Commands that go to the running program, or start it")
        ->callback([this, request] { m_line.command = request; });
}

template <class Options>
std::pair<CLI::App*, std::shared_ptr<Options>> Grammar::addPrinting(CLI::App& parent, const char* name,
                                                                    const char* summary) {
    const auto options = std::make_shared<Options>();
    CLI::App* command = parent.add_subcommand(name, summary);
    command->group("Commands that print and end");
    command->callback([this, options] {
        if constexpr (std::is_same_v<Options, WaveformOptions> || std::is_same_v<Options, TrimOptions>) {
            m_line.soundFile = options->file;
        }
        m_line.command =
            PrintingCommand([options](const CommandServices& services) { return outputOf(run(*options, services)); });
    });
    return {command, options};
}

void Grammar::addGet() {
    const auto [command, options] = addPrinting<GetOptions>("get", "print a setting");
    command->add_option("KEY", options->key, "the setting's name")->required();
}

void Grammar::addSet() {
    const auto [command, options] = addPrinting<SetOptions>("set", "change a setting");
    command->add_option("KEY", options->key, "the setting's name")->required();
    command->add_option("VALUE", options->value, "a text or a number; yes or no is true or false")->required();
}

void Grammar::addList() {
    const auto [command, options] = addPrinting<ListOptions>("list", "print the recordings");
    command->add_flag("--json", options->json, "as JSON instead of a line each");
}

void Grammar::addWaveform() {
    const auto [command, options] =
        addPrinting<WaveformOptions>("waveform", "print or draw the loudness of a sound file");
    command->add_option("FILE", options->file, "the sound file")->required();
    command->add_option("--points", options->points, "how many, 1 to 8192; 1024 if not said otherwise")
        ->type_name("N")
        ->check(CLI::Range(1, 8192));
    CLI::Option* json = command->add_flag("--json", options->json, "as JSON instead of a line a point");
    command->add_option("--png", options->png, "draw a picture instead")->type_name("OUT")->excludes(json);
}

void Grammar::addTrim() {
    const auto [command, options] = addPrinting<TrimOptions>("trim", "copy a part of a recording into a new one");
    command->add_option("FILE", options->file, "the recording")->required();
    command->add_option("--from", options->from, "where the part begins")
        ->type_name("SECONDS")
        ->required()
        ->check(seconds());
    command->add_option("--to", options->to, "where it ends")->type_name("SECONDS")->required()->check(seconds());
    command->add_option("--out", options->out, "the new file; among the recordings if not said otherwise")
        ->type_name("FILE");
}

void Grammar::addImport() {
    const auto [command, options] = addPrinting<ImportOptions>("import", "copy sound files among the recordings");
    command->add_option("FILE", options->files, "the sound files")->required();
}

void Grammar::addRename() {
    const auto [command, options] = addPrinting<RenameOptions>("rename", "give a recording another name");
    command->add_option("NAME", options->name, "the recording, as the list names it")->required();
    command->add_option("NEW", options->newName, "its new name; the extension stays")->required();
}

void Grammar::addDelete() {
    const auto [command, options] = addPrinting<DeleteOptions>("delete", "move recordings to the trash");
    command->add_option("NAME", options->names, "the recordings, as the list names them")->required();
    command->add_flag("--permanently", options->permanently, "delete for good, past the trash");
}

void Grammar::addExport() {
    const auto [command, options] = addPrinting<ExportOptions>("export", "copy a recording to another place");
    command->add_option("NAME", options->name, "the recording, as the list names it")->required();
    command->add_option("TO", options->to, "a new file, or a folder")->required();
}

void Grammar::addCloud() {
    CLI::App* cloud = m_app.add_subcommand("cloud", "say where the cloud is, and ask about it");
    cloud->group("Commands that print and end")->require_subcommand(1);
    const auto [connect, place] = addPrinting<CloudConnectOptions>(
        *cloud, "connect", "keep recordings in a folder that another program syncs,\nor on a WebDAV server");
    connect->add_option("PLACE", place->place, "the folder, or the address of one on a server")->required();
    connect->add_option("--user", place->user, "of the server; the password is asked for")->type_name("NAME");
    connect->add_flag("--in-clear", place->mayBeInClear, "also by http, where others can read password and recordings");
    const auto [sync, answer] = addPrinting<CloudSyncOptions>(*cloud, "sync", "have this machine and the server agree");
    const auto* removes = sync->add_flag("--remove-vanished", answer->removeVanished,
                                         "what is gone from the server all at once goes here, too");
    sync->add_flag("--keep-vanished", answer->keepVanished, "it is sent again")
        ->excludes(const_cast<CLI::Option*>(removes));
    const auto [list, kind] = addPrinting<CloudListOptions>(*cloud, "list", "print what is in the cloud");
    list->add_flag("--json", kind->json, "as JSON");
    addPrinting<CloudDisconnectOptions>(*cloud, "disconnect", "keep recordings on this machine only");
    const auto [status, how] = addPrinting<CloudStatusOptions>(*cloud, "status", "print where the cloud is");
    status->add_flag("--json", how->json, "as JSON");
}

Result<CommandLine> Grammar::parse(std::vector<std::string> arguments) {
    std::reverse(arguments.begin(), arguments.end());
    try {
        m_app.parse(std::move(arguments));
        return finish();
    } catch (const CLI::CallForHelp&) {
        m_line.command = QByteArray::fromStdString(m_app.help());
    } catch (const CLI::CallForVersion& version) {
        m_line.command = QByteArray::fromStdString(version.what()) + '\n';
    } catch (const CLI::ArgumentMismatch& error) {
        const QString text = QString::fromLocal8Bit(error.what());
        const bool isTwice = text.contains(QLatin1String("At Most"));
        return failure((isTwice ? QStringLiteral("%1 is given twice") : QStringLiteral("%1 needs a value"))
                           .arg(text.section(QLatin1Char(':'), 0, 0)));
    } catch (const CLI::ParseError& error) {
        return failure(QString::fromLocal8Bit(error.what()));
    }
    return m_line;
}

Result<CommandLine> Grammar::finish() {
    m_line.container = m_container;
    if (!m_words.empty()) {
        ProgramRequest request;
        for (const std::string& word : m_words) {
            if (const auto added = addOpened(request, word); !added) {
                return tl::unexpected(added.error());
            }
        }
        if (!m_app.get_subcommands().empty()) {
            return failure(QStringLiteral("files or URLs and commands do not go together"));
        }
        m_line.command = request;
    }
    if (!m_channel.empty()) {
        auto* request = std::get_if<ProgramRequest>(&m_line.command);
        if (request == nullptr) {
            return failure(QStringLiteral("--companion-channel is for the program with the window"));
        }
        request->companionChannel = transitingTypeNamed(m_channel);
    }
    return m_line;
}

}  // namespace

Result<CommandLine> parseCommandLine(const QList<QByteArray>& arguments) {
    std::vector<std::string> texts;
    bool isOption = true;
    for (const QByteArray& argument : arguments) {
        isOption = isOption && argument != "--";
        if (isOption && argument.startsWith("--") && argument.endsWith('=')) {
            // The library would take the next argument in the place of the value that is missing here.
            return failure(QStringLiteral("%1 needs a value").arg(QString::fromLocal8Bit(argument)));
        }
        texts.push_back(argument.toStdString());
    }
    return Grammar().parse(std::move(texts));
}

}  // namespace tavi
