#include "cloud/iCloud.h"

#include <gmock/gmock.h>

#include <chrono>

#include "cloud/CloudSaving.h"
#include "support/FakeCloud.h"
#include "support/TemporaryContainer.h"

namespace tavi::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

/// Hears everything, as one line each.
struct Delegate : CloudDelegate {
    void iCloudDidFinishInitializingWitUbiquityToken(const QString& token, const std::filesystem::path&) override {
        heard.push_back("ready " + token.toStdString());
    }
    void iCloudAvailabilityDidChangeToState(bool isAvailable, const QString& token,
                                            const std::filesystem::path&) override {
        heard.push_back((isAvailable ? "available " : "unavailable ") + token.toStdString());
    }
    void iCloudFilesDidChange(std::span<const MetadataItem> files,
                              std::span<const std::filesystem::path> names) override {
        EXPECT_EQ(files.size(), names.size());
        heard.push_back("files");
        for (const auto& name : names) {
            heard.back() += ' ' + name.native();
        }
    }
    void iCloudFileUpdateDidBegin() override { heard.push_back("begin"); }
    void iCloudFileUpdateDidEnd() override { heard.push_back("end"); }
    std::optional<QString> iCloudQueryLimitedToFileExtension() override { return extension; }
    bool iCloudFileConflictBetweenCloudFile(const std::filesystem::path& cloud, const std::filesystem::path&) override {
        hasNew ? heard.push_back("conflict " + cloud.filename().native()) : void();
        return hasNew;
    }
    bool hasOlderConflictOperation() const override { return hasOld; }
    void iCloudFileUploadConflictWithCloudFile(const std::filesystem::path&,
                                               const std::filesystem::path& local) override {
        heard.push_back("older " + local.filename().native());
    }

    std::optional<QString> extension;
    bool hasNew = true, hasOld = false;
    std::vector<std::string> heard;
};

std::vector<std::string>* s_log = nullptr;

class iCloudTest : public ::testing::Test {
protected:
    iCloudTest() {
        s_log = &m_log;
        m_handler = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
            const std::string line = text.toStdString();
            s_log->push_back(line.starts_with("[iCloud] ") ? line.substr(9) : "no prefix: " + line);
        });
        manager.setDelegate(&delegate);
    }
    ~iCloudTest() override { qInstallMessageHandler(m_handler); }

    std::vector<std::string> log() {
        runLoop.drain();
        return std::exchange(m_log, {});
    }
    std::vector<std::string> heard() {
        runLoop.drain();
        return std::exchange(delegate.heard, {});
    }
    void setUp() {
        manager.setupiCloudDocumentSyncWithUbiquityContainer({});
        heard();
        log();
    }
    std::filesystem::path in(const std::filesystem::path& folder, const char* name, const char* bytes,
                             int seconds = 0) {
        std::ofstream(folder / name) << bytes;
        std::filesystem::last_write_time(folder / name, m_now + std::chrono::seconds(seconds));
        return folder / name;
    }
    CloudDocuments::ErrorCompletion kept() {
        return [this](const std::optional<CloudError>& error) {
            outcome = error ? std::to_string(error->code) + ' ' + error->domain.toStdString() : "done";
        };
    }
    CloudDocuments::DocumentCompletion keptDocument() {
        return [this](const std::shared_ptr<iCloudDocument>& document, const FileContents& contents,
                      const std::optional<CloudError>& error) {
            EXPECT_EQ(document == nullptr, error.has_value());
            kept()(error);
            outcome += error ? "" : ' ' + contents.head(99) + ' ' + document->localizedName().native();
        };
    }
    std::string outcomeOf() {
        runLoop.drain();
        return std::exchange(outcome, "");
    }

    ManualRunLoop runLoop;
    TemporaryContainer container;
    NotificationCenter notifications;
    FakeCloud cloud{runLoop, container.root() / "cloud"};
    Delegate delegate;
    iCloud manager{{cloud, cloud, cloud, cloud, notifications, container, runLoop}};
    std::string outcome;

private:
    std::vector<std::string> m_log;
    QtMessageHandler m_handler = nullptr;
    const std::filesystem::file_time_type m_now = std::filesystem::file_time_type::clock::now();
};

TEST_F(iCloudTest, SetUpFindsTheContainerAndListsItsFiles) {
    manager.setVerboseLogging(true);
    cloud.put("a.m4a", "1");
    cloud.put("b.wav", "2");
    cloud.put("c.m4a", "3");
    manager.setupiCloudDocumentSyncWithUbiquityContainer({});
    EXPECT_THAT(log(),
                ElementsAre("Initialized", "Initializing Ubiquity Container", "Initializing Document Enumeration",
                            "Creating metadata query and notifications", "Ubiquity Container Created and Ready",
                            "Query initialized successfully", "Beginning file update with NSMetadataQuery",
                            "Beginning file update with NSMetadataQuery", "Finished file update with NSMetadataQuery"));
    EXPECT_THAT(heard(), ElementsAre("ready account", "begin", "files a.m4a", "files a.m4a b.wav",
                                     "files a.m4a b.wav c.m4a", "end"));
    // An extension limits what is listed; an empty one does not.
    for (const auto& [extension, last] : {std::pair{"m4a", "files a.m4a c.m4a"}, {"", "files a.m4a b.wav c.m4a"}}) {
        delegate.extension = QLatin1String(extension);
        manager.enumerateCloudDocuments();
        manager.updateFiles();
        EXPECT_THAT(log(), ::testing::Contains(std::string("Document query filter has been set to ") +
                                               (*extension ? extension : "*")));
        EXPECT_EQ(heard().back(), last);
    }
}

TEST_F(iCloudTest, WithoutAnAccountThatIsSaidOnceAndNothingIsDone) {
    cloud.token.clear();
    manager.setupiCloudDocumentSyncWithUbiquityContainer({});
    EXPECT_THAT(log(), ElementsAre("Initialized", "Initializing Ubiquity Container",
                                   StartsWith("The systemt could not retrieve a valid iCloud container URL. iCloud is "
                                              "not available.")));
    EXPECT_THAT(heard(), ElementsAre("unavailable "));
    EXPECT_FALSE(cloud.query->isRunning);
    manager.updateFiles();
    manager.saveAndCloseDocumentWithName("a", FileContents("1"), keptDocument());
    manager.deleteDocumentWithName("a", kept());
    EXPECT_EQ(outcomeOf(), "");
    EXPECT_EQ(manager.listCloudFiles(), std::nullopt);
    EXPECT_THAT(log(), IsEmpty());
    manager.checkCloudAvailability();
    EXPECT_THAT(log(), ElementsAre("iCloud unavailable"));
    manager.setVerboseAvailabilityLogging(true);
    manager.checkCloudAvailability();
    EXPECT_THAT(log(), ElementsAre(StartsWith("iCloud is not available.")));
    cloud.token = QStringLiteral("second");
    setUp();
    setUp();
    notifications.postNotification(kUbiquityIdentityDidChangeNotification);
    EXPECT_THAT(log(), ElementsAre("iCloud is available. Ubiquity URL: " + cloud.container.native() +
                                   "\nUbiquity Token: second"));
    EXPECT_THAT(heard(), ElementsAre("available second"));
}

TEST_F(iCloudTest, AsksForWhatIsElsewhereAndListsItOnceItIsHere) {
    setUp();
    manager.setVerboseLogging(true);
    cloud.put("here", "1");
    cloud.put("old", "2");
    cloud.old = {"old"};
    cloud.elsewhere = {{"far", "3"}};
    heard();
    log();
    manager.updateFiles();
    EXPECT_THAT(heard(), ElementsAre("files here", "files far", "files far here")) << "and never what is old";
    EXPECT_THAT(cloud.downloads, ElementsAre("far"));
    EXPECT_EQ(log()[1], "far started downloading locally, successful? YES");
    EXPECT_THAT(*manager.listCloudFiles(),
                ElementsAre(cloud.documents() / "far", cloud.documents() / "here", cloud.documents() / "old"));
}

TEST_F(iCloudTest, SavesUnderANameAndSaysWhatWentWrong) {
    setUp();
    manager.setVerboseLogging(true);
    const std::string created = "|Document is new; creating, saving and then closing|";
    const std::string replaced = "|Document exists; overwriting, saving and closing|";
    const struct {
        const char *name, *bytes;
        /// What fails, "saving" or "closing"; the log's lines are divided by "|".
        std::string fails, outcome, log;
    } cases[] = {
        {"", "1", "",
         "1 The specified document name was empty / blank and could not be saved. Specify a document name next time.",
         "|Specified document name must not be empty"},
        {"../a", "1", "", "100 ../a is no name of a document.", ""},
        {"a", "1", "saving", "100 refused error while creating the document, a, in iCloud",
         created + "Error while creating the document: refused"},
        {"b", "1", "closing", "110 refused error while saving the document, b, to iCloud",
         created + "Error while saving and closing document: refused"},
        {"a", "1", "", "done 1 a", created + "New document created, saved and closed successfully"},
        {"a", "2", "", "done 2 a", replaced + "Written, saved and closed document"},
        {"a", "3", "saving", "100 refused error while writing to the document, a, in iCloud",
         replaced + "Error while writing to the document: refused"},
        {"a", "4", "closing", "110 refused error while saving the document, a, to iCloud",
         replaced + "Error while saving document: refused"}};
    for (const auto& row : cases) {
        cloud.failsSave = row.fails == "saving";
        cloud.failsClose = row.fails == "closing";
        manager.saveAndCloseDocumentWithName(row.name, FileContents(row.bytes), keptDocument());
        EXPECT_EQ(outcomeOf(), row.outcome);
        std::string lines;
        for (const std::string& line : log()) {
            lines += (lines.empty() ? "" : "|") + line;
        }
        EXPECT_EQ(lines, "Beginning document save" + row.log);
    }
    EXPECT_EQ(contentsOf(cloud.documents() / "a"), "4");
}

TEST_F(iCloudTest, NothingOfTheRecordingsIsTouchedInThePlaceOfTheCloud) {
    const auto recording = in(container.documentsPath(), "talk", "sound");
    cloud.isReachable = false;
    setUp();
    manager.deleteDocumentWithName("talk", kept());
    EXPECT_EQ(outcomeOf(), "100 The cloud's folder cannot be reached.");
    manager.renameOriginalDocument("talk", "other", kept());
    manager.uploadLocalOfflineDocumentsWithRepeatingHandler({}, [] { FAIL(); });
    EXPECT_EQ(outcomeOf(), "100 The cloud's folder cannot be reached.");
    EXPECT_EQ(contentsOf(recording), "sound");
    log();
    EXPECT_EQ(manager.ubiquitousDocumentsDirectoryURL(), container.documentsPath());
    EXPECT_EQ(log().back(), "WARNING: Using local documents directory until iCloud is available.");
    EXPECT_THAT(heard(), ::testing::Contains("unavailable "));
    // A file in the place of the folder goes among the recordings.
    cloud.isReachable = true;
    std::filesystem::remove_all(cloud.documents());
    in(cloud.container, "Documents", "mine");
    manager.saveAndCloseDocumentWithName("a", FileContents("1"), keptDocument());
    EXPECT_EQ(outcomeOf(), "done 1 a");
    EXPECT_EQ(contentsOf(container.documentsPath() / "Documents"), "mine");
    // The folder goes while the program runs, as with a disk: nothing is made in its place.
    cloud.isReachable = false;
    manager.saveAndCloseDocumentWithName("late", FileContents("1"), keptDocument());
    EXPECT_EQ(outcomeOf(), "done 1 late");
    EXPECT_FALSE(existsAt(cloud.documents() / "late"));
    EXPECT_THAT(heard(), ::testing::Contains("unavailable "));
}

TEST_F(iCloudTest, DoesToSingleFilesWhatIsAsked) {
    setUp();
    cloud.put("a", "12345");
    cloud.put("taken", "2");
    const auto ask = [&](const std::function<void()>& question) {
        question();
        return outcomeOf();
    };
    EXPECT_EQ(ask([&] { manager.renameOriginalDocument("a", "taken", kept()); }), "100 refused");
    EXPECT_EQ(ask([&] { manager.renameOriginalDocument("a", "b", kept()); }), "done");
    EXPECT_EQ(ask([&] { manager.duplicateOriginalDocument("b", "taken", kept()); }), "100 refused");
    EXPECT_EQ(ask([&] { manager.duplicateOriginalDocument("b", "c", kept()); }), "done");
    EXPECT_EQ(ask([&] { manager.retrieveCloudDocumentWithName("c", keptDocument()); }), "done 12345 c");
    EXPECT_EQ(ask([&] { manager.retrieveCloudDocumentWithName("a", keptDocument()); }),
              "100 refused error while retrieving document, a, from iCloud");
    EXPECT_EQ(ask([&] { manager.evictCloudDocumentWithName("c", kept()); }), "done");
    EXPECT_EQ(ask([&] { manager.deleteDocumentWithName("b", kept()); }), "done");
    EXPECT_EQ(ask([&] { manager.deleteDocumentWithName("b", kept()); }), "100 refused");
    EXPECT_EQ(std::pair(manager.doesFileExistInCloud("b"), manager.fileSize("taken")),
              std::pair(false, std::optional(1UL)));
    QString description;
    manager.documentStateForFile("taken", [&](int, const QString& text, const auto&) { description = text; });
    std::vector<int> states;
    manager.monitorDocumentStateForFile("taken", [&](int state) { states.push_back(state); });
    manager.stopMonitoringDocumentStateChangesForFile("taken");
    runLoop.drain();
    EXPECT_EQ(description, QStringLiteral("Document is closed"));
    EXPECT_THAT(states, ElementsAre(documentstate::kNormal));
    EXPECT_EQ(iCloudDocument::stateDescription(0), QStringLiteral("Document state is normal"));
    EXPECT_EQ(iCloudDocument::stateDescription(15),
              QStringLiteral("Document is closedDocument is in conflictDocument is experiencing saving error"
                             "Document editing is disbled"));
}

TEST_F(iCloudTest, TheOfflineUploadGoesByDatesAndThenByContents) {
    setUp();
    manager.setVerboseLogging(true);
    const std::filesystem::path local = container.documentsPath();
    for (const auto& [name, here, there, seconds] : {std::tuple{"a-older", "1", "2", 1},
                                                     {"b-newer", "1", "2", -1},
                                                     {"c-same", "1", "1", 0},
                                                     {"d-differs", "1", "2", 0}}) {
        in(local, name, here);
        in(cloud.documents(), name, there, seconds);
    }
    in(local, "e-new", "1");
    log();
    std::vector<std::string> handled;
    manager.uploadLocalOfflineDocumentsWithRepeatingHandler(
        [&](const std::filesystem::path& name, const auto& error) {
            handled.push_back(error ? "failed" : name.native());
        },
        [&] { handled.push_back("end"); });
    std::vector<std::string> lines = log();
    std::erase_if(lines,
                  [](const std::string& line) { return line.find("ocument ") < 20 || line.starts_with("Written"); });
    const std::string conflict = "Conflict between local file and remote file, attempting to automatically resolve";
    EXPECT_THAT(lines,
                ElementsAre("Beginning local file upload to iCloud. This process may take a long time.", conflict,
                            "The iCloud file was modified more recently than the local file. The local file will be "
                            "deleted and the iCloud file will be preserved.",
                            conflict,
                            "The local file was modified more recently than the iCloud file. The iCloud file will be "
                            "overwritten with the contents of the local file.",
                            conflict,
                            "The contents of the local file and the contents of the iCloud file match. The local file "
                            "will be deleted.",
                            conflict, StartsWith("Both the iCloud file and the local file were last modified at the "),
                            "Uploading e-new to iCloud (5 out of 5)", "Finished uploading all local files to iCloud"));
    EXPECT_THAT(handled, ElementsAre("a-older", "b-newer", "c-same", "d-differs", "e-new", "end"));
    EXPECT_THAT(heard(), ::testing::Contains("conflict d-differs"));
    std::string remaining;
    for (const char* name : {"a-older", "b-newer", "c-same", "d-differs", "e-new"}) {
        remaining += contentsOf(local / name) + '/' + contentsOf(cloud.documents() / name) + ' ';
    }
    EXPECT_EQ(remaining, "/2 1/1 /1 1/2 1/1 ");
    delegate.hasNew = false;
    delegate.hasOld = true;
    manager.uploadLocalDocumentToCloudWithName("d-differs", kept());
    EXPECT_EQ(outcomeOf(), "done");
    EXPECT_THAT(heard(), ElementsAre("older d-differs"));
    EXPECT_THAT(log().back(), StartsWith("WARNING: iCloudFileUploadConflictWithCloudFile:andLocalFile is deprecated"));
}

TEST(CloudSaving, AContentThatIsNoTextIsSaidSo) {
    EXPECT_EQ(contentsText(FileContents("gr\xC3\xBC\xC3\x9F")), QStringLiteral("gr\u00FC\u00DF"));
    EXPECT_EQ(contentsText(FileContents("\xFF\xF1")), QStringLiteral("(null)"));
    EXPECT_EQ(contentsText(FileContents(std::string(9000, 'a'))).size(), 4097);
}

}  // namespace
}  // namespace tavi::test
