#pragma once

#include <QLabel>
#include <QString>

namespace vantrell
{

/// Lets the label's text be selected with the mouse. The label takes the keyboard focus meanwhile, so that
/// copying means this text, and gives up the selection with the focus.
inline void makeSelectable(QLabel &label)
{
    label.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label.setFocusPolicy(Qt::ClickFocus);
}

/// The selected text, with the line breaks of plain text; empty for none.
inline QString selectedTextOf(const QLabel &label)
{
    QString text = label.selectedText();
    for (const QChar::SpecialCharacter separator : {QChar::LineSeparator, QChar::ParagraphSeparator})
        text.replace(QChar(separator), QLatin1Char('\n'));
    return text;
}

} // namespace vantrell
