#pragma once

#include <QAbstractListModel>
#include <vector>

#include "library/RecordingEntry.h"

namespace tavi {

/// The rows of one section of the library's table: the text of their two lines.
class RecordingListModel : public QAbstractListModel {
    Q_OBJECT

public:
    /// Role names in QML: "nameText" and "detailText".
    enum Role { NameTextRole = Qt::UserRole, DetailTextRole };

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Shows these entries. Where their names are those already shown, it tells only which rows say something else, so
    /// that the view stays where it was scrolled to.
    void setEntries(const std::vector<RecordingEntry>& entries);

private:
    std::vector<RecordingEntry> m_entries;
};

}  // namespace tavi
