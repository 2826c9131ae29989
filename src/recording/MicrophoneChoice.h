#pragma once

#include <QObject>

#include "app/settings/SettingsStore.h"
#include "platform/AudioSession.h"
#include "platform/Notices.h"
#include "platform/Presenter.h"
#include "platform/RunLoop.h"

namespace tavi {

/// Which microphone is recorded from: its name, and the sheet in which its user chooses another, which is kept. As long
/// as the chosen one is not there, the system's default is recorded from. Main thread only.
class MicrophoneChoice : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString name READ name NOTIFY nameChanged)

public:
    /// What it works with; all of it must outlive this.
    struct Services {
        AudioSession& audioSession;
        SettingsStore& settings;
        RunLoop& runLoop;
        Presenter& presenter;
        Notices& notices;
    };

    explicit MicrophoneChoice(const Services& services, QObject* parent = nullptr);
    ~MicrophoneChoice() override;

    /// What people call the microphone that is or would be recorded from; empty where it is not known.
    QString name() const;
    /// A recording is about to begin: it is made from the chosen microphone, or a notice says from which other.
    void willRecord();
    /// The recording's own word for what it listens to, as the system may have put it on another; empty without one.
    void setInUse(const QString& name);

public Q_SLOTS:
    /// Shows the sheet. It follows what comes and goes while it stands.
    void choose();

Q_SIGNALS:
    void nameChanged();

private:
    void inputsChanged();
    Alert sheet();
    /// An empty uid stands for the system's default.
    void prefer(const AudioSessionPort& port);
    bool isThere(const QString& uid) const;

    Services m_services;
    QString m_inUse;
};

}  // namespace tavi
