#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <stop_token>

#include "platform/AppContainer.h"
#include "platform/AudioDuration.h"
#include "platform/ExtAudioFile.h"
#include "platform/RunLoop.h"

namespace tavi {

/// The newest recording, for a screen on which nothing is recorded. Main thread only.
class LastRecording : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(QString time READ time NOTIFY changed)
    Q_PROPERTY(QList<double> shape READ shape NOTIFY changed)

public:
    /// All of it must outlive this and what it still does in the background.
    struct Services {
        const AppContainer& container;
        const AudioDuration& durations;
        ExtAudioFiles& files;
        RunLoop& runLoop;
    };

    explicit LastRecording(const Services& services) : m_services(services) {}
    /// What is being read is given up soon.
    ~LastRecording() override { m_stop.request_stop(); }

    /// Name of its file; empty where there is none.
    const QString& name() const { return m_name; }
    /// How long it plays, as "hh:mm:ss".
    const QString& time() const { return m_time; }
    /// How loud its parts are beside its loudest, from 0 to 1; empty as long as that is unknown.
    const QList<double>& shape() const { return m_shape; }

    /// A recording has just been saved, which took that long on the clock.
    void show(const QString& name, const QString& time);
    /// Looks soon, in the background, for the newest file in the documents folder that plays.
    void find();

public Q_SLOTS:
    /// Has it played.
    void play();

Q_SIGNALS:
    void changed();
    /// The user asks to hear the recording of that name.
    void playRequested(const QString& fileName);

private:
    void look(const std::stop_token& stop);
    void set(const QString& name, const QString& time, const QList<double>& shape);

    Services m_services;
    QString m_name;
    QString m_time;
    QList<double> m_shape;
    /// Of the search that goes on; a newer one, and a recording that is saved meanwhile, end it.
    std::stop_source m_stop;
};

}  // namespace tavi
