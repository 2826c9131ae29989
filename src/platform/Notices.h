#pragma once

#include <QString>
#include <functional>

namespace tavi {

/// Something worth saying that waits for no answer.
struct Notice {
    /// For the user; one sentence.
    QString text;
    /// The one thing that the user may do about it; without a title there is nothing.
    QString actionTitle = {};
    /// Called on the main thread once the notice is gone.
    std::function<void()> action = {};
};

/// Says things in passing: nothing has to be answered, no key goes elsewhere, and each goes by itself after some
/// seconds. Questions, and what must not be missed, are the Presenter's. Main thread only.
class Notices {
public:
    virtual ~Notices() = default;

    /// Shows the notice in the place of the one before it, whose action can then no longer be chosen.
    virtual void postNotice(Notice notice) = 0;
};

}  // namespace tavi
