#pragma once

#include <QStringView>

#include <optional>

namespace vantrell
{

/// The colours of lists as indexes of MarkerColors::table(). Any thread.
namespace NoteColors
{

/// The index for a colour's name in one of several languages or editing systems ("ResolveColorSky",
/// "magenta", "blau"), without regard to case, or for a value ("#ff8000", "0xFF8000", "255,128,0"), which is
/// taken as the nearest. nullopt for what is no colour.
std::optional<int> find(QStringView text);

inline bool isKnown(QStringView text)
{
    return find(text).has_value();
}

/// The same, with the first colour for anything else. An exact value beside the name comes first.
int indexOf(QStringView color, QStringView value = QStringView());

} // namespace NoteColors
} // namespace vantrell
