#include "library/CloudSection.h"

#include <QLoggingCategory>
#include <QPointer>
#include <algorithm>
#include <iterator>
#include <system_error>
#include <utility>

#include "cloud/iCloudDocument.h"
#include "files/PathText.h"
#include "library/utility/Utility.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcLibrary, "tavi.library", QtInfoMsg)

/// Contents that are open at once.
constexpr int kMostUnderWay = 4;
/// What has been written is shown together, so often.
constexpr double kShowSeconds = 0.2;
/// Where nothing is heard of a refresh, it is no longer shown after that.
constexpr double kLongestRefresh = 10.0;
/// A line of a log that people read.
constexpr qsizetype kLongestLine = 4096;

QString linesOf(std::span<const std::filesystem::path> names) {
    QString text;
    for (const std::filesystem::path& name : names) {
        text += (text.isEmpty() ? QString() : QStringLiteral(", ")) + pathText(name);
        if (text.size() > kLongestLine) {
            return text + QChar(0x2026);
        }
    }
    return text;
}

}  // namespace

CloudSection::CloudSection(const Services& services, QObject* parent)
    : QObject(parent),
      m_services(services),
      m_cache(std::make_shared<CloudCache>(services.container.documentsPath(),
                                           services.container.cachesPath() / "cloud-cache")) {
    connect(&m_services.connection, &CloudConnection::filesChanged, this, &CloudSection::filesChanged);
}

CloudSection::~CloudSection() {
    if (m_services.documents.delegate() == this) {
        m_services.documents.setDelegate(nullptr);
    }
}

void CloudSection::viewWillAppear() {
    Q_EMIT changed();
    if (!m_services.settings.isCloudSyncOn()) {
        // Nobody hears of a cloud that is off.
        if (m_services.documents.delegate() == this) {
            m_services.documents.setDelegate(nullptr);
        }
        return endRefreshing();
    }
    m_services.documents.setVerboseLogging(true);
    m_hasList = false;
    m_isListAwaited = true;
    setUp();
}

void CloudSection::setUp() {
    m_isMissing = false;
    m_services.documents.setDelegate(this);
    m_services.documents.setupiCloudDocumentSyncWithUbiquityContainer({});
}

void CloudSection::listAppeared() {
    if (m_services.settings.isCloudSyncOn()) {
        m_tried.clear();
        filesChanged();
        m_services.table.getAlltheFilesAndFolderFromDirectoryInIcloud();
    }
}

void CloudSection::iCloudDidFinishInitializingWitUbiquityToken(const QString& /*token*/,
                                                               const std::filesystem::path& /*container*/) {
    endRefreshing();
    // Before there is a container, the list would be of another folder.
    if (!std::exchange(m_isListAwaited, false)) {
        return;
    }
    const auto listed = m_services.documents.listCloudFiles();
    if (listed && !listed->empty()) {
        start(*listed, true);
        m_hasList = true;
    }
}

void CloudSection::iCloudAvailabilityDidChangeToState(bool isAvailable, const QString& /*token*/,
                                                      const std::filesystem::path& /*container*/) {
    m_isMissing = !isAvailable && m_isListAwaited;
    // Who has just turned it off is told of nothing.
    if (!isAvailable && m_services.settings.isCloudSyncOn()) {
        m_services.presenter.presentAlert(
            {qtTrId("iCloud not available"), qtTrId("Please sign in iCloud"), {{qtTrId("OK")}}});
    }
    endRefreshing();
}

void CloudSection::iCloudFilesDidChange(std::span<const MetadataItem> /*files*/,
                                        std::span<const std::filesystem::path> names) {
    qCInfo(lcLibrary, "Files: %s", qUtf8Printable(linesOf(names)));
    endRefreshing();
    // It is told once for every file, and shown once.
    if (!std::exchange(m_isResetAsked, true)) {
        m_services.runLoop.dispatchMain([self = QPointer(this)] {
            if (self) {
                self->m_isResetAsked = false;
                Q_EMIT self->resetRequested();
            }
        });
    }
}

void CloudSection::refresh() {
    if (!m_services.settings.isCloudSyncOn() || m_isRefreshing) {
        return;
    }
    m_tried.clear();
    if (m_services.connection.account().isElsewhere()) {
        if (!Utility::connectedToNetwork(m_services.reachability)) {
            Utility::showNetworkError(m_services.presenter);
            return;
        }
        m_services.connection.syncNow();
    }
    m_isRefreshing = true;
    Q_EMIT changed();
    m_services.runLoop.dispatchAfter(kLongestRefresh,
                                     [self = QPointer(this)] { self ? self->endRefreshing() : void(); });
    if (m_isMissing) {
        return setUp();
    }
    m_hasList ? getCloudDocuments() : refreshCloudList();
}

void CloudSection::endRefreshing() {
    if (std::exchange(m_isRefreshing, false)) {
        Q_EMIT changed();
    }
}

void CloudSection::refreshCloudList() {
    m_services.documents.updateFiles();
}

void CloudSection::refreshCloudListAfterSetup() {
    m_services.documents.setDelegate(this);
    m_services.documents.updateFiles();
}

void CloudSection::getCloudDocuments() {
    if (!m_services.settings.isCloudSyncOn()) {
        return;
    }
    m_services.documents.setDelegate(this);
    const auto listed = m_services.documents.listCloudFiles();
    if (listed && !listed->empty()) {
        start(*listed, false);
    } else {
        endRefreshing();
    }
    m_services.table.getAlltheFilesAndFolderFromDirectoryInIcloud();
}

void CloudSection::start(const Names& names, bool isAnew) {
    ++m_generation;
    m_underWay = 0;
    m_names.clear();
    m_next = 0;
    // A cache that is to be made anew stays so, whatever else is asked for before that.
    m_waiting = {names, isAnew || (m_waiting && m_waiting->second)};
    startNext();
}

void CloudSection::startNext() {
    if (m_uses > 0 || !m_waiting) {
        return;
    }
    auto [names, isAnew] = *std::exchange(m_waiting, std::nullopt);
    m_names = std::move(names);
    ICloudDeleteFile(isAnew);
}

void CloudSection::ICloudDeleteFile(bool isAnew) {
    std::optional<std::set<std::filesystem::path>> staying;
    if (!isAnew) {
        staying.emplace();
        std::transform(m_names.begin(), m_names.end(), std::inserter(*staying, staying->end()),
                       [](const auto& path) { return path.filename(); });
    }
    ++m_uses;
    RunLoop& runLoop = m_services.runLoop;
    runLoop.dispatchBackground([self = QPointer(this), &runLoop, cache = m_cache, staying, generation = m_generation] {
        const bool hasMoved = cache->empty(staying);
        runLoop.dispatchMain([self, hasMoved, generation] {
            if (!self) {
                return;
            }
            --self->m_uses;
            self->m_services.table.getAlltheFilesAndFolderFromDirectoryInIcloud();
            if (hasMoved) {
                Q_EMIT self->reloadRequested();
            }
            generation == self->m_generation ? self->getCloudFile() : self->startNext();
        });
    });
}

void CloudSection::getCloudFile() {
    while (m_underWay < kMostUnderWay && m_next < m_names.size()) {
        const std::filesystem::path name = m_names[m_next++].filename();
        m_tried.insert(name);
        ++m_underWay;
        m_services.documents.retrieveCloudDocumentWithName(
            name, [self = QPointer(this), name, generation = m_generation](
                      const std::shared_ptr<iCloudDocument>& document, const FileContents& contents,
                      const std::optional<CloudError>& error) {
                if (!self || generation != self->m_generation) {
                    return;
                }
                if (error) {
                    --self->m_underWay;
                    return self->getCloudFile();
                }
                self->fetched(name, contents, document != nullptr ? document->fileURL() : std::filesystem::path());
            });
    }
    if (m_next == m_names.size()) {
        endRefreshing();
    }
}

void CloudSection::fetched(const std::filesystem::path& name, const FileContents& contents,
                           const std::filesystem::path& url) {
    ++m_uses;
    RunLoop& runLoop = m_services.runLoop;
    runLoop.dispatchBackground(
        [self = QPointer(this), &runLoop, cache = m_cache, name, contents, url, generation = m_generation] {
            const int error = cache->write(name, contents, url);
            runLoop.dispatchMain([self, name, error, generation] {
                if (error != 0) {
                    qCWarning(lcLibrary, "%s: %s", qUtf8Printable(pathText(name)),
                              std::generic_category().message(error).c_str());
                }
                if (self) {
                    self->written(generation);
                }
            });
        });
}

void CloudSection::written(int generation) {
    --m_uses;
    if (!std::exchange(m_isShowAsked, true)) {
        m_services.runLoop.dispatchAfter(kShowSeconds, [self = QPointer(this)] {
            if (self) {
                self->m_isShowAsked = false;
                self->m_services.table.getAlltheFilesAndFolderFromDirectoryInIcloud();
            }
        });
    }
    if (generation == m_generation && !m_waiting) {
        --m_underWay;
        getCloudFile();
    }
    startNext();
}

void CloudSection::filesChanged() {
    if (!m_services.settings.isCloudSyncOn()) {
        return;
    }
    m_services.table.setCloudFiles(m_services.connection.files());
    const bool wasEmpty = std::exchange(m_isEmpty, m_services.table.cloudFiles().empty());
    if (m_isMissing && wasEmpty && !m_isEmpty) {
        // The folder has come back.
        return setUp();
    }
    // What has come since is fetched, too.
    const bool isIdle = m_next == m_names.size() && m_underWay == 0 && m_uses == 0 && !m_waiting && !m_isListAwaited;
    if (!isIdle) {
        return;
    }
    Names arrived;
    for (const auto& [name, file] : m_services.table.cloudFiles()) {
        const bool isHere = file.state != CloudFile::State::OnlyThere && file.state != CloudFile::State::Arriving;
        if (isHere && !m_tried.contains(name) && m_services.table.rowOf(1, name) < 0) {
            arrived.push_back(name);
        }
    }
    if (!arrived.empty()) {
        m_names = std::move(arrived);
        m_next = 0;
        getCloudFile();
    }
}

void CloudSection::askFor(const std::filesystem::path& name) {
    const auto known = m_services.connection.files();
    const auto file = known.find(name);
    if (file == known.end()) {
        return;
    }
    if (file->second.state == CloudFile::State::OnlyThere || file->second.state == CloudFile::State::Arriving) {
        m_services.connection.download(name);
    } else {
        m_tried.erase(name);
        filesChanged();
    }
}

}  // namespace tavi
