// Notes as JSON.

#include "interchange/notes/NoteShapes.h"
#include "markers/MarkerColors.h"
#include "markers/MarkerKeys.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace vantrell::NoteShapes
{

namespace
{

/// The lines in which the objects of the outer array begin.
std::vector<std::size_t> linesOfObjects(QStringView text)
{
    std::vector<std::size_t> lines;
    std::size_t line = 1;
    int depth = 0;
    bool isText = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == u'\n')
            ++line;
        if (isText) {
            if (c == u'\\')
                ++i;
            else if (c == u'"')
                isText = false;
        } else if (c == u'"') {
            isText = true;
        } else if (c == u'{' || c == u'[') {
            if (c == u'{' && depth == 1)
                lines.push_back(line);
            ++depth;
        } else if (c == u'}' || c == u']') {
            --depth;
        }
    }
    return lines;
}

/// The first of the keys that has a text or a number.
QString textOf(const QJsonObject &object, std::initializer_list<QStringView> keys)
{
    for (const QStringView key : keys) {
        const QJsonValue value = object.value(key);
        if (value.isString())
            return value.toString();
        if (value.isDouble())
            return QString::number(value.toDouble(), 'g', 15);
    }
    return QString();
}

QString colorOf(const QJsonObject &object)
{
    const QJsonValue value = object.value(u"color");
    const int index = value.toInt(-1);
    if (index >= 0 && index < int(MarkerColors::count))
        return MarkerColors::table()[std::size_t(index)].label;
    return value.toString();
}

/// The column with that role, which is made if there is none.
std::uint32_t columnOf(const NoteRole &role, NoteList &list)
{
    const auto column = std::find(list.columns.begin(), list.columns.end(), role);
    const auto index = std::uint32_t(column - list.columns.begin());
    if (column == list.columns.end())
        list.columns.push_back(role);
    return index;
}

/// Gives the row the custom fields of a marker record, each with a column of its own.
void setFields(NoteRow &row, const QJsonObject &object, NoteList &list)
{
    for (auto value = object.constBegin(); value != object.constEnd(); ++value) {
        if (!value.key().startsWith(MarkerKey::customPrefix) || value.value().toString().isEmpty())
            continue;
        const NoteRole role{NoteRole::Field, value.key().sliced(MarkerKey::customPrefix.size())};
        row.fields.emplace_back(columnOf(role, list), list.keep(value.value().toString()));
    }
    std::sort(row.fields.begin(), row.fields.end(),
              [](const auto &a, const auto &b) { return a.first < b.first; });
}

} // namespace

bool isJson(QStringView text)
{
    const QStringView begin = text.left(1000).trimmed();
    return begin.startsWith(u'[') && begin.sliced(1).trimmed().startsWith(u'{');
}

void readJson(QStringView text, NoteList &list)
{
    list.columns = {NoteRole{NoteRole::Time}, NoteRole{NoteRole::End},     NoteRole{NoteRole::Duration},
                    NoteRole{NoteRole::Name}, NoteRole{NoteRole::Comment}, NoteRole{NoteRole::Color},
                    NoteRole{NoteRole::User}, NoteRole{NoteRole::Track}};
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (!document.isArray()) {
        list.unreadable.push_back({1, QStringLiteral("The JSON is damaged: %1.").arg(error.errorString())});
        return;
    }
    const std::vector<std::size_t> lines = linesOfObjects(text);
    std::size_t next = 0;
    const auto set = [&list](NoteRow &row, NoteRole::Kind kind, const QString &value) {
        if (!value.isEmpty())
            row.setValue(kind, list.keep(value));
    };
    for (const auto &value : document.array()) {
        if (!value.isObject())
            continue;
        const QJsonObject object = value.toObject();
        const QJsonObject display = object.value(u"display").toObject();
        NoteRow row;
        row.line = next < lines.size() ? lines[next] : 1;
        ++next;
        if (display.isEmpty()) {
            set(row, NoteRole::Time, textOf(object, {u"time", u"timecode", u"in", u"start"}));
            set(row, NoteRole::End, textOf(object, {u"end", u"out"}));
            set(row, NoteRole::Duration, textOf(object, {u"duration", u"length"}));
        } else {
            set(row, NoteRole::Time, display.value(u"in").toString());
            set(row, NoteRole::Duration, display.value(u"out").toString());
        }
        set(row, NoteRole::Name, textOf(object, {u"name", u"title"}));
        set(row, NoteRole::Comment, textOf(object, {u"comment", u"text", u"note", u"description"}));
        set(row, NoteRole::Color, colorOf(object));
        set(row, NoteRole::User, textOf(object, {u"user", u"author"}));
        set(row, NoteRole::Track, textOf(object, {u"track"}));
        if (!display.isEmpty() && object.value(u"chapter").toInt() == 1) {
            columnOf({NoteRole::Type}, list);
            row.type = u"chapter";
        }
        setFields(row, object, list);
        list.add(std::move(row));
    }
}

} // namespace vantrell::NoteShapes
