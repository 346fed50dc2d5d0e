#pragma once

class QColor;
class QPalette;

namespace vantrell
{

/// The contrast of two opaque colors, from 1 (none) to 21 (black on white), by their relative luminance.
double contrastOf(const QColor &one, const QColor &other);

/// The palette with secondary texts (QPalette::PlaceholderText) that can be read: some dark themes leave them
/// black. What the palette leaves to the theme stays so.
QPalette withReadableSecondaryTexts(const QPalette &palette);

} // namespace vantrell
