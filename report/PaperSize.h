#pragma once

#include <QLocale>
#include <QString>

#include <langinfo.h>

namespace vantrell::PaperSize
{

/// The usual paper of the user's country: "A4" or "Letter". Requires the locale to be set, as by
/// QCoreApplication. Any thread.
inline QString ofCountry()
{
#ifdef _NL_PAPER_HEIGHT
    // The number is returned as the pointer itself.
    constexpr quintptr letterHeight = 279; // millimetres
    const bool isLetter = (quintptr(nl_langinfo(_NL_PAPER_HEIGHT)) & 0xffffffff) == letterHeight;
#else
    const bool isLetter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
#endif
    return isLetter ? QStringLiteral("Letter") : QStringLiteral("A4");
}

} // namespace vantrell::PaperSize
