#pragma once

#include <QString>

/// Strings of bytes, where Qt generations differ.
namespace Norvane { namespace UI {

/// Text in the encoding that the application chose for its plain strings, Latin-1 unless it said otherwise.
/// Only Qt 4 lets it say otherwise.
inline QString fromAscii(const char* text)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return QString::fromLatin1(text);
#else
    return QString::fromAscii(text);
#endif
}

}} // namespace Norvane::UI
