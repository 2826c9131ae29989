#pragma once

#include <QUrl>
#include <functional>

#include "platform/Error.h"
#include "platform/RecorderState.h"

namespace tavi {

/// The recorder as a companion sees it. Main thread only.
class Recorder {
public:
    virtual ~Recorder() = default;

    /// As it was told last, with the seconds of that moment.
    virtual RecorderState state() const = 0;
    /// Is called whenever state() has become another; also the first time that it is known.
    virtual void setStateHandler(std::function<void()> handler) = 0;
    /// Opens one of the recorder's own URLs, starting the recorder where none runs. How it went comes later, and maybe
    /// never where this program ends before. Locked: the recorder does this only when it is not, and asks for the
    /// passcode.
    enum class Outcome { Opened, Locked, Failed };
    virtual void open(const QUrl& url, std::function<void(Outcome outcome, const Error& error)> completion) = 0;
};

}  // namespace tavi
