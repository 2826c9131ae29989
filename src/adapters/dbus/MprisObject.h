#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusObjectPath>
#include <QStringList>
#include <QVariantMap>

namespace tavi {

class MprisRemoteControl;

/// "org.mpris.MediaPlayer2" of Media Player Remote Interfacing 2.2 (freedesktop.org): the program.
class MprisRoot : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2")
    Q_PROPERTY(bool CanQuit READ yes CONSTANT)
    Q_PROPERTY(bool CanRaise READ yes CONSTANT)
    Q_PROPERTY(bool HasTrackList READ no CONSTANT)
    Q_PROPERTY(QString Identity READ identity CONSTANT)
    Q_PROPERTY(QString DesktopEntry READ desktopEntry CONSTANT)
    Q_PROPERTY(QStringList SupportedUriSchemes READ none CONSTANT)
    Q_PROPERTY(QStringList SupportedMimeTypes READ none CONSTANT)

public:
    MprisRoot(QObject* object, MprisRemoteControl& control) : QDBusAbstractAdaptor(object), m_control(control) {}

    static bool yes() { return true; }
    static bool no() { return false; }
    static QString identity() { return QStringLiteral("Tavi"); }
    static QString desktopEntry() { return QStringLiteral("com.quillfen.voicerecorder"); }
    static QStringList none() { return {}; }

public Q_SLOTS:
    void Raise();
    void Quit();

private:
    MprisRemoteControl& m_control;
};

/// "org.mpris.MediaPlayer2.Player" of the same: the recording. Times are microseconds.
class MprisPlayer : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2.Player")
    Q_PROPERTY(QString PlaybackStatus READ playbackStatus)
    Q_PROPERTY(double Rate READ rate WRITE setRate)
    Q_PROPERTY(QVariantMap Metadata READ metadata)
    Q_PROPERTY(double Volume READ one CONSTANT)
    Q_PROPERTY(qlonglong Position READ position)
    Q_PROPERTY(double MinimumRate READ minimumRate CONSTANT)
    Q_PROPERTY(double MaximumRate READ maximumRate CONSTANT)
    Q_PROPERTY(bool CanGoNext READ hasRecording)
    Q_PROPERTY(bool CanGoPrevious READ hasRecording)
    Q_PROPERTY(bool CanPlay READ hasRecording)
    Q_PROPERTY(bool CanPause READ hasRecording)
    Q_PROPERTY(bool CanSeek READ hasRecording)
    Q_PROPERTY(bool CanControl READ yes CONSTANT)

public:
    MprisPlayer(QObject* object, MprisRemoteControl& control) : QDBusAbstractAdaptor(object), m_control(control) {}

    QString playbackStatus() const;
    double rate() const;
    void setRate(double rate);
    QVariantMap metadata() const;
    qlonglong position() const;
    bool hasRecording() const;
    static bool yes() { return true; }
    static double one() { return 1.0; }
    static double minimumRate() { return 0.5; }
    static double maximumRate() { return 2.0; }

    /// The properties that change, and whose changes are told; Position is asked for.
    QVariantMap changingProperties() const;

public Q_SLOTS:
    /// There is one recording: these skip within it.
    void Next();
    void Previous();
    void Pause();
    void PlayPause();
    void Stop();
    void Play();
    void Seek(qlonglong Offset);
    /// Does nothing for another recording or a time outside this one.
    void SetPosition(const QDBusObjectPath& TrackId, qlonglong Position);

Q_SIGNALS:
    void Seeked(qlonglong Position);

private:
    QDBusObjectPath trackId() const;

    MprisRemoteControl& m_control;
};

}  // namespace tavi
