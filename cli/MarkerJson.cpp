#include "cli/MarkerJson.h"

#include "cli/RecordJson.h"
#include "markers/MarkerTableValues.h"

#include <nlohmann/json.hpp>

namespace vantrell::cli
{

QByteArray markersAsJson(const RowList &markers)
{
    XmlLocationPaths paths;
    Json list = Json::array();
    for (const RowRecordPtr &marker : markers) {
        Json json = recordToJson(*marker, paths);
        json.push_back({"display", Json{{"in", jsonText(MarkerTableValues::inText(*marker))},
                                        {"out", jsonText(MarkerTableValues::outText(*marker))}}});
        list.push_back(std::move(json));
    }
    return toBytes(list);
}

} // namespace vantrell::cli
