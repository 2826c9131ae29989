#pragma once

#include <QList>
#include <QRect>
#include <QSize>
#include <QString>
#include <QWindow>

#include "platform/UserDefaults.h"

namespace tavi {

/// Where the window opens: where it was left, as far as the screens there are now let it. Main thread only.
class WindowPlace {
public:
    /// The store must outlive this.
    explicit WindowPlace(UserDefaults& defaults) : m_defaults(defaults) {}

    /// The place for the window's content, in the coordinates of the screens, whose free areas are given, the primary
    /// one first. The first time it is in the middle of the primary one: 960 x 640 on a desktop's, the size of a
    /// phone's window on one that is higher than wide; never larger than the screen.
    QRect place(const QList<QRect>& screens) const;
    /// Keeps the place for the next start.
    void keep(const QRect& place);
    /// Keeps at the end of the program where the window is then. What the desktop enlarges it to is not a place.
    static void follow(QWindow& window, UserDefaults& defaults);

private:
    UserDefaults& m_defaults;
};

}  // namespace tavi
