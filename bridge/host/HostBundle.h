#pragma once

#include "support/files/Result.h"

#include <QString>
#include <QStringList>

namespace vantrell::HostBundle
{

/// Makes the folder "Final Cut Pro.app" in \a folder, which is made where needed: an application bundle of
/// that version whose executable starts \a program with the arguments, followed by the files that it is
/// given. A bundle that this function made before is replaced; any other is left alone, which is a failure.
/// Gives the bundle's path.
Result<QString> install(const QString &folder, const QString &version, const QString &program,
                        const QStringList &arguments);

} // namespace vantrell::HostBundle
