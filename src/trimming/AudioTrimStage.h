#pragma once

#include <QObject>
#include <functional>

#include "trimming/AudioTrim.h"

namespace tavi {

/// Where the screen that exports whole seconds is shown: owns it while it is on screen. Main thread only.
class AudioTrimStage : public QObject {
    Q_OBJECT
    /// The screen to show; null while there is none.
    Q_PROPERTY(tavi::AudioTrim* screen READ screen NOTIFY screenChanged)

public:
    explicit AudioTrimStage(const AudioTrim::Services& services, QObject* parent = nullptr)
        : QObject(parent), m_services(services) {}

    AudioTrim* screen() const { return m_screen; }
    /// Loads and shows a screen for a recording of that section of the list. While one is shown another is not.
    void show(const std::filesystem::path& fileName, const QString& section);
    /// What AudioTrim::setTrimDelegate() says, for every screen from now on.
    void setTrimDelegate(std::function<void()> reloadTableViewDataSource) {
        m_reload = std::move(reloadTableViewDataSource);
    }

Q_SIGNALS:
    void screenChanged();

private:
    AudioTrim::Services m_services;
    std::function<void()> m_reload;
    AudioTrim* m_screen = nullptr;
};

}  // namespace tavi
