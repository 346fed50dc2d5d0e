#include "interchange/notes/NoteRoles.h"

#include "interchange/notes/NoteColors.h"
#include "interchange/notes/NoteHeaders.h"
#include "support/text/TextNumbers.h"

#include <QSet>

#include <algorithm>

namespace vantrell
{

namespace
{

/// What the first records hold in one column.
struct Content {
    std::size_t filled = 0;
    std::size_t times = 0; ///< with a colon
    std::size_t wholeNumbers = 0;
    std::size_t decimals = 0;
    std::size_t colors = 0;
    std::size_t tracks = 0;
    std::size_t withBlanks = 0;
    QSet<QString> distinct;

    bool holdsTimes() const { return filled > 0 && times * 5 >= filled * 4; }
    bool holdsMostlyTimes() const { return times > 0 && times * 2 >= filled; }
    bool holdsNumbers() const { return filled > 0 && (wholeNumbers + decimals) * 5 >= filled * 4; }
    bool holds(std::size_t count) const { return filled > 0 && count * 5 >= filled * 4; }
    bool holdsUsers() const
    {
        return filled >= 4 && withBlanks * 2 < filled && std::size_t(distinct.size()) * 2 <= filled;
    }
};

bool isTrack(QStringView text)
{
    if (text.size() < 2 || text.size() > 4)
        return false;
    const QStringView digits = text.startsWith(u"TC") ? text.sliced(2) : text.sliced(1);
    if (text[0] != u'V' && text[0] != u'A' && text[0] != u'D' && text[0] != u'T')
        return false;
    return !digits.isEmpty() && std::all_of(digits.begin(), digits.end(), isDigit);
}

Content contentOf(std::size_t column, const std::vector<NoteTable::Cells> &sample)
{
    Content content;
    for (const NoteTable::Cells &cells : sample) {
        const QStringView cell = column < cells.size() ? cells[column].trimmed() : QStringView();
        if (cell.isEmpty())
            continue;
        ++content.filled;
        const std::optional<NoteTime> time = NoteTime::parse(cell, NoteUnit::Frames);
        const bool hasColon = cell.contains(u':') || cell.contains(u';');
        if (time && hasColon)
            ++content.times;
        else if (time && time->kind == NoteTime::Kind::Frames && !cell.contains(u'.') && !cell.contains(u','))
            ++content.wholeNumbers;
        else if (time)
            ++content.decimals;
        content.colors += NoteColors::isKnown(cell) ? 1 : 0;
        content.tracks += isTrack(cell) ? 1 : 0;
        content.withBlanks += cell.contains(u' ') ? 1 : 0;
        if (cell.size() < 100)
            content.distinct.insert(cell.toString());
    }
    return content;
}

/// Chooses roles, each but that of a field once.
class Chooser
{
public:
    Chooser(const QStringList &headers, const std::vector<NoteTable::Cells> &sample)
        : m_headers(headers)
        , m_sample(sample)
    {
        std::size_t count = std::size_t(headers.size());
        for (const NoteTable::Cells &cells : sample)
            count = std::max(count, cells.size());
        for (std::size_t i = 0; i < count; ++i)
            m_contents.push_back(contentOf(i, sample));
        m_roles.columns.resize(count);
        m_isChosen.resize(count);
        m_titles.resize(count);
        for (std::size_t i = 0; i < std::size_t(headers.size()); ++i)
            m_titles[i] = NoteHeader::ofTitle(headers.at(qsizetype(i)));
    }

    NoteRoles choose()
    {
        chooseByTitles();
        if (!has(NoteRole::Time))
            chooseTimesByContent();
        if (m_headers.isEmpty())
            chooseTextsByContent();
        nameTheRest();
        findUnits();
        return m_roles;
    }

private:
    bool has(NoteRole::Kind kind) const
    {
        return std::any_of(m_roles.columns.begin(), m_roles.columns.end(),
                           [kind](const NoteRole &role) { return role.kind == kind; });
    }

    void set(std::size_t column, NoteRole::Kind kind)
    {
        m_roles.columns[column].kind = kind;
        m_isChosen[column] = true;
    }

    bool canHold(std::size_t column, NoteRole::Kind kind) const
    {
        const Content &content = m_contents[column];
        if (kind != NoteRole::Time && kind != NoteRole::End && kind != NoteRole::Duration)
            return true;
        const bool holdsAny = content.times + content.wholeNumbers + content.decimals > 0;
        return m_sample.empty() || holdsAny || (kind != NoteRole::Time && content.filled == 0);
    }

    /// A column with values suits better than one without.
    bool suitsBetter(std::size_t column, std::size_t other) const
    {
        const bool isFilled = m_contents[column].filled > 0;
        if (isFilled != (m_contents[other].filled > 0))
            return isFilled;
        return m_titles[column]->rank < m_titles[other]->rank;
    }

    void chooseByTitles()
    {
        for (const NoteRole::Kind kind :
             {NoteRole::Time, NoteRole::End, NoteRole::Duration, NoteRole::Name, NoteRole::Comment,
              NoteRole::Color, NoteRole::User, NoteRole::Track, NoteRole::Type}) {
            std::optional<std::size_t> best;
            for (std::size_t i = 0; i < m_titles.size(); ++i) {
                if (m_titles[i] && m_titles[i]->kind == kind && canHold(i, kind) &&
                    (!best || suitsBetter(i, *best)))
                    best = i;
            }
            if (best)
                set(*best, kind);
        }
        for (std::size_t i = 0; i < m_titles.size(); ++i) {
            if (m_titles[i] && m_titles[i]->kind == NoteRole::Ignore)
                m_isChosen[i] = true;
        }
    }

    void findUnits()
    {
        m_roles.units.resize(m_contents.size());
        for (std::size_t i = 0; i < m_contents.size(); ++i) {
            if (m_titles[i] && m_titles[i]->unit)
                m_roles.units[i] = m_titles[i]->unit;
            else if (m_contents[i].decimals > 0)
                m_roles.units[i] = NoteUnit::Seconds;
        }
        m_roles.setUnits();
    }

    void chooseTimesByContent()
    {
        std::vector<std::size_t> columns;
        for (std::size_t i = 0; i < m_contents.size(); ++i) {
            if (!m_isChosen[i] && m_contents[i].holdsTimes())
                columns.push_back(i);
        }
        if (columns.empty()) {
            for (std::size_t i = 0; i < m_contents.size() && columns.empty(); ++i) {
                if (!m_isChosen[i] && m_contents[i].holdsNumbers() &&
                    m_contents[i].filled * 2 > m_sample.size())
                    columns.push_back(i);
            }
        }
        // Rather a column with a few other texts than none.
        for (std::size_t i = 0; i < m_contents.size() && columns.empty(); ++i) {
            if (!m_isChosen[i] && m_contents[i].holdsMostlyTimes())
                columns.push_back(i);
        }
        if (columns.empty())
            return;
        set(columns[0], NoteRole::Time);
        for (std::size_t i = 1; i < columns.size() && i < 3; ++i) {
            const NoteRole::Kind kind = !has(NoteRole::End) && isNeverLess(columns[i], columns[0])
                                            ? NoteRole::End
                                            : NoteRole::Duration;
            if (has(kind))
                continue;
            set(columns[i], kind);
        }
    }

    bool isNeverLess(std::size_t column, std::size_t than) const
    {
        for (const NoteTable::Cells &cells : m_sample) {
            if (column >= cells.size() || than >= cells.size())
                continue;
            const std::optional<NoteTime> a = NoteTime::parse(cells[column], NoteUnit::Frames);
            const std::optional<NoteTime> b = NoteTime::parse(cells[than], NoteUnit::Frames);
            if (a && b && (a->seconds < b->seconds || (a->seconds == b->seconds && a->frames < b->frames)))
                return false;
        }
        return true;
    }

    void chooseTextsByContent()
    {
        std::vector<std::size_t> texts;
        for (std::size_t i = 0; i < m_contents.size(); ++i) {
            const Content &content = m_contents[i];
            if (m_isChosen[i] || content.filled == 0)
                continue;
            if (content.holds(content.colors) && !has(NoteRole::Color))
                set(i, NoteRole::Color);
            else if (content.holds(content.tracks) && !has(NoteRole::Track))
                set(i, NoteRole::Track);
            else if (!content.holdsNumbers() && !content.holdsTimes())
                texts.push_back(i);
        }
        for (std::size_t i = 0; i < texts.size() && texts.size() > 1; ++i) {
            if (m_contents[texts[i]].holdsUsers()) {
                set(texts[i], NoteRole::User);
                texts.erase(texts.begin() + std::ptrdiff_t(i));
                break;
            }
        }
        if (!texts.empty())
            set(texts[0], NoteRole::Name);
        if (texts.size() > 1)
            set(texts[1], NoteRole::Comment);
    }

    void nameTheRest()
    {
        for (std::size_t i = 0; i < std::size_t(m_headers.size()); ++i) {
            const QString title = m_headers.at(qsizetype(i)).trimmed();
            if (!m_isChosen[i] && !title.isEmpty())
                m_roles.columns[i] = {NoteRole::Field, title};
        }
    }

    const QStringList &m_headers;
    const std::vector<NoteTable::Cells> &m_sample;
    std::vector<Content> m_contents;
    std::vector<std::optional<NoteHeader>> m_titles;
    std::vector<bool> m_isChosen;
    NoteRoles m_roles;
};

bool isShared(NoteRole::Kind kind)
{
    return kind == NoteRole::Field || kind == NoteRole::Ignore;
}

void chooseRoles(std::vector<NoteRole> &columns, const NoteColumnChoices &choices, const QStringList &headers)
{
    for (const NoteColumnChoice &choice : choices) {
        for (std::size_t i = 0; i < columns.size(); ++i) {
            if (!choice.means(i, headers))
                continue;
            for (std::size_t other = 0; other < columns.size() && !isShared(choice.role.kind); ++other) {
                if (columns[other].kind == choice.role.kind)
                    columns[other] = {};
            }
            columns[i] = choice.role;
            break;
        }
    }
}

} // namespace

bool NoteColumnChoice::means(std::size_t index, const QStringList &headers) const
{
    const QString wanted = column.trimmed();
    bool isTitle = false;
    for (const QString &header : headers)
        isTitle = isTitle || header.trimmed().compare(wanted, Qt::CaseInsensitive) == 0;
    if (isTitle)
        return qsizetype(index) < headers.size() &&
               headers.at(qsizetype(index)).trimmed().compare(wanted, Qt::CaseInsensitive) == 0;
    return wanted == QString::number(index + 1);
}

NoteRoles NoteRoles::ofTable(const QStringList &headers, const std::vector<NoteTable::Cells> &sample)
{
    return Chooser(headers, sample).choose();
}

void NoteRoles::apply(const NoteColumnChoices &choices, const QStringList &headers)
{
    chooseRoles(columns, choices, headers);
    setUnits();
}

void NoteRoles::setUnits()
{
    if (units.empty())
        return;
    timeUnit = NoteUnit::Frames;
    std::optional<NoteUnit> duration;
    for (std::size_t i = 0; i < columns.size() && i < units.size(); ++i) {
        if (columns[i].kind == NoteRole::Time)
            timeUnit = units[i].value_or(NoteUnit::Frames);
        else if (columns[i].kind == NoteRole::Duration)
            duration = units[i];
    }
    durationUnit = duration.value_or(timeUnit);
}

NoteRow NoteRoles::rowOf(const NoteTable::Cells &cells, std::size_t line) const
{
    NoteRow row;
    row.line = line;
    const std::size_t count = std::min(cells.size(), columns.size());
    for (std::size_t i = 0; i < count; ++i) {
        const NoteRole::Kind kind = columns[i].kind;
        const bool isText = kind == NoteRole::Name || kind == NoteRole::Comment || kind == NoteRole::Field;
        const QStringView cell = isText ? cells[i] : cells[i].trimmed();
        if (cell.isEmpty())
            continue;
        if (kind == NoteRole::Field)
            row.fields.emplace_back(std::uint32_t(i), cell);
        else
            row.setValue(kind, cell);
    }
    return row;
}

void applyChoices(NoteList &list, const NoteColumnChoices &choices)
{
    const std::vector<NoteRole> before = list.columns;
    chooseRoles(list.columns, choices, list.headers);
    if (list.columns == before)
        return;
    std::vector<NoteRow> rows;
    rows.swap(list.rows);
    for (const NoteRow &old : rows) {
        NoteRow row;
        row.line = old.line;
        for (std::size_t i = 0; i < before.size(); ++i) {
            QStringView value = old.value(before[i].kind);
            for (const auto &[column, text] : old.fields) {
                if (column == i)
                    value = text;
            }
            if (value.isEmpty())
                continue;
            if (list.columns[i].kind == NoteRole::Field)
                row.fields.emplace_back(std::uint32_t(i), value);
            else
                row.setValue(list.columns[i].kind, value);
        }
        list.add(std::move(row));
    }
    std::stable_sort(list.unreadable.begin(), list.unreadable.end(),
                     [](const UnreadableNote &a, const UnreadableNote &b) { return a.line < b.line; });
}

} // namespace vantrell
