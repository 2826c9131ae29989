#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QKeyEvent>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <functional>

#include "app/SettingVC.h"
#include "library/VoiceMemoVC.h"
#include "recording/AudioRecordVC.h"
#include "support/FakeAssets.h"
#include "support/FakeAudioConverter.h"
#include "support/FakeAudioPlayer.h"
#include "support/FakeAudioRecorder.h"
#include "support/FakeDisplayRefresh.h"
#include "support/FakeExtAudioFile.h"
#include "support/Fakes.h"
#include "support/ManualRunLoop.h"
#include "support/TemporaryContainer.h"
#include "ui/AlertPresenter.h"
#include "ui/TabBarController.h"

namespace tavi::test {

/// The window with the real screens, on fake services.
class Shell {
public:
    explicit Shell(const std::function<void(Shell&)>& prepare = {}) {
        store.writeFirstLaunchValues();
        store.writeSortIfAbsent();
        if (prepare) {
            prepare(*this);
        }
        engine.addImportPath(QStringLiteral(":/"));
        engine.setInitialProperties({{QStringLiteral("recording"), QVariant::fromValue(&recording)},
                                     {QStringLiteral("library"), QVariant::fromValue(&library)},
                                     {QStringLiteral("settings"), QVariant::fromValue(&settings)},
                                     {QStringLiteral("tabBar"), QVariant::fromValue(&tabBar)},
                                     {QStringLiteral("presenter"), QVariant::fromValue(&presenter)},
                                     {QStringLiteral("trimmers"), QVariant::fromValue(&trimmers)}});
        engine.load(QStringLiteral("qrc:/Tavi/Main.qml"));
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

    void resize(const QSize& size) const {
        window->resize(size);
        settle();
    }

    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {}) const {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, modifiers, text);
            QCoreApplication::sendEvent(window, &event);
        }
        settle();
    }

    void tap(const QQuickItem& item) const {
        const QPointF at = item.mapToScene(item.boundingRect().center());
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, at, window->mapToGlobal(at), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(window, &event);
        }
        settle();
    }

    /// The visible item of that name; null when there is none.
    QQuickItem* item(const QString& objectName) const {
        for (QQuickItem* one : visibleItems()) {
            if (one->objectName() == objectName) {
                return one;
            }
        }
        return nullptr;
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

    ManualRunLoop runLoop;
    FakeUserDefaults defaults;
    SettingsStore store{defaults};
    FakeAudioSession session;
    FakeAudioRecorders recorders{runLoop};
    FakeAudioDuration durations;
    FakeMailComposer mail;
    TemporaryContainer container;
    NotificationCenter notifications;
    TabBarController tabBar;
    AlertPresenter presenter;
    AudioRecordVC recording{{session, recorders, store, container, runLoop, presenter, tabBar, mail}};
    FakeRemoteControl remoteControl;
    FakeAudioPlayers players{runLoop};
    RecordingLister lister{durations, runLoop};
    FakeExtAudioFiles files;
    FakeAudioConverters converters;
    FakeDisplayRefreshes refreshes;
    WaveformLoader waveforms{{files, converters, runLoop}};
    PlayerPanel player{{players, session, remoteControl, store, runLoop, waveforms, refreshes}};
    FakeAssets assets{runLoop};
    WaveformLoader trimmerWaveforms{{files, converters, runLoop}};
    AudioTrimmerStage trimmers{
        {assets, players, {recorders, session}, trimmerWaveforms, refreshes, container, notifications, runLoop}};
    VoiceMemoVC library{{store, container, notifications, lister, remoteControl, trimmers}, player};
    SettingVC settings{{store, runLoop, presenter}};
    QQmlApplicationEngine engine;
    QQuickWindow* window = nullptr;
};

}  // namespace tavi::test
