#pragma once

#include "platform/Trash.h"

namespace tavi::test {

/// Throws files into a folder of the test's own.
class FolderTrash : public Trash {
public:
    explicit FolderTrash(std::filesystem::path folder) : m_folder(std::move(folder)) {
        std::filesystem::create_directories(m_folder);
    }
    Result<std::filesystem::path> moveToTrash(const std::filesystem::path& path) override {
        std::error_code error;
        std::filesystem::rename(path, m_folder / path.filename(), error);
        return error ? Result<std::filesystem::path>(failure(QStringLiteral("refused"))) : m_folder / path.filename();
    }
    Result<std::filesystem::path> putBack(const std::filesystem::path&, const std::filesystem::path& path) override {
        return path;
    }

private:
    std::filesystem::path m_folder;
};

}  // namespace tavi::test
