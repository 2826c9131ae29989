#include "recording/LastRecording.h"

#include <QPointer>
#include <array>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <system_error>

#include "files/PathText.h"
#include "recording/AudioSettings.h"
#include "trimming/waves/WaveformSample.h"

namespace tavi {

namespace {

namespace fs = std::filesystem;

/// Parts of the shape: as many as a view on a phone has columns.
constexpr std::size_t kParts = 90;
/// Seconds from the question to the search: what is to be seen at once goes before.
constexpr double kPatience = 0.5;

std::optional<fs::path> newestFile(const fs::path& folder, const std::stop_token& stop) {
    std::optional<fs::path> newest;
    fs::file_time_type newestTime;
    std::error_code error;
    for (fs::directory_iterator item(folder, error), end; !error && item != end && !stop.stop_requested();
         item.increment(error)) {
        std::error_code unknown;
        const bool isFile =
            item->is_regular_file(unknown) && !unknown && item->path().filename().native().front() != '.';
        const fs::file_time_type time = isFile ? item->last_write_time(unknown) : fs::file_time_type();
        if (isFile && !unknown && (!newest || time > newestTime)) {
            newest = item->path();
            newestTime = time;
        }
    }
    return newest;
}

}  // namespace

void LastRecording::set(const QString& name, const QString& time, const QList<double>& shape) {
    m_name = name;
    m_time = time;
    m_shape = shape;
    Q_EMIT changed();
}

void LastRecording::show(const QString& name, const QString& time) {
    m_stop.request_stop();
    // Its sound is still before the user's eyes.
    set(name, time, {});
}

void LastRecording::find() {
    m_stop.request_stop();
    m_stop = std::stop_source();
    m_services.runLoop.dispatchAfter(kPatience, [self = QPointer(this), stop = m_stop.get_token()] {
        if (self && !stop.stop_requested()) {
            self->look(stop);
        }
    });
}

void LastRecording::look(const std::stop_token& stop) {
    m_services.runLoop.dispatchBackground([self = QPointer(this), services = m_services, stop] {
        const auto path = newestFile(services.container.documentsPath(), stop);
        const double seconds = path ? services.durations.durationOfFile(*path, stop) : 0.0;
        std::array<float, kParts> parts{};
        if (seconds > 0.0) {
            sampleWaveform(services.files, *path, parts, stop);
        }
        services.runLoop.dispatchMain([self, stop, path, seconds, parts] {
            if (!self || stop.stop_requested()) {
                return;
            }
            const QString name = seconds > 0.0 ? pathText(path->filename()) : QString();
            if (name.isEmpty()) {
                self->set({}, {}, {});
            } else if (name != self->m_name) {
                self->set(name, clockText(std::llround(seconds)), QList<double>(parts.begin(), parts.end()));
            }
        });
    });
}

void LastRecording::play() {
    if (!m_name.isEmpty()) {
        Q_EMIT playRequested(m_name);
    }
}

}  // namespace tavi
