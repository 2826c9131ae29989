#include <gtest/gtest.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QDir>
#include <QKeyEvent>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <cmath>

#include "support/FakeAssets.h"
#include "support/FakeAudioConverter.h"
#include "support/FakeAudioPlayer.h"
#include "support/FakeAudioRecorder.h"
#include "support/FakeDisplayRefresh.h"
#include "support/FakeExtAudioFile.h"
#include "support/Fakes.h"
#include "support/ManualRunLoop.h"
#include "support/TemporaryContainer.h"
#include "trimming/AudioTrim.h"
#include "trimming/AudioTrimmerStage.h"

namespace tavi::test {
namespace {

const char* const kTrimmerWindow = R"(
import QtQuick
import Tavi.Trimming
Window {
    id: window
    required property AudioTrimmerStage controller
    visible: true
    color: "#151515"
    TrimmerOverlay { stage: window.controller }
})";

const char* const kAudioTrimWindow = R"(
import QtQuick
import Tavi.Trimming
Window {
    id: window
    required property AudioTrim controller
    visible: true
    Loader {
        anchors.fill: parent
        Component.onCompleted: setSource("qrc:/Tavi/Trimming/AudioTrimScreen.qml", { screen: window.controller })
    }
})";

/// Words, pauses, and each sample another than its neighbours.
double speechAt(double seconds) {
    const double word = std::max(0.0, std::sin(seconds * 2.3) * std::sin(seconds * 0.31 + 0.4));
    return word * std::sin(seconds * 5000.0) * (0.4 + 0.6 * std::abs(std::sin(seconds * 37.0)));
}

/// A window with one of the two screens, on fake services.
class TrimmerWindow {
public:
    TrimmerWindow() {
        QLocale::setDefault(QLocale(QStringLiteral("en_US")));
        const QByteArray path = add("Interview with a very long name that nobody reads to its very end.wav");
        assets.files[nameOf(path)] = {{75 * 588, 588}, 1, {}};
        players.seconds[nameOf(path)] = 75.0;
        // A second stands for all of it: what is looked at is the same.
        auto sound = std::make_shared<FakeSound>();
        sound->planes.resize(1);
        for (int i = 0; i < 44100; ++i) {
            const double sample = speechAt(75.0 * i / 44100.0);
            sound->planes[0].push_back(static_cast<float>(sample));
            assets.files[nameOf(path)].samples.push_back(static_cast<std::int16_t>(sample * 32767.0));
        }
        sounds.sounds[path.toStdString()] = sound;
        recording = path;
    }

    void present(const QByteArray& path) {
        AudioTrimmerViewController::presentAudioTrimmerController(stage, nullptr, path, {}, nameOf(path), {});
        runLoop.drain();
        settle();
    }
    void show(const char* qml, QObject* screen) {
        engine.addImportPath(QStringLiteral(":/"));
        engine.setInitialProperties({{QStringLiteral("controller"), QVariant::fromValue(screen)}});
        engine.loadData(qml);
        window = engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(engine.rootObjects().first());
        if (window == nullptr) {
            qFatal("the window cannot be built");
        }
        window->resize(390, 844);
        window->requestActivate();
        settle();
    }
    QByteArray add(const char* name) const {
        return QFile::encodeName(container.addDocument(QString::fromUtf8(name), "sound"));
    }
    static QByteArray nameOf(const QByteArray& path) { return path.mid(path.lastIndexOf('/') + 1); }

    QImage settle() const {
        for (int i = 0; i < 5; ++i) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        return window->grabWindow();
    }
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, modifiers);
            QCoreApplication::sendEvent(window, &event);
        }
        settle();
    }
    /// The mouse goes down, moves in steps and comes up again.
    void drag(const QPointF& from, double movement) const {
        const auto send = [this](QEvent::Type type, const QPointF& at) {
            const bool isUp = type == QEvent::MouseButtonRelease;
            QMouseEvent event(type, at, window->mapToGlobal(at),
                              type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                              isUp ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(window, &event);
        };
        send(QEvent::MouseButtonPress, from);
        for (int step = 1; step <= 4 && movement != 0.0; ++step) {
            send(QEvent::MouseMove, from + QPointF(movement * step / 4.0, 0.0));
        }
        send(QEvent::MouseButtonRelease, from + QPointF(movement, 0.0));
        settle();
    }
    void tap(const char* name) const { drag(item(name)->mapToScene(item(name)->boundingRect().center()), 0.0); }
    QQuickItem* item(const char* name) const {
        for (QQuickItem* one : visibleItems()) {
            if (one->objectName() == QLatin1String(name)) {
                return one;
            }
        }
        qFatal("there is no %s", name);
    }
    QList<QQuickItem*> visibleItems() const {
        QList<QQuickItem*> items{window->contentItem()};
        for (qsizetype i = 0; i < items.size(); ++i) {
            for (QQuickItem* child : items.at(i)->childItems()) {
                if (child->isVisible()) {
                    items.append(child);
                }
            }
        }
        return items;
    }

    ManualRunLoop runLoop;
    TemporaryContainer container;
    NotificationCenter notifications;
    FakeAssets assets{runLoop};
    FakeAudioPlayers players{runLoop};
    FakeAudioRecorders recorders{runLoop};
    FakeAudioSession session;
    FakeExtAudioFiles sounds;
    FakeAudioConverters converters;
    FakeDisplayRefreshes refreshes;
    FakeUserDefaults defaults;
    SettingsStore settings{defaults};
    FakePresenter presenter;
    WaveformLoader waveforms{{sounds, converters, runLoop}};
    QByteArray recording;
    AudioTrimmerStage stage{
        {assets, players, {recorders, session}, waveforms, refreshes, container, notifications, runLoop}};
    std::unique_ptr<AudioTrim> audioTrim;
    QQmlApplicationEngine engine;
    QQuickWindow* window = nullptr;
};

/// Controls can be reached, hit and named; texts lie inside the window.
void checkItems(const TrimmerWindow& shown) {
    const QRectF window(QPointF(), shown.window->size());
    QList<QQuickItem*> controls;
    for (QQuickItem* item : shown.visibleItems()) {
        const QRectF rect = item->mapRectToScene(item->boundingRect());
        SCOPED_TRACE(qPrintable(item->objectName() + item->property("text").toString()));
        if (item->inherits("QQuickText")) {
            EXPECT_TRUE(window.contains(rect)) << rect.left() << " " << rect.top() << " " << rect.right();
            const bool mayElide = item->property("elide").toInt() != Qt::ElideNone;
            EXPECT_TRUE(mayElide || item->property("contentWidth").toDouble() <= item->width() + 0.5);
        }
        if (!item->inherits("QQuickControl") || !item->isEnabled()) {
            continue;
        }
        EXPECT_TRUE(window.contains(rect)) << rect.left() << " to " << rect.right();
        EXPECT_GE(std::min(rect.width(), rect.height()), 44.0);
        QAccessibleInterface* access = QAccessible::queryAccessibleInterface(item);
        ASSERT_NE(access, nullptr);
        EXPECT_FALSE(access->text(QAccessible::Name).isEmpty());
        EXPECT_TRUE(access->state().focusable);
        for (const QQuickItem* other : controls) {
            const QRectF theirs = other->mapRectToScene(other->boundingRect()).adjusted(1, 1, -1, -1);
            EXPECT_FALSE(theirs.intersects(rect)) << qPrintable(other->objectName());
        }
        controls.append(item);
    }
}

/// With TAVI_PICTURES in the environment the pictures are saved there, to be looked at.
void save(const QImage& image, const char* name) {
    const QString folder = qEnvironmentVariable("TAVI_PICTURES");
    if (!folder.isEmpty()) {
        EXPECT_TRUE(QDir().mkpath(folder));
        EXPECT_TRUE(image.save(QStringLiteral("%1/%2-%3.png").arg(folder, QLatin1String(name)).arg(image.width())));
    }
}

void lookAtEverySize(TrimmerWindow& shown, const char* name) {
    for (const QSize size : {QSize(390, 844), QSize(360, 640), QSize(1200, 800)}) {
        SCOPED_TRACE(::testing::Message() << name << " at " << size.width() << "x" << size.height());
        shown.window->resize(size);
        shown.settle();
        checkItems(shown);
        save(shown.settle(), name);
    }
}

TEST(Trimmer, FitsEverySizeInEveryState) {
    struct State {
        const char* name;
        std::function<void(TrimmerWindow&)> prepare;
    };
    const auto select = [](TrimmerWindow& w) {
        w.stage.screen()->selection()->nudge(true, 12.0);
        w.stage.screen()->selection()->nudge(false, -20.0);
    };
    const State states[] = {
        {"trimmer", [](TrimmerWindow&) {}},
        {"trimmer-selected", select},
        {"trimmer-crowded", [](TrimmerWindow& w) { w.stage.screen()->selection()->nudge(true, 73.5); }},
        {"trimmer-focus", [](TrimmerWindow& w) { w.item("rightThumb")->forceActiveFocus(Qt::TabFocusReason); }},
        {"trimmer-playing",
         [&select](TrimmerWindow& w) {
             select(w);
             w.stage.screen()->btnPlayPauseTapped();
             w.runLoop.drain();
             w.runLoop.advance(14.1);
         }},
        {"trimmer-exporting",
         [](TrimmerWindow& w) {
             w.assets.areExportsHeldBack = true;
             w.stage.screen()->btnUploadTapped();
             w.assets.sessions.back()->progress = 0.4F;
             w.runLoop.advance(0.1);
         }},
        {"trimmer-recording", [](TrimmerWindow& w) { w.stage.screen()->btnResetAudioTapped(); }},
    };
    for (const State& state : states) {
        TrimmerWindow shown;
        shown.show(kTrimmerWindow, &shown.stage);
        shown.present(shown.recording);
        state.prepare(shown);
        lookAtEverySize(shown, state.name);
    }
    TrimmerWindow shown;
    shown.show(kTrimmerWindow, &shown.stage);
    shown.present(shown.add("text.txt"));
    EXPECT_FALSE(shown.item("problem")->property("text").toString().isEmpty());
    lookAtEverySize(shown, "trimmer-unreadable");
}

TEST(Trimmer, ThumbsFollowTheMouseTheKeysAndAssistiveTechnology) {
    TrimmerWindow shown;
    shown.show(kTrimmerWindow, &shown.stage);
    shown.present(shown.recording);
    const TrimSelection& selection = *shown.stage.screen()->selection();
    const double second = selection.containerWidth() / 75.0;
    QQuickItem* thumb = shown.item("leftThumb");
    shown.drag(thumb->mapToScene(thumb->boundingRect().center()), 10.0 * second);
    EXPECT_NEAR(selection.startTime(), 10.0, 0.01);
    EXPECT_TRUE(thumb->hasActiveFocus());
    shown.key(Qt::Key_Right);
    EXPECT_NEAR(selection.startTime(), 10.01, 0.01);
    shown.key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_NEAR(selection.startTime(), 9.01, 0.01);

    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(shown.item("rightThumb"));
    EXPECT_EQ(access->role(), QAccessible::Slider);
    EXPECT_EQ(access->text(QAccessible::Description), QStringLiteral("01:15.00"));
    ASSERT_NE(access->valueInterface(), nullptr);
    EXPECT_EQ(access->valueInterface()->maximumValue().toDouble(), 75.0);
    access->valueInterface()->setCurrentValue(70.0);
    EXPECT_NEAR(selection.endTime(), 70.0, 1e-6);
    access->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
    EXPECT_NEAR(access->valueInterface()->currentValue().toDouble(), 69.0, 1e-6);
}

TEST(Trimmer, ButtonsAndKeysDoWhatTheySay) {
    TrimmerWindow shown;
    shown.assets.areExportsHeldBack = true;
    shown.show(kTrimmerWindow, &shown.stage);
    shown.present(shown.recording);
    const auto isPlaying = [&shown] {
        shown.runLoop.drain();
        return shown.stage.screen()->player()->isPlaying();
    };
    shown.tap("btnPlayPause");
    EXPECT_TRUE(isPlaying());
    QStringList visited;
    for (int i = 0; i < 8; ++i) {
        visited.append(shown.window->activeFocusItem()->objectName());
        shown.key(Qt::Key_Tab);
    }
    EXPECT_EQ(visited.join(QLatin1Char(' ')),
              QStringLiteral("btnPlayPause btnReset btnResetAudio btnEditTrimmedVideo btnCancel btnUpload leftThumb "
                             "rightThumb"));
    shown.item("leftThumb")->forceActiveFocus(Qt::TabFocusReason);
    shown.key(Qt::Key_Space);
    EXPECT_FALSE(isPlaying());
    shown.tap("btnUpload");
    ASSERT_EQ(shown.assets.sessions.size(), 1U);
    shown.key(Qt::Key_Space);
    EXPECT_FALSE(isPlaying());
    shown.tap("btnCancelExport");
    shown.runLoop.drain();
    EXPECT_EQ(shown.assets.sessions[0]->status, AssetExportStatus::Cancelled);
    shown.key(Qt::Key_Escape);
    EXPECT_EQ(shown.stage.screen(), nullptr);
    shown.present(shown.recording);
    shown.tap("btnCancel");
    EXPECT_EQ(shown.stage.screen(), nullptr);
}

TEST(TrimScreen, FitsEverySizeAndFollowsTheMouse) {
    TrimmerWindow shown;
    shown.settings.setCloudSyncOn(true);
    shown.audioTrim =
        std::make_unique<AudioTrim>(AudioTrim::Services{shown.assets, shown.assets, shown.players, shown.settings,
                                                        shown.container, shown.presenter, shown.runLoop},
                                    shown.recording, QStringLiteral("1"));
    AudioTrim& screen = *shown.audioTrim;
    screen.viewDidLoad();
    shown.show(kAudioTrimWindow, &screen);
    const QQuickItem* thumb = shown.item("minThumb");
    shown.drag(thumb->mapToScene(thumb->boundingRect().center()), 60.0);
    EXPECT_GT(screen.leftValue(), 10.0);
    lookAtEverySize(shown, "trim-screen");
    shown.item("maxThumb")->forceActiveFocus(Qt::TabFocusReason);
    shown.key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_NEAR(screen.rightValue(), 72.0, 0.01);
    shown.tap("btnTrim");
    EXPECT_EQ(shown.assets.sessions.size(), 1U);
    EXPECT_FALSE(screen.indicatorText().isEmpty());
}

}  // namespace
}  // namespace tavi::test
