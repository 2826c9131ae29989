// How long the trimmer takes from being asked for to its first picture, and from a step of a finger to the next one.

#include <QFont>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <algorithm>
#include <chrono>
#include <cstdio>

#include "Screens.h"
#include "adapters/qt/QtRunLoop.h"
#include "support/FakeAssets.h"
#include "support/FakeAudioConverter.h"
#include "support/FakeAudioPlayer.h"
#include "support/FakeAudioRecorder.h"
#include "support/FakeDisplayRefresh.h"
#include "support/FakeExtAudioFile.h"
#include "support/Fakes.h"
#include "support/TemporaryContainer.h"
#include "trimming/AudioTrimmerStage.h"
#include "ui/Texts.h"

namespace {

using namespace tavi;
using namespace tavi::test;

constexpr int kSteps = 200;

const char* const kWindow = R"(
import QtQuick
import Tavi.Trimming
Window {
    id: window
    required property AudioTrimmerStage controller
    visible: true
    TrimmerOverlay { stage: window.controller }
})";

double millisecondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

void settle() {
    for (int i = 0; i < 5; ++i) {
        QCoreApplication::processEvents();
    }
}

void measure(const QSize& size) {
    QtRunLoop runLoop;
    const TemporaryContainer container;
    NotificationCenter notifications;
    FakeNotices notices;
    FakeAssets assets(runLoop);
    FakeAudioPlayers players(runLoop);
    FakeAudioRecorders recorders(runLoop);
    FakeAudioSession session;
    FakeExtAudioFiles sounds;
    FakeAudioConverters converters;
    FakeDisplayRefreshes refreshes;
    const auto path = container.addDocument("talk.wav", "sound");
    assets.files["talk.wav"] = {{3600LL * 44100, 44100}, 1, {}};
    const auto sound = std::make_shared<FakeSound>();
    sound->planes.resize(1);
    for (int i = 0; i < 441000; ++i) {
        sound->planes[0].push_back(static_cast<float>(std::sin(i * 0.05) * std::sin(i * 0.0003)));
    }
    sounds.sounds[path] = sound;
    WaveformLoader waveforms({.files = sounds, .converters = converters, .queues = runLoop});
    AudioTrimmerStage stage({.exports = assets,
                             .players = players,
                             .recorder = {.recorders = recorders, .audioSession = session},
                             .waveforms = waveforms,
                             .refreshes = refreshes,
                             .container = container,
                             .notifications = notifications,
                             .notices = notices,
                             .runLoop = runLoop});

    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral(":/"));
    engine.setInitialProperties({{QStringLiteral("controller"), QVariant::fromValue(&stage)}});
    engine.loadData(kWindow);
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().value(0));
    if (window == nullptr) {
        qFatal("the window cannot be built");
    }
    window->resize(size);
    settle();
    window->grabWindow();

    const auto asked = std::chrono::steady_clock::now();
    AudioTrimmerViewController::presentAudioTrimmerController(stage, nullptr, path.native(), {}, "talk.wav", {});
    window->grabWindow();
    std::printf("figure: first-picture-%dx%d %.2f ms\n", size.width(), size.height(), millisecondsSince(asked));
    while (stage.screen()->source()->isLoading()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    settle();

    std::vector<double> times;
    stage.screen()->selection()->beginDrag(true);
    for (int step = 0; step < kSteps; ++step) {
        const auto start = std::chrono::steady_clock::now();
        stage.screen()->selection()->drag(true, 1.0);
        window->grabWindow();
        times.push_back(millisecondsSince(start));
    }
    std::sort(times.begin(), times.end());
    const int width = size.width();
    const int height = size.height();
    std::printf("figure: drag-step-%dx%d %.2f ms aim 8\n", width, height, times[kSteps / 2]);
    std::printf("figure: slowest-drag-step-of-a-hundred-%dx%d %.2f ms aim 8\n", width, height,
                times[kSteps * 99 / 100]);
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    QGuiApplication::setFont(QFont(QStringLiteral("Roboto")));
    tavi::installTexts(*QCoreApplication::instance());
    measure({390, 844});
    measure({1200, 800});
    return 0;
}
