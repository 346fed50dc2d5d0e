#include "media/MediaDrives.h"

#include "media/AnswerWithin.h"
#include "media/FileChecks.h"
#include "media/MediaFile.h"
#include "support/files/StandardFolders.h"

#include <QFile>
#include <QHash>

#include <algorithm>
#include <memory>

#include <dirent.h>

namespace vantrell
{

namespace
{

constexpr std::chrono::milliseconds patience{500};

/// The names in a folder; what they stand for is not looked at.
std::vector<QString> namesIn(const QString &folder)
{
    std::vector<QString> names;
    DIR *directory = ::opendir(QFile::encodeName(folder).constData());
    if (!directory)
        return names;
    while (const dirent *entry = ::readdir(directory)) {
        const QString name = QFile::decodeName(entry->d_name);
        if (name != QStringLiteral(".") && name != QStringLiteral(".."))
            names.push_back(name);
    }
    ::closedir(directory);
    std::sort(names.begin(), names.end(), [](const QString &a, const QString &b) {
        const int folded = a.compare(b, Qt::CaseInsensitive);
        return folded != 0 ? folded < 0 : a < b;
    });
    return names;
}

} // namespace

QStringList answeringVolumesFolders()
{
    return answerWithin<QStringList>(patience, StandardFolders::volumesFolders)
        .value_or(QStringList(QStringLiteral("/Volumes")));
}

QStringList answeringVolumesFolders(const std::function<void(const QStringList &)> &late)
{
    return answerWithin<QStringList>(mainThreadPatience, StandardFolders::volumesFolders, late)
        .value_or(QStringList(QStringLiteral("/Volumes")));
}

void populateDrivePopUp(std::vector<DriveItem> &menu)
{
    const QString bootVolume = MediaFile::bootVolumeName();
    menu = {{QStringLiteral("All Drives"), QString()}, {bootVolume, QStringLiteral("/")}};
    struct Candidate {
        DriveItem item;
        std::unique_ptr<FileChecks> check; // one each: they do not wait for one another
    };
    std::vector<Candidate> candidates;
    for (const QString &folder : answeringVolumesFolders()) {
        const auto names = answerWithin<std::vector<QString>>(patience, [folder] { return namesIn(folder); });
        for (const QString &name : names.value_or(std::vector<QString>())) {
            const QString path = folder + QLatin1Char('/') + name;
            candidates.push_back(
                {{name, path}, std::make_unique<FileChecks>(std::vector{QFile::encodeName(path)})});
        }
    }
    for (const Candidate &candidate : candidates) {
        const auto answers = candidate.check->answers([] { return false; }, patience);
        const bool isFolder = answers && answers->front() && answers->front()->isFolder;
        if (isFolder && candidate.item.title != bootVolume)
            menu.push_back(candidate.item);
    }
}

QStringList driveTitles(const std::vector<DriveItem> &menu)
{
    QHash<QString, int> uses;
    for (const DriveItem &drive : menu)
        ++uses[drive.title];
    QStringList titles;
    for (const DriveItem &drive : menu) {
        const QString folder =
            uses.value(drive.title) > 1 ? drive.path.section(QLatin1Char('/'), 0, -2) : QString();
        titles.append(folder.isEmpty() ? drive.title : QStringLiteral("%1 (%2)").arg(drive.title, folder));
    }
    return titles;
}

} // namespace vantrell
