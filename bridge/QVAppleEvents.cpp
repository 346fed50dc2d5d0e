#include "bridge/QVAppleEvents.h"

#include "support/desktop/Workspace.h"
#include "support/files/PropertyList.h"
#include "support/text/TextNumbers.h"

#include <QFileInfo>
#include <QStringList>
#include <QUuid>

#include <algorithm>

namespace vantrell
{

namespace
{

QString applicationPath()
{
    const QString folder = Workspace::applicationsFolder();
    QString path = Workspace::applicationPathForBundleIdentifier(QVAppleEvents::finalCutProIdentifier());
    if (path.isEmpty())
        path = folder + QStringLiteral("/Final Cut Studio/Final Cut Pro.app");
    if (!QFileInfo::exists(path))
        path = folder + QStringLiteral("/Final Cut Pro.app");
    return path;
}

bool isEscaped(QChar unit)
{
    return unit.unicode() >= 160 || unit == QLatin1Char('\r');
}

} // namespace

QString QVAppleEvents::generateUUID()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

QString QVAppleEvents::finalCutProVersionString()
{
    const auto information =
        PropertyList::fromFile(applicationPath() + QStringLiteral("/Contents/Info.plist"));
    if (!information)
        return QStringLiteral("7.0");
    return information.value().toMap().value(QStringLiteral("CFBundleShortVersionString")).toString();
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
    // The number of components grows meanwhile: one or none becomes two, and the missing third counts as 0.
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

QByteArray QVAppleEvents::escapedXml(QStringView text)
{
    QByteArray escaped;
    escaped.reserve(text.size());
    while (!text.isEmpty()) {
        const auto *const special = std::find_if(text.begin(), text.end(), isEscaped);
        escaped += text.first(special - text.begin()).toUtf8();
        text = text.sliced(special - text.begin());
        for (; !text.isEmpty() && isEscaped(text.front()); text = text.sliced(1))
            escaped.append("&#").append(QByteArray::number(text.front().unicode())).append(';');
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
