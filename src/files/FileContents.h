#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "files/FileDescriptor.h"
#include "files/FileError.h"

namespace tavi {

/// The whole contents of a file, held open and read as they are needed: a recording of hours takes no memory. Removing
/// or renaming the file changes nothing here, and a file that is cut short reads shorter; a mapping would end the
/// program. Copies share the file. Any thread, several at once.
class FileContents {
public:
    /// None: a file of length 0.
    FileContents() = default;
    explicit FileContents(std::string bytes);
    /// What a regular file holds now. Anything else is a failure, and nothing is waited for but the disk.
    static FileResult<FileContents> ofFile(const std::filesystem::path& path);

    /// In bytes, as of when it was opened.
    std::uint64_t size() const { return m_size; }
    /// Reads up to size bytes; fewer only at the end, or where the disk has failed.
    std::size_t read(void* data, std::size_t size, std::uint64_t offset) const;
    /// Whether both hold the same bytes; takes as long as reading them.
    bool equals(const FileContents& other) const;
    /// Up to limit bytes of them as they stand, from the first.
    std::string head(std::size_t limit) const;

private:
    std::shared_ptr<const FileDescriptor> m_file;
    std::shared_ptr<const std::string> m_bytes;
    std::uint64_t m_size = 0;
};

}  // namespace tavi
