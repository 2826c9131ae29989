#include "library/RecordingListModel.h"

#include <algorithm>

#include "files/PathText.h"

namespace tavi {

RecordingListModel::RecordingListModel(RecordingShapes& shapes, const AppContainer& container)
    : m_shapes(shapes), m_container(container) {
    connect(&m_shapes, &RecordingShapes::made, this, &RecordingListModel::shapeMade);
}

QString RecordingListModel::detailText(const RecordingEntry& entry) {
    return QStringList{entry.value(entrykey::kFilesize), entry.value(entrykey::kDuration),
                       entry.value(entrykey::kModdate)}
        .join(QStringLiteral(" | "));
}

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
            return lineText(entry.value(entrykey::kFilename));
        case DetailTextRole:
            return detailText(entry);
        case ShapeRole:
            return QVariant::fromValue(
                m_shapes.levelsOf(entry.identity(), m_container.documentsPath() / entry.nativeName()));
        default:
            return {};
    }
}

QHash<int, QByteArray> RecordingListModel::roleNames() const {
    return {{NameTextRole, "nameText"}, {DetailTextRole, "detailText"}, {ShapeRole, "shape"}};
}

void RecordingListModel::setEntries(const std::vector<RecordingEntry>& entries) {
    const auto hasSameName = [](const RecordingEntry& left, const RecordingEntry& right) {
        return left.nativeName() == right.nativeName();
    };
    const auto firstOther =
        std::mismatch(entries.begin(), entries.end(), m_entries.begin(), m_entries.end(), hasSameName);
    const auto lastOther =
        std::mismatch(entries.rbegin(), std::make_reverse_iterator(firstOther.first), m_entries.rbegin(),
                      std::make_reverse_iterator(firstOther.second), hasSameName);
    const auto row = static_cast<int>(firstOther.first - entries.begin());
    const auto come = lastOther.first.base() - firstOther.first;
    const auto gone = lastOther.second.base() - firstOther.second;
    if (come > 1 || gone > 1) {
        beginResetModel();
        m_entries = entries;
        endResetModel();
        return;
    }
    // At one place there is one more row, one less, or another one.
    if (gone > come) {
        beginRemoveRows({}, row, row);
        m_entries.erase(m_entries.begin() + row);
        endRemoveRows();
    } else if (come > gone) {
        beginInsertRows({}, row, row);
        m_entries.insert(m_entries.begin() + row, entries[static_cast<std::size_t>(row)]);
        endInsertRows();
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

void RecordingListModel::shapeMade(const FileIdentity& identity) {
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&identity](const RecordingEntry& entry) { return entry.identity() == identity; });
    if (found != m_entries.end()) {
        const QModelIndex row = index(static_cast<int>(found - m_entries.begin()));
        Q_EMIT dataChanged(row, row, {ShapeRole});
    }
}

}  // namespace tavi
