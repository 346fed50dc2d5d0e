#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

namespace vantrell
{

/// The text of a list of notes and the encoding that it was found in.
struct NoteText {
    QString text;
    /// "UTF-8", "UTF-16LE", "UTF-16BE", "windows-1252" or "macintosh".
    QString encoding;

    /// Decodes a file by its content. A byte-order mark decides and is dropped. Without one, bytes with zeros
    /// in every other place are UTF-16, valid UTF-8 is UTF-8, and anything else is the one of windows-1252
    /// and macintosh in which the characters beyond ASCII stand where such characters stand in words; line
    /// ends of carriage returns alone speak for macintosh. Every file gives a text; an unpaired surrogate is
    /// kept, an odd last byte of UTF-16 is dropped. Any thread.
    static NoteText decode(const QByteArray &bytes);
};

/// Goes through the lines of a text, which end in a line feed, a carriage return or both. Any thread.
class NoteLines
{
public:
    explicit NoteLines(QStringView text)
        : m_text(text)
    {
    }

    /// The next line without its end; false after the last one. There is no empty line after the last end.
    bool next(QStringView &line);
    /// The number of the line that next() gave, counted from 1.
    std::size_t number() const { return m_number; }

private:
    QStringView m_text;
    qsizetype m_position = 0;
    std::size_t m_number = 0;
};

} // namespace vantrell
