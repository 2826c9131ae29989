#pragma once

#include <QDateTime>
#include <QString>
#include <filesystem>

#include "platform/Presenter.h"
#include "platform/Reachability.h"

namespace tavi {

/// A colour, each part from 0 to 1.
struct Color {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    double alpha = 1.0;

    bool operator==(const Color&) const = default;
};

/// How a label is written. A letter weight is one of QFont's; the background is clear.
struct LabelStyle {
    int numberOfLines = 0;
    double fontSize = 17.0;
    int fontWeight = 400;
    Color textColor = {};
    bool isUserInteractionEnabled = false;

    bool operator==(const LabelStyle&) const = default;
};

/// How a screen's bar is drawn, whatever is scrolled below it: its title, on a ground that shows through to black.
struct NavigationBarStyle {
    Color ground = {.alpha = 0.0};
    double titleSize = 17.0;
    int titleWeight = 400;
    Color titleColor = {};
    bool hasShadow = true;

    bool operator==(const NavigationBarStyle&) const = default;
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
    /// Styles the label of a recording's name: one line, light grey.
    static void formatTheFileNameLabel(LabelStyle& label);
    /// Styles the label of a recording's details.
    static void formatDetailFileName(LabelStyle& label);
    static void setNavigationBar(NavigationBarStyle& bar);
    /// Shows an alert with one "OK" button.
    static void showAlrtWithTitle(const QString& title, const QString& message, Presenter& presenter);
    /// Says that there is no network, in such an alert.
    static void showNetworkError(Presenter& presenter);
    /// Whether there is a way into the network right now; one that needs a connection first is none.
    static bool connectedToNetwork(const Reachability& reachability);
};

}  // namespace tavi
