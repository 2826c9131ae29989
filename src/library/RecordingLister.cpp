#include "library/RecordingLister.h"

#include <dirent.h>
#include <sys/stat.h>

#include <QDateTime>
#include <QTimeZone>
#include <algorithm>
#include <future>

#include "files/FileNames.h"
#include "files/PathText.h"
#include "library/PlayerRules.h"
#include "library/utility/Utility.h"

namespace tavi {

namespace {

/// Fewer are not worth another thread.
constexpr std::size_t kFewFiles = 32;
constexpr std::size_t kFirstChunk = 32;
constexpr std::size_t kLargestChunk = 2048;

/// Names in a folder in the order in which the file system gives them; none where it cannot be read.
std::vector<std::filesystem::path> namesInFolder(const std::filesystem::path& folder) {
    struct Closer {
        void operator()(DIR* directory) const { ::closedir(directory); }
    };
    std::vector<std::filesystem::path> names;
    const std::unique_ptr<DIR, Closer> directory(::opendir(folder.c_str()));
    if (!directory) {
        return names;
    }
    // No other thread reads this stream, which is all that readdir(3) asks for.
    while (const dirent* item = ::readdir(directory.get())) {  // NOLINT(concurrency-mt-unsafe)
        const std::string_view name(item->d_name);
        if (name != "." && name != "..") {
            names.emplace_back(name);
        }
    }
    return names;
}

bool isListed(std::string_view name) {
    return name != foldername::kPrivateInbox && name != foldername::kInbox && name != foldername::kCloud &&
           name != ".DS_Store";
}

QString extensionOf(const QString& name) {
    const auto dot = name.lastIndexOf(QLatin1Char('.'));
    return dot > 0 ? name.mid(dot + 1) : QString();
}

}  // namespace

std::vector<RecordingEntry> RecordingLister::list(const std::filesystem::path& folder, Lengths lengths) {
    m_pass.reset();
    m_open.clear();
    m_openByName.clear();
    if (m_datesLocale != QLocale() || m_datesZone != QTimeZone::systemTimeZoneId()) {
        m_dates.clear();
        m_datesLocale = QLocale();
        m_datesZone = QTimeZone::systemTimeZoneId();
    }
    std::vector<RecordingEntry> entries;
    for (const std::filesystem::path& name : namesInFolder(folder)) {
        const std::filesystem::path path = folder / name;
        struct stat attributes = {};
        if (isListed(name.native()) && ::stat(path.c_str(), &attributes) == 0) {
            entries.push_back(entryOf(name, path, attributes));
        }
    }
    if (m_open.empty()) {
        return entries;
    }
    if (lengths == Lengths::Measured) {
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

RecordingEntry RecordingLister::entryOf(const std::filesystem::path& name, const std::filesystem::path& path,
                                        const struct stat& attributes) {
    const double megabytes = Utility::megabytes(attributes.st_size);
    const QString filename = pathText(name);
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
        entry.setIdentity(identity);
        const auto known = m_known.find(identity);
        if (known == m_known.end()) {
            m_open.push_back({name, path, identity});
            m_openByName.emplace(name, identity);
        } else {
            duration = known->second;
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

QString RecordingLister::durationText(const std::filesystem::path& nativeName) const {
    const auto open = m_openByName.find(nativeName);
    const auto known = open == m_openByName.end() ? m_known.end() : m_known.find(open->second);
    return known == m_known.end() ? QStringLiteral("--:--") : playerrules::timeText(known->second);
}

void RecordingLister::measureNow() {
    std::vector<double> seconds(m_open.size());
    const auto measureRange = [this, &seconds](std::size_t from, std::size_t to) {
        for (std::size_t i = from; i < to; ++i) {
            seconds[i] = m_durations.durationOfFile(m_open[i].path);
        }
    };
    // Whoever asks for the whole list waits for it: two threads are through many files sooner.
    const std::size_t half = m_open.size() > kFewFiles ? m_open.size() / 2 : 0;
    std::future<void> other;
    if (half > 0) {
        other = std::async(std::launch::async, measureRange, std::size_t{0}, half);
    }
    measureRange(half, m_open.size());
    if (other.valid()) {
        other.get();
    }
    for (std::size_t i = 0; i < m_open.size(); ++i) {
        m_known.insert_or_assign(m_open[i].identity, seconds[i]);
    }
}

void RecordingLister::measure(std::function<void()> update) {
    m_pass = std::make_shared<Pass>(std::move(update));
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
    const std::size_t count = std::min({m_open.size() - m_pass->done, m_pass->done + kFirstChunk, kLargestChunk});
    const auto first = m_open.begin() + static_cast<std::ptrdiff_t>(m_pass->done);
    std::vector<OpenFile> chunk(first, first + static_cast<std::ptrdiff_t>(count));
    m_runLoop.dispatchBackground([this, chunk = std::move(chunk), pass = std::weak_ptr<Pass>(m_pass),
                                  stop = m_pass->stop.get_token(), &durations = m_durations,
                                  &runLoop = m_runLoop]() mutable {
        std::vector<double> seconds;
        for (const OpenFile& file : chunk) {
            seconds.push_back(durations.durationOfFile(file.path, stop));
            if (stop.stop_requested()) {
                return;
            }
        }
        // The lister lives as long as its pass, which only the main thread ends.
        runLoop.dispatchMain([this, chunk = std::move(chunk), pass, seconds = std::move(seconds)] {
            if (pass.expired()) {
                return;
            }
            for (std::size_t i = 0; i < chunk.size(); ++i) {
                m_known.insert_or_assign(chunk[i].identity, seconds[i]);
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
