#pragma once

#include <QString>
#include <ostream>

// GoogleTest finds printers in the namespace of the type.
inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}
