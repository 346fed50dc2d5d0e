// Edit decision lists.

#include "interchange/notes/NoteColors.h"
#include "interchange/notes/NoteShapes.h"
#include "interchange/notes/NoteText.h"

#include "support/text/TextNumbers.h"

namespace vantrell::NoteShapes
{

namespace
{

/// What follows "* LOC:"; null for another line.
QStringView locatorOf(QStringView line)
{
    line = line.trimmed();
    if (!line.startsWith(u'*'))
        return {};
    line = line.sliced(1).trimmed();
    return line.startsWith(u"LOC:", Qt::CaseInsensitive) ? line.sliced(4).trimmed() : QStringView();
}

bool isResolveLine(QStringView line)
{
    return line.contains(u"|C:") && (line.contains(u"|M:") || line.contains(u"|D:"));
}

/// Takes the first word off the text.
QStringView takeWord(QStringView &text)
{
    qsizetype end = 0;
    while (end < text.size() && !text[end].isSpace())
        ++end;
    const QStringView word = text.first(end);
    text = text.sliced(end).trimmed();
    return word;
}

/// The record in point of an event, "001  AX  V  C  ..."; null for another line.
QStringView recordIn(QStringView line)
{
    if (line.size() > 1000)
        return {};
    line = line.trimmed();
    QStringView rest = line;
    const QStringView number = takeWord(rest);
    if (number.isEmpty() || !isDigit(number.front()))
        return {};
    std::vector<QStringView> times;
    while (!rest.isEmpty()) {
        const QStringView word = takeWord(rest);
        const std::optional<NoteTime> time = NoteTime::parse(word, NoteUnit::Frames);
        if (time && time->kind == NoteTime::Kind::Timecode)
            times.push_back(word);
    }
    return times.size() == 4 ? times[2] : QStringView();
}

/// The value of "|M:" and the like, up to the next bar before such a letter.
QStringView valueOf(QStringView line, QStringView key)
{
    const qsizetype found = line.indexOf(key);
    if (found < 0)
        return {};
    const qsizetype start = found + key.size();
    qsizetype end = start;
    while (end < line.size() && !(line[end] == u'|' && end + 2 < line.size() && line[end + 2] == u':'))
        ++end;
    const QStringView value = line.sliced(start, end - start).trimmed();
    return value.isEmpty() ? QStringView() : value;
}

NoteRow locatorRow(QStringView locator, std::size_t number)
{
    NoteRow row;
    row.line = number;
    row.time = takeWord(locator);
    QStringView text = locator;
    const QStringView word = takeWord(text);
    if (NoteColors::isKnown(word))
        row.color = word;
    else
        text = locator;
    row.name = text.isEmpty() ? QStringView() : text;
    return row;
}

/// One pass over the lines: what Resolve writes belongs to the event above it.
class Events
{
public:
    Events(NoteList &list, bool resolve)
        : m_list(list)
        , m_isResolve(resolve)
    {
    }

    void read(QStringView line, std::size_t number)
    {
        const QStringView trimmed = line.trimmed();
        if (trimmed.startsWith(u"TITLE:", Qt::CaseInsensitive)) {
            m_list.title = trimmed.sliced(6).trimmed().toString();
        } else if (trimmed.startsWith(u"FCM:", Qt::CaseInsensitive)) {
            const bool isDrop = trimmed.sliced(4).trimmed().startsWith(u"DROP", Qt::CaseInsensitive);
            if (isDrop && m_list.rows.empty())
                m_list.rate = NoteRate{30, true, true};
        } else if (const QStringView locator = locatorOf(line); !m_isResolve && !locator.isNull()) {
            m_list.add(locatorRow(locator, number));
        } else if (m_isResolve && isResolveLine(line)) {
            addMarker(line, number);
        } else if (const QStringView in = recordIn(line); !in.isNull()) {
            m_in = in;
            m_comment = {};
        } else if (m_isResolve && !trimmed.isEmpty() && !trimmed.startsWith(u'*')) {
            m_comment = trimmed;
        }
    }

private:
    void addMarker(QStringView line, std::size_t number)
    {
        NoteRow row;
        row.line = number;
        row.time = m_in;
        row.color = valueOf(line, u"|C:");
        row.name = valueOf(line, u"|M:");
        row.duration = valueOf(line, u"|D:");
        const QStringView before = line.first(line.indexOf(u"|C:")).trimmed();
        row.comment = before.isEmpty() ? m_comment : before;
        m_comment = {};
        m_list.add(row);
    }

    NoteList &m_list;
    bool m_isResolve;
    QStringView m_in;
    QStringView m_comment;
};

} // namespace

bool isEdl(QStringView text)
{
    NoteLines lines(text);
    QStringView line;
    while (lines.next(line)) {
        const bool isShort = line.size() < 100000;
        if (isShort && (!locatorOf(line).isNull() || isResolveLine(line)))
            return true;
        const QStringView trimmed = line.left(10).trimmed();
        const bool isEvent =
            !trimmed.isEmpty() && (isDigit(trimmed.front()) || trimmed.startsWith(u'*') ||
                                   trimmed.startsWith(u"TITLE:") || trimmed.startsWith(u"FCM:"));
        if (!isEvent && !trimmed.isEmpty() && lines.number() > 20)
            return false;
    }
    return false;
}

void readEdl(QStringView text, NoteList &list)
{
    std::size_t locators = 0;
    std::size_t markers = 0;
    QStringView line;
    for (NoteLines lines(text); lines.next(line);) {
        locators += locatorOf(line).isNull() ? 0 : 1;
        markers += isResolveLine(line) ? 1 : 0;
    }
    const bool isResolve = markers >= locators;
    list.shape = isResolve ? NoteShape::ResolveEdl : NoteShape::EdlLocators;
    list.columns = {NoteRole{NoteRole::Time}, NoteRole{NoteRole::Color}, NoteRole{NoteRole::Name}};
    if (isResolve) {
        list.columns.push_back(NoteRole{NoteRole::Duration});
        list.columns.push_back(NoteRole{NoteRole::Comment});
    }
    Events events(list, isResolve);
    for (NoteLines lines(text); lines.next(line);)
        events.read(line, lines.number());
}

} // namespace vantrell::NoteShapes
