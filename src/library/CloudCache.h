#pragma once

#include <filesystem>
#include <mutex>
#include <optional>
#include <set>
#include <unordered_set>

#include "files/FileContents.h"
#include "files/FileIdentity.h"

namespace tavi {

/// The folder "ICloud" with the copies of the cloud's files that the library shows and plays, and which of them a
/// refresh has made. What a refresh has not made may be the only one of its contents, and is never lost. Any thread;
/// calls wait for each other, and take as long as the disk needs.
class CloudCache {
public:
    /// The record is a file outside that folder, which says what refreshes have made.
    CloudCache(std::filesystem::path documents, std::filesystem::path record)
        : m_documents(std::move(documents)), m_record(std::move(record)) {}

    std::filesystem::path folder() const;
    /// Empties the folder, but for the names that are to stay. What no refresh made goes among the recordings, under a
    /// free name; where some are to stay it stays, too. Whether something has gone there.
    bool empty(const std::optional<std::set<std::filesystem::path>>& staying);
    /// Writes a copy under a name, with the date of the cloud's file where that can be had; one that has the same
    /// length and date is there already. What has the name and was made by no refresh steps aside among the recordings.
    /// 0 or an errno value.
    int write(const std::filesystem::path& name, const FileContents& contents, const std::filesystem::path& url);

private:
    using Identities = std::unordered_set<FileIdentity, FileIdentityHash>;
    void read();
    bool moveAmongRecordings(const std::filesystem::path& path) const;

    std::filesystem::path m_documents;
    std::filesystem::path m_record;
    std::mutex m_mutex;
    /// What refreshes have made, as the record says.
    std::optional<Identities> m_made;
};

}  // namespace tavi
