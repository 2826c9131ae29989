#pragma once

#include <QDBusConnection>
#include <memory>

#include "SettingsFiles.h"
#include "adapters/dbus/AtSpiAnnouncer.h"
#include "adapters/dbus/DBusApplication.h"
#include "adapters/dbus/DBusIdleTimer.h"
#include "adapters/dbus/DBusSessionEnd.h"
#include "adapters/dbus/LogindSleep.h"
#include "adapters/dbus/MprisRemoteControl.h"
#include "adapters/desktop/AppstreamCatalogue.h"
#include "adapters/desktop/DesktopDocumentInteraction.h"
#include "adapters/desktop/DesktopDocumentPicker.h"
#include "adapters/desktop/DesktopMailComposer.h"
#include "adapters/desktop/DesktopUrlOpener.h"
#include "adapters/network/SystemReachability.h"
#include "adapters/player/FilePlayer.h"
#include "adapters/plist/LibplistPropertyLists.h"
#include "adapters/pulse/PulseAudioInput.h"
#include "adapters/pulse/PulseAudioOutput.h"
#include "adapters/pulse/PulseAudioSession.h"
#include "adapters/pulse/PulseConnection.h"
#include "adapters/qt/MediaLibrary.h"
#include "adapters/qt/QtRunLoop.h"
#include "adapters/qt/QtTrash.h"
#include "adapters/quick/QuickDisplayRefreshes.h"
#include "adapters/quick/QuickPasteboard.h"
#include "adapters/recorder/CaptureRecorder.h"
#include "adapters/secret/SystemKeychain.h"
#include "app/settings/FormatHold.h"
#include "passcode/MailComposerGuard.h"
#include "passcode/NoticesGuard.h"
#include "passcode/RemoteControlGuard.h"
#include "platform/LockState.h"
#include "ui/AlertPresenter.h"
#include "ui/Announcements.h"
#include "ui/JHUD.h"
#include "ui/NoticeLine.h"
#include "ui/SavePanel.h"
#include "ui/TabBarController.h"

namespace tavi {

/// What the screens work with: an adapter for each port, and the shell.
struct Platform {
    Platform(const AppContainer& folders, const QString& busName);

    const AppContainer& container;
    QDBusConnection bus = QDBusConnection::sessionBus();
    LockState lockState;
    LogindSleep systemSleep{QDBusConnection::systemBus(), qtTrId("sleep_reason")};
    NotificationCenter notifications;
    DBusApplication application;
    SettingsFiles settings{container};
    FormatHold formatHold{container};
    MediaLibrary media;
    QtTrash trash;
    QtRunLoop runLoop;
    std::shared_ptr<PulseConnection> pulse = std::make_shared<PulseConnection>();
    PulseAudioSession audioSession{pulse};
    PulseAudioInputs audioInputs{pulse};
    PulseAudioOutputs audioOutputs{pulse};
    CaptureRecorders audioRecorders{audioInputs, media, runLoop};
    FilePlayers audioPlayers{media, media, audioOutputs, runLoop};
    DBusIdleTimer idleTimer{bus, qtTrId("idle_reason")};
    DBusSessionEnd sessionEnd{bus, qtTrId("session_end_reason")};
    PortalRequests portal{bus};
    DesktopMailComposer desktopMail{portal};
    MailComposerGuard mailComposer{desktopMail, lockState};
    DesktopDocumentInteraction documentInteraction{bus, portal};
    SavePanel savePanel{runLoop};
    DesktopDocumentPicker documentPicker{portal, qtTrId("save_title"), savePanel};
    QuickPasteboard pasteboard;
    MprisRemoteControl mpris{bus};
    RemoteControlGuard remoteControl{mpris, lockState};
    SystemKeychain keychain{StorePlaces::of(container), runLoop};
    LibplistPropertyLists propertyLists;
    QuickDisplayRefreshes refreshes;
    AlertPresenter presenter;
    NoticeLine noticeLine{runLoop};
    NoticesGuard notices{noticeLine, lockState};
    JHUD hudView;
    DesktopUrlOpener urlOpener{portal};
    AppstreamCatalogue catalogue;
    SystemReachability reachability{QDBusConnection::systemBus()};
    AtSpiAnnouncer announcer;
    Announcements announcements{announcer};
    TabBarController tabBar;

private:
    void claimName();
};

}  // namespace tavi
