#include "handover/Relinker.h"

#include "document/DocumentEdit.h"
#include "handover/MediaHeader.h"
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
#include <cmath>
#include <set>
#include <unordered_map>

namespace vantrell
{

namespace
{

constexpr double durationTolerance = 0.1; // seconds: a few frames, for sound that ends beside its picture

std::optional<double> secondsOf(XmlNode file)
{
    const std::optional<std::int64_t> frames = statedDuration(file);
    const std::optional<FrameRate> rate = FrameRate::ofElement(file);
    if (!frames || !rate || *frames <= 0)
        return std::nullopt;
    return double(*frames) * (rate->ntsc ? 1.001 : 1) / double(rate->timebase);
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

bool hasDuration(const RelinkCandidate &candidate, double seconds)
{
    return candidate.seconds && std::abs(*candidate.seconds - seconds) <= durationTolerance;
}

/// Leaves the candidates of the expected duration when there are any.
void decideByDuration(RelinkMatch &match)
{
    if (match.candidates.size() < 2 || !match.missing.seconds)
        return;
    for (RelinkCandidate &candidate : match.candidates)
        candidate.seconds = MediaHeader::durationOf(candidate.file.path);
    const double seconds = *match.missing.seconds;
    const auto fits = [seconds](const RelinkCandidate &candidate) { return hasDuration(candidate, seconds); };
    if (std::any_of(match.candidates.begin(), match.candidates.end(), fits))
        std::erase_if(match.candidates, std::not_fn(fits));
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
    if (!facts.exists)
        updated.set(MediaKey::missing, true);
    if (facts.modified)
        updated.set(MediaKey::modDate, QDateTime::fromMSecsSinceEpoch(*facts.modified, Qt::UTC));
    if (facts.size)
        updated.set(MediaKey::filesize, *facts.size);
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
        if (!files[at->second].seconds)
            files[at->second].seconds = secondsOf(element.parent());
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
                match.candidates.push_back(
                    {found[index], name, alikeFolders(file.path, found[index].path), std::nullopt});
            }
        }
        decideByDuration(match);
        matches.push_back(std::move(match));
    }
    return matches;
}

std::size_t Relinker::relink(const std::vector<RelinkChoice> &choices)
{
    static const XmlQuery query(QStringLiteral(".//file/pathurl[1]"));
    if (!m_document.xmlDoc() || choices.empty() ||
        m_document.refusesWhileSaving(QStringLiteral("The media files cannot be relinked now.")))
        return 0;
    std::unordered_map<QString, std::pair<QString, FileFacts>> places; // by the former URL
    for (const RelinkChoice &choice : choices)
        places.emplace(choice.url,
                       std::pair(FileNames::urlOfPath(choice.file.path, choice.url), choice.file.facts));

    const MediaUses uses(m_document);
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
