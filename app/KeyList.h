#pragma once

#include <QList>
#include <QString>

class QMainWindow;

namespace vantrell
{

/// What one key, or several alternatives, do.
struct KeyEntry {
    QString keys; ///< as the keyboard labels them; alternatives are separated by ", "
    QString text; ///< the command's title without mnemonic and ellipsis, or a sentence
};

/// The keys that work in one place: a menu, the tables, a sheet.
struct KeyGroup {
    QString title;
    QList<KeyEntry> entries;
};

/// The shortcuts of all visible commands of the window as they are now: a group for each menu, in the order
/// of the menu bar, with those of its submenus; then one for the shortcuts that are in no menu. Main thread.
QList<KeyGroup> shortcutsOf(const QMainWindow &window);

/// The keys that belong to no command: those of tables, text fields, sheets and further windows.
QList<KeyGroup> otherKeys();

} // namespace vantrell
