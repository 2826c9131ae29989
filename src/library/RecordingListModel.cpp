#include "library/RecordingListModel.h"

#include <algorithm>
#include <utility>

#include "files/FileNames.h"
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
    const int row = index.row();
    const RecordingEntry& entry = m_entries[static_cast<std::size_t>(row)];
    const bool isHere = static_cast<std::size_t>(row) < m_rows.here;
    switch (role) {
        case NameTextRole:
            return lineText(entry.value(entrykey::kFilename));
        case DetailTextRole:
            return isHere ? detailText(entry) : QString();
        case ShapeRole:
            return QVariant::fromValue(shape(row));
        case SectionRole:
            return isLocal(row) ? 0 : 1;
        case RowRole:
            return isLocal(row) ? row : row - static_cast<int>(m_rows.local);
        case IsHereRole:
            return isHere;
        case CloudStateRole:
            return cloudState(row);
        case ProgressRole:
            return cloudFile(row) != nullptr ? cloudFile(row)->progress : 0.0;
        default:
            return {};
    }
}

QList<qreal> RecordingListModel::shape(int row) const {
    const RecordingEntry& entry = m_entries[static_cast<std::size_t>(row)];
    const std::filesystem::path folder = m_container.documentsPath() / (isLocal(row) ? "" : foldername::kCloud);
    return m_shapes.levelsOf(entry.identity(), folder / entry.nativeName());
}

const CloudFile* RecordingListModel::cloudFile(int row) const {
    const auto found =
        isLocal(row) ? m_rows.files.end() : m_rows.files.find(m_entries[static_cast<std::size_t>(row)].nativeName());
    return found != m_rows.files.end() ? &found->second : nullptr;
}

QString RecordingListModel::cloudState(int row) const {
    const CloudFile* file = cloudFile(row);
    if (file == nullptr) {
        return {};
    }
    switch (file->state) {
        case CloudFile::State::There:
            return file->isConflict ? QStringLiteral("conflict") : QStringLiteral("there");
        case CloudFile::State::Waiting:
            return QStringLiteral("waiting");
        case CloudFile::State::Sending:
            return QStringLiteral("sending");
        case CloudFile::State::OnlyThere:
            return QStringLiteral("only");
        case CloudFile::State::Arriving:
            return QStringLiteral("arriving");
    }
    return {};
}

QHash<int, QByteArray> RecordingListModel::roleNames() const {
    return {{NameTextRole, "nameText"},
            {DetailTextRole, "detailText"},
            {ShapeRole, "shape"},
            {SectionRole, "section"},
            {RowRole, "row"},
            {IsHereRole, "isHere"},
            {CloudStateRole, "cloudState"},
            {ProgressRole, "progress"}};
}

void RecordingListModel::setRows(RecordingRows rows) {
    std::vector<RecordingEntry> entries = std::exchange(rows.entries, {});
    const bool isMoved = rows.local != m_rows.local || rows.here != m_rows.here;
    const bool isOther = isMoved || rows.files != m_rows.files;
    m_rows.local = rows.local;
    m_rows.here = rows.here;
    m_rows.files = std::move(rows.files);
    setEntries(entries);
    const int first = static_cast<int>(std::min(m_rows.local, m_entries.size()));
    if (isOther && first < rowCount()) {
        Q_EMIT dataChanged(index(first), index(rowCount() - 1));
    }
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
    const bool isShifted = gone != come;
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
    if (isShifted && row < rowCount()) {
        Q_EMIT dataChanged(index(row), index(rowCount() - 1), {RowRole});
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
