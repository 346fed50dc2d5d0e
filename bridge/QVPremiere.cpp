#include "bridge/QVPremiere.h"

#include "support/desktop/Workspace.h"
#include "support/files/PropertyList.h"
#include "support/log/QVLog.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlDocument.h"

#include <QDir>
#include <QFileInfo>

namespace vantrell
{

namespace
{

/// The product version in an installation's configuration; nothing without one.
std::optional<QString> productVersion(const QString &installation)
{
    const auto configuration = XmlDocument::fromFile(
        installation + QStringLiteral("/Configuration/XManConfig.xml"), {false, nullptr});
    if (!configuration)
        return std::nullopt;
    return QVXMLParser::stringValueForQuery(
        QStringLiteral("./Configuration/VariableForExMan/Data[@key='ProductVersion']"),
        configuration.value()->node());
}

QString withoutLastComponents(QString path, int count)
{
    for (int i = 0; i < count; ++i)
        path = QFileInfo(path).path();
    return path;
}

} // namespace

QString QVPremiere::bundleIdentifier()
{
    return QStringLiteral("com.adobe.AdobePremierePro");
}

QStringList QVPremiere::premiereVersions()
{
    const QString folder = Workspace::applicationsFolder();
    QStringList versions;
    const QStringList entries =
        QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &entry : entries) {
        if (!entry.startsWith(QStringLiteral("Adobe Premiere "), Qt::CaseInsensitive))
            continue;
        if (const auto version = productVersion(folder + QLatin1Char('/') + entry))
            versions.append(*version);
    }
    return versions;
}

QString QVPremiere::runningPremiereVersion()
{
    for (const Workspace::RunningApplication &application : Workspace::runningApplications()) {
        if (application.bundleIdentifier != bundleIdentifier())
            continue;
        const QString contents = withoutLastComponents(application.executablePath, 2);
        const Result<QVariant> information = PropertyList::fromFile(contents + QStringLiteral("/Info.plist"));
        QString version;
        if (information)
            version = information.value().toMap().value(QStringLiteral("CFBundleVersion")).toString();
        const QStringList components = version.split(QLatin1Char('.'));
        if (components.size() >= 2)
            return components[0] + QLatin1Char('.') + components[1];
        QVLog::appendLog(u"Unknown Premiere version.");
        return QString();
    }
    return QString();
}

QString QVPremiere::creativeSuiteNumber(const QString &version)
{
    return version.endsWith(QStringLiteral(".0")) ? version.chopped(2) : version;
}

} // namespace vantrell
