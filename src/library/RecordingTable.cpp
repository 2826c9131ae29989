#include "library/RecordingTable.h"

#include <QPointer>
#include <algorithm>
#include <set>
#include <utility>

#include "files/FileNames.h"
#include "files/PathText.h"
#include "library/RecordingOrder.h"

namespace tavi {

RecordingTable::RecordingTable(const Services& services, QObject* parent)
    : QObject(parent), m_services(services), m_tableView(services.shapes, services.container) {
    m_filter.setSourceModel(&m_tableView);
    m_btnSortName.title = qtTrId("Name");
    m_btnSortDate.title = qtTrId("Date");
    m_btnSortSize.title = qtTrId("Size");
}

bool RecordingTable::showsCloudRows() const {
    const QModelIndex last = m_filter.index(m_filter.rowCount() - 1, 0);
    return last.data(RecordingListModel::SectionRole).toInt() == 1;
}

const RecordingEntry* RecordingTable::entryOf(int section, int row) const {
    const bool isThere = row >= 0 && row < numberOfRowsInSection(section);
    return isThere ? &listOf(section)[static_cast<std::size_t>(row)] : nullptr;
}

std::filesystem::path RecordingTable::pathOf(int section, int row) const {
    const RecordingEntry* entry = entryOf(section, row);
    return entry == nullptr
               ? std::filesystem::path()
               : m_services.container.documentsPath() / (section == 0 ? "" : foldername::kCloud) / entry->nativeName();
}

QList<qreal> RecordingTable::shapeOf(int section, int row) const {
    const RecordingEntry* entry = entryOf(section, row);
    return entry == nullptr ? QList<qreal>() : m_services.shapes.levelsOf(entry->identity(), pathOf(section, row));
}

int RecordingTable::rowOf(int section, const std::filesystem::path& name) const {
    const auto& list = listOf(section);
    const auto found = std::find_if(list.begin(), list.end(),
                                    [&name](const RecordingEntry& entry) { return entry.nativeName() == name; });
    return found != list.end() ? static_cast<int>(found - list.begin()) : -1;
}

void RecordingTable::getAlltheFiles() {
    m_arrRecordings = m_services.lister.list(m_services.container.documentsPath(), RecordingLister::Lengths::Known);
    setDefaultSortingButton();
    reloadTable();
    measure(m_services.lister, m_arrRecordings);
}

void RecordingTable::getAlltheFilesAndFolderFromDirectoryInIcloud() {
    m_arrIcloudFiles = m_services.cloudLister.list(m_services.container.documentsPath() / foldername::kCloud,
                                                   RecordingLister::Lengths::Known);
    reloadTable();
    measure(m_services.cloudLister, m_arrIcloudFiles);
}

void RecordingTable::measure(RecordingLister& lister, std::vector<RecordingEntry>& entries) {
    if (!lister.isComplete()) {
        lister.measure([self = QPointer(this), &lister, &entries] {
            if (self) {
                self->durationsArrived(lister, entries);
            }
        });
    }
}

void RecordingTable::durationsArrived(RecordingLister& lister, std::vector<RecordingEntry>& entries) {
    for (RecordingEntry& entry : entries) {
        if (lister.wasOpen(entry.nativeName())) {
            entry.setValue(entrykey::kDuration, lister.durationText(entry.nativeName()));
        }
    }
    reloadTable();
}

void RecordingTable::setCloudFiles(std::map<std::filesystem::path, CloudFile> files) {
    if (files != m_cloudFiles) {
        m_cloudFiles = std::move(files);
        reloadTable();
    }
}

std::vector<RecordingEntry> RecordingTable::awaited() const {
    std::set<std::filesystem::path> shown;
    for (const RecordingEntry& entry : m_arrIcloudFiles) {
        shown.insert(entry.nativeName());
    }
    std::vector<RecordingEntry> entries;
    for (const auto& [name, file] : m_cloudFiles) {
        if (!shown.contains(name)) {
            entries.emplace_back();
            entries.back().setNativeName(name);
            entries.back().setValue(entrykey::kFilename, pathText(name));
        }
    }
    return entries;
}

std::filesystem::path RecordingTable::awaitedName(int row) const {
    const std::vector<RecordingEntry> entries = awaited();
    const auto index = static_cast<std::size_t>(row) - m_arrIcloudFiles.size();
    return row >= 0 && index < entries.size() ? entries[index].nativeName() : std::filesystem::path();
}

void RecordingTable::setSearchText(const QString& text) {
    m_filter.setText(text);
    Q_EMIT outletsChanged();
    Q_EMIT cloudRowsChanged();
}

void RecordingTable::reloadTable() {
    RecordingRows rows{m_arrRecordings, m_arrRecordings.size(), m_arrRecordings.size(), {}};
    if (numberOfSections() > 1) {
        rows.entries.insert(rows.entries.end(), m_arrIcloudFiles.begin(), m_arrIcloudFiles.end());
        rows.here = rows.entries.size();
        for (RecordingEntry& entry : awaited()) {
            rows.entries.push_back(std::move(entry));
        }
        rows.files = m_cloudFiles;
    }
    m_tableView.setRows(std::move(rows));
    Q_EMIT cloudRowsChanged();
    Q_EMIT reloaded();
}

void RecordingTable::setDefaultSortingButton() {
    const int code = m_services.settings.sort();
    const QString key = sortKeyOf(code);
    const auto sort = [&](ButtonOutlet& button, void (RecordingTable::*by)(QObject*)) {
        button.selected = code % 2 == 0;
        (this->*by)(nullptr);
    };
    if (key == entrykey::kFilename) {
        sort(m_btnSortName, &RecordingTable::sortByName);
    } else if (key == entrykey::kModdate) {
        sort(m_btnSortDate, &RecordingTable::sortByDate);
    } else if (key == entrykey::kSize) {
        sort(m_btnSortSize, &RecordingTable::sortBySize);
    }
}

void RecordingTable::sortByName(QObject* sender) {
    sortBy(m_btnSortName, kSortNameAscending, entrykey::kFilename, sender);
}

void RecordingTable::sortByDate(QObject* sender) {
    sortBy(m_btnSortDate, kSortDateAscending, entrykey::kModdate, sender);
}

void RecordingTable::sortBySize(QObject* sender) {
    sortBy(m_btnSortSize, kSortSizeAscending, entrykey::kSize, sender);
}

void RecordingTable::sortBy(ButtonOutlet& button, int evenCode, const QString& key, const QObject* sender) {
    if (sender) {
        m_services.settings.setSort(button.selected ? evenCode - 1 : evenCode);
        button.selected = !button.selected;
    }
    excludeSortingFolders(key, button.selected);
    for (ButtonOutlet* each : {&m_btnSortName, &m_btnSortDate, &m_btnSortSize}) {
        each->image.clear();
    }
    button.image = button.selected ? QStringLiteral("sorting_arrow_down.png") : QStringLiteral("sorting_arrow_up.png");
    button.tintColor = m_services.settings.isThemeWhite() ? QStringLiteral("#000000") : QStringLiteral("#a1a1a1");
    Q_EMIT outletsChanged();
}

void RecordingTable::excludeSortingFolders(const QString& key, bool ascending) {
    sortRecordings(m_arrRecordings, key, ascending);
    reloadTable();
}

}  // namespace tavi
