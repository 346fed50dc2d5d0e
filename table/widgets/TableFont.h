#pragma once

#include <QString>

namespace vantrell
{

class UserDefaults;

/// The font of all tables, those that are open and those to come. Main thread.
namespace TableFont
{

/// The user defaults: a family, empty for that of the other controls; a size in points, 0 for theirs.
inline const QString familyKey = QStringLiteral("tableFontFamily");
inline const QString sizeKey = QStringLiteral("tableFontSize");

constexpr int smallest = 6; ///< points
constexpr int largest = 36;

/// Gives the tables the font of the user defaults. A size out of range counts as the next one within.
void apply(const UserDefaults &defaults);

} // namespace TableFont

} // namespace vantrell
