#include "adapters/ffmpeg/reading/FfmpegExtAudioFiles.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "adapters/ffmpeg/reading/DecodedSource.h"
#include "adapters/ffmpeg/reading/FfmpegExtAudioFile.h"
#include "files/FileDescriptor.h"
#include "files/PositionedIo.h"
#include "sound/caf/Ima4Source.h"
#include "sound/wav/WavSource.h"

namespace tavi {

namespace {

AudioStatus statusOf(int error) {
    switch (error) {
        case ENOENT:
        case ENOTDIR:
            return kAudioFileFileNotFoundError;
        case EACCES:
        case EPERM:
            return kAudioFilePermissionsError;
        default:
            return kAudioFileUnspecifiedError;
    }
}

}  // namespace

AudioStatus FfmpegExtAudioFiles::open(const std::filesystem::path& path, std::unique_ptr<ExtAudioFile>& file,
                                      const std::stop_token& stop) {
    file.reset();
    if (path.native().find('\0') != std::string::npos) {
        return kAudioFileFileNotFoundError;
    }
    // Not blocking, as a pipe of that name would.
    FileDescriptor descriptor = FileDescriptor::open(path, O_RDONLY | O_NONBLOCK);
    if (!descriptor.isValid()) {
        return statusOf(errno);
    }
    if (regularFileSize(descriptor.get()) < 0) {
        return kAudioFileUnsupportedFileTypeError;
    }
    FileDescriptor information(::fcntl(descriptor.get(), F_DUPFD_CLOEXEC, 0));
    if (!information.isValid()) {
        return statusOf(errno);
    }
    std::unique_ptr<SoundSource> source = WavSource::open(descriptor);
    if (!source) {
        source = Ima4Source::open(descriptor);
    }
    if (!source) {
        const AudioStatus status = DecodedSource::open(descriptor, source, stop);
        if (status != kAudioNoError) {
            return status;
        }
    }
    file = std::make_unique<FfmpegExtAudioFile>(std::move(source), std::move(information));
    return kAudioNoError;
}

}  // namespace tavi
