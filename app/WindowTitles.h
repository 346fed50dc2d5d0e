#pragma once

#include <QStringList>

namespace vantrell
{

/// For each path of a file what tells it from the others with the same file name: as many of its last folders
/// as that takes, joined by "/"; empty for a name that no other path has. Any thread.
QStringList foldersThatTellApart(const QStringList &paths);

} // namespace vantrell
