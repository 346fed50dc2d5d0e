#pragma once

#include <QIcon>
#include <QString>

namespace vantrell
{

/// The small images of the tables, each made once: those of the desktop's theme where it has them, else
/// symbols in the colours of the palette. Nothing is ever looked up on a disk by a row's path. Main thread.
namespace TableIcons
{

/// By the file's name alone.
QIcon file(const QString &filename);
/// In place of a file's that is missing.
QIcon missing();
/// "/" is the start-up volume.
QIcon volume(const QString &path);
/// "sequence" or "clip"; null for another name.
QIcon named(const QString &name);
/// The swatch of a marker colour; an index outside the table is the first one's.
QIcon marker(int colorIndex);

} // namespace TableIcons
} // namespace vantrell
