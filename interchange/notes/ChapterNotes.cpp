// Lines of a time and a title.

#include "interchange/notes/NoteShapes.h"
#include "interchange/notes/NoteText.h"

#include "support/text/TextNumbers.h"

namespace vantrell::NoteShapes
{

namespace
{

constexpr QStringView webVtt = u"WEBVTT";

bool isWebVtt(QStringView text)
{
    return text.startsWith(webVtt) || text.left(20).trimmed().startsWith(webVtt);
}

/// A number, and below it a line with an arrow between times.
bool isSubRip(QStringView text)
{
    NoteLines lines(text);
    QStringView line;
    do {
        if (!lines.next(line))
            return false;
    } while (line.trimmed().isEmpty());
    const QStringView number = line.left(20).trimmed();
    if (!std::all_of(number.begin(), number.end(), isDigit) || !lines.next(line))
        return false;
    const qsizetype arrow = line.left(100).indexOf(u"-->");
    return arrow > 0 && NoteTime::parse(line.first(arrow), NoteUnit::Frames);
}

bool isDash(QChar character)
{
    return character == u'-' || character == u'–' || character == u'—';
}

/// Without a number, bullets and an opening bracket.
QStringView withoutBullet(QStringView line)
{
    line = line.trimmed();
    qsizetype digits = 0;
    while (digits < std::min<qsizetype>(line.size(), 4) && isDigit(line[digits]))
        ++digits;
    if (digits > 0 && digits + 1 < line.size() && (line[digits] == u'.' || line[digits] == u')') &&
        line[digits + 1] == u' ')
        line = line.sliced(digits + 1).trimmed();
    while (!line.isEmpty() && (line.front() == u'-' || line.front() == u'•' || line.front() == u'*' ||
                               line.front() == u'–' || line.front() == u'(' || line.front() == u'['))
        line = line.sliced(1).trimmed();
    return line;
}

/// How many of the first characters look like a time, with its fraction.
qsizetype lengthOfTime(QStringView text)
{
    qsizetype end = 0;
    qsizetype colons = 0;
    while (end < text.size() && end < 20 && (isDigit(text[end]) || text[end] == u':' || text[end] == u';')) {
        colons += isDigit(text[end]) ? 0 : 1;
        ++end;
    }
    if (end > 0 && !isDigit(text[end - 1])) { // "0:10: Title"
        --end;
        --colons;
    }
    if (end == 0 || !isDigit(text.front()) || colons == 0 || !isDigit(text[end - 1]))
        return 0;
    if (end + 1 < text.size() && (text[end] == u'.' || text[end] == u',') && isDigit(text[end + 1])) {
        ++end;
        while (end < text.size() && isDigit(text[end]))
            ++end;
    }
    return end;
}

struct Chapter {
    QStringView time; ///< null for a line that does not begin with what looks like one
    QStringView end;  ///< null without one
    QStringView title;
};

/// Takes what closes a time, and a dash or the like behind it; false where none can end there.
bool takeSeparator(QStringView &rest, bool &isDashed)
{
    if (rest.isEmpty())
        return false;
    const bool isClosed = rest.front() == u')' || rest.front() == u']';
    const bool isColon = rest.startsWith(u": ");
    if (!isClosed && !isColon && rest.front() != u' ' && !isDash(rest.front()))
        return false;
    if (isClosed)
        rest = rest.sliced(1);
    rest = rest.trimmed();
    isDashed = rest.size() > 1 && isDash(rest.front());
    if (isDashed || (rest.size() > 1 && (rest.front() == u':' || rest.front() == u'|')))
        rest = rest.sliced(1).trimmed();
    return true;
}

Chapter chapterOf(QStringView line)
{
    const QStringView text = withoutBullet(line);
    const qsizetype end = lengthOfTime(text);
    QStringView rest = text.sliced(end);
    bool isDashed = false;
    if (end == 0 || !takeSeparator(rest, isDashed))
        return {};
    Chapter chapter{text.first(end), {}, rest};
    // "00:10 - 00:20 Title"
    const qsizetype second = isDashed ? lengthOfTime(rest) : 0;
    QStringView behind = rest.sliced(second);
    if (second > 0 && (behind.isEmpty() || takeSeparator(behind, isDashed))) {
        chapter.end = rest.first(second);
        chapter.title = behind;
    }
    return chapter;
}

void readCues(QStringView text, NoteList &list)
{
    list.columns = {NoteRole{NoteRole::Time}, NoteRole{NoteRole::End}, NoteRole{NoteRole::Name},
                    NoteRole{NoteRole::Comment}};
    NoteLines lines(text);
    QStringView line;
    bool isCue = false;
    NoteRow row;
    QString comment;
    const auto unescaped = [&list](QStringView cell) {
        if (!cell.contains(u'&'))
            return cell;
        return list.keep(cell.toString()
                             .replace(QStringLiteral("&lt;"), QStringLiteral("<"))
                             .replace(QStringLiteral("&gt;"), QStringLiteral(">"))
                             .replace(QStringLiteral("&amp;"), QStringLiteral("&")));
    };
    const auto end = [&] {
        if (isCue) {
            row.comment = comment.isEmpty() ? QStringView() : list.keep(comment);
            list.add(row);
        }
        isCue = false;
        comment = QString();
    };
    while (lines.next(line)) {
        const qsizetype arrow = line.indexOf(u"-->");
        if (arrow >= 0) {
            end();
            row = {};
            row.line = lines.number();
            row.time = line.first(arrow).trimmed();
            const QStringView rest = line.sliced(arrow + 3).trimmed();
            row.end = rest.first(std::max<qsizetype>(rest.indexOf(u' '), 0));
            if (row.end.isEmpty())
                row.end = rest;
            isCue = true;
        } else if (line.trimmed().isEmpty()) {
            end();
        } else if (isCue && row.name.isNull()) {
            row.name = unescaped(line);
        } else if (isCue) {
            comment += (comment.isEmpty() ? QString() : QStringLiteral("\n")) + unescaped(line).toString();
        }
    }
    end();
}

} // namespace

bool isChapters(QStringView text)
{
    if (isWebVtt(text) || isSubRip(text))
        return true;
    std::size_t lines = 0;
    std::size_t chapters = 0;
    std::size_t withTabs = 0;
    bool beginsAtZero = false;
    QStringView line;
    for (NoteLines reader(text); lines < 1000 && reader.next(line);) {
        if (line.trimmed().isEmpty())
            continue;
        ++lines;
        withTabs += line.left(1000).contains(u'\t') ? 1 : 0;
        const Chapter chapter = chapterOf(line.left(1000));
        if (chapter.time.isNull())
            continue;
        if (++chapters == 1) {
            const std::optional<NoteTime> time = NoteTime::parse(chapter.time, NoteUnit::Frames);
            beginsAtZero = time && time->seconds == 0 && time->frames == 0;
        }
    }
    return chapters > 0 && withTabs * 2 < lines && (chapters * 2 >= lines || (chapters >= 3 && beginsAtZero));
}

void readChapters(QStringView text, NoteList &list)
{
    list.shape = NoteShape::Chapters;
    if (isWebVtt(text) || isSubRip(text)) {
        readCues(text, list);
        return;
    }
    NoteLines lines(text);
    QStringView line;
    bool hasEnds = false;
    while (lines.next(line)) {
        const Chapter chapter = chapterOf(line);
        if (chapter.time.isNull())
            continue;
        NoteRow row;
        row.line = lines.number();
        row.time = chapter.time;
        row.end = chapter.end;
        row.name = chapter.title.isEmpty() ? QStringView() : chapter.title;
        hasEnds = hasEnds || !chapter.end.isNull();
        list.add(row);
    }
    list.columns = {NoteRole{NoteRole::Time}, NoteRole{NoteRole::Name}};
    if (hasEnds)
        list.columns.insert(list.columns.begin() + 1, NoteRole{NoteRole::End});
}

} // namespace vantrell::NoteShapes
