#pragma once

#include <QByteArray>

namespace vantrell::UnfinishedFiles
{

/// Notes a file that is being written under a temporary name. Any thread.
void add(const QByteArray &path);
/// The file has got its final name, or was removed. Any thread.
void remove(const QByteArray &path);

/// From now on an interrupt, a hang-up or a request to terminate removes the files noted before it ends
/// the process, in the way in which it ends one by default. Main thread, once.
void removeOnSignals();

} // namespace vantrell::UnfinishedFiles
