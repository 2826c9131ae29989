#include "adapters/ffmpeg/converting/FfmpegAudioConverters.h"
#include "adapters/ffmpeg/converting/FfmpegAudioTempo.h"
#include "adapters/ffmpeg/exporting/FfmpegAssets.h"
#include "adapters/ffmpeg/reading/FfmpegAudioDuration.h"
#include "adapters/ffmpeg/reading/FfmpegExtAudioFiles.h"
#include "adapters/ffmpeg/recording/FfmpegAudioFileRepair.h"
#include "adapters/ffmpeg/recording/FfmpegAudioFileWriters.h"
#include "adapters/qt/MediaLibrary.h"

/// The library's one entry: its adapters, which live as long as the process.
extern "C" Q_DECL_EXPORT const tavi::MediaLibrary::Adapters* taviMediaAdapters() {
    static tavi::FfmpegAudioFileWriters writers;
    static tavi::FfmpegAudioFileRepair repair;
    static const tavi::FfmpegAudioDuration durations;
    static tavi::FfmpegAudioTempos tempos;
    static tavi::FfmpegExtAudioFiles files;
    static tavi::FfmpegAudioConverters converters;
    static tavi::FfmpegAssets assets;
    static const tavi::MediaLibrary::Adapters adapters{.writers = writers,
                                                       .repair = repair,
                                                       .durations = durations,
                                                       .tempos = tempos,
                                                       .files = files,
                                                       .converters = converters,
                                                       .exportSessions = assets,
                                                       .readers = assets};
    return &adapters;
}
