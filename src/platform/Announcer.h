#pragma once

#include <QString>

namespace tavi {

/// Tells screen readers what has changed where the user is not. Main thread only.
class Announcer {
public:
    virtual ~Announcer() = default;

    /// Has the text said once whatever is being said now is over. Where no screen reader listens it does nothing.
    virtual void announce(const QString& text) = 0;
};

}  // namespace tavi
