#include "files/FileContents.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <system_error>
#include <utility>
#include <vector>

#include "files/PositionedIo.h"

namespace tavi {

FileContents::FileContents(std::string bytes)
    : m_bytes(std::make_shared<const std::string>(std::move(bytes))), m_size(m_bytes->size()) {}

FileResult<FileContents> FileContents::ofFile(const std::filesystem::path& path) {
    // A pipe or a device must not hold up who opens it.
    auto file = std::make_shared<const FileDescriptor>(FileDescriptor::open(path, O_RDONLY | O_NONBLOCK));
    if (!file->isValid()) {
        return fileFailure(std::generic_category().message(errno));
    }
    const std::int64_t size = regularFileSize(file->get());
    if (size < 0) {
        return fileFailure("It is not an ordinary file.");
    }
    FileContents contents;
    contents.m_file = std::move(file);
    contents.m_size = static_cast<std::uint64_t>(size);
    return contents;
}

std::size_t FileContents::read(void* data, std::size_t size, std::uint64_t offset) const {
    if (offset >= m_size) {
        return 0;
    }
    const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(size, m_size - offset));
    if (m_file != nullptr) {
        return readFully(m_file->get(), data, wanted, static_cast<std::int64_t>(offset));
    }
    std::memcpy(data, m_bytes->data() + offset, wanted);
    return wanted;
}

bool FileContents::equals(const FileContents& other) const {
    constexpr std::size_t kBlock = 256 * 1024;
    std::vector<char> mine(kBlock);
    std::vector<char> theirs(kBlock);
    bool isEqual = m_size == other.m_size;
    for (std::uint64_t offset = 0; isEqual && offset < m_size; offset += kBlock) {
        const auto wanted = std::min<std::uint64_t>(kBlock, m_size - offset);
        const std::size_t count = read(mine.data(), kBlock, offset);
        // What could not be read is not known to be equal.
        isEqual = count == wanted && other.read(theirs.data(), kBlock, offset) == count &&
                  std::memcmp(mine.data(), theirs.data(), count) == 0;
    }
    return isEqual;
}

std::string FileContents::head(std::size_t limit) const {
    std::string bytes(static_cast<std::size_t>(std::min<std::uint64_t>(limit, m_size)), '\0');
    bytes.resize(read(bytes.data(), bytes.size(), 0));
    return bytes;
}

}  // namespace tavi
