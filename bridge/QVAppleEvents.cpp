#include "bridge/QVAppleEvents.h"

#include "support/PropertyList.h"
#include "support/TextNumbers.h"
#include "support/Workspace.h"

#include <QFileInfo>
#include <QStringList>
#include <QUuid>

namespace vantrell
{

namespace
{

QString applicationPath()
{
    const QString folder = Workspace::applicationsFolder();
    QString path = Workspace::applicationPathForBundleIdentifier(QStringLiteral("com.apple.FinalCutPro"));
    if (path.isEmpty())
        path = folder + QStringLiteral("/Final Cut Studio/Final Cut Pro.app");
    if (!QFileInfo::exists(path))
        path = folder + QStringLiteral("/Final Cut Pro.app");
    return path;
}

} // namespace

QString QVAppleEvents::generateUUID()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

QString QVAppleEvents::finalCutProVersionString()
{
    const QString path = applicationPath() + QStringLiteral("/Contents/Info.plist");
    if (!QFileInfo::exists(path))
        return QStringLiteral("7.0");
    const Result<PropertyListValue> information = PropertyList::fromFile(path);
    if (!information)
        return QStringLiteral("7.0");
    return information.value().toDictionary().value(QStringLiteral("CFBundleShortVersionString")).toString();
}

std::int64_t QVAppleEvents::finalCutProMajorVersion()
{
    return majorVersionOf(finalCutProVersionString());
}

std::int64_t QVAppleEvents::maximumXMEMLVersion()
{
    return maximumXMEMLVersionOf(finalCutProVersionString());
}

std::int64_t QVAppleEvents::majorVersionOf(const QString &version)
{
    return version.isEmpty() ? 7 : integerValue(version.first(1));
}

std::int64_t QVAppleEvents::maximumXMEMLVersionOf(const QString &version)
{
    QStringList components;
    if (!version.isNull())
        components = version.split(QLatin1Char('.'));
    // The count grows with each turn: one or no component ends with two, and the third then counts as 0.
    for (qsizetype i = 0; i < 3 - components.size(); ++i)
        components.append(QStringLiteral("0"));
    const std::int64_t major = integerValue(components.value(0));
    const std::int64_t minor = integerValue(components.value(1));
    const std::int64_t patch = integerValue(components.value(2));
    if (major < 5)
        return 1;
    if (major == 5)
        return minor == 1 && patch < 2 ? 2 : 3;
    return major == 6 ? 4 : 5;
}

QString QVAppleEvents::escapeCharactersInXMLString(const QString &text)
{
    QString escaped;
    escaped.reserve(text.size());
    for (const QChar unit : text) {
        if (unit.unicode() >= 160 || unit == QLatin1Char('\r'))
            escaped += QStringLiteral("&#%1;").arg(int(unit.unicode()));
        else
            escaped += unit;
    }
    return escaped;
}

QByteArray QVAppleEvents::formatData(QByteArray data)
{
    if (data.endsWith('\0'))
        data.chop(1);
    return data;
}

} // namespace vantrell
