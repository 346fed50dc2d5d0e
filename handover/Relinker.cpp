#include "handover/Relinker.h"

#include "document/DocumentEdit.h"
#include "media/MediaFacts.h"
#include "media/MediaFile.h"
#include "media/MediaKeys.h"
#include "media/MediaUses.h"
#include "media/SourceRange.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlEdit.h"
#include "xml/XmlQuery.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <unordered_map>

namespace vantrell
{

namespace
{

constexpr double durationTolerance = 0.1; // seconds: a few frames, for sound that ends beside its picture
constexpr double rateTolerance = 0.01;    // frames a second

std::optional<double> secondsOf(XmlNode file)
{
    const std::optional<std::int64_t> frames = statedDuration(file);
    const std::optional<FrameRate> rate = FrameRate::ofElement(file);
    if (!frames || !rate || *frames <= 0)
        return std::nullopt;
    return double(*frames) * (rate->ntsc ? 1.001 : 1) / double(rate->timebase);
}

std::optional<double> rateOf(XmlNode file)
{
    const std::optional<FrameRate> rate = FrameRate::ofElement(file);
    return rate ? std::optional(double(rate->timebase) / (rate->ntsc ? 1.001 : 1)) : std::nullopt;
}

int alikeFolders(const QString &a, const QString &b)
{
    const QStringList first = a.split(u'/', Qt::SkipEmptyParts);
    const QStringList second = b.split(u'/', Qt::SkipEmptyParts);
    int alike = 0;
    while (alike + 1 < first.size() && alike + 1 < second.size() &&
           FileNames::match(first[first.size() - 2 - alike], second[second.size() - 2 - alike]) !=
               NameMatch::None)
        ++alike;
    return alike;
}

/// Whether two things that are both known agree.
bool agree(const std::optional<double> &a, const std::optional<double> &b, double tolerance)
{
    return a && b && std::abs(*a - *b) <= tolerance;
}

bool agree(const QString &a, const QString &b)
{
    return !a.isEmpty() && a.compare(b, Qt::CaseInsensitive) == 0;
}

/// What the project and a header can both know of a file, the most telling first.
struct Trait {
    const char *contradiction;
    bool (*isKnown)(const MissingFile &missing, const MediaHeader::Facts &header);
    bool (*agrees)(const MissingFile &missing, const MediaHeader::Facts &header);
};

constexpr std::array traits{
    Trait{"other duration",
          [](const MissingFile &missing, const MediaHeader::Facts &header) {
              return missing.seconds && header.seconds;
          },
          [](const MissingFile &missing, const MediaHeader::Facts &header) {
              return agree(missing.seconds, header.seconds, durationTolerance);
          }},
    Trait{"other timecode",
          [](const MissingFile &missing, const MediaHeader::Facts &header) {
              return missing.start && header.start;
          },
          [](const MissingFile &missing, const MediaHeader::Facts &header) {
              return agree(missing.start, header.start, durationTolerance);
          }},
    Trait{"other reel",
          [](const MissingFile &missing, const MediaHeader::Facts &header) {
              return !missing.reel.isEmpty() && !header.reel.isEmpty();
          },
          [](const MissingFile &missing, const MediaHeader::Facts &header) {
              return agree(missing.reel, header.reel);
          }},
    Trait{"other rate",
          [](const MissingFile &missing, const MediaHeader::Facts &header) {
              return missing.rate && header.rate;
          },
          [](const MissingFile &missing, const MediaHeader::Facts &header) {
              return agree(missing.rate, header.rate, rateTolerance);
          }},
};

/// Leaves the candidates that agree with the project in a trait when there are any.
void decideByHeaders(RelinkMatch &match)
{
    if (match.candidates.size() < 2)
        return;
    const MissingFile &missing = match.missing;
    if (!missing.seconds && !missing.start && !missing.rate && missing.reel.isEmpty())
        return;
    for (RelinkCandidate &candidate : match.candidates)
        Relinker::readHeader(candidate);
    for (const Trait &trait : traits) {
        const auto agrees = [&](const RelinkCandidate &candidate) {
            return trait.agrees(missing, *candidate.header);
        };
        if (std::any_of(match.candidates.begin(), match.candidates.end(), agrees))
            std::erase_if(match.candidates, std::not_fn(agrees));
    }
}

/// What the project says about the start of a file, and its reel.
void readTimecode(XmlNode file, MissingFile &missing)
{
    const XmlNode timecode = file.childElement("timecode");
    if (!timecode)
        return;
    missing.reel = timecode.childElement("reel").childElement("name").stringValue();
    const std::optional<FrameRate> ownRate = FrameRate::ofElement(timecode);
    const std::optional<FrameRate> rate = ownRate ? ownRate : FrameRate::ofElement(file);
    bool isNumber = false;
    const qint64 frame = timecode.childElement("frame").stringValue().toLongLong(&isNumber);
    if (rate && isNumber && frame >= 0)
        missing.start = double(frame) * (rate->ntsc ? 1.001 : 1) / double(rate->timebase);
}

/// The record of a file as it is after relinking. The keys come in the order of a new record.
void updateRecord(RowRecord &record, const QString &url, std::int64_t usage, const FileFacts &facts)
{
    const QString path = QVXMLParser::filenameFromPathURLString(url).value_or(QString());
    const MediaFile::PathParts parts = MediaFile::splitPath(path);
    RowRecord updated;
    updated.set(MediaKey::filename, parts.filename);
    updated.set(MediaKey::directory, parts.directory);
    updated.set(MediaKey::rawpath, url);
    updated.set(MediaKey::usageCount, usage);
    updated.set(MediaKey::filetype, MediaFile::fileTypeForPath(path));
    setFileFacts(updated, facts);
    record = updated;
}

} // namespace

std::vector<MissingFile> Relinker::missingFiles() const
{
    static const XmlQuery query(QStringLiteral(".//clipitem/file[1]/pathurl[1]"));
    QSet<QString> missing;
    for (const RowRecordPtr &record : m_document.mediaArray()) {
        if (record->get(MediaKey::missing))
            missing.insert(record->get(MediaKey::rawpath));
    }
    std::vector<MissingFile> files;
    std::unordered_map<QString, std::size_t> indexes;
    for (const XmlNode element : query.evaluate(m_document.xmlNode()).nodes) {
        const QString url = element.stringValue();
        const bool isMissing = missing.contains(url) || !QVXMLParser::filenameFromPathURLString(url);
        if (url.isEmpty() || !isMissing)
            continue;
        const auto [at, isNew] = indexes.try_emplace(url, files.size());
        if (isNew) {
            const QString path = FileNames::pathOfReference(url);
            files.push_back({url, path, MediaFile::splitPath(path).filename, std::nullopt});
        }
        MissingFile &file = files[at->second];
        if (!file.seconds)
            file.seconds = secondsOf(element.parent());
        if (!file.rate)
            file.rate = rateOf(element.parent());
        if (!file.start && file.reel.isEmpty())
            readTimecode(element.parent(), file);
    }
    return files;
}

QSet<QString> Relinker::namesOf(const std::vector<MissingFile> &missing)
{
    QSet<QString> names;
    for (const MissingFile &file : missing) {
        if (!file.name.isEmpty())
            names.insert(FileNames::relaxed(file.name));
    }
    return names;
}

std::vector<RelinkMatch> Relinker::matches(const std::vector<MissingFile> &missing,
                                           const std::vector<FolderWalk::Found> &found)
{
    QHash<QString, std::vector<std::size_t>> byName;
    std::vector<QString> names;
    names.reserve(found.size());
    for (const FolderWalk::Found &file : found) {
        names.push_back(MediaFile::splitPath(file.path).filename);
        byName[FileNames::relaxed(names.back())].push_back(names.size() - 1);
    }
    std::vector<RelinkMatch> matches;
    matches.reserve(missing.size());
    for (const MissingFile &file : missing) {
        RelinkMatch match{file, {}};
        NameMatch best = NameMatch::None;
        const auto alike = byName.constFind(FileNames::relaxed(file.name));
        if (alike != byName.constEnd() && !file.name.isEmpty()) {
            for (const std::size_t index : *alike) {
                const NameMatch name = FileNames::match(file.name, names[index]);
                if (name == NameMatch::None || name > best)
                    continue;
                if (name < best)
                    match.candidates.clear();
                best = name;
                match.candidates.push_back({found[index], name, alikeFolders(file.path, found[index].path)});
            }
        }
        decideByHeaders(match);
        matches.push_back(std::move(match));
    }
    return matches;
}

void Relinker::readHeader(RelinkCandidate &candidate)
{
    if (!candidate.header)
        candidate.header = MediaHeader::read(candidate.file.path);
}

QStringList Relinker::contradictions(const MissingFile &missing, const RelinkCandidate &candidate)
{
    QStringList texts;
    for (const Trait &trait : traits) {
        if (candidate.header && trait.isKnown(missing, *candidate.header) &&
            !trait.agrees(missing, *candidate.header))
            texts.append(QString::fromLatin1(trait.contradiction));
    }
    return texts;
}

std::size_t Relinker::relink(const std::vector<RelinkChoice> &choices)
{
    return relink(choices, MediaUses(m_document));
}

std::size_t Relinker::relink(const std::vector<RelinkChoice> &choices, const MediaUses &uses)
{
    static const XmlQuery query(QStringLiteral(".//file/pathurl[1]"));
    if (!m_document.xmlDoc() || choices.empty() ||
        m_document.refusesWhileSaving(QStringLiteral("The media files cannot be relinked now.")))
        return 0;
    std::unordered_map<QString, std::pair<QString, FileFacts>> places; // by the former URL
    for (const RelinkChoice &choice : choices)
        places.emplace(choice.url,
                       std::pair(FileNames::urlOfPath(choice.file.path, choice.url), choice.file.facts));

    const MenuPtr menu = m_document.sequenceMenu();
    const std::vector<MediaUses::File> files = uses.files({});
    const DocumentEdit edit(m_document, Tab::Media, QStringLiteral("Relink"));
    std::set<int> indexes;
    std::set<QString> relinked;
    for (const XmlNode element : query.evaluate(m_document.xmlNode()).nodes) {
        const QString url = element.stringValue();
        const auto place = places.find(url);
        if (place == places.end())
            continue;
        XmlEdit::setText(element, place->second.first);
        if (!relinked.insert(url).second)
            continue;
        if (const auto file = uses.indexOf(url))
            indexes.insert(files[*file].sequences.begin(), files[*file].sequences.end());
    }
    auto withoutPath = uses.indexesWithoutPath().begin();
    for (const RowRecordPtr &record : m_document.mediaArray()) {
        QString url = record->get(MediaKey::rawpath);
        std::int64_t usage = record->get(MediaKey::usageCount);
        if (url.isNull() && withoutPath != uses.indexesWithoutPath().end()) {
            const MediaUses::File &file = files[*withoutPath++];
            url = file.path;
            usage = file.uses;
        }
        const auto place = places.find(url);
        if (place == places.end())
            continue;
        m_document.willChange(record);
        updateRecord(*record, place->second.first, usage, place->second.second);
    }
    for (const int index : indexes)
        m_document.markSequenceModified(
            QVXMLParser::uuidForNode((*menu)[std::size_t(index)].element).value_or(QString()));
    if (indexes.empty() && !relinked.empty())
        m_document.updateChangeCount();
    return relinked.size();
}

} // namespace vantrell
