#pragma once

#include <QByteArray>
#include <QHash>
#include <QLocale>
#include <filesystem>
#include <functional>
#include <memory>
#include <stop_token>
#include <unordered_map>
#include <vector>

#include "files/FileIdentity.h"
#include "library/RecordingEntry.h"
#include "platform/AudioDuration.h"
#include "platform/RunLoop.h"

namespace tavi {

/// Makes the entries of a folder's files. Main thread only.
///
/// There is no index file: how long each file plays is remembered in memory, for as long as the file and its contents
/// are the same. Finding that out for ten thousand files takes a moment, and for a single large one it may, so a list
/// can be had without it and completed in the background.
class RecordingLister {
public:
    /// Both must outlive the lister.
    RecordingLister(const AudioDuration& durations, RunLoop& runLoop) : m_durations(durations), m_runLoop(runLoop) {}

    enum class Lengths {
        /// Every length is found out before list() returns.
        Measured,
        /// Lengths that are to be found out show as "--:--", and measure() goes on with them.
        Known,
    };

    /// The entries of the folder in the order in which the file system gives the names, without the names that are
    /// never listed. What cannot be read is an empty list, 0 KB or 00:00. Ends a measure() that is still going on.
    std::vector<RecordingEntry> list(const std::filesystem::path& folder, Lengths lengths);

    /// Whether the last list() left lengths open.
    bool isComplete() const { return m_open.empty(); }
    /// Finds out in the background what the last list() left open, and calls update on the main thread as more is
    /// known, the last time with everything.
    void measure(std::function<void()> update);
    /// Whether the last list() left a file's length open, by its native name.
    bool wasOpen(const std::filesystem::path& nativeName) const { return m_openByName.contains(nativeName); }
    /// The length of a file that list() left open, by its native name: "mm:ss" if it is known by now, else "--:--".
    QString durationText(const std::filesystem::path& nativeName) const;

private:
    struct OpenFile {
        std::filesystem::path name;
        std::filesystem::path path;
        FileIdentity identity;
    };
    /// One run of measure(); it is over when nobody holds it any more, and then gives up what it reads.
    struct Pass {
        explicit Pass(std::function<void()> whenKnown) : update(std::move(whenKnown)) {}
        Pass(const Pass&) = delete;
        Pass& operator=(const Pass&) = delete;
        ~Pass() { stop.request_stop(); }

        std::function<void()> update;
        std::size_t done = 0;
        std::stop_source stop;
    };

    RecordingEntry entryOf(const std::filesystem::path& name, const std::filesystem::path& path,
                           const struct stat& attributes);
    QString dateText(const struct stat& attributes);
    void measureNext();
    void measureNow();

    const AudioDuration& m_durations;
    RunLoop& m_runLoop;
    /// Seconds.
    std::unordered_map<FileIdentity, double, FileIdentityHash> m_known;
    /// Dates as shown by the minute, for as long as language and time zone are the same.
    QHash<qint64, QString> m_dates;
    QLocale m_datesLocale;
    QByteArray m_datesZone;
    /// What the last list() left open.
    std::vector<OpenFile> m_open;
    std::unordered_map<std::filesystem::path, FileIdentity> m_openByName;
    std::shared_ptr<Pass> m_pass;
};

}  // namespace tavi
