#include "app/SampleProject.h"

#include "support/files/FileUtilities.h"
#include "support/files/StandardFolders.h"

#include <QDir>
#include <QFile>
#include <QUrl>

static void registerSample()
{
    Q_INIT_RESOURCE(sample_resources);
}

namespace vantrell
{

namespace
{

const QString resources = QStringLiteral(":/sample/");
const QString projectName = QStringLiteral("Harbour Lights.xml");
const QString recutName = QStringLiteral("Harbour Lights Recut.xml");
const QString mediaName = QStringLiteral("Media");

/// Copies a file of the resources unless there is one of its name in the folder.
Result<void> copyTo(const QString &folder, const QString &name, const QByteArray &mediaAddress = {})
{
    const QString path = folder + QLatin1Char('/') + name;
    if (QFile::exists(path))
        return {};
    QFile file(resources + name);
    if (!file.open(QIODevice::ReadOnly))
        return Failure{file.errorString()};
    QByteArray content = file.readAll();
    if (!mediaAddress.isEmpty())
        content.replace("file://localhost/Volumes/Harbour/Media/", mediaAddress);
    return FileUtilities::writeAtomically(path, content);
}

} // namespace

QString SampleProject::folder()
{
    return StandardFolders::applicationSupport() + QStringLiteral("/vantrell/sample");
}

Result<QString> SampleProject::prepare(const QString &folder)
{
    registerSample();
    if (!QDir().mkpath(folder + QLatin1Char('/') + mediaName))
        return Failure{QStringLiteral("The folder \"%1\" could not be made.").arg(folder)};
    for (const QString &name : QDir(resources + mediaName).entryList(QDir::Files)) {
        if (const Result<void> copied = copyTo(folder, mediaName + QLatin1Char('/') + name); !copied)
            return copied.failure();
    }
    const QByteArray address = "file://localhost" + QUrl::toPercentEncoding(folder, "/") + "/Media/";
    for (const QString &name : {recutName, projectName}) {
        if (const Result<void> copied = copyTo(folder, name, address); !copied)
            return copied.failure();
    }
    return folder + QLatin1Char('/') + projectName;
}

} // namespace vantrell
