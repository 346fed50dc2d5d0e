#include "app/UserManual.h"

#include "support/alerts/QVAlert.h"
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

void open(const QString &sharedLibrary, const QString &programFolder)
{
    const QString path = file(sharedLibrary, programFolder);
    if (!path.isEmpty() && Workspace::openFile(path))
        return;
    const QString reason =
        path.isEmpty()
            ? QCoreApplication::translate("UserManual", "It is not installed: there is no file %1.")
                  .arg(pagesPath(programFolder))
            : QCoreApplication::translate("UserManual", "There is no program to open it with: %1").arg(path);
    QVAlert::alertSheetWithMessageText(
        QCoreApplication::translate("UserManual", "The user manual cannot be shown"), reason, nullptr);
}

} // namespace vantrell::UserManual
