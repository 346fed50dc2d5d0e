#include "interchange/notes/NoteReader.h"

#include "interchange/notes/NoteShapes.h"
#include "interchange/notes/NoteText.h"
#include "support/files/FileUtilities.h"
#include "support/log/QVException.h"

namespace vantrell::NoteReader
{

namespace
{

void inferDropFrame(NoteList &list)
{
    if (list.rate)
        return;
    bool hasSemicolon = false;
    bool isFast = false;
    for (const NoteRow &row : list.rows) {
        const std::optional<NoteTime> time = NoteTime::parse(row.time, list.timeUnit);
        if (!time || time->kind != NoteTime::Kind::Timecode)
            continue;
        hasSemicolon = hasSemicolon || time->hasSemicolon;
        isFast = isFast || time->frames >= 30;
    }
    if (hasSemicolon)
        list.rate = NoteRate{isFast ? 60 : 30, true, true};
}

} // namespace

NoteList read(const QByteArray &bytes, const NoteColumnChoices &choices)
{
    NoteList list;
    NoteText decoded = NoteText::decode(bytes);
    list.encoding = decoded.encoding;
    if (decoded.text.isNull())
        return list;
    const QString text = decoded.text;
    list.keep(text); // and not another one: rows have views into it
    bool hasColumns = false;
    if (NoteShapes::isAvidXml(text)) {
        NoteShapes::readAvidXml(text, bytes, list);
    } else if (NoteShapes::isFcpxml(text)) {
        NoteShapes::readFcpxml(text, bytes, list);
    } else if (NoteShapes::isProTools(text)) {
        NoteShapes::readProTools(text, list);
    } else if (NoteShapes::isJson(text)) {
        NoteShapes::readJson(text, list);
    } else if (NoteShapes::isEdl(text)) {
        NoteShapes::readEdl(text, list);
    } else if (NoteShapes::isChapters(text)) {
        NoteShapes::readChapters(text, list);
    } else {
        hasColumns = true;
        NoteShapes::readTable(text, list, choices);
    }
    if (!hasColumns && !choices.empty())
        applyChoices(list, choices);
    inferDropFrame(list);
    return list;
}

NoteList readAgain(const NoteList &list, const QByteArray &bytes, const NoteColumnChoices &choices)
{
    if (!list.tableStart)
        return read(bytes, choices);
    NoteList again = NoteShapes::readTableAgain(list, choices);
    inferDropFrame(again);
    return again;
}

Result<NoteList> readFile(const QString &path, const NoteColumnChoices &choices)
{
    const Result<QByteArray> bytes = FileUtilities::readFile(path);
    if (!bytes)
        return bytes.failure();
    NoteList list;
    const bool isRead = guarded("NoteReader::readFile", [&] { list = read(bytes.value(), choices); });
    if (!isRead)
        return Failure{QStringLiteral("There is not enough memory to read the list.")};
    return list;
}

} // namespace vantrell::NoteReader
