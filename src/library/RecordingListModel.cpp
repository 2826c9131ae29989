#include "library/RecordingListModel.h"

namespace tavi {

int RecordingListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

QVariant RecordingListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
        return {};
    }
    const RecordingEntry& entry = m_entries[static_cast<std::size_t>(index.row())];
    switch (role) {
        case NameTextRole:
            return entry.value(entrykey::kFilename);
        case DetailTextRole:
            return QStringList{entry.value(entrykey::kFilesize), entry.value(entrykey::kDuration),
                               entry.value(entrykey::kModdate)}
                .join(QStringLiteral(" | "));
        default:
            return {};
    }
}

QHash<int, QByteArray> RecordingListModel::roleNames() const {
    return {{NameTextRole, "nameText"}, {DetailTextRole, "detailText"}};
}

void RecordingListModel::setEntries(const std::vector<RecordingEntry>& entries) {
    if (entries == m_entries) {
        return;
    }
    beginResetModel();
    m_entries = entries;
    endResetModel();
}

}  // namespace tavi
