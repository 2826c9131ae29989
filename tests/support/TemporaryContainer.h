#pragma once

#include <QFile>
#include <QTemporaryDir>
#include <filesystem>

#include "platform/AppContainer.h"

namespace tavi::test {

/// The program's folders below a temporary folder that goes away with this: the real file system, no fake.
struct TemporaryContainer : AppContainer {
    /// Names that are no text, which QTemporaryDir leaves behind, go too.
    ~TemporaryContainer() override {
        std::error_code ignored;
        std::filesystem::remove_all(root(), ignored);
    }

    std::filesystem::path documentsPath() const override { return made("Documents"); }
    std::filesystem::path unsavedPath() const override { return made("Unsaved"); }
    std::filesystem::path cachesPath() const override { return made("Caches"); }
    std::filesystem::path temporaryPath() const override { return made("tmp"); }
    std::filesystem::path preferencesPath() const override { return made("Preferences"); }
    std::filesystem::path groupContainerPath(const QString& groupIdentifier) const override {
        return made("Groups/" + groupIdentifier.toStdString());
    }
    std::filesystem::path root() const { return m_root.path().toStdString(); }

    /// Writes a file below the documents folder and returns its path.
    std::filesystem::path addDocument(const std::filesystem::path& name, const QByteArray& bytes) const {
        std::filesystem::path path = documentsPath() / name;
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            qFatal("cannot write %s", path.c_str());
        }
        return path;
    }

private:
    std::filesystem::path made(const std::filesystem::path& name) const {
        std::filesystem::path path = root() / name;
        std::error_code ignored;
        std::filesystem::create_directories(path, ignored);
        return path;
    }

    QTemporaryDir m_root;
};

}  // namespace tavi::test
