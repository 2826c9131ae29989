#pragma once

#include <fstream>
#include <map>
#include <set>

#include "cloud/iCloud.h"
#include "files/FileNames.h"
#include "files/NamePattern.h"
#include "support/Files.h"
#include "support/ManualRunLoop.h"

namespace tavi::test {

/// A cloud whose container is a folder, all of it on the run loop. What is elsewhere only is in `elsewhere`.
class FakeCloud : public UbiquityContainer, public MetadataQueries, public Documents, public FileCoordinator {
public:
    FakeCloud(RunLoop& runLoop, const std::filesystem::path& folder) : m_runLoop(runLoop), container(folder) {
        std::filesystem::create_directories(documents());
    }
    std::filesystem::path documents() const { return container / kUbiquityDocumentsFolder; }

    std::optional<std::filesystem::path> urlForUbiquityContainerIdentifier(const QString&) override {
        return token.isEmpty() || !isReachable ? std::nullopt : std::optional(container);
    }
    QString ubiquityIdentityToken() const override { return token; }
    std::vector<std::filesystem::path> contentsOfDirectory(const std::filesystem::path& folder) override {
        std::set<std::filesystem::path> entries;
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            entries.insert(entry.path());
        }
        return {entries.begin(), entries.end()};
    }
    std::optional<UbiquityItemAttributes> attributesOfItem(const std::filesystem::path& url) override {
        return existsAt(url) ? std::optional(UbiquityItemAttributes{std::filesystem::file_size(url), {}, {}})
                             : std::nullopt;
    }
    Result<void> startDownloadingUbiquitousItem(const std::filesystem::path& url) override {
        downloads.push_back(url.filename());
        const auto found = elsewhere.extract(url.filename());
        if (!found) {
            return failure(QStringLiteral("not there"));
        }
        m_runLoop.dispatchMain([this, url, bytes = found.mapped()] { put(url.filename(), bytes); });
        return {};
    }
    void evictUbiquitousItem(const std::filesystem::path& url, Completion completion) override {
        elsewhere[url.filename()] = contentsOf(url);
        removeItem(url, std::move(completion));
    }
    void removeItem(const std::filesystem::path& url, Completion completion) override {
        finish(std::move(completion), std::filesystem::remove(url));
    }
    void moveItem(const std::filesystem::path& from, const std::filesystem::path& to, Completion completion) override {
        const bool isFree = existsAt(from) && !existsAt(to);
        isFree ? std::filesystem::rename(from, to) : void();
        finish(std::move(completion), isFree);
    }

    class Query : public MetadataQuery {
    public:
        explicit Query(FakeCloud& cloud) : m_cloud(cloud) { m_cloud.query = this; }
        void setObservers(Observers newObservers) override { observers = std::move(newObservers); }
        void setExtensionLike(const QString& newPattern) override { pattern = newPattern; }
        bool startQuery() override {
            const bool starts = !isRunning && !m_cloud.token.isEmpty();
            isRunning = isRunning || starts;
            starts ? m_cloud.m_runLoop.dispatchMain([this] {
                observers.didStartGathering();
                observers.didFinishGathering();
            })
                   : void();
            return starts;
        }
        void stopQuery() override { isRunning = false; }
        std::vector<MetadataItem> results() const override {
            std::map<std::filesystem::path, MetadataItem> items;
            for (const auto& url : m_cloud.contentsOfDirectory(m_cloud.documents())) {
                const bool isOld = m_cloud.old.contains(url.filename());
                items[url.filename()] = {url, url.filename(),
                                         isOld ? DownloadingStatus::Downloaded : DownloadingStatus::Current};
            }
            for (const auto& [name, bytes] : m_cloud.elsewhere) {
                items[name] = {m_cloud.documents() / name, name, DownloadingStatus::NotDownloaded};
            }
            std::vector<MetadataItem> matching;
            for (auto& [name, item] : items) {
                if (hasExtensionLike(name, pattern.toStdString())) {
                    matching.push_back(item);
                }
            }
            return matching;
        }

        Observers observers;
        QString pattern;
        bool isRunning = false;

    private:
        FakeCloud& m_cloud;
    };
    std::unique_ptr<MetadataQuery> metadataQuery() override { return std::make_unique<Query>(*this); }

    std::unique_ptr<Document> documentWithFileURL(const std::filesystem::path& url, DocumentClient& client) override {
        return std::make_unique<FakeDocument>(*this, url, client);
    }
    std::vector<FileVersion> unresolvedConflictVersionsOfItem(const std::filesystem::path&) override { return {}; }
    void resolveConflict(const std::filesystem::path&, const FileVersion&, Completion completion) override {
        finish(std::move(completion), true);
    }
    void coordinate(std::function<void()> accessor, std::function<void()> completion) override {
        m_runLoop.dispatchBackground([this, accessor = std::move(accessor), completion = std::move(completion)] {
            accessor();
            m_runLoop.dispatchMain(completion);
        });
    }

    /// As another device or program does it.
    void put(const std::filesystem::path& name, const std::string& bytes) {
        std::ofstream(documents() / name, std::ios::binary) << bytes;
        query != nullptr && query->isRunning ? query->observers.didUpdate() : void();
    }

    RunLoop& m_runLoop;
    std::filesystem::path container;
    QString token = QStringLiteral("account");
    bool isReachable = true;
    /// What fails from now on.
    bool failsSave = false, failsClose = false;
    Query* query = nullptr;
    std::map<std::filesystem::path, std::string> elsewhere;
    /// Files of which an older version is here.
    std::set<std::filesystem::path> old;
    std::vector<std::filesystem::path> downloads;

private:
    class FakeDocument : public Document {
    public:
        FakeDocument(FakeCloud& cloud, std::filesystem::path url, DocumentClient& client)
            : m_cloud(cloud), m_url(std::move(url)), m_client(client) {}

        const std::filesystem::path& fileURL() const override { return m_url; }
        int documentState() const override { return m_state; }
        void setStateObserver(std::function<void()> observer) override { m_observer = std::move(observer); }
        void updateChangeCount() override {}
        void save(DocumentSave operation, Completion completion) override {
            const bool succeeds = !m_cloud.failsSave && (operation == DocumentSave::ForOverwriting || !existsAt(m_url));
            if (succeeds) {
                const FileContents contents = m_client.contentsForType();
                std::ofstream(m_url, std::ios::binary) << contents.head(contents.size());
            }
            end(succeeds ? documentstate::kNormal : documentstate::kClosed | documentstate::kSavingError, succeeds,
                std::move(completion));
        }
        void open(Completion completion) override {
            const bool succeeds = existsAt(m_url);
            succeeds ? m_client.loadFromContents(FileContents(contentsOf(m_url))) : void();
            end(succeeds ? documentstate::kNormal : m_state, succeeds, std::move(completion));
        }
        void close(Completion completion) override {
            end(documentstate::kClosed, !m_cloud.failsClose, std::move(completion));
        }

    private:
        void end(int state, bool succeeds, Completion completion) {
            const bool isNew = std::exchange(m_state, state) != state;
            isNew&& m_observer ? m_observer() : void();
            succeeds ? void() : m_client.handleError({QStringLiteral("refused")});
            m_cloud.finish(std::move(completion), succeeds);
        }

        FakeCloud& m_cloud;
        std::filesystem::path m_url;
        DocumentClient& m_client;
        int m_state = documentstate::kClosed;
        std::function<void()> m_observer;
    };

    void finish(Completion completion, bool succeeds) {
        m_runLoop.dispatchMain([completion = std::move(completion), succeeds] {
            completion(succeeds ? Result<void>() : failure(QStringLiteral("refused")));
        });
    }
};

}  // namespace tavi::test
