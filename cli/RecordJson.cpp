#include "cli/RecordJson.h"

#include "markers/MarkerTableValues.h"
#include "rows/RecordText.h"

#include <nlohmann/json.hpp>

namespace vantrell::cli
{

namespace
{

struct ToJson {
    XmlLocationPaths &paths;

    Json operator()(std::int64_t integer) const { return integer; }
    Json operator()(double number) const { return number; }
    Json operator()(bool flag) const { return flag; }
    Json operator()(const QString &text) const { return jsonText(text); }
    Json operator()(const QDateTime &date) const { return jsonText(isoText(date)); }
    Json operator()(XmlNode node) const
    {
        const QString path = paths.pathOf(node);
        return path.isNull() ? Json() : Json(jsonText(path));
    }
};

} // namespace

Json recordToJson(const RowRecord &record, XmlLocationPaths &paths)
{
    Json json = Json::object();
    const ToJson convert{paths};
    for (std::size_t i = 0; i < record.size(); ++i)
        json.push_back({jsonText(record.keyAt(i).text()), std::visit(convert, record.valueAt(i))});
    return json;
}

Json recordsToJson(const RowList &records, XmlLocationPaths &paths)
{
    Json list = Json::array();
    for (const RowRecordPtr &record : records)
        list.push_back(recordToJson(*record, paths));
    return list;
}

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
