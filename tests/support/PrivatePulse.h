#pragma once

#include <sys/types.h>

#include <QByteArray>
#include <QStringList>
#include <QTemporaryDir>
#include <csignal>
#include <memory>

namespace tavi::test {

/// A process that is killed when this goes away, and with the test's main thread if that crashes. A command that cannot
/// be run ends at once, as in a shell.
///
/// Not QProcess: its way of forking hides the main thread's locks from ThreadSanitizer.
struct ChildProcess {
    explicit ChildProcess(const QStringList& command);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    pid_t pid() const { return m_pid; }
    bool isRunning() const;

private:
    pid_t m_pid = 0;
};

using ProcessHandle = std::unique_ptr<ChildProcess>;

/// A sound server of the test's own, without sound cards: what is played into "mic_sink" is what its default source,
/// the "microphone", hears; "speaker" is the default sink. Programs and libraries started later find it through
/// PULSE_SERVER. Fails the program when the server does not come up.
struct PrivatePulse {
    PrivatePulse();

    /// Another address of the server, where nobody is let in.
    QByteArray refusingAddress() const;

    /// Starts the server again after kill().
    void start();
    /// Ends the server as a crash would.
    void kill() { m_server.reset(); }
    /// Stops and continues the server's process: it answers nothing meanwhile.
    void freeze() const { ::kill(m_server->pid(), SIGSTOP); }
    void thaw() const { ::kill(m_server->pid(), SIGCONT); }

    /// Replaces the microphone by one of that shape.
    void setMicrophone(int sampleRate, int channels) const;
    void removeMicrophones() const { pactl("unload-module module-remap-source"); }
    /// Gives the default sink another description, of one word.
    void describeSpeaker(const QByteArray& description) const;
    /// Puts the one recording stream on another source.
    void moveRecording(const QByteArray& source) const;
    /// Plays raw 16-bit samples of the native byte order into the microphone, until the handle goes away.
    ProcessHandle play(const QByteArray& samples, int sampleRate, int channels);
    /// Writes what a sink plays to a new file, as interleaved floats at 48000 Hz, until the handle goes away. It has
    /// begun when this returns. An older file of that name goes; nothing may write to it any more.
    ProcessHandle listen(const QString& path, int channels, const QString& sink = QStringLiteral("speaker")) const;
    /// Has the shell run pactl with these arguments; fails the program when that fails.
    void pactl(const QByteArray& arguments) const;

private:
    QTemporaryDir m_folder;
    ProcessHandle m_server;
    int m_files = 0;
};

}  // namespace tavi::test
