#ifndef TESTS_SUPPORT_LITERALS_H
#define TESTS_SUPPORT_LITERALS_H

#include <QString>

namespace Tests {

/// "text"_s is a QString, so that tables of texts are easy to read.
inline QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, static_cast<int>(size));
}

} // namespace Tests

#endif
