#include "rows/json/RecordJson.h"

#include "rows/RecordText.h"

#include <nlohmann/json.hpp>

namespace vantrell
{

namespace
{

struct ToJson {
    const PathOfElement &pathOf;

    Json operator()(std::int64_t integer) const { return integer; }
    Json operator()(double number) const { return number; }
    Json operator()(bool flag) const { return flag; }
    Json operator()(const QString &text) const { return jsonText(text); }
    Json operator()(const QDateTime &date) const { return jsonText(isoText(date)); }
    Json operator()(XmlNode node) const
    {
        const QString path = pathOf(node);
        return path.isNull() ? Json() : Json(jsonText(path));
    }
};

} // namespace

Json recordToJson(const RowRecord &record, const PathOfElement &pathOf)
{
    Json json = Json::object();
    const ToJson convert{pathOf};
    for (std::size_t i = 0; i < record.size(); ++i)
        json.push_back({jsonText(record.keyAt(i).text()), std::visit(convert, record.valueAt(i))});
    return json;
}

Json recordToJson(const RowRecord &record, XmlLocationPaths &paths)
{
    return recordToJson(record, [&paths](XmlNode node) { return paths.pathOf(node); });
}

Json recordsToJson(const RowList &records, XmlLocationPaths &paths)
{
    Json list = Json::array();
    for (const RowRecordPtr &record : records)
        list.push_back(recordToJson(*record, paths));
    return list;
}

} // namespace vantrell
