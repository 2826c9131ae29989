#include "library/VoiceMemoVC.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDebug>
#include <QFile>
#include <algorithm>
#include <cerrno>
#include <cmath>
#include <memory>

#include "library/utility/Utility.h"

namespace tavi {

namespace {

// Codes of "Sort": a button's even code stands for ascending order, the odd one below it for descending.
constexpr int kSortNameAscending = 2;
constexpr int kSortDateAscending = 4;
constexpr int kSortSizeAscending = 6;

constexpr int kSecondsPerMinute = 60;

/// Names in a folder in the order in which the file system gives them; none where it cannot be read.
std::vector<QByteArray> namesInFolder(const QByteArray& folder) {
    struct Closer {
        void operator()(DIR* directory) const { ::closedir(directory); }
    };
    std::vector<QByteArray> names;
    const std::unique_ptr<DIR, Closer> directory(::opendir(folder.constData()));
    if (!directory) {
        return names;
    }
    // No other thread reads this stream, which is all that readdir(3) asks for.
    while (const dirent* item = ::readdir(directory.get())) {  // NOLINT(concurrency-mt-unsafe)
        const QByteArray name(item->d_name);
        if (name != "." && name != "..") {
            names.push_back(name);
        }
    }
    return names;
}

bool isListed(const QByteArray& name) {
    return name != "PrivateInbox" && name != "Inbox" && name != "ICloud" && name != ".DS_Store";
}

QString extensionOf(const QString& name) {
    const auto dot = name.lastIndexOf(QLatin1Char('.'));
    return dot > 0 ? name.mid(dot + 1) : QString();
}

/// "mm:ss". Minutes are not wrapped into hours, on purpose: the list keeps one short form, and 3725 s read 62:05.
QString durationText(double duration) {
    const auto seconds = std::isfinite(duration) && duration > 0.0 ? static_cast<qint64>(duration) : qint64{0};
    const auto twoDigits = [](qint64 number) { return QString::number(number).rightJustified(2, QLatin1Char('0')); };
    return twoDigits(seconds / kSecondsPerMinute) + QLatin1Char(':') + twoDigits(seconds % kSecondsPerMinute);
}

/// Asks for the length of a file whose path may be no text.
double durationAt(const AudioDuration& durations, const QByteArray& path) {
    const QString text = QFile::decodeName(path);
    if (QFile::encodeName(text) == path) {
        return durations.durationOfFile(text);
    }
    const int descriptor = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        return 0.0;
    }
    // The kernel's own name of an open file is text whatever the file is called.
    const double duration = durations.durationOfFile(QStringLiteral("/proc/self/fd/%1").arg(descriptor));
    ::close(descriptor);
    return duration;
}

}  // namespace

VoiceMemoVC::VoiceMemoVC(const Services& services, QObject* parent) : QObject(parent), m_services(services) {}

int VoiceMemoVC::numberOfSections() const {
    return m_services.settings.isCloudSyncOn() ? 2 : 1;
}

int VoiceMemoVC::numberOfRowsInSection(int section) const {
    return section == 0 ? static_cast<int>(m_arrRecordings.size()) : 0;
}

void VoiceMemoVC::viewDidLoad() {
    m_title = qtTrId("voice_record");
    m_headerText = qtTrId("Local Recording's");
    m_btnSortName.title = qtTrId("Name");
    m_btnSortDate.title = qtTrId("Date");
    m_btnSortSize.title = qtTrId("Size");
    Q_EMIT outletsChanged();
    getAlltheFiles();
    connect(&m_services.notifications, &NotificationCenter::posted, this, &VoiceMemoVC::notificationPosted,
            Qt::UniqueConnection);
}

void VoiceMemoVC::viewWillAppear() {
    getAlltheFiles();
    resetCell();
}

void VoiceMemoVC::getAlltheFiles() {
    m_arrRecordings.clear();
    const QByteArray folder = QFile::encodeName(m_services.container.documentsPath()) + '/';
    for (const QByteArray& name : namesInFolder(folder)) {
        const QByteArray path = folder + name;
        if (isListed(name) && ::access(path.constData(), F_OK) == 0) {
            m_arrRecordings.push_back(entryOf(name, path));
        }
    }
    setDefaultSortingButton();
    reloadTable();
}

RecordingEntry VoiceMemoVC::entryOf(const QByteArray& name, const QByteArray& path) {
    const double megabytes = Utility::getFileSize(path);
    const QString filename = QFile::decodeName(name);
    RecordingEntry entry;
    entry.setNativeName(name);
    entry.setValue(entrykey::kSize, Utility::fixed(megabytes, 6));
    entry.setValue(entrykey::kFilename, filename);
    entry.setValue(entrykey::kModdate, Utility::getTheFormatDate(Utility::getFileModificationDate(path)));
    entry.setValue(entrykey::kFilesize, Utility::displaySize(megabytes));
    entry.setValue(entrykey::kExtension, extensionOf(filename));
    entry.setValue(entrykey::kDuration, durationText(durationOf(path)));
    return entry;
}

double VoiceMemoVC::durationOf(const QByteArray& path) {
    struct stat attributes = {};
    // Folders are listed like files, on purpose: a stray one is seen, and has no length. A pipe would block its reader.
    if (::stat(path.constData(), &attributes) != 0 || !S_ISREG(attributes.st_mode)) {
        return 0.0;
    }
    QByteArray identity;
    for (const auto part : {static_cast<qint64>(attributes.st_dev), static_cast<qint64>(attributes.st_ino),
                            static_cast<qint64>(attributes.st_size), static_cast<qint64>(attributes.st_mtim.tv_sec),
                            static_cast<qint64>(attributes.st_mtim.tv_nsec)}) {
        identity += QByteArray::number(part) + ':';
    }
    const auto known = m_knownDurations.constFind(identity);
    if (known != m_knownDurations.constEnd()) {
        return *known;
    }
    const double duration = durationAt(m_services.durations, path);
    m_knownDurations.insert(identity, duration);
    return duration;
}

void VoiceMemoVC::setDefaultSortingButton() {
    const int code = m_services.settings.sort();
    const bool ascending = code % 2 == 0;
    switch (code) {
        case kSortNameAscending - 1:
        case kSortNameAscending:
            m_btnSortName.selected = ascending;
            sortByName();
            break;
        case kSortDateAscending - 1:
        case kSortDateAscending:
            m_btnSortDate.selected = ascending;
            sortByDate();
            break;
        case kSortSizeAscending - 1:
        case kSortSizeAscending:
            m_btnSortSize.selected = ascending;
            sortBySize();
            break;
        default:
            break;
    }
}

void VoiceMemoVC::sortByName(QObject* sender) {
    sortBy(m_btnSortName, kSortNameAscending, entrykey::kFilename, sender);
}

void VoiceMemoVC::sortByDate(QObject* sender) {
    sortBy(m_btnSortDate, kSortDateAscending, entrykey::kModdate, sender);
}

void VoiceMemoVC::sortBySize(QObject* sender) {
    sortBy(m_btnSortSize, kSortSizeAscending, entrykey::kSize, sender);
}

void VoiceMemoVC::sortBy(ButtonOutlet& button, int evenCode, const QString& key, const QObject* sender) {
    if (sender) {
        m_services.settings.setSort(button.selected ? evenCode - 1 : evenCode);
        button.selected = !button.selected;
    }
    excludeSortingFolders(key, button.selected);
    for (ButtonOutlet* each : {&m_btnSortName, &m_btnSortDate, &m_btnSortSize}) {
        each->image.clear();
    }
    button.image = button.selected ? QStringLiteral("sorting_arrow_down.png") : QStringLiteral("sorting_arrow_up.png");
    button.tintColor = m_services.settings.isThemeWhite() ? QStringLiteral("#000000") : QStringLiteral("#a1a1a1");
    Q_EMIT outletsChanged();
}

void VoiceMemoVC::excludeSortingFolders(const QString& key, bool ascending) {
    // The texts are compared, not what they stand for, on purpose: the order that users know has the day of the month
    // first, and 10.5 MB before 9 MB.
    std::stable_sort(m_arrRecordings.begin(), m_arrRecordings.end(),
                     [&key, ascending](const RecordingEntry& left, const RecordingEntry& right) {
                         const int order = QString::compare(left.value(key), right.value(key), Qt::CaseSensitive);
                         return ascending ? order < 0 : order > 0;
                     });
    reloadTable();
}

void VoiceMemoVC::resetCell() {
    if (m_selectedIndex != -1) {
        m_selectedIndex = -1;
        Q_EMIT selectedIndexChanged();
    }
    reloadTable();
}

void VoiceMemoVC::reloadData() {
    getAlltheFiles();
    reloadTable();
}

void VoiceMemoVC::handleUpdatedData() {
    qInfo("recieved");
    viewWillAppear();
}

void VoiceMemoVC::notificationPosted(const QString& name) {
    if (name == kDataUpdatedNotification) {
        handleUpdatedData();
    }
}

}  // namespace tavi
