#include "cli/NoteJson.h"

#include "rows/json/JsonText.h"

#include <nlohmann/json.hpp>

namespace vantrell::cli
{

namespace
{

void append(QByteArray &bytes, const Json &json)
{
    bytes += toBytes(json).chopped(1);
}

void setIfThere(Json &json, const char *key, QStringView value)
{
    if (!value.isEmpty())
        json[key] = jsonText(value.toString());
}

Json rowJson(const NoteList &list, const NoteRow &row)
{
    Json json = Json::object();
    json["line"] = row.line;
    json["time"] = jsonText(row.time.toString());
    setIfThere(json, "name", row.name);
    setIfThere(json, "comment", row.comment);
    setIfThere(json, "duration", row.duration);
    setIfThere(json, "color", row.color);
    setIfThere(json, "user", row.user);
    setIfThere(json, "track", row.track);
    if (!row.fields.empty()) {
        Json &fields = json["fields"];
        for (const auto &[column, value] : row.fields)
            fields[jsonText(list.columns[column].title)] = jsonText(value.toString());
    }
    return json;
}

Json plannedJson(const PlannedNote &note)
{
    Json json = Json::object();
    json["line"] = note.line;
    if (note.isRow) {
        json["name"] = jsonText(note.name);
        json["comment"] = jsonText(note.comment);
    }
    if (note.isRow && note.state != PlannedNote::State::Unreadable) {
        json["in"] = note.in;
        json["duration"] = note.duration;
        json["color"] = note.color;
    }
    json["state"] = jsonText(nameOf(note.state));
    if (!note.reason.isNull())
        json["reason"] = jsonText(note.reason);
    return json;
}

} // namespace

QByteArray notesAsJson(const NoteList &list)
{
    Json head = Json::object();
    head["shape"] = jsonText(nameOf(list.shape));
    head["encoding"] = jsonText(list.encoding);
    setIfThere(head, "delimiter", list.delimiter);
    if (list.rate)
        head["rate"] = jsonText(list.rate->name());
    Json &columns = head["columns"] = Json::array();
    for (const NoteRole &role : list.columns)
        columns.push_back(jsonText(role.text()));
    QByteArray bytes;
    append(bytes, head);
    bytes.chop(1);
    bytes += ",\"rows\":[";
    // One row at a time: the document of a large list would take many times its memory.
    bool isFirst = true;
    for (const NoteRow &row : list.rows) {
        if (!isFirst)
            bytes += ',';
        isFirst = false;
        append(bytes, rowJson(list, row));
    }
    bytes += "],\"unreadable\":[";
    isFirst = true;
    for (const UnreadableNote &note : list.unreadable) {
        if (!isFirst)
            bytes += ',';
        isFirst = false;
        append(bytes, Json{{"line", note.line}, {"reason", jsonText(note.reason)}});
    }
    return bytes += "]}\n";
}

QByteArray plannedNotesAsJson(std::int64_t sequence, const std::vector<PlannedNote> &notes)
{
    QByteArray bytes = "{\"sequence\":" + QByteArray::number(qlonglong(sequence)) + ",\"rows\":[";
    bool isFirst = true;
    for (const PlannedNote &note : notes) {
        if (!isFirst)
            bytes += ',';
        isFirst = false;
        append(bytes, plannedJson(note));
    }
    return bytes += "]}\n";
}

} // namespace vantrell::cli
