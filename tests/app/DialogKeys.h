#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QHash>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>

namespace vantrell
{

inline QString letterOf(const QString &text)
{
    const QKeySequence mnemonic = QKeySequence::mnemonic(text);
    return mnemonic.isEmpty() ? QString() : mnemonic.toString().right(1);
}

/// The texts that share a mnemonic with another one.
inline QStringList clashes(const QStringList &texts)
{
    QHash<QString, QStringList> byLetter;
    for (const QString &text : texts) {
        if (const QString letter = letterOf(text); !letter.isEmpty())
            byLetter[letter].append(text);
    }
    QStringList found;
    for (const QStringList &same : byLetter) {
        if (same.size() > 1)
            found.append(same.join(QStringLiteral(" = ")));
    }
    return found;
}

/// The menus with the same mnemonic on two items that show at once.
inline QStringList clashesIn(const QMenu &menu)
{
    QStringList texts;
    QStringList found;
    for (const QAction *const action : menu.actions()) {
        if (!action->isVisible())
            continue;
        texts.append(action->text());
        if (action->menu())
            found += clashesIn(*action->menu());
    }
    return found + clashes(texts);
}

/// The texts of a window part that stand for a key: of buttons, labels with a buddy, boxes.
inline QStringList textsWithKeys(const QWidget &part)
{
    QStringList texts;
    for (const auto *const button : part.findChildren<QAbstractButton *>()) {
        if (button->window() == part.window())
            texts.append(button->text());
    }
    for (const auto *const label : part.findChildren<QLabel *>()) {
        if (label->buddy() && label->window() == part.window())
            texts.append(label->text());
    }
    for (const auto *const box : part.findChildren<QGroupBox *>())
        texts.append(box->title());
    return texts;
}

/// Buttons with a text but no key.
inline QStringList buttonsWithoutKey(const QWidget &dialog)
{
    QStringList found;
    for (const auto *const button : dialog.findChildren<QPushButton *>()) {
        if (button->window() == &dialog && !button->text().isEmpty() && letterOf(button->text()).isEmpty())
            found.append(button->text());
    }
    return found;
}

inline bool takesInput(const QWidget &widget)
{
    return qobject_cast<const QLineEdit *>(&widget) || qobject_cast<const QComboBox *>(&widget) ||
           qobject_cast<const QAbstractItemView *>(&widget) ||
           qobject_cast<const QPlainTextEdit *>(&widget) || qobject_cast<const QAbstractSpinBox *>(&widget) ||
           qobject_cast<const QAbstractButton *>(&widget);
}

/// The controls of a window part without a name for screen readers.
inline QStringList nameless(const QWidget &part)
{
    QStringList found;
    for (QWidget *const widget : part.findChildren<QWidget *>()) {
        const bool isOwn = widget->window() == part.window() && widget->focusPolicy() != Qt::NoFocus;
        const bool isInner = qobject_cast<QComboBox *>(widget->parentWidget()) ||
                             qobject_cast<QAbstractSpinBox *>(widget->parentWidget());
        if (!isOwn || isInner || !takesInput(*widget))
            continue;
        QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(widget);
        if (!accessible || accessible->text(QAccessible::Name).isEmpty())
            found.append(QString::fromLatin1(widget->metaObject()->className()) + QLatin1Char(' ') +
                         widget->objectName());
    }
    return found;
}

/// What is wrong with the keys of a window: those that two items of a menu share, or the titles of the menus
/// and the pane, and the pane's controls without a name. The pane's table has a menu of its own or null.
inline QStringList keyFaults(const QMenuBar &bar, const QWidget &pane, const QMenu *tableMenu)
{
    QStringList titles;
    QStringList found;
    for (const QAction *const action : bar.actions()) {
        titles.append(action->text());
        Q_EMIT action->menu()->aboutToShow();
        found += clashesIn(*action->menu());
    }
    if (tableMenu)
        found += clashesIn(*tableMenu);
    return found + clashes(titles + textsWithKeys(pane)) + nameless(pane);
}

inline QDialog *visibleDialog()
{
    for (QWidget *const widget : QApplication::topLevelWidgets()) {
        auto *const dialog = qobject_cast<QDialog *>(widget);
        if (dialog && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

} // namespace vantrell
