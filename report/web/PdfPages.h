#pragma once

#include "support/files/Result.h"

#include <QByteArray>
#include <QString>

/// What is done to the pages that the web engine has made. Any thread.
namespace vantrell::PdfPages
{

/// The same document with a title (not a null one) and, on wish, "2 / 7" in the middle of the lower margin of
/// each page, which is that many points high.
Result<QByteArray> finish(const QByteArray &pdf, const QString &title, bool withNumbers, double lowerMargin);

} // namespace vantrell::PdfPages
