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

/// 16-bit Unicode text. The byte-order mark gives the byte order and is no part of the text. Bytes
/// without a mark are taken for such text only when the second byte is zero, which no UTF-8 list has,
/// and are then little-endian. An unpaired surrogate stays as it is. Null for anything else and for an
/// odd number of bytes; never null otherwise.
QString fromUtf16(const QByteArray &bytes);

/// UTF-8 text; a byte-order mark before it is no part of the text. Null when any byte is not UTF-8,
/// never null otherwise.
QString fromUtf8(const QByteArray &bytes);

/// Calls visit(index, line) for each piece between line feeds, or between carriage returns in a text
/// that has no line feed. The piece after the last one counts too, empty or not; a carriage return
/// before a line feed stays at the end of its line.
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

/// The fields between the tabs of a line; false unless there are exactly as many as there is room for.
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
