#include "cli/EditScript.h"

#include "cli/Console.h"
#include "markers/MarkerColumns.h"
#include "rows/json/JsonText.h"
#include "support/files/FileUtilities.h"

#include <nlohmann/json.hpp>

#include <QFile>

#include <limits>
#include <map>

namespace vantrell::cli
{

namespace
{

QString quoted(const std::string &name)
{
    return QLatin1Char('"') + QString::fromStdString(name) + QLatin1Char('"');
}

/// The members of one operation. Remembers the first one that is missing or of the wrong type.
class Members
{
public:
    explicit Members(const Json &object)
        : m_object(object)
    {
    }

    const QString &fault() const { return m_fault; }
    void setFault(const QString &fault)
    {
        if (m_fault.isNull())
            m_fault = fault;
    }

    /// Null when it is missing.
    QString optionalText(const std::string &name)
    {
        const Json *member = find(name);
        if (!member)
            return QString();
        if (!member->is_string()) {
            setFault(quoted(name) + QStringLiteral(" is no text."));
            return QString();
        }
        return QStringLiteral("") + QString::fromStdString(member->get_ref<const std::string &>());
    }

    QString text(const std::string &name)
    {
        demand(name);
        return optionalText(name);
    }

    std::optional<std::int64_t> optionalInteger(const std::string &name)
    {
        const Json *member = find(name);
        if (!member)
            return std::nullopt;
        if (!member->is_number_integer())
            setFault(quoted(name) + QStringLiteral(" is no whole number."));
        return integerOf(*member);
    }

    std::int64_t integer(const std::string &name)
    {
        demand(name);
        return optionalInteger(name).value_or(0);
    }

    RowIndexes rows()
    {
        demand("rows");
        RowIndexes rows;
        const Json *member = find("rows");
        const bool isList = member && member->is_array() &&
                            std::all_of(member->begin(), member->end(),
                                        [](const Json &row) { return row.is_number_integer(); });
        if (!isList) {
            setFault(QStringLiteral("\"rows\" is no list of whole numbers."));
            return rows;
        }
        for (const Json &row : *member)
            rows.insert(integerOf(row));
        return rows;
    }

private:
    const Json *find(const std::string &name) const
    {
        const auto member = m_object.find(name);
        return member == m_object.end() ? nullptr : &*member;
    }

    void demand(const std::string &name)
    {
        if (!find(name))
            setFault(quoted(name) + QStringLiteral(" is missing."));
    }

    /// Numbers beyond 63 bits stay out of range for every list.
    static std::int64_t integerOf(const Json &number)
    {
        constexpr auto largest = std::numeric_limits<std::int64_t>::max();
        if (number.is_number_unsigned() && number.get<std::uint64_t>() > std::uint64_t(largest))
            return largest;
        return number.is_number_integer() ? number.get<std::int64_t>() : 0;
    }

    const Json &m_object;
    QString m_fault;
};

NewMarker newMarkerOf(Members &members)
{
    return {members.text("name"), members.optionalText("comment"), members.optionalText("color"),
            members.optionalInteger("sequence")};
}

EditOperation setCell(Members &members)
{
    SetCell operation{members.rows(), members.text("column"), members.text("value")};
    if (!isMarkerColumn(operation.column))
        members.setFault(QStringLiteral("the marker table has no column \"%1\".").arg(operation.column));
    return operation;
}

EditOperation addFrames(Members &members)
{
    const NewMarker marker = newMarkerOf(members);
    return AddFrames{marker, members.integer("in"), members.integer("out")};
}

EditOperation addTimecode(Members &members)
{
    const NewMarker marker = newMarkerOf(members);
    return AddTimecode{marker, members.text("start"), members.optionalText("duration")};
}

EditOperation setEffect(Members &members)
{
    const QString key = members.optionalText("key");
    return SetEffect{members.integer("row"), key.isNull() ? QStringLiteral("enabled") : key,
                     members.text("value")};
}

EditOperation offset(Members &members)
{
    return OffsetMarkers{members.rows(), members.text("text")};
}

using Reader = EditOperation (*)(Members &);

const std::map<std::string, Reader> readers = {
    {"set", setCell},
    {"add", [](Members &) -> EditOperation { return AddMarker(); }},
    {"addFrames", addFrames},
    {"addTimecode", addTimecode},
    {"remove", [](Members &members) -> EditOperation { return RemoveMarkers{members.rows()}; }},
    {"offset", offset},
    {"setEffect", setEffect},
    {"removeEffects", [](Members &members) -> EditOperation { return RemoveEffects{members.rows()}; }},
    {"undo", [](Members &) -> EditOperation { return Undo(); }},
    {"redo", [](Members &) -> EditOperation { return Redo(); }},
};

Result<EditOperation> readOperation(const Json &object)
{
    if (!object.is_object())
        return Failure{QStringLiteral("it is no object.")};
    Members members(object);
    const QString name = members.text("op");
    const auto reader = readers.find(name.toStdString());
    if (members.fault().isNull() && reader == readers.end())
        return Failure{QStringLiteral("there is no operation \"%1\".").arg(name)};
    if (!members.fault().isNull())
        return Failure{members.fault()};
    const EditOperation operation = reader->second(members);
    if (!members.fault().isNull())
        return Failure{members.fault()};
    return operation;
}

Result<EditScript> scriptIn(const QByteArray &bytes)
{
    const Json json = parseJson(bytes);
    if (json.is_discarded())
        return Failure{QStringLiteral("The script is no JSON.")};
    if (!json.is_array())
        return Failure{QStringLiteral("The script is no list of operations.")};
    EditScript script;
    for (const Json &object : json) {
        const Result<EditOperation> operation = readOperation(object);
        if (!operation)
            return Failure{QStringLiteral("Operation %1 of the script: %2")
                               .arg(QString::number(script.size() + 1), operation.message())};
        script.push_back(operation.value());
    }
    return script;
}

/// Applies one operation; false when a row is out of range.
struct OperationApplier {
    MyDocument &document;
    MarkerEditor &markers;
    EffectEditor &effects;

    bool operator()(const SetCell &operation) const
    {
        return edit(Tab::Markers, operation.rows, [&](const RowList &records) {
            markers.setValue(records, operation.column, operation.value);
        });
    }

    bool operator()(const AddMarker &) const
    {
        markers.addMarker();
        return true;
    }

    bool operator()(const AddFrames &operation) const
    {
        markers.addMarkerWithName(operation.name, operation.in, operation.out, operation.comment,
                                  operation.color, operation.sequence);
        return true;
    }

    bool operator()(const AddTimecode &operation) const
    {
        markers.addMarkerWithName(operation.name, operation.start, operation.duration, operation.comment,
                                  operation.color, operation.sequence);
        return true;
    }

    bool operator()(const RemoveMarkers &operation) const
    {
        return edit(Tab::Markers, operation.rows, [&](const RowList &records) { markers.remove(records); });
    }

    bool operator()(const OffsetMarkers &operation) const
    {
        return edit(Tab::Markers, operation.rows, [&](const RowList &records) {
            markers.offset(records, operation.text, document.markerArray());
        });
    }

    bool operator()(const SetEffect &operation) const
    {
        return edit(Tab::Effects, {operation.row}, [&](const RowList &records) {
            effects.updateXMLEffect(records.front(), operation.key, operation.value);
        });
    }

    bool operator()(const RemoveEffects &operation) const
    {
        return edit(Tab::Effects, operation.rows, [&](const RowList &records) { effects.remove(records); });
    }

    bool operator()(const Undo &) const
    {
        document.undo();
        return true;
    }

    bool operator()(const Redo &) const
    {
        document.redo();
        return true;
    }

private:
    template <typename Change>
    bool edit(Tab tab, const RowIndexes &rows, Change change) const
    {
        const RowList &list = document.rowView(tab).list();
        const bool isInRange =
            rows.empty() || (*rows.begin() >= 0 && std::size_t(*rows.rbegin()) < list.size());
        if (!isInRange)
            return false;
        RowList records;
        for (const std::int64_t row : rows)
            records.push_back(list[std::size_t(row)]);
        change(records);
        return true;
    }
};

} // namespace

Result<EditScript> readEditScript(const QString &path)
{
    if (path != QLatin1String("-")) {
        const Result<QByteArray> bytes = FileUtilities::readFile(path);
        return bytes ? scriptIn(bytes.value()) : Result<EditScript>(bytes.failure());
    }
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return Failure{input.errorString()};
    return scriptIn(input.readAll());
}

bool applyScript(const EditScript &script, ProjectSession &session, const HeadlessAlertPresenter &presenter)
{
    std::size_t number = 0;
    const OperationApplier applier{session.document(), session.workbench().markerEditor(),
                                   session.workbench().effectEditor()};
    for (const EditOperation &operation : script) {
        ++number;
        if (!std::visit(applier, operation)) {
            complain(QStringLiteral("Operation %1 of the script: there is no such row.").arg(number));
            return false;
        }
        if (presenter.questionRefused())
            return false;
    }
    return true;
}

} // namespace vantrell::cli
