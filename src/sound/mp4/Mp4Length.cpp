#include "sound/mp4/Mp4Length.h"

#include <algorithm>
#include <cmath>

#include "sound/mp4/Mp4FragmentReader.h"

namespace tavi {

namespace {

std::optional<double> seconds(double units, double scale) {
    return scale > 0 ? std::optional(units / scale) : std::nullopt;
}

/// An edit in a file that was still to grow says only where the sound starts.
std::optional<double> fragmentedSeconds(int fd, const Mp4Movie& movie, const Mp4Track& track,
                                        const std::stop_token& stop) {
    const auto fragments = Mp4FragmentReader::open(fd, movie);
    double duration = 0;
    const auto addRun = [&](const Mp4Run& run) {
        for (const Mp4Sample& sample : run.samples) {
            duration += sample.duration;
        }
        return !stop.stop_requested();
    };
    if (!fragments || !fragments->forEachRun(addRun) || stop.stop_requested()) {
        return std::nullopt;
    }
    const std::int64_t start = track.edits.empty() ? 0 : std::max<std::int64_t>(0, track.edits.front().start);
    return seconds(std::max(0.0, duration - static_cast<double>(start)), track.timeScale);
}

}  // namespace

std::optional<double> mp4Seconds(int fd, const Mp4Movie& movie, const std::stop_token& stop) {
    const Mp4Track* track = movie.sound();
    if (track == nullptr) {
        return std::nullopt;
    }
    if (movie.isFragmented) {
        return fragmentedSeconds(fd, movie, *track, stop);
    }
    const auto media = static_cast<double>(track->duration);
    double edited = 0;
    int played = 0;
    double start = 0;
    for (const Mp4Edit& edit : track->edits) {
        if (edit.start >= 0) {
            edited += static_cast<double>(edit.duration);
            start = static_cast<double>(edit.start);
            ++played;
        }
    }
    const auto all = seconds(media, track->timeScale);
    const auto told = seconds(edited, movie.timeScale);
    if (edited <= 0) {
        return all;
    }
    // The movie's time scale is often coarse. An edit that plays everything from its start on, as near as that scale
    // can say it, is as long as the media are.
    if (all && told && played == 1 && media >= start) {
        const double rest = (media - start) / track->timeScale;
        return std::abs(rest - *told) < 1.0 / movie.timeScale ? rest : told;
    }
    return told;
}

}  // namespace tavi
