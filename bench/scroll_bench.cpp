// Scrolling a library of ten thousand recordings, rendered in software: how long a picture takes from the movement of
// the list until it is there. In a phone's window, or scroll_bench WIDTH HEIGHT [SCALE].

#include <QElapsedTimer>
#include <QFont>
#include <QGuiApplication>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "Screens.h"
#include "ui/Shell.h"
#include "ui/Texts.h"

namespace {

constexpr int kRecordings = 10'000;
constexpr int kPictures = 600;
/// A fast flick: a row and a half from one picture to the next.
constexpr double kStep = 97.0;
constexpr double kFrame = 16.0;

/// Of this thread, which draws all, too: what another program's work beside it does not change.
double processorMilliseconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", argc > 3 ? argv[3] : "1");
    const QSize size = argc > 2 ? QSize(std::atoi(argv[1]), std::atoi(argv[2])) : QSize(390, 844);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    QGuiApplication::setFont(QFont(QStringLiteral("Roboto")));
    tavi::installTexts(application);
    const tavi::test::Shell shell([](tavi::test::Shell& made) {
        for (int i = 0; i < kRecordings; ++i) {
            made.container.addDocument("2024_Mar_05_" + std::to_string(10000 + i) + ".m4a",
                                       QByteArray(1 + i % 997, 'x'));
        }
        made.tabBar.select(1);
    });
    shell.window->resize(size);
    shell.settle();
    QQuickItem* list = shell.item("tableView");
    if (list->property("count").toInt() != kRecordings) {
        std::fprintf(stderr, "scroll_bench: there is no list of %d\n", kRecordings);
        return 1;
    }
    bool isDrawn = false;
    QObject::connect(shell.window, &QQuickWindow::frameSwapped, list, [&isDrawn] { isDrawn = true; });
    std::vector<double> milliseconds;
    std::vector<double> worked;
    double place = 0.0;
    for (int i = 0; i < kPictures; ++i) {
        QElapsedTimer timer;
        timer.start();
        const double before = processorMilliseconds();
        isDrawn = false;
        list->setProperty("contentY", place += kStep);
        while (!isDrawn) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 1000);
        }
        worked.push_back(processorMilliseconds() - before);
        milliseconds.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    const auto late = std::count_if(milliseconds.begin(), milliseconds.end(), [](double ms) { return ms > kFrame; });
    std::sort(milliseconds.begin(), milliseconds.end());
    std::printf("figure: picture %.2f ms aim 16\n", milliseconds[milliseconds.size() / 2]);
    std::printf("figure: slowest-of-a-hundred %.2f ms aim 16\n", milliseconds[milliseconds.size() * 99 / 100]);
    std::printf("figure: slowest %.2f ms\n", milliseconds.back());
    std::sort(worked.begin(), worked.end());
    std::printf("figure: processor %.2f ms\n", worked[worked.size() / 2]);
    std::printf("figure: processor-slowest-of-a-hundred %.2f ms\n", worked[worked.size() * 99 / 100]);
    std::printf("figure: processor-slowest %.2f ms\n", worked.back());
    std::printf("figure: dropped %lld of-%d aim 0\n", static_cast<long long>(late), kPictures);
    return 0;
}
