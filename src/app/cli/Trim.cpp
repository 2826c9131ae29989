#include "app/cli/Trim.h"

#include "app/cli/SoundFile.h"
#include "files/FileNames.h"
#include "files/PathText.h"
#include "library/utility/Notifications.h"
#include "trimming/TrimRules.h"

namespace tavi {

namespace {

/// The part to keep, or why there is none.
Result<AssetTimeRange> rangeOf(const TrimOptions& options, const Asset& asset) {
    const std::int32_t timescale = asset.duration.timescale;
    if (!(options.to > options.from)) {
        return failureOf(options.file, QStringLiteral("--to must be later than --from"));
    }
    if (options.from >= asset.duration.seconds()) {
        return failureOf(options.file, QStringLiteral("it is only %1 s long").arg(asset.duration.seconds()));
    }
    return AssetTimeRange{AssetTime::withSeconds(options.from, timescale),
                          AssetTime::withSeconds(options.to - options.from, timescale)};
}

/// Whether a name does not lie about a part of that file: what is written is of the file's own kind.
bool isNameFor(const std::filesystem::path& output, const std::filesystem::path& file) {
    const auto extension = [](const std::filesystem::path& path) {
        return pathText(trimrules::pathExtension(path)).toLower();
    };
    const QStringList honest{QStringLiteral("wav"), QStringLiteral("caf"), QStringLiteral("m4a"),
                             QStringLiteral("mp4")};
    return extension(output).isEmpty() || extension(output) == extension(file) ||
           (honest.contains(extension(output)) && trimrules::outputFileType(output) == trimrules::outputFileType(file));
}

/// A name among the recordings that nothing has yet.
std::filesystem::path freePathFor(const std::filesystem::path& file, const CommandServices& services) {
    return freePath(trimrules::outputPath(services.container.documentsPath(), services.runLoop.clock().now(), file));
}

}  // namespace

Result<QByteArray> run(const TrimOptions& options, const CommandServices& services) {
    if (const auto readable = checkSoundFile(options.file, services.files); !readable) {
        return tl::unexpected(readable.error());
    }
    const Asset asset = services.exports.assetWithURL(options.file);
    const auto range = rangeOf(options, asset);
    if (!range) {
        return tl::unexpected(range.error());
    }
    const std::filesystem::path output =
        options.out.empty() ? freePathFor(options.file, services) : std::filesystem::path(options.out);
    if (!isNameFor(output, options.file)) {
        return failureOf(output, QStringLiteral("a part of %1 is of another kind").arg(pathText(options.file)));
    }
    const auto session = services.exports.exportSession(asset, AssetExportPreset::Passthrough);
    if (!session) {
        return failureOf(options.file, session.error().text);
    }
    (*session)->setOutputURL(output);
    (*session)->setOutputFileType(trimrules::outputFileType(options.file));
    (*session)->setTimeRange(*range);
    (*session)->exportAsynchronously([] {});
    (*session)->waitUntilFinished();
    if ((*session)->status() != AssetExportStatus::Completed) {
        return failureOf(output, (*session)->error().text);
    }
    services.notifications.postNotification(kDataUpdatedNotification);
    return QByteArray::fromStdString(output.native()) + '\n';
}

}  // namespace tavi
