#include "files/FolderListing.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

#include "files/DurableFile.h"
#include "files/FileDescriptor.h"

namespace tavi {

int markContainer(const std::filesystem::path& container) {
    const FileDescriptor mark = FileDescriptor::open(container / kContainerMark, O_WRONLY | O_CREAT, 0666);
    return mark.isValid() ? synchronize(mark.get(), container) : errno;
}

bool isContainer(const std::filesystem::path& container) {
    return FileIdentity::at(container / kContainerMark).has_value();
}

FolderListing listFolder(const std::filesystem::path& folder, std::error_code* failure) {
    FolderListing listing;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        struct stat attributes = {};
        const std::filesystem::path& path = entry->path();
        if (path.filename().native().front() != '.' && ::lstat(path.c_str(), &attributes) == 0 &&
            S_ISREG(attributes.st_mode)) {
            listing.emplace(path.filename(), FileIdentity(attributes));
        }
    }
    if (failure != nullptr) {
        *failure = error;
    }
    return listing;
}

}  // namespace tavi
