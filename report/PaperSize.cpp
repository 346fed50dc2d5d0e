#include "report/PaperSize.h"

#include <QLocale>

#include <langinfo.h>

namespace vantrell::PaperSize
{

QString ofCountry()
{
#ifdef _NL_PAPER_HEIGHT
    // The number is returned as the pointer itself.
    constexpr quintptr letterHeight = 279; // millimetres
    const auto height = quintptr(nl_langinfo(_NL_PAPER_HEIGHT)) & 0xffffffff;
    const bool isLetter = height == letterHeight;
#else
    const bool isLetter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
#endif
    return isLetter ? QStringLiteral("Letter") : QStringLiteral("A4");
}

} // namespace vantrell::PaperSize
