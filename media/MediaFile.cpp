#include "media/MediaFile.h"

#include "media/MediaKeys.h"
#include "support/files/FileUtilities.h"
#include "support/text/TextFormat.h"

#include <QHash>
#include <QStorageInfo>

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
        return formatText(u"%.0f B", bytes);
    if (bytes < megabyte)
        return formatText(u"%.2f KB", bytes / kilobyte);
    if (bytes < gigabyte)
        return formatText(u"%.2f MB", bytes / megabyte);
    return formatText(u"%.2f GB", bytes / gigabyte);
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
