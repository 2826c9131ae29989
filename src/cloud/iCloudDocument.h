#pragma once

#include <filesystem>
#include <functional>
#include <memory>

#include "files/FileContents.h"
#include "platform/Document.h"

namespace tavi {

/// A document in the cloud, with the whole file as its contents. Main thread only.
class iCloudDocument : private DocumentClient {
public:
    /// The documents must outlive it.
    iCloudDocument(Documents& documents, const std::filesystem::path& fileURL);

    const FileContents& contents() const { return m_contents; }
    void setContents(const FileContents& contents) { m_contents = contents; }
    /// Hears of what goes wrong with the document; none by default.
    void setDelegate(std::function<void(const Error& error)> iCloudDocumentErrorOccured) {
        m_delegate = std::move(iCloudDocumentErrorOccured);
    }
    const std::filesystem::path& fileURL() const { return m_document->fileURL(); }
    /// The file's name.
    std::filesystem::path localizedName() const { return fileURL().filename(); }
    int documentState() const { return m_document->documentState(); }
    QString stateDescription() const { return stateDescription(documentState()); }
    /// The same of any state.
    static QString stateDescription(int state);
    /// Saving, opening and closing.
    Document& document() { return *m_document; }

private:
    FileContents contentsForType() override { return m_contents; }
    void loadFromContents(const FileContents& contents) override { m_contents = contents; }
    void handleError(const Error& error) override;

    FileContents m_contents;
    std::function<void(const Error&)> m_delegate;
    std::unique_ptr<Document> m_document;
};

}  // namespace tavi
