#pragma once

#include <QList>
#include <QObject>
#include <deque>
#include <filesystem>
#include <stop_token>
#include <unordered_map>

#include "files/FileIdentity.h"
#include "platform/RunLoop.h"
#include "trimming/waves/WaveformSample.h"

namespace tavi {

/// The shapes that stand for recordings in lists. Main thread only.
///
/// Each is made once, in the background, and remembered for as long as the file and its contents are the same. One file
/// is read at a time, some moments after it was first asked for: what is seen in passing costs next to nothing.
class RecordingShapes : public QObject {
    Q_OBJECT

public:
    /// Both must outlive the shapes, and what these still do in the background.
    RecordingShapes(ExtAudioFiles& files, RunLoop& runLoop) : m_files(files), m_runLoop(runLoop) {}
    /// What is being read is given up soon.
    ~RecordingShapes() override { m_stop.request_stop(); }

    /// The shape of the file at a path; null until it has been made, which this asks for. What was asked for last is
    /// made first; of more than a screen can show, the oldest are dropped until they are asked for again.
    const WaveformSample* shapeOf(const FileIdentity& identity, const std::filesystem::path& path);
    /// The same as numbers from 0 to 1; none where it has not been made, or there is no file.
    QList<qreal> levelsOf(const FileIdentity& identity, const std::filesystem::path& path);

Q_SIGNALS:
    /// The shape is there from now on.
    void made(const tavi::FileIdentity& identity);

private:
    struct Wanted {
        FileIdentity identity;
        std::filesystem::path path;
    };

    void makeNext();

    ExtAudioFiles& m_files;
    RunLoop& m_runLoop;
    std::unordered_map<FileIdentity, WaveformSample, FileIdentityHash> m_known;
    /// The newest last.
    std::deque<Wanted> m_wanted;
    bool m_isRunning = false;
    std::stop_source m_stop;
};

}  // namespace tavi
