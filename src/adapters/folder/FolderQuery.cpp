#include "adapters/folder/FolderQuery.h"

#include "adapters/folder/FolderCloud.h"
#include "files/NamePattern.h"

namespace tavi {

FolderQuery::~FolderQuery() {
    stopQuery();
}

bool FolderQuery::startQuery() {
    const int looks = m_cloud.addQuery(*this);
    m_looksToGather = looks > 0 ? looks : m_looksToGather;
    return looks > 0;
}

void FolderQuery::stopQuery() {
    m_cloud.removeQuery(*this);
    m_looksToGather = 0;
}

void FolderQuery::didLook(bool hasChanged) {
    // The observer may go with what it calls.
    const Observers observers = m_observers;
    if (m_looksToGather > 0) {
        if (--m_looksToGather > 0) {
            return;
        }
        observers.didStartGathering ? observers.didStartGathering() : void();
        observers.didFinishGathering ? observers.didFinishGathering() : void();
    } else if (hasChanged && observers.didUpdate) {
        observers.didUpdate();
    }
}

std::vector<MetadataItem> FolderQuery::results() const {
    std::vector<MetadataItem> items;
    const std::string pattern = m_pattern.toStdString();
    for (const auto& [name, status] : m_cloud.items()) {
        if (hasExtensionLike(name, pattern)) {
            items.push_back({m_cloud.documentsFolder() / name, name, status});
        }
    }
    return items;
}

}  // namespace tavi
