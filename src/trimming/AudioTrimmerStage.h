#pragma once

#include <QObject>
#include <memory>

#include "trimming/AudioTrimmerViewController.h"

namespace tavi {

/// Where the trimmer is shown: owns it while it is on screen, and until its exports and recordings have ended. Main
/// thread only.
class AudioTrimmerStage : public QObject {
    Q_OBJECT
    /// The screen to show; null while there is none.
    Q_PROPERTY(tavi::AudioTrimmerViewController* screen READ screen NOTIFY screenChanged)

public:
    explicit AudioTrimmerStage(const AudioTrimmerViewController::Services& services, QObject* parent = nullptr);
    ~AudioTrimmerStage() override;

    /// What the stage's screens work with.
    const AudioTrimmerViewController::Services& services() const { return m_services; }
    AudioTrimmerViewController* screen() const { return m_screen; }
    /// Loads and shows a screen. While one is shown, which covers whatever could ask, another is not.
    void show(std::unique_ptr<AudioTrimmerViewController> screen);

Q_SIGNALS:
    void screenChanged();

private:
    void letGo(AudioTrimmerViewController* screen);
    void deleteWhenIdle(AudioTrimmerViewController* screen);

    AudioTrimmerViewController::Services m_services;
    AudioTrimmerViewController* m_screen = nullptr;
};

}  // namespace tavi
