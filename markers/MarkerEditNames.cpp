#include "markers/MarkerEditNames.h"

#include "markers/MarkerKeys.h"

#include <array>

namespace vantrell::MarkerEditNames
{

namespace
{

using namespace Qt::StringLiterals;

QString counted(const QString &text, std::size_t count)
{
    return count == 1 ? text : text + u's';
}

} // namespace

QString ofColumn(const QString &column, std::size_t count)
{
    struct Name {
        RecordKey key;
        QString text;
    };
    static const std::array names{
        Name{MarkerKey::name, u"Rename Marker"_s},
        Name{MarkerKey::comment, u"Change Comment"_s},
        Name{MarkerKey::color, u"Change Color"_s},
        Name{MarkerKey::in, u"Change In Point"_s},
        Name{MarkerKey::out, u"Change Duration"_s},
        Name{MarkerKey::chapter, u"Change Chapter Flag"_s},
        Name{MarkerKey::compression, u"Change Compression Flag"_s},
        Name{MarkerKey::scoring, u"Change Scoring Flag"_s},
    };
    if (column == MarkerKey::sequence.text())
        return u"Move Marker to Sequence"_s;
    if (column == MarkerKey::clip.text())
        return u"Move Marker to Clip"_s;
    const RecordKey key(column);
    for (const Name &name : names) {
        if (name.key == key)
            return counted(name.text, count);
    }
    return counted(u"Change Marker Field"_s, count);
}

QString ofAdding()
{
    return u"Add Marker"_s;
}

QString ofDuplicating(std::size_t count)
{
    return counted(u"Duplicate Marker"_s, count);
}

QString ofMoving(std::size_t count)
{
    return counted(u"Move Marker"_s, count);
}

QString ofImport()
{
    return u"Import Markers"_s;
}

QString ofRemoving(std::size_t count)
{
    return counted(u"Remove Marker"_s, count);
}

QString ofOffset(std::size_t count)
{
    return counted(u"Offset Marker"_s, count);
}

} // namespace vantrell::MarkerEditNames
