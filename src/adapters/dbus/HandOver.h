#pragma once

#include <QDBusConnection>
#include <QString>
#include <QStringList>
#include <chrono>

#include "platform/Error.h"

namespace tavi {

/// What a start asks of the program; a second start hands it to the first.
struct ActivationRequest {
    enum class Kind {
        /// Show the window.
        Activate,
        /// Open the URLs.
        Open,
        /// Do the named action: "record", "stop", "library" or the type of a quick action.
        Action,
    };

    Kind kind = Kind::Activate;
    /// For Open: URLs and absolute paths.
    QStringList uris;
    /// For Action.
    QString action;
};

/// Why a request was not taken.
struct HandOverRefusal {
    /// The other is locked, and does this only when it is not.
    bool isLocked = false;
    Error error;
};

/// Hands the request to the instance that owns the bus name, with the desktop's activation token of this process, so
/// that the other's window may come to the front. Starts no program. Where nobody owns the name, the other may just be
/// starting: this waits so long for it, and then a few seconds at most for the answer. Needs a QCoreApplication.
tl::expected<void, HandOverRefusal> handOver(const QDBusConnection& sessionBus, const QString& busName,
                                             const ActivationRequest& request,
                                             std::chrono::milliseconds patience = std::chrono::seconds(3));

/// Tells the instance that owns the bus name, if there is one, that the recordings have changed. Waits for a second at
/// most. Needs a QCoreApplication.
void tellOfChange(const QDBusConnection& sessionBus, const QString& busName);

}  // namespace tavi
