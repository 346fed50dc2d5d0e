#pragma once

#include <QIcon>
#include <QString>

namespace vantrell
{

/// One of the program's own symbols as an icon: sharp at every size, and in the text colour of the
/// theme that holds when it is painted. The path is that of an SVG resource drawn in "currentColor".
QIcon symbolIcon(const QString &path);

/// The first of the theme's icons that is there, else the symbol.
QIcon themeIcon(const QStringList &names, const QString &symbolPath);

} // namespace vantrell
