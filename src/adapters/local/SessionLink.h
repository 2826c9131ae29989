#pragma once

#include <QByteArray>
#include <QLocalSocket>
#include <QObject>
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

#include "files/FileDescriptor.h"

namespace tavi {

/// One connection of a session: frames go out in their order, and come in whole or not at all. Main thread.
///
/// A frame is its kind (one byte), the length of its dictionary (four bytes) and that of its file (eight bytes, both
/// with the high byte first), then the two themselves. What was taken is answered by a frame with their number in the
/// place of the file's length. Whoever sends anything else is cut off. What is read ahead, and
/// what waits to be sent, is bounded.
class SessionLink : public QObject {
    Q_OBJECT

public:
    enum class Kind : quint8 { Hello = 1, Context, Message, File, Taken };

    /// An archive of 16 MB, and the dictionary around it.
    static constexpr qint64 kMostDictionaryBytes = (qint64{16} << 20) + (qint64{64} << 10);
    static constexpr qint64 kMostFileBytes = qint64{256} << 20;

    /// Files in the making have no name in the folder. The context is asked for when its turn has come, so that the
    /// last one is sent; it may give nothing.
    SessionLink(std::unique_ptr<QLocalSocket> socket, std::filesystem::path folder,
                std::function<QByteArray()> context);

    /// An empty file for so many bytes, without a name, which goes with its descriptor; invalid where that fails. A
    /// small one lies in memory, a large one in the folder.
    static FileDescriptor namelessFile(const std::filesystem::path& folder, qint64 size);

    /// The other end has said that it is there.
    bool isReady() const { return m_isReady; }
    /// Whether something has not been taken by the other end yet: what is only on its way may be lost.
    bool hasUnsent() const { return !m_waiting.empty() || m_untaken > 0; }

    /// False where too much waits already.
    bool send(Kind kind, const QByteArray& dictionary);
    bool sendFile(const QByteArray& metadata, FileDescriptor file, qint64 size);
    /// Sends the context as it is when it is its turn.
    void sendContext();

Q_SIGNALS:
    void readyChanged();
    /// The file is a path for as long as the call lasts, and empty where the frame has none.
    void received(tavi::SessionLink::Kind kind, const QByteArray& dictionary, const std::filesystem::path& file);
    /// hasUnsent() has become false.
    void sent();
    /// The other end has gone; nothing comes after it.
    void closed();

private:
    struct Outgoing {
        Kind kind = Kind::Message;
        QByteArray bytes = {};
        FileDescriptor file = {};
        qint64 fileSize = 0;
        qint64 fileLeft = 0;
        qint64 written = 0;
    };
    /// What has come of a frame.
    struct Incoming {
        Kind kind = Kind::Message;
        qint64 dictionaryLeft = 0;
        qint64 fileLeft = 0;
        qint64 fileSize = 0;
        QByteArray dictionary = {};
        FileDescriptor file = {};
        bool isWhole = true;
    };

    void pump();
    bool pumpFirst();
    void readTaken(quint64 count);
    void read();
    bool readHead();
    void readBody();
    void keepPart(const QByteArray& part);
    void deliver();
    void readSoon();

    const std::unique_ptr<QLocalSocket> m_socket;
    const std::filesystem::path m_folder;
    const std::function<QByteArray()> m_context;
    std::deque<Outgoing> m_waiting;
    std::optional<Incoming> m_incoming;
    /// Frames that the other end has not said to have taken, and that it has not been told of.
    quint64 m_untaken = 0;
    quint64 m_taken = 0;
    bool m_isReady = false;
    bool m_isCutOff = false;
    bool m_readIsComing = false;
};

}  // namespace tavi
