#include <gmock/gmock.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <fstream>

#include "app/cli/CommandLine.h"
#include "app/cli/CommandLock.h"
#include "app/cli/OpenFiles.h"
#include "files/LockedFolder.h"
#include "files/PathText.h"
#include "library/RecordingEntry.h"
#include "support/FakeAudioFileRepair.h"
#include "support/FakeServices.h"

namespace tavi::test {

namespace {

/// Words of a command line divided by "|", and what the command then prints, or "! " and why it fails.
struct Said {
    QByteArray words;
    std::string printed;
};

struct CommandsTest : ::testing::Test, FakeServices {
    std::string tavi(const QByteArray& words) {
        const auto line = parseCommandLine(words.split('|'));
        const auto printed = line.and_then(
            [this](const CommandLine& parsed) { return std::get<PrintingCommand>(parsed.command)(services); });
        if (!printed) {
            return "! " + printed.error().text.toStdString();
        }
        const QString failures = printed->failures.join(QLatin1String("\n! "));
        return printed->text.toStdString() + (failures.isEmpty() ? "" : "! " + failures.toStdString());
    }

    /// One after the other: what a command leaves behind is there for the next.
    void expectSaid(const std::vector<Said>& dialogue) {
        for (const Said& said : dialogue) {
            EXPECT_EQ(tavi(said.words), said.printed) << said.words.constData();
        }
    }

    /// A sound file, for whoever opens it: the samples at 10 Hz.
    QByteArray addSound(const char* name, const std::vector<std::vector<float>>& planes) {
        const std::filesystem::path path = container.addDocument(name, "sound");
        const auto sound = std::make_shared<FakeSound>();
        sound->rate = 10.0;
        sound->planes = planes;
        files.sounds[path] = sound;
        const auto frames = static_cast<std::int64_t>(planes.empty() ? 0 : planes[0].size());
        assets.files[name] = {{frames, 10}, 2, {}};
        return QByteArray::fromStdString(path.native());
    }

    FakeUserDefaults shared;
    FakeAudioFileRepair repair;
    QStringList prepared;
    FakeTrash trash{container.root() / "trash"};
    CloudCommands cloudCommands{
        .prepare =
            [this](const CloudAccount& account, const QString& password) {
                prepared.push_back(account.token() + QLatin1Char(' ') + password);
                return Result<void>();
            },
        .forget = [this](const CloudAccount& account) { prepared.push_back(QLatin1String("forgot ") + account.user); },
        .sync = [](const CloudAccount&, std::optional<bool> areVanishedRemoved) -> Result<void> {
            return areVanishedRemoved ? Result<void>() : failure(QStringLiteral("not in step"));
        },
        .look =
            [](const CloudAccount&) {
                return CloudOverview{{{"a", {}},
                                      {"b\n (conflict D)", {CloudFile::State::Waiting, true}},
                                      {"c", {CloudFile::State::OnlyThere}}},
                                     QDateTime::fromSecsSinceEpoch(0)};
            },
        .askForPassword = [] { return QStringLiteral("secret"); }};
    CommandServices services{container, {defaults, shared}, runLoop,       durations,
                             files,     converters,         assets,        repair,
                             trash,     refreshes,          notifications, cloudCommands};
};

}  // namespace

TEST_F(CommandsTest, TheCloudIsAFolderThatExistsOrAServer) {
    const std::filesystem::path folder = std::filesystem::canonical(container.cachesPath());
    expectSaid({{"cloud|status", "no cloud\n"}, {"cloud|connect|/nowhere", "! no folder: /nowhere"}});
    EXPECT_TRUE(prepared.empty());
    const QByteArray connect = "cloud|connect|" + QByteArray::fromStdString(folder.native());
    const std::string counts = "\n1 in the cloud, 1 waiting, 1 only there, 1 conflict copies\nin step at ";
    const std::string since = QDateTime::fromSecsSinceEpoch(0).toString(Qt::ISODate).toStdString() + '\n';
    expectSaid(
        {{connect, folder.native() + counts + since},
         {"get|Iclound", "false\n"},
         {"set|Iclound|YES", ""},
         {"cloud|status", folder.native() + " (off)" + counts + since},
         {"cloud|status|--json",
          R"({"conflicts":1,"lastSync":"1970-01-01T00:00:00Z","on":false,"onlyThere":1,"place":")" + folder.native() +
              R"(","there":1,"waiting":1})"
              "\n"},
         {"cloud|list", "a\tthere\nb? (conflict D)\twaiting, conflict\nc\tonly there\n"},
         {"cloud|disconnect", "no cloud\n"},
         {"cloud|connect|https://h/f|--user|u", "https://h/f/" + counts + since},
         {"cloud|sync", "! not in step"},
         {"cloud|sync|--remove-vanished", ""},
         {"cloud|disconnect", "no cloud\n"},
         {"cloud|list", "! no cloud"}});
    EXPECT_EQ(prepared, QStringList({QLatin1Char('@') + pathText(folder) + QLatin1Char(' '), QStringLiteral("forgot "),
                                     QStringLiteral("u@https://h/f/ secret"), QStringLiteral("forgot u")}));
    EXPECT_TRUE(existsAt(folder)) << "what is in it stays";
}

TEST_F(CommandsTest, TheLockGuardsAllButSoundFilesElsewhere) {
    const std::string mine = addSound("mine.wav", {}).toStdString();
    const QTemporaryDir elsewhere;
    const std::string link = elsewhere.path().toStdString() + "/link.wav";
    std::filesystem::create_symlink(mine, link);
    const std::pair<std::string, bool> rows[] = {
        {"list", true},
        {"set|Sort|1", true},
        {"waveform|" + mine, true},
        {"trim|--from|0|--to|1|" + mine, true},
        {"waveform|" + link, true},
        {"waveform|" + container.unsavedPath().string() + "/a/../b.wav", true},
        {"waveform|" + container.unsavedPath().string() + "/../Cloud/1/b.wav", true},
        {"waveform|" + elsewhere.path().toStdString() + "/a.wav", false},
        {"trim|--from|0|--to|1|a.wav", false},
        {"waveform|" + container.documentsPath().string() + "2/a.wav", false}};
    for (const auto& [words, isGuarded] : rows) {
        const auto line = parseCommandLine(QByteArray::fromStdString(words).split('|'));
        EXPECT_EQ(isGuardedByLock(line.value(), container), isGuarded) << words;
    }
}

TEST(PassLock, AsksTheRunningProgramAndElseForThePasscode) {
    struct Row {
        bool isProtectionOn;
        std::optional<bool> isInstanceLocked;
        std::optional<QString> typed;
        const char* answer;
    };
    const Row rows[] = {{false, true, {}, ""},
                        {true, true, QStringLiteral("0042"), "locked: enter the passcode in the recorder's window"},
                        {true, false, {}, ""},
                        {true, {}, {}, "locked: the passcode has to be entered on a terminal"},
                        {true, {}, QStringLiteral("1"), "locked: no"},
                        {true, {}, QStringLiteral("0042"), ""}};
    for (const Row& row : rows) {
        const auto passed = passLock(
            {[&] { return row.isProtectionOn; }, [&] { return row.isInstanceLocked; }, [&] { return row.typed; },
             [](const QString& text) { return text == QStringLiteral("0042") ? QString() : QStringLiteral("no"); }});
        EXPECT_EQ(passed ? QString() : passed.error().text, QString::fromUtf8(row.answer));
    }
}

TEST_F(CommandsTest, SettingsAreReadAndWrittenByTheirKind) {
    const std::string noSeconds = " is a number of seconds from 0 to 60, not “";
    // The first start comes after a first setting and leaves it alone.
    expectSaid({{"set|AudioFileType|caf", ""},
                {"get|AudioQualityType", "Medium\n"},
                {"set|AudioFileType|CAF", "! AudioFileType is m4a, wav, aac, mp4 or caf, not “CAF”"},
                {"get|QuickMail", "true\n"},
                {"set|QuickMail|NO", ""},
                {"get|QuickMail", "false\n"},
                {"set|QuickMail|Yes", ""},
                {"set|QuickMail|maybe", "! QuickMail is true or false, not “maybe”"},
                {"get|QuickMail", "true\n"},
                {"set|AudioQualityType|Größe", "! AudioQualityType is Low, Medium, High, not “Größe”"},
                {"set|AudioQualityType|Low", ""},
                {"set|PasscodeProtectionEnabled|NO", "! “PasscodeProtectionEnabled” is not a setting"},
                {"set|AudioQualityType|High", ""},
                {"get|AudioQualityType", "High\n"},
                {"get|Sort", "1\n"},
                {"set|Sort|6", ""},
                {"set|Sort|7", "! Sort is a number from 0 to 6, not “7”"},
                {"set|Sort|2x", "! Sort is a number from 0 to 6, not “2x”"},
                {"set|Sort|0", ""},
                {"get|Sort", "0\n"},
                {"get|ForwardSong", "! ForwardSong has no value"},
                {"set|ForwardSong|60", ""},
                {"set|ForwardSong|60.5", "! ForwardSong" + noSeconds + "60.5”"},
                {"get|ForwardSong", "60\n"},
                {"set|RewindSong|7.5", ""},
                {"set|RewindSong|nan", "! RewindSong" + noSeconds + "nan”"},
                {"get|RewindSong", "7.5\n"},
                {"set|ThemeColor|list", ""},
                {"get|ThemeColor", "list\n"},
                {"set|ThemeColor|", ""},
                {"get|ThemeColor", "\n"},
                {"set|AppStart|1", ""},
                {"get|quickmail", "! “quickmail” is not a setting"},
                {"set||x", "! “” is not a setting"}});
    // As somebody typed it into the file.
    defaults.setObject(QStringLiteral("0"), settingskey::kIclound);
    expectSaid({{"get|Iclound", "false\n"}});
    EXPECT_TRUE(shared.boolForKey(settingskey::kAppStart));
    EXPECT_FALSE(defaults.objectForKey(settingskey::kAppStart).isValid());
    EXPECT_EQ(shared.writes.last(), QStringLiteral("synchronize"));
    formatHold.setHeld(true);
    const std::string held = "! a recording is running, whose type and quality stay until it is saved";
    expectSaid({{"set|AudioFileType|wav", held},
                {"set|AudioQualityType|Low", held},
                {"get|AudioFileType", "caf\n"},
                {"get|AudioQualityType", "High\n"},
                {"set|Sort|3", ""}});
    formatHold.setHeld(false);
    expectSaid({{"set|AudioFileType|wav", ""}, {"get|AudioFileType", "wav\n"}});
    defaults.canWrite = false;
    expectSaid({{"set|Sort|2", "! the settings cannot be written"}});
}

TEST_F(CommandsTest, ListsTheRecordingsInTheOrderThatIsSet) {
    container.addDocument("b.wav", QByteArray(2048, 'x'));
    // What a terminal acts on, among it the order of what follows.
    container.addDocument("a\nc\t\x1b\u202e\u0085.m4a", QByteArray(3 << 20, 'x'));
    for (const auto& entry : std::filesystem::directory_iterator(container.documentsPath())) {
        QFile file(entry.path());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite) &&
                    file.setFileTime(runLoop.clock().now(), QFileDevice::FileModificationTime));
    }
    durations.seconds["b.wav"] = 3725.0;
    const std::string a = "a?c????.m4a\t3.0 MB\t00:00\t05 Mar,2024 | 02:03 PM\n";
    const std::string b = "b.wav\t2 KB\t62:05\t05 Mar,2024 | 02:03 PM\n";
    expectSaid({{"list", b + a}, {"set|Sort|2", ""}, {"list", a + b}});
    const std::string json = tavi("list|--json");
    EXPECT_THAT(json, ::testing::HasSubstr("\\u001b\\u202e\\u0085"));
    const QJsonArray array = QJsonDocument::fromJson(QByteArray::fromStdString(json)).array();
    ASSERT_EQ(array.size(), 2);
    EXPECT_EQ(array[0][entrykey::kFilename].toString(), QStringLiteral("a\nc\t\x1b\u202e\u0085.m4a"));
    EXPECT_EQ(QJsonDocument(array[1].toObject()).toJson(QJsonDocument::Compact),
              R"({"duration":"62:05","extension":"wav","filename":"b.wav","filesize":"2 KB","moddate":"05 Mar,2024 | )"
              R"(02:03 PM","size":"0.001953"})");
}

TEST_F(CommandsTest, PrintsOrDrawsAWaveform) {
    const QByteArray file = addSound("a b.wav", {{0.5F, 0.5F, 0.25F, 0.25F}, {0, 0, 1, 1}});
    const QByteArray wave = "waveform|" + file + "|--points|2";
    expectSaid({{wave, "0.5\t0\n0.25\t1\n"},
                {wave + "|--json", "{\"channels\":2,\"points\":2,\"data\":[[0.5,0.25],[0,1]]}\n"}});
    const QByteArray picture = QByteArray::fromStdString(container.root() / "wave.png");
    EXPECT_EQ(tavi(wave + "|--png|" + picture), "");
    QFile drawn(container.root() / "wave.png");
    ASSERT_TRUE(drawn.open(QIODevice::ReadOnly));
    EXPECT_TRUE(drawn.readAll().startsWith("\x89PNG"));
    std::filesystem::create_symlink(file.toStdString(), container.root() / "link");
    std::filesystem::create_hard_link(file.toStdString(), container.root() / "second name");
    std::filesystem::create_symlink("gone", container.root() / "dangling");
    for (const char* taken : {"wave.png", "link", "second name", "dangling", "Documents/a b.wav"}) {
        const std::string path = container.root() / taken;
        EXPECT_EQ(tavi(wave + "|--png|" + path.c_str()), "! " + path + ": File exists");
    }
    EXPECT_EQ(std::filesystem::file_size(file.toStdString()), 5U);
    EXPECT_THAT(tavi(wave + "|--png|" + picture + "/x"), ::testing::StartsWith("! " + picture.toStdString() + "/x: "));
}

TEST_F(CommandsTest, SaysWhyASoundFileCannotBeUsed) {
    const QByteArray noSound = addSound("text", {});
    const QByteArray empty = addSound("empty", {{}});
    for (const QByteArray& command : {QByteArray("waveform|"), QByteArray("trim|--from|0|--to|1|")}) {
        EXPECT_EQ(tavi(command + "/absent"), "! /absent: there is no such file");
        EXPECT_EQ(tavi(command + noSound), "! " + noSound.toStdString() + ": it is no sound file that can be read");
    }
    EXPECT_EQ(tavi("waveform|" + empty), "! " + empty.toStdString() + ": it holds no sound");
    files.failingOpens = 1;
    const std::pair<AudioStatus, const char*> reasons[] = {{kAudioFilePermissionsError, ": it may not be read"},
                                                           {kAudioFileInvalidFileError, ": it is damaged"},
                                                           {kAudioFileUnspecifiedError, ": it cannot be read"}};
    for (const auto& [status, reason] : reasons) {
        files.openFailure = status;
        EXPECT_EQ(tavi("waveform|" + empty), "! " + empty.toStdString() + reason);
    }
}

TEST_F(CommandsTest, TrimsIntoAFreeNameAndReplacesNothing) {
    const QByteArray file = addSound("talk.WAV", {std::vector(50, 0.5F)});
    const std::string first = container.documentsPath() / "Trim_2024_Mar_05_14_03_59";
    const std::string why = "! " + file.toStdString() + ": ";
    expectSaid(
        {{"trim|" + file + "|--from|0.5|--to|2", first + ".WAV\n"},
         {"trim|--from=4.5|--to=1e9|" + file, first + "_2.WAV\n"},
         {"trim|" + file + "|--from|1|--to|2|--out|" + first.c_str() + ".WAV", "! " + first + ".WAV: File exists"},
         {"trim|" + file + "|--from|1|--to|2|--out|" + file + ".m4a",
          "! " + file.toStdString() + ".m4a: a part of " + file.toStdString() + " is of another kind"},
         {"trim|" + file + "|--from|1|--to|2|--out|" + file + ".wav", file.toStdString() + ".wav\n"},
         {"trim|" + file + "|--from|2|--to|2", why + "--to must be later than --from"},
         {"trim|" + file + "|--from|5|--to|6", why + "it is only 5 s long"}});
    EXPECT_EQ(assets.sessions.size(), 4U);
    const FakeAssetExportSession::State& made = *assets.sessions.front();
    EXPECT_EQ(made.outputFileType, AssetFileType::Wave);
    EXPECT_EQ(made.timeRange->start.seconds(), 0.5);
    EXPECT_EQ(made.timeRange->duration.seconds(), 1.5);
}

TEST_F(CommandsTest, ImportsCopiesAndSaysWhyNot) {
    int changes = 0;
    QObject::connect(&notifications, &NotificationCenter::posted, &notifications, [&changes] { ++changes; });
    const std::filesystem::path outside = container.root() / "a\n\xff";
    std::ofstream(outside) << "sound";
    const QByteArray file = QByteArray::fromStdString(outside);
    const std::string shown = container.root().native() + "/a?\uFFFD";
    const std::string taken = "! " + shown + ": there is a recording of that name already";
    const std::string folder = "! " + container.root().native() + ": it is a folder";
    expectSaid({{"import|" + file + "|/none|" + QByteArray::fromStdString(container.root()),
                 container.documentsPath().native() + "/a?\uFFFD\n! /none: No such file or directory\n" + folder},
                {"import|" + file, taken}});
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(std::filesystem::file_size(container.documentsPath() / outside.filename()), 5U);

    // What is to be shown in the window, too, goes on to it; a wrong word does not.
    const QByteArray given[] = {"fly", "/none", file, "fly|" + file};
    const std::pair<std::string, int> expected[] = {
        {"there is no command and no file “fly”", kUsageExitCode},
        {"/none: No such file or directory", EXIT_FAILURE},
        {taken.substr(2), EXIT_FAILURE},
        {"there is no command and no file “fly”\n" + taken.substr(2), kUsageExitCode}};
    for (int i = 0; i < 4; ++i) {
        auto request = std::get<ProgramRequest>(parseCommandLine(given[i].split('|'))->command);
        const OpenFiles opened = resolveFiles(request, container);
        EXPECT_EQ((opened.failures + opened.refusals).join(QLatin1Char('\n')).toStdString(), expected[i].first);
        EXPECT_EQ(opened.exitCode, expected[i].second);
        EXPECT_EQ(request.urls.size(), i < 2 ? 0 : 1);
        EXPECT_EQ(opened.refusals.size(), request.urls.size()) << "it tells a name before the lock is passed";
    }
}

TEST_F(CommandsTest, RenamesDeletesAndExportsByTheFilesNames) {
    int changes = 0;
    QObject::connect(&notifications, &NotificationCenter::posted, &notifications, [&changes] { ++changes; });
    const std::string documents = container.documentsPath().native() + '/';
    const std::string root = container.root().native() + '/';
    std::filesystem::create_directories(root + "trash");
    for (const char* name : {"a.m4a", "b.m4a", "c\xff.m4a", "-d", "Inbox"}) {
        std::ofstream(documents + name) << "sound";
    }
    std::filesystem::create_directory(documents + "folder");
    std::ofstream(documents + "folder/x") << "x";
    const std::string taken = ": there is a recording of that name already";
    const std::string none = ": that is no name of a recording";
    const QByteArray to = QByteArray::fromStdString(root);
    expectSaid({{"rename|a.m4a|b", "! " + documents + "b.m4a" + taken},
                {"rename|a.m4a|a", "! " + documents + "a.m4a" + taken},
                {"rename|a.m4a|a.m4a", documents + "a.m4a\n"},
                {"rename|a.m4a|x/y", "! x/y: a name holds no “/”"},
                {"rename|a.m4a|", "! a.m4a: the new name is empty"},
                {"rename|nobody|x", "! nobody: there is no such recording"},
                {"rename|Inbox|x", "! Inbox" + none},
                {"rename|../a|x", "! ../a" + none},
                {"rename|..|x", "! .." + none},
                {"rename|a.m4a|" + QByteArray(252, 'x'),
                 "! " + documents + std::string(252, 'x') + ".m4a: File name too long"},
                {"export|a.m4a|" + to + "none/x", "! " + root + "none/x: No such file or directory"},
                {"export|folder|" + to + "x", "! " + documents + "folder: Is a directory"}});
    EXPECT_EQ(changes, 0);
    expectSaid({{"rename|c\xff.m4a|e\xfe", documents + "e\uFFFD.m4a\n"},
                {"rename|a.m4a|t\n.m4a", documents + "t?.m4a\n"},
                {"export|t\n.m4a|" + to, root + "t?.m4a\n"},
                {"export|t\n.m4a|" + to, "! " + root + "t?.m4a: File exists"},
                {"export|e\xfe.m4a|" + to + "f\xfe", root + "f\uFFFD\n"}});
    EXPECT_EQ(std::filesystem::file_size(root + "t\n.m4a") + std::filesystem::file_size(root + "f\xfe"), 10U);
    EXPECT_EQ(changes, 4);

    expectSaid({{"delete|e\xfe.m4a|nobody|folder", "! nobody: there is no such recording"},
                {"delete|--permanently|--|-d", ""}});
    EXPECT_TRUE(std::filesystem::exists(root + "trash/e\xfe.m4a") && std::filesystem::exists(root + "trash/folder/x"));
    EXPECT_FALSE(std::filesystem::exists(documents + "-d") || std::filesystem::exists(root + "trash/-d"));
    EXPECT_EQ(changes, 6);
    trash.isThere = false;
    expectSaid({{"delete|b.m4a", "! b.m4a: the trash does not take it (no trash); --permanently deletes it"},
                {"delete|--permanently|b.m4a|t\n.m4a|..", "! .." + none}});
    EXPECT_EQ(changes, 7);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(documents), {}), 1);
}

TEST_F(CommandsTest, RecoverSaysWhatBecameOfEach) {
    const auto running = LockedFolder::create(container.unsavedPath(), "running");
    const std::string unsaved = container.unsavedPath().native();
    const auto add = [&unsaved](const char* name, const char* sound) {
        std::filesystem::create_directory(unsaved + name);
        std::ofstream(unsaved + name + "/vexmosounds.caf") << sound;
    };
    add("/a", "sound");
    add("/empty", "");
    const std::string inUse = "in use: " + unsaved + "/running\n";
    const std::string file = unsaved + "/b/vexmosounds.caf";
    expectSaid(
        {{"recover", "recovered: " + container.documentsPath().native() +
                         "/Recovered_a.caf\nwithout sound, removed: " + unsaved + "/empty/vexmosounds.caf\n" + inUse},
         {"recover", inUse}});
    add("/b", "sound");
    repair.answer = failure(QStringLiteral("damaged"));
    expectSaid({{"recover",
                 "! not all could be recovered\nkept: " + file + ": damaged\n" + inUse.substr(0, inUse.size() - 1)}});
}

}  // namespace tavi::test
