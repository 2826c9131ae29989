#include "Output.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

namespace tavi {

int reportFailure(const Error& error, int exitCode) {
    std::fprintf(stderr, "tavi: %s\n", qUtf8Printable(error.text));
    return exitCode;
}

int print(const QByteArray& text) {
    const auto size = static_cast<std::size_t>(text.size());
    const bool isWritten = std::fwrite(text.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
    return isWritten ? EXIT_SUCCESS
                     : reportFailure({QStringLiteral("the standard output cannot be written: ") +
                                      QString::fromStdString(std::generic_category().message(errno))});
}

}  // namespace tavi
