#include "trimming/waves/BarsItem.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

namespace tavi {

BarsItem::BarsItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &BarsItem::looksChanged, this, &BarsItem::redraw);
}

void BarsItem::redraw() {
    m_isStale = true;
    update();
}

void BarsItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
    redraw();
}

void BarsItem::setLevels(const QList<qreal>& levels) {
    if (levels != m_levels) {
        m_levels = levels;
        redraw();
        Q_EMIT levelsChanged();
    }
}

void BarsItem::move(qreal& edge, qreal place) {
    const int before = qRound(edge * width());
    const int now = qRound(place * width());
    if (std::exchange(edge, place) != place) {
        if (now != before) {
            // Only what changes its colour: this comes with every tick of a player. A part would take the place of a
            // whole that is still to be painted.
            update(m_isStale ? QRect() : QRect(std::min(before, now), 0, std::abs(now - before), qCeil(height())));
        }
        Q_EMIT rangeChanged();
    }
}

void BarsItem::paint(QPainter* painter) {
    m_isStale = false;
    const int step = m_barWidth + m_gap;
    const qsizetype count = step > 0 ? (static_cast<qsizetype>(width()) + m_gap) / step : 0;
    const int litFrom = qRound(m_from * width());
    const int litTo = qRound(m_to * width());
    const auto levelOf = [&](qsizetype bar) {
        if (m_levels.isEmpty()) {
            return 0.0;
        }
        const auto first = m_levels.begin() + bar * m_levels.size() / count;
        const auto last = m_levels.begin() + (bar + 1) * m_levels.size() / count;
        return *std::max_element(first, std::max(last, first + 1));
    };
    for (qsizetype bar = 0; bar < count; ++bar) {
        const int x = static_cast<int>(bar) * step;
        // An even height: the middle line lies between two pixels, or the bars would sway.
        const int height = 2 * std::max(qRound(std::clamp(levelOf(bar), 0.0, 1.0) * this->height() / 2.0), 1);
        const int y = qRound((this->height() - height) / 2.0);
        const int from = std::clamp(litFrom, x, x + m_barWidth);
        const int to = std::clamp(litTo, from, x + m_barWidth);
        painter->fillRect(x, y, from - x, height, m_restColor);
        painter->fillRect(from, y, to - from, height, m_color);
        painter->fillRect(to, y, x + m_barWidth - to, height, m_restColor);
    }
}

}  // namespace tavi
