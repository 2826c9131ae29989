#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

#include "platform/RemoteControl.h"

namespace tavi {

class MprisPlayer;

/// Remote control through MPRIS 2 on the session bus. It is there only between
/// begin- and endReceivingRemoteControlEvents(), as "org.mpris.MediaPlayer2.tavi", and with ".instance" and the process
/// number behind it where another instance has that name.
class MprisRemoteControl final : public QObject, public RemoteControl {
    Q_OBJECT

public:
    /// The bus may be unconnected.
    explicit MprisRemoteControl(const QDBusConnection& sessionBus);
    ~MprisRemoteControl() override;

    void setDelegate(RemoteControlDelegate* delegate) override { m_delegate = delegate; }
    void beginReceivingRemoteControlEvents() override;
    void endReceivingRemoteControlEvents() override;
    void setNowPlayingInfo(const NowPlayingInfo& info) override;
    void currentTimeDidJump() override;

    const NowPlayingInfo& nowPlayingInfo() const { return m_info; }
    double currentTime() const;
    void receive(RemoteControlEvent::Subtype subtype, double value = 0.0);

private:
    void requestName(const QString& name, bool isLast);
    void releaseName(const QString& name);

    QDBusConnection m_bus;
    RemoteControlDelegate* m_delegate = nullptr;
    NowPlayingInfo m_info;
    bool m_isReceiving = false;
    /// Tells an answer for this time from one for an earlier.
    int m_beginnings = 0;
    QObject m_object;
    MprisPlayer* m_player;
    /// As they were told last.
    QVariantMap m_told;
};

}  // namespace tavi
