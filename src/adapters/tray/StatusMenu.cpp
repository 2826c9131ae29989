#include "adapters/tray/StatusMenu.h"

#include <utility>

namespace tavi {

using tray::Item;
using tray::Layout;

StatusMenu::StatusMenu(const QDBusConnection& sessionBus) : m_bus(sessionBus) {
    tray::registerTypes();
    m_bus.registerObject(
        kPath, this,
        QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals | QDBusConnection::ExportAllProperties);
}

StatusMenu::~StatusMenu() {
    m_bus.unregisterObject(kPath);
}

void StatusMenu::show(const QList<StatusEntry>& entries) {
    const QList<StatusEntry> former = std::exchange(m_entries, entries);
    if (former.size() != entries.size()) {
        Q_EMIT LayoutUpdated(++m_revision, 0);
        return;
    }
    QList<Item> updated;
    for (int i = 0; i < entries.size(); ++i) {
        if (entries[i] != former[i]) {
            updated.append({.id = i + 1, .properties = propertiesOf(i + 1)});
        }
    }
    if (!updated.isEmpty()) {
        Q_EMIT ItemsPropertiesUpdated(updated, {});
    }
}

QVariantMap StatusMenu::propertiesOf(int id) const {
    if (id == 0) {
        return {{QStringLiteral("children-display"), QStringLiteral("submenu")}};
    }
    const StatusEntry& entry = m_entries[id - 1];
    if (entry.label.isEmpty()) {
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    }
    // An underscore would mark the letter after it.
    QString label = entry.label;
    return {{QStringLiteral("label"), label.replace(QLatin1Char('_'), QLatin1String("__"))},
            {QStringLiteral("enabled"), entry.isEnabled}};
}

uint StatusMenu::GetLayout(int parentId, int recursionDepth, const QStringList&, Layout& layout) {
    if (hasItem(parentId)) {
        layout = {.id = parentId, .properties = propertiesOf(parentId), .below = {}};
    }
    if (parentId == 0 && recursionDepth != 0) {
        for (int id = 1; id <= m_entries.size(); ++id) {
            layout.below.append({.id = id, .properties = propertiesOf(id), .below = {}});
        }
    }
    return m_revision;
}

QList<Item> StatusMenu::GetGroupProperties(const QList<int>& ids, const QStringList&) {
    QList<Item> items;
    for (int id = 0; id <= m_entries.size(); ++id) {
        if (ids.isEmpty() || ids.contains(id)) {
            items.append({.id = id, .properties = propertiesOf(id)});
        }
    }
    return items;
}

QDBusVariant StatusMenu::GetProperty(int id, const QString& name) {
    const QVariant value = hasItem(id) ? propertiesOf(id).value(name) : QVariant();
    return QDBusVariant(value.isValid() ? value : QVariant(QString()));
}

void StatusMenu::Event(int id, const QString& eventId, const QDBusVariant&, uint) {
    if (eventId == QLatin1String("clicked") && id > 0 && hasItem(id) && m_entries[id - 1].isEnabled && m_handler) {
        m_handler(m_entries[id - 1].action);
    }
}

QList<int> StatusMenu::EventGroup(const QList<tray::Event>& events) {
    QList<int> wrong;
    for (const tray::Event& event : events) {
        if (!hasItem(event.id)) {
            wrong.append(event.id);
        }
        Event(event.id, event.name, event.data, event.timestamp);
    }
    return wrong;
}

bool StatusMenu::AboutToShow(int) {
    return false;
}

QList<int> StatusMenu::AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors) {
    for (const int id : ids) {
        if (!hasItem(id)) {
            idErrors.append(id);
        }
    }
    return {};
}

}  // namespace tavi
