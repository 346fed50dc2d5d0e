#include "support/desktop/ApplicationBundle.h"

#include "support/files/PropertyList.h"

#include <QDir>
#include <QFileInfo>

namespace vantrell
{

namespace
{

bool isExecutableFile(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && file.isExecutable();
}

/// The executable that the information names, else the only one there is.
QString mainExecutable(const QString &bundle, const QString &name)
{
    const QDir folder(bundle + QStringLiteral("/Contents/MacOS"));
    if (!name.isEmpty() && !name.contains(QLatin1Char('/')) && isExecutableFile(folder.filePath(name)))
        return folder.filePath(name);
    const QStringList files = folder.entryList(QDir::Files | QDir::Executable);
    return files.size() == 1 ? folder.filePath(files.first()) : QString();
}

QStringList subfolders(const QString &folder)
{
    return QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

void appendBundles(const QString &folder, const QStringList &names, std::vector<ApplicationBundle> &bundles)
{
    for (const QString &name : names) {
        if (!ApplicationBundle::isBundlePath(name))
            continue;
        if (auto bundle = ApplicationBundle::read(folder + QLatin1Char('/') + name))
            bundles.push_back(*std::move(bundle));
    }
}

} // namespace

std::optional<ApplicationBundle> ApplicationBundle::read(const QString &path)
{
    const QString bundle = QFileInfo(path).canonicalFilePath();
    const QString information = bundle + QStringLiteral("/Contents/Info.plist");
    if (bundle.isEmpty() || !QFileInfo(information).isFile())
        return std::nullopt;
    const auto list = PropertyList::fromFile(information);
    if (!list)
        return std::nullopt;
    const QVariantMap keys = list.value().toMap();
    const QString identifier = keys.value(QStringLiteral("CFBundleIdentifier")).toString();
    if (identifier.isEmpty())
        return std::nullopt;
    const QString name = keys.value(QStringLiteral("CFBundleExecutable")).toString();
    return ApplicationBundle{bundle, identifier, mainExecutable(bundle, name)};
}

std::vector<ApplicationBundle> ApplicationBundle::inFolder(const QString &folder)
{
    std::vector<ApplicationBundle> bundles;
    const QStringList names = subfolders(folder);
    appendBundles(folder, names, bundles);
    for (const QString &name : names) {
        if (!isBundlePath(name)) {
            const QString inner = folder + QLatin1Char('/') + name;
            appendBundles(inner, subfolders(inner), bundles);
        }
    }
    return bundles;
}

} // namespace vantrell
