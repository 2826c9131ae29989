#pragma once

#include <QString>
#include <QVariant>

namespace tavi {

/// How a message travels: whoever posts writes it, whoever hears that there is one reads it. No error is told. Main
/// thread only.
class MMWormholeTransiting {
public:
    virtual ~MMWormholeTransiting() = default;

    /// True where the receiver is to be notified; false also where the message tells of itself. A message that is
    /// nothing (an invalid variant) is one, too.
    virtual bool writeMessageObject(const QVariant& message, const QString& identifier) = 0;
    /// The last message; an invalid variant where there is none.
    virtual QVariant messageObjectForIdentifier(const QString& identifier) = 0;
    virtual void deleteContentForIdentifier(const QString& identifier) = 0;
    virtual void deleteContentForAllMessages() = 0;
};

}  // namespace tavi
