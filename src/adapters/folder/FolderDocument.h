#pragma once

#include <QDateTime>
#include <memory>

#include "adapters/folder/FolderThread.h"
#include "platform/Document.h"

namespace tavi {

/// How a file that a second device wrote at the same time is named.
struct ConflictStamp {
    QDateTime now;
    QString device;
    std::filesystem::path nameFor(const std::filesystem::path& name) const;
};

/// Writes contents to a path: whole or not at all, and on the disk. What is there and has not been seen stays, under
/// the name of a conflict. Waits for the disk.
Result<void> writeDocument(const FileContents& contents, const std::filesystem::path& path, DocumentSave operation,
                           const ConflictStamp& stamp);

/// A file in a folder. Main thread only.
class FolderDocument : public Document {
public:
    /// Thread and client must outlive it.
    FolderDocument(FolderThread& thread, std::filesystem::path url, DocumentClient& client,
                   std::function<ConflictStamp()> stamp);

    const std::filesystem::path& fileURL() const override { return m_shared->url; }
    int documentState() const override { return m_shared->state; }
    void setStateObserver(std::function<void()> observer) override { m_shared->observer = std::move(observer); }
    void updateChangeCount() override { m_shared->isChanged = true; }
    void save(DocumentSave operation, Completion completion) override;
    void open(Completion completion) override;
    void close(Completion completion) override;

private:
    /// Outlives the document while something is under way.
    struct Shared {
        std::filesystem::path url;
        int state = documentstate::kClosed;
        bool isChanged = false;
        std::function<void()> observer;
        /// Null once the document is gone.
        DocumentClient* client = nullptr;

        void end(int newState, const Result<void>& result, const Completion& completion);
    };
    struct Release {
        std::shared_ptr<Shared> shared;
        ~Release() { shared->client = nullptr; }
    };

    FolderThread& m_thread;
    std::shared_ptr<Shared> m_shared = std::make_shared<Shared>();
    Release m_release{m_shared};
    std::function<ConflictStamp()> m_stamp;
};

}  // namespace tavi
