#pragma once

#include <QString>

namespace vantrell::PaperSize
{

/// What the user's country prints on: "A4" or "Letter". Once the locale has been set, as a QCoreApplication
/// does. Any thread.
QString ofCountry();

} // namespace vantrell::PaperSize
