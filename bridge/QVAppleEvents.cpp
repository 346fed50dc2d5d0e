#include "bridge/QVAppleEvents.h"

#include "support/desktop/Workspace.h"
#include "support/files/PropertyList.h"
#include "support/text/TextNumbers.h"

#include <QFileInfo>
#include <QStringList>
#include <QUuid>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>

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

/// A decimal reference to one UTF-16 unit.
struct Reference {
    std::array<char, 8> text{'&', '#'};
    std::ptrdiff_t size;
};

Reference referenceTo(QChar unit)
{
    Reference reference;
    char *const end =
        std::to_chars(reference.text.data() + 2, reference.text.data() + 7, unsigned(unit.unicode())).ptr;
    *end = ';';
    reference.size = end + 1 - reference.text.data();
    return reference;
}

} // namespace

QString QVAppleEvents::finalCutProIdentifier()
{
    return QStringLiteral("com.apple.FinalCutPro");
}

QString QVAppleEvents::generateUUID()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

QString QVAppleEvents::finalCutProVersionString()
{
    const QString path = applicationPath() + QStringLiteral("/Contents/Info.plist");
    if (!QFileInfo::exists(path))
        return QStringLiteral("7.0");
    const Result<QVariant> information = PropertyList::fromFile(path);
    if (!information)
        return QStringLiteral("7.0");
    return information.value().toMap().value(QStringLiteral("CFBundleShortVersionString")).toString();
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
    return QString::fromUtf8(escapedXml(text));
}

QByteArray QVAppleEvents::escapedXml(QStringView text)
{
    qsizetype size = 0;
    for (const QChar unit : text)
        size += isEscaped(unit) ? referenceTo(unit).size : unit.unicode() < 0x80 ? 1 : 2;
    QByteArray escaped(size, Qt::Uninitialized);
    char *to = escaped.data();
    for (const QChar unit : text) {
        const char16_t code = unit.unicode();
        if (isEscaped(unit)) {
            const Reference reference = referenceTo(unit);
            to = std::copy_n(reference.text.data(), reference.size, to);
        } else if (code < 0x80) {
            *to++ = char(code);
        } else { // below 160: two bytes of UTF-8
            *to++ = char(0xc0 | code >> 6);
            *to++ = char(0x80 | (code & 0x3f));
        }
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
