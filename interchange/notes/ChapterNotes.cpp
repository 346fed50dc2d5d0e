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

/// Without bullets and an opening bracket.
QStringView withoutBullet(QStringView line)
{
    line = line.trimmed();
    while (!line.isEmpty() && (line.front() == u'-' || line.front() == u'•' || line.front() == u'*' ||
                               line.front() == u'–' || line.front() == u'(' || line.front() == u'['))
        line = line.sliced(1).trimmed();
    return line;
}

struct Chapter {
    QStringView time; ///< null for a line that does not begin with what looks like one
    QStringView title;
};

Chapter chapterOf(QStringView line)
{
    const QStringView text = withoutBullet(line);
    qsizetype end = 0;
    qsizetype colons = 0;
    while (end < text.size() && end < 20 && (isDigit(text[end]) || text[end] == u':' || text[end] == u';')) {
        colons += isDigit(text[end]) ? 0 : 1;
        ++end;
    }
    if (end == 0 || !isDigit(text.front()) || colons == 0 || !isDigit(text[end - 1]))
        return {};
    // A fraction
    if (end + 1 < text.size() && (text[end] == u'.' || text[end] == u',') && isDigit(text[end + 1])) {
        ++end;
        while (end < text.size() && isDigit(text[end]))
            ++end;
    }
    QStringView rest = text.sliced(end);
    if (rest.isEmpty() || !(rest.front() == u' ' || rest.front() == u')' || rest.front() == u']' ||
                            rest.front() == u'-' || rest.front() == u'–' || rest.front() == u'—'))
        return {};
    if (rest.front() == u')' || rest.front() == u']')
        rest = rest.sliced(1);
    rest = rest.trimmed();
    if (rest.size() > 1 && (rest.front() == u'-' || rest.front() == u'–' || rest.front() == u'—' ||
                            rest.front() == u':' || rest.front() == u'|'))
        rest = rest.sliced(1).trimmed();
    return {text.first(end), rest};
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
    if (isWebVtt(text))
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
    if (isWebVtt(text)) {
        readCues(text, list);
        return;
    }
    list.columns = {NoteRole{NoteRole::Time}, NoteRole{NoteRole::Name}};
    NoteLines lines(text);
    QStringView line;
    while (lines.next(line)) {
        const Chapter chapter = chapterOf(line);
        if (chapter.time.isNull())
            continue;
        NoteRow row;
        row.line = lines.number();
        row.time = chapter.time;
        row.name = chapter.title.isEmpty() ? QStringView() : chapter.title;
        list.add(row);
    }
}

} // namespace vantrell::NoteShapes
