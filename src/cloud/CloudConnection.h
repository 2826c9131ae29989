#pragma once

#include <QDateTime>
#include <QObject>
#include <filesystem>
#include <functional>
#include <map>

#include "cloud/CloudAccount.h"
#include "platform/Error.h"

namespace tavi {

/// How the user's cloud is, for whoever shows it.
struct CloudCondition {
    enum class State {
        /// No place is set up.
        None,
        /// There is one, and the switch is off.
        Off,
        /// A folder that another program keeps in sync.
        Folder,
        /// Both sides are being looked at, or a file is under way.
        Working,
        /// Both had the same at lastSync.
        InStep,
        /// `error` says what stands in the way. It is tried again by itself.
        Troubled,
        /// So many files have vanished from the server at once that nothing is done about them before answerVanished().
        Asking,
    };
    State state = State::None;
    /// When both sides had the same; invalid where they never have.
    QDateTime lastSync;
    /// For the user, in whole sentences; empty where nothing stands in the way.
    QString error;
    int vanished = 0;

    bool operator==(const CloudCondition&) const = default;
};

/// Where a file is.
struct CloudFile {
    enum class State {
        There,
        /// It is to be sent.
        Waiting,
        Sending,
        /// It is not here, and is not asked for.
        OnlyThere,
        /// It is asked for.
        Arriving,
    };
    State state = State::There;
    /// Another version of a file, which both devices have changed.
    bool isConflict = false;
    /// Of what is sent or arrives, 0 to 1.
    double progress = 0.0;

    bool operator==(const CloudFile&) const = default;
};

/// The user's cloud as an account: where it is, how it is, and what becomes of its files. Main thread only; nothing
/// waits for a disk or a server, but for a keyring as long as that lets its callers wait.
class CloudConnection : public QObject {
    Q_OBJECT

public:
    using Completion = std::function<void(Result<void>)>;

    virtual CloudAccount account() const = 0;
    virtual CloudCondition condition() const = 0;
    /// By name, what is here and what is only there.
    virtual std::map<std::filesystem::path, CloudFile> files() const = 0;

    /// Asks the place whether it can be the cloud, and if so it is from then on, and the switch is on. The completion
    /// comes later, on the main thread, and says clearly what does not work; then all is as it was. Not while another
    /// one is under way: that one is given up, and its completion is not called.
    virtual void connectTo(const CloudAccount& account, const QString& password, Completion completion) = 0;
    /// Gives up what connectTo() has begun: all stays as it was, and its completion is not called.
    virtual void giveUp() = 0;
    /// There is no cloud any more: the account and its password go, what is here and there stays.
    virtual void removeAccount() = 0;
    /// The account or the switch may have changed in the settings: off stops, on starts.
    virtual void settingsChanged() = 0;
    /// Looks at both sides soon.
    virtual void syncNow() = 0;
    /// Asks for a file that is only there; it arrives later.
    virtual void download(const std::filesystem::path& name) = 0;
    /// What becomes of the files that have vanished: they are removed here, too, to the trash, or sent again.
    virtual void answerVanished(bool areRemoved) = 0;

Q_SIGNALS:
    void conditionChanged();
    void filesChanged();
};

}  // namespace tavi
