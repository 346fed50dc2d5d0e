#include "interchange/notes/NoteWriter.h"

#include "markers/MarkerColors.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>

namespace vantrell::NoteWriter
{

namespace
{

/// The colours of another system for those of MarkerColors::table(), and which of them it lacks.
struct Palette {
    std::array<const char *, MarkerColors::count> names;
    std::array<bool, MarkerColors::count> isLacking;
};

constexpr Palette avidPalette = {{"red", "yellow", "yellow", "green", "cyan", "blue", "magenta", "magenta"},
                                 {false, true, false, false, false, false, true, false}};
constexpr Palette resolvePalette = {{"ResolveColorRed", "ResolveColorSand", "ResolveColorYellow",
                                     "ResolveColorGreen", "ResolveColorCyan", "ResolveColorBlue",
                                     "ResolveColorPurple", "ResolveColorPink"},
                                    {false, true, false, false, false, false, false, false}};

const QStringList &usualTitles()
{
    static const QStringList titles = {QStringLiteral("Color"),       QStringLiteral("Name"),
                                       QStringLiteral("Comment"),     QStringLiteral("In"),
                                       QStringLiteral("Duration"),    QStringLiteral("Sequence"),
                                       QStringLiteral("Clip"),        QStringLiteral("Chapter"),
                                       QStringLiteral("Compression"), QStringLiteral("Scoring")};
    return titles;
}

/// Writes one list and counts what is changed.
class Writer
{
public:
    Writer(const std::vector<WrittenNote> &notes, const QStringList &columns)
        : m_notes(notes)
        , m_titles(columns.isEmpty() ? columnTitles(notes) : columns)
    {
        // A custom field may have a usual title, too.
        for (qsizetype i = 0; i < m_titles.size(); ++i)
            m_usual.append(m_titles.indexOf(m_titles.at(i)) == i ? usualTitles().indexOf(m_titles.at(i))
                                                                 : -1);
    }

    void avid(bool withNames)
    {
        for (const WrittenNote &note : m_notes) {
            const QString color = colorIn(avidPalette, note, !withNames);
            QStringList fields = {withNames ? userOf(note) : oneLine(note.name),
                                  note.time,
                                  QStringLiteral("V1"),
                                  color,
                                  oneLine(note.comment),
                                  QString::number(std::max<qint64>(note.length, 1))};
            if (withNames)
                fields << oneLine(note.name) << colorValue(note);
            m_text += fields.join(QLatin1Char('\t')) + QLatin1Char('\n');
            m_leftOutFields += note.fields.empty() ? 0 : 1;
        }
        tellFields();
    }

    void edl(bool forResolve)
    {
        const std::vector<const WrittenNote *> notes = inOrderOfTime();
        tellMixed(notes);
        const WrittenNote *first = notes.empty() ? nullptr : notes.front();
        m_text =
            QStringLiteral("TITLE: ") +
            (first && !first->sequence.isEmpty() ? oneLine(first->sequence) : QStringLiteral("Markers")) +
            QStringLiteral("\nFCM: ") +
            (first && first->rate.dropFrame ? QStringLiteral("DROP FRAME")
                                            : QStringLiteral("NON-DROP FRAME")) +
            QLatin1Char('\n');
        std::size_t number = 0;
        for (const WrittenNote *note : notes) {
            ++number;
            if (forResolve)
                resolveEvent(*note, number);
            else
                locator(*note);
            m_leftOutFields += note->fields.empty() ? 0 : 1;
        }
        tellFields();
        tellPlaces();
        if (m_withBars > 0)
            m_changes.append(
                QStringLiteral("A bar was replaced by a slash in %1.").arg(counted(m_withBars, "text")));
    }

    void table(QChar delimiter)
    {
        const QString lineEnd = delimiter == u',' ? QStringLiteral("\r\n") : QStringLiteral("\n");
        tableLine(m_titles, delimiter, lineEnd);
        for (const WrittenNote &note : m_notes)
            tableLine(tableCells(note), delimiter, lineEnd);
    }

    void markdown()
    {
        markdownLine(m_titles);
        m_text += QLatin1Char('|') + QStringLiteral(" --- |").repeated(m_titles.size()) + QLatin1Char('\n');
        for (const WrittenNote &note : m_notes)
            markdownLine(tableCells(note));
    }

    void chapters()
    {
        std::size_t number = 0;
        bool isCut = false;
        std::size_t withLength = 0;
        for (const WrittenNote *note : inOrderOfTime()) {
            ++number;
            const qint64 in = std::max<qint64>(note->in, 0);
            const qint64 seconds = in * note->rate.denominator() / note->rate.numerator();
            isCut = isCut || in * note->rate.denominator() % note->rate.numerator() != 0;
            const QString minutes = twoDigits(seconds / 60 % 60) + QLatin1Char(':') + twoDigits(seconds % 60);
            m_text +=
                (seconds >= 3600 ? QString::number(seconds / 3600) + QLatin1Char(':') + minutes : minutes) +
                QLatin1Char(' ') + titleOf(*note, number) + QLatin1Char('\n');
            withLength += note->length > 0 ? 1 : 0;
        }
        tellComments();
        if (isCut)
            m_changes.append(QStringLiteral("Times are cut to whole seconds."));
        if (withLength > 0)
            m_changes.append(
                QStringLiteral("The duration of %1 is left out.").arg(counted(withLength, "marker")));
        tellColorsLeftOut();
        tellPlaces();
    }

    void webVtt()
    {
        m_text = QStringLiteral("WEBVTT\n");
        for (const WrittenNote *note : inOrderOfTime()) {
            const qint64 in = std::max<qint64>(note->in, 0);
            m_text += QLatin1Char('\n') + clock(in, note->rate) + QStringLiteral(" --> ") +
                      clock(in + std::max<qint64>(note->length, 1), note->rate) + QLatin1Char('\n');
            if (!note->name.trimmed().isEmpty())
                m_text += escaped(oneLine(note->name)) + QLatin1Char('\n');
            for (const QString &line : lines(note->comment)) {
                if (!line.trimmed().isEmpty())
                    m_text += escaped(line) + QLatin1Char('\n');
            }
        }
        tellColorsLeftOut();
        tellPlaces();
    }

    Written written()
    {
        if (m_replacedColors > 0)
            m_changes.prepend(QStringLiteral("The colour of %1 is replaced by the nearest.")
                                  .arg(counted(m_replacedColors, "marker")));
        if (m_joinedLines > 0)
            m_changes.append(
                QStringLiteral("Tabs and line breaks are blanks in %1.").arg(counted(m_joinedLines, "text")));
        return {m_text, m_changes};
    }

private:
    static QString counted(std::size_t count, const char *noun)
    {
        return QString::number(count) + QLatin1Char(' ') + QLatin1String(noun) +
               (count == 1 ? QString() : QStringLiteral("s"));
    }

    static QString twoDigits(qint64 value)
    {
        return QString::number(value).rightJustified(2, QLatin1Char('0'));
    }

    static QStringList lines(QString text)
    {
        text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
        text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
        return text.split(QLatin1Char('\n'));
    }

    QString oneLine(const QString &text)
    {
        QString line;
        bool isChanged = false;
        for (const QChar c : text) {
            const bool breaks = c == u'\t' || c == u'\n' || c == u'\r';
            isChanged = isChanged || breaks;
            line += breaks ? QChar(u' ') : c;
        }
        m_joinedLines += isChanged ? 1 : 0;
        return line;
    }

    static QString escaped(QString text)
    {
        return text.replace(QStringLiteral("&"), QStringLiteral("&amp;"))
            .replace(QStringLiteral("<"), QStringLiteral("&lt;"))
            .replace(QStringLiteral(">"), QStringLiteral("&gt;"));
    }

    static std::size_t colorIndex(const WrittenNote &note)
    {
        return note.color > 0 && note.color < int(MarkerColors::count) ? std::size_t(note.color) : 0;
    }

    QString colorIn(const Palette &palette, const WrittenNote &note, bool isOnly = true)
    {
        const std::size_t index = colorIndex(note);
        m_replacedColors += isOnly && palette.isLacking[index] ? 1 : 0;
        return QString::fromLatin1(palette.names[index]);
    }

    static QString colorValue(const WrittenNote &note)
    {
        const MarkerColor &color = MarkerColors::table()[colorIndex(note)];
        return QStringLiteral("#%1")
            .arg((color.red << 16) + (color.green << 8) + color.blue, 6, 16, QLatin1Char('0'))
            .toUpper();
    }

    QString userOf(const WrittenNote &note)
    {
        for (const auto &[title, value] : note.fields) {
            if (title.compare(QStringLiteral("USER"), Qt::CaseInsensitive) == 0)
                return oneLine(value);
        }
        return QStringLiteral("Vantrell");
    }

    std::vector<const WrittenNote *> inOrderOfTime() const
    {
        std::vector<const WrittenNote *> notes;
        for (const WrittenNote &note : m_notes)
            notes.push_back(&note);
        std::stable_sort(notes.begin(), notes.end(),
                         [](const WrittenNote *a, const WrittenNote *b) { return a->in < b->in; });
        return notes;
    }

    void resolveEvent(const WrittenNote &note, std::size_t number)
    {
        m_text +=
            QStringLiteral("\n%1  001      V     C        %2 %3 %2 %3  \n")
                .arg(QString::number(number).rightJustified(3, QLatin1Char('0')), note.time, note.endTime);
        m_text += withoutBars(note.comment) + QStringLiteral(" |C:") + colorIn(resolvePalette, note) +
                  QStringLiteral(" |M:") + withoutBars(note.name) + QStringLiteral(" |D:") +
                  QString::number(std::max<qint64>(note.length, 1)) + QLatin1Char('\n');
    }

    QString withoutBars(const QString &text)
    {
        QString line = oneLine(text);
        if (line.contains(QLatin1Char('|')))
            ++m_withBars;
        return line.replace(QLatin1Char('|'), QLatin1Char('/'));
    }

    void locator(const WrittenNote &note)
    {
        const QString color = colorIn(avidPalette, note).toUpper();
        m_text += QStringLiteral("* LOC: ") + note.time + QLatin1Char(' ') + color.leftJustified(7) +
                  QLatin1Char(' ') + oneLine(note.name.isEmpty() ? note.comment : note.name) +
                  QLatin1Char('\n');
        m_leftOutComments += !note.name.isEmpty() && !note.comment.trimmed().isEmpty() ? 1 : 0;
        m_leftOutLengths += note.length > 0 ? 1 : 0;
    }

    QString titleOf(const WrittenNote &note, std::size_t number)
    {
        m_leftOutComments += !note.name.isEmpty() && !note.comment.trimmed().isEmpty() ? 1 : 0;
        const QString title = oneLine(note.name.isEmpty() ? note.comment : note.name).trimmed();
        return title.isEmpty() ? QStringLiteral("Marker %1").arg(number) : title;
    }

    void tellComments()
    {
        if (m_leftOutComments > 0)
            m_changes.append(
                QStringLiteral("The comment of %1 is left out.").arg(counted(m_leftOutComments, "marker")));
    }

    void tellFields()
    {
        tellComments();
        if (m_leftOutLengths > 0)
            m_changes.append(
                QStringLiteral("The duration of %1 is left out.").arg(counted(m_leftOutLengths, "marker")));
        if (m_leftOutFields > 0)
            m_changes.append(QStringLiteral("The custom fields of %1 are left out.")
                                 .arg(counted(m_leftOutFields, "marker")));
    }

    void tellColorsLeftOut()
    {
        if (std::any_of(m_notes.begin(), m_notes.end(),
                        [](const WrittenNote &note) { return note.color != 0; }))
            m_changes.append(QStringLiteral("Colours are left out."));
    }

    void tellMixed(const std::vector<const WrittenNote *> &notes)
    {
        const bool isMixed = std::any_of(notes.begin(), notes.end(), [&](const WrittenNote *note) {
            return !(note->rate == notes.front()->rate);
        });
        if (isMixed)
            m_changes.append(QStringLiteral("The timecodes of several frame rates stand in one list."));
    }

    /// The list has one timeline.
    void tellPlaces()
    {
        QSet<QString> places;
        for (const WrittenNote &note : m_notes)
            places.insert(note.sequence.isEmpty() ? QLatin1Char('/') + note.clip : note.sequence);
        if (places.size() > 1)
            m_changes.append(
                QStringLiteral("Markers of %1 sequences and clips stand in one list.").arg(places.size()));
    }

    static QString clock(qint64 frame, const NoteRate &rate)
    {
        const qint64 milliseconds =
            roundedQuotient(WideInteger(frame) * 1000 * rate.denominator(), rate.numerator());
        const qint64 seconds = milliseconds / 1000;
        return twoDigits(seconds / 3600) + QLatin1Char(':') + twoDigits(seconds / 60 % 60) +
               QLatin1Char(':') + twoDigits(seconds % 60) + QLatin1Char('.') +
               QString::number(milliseconds % 1000).rightJustified(3, QLatin1Char('0'));
    }

    QStringList tableCells(const WrittenNote &note)
    {
        const auto yes = [](bool flag) { return flag ? QStringLiteral("yes") : QString(); };
        QHash<QString, QString> fields;
        for (const auto &[title, value] : note.fields)
            fields.insert(title, value);
        const QStringList usual = {MarkerColors::table()[colorIndex(note)].label,
                                   note.name,
                                   note.comment,
                                   note.time,
                                   note.duration,
                                   note.sequence,
                                   note.clip,
                                   yes(note.isChapter),
                                   yes(note.isCompression),
                                   yes(note.isScoring)};
        QStringList cells;
        for (qsizetype i = 0; i < m_titles.size(); ++i) {
            const qsizetype index = m_usual.at(i);
            cells.append(index >= 0 ? usual.at(index) : fields.value(m_titles.at(i)));
        }
        return cells;
    }

    void tableLine(const QStringList &cells, QChar delimiter, const QString &lineEnd)
    {
        bool isFirst = true;
        for (QString cell : cells) {
            if (!isFirst)
                m_text += delimiter;
            isFirst = false;
            const bool quoted = cell.contains(delimiter) || cell.contains(QLatin1Char('"')) ||
                                cell.contains(QLatin1Char('\n')) || cell.contains(QLatin1Char('\r'));
            if (quoted)
                cell = QLatin1Char('"') + cell.replace(QStringLiteral("\""), QStringLiteral("\"\"")) +
                       QLatin1Char('"');
            m_text += cell;
        }
        m_text += lineEnd;
    }

    void markdownLine(const QStringList &cells)
    {
        m_text += QLatin1Char('|');
        for (const QString &cell : cells) {
            QString text = cell;
            text.replace(QStringLiteral("&"), QStringLiteral("&amp;"));
            text.replace(QStringLiteral("<"), QStringLiteral("&lt;"));
            text.replace(QStringLiteral("|"), QStringLiteral("\\|"));
            text.replace(QLatin1Char('\t'), QLatin1Char(' '));
            m_text += QLatin1Char(' ') + lines(text).join(QStringLiteral("<br>")) + QStringLiteral(" |");
        }
        m_text += QLatin1Char('\n');
    }

    const std::vector<WrittenNote> &m_notes;
    const QStringList m_titles; ///< of the columns of a table
    QList<qsizetype> m_usual;   ///< by column, its index in usualTitles(); -1 for a custom field
    QString m_text;
    QStringList m_changes;
    std::size_t m_replacedColors = 0;
    std::size_t m_joinedLines = 0;
    std::size_t m_withBars = 0;
    std::size_t m_leftOutComments = 0;
    std::size_t m_leftOutLengths = 0;
    std::size_t m_leftOutFields = 0;
};

} // namespace

const QStringList &formats()
{
    static const QStringList names = {
        QStringLiteral("avid6"),    QStringLiteral("avid8"),    QStringLiteral("resolve-edl"),
        QStringLiteral("edl"),      QStringLiteral("csv"),      QStringLiteral("tsv"),
        QStringLiteral("markdown"), QStringLiteral("chapters"), QStringLiteral("webvtt")};
    return names;
}

QStringList columnTitles(const std::vector<WrittenNote> &notes)
{
    QStringList titles = usualTitles();
    QSet<QString> seen;
    for (const WrittenNote &note : notes) {
        for (const auto &[title, value] : note.fields) {
            if (!seen.contains(title)) {
                seen.insert(title);
                titles.append(title);
            }
        }
    }
    return titles;
}

bool hasColumns(const QString &format)
{
    return format == QStringLiteral("csv") || format == QStringLiteral("tsv") ||
           format == QStringLiteral("markdown");
}

Written write(const QString &format, const std::vector<WrittenNote> &notes, const QStringList &columns)
{
    Writer writer(notes, columns);
    switch (formats().indexOf(format)) {
    case 0:
        writer.avid(false);
        break;
    case 1:
        writer.avid(true);
        break;
    case 2:
        writer.edl(true);
        break;
    case 3:
        writer.edl(false);
        break;
    case 4:
        writer.table(QLatin1Char(','));
        break;
    case 5:
        writer.table(QLatin1Char('\t'));
        break;
    case 6:
        writer.markdown();
        break;
    case 7:
        writer.chapters();
        break;
    case 8:
        writer.webVtt();
        break;
    default:
        break;
    }
    return writer.written();
}

} // namespace vantrell::NoteWriter
