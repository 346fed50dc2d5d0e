#include "media/MediaFile.h"

#include "media/MediaKeys.h"
#include "support/files/FileUtilities.h"

#include <QHash>
#include <QStorageInfo>

#include <array>
#include <charconv>

namespace vantrell::MediaFile
{

namespace
{

QHash<QString, QString> kindTable()
{
    QHash<QString, QString> table;
    for (const char *extension : {"mov", "qt", "avi", "wmv", "mpg", "mp4", "mxf", "r3d"})
        table.insert(QLatin1String(extension), MediaKind::movieClip);
    for (const char *extension : {"wav", "mp3", "aif", "aiff", "caf"})
        table.insert(QLatin1String(extension), MediaKind::audioClip);
    for (const char *extension : {"jpg", "tif", "tiff", "dpx", "cin", "png", "gif", "psd", "pdf"})
        table.insert(QLatin1String(extension), MediaKind::image);
    return table;
}

/// As printf does it in the C locale: ties go to the even digit.
QString fixedPoint(double number, int decimals)
{
    std::array<char, 400> text; // the largest double has 309 digits
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed, decimals);
    return QString::fromLatin1(text.data(), end.ptr - text.data());
}

QStringView withoutTrailingSlashes(QStringView path)
{
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path;
}

} // namespace

QString fileTypeForPath(const QString &path)
{
    static const QHash<QString, QString> kinds = kindTable();
    return kinds.value(FileUtilities::pathExtension(path).toLower(), MediaKind::unknown);
}

QString formatFileSize(double bytes)
{
    constexpr double kilobyte = 1024;
    constexpr double megabyte = 1024 * kilobyte;
    constexpr double gigabyte = 1024 * megabyte;
    if (bytes < kilobyte)
        return fixedPoint(bytes, 0) + QStringLiteral(" B");
    if (bytes < megabyte)
        return fixedPoint(bytes / kilobyte, 2) + QStringLiteral(" KB");
    if (bytes < gigabyte)
        return fixedPoint(bytes / megabyte, 2) + QStringLiteral(" MB");
    return fixedPoint(bytes / gigabyte, 2) + QStringLiteral(" GB");
}

QString formatPath(const QString &path)
{
    QStringView rest(path);
    for (const QStringView prefix : {u"file:/", u"/localhost", u"localhost"}) {
        if (rest.startsWith(prefix))
            rest = rest.sliced(prefix.size());
    }
    return rest.toString();
}

PathParts splitPath(const QString &path)
{
    const QStringView whole = withoutTrailingSlashes(path);
    const qsizetype slash = whole.lastIndexOf(u'/');
    if (slash < 0)
        return {whole.toString(), QStringLiteral("")};
    if (whole.size() == 1)
        return {whole.toString(), whole.toString()};
    return {whole.sliced(slash + 1).toString(), withoutTrailingSlashes(whole.first(slash + 1)).toString()};
}

QString absolutePath(const QString &path, const QString &folder)
{
    return path.isEmpty() || path.startsWith(u'/') ? path : joinedPath(folder, path);
}

QString joinedPath(const QString &directory, const QString &filename)
{
    if (directory.isEmpty() || filename.startsWith(u'/'))
        return filename;
    return directory.endsWith(u'/') ? directory + filename : directory + u'/' + filename;
}

QString bootVolumeName()
{
    return QStorageInfo(QStringLiteral("/")).displayName();
}

} // namespace vantrell::MediaFile
