// The least that a Qt Quick program of this size does: a black window. What the recorder takes longer to start is its
// own.
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <cstdio>

int main(int argc, char** argv) {
    QElapsedTimer sinceStart;
    sinceStart.start();
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.loadData("import QtQuick\nWindow { width: 390; height: 844; visible: true; color: 'black' }");
    auto* window = engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(engine.rootObjects().first());
    if (window == nullptr) {
        return 1;
    }
    const auto report = [&sinceStart] {
        std::fprintf(stderr, "trace: first-frame %lld\n", static_cast<long long>(sinceStart.nsecsElapsed() / 1000));
    };
    QObject::connect(window, &QQuickWindow::frameSwapped, window, report, Qt::SingleShotConnection);
    return QGuiApplication::exec();
}
