#pragma once

#include <QString>

namespace vantrell::PaperSize
{

/// The usual paper of the user's country: "A4" or "Letter". Requires the locale to be set, as by
/// QCoreApplication. Any thread.
QString ofCountry();

} // namespace vantrell::PaperSize
