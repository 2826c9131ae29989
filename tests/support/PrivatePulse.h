#pragma once

#include <QStringList>
#include <QTemporaryDir>
#include <memory>

#include "support/ChildProcess.h"

namespace tavi::test {

using ProcessHandle = std::unique_ptr<ChildProcess>;

/// A sound server of the test's own, without sound cards: what is played into "mic_sink" is what its default source,
/// the "microphone", hears; "speaker" is the default sink. Programs and libraries started later find it through
/// PULSE_SERVER; the environment is as before when this goes away. Fails the program when the server does not come up.
class PrivatePulse {
public:
    PrivatePulse();
    ~PrivatePulse();
    PrivatePulse(const PrivatePulse&) = delete;
    PrivatePulse& operator=(const PrivatePulse&) = delete;

    /// What PULSE_SERVER names.
    QString address() const;
    /// Another address of the server, where nobody is let in.
    QString refusingAddress();

    /// Starts the server again after kill().
    void start();
    /// Ends the server as a crash would.
    void kill();
    /// Stops and continues the server's process: it answers nothing meanwhile.
    void freeze() const;
    void thaw() const;

    /// Replaces the microphone by one of that shape.
    void setMicrophone(int sampleRate, int channels);
    /// A second microphone, "other_microphone".
    void addMicrophone();
    /// Takes the module of that name or number away, such as "module-remap-source": every microphone.
    void unloadModule(const QString& name);
    /// Puts the one recording stream on another source.
    void moveRecording(const QString& source);
    /// Plays raw 16-bit samples of the native byte order into the microphone, until the handle goes away.
    ProcessHandle play(const QByteArray& samples, int sampleRate, int channels);
    /// Writes what a sink plays to a file, as interleaved floats at 48000 Hz, until the handle goes away. It has begun
    /// when this returns.
    ProcessHandle listen(const QString& path, int channels, const QString& sink = QStringLiteral("speaker")) const;
    /// What pactl prints; fails the program when it fails.
    QString pactl(const QStringList& arguments) const;

private:
    QTemporaryDir m_folder;
    ProcessHandle m_server;
    QList<std::pair<QByteArray, QByteArray>> m_environment;
    int m_files = 0;
};

}  // namespace tavi::test
