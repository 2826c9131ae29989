#include "ui/Icon.h"

#include <QFile>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSvgRenderer>

namespace tavi {

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
    QString base = m_name;
    if (base.endsWith(QLatin1String(".png"))) {
        base.chop(4);
    }
    QFile file(QStringLiteral(":/images/%1.svg").arg(base));
    if (base.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QSvgRenderer drawing(file.readAll().replace("currentColor", m_color.name().toLatin1()));
    QImage image((size() * window()->effectiveDevicePixelRatio()).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter);
    return image;
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
