#include "handover/SendList.h"

#include "media/MediaKeys.h"
#include "rows/RecordText.h"

#include <QFile>
#include <QSet>

namespace vantrell::SendList
{

namespace
{

QByteArray csvRecord(QStringList fields)
{
    for (QString &field : fields) {
        const bool isQuoted =
            field.contains(u',') || field.contains(u'"') || field.contains(u'\n') || field.contains(u'\r');
        if (isQuoted)
            field = u'"' + field.replace(u'"', QStringLiteral("\"\"")) + u'"';
    }
    return fields.join(u',').toUtf8() + "\r\n";
}

QString textOf(const RowRecord &record, const RecordKey &key)
{
    const RecordValue *const value = record.find(key);
    return value ? plainText(*value) : QString();
}

} // namespace

std::vector<File> files(const RowList &records, const QStringList &places, const MediaUses *uses,
                        const MediaUses::Choice &choice, bool missingToo, std::size_t &missing)
{
    std::vector<MediaUses::File> used;
    if (uses)
        used = uses->files(choice);
    std::vector<File> files;
    missing = 0;
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (!missingToo && records[i]->get(MediaKey::missing)) {
            ++missing;
            continue;
        }
        File file{records[i], places[qsizetype(i)], std::nullopt};
        if (const auto index = uses ? uses->indexOf(records[i]->get(MediaKey::rawpath)) : std::nullopt)
            file.uses = used[*index];
        files.push_back(std::move(file));
    }
    return files;
}

QByteArray csv(const std::vector<File> &files)
{
    QByteArray text =
        csvRecord(QStringLiteral("Name,Kind,Size,Date Modified,Usage,Uses,Missing,Folder,Path,Used "
                                 "Frames,Length,Sequences")
                      .split(u','));
    for (const File &file : files) {
        const RowRecord &record = *file.record;
        QStringList fields{record.get(MediaKey::filename), record.get(MediaKey::filetype),
                           textOf(record, MediaKey::filesize), textOf(record, MediaKey::modDate),
                           textOf(record, MediaKey::usageCount)};
        fields << (file.uses ? QString::number(file.uses->uses) : QString());
        fields << (record.get(MediaKey::missing) ? QStringLiteral("missing") : QString());
        fields << record.get(MediaKey::directory) << file.place;
        QStringList sequences;
        if (file.uses) {
            for (const int index : file.uses->sequences)
                sequences.append(QString::number(index));
        }
        fields << (file.uses ? QString::number(FrameRanges::total(file.uses->ranges)) : QString());
        fields << (file.uses && file.uses->length ? QString::number(*file.uses->length) : QString());
        fields << sequences.join(u' ');
        text += csvRecord(fields);
    }
    return text;
}

QByteArray paths(const std::vector<File> &files, PathEnd end, QStringList &leftOut)
{
    QByteArray text;
    QSet<QString> seen;
    for (const File &file : files) {
        if (file.place.isEmpty() || seen.contains(file.place))
            continue;
        seen.insert(file.place);
        if (end == PathEnd::Line && (file.place.contains(u'\n') || file.place.contains(u'\r')))
            leftOut.append(file.place);
        else
            text += QFile::encodeName(file.place) + char(end);
    }
    return text;
}

} // namespace vantrell::SendList
