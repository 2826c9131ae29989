#pragma once

#include <QAbstractListModel>
#include <vector>

#include "library/RecordingEntry.h"
#include "library/RecordingShapes.h"
#include "platform/AppContainer.h"

namespace tavi {

/// The rows of one section of the library's table: the text of their two lines, and the shape of their sound.
class RecordingListModel : public QAbstractListModel {
    Q_OBJECT

public:
    /// Role names in QML: "nameText", "detailText" and "shape". A shape is a list of numbers from 0 to 1; it is empty
    /// until it has been made, which asking for it begins.
    enum Role { NameTextRole = Qt::UserRole, DetailTextRole, ShapeRole };

    /// Shows recordings of the documents folder. Both must outlive the model.
    RecordingListModel(RecordingShapes& shapes, const AppContainer& container);

    /// A row's second line.
    static QString detailText(const RecordingEntry& entry);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Shows these entries. Where their names are those already shown, or all but one, it tells only which rows say
    /// something else, so that the view stays where it was scrolled to.
    void setEntries(const std::vector<RecordingEntry>& entries);

private:
    void shapeMade(const FileIdentity& identity);

    RecordingShapes& m_shapes;
    const AppContainer& m_container;
    std::vector<RecordingEntry> m_entries;
};

}  // namespace tavi
