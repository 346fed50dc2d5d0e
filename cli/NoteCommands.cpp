#include "cli/NoteCommands.h"

#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/NoteJson.h"
#include "cli/ProjectSession.h"
#include "cli/TextTable.h"
#include "interchange/NoteImporter.h"
#include "interchange/notes/NoteReader.h"
#include "markers/MarkerColors.h"
#include "support/files/ProgramArguments.h"

#include <QFileInfo>

namespace vantrell::cli
{

namespace
{

QByteArray notesAsTable(const NoteList &list)
{
    QStringList titles = {QStringLiteral("line"), QStringLiteral("time"),    QStringLiteral("duration"),
                          QStringLiteral("name"), QStringLiteral("comment"), QStringLiteral("color"),
                          QStringLiteral("user"), QStringLiteral("track")};
    std::vector<std::uint32_t> fields;
    for (std::size_t i = 0; i < list.columns.size(); ++i) {
        if (list.columns[i].kind == NoteRole::Field) {
            fields.push_back(std::uint32_t(i));
            titles.append(list.columns[i].title);
        }
    }
    TextTable table(titles);
    for (const NoteRow &row : list.rows) {
        QStringList cells = {QString::number(row.line), row.time.toString(),    row.duration.toString(),
                             row.name.toString(),       row.comment.toString(), row.color.toString(),
                             row.user.toString(),       row.track.toString()};
        auto next = row.fields.begin();
        for (const std::uint32_t column : fields) {
            const bool isThere = next != row.fields.end() && next->first == column;
            cells.append(isThere ? next->second.toString() : QString());
            if (isThere)
                ++next;
        }
        table.addRow(cells);
    }
    return table.toBytes();
}

QByteArray plannedNotesAsTable(const std::vector<PlannedNote> &notes)
{
    TextTable table({QStringLiteral("line"), QStringLiteral("state"), QStringLiteral("in"),
                     QStringLiteral("duration"), QStringLiteral("color"), QStringLiteral("name"),
                     QStringLiteral("comment"), QStringLiteral("reason")});
    for (const PlannedNote &note : notes) {
        const bool hasPlace = note.isRow && note.state != PlannedNote::State::Unreadable;
        table.addRow({QString::number(note.line), nameOf(note.state),
                      hasPlace ? QString::number(note.in) : QString(),
                      hasPlace ? QString::number(note.duration) : QString(),
                      hasPlace ? MarkerColors::table()[std::size_t(note.color)].label : QString(), note.name,
                      note.comment, note.reason});
    }
    return table.toBytes();
}

/// Reads a list; nullopt after a message.
std::optional<NoteList> readList(const QString &path, const NoteColumnChoices &choices)
{
    Result<NoteList> list = NoteReader::readFile(path, choices);
    if (!list) {
        complain(list.message());
        return std::nullopt;
    }
    return std::move(list.value());
}

/// The value of --time; nullopt for a wrong one.
std::optional<NoteSettings> readMeaning(const std::optional<std::string> &value)
{
    NoteSettings settings;
    if (!value)
        return settings;
    const QString text = fromArgument(*value);
    if (text == QStringLiteral("record")) {
        settings.meaning = NoteMeaning::Record;
    } else if (text == QStringLiteral("elapsed")) {
        settings.meaning = NoteMeaning::Elapsed;
    } else if (text.startsWith(QStringLiteral("offset=")) || text.startsWith(QStringLiteral("first="))) {
        settings.meaning = text.startsWith(QLatin1Char('o')) ? NoteMeaning::Offset : NoteMeaning::First;
        settings.timecode = text.sliced(text.indexOf(QLatin1Char('=')) + 1);
    } else {
        return std::nullopt;
    }
    return settings;
}

/// The values of --map; nullopt for a wrong one.
std::optional<NoteColumnChoices> readChoices(const std::vector<std::string> &values)
{
    NoteColumnChoices choices;
    for (const std::string &value : values) {
        const QString text = fromArgument(value);
        // A title may hold a sign of equality, a role only behind "field:".
        const qsizetype field = text.indexOf(QStringLiteral("=field:"));
        const qsizetype split = field >= 0 ? field : text.lastIndexOf(QLatin1Char('='));
        if (split < 1)
            return std::nullopt;
        const std::optional<NoteRole> role = NoteRole::fromText(text.sliced(split + 1));
        if (!role)
            return std::nullopt;
        choices.push_back({text.first(split), *role});
    }
    return choices;
}

std::optional<NoteRate> readRate(const std::string &value)
{
    static const QStringList names = {
        QStringLiteral("23.976"),  QStringLiteral("24"), QStringLiteral("25"), QStringLiteral("29.97"),
        QStringLiteral("29.97df"), QStringLiteral("30"), QStringLiteral("50"), QStringLiteral("59.94"),
        QStringLiteral("59.94df"), QStringLiteral("60")};
    const QString text = fromArgument(value);
    return names.contains(text) ? NoteRate::fromText(text) : std::nullopt;
}

/// The lists and the sequence that they go to.
struct Sources {
    std::vector<NoteList> lists;
    QStringList names; ///< of their files
    std::int64_t sequence = 0;
};

/// nullopt after a message.
std::optional<Sources> readSources(const NoteImportOptions &options, const NoteColumnChoices &choices,
                                   const NoteImporter &importer)
{
    Sources sources;
    std::optional<std::int64_t> sequence;
    if (options.sequence) {
        sequence = importer.sequenceNamed(fromArgument(*options.sequence));
        if (!sequence) {
            complain(QStringLiteral("There is no sequence \"%1\".").arg(fromArgument(*options.sequence)));
            return std::nullopt;
        }
    }
    for (const QString &path : fromArguments(options.lists)) {
        std::optional<NoteList> list = readList(path, choices);
        if (!list)
            return std::nullopt;
        if (!sequence && importer.isSequenceNamedBy(path, *list))
            sequence = importer.guessedSequence(path, *list);
        sources.lists.push_back(std::move(*list));
        sources.names.append(QFileInfo(path).fileName());
    }
    if (!sequence)
        sequence = importer.guessedSequence(QString(), NoteList());
    if (!sequence) {
        complain(QStringLiteral("The project has no sequence to add markers to."));
        return std::nullopt;
    }
    sources.sequence = *sequence;
    return sources;
}

/// Says why rows were left out. Those that are there already are counted: an import may be repeated.
void tellLeftOut(const std::vector<PlannedNote> &notes, const QStringList &files)
{
    std::size_t there = 0;
    for (std::size_t i = 0; i < notes.size(); ++i) {
        const PlannedNote &note = notes[i];
        const bool isOutside = note.state == PlannedNote::State::Outside;
        if (isOutside || note.state == PlannedNote::State::Unreadable)
            complain(QStringLiteral("%1, line %2: %3")
                         .arg(files.at(qsizetype(i)))
                         .arg(note.line)
                         .arg(isOutside ? QStringLiteral("It lies outside the sequence.") : note.reason));
        there += std::size_t(note.state == PlannedNote::State::There);
    }
    if (there > 0)
        complain(QStringLiteral("%1 of %2 rows are there already").arg(there).arg(notes.size()));
}

} // namespace

int listNotes(const std::string &file, bool asJson)
{
    const std::optional<NoteList> list = readList(fromArgument(file), {});
    if (!list)
        return Failed;
    if (asJson)
        return print(notesAsJson(*list)) ? Done : Failed;
    for (const UnreadableNote &note : list->unreadable)
        complain(QStringLiteral("line %1: %2").arg(note.line).arg(note.reason));
    return print(notesAsTable(*list)) ? Done : Failed;
}

int importNotes(const NoteImportOptions &options)
{
    std::optional<NoteSettings> settings = readMeaning(options.time);
    if (!settings)
        return refuseUsage(QStringLiteral("--time is one of record, elapsed, offset=TC and first=TC."));
    const std::optional<NoteColumnChoices> choices = readChoices(options.map);
    if (!choices)
        return refuseUsage(
            QStringLiteral("--map is COLUMN=ROLE; the roles are time, duration, end, name, comment, "
                           "color, user, track, type, ignore and field:TITLE."));
    settings->choices = *choices;
    if (options.rate) {
        settings->rate = readRate(*options.rate);
        if (!settings->rate)
            return refuseUsage(
                QStringLiteral("--rate is one of 23.976, 24, 25, 29.97, 29.97df, 30, 50, 59.94, "
                               "59.94df and 60."));
    }
    if (!options.preview && options.output.empty())
        return refuseUsage(QStringLiteral("-o is required, except with --preview."));

    ProjectSession session(Workbench::Inventories::Markers);
    if (!session.open(fromArgument(options.file)))
        return Failed;
    const NoteImporter importer(session.document(), session.workbench().markerEditor());
    const std::optional<Sources> sources = readSources(options, *choices, importer);
    if (!sources)
        return Failed;
    const NoteSequence sequence = importer.sequenceAt(sources->sequence);
    NoteMatches matches = importer.matchesOf(sources->sequence);
    std::vector<PlannedNote> all;
    QStringList files;
    for (std::size_t i = 0; i < sources->lists.size(); ++i) {
        std::optional<std::vector<PlannedNote>> notes =
            planNotes(sources->lists[i], sequence, *settings, matches);
        if (!notes)
            return refuseUsage(QStringLiteral("--time: \"%1\" is no timecode.").arg(settings->timecode));
        files.resize(files.size() + qsizetype(notes->size()), sources->names.at(qsizetype(i)));
        all.insert(all.end(), std::make_move_iterator(notes->begin()), std::make_move_iterator(notes->end()));
    }
    const auto show = [&] {
        return print(options.json ? plannedNotesAsJson(sources->sequence, all) : plannedNotesAsTable(all));
    };
    if (options.preview)
        return show() ? Done : Failed;

    const std::size_t added = importer.add(all, sources->sequence);
    tellLeftOut(all, files);
    const bool isWritten = added > 0 && writeProject(session.document(), fromArgument(options.output));
    if (isWritten || added == 0)
        complain(QStringLiteral("%1 of %2 rows added").arg(added).arg(all.size()));
    const bool isShown = !options.json || options.output == "-" || show();
    return isWritten && isShown ? Done : Failed;
}

} // namespace vantrell::cli
