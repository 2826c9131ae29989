#pragma once

#include <QVariantMap>
#include <filesystem>

#include "platform/Error.h"

namespace tavi {

/// Hears what the companion at the other end sends. Main thread.
class WatchSessionDelegate {
public:
    virtual ~WatchSessionDelegate() = default;

    virtual void sessionDidReceiveMessage(const QVariantMap& message) = 0;
    virtual void sessionDidReceiveApplicationContext(const QVariantMap& context) = 0;
    /// The file is the session's, and goes when this returns.
    virtual void sessionDidReceiveFile(const std::filesystem::path& file, const QVariantMap& metadata) = 0;
};

/// The connection between the program and its companion. Main thread only.
///
/// Dictionaries are property lists, which may hold 16 MB and a little; files may have 256 MB. What is larger is not
/// sent.
class WatchSession {
public:
    virtual ~WatchSession() = default;

    /// Nobody for null.
    virtual void setDelegate(WatchSessionDelegate* delegate) = 0;
    /// Begins to connect, and to receive. Harmless when repeated.
    virtual void activateSession() = 0;
    /// Whether the other end is there to receive at once.
    virtual bool isReachable() const = 0;

    /// The dictionary that this end has last told, and the one of the other end; both outlive the programs.
    virtual QVariantMap applicationContext() const = 0;
    virtual QVariantMap receivedApplicationContext() const = 0;
    /// Takes the place of the former one, and reaches the other end when that is there: only the last one does.
    virtual Result<void> updateApplicationContext(const QVariantMap& context) = 0;

    /// To an end that is reachable; fails otherwise, and no answer is asked for.
    virtual Result<void> sendMessage(const QVariantMap& message) = 0;
    /// Sends the file that has this name now. Another may take its name while it is on its way; the file itself must
    /// stay as it is.
    virtual Result<void> transferFile(const std::filesystem::path& file, const QVariantMap& metadata) = 0;
};

}  // namespace tavi
