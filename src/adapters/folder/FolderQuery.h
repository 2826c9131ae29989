#pragma once

#include "platform/MetadataQuery.h"

namespace tavi {

class FolderCloud;

/// The files of a FolderCloud, which must outlive it. Main thread only.
class FolderQuery : public MetadataQuery {
public:
    explicit FolderQuery(FolderCloud& cloud) : m_cloud(cloud) {}
    ~FolderQuery() override;

    void setObservers(Observers observers) override { m_observers = std::move(observers); }
    void setExtensionLike(const QString& pattern) override { m_pattern = pattern; }
    bool startQuery() override;
    void stopQuery() override;
    std::vector<MetadataItem> results() const override;

    /// The cloud has looked: for the first time since the start, or again.
    void didLook(bool hasChanged);

private:
    FolderCloud& m_cloud;
    Observers m_observers;
    QString m_pattern = QStringLiteral("*");
    /// Looks until the first list is whole; 0 afterwards.
    int m_looksToGather = 0;
};

}  // namespace tavi
