#include "library/RecordingListModel.h"

#include <algorithm>

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
    const auto hasSameName = [](const RecordingEntry& left, const RecordingEntry& right) {
        return left.nativeName() == right.nativeName();
    };
    if (!std::equal(entries.begin(), entries.end(), m_entries.begin(), m_entries.end(), hasSameName)) {
        beginResetModel();
        m_entries = entries;
        endResetModel();
        return;
    }
    const auto [first, last] = std::mismatch(entries.begin(), entries.end(), m_entries.begin());
    if (first == entries.end()) {
        return;
    }
    const auto end = std::mismatch(entries.rbegin(), entries.rend(), m_entries.rbegin()).first.base();
    const auto from = static_cast<int>(first - entries.begin());
    const auto to = static_cast<int>(end - entries.begin()) - 1;
    m_entries = entries;
    Q_EMIT dataChanged(index(from), index(to));
}

}  // namespace tavi
