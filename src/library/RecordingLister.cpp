#include "library/RecordingLister.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDateTime>
#include <QFile>
#include <QTimeZone>
#include <algorithm>
#include <future>

#include "library/PlayerRules.h"
#include "library/utility/Utility.h"

namespace tavi {

namespace {

/// As many lengths are found out at once: they take less than a frame.
constexpr std::size_t kAtOnce = 32;
constexpr std::size_t kLargestChunk = 2048;

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

std::vector<RecordingEntry> RecordingLister::list(const QByteArray& folder, Lengths lengths) {
    m_pass.reset();
    m_open.clear();
    m_openByName.clear();
    if (m_datesLocale != QLocale() || m_datesZone != QTimeZone::systemTimeZoneId()) {
        m_dates.clear();
        m_datesLocale = QLocale();
        m_datesZone = QTimeZone::systemTimeZoneId();
    }
    std::vector<RecordingEntry> entries;
    for (const QByteArray& name : namesInFolder(folder)) {
        const QByteArray path = folder + '/' + name;
        struct stat attributes = {};
        if (isListed(name) && ::stat(path.constData(), &attributes) == 0) {
            entries.push_back(entryOf(name, path, attributes));
        }
    }
    if (m_open.empty()) {
        return entries;
    }
    if (lengths == Lengths::Measured || m_open.size() <= kAtOnce) {
        measureNow();
    }
    for (RecordingEntry& entry : entries) {
        if (m_openByName.contains(entry.nativeName())) {
            entry.setValue(entrykey::kDuration, durationText(entry.nativeName()));
        }
    }
    if (std::all_of(m_open.begin(), m_open.end(), [this](const OpenFile& f) { return m_known.contains(f.identity); })) {
        m_open.clear();
    }
    return entries;
}

RecordingEntry RecordingLister::entryOf(const QByteArray& name, const QByteArray& path, const struct stat& attributes) {
    const double megabytes = Utility::megabytes(attributes.st_size);
    const QString filename = QFile::decodeName(name);
    RecordingEntry entry;
    entry.setNativeName(name);
    entry.setValue(entrykey::kSize, Utility::fixed(megabytes, 6));
    entry.setValue(entrykey::kFilename, filename);
    entry.setValue(entrykey::kModdate, dateText(attributes));
    entry.setValue(entrykey::kFilesize, Utility::displaySize(megabytes));
    entry.setValue(entrykey::kExtension, extensionOf(filename));

    double duration = 0.0;
    // Folders are listed like files, on purpose: a stray one is seen, and has no length. A pipe would block its reader.
    if (S_ISREG(attributes.st_mode)) {
        const FileIdentity identity(attributes);
        const auto known = m_known.constFind(identity);
        if (known == m_known.constEnd()) {
            m_open.push_back({name, path, identity});
            m_openByName.insert(name, identity);
        } else {
            duration = *known;
        }
    }
    entry.setValue(entrykey::kDuration, playerrules::timeText(duration));
    return entry;
}

QString RecordingLister::dateText(const struct stat& attributes) {
    constexpr qint64 kSecondsPerMinute = 60;
    QString& text = m_dates[attributes.st_mtim.tv_sec / kSecondsPerMinute];
    if (text.isEmpty()) {
        text = Utility::getTheFormatDate(QDateTime::fromSecsSinceEpoch(attributes.st_mtim.tv_sec));
    }
    return text;
}

QString RecordingLister::durationText(const QByteArray& nativeName) const {
    const auto known = m_known.constFind(m_openByName.value(nativeName));
    return known == m_known.constEnd() ? QStringLiteral("--:--") : playerrules::timeText(*known);
}

void RecordingLister::measureNow() {
    std::vector<double> seconds(m_open.size());
    const auto measureRange = [this, &seconds](std::size_t from, std::size_t to) {
        for (std::size_t i = from; i < to; ++i) {
            seconds[i] = durationAt(m_durations, m_open[i].path);
        }
    };
    // Whoever asks for the whole list waits for it: two threads are through many files sooner.
    const std::size_t half = m_open.size() > kAtOnce ? m_open.size() / 2 : 0;
    std::future<void> other;
    if (half > 0) {
        other = std::async(std::launch::async, measureRange, std::size_t{0}, half);
    }
    measureRange(half, m_open.size());
    if (other.valid()) {
        other.get();
    }
    for (std::size_t i = 0; i < m_open.size(); ++i) {
        m_known.insert(m_open[i].identity, seconds[i]);
    }
}

void RecordingLister::measure(std::function<void()> update) {
    m_pass = std::make_shared<Pass>(Pass{std::move(update), 0});
    measureNext();
}

void RecordingLister::measureNext() {
    if (m_pass->done == m_open.size()) {
        m_open.clear();
        const auto update = m_pass->update;
        m_pass.reset();
        update();
        return;
    }
    // The first rows are complete at once; later ones come in larger portions, as each repaints the list.
    const std::size_t count = std::min({m_open.size() - m_pass->done, m_pass->done + kAtOnce, kLargestChunk});
    const auto first = m_open.begin() + static_cast<std::ptrdiff_t>(m_pass->done);
    std::vector<OpenFile> chunk(first, first + static_cast<std::ptrdiff_t>(count));
    m_runLoop.dispatchBackground([this, chunk = std::move(chunk), pass = std::weak_ptr<Pass>(m_pass),
                                  &durations = m_durations, &runLoop = m_runLoop]() mutable {
        std::vector<double> seconds;
        for (const OpenFile& file : chunk) {
            if (pass.expired()) {
                return;
            }
            seconds.push_back(durationAt(durations, file.path));
        }
        // The lister lives as long as its pass, which only the main thread ends.
        runLoop.dispatchMain([this, chunk = std::move(chunk), pass, seconds = std::move(seconds)] {
            if (pass.expired()) {
                return;
            }
            for (std::size_t i = 0; i < chunk.size(); ++i) {
                m_known.insert(chunk[i].identity, seconds[i]);
            }
            m_pass->done += chunk.size();
            if (m_pass->done < m_open.size()) {
                m_pass->update();
            }
            // The update may have listed anew.
            if (!pass.expired()) {
                measureNext();
            }
        });
    });
}

}  // namespace tavi
