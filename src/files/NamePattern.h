#pragma once

#include <filesystem>
#include <string_view>

namespace tavi {

/// Whether a text is like a pattern in which "*" stands for any text and "?" for one byte; all else stands for itself.
constexpr bool isLike(std::string_view text, std::string_view pattern) {
    std::size_t at = 0;
    std::size_t from = 0;
    // Where the last star stands, and what it is tried to stand for so far.
    std::size_t star = std::string_view::npos;
    for (std::size_t i = 0; at < text.size();) {
        if (i < pattern.size() && pattern[i] == '*') {
            star = i++;
            from = at;
        } else if (i < pattern.size() && (pattern[i] == '?' || pattern[i] == text[at])) {
            ++i;
            ++at;
        } else if (star != std::string_view::npos) {
            i = star + 1;
            at = ++from;
        } else {
            return false;
        }
        if (at == text.size()) {
            return pattern.substr(i).find_first_not_of('*') == std::string_view::npos;
        }
    }
    return pattern.find_first_not_of('*') == std::string_view::npos;
}

/// The same of the path extension of a name, without its dot. "*" is also for names that have none.
inline bool hasExtensionLike(const std::filesystem::path& name, std::string_view pattern) {
    const std::string extension = name.extension().native();
    return isLike(std::string_view(extension).substr(extension.empty() ? 0 : 1), pattern);
}

}  // namespace tavi
