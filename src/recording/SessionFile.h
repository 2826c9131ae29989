#pragma once

#include <QObject>
#include <filesystem>
#include <memory>

#include "app/settings/FormatHold.h"
#include "app/settings/SettingsStore.h"
#include "platform/AppContainer.h"
#include "platform/MailComposer.h"
#include "platform/Notices.h"
#include "platform/NotificationCenter.h"
#include "platform/Presenter.h"
#include "platform/RunLoop.h"

namespace tavi {

/// The file of a recording session: in the caches folder while sound is written to it, among the recordings once it is
/// saved. One session at a time, from begin() to abandon() or saved(); type and quality are held as long. Main thread
/// only.
class SessionFile : public QObject {
    Q_OBJECT

public:
    /// What the file is saved with; all of it must outlive this.
    struct Services {
        SettingsStore& settings;
        FormatHold& formatHold;
        const AppContainer& container;
        RunLoop& runLoop;
        NotificationCenter& notifications;
        Presenter& presenter;
        MailComposer& mailComposer;
        Notices& notices;
    };

    explicit SessionFile(const Services& services, QObject* parent = nullptr);
    ~SessionFile() override;

    /// The temporary file, "vexmosounds" with the type that was read last as extension.
    const std::filesystem::path& recordFilePath() const { return m_recordFilePath; }
    /// Reads the type from the settings again.
    void updateRecordFilePath();

    /// Starts a session into the temporary file; what an earlier one left there is removed.
    void begin();
    /// The session comes to nothing.
    void abandon();
    /// Moves the whole file among the recordings, under that base name with the type that is read now, and tells who
    /// lists them; an automatic mail follows. A session's file that is no longer at recordFilePath() since somebody has
    /// edited the type is moved under its own. Returns before any of it is done; saved() tells. A file that cannot be
    /// moved stays where it is. A notice says where the recording is, and whether it ended by itself.
    void saveFileToDoc(const QString& name, bool endedByItself = false);
    /// Makes a move that saveFileToDoc() still owes, and waits for it. For the end of the program only.
    void finishBeforeTermination();

Q_SIGNALS:
    /// The name of the file among the recordings; empty where it is not there.
    void saved(const QString& fileName);
    /// The user asks to hear the recording of that name.
    void playRequested(const QString& fileName);

private:
    class Moves;

    void didMove(const std::filesystem::path& path);
    void say(const std::filesystem::path& moved);
    void emailAudioFile(const std::filesystem::path& path);

    Services m_services;
    std::filesystem::path m_recordFilePath;
    /// Where the session records, whatever has been read since.
    std::filesystem::path m_sessionPath;
    std::shared_ptr<Moves> m_moves;
    bool m_endedByItself = false;
};

}  // namespace tavi
