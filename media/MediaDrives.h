#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace vantrell
{

/// One item of the drive menu. "All Drives" has a null path; the others show the icon of theirs.
struct DriveItem {
    QString title;
    QString path;
};

/// The folders that hold the mounted volumes; "/Volumes" alone when they do not answer within half a
/// second. Any thread.
QStringList answeringVolumesFolders();
/// The same for the main thread, which cannot wait: "/Volumes" alone for now when they do not answer at once.
/// What they answer later is passed to `late`, on a thread of its own.
QStringList answeringVolumesFolders(const std::function<void(const QStringList &)> &late);

/// Refills the menu: "All Drives", the root volume, then every folder among the mounted volumes by its
/// name. Folders that do not answer within half a second are left out. Any thread.
void populateDrivePopUp(std::vector<DriveItem> &menu);

/// The titles as a user tells them apart: volumes of one name are followed by the folder that they are in.
/// Any thread.
QStringList driveTitles(const std::vector<DriveItem> &menu);

} // namespace vantrell
