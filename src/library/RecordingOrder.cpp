#include "library/RecordingOrder.h"

#include <algorithm>

namespace tavi {

QString sortKeyOf(int code) {
    switch (code) {
        case kSortNameAscending - 1:
        case kSortNameAscending:
            return entrykey::kFilename;
        case kSortDateAscending - 1:
        case kSortDateAscending:
            return entrykey::kModdate;
        case kSortSizeAscending - 1:
        case kSortSizeAscending:
            return entrykey::kSize;
        default:
            return {};
    }
}

void sortRecordings(std::vector<RecordingEntry>& recordings, const QString& key, bool ascending) {
    struct Place {
        QString text;
        std::size_t index;
    };
    std::vector<Place> places;
    places.reserve(recordings.size());
    for (const RecordingEntry& recording : recordings) {
        places.push_back({recording.value(key), places.size()});
    }
    std::stable_sort(places.begin(), places.end(), [ascending](const Place& left, const Place& right) {
        const int order = QString::compare(left.text, right.text, Qt::CaseSensitive);
        return ascending ? order < 0 : order > 0;
    });
    std::vector<RecordingEntry> sorted;
    sorted.reserve(recordings.size());
    for (const Place& place : places) {
        sorted.push_back(std::move(recordings[place.index]));
    }
    recordings = std::move(sorted);
}

void sortRecordings(std::vector<RecordingEntry>& recordings, int code) {
    if (const QString key = sortKeyOf(code); !key.isEmpty()) {
        sortRecordings(recordings, key, code % 2 == 0);
    }
}

}  // namespace tavi
