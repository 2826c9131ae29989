#pragma once

namespace tavi {

/// The bar that chooses between the record (0), library (1) and settings (2) screens. Main thread only.
class TabBar {
public:
    virtual ~TabBar() = default;

    virtual int selectedIndex() const = 0;
    /// Selects a tab whether or not the user may.
    virtual void setSelectedIndex(int index) = 0;
    virtual bool isUserInteractionEnabled() const = 0;
    /// Whether the user's taps and keys choose tabs.
    virtual void setUserInteractionEnabled(bool enabled) = 0;
};

}  // namespace tavi
