#pragma once

#include <QRectF>
#include <filesystem>
#include <functional>

#include "platform/Error.h"

namespace tavi {

/// Hands files to other programs of the desktop. Main thread only; no call waits.
///
/// A completion is called once, on the main thread, after the call has returned, and not once this is gone. What the
/// user chooses not to do is no error.
class DocumentInteraction {
public:
    using Completion = std::function<void(Result<void>)>;

    virtual ~DocumentInteraction() = default;

    /// Lets the user choose a program for the file; where the desktop has no such choice the program that is set for
    /// its kind opens it. The choice comes from that part of the window, in points, where the desktop can tell.
    virtual void presentOpenInMenu(const std::filesystem::path& path, const QRectF& anchor, Completion completion) = 0;
    /// Shows the file in its folder, in the file manager.
    virtual void showInFolder(const std::filesystem::path& path, Completion completion) = 0;
};

}  // namespace tavi
