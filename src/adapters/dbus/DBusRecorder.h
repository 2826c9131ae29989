#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QStringList>
#include <QVariantMap>
#include <chrono>

#include "platform/Recorder.h"

namespace tavi {

/// The recorder that owns a name on the session bus. It wakes this program when it has changed, comes or goes; there is
/// no looking again and again. Main thread.
class DBusRecorder final : public QObject, public Recorder {
    Q_OBJECT

public:
    /// The command starts the recorder: a program and its arguments, to which the URL is added. A recorder that has not
    /// answered by then is silent; what it answers later counts all the same.
    DBusRecorder(const QDBusConnection& sessionBus, const QString& busName, QStringList startCommand,
                 std::chrono::milliseconds patience = std::chrono::seconds(5));

    RecorderState state() const override { return m_state; }
    void setStateHandler(std::function<void()> handler) override { m_handler = std::move(handler); }
    void open(const QUrl& url, std::function<void(Outcome outcome, const Error& error)> completion) override;

    /// Whether the first answer has come, be it that there is no recorder.
    bool isKnown() const { return m_isKnown; }

private Q_SLOTS:
    void onPropertiesChanged(const QString& interface, const QVariantMap& changed, const QStringList& invalidated);

private:
    void ask(int patienceMs);
    bool start(const QUrl& url) const;
    void setState(const RecorderState& state);
    void apply(const QVariantMap& properties);

    QDBusConnection m_bus;
    const QString m_busName;
    const QStringList m_startCommand;
    const int m_patienceMs;
    QDBusServiceWatcher m_watcher;
    std::function<void()> m_handler;
    RecorderState m_state;
    bool m_isKnown = false;
    /// Questions asked so far: only the answer to the last one counts.
    int m_questions = 0;
};

}  // namespace tavi
