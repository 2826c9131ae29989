#pragma once

#include <QByteArray>
#include <QStringList>

#include "app/settings/SettingsStore.h"
#include "cloud/CloudConnection.h"
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

/// What is known of the cloud without asking it.
struct CloudOverview {
    /// By name, what is here and what is only there.
    std::map<std::filesystem::path, CloudFile> files;
    /// When both sides had the same; invalid where they never have, or another program sees to that.
    QDateTime lastSync;
};

/// What the commands on the cloud ask for.
struct CloudCommands {
    /// Makes the place the cloud's, and keeps the password.
    std::function<Result<void>(const CloudAccount& account, const QString& password)> prepare;
    /// Forgets the password.
    std::function<void(const CloudAccount& account)> forget;
    /// Has both sides of a server's account agree. Files that have vanished from the server all at once are removed
    /// here, too, or sent again, or it fails and says so.
    std::function<Result<void>(const CloudAccount& account, std::optional<bool> areVanishedRemoved)> sync;
    std::function<CloudOverview(const CloudAccount& account)> look;
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
