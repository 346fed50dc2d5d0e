#include "interchange/notes/NoteTable.h"

#include "interchange/notes/NoteText.h"

#include "support/text/TextNumbers.h"

#include <array>

namespace vantrell
{

namespace
{

bool isLineEnd(QChar character)
{
    return character == u'\n' || character == u'\r';
}

bool isBlank(const NoteTable::Cells &cells)
{
    for (const QStringView cell : cells) {
        if (!cell.trimmed().isEmpty())
            return false;
    }
    return true;
}

/// How often the delimiters tab, comma and semicolon stand in a line, outside quotes.
using Counts = std::array<int, 3>;

Counts delimitersIn(QStringView line)
{
    Counts counts = {};
    bool quoted = false;
    line = line.left(100000);
    for (qsizetype i = 0; i < line.size(); ++i) {
        const char16_t c = line[i].unicode();
        if (c == u'"')
            quoted = !quoted;
        if (quoted)
            continue;
        if (c == u'\t')
            ++counts[0];
        else if (c == u',')
            ++counts[1];
        else if (c == u';')
            ++counts[2];
        // "00;00;10;00" and "00:00:10;00" hold no delimiters
        if (c == u';' && i >= 2 && i + 2 < line.size() && isDigit(line[i - 1]) && isDigit(line[i - 2]) &&
            isDigit(line[i + 1]) && isDigit(line[i + 2])) {
            const bool isInside = (i >= 3 && (line[i - 3] == u':' || line[i - 3] == u';')) ||
                                  (i + 3 < line.size() && line[i + 3] == u';' && i + 5 < line.size() &&
                                   isDigit(line[i + 4]) && isDigit(line[i + 5]));
            const qsizetype end = i + 3;
            const bool endsCell = end >= line.size() || !(isDigit(line[end]) || line[end] == u':');
            if (isInside && endsCell)
                --counts[2];
        }
    }
    return counts;
}

/// The text with each doubled quote as one, in a time that is proportional to it.
QString withSingleQuotes(QStringView text)
{
    QString single;
    single.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        single.append(text[i]);
        i += text[i] == u'"' ? 1 : 0;
    }
    return single;
}

} // namespace

QChar NoteTable::delimiterOf(QStringView text)
{
    constexpr std::array<char16_t, 3> delimiters = {u'\t', u',', u';'};
    std::vector<Counts> lines;
    NoteLines reader(text);
    QStringView line;
    while (lines.size() < 50 && reader.next(line)) {
        if (!line.trimmed().isEmpty())
            lines.push_back(delimitersIn(line));
    }
    int best = 0;
    int bestScore = 0;
    for (const int i : {0, 2, 1}) {
        // The most usual count above 0 and the lines that have it
        int score = 0;
        for (const Counts &one : lines) {
            int same = 0;
            for (const Counts &other : lines)
                same += one[std::size_t(i)] > 0 && one[std::size_t(i)] == other[std::size_t(i)] ? 2 : 0;
            if (same > 0 && &one == &lines.front())
                ++same; // that of the header decides
            score = std::max(score, same);
        }
        if (score > bestScore) {
            best = i;
            bestScore = score;
        }
    }
    return delimiters[std::size_t(best)];
}

bool NoteTable::next(Cells &cells)
{
    do {
        cells.clear();
        if (m_position >= m_text.size())
            return false;
        m_recordLine = m_line;
        m_atLineEnd = false;
        while (!m_atLineEnd)
            cells.push_back(nextCell());
    } while (isBlank(cells));
    return true;
}

QStringView NoteTable::nextCell()
{
    QStringView cell;
    if (m_quotes == Quotes::Rfc4180 && m_position < m_text.size() && m_text[m_position] == u'"' &&
        quotedCell(cell))
        return cell;
    const qsizetype start = m_position;
    while (m_position < m_text.size() && m_text[m_position] != m_delimiter && !isLineEnd(m_text[m_position]))
        ++m_position;
    cell = m_text.sliced(start, m_position - start);
    endLine();
    return cell;
}

/// Reads a cell from its quote on; false, and nothing read, unless the quote is closed at the cell's end.
bool NoteTable::quotedCell(QStringView &cell)
{
    // Each run of quotes is passed once: a later cell that begins with one between here and the closing quote
    // begins with an even number of them, and ends there.
    const qsizetype start = m_position + 1;
    qsizetype at = start;
    bool hasDoubled = false;
    std::size_t lines = 0;
    while (true) {
        while (at < m_text.size() && m_text[at] != u'"') {
            if (m_text[at] == u'\n' ||
                (m_text[at] == u'\r' && !(at + 1 < m_text.size() && m_text[at + 1] == u'\n')))
                ++lines;
            ++at;
        }
        if (at == m_text.size())
            return false;
        if (at + 1 == m_text.size() || m_text[at + 1] != u'"')
            break;
        hasDoubled = true;
        at += 2;
    }
    qsizetype behind = at + 1;
    while (behind < m_text.size() && m_text[behind] == u' ' && m_delimiter != u' ')
        ++behind;
    if (behind < m_text.size() && m_text[behind] != m_delimiter && !isLineEnd(m_text[behind]))
        return false;
    cell = m_text.sliced(start, at - start);
    if (hasDoubled)
        cell = m_list.keep(withSingleQuotes(cell));
    m_line += lines;
    m_position = behind;
    endLine();
    return true;
}

/// Goes behind the delimiter or the line end that the position is at.
void NoteTable::endLine()
{
    if (m_position < m_text.size() && m_text[m_position] == m_delimiter) {
        ++m_position;
        return;
    }
    m_atLineEnd = true;
    if (m_position == m_text.size())
        return;
    const bool isPair =
        m_text[m_position] == u'\r' && m_position + 1 < m_text.size() && m_text[m_position + 1] == u'\n';
    m_position += isPair ? 2 : 1;
    ++m_line;
}

} // namespace vantrell
