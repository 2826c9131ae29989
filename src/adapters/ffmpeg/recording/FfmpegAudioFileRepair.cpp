#include "adapters/ffmpeg/recording/FfmpegAudioFileRepair.h"

#include <fcntl.h>

#include <cerrno>

#include "adapters/ffmpeg/reading/FfmpegAudioDuration.h"
#include "files/DurableFile.h"
#include "files/FileDescriptor.h"
#include "files/FileNames.h"
#include "sound/mp4/Mp4Finalizer.h"

namespace tavi {

namespace {

Result<bool> failureOf(int error) {
    return failure(QString::fromStdString(writeErrorText(error)));
}

}  // namespace

Result<bool> FfmpegAudioFileRepair::repair(const std::filesystem::path& path) {
    const FileDescriptor file = FileDescriptor::open(path, O_RDWR | O_NONBLOCK);
    if (!file.isValid()) {
        return failureOf(errno);
    }
    if (!(FfmpegAudioDuration().durationOfFile(path) > 0.0)) {
        return false;
    }
    if (path.extension() == ".m4a" || path.extension() == ".mp4") {
        // Where the disk has no room for it the file stays in fragments, which play as well.
        static_cast<void>(finalizeMp4(file.get()));
    }
    if (const int error = synchronize(file.get(), folderOf(path))) {
        return failureOf(error);
    }
    return true;
}

}  // namespace tavi
