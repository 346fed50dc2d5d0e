#pragma once

#include "interchange/notes/NoteList.h"

#include <QStringView>

#include <functional>
#include <vector>

namespace vantrell
{

/// Goes through the records of a table in a text: cells by RFC 4180, whatever the delimiter. Cells may be
/// quoted and then hold delimiters, line breaks and doubled quotes. A quote that does not begin a cell, and
/// one that is never closed, is a character like any other, so that damage costs no more than its cell;
/// blanks behind a closing quote are dropped. The time is proportional to the text. Any thread.
class NoteTable
{
public:
    enum class Quotes { Rfc4180, None };

    /// The text outlives the table; `list` keeps the cells that do not stand in the text as they are.
    NoteTable(QStringView text, QChar delimiter, NoteList &list, Quotes quotes = Quotes::Rfc4180)
        : m_text(text)
        , m_delimiter(delimiter)
        , m_list(list)
        , m_quotes(quotes)
    {
    }

    using Cells = std::vector<QStringView>;

    /// The next record that is not blank; false after the last one. An empty cell is empty, never null.
    bool next(Cells &cells);
    /// The line of the text in which the last record begins, counted from 1.
    std::size_t line() const { return m_recordLine; }

    /// Between two records.
    struct Place {
        qsizetype position = 0; ///< in the text
        std::size_t line = 1;
    };
    Place place() const { return {m_position, m_line}; }
    void goTo(const Place &place)
    {
        m_position = place.position;
        m_line = place.line;
    }

    /// The delimiter of a text: the one of tab, comma and semicolon that most of the first lines hold equally
    /// often. The semicolons of timecodes do not count. A tab for a text without any.
    static QChar delimiterOf(QStringView text);

private:
    QStringView nextCell();
    bool quotedCell(QStringView &cell);
    void endLine();

    QStringView m_text;
    QChar m_delimiter;
    NoteList &m_list;
    Quotes m_quotes;
    qsizetype m_position = 0;
    std::size_t m_line = 1;
    std::size_t m_recordLine = 0;
    bool m_atLineEnd = false;
};

} // namespace vantrell
