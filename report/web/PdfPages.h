#pragma once

#include "support/files/Result.h"

#include <QByteArray>
#include <QString>

/// Post-processing of the pages made by the web engine. Any thread.
namespace vantrell::PdfPages
{

/// The document with a title, unless that is null, and with numbers such as "2 / 7" centred in the lower
/// margin, which is that many points high.
Result<QByteArray> finish(const QByteArray &pdf, const QString &title, bool withNumbers, double lowerMargin);

} // namespace vantrell::PdfPages
