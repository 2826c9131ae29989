#include "ui/SavePanel.h"

#include <QCollator>
#include <QDir>
#include <QFile>
#include <QPointer>
#include <algorithm>
#include <utility>

namespace tavi {

namespace {

QString textOf(const std::filesystem::path& path) {
    return QFile::decodeName(QByteArray::fromStdString(path.native()));
}

std::vector<std::filesystem::path> mountsOfDesktops() {
    const std::filesystem::path user = qgetenv("USER").toStdString();
    return {std::filesystem::path("/run/media") / user, std::filesystem::path("/media") / user};
}

/// The folders in a folder that are not hidden; none where it cannot be read.
std::vector<std::filesystem::path> foldersIn(const std::filesystem::path& folder) {
    std::vector<std::pair<QString, std::filesystem::path>> found;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored;
        if (!entry->path().filename().native().starts_with('.') && entry->is_directory(ignored)) {
            found.emplace_back(textOf(entry->path().filename()), entry->path());
        }
    }
    QCollator order;
    order.setNumericMode(true);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    std::sort(found.begin(), found.end(),
              [&order](const auto& left, const auto& right) { return order.compare(left.first, right.first) < 0; });
    std::vector<std::filesystem::path> folders;
    std::transform(found.begin(), found.end(), std::back_inserter(folders), [](const auto& one) { return one.second; });
    return folders;
}

QStringList namesOf(const std::vector<std::filesystem::path>& paths) {
    QStringList names;
    std::transform(paths.begin(), paths.end(), std::back_inserter(names),
                   [](const auto& path) { return textOf(path.filename()); });
    return names;
}

}  // namespace

SavePanel::SavePanel(DispatchQueues& queues, std::filesystem::path home, std::vector<std::filesystem::path> mounts,
                     QObject* parent)
    : QObject(parent), m_queues(queues), m_home(std::move(home)), m_mounts(std::move(mounts)), m_folder(m_home) {}

SavePanel::SavePanel(DispatchQueues& queues)
    : SavePanel(queues, QFile::encodeName(QDir::homePath()).toStdString(), mountsOfDesktops()) {}

void SavePanel::presentForExport(const std::filesystem::path& file, Completion completion) {
    present(file, {}, std::move(completion));
}

void SavePanel::presentForFolder(const QString& title, Completion completion) {
    present({}, title, std::move(completion));
}

void SavePanel::present(const std::filesystem::path& file, const QString& title, Completion completion) {
    finish(std::nullopt);
    m_file = file;
    m_title = title;
    m_completion = std::move(completion);
    // Where the last one went, the next one probably goes, too.
    open(m_folder);
}

QStringList SavePanel::places() const {
    QStringList names = namesOf(m_places);
    if (!names.isEmpty()) {
        names.front() = qtTrId("save_home");
    }
    return names;
}

QString SavePanel::folder() const {
    return textOf(m_folder);
}

QStringList SavePanel::folders() const {
    return namesOf(m_folders);
}

QString SavePanel::name() const {
    return textOf(m_file.filename());
}

void SavePanel::open(const std::filesystem::path& folder) {
    m_folder = folder;
    m_folders.clear();
    Q_EMIT changed();
    m_queues.dispatchBackground([self = QPointer(this), &queues = m_queues, folder, home = m_home, mounts = m_mounts] {
        std::vector<std::filesystem::path> places{home};
        for (const std::filesystem::path& mount : mounts) {
            const auto drives = foldersIn(mount);
            places.insert(places.end(), drives.begin(), drives.end());
        }
        queues.dispatchMain([self, folder, places, folders = foldersIn(folder)] {
            if (self && self->m_folder == folder) {
                self->m_places = places;
                self->m_folders = folders;
                Q_EMIT self->changed();
            }
        });
    });
}

void SavePanel::enter(int row) {
    if (row >= 0 && static_cast<std::size_t>(row) < m_folders.size()) {
        open(std::filesystem::path(m_folders[static_cast<std::size_t>(row)]));
    }
}

void SavePanel::goUp() {
    open(m_folder.parent_path());
}

void SavePanel::goTo(int place) {
    if (place >= 0 && static_cast<std::size_t>(place) < m_places.size()) {
        open(m_places[static_cast<std::size_t>(place)]);
    }
}

bool SavePanel::isName(const QString& name) const {
    return !name.isEmpty() && !name.contains(QLatin1Char('/')) && name != QLatin1String(".") &&
           name != QLatin1String("..");
}

void SavePanel::save(const QString& typed) {
    if (isName(typed)) {
        // A name that is no text is shown with other letters; left as it is, it stays what it is.
        const std::filesystem::path chosen =
            typed == name() ? m_file.filename() : std::filesystem::path(QFile::encodeName(typed).toStdString());
        finish(PickedDocument{.path = m_folder / chosen});
    }
}

void SavePanel::choose() {
    finish(PickedDocument{.path = m_folder});
}

void SavePanel::cancel() {
    finish(std::nullopt);
}

void SavePanel::finish(const std::optional<PickedDocument>& picked) {
    if (const Completion completion = std::exchange(m_completion, nullptr)) {
        Q_EMIT changed();
        completion(picked);
    }
}

}  // namespace tavi
