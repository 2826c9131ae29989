#pragma once

#include <private/qeventpoint_p.h>
#include <QAccessible>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QKeyEvent>
#include <QQmlApplicationEngine>
#include <QQmlIncubationController>
#include <QQuickItem>
#include <QQuickWindow>
#include <filesystem>
#include <functional>
#include <set>
#include <string>

#include "app/AppDelegate.h"
#include "app/SettingVC.h"
#include "library/RecordingImport.h"
#include "passcode/ApplicationDelegateGuard.h"
#include "support/FakeLibrary.h"
#include "support/FakeRecording.h"
#include "support/FakeSupport.h"
#include "ui/AlertPresenter.h"
#include "ui/JHUD.h"
#include "ui/NoticeLine.h"
#include "ui/SavePanel.h"
#include "ui/TabBarController.h"

namespace tavi::test {

/// A window made from QML, and what its user does.
class UserWindow {
public:
    void show(const char* qml, const QVariantMap& properties) {
        engine.addImportPath(QStringLiteral(":/"));
        engine.setInitialProperties(properties);
        engine.loadData(qml);
        window = engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(engine.rootObjects().first());
        if (window == nullptr) {
            qFatal("the window cannot be built");
        }
        window->requestActivate();
        settle();
    }

    /// Lets what is due happen, and draws.
    QImage settle() const {
        for (int i = 0; i < 5; ++i) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            // Lists make rows ahead of time, bit by bit.
            while (window->incubationController()->incubatingObjectCount() > 0) {
                window->incubationController()->incubateFor(100);
            }
        }
        return window->grabWindow();
    }

    /// Lets QML's own animations run for that many milliseconds.
    void settleFor(int milliseconds) const {
        for (const QDeadlineTimer deadline(milliseconds); !deadline.hasExpired();) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
        }
        settle();
    }

    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {}) const {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, modifiers, text);
            QCoreApplication::sendEvent(window, &event);
        }
        settle();
    }

    /// What a key that is held down sends after its press.
    void hold(int key, const QString& text = {}) const {
        for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, text, true);
            QCoreApplication::sendEvent(window, &event);
        }
    }

    void mouse(QEvent::Type type, const QPointF& at, bool isDown, Qt::MouseButton button = Qt::LeftButton) const {
        QMouseEvent event(type, at, window->mapToGlobal(at), type == QEvent::MouseMove ? Qt::NoButton : button,
                          isDown ? button : Qt::NoButton, Qt::NoModifier);
        // Where it went down, which a real mouse says with every movement.
        m_pressed = type == QEvent::MouseButtonPress ? window->mapToGlobal(at) : m_pressed;
        QMutableEventPoint::setGlobalPressPosition(event.point(0), m_pressed);
        QCoreApplication::sendEvent(window, &event);
    }

    /// The mouse goes down in the item's middle, moves to the right in steps, and comes up again.
    void drag(const QQuickItem& item, double movement, Qt::MouseButton button = Qt::LeftButton) const {
        const QPointF from = item.mapToScene(item.boundingRect().center());
        mouse(QEvent::MouseButtonPress, from, true, button);
        for (int step = 1; step <= 4 && movement != 0.0; ++step) {
            mouse(QEvent::MouseMove, from + QPointF(movement * step / 4.0, 0.0), true, button);
        }
        mouse(QEvent::MouseButtonRelease, from + QPointF(movement, 0.0), false, button);
        settle();
    }
    void tap(const char* name) const { drag(*item(name), 0.0); }

    /// The first visible item of that name or class; there has to be one.
    QQuickItem* item(const char* name) const {
        for (QQuickItem* one : visibleItems()) {
            if (one->objectName() == QLatin1String(name) || one->inherits(name)) {
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

    /// All that can be read, or heard from a screen reader, and "no NAME" of what is disabled.
    std::set<std::string> words() const {
        std::set<std::string> all;
        for (QQuickItem* item : visibleItems()) {
            all.insert(item->isEnabled() ? std::string() : "no " + item->objectName().toStdString());
            all.insert(item->property("text").toString().toStdString());
            const auto* access = QAccessible::queryAccessibleInterface(item);
            for (const auto part : {QAccessible::Name, QAccessible::Description}) {
                all.insert(access != nullptr ? access->text(part).toStdString() : std::string());
            }
        }
        return all;
    }

    QQmlApplicationEngine engine;
    QQuickWindow* window = nullptr;

private:
    mutable QPointF m_pressed;
};

/// A recording of 75 seconds; one second of noise stands for all of it.
inline std::filesystem::path addTalk(FakeServices& fakes) {
    const std::string name = "Interview with a very long name that nobody reads to its very end.wav";
    std::filesystem::path path = fakes.container.addDocument(name, "sound");
    const auto sound = std::make_shared<FakeSound>();
    sound->planes.resize(1);
    fakes.assets.files[name] = {{75 * 588, 588}, 1, {}};
    fakes.players.seconds[name] = 75.0;
    for (int i = 0; i < 44100; ++i) {
        const double sample = std::sin(i * 0.004) * std::sin(i * i * 0.01);
        sound->planes[0].push_back(static_cast<float>(sample));
        fakes.assets.files[name].samples.push_back(static_cast<std::int16_t>(sample * 32767.0));
    }
    fakes.files.sounds[path] = sound;
    return path;
}

/// The program's screens on fake services.
struct ShellScreens : FakeServices {
    TabBarController tabBar;
    AlertPresenter presenter;
    NoticeLine notices{runLoop};
    JHUD hudView;
    SavePanel savePanel{runLoop, container.root(), {container.root() / "Media"}};
    FakeRecording fakeRecording{*this, presenter, tabBar, notices};
    AudioRecordVC& recording = fakeRecording.vc;
    FakeLibrary fakeLibrary{*this, presenter, notices};
    VoiceMemoVC& library = fakeLibrary.vc;
    RecordingTable& table = fakeLibrary.table;
    PlayerPanel& player = fakeLibrary.player;
    FakeCloudConnection& connection = fakeLibrary.connection;
    RecordingImport imports{{container, runLoop, notices, presenter, settings, cloud}};
    FakeRating rating{*this, presenter, notices};
    SupportRows supportRows{{rating.rater, rating.urlOpener, fakeRecording.mail, notices, settings, session}};
    PasscodeCoordinator passcode{{settings, keychain, notifications, runLoop, presenter, lockState}};
    CloudPage cloudPage{{connection, savePanel, presenter, fakeLibrary.reachability}};
    SettingVC settingVC{{settings, formatHold, runLoop, presenter, tabBar, supportRows, passcode, cloudPage}};
    FakeApplication application;
    FakeIdleTimer idleTimer;
    AppDelegate delegate{{application, idleTimer, settings, defaults, container, session, tabBar, recording, imports,
                          hudView, rating.rater, passcode}};
    ApplicationDelegateGuard opener{delegate, lockState};
};

/// The program's window with its screens.
struct Shell : ShellScreens, UserWindow {
    explicit Shell(const std::function<void(Shell&)>& prepare = {}) {
        settings.writeFirstLaunchValues();
        settings.writeSortIfAbsent();
        if (prepare) {
            prepare(*this);
        }
        passcode.activatePasscodeProtection();
        AppDelegate::setPasscodeStyle(passcode.appearance);
        show(
            "import QtQuick\nimport Tavi\nimport Tavi.Ui\nMain { reducedMotion: true; Component.onCompleted: "
            "Theme.fade = 0 }",
            {{QStringLiteral("recording"), QVariant::fromValue(&recording)},
             {QStringLiteral("library"), QVariant::fromValue(&library)},
             {QStringLiteral("opener"), QVariant::fromValue(&opener)},
             {QStringLiteral("settings"), QVariant::fromValue(&settingVC)},
             {QStringLiteral("tabBar"), QVariant::fromValue(&tabBar)},
             {QStringLiteral("presenter"), QVariant::fromValue(&presenter)},
             {QStringLiteral("notices"), QVariant::fromValue(&notices)},
             {QStringLiteral("hudView"), QVariant::fromValue(&hudView)},
             {QStringLiteral("savePanel"), QVariant::fromValue(&savePanel)},
             {QStringLiteral("appRater"), QVariant::fromValue(&rating.rater)},
             {QStringLiteral("trimmers"), QVariant::fromValue(&trimmers)},
             {QStringLiteral("audioTrims"), QVariant::fromValue(&fakeLibrary.audioTrims)},
             {QStringLiteral("passcode"), QVariant::fromValue(&passcode)}});
    }

    void startRecording() {
        recording.playAndPauseRecording();
        session.answer(true);
        runLoop.drain();
        settle();
    }

    /// Sound of a tenth of a second arrives and is metered.
    void hear(float power) {
        recorders.last()->capture(4800, power);
        runLoop.advance(0.1);
    }

    AudioTrimmerViewController& trim(const std::filesystem::path& path) {
        AudioTrimmerViewController::presentAudioTrimmerController(trimmers, nullptr, path.native(), {}, path.filename(),
                                                                  {});
        runLoop.drain();
        settle();
        return *trimmers.screen();
    }
};

}  // namespace tavi::test
