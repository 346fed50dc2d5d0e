#pragma once

#include <QString>
#include <QStringList>

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

/// Refills the menu: "All Drives", the root volume, then every folder among the mounted volumes by its
/// name. Folders that do not answer within half a second are left out. Any thread.
void populateDrivePopUp(std::vector<DriveItem> &menu);

} // namespace vantrell
