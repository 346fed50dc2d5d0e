#include "report/ReportImages.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace vantrell
{

ReportImages::ReportImages(const QString &folder)
{
    if (folder.isEmpty())
        return;
    for (std::size_t i = 0; i < count; ++i) {
        const QString path = QStringLiteral("%1/%2.png").arg(folder, name(i));
        if (QFileInfo::exists(path))
            m_paths[i] = path;
    }
}

QString ReportImages::standardFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/../share/vantrell/report-images"));
}

QString ReportImages::name(std::size_t image)
{
    if (image < MarkerColors::count)
        return MarkerColors::table()[image].icon();
    return image == clip ? QStringLiteral("clip") : QStringLiteral("sequence");
}

} // namespace vantrell
