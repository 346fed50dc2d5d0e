#pragma once

#include "compare/SequenceComparison.h"

#include <QColor>
#include <QIcon>
#include <QPalette>
#include <QString>

#include <array>

namespace vantrell
{

/// How the kinds of changes look: colours that people with any kind of colour vision can tell apart. Main
/// thread.
namespace ChangeColors
{

/// All kinds, in the order in which they are offered.
inline constexpr std::array<EventChange::Kind, 10> kinds = {
    EventChange::Kind::Added,    EventChange::Kind::Removed, EventChange::Kind::Replaced,
    EventChange::Kind::Moved,    EventChange::Kind::Trimmed, EventChange::Kind::Slipped,
    EventChange::Kind::Speed,    EventChange::Kind::Track,   EventChange::Kind::Effects,
    EventChange::Kind::Unchanged};

QColor of(EventChange::Kind kind, const QPalette &palette);
/// Black or white, whichever can be read on the colour.
QColor textOn(const QColor &color);
/// Effects share the colour of what is unchanged and are hatched.
inline bool isHatched(EventChange::Kind kind)
{
    return kind == EventChange::Kind::Effects;
}
/// A square in the colour.
QIcon swatch(EventChange::Kind kind, const QPalette &palette);
/// "Moved" and so on.
QString title(EventChange::Kind kind);

} // namespace ChangeColors

} // namespace vantrell
