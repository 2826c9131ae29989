#include "companion/CompanionLine.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <string>
#include <utility>
#include <vector>

namespace tavi {

namespace {

constexpr const char* kFooter =
    "Without a command it puts an icon into the desktop's status area.\n"
    "\n"
    "Exit status: 0 when it worked, 1 when it failed, 2 when the command line is wrong,\n"
    "3 when the recorder is locked.";

}  // namespace

Result<CompanionLine> parseCompanionLine(const QList<QByteArray>& arguments) {
    CompanionLine line;
    std::string container;
    std::string channel;
    std::string text;
    CLI::App app("Start, pause and stop the recorder, and see what it does.\n", "tavi-companion");
    app.require_subcommand(0, 1);
    app.footer(kFooter);
    app.get_formatter()->label("SUBCOMMAND", "COMMAND");
    app.get_formatter()->label("Subcommands", "Commands");
    app.get_formatter()->label("TEXT", "");
    app.get_formatter()->label("REQUIRED", "");
    app.set_help_flag("-h,--help", "print this text");
    app.set_version_flag("--version", "tavi-companion " TAVI_VERSION, "print the version");
    app.add_option("--container", container, "the recorder that stores everything below DIR")->type_name("DIR");
    app.add_flag("--channel{file}", channel,
                 "speak by messages, to a recorder with --companion-channel of the same way:\n"
                 "file, coordinated, context, transfer or message")
        ->check(CLI::IsMember(std::vector<std::string>(kTransitingTypeNames.begin(), kTransitingTypeNames.end())));
    const auto add = [&app, &line](const char* name, const char* summary, auto task) {
        CLI::App* command = app.add_subcommand(name, summary);
        command->callback([&line, task] { line.task = task; });
        return command;
    };
    add("record", "start recording; pause or resume the one that is running", CompanionCommand::Record);
    add("stop", "stop recording and save", CompanionCommand::Stop);
    add("show", "show the recordings", CompanionCommand::Show);
    add("say", "have the recorder show a text; needs --channel", CompanionCommand::Say)
        ->add_option("WORDS", text, "the text")
        ->required();
    add("listen", "print what the recorder does, a line for each change", CompanionLine::Stay::Listen);
    std::vector<std::string> texts;
    for (const QByteArray& argument : arguments) {
        if (argument.startsWith("--") && argument.endsWith('=')) {
            // The library would take the next argument in the place of the value that is missing here.
            return failure(QStringLiteral("%1 needs a value").arg(QString::fromLocal8Bit(argument)));
        }
        texts.insert(texts.begin(), argument.toStdString());
    }
    try {
        app.parse(std::move(texts));
    } catch (const CLI::CallForHelp&) {
        line.task = QByteArray::fromStdString(app.help());
    } catch (const CLI::CallForVersion& version) {
        line.task = QByteArray::fromStdString(version.what()) + '\n';
    } catch (const CLI::ParseError& error) {
        return failure(QString::fromLocal8Bit(error.what()));
    }
    line.container = container;
    line.text = QString::fromLocal8Bit(text);
    if (!channel.empty()) {
        line.channel = transitingTypeNamed(channel);
    }
    if (line.task == decltype(line.task)(CompanionCommand::Say) && !line.channel) {
        return failure(QStringLiteral("say needs --channel"));
    }
    return line;
}

}  // namespace tavi
