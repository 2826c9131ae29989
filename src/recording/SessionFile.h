#pragma once

#include <QObject>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>

#include "app/settings/FormatHold.h"
#include "app/settings/SettingsStore.h"
#include "files/LockedFolder.h"
#include "platform/AppContainer.h"
#include "platform/MailComposer.h"
#include "platform/Notices.h"
#include "platform/NotificationCenter.h"
#include "platform/Presenter.h"
#include "platform/RunLoop.h"
#include "recording/RecordingCloud.h"
#include "recording/RecordingRescue.h"

namespace tavi {

/// The file of a recording session: in a folder of its own while sound is written to it, among the recordings once it
/// is saved. Meanwhile it has a second name in the caches folder, where companions look for it; what becomes of that
/// name harms nothing. One session at a time, from begin() to abandon() or saved(); type and quality are held as long.
/// Main thread only.
class SessionFile : public QObject {
    Q_OBJECT

public:
    /// The name without extension of a file that is not saved yet.
    static constexpr std::string_view kName = "vexmosounds";

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
        RecordingRescue& rescue;
        RecordingCloud& cloud;
    };

    explicit SessionFile(const Services& services, QObject* parent = nullptr);
    ~SessionFile() override;

    /// The temporary file, "vexmosounds" with the type that was read last as extension.
    const std::filesystem::path& recordFilePath() const { return m_recordFilePath; }
    /// Reads the type from the settings again.
    void updateRecordFilePath();

    /// Starts a session. What an earlier one left at recordFilePath() is rescued, so that nothing is there.
    void begin();
    /// Where the session is to record; nothing is there yet.
    const std::filesystem::path& sessionPath() const { return m_sessionPath; }
    /// The file is there: it gets its second name, recordFilePath(). Not on a file system of its own, where it has
    /// none.
    void didCreate() const;
    /// The session comes to nothing. What there is of sound all the same is rescued.
    void abandon();
    /// Moves the whole file among the recordings, under that base name with the type that is read now, and tells who
    /// lists them; it goes to the cloud, too, and an automatic mail follows. A session's file that is no longer at
    /// recordFilePath() since somebody has edited the type is moved under its own. Returns before any of it is done;
    /// saved() tells. A file that cannot be moved stays where it is until it is rescued. A notice says where the
    /// recording is, and whether it ended by itself.
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

    void clearRecordFilePath() const;
    /// Lets go of the session's folder.
    void leave(bool needsRescue);
    void didMove();
    void say(const std::filesystem::path& moved);
    void emailAudioFile(const std::filesystem::path& path);

    Services m_services;
    std::filesystem::path m_recordFilePath;
    /// What recordFilePath() was when the session began.
    std::filesystem::path m_linkPath;
    std::filesystem::path m_sessionPath;
    /// None where no folder could be made; then the session records to recordFilePath() itself.
    std::optional<LockedFolder> m_folder;
    std::shared_ptr<Moves> m_moves;
    bool m_endedByItself = false;
};

}  // namespace tavi
