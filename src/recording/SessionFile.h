#pragma once

#include <QObject>
#include <memory>

#include "app/settings/SettingsStore.h"
#include "platform/AppContainer.h"
#include "platform/MailComposer.h"
#include "platform/NotificationCenter.h"
#include "platform/Presenter.h"
#include "platform/RunLoop.h"

namespace tavi {

/// The file of a recording session: in the caches folder while sound is written to it, among the recordings once it is
/// saved. One session at a time, from begin() to saved(). Main thread only.
class SessionFile : public QObject {
    Q_OBJECT

public:
    /// What the file is saved with; all of it must outlive this.
    struct Services {
        SettingsStore& settings;
        const AppContainer& container;
        RunLoop& runLoop;
        NotificationCenter& notifications;
        Presenter& presenter;
        MailComposer& mailComposer;
    };

    explicit SessionFile(const Services& services, QObject* parent = nullptr);
    ~SessionFile() override;

    /// The temporary file, "vexmosounds" with the type that was read last as extension.
    QString recordFilePath() const { return m_recordFilePath; }
    /// Reads the type from the settings again.
    void updateRecordFilePath();

    /// Starts a session: what an earlier one left at the temporary path is removed.
    void begin();
    /// Moves the whole file among the recordings, under that base name, and tells who lists them; an automatic mail
    /// follows. Returns before any of it is done; saved() tells. A file that cannot be moved stays where it is.
    void saveFileToDoc(const QString& name);
    /// Makes a move that saveFileToDoc() still owes, and waits for it. For the end of the program only.
    void finishBeforeTermination();

Q_SIGNALS:
    void saved();

private:
    class Move;

    void didMove(const QString& path);
    void emailAudioFile(const QString& path);

    Services m_services;
    QString m_recordFilePath;
    std::shared_ptr<Move> m_move;
};

}  // namespace tavi
