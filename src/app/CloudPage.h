#pragma once

#include <QObject>

#include "cloud/CloudConnection.h"
#include "platform/DocumentPicker.h"
#include "platform/Presenter.h"
#include "platform/Reachability.h"

namespace tavi {

/// The account page of the settings: asks where the user's cloud is, and shows how it is. Main thread only.
class CloudPage : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY changed)
    Q_PROPERTY(bool hasAccount READ hasAccount NOTIFY changed)
    Q_PROPERTY(QString placeText READ placeText NOTIFY changed)
    Q_PROPERTY(QString stateText READ stateText NOTIFY changed)
    Q_PROPERTY(QString lastSyncText READ lastSyncText NOTIFY changed)
    Q_PROPERTY(QString errorText READ errorText NOTIFY changed)
    Q_PROPERTY(bool isServer READ isServer NOTIFY changed)
    Q_PROPERTY(bool isAsking READ isAsking NOTIFY changed)
    Q_PROPERTY(bool isServerAsked READ isServerAsked NOTIFY changed)
    Q_PROPERTY(bool isConnecting READ isConnecting NOTIFY changed)

public:
    /// All of it must outlive the page.
    struct Services {
        CloudConnection& cloud;
        DocumentPicker& picker;
        Presenter& presenter;
        const Reachability& reachability;
    };

    explicit CloudPage(const Services& services, QObject* parent = nullptr);

    bool isOpen() const { return m_isOpen; }
    bool hasAccount() const { return account().kind != CloudAccount::Kind::None; }
    /// The folder, or the address and who the user is there.
    QString placeText() const;
    QString stateText() const;
    /// When both sides were alike last; empty where nobody knows.
    QString lastSyncText() const;
    /// What stands in the way, of the account or of the attempt to connect.
    QString errorText() const;
    bool isServer() const { return account().kind == CloudAccount::Kind::Server; }
    /// Whether the user is to say what becomes of files that have vanished.
    bool isAsking() const { return m_services.cloud.condition().state == CloudCondition::State::Asking; }
    /// Whether the fields for a server are shown.
    bool isServerAsked() const { return m_isServerAsked; }
    bool isConnecting() const { return m_isConnecting; }

public Q_SLOTS:
    void open();
    /// Gives up an attempt to connect, too.
    void close();
    /// Has the user choose a folder, which then is the cloud.
    void askForFolder();
    void askForServer(bool isAsked);
    /// The cloud is to be that folder of a server; asks first where everything would go there in the clear.
    void connectToServer(const QString& address, const QString& user, const QString& password);
    void syncNow();
    /// Asks whether to, then leaves the cloud.
    void disconnectAccount();
    void askAboutVanished();
    /// The switch in the settings was turned.
    void settingsChanged() { m_services.cloud.settingsChanged(); }

Q_SIGNALS:
    void changed();
    /// There is a cloud from now on, or none any more.
    void accountChanged();

private:
    CloudAccount account() const { return m_services.cloud.account(); }
    void connectTo(const CloudAccount& account, const QString& password);
    void conditionChanged();
    void giveUp();
    bool mayUseNetwork(const CloudAccount& account) const;

    Services m_services;
    bool m_isOpen = false;
    bool m_isServerAsked = false;
    bool m_isConnecting = false;
    /// The user has been asked about what has vanished, and has answered.
    bool m_wasAsking = false, m_hasAnswered = false;
    /// Counts attempts, so that the answer to one that was given up is none.
    int m_attempt = 0;
    QString m_connectError;
};

}  // namespace tavi
