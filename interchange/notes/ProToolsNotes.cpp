// The text that Pro Tools exports of a session.

#include "interchange/notes/NoteHeaders.h"
#include "interchange/notes/NoteShapes.h"
#include "interchange/notes/NoteText.h"

#include "support/text/TextNumbers.h"

namespace vantrell::NoteShapes
{

namespace
{

const QString listing = QStringLiteral("M A R K E R S");

/// What follows the key at the start of the line; null for another line.
QStringView headerValue(QStringView line, QStringView key)
{
    line = line.trimmed();
    return line.startsWith(key, Qt::CaseInsensitive) ? line.sliced(key.size()).trimmed() : QStringView();
}

/// Where the columns stand.
struct Columns {
    qsizetype time = 1;
    qsizetype reference = 2;
    qsizetype units = 3;
};

class Session
{
public:
    explicit Session(NoteList &list)
        : m_list(list)
    {
    }

    void readHeader(QStringView line)
    {
        if (const QStringView name = headerValue(line, u"SESSION NAME:"); !name.isNull())
            m_list.title = name.toString();
        else if (const QStringView rate = headerValue(line, u"SAMPLE RATE:"); !rate.isNull())
            m_sampleRate = integerValue(rate);
        else if (const QStringView start = headerValue(line, u"SESSION START TIMECODE:"); !start.isNull())
            m_list.start = NoteTime::parse(start, NoteUnit::Frames);
        else if (const QStringView format = headerValue(line, u"TIMECODE FORMAT:"); !format.isNull())
            m_list.rate = NoteRate::fromText(format);
    }

    void readTitles(QStringView line)
    {
        const QList<QStringView> cells = line.split(u'\t');
        for (qsizetype i = 0; i < cells.size(); ++i) {
            const QString title = cells[i].trimmed().toString().toUpper();
            NoteRole::Kind kind = NoteRole::Ignore;
            if (title == QStringLiteral("LOCATION"))
                kind = NoteRole::Time;
            else if (title == QStringLiteral("NAME"))
                kind = NoteRole::Name;
            else if (title.startsWith(QStringLiteral("COMMENT")))
                kind = NoteRole::Comment;
            else if (title == QStringLiteral("TRACK NAME"))
                kind = NoteRole::Track;
            else if (title == QStringLiteral("TRACK TYPE"))
                kind = NoteRole::Type;
            m_list.columns.push_back(NoteRole{kind});
            m_list.headers.append(cells[i].trimmed().toString());
            if (kind == NoteRole::Time)
                m_columns.time = i;
            else if (title == QStringLiteral("TIME REFERENCE"))
                m_columns.reference = i;
            else if (title == QStringLiteral("UNITS"))
                m_columns.units = i;
        }
    }

    void readMarker(QStringView line, std::size_t number)
    {
        const QList<QStringView> cells = line.split(u'\t');
        NoteRow row;
        row.line = number;
        for (qsizetype i = 0; i < std::min(cells.size(), qsizetype(m_list.columns.size())); ++i) {
            const QStringView cell = cells[i].trimmed();
            if (!cell.isEmpty())
                row.setValue(m_list.columns[std::size_t(i)].kind, cell);
        }
        // More tabs than columns are part of the comment.
        if (cells.size() > qsizetype(m_list.columns.size()) && !m_list.columns.empty() &&
            m_list.columns.back() == NoteRole{NoteRole::Comment}) {
            const QStringView last = cells[qsizetype(m_list.columns.size()) - 1];
            row.comment = line.sliced(last.data() - line.data()).trimmed();
        }
        const QStringView time = row.time;
        const std::optional<NoteTime> parsed = NoteTime::parse(time, NoteUnit::Frames);
        const bool isPosition = parsed && (time.contains(u':') || time.contains(u';') || time.contains(u'+'));
        if (!isPosition && cells.size() > m_columns.units && m_sampleRate > 0 &&
            cells[m_columns.units].trimmed().compare(u"Samples", Qt::CaseInsensitive) == 0)
            row.time = m_list.keep(cells[m_columns.reference].trimmed().toString() + QLatin1Char('/') +
                                   QString::number(m_sampleRate) + QLatin1Char('s'));
        m_list.add(row);
    }

private:
    NoteList &m_list;
    qint64 m_sampleRate = 0;
    Columns m_columns;
};

} // namespace

bool isProTools(QStringView text)
{
    return text.contains(u"SESSION NAME:") && text.contains(listing);
}

void readProTools(QStringView text, NoteList &list)
{
    list.shape = NoteShape::ProTools;
    list.delimiter = QStringLiteral("tab");
    Session session(list);
    enum class Part { Header, Titles, Markers, Behind } part = Part::Header;
    NoteLines lines(text);
    QStringView line;
    while (part != Part::Behind && lines.next(line)) {
        switch (part) {
        case Part::Header:
            if (line.trimmed().startsWith(listing))
                part = Part::Titles;
            else
                session.readHeader(line);
            break;
        case Part::Titles:
            if (line.trimmed().isEmpty())
                break;
            session.readTitles(line);
            part = Part::Markers;
            break;
        case Part::Markers:
            if (line.trimmed().isEmpty())
                part = list.rows.empty() && list.unreadable.empty() ? Part::Markers : Part::Behind;
            else
                session.readMarker(line, lines.number());
            break;
        case Part::Behind:
            break;
        }
    }
}

} // namespace vantrell::NoteShapes
