#pragma once

#include <QString>
#include <functional>

namespace tavi {

/// What is waited for.
struct Progress {
    enum class HudType {
        /// A bar, for what knows how much of it is done.
        Bar = 0,
        /// A ring that goes round, for what does not.
        Ring = 1,
    };

    /// For the user; a few words.
    QString text;
    HudType type = HudType::Ring;
    /// Called on the main thread when the user gives it up; the overlay stays until it is hidden. Empty where nobody
    /// can.
    std::function<void()> cancel = {};
};

/// Covers the window with what is waited for: no tap or key reaches what lies below, alerts stand above it.
///
/// Any thread. Each call returns at once and takes effect later, on the main thread, in the order of the calls.
class ProgressView {
public:
    virtual ~ProgressView() = default;

    /// Shows it in the place of what is shown.
    virtual void show(Progress progress) = 0;
    /// How much of it is done, from 0 to 1; for the bar. A few times a second is enough.
    virtual void setShare(double share) = 0;
    /// Harmless while nothing is shown.
    virtual void hide() = 0;
};

}  // namespace tavi
