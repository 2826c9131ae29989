#pragma once

#include <QtQml/qqml.h>

#include <QObject>
#include <QStringList>
#include <filesystem>
#include <vector>

#include "platform/DispatchQueues.h"
#include "platform/DocumentPicker.h"

namespace tavi {

/// Asks for a folder and a name, or a folder alone, where the desktop has no dialog for that. Folders are read in the
/// background. What has the chosen name already is not asked for here.
class SavePanel : public QObject, public DocumentPicker {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program has one.")
    Q_PROPERTY(bool active READ isActive NOTIFY changed)
    /// Where the user begins, and the drives that are there.
    Q_PROPERTY(QStringList places READ places NOTIFY changed)
    /// The path of the folder that is open, to show.
    Q_PROPERTY(QString folder READ folder NOTIFY changed)
    /// The names of the folders in it, to show. Empty until they have been read.
    Q_PROPERTY(QStringList folders READ folders NOTIFY changed)
    /// The proposed name.
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    /// Whether no name is asked for.
    Q_PROPERTY(bool choosesFolder READ choosesFolder NOTIFY changed)

public:
    /// Begins in that folder. Drives are the folders in the given ones; the queues must outlive this.
    SavePanel(DispatchQueues& queues, std::filesystem::path home, std::vector<std::filesystem::path> mounts,
              QObject* parent = nullptr);
    /// In the user's home, with the drives where desktops mount them.
    explicit SavePanel(DispatchQueues& queues);

    void presentForExport(const std::filesystem::path& file, Completion completion) override;
    void presentForFolder(const QString& title, Completion completion) override;

    bool isActive() const { return m_completion != nullptr; }
    QStringList places() const;
    QString folder() const;
    QStringList folders() const;
    QString name() const;
    QString title() const { return choosesFolder() ? m_title : qtTrId("save_title"); }
    bool choosesFolder() const { return !m_title.isEmpty(); }

public Q_SLOTS:
    /// Opens a folder of the list, that above the one that is open, or a place.
    void enter(int row);
    void goUp();
    void goTo(int place);
    /// Whether a file can have that name.
    bool isName(const QString& name) const;
    /// Chooses that name in the folder that is open; nothing happens with what is no name.
    void save(const QString& name);
    /// Chooses the folder that is open.
    void choose();
    void cancel();

Q_SIGNALS:
    void changed();

private:
    void present(const std::filesystem::path& file, const QString& title, Completion completion);
    void open(const std::filesystem::path& folder);
    void finish(const std::optional<PickedDocument>& picked);

    DispatchQueues& m_queues;
    std::filesystem::path m_home;
    std::vector<std::filesystem::path> m_mounts;
    std::filesystem::path m_file;
    QString m_title;
    std::filesystem::path m_folder;
    /// Paths, in the order shown.
    std::vector<std::filesystem::path> m_folders;
    std::vector<std::filesystem::path> m_places;
    Completion m_completion;
};

}  // namespace tavi
