#include "tests/support/Damage.h"

#include <QString>
#include <QStringConverter>

#include <algorithm>

namespace vantrell
{

namespace
{

const QByteArrayList encodings{"UTF-8",  "ISO-8859-1", "windows-1252", "US-ASCII",
                               "UTF-16", "UTF-16LE",   "Shift_JIS",    "UTF-32",
                               "UTF-7",  "EBCDIC-US",  "x-unknown",    "KOI8-R"};

const QByteArrayList pieces{
    QByteArray("\0", 1),
    "\x01",
    "\x1F",
    "\xFF",
    "\xC3",
    "\xE2\x82",
    "\xED\xA0\xBD",
    "\xEF\xBF\xBF",
    "\xF4\x90\x80\x80",
    "\xE9",
    "<",
    ">",
    "&",
    "\"",
    "'",
    "]]>",
    "--",
    "<!--",
    "-->",
    "<![CDATA[",
    "<!-- a -- b --->",
    "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>",
    " \n<?xml version=\"1.0\"?>",
    "<?XML x?>",
    "<?p",
    "<!DOCTYPE a [<!ENTITY e \"x\"><!ATTLIST a b CDATA \"<\">]>",
    "&e;",
    "&#0;",
    "&#x1F;",
    "&#xD83C;&#xDFAC;",
    "&#xFFFF;",
    "&#65;&#66;",
    "<a b=\"1\" b=\"2\" c='<'/>",
    "<a:b a:c=\"1\" xmlns:a=\"\"/>",
    "<a xmlns:p=\"u&amp;&lt;\" xmlns:q='\"' p:x=\"1\" q:x=\"2\"/>",
    "<1x/>",
    "<:/>",
    "<a::b/>",
    "</sequence>",
    "</xmeml>",
    "<xmeml>",
};

QByteArray encoded(const QString &text, const QByteArray &encoding, bool mark)
{
    if (encoding == "UTF-16LE" || encoding == "UTF-16BE") {
        const auto format = encoding == "UTF-16LE" ? QStringConverter::Utf16LE : QStringConverter::Utf16BE;
        const auto flag = mark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default;
        return QStringEncoder(format, flag).encode(text);
    }
    return encoding == "UTF-8" ? (mark ? QByteArray("\xEF\xBB\xBF") : QByteArray()) + text.toUtf8()
                               : text.toLatin1();
}

} // namespace

QByteArrayList Damage::smallProjects()
{
    const QString body = QStringLiteral(
        "<!-- é 片 --><xmeml version=\"5\"><sequence id=\"s &quot;1&quot;\"><name>Höhe \U0001F3AC &amp; "
        "&#65;</name>"
        "<media><video><track><clipitem id='c'><name>  </name><start>0</start><?p q?><filter><effect><name>F"
        "</name></effect></filter><marker><name>M</name><comment><![CDATA[a<b]]> x <b/> y</comment><in>1</in>"
        "<out>-1</out></marker></clipitem></track></video></media></sequence></xmeml>\n");
    const QString dtd =
        QStringLiteral("<!DOCTYPE xmeml [<!ELEMENT xmeml ANY><!-- i --><!ATTLIST xmeml a CDATA "
                       "\"1\"><!NOTATION n SYSTEM \"n\">]>\n");
    QByteArrayList projects;
    for (const char *encoding : {"UTF-8", "ISO-8859-1", "UTF-16LE", "UTF-16BE"}) {
        const bool isWide = QByteArray(encoding).startsWith("UTF-16");
        const QString label = QString::fromLatin1(isWide ? "UTF-16" : encoding);
        const QString declaration = QStringLiteral("<?xml version=\"1.0\" encoding=\"%1\"?>\r\n").arg(label);
        projects.append(encoded(declaration + dtd + body, encoding, isWide));
    }
    projects.append(encoded(body, "UTF-8", true));
    projects.append(
        "<xmeml xmlns=\"u\" xmlns:p=\"v\"><p:project p:a=\"1\"><children> a </children></p:project></xmeml>");
    for (quint64 seed = 1; seed <= 4; ++seed)
        projects.append("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + RandomProject(seed).xml());
    return projects;
}

QByteArray Damage::damaged(QByteArray file)
{
    const int faults = 1 + m_random.below(3);
    for (int i = 0; i < faults; ++i) {
        switch (m_random.below(6)) {
        case 0:
            changeBytes(file);
            break;
        case 1:
            cut(file);
            break;
        case 2:
            duplicate(file);
            break;
        case 3:
            breakTag(file);
            break;
        case 4:
            insertMarkup(file);
            break;
        default:
            mislabel(file);
        }
    }
    return file;
}

qsizetype Damage::offsetIn(const QByteArray &file)
{
    // Now and then near the start, where the declarations are.
    const qsizetype bound = m_random.oneIn(8) ? std::min<qsizetype>(file.size(), 120) : file.size();
    return m_random.below(int(bound) + 1);
}

void Damage::changeBytes(QByteArray &file)
{
    for (int i = 1 + m_random.below(8); i > 0 && !file.isEmpty(); --i)
        file[std::min(offsetIn(file), file.size() - 1)] = char(m_random.below(256));
}

void Damage::cut(QByteArray &file)
{
    const qsizetype offset = offsetIn(file);
    if (m_random.oneIn(2))
        file.truncate(offset);
    else
        file.remove(offset, 1 + m_random.below(m_random.oneIn(2) ? 10 : 2000));
}

void Damage::duplicate(QByteArray &file)
{
    const QByteArray part = file.mid(offsetIn(file), 1 + m_random.below(m_random.oneIn(2) ? 20 : 3000));
    file.insert(offsetIn(file), part);
}

void Damage::breakTag(QByteArray &file)
{
    const qsizetype tag = file.indexOf('<', offsetIn(file));
    const qsizetype end = tag < 0 ? -1 : file.indexOf('>', tag);
    if (end < 0)
        return;
    switch (m_random.below(5)) {
    case 0:
        file.remove(tag, 1);
        break;
    case 1:
        file.remove(end, 1);
        break;
    case 2:
        file.remove(tag, end - tag + 1);
        break;
    case 3:
        file[tag + 1] = char('a' + m_random.below(26));
        break;
    default:
        file.insert(end, '/');
    }
}

void Damage::insertMarkup(QByteArray &file)
{
    file.insert(offsetIn(file), m_random.pick(pieces));
}

void Damage::mislabel(QByteArray &file)
{
    const qsizetype label = file.indexOf("encoding=\"");
    const qsizetype start = label + 10;
    const qsizetype end = label < 0 ? -1 : file.indexOf('"', start);
    if (end >= 0 && !m_random.oneIn(3)) {
        file.replace(start, end - start, m_random.pick(encodings));
        return;
    }
    static const QByteArrayList others{"UTF-8", "ISO-8859-1", "UTF-16LE", "UTF-16BE"};
    file = encoded(QString::fromUtf8(file), m_random.pick(others), m_random.oneIn(2));
}

} // namespace vantrell
