// All markers of an interchange file.

#include "interchange/notes/NoteShapes.h"
#include "interchange/notes/NoteText.h"
#include "xml/XmlDocument.h"
#include "xml/XmlQuery.h"

namespace vantrell::NoteShapes
{

namespace
{

/// Seconds, exactly. Beyond 2^62 parts it counts as no time.
struct Seconds {
    WideInteger numerator = 0;
    WideInteger denominator = 1;

    bool operator<(const Seconds &other) const
    {
        return numerator * other.denominator < other.numerator * denominator;
    }
};

WideInteger greatestDivisor(WideInteger a, WideInteger b)
{
    if (a < 0)
        a = -a;
    while (b != 0) {
        const WideInteger rest = a % b;
        a = b;
        b = rest;
    }
    return a == 0 ? 1 : a;
}

Seconds reduced(WideInteger numerator, WideInteger denominator)
{
    const WideInteger divisor = greatestDivisor(numerator, denominator);
    Seconds seconds{numerator / divisor, denominator / divisor};
    constexpr WideInteger limit = WideInteger(1) << 62;
    if (seconds.numerator > limit || seconds.numerator < -limit || seconds.denominator > limit)
        return {};
    return seconds;
}

Seconds operator+(const Seconds &a, const Seconds &b)
{
    return reduced(a.numerator * b.denominator + b.numerator * a.denominator, a.denominator * b.denominator);
}

Seconds operator-(const Seconds &a, const Seconds &b)
{
    return a + Seconds{-b.numerator, b.denominator};
}

std::optional<Seconds> secondsOf(const QString &text)
{
    const bool isNegative = text.startsWith(QLatin1Char('-'));
    const std::optional<NoteTime> time =
        NoteTime::parse(isNegative ? QStringView(text).sliced(1) : QStringView(text), NoteUnit::Seconds);
    if (!time || time->kind != NoteTime::Kind::Seconds)
        return std::nullopt;
    const WideInteger parts = WideInteger(time->seconds) * time->denominator + time->numerator;
    return reduced(isNegative ? -parts : parts, time->denominator);
}

Seconds secondsOf(XmlNode element, const char *attribute)
{
    return secondsOf(element.attribute(attribute)).value_or(Seconds());
}

/// The lines in which the tags of markers begin, in the order of the text; comments and CDATA do not count.
std::vector<std::size_t> linesOfMarkers(QStringView text)
{
    std::vector<std::size_t> found;
    NoteLines lines(text);
    QStringView line;
    QStringView behind; // what ends the comment or section that the position is in
    while (lines.next(line)) {
        qsizetype at = 0;
        while (at < line.size()) {
            if (!behind.isNull()) {
                const qsizetype end = line.indexOf(behind, at);
                if (end < 0)
                    break;
                at = end + behind.size();
                behind = {};
            }
            at = line.indexOf(u'<', at);
            if (at < 0)
                break;
            const QStringView tag = line.sliced(at + 1);
            if (tag.startsWith(u"!--"))
                behind = u"-->";
            else if (tag.startsWith(u"![CDATA["))
                behind = u"]]>";
            for (const QStringView name : {QStringView(u"marker"), QStringView(u"chapter-marker")}) {
                if (tag.startsWith(name) && (tag.size() == name.size() || tag[name.size()].isSpace() ||
                                             tag[name.size()] == u'/' || tag[name.size()] == u'>'))
                    found.push_back(lines.number());
            }
            ++at;
        }
    }
    return found;
}

bool isMarker(XmlNode element)
{
    return element.hasName("marker") || element.hasName("chapter-marker");
}

/// Whether markers and clips in the element lie on its own time.
bool isItem(XmlNode element)
{
    for (const char *name : {"clip", "asset-clip", "ref-clip", "sync-clip", "mc-clip", "video", "audio",
                             "title", "gap", "transition", "caption"}) {
        if (element.hasName(name))
            return true;
    }
    return false;
}

/// The timeline from an element's point of view.
struct Place {
    Seconds origin;              ///< where zero of the element's own time lies, from the first frame
    std::optional<Seconds> from; ///< what can be seen of it, both ends included
    std::optional<Seconds> to;
};

class Timeline
{
public:
    Timeline(NoteList &list, QStringView text)
        : m_list(list)
        , m_lines(linesOfMarkers(text))
    {
    }

    /// Counts the markers outside the project, which come before it in the text.
    void skipTo(XmlNode root, XmlNode sequence)
    {
        for (XmlNode element = root; element && element != sequence; element = following(element, root)) {
            if (isMarker(element))
                ++m_next;
        }
    }

    void readSequence(XmlNode document, XmlNode sequence)
    {
        readRate(document, sequence);
        for (XmlNode spine = sequence.firstChildElement(); spine; spine = spine.nextSiblingElement()) {
            if (!spine.hasName("spine")) {
                skip(spine);
                continue;
            }
            // Offsets count from the sequence's first timecode, or from zero where they begin below that.
            const Seconds start = secondsOf(sequence, "tcStart");
            const XmlNode first = spine.firstChildElement();
            const bool fromStart = first && !(secondsOf(first, "offset") < start);
            Place place;
            if (fromStart)
                place.origin = Seconds() - start;
            readChildren(spine, place);
        }
    }

private:
    static XmlNode following(XmlNode element, XmlNode root)
    {
        XmlNode next = element.firstChildElement();
        while (!next && element && element != root) {
            next = element.nextSiblingElement();
            if (!next)
                element = element.parent();
        }
        return next;
    }

    void skip(XmlNode element)
    {
        for (XmlNode inner = element; inner; inner = following(inner, element)) {
            if (isMarker(inner))
                ++m_next;
        }
    }

    void readRate(XmlNode document, XmlNode sequence)
    {
        static const XmlQuery formats(QStringLiteral("./fcpxml[1]/resources[1]/format"));
        const QString wanted = sequence.attribute("format");
        XmlNode chosen;
        for (const XmlNode format : formats.evaluate(document).nodes) {
            const bool isWanted = !wanted.isNull() && format.attribute("id") == wanted;
            if (!format.attribute("frameDuration").isNull() && (!chosen || isWanted))
                chosen = format;
        }
        const std::optional<Seconds> frame =
            chosen ? secondsOf(chosen.attribute("frameDuration")) : std::optional<Seconds>();
        if (frame && frame->numerator > 0) {
            const bool ntsc = frame->numerator % 1001 == 0;
            const WideInteger timebase = ntsc ? frame->denominator * 1001 / (frame->numerator * 1000)
                                              : frame->denominator / frame->numerator;
            if (timebase > 0 && timebase < 1000)
                m_rate =
                    NoteRate{qint64(timebase), ntsc, sequence.attribute("tcFormat") == QLatin1String("DF")};
            m_list.rate = m_rate;
        }
        const Seconds start = secondsOf(sequence, "tcStart");
        m_startFrame =
            roundedQuotient(start.numerator * m_rate.numerator(), start.denominator * m_rate.denominator());
    }

    void readChildren(XmlNode parent, const Place &place)
    {
        bool isFirst = true;
        for (XmlNode child = parent.firstChildElement(); child; child = child.nextSiblingElement()) {
            if (parent.hasName("audition") && !isFirst)
                skip(child); // only the first one is used
            else
                readElement(child, place);
            isFirst = false;
        }
    }

    void readElement(XmlNode element, const Place &place)
    {
        if (isMarker(element)) {
            addMarker(element, place);
        } else if (element.hasName("spine")) {
            Place inside = place;
            if (!element.attribute("offset").isNull())
                inside.origin = place.origin + secondsOf(element, "offset");
            if (!element.attribute("lane").isNull())
                inside.from = inside.to = std::nullopt;
            readChildren(element, inside);
        } else if (isItem(element)) {
            readChildren(element, placeOf(element, place));
        } else if (element.hasName("audition")) {
            readChildren(element, place);
        } else {
            skip(element);
        }
    }

    /// An item's own time: its offset on the parent's is where its start lies.
    static Place placeOf(XmlNode item, const Place &parent)
    {
        const Seconds begin = parent.origin + secondsOf(item, "offset");
        Place place;
        place.origin = begin - secondsOf(item, "start");
        if (const std::optional<Seconds> duration = secondsOf(item.attribute("duration"))) {
            place.from = begin;
            place.to = begin + *duration;
        }
        const bool isConnected = !item.attribute("lane").isNull();
        if (!isConnected && parent.from && (!place.from || *place.from < *parent.from))
            place.from = parent.from;
        if (!isConnected && parent.to && (!place.to || *parent.to < *place.to))
            place.to = parent.to;
        return place;
    }

    void addMarker(XmlNode marker, const Place &place)
    {
        const std::size_t line = m_next < m_lines.size() ? m_lines[m_next] : 1;
        ++m_next;
        const Seconds at = place.origin + secondsOf(marker, "start");
        if ((place.from && at < *place.from) || (place.to && *place.to < at))
            return;
        NoteRow row;
        row.line = line;
        const qint64 frame = m_startFrame + roundedQuotient(at.numerator * m_rate.numerator(),
                                                            at.denominator * m_rate.denominator());
        row.time = m_list.keep(timecodeOf(std::max<qint64>(frame, 0)));
        row.duration = kept(marker.attribute("duration"));
        row.name = kept(marker.attribute("value"));
        row.comment = kept(marker.attribute("note"));
        const QString completed = marker.attribute("completed");
        if (marker.hasName("chapter-marker"))
            row.type = u"chapter";
        else if (completed.isNull())
            row.type = u"standard";
        else
            row.type = completed == QLatin1String("1") ? QStringView(u"completed") : QStringView(u"to-do");
        m_list.add(row);
    }

    QStringView kept(const QString &text) { return text.isEmpty() ? QStringView() : m_list.keep(text); }

    QString timecodeOf(qint64 frame) const
    {
        const NoteRate::Label label = m_rate.labelOf(frame);
        const auto field = [](qint64 value) {
            return QString::number(value).rightJustified(2, QLatin1Char('0'));
        };
        return field(label.seconds / 3600) + QLatin1Char(':') + field(label.seconds / 60 % 60) +
               QLatin1Char(':') + field(label.seconds % 60) + QLatin1Char(m_rate.dropFrame ? ';' : ':') +
               field(label.frames);
    }

    NoteList &m_list;
    const std::vector<std::size_t> m_lines;
    std::size_t m_next = 0; ///< of the markers in document order
    NoteRate m_rate;
    qint64 m_startFrame = 0;
};

} // namespace

bool isFcpxml(QStringView text)
{
    return text.left(1000).trimmed().startsWith(u'<') && text.left(10000).contains(u"<fcpxml");
}

void readFcpxml(QStringView text, const QByteArray &bytes, NoteList &list)
{
    static const XmlQuery sequences(QStringLiteral("./fcpxml[1]//project/sequence[1]"));
    list.shape = NoteShape::Fcpxml;
    list.columns = {NoteRole{NoteRole::Time}, NoteRole{NoteRole::Duration}, NoteRole{NoteRole::Name},
                    NoteRole{NoteRole::Comment}, NoteRole{NoteRole::Type}};
    const Result<std::unique_ptr<XmlDocument>> parsed = XmlDocument::fromData(bytes, {true, nullptr});
    if (!parsed) {
        list.unreadable.push_back({1, parsed.message()});
        return;
    }
    const XmlNode document = parsed.value()->node();
    const XmlNode sequence = sequences.first(document);
    if (!sequence)
        return;
    list.title = sequence.parent().attribute("name");
    Timeline timeline(list, text);
    timeline.skipTo(parsed.value()->rootElement(), sequence);
    timeline.readSequence(document, sequence);
}

} // namespace vantrell::NoteShapes
