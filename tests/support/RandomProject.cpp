#include "tests/support/RandomProject.h"

namespace vantrell
{

namespace
{

const QByteArrayList nameTexts = {"Cut", "Cut", "Marker 1",  "A%20B", "50%",
                                  "%",   "É",   "&lt;b&gt;", " ",     "Marker 3"};
const QByteArrayList uuidTexts = {"U1", "U2", "U2", "U%203", "a\"b", "x&amp;y"};
const QByteArrayList idTexts = {"c1", "c1", "c2", "c%203", "%zz", "", "c 4"};
const QByteArrayList positionTexts = {"0",     "5",          "10",  "-1",         " 12 ",
                                      "frame", "2147483648", "1e3", "4294967301", "99999999999999999999"};
const QByteArrayList rateTexts = {"24", "25", "30", "60", "0", "-25", "x"};
const QByteArrayList flagTexts = {"true", "TRUE", "FALSE", "df", "DF", "NDF", ""};
const QByteArrayList channelTexts = {"0", "0", "255", "127", "128", "48", "191", "72", "-1", "x", "511"};
const QByteArrayList commentTexts = {"Note",
                                     "&lt;CHAPTER&gt;",
                                     " &lt;CHAPTER&gt;a",
                                     " &lt;SCORING&gt; &lt;COMPRESSION&gt;",
                                     "&lt;QVCUSTOM_T&gt;3&lt;_QVCUSTOM_T&gt;",
                                     "&lt;QVCUSTOM_T&gt;",
                                     "&lt;_QVCUSTOM_T&gt;&lt;QVCUSTOM_T&gt;",
                                     "&lt;QVCUSTOM_",
                                     "]]&gt;"};

QByteArray element(const QByteArray &name, const QByteArray &content)
{
    return '<' + name + '>' + content + "</" + name + '>';
}

} // namespace

int RandomNumbers::below(int bound)
{
    m_state ^= m_state << 13;
    m_state ^= m_state >> 7;
    m_state ^= m_state << 17;
    return int((m_state >> 33) % quint64(bound));
}

QByteArray RandomProject::xml()
{
    const QByteArray content = m_random.oneIn(4) ? sequence(0) + markers() : element("project", children(0));
    return "<?xml version=\"1.0\"?><xmeml version=\"5\">" + content + "</xmeml>";
}

QByteArray RandomProject::children(int depth)
{
    QByteArray list = "<name>folder</name><children>";
    for (int i = m_random.below(4) + 1; i > 0; --i) {
        switch (depth < 3 ? m_random.below(4) : 1) {
        case 0:
            list += element("bin", names() + children(depth + 1));
            break;
        case 1:
        case 2:
            list += sequence(depth);
            break;
        default:
            list += "<clip" + idAttribute() + '>' + names() + markers() + file() + "</clip>";
        }
    }
    return list + "</children>";
}

QByteArray RandomProject::sequence(int depth)
{
    QByteArray media;
    for (int i = m_random.below(3); i > 0; --i)
        media += element(m_random.oneIn(3) ? "audio" : "video", track(depth) + track(depth));
    QByteArray content = names() + timecode() + element("media", media);
    if (m_random.oneIn(4))
        content += element("itemhistory", maybe("uuid", uuidTexts));
    return "<sequence" + idAttribute() + '>' +
           (m_random.oneIn(4) ? markers() + content : content + markers()) + "</sequence>";
}

QByteArray RandomProject::track(int depth)
{
    QByteArray items;
    for (int i = m_random.below(4); i > 0; --i)
        items += trackItem(depth);
    return element("track", items);
}

QByteArray RandomProject::trackItem(int depth)
{
    static const QByteArrayList kinds = {"clipitem",      "clipitem",       "clip",
                                         "generatoritem", "transitionitem", "clipper"};
    const QByteArray kind = m_random.pick(kinds);
    QByteArray content = names() + maybe("start", positionTexts) + maybe("end", positionTexts) +
                         maybe("in", positionTexts) + markers();
    for (int i = m_random.below(3); i > 0; --i)
        content += element("filter", effect());
    if (kind == "generatoritem")
        content += effect();
    if (depth < 3 && ++m_items < 30 && m_random.oneIn(4))
        content += m_random.oneIn(2) ? sequence(depth + 1) : multiclip(depth + 1);
    else
        content += file();
    if (m_random.oneIn(5))
        content +=
            m_random.oneIn(2) ? "<stillframe>TRUE</stillframe>" : "<stillframeoffset>3</stillframeoffset>";
    return '<' + kind + idAttribute() + '>' + content + "</" + kind + '>';
}

QByteArray RandomProject::multiclip(int depth)
{
    QByteArray angles;
    for (int i = m_random.below(3) + 1; i > 0; --i) {
        const QByteArray state = maybe("activevideoangle", flagTexts) + maybe("activeaudioangle", flagTexts);
        angles += element(m_random.oneIn(8) ? "rectangle" : "angle", state + trackItem(depth));
    }
    return element("multiclip", names() + angles);
}

QByteArray RandomProject::markers()
{
    QByteArray list;
    for (int i = m_random.below(4) - 1; i > 0; --i)
        list += marker();
    return list;
}

QByteArray RandomProject::marker()
{
    QByteArrayList parts = {maybe("name", nameTexts), maybe("comment", commentTexts + nameTexts), color(),
                            maybe("in", positionTexts), maybe("out", positionTexts)};
    if (m_random.oneIn(4))
        parts.move(m_random.below(5), m_random.below(5));
    if (m_random.oneIn(20))
        parts.append("<odd>" + marker() + "</odd>text<![CDATA[ & ]]><!-- note -->");
    return "<marker" + (m_random.oneIn(9) ? idAttribute() : QByteArray()) + '>' + parts.join() + "</marker>";
}

QByteArray RandomProject::effect()
{
    static const QByteArrayList types = {"filter", "generator", "transition", "motion", ""};
    return maybe("enabled", flagTexts) + element("effect", names() + maybe("effecttype", types) +
                                                               maybe("mediatype", {"video", "audio", "x"}));
}

QByteArray RandomProject::file()
{
    static const QByteArrayList urls = {"file://localhost/tmp/a%20b.mov", "file:///x/%ZZ.wav", "/x/y.aif", "",
                                        "http://h/p?q#f"};
    return m_random.oneIn(3) ? QByteArray()
                             : "<file" + idAttribute() + '>' + names() + maybe("pathurl", urls) + "</file>";
}

QByteArray RandomProject::timecode()
{
    const QByteArray rate = element("rate", maybe("timebase", rateTexts) + maybe("ntsc", flagTexts));
    const QByteArray content = rate + maybe("frame", positionTexts) + maybe("displayformat", flagTexts);
    return m_random.oneIn(5) ? QByteArray() : element("timecode", m_random.oneIn(9) ? marker() : content);
}

QByteArray RandomProject::names()
{
    const QByteArray uuid = maybe("uuid", uuidTexts);
    const QByteArray name = maybe("name", nameTexts);
    return m_random.oneIn(3) ? uuid + name : name + uuid;
}

QByteArray RandomProject::color()
{
    static const QByteArrayList colors = {"0 255 127 0", "0 255 255 0", "0 48 191 72", "0 0 128 255",
                                          "0 255 0 127"};
    if (m_random.oneIn(3)) {
        const QByteArrayList channels = m_random.pick(colors).split(' ');
        return element("color", element("alpha", channels[0]) + element("red", channels[1]) +
                                    element("green", channels[2]) + element("blue", channels[3]));
    }
    return m_random.oneIn(3)
               ? QByteArray()
               : element("color", maybe("alpha", channelTexts) + maybe("red", channelTexts) +
                                      maybe("blue", channelTexts) + maybe("tint", channelTexts));
}

QByteArray RandomProject::maybe(const QByteArray &name, const QByteArrayList &texts)
{
    const QByteArray one = element(name, m_random.pick(texts));
    switch (m_random.below(9)) {
    case 0:
        return QByteArray();
    case 1:
        return '<' + name + "/>";
    case 2:
        return one + element(name, m_random.pick(texts));
    default:
        return one;
    }
}

QByteArray RandomProject::idAttribute()
{
    return m_random.oneIn(5) ? QByteArray() : " id=\"" + m_random.pick(idTexts) + "\" x=\"1\"";
}

} // namespace vantrell
