#pragma once

#include "support/files/Result.h"

#include <QString>
#include <QStringList>

namespace vantrell::HostBundle
{

/// Creates the application bundle "Final Cut Pro.app" of that version in \a folder, which is created if
/// necessary. Its executable starts \a program with the arguments, followed by the files that it is given. A
/// bundle made by this function is replaced; any other one is a failure. Returns the bundle's path.
Result<QString> install(const QString &folder, const QString &version, const QString &program,
                        const QStringList &arguments);

} // namespace vantrell::HostBundle
