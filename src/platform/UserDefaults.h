#pragma once

#include <QString>
#include <QVariant>

namespace tavi {

/// A persistent store of settings by key: the standard suite, or one that several programs share.
///
/// Main thread only. Values are bool, int, double or QString. A store may keep only a value's text, so readers convert:
/// what was stored as true reads as true through toBool(), whatever the variant's own type is by then. What another
/// process wrote is seen at the next read.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    /// The value of the key; an invalid variant where there is none.
    virtual QVariant objectForKey(const QString& key) const = 0;
    /// Stores the value; it reaches the disk at synchronize(), or when the store sees fit.
    virtual void setObject(const QVariant& value, const QString& key) = 0;
    virtual void removeObjectForKey(const QString& key) = 0;
    /// Writes what is pending and reads what others wrote. False when the disk refused it.
    virtual bool synchronize() = 0;

    bool boolForKey(const QString& key) const { return objectForKey(key).toBool(); }
    int integerForKey(const QString& key) const { return objectForKey(key).toInt(); }
    double floatForKey(const QString& key) const { return objectForKey(key).toDouble(); }
    QString stringForKey(const QString& key) const { return objectForKey(key).toString(); }
};

}  // namespace tavi
