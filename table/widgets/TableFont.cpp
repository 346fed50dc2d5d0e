#include "table/widgets/TableFont.h"

#include "support/settings/UserDefaults.h"

#include <QApplication>
#include <QFont>

#include <algorithm>

namespace vantrell
{

void TableFont::apply(const UserDefaults &defaults)
{
    QFont font = QApplication::font();
    const QString family = defaults.string(familyKey);
    if (!family.isEmpty())
        font.setFamily(family);
    if (const qint64 size = defaults.integer(sizeKey); size > 0)
        font.setPointSize(int(std::clamp<qint64>(size, smallest, largest)));
    // Headers and the editors of cells have the font of their table.
    for (const char *const table : {"QTableView", "QTreeWidget"}) {
        if (QApplication::font(table) != font)
            QApplication::setFont(font, table);
    }
}

} // namespace vantrell
