#include "library/utility/Utility.h"

#include <sys/stat.h>

#include <QLocale>
#include <array>
#include <charconv>
#include <optional>

#include "library/utility/DateTexts.h"
#include "support/CheckConnection.h"

namespace tavi {

namespace {

constexpr double kMegabytesPerByte = 0.00000095367431640625;
constexpr int kThin = 100;
constexpr int kLight = 300;
constexpr double kKilobytesPerMegabyte = 1024.0;

std::optional<struct stat> attributesOf(const std::filesystem::path& path) {
    struct stat attributes = {};
    if (::stat(path.c_str(), &attributes) != 0) {
        return std::nullopt;
    }
    return attributes;
}

}  // namespace

Color Utility::getColor(const QString& hex) {
    const auto part = [&hex](qsizetype position) { return hex.mid(position, 2).toInt(nullptr, 16) / 255.0; };
    return Color{part(0), part(2), part(4), 1.0};
}

double Utility::megabytes(qint64 bytes) {
    return static_cast<double>(bytes) * kMegabytesPerByte;
}

double Utility::getFileSize(const std::filesystem::path& path) {
    const auto attributes = attributesOf(path);
    return attributes ? megabytes(attributes->st_size) : 0.0;
}

QDateTime Utility::getFileModificationDate(const std::filesystem::path& path) {
    const auto attributes = attributesOf(path);
    if (!attributes) {
        return {};
    }
    const timespec& modified = attributes->st_mtim;
    return QDateTime::fromMSecsSinceEpoch(modified.tv_sec * 1000LL + modified.tv_nsec / 1000000);
}

QString Utility::getTheFormatDate(const QDateTime& date) {
    return modificationDateText(date, QLocale());
}

QString Utility::displaySize(double megabytes) {
    return megabytes >= 1.0 ? fixed(megabytes, 1) + QStringLiteral(" MB")
                            : fixed(megabytes * kKilobytesPerMegabyte, 0) + QStringLiteral(" KB");
}

QString Utility::fixed(double value, int decimals) {
    // The longest double has 309 digits before its point.
    std::array<char, 400> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, decimals).ptr;
    return QString::fromLatin1(text.data(), end - text.data());
}

void Utility::showAlrtWithTitle(const QString& title, const QString& message, Presenter& presenter) {
    presenter.presentAlert(Alert{title, message, {AlertAction{qtTrId("OK")}}});
}

void Utility::showNetworkError(Presenter& presenter) {
    showAlrtWithTitle(qtTrId("Network Error"), qtTrId("Please check your internet connection"), presenter);
}

bool Utility::connectedToNetwork(const Reachability& reachability) {
    CheckConnection connection(reachability);
    connection.start();
    return connection.checkIntenetRechable();
}

void Utility::formatTheFileNameLabel(LabelStyle& label) {
    label.numberOfLines = 1;
    label.fontSize = 15.0;
    label.textColor = getColor(QStringLiteral("aaaaaa"));
    label.isUserInteractionEnabled = true;
}

void Utility::formatDetailFileName(LabelStyle& label) {
    label.fontSize = 13.0;
    label.fontWeight = kThin;
    label.textColor = {1.0, 1.0, 1.0, 0.6};
    label.isUserInteractionEnabled = true;
}

void Utility::setNavigationBar(NavigationBarStyle& bar) {
    bar = {.ground = {.alpha = 0.0},
           .titleSize = 22.0,
           .titleWeight = kLight,
           .titleColor = getColor(QStringLiteral("a1a1a1")),
           .hasShadow = false};
}

}  // namespace tavi
