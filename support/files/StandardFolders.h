#pragma once

#include <QString>
#include <QStringList>

/// Where things lie on this system. Every function reads the environment at the time of its call, so that a
/// moved home folder takes effect at once; none makes a folder. Paths are absolute and have no trailing
/// slash. Any thread.
namespace vantrell::StandardFolders
{

/// The user's library folder: XDG_STATE_HOME, else ~/.local/state.
QString userLibrary();
/// The system-wide library folder: /var, unless it was moved for this process; an empty path moves it back.
QString systemLibrary();
void setSystemLibrary(const QString &folder);
/// The folder of what all programs and users share: /usr/share.
QString sharedLibrary();
/// The user's preferences: XDG_CONFIG_HOME, else ~/.config.
QString preferences();
/// The user's application data: XDG_DATA_HOME, else ~/.local/share.
QString applicationSupport();

/// The user's documents and desktop: XDG_DOCUMENTS_DIR and XDG_DESKTOP_DIR of the environment or of the file
/// user-dirs.dirs in the preferences folder, else ~/Documents and ~/Desktop.
QString documents();
/// The same, or the home folder if there is none such.
QString documentsOrHome();
QString desktop();

/// Where this user's programs meet while the user is logged in: the folder "vantrell" in XDG_RUNTIME_DIR.
/// Empty without that variable.
QString runtime();

/// The folders that hold the mounted volumes: the one that was set; else /Volumes alone if it exists; else
/// those that exist of /run/media/$USER, /media/$USER and /mnt.
QStringList volumesFolders();
/// Sets the folder of the volumes for this process; an empty path unsets it.
void setVolumesFolder(const QString &folder);

} // namespace vantrell::StandardFolders
