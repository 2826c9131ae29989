#pragma once

#include <QAbstractListModel>
#include <cstddef>
#include <filesystem>
#include <map>
#include <vector>

#include "cloud/CloudConnection.h"
#include "library/RecordingEntry.h"
#include "library/RecordingShapes.h"
#include "platform/AppContainer.h"

namespace tavi {

/// The rows of the library's table, both sections one after the other.
struct RecordingRows {
    std::vector<RecordingEntry> entries;
    /// So many of them are the recordings of this machine, and so many have a file; the rest has been asked for.
    std::size_t local = 0;
    std::size_t here = 0;
    /// What is known of the cloud's files, by native name.
    std::map<std::filesystem::path, CloudFile> files;
};

/// The rows of the library's table: the text of their two lines, the shape of their sound, and where the cloud's are.
class RecordingListModel : public QAbstractListModel {
    Q_OBJECT

public:
    /// Role names in QML: "nameText", "detailText", "shape", "section", "row", "isHere", "cloudState", "progress". A
    /// shape is a list of numbers from 0 to 1; it is empty until it has been made, which asking for it begins. A row is
    /// counted in its section. The state is empty for what is not in the cloud, else "there", "waiting", "sending",
    /// "only", "arriving" or "conflict".
    enum Role {
        NameTextRole = Qt::UserRole,
        DetailTextRole,
        ShapeRole,
        SectionRole,
        RowRole,
        IsHereRole,
        CloudStateRole,
        ProgressRole
    };

    /// Shows recordings of the documents folder. Both must outlive the model.
    RecordingListModel(RecordingShapes& shapes, const AppContainer& container);

    /// A row's second line.
    static QString detailText(const RecordingEntry& entry);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Shows these rows. Where their names are those already shown, or all but one, it tells only which rows say
    /// something else, so that the view stays where it was scrolled to.
    void setRows(RecordingRows rows);

private:
    bool isLocal(int row) const { return static_cast<std::size_t>(row) < m_rows.local; }
    const CloudFile* cloudFile(int row) const;
    QString cloudState(int row) const;
    QList<qreal> shape(int row) const;
    void setEntries(const std::vector<RecordingEntry>& entries);
    void shapeMade(const FileIdentity& identity);

    RecordingShapes& m_shapes;
    const AppContainer& m_container;
    RecordingRows m_rows;
    std::vector<RecordingEntry>& m_entries = m_rows.entries;
};

}  // namespace tavi
