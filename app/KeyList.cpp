#include "app/KeyList.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QShortcut>

#include <initializer_list>

namespace vantrell
{

namespace
{

QString translated(const char *text)
{
    return QCoreApplication::translate("KeyList", text);
}

QString withoutMnemonic(QString title)
{
    static const QString ampersand(QChar(u'\x1')); // stands for "&&"
    title.replace(QStringLiteral("&&"), ampersand);
    title.remove(QLatin1Char('&'));
    return title.replace(ampersand, QStringLiteral("&"));
}

QString textOf(const QList<QKeySequence> &keys)
{
    QStringList texts;
    for (const QKeySequence &key : keys)
        texts.append(key.toString(QKeySequence::NativeText));
    return texts.join(QStringLiteral(", "));
}

QString titleOf(const QAction &action)
{
    QString title = withoutMnemonic(action.text());
    if (title.endsWith(QChar(u'…')))
        title.chop(1);
    return title;
}

void addShortcut(const QAction &action, QList<KeyEntry> &entries)
{
    if (!action.isVisible() || action.shortcuts().isEmpty())
        return;
    const QString title = titleOf(action);
    entries.append({textOf(action.shortcuts()), title.isEmpty() ? action.toolTip() : title});
}

/// Adds the shortcuts of the menu and its submenus, and to `listed` all of their actions.
void addMenu(const QMenu &menu, QList<KeyEntry> &entries, QSet<const QObject *> &listed)
{
    for (const QAction *const action : menu.actions()) {
        listed.insert(action);
        if (const QMenu *const inner = action->menu())
            addMenu(*inner, entries, listed);
        else
            addShortcut(*action, entries);
    }
}

/// One line of the keys below: what is typed and what happens then.
struct Line {
    QList<QKeySequence> keys;
    const char *text;
};

KeyGroup group(const char *title, std::initializer_list<Line> lines)
{
    KeyGroup result{translated(title), {}};
    for (const Line &line : lines)
        result.entries.append({textOf(line.keys), translated(line.text)});
    return result;
}

} // namespace

QList<KeyGroup> shortcutsOf(const QMainWindow &window)
{
    QList<KeyGroup> groups;
    QSet<const QObject *> listed;
    for (const QAction *const action : window.menuBar()->actions()) {
        const QMenu *const menu = action->menu();
        if (!menu || !action->isVisible())
            continue;
        KeyGroup result{withoutMnemonic(menu->title()), {}};
        addMenu(*menu, result.entries, listed);
        if (!result.entries.isEmpty())
            groups.append(result);
    }
    KeyGroup rest{translated(QT_TRANSLATE_NOOP("KeyList", "Window")), {}};
    for (const QAction *const action : window.findChildren<QAction *>()) {
        if (!listed.contains(action))
            addShortcut(*action, rest.entries);
    }
    for (const QShortcut *const shortcut : window.findChildren<QShortcut *>()) {
        if (!shortcut->whatsThis().isEmpty())
            rest.entries.append({textOf({shortcut->key()}), shortcut->whatsThis()});
    }
    if (!rest.entries.isEmpty())
        groups.append(rest);
    return groups;
}

QList<KeyGroup> otherKeys()
{
    const auto keys = [](std::initializer_list<QKeySequence> sequences) {
        return QList<QKeySequence>(sequences);
    };
    using namespace Qt;
    // clang-format off
    return {
        group(QT_TRANSLATE_NOOP("KeyList", "Tables"), {
            {keys({Key_Up, Key_Down}), QT_TRANSLATE_NOOP("KeyList", "The row above or below")},
            {keys({Key_Left, Key_Right}), QT_TRANSLATE_NOOP("KeyList", "The cell to the left or right")},
            {keys({Key_PageUp, Key_PageDown}), QT_TRANSLATE_NOOP("KeyList", "A page up or down")},
            {keys({Key_Home, Key_End}), QT_TRANSLATE_NOOP("KeyList", "The first or last cell of the row")},
            {keys({CTRL | Key_Home, CTRL | Key_End}), QT_TRANSLATE_NOOP("KeyList", "The first or last cell of the table")},
            {keys({SHIFT | Key_Up, SHIFT | Key_Down}), QT_TRANSLATE_NOOP("KeyList", "Select further rows")},
            {keys({Key_Tab, SHIFT | Key_Tab}), QT_TRANSLATE_NOOP("KeyList", "The next or previous cell")},
            {keys({CTRL | Key_Tab, CTRL | SHIFT | Key_Tab}), QT_TRANSLATE_NOOP("KeyList", "Out of the table")},
            {keys({Key_Space}), QT_TRANSLATE_NOOP("KeyList", "Switch the check box of the current cell")},
            {keys({Key_F2}), QT_TRANSLATE_NOOP("KeyList", "Edit the current cell, or open its list")},
            {keys({Key_Menu, SHIFT | Key_F10}), QT_TRANSLATE_NOOP("KeyList", "The context menu of the selected rows")},
            {keys({CTRL | Key_Menu}), QT_TRANSLATE_NOOP("KeyList", "The menu of the table's header: its columns")},
        }),
        group(QT_TRANSLATE_NOOP("KeyList", "Search Field"), {
            {keys({Key_Return, Key_Down}), QT_TRANSLATE_NOOP("KeyList", "To the rows that were found")},
            {keys({Key_Escape}), QT_TRANSLATE_NOOP("KeyList", "Clear the search, then back to the table")},
        }),
        group(QT_TRANSLATE_NOOP("KeyList", "Media Table"), {
            {keys({Key_Return, Key_Enter}), QT_TRANSLATE_NOOP("KeyList", "Open the file with its application")},
        }),
        group(QT_TRANSLATE_NOOP("KeyList", "Markers Table"), {
            {keys({Key_Return, Key_Enter}), QT_TRANSLATE_NOOP("KeyList", "Edit the current cell, or open its list")},
        }),
        group(QT_TRANSLATE_NOOP("KeyList", "Effects Table"), {
            {keys({Key_Delete, Key_Backspace}), QT_TRANSLATE_NOOP("KeyList", "Take the selected effects off the list; the project keeps them")},
        }),
        group(QT_TRANSLATE_NOOP("KeyList", "Marker Overview"), {
            {keys({Key_Left, Key_Right}), QT_TRANSLATE_NOOP("KeyList", "The previous or next marker")},
            {keys({Key_Plus, Key_Minus}), QT_TRANSLATE_NOOP("KeyList", "Zoom in or out")},
            {keys({Key_0}), QT_TRANSLATE_NOOP("KeyList", "Show the whole sequence")},
            {keys({Key_Escape}), QT_TRANSLATE_NOOP("KeyList", "Show the whole sequence, then back to the table")},
        }),
        group(QT_TRANSLATE_NOOP("KeyList", "While a Cell Is Edited"), {
            {keys({Key_Return, Key_Enter}), QT_TRANSLATE_NOOP("KeyList", "Keep what was typed")},
            {keys({ALT | Key_Return}), QT_TRANSLATE_NOOP("KeyList", "Keep a typed in point, with the duration of the marker")},
            {keys({Key_Tab, SHIFT | Key_Tab}), QT_TRANSLATE_NOOP("KeyList", "Keep what was typed and edit the next or previous cell")},
            {keys({Key_Escape}), QT_TRANSLATE_NOOP("KeyList", "Leave the cell as it was")},
        }),
        group(QT_TRANSLATE_NOOP("KeyList", "Sheets and Alerts"), {
            {keys({Key_Return, Key_Enter}), QT_TRANSLATE_NOOP("KeyList", "The default button")},
            {keys({Key_Escape}), QT_TRANSLATE_NOOP("KeyList", "Cancel or close")},
            {keys({Key_Tab, SHIFT | Key_Tab}), QT_TRANSLATE_NOOP("KeyList", "The next or previous field")},
            {keys({Key_Space}), QT_TRANSLATE_NOOP("KeyList", "In the preview of notes: check or uncheck the selected rows")},
        }),
        group(QT_TRANSLATE_NOOP("KeyList", "Comparison"), {
            {keys({Key_Plus, Key_Minus}), QT_TRANSLATE_NOOP("KeyList", "Zoom the strips in or out")},
            {keys({Key_0}), QT_TRANSLATE_NOOP("KeyList", "Show the whole cuts")},
            {keys({Key_Left, Key_Right}), QT_TRANSLATE_NOOP("KeyList", "Scroll the strips")},
            {keys({QKeySequence::Close, Key_Escape}), QT_TRANSLATE_NOOP("KeyList", "Close the window")},
        }),
    };
    // clang-format on
}

} // namespace vantrell
