#include "app/cli/SoundFile.h"

#include <cerrno>
#include <system_error>

#include "files/PathText.h"

namespace tavi {

namespace {

QString openErrorText(AudioStatus status) {
    switch (status) {
        case kAudioFileFileNotFoundError:
            return QStringLiteral("there is no such file");
        case kAudioFilePermissionsError:
            return QStringLiteral("it may not be read");
        case kAudioFileUnsupportedFileTypeError:
        case kAudioFileUnsupportedDataFormatError:
            return QStringLiteral("it is no sound file that can be read");
        case kAudioFileInvalidFileError:
            return QStringLiteral("it is damaged");
        default:
            return QStringLiteral("it cannot be read");
    }
}

}  // namespace

tl::unexpected<Error> failureOf(const std::filesystem::path& path, const QString& why) {
    return failure(lineText(path) + QStringLiteral(": ") + why);
}

QString systemText(int error) {
    return QString::fromStdString(std::generic_category().message(error));
}

QString fileErrorText(int error) {
    switch (error) {
        case EEXIST:
            return QStringLiteral("there is a recording of that name already");
        case EISDIR:
            return QStringLiteral("it is a folder");
        case EINVAL:
            return QStringLiteral("it is no file that holds anything");
        case EBUSY:
            return QStringLiteral("it is being written");
        default:
            return systemText(error);
    }
}

Result<void> checkSoundFile(const std::filesystem::path& path, ExtAudioFiles& files) {
    std::unique_ptr<ExtAudioFile> file;
    if (const AudioStatus status = files.open(path, file); status != kAudioNoError) {
        return failureOf(path, openErrorText(status));
    }
    return {};
}

}  // namespace tavi
