#pragma once

#include <QObject>
#include <filesystem>
#include <functional>
#include <memory>

#include "platform/Outlets.h"
#include "trimming/AudioTrimPlayer.h"
#include "trimming/AudioTrimServices.h"
#include "trimming/RangeSlider.h"
#include "trimming/waves/SCWaveformView.h"

namespace tavi {

/// The screen that exports whole seconds of a recording, always as M4A data. Main thread only.
class AudioTrim : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString lblFileName READ lblFileName CONSTANT)
    Q_PROPERTY(QString accentColor READ accentColor CONSTANT)
    Q_PROPERTY(tavi::RangeSlider* rangeSlider READ rangeSlider CONSTANT)
    Q_PROPERTY(tavi::SCWaveformView* waveformView READ waveformView CONSTANT)
    Q_PROPERTY(tavi::ButtonOutlet btnSave READ btnSave CONSTANT)
    Q_PROPERTY(tavi::ButtonOutlet btnTrim READ btnTrim NOTIFY outletsChanged)
    Q_PROPERTY(tavi::ButtonOutlet btnStop READ btnStop NOTIFY outletsChanged)
    Q_PROPERTY(tavi::ButtonOutlet btnPlay READ btnPlay NOTIFY outletsChanged)
    /// The text below the progress indicator; empty while none is shown.
    Q_PROPERTY(QString indicatorText READ indicatorText NOTIFY outletsChanged)
    Q_PROPERTY(QString lblCurrentTime READ lblCurrentTime NOTIFY timeChanged)
    Q_PROPERTY(QString lblDuration READ lblDuration NOTIFY timeChanged)
    Q_PROPERTY(double currentTime READ currentTime NOTIFY timeChanged)
    Q_PROPERTY(double duration READ duration NOTIFY timeChanged)

public:
    using Services = AudioTrimServices;

    /// fileName is the recording's full path; section the list's section that it comes from.
    AudioTrim(const Services& services, std::filesystem::path fileName, QString section, QObject* parent = nullptr);

    QString title() const { return qtTrId("trimming_audio"); }
    QString lblFileName() const;
    QString accentColor() const;
    RangeSlider* rangeSlider() { return &m_rangeSlider; }
    SCWaveformView* waveformView() { return &m_waveformView; }
    ButtonOutlet btnSave() const;
    ButtonOutlet btnTrim() const;
    ButtonOutlet btnStop() const;
    ButtonOutlet btnPlay() const;
    QString indicatorText() const { return m_indicatorText; }
    QString lblCurrentTime() const;
    QString lblDuration() const;
    /// Of what plays, of the recording while nothing does.
    double currentTime() const { return m_player.currentTime(); }
    double duration() const { return m_player.duration(); }
    /// The stretch to keep, as the slider said last.
    double leftValue() const { return m_leftValue; }
    double rightValue() const { return m_rightValue; }
    std::filesystem::path outputPath() const { return m_outputPath; }

    /// Called when the list of recordings is to be read again; may outlive the screen.
    void setTrimDelegate(std::function<void()> reloadTableViewDataSource);
    /// Exports whole seconds into the file at that path; one that is there steps aside to a free name. False, with
    /// nothing exported, for a file without sound.
    bool exportAsset(const Asset& asset, const std::filesystem::path& path);
    /// Moves the new file into a folder, and closes.
    void addTrimFileWithFilePath(const std::filesystem::path& folder);
    /// Deletes a file of the documents folder, and closes.
    void removeFile(const std::filesystem::path& fileName);

public Q_SLOTS:
    void viewDidLoad();
    void updateRangeLabel();
    void playOriginalAudio() { m_player.playOrPause(); }
    /// Plays the cut; the recording while nothing has been cut.
    void playTrimmedAudio();
    void stopAudio() { m_player.stop(); }
    /// The position slider was moved.
    void playerSliderMoved(double seconds) { m_player.setCurrentTime(seconds); }
    /// Cuts, and leaves unless the cut goes to the cloud. Nothing while a cut is being made.
    void trimAudio();
    /// Leaves; a cut that was kept on screen is asked about first.
    void backButtonpressed();
    void closeButtonpressed() { close(); }

Q_SIGNALS:
    void outletsChanged();
    void timeChanged();
    /// The screen is to leave.
    void closed();

private:
    bool isTrimming() const { return !m_indicatorText.isEmpty(); }
    /// A cut that goes to the cloud once it is complete, and not before its time.
    struct CloudCut {
        bool isDue = false;
        bool isComplete = false;
        bool isSaved = false;
    };
    static void saveImagesInIPhone(const Services& services, const std::filesystem::path& path, CloudCut& cut);
    bool goesToCloud() const { return m_services.settings.isCloudSyncOn() && m_section == QLatin1String("1"); }
    void close();

    Services m_services;
    std::filesystem::path m_fileName;
    QString m_section;
    RangeSlider m_rangeSlider;
    SCWaveformView m_waveformView;
    AudioTrimPlayer m_player;
    std::function<void()> m_reloadTableViewDataSource;
    std::filesystem::path m_outputPath;
    std::shared_ptr<CloudCut> m_cloudCut;
    QString m_indicatorText;
    double m_leftValue = 0.0;
    double m_rightValue = 0.0;
    bool m_isTrimEnabled = false;
    bool m_isTrimmed = false;
    bool m_isTrimDone = false;
};

}  // namespace tavi
