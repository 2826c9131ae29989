#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/AppContainer.h"

namespace tavi::test {

/// The program's folders below a temporary folder that goes away with this: the real file system, no fake.
class TemporaryContainer : public AppContainer {
public:
    QString documentsPath() const override { return made("Documents"); }
    QString cachesPath() const override { return made("Caches"); }
    QString temporaryPath() const override { return made("tmp"); }
    QString preferencesPath() const override { return made("Preferences"); }
    QString groupContainerPath(const QString& groupIdentifier) const override {
        return made("Groups/" + groupIdentifier.toUtf8());
    }
    QString root() const { return m_root.path(); }

    /// Writes a file below the documents folder and returns its path.
    QString addDocument(const QString& name, const QByteArray& bytes) const {
        QString path = documentsPath() + QLatin1Char('/') + name;
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            qFatal("cannot write %s", qPrintable(path));
        }
        return path;
    }

private:
    QString made(const QByteArray& name) const {
        QString path = m_root.filePath(QString::fromUtf8(name));
        QDir().mkpath(path);
        return path;
    }

    QTemporaryDir m_root;
};

}  // namespace tavi::test
