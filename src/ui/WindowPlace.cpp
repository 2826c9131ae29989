#include "ui/WindowPlace.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <array>
#include <memory>

namespace tavi {

namespace {

/// "X Y WIDTH HEIGHT" of the window's content.
const auto kKey = QStringLiteral("WindowPlace");
constexpr QSize kDesktop(960, 640);
constexpr QSize kPhone(390, 844);
constexpr QSize kLeast(280, 280);

QRect parsed(const QString& text) {
    std::array<int, 4> numbers{};
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    bool isNumber = words.size() == 4;
    for (qsizetype i = 0; isNumber && i < words.size(); ++i) {
        numbers[static_cast<std::size_t>(i)] = words[i].toInt(&isNumber);
    }
    return isNumber ? QRect(numbers[0], numbers[1], numbers[2], numbers[3]) : QRect();
}

int sharedArea(const QRect& one, const QRect& other) {
    const QRect shared = one & other;
    return shared.isEmpty() ? 0 : shared.width() * shared.height();
}

}  // namespace

QRect WindowPlace::place(const QList<QRect>& screens) const {
    QRect kept = parsed(m_defaults.stringForKey(kKey));
    if (screens.isEmpty()) {
        return {QPoint(), kept.isValid() ? kept.size().expandedTo(kLeast) : kDesktop};
    }
    const QRect screen = *std::max_element(screens.begin(), screens.end(), [&kept](const QRect& a, const QRect& b) {
        return sharedArea(a, kept) < sharedArea(b, kept);
    });
    const bool isNew = !kept.isValid() || sharedArea(screen, kept) == 0;
    if (!kept.isValid()) {
        kept.setSize(screen.width() > screen.height() ? kDesktop : kPhone);
    }
    kept.setSize(kept.size().expandedTo(kLeast).boundedTo(screen.size()));
    if (isNew) {
        kept.moveCenter(screen.center());
    }
    kept.moveLeft(std::clamp(kept.left(), screen.left(), screen.left() + screen.width() - kept.width()));
    kept.moveTop(std::clamp(kept.top(), screen.top(), screen.top() + screen.height() - kept.height()));
    return kept;
}

void WindowPlace::keep(const QRect& place) {
    m_defaults.setObject(
        QStringLiteral("%1 %2 %3 %4").arg(place.x()).arg(place.y()).arg(place.width()).arg(place.height()), kKey);
    m_defaults.synchronize();
}

void WindowPlace::follow(QWindow& window, UserDefaults& defaults) {
    const auto last = std::make_shared<QRect>(window.geometry());
    const auto note = [&window, last] {
        if (window.visibility() == QWindow::Windowed) {
            *last = window.geometry();
        }
    };
    for (const auto changed :
         {&QWindow::xChanged, &QWindow::yChanged, &QWindow::widthChanged, &QWindow::heightChanged}) {
        QObject::connect(&window, changed, &window, note);
    }
    QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, &window,
                     [last, &defaults] { WindowPlace(defaults).keep(*last); });
}

}  // namespace tavi
