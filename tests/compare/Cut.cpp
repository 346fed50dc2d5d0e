#include "tests/compare/Cut.h"

#include <algorithm>

namespace vantrell
{

Picture CutClip::picture(std::int64_t n) const
{
    switch (speed) {
    case Speed::Conformed:
        return {source, in + n * 24 / 25};
    case Speed::Retimed:
        return {source, (in + n) * percent / 100};
    case Speed::Stretched:
        return {source, in + n * percent / 100};
    case Speed::Reversed:
        return {source, in + length - 1 - n};
    case Speed::Plain:
        break;
    }
    return {source, in + n};
}

std::int64_t CutClip::out() const
{
    if (speed == Speed::Conformed)
        return in + (length * 24 + 12) / 25;
    if (speed == Speed::Stretched)
        return in + length * percent / 100;
    return in + length;
}

CutClip CutClip::after(std::int64_t frames) const
{
    CutClip rest = *this;
    rest.start += frames;
    rest.length -= frames;
    if (speed == Speed::Conformed || speed == Speed::Stretched)
        rest.in = picture(frames).second;
    else if (speed != Speed::Reversed)
        rest.in += frames;
    return rest;
}

CutClip CutClip::upTo(std::int64_t frames) const
{
    CutClip head = *this;
    if (speed == Speed::Reversed)
        head.in += length - frames;
    head.length = frames;
    return head;
}

Cut Cut::random(RandomNumbers &random)
{
    Cut cut;
    if (random.oneIn(3)) {
        cut.rate = "<timebase>30</timebase><ntsc>TRUE</ntsc>";
        cut.hasDropFrame = true;
    }
    cut.tracks.resize(1 + std::size_t(random.below(3)));
    const int sources = 2 + random.below(6);
    for (std::size_t track = 0; track < cut.tracks.size(); ++track) {
        std::int64_t at = random.oneIn(2) ? 0 : random.below(40);
        for (int i = 3 + random.below(12); i > 0; --i) {
            CutClip clip;
            clip.source = random.below(sources);
            if (random.oneIn(8))
                clip.source += firstNested;
            else if (random.oneIn(8))
                clip.source += firstGenerator;
            if (clip.source == conformed && !cut.hasDropFrame)
                clip.speed = CutClip::Speed::Conformed;
            clip.start = at;
            clip.length = 4 + random.below(60);
            clip.in = random.below(400);
            clip.isEnabled = !random.oneIn(10);
            cut.tracks[track].push_back(clip);
            at = clip.end() + (random.oneIn(track == 0 ? 5 : 2) ? random.below(50) : 0);
        }
    }
    return cut;
}

std::int64_t Cut::length() const
{
    std::int64_t length = 0;
    for (const auto &track : tracks) {
        for (const CutClip &clip : track)
            length = std::max(length, clip.end());
    }
    return length;
}

std::vector<Picture> Cut::pictures() const
{
    std::vector<Picture> pictures(std::size_t(length()), Picture(-1, 0));
    for (const auto &track : tracks) {
        for (const CutClip &clip : track) {
            for (std::int64_t n = 0; clip.isEnabled && n < clip.length; ++n)
                pictures[std::size_t(clip.start + n)] = clip.picture(n);
        }
    }
    return pictures;
}

QByteArray Cut::xml(const std::vector<std::int64_t> &markers) const
{
    const auto element = [](const char *name, const QByteArray &text) {
        return '<' + QByteArray(name) + '>' + text + "</" + name + '>';
    };
    QByteArray text = "<xmeml version=\"5\"><sequence><name>Cut</name>" + element("rate", rate) +
                      "<timecode>" + element("rate", rate) + "<frame>90000</frame>" +
                      element("displayformat", hasDropFrame ? "DF" : "NDF") + "</timecode>";
    for (std::size_t i = 0; i < markers.size(); ++i)
        text += "<marker><name>M" + QByteArray::number(qlonglong(i)) + "</name><in>" +
                QByteArray::number(qlonglong(markers[i])) + "</in><out>-1</out></marker>";
    text += "<media><video>";
    for (const auto &track : tracks) {
        text += "<track>";
        for (const CutClip &clip : track) {
            const QByteArray number = QByteArray::number(clip.source);
            const bool isGenerator = clip.source >= firstGenerator;
            const char *item = isGenerator ? "generatoritem" : "clipitem";
            text += '<' + QByteArray(item) + "><name>S" + number + "</name>" +
                    element("enabled", clip.isEnabled ? "TRUE" : "FALSE") +
                    element("rate", clip.speed == CutClip::Speed::Conformed
                                        ? "<timebase>24</timebase><ntsc>FALSE</ntsc>"
                                        : rate) +
                    element("start", QByteArray::number(qlonglong(clip.start))) +
                    element("end", QByteArray::number(qlonglong(clip.end()))) +
                    element("in", QByteArray::number(qlonglong(clip.in))) +
                    element("out", QByteArray::number(qlonglong(clip.out())));
            if (!isGenerator && clip.source >= firstNested)
                text += "<sequence id=\"n" + number + "\"><name>N" + number + "</name></sequence>";
            else if (!isGenerator)
                text += "<file id=\"f" + number + "\"><name>F</name><pathurl>file://localhost/media/" +
                        number + ".mov</pathurl></file>";
            const bool isReversed = clip.speed == CutClip::Speed::Reversed;
            if (clip.percent != 100 || isReversed)
                text += "<filter><effect><name>Time Remap</name><effectid>timeremap</effectid><parameter>"
                        "<parameterid>speed</parameterid><value>" +
                        QByteArray::number(clip.percent) +
                        "</value></parameter><parameter><parameterid>reverse</parameterid>" +
                        element("value", isReversed ? "TRUE" : "FALSE") + "</parameter></effect></filter>";
            text += "</" + QByteArray(item) + '>';
        }
        text += "</track>";
    }
    return text + "</video></media></sequence></xmeml>";
}

void Cut::splitAt(std::size_t track, std::int64_t frame)
{
    std::vector<CutClip> &clips = tracks[track];
    for (std::size_t i = 0; i < clips.size(); ++i) {
        if (clips[i].start < frame && frame < clips[i].end()) {
            const CutClip whole = clips[i];
            clips[i] = whole.upTo(frame - whole.start);
            clips.insert(clips.begin() + std::ptrdiff_t(i) + 1, whole.after(frame - whole.start));
            return;
        }
    }
}

void Cut::splitAllAt(std::int64_t frame)
{
    for (std::size_t track = 0; track < tracks.size(); ++track)
        splitAt(track, frame);
}

void Cut::shift(std::size_t track, std::int64_t from, std::int64_t by)
{
    for (CutClip &clip : tracks[track]) {
        if (clip.start >= from)
            clip.start += by;
    }
}

void Cut::clear(std::size_t track, std::int64_t from, std::int64_t to)
{
    splitAt(track, from);
    splitAt(track, to);
    std::erase_if(tracks[track], [=](const CutClip &clip) { return clip.start >= from && clip.end() <= to; });
}

void Cut::recut(RandomNumbers &random)
{
    const std::size_t track = std::size_t(random.below(int(tracks.size())));
    const auto put = [this](std::size_t on, const CutClip &clip) {
        clear(on, clip.start, clip.end());
        std::vector<CutClip> &clips = tracks[on];
        const auto at = std::find_if(clips.begin(), clips.end(),
                                     [&](const CutClip &other) { return other.start > clip.start; });
        clips.insert(at, clip);
    };
    const std::int64_t from = random.below(int(length()) + 1);
    const std::int64_t frames = 1 + random.below(40);
    CutClip fresh;
    fresh.source = random.below(10);
    if (fresh.source == conformed && !hasDropFrame)
        fresh.speed = CutClip::Speed::Conformed;
    fresh.in = random.below(400);
    fresh.start = from;
    fresh.length = frames;
    const int operation = random.below(12);
    if (operation <= 3) {
        if (operation == 0 || operation == 1) { // insert; ripple delete
            splitAllAt(from);
            splitAllAt(from + frames);
        }
        for (std::size_t other = 0; other < tracks.size(); ++other) {
            if (operation == 1)
                clear(other, from, from + frames);
            if (operation <= 1)
                shift(other, from, operation == 0 ? frames : -frames);
        }
        if (operation == 0 || operation == 3) // insert; overwrite
            put(track, fresh);
        if (operation == 2) // lift
            clear(track, from, from + frames);
        return;
    }
    std::vector<CutClip> &clips = tracks[track];
    if (clips.size() < 2)
        return;
    const std::size_t at = std::size_t(random.below(int(clips.size()) - 1));
    CutClip &clip = clips[at];
    const std::int64_t part = 1 + random.below(int(clip.length));
    switch (operation) {
    case 4: // trim the head, the tail follows
        if (part < clip.length)
            clip = clip.after(part);
        break;
    case 5: { // trim the tail, the rest of the track follows
        const std::int64_t end = clip.end();
        if (part < clip.length) {
            clip = clip.upTo(clip.length - part);
            shift(track, end, -part);
        }
        break;
    }
    case 6: // slip
        clip.in += part;
        break;
    case 7: // swap with the next
        std::swap(clips[at], clips[at + 1]);
        std::swap(clips[at].start, clips[at + 1].start);
        clips[at + 1].start = std::max(clips[at + 1].start, clips[at].end());
        if (at + 2 < clips.size() && clips[at + 1].end() > clips[at + 2].start)
            shift(track, clips[at + 2].start, clips[at + 1].end() - clips[at + 2].start);
        break;
    case 8: { // duplicate at the end
        CutClip copy = clip;
        copy.start = length();
        clips.push_back(copy);
        break;
    }
    case 9: { // another speed, in either way of counting, or backwards
        if (clip.speed != CutClip::Speed::Plain || clip.source >= firstGenerator || clip.length < 10)
            break;
        const int kind = random.below(3);
        clip.speed = kind == 0   ? CutClip::Speed::Reversed
                     : kind == 1 ? CutClip::Speed::Retimed
                                 : CutClip::Speed::Stretched;
        if (kind > 0)
            clip.percent = random.oneIn(2) ? 50 : 200;
        if (clip.speed == CutClip::Speed::Stretched) { // as much of the source as before
            const std::int64_t end = clip.end();
            clip.length = clip.length * 100 / clip.percent;
            shift(track, end, clip.end() - end);
        }
        break;
    }
    case 10: { // to another track
        const CutClip moved = clip;
        clips.erase(clips.begin() + std::ptrdiff_t(at));
        put((track + 1) % tracks.size(), moved);
        break;
    }
    default: // switch
        clip.isEnabled = !clip.isEnabled;
    }
}

} // namespace vantrell
