#pragma once

#include <QList>
#include <QObject>
#include <QUrl>
#include <filesystem>
#include <memory>

#include "app/settings/SettingsStore.h"
#include "cloud/CloudDocuments.h"
#include "files/FileContents.h"
#include "platform/AppContainer.h"
#include "platform/Notices.h"
#include "platform/Presenter.h"
#include "platform/RunLoop.h"

namespace tavi {

/// Takes in what other programs hand over. Main thread only; files are copied in the background, one after the other.
///
/// What comes from outside is the user's own file and stays as it is: a copy of it goes into a folder of its own below
/// "Inbox", and from there among the recordings. Nothing is ever replaced. One file that cannot be had stops no other;
/// when all are done, one notice says what has become of them.
class RecordingImport : public QObject {
    Q_OBJECT

public:
    /// After that many seconds the notice line shows how far an import has come.
    static constexpr double kPatience = 0.5;

    /// All of it must outlive this.
    struct Services {
        const AppContainer& container;
        RunLoop& runLoop;
        Notices& notices;
        Presenter& presenter;
        SettingsStore& settings;
        CloudDocuments& cloud;
    };

    explicit RecordingImport(const Services& services, QObject* parent = nullptr);
    /// Gives up what is being copied, which leaves nothing.
    ~RecordingImport() override;

    /// Copies the file of a URL to the recordings, fails silently where its name is taken, and removes the whole folder
    /// that held it, if that lies in "Inbox".
    void openOtherAppFile(const QUrl& url);

    /// Saves data as a new recording of that name, and where "iCloudSync" is on hands it to the cloud and removes the
    /// local copy once the cloud has it. A name that is taken keeps its file, and one line says so.
    void saveImagesInIPhoneWithName(const FileContents& data, const std::filesystem::path& name);
    /// Removes the file of that name among the recordings, in the background. A failure is logged.
    void removeFile(const std::filesystem::path& name);

public Q_SLOTS:
    /// Takes in files from anywhere. Further ones join those that are still being copied.
    void importFiles(const QList<QUrl>& urls);
    /// Gives up what has not come in yet.
    void cancel();
    /// Removes what imports of a killed program have left.
    void removeLeftovers();

Q_SIGNALS:
    /// The recordings have changed.
    void imported();

private:
    struct Batch;

    void didSave(const FileContents& data, const std::filesystem::path& name, int error);
    void startNext();
    void showLine();
    void showProgress(const std::shared_ptr<Batch>& batch, double fraction);
    void ended(const std::shared_ptr<Batch>& batch, const std::filesystem::path& file, int error);
    void tell(const Batch& batch) const;

    Services m_services;
    /// Null while nothing is being imported.
    std::shared_ptr<Batch> m_batch;
};

}  // namespace tavi
