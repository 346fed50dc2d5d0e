#pragma once

class QColor;
class QPalette;

namespace vantrell
{

/// The contrast of two opaque colors, from 1 (none) to 21 (black on white), by their relative luminance.
double contrastOf(const QColor &one, const QColor &other);

/// The palette with secondary texts (QPalette::PlaceholderText) and tool tips that can be read: some dark
/// themes leave the texts black, or the ground of tool tips light. What the palette leaves to the theme stays
/// so.
QPalette withReadableTexts(const QPalette &palette);

} // namespace vantrell
