#include "files/FileUri.h"

#include <charconv>

namespace tavi {

namespace {

constexpr std::string_view kScheme = "file:";
constexpr std::string_view kHere = "localhost";
constexpr std::string_view kUnreserved = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";

}  // namespace

std::string fileUri(const std::filesystem::path& path) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    const std::filesystem::path absolute = std::filesystem::absolute(path);
    std::string uri(kScheme);
    uri += "//";
    for (const char byte : absolute.native()) {
        if (kUnreserved.find(byte) != std::string_view::npos) {
            uri += byte;
        } else {
            const auto value = static_cast<unsigned char>(byte);
            uri += {'%', kDigits[value / 16U], kDigits[value % 16U]};
        }
    }
    return uri;
}

std::optional<std::filesystem::path> pathOfFileUri(std::string_view uri) {
    if (!uri.starts_with(kScheme)) {
        return std::nullopt;
    }
    uri.remove_prefix(kScheme.size());
    if (uri.starts_with("//")) {
        uri.remove_prefix(2);
        uri.remove_prefix(uri.starts_with(kHere) ? kHere.size() : 0);
    }
    std::string path;
    for (std::size_t i = 0; i < uri.size(); ++i) {
        char byte = uri[i];
        if (byte == '%') {
            unsigned value = 0;
            const std::string_view digits = uri.substr(i + 1, 2);
            const char* end = digits.data() + digits.size();
            if (digits.size() != 2 || std::from_chars(digits.data(), end, value, 16).ptr != end) {
                return std::nullopt;
            }
            byte = static_cast<char>(value);
            i += 2;
        }
        if (byte == '\0') {
            return std::nullopt;
        }
        path += byte;
    }
    return path.starts_with('/') ? std::optional<std::filesystem::path>(path) : std::nullopt;
}

}  // namespace tavi
