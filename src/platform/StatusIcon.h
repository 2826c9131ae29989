#pragma once

#include <QList>
#include <QString>
#include <functional>

namespace tavi {

/// A line of an icon's menu.
struct StatusEntry {
    /// What is chosen by it; 0 for a line that only says something, and without a label for one that divides.
    int action = 0;
    QString label;
    bool isEnabled = true;

    bool operator==(const StatusEntry&) const = default;
};

/// An icon and what belongs to it.
struct StatusContent {
    /// A name of the desktop's icon theme.
    QString iconName;
    QString title;
    QString tip;
    QList<StatusEntry> menu;
    /// What a click on the icon itself chooses.
    int clickAction = 0;

    bool operator==(const StatusContent&) const = default;
};

/// An icon in the desktop's status area. Main thread only.
class StatusIcon {
public:
    virtual ~StatusIcon() = default;

    /// Shows the icon, or changes what it shows. Where the desktop has no status area, as soon as it has one.
    virtual void show(const StatusContent& content) = 0;
    /// Is called with what the user has chosen.
    virtual void setActionHandler(std::function<void(int action)> handler) = 0;
};

}  // namespace tavi
