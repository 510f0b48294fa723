#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

/// The light and the dark look.
namespace theme {

/// Gives the application its style, palette and style sheet. May be called again at any time; what
/// is on the screen follows.
void apply(bool dark);

/// Every colour role of every group.
[[nodiscard]] QPalette palette(bool dark);
/// Empty for the light look.
[[nodiscard]] QString styleSheet(bool dark);

/// Whether texts in this palette are lighter than what they stand on.
[[nodiscard]] bool isDark(const QPalette& palette);

/// The colour of the frame that shows where the keyboard's input goes.
/// @param selected  whether the frame is drawn on the ground of a selection
[[nodiscard]] QColor focusColour(const QPalette& palette, bool selected);
/// The colour of a frame round what can be typed or clicked into.
[[nodiscard]] QColor frameColour(const QPalette& palette);

/// How differences stand out in a table.
struct DifferenceColours
{
    QColor ground;  ///< of an unequal value
    QColor letters;  ///< the ground of its letters that differ
    QColor mark;  ///< in the corner of its cell
    QColor difference;  ///< a number that tells how far values are apart
    QColor baseOnly;  ///< the ground of an observation of one side
    QColor compareOnly;
};
[[nodiscard]] DifferenceColours differenceColours(const QPalette& palette);

}  // namespace theme
