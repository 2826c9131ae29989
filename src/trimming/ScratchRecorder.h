#pragma once

#include <QObject>
#include <memory>

#include "platform/AssetExportSession.h"
#include "platform/AudioRecorder.h"
#include "platform/AudioSession.h"
#include "platform/RunLoop.h"
#include "trimming/ScratchFiles.h"

namespace tavi {

/// The trimmer's small recorder into its scratch files. Main thread only.
class ScratchRecorder : public QObject, private AudioRecorderDelegate {
    Q_OBJECT

public:
    struct Services {
        AudioRecorders& recorders;
        AudioSession& audioSession;
    };

    /// All of it must outlive the recorder. The scratch files lie in the folder.
    ScratchRecorder(const Services& services, AssetExportSessions& assets, RunLoop& runLoop,
                    const std::filesystem::path& folder, QObject* parent = nullptr);
    ~ScratchRecorder() override;

    /// From prepareToRecordAudio() until recorded() has come.
    bool isBusy() const { return m_isBusy; }
    /// Makes a recorder over a new file. False, with the reason in the log, when that cannot be.
    bool prepareToRecordAudio();
    void record();
    void stop();
    /// Makes the copy anew.
    void replaceCopy() { m_files.replaceCopy(); }
    /// Ends a recording, and lets go of the files as soon as that is whole.
    void close();

Q_SIGNALS:
    /// A recording has ended, and is that many seconds long; 0 when nothing came of it and the files are as before.
    void recorded(double seconds);

private:
    void audioRecorderDidFinishRecording(AudioRecorder& recorder, const std::optional<Error>& error) override;
    void didMeasure(double seconds, bool holdsSound);
    bool fail(const Error& error);

    Services m_services;
    AssetExportSessions& m_assets;
    RunLoop& m_runLoop;
    ScratchFiles m_files;
    std::unique_ptr<AudioRecorder> m_recorder;
    bool m_isBusy = false;
    bool m_isClosing = false;
};

}  // namespace tavi
