#include "media/MediaUses.h"

#include "media/MediaFile.h"
#include "media/MediaKeys.h"
#include "media/SourceRange.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlQuery.h"

#include <QSet>

#include <algorithm>
#include <map>
#include <unordered_map>

namespace vantrell
{

/// Fills a MediaUses. A clip item may stand before the definition of its file, a nested sequence before its
/// own: both are found first.
class MediaUses::Builder
{
public:
    Builder(MediaUses &uses, MyDocument &document)
        : m_uses(uses)
        , m_document(document)
    {
        collectFiles();
        collectContainers();
        for (const auto &[element, number] : m_numbers)
            fill(element, number);
        noteMenu();
    }

private:
    void collectFiles()
    {
        static const XmlQuery files(QStringLiteral(".//clipitem/file[1]"));
        QHash<QString, std::size_t> latest; // by the id as it stands
        for (const XmlNode file : files.evaluate(m_document.xmlNode()).nodes) {
            const QString id = file.attribute("id");
            const QString url = file.childElement("pathurl").stringValue();
            if (!url.isEmpty()) {
                const std::size_t index = define(url, file);
                m_fileOfItem.emplace(file.parent(), index);
                if (id.isNull())
                    continue;
                latest.insert(id, index);
                if (!m_firstById.contains(id))
                    m_firstById.insert(id, index);
            } else if (const auto known = latest.constFind(id); !id.isNull() && known != latest.constEnd()) {
                m_fileOfItem.emplace(file.parent(), *known);
            }
        }
    }

    std::size_t define(const QString &url, XmlNode file)
    {
        const auto known = m_uses.m_byUrl.constFind(url);
        std::size_t index = 0;
        if (known != m_uses.m_byUrl.constEnd()) {
            index = *known;
        } else {
            const std::optional<QString> urlPath = QVXMLParser::filenameFromPathURLString(url);
            const QString path = urlPath.value_or(url);
            if (!urlPath)
                m_noUrls.insert(url);
            const auto [at, isNew] = m_byPath.try_emplace(path, m_uses.m_files.size());
            index = at->second;
            if (isNew) {
                m_uses.m_files.push_back({path, std::nullopt, isStill(path), false});
                m_rates.emplace_back();
            }
            m_uses.m_byUrl.insert(url, index);
        }
        if (!m_noUrls.isEmpty() && m_noUrls.contains(url))
            m_uses.m_withoutPath.push_back(index);
        if (!m_uses.m_files[index].length)
            m_uses.m_files[index].length = statedDuration(file);
        if (!m_rates[index])
            m_rates[index] = FrameRate::ofElement(file);
        return index;
    }

    static bool isStill(const QString &path) { return MediaFile::fileTypeForPath(path) == MediaKind::image; }

    void collectContainers()
    {
        static const XmlQuery containers(QStringLiteral(".//sequence | .//multiclip"));
        for (const XmlNode element : containers.evaluate(m_document.xmlNode()).nodes) {
            if (!isDefinition(element))
                continue;
            const std::size_t number = m_uses.m_containers.size();
            m_uses.m_containers.emplace_back();
            m_numbers.emplace_back(element, number);
            m_byElement.emplace(element, number);
            const QString id = element.attribute("id");
            auto &byId = element.hasName("sequence") ? m_sequencesById : m_multiclipsById;
            if (!id.isNull() && !byId.contains(id))
                byId.insert(id, number);
        }
    }

    /// Others only refer to one by its id.
    static bool isDefinition(XmlNode element)
    {
        return bool(element.childElement(element.hasName("sequence") ? "media" : "angle"));
    }

    void fill(XmlNode element, std::size_t number)
    {
        static const XmlQuery video(QStringLiteral("./media[1]/video[1]/track/clipitem"));
        static const XmlQuery audio(QStringLiteral("./media[1]/audio[1]/track/clipitem"));
        if (element.hasName("multiclip")) {
            addBelow(element, number, true);
            return;
        }
        for (const XmlNode item : video.evaluate(element).nodes)
            add(item, number, true);
        for (const XmlNode item : audio.evaluate(element).nodes)
            add(item, number, false);
    }

    /// The clip items at any depth, but not those of nested sequences and multiclips.
    void addBelow(XmlNode element, std::size_t number, bool isVideo)
    {
        for (XmlNode child = element.firstChildElement(); child; child = child.nextSiblingElement()) {
            if (child.hasName("clipitem"))
                add(child, number, isVideo && !element.parent().hasName("audio"));
            else if (!addNested(child, number))
                addBelow(child, number, isVideo);
        }
    }

    void add(XmlNode item, std::size_t number, bool isVideo)
    {
        for (XmlNode child = item.firstChildElement(); child; child = child.nextSiblingElement())
            addNested(child, number);
        const std::optional<std::size_t> file = fileOf(item);
        if (!file)
            return;
        const FrameRange range = sourceRangeOf(item, m_rates[*file], m_uses.m_files[*file].length);
        m_uses.m_containers[number].uses.push_back({*file, isVideo, range});
        if (item.childElement("stillframe")
                .stringValue()
                .compare(QStringLiteral("TRUE"), Qt::CaseInsensitive) == 0)
            m_uses.m_files[*file].isStill = m_uses.m_files[*file].isStill || !m_uses.m_files[*file].length;
    }

    bool addNested(XmlNode element, std::size_t number)
    {
        const bool isSequence = element.hasName("sequence");
        if (!isSequence && !element.hasName("multiclip"))
            return false;
        std::optional<std::size_t> nested;
        if (const auto own = m_byElement.find(element); own != m_byElement.end()) {
            nested = own->second;
        } else {
            const auto &byId = isSequence ? m_sequencesById : m_multiclipsById;
            const auto known = byId.constFind(element.attribute("id"));
            if (known != byId.constEnd())
                nested = *known;
        }
        if (nested)
            m_uses.m_containers[number].nested.push_back(*nested);
        return true;
    }

    std::optional<std::size_t> fileOf(XmlNode item) const
    {
        const auto known = m_fileOfItem.find(item);
        if (known != m_fileOfItem.end())
            return known->second;
        const QString id = item.childElement("file").attribute("id");
        const auto defined = id.isNull() ? m_firstById.constEnd() : m_firstById.constFind(id);
        return defined != m_firstById.constEnd() ? std::optional(*defined) : std::nullopt;
    }

    void noteMenu()
    {
        const MenuPtr menu = m_document.sequenceMenu();
        for (std::size_t i = 1; i < menu->size(); ++i) {
            const auto known = m_byElement.find((*menu)[i].element);
            if (known == m_byElement.end())
                continue;
            m_uses.m_containers[known->second].menuIndex = int(i);
            m_uses.m_menu.push_back(known->second);
        }
    }

    MediaUses &m_uses;
    MyDocument &m_document;
    std::unordered_map<QString, std::size_t> m_byPath;
    QSet<QString> m_noUrls;
    std::vector<std::optional<FrameRate>> m_rates; // of the files
    std::unordered_map<XmlNode, std::size_t> m_fileOfItem;
    QHash<QString, std::size_t> m_firstById;
    std::vector<std::pair<XmlNode, std::size_t>> m_numbers;
    std::unordered_map<XmlNode, std::size_t> m_byElement;
    QHash<QString, std::size_t> m_sequencesById;
    QHash<QString, std::size_t> m_multiclipsById;
};

MediaUses::MediaUses(MyDocument &document)
{
    if (!document.xmlDoc())
        return;
    const Builder builder(*this, document);
    markDuplicates();
}

void MediaUses::markDuplicates()
{
    std::map<std::pair<QString, std::int64_t>, std::size_t> firsts;
    for (std::size_t i = 0; i < m_files.size(); ++i) {
        if (!m_files[i].length)
            continue;
        const QString name = MediaFile::splitPath(m_files[i].path).filename;
        const auto [first, isNew] = firsts.try_emplace(std::pair(name, *m_files[i].length), i);
        if (!isNew)
            m_files[i].isDuplicate = m_files[first->second].isDuplicate = true;
    }
}

/// Calls the action with the container and all that it holds at any depth, each once.
void MediaUses::visit(std::size_t container, const std::function<void(const Container &)> &action) const
{
    std::vector<std::size_t> open{container};
    std::vector<bool> seen(m_containers.size());
    seen[container] = true;
    while (!open.empty()) {
        const Container &next = m_containers[open.back()];
        open.pop_back();
        action(next);
        for (const std::size_t nested : next.nested) {
            if (!seen[nested])
                open.push_back(nested);
            seen[nested] = true;
        }
    }
}

std::vector<MediaUses::File> MediaUses::files(const Choice &choice) const
{
    struct Counts {
        std::int64_t video = 0;
        std::int64_t audio = 0;
    };
    std::vector<File> files;
    for (const Definition &file : m_files)
        files.push_back({file.path, {}, file.length, 0, {}, file.isStill, file.isDuplicate});
    std::vector<Counts> counts(files.size());
    std::vector<bool> isCounted(m_containers.size());
    for (const std::size_t sequence : m_menu) {
        const int index = m_containers[sequence].menuIndex;
        const bool isChosen =
            choice.sequences.empty() ||
            std::find(choice.sequences.begin(), choice.sequences.end(), index) != choice.sequences.end();
        if (!isChosen)
            continue;
        visit(sequence, [&](const Container &container) {
            const auto number = std::size_t(&container - m_containers.data());
            for (const Use &use : container.uses) {
                File &file = files[use.file];
                if (file.sequences.empty() || file.sequences.back() != index)
                    file.sequences.push_back(index);
                if (isCounted[number])
                    continue;
                ++(use.isVideo ? counts[use.file].video : counts[use.file].audio);
                file.ranges.push_back(FrameRanges::withHandles(use.range, choice.handles, file.length));
            }
            isCounted[number] = true;
        });
    }
    for (std::size_t i = 0; i < files.size(); ++i) {
        files[i].ranges = FrameRanges::unionOf(std::move(files[i].ranges));
        files[i].uses = counts[i].video != 0 ? counts[i].video : counts[i].audio;
    }
    return files;
}

std::optional<std::size_t> MediaUses::indexOf(const QString &url) const
{
    const auto known = m_byUrl.constFind(url);
    return known != m_byUrl.constEnd() ? std::optional(*known) : std::nullopt;
}

} // namespace vantrell
