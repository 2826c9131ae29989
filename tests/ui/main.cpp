#include <gmock/gmock.h>

#include <QAccessible>
#include <QFont>
#include <QGuiApplication>
#include <QQuickWindow>

#include "Screens.h"
#include "ui/AccessibleItem.h"
#include "ui/Texts.h"

namespace {

/// What QML complains of, a binding loop or a missing property, is a fault.
void failOnWarning(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type != QtDebugMsg && type != QtInfoMsg) {
        ADD_FAILURE() << qPrintable(text);
    }
}

}  // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    // The texts that are compared are English, wherever the tests run. Pictures can be looked at in others.
    qputenv("LANGUAGE", qEnvironmentVariable("TAVI_LANGUAGE", QStringLiteral("en")).toUtf8());
    // A movement of the fingers is heard at once, not with the next picture.
    qputenv("QML_NO_TOUCH_COMPRESSION", "1");
    QGuiApplication application(argc, argv);
    QGuiApplication::setFont(QFont(QStringLiteral("Roboto")));
    QGuiApplication::setLayoutDirection(tavi::installTexts(application));
    tavi::installAccessibleItems();
    // As with a screen reader on the desktop.
    QAccessible::setActive(true);
    qInstallMessageHandler(failOnWarning);
    return RUN_ALL_TESTS();
}
