#include "media/MediaUseColumns.h"

#include "media/MediaKeys.h"
#include "timecode/QVTimecode.h"
#include "xml/XmlQuery.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace vantrell
{

namespace
{

using namespace Qt::StringLiterals;

/// What the definitions of the files say themselves; the first that says it counts.
void addStatements(MyDocument &document, MediaUseTable &table)
{
    static const XmlQuery files(u".//clipitem/file[1]"_s);
    for (const XmlNode file : files.evaluate(document.xmlNode()).nodes) {
        const auto facts = table.find(file.childElement("pathurl").stringValue());
        if (facts == table.end())
            continue;
        if (!facts->rate)
            facts->rate = FrameRate::ofElement(file);
        const XmlNode timecode = file.childElement("timecode");
        if (!timecode)
            continue;
        if (facts->timecode.isEmpty())
            facts->timecode = timecode.childElement("string").stringValue();
        if (facts->reel.isEmpty())
            facts->reel = timecode.childElement("reel").childElement("name").stringValue();
    }
}

QString notesOf(const MediaUses::File &file)
{
    QStringList notes;
    if (file.uses == 0)
        notes.append(u"unused"_s);
    if (file.isDuplicate)
        notes.append(u"duplicate"_s);
    if (file.isStill)
        notes.append(u"still"_s);
    return notes.join(u", "_s);
}

/// As hours, minutes, seconds and frames; as a number of frames without a rate.
QString durationText(std::int64_t frames, const std::optional<FrameRate> &rate)
{
    return rate ? QVTimecode::timecodeFromFrameCount(quint64(frames), rate->timebase, rate->ntsc, false, 0)
                : u"%1 frames"_s.arg(frames);
}

QString usedText(const MediaUseFacts &facts)
{
    if (facts.used == 0)
        return QString();
    const QString text = durationText(facts.used, facts.rate);
    if (!facts.length || *facts.length < facts.used)
        return text;
    return u"%1 (%2 %)"_s.arg(text).arg(facts.used * 100 / *facts.length);
}

std::optional<RecordValue> seconds(std::int64_t frames, const std::optional<FrameRate> &rate)
{
    return std::optional<RecordValue>(std::in_place, std::in_place_type<double>,
                                      double(frames) / double(rate ? rate->timebase : 1));
}

} // namespace

MediaUseTable mediaUseTable(MyDocument &document, const QStringList &urls)
{
    MediaUseTable table;
    if (!document.xmlDoc())
        return table;
    const MediaUses uses(document);
    const std::vector<MediaUses::File> files = uses.files({});
    const MenuPtr menu = document.sequenceMenu();
    for (const QString &url : urls) {
        const std::optional<std::size_t> index = uses.indexOf(url);
        if (table.contains(url))
            continue;
        if (!index) {
            table.insert(url, {});
            continue;
        }
        const MediaUses::File &file = files[*index];
        MediaUseFacts facts;
        facts.uses = file.uses;
        facts.used = FrameRanges::total(file.ranges);
        facts.length = file.length;
        QStringList names;
        for (const int sequence : file.sequences)
            names.append((*menu)[std::size_t(sequence)].title);
        facts.sequences = names.join(u", "_s);
        facts.notes = notesOf(file);
        table.insert(url, facts);
    }
    addStatements(document, table);
    return table;
}

void MediaUseIndex::set(MediaUseTable table)
{
    auto replacement = std::make_shared<const MediaUseTable>(std::move(table));
    const std::lock_guard lock(m_mutex);
    m_table.swap(replacement);
}

bool MediaUseIndex::holds(const RowList &records) const
{
    const std::lock_guard lock(m_mutex);
    return m_table && std::all_of(records.begin(), records.end(), [this](const RowRecordPtr &record) {
               return m_table->contains(record->get(MediaKey::rawpath));
           });
}

std::optional<MediaUseFacts> MediaUseIndex::find(const RowRecord &record) const
{
    std::shared_ptr<const MediaUseTable> table;
    {
        const std::lock_guard lock(m_mutex);
        table = m_table;
    }
    if (!table)
        return std::nullopt;
    const auto facts = table->constFind(record.get(MediaKey::rawpath));
    return facts != table->constEnd() ? std::optional(*facts) : std::nullopt;
}

Columns mediaUseColumns(const std::shared_ptr<const MediaUseIndex> &index)
{
    using TextOf = std::function<QString(const MediaUseFacts &)>;
    using ValueOf = std::function<std::optional<RecordValue>(const MediaUseFacts &)>;
    const auto column = [&index](const QString &identifier, const QString &title, int width,
                                 const TextOf &textOf, const ValueOf &valueOf) {
        Column made{.identifier = identifier, .title = title, .width = width};
        made.text = [index, textOf](const RowRecord &record) {
            const auto facts = index->find(record);
            return facts ? textOf(*facts) : QString();
        };
        made.sortValue = [index, valueOf](const RowRecord &record) -> std::optional<RecordValue> {
            const auto facts = index->find(record);
            return facts ? valueOf(*facts) : std::nullopt;
        };
        return made;
    };
    const auto textColumn = [&column](const QString &identifier, const QString &title, int width,
                                      QString MediaUseFacts::*text) {
        return column(
            identifier, title, width, [text](const MediaUseFacts &facts) { return facts.*text; },
            [text](const MediaUseFacts &facts) -> std::optional<RecordValue> {
                if ((facts.*text).isEmpty())
                    return std::nullopt;
                return std::optional<RecordValue>(std::in_place, facts.*text);
            });
    };
    Columns columns{
        textColumn(u"sourceTimecode"_s, u"Source Timecode"_s, 18, &MediaUseFacts::timecode),
        textColumn(u"reel"_s, u"Reel"_s, 14, &MediaUseFacts::reel),
        column(
            u"length"_s, u"Length"_s, 14,
            [](const MediaUseFacts &facts) {
                return facts.length ? durationText(*facts.length, facts.rate) : QString();
            },
            [](const MediaUseFacts &facts) -> std::optional<RecordValue> {
                if (facts.length)
                    return seconds(*facts.length, facts.rate);
                return std::nullopt;
            }),
        column(u"used"_s, u"Used"_s, 22, usedText,
               [](const MediaUseFacts &facts) { return seconds(facts.used, facts.rate); }),
        column(
            u"uses"_s, u"Uses"_s, 8, [](const MediaUseFacts &facts) { return QString::number(facts.uses); },
            [](const MediaUseFacts &facts) { return std::optional<RecordValue>(std::in_place, facts.uses); }),
        textColumn(u"sequences"_s, u"Sequences"_s, 30, &MediaUseFacts::sequences),
        textColumn(u"notes"_s, u"Notes"_s, 18, &MediaUseFacts::notes),
    };
    for (Column &each : columns) {
        if (each.identifier == u"uses"_s)
            each.alignment = Qt::AlignRight;
    }
    return columns;
}

} // namespace vantrell
