#include "adapters/tray/StatusItem.h"

#include <gmock/gmock.h>

#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDBusVirtualObject>

#include "support/EventLoop.h"
#include "support/PrivateBus.h"

namespace tavi::test {
namespace {

/// The desktop's list of icons, which writes down who comes.
struct Watcher : QDBusVirtualObject {
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        icons << message.arguments().value(0).toString();
        return connection.send(message.createReply());
    }
    QStringList icons;
};

TEST(StatusItem, TellsEveryPanelOfEachChange) {
    PrivateBus bus;
    QDBusConnection panel = bus.connect();
    const QString name = QStringLiteral("org.kde.StatusNotifierWatcher");
    Watcher watcher;
    ASSERT_TRUE(panel.registerVirtualObject(QStringLiteral("/StatusNotifierWatcher"), &watcher));
    StatusItem item(bus.connect(), QStringLiteral("id"));
    StatusContent content{.iconName = QStringLiteral("icon"), .title = QStringLiteral("title"), .tip = {}, .menu = {}};
    item.show(content);
    // Panels come, go and come again.
    for (int times = 1; times <= 2; ++times) {
        ASSERT_TRUE(panel.registerService(name));
        ASSERT_TRUE(spinUntil([&] { return watcher.icons.size() == times && item.hasHost(); }));
        panel.unregisterService(name);
        ASSERT_TRUE(spinUntil([&item] { return !item.hasHost(); }));
    }
    int tips = 0;
    QObject::connect(&item, &StatusItem::NewToolTip, [&tips] { ++tips; });
    content.tip = QStringLiteral("tip");
    item.show(content);
    item.show(content);
    EXPECT_EQ(tips, 1);
    QDBusMessage question =
        QDBusMessage::createMethodCall(watcher.icons.first(), QStringLiteral("/StatusNotifierItem"),
                                       QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << QStringLiteral("org.kde.StatusNotifierItem") << QStringLiteral("ToolTip");
    const QDBusPendingReply<QVariant> answer = panel.asyncCall(question);
    ASSERT_TRUE(spinUntil([&answer] { return answer.isFinished(); }));
    const auto tip = qdbus_cast<tray::ToolTip>(answer.value());
    EXPECT_EQ(tip.title + tip.text, QStringLiteral("titletip"));

    StatusMenu menu(bus.connect());
    QList<StatusEntry> entries{{.action = 1, .label = QStringLiteral("a")},
                               {.action = 2, .label = QStringLiteral("b_")}};
    menu.show(entries);
    QList<tray::Item> changed;
    QObject::connect(&menu, &StatusMenu::ItemsPropertiesUpdated, [&changed](const auto& items) { changed += items; });
    entries[1].isEnabled = false;
    menu.show(entries);
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(changed[0].id, 2);
    EXPECT_EQ(changed[0].properties,
              (QVariantMap{{QStringLiteral("label"), QStringLiteral("b__")}, {QStringLiteral("enabled"), false}}));
}

}  // namespace
}  // namespace tavi::test
