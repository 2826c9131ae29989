#pragma once

#include <QString>
#include <functional>

namespace tavi {

/// Notifications by name between all programs of the user's session: they carry nothing but their name, and nobody
/// keeps them for who is not there. Main thread only.
class NotifyCenter {
public:
    virtual ~NotifyCenter() = default;

    /// Posts to every observer of that name, those of this program included. A name that is no
    /// text, as with half a surrogate pair, is posted to nobody.
    virtual void postNotification(const QString& name) = 0;
    /// Calls for every notification of that name, in the order of posting; the same observer may have many names, and
    /// one callback a name.
    virtual void addObserver(const void* observer, const QString& name,
                             std::function<void(const QString& name)> callback) = 0;
    virtual void removeObserver(const void* observer, const QString& name) = 0;
    virtual void removeEveryObserver(const void* observer) = 0;
};

}  // namespace tavi
