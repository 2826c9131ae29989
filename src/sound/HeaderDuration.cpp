#include "sound/HeaderDuration.h"

#include "sound/adts/AdtsStream.h"
#include "sound/caf/CafHeader.h"
#include "sound/mp4/Mp4Length.h"
#include "sound/wav/WavHeader.h"

namespace tavi {

std::optional<double> headerDuration(int fd, const std::stop_token& stop) {
    if (const auto movie = Mp4Movie::read(fd)) {
        return mp4Seconds(fd, *movie, stop);
    }
    if (const auto wav = readWavHeader(fd)) {
        return static_cast<double>(wav->frames) / wav->sampleRate;
    }
    if (const auto caf = readCafHeader(fd)) {
        return caf->frames >= 0 ? std::optional(static_cast<double>(caf->frames) / caf->sampleRate) : std::nullopt;
    }
    const auto adts = AdtsStream::read(fd, stop);
    return adts ? std::optional(static_cast<double>(adts->blocks()) * 1024 / adts->rate()) : std::nullopt;
}

}  // namespace tavi
