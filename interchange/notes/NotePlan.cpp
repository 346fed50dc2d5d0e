#include "interchange/notes/NotePlan.h"

#include "interchange/notes/NoteColors.h"
#include "markers/MarkerComment.h"
#include "markers/MarkerKeys.h"
#include "timecode/QVTimecode.h"
#include "xml/XmlText.h"

#include <algorithm>
#include <array>

namespace vantrell
{

namespace
{

using Position = NoteTime::Position;

QString matchKey(qint64 in, const QString &name, const QString &comment)
{
    QString key = QString::number(in);
    key.reserve(key.size() + name.size() + comment.size() + 2);
    key.append(QChar(u'\0')).append(QStringView(name).trimmed());
    return key.append(QChar(u'\0')).append(QStringView(comment).trimmed());
}

/// As a file keeps it.
QString allowedText(QStringView text)
{
    const bool isPlain = std::all_of(text.begin(), text.end(),
                                     [](QChar c) { return c.unicode() >= 0x20 && c.unicode() < 0xd800; });
    if (isPlain && !text.isEmpty())
        return text.toString();
    return text.isEmpty() ? QStringLiteral("")
                          : XmlText::fromUtf8(XmlText::toUtf8(text.toString()).toStdString());
}

/// The comment without the tags of flags and custom fields, of which a record's comment may keep some.
QString withoutTags(QString comment)
{
    constexpr int mostTags = 200; // each costs a copy
    for (int i = 0; i < mostTags && comment.contains(QLatin1Char('<')); ++i) {
        RowRecord record;
        MarkerComment::read(comment, record);
        const QString rest = record.get(MarkerKey::comment);
        if (rest.size() == comment.size())
            break;
        comment = rest;
    }
    return comment;
}

/// Whether the type is that of a chapter in the language of the system that wrote the list.
bool isChapterType(QStringView type)
{
    constexpr std::array<QStringView, 12> titles = {u"chapter",    u"kapitel",  u"chapitre", u"capítulo",
                                                    u"capitulo",   u"capitolo", u"rozdział", u"глава",
                                                    u"チャプター", u"章节",     u"章節",     u"챕터"};
    return !type.isEmpty() && std::any_of(titles.begin(), titles.end(), [type](QStringView title) {
        return type.compare(title, Qt::CaseInsensitive) == 0;
    });
}

/// The key of NoteColorUse. An exact value counts with the name that stands beside it.
QString colorKey(const NoteRow &row)
{
    QString key = row.color.trimmed().toString();
    if (NoteColors::isKnown(row.colorValue))
        key += QLatin1Char('\t') + row.colorValue.trimmed().toString();
    return key.toCaseFolded();
}

/// Converts the times of one list.
class Converter
{
public:
    Converter(const NoteSequence &sequence, const NoteRate &listRate)
        : m_sequence(sequence)
        , m_listRate(listRate)
    {
    }

    /// The sequence's first timecode on the scale of the time: in frames of the list. The label of a frame
    /// that the list's rate does not have is a fraction.
    Position recordOrigin(const NoteTime &time) const { return positionOfFrame(m_sequence.startFrame, time); }

    /// A frame of the sequence, counted from timecode zero, on that scale.
    Position positionOfFrame(qint64 frame, const NoteTime &time) const
    {
        const bool isBelow = frame < 0;
        const NoteRate::Label label = m_sequence.rate.labelOf(isBelow ? -frame : frame);
        Position position;
        if (time.kind == NoteTime::Kind::Seconds) {
            // Seconds of the timecode
            position = {(WideInteger(label.seconds) * m_sequence.rate.timebase + label.frames) *
                            m_listRate.numerator(),
                        WideInteger(m_sequence.rate.timebase) * m_listRate.denominator()};
        } else {
            const qint64 scale = m_sequence.rate.timebase;
            position = {WideInteger(m_listRate.framesAt(label.seconds, 0)) * scale +
                            WideInteger(label.frames) * m_listRate.timebase,
                        scale};
        }
        if (isBelow)
            position.numerator = -position.numerator;
        return position;
    }

    qint64 frames(const Position &position) const
    {
        return convertedFrames(position, m_listRate, m_sequence.rate);
    }

    bool isInside(qint64 in) const { return in >= 0 && (!m_sequence.duration || in < *m_sequence.duration); }

private:
    const NoteSequence &m_sequence;
    NoteRate m_listRate;
};

/// The frame of a timecode in the user shorthand; nothing for anything else.
std::optional<qint64> frameOfShorthand(const QString &text, const NoteRate &rate, const QString &start)
{
    const bool isNegative = text.startsWith(QLatin1Char('-'));
    const QString timecode =
        QVTimecode::timecodeFromUserString(isNegative ? text.sliced(1) : text, rate.dropFrame, start);
    const std::optional<NoteTime> time = NoteTime::parse(timecode, NoteUnit::Frames);
    if (text.isEmpty() || !time || time->kind != NoteTime::Kind::Timecode)
        return std::nullopt;
    const qint64 frame = rate.framesAt(time->seconds, time->frames);
    return isNegative ? -frame : frame;
}

QString startTimecode(const NoteSequence &sequence)
{
    const NoteRate::Label label = sequence.rate.labelOf(std::max<qint64>(sequence.startFrame, 0));
    return QVTimecode::formatHours(label.seconds / 3600, label.seconds / 60 % 60, label.seconds % 60,
                                   label.frames, sequence.rate.dropFrame);
}

class Planner
{
public:
    Planner(const NoteList &list, const NoteSequence &sequence, const NoteSettings &settings,
            NoteMatches &matches)
        : m_list(list)
        , m_sequence(sequence)
        , m_rate(settings.rate ? *settings.rate : list.rate.value_or(sequence.rate))
        , m_converter(sequence, m_rate)
        , m_colors(settings.colors)
        , m_matches(matches)
    {
        for (std::size_t i = 0; i < list.columns.size(); ++i) {
            for (const NoteColumnChoice &choice : settings.choices) {
                if (list.columns[i].kind == NoteRole::Field && choice.means(i, list.headers))
                    m_fieldColumns.push_back(std::uint32_t(i));
            }
        }
    }

    /// False for a timecode that is none.
    bool setMeaning(const NoteSettings &settings)
    {
        m_meaning = meaning(settings);
        if (m_meaning == NoteMeaning::Record || m_meaning == NoteMeaning::Elapsed)
            return true;
        const bool isFirst = m_meaning == NoteMeaning::First;
        const std::optional<qint64> frame =
            frameOfShorthand(settings.timecode, m_sequence.rate,
                             isFirst ? startTimecode(m_sequence) : QStringLiteral("00:00:00:00"));
        if (!frame)
            return false;
        m_frame = *frame;
        for (const NoteRow &row : m_list.rows) {
            const std::optional<NoteTime> time = timeOf(row);
            if (!m_first && time)
                m_first = time->framesFromZero(m_rate);
        }
        return true;
    }

    NoteMeaning meaning(const NoteSettings &settings) const
    {
        return settings.meaning == NoteMeaning::Guessed ? guessedMeaning() : settings.meaning;
    }

    std::vector<PlannedNote> plan()
    {
        std::vector<PlannedNote> notes;
        notes.reserve(m_list.rows.size() + m_list.unreadable.size());
        auto unreadable = m_list.unreadable.begin();
        const auto tellUnreadable = [&](std::size_t before) {
            for (; unreadable != m_list.unreadable.end() && unreadable->line < before; ++unreadable) {
                PlannedNote note;
                note.line = unreadable->line;
                note.reason = unreadable->reason;
                notes.push_back(std::move(note));
            }
        };
        for (const NoteRow &row : m_list.rows) {
            tellUnreadable(row.line);
            notes.push_back(planned(row));
        }
        tellUnreadable(std::size_t(-1));
        return notes;
    }

private:
    /// Nothing for a time that the rate does not have.
    std::optional<NoteTime> timeOf(const NoteRow &row) const
    {
        const std::optional<NoteTime> time = NoteTime::parse(row.time, m_list.timeUnit);
        if (!time || !time->fits(m_rate))
            return std::nullopt;
        return countsFromStart(*time) ? behindStart(*time) : *time;
    }

    bool countsFromStart(const NoteTime &time) const
    {
        return time.kind == NoteTime::Kind::Seconds && m_list.start &&
               m_list.start->kind == NoteTime::Kind::Timecode && m_list.start->fits(m_rate);
    }

    /// The frame at a time that counts from the list's start.
    NoteTime behindStart(const NoteTime &time) const
    {
        const Position elapsed = time.framesFromZero(m_rate);
        const WideInteger whole = elapsed.numerator / elapsed.denominator;
        NoteTime frame;
        frame.kind = NoteTime::Kind::Frames;
        frame.frames = qint64(whole) + m_rate.framesAt(m_list.start->seconds, m_list.start->frames);
        frame.numerator = qint64(elapsed.numerator - whole * elapsed.denominator);
        frame.denominator = qint64(elapsed.denominator);
        return frame;
    }

    NoteMeaning guessedMeaning() const
    {
        std::size_t asRecord = 0;
        std::size_t asElapsed = 0;
        std::size_t timecodes = 0;
        std::size_t rows = 0;
        for (const NoteRow &row : m_list.rows) {
            const std::optional<NoteTime> time = timeOf(row);
            if (!time)
                continue;
            ++rows;
            timecodes += time->kind == NoteTime::Kind::Timecode || m_list.start ? 1 : 0;
            asRecord += m_converter.isInside(inOf(*time, NoteMeaning::Record)) ? 1 : 0;
            asElapsed += m_converter.isInside(inOf(*time, NoteMeaning::Elapsed)) ? 1 : 0;
        }
        const bool areTimecodes = timecodes * 2 >= rows;
        if (asRecord == asElapsed)
            return areTimecodes ? NoteMeaning::Record : NoteMeaning::Elapsed;
        // Timecodes of sources lie inside by accident only.
        const bool isAccident = areTimecodes && asElapsed * 2 < rows;
        return asRecord > asElapsed || isAccident ? NoteMeaning::Record : NoteMeaning::Elapsed;
    }

    qint64 inOf(const NoteTime &time, NoteMeaning meaning) const
    {
        const Position position = time.framesFromZero(m_rate);
        switch (meaning) {
        case NoteMeaning::Record:
            return m_converter.frames(position.minus(m_converter.recordOrigin(time)));
        case NoteMeaning::Offset:
            return m_converter.frames(
                position.minus(m_converter.positionOfFrame(m_sequence.startFrame - m_frame, time)));
        case NoteMeaning::First:
            return m_converter.frames(position.minus(m_first.value_or(Position()))) + m_frame -
                   m_sequence.startFrame;
        case NoteMeaning::Elapsed:
        case NoteMeaning::Guessed:
            break;
        }
        return m_converter.frames(position);
    }

    std::optional<NoteRate::Label> labelOf(const NoteTime &time, qint64 in) const
    {
        const qint64 frame = in + m_sequence.startFrame;
        if (!m_sequence.rate.dropFrame || time.kind != NoteTime::Kind::Timecode ||
            m_meaning == NoteMeaning::Elapsed || frame < 0)
            return std::nullopt;
        if (m_meaning == NoteMeaning::Record && m_rate == m_sequence.rate)
            return NoteRate::Label{time.seconds, time.frames};
        return m_sequence.rate.labelOf(frame);
    }

    qint64 durationOf(const NoteRow &row, const NoteTime &time) const
    {
        const std::optional<NoteTime> duration = NoteTime::parse(row.duration, m_list.durationUnit);
        if (duration && duration->fits(m_rate))
            return std::max<qint64>(m_converter.frames(duration->framesFromZero(m_rate)), 0);
        const std::optional<NoteTime> end = NoteTime::parse(row.end, m_list.timeUnit);
        if (!end || !end->fits(m_rate))
            return 0;
        const Position length = end->framesFromZero(m_rate).minus(time.framesFromZero(m_rate));
        return std::max<qint64>(m_converter.frames(length), 0);
    }

    int colorOf(const NoteRow &row)
    {
        const std::pair colors(row.color, row.colorValue);
        const auto known = m_knownColors.constFind(colors);
        if (known != m_knownColors.cend())
            return *known;
        const int color = findColor(row);
        m_knownColors.insert(colors, color);
        return color;
    }

    int findColor(const NoteRow &row) const
    {
        const auto chosen = m_colors.isEmpty() ? m_colors.cend() : m_colors.constFind(colorKey(row));
        return chosen != m_colors.cend() ? *chosen : NoteColors::indexOf(row.color, row.colorValue);
    }

    PlannedNote planned(const NoteRow &row)
    {
        PlannedNote note;
        note.line = row.line;
        note.isRow = true;
        note.name = allowedText(row.name);
        note.comment = allowedText(row.comment);
        note.color = colorOf(row);
        note.user = row.user.toString();
        note.isChapter = isChapterType(row.type);
        const std::optional<NoteTime> time = timeOf(row);
        if (!time) {
            note.reason = QStringLiteral("%1 frames a second have no “%2”.").arg(m_rate.name(), row.time);
            return note;
        }
        note.in = inOf(*time, m_meaning);
        note.duration = durationOf(row, *time);
        note.label = labelOf(*time, note.in);
        for (const auto &[column, value] : row.fields) {
            if (std::find(m_fieldColumns.begin(), m_fieldColumns.end(), column) != m_fieldColumns.end())
                note.fields.emplace_back(m_list.columns[column].title, allowedText(value));
        }
        if (!m_converter.isInside(note.in)) {
            note.state = PlannedNote::State::Outside;
        } else {
            note.state = m_matches.add(note.in, note.name, note.comment) ? PlannedNote::State::Add
                                                                         : PlannedNote::State::There;
        }
        return note;
    }

    const NoteList &m_list;
    const NoteSequence &m_sequence;
    const NoteRate m_rate;
    const Converter m_converter;
    const QHash<QString, int> &m_colors;
    QHash<std::pair<QStringView, QStringView>, int> m_knownColors; ///< by name and value
    NoteMatches &m_matches;
    std::vector<std::uint32_t> m_fieldColumns;
    NoteMeaning m_meaning = NoteMeaning::Record;
    qint64 m_frame = 0;              ///< of the timecode of the settings
    std::optional<Position> m_first; ///< of the first row
};

} // namespace

bool NoteMatches::add(qint64 in, const QString &name, const QString &comment)
{
    const qsizetype before = m_keys.size();
    m_keys.insert(matchKey(in, name, withoutTags(comment)));
    return m_keys.size() > before;
}

QString nameOf(PlannedNote::State state)
{
    switch (state) {
    case PlannedNote::State::Add:
        return QStringLiteral("add");
    case PlannedNote::State::Outside:
        return QStringLiteral("outside");
    case PlannedNote::State::There:
        return QStringLiteral("there");
    case PlannedNote::State::Unreadable:
        break;
    }
    return QStringLiteral("unreadable");
}

std::vector<NoteColorUse> colorsOf(const NoteList &list)
{
    std::vector<NoteColorUse> colors;
    QHash<QString, std::size_t> indexes;
    QHash<std::pair<QStringView, QStringView>, std::size_t> known; // by name and value as they are written
    for (const NoteRow &row : list.rows) {
        const std::pair written(row.color, row.colorValue);
        auto index = known.find(written);
        if (index == known.end()) {
            const QString key = colorKey(row);
            if (!indexes.contains(key)) {
                indexes.insert(key, colors.size());
                const QString value =
                    NoteColors::isKnown(row.colorValue) ? row.colorValue.toString() : QString();
                colors.push_back({key, QStringLiteral("%1 %2").arg(row.color, value).trimmed(),
                                  NoteColors::indexOf(row.color, row.colorValue), 0});
            }
            index = known.insert(written, indexes.value(key));
        }
        ++colors[*index].count;
    }
    return colors;
}

NoteMeaning meaningOf(const NoteList &list, const NoteSequence &sequence, const NoteSettings &settings)
{
    NoteMatches none;
    return Planner(list, sequence, settings, none).meaning(settings);
}

std::optional<std::vector<PlannedNote>> planNotes(const NoteList &list, const NoteSequence &sequence,
                                                  const NoteSettings &settings, NoteMatches &matches)
{
    Planner planner(list, sequence, settings, matches);
    if (!planner.setMeaning(settings))
        return std::nullopt;
    return planner.plan();
}

} // namespace vantrell
