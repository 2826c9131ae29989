#include "ui/Icon.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSvgRenderer>
#include <algorithm>
#include <array>
#include <utility>

namespace tavi {

namespace {

/// Images that screens know by another name than the drawing's own.
constexpr std::array<std::pair<QLatin1StringView, QLatin1StringView>, 21> kDrawings{{
    {QLatin1StringView("voicememo"), QLatin1StringView("recordings")},
    {QLatin1StringView("setting"), QLatin1StringView("settings")},
    {QLatin1StringView("play_player"), QLatin1StringView("play")},
    {QLatin1StringView("pause_Player"), QLatin1StringView("pause")},
    {QLatin1StringView("stop_Play"), QLatin1StringView("stop")},
    {QLatin1StringView("skip_back"), QLatin1StringView("skip-back")},
    {QLatin1StringView("skip_forward"), QLatin1StringView("skip-forward")},
    {QLatin1StringView("sorting_arrow_up"), QLatin1StringView("arrow-up")},
    {QLatin1StringView("sorting_arrow_down"), QLatin1StringView("arrow-down")},
    {QLatin1StringView("wp_white"), QLatin1StringView("logo")},
    // Rows of the settings, from the first to the last.
    {QLatin1StringView("8"), QLatin1StringView("container")},
    {QLatin1StringView("9"), QLatin1StringView("quality")},
    {QLatin1StringView("10"), QLatin1StringView("skip-back")},
    {QLatin1StringView("11"), QLatin1StringView("skip-forward")},
    {QLatin1StringView("12"), QLatin1StringView("cloud")},
    {QLatin1StringView("13"), QLatin1StringView("mail")},
    {QLatin1StringView("14"), QLatin1StringView("lock")},
    {QLatin1StringView("15"), QLatin1StringView("rate")},
    {QLatin1StringView("16"), QLatin1StringView("apps")},
    {QLatin1StringView("17"), QLatin1StringView("report")},
    {QLatin1StringView("trim_knob"), QLatin1StringView("thumb_active")},
}};

QString drawingOf(QString image) {
    if (image.endsWith(QLatin1String(".png"))) {
        image.chop(4);
    }
    const auto* const found =
        std::find_if(kDrawings.begin(), kDrawings.end(), [&image](const auto& entry) { return entry.first == image; });
    return found == kDrawings.end() ? image : QString(found->second);
}

/// Points to where the words run.
constexpr QLatin1StringView kPointer("chevron-right");

}  // namespace

Icon::Icon(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    setImplicitSize(24.0, 24.0);
}

void Icon::setName(const QString& name) {
    if (name != m_name) {
        m_name = name;
        invalidate();
        Q_EMIT nameChanged();
    }
}

void Icon::setColor(const QColor& color) {
    if (color != m_color) {
        m_color = color;
        invalidate();
        Q_EMIT colorChanged();
    }
}

void Icon::invalidate() {
    m_isStale = true;
    update();
}

void Icon::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size()) {
        invalidate();
    }
}

void Icon::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged) {
        invalidate();
    }
}

QImage Icon::rendered() const {
    QFile file(QStringLiteral(":/images/%1.svg").arg(drawingOf(m_name)));
    if (m_name.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QSvgRenderer drawing(file.readAll().replace("currentColor", m_color.name().toLatin1()));
    QImage image((size() * window()->effectiveDevicePixelRatio()).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter);
    return QGuiApplication::isRightToLeft() && drawingOf(m_name) == kPointer ? image.mirrored(true, false) : image;
}

QSGNode* Icon::updatePaintNode(QSGNode* node, UpdatePaintNodeData*) {
    auto* imageNode = static_cast<QSGImageNode*>(node);
    if (m_isStale || !imageNode) {
        m_isStale = false;
        const QImage image = size().isEmpty() ? QImage() : rendered();
        if (image.isNull()) {
            delete imageNode;
            return nullptr;
        }
        if (!imageNode) {
            imageNode = window()->createImageNode();
            imageNode->setOwnsTexture(true);
        }
        imageNode->setTexture(window()->createTextureFromImage(image));
    }
    if (imageNode) {
        imageNode->setRect(boundingRect());
    }
    return imageNode;
}

}  // namespace tavi
