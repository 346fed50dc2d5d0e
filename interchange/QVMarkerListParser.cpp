#include "interchange/QVMarkerListParser.h"

#include "interchange/ImportedMarker.h"
#include "interchange/MarkerListText.h"
#include "support/files/FileUtilities.h"
#include "support/log/QVLog.h"

namespace vantrell
{

namespace
{

/// All rows as one text: "({name = A; comment = B}, {…})".
QString descriptionOf(const RowList &rows)
{
    QString text(QLatin1Char('('));
    for (const RowRecordPtr &row : rows) {
        text += text.size() > 1 ? QLatin1String(", {") : QLatin1String("{");
        for (std::size_t i = 0; i < row->size(); ++i) {
            if (i > 0)
                text += QLatin1String("; ");
            const RecordKey key = row->keyAt(i);
            text += key.text() + QLatin1String(" = ") + row->text(key);
        }
        text += QLatin1Char('}');
    }
    return text + QLatin1Char(')');
}

constexpr std::size_t fcpFields = 7;
constexpr std::size_t avidFields = 5;

RowRecordPtr fcpRow(QStringView line)
{
    std::array<QStringView, fcpFields> fields;
    if (!MarkerListText::splitFields(line, fields))
        return nullptr;
    auto row = std::make_shared<RowRecord>();
    row->set(ImportedMarkerKey::name, fields[2].toString());
    row->set(ImportedMarkerKey::comment, fields[3].toString());
    row->set(ImportedMarkerKey::startTimecode, fields[4].toString());
    row->set(ImportedMarkerKey::durationTimecode, fields[5].toString());
    row->set(ImportedMarkerKey::color, fields[6].toString());
    row->set(ImportedMarkerKey::parentName, fields[0].toString());
    row->set(ImportedMarkerKey::parentType, fields[1].toString());
    return row;
}

RowRecordPtr avidRow(QStringView line)
{
    std::array<QStringView, avidFields> fields;
    if (!MarkerListText::splitFields(line, fields))
        return nullptr;
    auto row = std::make_shared<RowRecord>();
    row->set(ImportedMarkerKey::name, fields[0].toString());
    row->set(ImportedMarkerKey::comment, fields[4].toString());
    row->set(ImportedMarkerKey::startTimecode, fields[1].toString());
    row->set(ImportedMarkerKey::color, fields[3].toString());
    return row;
}

/// Whether a line that is no row names the columns of a list: what is broken has a timecode.
bool isAvidHeader(QStringView line)
{
    const QStringView timecode = line.split(QLatin1Char('\t')).value(1);
    return std::none_of(timecode.begin(), timecode.end(), [](QChar c) { return c.isDigit(); });
}

/// A row for each line from the first one on. Lines that are none are told as skipped, but blank ones and a
/// header.
RowList rowsOfText(const QString &text, std::size_t firstLine, RowRecordPtr (*rowOfLine)(QStringView),
                   std::size_t wantedFields, ListLines *lines)
{
    RowList rows;
    MarkerListText::forEachLine(text, [&](std::size_t index, QStringView line) {
        if (index < firstLine)
            return;
        RowRecordPtr row = rowOfLine(line);
        if (row && lines)
            lines->ofRows.push_back(index + 1);
        else if (!row && lines && !line.trimmed().isEmpty() && (index > 0 || !isAvidHeader(line)))
            lines->skipped.push_back(
                {index + 1, std::size_t(line.count(QLatin1Char('\t'))) + 1, wantedFields});
        if (row)
            rows.push_back(std::move(row));
    });
    return rows;
}

} // namespace

std::optional<RowList> QVMarkerListParser::fcpMarkerListFromFile(const QString &path, ListLines *lines)
{
    const Result<QByteArray> bytes = FileUtilities::readFile(path);
    if (!bytes)
        return std::nullopt;
    QString text = MarkerListText::fromUtf16(bytes.value());
    if (text.isNull())
        text = MarkerListText::fromUtf8(bytes.value());
    if (text.isNull())
        return std::nullopt;
    RowList rows = rowsOfText(text, 1, fcpRow, fcpFields, lines);
    QVLog::appendLog(u"FCP marker list: %@", descriptionOf(rows));
    return rows;
}

std::optional<RowList> QVMarkerListParser::avidLocatorListFromFile(const QString &path, ListLines *lines)
{
    const Result<QByteArray> bytes = FileUtilities::readFile(path);
    if (!bytes)
        return std::nullopt;
    const QString text = MarkerListText::fromUtf8(bytes.value());
    if (text.isNull())
        return std::nullopt;
    RowList rows = rowsOfText(text, 0, avidRow, avidFields, lines);
    QVLog::appendLog(u"Avid locator list: %@", descriptionOf(rows));
    return rows;
}

std::optional<RowList> QVMarkerListParser::dvdspChapterListFromFile(const QString &)
{
    return std::nullopt;
}

} // namespace vantrell
