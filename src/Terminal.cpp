#include "Terminal.h"

#include <fcntl.h>
#include <string.h>
#include <termios.h>
#include <unistd.h>

#include <QByteArray>
#include <array>

#include "files/FileDescriptor.h"

namespace tavi {

namespace {

constexpr char kControlC = 3;

/// Keeps what is typed from showing, while it lives.
class Unseen {
public:
    explicit Unseen(int terminal) : m_terminal(terminal), m_isTerminal(::tcgetattr(terminal, &m_before) == 0) {
        termios unseen = m_before;
        // Without signals: one would leave the terminal like this. Ctrl+C ends the line instead.
        unseen.c_lflag &= ~static_cast<tcflag_t>(ECHO | ISIG);
        unseen.c_lflag |= ECHONL;
        unseen.c_cc[VEOL] = kControlC;
        m_isTerminal = m_isTerminal && ::tcsetattr(m_terminal, TCSAFLUSH, &unseen) == 0;
    }
    ~Unseen() {
        if (m_isTerminal) {
            ::tcsetattr(m_terminal, TCSAFLUSH, &m_before);
        }
    }
    Unseen(const Unseen&) = delete;
    Unseen& operator=(const Unseen&) = delete;

    bool isTerminal() const { return m_isTerminal; }

private:
    int m_terminal;
    termios m_before = {};
    bool m_isTerminal;
};

}  // namespace

std::optional<QString> askOnTerminal(const QString& question) {
    const FileDescriptor terminal = FileDescriptor::open("/dev/tty", O_RDWR | O_NOCTTY);
    const Unseen unseen(terminal.get());
    const QByteArray prompt = question.toLocal8Bit();
    if (!unseen.isTerminal() || ::write(terminal.get(), prompt.constData(), size_t(prompt.size())) < 0) {
        return std::nullopt;
    }
    // The longest line that a terminal hands out (termios(3)).
    std::array<char, 4096> line = {};
    const ssize_t size = ::read(terminal.get(), line.data(), line.size());
    if (size <= 0 || line[static_cast<std::size_t>(size) - 1] != '\n') {
        [[maybe_unused]] const auto written = ::write(terminal.get(), "\n", 1);
        return std::nullopt;
    }
    const QString text = QString::fromLocal8Bit(line.data(), size - 1);
    ::explicit_bzero(line.data(), line.size());
    return text;
}

}  // namespace tavi
