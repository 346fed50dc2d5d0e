#include "bench/ProjectGenerator.h"

#include "bench/ProjectEffects.h"
#include "bench/ProjectText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <optional>
#include <string>

namespace vantrell::bench
{

namespace
{

/// What a Draw is for: draws of different kinds are independent.
enum Kind : std::uint64_t { FileKind = 1, SequenceKind, ClipKind, CutKind, OverlayKind, SequenceMarkerKind };

struct Rate {
    std::int64_t timebase;
    bool ntsc;
};

constexpr std::array<Rate, 4> kRates{{{25, false}, {24, true}, {24, false}, {50, false}}};
constexpr Rate kDropFrameRate{30, true};
/// 01:00:00;00 as a count of frames.
constexpr std::int64_t kDropFrameHour = 107892;

struct Color {
    int red, green, blue;
};

constexpr std::array<Color, 8> kColors{{{255, 0, 0},
                                        {255, 127, 0},
                                        {255, 255, 0},
                                        {48, 191, 72},
                                        {48, 191, 191},
                                        {0, 128, 255},
                                        {127, 0, 255},
                                        {255, 0, 127}}};

constexpr std::array kLabels{"None", "B Roll", "Interview", "Best Take", "Iris"};

std::string numbered(const char *prefix, std::int64_t number)
{
    return prefix + std::to_string(number);
}

std::string decimal(double value)
{
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.4g", value);
    return text.data();
}

struct MediaFile {
    std::string name;
    std::string path;
    std::int64_t duration;
    bool isStill, isSound;
};

struct SequenceTime {
    Rate rate;
    bool dropFrame;
    std::int64_t startFrame;
};

/// A clip of the first video track; the audio below it follows from it.
struct Cut {
    std::int64_t file;
    std::int64_t duration;
    std::int64_t in;
    bool dissolveAfter;
};

class ProjectGenerator
{
public:
    ProjectGenerator(const ProjectShape &shape, XmlStream &xml)
        : m_shape(shape)
        , m_xml(xml)
    {
        // In projects of a known size a clip item takes about 2.5 kB; a file is used by a dozen of them.
        if (m_shape.files == 0) {
            const double clips = m_shape.megabytes > 0 ? m_shape.megabytes * 400
                                                       : double(m_shape.sequences) * double(m_shape.clips);
            m_shape.files = std::max<std::int64_t>(1, std::llround(clips / 12));
        }
    }

    void write()
    {
        m_xml.declaration("xmeml");
        const Element root(m_xml, "xmeml", {{"version", "5"}});
        const Element project(m_xml, "project");
        m_xml.leaf("name", "Benchmark project");
        const Element children(m_xml, "children");
        writeBins();
        planSequences();
        for (std::int64_t i = 0; i < m_shape.sequences; ++i)
            writeSequence(m_xml, i);
        m_counts.sequences = m_shape.sequences;
        m_counts.files = m_shape.files;
    }

    ProjectCounts counts() const { return m_counts; }

private:
    /// With a target size: as many sequences of about the wanted number of clips as fit.
    void planSequences()
    {
        if (m_shape.megabytes <= 0)
            return;
        XmlStream probe(nullptr, m_shape.whiteSpace);
        ProjectGenerator measured(m_shape, probe);
        {
            // The depth of sequences.
            const Element root(probe, "xmeml"), project(probe, "project"), children(probe, "children");
            for (std::int64_t i = 0; i < 3; ++i)
                measured.writeSequence(probe, i);
        }
        const double bytesPerSequence = double(probe.bytes()) / 3;
        const double left = std::max(0.0, m_shape.megabytes * 1e6 - double(m_xml.bytes()));
        m_shape.sequences = std::max<std::int64_t>(1, std::llround(left / bytesPerSequence));
        const double scale = left / (bytesPerSequence * double(m_shape.sequences));
        m_shape.clips = std::max<std::int64_t>(1, std::llround(double(m_shape.clips) * scale));
    }

    Draw draw(Kind kind, std::int64_t first, std::int64_t second = 0) const
    {
        return Draw(m_shape.seed, kind, std::uint64_t(first), std::uint64_t(second));
    }

    MediaFile mediaFile(std::int64_t number) const
    {
        Draw random = draw(FileKind, number);
        MediaFile file;
        file.isStill = random.chance(0.06);
        file.isSound = !file.isStill && random.chance(0.1);
        file.name = phrase(random, 2, 4);
        file.name += numbered(" ", random.between(1, 99)) + numbered("_", number);
        file.name += file.isStill ? ".tif" : file.isSound ? ".wav" : ".mov";
        file.path = "/Volumes/Media " + std::to_string(number % 3 + 1) + "/Season 2/" + phrase(random, 1, 2) +
                    "/" + file.name;
        file.duration = random.between(600, 24000);
        return file;
    }

    SequenceTime sequenceTime(std::int64_t number) const
    {
        Draw random = draw(SequenceKind, number);
        if (random.chance(m_shape.dropFrameShare))
            return {kDropFrameRate, true, kDropFrameHour};
        const Rate rate = kRates[random.below(kRates.size())];
        return {rate, false, rate.timebase * 3600 * random.between(0, 10)};
    }

    Cut cut(std::int64_t sequence, std::int64_t number) const
    {
        Draw random = draw(CutKind, sequence, number);
        Cut result;
        result.file = std::int64_t(random.below(std::uint64_t(m_shape.files)));
        result.duration = random.between(30, 260);
        result.in = random.between(0, 300);
        result.dissolveAfter = random.chance(0.07);
        return result;
    }

    void writeRate(XmlStream &xml, Rate rate)
    {
        const Element element(xml, "rate");
        xml.leaf("timebase", rate.timebase);
        xml.leaf("ntsc", rate.ntsc ? "TRUE" : "FALSE");
    }

    void writeTimecode(XmlStream &xml, const SequenceTime &time)
    {
        const Element element(xml, "timecode");
        writeRate(xml, time.rate);
        xml.leaf("string",
                 time.dropFrame ? "01:00:00;00" : plainTimecode(time.startFrame, time.rate.timebase));
        xml.leaf("frame", time.startFrame);
        xml.leaf("source", "source");
        xml.leaf("displayformat", time.dropFrame ? "DF" : "NDF");
    }

    void writeMarker(XmlStream &xml, Draw &random, std::int64_t in)
    {
        ++m_counts.markers;
        const Element marker(xml, "marker");
        xml.leaf("name", phrase(random, 1, 4));
        xml.leaf("comment", comment(random));
        {
            const Element element(xml, "color");
            const Color color = kColors[random.below(kColors.size())];
            xml.leaf("alpha", 0);
            xml.leaf("red", color.red);
            xml.leaf("green", color.green);
            xml.leaf("blue", color.blue);
        }
        xml.leaf("in", in);
        xml.leaf("out", random.chance(0.6) ? -1 : in + random.between(1, 120));
    }

    void writeEffect(XmlStream &xml, Draw &random, const Effect &effect, const char *type, bool video)
    {
        const Element element(xml, "effect");
        xml.leaf("name", effect.name);
        xml.leaf("effectid", effect.id);
        xml.leaf("effectcategory", effect.category);
        xml.leaf("effecttype", type);
        xml.leaf("mediatype", video ? "video" : "audio");
        for (const Parameter &parameter : effect.parameters) {
            if (!parameter.id)
                break;
            const Element inner(xml, "parameter");
            const auto value = [&] {
                const double share = double(random.between(0, 1000)) / 1000;
                return decimal(parameter.smallest + share * (parameter.largest - parameter.smallest));
            };
            xml.leaf("parameterid", parameter.id);
            xml.leaf("name", parameter.name);
            if (parameter.isPoint) {
                const Element point(xml, "value");
                xml.leaf("horiz", value());
                xml.leaf("vert", value());
            } else {
                xml.leaf("valuemin", decimal(parameter.smallest));
                xml.leaf("valuemax", decimal(parameter.largest));
                xml.leaf("value", value());
            }
        }
    }

    void writeFilters(XmlStream &xml, Draw &random, bool video)
    {
        for (std::int64_t count = random.around(m_shape.filters); count > 0; --count) {
            ++m_counts.effects;
            const Effect &effect = video ? kVideoEffects[random.below(kVideoEffects.size())]
                                         : kAudioEffects[random.below(kAudioEffects.size())];
            const Element filter(xml, "filter");
            xml.leaf("enabled", random.chance(0.85) ? "TRUE" : "FALSE");
            writeEffect(xml, random, effect, effect.type, video);
        }
    }

    void writeLogging(XmlStream &xml, Draw &random)
    {
        {
            const Element element(xml, "logginginfo");
            xml.leaf("description", random.chance(0.3) ? phrase(random, 2, 6) : std::string());
            xml.leaf("scene", random.chance(0.4) ? std::to_string(random.between(1, 90)) : std::string());
            xml.leaf("shottake", random.chance(0.4) ? std::to_string(random.between(1, 9)) : std::string());
            xml.leaf("lognote", random.chance(0.1) ? phrase(random, 2, 9) : std::string());
            xml.leaf("good", random.chance(0.2) ? "TRUE" : "FALSE");
        }
        const Element element(xml, "labels");
        xml.leaf("label2", kLabels[random.below(kLabels.size())]);
    }

    void writeFile(XmlStream &xml, std::int64_t number, const MediaFile &file, Draw &random)
    {
        const Element element(xml, "file", {{"id", numbered("file-", number + 1)}});
        xml.leaf("name", file.name);
        xml.leaf("pathurl", "file://localhost" + percentEscaped(file.path));
        writeRate(xml, {25, false});
        xml.leaf("duration", file.duration);
        writeTimecode(xml, {{25, false}, false, random.between(0, 2000000)});
        const Element media(xml, "media");
        if (!file.isSound) {
            const Element video(xml, "video");
            xml.leaf("duration", file.duration);
            const Element format(xml, "samplecharacteristics");
            writeRate(xml, {25, false});
            xml.leaf("width", 1920);
            xml.leaf("height", 1080);
            xml.leaf("anamorphic", "FALSE");
            xml.leaf("pixelaspectratio", "square");
            xml.leaf("fielddominance", "none");
        }
        if (!file.isStill) {
            const Element audio(xml, "audio");
            {
                const Element format(xml, "samplecharacteristics");
                xml.leaf("depth", 16);
                xml.leaf("samplerate", 48000);
            }
            xml.leaf("channelcount", 2);
        }
    }

    void writeMasterClip(std::int64_t number)
    {
        Draw random = draw(ClipKind, -1, number);
        const MediaFile file = mediaFile(number);
        const std::string id = numbered("masterclip-", number + 1);
        const Element clip(m_xml, "clip", {{"id", id}});
        m_xml.leaf("uuid", uuid(random));
        m_xml.leaf("updatebehavior", "add");
        m_xml.leaf("name", file.name.substr(0, file.name.size() - 4));
        m_xml.leaf("duration", file.duration);
        writeRate(m_xml, {25, false});
        m_xml.leaf("in", -1);
        m_xml.leaf("out", -1);
        m_xml.leaf("masterclipid", id);
        m_xml.leaf("ismasterclip", "TRUE");
        writeLogging(m_xml, random);
        {
            const Element media(m_xml, "media");
            const Element kind(m_xml, file.isSound ? "audio" : "video");
            const Element track(m_xml, "track");
            const Element item(m_xml, "clipitem", {{"id", id + "-item"}});
            m_xml.leaf("name", file.name.substr(0, file.name.size() - 4));
            m_xml.leaf("duration", file.duration);
            writeRate(m_xml, {25, false});
            m_xml.leaf("in", 0);
            m_xml.leaf("out", file.duration);
            m_xml.leaf("start", 0);
            m_xml.leaf("end", file.duration);
            m_xml.leaf("masterclipid", id);
            if (file.isStill)
                m_xml.leaf("stillframe", "TRUE");
            writeFile(m_xml, number, file, random);
        }
        for (std::int64_t count = random.around(m_shape.clipMarkers); count > 0; --count)
            writeMarker(m_xml, random, random.between(0, file.duration - 1));
    }

    /// The master clips, spread evenly over the bins; every third bin is nested in the previous one.
    void writeBins()
    {
        const std::int64_t bins = m_shape.bins;
        const auto end = [&](std::int64_t bin) { return m_shape.files * (bin + 1) / bins; };
        std::int64_t file = 0;
        const auto writeBin = [&](auto &self, std::int64_t bin) -> std::int64_t {
            Draw random = draw(FileKind, -1, bin);
            const Element element(m_xml, "bin");
            m_xml.leaf("uuid", uuid(random));
            m_xml.leaf("updatebehavior", "add");
            m_xml.leaf("name", phrase(random, 1, 3));
            const Element children(m_xml, "children");
            for (; file < end(bin); ++file)
                writeMasterClip(file);
            const bool holdsNext = bin % 3 == 1 && bin + 1 < bins;
            return holdsNext ? self(self, bin + 1) : bin + 1;
        };
        for (std::int64_t bin = 0; bin < bins;)
            bin = writeBin(writeBin, bin);
    }

    void writeLink(XmlStream &xml, const std::string &id, bool video, std::int64_t index)
    {
        const Element link(xml, "link");
        xml.leaf("linkclipref", id);
        xml.leaf("mediatype", video ? "video" : "audio");
        xml.leaf("trackindex", 1);
        xml.leaf("clipindex", index + 1);
        if (!video)
            xml.leaf("groupindex", 1);
    }

    struct ItemPlace {
        std::int64_t start, end; // frames from the start of the sequence
        bool dissolveBefore, dissolveAfter;
        std::optional<std::int64_t> linked; // number of the cut that video and audio share
    };

    void writeClipItem(XmlStream &xml, Draw &random, std::int64_t sequence, const std::string &id, Rate rate,
                       const Cut &source, const ItemPlace &place, bool video)
    {
        ++m_counts.clipItems;
        const MediaFile file = mediaFile(source.file);
        const Element item(xml, "clipitem", {{"id", id}});
        xml.leaf("masterclipid", numbered("masterclip-", source.file + 1));
        xml.leaf("name", file.name.substr(0, file.name.size() - 4));
        xml.leaf("enabled", random.chance(0.96) ? "TRUE" : "FALSE");
        xml.leaf("duration", file.duration);
        writeRate(xml, rate);
        xml.leaf("start", place.dissolveBefore ? -1 : place.start);
        xml.leaf("end", place.dissolveAfter ? -1 : place.end);
        xml.leaf("in", source.in);
        xml.leaf("out", source.in + place.end - place.start);
        if (video) {
            xml.leaf("alphatype", "none");
            xml.leaf("pixelaspectratio", "square");
            xml.leaf("anamorphic", "FALSE");
            if (file.isStill)
                xml.leaf("stillframe", "TRUE");
        }
        xml.empty("file", {{"id", numbered("file-", source.file + 1)}});
        writeFilters(xml, random, video);
        for (std::int64_t count = random.around(m_shape.clipMarkers); count > 0; --count)
            writeMarker(xml, random, source.in + random.between(0, source.duration - 1));
        {
            const Element track(xml, "sourcetrack");
            xml.leaf("mediatype", video ? "video" : "audio");
            if (!video)
                xml.leaf("trackindex", 1);
        }
        if (place.linked) {
            writeLink(xml, pictureId(sequence, *place.linked), true, *place.linked);
            writeLink(xml, soundId(sequence, *place.linked), false, *place.linked);
        }
        writeLogging(xml, random);
    }

    static std::string pictureId(std::int64_t sequence, std::int64_t cut)
    {
        return numbered("clipitem-", sequence + 1) + numbered("-", cut * 2 + 1);
    }
    static std::string soundId(std::int64_t sequence, std::int64_t cut)
    {
        return numbered("clipitem-", sequence + 1) + numbered("-", cut * 2 + 2);
    }

    void writeDissolve(XmlStream &xml, Rate rate, std::int64_t at)
    {
        const Element transition(xml, "transitionitem");
        writeRate(xml, rate);
        xml.leaf("start", at - 10);
        xml.leaf("end", at + 10);
        xml.leaf("alignment", "center");
        const Element effect(xml, "effect");
        xml.leaf("name", "Cross Dissolve");
        xml.leaf("effectid", "Cross Dissolve");
        xml.leaf("effectcategory", "Dissolve");
        xml.leaf("effecttype", "transition");
        xml.leaf("mediatype", "video");
        xml.leaf("wipecode", 0);
        xml.leaf("wipeaccuracy", 100);
        xml.leaf("startratio", 0);
        xml.leaf("endratio", 1);
        xml.leaf("reverse", "FALSE");
    }

    void writeTitle(XmlStream &xml, Draw &random, const std::string &id, Rate rate, std::int64_t start,
                    std::int64_t duration)
    {
        constexpr Effect text{"Text",
                              "Text",
                              "Text Generators",
                              "generator",
                              {{{"fontsize", "Size", 0, 1000},
                                {"fontalign", "Alignment", 1, 3},
                                {"origin", "Origin", -1, 1, true},
                                {"fonttrack", "Tracking", -200, 200},
                                {"leading", "Leading", -100, 100}}}};
        ++m_counts.effects;
        const Element item(xml, "generatoritem", {{"id", id}});
        xml.leaf("name", phrase(random, 1, 4));
        xml.leaf("enabled", random.chance(0.95) ? "TRUE" : "FALSE");
        xml.leaf("duration", 3600);
        writeRate(xml, rate);
        xml.leaf("start", start);
        xml.leaf("end", start + duration);
        xml.leaf("in", 0);
        xml.leaf("out", duration);
        xml.leaf("anamorphic", "FALSE");
        xml.leaf("alphatype", "black");
        writeEffect(xml, random, text, text.type, true);
        writeFilters(xml, random, true);
    }

    void writeTrackEnd(XmlStream &xml)
    {
        xml.leaf("enabled", "TRUE");
        xml.leaf("locked", "FALSE");
    }

    /// The first video or audio track: the same cuts, one after the other.
    void writeCutTrack(XmlStream &xml, std::int64_t sequence, Rate rate, std::int64_t cuts,
                       std::int64_t linkedCuts, bool video)
    {
        const Element track(xml, "track");
        std::int64_t start = 0;
        bool dissolveBefore = false;
        for (std::int64_t i = 0; i < cuts; ++i) {
            const Cut source = cut(sequence, i);
            Draw random = draw(ClipKind, sequence, video ? i * 2 : i * 2 + 1);
            ItemPlace place{start, start + source.duration, dissolveBefore, false, std::nullopt};
            place.dissolveAfter = video && source.dissolveAfter && i + 1 < cuts;
            if (i < linkedCuts)
                place.linked = i;
            writeClipItem(xml, random, sequence, video ? pictureId(sequence, i) : soundId(sequence, i), rate,
                          source, place, video);
            if (place.dissolveAfter)
                writeDissolve(xml, rate, place.end);
            dissolveBefore = place.dissolveAfter;
            start = place.end;
        }
        writeTrackEnd(xml);
    }

    /// The second video track: titles and clips with gaps between them.
    void writeOverlayTrack(XmlStream &xml, std::int64_t sequence, Rate rate, std::int64_t items)
    {
        const Element track(xml, "track");
        std::int64_t start = 0;
        for (std::int64_t i = 0; i < items; ++i) {
            Draw random = draw(OverlayKind, sequence, i);
            start += random.between(60, 1200);
            const std::int64_t duration = random.between(30, 150);
            const std::string id = numbered("overlay-", sequence + 1) + numbered("-", i + 1);
            if (random.chance(0.3)) {
                writeTitle(xml, random, id, rate, start, duration);
            } else {
                Cut source = cut(sequence, -1 - i);
                source.duration = duration;
                writeClipItem(xml, random, sequence, id, rate, source,
                              {start, start + duration, false, false, std::nullopt}, true);
            }
            start += duration;
        }
        writeTrackEnd(xml);
    }

    void writeSequence(XmlStream &xml, std::int64_t number)
    {
        // Half of the clips are the cut, 35 % the audio below it, the rest are on the second video track.
        const std::int64_t sounds = m_shape.clips * 35 / 100;
        const std::int64_t overlays = m_shape.clips * 15 / 100;
        const std::int64_t cuts = m_shape.clips - sounds - overlays;
        std::int64_t duration = 0;
        for (std::int64_t i = 0; i < cuts; ++i)
            duration += cut(number, i).duration;

        Draw random = draw(SequenceMarkerKind, number);
        const SequenceTime time = sequenceTime(number);
        const Element sequence(xml, "sequence", {{"id", numbered("sequence-", number + 1)}});
        xml.leaf("uuid", uuid(random));
        xml.leaf("updatebehavior", "add");
        xml.leaf("name", phrase(random, 1, 4) + numbered(" v", number + 1));
        xml.leaf("duration", duration);
        writeRate(xml, time.rate);
        writeTimecode(xml, time);
        xml.leaf("in", -1);
        xml.leaf("out", -1);
        {
            const Element media(xml, "media");
            {
                const Element video(xml, "video");
                writeCutTrack(xml, number, time.rate, cuts, sounds, true);
                writeOverlayTrack(xml, number, time.rate, overlays);
            }
            const Element audio(xml, "audio");
            writeCutTrack(xml, number, time.rate, sounds, sounds, false);
        }
        xml.leaf("ismasterclip", "FALSE");
        for (std::int64_t i = 0; i < m_shape.sequenceMarkers; ++i)
            writeMarker(xml, random, duration * i / m_shape.sequenceMarkers);
    }

    ProjectShape m_shape;
    XmlStream &m_xml;
    ProjectCounts m_counts;
};

} // namespace

ProjectCounts writeProject(const ProjectShape &shape, XmlStream &xml)
{
    ProjectGenerator generator(shape, xml);
    generator.write();
    return generator.counts();
}

} // namespace vantrell::bench
