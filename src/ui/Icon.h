#pragma once

#include <QtQml/qqml.h>

#include <QColor>
#include <QQuickItem>

namespace tavi {

/// One of the shell's images, drawn sharp at any size and density.
///
/// Screens name images by file, such as "rec_normal.png"; the drawings are "rec_normal.svg" and so on, and some images
/// share one. Parts drawn in currentColor take the item's color.
class Icon : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit Icon(QQuickItem* parent = nullptr);

    QString name() const { return m_name; }
    void setName(const QString& name);
    QColor color() const { return m_color; }
    void setColor(const QColor& color);

Q_SIGNALS:
    void nameChanged();
    void colorChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    QImage rendered() const;
    void invalidate();

    QString m_name;
    QColor m_color = Qt::white;
    bool m_isStale = true;
};

}  // namespace tavi
