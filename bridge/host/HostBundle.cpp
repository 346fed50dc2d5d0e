#include "bridge/host/HostBundle.h"

#include "support/files/FileUtilities.h"
#include "support/files/PropertyList.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace vantrell::HostBundle
{

namespace
{

const QByteArray scriptHead = "#!/bin/sh\n# Made by fcp-host --install-bundle.\n";

QString shellQuoted(QString text)
{
    return QLatin1Char('\'') + text.replace(QLatin1Char('\''), QLatin1String("'\\''")) + QLatin1Char('\'');
}

QByteArray script(const QString &program, const QStringList &arguments)
{
    QString command = QStringLiteral("exec ") + shellQuoted(program);
    for (const QString &argument : arguments)
        command += QLatin1Char(' ') + shellQuoted(argument);
    return scriptHead + QFile::encodeName(command) + " -- \"$@\"\n";
}

} // namespace

Result<QString> install(const QString &folder, const QString &version, const QString &program,
                        const QStringList &arguments)
{
    const QString name = QStringLiteral("Final Cut Pro");
    const QString bundle = folder + QLatin1Char('/') + name + QStringLiteral(".app");
    const QString executable = bundle + QStringLiteral("/Contents/MacOS/") + name;
    if (QFileInfo::exists(bundle)) {
        const Result<QByteArray> present = FileUtilities::readFile(executable);
        if (!present || !present.value().startsWith(scriptHead))
            return Failure{QStringLiteral("There is another application in \"%1\".").arg(bundle)};
    }
    if (!QDir().mkpath(QFileInfo(executable).path()))
        return Failure{QStringLiteral("The folder \"%1\" could not be made.").arg(bundle)};

    const QVariantMap information{
        {QStringLiteral("CFBundleExecutable"), name},
        {QStringLiteral("CFBundleIdentifier"), QStringLiteral("com.apple.FinalCutPro")},
        {QStringLiteral("CFBundleName"), name},
        {QStringLiteral("CFBundlePackageType"), QStringLiteral("APPL")},
        {QStringLiteral("CFBundleShortVersionString"), version},
        {QStringLiteral("CFBundleSignature"), QStringLiteral("KeyG")}};
    const Result<void> described =
        PropertyList::toFile(information, bundle + QStringLiteral("/Contents/Info.plist"));
    if (!described)
        return described.failure();
    const Result<void> written = FileUtilities::writeAtomically(executable, script(program, arguments));
    if (!written)
        return written.failure();
    const QFile::Permissions readable = QFile::permissions(executable);
    QFile::Permissions permissions = readable | QFile::ExeOwner | QFile::ExeUser;
    if (readable & QFile::ReadGroup)
        permissions |= QFile::ExeGroup;
    if (readable & QFile::ReadOther)
        permissions |= QFile::ExeOther;
    if (!QFile::setPermissions(executable, permissions))
        return Failure{QStringLiteral("The file \"%1\" could not be made executable.").arg(executable)};
    return bundle;
}

} // namespace vantrell::HostBundle
