#include "adapters/local/SessionLink.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <QtEndian>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>
#include <utility>

#include "files/PositionedIo.h"

namespace tavi {

namespace {

constexpr qint64 kHeadBytes = 13;
/// What is read ahead of the frame at hand, and what the socket is given to write at a time.
constexpr qint64 kChunkBytes = qint64{256} << 10;
/// So much may wait to be sent: two of the largest messages; and so many files.
constexpr qint64 kMostWaitingBytes = 2 * SessionLink::kMostDictionaryBytes;
constexpr qint64 kMostInMemory = qint64{1} << 20;
constexpr int kMostWaitingFrames = 4096;
constexpr int kMostWaitingFiles = 4;

QByteArray headOf(SessionLink::Kind kind, qint64 dictionaryBytes, qint64 fileBytes) {
    std::array<char, kHeadBytes> head = {};
    head[0] = static_cast<char>(kind);
    qToBigEndian(static_cast<quint32>(dictionaryBytes), head.data() + 1);
    qToBigEndian(static_cast<quint64>(fileBytes), head.data() + 5);
    return {head.data(), kHeadBytes};
}

}  // namespace

FileDescriptor SessionLink::namelessFile(const std::filesystem::path& folder, qint64 size) {
    if (size <= kMostInMemory) {
        return FileDescriptor(::memfd_create("session", MFD_CLOEXEC));
    }
    std::string path = (folder / "session-XXXXXX").string();
    FileDescriptor file(::mkostemp(path.data(), O_CLOEXEC));
    if (file.isValid()) {
        ::unlink(path.c_str());
    }
    return file;
}

SessionLink::SessionLink(std::unique_ptr<QLocalSocket> socket, std::filesystem::path folder,
                         std::function<QByteArray()> context)
    : m_socket(std::move(socket)), m_folder(std::move(folder)), m_context(std::move(context)) {
    m_socket->setReadBufferSize(kChunkBytes);
    connect(m_socket.get(), &QLocalSocket::readyRead, this, &SessionLink::readSoon);
    connect(m_socket.get(), &QLocalSocket::disconnected, this, &SessionLink::readSoon);
    connect(m_socket.get(), &QLocalSocket::bytesWritten, this, &SessionLink::pump);
    m_waiting.push_back({.kind = Kind::Hello, .bytes = headOf(Kind::Hello, 0, 0)});
    sendContext();
    readSoon();
}

bool SessionLink::send(Kind kind, const QByteArray& dictionary) {
    qint64 waiting = dictionary.size();
    for (const Outgoing& frame : m_waiting) {
        waiting += frame.bytes.size();
    }
    if (waiting > kMostWaitingBytes || m_waiting.size() >= kMostWaitingFrames) {
        return false;
    }
    m_waiting.push_back({.kind = kind, .bytes = headOf(kind, dictionary.size(), 0) + dictionary});
    pump();
    return true;
}

bool SessionLink::sendFile(const QByteArray& metadata, FileDescriptor file, qint64 size) {
    const auto files = std::count_if(m_waiting.begin(), m_waiting.end(),
                                     [](const Outgoing& frame) { return frame.kind == Kind::File; });
    if (files >= kMostWaitingFiles) {
        return false;
    }
    m_waiting.push_back({.kind = Kind::File,
                         .bytes = headOf(Kind::File, metadata.size(), size) + metadata,
                         .file = std::move(file),
                         .fileSize = size,
                         .fileLeft = size});
    pump();
    return true;
}

void SessionLink::sendContext() {
    const auto isUnsentContext = [](const Outgoing& frame) {
        return frame.kind == Kind::Context && frame.bytes.isEmpty();
    };
    if (std::none_of(m_waiting.begin(), m_waiting.end(), isUnsentContext)) {
        m_waiting.push_back({.kind = Kind::Context});
        pump();
    }
}

void SessionLink::pump() {
    while (m_socket->isValid() && m_socket->bytesToWrite() < kChunkBytes) {
        if (m_taken > 0 && (m_waiting.empty() || m_waiting.front().written == 0)) {
            m_socket->write(headOf(Kind::Taken, 0, static_cast<qint64>(std::exchange(m_taken, 0))));
        } else if (m_waiting.empty()) {
            return;
        } else if (pumpFirst()) {
            const Outgoing& frame = m_waiting.front();
            m_untaken += frame.kind == Kind::Hello || frame.written == 0 ? 0 : 1;
            m_waiting.pop_front();
        }
    }
}

bool SessionLink::pumpFirst() {
    Outgoing& frame = m_waiting.front();
    if (frame.kind == Kind::Context && frame.bytes.isEmpty()) {
        const QByteArray context = m_context();
        if (context.isEmpty()) {
            return true;
        }
        frame.bytes = headOf(Kind::Context, context.size(), 0) + context;
    }
    if (const qint64 left = frame.bytes.size() - frame.written; left > 0) {
        const qint64 part = m_socket->write(frame.bytes.constData() + frame.written, std::min(left, kChunkBytes));
        if (part < 0) {
            m_socket->abort();
            return false;
        }
        frame.written += part;
        return frame.written == frame.bytes.size() && frame.fileLeft == 0;
    }
    QByteArray part(std::min(frame.fileLeft, kChunkBytes), Qt::Uninitialized);
    const qint64 offset = frame.fileSize - frame.fileLeft;
    if (readFully(frame.file.get(), part.data(), static_cast<std::size_t>(part.size()), offset) !=
        static_cast<std::size_t>(part.size())) {
        // The rest of it is lost, and with it where the next frame would begin.
        m_socket->abort();
        return false;
    }
    m_socket->write(part);
    frame.fileLeft -= part.size();
    return frame.fileLeft == 0;
}

void SessionLink::readSoon() {
    if (!std::exchange(m_readIsComing, true)) {
        QMetaObject::invokeMethod(this, &SessionLink::read, Qt::QueuedConnection);
    }
}

void SessionLink::read() {
    m_readIsComing = false;
    // One frame a turn, so that a flood leaves the others of the run loop their turns.
    if (!m_isCutOff && (m_incoming || readHead())) {
        readBody();
    }
    if (m_isCutOff) {
        m_socket->abort();
    } else if (m_socket->bytesAvailable() >= (m_incoming ? 1 : kHeadBytes)) {
        readSoon();
        return;
    }
    if (m_socket->state() == QLocalSocket::UnconnectedState) {
        Q_EMIT closed();
    }
}

bool SessionLink::readHead() {
    if (m_socket->bytesAvailable() < kHeadBytes) {
        return false;
    }
    const QByteArray head = m_socket->read(kHeadBytes);
    const auto kind = static_cast<quint8>(head.at(0));
    const qint64 dictionaryBytes = qFromBigEndian<quint32>(head.constData() + 1);
    const auto fileBytes = qFromBigEndian<quint64>(head.constData() + 5);
    const bool isFile = kind == static_cast<quint8>(Kind::File);
    if (kind == static_cast<quint8>(Kind::Taken) && dictionaryBytes == 0) {
        readTaken(fileBytes);
        return false;
    }
    if (kind < static_cast<quint8>(Kind::Hello) || kind > static_cast<quint8>(Kind::File) ||
        dictionaryBytes > kMostDictionaryBytes || fileBytes > (isFile ? static_cast<quint64>(kMostFileBytes) : 0)) {
        m_isCutOff = true;
        return false;
    }
    m_incoming.emplace(Incoming{.kind = static_cast<Kind>(kind),
                                .dictionaryLeft = dictionaryBytes,
                                .fileLeft = static_cast<qint64>(fileBytes),
                                .fileSize = static_cast<qint64>(fileBytes)});
    if (isFile) {
        m_incoming->file = namelessFile(m_folder, m_incoming->fileSize);
        m_incoming->isWhole = m_incoming->file.isValid();
    }
    return true;
}

void SessionLink::readTaken(quint64 count) {
    m_isCutOff = count > m_untaken;
    m_untaken -= std::min(count, m_untaken);
    if (!hasUnsent()) {
        Q_EMIT sent();
    }
}

void SessionLink::readBody() {
    if (m_incoming->dictionaryLeft > 0) {
        const QByteArray part = m_socket->read(std::min(m_incoming->dictionaryLeft, kChunkBytes));
        m_incoming->dictionary += part;
        m_incoming->dictionaryLeft -= part.size();
    }
    if (m_incoming->dictionaryLeft == 0 && m_incoming->fileLeft > 0) {
        keepPart(m_socket->read(std::min(m_incoming->fileLeft, kChunkBytes)));
    }
    if (m_incoming->dictionaryLeft == 0 && m_incoming->fileLeft == 0) {
        deliver();
    }
}

void SessionLink::keepPart(const QByteArray& part) {
    const qint64 offset = m_incoming->fileSize - m_incoming->fileLeft;
    m_incoming->fileLeft -= part.size();
    // A full disk costs this file, and what comes after it arrives.
    if (m_incoming->isWhole) {
        const auto size = static_cast<std::size_t>(part.size());
        m_incoming->isWhole =
            writeFully(systemPwrite(), m_incoming->file.get(), part.constData(), size, offset).error == 0;
    }
}

void SessionLink::deliver() {
    const Incoming frame = std::move(*m_incoming);
    m_incoming.reset();
    if (frame.kind == Kind::Hello) {
        m_isReady = true;
        Q_EMIT readyChanged();
    } else if (frame.isWhole && m_isReady) {
        const bool hasFile = frame.file.isValid();
        Q_EMIT received(frame.kind, frame.dictionary,
                        hasFile ? std::filesystem::path("/proc/self/fd/" + std::to_string(frame.file.get()))
                                : std::filesystem::path());
        ++m_taken;
        pump();
    }
}

}  // namespace tavi
