#pragma once

#include "support/files/Result.h"

#include <QString>

namespace vantrell::UserManual
{

/// The site's manual, a PDF file in the shared library folder, if it exists. Otherwise the first page of the
/// program's own, relative to the folder of the programs. Empty without either. Any thread.
QString file(const QString &sharedLibrary, const QString &programFolder);

/// Opens that file with its default application, the pages with the browser. A failure tells, without a full
/// stop, that there is none, or nothing to open it with. Main thread.
Result<void> open(const QString &sharedLibrary, const QString &programFolder);

} // namespace vantrell::UserManual
