#pragma once

#include <QString>
#include <QVariant>

namespace tavi {

/// Values by key, kept where only this user can read them. What the passcode lock keeps its secret in. Main thread
/// only.
class SecureStore {
public:
    virtual ~SecureStore() = default;

    /// Stores the value; an invalid one removes what is there. False where that did not come about; trouble() may say
    /// why.
    virtual bool setObject(const QVariant& value, const QString& key) = 0;
    /// The value as it was stored, with its type: a QString, a number, a QDateTime, ...; invalid where there is none,
    /// or where it cannot be read.
    virtual QVariant objectForKey(const QString& key) const = 0;
    /// What keeps values from being read or stored, in sentences for the user; empty while nothing does.
    virtual QString trouble() const = 0;
};

}  // namespace tavi
