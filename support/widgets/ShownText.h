#pragma once

#include <QString>

namespace vantrell
{

/// What a text of the core is shown as: in the window's language, as it is if there is no translation. The
/// core speaks English, so that logs, files and the command line do; only where the window shows a text is it
/// translated. The kinds of texts are the contexts of CoreTexts. Main thread.
///
/// Of a message, such as that of an alert, each part is translated that CoreTexts has: a line, a sentence,
/// and what stands in another message in turn. Names and paths stay as they are.
QString shownMessage(const QString &english);
/// A number of bytes with its unit, such as "1.50 GB", with the decimal point of the system's locale.
QString shownSize(const QString &english);
/// The title of a column.
QString shownColumn(const QString &english);
/// A value that the program itself gives to a cell or a menu, such as a kind of file or a colour.
QString shownValue(const QString &english);
/// The name of a step that can be undone.
QString shownEdit(const QString &english);
/// What differs between two cuts.
QString shownDifference(const QString &english);

} // namespace vantrell
