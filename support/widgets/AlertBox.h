#pragma once

class QLabel;
class QMessageBox;
class QString;

namespace vantrell
{

// What alerts and other boxes that tell or ask something look like. Main thread.

/// Gives the box the name and the icon of the program, the message in bold with the explanation below, which
/// may be empty, and makes it a sheet of its window if it has one. Ctrl+C copies the texts as they are.
void setUpAlert(QMessageBox &box, const QString &message, const QString &explanation);

/// Shows a text of a box in the label: literally, even if it looks like markup, 380 pixels wide or more,
/// never broken within a word or a path. Words and paths that are too long for that are elided in the middle,
/// and the label's tool tip tells the whole text. It can be selected; messages are bold.
void setMessageText(QLabel &label, const QString &message);
void setExplanationText(QLabel &label, const QString &explanation);

/// The same for a label of any width, with paths and words of at most that many pixels.
void setTextWithPaths(QLabel &label, const QString &text, int width);

} // namespace vantrell
