#include "app/cli/Trim.h"

#include "app/cli/SoundFile.h"
#include "files/NativePath.h"
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

/// A name among the recordings that nothing has yet.
std::filesystem::path freeNameFor(const std::filesystem::path& file, const CommandServices& services) {
    const std::string first =
        trimrules::outputPath(services.container.documentsPath(), services.runLoop.clock().now(), file);
    const std::size_t point = first.size() - trimrules::pathExtension(file).size() - 1;
    std::filesystem::path path = first;
    for (int number = 2; existsAt(path); ++number) {
        path = first.substr(0, point) + '_' + std::to_string(number) + first.substr(point);
    }
    return path;
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
    const auto session = services.exports.exportSession(asset, AssetExportPreset::Passthrough);
    if (!session) {
        return failureOf(options.file, session.error().text);
    }
    const std::filesystem::path output =
        options.out.empty() ? freeNameFor(options.file, services) : std::filesystem::path(options.out);
    (*session)->setOutputURL(output);
    (*session)->setOutputFileType(trimrules::outputFileType(options.file));
    (*session)->setTimeRange(*range);
    (*session)->exportAsynchronously([] {});
    (*session)->waitUntilFinished();
    if ((*session)->status() != AssetExportStatus::Completed) {
        return failureOf(output, (*session)->error().text);
    }
    return QByteArray::fromStdString(output.native()) + '\n';
}

}  // namespace tavi
