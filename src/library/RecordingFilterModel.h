#pragma once

#include <QSortFilterProxyModel>

namespace tavi {

/// The rows of the library's table whose names hold a text, in any case. Their order is the table's; role "row" tells
/// which row of the table each one is.
class RecordingFilterModel : public QSortFilterProxyModel {
    Q_OBJECT

public:
    enum Role { RowRole = Qt::UserRole + 100 };

    using QSortFilterProxyModel::QSortFilterProxyModel;

    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// An empty text shows everything.
    void setText(const QString& text);
    const QString& text() const { return m_text; }

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    QString m_text;
};

}  // namespace tavi
