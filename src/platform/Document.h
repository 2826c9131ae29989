#pragma once

#include <QDateTime>
#include <QString>
#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

#include "platform/Error.h"

namespace tavi {

class FileContents;

/// Bits of a document's state; none of them: it is open and as it should be.
namespace documentstate {
inline constexpr int kNormal = 0;
inline constexpr int kClosed = 1;
inline constexpr int kInConflict = 2;
inline constexpr int kSavingError = 4;
inline constexpr int kEditingDisabled = 8;
}  // namespace documentstate

/// Whether a document is to be new, or takes the place of what has its name.
enum class DocumentSave { ForCreating, ForOverwriting };

/// Another version of a file, which a second device wrote at the same time.
struct FileVersion {
    std::filesystem::path url;
    QDateTime modified;
};

/// What a document asks of whoever knows what is in it. Main thread only.
class DocumentClient {
public:
    virtual ~DocumentClient() = default;
    virtual FileContents contentsForType() = 0;
    virtual void loadFromContents(const FileContents& contents) = 0;
    virtual void handleError(const Error& error) = 0;
};

/// A file with its contents. Main thread only; disks are waited for elsewhere, and completions come on the main thread,
/// also when the document is gone by then. A failure is told to the client, and then to the completion.
class Document {
public:
    using Completion = std::function<void(Result<void>)>;

    virtual ~Document() = default;

    virtual const std::filesystem::path& fileURL() const = 0;
    /// Bits of documentstate. Closed until it has been opened or saved.
    virtual int documentState() const = 0;
    /// Called after every change of the state; nullptr for nobody.
    virtual void setStateObserver(std::function<void()> observer) = 0;
    /// The contents have changed: close() is to save them, if saveToURL() has not.
    virtual void updateChangeCount() = 0;
    /// Writes the client's contents: whole or not at all, and on the disk when the completion comes. ForCreating fails
    /// where the name is taken.
    virtual void save(DocumentSave operation, Completion completion) = 0;
    /// Reads the contents, and hands them to the client.
    virtual void open(Completion completion) = 0;
    virtual void close(Completion completion) = 0;
};

/// Makes documents, and knows of their other versions. Outlives them.
class Documents {
public:
    virtual ~Documents() = default;

    /// The client must outlive the document.
    virtual std::unique_ptr<Document> documentWithFileURL(const std::filesystem::path& url, DocumentClient& client) = 0;
    /// Other versions of a file that nobody has decided about. Waits for less than a frame.
    virtual std::vector<FileVersion> unresolvedConflictVersionsOfItem(const std::filesystem::path& url) = 0;
    /// Puts a version in the place of the file, or keeps the file where the version is its own URL; the others are
    /// moved to the desktop's trash.
    virtual void resolveConflict(const std::filesystem::path& url, const FileVersion& version,
                                 std::function<void(Result<void>)> completion) = 0;
};

}  // namespace tavi
