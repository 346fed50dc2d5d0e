// Avid markers as XML.

#include "interchange/notes/NoteShapes.h"
#include "interchange/notes/NoteText.h"
#include "xml/XmlDocument.h"

namespace vantrell::NoteShapes
{

namespace
{

constexpr QStringView prefix = u"_ATN_CRM_";

/// The role of what is called _ATN_CRM_… ; nullopt for what is not read.
std::optional<NoteRole::Kind> roleOf(QStringView name)
{
    const QStringView key = name.trimmed().sliced(prefix.size());
    if (key == u"USER")
        return NoteRole::User;
    if (key == u"TC" || key == u"TIMECODE")
        return NoteRole::Time;
    if (key == u"COLOR" || key == u"COLOUR")
        return NoteRole::Color;
    if (key == u"COM" || key == u"COMMENT")
        return NoteRole::Comment;
    if (key == u"LENGTH" || key == u"LEN")
        return NoteRole::Duration;
    if (key == u"TRK" || key == u"TRACK")
        return NoteRole::Track;
    if (key == u"NAME" || key == u"MARKERNAME" || key == u"MARKER_NAME")
        return NoteRole::Name;
    return std::nullopt;
}

/// The lines in which the prefix stands, in the order of the text.
std::vector<std::size_t> linesOfPrefix(QStringView text)
{
    std::vector<std::size_t> found;
    NoteLines lines(text);
    QStringView line;
    while (lines.next(line)) {
        for (qsizetype at = line.indexOf(prefix); at >= 0; at = line.indexOf(prefix, at + prefix.size()))
            found.push_back(lines.number());
    }
    return found;
}

bool hasAttributeKind(XmlNode element, QStringView kind)
{
    return element.attribute("name").endsWith(kind);
}

/// What the element beside a name holds: the last one that is neither the name nor tells a kind.
QString valueBeside(XmlNode name)
{
    QString value;
    for (XmlNode element = name.parent().firstChildElement(); element;
         element = element.nextSiblingElement()) {
        if (element != name && !hasAttributeKind(element, u"Kind") && !hasAttributeKind(element, u"Name"))
            value = element.stringValue();
    }
    return value;
}

/// Gathers the values of one marker after the other.
class Markers
{
public:
    Markers(NoteList &list, std::vector<std::size_t> lines)
        : m_list(list)
        , m_lines(std::move(lines))
    {
    }

    void visit(XmlNode element)
    {
        const XmlNode first = element.firstChild();
        if (element.name().startsWith(prefix))
            take(element.name(), element.stringValue(), element.parent());
        else if (first && first.isText() && !first.nextSibling() &&
                 element.stringValue().trimmed().startsWith(prefix))
            take(element.stringValue().trimmed(), valueBeside(element), element.parent().parent());
        else if (element.attribute("name").startsWith(prefix))
            take(element.attribute("name"),
                 element.attribute("value").isNull() ? element.stringValue() : element.attribute("value"),
                 element.parent());
    }

    void end()
    {
        if (m_row.line != 0)
            m_list.add(m_row);
        m_row = {};
    }

private:
    void take(const QString &name, const QString &value, XmlNode container)
    {
        const std::size_t line = m_next < m_lines.size() ? m_lines[m_next] : 1;
        ++m_next;
        const std::optional<NoteRole::Kind> role = roleOf(name);
        if (container != m_container || (role && !m_row.value(*role).isNull()))
            end();
        m_container = container;
        if (m_row.line == 0)
            m_row.line = line;
        if (!role)
            return;
        const bool isText = role == NoteRole::Comment || role == NoteRole::Name;
        const QString kept = isText ? value : value.trimmed();
        if (!kept.isEmpty())
            m_row.setValue(*role, m_list.keep(kept));
    }

    NoteList &m_list;
    std::vector<std::size_t> m_lines;
    std::size_t m_next = 0;
    XmlNode m_container;
    NoteRow m_row;
};

} // namespace

bool isAvidXml(QStringView text)
{
    return text.left(1000).trimmed().startsWith(u'<') &&
           (text.contains(prefix) || text.left(4000).contains(u"Avid:StreamItems"));
}

void readAvidXml(QStringView text, const QByteArray &bytes, NoteList &list)
{
    list.shape = NoteShape::AvidXml;
    list.columns = {NoteRole{NoteRole::User},  NoteRole{NoteRole::Time},    NoteRole{NoteRole::Track},
                    NoteRole{NoteRole::Color}, NoteRole{NoteRole::Comment}, NoteRole{NoteRole::Duration},
                    NoteRole{NoteRole::Name}};
    const Result<std::unique_ptr<XmlDocument>> parsed = XmlDocument::fromData(bytes, {true, nullptr});
    if (!parsed) {
        list.unreadable.push_back({1, parsed.message()});
        return;
    }
    Markers markers(list, linesOfPrefix(text));
    // In document order
    const XmlNode root = parsed.value()->rootElement();
    XmlNode element = root;
    while (element) {
        markers.visit(element);
        XmlNode next = element.firstChildElement();
        while (!next && element && element != root) {
            next = element.nextSiblingElement();
            if (!next)
                element = element.parent();
        }
        element = next;
    }
    markers.end();
}

} // namespace vantrell::NoteShapes
