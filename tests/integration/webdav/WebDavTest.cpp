#include <gmock/gmock.h>

#include <fstream>
#include <random>

#include "adapters/webdav/WebDavMirror.h"
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
                           }});
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
    Contents contents() const { return contentsIn(folder); }

    QTemporaryDir root;
    std::filesystem::path folder = root.path().toStdString() + "/documents";
    FakeTrash trash{root.path().toStdString() + "/trash"};
    std::unique_ptr<SyncJournal> journal = std::move(*SyncJournal::open(root.path().toStdString() + "/journal"));
    DavClient client;
    SyncPass::States states;
};

/// Until both have the same and nothing is left to do.
std::string settle(Device& a, Device& b) {
    std::string errors;
    for (int passes = 0; passes < 12; ++passes) {
        const SyncOutcome first = a.sync();
        const SyncOutcome second = b.sync();
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

TEST(WebDav, LosesNothingOnAServerThatBreaksEveryPromise) {
    const PrivateDav server(QStringLiteral(TAVI_HOSTILE_DAV));
    Device a(server.url());
    Device b(server.url());
    const auto behave = [&](int seed) {
        DavClient control({server.url().resolved(QUrl(QStringLiteral("/?"))), {}, {}});
        control.get(std::to_string(seed), -1, {});
    };
    EXPECT_EQ(settle(a, b), "");
    std::set<std::string> kept;
    for (int seed = 1; seed <= 4; ++seed) {
        std::mt19937 dice(static_cast<unsigned>(seed));
        behave(seed);
        for (int step = 0; step < 20; ++step) {
            Device& device = dice() % 2 == 0 ? a : b;
            const std::string bytes = std::to_string(seed) + '.' + std::to_string(step);
            const Contents there = device.contents();
            const auto any =
                there.empty() ? there.end() : std::next(there.begin(), static_cast<long>(dice() % there.size()));
            switch (dice() % 5) {
                case 0:
                    device.write(bytes, bytes);
                    kept.insert(bytes);
                    break;
                case 1:
                    // What the user replaces is what the user saw here.
                    if (any != there.end()) {
                        device.write(any->first, bytes);
                        kept.erase(any->second);
                        kept.insert(bytes);
                    }
                    break;
                case 2:
                    if (any != there.end() && !there.contains(any->first + "r")) {
                        device.rename(any->first, any->first + "r");
                    }
                    break;
                default:
                    device.sync();
            }
        }
        behave(0);
        EXPECT_EQ(settle(a, b), "") << "seed " << seed;
        std::set<std::string> left;
        for (const auto& [name, bytes] : a.contents()) {
            left.insert(bytes);
        }
        EXPECT_THAT(left, ::testing::IsSupersetOf(kept)) << "seed " << seed;
    }
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
