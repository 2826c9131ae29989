#pragma once

#include <QSortFilterProxyModel>

namespace tavi {

/// The rows of the library's table whose names hold a text, in any case. Their order is the table's.
class RecordingFilterModel : public QSortFilterProxyModel {
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    /// An empty text shows everything.
    void setText(const QString& text);
    const QString& text() const { return m_text; }

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    QString m_text;
};

}  // namespace tavi
