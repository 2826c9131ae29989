#include "adapters/dbus/DBusNotifyCenter.h"

#include <QDBusMessage>
#include <QUrl>
#include <algorithm>

namespace tavi {

namespace {

const QString kPath = QStringLiteral("/com/quillfen/voicerecorder/notify");
const QString kInterface = QStringLiteral("com.quillfen.voicerecorder.Notify");
const QString kPosted = QStringLiteral("Posted");

/// The name as it travels: percent-encoded, since Qt's rules for what a program wants to hear are not made for more
/// than plain letters. Half a surrogate pair cannot be encoded, and would end the connection.
QString encoded(const QString& name) {
    return QString::fromLatin1(QUrl::toPercentEncoding(name));
}

}  // namespace

void DBusNotifyCenter::postNotification(const QString& name) {
    if (!name.isValidUtf16()) {
        return;
    }
    if (!m_bus.isConnected()) {
        QMetaObject::invokeMethod(
            this, [this, name] { onPosted(encoded(name)); }, Qt::QueuedConnection);
        return;
    }
    QDBusMessage signal = QDBusMessage::createSignal(kPath, kInterface, kPosted);
    signal << encoded(name);
    m_bus.send(signal);
}

void DBusNotifyCenter::addObserver(const void* observer, const QString& name,
                                   std::function<void(const QString& name)> callback) {
    if (!name.isValidUtf16()) {
        return;
    }
    if (!isObserved(name)) {
        listen(name, true);
    }
    m_observers[{name, observer}] = std::move(callback);
}

void DBusNotifyCenter::removeObserver(const void* observer, const QString& name) {
    if (m_observers.erase({name, observer}) > 0 && !isObserved(name)) {
        listen(name, false);
    }
}

void DBusNotifyCenter::removeEveryObserver(const void* observer) {
    const auto ofObserver = [observer](const auto& item) { return item.first.second == observer; };
    for (auto found = m_observers.begin();
         (found = std::find_if(found, m_observers.end(), ofObserver)) != m_observers.end();) {
        const QString name = (found++)->first.first;
        removeObserver(observer, name);
    }
}

void DBusNotifyCenter::onPosted(const QString& encodedName) {
    const QString name = QUrl::fromPercentEncoding(encodedName.toLatin1());
    const auto observers = m_observers;
    for (auto item = observers.lower_bound({name, nullptr}); item != observers.end() && item->first.first == name;
         ++item) {
        // Who has been removed by one of the others is not called any more.
        if (m_observers.contains(item->first)) {
            item->second(name);
        }
    }
}

bool DBusNotifyCenter::isObserved(const QString& name) const {
    const auto found = m_observers.lower_bound({name, nullptr});
    return found != m_observers.end() && found->first.first == name;
}

void DBusNotifyCenter::listen(const QString& name, bool isWanted) {
    const QStringList first{encoded(name)};
    const QString signature = QStringLiteral("s");
    if (isWanted) {
        m_bus.connect({}, kPath, kInterface, kPosted, first, signature, this, SLOT(onPosted(QString)));
    } else {
        m_bus.disconnect({}, kPath, kInterface, kPosted, first, signature, this, SLOT(onPosted(QString)));
    }
}

}  // namespace tavi
