#pragma once

#include <QObject>
#include <filesystem>
#include <memory>
#include <set>
#include <vector>

#include "platform/AppContainer.h"
#include "platform/AudioFileRepair.h"
#include "platform/Notices.h"
#include "platform/NotificationCenter.h"
#include "platform/RunLoop.h"

namespace tavi {

/// Brings recordings that were not saved among the others: those of a program that was killed, and those whose saving
/// failed. Each is completed and gets a free name, "Recovered_" and the moment at which it began; one without sound
/// goes. What cannot be saved yet stays where it is, and is tried again as long as it is there. Main thread only, but
/// for rescueAll(); disks are waited for in the background.
class RecordingRescue : public QObject {
    Q_OBJECT

public:
    /// What it works with; all of it must outlive this.
    struct Services {
        const AppContainer& container;
        AudioFileRepair& repair;
        RunLoop& runLoop;
        NotificationCenter& notifications;
        Notices& notices;
    };

    /// What became of a recording.
    struct Rescued {
        enum class Outcome {
            /// It is at the path.
            Saved,
            /// There was no sound in the file of that path.
            Dropped,
            /// It stays at the path, for a reason.
            Kept,
            /// Somebody else records into the folder of that path, or rescues what is in it.
            InUse,
        };
        Outcome outcome;
        std::filesystem::path path;
        QString reason = {};
    };

    /// Rescues all that nobody else has, and says what it did. Background threads, and programs without a window;
    /// several may do so at once.
    static std::vector<Rescued> rescueAll(const AppContainer& container, AudioFileRepair& repair);

    explicit RecordingRescue(const Services& services, QObject* parent = nullptr);

    /// Does that in the background, tells who lists the recordings, and says it to the user once.
    void rescue();

Q_SIGNALS:
    /// A recording is among the others now.
    void rescued(const std::filesystem::path& path);

private:
    void didRescue(const std::vector<Rescued>& all);

    Services m_services;
    bool m_isRunning = false;
    bool m_isAskedAgain = false;
    /// What could not be saved, as the user knows.
    std::set<std::filesystem::path> m_waiting;
    std::shared_ptr<Timer> m_retry;
};

}  // namespace tavi
