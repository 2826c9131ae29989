#pragma once

#include <QDateTime>
#include <QString>
#include <filesystem>

#include "platform/Presenter.h"

namespace tavi {

/// A colour, each part from 0 to 1.
struct Color {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    double alpha = 1.0;

    bool operator==(const Color&) const = default;
};

/// Operations that several screens share; no state.
class Utility {
public:
    Utility() = delete;

    /// The colour of six hexadecimal digits: red, green, blue, without "#". A part that is no such number counts as 0.
    static Color getColor(const QString& hex);
    /// Megabytes of 2^20 bytes.
    static double megabytes(qint64 bytes);
    /// Size of the item at the path in megabytes of 2^20 bytes; 0 when it cannot be read.
    static double getFileSize(const std::filesystem::path& path);
    /// When the item at the path was last modified, in the system's time zone; invalid when that cannot be read.
    static QDateTime getFileModificationDate(const std::filesystem::path& path);
    /// The date as the library shows it, in the user's locale.
    static QString getTheFormatDate(const QDateTime& date);
    /// Megabytes as the library shows them: "1.0 MB", or "1023 KB" below one megabyte.
    static QString displaySize(double megabytes);
    /// A number with that many decimals and a point, whatever the locale; ties go to the even digit, as printf(3) has
    /// it.
    static QString fixed(double value, int decimals);
    /// Shows an alert with one "OK" button.
    static void showAlrtWithTitle(const QString& title, const QString& message, Presenter& presenter);
};

}  // namespace tavi
