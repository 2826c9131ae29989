#include <gmock/gmock.h>

#include <QCryptographicHash>
#include <QSslConfiguration>
#include <QTimeZone>
#include <fstream>
#include <random>

#include "adapters/webdav/DavProbe.h"
#include "adapters/webdav/WebDavMirror.h"
#include "files/ConflictNames.h"
#include "support/EventLoop.h"
#include "support/Fakes.h"
#include "support/PrivateDav.h"

namespace tavi::test {
namespace {

using Contents = std::map<std::string, std::string>;

Contents contentsIn(const std::filesystem::path& folder) {
    Contents found;
    for (const auto& [name, identity] : listFolder(folder)) {
        std::ifstream file(folder / name, std::ios::binary);
        found[name] = {std::istreambuf_iterator<char>(file), {}};
    }
    return found;
}

/// A machine with a folder that is to be in step, pass by pass.
struct Device {
    explicit Device(const QUrl& url) : client({url, QStringLiteral("u"), QStringLiteral("p")}) {
        std::filesystem::create_directories(folder);
    }

    SyncOutcome sync() {
        SyncPass pass({.client = client,
                       .journal = *journal,
                       .trash = trash,
                       .folder = folder,
                       .device = QStringLiteral("desk"),
                       .now = [] { return QDateTime::currentDateTime(); },
                       .tellAll = [this](const SyncPass::States& all) { states = all; },
                       .tell =
                           [this](const std::filesystem::path& name, std::optional<MirrorState> state) {
                               state ? void(states[name] = *state) : void(states.erase(name));
                           },
                       .answer = answer});
        const SyncOutcome outcome = pass.run();
        for (const auto& [name, state] : states) {
            state == MirrorState::OnlyThere ? void(journal->setWanted(name, true)) : void();
        }
        return outcome;
    }
    void write(const std::string& name, const std::string& bytes) const {
        std::ofstream(folder / name, std::ios::binary) << bytes;
    }
    void rename(const std::string& from, const std::string& to) {
        journal->addMove(from, to);
        std::filesystem::rename(folder / from, folder / to);
    }
    void remove(const std::string& name) {
        journal->setRemovedHere(name, true);
        std::filesystem::remove(folder / name);
    }
    /// As a program that was killed does.
    void restart() {
        journal = std::move(*SyncJournal::open(root.path().toStdString() + "/journal"));
        journal->dropMovesNotDone(folder);
    }
    Contents contents() const { return contentsIn(folder); }

    QTemporaryDir root;
    std::filesystem::path folder = root.path().toStdString() + "/documents";
    FakeTrash trash{root.path().toStdString() + "/trash"};
    std::unique_ptr<SyncJournal> journal = std::move(*SyncJournal::open(root.path().toStdString() + "/journal"));
    DavClient client;
    SyncPass::States states;
    VanishedAnswer answer;
};

/// Until both have the same and nothing is left to do.
std::string settle(Device& a, Device& b) {
    std::string errors;
    for (int passes = 0; passes < 16; ++passes) {
        const SyncOutcome first = a.sync();
        const SyncOutcome second = b.sync();
        // Their user agrees.
        a.answer = {first.vanished, true};
        b.answer = {second.vanished, true};
        if (first.isInStep && second.isInStep && a.contents() == b.contents()) {
            return {};
        }
        errors = first.error.toStdString() + " / " + second.error.toStdString();
    }
    return "not in step: " + errors;
}

class WebDavServers : public ::testing::TestWithParam<const char*> {};

TEST_P(WebDavServers, KeepTwoDevicesInStepAndLoseNothing) {
    const PrivateDav server{QString::fromLatin1(GetParam())};
    Device a(server.url());
    Device b(server.url());
    const std::string odd =
        "Gr\xC3\xBC\xC3\x9F"
        "e 100% +#?&'[x];,=@:~.m4a";
    std::string large(300'000, '\0');
    std::generate(large.begin(), large.end(), std::mt19937(7));
    a.write(odd, "sound");
    a.write("empty.wav", "");
    a.write("large.caf", large);
    EXPECT_EQ(settle(a, b), "");
    EXPECT_TRUE(b.contents() == (Contents{{odd, "sound"}, {"empty.wav", ""}, {"large.caf", large}}));
    b.write("empty.wav", "not any more");
    EXPECT_EQ(settle(a, b), "");
    EXPECT_EQ(a.contents()["empty.wav"], "not any more");
    a.write("empty.wav", "of a");
    b.write("empty.wav", "and of b");
    EXPECT_EQ(settle(a, b), "");
    const Contents both = a.contents();
    EXPECT_EQ(both.size(), 4U);
    EXPECT_EQ(both.at("empty.wav"), "of a");
    EXPECT_TRUE(std::any_of(both.begin(), both.end(), [](const auto& file) {
        return file.first.starts_with("empty (conflict ") && file.second == "and of b";
    }));
    a.rename("large.caf", "renamed.caf");
    b.remove(odd);
    EXPECT_EQ(settle(a, b), "");
    EXPECT_TRUE(b.contents()["renamed.caf"] == large);
    EXPECT_EQ(a.contents().size(), 3U);
    EXPECT_TRUE(contentsIn(a.root.path().toStdString() + "/trash").contains(odd));
    for (const auto& entry : std::filesystem::directory_iterator(server.files())) {
        const std::string name = entry.path().filename();
        EXPECT_FALSE(name.starts_with(".tavi-part") || name.starts_with(".tavi-old")) << name;
    }
    // Another folder in its place, such as one whose disk is not mounted.
    std::filesystem::rename(server.files(), server.files().native() + "2");
    std::filesystem::create_directory(server.files());
    std::filesystem::permissions(server.files(), std::filesystem::perms::all);
    const QString error = a.sync().error;
    // One of them still serves what it has not written yet.
    EXPECT_TRUE(error == QLatin1String("error_cloud_other_folder") ||
                (error.isEmpty() && GetParam() == std::string("rclone-writes")));
    EXPECT_EQ(a.contents().size(), 3U);
}

INSTANTIATE_TEST_SUITE_P(All, WebDavServers,
                         ::testing::Values("apache", "rclone", "rclone-writes", "nginx", "lighttpd"));
#ifdef TAVI_SABRE
INSTANTIATE_TEST_SUITE_P(Sabre, WebDavServers, ::testing::Values("sabre"));
#endif

/// Two devices and a user on the server do what comes to their minds, on a server that misbehaves meanwhile.
class Model {
public:
    explicit Model(const PrivateDav& server)
        : a(server.url()),
          b(server.url()),
          m_url(server.url()),
          m_control({m_url.resolved(QUrl(QStringLiteral("/?"))), {}, {}}) {}

    void behave(int seed) { m_control.get(std::to_string(seed), -1, {}); }
    void step(int seed, int number, std::mt19937& dice) {
        Device& device = dice() % 2 == 0 ? a : b;
        const std::string bytes = std::to_string(seed) + '.' + std::to_string(number);
        const Contents there = device.contents();
        const auto any =
            there.empty() ? there.end() : std::next(there.begin(), static_cast<long>(dice() % there.size()));
        const auto choice = dice() % 12;
        if (choice < 3 || (any == there.end() && choice < 7)) {
            device.write(bytes, bytes);
            kept.insert(bytes);
        } else if (choice == 3) {
            // What the user replaces is what the user saw here.
            device.write(any->first, bytes);
            kept.erase(any->second);
            kept.insert(bytes);
        } else if (choice == 4 && !there.contains(any->first + "r")) {
            device.rename(any->first, any->first + "r");
        } else if (choice == 5) {
            device.remove(any->first);
            kept.erase(any->second);
        } else if (choice == 6) {
            // The device ends in the middle of something, and starts anew.
            behave(seed * 1000 + number);
            device.restart();
        } else if (choice == 7) {
            behave(0);
            onServer(bytes, dice);
            behave(seed * 1000 + number);
        } else {
            device.sync();
        }
    }

    Device a;
    Device b;
    std::set<std::string> kept;

private:
    void onServer(const std::string& bytes, std::mt19937& dice) {
        DavClient user({m_url, {}, {}});
        const DavFiles files = user.list().value_or(DavFiles());
        std::vector<std::filesystem::path> names;
        for (const auto& [name, file] : files) {
            name.native().front() != '.' ? names.push_back(name) : void();
        }
        if (names.empty() || dice() % 3 == 0) {
            user.put("s" + bytes, FileContents("s" + bytes));
            kept.insert("s" + bytes);
            return;
        }
        const std::filesystem::path name = names[dice() % names.size()];
        std::string contents;
        user.get(name, -1, [&contents](const QByteArray& more) {
            contents += more.toStdString();
            return true;
        });
        if (dice() % 2 == 0) {
            user.move(name, name.native() + "u");
        } else {
            user.remove(name);
            kept.erase(contents);
        }
    }

    QUrl m_url;
    DavClient m_control;
};

TEST(WebDav, LosesNothingOnAServerThatBreaksEveryPromise) {
    // scripts/cloud-model takes more of them.
    const int seeds = qEnvironmentVariableIntValue("TAVI_CLOUD_SEEDS");
    for (int seed = 1; seed <= std::max(4, seeds); ++seed) {
        const PrivateDav server(QStringLiteral(TAVI_HOSTILE_DAV));
        Model model(server);
        EXPECT_EQ(settle(model.a, model.b), "");
        std::mt19937 dice(static_cast<unsigned>(seed));
        model.behave(seed);
        for (int number = 0; number < (seeds > 0 ? 100 : 20); ++number) {
            model.step(seed, number, dice);
        }
        model.behave(0);
        EXPECT_EQ(settle(model.a, model.b), "") << "seed " << seed;
        std::set<std::string> left;
        for (const auto& [name, bytes] : model.a.contents()) {
            EXPECT_TRUE(left.insert(bytes).second || originalOfConflict(name) || name.ends_with('r') ||
                        name.ends_with('u'))
                << "twice: " << name << ", seed " << seed;
        }
        EXPECT_THAT(left, ::testing::IsSupersetOf(model.kept)) << "seed " << seed;
    }
}

TEST(WebDav, AsksBeforeManyFilesThatAreGoneThereGoHereToo) {
    const PrivateDav server(QStringLiteral("rclone"));
    Device a(server.url());
    Device b(server.url());
    for (const char letter : std::string("abcdef")) {
        a.write({letter}, {letter});
    }
    EXPECT_EQ(settle(a, b), "");
    const auto vanish = [&](int passes) {
        for (const auto& [name, bytes] : a.contents()) {
            std::filesystem::remove(server.files() / name);
        }
        SyncOutcome outcome;
        while (passes-- > 0) {
            outcome = a.sync();
        }
        EXPECT_EQ(a.contents().size(), 6U);
        return outcome.vanished;
    };
    a.answer = {vanish(3), false};
    EXPECT_EQ(a.answer.names.size(), 6U);
    EXPECT_TRUE(a.sync().isInStep);
    EXPECT_EQ(contentsIn(server.files()).size(), 6U) << "they are sent again";
    a.answer = {};
    a.answer = {vanish(1), true};
    a.answer.names.erase("a");
    a.write("new", "new");
    a.sync();
    EXPECT_THAT(a.contents(), ::testing::ElementsAre(::testing::Key("a"), ::testing::Key("new")));
    EXPECT_EQ(contentsIn(a.trash.folder).size(), 5U) << "what was agreed on, and no more";

    // A file that is missed twice, and is there again between, stays.
    a.answer = {};
    for (const char letter : std::string("bcde")) {
        a.write({letter}, {letter});
    }
    a.sync();
    for (int times = 0; times < 2; ++times) {
        std::filesystem::rename(server.files() / "new", server.files().parent_path() / "new");
        a.sync();
        EXPECT_TRUE(a.contents().contains("new"));
        std::filesystem::rename(server.files().parent_path() / "new", server.files() / "new");
        EXPECT_TRUE(a.sync().isInStep);
    }
    // A handful goes without a question.
    EXPECT_EQ(a.contents().size(), 5U);
    for (const auto& [name, bytes] : a.contents()) {
        std::filesystem::remove(server.files() / name);
    }
    EXPECT_TRUE(a.sync().vanished.empty());
    a.sync();
    EXPECT_TRUE(a.contents().empty());
}

TEST(WebDav, DoesWithWhatAServerRefusesAndSaysWhatThatIs) {
    const PrivateDav server(QStringLiteral(TAVI_HOSTILE_DAV));
    Device a(server.url());
    DavClient control({server.url().resolved(QUrl(QStringLiteral("/?"))), {}, {}});
    const auto answer = [&](const std::string& rule) { control.get(rule, -1, {}); };
    a.write("a", "sound");
    a.sync();
    const struct {
        const char *verb, *answer, *error;
        int retryAfter;
    } cases[] = {{"PROPFIND", "elsewhere", "error_cloud_moved", 0}, {"PROPFIND", "429", "error_cloud_busy", 60},
                 {"PROPFIND", "503", "error_cloud_busy", 60},       {"PROPFIND", "200", "error_cloud_no_dav", 0},
                 {"PROPFIND", "401", "error_cloud_refused", 0},     {"PUT", "507", "error_cloud_full", 600},
                 {"MOVE", "403", "error_cloud_refused", 0}};
    for (const auto& each : cases) {
        answer(std::string(each.verb) + '=' + each.answer);
        a.write("b", each.answer);
        const SyncOutcome outcome = a.sync();
        EXPECT_EQ(outcome.error, QLatin1String(each.error)) << each.answer;
        EXPECT_EQ(outcome.retryAfter, each.retryAfter) << each.answer;
        EXPECT_EQ(a.contents().size(), 2U);
        answer(std::string(each.verb) + "=0");
    }
    EXPECT_TRUE(a.sync().isInStep);
    EXPECT_FALSE(*a.client.stat("caught")) << "nobody else is asked";
    Device b(server.url());
    answer("GET=cut");
    b.sync();
    b.sync();
    EXPECT_TRUE(b.contents().empty()) << "a part is nothing";
    answer("GET=0");
    // A version that nobody here has seen is neither replaced nor left hidden.
    const auto hash = [](const char* bytes) { return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256); };
    DavFolder dav(b.client, *b.journal);
    dav.create("x", FileContents("1"));
    EXPECT_EQ(dav.replace("x", FileContents("3"), hash("2"))->outcome, DavFolder::Outcome::Taken);
    EXPECT_EQ(b.client.get("x", -1, {}), hash("1"));
    b.journal->addScrap(".tavi-old-0123456789-x", "x");
    b.client.put(".tavi-old-0123456789-x", FileContents("old"));
    EXPECT_TRUE(*dav.recover());
    EXPECT_TRUE(*b.client.stat(conflictName("x", "old", "012345")));
    // A rename that is refused waits, and is no new file beside the old one.
    answer("MOVE=403");
    a.rename("a", "renamed");
    EXPECT_FALSE(a.sync().isInStep);
    answer("MOVE=path");
    EXPECT_TRUE(a.sync().isInStep);
    EXPECT_FALSE(*a.client.stat("a"));
    EXPECT_TRUE(*a.client.stat("renamed"));
    // One that was noted, and never done here, is not done there either.
    a.journal->addMove("renamed", "a");
    a.journal->dropMovesNotDone(a.folder);
    std::filesystem::remove(a.folder / "renamed");
    a.sync();
    EXPECT_TRUE(*a.client.stat("renamed"));
    answer("PUT=403");
    EXPECT_EQ(probeFolder(a.client).error().text, QLatin1String("error_cloud_read_only"));
    answer("PUT=0");
    answer("DELETE=403");
    EXPECT_FALSE(probeFolder(a.client));
    answer("DELETE=0");
    EXPECT_TRUE(probeFolder(a.client));
    // A server has to ask for the login once for all, and once more where it asks for another one; the password goes in
    // the clear to none that has not asked for that.
    for (const auto& [scheme, asked] : {std::pair{"Basic", 1}, {"Digest", 3}}) {
        answer(std::string("login=") + scheme);
        for (int starts = 0; starts < 3; ++starts) {
            EXPECT_TRUE(a.sync().isInStep) << scheme;
            a.client.setLogin(DavClient::Login::Unknown);
        }
        DavClient look({server.url(), QStringLiteral("u"), QStringLiteral("p")});
        EXPECT_TRUE(look.list());
        EXPECT_EQ((*look.stat(".asked"))->size, asked + 1) << scheme;
    }
}

TEST(WebDav, TrustsACertificateOnlyForItsNameAndByWhomTheSystemTrusts) {
    const QTemporaryDir folder;
    const QString pem = folder.path() + QStringLiteral("/pem");
    ASSERT_EQ(QProcess::execute(QStringLiteral("openssl"),
                                {QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-newkey"),
                                 QStringLiteral("rsa:2048"), QStringLiteral("-nodes"), QStringLiteral("-keyout"), pem,
                                 QStringLiteral("-out"), pem + QLatin1Char('c'), QStringLiteral("-subj"),
                                 QStringLiteral("/CN=localhost"), QStringLiteral("-addext"),
                                 QStringLiteral("subjectAltName=DNS:localhost")}),
              0);
    QFile certificate(pem + QLatin1Char('c'));
    QFile both(pem);
    ASSERT_TRUE(certificate.open(QIODevice::ReadOnly) && both.open(QIODevice::Append));
    both.write(certificate.readAll());
    both.close();
    const PrivateDav server(QStringLiteral(TAVI_HOSTILE_DAV), pem);
    const auto error = [&](const char* host) {
        DavClient client({QUrl(QStringLiteral("https://%1:%2/Tavi/").arg(QLatin1String(host), server.port())), {}, {}});
        return client.list() || client.makeFolder() ? std::string() : client.lastError().text.toStdString();
    };
    EXPECT_EQ(error("localhost"), "error_cloud_certificate");
    const QSslConfiguration before = QSslConfiguration::defaultConfiguration();
    QSslConfiguration trusting = before;
    trusting.addCaCertificates(pem + QLatin1Char('c'));
    QSslConfiguration::setDefaultConfiguration(trusting);
    EXPECT_EQ(error("localhost"), "");
    EXPECT_EQ(error("127.0.0.1"), "error_cloud_certificate") << "the name of another";
    QSslConfiguration::setDefaultConfiguration(before);
}

TEST(WebDav, LeavesAServerAloneForAsLongAsItsOwnClockSays) {
    const QByteArray date = "Mon, 23 Nov 2026 20:00:00 GMT";
    const QDateTime now(QDate(2026, 11, 23), QTime(12, 0), QTimeZone::utc());
    const std::tuple<QByteArray, QByteArray, int> cases[] = {
        {"120", date, 120},      {"Mon, 23 Nov 2026 20:01:00 GMT", date, 60}, {"Mon, 23 Nov 2026 12:01:30 GMT", "", 90},
        {"-5", date, 0},         {"Mon, 23 Nov 2026 19:01:00 GMT", date, 0},  {"soon", date, 0},
        {"99999999999", date, 0}};
    for (const auto& [value, at, seconds] : cases) {
        EXPECT_EQ(secondsOfRetryAfter(value, at, now), seconds) << value.constData();
    }
}

TEST(WebDav, LooksAtOnceWhenAskedAndElseLessOftenAndNeverForNothing) {
    SyncPace pace;
    std::string said;
    const auto say = [&] { said += (pace.pause() ? std::to_string(*pace.pause()) : "-") + ' '; };
    const auto pass = [&](bool isInStep, int retryAfter = 0, bool isToBeContinued = false) {
        pace.begin();
        pace.end(isInStep, retryAfter, isToBeContinued);
        say();
    };
    say();
    for (int passes = 0; passes < 8; ++passes) {
        pass(true);
    }
    pace.ask();
    say();
    pass(false, 0, true);
    pass(false, 90);
    pace.ask();
    say();
    pass(true, 99999);
    EXPECT_EQ(said, "0 60 120 240 480 960 1920 3600 3600 0 0 120 90 3600 ");
    said.clear();
    pace.ask();
    pass(true);
    pass(true);
    pass(true);
    for (const bool isThere : {false, true}) {
        pace.setVisible(isThere);
        say();
    }
    pace.setVisible(false);
    pass(false);
    pace.setOnline(false);
    pace.ask();
    say();
    pace.setOnline(true);
    say();
    EXPECT_EQ(said, "60 120 240 - 60 120 - 0 ");
}

TEST(WebDav, AMirrorWorksByItselfAndEndsAtOnce) {
    const PrivateDav server(QStringLiteral("rclone"));
    Device b(server.url());
    Device a(server.url());
    const WebDavMirror::Place place{
        {server.url(), QStringLiteral("u"), QStringLiteral("p")}, a.folder, a.root.path().toStdString() + "/mine", {}};
    WebDavMirror::Place wrong = place;
    wrong.account.folder = QUrl(QStringLiteral("http://example.org/"));
    EXPECT_FALSE(WebDavMirror::create(wrong, a.trash)) << "a password in the clear";
    auto mirror = std::move(*WebDavMirror::create(place, a.trash));
    const auto is = [&](MirrorState state) {
        const auto states = mirror->states();
        return states.contains("talk") && states.at("talk") == state;
    };
    a.write("talk", "sound");
    mirror->documentsChanged();
    EXPECT_TRUE(spinUntil([&] { return is(MirrorState::There); }));
    EXPECT_FALSE(mirror->download("nowhere"));
    EXPECT_TRUE(mirror->willEvict("talk"));
    std::filesystem::remove(a.folder / "talk");
    mirror->documentsChanged();
    EXPECT_TRUE(spinUntil([&] { return is(MirrorState::OnlyThere); }));
    EXPECT_TRUE(mirror->download("talk"));
    EXPECT_TRUE(spinUntil([&] { return a.contents()["talk"] == "sound"; }));
    EXPECT_TRUE(mirror->willRemove("talk"));
    std::filesystem::remove(a.folder / "talk");
    mirror->documentsChanged();
    EXPECT_TRUE(spinUntil([&] { return !mirror->states().contains("talk"); }));
    b.sync();
    EXPECT_TRUE(b.states.empty());
}

TEST(WebDav, ReadsListingsAsBytesAndRefusesWhatIsNone) {
    const QByteArray folder =
        "<d:response><d:href>/f%20x/</d:href><d:propstat><d:prop><d:resourcetype><d:collection/>"
        "</d:resourcetype></d:prop><d:status>HTTP/1.1 200 OK</d:status></d:propstat></d:response>";
    const auto names = [&](const QByteArray& inside, const char* end = "</d:multistatus>") -> std::string {
        const auto files = readListing("<d:multistatus xmlns:d=\"DAV:\">" + inside + end, "/f x/");
        std::string said = files ? "" : "!";
        for (const auto& [name, file] : files.value_or(DavFiles())) {
            said += name.native() + ' ' + file.version().toStdString() + ';';
        }
        return said;
    };
    const auto file = [](const QByteArray& href, const QByteArray& properties = {}) {
        return "<d:response><d:href>" + href + "</d:href><d:propstat><d:prop>" + properties +
               "</d:prop><d:status>HTTP/1.1 200 OK</d:status></d:propstat></d:response>";
    };
    const std::pair<std::string, std::string> cases[] = {
        {names(folder), ""},
        {names(file("/f%20x/a")), "!"},
        {names(folder, ""), "!"},
        {names(folder + file("/f%20x/a+%2b%25")), "a++% |-1|;"},
        {names(folder + file("http://h/f%20x/a")), "a |-1|;"},
        {names(folder + file("/f%20x/..")) + names(folder + file("/f%20x/%2e%2e%2fa")) +
             names(folder + file("/f%20x/a%0ab")) + names(folder + file("/etc/passwd")),
         ""},
        {names(folder +
               file("/f%20x/a", "<d:getetag>W/\"1-gzip\"</d:getetag><d:getcontentlength>5</d:getcontentlength>")),
         "a \"1\"|5|;"},
        {names(folder + "&bomb;"), "!"},
        {names("<html/>"), "!"}};
    for (const auto& [said, expected] : cases) {
        EXPECT_EQ(said, expected);
    }
}

TEST(WebDav, DecidesWithoutEverRemovingWhatHasChanged) {
    const char* const words[] = {"-", "=", "*"};
    std::string table;
    for (const bool isAgreed : {false, true}) {
        for (int local = 0; local < 3; ++local) {
            for (int remote = 0; remote < 3; ++remote) {
                const SyncAction action =
                    decide({isAgreed, static_cast<SyncSide>(local), static_cast<SyncSide>(remote), true, false});
                const char letter = "0FODUrlCXL"[static_cast<int>(action)];
                table += std::string(isAgreed ? "" : "new") + words[local] + words[remote] + letter + ' ';
            }
        }
    }
    // Missing, same or changed here and there, and what follows for a file that its user removes: nothing, forgotten,
    // offered, uploaded, replaced there or here (r, l), compared, removed there or here (X, L).
    EXPECT_EQ(table,
              "new--F new-=X new-*O new=-U new==C new=*C new*-U new*=C new**C --F -=X -*O =-L ==0 =*l *-U *=r **C ");
    EXPECT_EQ(decide({true, SyncSide::Missing, SyncSide::Same, false, false}), SyncAction::Offer)
        << "lost, not removed";
    EXPECT_EQ(decide({true, SyncSide::Missing, SyncSide::Same, false, true}), SyncAction::Download);
}

}  // namespace
}  // namespace tavi::test
