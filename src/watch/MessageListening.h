#pragma once

#include <QString>
#include <QVariant>
#include <functional>

namespace tavi {

/// What a screen needs of the message channel to the companions: to hear messages by their identifier. Main thread
/// only.
class MessageListening {
public:
    virtual ~MessageListening() = default;

    /// Calls for every message with that identifier; a later listener takes the place of an earlier one.
    virtual void listenForMessageWithIdentifier(const QString& identifier,
                                                std::function<void(const QVariant& message)> listener) = 0;
};

}  // namespace tavi
