#pragma once

#include <QDateTime>
#include <QString>
#include <filesystem>
#include <string>

#include "platform/AssetExportSession.h"

namespace tavi {

/// The thumbs that mark the stretch to keep.
enum class TrimThumb { Left, Right };

/// Where the thumbs are: centres in points from the left edge of the plot's container.
struct TrimThumbs {
    double left = 0.0;
    double right = 0.0;

    bool operator==(const TrimThumbs&) const = default;
};

/// A stretch of a recording, in seconds.
struct TrimTimes {
    double start = 0.0;
    double end = 0.0;

    double length() const { return end - start; }
    bool operator==(const TrimTimes&) const = default;
};

/// Pure rules of the trimmer. Lengths are points, times seconds.
namespace trimrules {

/// The stretch that the thumbs mark over a recording of that duration.
TrimTimes selection(const TrimThumbs& thumbs, double duration, double containerWidth);

/// Left edge of a text of that width: centred on its thumb, but inside the container.
double labelLeft(double thumbCentre, double labelWidth, double containerWidth);

/// Whether a step of a drag is applied: a stretch of one second or less takes only steps that do not shrink it.
bool isMoveAllowed(TrimThumb thumb, const TrimTimes& times, double translation);

/// A thumb's centre after an applied step; it stays inside the container.
double movedCentre(double centre, double translation, double containerWidth);

/// The part of a movement that leaves a little less than the least stretch: delivered as a step of its own, a fast
/// finger cannot carry one thumb beyond the other. All of a movement that does not get there.
double firstStep(TrimThumb thumb, const TrimTimes& times, double translation, double duration, double containerWidth);

/// "mm:ss.hh" or "ss.hh" of whole milliseconds. On purpose the short form drops the minutes, so that 75.5 s read 15.50,
/// and hundredths are the first two digits of the milliseconds, so that 5 ms and 50 ms read 05 and 50.
QString timeFormatted(double seconds, bool isWithMinutes);

/// The whole truth of a stretch, such as "1:15.50 – 2:03.20 · 47.7 s".
QString rangeText(const TrimTimes& times);

/// What follows the last point of a file's name; empty where there is none, or nothing before it.
std::string pathExtension(const std::filesystem::path& name);

/// Where a part of a file of that name goes: "Trim_" and the date, in a folder, with the name's extension.
std::filesystem::path outputPath(const std::filesystem::path& folder, const QDateTime& date,
                                 const std::filesystem::path& name);

/// What an export writes for a file of that name, its extension in any case: any name gets a type.
AssetFileType outputFileType(const std::filesystem::path& name);

}  // namespace trimrules

}  // namespace tavi
