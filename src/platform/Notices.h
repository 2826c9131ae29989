#pragma once

#include <QString>
#include <functional>
#include <memory>

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

/// A line about work that goes on: it goes when this does. Main thread only.
class ProgressNotice {
public:
    virtual ~ProgressNotice() = default;

    /// How far the work has come, from 0 to 1.
    virtual void setProgress(double fraction) = 0;
};

/// Says things in passing: nothing has to be answered, no key goes elsewhere, and each goes by itself after some
/// seconds. Questions, and what must not be missed, are the Presenter's. Main thread only.
class Notices {
public:
    virtual ~Notices() = default;

    /// Shows the notice in the place of the one before it, whose action can then no longer be chosen.
    virtual void postNotice(Notice notice) = 0;
    /// Shows a notice about work in the background for as long as the result is there, with how far it has come. Other
    /// notices stand before it for their time. Its action may be chosen more than once, as the line stays.
    virtual std::unique_ptr<ProgressNotice> postProgress(Notice notice) = 0;
};

}  // namespace tavi
