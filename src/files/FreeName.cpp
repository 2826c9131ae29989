#include "files/FreeName.h"

#include <cerrno>
#include <string>
#include <system_error>

#include "files/FileMove.h"
#include "files/PathText.h"

namespace tavi {

Result<std::filesystem::path> stepAside(const std::filesystem::path& path) {
    for (int number = 2;; ++number) {
        std::filesystem::path name = path.parent_path() / path.stem();
        name += "_" + std::to_string(number);
        name += path.extension();
        const int error = renameWithoutReplacing(path, name);
        if (error == 0) {
            return name;
        }
        if (error != EEXIST) {
            return failure(QStringLiteral("Cannot rename \"%1\": %2")
                               .arg(pathText(path), QString::fromStdString(std::generic_category().message(error))));
        }
    }
}

}  // namespace tavi
