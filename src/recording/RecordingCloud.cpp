#include "recording/RecordingCloud.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include "cloud/CloudSaving.h"
#include "cloud/iCloudDocument.h"
#include "files/FileNames.h"
#include "files/PathText.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcRecording, "tavi.recording", QtInfoMsg)

}  // namespace

RecordingCloud::~RecordingCloud() {
    if (m_services.documents.delegate() == this) {
        m_services.documents.setDelegate(nullptr);
    }
}

void RecordingCloud::viewDidLoad() {
    if (m_services.settings.isCloudSyncOn()) {
        m_services.documents.setDelegate(this);
        m_services.documents.setVerboseLogging(true);
        m_services.documents.setupiCloudDocumentSyncWithUbiquityContainer({});
        // What the end of the program was faster than.
        for (const std::filesystem::path& path : m_services.settings.cloudPending()) {
            existsAt(path) ? save(path) : m_services.settings.setCloudPending(path, false);
        }
    }
}

void RecordingCloud::save(const std::filesystem::path& path) {
    if (!m_services.settings.isCloudSyncOn()) {
        return;
    }
    m_services.settings.setCloudPending(path, true);
    saveFileToCloud(m_services.documents, m_services.runLoop, path,
                    [path, &settings = m_services.settings, name = pathText(path.filename())](
                        const std::shared_ptr<iCloudDocument>& document, const FileContents& contents,
                        const std::optional<CloudError>& error) {
                        if (error) {
                            qCWarning(lcRecording, "iCloud Document save error: %s", qUtf8Printable(errorText(*error)));
                        } else {
                            // Without the cloud's folder it has gone nowhere but to itself, and is still to go.
                            settings.setCloudPending(path, document != nullptr && document->fileURL() == path);
                            qCInfo(lcRecording, "iCloud Document, %s, saved with text: %s", qUtf8Printable(name),
                                   qUtf8Printable(contentsText(contents)));
                        }
                    });
}

void RecordingCloud::refreshCloudListAfterSetup() {
    m_services.documents.setDelegate(this);
    m_services.documents.updateFiles();
}

void RecordingCloud::iCloudAvailabilityDidChangeToState(bool isAvailable, const QString& /*token*/,
                                                        const std::filesystem::path& /*container*/) {
    // Who has just turned it off is told of nothing.
    if (!isAvailable && m_services.settings.isCloudSyncOn()) {
        m_services.presenter.presentAlert(
            {qtTrId("cloud_unavail"), qtTrId("signin_icloud_account"), {{qtTrId("alert_okay")}}});
    }
}

}  // namespace tavi
