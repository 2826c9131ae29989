#include <gmock/gmock.h>

#include <QDBusPendingCallWatcher>
#include <QFile>
#include <fstream>

#include "adapters/dbus/DBusIdleTimer.h"
#include "adapters/dbus/DBusSessionEnd.h"
#include "adapters/desktop/AppstreamCatalogue.h"
#include "adapters/desktop/DesktopDocumentInteraction.h"
#include "adapters/desktop/DesktopDocumentPicker.h"
#include "adapters/desktop/DesktopMailComposer.h"
#include "adapters/desktop/DesktopUrlOpener.h"
#include "files/FileUri.h"
#include "support/EventLoop.h"
#include "support/FakeDesktop.h"
#include "support/FakeSharing.h"
#include "support/PrivateBus.h"

namespace tavi::test {

namespace {

const QString kPortal = FakeDesktop::portal();
const QString kScreenSaver = FakeDesktop::screenSaver();
const QString kManager = FakeDesktop::sessionManager();

/// A private bus with a desktop on it that has nothing yet.
struct DesktopTest : ::testing::Test {
    /// Waits until everything sent so far has been dealt with on both sides.
    void settle() {
        const QDBusMessage ping =
            QDBusMessage::createMethodCall(m_service.baseService(), QStringLiteral("/"),
                                           QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping"));
        // A question, its answer, what that gives back, and a name that comes or goes in between.
        for (int round = 0; round < 8; ++round) {
            // The watcher is told in the order in which messages are; the call itself knows before.
            bool isAnswered = false;
            const QDBusPendingCallWatcher watcher(m_client.asyncCall(ping));
            QObject::connect(&watcher, &QDBusPendingCallWatcher::finished, [&isAnswered] { isAnswered = true; });
            ASSERT_TRUE(spinUntil([&isAnswered] { return isAnswered; }));
        }
    }
    void own(const QString& name) {
        m_desktop.own(name);
        settle();
    }
    void disown(const QString& name) {
        m_desktop.disown(name);
        settle();
    }

    PrivateBus m_bus;
    QDBusConnection m_service = m_bus.connect();
    QDBusConnection m_client = m_bus.connect();
    FakeDesktop m_desktop{m_service};
};

TEST_F(DesktopTest, ScreenAndSessionAreKeptOnAsLongAsThatIsWanted) {
    const struct {
        bool isScreen;
        QStringList names;
        quint32 flags;
    } cases[] = {{true, {kPortal, kScreenSaver}, 8}, {true, {kScreenSaver}, 0}, {true, {}, 0},
                 {false, {kPortal, kManager}, 1},    {false, {kManager}, 1},    {false, {}, 0}};
    for (const auto& row : cases) {
        const bool isScreen = row.isScreen;
        const QStringList& names = row.names;
        SCOPED_TRACE(::testing::Message() << isScreen << names.size());
        m_desktop.inhibitFlags = 0;
        auto timer = isScreen ? std::make_unique<DBusIdleTimer>(m_client, QStringLiteral("Recording")) : nullptr;
        auto end = isScreen ? nullptr : std::make_unique<DBusSessionEnd>(m_client, QStringLiteral("Recording"));
        const auto want = [&](bool isWanted) {
            isScreen ? timer->setIdleTimerDisabled(isWanted) : end->setHeldUp(isWanted);
            EXPECT_TRUE(!isScreen || timer->isIdleTimerDisabled() == isWanted);
        };
        std::for_each(names.begin(), names.end(), [this](const QString& name) { own(name); });
        const auto expectKept = [&](bool isKept) {
            settle();
            EXPECT_EQ(m_desktop.inhibitions.size(), isKept && !names.isEmpty() ? 1 : 0);
        };
        // The last wish counts, before the answers come too.
        for (const std::string wishes : {"++", "-", "+-", "+-+", "-", "+"}) {
            for (const char wish : wishes) {
                want(wish == '+');
            }
            expectKept(wishes.back() == '+');
        }
        if (!names.isEmpty()) {
            EXPECT_EQ(m_desktop.inhibitReason, QStringLiteral("Recording"));
            EXPECT_EQ(m_desktop.inhibitFlags, row.flags);
        }
        // What goes takes with it what it granted; what comes back is asked again, unless another holds or nobody
        // wants.
        for (const bool isWanted : {true, false}) {
            want(isWanted);
            for (const QString& name : names) {
                disown(name);
                if (name == names.first()) {
                    m_desktop.inhibitions.clear();
                }
                own(name);
                expectKept(isWanted);
            }
        }
        want(true);
        expectKept(true);
        timer.reset();
        end.reset();
        expectKept(false);
        std::for_each(names.begin(), names.end(), [this](const QString& name) { disown(name); });
    }
}

/// Only those programs that a test writes.
struct ProgramsTest : DesktopTest {
    ProgramsTest() { qputenv("PATH", m_programs.path().toUtf8()); }
    ~ProgramsTest() override { qputenv("PATH", m_path); }

    static void write(const QString& path, const char* text) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) > 0);
    }
    /// A program that writes down how it is called, and ends with what the file "exit" says.
    QString addProgram(const QString& name) {
        const QString script = m_programs.filePath(name);
        write(script, "#!/bin/sh\nprintf '%s\\n' \"$@\" > \"${0%/*}/call\"\nexit \"$(/bin/cat \"${0%/*}/exit\")\"\n");
        QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        write(m_programs.filePath(QStringLiteral("exit")), "0");
        return script;
    }
    QString lastCall() {
        QFile call(m_programs.filePath(QStringLiteral("call")));
        EXPECT_TRUE(call.open(QIODevice::ReadOnly));
        return QString::fromUtf8(call.readAll());
    }

    QByteArray m_path = qgetenv("PATH");
    QTemporaryDir m_programs;
    PortalRequests m_portal{m_client, std::chrono::milliseconds(200)};
};

struct MailTest : ProgramsTest {
    MailTest() { write(m_attachment, "sound"); }

    /// Composes; the mail's outcome follows those before, "ok", "cancelled" or the text of the error.
    void compose(MailComposer& composer) {
        composer.compose(m_mail, [this](const Result<MailComposeResult>& result) {
            const bool isCancelled = result == MailComposeResult::Cancelled;
            EXPECT_NE(result, MailComposeResult::Sent) << "nobody knows";
            m_outcomes << (!result ? result.error().text : QLatin1String(isCancelled ? "cancelled" : "ok"));
        });
    }
    std::string outcomeOf(MailComposer& composer) {
        m_outcomes.clear();
        compose(composer);
        EXPECT_TRUE(spinUntil([this] { return !m_outcomes.isEmpty(); }));
        return m_outcomes.join(QLatin1Char(' ')).toStdString();
    }

    QString m_attachment = m_programs.filePath(QStringLiteral("-a 'b' \"c\" $(touch x);\n.m4a"));
    MailMessage m_mail{QStringLiteral("a@example.org"),
                       QStringLiteral("Tone; $(rm -rf /)"),
                       QStringLiteral("Body"),
                       {{m_attachment.toStdString(), QStringLiteral("audio/m4a"), QStringLiteral("a.m4a")}}};
    QStringList m_outcomes;
};

TEST_F(MailTest, ThePortalTakesAMailOrTheReasonIsSaid) {
    DesktopMailComposer composer(m_portal);
    EXPECT_FALSE(composer.canSendMail());
    EXPECT_EQ(outcomeOf(composer), "There is no mail program.");
    for (const quint32 version : {4, 3, 2}) {
        m_desktop.mailVersion = version;
        own(kPortal);
        EXPECT_TRUE(composer.canSendMail());
        EXPECT_EQ(outcomeOf(composer), "ok");
        EXPECT_THAT(m_desktop.files, ::testing::ElementsAre("sound"));
        EXPECT_EQ(m_desktop.options.value(QStringLiteral("subject")), m_mail.subject);
        EXPECT_EQ(m_desktop.options.value(QStringLiteral("body")), m_mail.body);
        EXPECT_EQ(m_desktop.options.contains(QStringLiteral("address")), version == 2);
        EXPECT_EQ(m_desktop.options.value(QLatin1String(version == 2 ? "address" : "addresses")).toStringList(),
                  QStringList{m_mail.recipient});
        disown(kPortal);
        EXPECT_FALSE(composer.canSendMail());
    }
    own(kPortal);
    const std::tuple<quint32, bool, const char*> answers[] = {
        {1, false, "cancelled"},
        {2, false, "The desktop's mail program did not take the mail."},
        {0, true, "There is no mail program."}};
    for (const auto& [response, isRefused, outcome] : answers) {
        m_desktop.response = response;
        m_desktop.refusesRequests = isRefused;
        EXPECT_EQ(outcomeOf(composer), outcome);
    }
    m_mail.attachments.front().path = "/nowhere/a.m4a";
    EXPECT_EQ(outcomeOf(composer), "There is no file “/nowhere/a.m4a” to attach.");
    disown(kPortal);
    m_desktop.mailVersion = 0;
    own(kPortal);
    EXPECT_FALSE(composer.canSendMail());
}

TEST_F(MailTest, EachOfTwoOpenMailsHasItsOwnOutcome) {
    m_desktop.holdsRequests = true;
    DesktopMailComposer composer(m_portal);
    for (const bool isNamedByPortal : {false, true}) {
        m_desktop.namesRequestsItself = isNamedByPortal;
        own(kPortal);
        m_outcomes.clear();
        compose(composer);
        compose(composer);
        settle();
        EXPECT_EQ(m_outcomes, QStringList());
        m_desktop.respond();
        settle();
        EXPECT_EQ(m_outcomes, QStringList{QStringLiteral("ok")});
        disown(kPortal);
        EXPECT_EQ(m_outcomes.mid(1), QStringList{QStringLiteral("The desktop's mail program did not take the mail.")});
    }
}

TEST_F(MailTest, WithoutAPortalAProgramTakesTheMailOrTheReasonIsSaid) {
    // In the place of the user's whole mail program.
    const QString script = addProgram(QStringLiteral("xdg-email"));
    DesktopMailComposer composer(m_portal);
    EXPECT_TRUE(composer.canSendMail());
    const std::string failed = "The mail could not be handed over: ";
    const std::pair<const char*, std::string> exits[] = {{"0", "ok"},
                                                         {"2", failed + "a file is missing."},
                                                         {"3", failed + "no program was found."},
                                                         {"4", failed + "xdg-email ended with 4."}};
    for (const auto& [exit, outcome] : exits) {
        write(m_programs.filePath(QStringLiteral("exit")), exit);
        EXPECT_EQ(outcomeOf(composer), outcome);
        EXPECT_EQ(lastCall(), QStringLiteral("--utf8\n--subject\nTone; $(rm -rf /)\n--body\nBody\n--attach\n") +
                                  m_attachment + QStringLiteral("\na@example.org\n"));
    }
    QFile::remove(script);
    EXPECT_THAT(outcomeOf(composer), ::testing::StartsWith(failed + "xdg-email could not be started"));
    MailMessage hostile{{}, {}, {}, {}};
    for (const char* recipient : {"--attach=/etc/passwd@", "MAILTO:a@b?attach=/etc/passwd", "nobody", ""}) {
        hostile.recipient = QString::fromLatin1(recipient);
        EXPECT_EQ(XdgEmail::arguments(hostile), QStringList{QStringLiteral("--utf8")}) << recipient;
    }
}

struct DocumentsTest : ProgramsTest {
    /// QTemporaryDir itself leaves names behind that are no text.
    ~DocumentsTest() override { std::filesystem::remove(m_file); }

    /// What opens the file, or where it is to go: what comes of that is in the outcome.
    void open() {
        m_documents.presentOpenInMenu(m_file, {}, [this](const Result<void>& result) {
            m_outcome = result ? QStringLiteral("ok") : result.error().text;
        });
    }
    void save() {
        m_picker.presentForExport(m_file, [this](const Result<std::optional<PickedDocument>>& result) {
            const auto picked = result.value_or(std::nullopt);
            m_outcome = picked ? QFile::decodeName(picked->path.c_str()) + QLatin1String(picked->mayReplace ? "!" : "")
                        : result ? QStringLiteral("nothing")
                                 : result.error().text;
        });
    }
    QString outcome() {
        EXPECT_TRUE(spinUntil([this] { return !m_outcome.isEmpty(); }));
        return std::exchange(m_outcome, {});
    }
    void expectOutcomes(const QString& opened, const QString& saved) {
        open();
        EXPECT_EQ(outcome(), opened);
        save();
        EXPECT_EQ(outcome(), saved);
    }

    FakeDocumentPicker m_otherwise;
    DesktopDocumentInteraction m_documents{m_client, m_portal};
    DesktopDocumentPicker m_picker{m_portal, QStringLiteral("Export"), m_otherwise};
    const std::filesystem::path m_folder = m_programs.path().toStdString();
    const std::filesystem::path m_file = m_folder / "-a %\xff\n.m4a";
    QString m_outcome;
};

TEST_F(DocumentsTest, ThePortalOpensAndSavesOrAnotherWayIsTakenOrTheReasonIsSaid) {
    const QString noOpener = QStringLiteral("There is no xdg-open.");
    const QString notOpened = QStringLiteral("The desktop opened the file with no program.");
    const QString notAsked = QStringLiteral("The desktop's dialog ended without an answer.");
    m_otherwise.answer = PickedDocument{"/otherwise"};
    open();
    EXPECT_TRUE(outcome().startsWith(QLatin1String("Cannot read")));
    ASSERT_TRUE(std::ofstream(m_file) << "sound");
    expectOutcomes(noOpener, QStringLiteral("/otherwise"));

    // That it is there is heard of only after the request, as of one that this starts.
    m_desktop.own(kPortal);
    open();
    EXPECT_EQ(outcome(), QStringLiteral("ok"));
    const std::string place = "/nowhere/b %25.m4a";
    m_portal.setParentWindow(QStringLiteral("x11:2a"));
    for (const auto& [uri, saved] : {std::pair<std::string, std::string>(fileUri(place), place),
                                     {fileUri(m_folder), m_folder.string() + "!"},
                                     {"smb://host/a", "The desktop chose no place on a disk: smb://host/a."}}) {
        m_desktop.results = {{QStringLiteral("uris"), QStringList{QString::fromStdString(uri)}}};
        expectOutcomes(QStringLiteral("ok"), QString::fromStdString(saved));
    }
    EXPECT_EQ(m_desktop.request,
              (QStringList{QStringLiteral("SaveFile"), QStringLiteral("x11:2a"), QStringLiteral("Export")}));
    EXPECT_EQ(m_desktop.options.value(QStringLiteral("current_name")).toString(), QStringLiteral("-a %\uFFFD\n.m4a"));
    m_desktop.response = 1;
    expectOutcomes(QStringLiteral("ok"), QStringLiteral("nothing"));
    open();
    outcome();
    EXPECT_EQ(m_desktop.options.value(QStringLiteral("ask")), true);
    EXPECT_THAT(m_desktop.files, ::testing::ElementsAre("sound"));
    m_desktop.response = 2;
    expectOutcomes(notOpened, notAsked);
    m_desktop.refusesRequests = true;
    expectOutcomes(noOpener, QStringLiteral("/otherwise"));
    m_desktop.isSilent = true;
    expectOutcomes(noOpener, QStringLiteral("/otherwise"));
    settle();
    EXPECT_EQ(m_desktop.closed, 2) << "no dialog comes late";
    m_desktop.isSilent = m_desktop.refusesRequests = false;
    m_desktop.holdsRequests = true;
    for (const bool opens : {true, false}) {
        opens ? open() : save();
        settle();
        EXPECT_EQ(m_outcome, QString());
        disown(kPortal);
        EXPECT_EQ(outcome(), opens ? notOpened : notAsked);
        own(kPortal);
    }
}

TEST_F(DocumentsTest, TheFileManagerShowsAFileElseXdgOpenItsFolder) {
    addProgram(QStringLiteral("xdg-open"));
    DesktopDocumentInteraction documents(m_client, m_portal);
    const auto show = [&] {
        documents.showInFolder(m_file, [this](const Result<void>& result) {
            m_outcome = result ? QStringLiteral("ok") : result.error().text;
        });
        return outcome();
    };
    EXPECT_EQ(show(), QStringLiteral("ok"));
    EXPECT_EQ(lastCall(), QString::fromStdString(fileUri(m_folder) + '\n'));
    write(m_programs.filePath(QStringLiteral("exit")), "4");
    EXPECT_EQ(show(), QStringLiteral("xdg-open ended with 4"));
    own(FakeDesktop::fileManager());
    EXPECT_EQ(show(), QStringLiteral("ok"));
    EXPECT_EQ(m_desktop.shown, QStringList{QString::fromStdString(fileUri(m_file))});
    EXPECT_TRUE(m_desktop.shown[0].endsWith(QLatin1String("/-a%20%25%FF%0A.m4a")));
}

/// Programs that are asked and answer; each writes down how it is called.
struct CommandTest : ProgramsTest {
    void install(const char* name, const char* answer) {
        const QString path = m_programs.filePath(QString::fromLatin1(name));
        QFile::remove(path);
        write(path, QByteArray("#!/bin/sh\necho \"$@\" > \"${0%/*}/call\"\n").append(answer).constData());
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    template <class Ask>
    static QVariant answer(const Ask& ask) {
        std::optional<QVariant> found;
        ask([&found](const auto& answer) { found = QVariant::fromValue(answer); });
        EXPECT_FALSE(found) << "before it returns";
        EXPECT_TRUE(spinUntil([&found] { return found.has_value(); }));
        return found.value_or(QVariant());
    }

    static constexpr std::chrono::milliseconds kLimit{300};
};

TEST_F(CommandTest, AddressesAreOpenedByTheProgramOfTheirScheme) {
    DesktopUrlOpener opener(m_portal, kLimit);
    const QUrl url(QStringLiteral("appstream://com.example.store"));
    const auto canOpen = [&] {
        return answer([&](const auto& completion) { opener.canOpenURL(url, completion); }).toBool();
    };
    EXPECT_FALSE(canOpen()) << "there is no xdg-mime";
    for (const auto& [script, can] : {std::pair{"echo org.example.Software.desktop", true},
                                      {"echo", false},
                                      {"echo a.desktop; exit 4", false},
                                      {"exec /bin/sleep 1000", false}}) {
        install("xdg-mime", script);
        EXPECT_EQ(canOpen(), can) << script;
        EXPECT_EQ(lastCall(), QStringLiteral("query default x-scheme-handler/appstream\n"));
    }
    own(kPortal);
    opener.openURL(QUrl(QStringLiteral("-e")));
    opener.openURL(url);
    settle();
    EXPECT_EQ(m_desktop.request, (QStringList{QStringLiteral("OpenURI"), QString(), url.toString()}));
    addProgram(QStringLiteral("xdg-open"));
    for (const QUrl& address : {QUrl(QStringLiteral("file:///a/guide.html")), url}) {
        opener.openURL(address);
        EXPECT_TRUE(spinUntil([&] { return lastCall() == address.toString() + QLatin1Char('\n'); })) << "a file first";
        disown(kPortal);
    }
}

TEST_F(CommandTest, TheCatalogueKnowsThePrograms) {
    const auto lookUp = [](AppstreamCatalogue& catalogue, const char* identifier) {
        return answer([&](const auto& completion) {
                   catalogue.lookUp(QString::fromLatin1(identifier), QStringLiteral("tr"), completion);
               })
            .toString()
            .toStdString();
    };
    AppstreamCatalogue catalogue(kLimit);
    EXPECT_EQ(lookUp(catalogue, "a"), "") << "there is no appstreamcli";
    for (const auto& [script, found] :
         {std::pair{
              "echo '<?xml version=\"1.0\"?><component><name>N</name><id> a.b </id><p><id>c</id></p></component>'",
              "a.b"},
          {"echo '<components><component><id>a</id></component></components>'", ""},
          {"echo '<component><name'", ""},
          {"echo '<component><id>a</id></component>'; exit 4", ""},
          {"exec /bin/sleep 1000", ""}}) {
        install("appstreamcli", script);
        EXPECT_EQ(lookUp(catalogue, "com.example.a"), found) << script;
        EXPECT_EQ(lastCall(), QStringLiteral("dump com.example.a\n"));
    }
    std::make_unique<AppstreamCatalogue>()->lookUp(QStringLiteral("a"), {},
                                                   [](const QString&) { ADD_FAILURE() << "after it is gone"; });
    // The real one, on the catalogue of this machine.
    qputenv("PATH", m_path);
    AppstreamCatalogue real;
    EXPECT_EQ(lookUp(real, "org.freedesktop.appstream.cli"), "org.freedesktop.appstream.cli");
    EXPECT_EQ(lookUp(real, "org.example.nothing"), "");
}

}  // namespace

}  // namespace tavi::test
