#include "interchange/MarkerJson.h"

#include "markers/MarkerTableValues.h"
#include "rows/json/RecordJson.h"

#include <nlohmann/json.hpp>

namespace vantrell
{

MarkerJson::MarkerJson(const RowList &markers)
{
    XmlLocationPaths paths;
    m_markers.reserve(markers.size());
    for (const RowRecordPtr &marker : markers) {
        m_markers.push_back(*marker);
        for (std::size_t i = 0; i < marker->size(); ++i) {
            const auto *const element = std::get_if<XmlNode>(&marker->valueAt(i));
            if (element && !m_paths.contains(*element))
                m_paths.emplace(*element, paths.pathOf(*element));
        }
    }
}

QByteArray MarkerJson::text() const
{
    const PathOfElement pathOf = [this](XmlNode element) { return m_paths.at(element); };
    QByteArray text("[");
    for (const RowRecord &marker : m_markers) {
        Json json = recordToJson(marker, pathOf);
        json.push_back({"display", Json{{"in", jsonText(MarkerTableValues::inText(marker))},
                                        {"out", jsonText(MarkerTableValues::outText(marker))}}});
        if (text.size() > 1)
            text += ',';
        text += toBytes(json);
        text.chop(1); // the line end
    }
    return text + "]\n";
}

} // namespace vantrell
