#pragma once

#include <QDBusMessage>
#include <QProcess>
#include <QTemporaryDir>

#include "support/PrivateBus.h"

namespace tavi::test {

/// A keyring of the test's own on a bus of its own, with its files in a home of its own; unlocked at the start. It can
/// be killed, stopped, started again and locked. One that does not start ends the test.
struct PrivateKeyring {
    PrivateKeyring() { start(); }
    ~PrivateKeyring() { kill(); }

    void start();
    /// As when it crashes.
    void kill();
    /// Has it hang, and go on.
    void setHanging(bool hanging);
    /// Only a question for its password would open it; nobody here asks one.
    void lock();
    /// Ends the bus with all that is on it.
    void endBus();
    /// On another bus, with the same items.
    void beginAnew();
    /// How many items it holds.
    int itemCount();

private:
    QDBusConnection connection();
    /// The answer, once it is there.
    QDBusMessage ask(const QString& path, const QString& interface, const QString& method,
                     const QVariantList& arguments);

    std::optional<PrivateBus> m_bus = std::make_optional<PrivateBus>();
    QTemporaryDir m_home;
    std::unique_ptr<QProcess> m_daemon;
};

}  // namespace tavi::test
