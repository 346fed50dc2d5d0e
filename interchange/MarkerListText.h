#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <array>
#include <cstddef>

namespace vantrell
{

/// The text of marker list files: its encodings, its lines and their fields. Any thread.
namespace MarkerListText
{

/// UTF-16 text. The byte-order mark sets the byte order and is dropped. Bytes without a mark count as UTF-16
/// only when the second byte is zero, as in no UTF-8 list, and are then little-endian. Unpaired surrogates
/// are kept. Null for anything else and for an odd number of bytes; never null otherwise.
QString fromUtf16(const QByteArray &bytes);

/// UTF-8 text; a byte-order mark is dropped. Null when any byte is invalid, never null otherwise.
QString fromUtf8(const QByteArray &bytes);

/// Calls visit(index, line) for each line. Lines are separated by line feeds, or by carriage returns in a
/// text without line feeds. The part after the last separator is a line too, even if empty; a carriage return
/// before a line feed stays in its line.
template <typename Visit>
void forEachLine(QStringView text, Visit visit)
{
    const QLatin1Char separator(text.contains(QLatin1Char('\n')) ? '\n' : '\r');
    qsizetype start = 0;
    for (std::size_t index = 0; start >= 0; ++index) {
        const qsizetype end = text.indexOf(separator, start);
        visit(index, end < 0 ? text.sliced(start) : text.sliced(start, end - start));
        start = end < 0 ? -1 : end + 1;
    }
}

/// Splits a line at its tabs; false unless there are exactly as many fields as the array holds.
template <std::size_t Count>
bool splitFields(QStringView line, std::array<QStringView, Count> &fields)
{
    qsizetype start = 0;
    for (std::size_t i = 0; i < Count; ++i) {
        const qsizetype end = line.indexOf(QLatin1Char('\t'), start);
        const bool isLast = i + 1 == Count;
        if (isLast != (end < 0))
            return false;
        fields[i] = isLast ? line.sliced(start) : line.sliced(start, end - start);
        start = end + 1;
    }
    return true;
}

} // namespace MarkerListText
} // namespace vantrell
