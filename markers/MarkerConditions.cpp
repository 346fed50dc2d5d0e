#include "markers/MarkerConditions.h"

#include "markers/MarkerColumns.h"
#include "markers/MarkerKeys.h"

namespace vantrell
{

bool hasFlag(const RowRecord &marker, MarkerFlag flag)
{
    switch (flag) {
    case MarkerFlag::Chapter:
        return marker.get(MarkerKey::chapter) == 1;
    case MarkerFlag::Compression:
        return marker.get(MarkerKey::compression) == 1;
    case MarkerFlag::Scoring:
        break;
    }
    return marker.get(MarkerKey::scoring) == 1;
}

void appendMarkerTexts(const RowRecord &marker, QStringList &texts)
{
    const auto append = [&texts](const QString &text) {
        if (!text.isEmpty())
            texts.append(text);
    };
    append(marker.get(MarkerKey::name));
    append(marker.get(MarkerKey::comment).trimmed());
    append(marker.get(MarkerKey::sequenceName));
    append(marker.get(MarkerKey::clipName));
    for (std::size_t i = 0; i < marker.size(); ++i) {
        const RecordKey key = marker.keyAt(i);
        if (!key.isConstant() && isMarkerField(key.text()))
            append(marker.text(key));
    }
}

} // namespace vantrell
