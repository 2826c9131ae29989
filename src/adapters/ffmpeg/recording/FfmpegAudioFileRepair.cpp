#include "adapters/ffmpeg/recording/FfmpegAudioFileRepair.h"

#include <fcntl.h>

#include <cerrno>

#include "files/DurableFile.h"
#include "files/FileDescriptor.h"
#include "files/FileNames.h"
#include "sound/SoundRepair.h"

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
    const FileResult<bool> hasSound = repairSound(file.get());
    if (!hasSound) {
        return failure(QString::fromStdString(hasSound.error().text));
    }
    const int error = *hasSound ? synchronize(file.get(), folderOf(path)) : 0;
    return error != 0 ? failureOf(error) : Result<bool>(*hasSound);
}

}  // namespace tavi
