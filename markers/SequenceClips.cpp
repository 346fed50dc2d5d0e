#include "markers/SequenceClips.h"

#include "support/text/TextNumbers.h"

#include <QString>

#include <algorithm>
#include <numeric>
#include <optional>

namespace vantrell
{

namespace
{

using Clip = SequenceClips::Clip;

/// A clip or a transition as the track has it; -1 for an edge that lies inside a transition.
struct TrackItem {
    std::int64_t start = -1;
    std::int64_t end = -1;
    XmlNode element;
    bool isTransition = false;
    bool isOff = false;
};

QString textOf(XmlNode element, std::string_view name)
{
    return element.childElement(name).stringValue();
}

bool isOff(XmlNode element)
{
    return textOf(element, "enabled").trimmed().compare(QLatin1String("false"), Qt::CaseInsensitive) == 0;
}

std::int64_t frameIn(XmlNode element)
{
    const QString text = element.stringValue();
    return text.isEmpty() ? -1 : integerValue(text);
}

std::vector<TrackItem> itemsOf(XmlNode track)
{
    std::vector<TrackItem> items;
    for (XmlNode child = track.firstChildElement(); child; child = child.nextSiblingElement()) {
        const bool isTransition = child.isElement("transitionitem");
        if (!isTransition && !child.isElement("clipitem") && !child.isElement("clip") &&
            !child.isElement("generatoritem"))
            continue;
        TrackItem item{-1, -1, child, isTransition, isOff(child)};
        for (XmlNode value = child.firstChildElement(); value; value = value.nextSiblingElement()) {
            if (item.start == -1 && value.isElement("start"))
                item.start = frameIn(value);
            else if (item.end == -1 && value.isElement("end"))
                item.end = frameIn(value);
            if (item.start != -1 && item.end != -1)
                break;
        }
        items.push_back(item);
    }
    return items;
}

/// The frame at which the picture changes from one side of the transition to the other.
std::int64_t cutOf(const TrackItem &transition)
{
    const QString alignment = textOf(transition.element, "alignment").trimmed().toLower();
    if (alignment.startsWith(QLatin1String("start")))
        return transition.start;
    if (alignment.startsWith(QLatin1String("end")))
        return transition.end;
    return transition.start + (transition.end - transition.start) / 2;
}

void addClips(XmlNode track, std::vector<Clip> &clips)
{
    if (isOff(track))
        return;
    const std::vector<TrackItem> items = itemsOf(track);
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i].isTransition || items[i].isOff)
            continue;
        Clip clip{items[i].start, items[i].end, items[i].element};
        const auto length = [&] {
            return frameIn(clip.element.childElement("out")) - frameIn(clip.element.childElement("in"));
        };
        if (clip.start == -1 && i > 0)
            clip.start = items[i - 1].isTransition ? cutOf(items[i - 1]) : items[i - 1].end;
        if (clip.end == -1)
            clip.end = i + 1 < items.size() && items[i + 1].isTransition ? cutOf(items[i + 1])
                                                                         : clip.start + length();
        if (clip.start >= 0 && clip.end > clip.start)
            clips.push_back(clip);
    }
}

/// Puts the clips of tracks, the topmost first, onto one line.
std::vector<Clip> flatten(const std::vector<Clip> &fromTop)
{
    std::vector<std::int64_t> edges;
    for (const Clip &clip : fromTop) {
        edges.push_back(clip.start);
        edges.push_back(clip.end);
    }
    std::sort(edges.begin(), edges.end());
    edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
    const auto indexOf = [&edges](std::int64_t edge) {
        return std::size_t(std::lower_bound(edges.begin(), edges.end(), edge) - edges.begin());
    };
    // Each piece between two edges belongs to the first clip that covers it. `next` leads from a piece
    // towards the first one at or after it that belongs to none yet.
    std::vector<XmlNode> owners(edges.size());
    std::vector<std::size_t> next(edges.size() + 1);
    std::iota(next.begin(), next.end(), std::size_t(0));
    const auto firstFree = [&next](std::size_t piece) {
        while (next[piece] != piece)
            piece = next[piece] = next[next[piece]];
        return piece;
    };
    for (const Clip &clip : fromTop) {
        const std::size_t end = indexOf(clip.end);
        for (std::size_t piece = firstFree(indexOf(clip.start)); piece < end; piece = firstFree(piece)) {
            owners[piece] = clip.element;
            next[piece] = piece + 1;
        }
    }
    std::vector<Clip> clips;
    for (std::size_t piece = 0; piece + 1 < edges.size(); ++piece) {
        if (!owners[piece])
            continue;
        const bool continues =
            !clips.empty() && clips.back().end == edges[piece] && clips.back().element == owners[piece];
        if (continues)
            clips.back().end = edges[piece + 1];
        else
            clips.push_back({edges[piece], edges[piece + 1], owners[piece]});
    }
    return clips;
}

std::vector<XmlNode> tracksOf(XmlNode media)
{
    std::vector<XmlNode> tracks;
    for (XmlNode child = media.firstChildElement(); child; child = child.nextSiblingElement()) {
        if (child.isElement("track"))
            tracks.push_back(child);
    }
    return tracks;
}

} // namespace

SequenceClips SequenceClips::read(XmlNode sequence)
{
    SequenceClips result;
    const XmlNode media = sequence.childElement("media");
    std::vector<XmlNode> tracks = tracksOf(media.childElement("video"));
    std::reverse(tracks.begin(), tracks.end());
    std::vector<Clip> fromTop;
    for (const XmlNode track : tracks)
        addClips(track, fromTop);
    if (fromTop.empty()) {
        for (const XmlNode track : tracksOf(media.childElement("audio")))
            addClips(track, fromTop);
    }
    result.clips = flatten(fromTop);
    const std::int64_t end = result.clips.empty() ? 0 : result.clips.back().end;
    const std::int64_t stated = frameIn(sequence.childElement("duration"));
    result.duration = stated > 0 ? stated : end;
    return result;
}

} // namespace vantrell
