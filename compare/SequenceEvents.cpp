#include "compare/SequenceEvents.h"

#include "compare/ItemSpeed.h"
#include "support/text/TextNumbers.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlQuery.h"

#include <QHash>
#include <QStringList>

#include <algorithm>

namespace vantrell
{

namespace
{

constexpr std::int64_t openEdge = -1; // an edge that lies inside a transition

QString textOf(XmlNode element, std::string_view name)
{
    return element.childElement(name).stringValue().trimmed();
}

std::int64_t numberOf(XmlNode element, std::string_view name, std::int64_t absent)
{
    const XmlNode child = element.childElement(name);
    const QString text = child.stringValue();
    return child && !text.isEmpty() ? integerValue(text) : absent;
}

bool isOff(XmlNode element)
{
    return textOf(element, "enabled").compare(QLatin1String("false"), Qt::CaseInsensitive) == 0;
}

/// The path that a pathurl means, however the local host is written.
QString pathOf(const QString &url)
{
    const QString path = QVXMLParser::filenameFromPathURLString(url).value_or(url);
    return path.isEmpty() ? QString() : path;
}

/// Elements that stand once with their content and elsewhere with their id alone.
class Definitions
{
public:
    Definitions(XmlNode anywhere, const QString &query)
        : m_anywhere(anywhere)
        , m_query(query)
    {
    }

    /// The element itself, or the one of its id that has content.
    XmlNode of(XmlNode element)
    {
        if (element.firstChildElement())
            return element;
        if (!m_isRead)
            read();
        return m_byId.value(element.attribute("id"), element);
    }

private:
    void read()
    {
        m_isRead = true;
        for (const XmlNode found : XmlQuery(m_query).evaluate(m_anywhere).nodes) {
            const QString id = found.attribute("id");
            if (!id.isEmpty() && found.firstChildElement() && !m_byId.contains(id))
                m_byId.insert(id, found);
        }
    }

    XmlNode m_anywhere;
    QString m_query;
    bool m_isRead = false;
    QHash<QString, XmlNode> m_byId;
};

/// The file of the angle of a multiclip that is seen or heard.
XmlNode fileOfActiveAngle(XmlNode multiclip, bool isAudio)
{
    const std::string_view flag = isAudio ? "activeaudioangle" : "activevideoangle";
    for (XmlNode angle = multiclip.firstChildElement(); angle; angle = angle.nextSiblingElement()) {
        if (angle.isElement("angle") &&
            textOf(angle, flag).compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
            return angle.childElement("clip").childElement("file");
    }
    return XmlNode();
}

class Reader
{
public:
    explicit Reader(SequenceEvents &result)
        : m_result(result)
        , m_rate(result.rate)
        , m_files(result.sequence.root(), QStringLiteral("//file"))
        , m_sequences(result.sequence.root(), QStringLiteral("//sequence"))
    {
    }

    void readMedia(XmlNode media, bool isAudio)
    {
        int index = 0;
        for (XmlNode track = media.firstChildElement(); track; track = track.nextSiblingElement()) {
            if (track.isElement("track"))
                readTrack(track, isAudio, index++);
        }
    }

private:
    struct Item {
        XmlNode element;
        std::int64_t start; ///< as written
        std::int64_t end;
        bool isTransition;
    };

    void readTrack(XmlNode track, bool isAudio, int index)
    {
        m_items.clear();
        for (XmlNode child = track.firstChildElement(); child; child = child.nextSiblingElement()) {
            const bool isTransition = child.isElement("transitionitem");
            if (isTransition || child.isElement("clipitem") || child.isElement("clip") ||
                child.isElement("generatoritem"))
                m_items.push_back({child, numberOf(child, "start", openEdge),
                                   numberOf(child, "end", openEdge), isTransition});
        }
        const std::size_t first = m_result.events.size();
        const bool isTrackOff = isOff(track);
        for (std::size_t i = 0; i < m_items.size(); ++i) {
            TrackEvent event;
            event.isAudio = isAudio;
            event.track = index;
            event.element = m_items[i].element;
            event.isEnabled = !isTrackOff && !isOff(event.element);
            if (m_items[i].isTransition)
                readTransition(m_items[i], event);
            else
                readItem(i, event);
            if (event.start >= 0 && event.length() > 0)
                m_result.events.push_back(std::move(event));
        }
        addGaps(first, isAudio, index);
    }

    static void readTransition(const Item &item, TrackEvent &event)
    {
        event.kind = TrackEvent::Kind::Transition;
        event.start = item.start;
        event.end = item.end;
        event.name = textOf(item.element.childElement("effect"), "name");
        if (event.name.isEmpty())
            event.name = textOf(item.element, "name");
    }

    /// The frame at which the picture changes from one side of the transition to the other.
    static std::int64_t cutOf(const Item &transition)
    {
        const QString alignment = textOf(transition.element, "alignment").toLower();
        if (alignment.startsWith(QLatin1String("start")))
            return transition.start;
        if (alignment.startsWith(QLatin1String("end")))
            return transition.end;
        return transition.start + (transition.end - transition.start) / 2;
    }

    void readItem(std::size_t at, TrackEvent &event)
    {
        const Item &item = m_items[at];
        const Item *before = at > 0 ? &m_items[at - 1] : nullptr;
        const Item *after = at + 1 < m_items.size() ? &m_items[at + 1] : nullptr;
        const bool opens = item.start == openEdge && before && before->isTransition;
        const bool closes = item.end == openEdge && after && after->isTransition;
        ItemRange range; // with its handles inside the transitions
        range.in = std::max<std::int64_t>(numberOf(item.element, "in", 0), 0);
        const std::int64_t out = numberOf(item.element, "out", openEdge);
        if (out != openEdge)
            range.out = out;
        range.start = opens ? before->start : item.start;
        range.end = closes ? after->end : item.end;
        const std::int64_t length = out == openEdge ? 0 : out - range.in;
        if (range.start == openEdge && range.end != openEdge)
            range.start = length > 0 ? range.end - length : before ? before->end : 0;
        else if (range.start == openEdge)
            range.start = before ? before->end : 0;
        if (range.end == openEdge)
            range.end = range.start + length;
        event.start = opens ? cutOf(*before) : range.start;
        event.end = closes ? cutOf(*after) : range.end;
        // Some write in and out points without the handles.
        if (length > 0 && length != range.end - range.start && length == event.length()) {
            range.start = event.start;
            range.end = event.end;
        }
        event.kind =
            item.element.isElement("generatoritem") ? TrackEvent::Kind::Generator : TrackEvent::Kind::Clip;
        event.name = QVXMLParser::nameForNode(item.element).value_or(QStringLiteral(""));
        event.mapping = mappingOf(item.element, range, m_rate);
        if (event.start != range.start) {
            const std::int64_t handle = event.start - range.start;
            const SourceMapping &mapping = event.mapping;
            const Ratio way = mapping.step * Ratio(handle);
            event.mapping.markOrigin = range.in + (mapping.markStep * Ratio(handle)).floor();
            event.mapping.origin =
                mapping.isReversed ? Ratio(mapping.sourceAt(handle)) : mapping.origin + way;
        }
        event.source = sourceOf(event);
        event.effects = effectsOf(item.element);
    }

    int sourceOf(const TrackEvent &event)
    {
        MediaSource source;
        const XmlNode item = event.element;
        if (event.kind == TrackEvent::Kind::Generator) {
            const QString effect = textOf(item.childElement("effect"), "name");
            source.name = QStringLiteral("generator:") + effect + QLatin1Char('/') + event.name;
            return indexOf(source);
        }
        XmlNode file = item.childElement("file");
        const XmlNode nested = item.childElement("sequence");
        if (!file && !nested)
            file = fileOfActiveAngle(item.childElement("multiclip"), event.isAudio);
        if (file) {
            source = m_sourcesOfIds.value(file.attribute("id"));
            if (source.id.isEmpty()) {
                const XmlNode whole = m_files.of(file);
                source.id = file.attribute("id");
                source.path = pathOf(textOf(whole, "pathurl"));
                source.name = textOf(whole, "name");
                if (!source.id.isEmpty())
                    m_sourcesOfIds.insert(source.id, source);
            }
        } else if (nested) {
            const XmlNode whole = m_sequences.of(nested);
            source.id = nested.attribute("id");
            source.name = textOf(whole, "name");
        } else {
            source.id = textOf(item, "masterclipid");
        }
        if (source.name.isEmpty())
            source.name = event.name;
        source.still = textOf(item, "stillframeoffset");
        return indexOf(source);
    }

    int indexOf(const MediaSource &source)
    {
        const QString key =
            source.path + QChar(0) + source.id + QChar(0) + source.name + QChar(0) + source.still;
        const auto known = m_indexes.constFind(key);
        if (known != m_indexes.constEnd())
            return *known;
        const int index = int(m_result.sources.size());
        m_result.sources.push_back(source);
        m_indexes.insert(key, index);
        return index;
    }

    static QString effectsOf(XmlNode item)
    {
        QStringList effects;
        for (XmlNode child = item.firstChildElement(); child; child = child.nextSiblingElement()) {
            if (child.isElement("filter") && !ItemSpeed::isTimeRemap(child))
                effects.append(textOf(child.childElement("effect"), "name") +
                               (isOff(child) ? QStringLiteral("\n-") : QStringLiteral("\n+")));
        }
        effects.sort();
        effects.append(isOff(item) ? QStringLiteral("-") : QStringLiteral("+"));
        return effects.join(QLatin1Char('\n'));
    }

    /// Puts the track's events in the order of time and fills what is between them.
    void addGaps(std::size_t first, bool isAudio, int index)
    {
        std::vector<TrackEvent> &events = m_result.events;
        const auto begin = events.begin() + std::ptrdiff_t(first);
        std::stable_sort(begin, events.end(),
                         [](const TrackEvent &a, const TrackEvent &b) { return a.start < b.start; });
        std::vector<TrackEvent> filled;
        std::int64_t end = 0;
        for (auto event = begin; event != events.end(); ++event) {
            if (event->isItem() && event->start > end) {
                TrackEvent gap;
                gap.kind = TrackEvent::Kind::Gap;
                gap.isAudio = isAudio;
                gap.track = index;
                gap.name = QStringLiteral("Gap");
                gap.start = end;
                gap.end = event->start;
                filled.push_back(std::move(gap));
            }
            if (event->isItem())
                end = std::max(end, event->end);
            filled.push_back(std::move(*event));
        }
        events.erase(begin, events.end());
        std::move(filled.begin(), filled.end(), std::back_inserter(events));
    }

    SequenceEvents &m_result;
    Ratio m_rate;
    Definitions m_files;
    Definitions m_sequences;
    QHash<QString, int> m_indexes;
    QHash<QString, MediaSource> m_sourcesOfIds;
    std::vector<Item> m_items; // of the track
};

} // namespace

SequenceEvents SequenceEvents::read(XmlNode sequence)
{
    SequenceEvents result;
    result.sequence = sequence;
    if (!sequence)
        return result;
    result.name = QVXMLParser::nameForNode(sequence).value_or(QStringLiteral(""));
    result.uuid = QVXMLParser::uuidForNode(sequence);
    result.rate = rateOf(sequence);
    if (result.rate.isZero())
        result.rate = rateOf(sequence.childElement("timecode"));
    Reader reader(result);
    const XmlNode media = sequence.childElement("media");
    reader.readMedia(media.childElement("video"), false);
    reader.readMedia(media.childElement("audio"), true);
    std::int64_t end = 0;
    for (const TrackEvent &event : result.events)
        end = std::max(end, event.end);
    result.duration = numberOf(sequence, "duration", end);
    return result;
}

} // namespace vantrell
