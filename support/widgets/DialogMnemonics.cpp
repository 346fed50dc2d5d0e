#include "support/widgets/DialogMnemonics.h"

#include <QAbstractButton>
#include <QDialog>
#include <QEvent>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QSet>
#include <QToolButton>

namespace vantrell
{

namespace
{

/// The letter of a text's mnemonic, in upper case; null for none.
QChar letterOf(const QString &text)
{
    const QKeySequence shortcut = QKeySequence::mnemonic(text);
    return shortcut.isEmpty() ? QChar() : QChar(char16_t(shortcut[0].key())).toUpper();
}

/// Whether the widget belongs to the dialog's own window.
bool isIn(const QWidget &dialog, const QWidget &widget)
{
    return widget.window() == dialog.window();
}

QSet<QChar> lettersIn(const QWidget &dialog)
{
    QSet<QChar> letters;
    const auto take = [&letters](const QString &text) {
        if (const QChar letter = letterOf(text); !letter.isNull())
            letters.insert(letter);
    };
    for (const auto *const button : dialog.findChildren<QAbstractButton *>()) {
        if (isIn(dialog, *button))
            take(button->text());
    }
    for (const auto *const label : dialog.findChildren<QLabel *>()) {
        if (label->buddy())
            take(label->text());
    }
    for (const auto *const box : dialog.findChildren<QGroupBox *>())
        take(box->title());
    return letters;
}

/// Where in the text the mnemonic may stand: at the beginning of a word if possible; -1 for nowhere.
qsizetype placeIn(const QString &text, const QSet<QChar> &taken)
{
    qsizetype inside = -1;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!text[i].isLetter() || taken.contains(text[i].toUpper()))
            continue;
        if (i == 0 || text[i - 1].isSpace())
            return i;
        if (inside < 0)
            inside = i;
    }
    return inside;
}

} // namespace

void DialogMnemonics::install(QObject &application)
{
    application.installEventFilter(new DialogMnemonics(&application));
}

void DialogMnemonics::assign(const QWidget &dialog)
{
    QSet<QChar> taken = lettersIn(dialog);
    for (auto *const button : dialog.findChildren<QAbstractButton *>()) {
        const QString text = button->text();
        const bool isBare = !text.isEmpty() && !text.contains(QLatin1Char('&'));
        if (!isBare || !isIn(dialog, *button) || qobject_cast<QToolButton *>(button))
            continue;
        const qsizetype place = placeIn(text, taken);
        if (place < 0)
            continue;
        taken.insert(text[place].toUpper());
        button->setText(QString(text).insert(place, QLatin1Char('&')));
    }
}

bool DialogMnemonics::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Show) {
        if (const auto *const dialog = qobject_cast<QDialog *>(object))
            assign(*dialog);
    }
    return QObject::eventFilter(object, event);
}

} // namespace vantrell
