#include "cloud/CloudContainer.h"

#include <sys/stat.h>

#include <QLoggingCategory>
#include <QPointer>

#include "files/FileMove.h"
#include "files/FileNames.h"
#include "files/PathText.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcCloud, "tavi.cloud", QtInfoMsg)

/// Makes the folder. A file in its place is not the cloud's, and may be the only one of its contents: it goes among the
/// recordings.
void prepareFolder(const std::filesystem::path& folder, const std::filesystem::path& recordings) {
    struct stat attributes = {};
    if (::stat(folder.c_str(), &attributes) == 0 && !S_ISDIR(attributes.st_mode)) {
        const auto moved = moveItem(folder, freePath(recordings / folder.filename()));
        if (!moved) {
            qCWarning(lcCloud, "%s", moved.error().text.c_str());
            return;
        }
    }
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) {
        qCWarning(lcCloud, "%s", error.message().c_str());
    }
}

}  // namespace

void CloudContainer::log(const QString& message) const {
    qCInfo(lcCloud, "[iCloud] %s", qUtf8Printable(message));
}

void CloudContainer::verbose(const QString& message) const {
    if (m_isVerbose) {
        log(message);
    }
}

void CloudContainer::reportUnavailable() {
    if (m_delegate != nullptr) {
        m_delegate->iCloudAvailabilityDidChangeToState(false, {}, {});
    }
}

void CloudContainer::logMissingContainer() const {
    log(
        QStringLiteral("The systemt could not retrieve a valid iCloud container URL. iCloud is not available. "
                       "Tavi keeps recordings on this machine until a cloud is set up.\n"
                       "A cloud is a folder that another program keeps in sync, or a WebDAV server; the settings "
                       "say which one, and it must be possible to reach the folder."));
}

void CloudContainer::checkCloudAvailability() {
    const QString token = m_services.container.ubiquityIdentityToken();
    if (!token.isEmpty()) {
        if (m_isAvailabilityVerbose) {
            log(QStringLiteral("iCloud is available. Ubiquity URL: %1\nUbiquity Token: %2")
                    .arg(pathText(m_container), token));
        }
        if (m_delegate != nullptr) {
            m_delegate->iCloudAvailabilityDidChangeToState(true, token, m_container);
        }
        return;
    }
    if (m_isAvailabilityVerbose) {
        log(
            QStringLiteral("iCloud is not available. Tavi keeps recordings on this machine.\n"
                           "Set up a cloud in the settings to have them on other devices, too."));
    } else {
        log(QStringLiteral("iCloud unavailable"));
    }
    reportUnavailable();
}

void CloudContainer::checkCloudUbiquityContainer() {
    findContainer({}, [] {});
}

void CloudContainer::findContainer(const QString& identifier, const std::function<void()>& found) {
    m_services.queues.dispatchBackground([self = QPointer(this), services = m_services, identifier, found] {
        services.queues.dispatchMain(
            [self, found, url = services.container.urlForUbiquityContainerIdentifier(identifier)] {
                if (self) {
                    self->m_container = url.value_or(std::filesystem::path());
                    found();
                }
            });
    });
}

std::filesystem::path CloudContainer::ubiquitousDocumentsDirectoryURL() {
    if (m_container.empty()) {
        // Here by the next call.
        checkCloudUbiquityContainer();
        logMissingContainer();
        log(QStringLiteral("WARNING: Using local documents directory until iCloud is available."));
        reportUnavailable();
        return m_services.folders.documentsPath();
    }
    std::filesystem::path folder = m_container / kUbiquityDocumentsFolder;
    m_services.coordinator.coordinate(
        [folder, recordings = m_services.folders.documentsPath()] { prepareFolder(folder, recordings); }, [] {});
    return folder;
}

void CloudContainer::withDocuments(std::function<void(const std::filesystem::path& folder, bool isInCloud)> act) {
    const auto proceed = [this, act = std::move(act)] {
        const std::filesystem::path folder = ubiquitousDocumentsDirectoryURL();
        act(folder, !m_container.empty());
    };
    // Also where it was there: a disk goes while the program runs.
    findContainer({}, proceed);
}

std::optional<std::vector<std::filesystem::path>> CloudContainer::listCloudFiles() {
    verbose(QStringLiteral("Getting list of iCloud documents"));
    if (!quickCloudCheck()) {
        return std::nullopt;
    }
    std::vector<std::filesystem::path> urls =
        m_services.container.contentsOfDirectory(ubiquitousDocumentsDirectoryURL());
    verbose(QStringLiteral("Retrieved list of iCloud documents"));
    return urls;
}

}  // namespace tavi
