#include "app/UserManual.h"

#include "support/desktop/Workspace.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace vantrell::UserManual
{

namespace
{

QString pagesPath(const QString &programFolder)
{
    return QDir::cleanPath(programFolder + QStringLiteral("/../share/vantrell/manual/index.html"));
}

} // namespace

QString file(const QString &sharedLibrary, const QString &programFolder)
{
    const QString files[] = {sharedLibrary + QStringLiteral("/Documentation/Orvandel/Halvex User Manual.pdf"),
                             pagesPath(programFolder)};
    for (const QString &path : files) {
        if (QFileInfo::exists(path))
            return path;
    }
    return {};
}

Result<void> open(const QString &sharedLibrary, const QString &programFolder)
{
    const QString path = file(sharedLibrary, programFolder);
    if (path.isEmpty())
        return Failure{QCoreApplication::translate("UserManual",
                                                   "The user manual is not installed: there is no file “%1”")
                           .arg(pagesPath(programFolder))};
    if (!Workspace::openFile(path))
        return Failure{QCoreApplication::translate("UserManual",
                                                   "There is no program that could show the manual. Open the "
                                                   "file “%1” in a web browser")
                           .arg(path)};
    return {};
}

} // namespace vantrell::UserManual
