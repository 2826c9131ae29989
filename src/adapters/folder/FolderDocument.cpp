#include "adapters/folder/FolderDocument.h"

#include <cerrno>
#include <optional>
#include <utility>
#include <vector>

#include "files/ConflictNames.h"
#include "files/DurableFile.h"
#include "files/FileContents.h"
#include "files/FolderListing.h"
#include "files/PathText.h"
#include "files/PositionedIo.h"

namespace tavi {

namespace {

Result<void> errnoFailure(int error) {
    return failure(QString::fromStdString(writeErrorText(error)));
}

int writeContents(const FileContents& contents, int fd) {
    constexpr std::size_t kBlock = 1024 * 1024;
    std::vector<char> block(kBlock);
    for (std::uint64_t offset = 0; offset < contents.size();) {
        const std::size_t count = contents.read(block.data(), kBlock, offset);
        if (count == 0) {
            // Somebody has cut it short, or its disk has failed.
            return EIO;
        }
        const WriteResult written =
            writeFully(systemPwrite(), fd, block.data(), count, static_cast<std::int64_t>(offset));
        if (written.error != 0) {
            return written.error;
        }
        offset += count;
    }
    return 0;
}

int stateOf(const std::filesystem::path& url) {
    for (const auto& [name, identity] : listFolder(url.parent_path())) {
        if (originalOfConflict(name) == url.filename()) {
            return documentstate::kInConflict;
        }
    }
    return documentstate::kNormal;
}

}  // namespace

std::filesystem::path ConflictStamp::nameFor(const std::filesystem::path& name) const {
    return conflictName(name, now.toString(QStringLiteral("yyyy-MM-dd HH-mm-ss")).toStdString(), device.toStdString());
}

Result<void> writeDocument(const FileContents& contents, const std::filesystem::path& path, DocumentSave operation,
                           const ConflictStamp& stamp) {
    const auto seen = FileIdentity::at(path);
    if (operation == DocumentSave::ForCreating && seen) {
        return errnoFailure(EEXIST);
    }
    // Whole on the disk under a hidden name first.
    const std::filesystem::path hidden = path.parent_path() / ("." + path.filename().native());
    DurableFile file = DurableFile::create(operation == DocumentSave::ForCreating ? path : hidden);
    if (!file.isValid()) {
        return errnoFailure(errno);
    }
    if (const int error = writeContents(contents, file.fd()); error != 0) {
        return errnoFailure(error);
    }
    if (operation == DocumentSave::ForCreating) {
        const int error = file.publish();
        return error == 0 ? Result<void>() : errnoFailure(error);
    }
    if (const int error = file.synchronize(); error != 0) {
        return errnoFailure(error);
    }
    const auto replaced =
        replaceSeen(path, file.temporaryPath(), seen, path.parent_path() / stamp.nameFor(path.filename()));
    if (!replaced) {
        return tl::unexpected(errorOf(replaced.error()));
    }
    synchronizeFolder(path.parent_path());
    return {};
}

FolderDocument::FolderDocument(FolderThread& thread, std::filesystem::path url, DocumentClient& client,
                               std::function<ConflictStamp()> stamp)
    : m_thread(thread), m_stamp(std::move(stamp)) {
    m_shared->url = std::move(url);
    m_shared->client = &client;
}

void FolderDocument::Shared::end(int newState, const Result<void>& result, const Completion& completion) {
    const bool isNew = std::exchange(state, newState) != newState;
    if (isNew && observer) {
        observer();
    }
    if (!result && client != nullptr) {
        client->handleError(result.error());
    }
    if (completion) {
        completion(result);
    }
}

void FolderDocument::save(DocumentSave operation, Completion completion) {
    m_shared->isChanged = false;
    struct Outcome {
        Result<void> result;
        int state = documentstate::kNormal;
    };
    const auto outcome = std::make_shared<Outcome>();
    m_thread.post(
        [outcome, operation, url = m_shared->url, contents = m_shared->client->contentsForType(), stamp = m_stamp()] {
            outcome->result = writeDocument(contents, url, operation, stamp);
            outcome->state = stateOf(url);
        },
        [outcome, shared = m_shared, completion = std::move(completion)] {
            shared->isChanged = shared->isChanged || !outcome->result;
            shared->end(outcome->result ? outcome->state : shared->state | documentstate::kSavingError, outcome->result,
                        completion);
        });
}

void FolderDocument::open(Completion completion) {
    struct Outcome {
        FileResult<FileContents> contents;
        int state = documentstate::kNormal;
    };
    const auto outcome = std::make_shared<Outcome>();
    m_thread.post(
        [outcome, url = m_shared->url] {
            outcome->contents = FileContents::ofFile(url);
            outcome->state = stateOf(url);
        },
        [outcome, shared = m_shared, completion = std::move(completion)] {
            if (!outcome->contents) {
                return shared->end(shared->state, tl::unexpected(errorOf(outcome->contents.error())), completion);
            }
            if (shared->client != nullptr) {
                shared->client->loadFromContents(*outcome->contents);
            }
            shared->end(outcome->state, {}, completion);
        });
}

void FolderDocument::close(Completion completion) {
    if (m_shared->isChanged) {
        return save(DocumentSave::ForOverwriting, [this_ = m_shared, completion](const Result<void>& result) {
            this_->end(result ? documentstate::kClosed : this_->state, {}, nullptr);
            completion ? completion(result) : void();
        });
    }
    m_thread.post([] {}, [shared = m_shared,
                          completion = std::move(completion)] { shared->end(documentstate::kClosed, {}, completion); });
}

}  // namespace tavi
