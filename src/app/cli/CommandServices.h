#pragma once

#include <QByteArray>
#include <QStringList>

#include "app/settings/SettingsStore.h"
#include "cloud/CloudAccount.h"
#include "platform/AppContainer.h"
#include "platform/AssetExportSession.h"
#include "platform/AudioConverter.h"
#include "platform/AudioDuration.h"
#include "platform/AudioFileRepair.h"
#include "platform/DisplayRefresh.h"
#include "platform/ExtAudioFile.h"
#include "platform/NotificationCenter.h"
#include "platform/RunLoop.h"
#include "platform/Trash.h"
#include "platform/UserDefaults.h"

namespace tavi {

/// The two suites of settings, as the command line sees them.
struct Suites {
    UserDefaults& standard;
    /// Of the application group.
    UserDefaults& shared;

    /// The settings as the program finds them after its first launch, which this may be: a value that is set before it
    /// would be lost to the launch otherwise.
    SettingsStore launched() const {
        SettingsStore store(standard);
        store.writeFirstLaunchValues();
        store.writeSortIfAbsent();
        return store;
    }
};

/// What a command that goes on after a failure comes to.
struct CommandOutput {
    /// For standard output.
    QByteArray text = {};
    /// For standard error, a line each; with any the command has failed.
    QStringList failures = {};
};

/// What the commands on the cloud ask for.
struct CloudCommands {
    /// Makes the place the cloud's, and keeps the password.
    std::function<Result<void>(const CloudAccount& account, const QString& password)> prepare;
    /// Has both sides of a server's account agree.
    std::function<Result<void>(const CloudAccount& account)> sync;
    /// From the terminal, or a line of standard input.
    std::function<QString()> askForPassword;
};

/// What the commands that print and end work with. All of it outlives the command.
struct CommandServices {
    const AppContainer& container;
    Suites suites;
    RunLoop& runLoop;
    const AudioDuration& durations;
    ExtAudioFiles& files;
    AudioConverters& converters;
    AssetExportSessions& exports;
    AudioFileRepair& repair;
    Trash& trash;
    DisplayRefreshes& refreshes;
    /// Has the running program hear that the recordings have changed.
    NotificationCenter& notifications;
    CloudCommands cloud;
};

}  // namespace tavi
