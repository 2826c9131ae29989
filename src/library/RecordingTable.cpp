#include "library/RecordingTable.h"

#include <QPointer>
#include <algorithm>

#include "files/FileNames.h"
#include "library/RecordingOrder.h"

namespace tavi {

RecordingTable::RecordingTable(const Services& services, QObject* parent)
    : QObject(parent), m_services(services), m_tableView(services.shapes, services.container) {
    m_filter.setSourceModel(&m_tableView);
    m_btnSortName.title = qtTrId("Name");
    m_btnSortDate.title = qtTrId("Date");
    m_btnSortSize.title = qtTrId("Size");
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
    if (!m_services.lister.isComplete()) {
        m_services.lister.measure([self = QPointer(this)] {
            if (self) {
                self->durationsArrived();
            }
        });
    }
}

void RecordingTable::durationsArrived() {
    for (RecordingEntry& entry : m_arrRecordings) {
        if (m_services.lister.wasOpen(entry.nativeName())) {
            entry.setValue(entrykey::kDuration, m_services.lister.durationText(entry.nativeName()));
        }
    }
    reloadTable();
}

void RecordingTable::setSearchText(const QString& text) {
    m_filter.setText(text);
    Q_EMIT outletsChanged();
}

void RecordingTable::reloadTable() {
    m_tableView.setEntries(m_arrRecordings);
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
