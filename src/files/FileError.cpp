#include "files/FileError.h"

#include <cerrno>
#include <system_error>

namespace tavi {

std::string writeErrorText(int error) {
    if (error == ENOSPC || error == EDQUOT) {
        return "The disk is full.";
    }
    return "The recording could not be written: " + std::generic_category().message(error);
}

}  // namespace tavi
