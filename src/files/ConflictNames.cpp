#include "files/ConflictNames.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <string>

#include "files/FileMove.h"
#include "files/FileNames.h"

namespace tavi {

namespace {

struct Mark {
    std::string_view begin;
    std::string_view end;
};

/// What programs put before the extension. Our own is the first.
constexpr std::array kMarks = {Mark{" (conflict ", ")"}, Mark{" (conflicted copy ", ")"}, Mark{".sync-conflict-", ""}};
constexpr int kTries = 100;

/// Moves a file to the first free name; where it is then.
FileResult<std::filesystem::path> moveToFree(const std::filesystem::path& from, const std::filesystem::path& to) {
    int error = EEXIST;
    for (int number = 1; error == EEXIST && number < kTries; ++number) {
        std::filesystem::path name = number == 1 ? to : numberedPath(to, number);
        error = renameWithoutReplacing(from, name);
        if (error == 0) {
            return name;
        }
    }
    return fileFailure(writeErrorText(error));
}

bool isSeen(const std::filesystem::path& path, const std::optional<FileIdentity>& seen) {
    return seen && FileIdentity::at(path) == seen;
}

}  // namespace

std::filesystem::path conflictName(const std::filesystem::path& name, std::string_view date, std::string_view device) {
    std::string text(date);
    text.append(" ").append(device);
    std::erase_if(text, [](char c) { return c == '/' || c == '(' || c == ')' || static_cast<unsigned char>(c) < 32; });
    std::filesystem::path made = name.stem();
    made += std::string(kMarks[0].begin).append(text).append(kMarks[0].end);
    made += name.extension();
    return made;
}

std::optional<std::filesystem::path> originalOfConflict(const std::filesystem::path& name) {
    const std::string stem = name.stem().native();
    for (const Mark& mark : kMarks) {
        const std::size_t at = stem.rfind(mark.begin);
        if (at != std::string::npos && at > 0 && stem.size() > at + mark.begin.size() && stem.ends_with(mark.end)) {
            std::filesystem::path original = stem.substr(0, at);
            original += name.extension();
            return original;
        }
    }
    return std::nullopt;
}

FileResult<std::filesystem::path> replaceSeen(const std::filesystem::path& path, const std::filesystem::path& file,
                                              const std::optional<FileIdentity>& seen,
                                              const std::filesystem::path& otherwise, bool canExchange) {
    for (int tries = 0; tries < kTries; ++tries) {
        const int error = renameWithoutReplacing(file, path);
        if (error == 0) {
            return std::filesystem::path();
        }
        if (error != EEXIST) {
            return fileFailure(writeErrorText(error));
        }
        if (canExchange) {
            // Both have names that are seen at any moment. What is looked at afterwards is what was taken away, so that
            // nobody comes in between.
            auto beside = moveToFree(file, otherwise);
            if (!beside) {
                return beside;
            }
            if (::renameat2(AT_FDCWD, beside->c_str(), AT_FDCWD, path.c_str(), RENAME_EXCHANGE) == 0) {
                return isSeen(*beside, seen) && ::unlink(beside->c_str()) == 0 ? std::filesystem::path() : *beside;
            }
            return replaceSeen(path, *beside, seen, otherwise, false);
        }
        auto aside = moveToFree(path, otherwise);
        if (!aside) {
            return aside;
        }
        if (const int taken = renameWithoutReplacing(file, path); taken == 0) {
            return isSeen(*aside, seen) && ::unlink(aside->c_str()) == 0 ? std::filesystem::path() : *aside;
        }
    }
    return fileFailure(writeErrorText(EEXIST));
}

}  // namespace tavi
