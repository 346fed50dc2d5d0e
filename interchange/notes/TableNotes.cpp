// Lists with columns.

#include "interchange/notes/NoteColors.h"
#include "interchange/notes/NoteHeaders.h"
#include "interchange/notes/NoteShapes.h"
#include "interchange/notes/NoteText.h"
#include "support/text/TextNumbers.h"

#include <algorithm>

namespace vantrell
{

/// Where the records of a table begin, and what was found out about them without the user's choices.
struct NoteTableStart {
    QString text; ///< of the whole list
    QChar delimiter;
    NoteTable::Quotes quotes = NoteTable::Quotes::Rfc4180;
    NoteTable::Place place = {}; ///< of the first record
    NoteRoles roles = {};
    std::optional<NoteRate> rate = std::nullopt; ///< that the list states
};

namespace NoteShapes
{

namespace
{

using Cells = NoteTable::Cells;
using Kinds = std::vector<NoteRole::Kind>;

constexpr std::size_t sampleSize = 200;

bool isTimecode(QStringView text)
{
    const std::optional<NoteTime> time = NoteTime::parse(text, NoteUnit::Frames);
    return time && time->kind == NoteTime::Kind::Timecode;
}

bool hasColonTime(QStringView text)
{
    return (text.contains(u':') || text.contains(u';')) && NoteTime::parse(text, NoteUnit::Frames);
}

std::vector<Cells> sampleOf(NoteTable table)
{
    std::vector<Cells> sample;
    Cells cells;
    while (sample.size() < sampleSize && table.next(cells))
        sample.push_back(cells);
    return sample;
}

QString delimiterName(QChar delimiter)
{
    if (delimiter == u',')
        return QStringLiteral("comma");
    return delimiter == u';' ? QStringLiteral("semicolon") : QStringLiteral("tab");
}

bool isAvidLine(const Cells &cells)
{
    return cells.size() >= 5 && cells.size() <= 8 && isTimecode(cells[1]) && NoteColors::isKnown(cells[3]);
}

bool isAvidText(const std::vector<Cells> &sample)
{
    const auto count = std::count_if(sample.begin(), sample.end(), isAvidLine);
    return count > 0 && std::size_t(count) * 2 >= sample.size();
}

/// Where the header stands in the sample; nullopt without one.
std::optional<std::size_t> headerIndex(const std::vector<Cells> &sample)
{
    for (std::size_t i = 0; i < std::min<std::size_t>(sample.size(), 10); ++i) {
        const Cells &cells = sample[i];
        if (std::any_of(cells.begin(), cells.end(), hasColonTime))
            break;
        const auto known = std::count_if(cells.begin(), cells.end(), [](QStringView cell) {
            const std::optional<NoteHeader> header = NoteHeader::ofTitle(cell);
            return header && header->kind != NoteRole::Ignore;
        });
        if (known >= 2)
            return i;
    }
    if (sample.size() < 2)
        return std::nullopt;
    // A first record without times or numbers above times or numbers
    const Cells &first = sample.front();
    const auto isValue = [](QStringView cell) { return NoteTime::parse(cell, NoteUnit::Frames).has_value(); };
    if (std::any_of(first.begin(), first.end(), isValue))
        return std::nullopt;
    for (std::size_t column = 0; column < first.size(); ++column) {
        std::size_t values = 0;
        for (std::size_t i = 1; i < sample.size(); ++i)
            values += column < sample[i].size() && isValue(sample[i][column]) ? 1 : 0;
        if (values * 5 >= (sample.size() - 1) * 4 && !first[column].trimmed().isEmpty())
            return 0;
    }
    return std::nullopt;
}

Kinds kindsOf(const QStringList &headers)
{
    Kinds kinds;
    for (const QString &title : headers) {
        const std::optional<NoteHeader> header = NoteHeader::ofTitle(title);
        kinds.push_back(header ? header->kind : NoteRole::Ignore);
    }
    return kinds;
}

bool has(const Kinds &kinds, NoteRole::Kind kind)
{
    return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

/// Whether all records hold times in the columns.
bool holdTimes(const std::vector<Cells> &sample, std::initializer_list<std::size_t> columns)
{
    return !sample.empty() && std::all_of(sample.begin(), sample.end(), [&](const Cells &cells) {
        return std::all_of(columns.begin(), columns.end(), [&](std::size_t column) {
            return column < cells.size() && hasColonTime(cells[column]);
        });
    });
}

const Kinds premiereColumns = {NoteRole::Name, NoteRole::Comment,  NoteRole::Time,
                               NoteRole::End,  NoteRole::Duration, NoteRole::Type};
const Kinds auditionColumns = {NoteRole::Name,   NoteRole::Time, NoteRole::Duration,
                               NoteRole::Ignore, NoteRole::Type, NoteRole::Comment};
const Kinds fcpColumns = {NoteRole::Ignore, NoteRole::Type,     NoteRole::Name, NoteRole::Comment,
                          NoteRole::Time,   NoteRole::Duration, NoteRole::Color};
const Kinds avidColumns = {NoteRole::User,    NoteRole::Time,     NoteRole::Track, NoteRole::Color,
                           NoteRole::Comment, NoteRole::Duration, NoteRole::Name,  NoteRole::ColorValue};

/// Without empty titles at the end.
QStringList titlesOf(const Cells &cells)
{
    QStringList titles;
    for (const QStringView cell : cells)
        titles.append(cell.trimmed().toString());
    while (!titles.isEmpty() && titles.last().isEmpty())
        titles.removeLast();
    return titles;
}

bool isPremiere(const Kinds &kinds, const std::vector<Cells> &records)
{
    if (kinds.size() != premiereColumns.size())
        return false;
    if (kinds == premiereColumns)
        return true;
    // In a language that is not known
    const auto known = std::count_if(kinds.begin(), kinds.end(),
                                     [](NoteRole::Kind kind) { return kind != NoteRole::Ignore; });
    return known <= 3 && holdTimes(records, {2, 3, 4});
}

/// Whether the column holds "59.94 fps drop", "decimal" and the like.
bool isAudition(const Kinds &kinds, const std::vector<Cells> &records)
{
    if (kinds.size() != auditionColumns.size() || records.empty() || records.front().size() < 4)
        return false;
    const QString format = records.front()[3].toString().toLower();
    return format.contains(QStringLiteral("fps")) || format == QStringLiteral("decimal") ||
           format.contains(QStringLiteral("samples")) || format.contains(QStringLiteral("frames"));
}

/// The roles that a shape fixes; nullopt for a table whose columns tell their own.
std::optional<Kinds> fixedColumns(NoteList &list, const std::vector<Cells> &records)
{
    const Kinds kinds = kindsOf(list.headers);
    const Kinds fcpTitles = {NoteRole::Name, NoteRole::Type,     NoteRole::Name, NoteRole::Comment,
                             NoteRole::Time, NoteRole::Duration, NoteRole::Color};
    if (list.delimiter == QStringLiteral("tab") && kinds == fcpTitles) {
        list.shape = NoteShape::Fcp;
        return fcpColumns;
    }
    if (isAudition(kinds, records)) {
        list.shape = NoteShape::Audition;
        list.rate = NoteRate::fromText(records.front()[3]);
        return auditionColumns;
    }
    if (isPremiere(kinds, records)) {
        list.shape = NoteShape::Premiere;
        return premiereColumns;
    }
    if (has(kinds, NoteRole::Comment) && has(kinds, NoteRole::User) && has(kinds, NoteRole::Time))
        list.shape = NoteShape::ReviewCsv;
    return std::nullopt;
}

NoteRoles rolesOfKinds(const Kinds &kinds, const QStringList &headers)
{
    NoteRoles roles;
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        const bool isField = kinds == fcpColumns && i == 0;
        roles.columns.push_back(isField ? NoteRole{NoteRole::Field, headers.at(0)} : NoteRole{kinds[i]});
    }
    return roles;
}

/// How well the records suit the titles: columns titled as times and durations hold some, the same kind of
/// value in each.
int suitabilityOf(const QStringList &headers, const std::vector<Cells> &records)
{
    int score = 0;
    for (qsizetype i = 0; i < headers.size(); ++i) {
        const std::optional<NoteHeader> title = NoteHeader::ofTitle(headers.at(i));
        const bool isTime = title && (title->kind == NoteRole::Time || title->kind == NoteRole::End ||
                                      title->kind == NoteRole::Duration);
        for (const Cells &cells : records) {
            const QStringView cell =
                std::size_t(i) < cells.size() ? cells[std::size_t(i)].trimmed() : QStringView();
            if (cell.isEmpty())
                continue;
            const bool countsFrames = title && title->unit == NoteUnit::Frames;
            const bool suits = countsFrames ? NoteTime::parse(cell, NoteUnit::Frames) && !hasColonTime(cell)
                                            : hasColonTime(cell);
            if (isTime)
                score += suits ? 1 : -1;
            else
                score -= hasColonTime(cell) ? 1 : 0;
        }
    }
    return score;
}

/// Drops the title without a column, where all records have one cell less than there are titles: of those
/// that make the rest suit best the last one.
void dropTitleWithoutColumn(QStringList &headers, const std::vector<Cells> &records)
{
    const bool isShort =
        !records.empty() && std::all_of(records.begin(), records.end(), [&](const Cells &cells) {
            return qsizetype(cells.size()) + 1 == headers.size();
        });
    if (!isShort)
        return;
    QStringList best = headers;
    int bestScore = suitabilityOf(headers, records);
    for (qsizetype i = headers.size() - 1; i >= 0; --i) {
        QStringList fewer = headers;
        fewer.removeAt(i);
        const int score = suitabilityOf(fewer, records);
        if (score > bestScore) {
            best = fewer;
            bestScore = score;
        }
    }
    headers = best;
}

/// The rate that a column of rates begins with.
std::optional<NoteRate> rateIn(const QStringList &headers, const std::vector<Cells> &records)
{
    for (qsizetype i = 0; i < headers.size(); ++i) {
        const QString title = headers.at(i).toLower();
        const bool isRate = title == QStringLiteral("fps") || title == QStringLiteral("frame rate") ||
                            title == QStringLiteral("framerate");
        if (isRate && !records.empty() && std::size_t(i) < records.front().size())
            return NoteRate::fromText(records.front()[std::size_t(i)]);
    }
    return std::nullopt;
}

/// The column that tells replies to other notes; nullopt without one.
std::optional<std::size_t> replyColumn(const QStringList &headers)
{
    for (qsizetype i = 0; i < headers.size(); ++i) {
        const QString title = headers.at(i).toLower();
        if (title.startsWith(QStringLiteral("repl")) || title == QStringLiteral("is reply"))
            return std::size_t(i);
    }
    return std::nullopt;
}

bool isYes(QStringView cell)
{
    const QString text = cell.toString().toLower();
    return !text.isEmpty() && text != QStringLiteral("false") && text != QStringLiteral("no") &&
           text != QStringLiteral("0");
}

/// Whether the cell of a column of replies holds the reply itself rather than that it is one.
bool isReplyText(QStringView cell)
{
    const QString text = cell.toString().toLower();
    return isYes(cell) && text != QStringLiteral("true") && text != QStringLiteral("yes") &&
           text != QStringLiteral("x") && !std::all_of(text.begin(), text.end(), isDigit);
}

/// For so many columns.
QStringList examplesOf(const std::vector<Cells> &records, std::size_t columns)
{
    QStringList examples;
    examples.resize(qsizetype(columns));
    for (const Cells &cells : records) {
        for (std::size_t i = 0; i < std::min(cells.size(), columns); ++i) {
            QString &example = examples[qsizetype(i)];
            if (example.isEmpty())
                example = cells[i].trimmed().left(80).toString().simplified();
        }
    }
    return examples;
}

void readAvidRecords(NoteTable &table, NoteList &list, const NoteRoles &roles)
{
    Cells cells;
    while (table.next(cells)) {
        if (cells.size() < 5 || cells.size() > avidColumns.size())
            list.unreadable.push_back(
                {table.line(),
                 QStringLiteral("There are %1 fields instead of five to eight.").arg(cells.size())});
        else
            list.add(roles.rowOf(cells, table.line()));
    }
}

NoteRoles rolesOfAvidText(NoteTable table, NoteList &list)
{
    list.shape = NoteShape::AvidText;
    list.delimiter = QStringLiteral("tab");
    std::size_t most = 5;
    Cells cells;
    for (NoteTable counted = table; counted.next(cells);) {
        if (cells.size() <= avidColumns.size())
            most = std::max(most, cells.size());
    }
    list.examples = examplesOf(sampleOf(table), most);
    return rolesOfKinds(Kinds(avidColumns.begin(), avidColumns.begin() + std::ptrdiff_t(most)), {});
}

void readRecords(NoteTable &table, NoteList &list, const NoteRoles &roles)
{
    constexpr std::size_t none = std::size_t(-1);
    const std::size_t replies =
        list.shape == NoteShape::ReviewCsv ? replyColumn(list.headers).value_or(none) : none;
    Cells cells;
    QStringView lastTime;
    while (table.next(cells)) {
        NoteRow row = roles.rowOf(cells, table.line());
        const QStringView reply = replies < cells.size() ? cells[replies].trimmed() : QStringView();
        if (row.time.isEmpty() && isYes(reply))
            row.time = lastTime;
        if (row.comment.isEmpty() && row.name.isEmpty() && isReplyText(reply))
            row.comment = reply;
        lastTime = row.time;
        list.add(std::move(row));
    }
}

/// Reads the records of the list's table.
void readFromStart(NoteList &list, const NoteColumnChoices &choices)
{
    const NoteTableStart &start = *list.tableStart;
    NoteRoles roles = start.roles;
    roles.apply(choices, list.headers);
    list.columns = roles.columns;
    list.timeUnit = roles.timeUnit;
    list.durationUnit = roles.durationUnit;
    NoteTable table(start.text, start.delimiter, list, start.quotes);
    table.goTo(start.place);
    if (list.shape == NoteShape::AvidText)
        readAvidRecords(table, list, roles);
    else
        readRecords(table, list, roles);
}

/// The cells of a line of a Markdown table; false for any other line.
bool markdownCells(QStringView line, NoteList &list, Cells &cells)
{
    line = line.trimmed();
    if (line.size() < 2 || line.front() != u'|' || line.back() != u'|')
        return false;
    cells.clear();
    qsizetype start = 1;
    for (qsizetype i = 1; i < line.size(); ++i) {
        if (line[i] != u'|' || line[i - 1] == u'\\')
            continue;
        QStringView cell = line.sliced(start, i - start).trimmed();
        if (cell.contains(u'\\') || cell.contains(u"<br>") || cell.contains(u'&'))
            cell = list.keep(cell.toString()
                                 .replace(QStringLiteral("\\|"), QStringLiteral("|"))
                                 .replace(QStringLiteral("<br>"), QStringLiteral("\n"))
                                 .replace(QStringLiteral("&lt;"), QStringLiteral("<"))
                                 .replace(QStringLiteral("&amp;"), QStringLiteral("&")));
        cells.push_back(cell);
        start = i + 1;
    }
    return true;
}

/// A table of Markdown: header, rule, rows.
bool readMarkdown(QStringView text, NoteList &list, const NoteColumnChoices &choices)
{
    NoteLines lines(text);
    QStringView line;
    Cells titles;
    Cells rule;
    do {
        if (!lines.next(line))
            return false;
    } while (line.trimmed().isEmpty());
    if (!markdownCells(line, list, titles) || !lines.next(line) || !markdownCells(line, list, rule) ||
        !std::all_of(rule.begin(), rule.end(), [](QStringView cell) { return cell.contains(u"--"); }))
        return false;
    list.headers = titlesOf(titles);
    std::vector<Cells> sample;
    Cells cells;
    for (NoteLines counted = lines; sample.size() < sampleSize && counted.next(line);) {
        if (markdownCells(line, list, cells))
            sample.push_back(cells);
    }
    NoteRoles roles = NoteRoles::ofTable(list.headers, sample);
    roles.apply(choices, list.headers);
    list.columns = roles.columns;
    list.examples = examplesOf(sample, list.columns.size());
    list.timeUnit = roles.timeUnit;
    list.durationUnit = roles.durationUnit;
    while (lines.next(line)) {
        if (markdownCells(line, list, cells))
            list.add(roles.rowOf(cells, lines.number()));
    }
    return true;
}

} // namespace

void readTable(const QString &text, NoteList &list, const NoteColumnChoices &choices)
{
    if (readMarkdown(text, list, choices))
        return;
    const QChar delimiter = NoteTable::delimiterOf(text);
    if (delimiter == u'\t') {
        const NoteTable lines(text, delimiter, list, NoteTable::Quotes::None);
        if (isAvidText(sampleOf(lines))) {
            list.tableStart = std::make_shared<NoteTableStart>(
                NoteTableStart{text, delimiter, NoteTable::Quotes::None, {}, rolesOfAvidText(lines, list)});
            readFromStart(list, choices);
            return;
        }
    }
    NoteTable table(text, delimiter, list);
    std::vector<Cells> sample = sampleOf(table);
    list.delimiter = delimiterName(delimiter);
    const std::optional<std::size_t> header = headerIndex(sample);
    if (header) {
        Cells skipped;
        for (std::size_t i = 0; i <= *header; ++i)
            table.next(skipped);
        list.headers = titlesOf(sample[*header]);
        sample.erase(sample.begin(), sample.begin() + std::ptrdiff_t(*header) + 1);
        dropTitleWithoutColumn(list.headers, sample);
    }
    const std::optional<Kinds> fixed = header ? fixedColumns(list, sample) : std::nullopt;
    NoteRoles roles = fixed ? rolesOfKinds(*fixed, list.headers) : NoteRoles::ofTable(list.headers, sample);
    if (!list.rate)
        list.rate = rateIn(list.headers, sample);
    list.examples = examplesOf(sample, roles.columns.size());
    list.tableStart = std::make_shared<NoteTableStart>(NoteTableStart{
        text, delimiter, NoteTable::Quotes::Rfc4180, table.place(), std::move(roles), list.rate});
    readFromStart(list, choices);
}

NoteList readTableAgain(const NoteList &list, const NoteColumnChoices &choices)
{
    NoteList again;
    again.shape = list.shape;
    again.encoding = list.encoding;
    again.delimiter = list.delimiter;
    again.rate = list.tableStart->rate;
    again.headers = list.headers;
    again.examples = list.examples;
    again.tableStart = list.tableStart;
    again.rows.reserve(list.rows.size());
    readFromStart(again, choices);
    return again;
}

} // namespace NoteShapes
} // namespace vantrell
