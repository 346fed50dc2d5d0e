#include "document/ClipMenus.h"

#include "support/log/QVLog.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlQuery.h"

namespace vantrell
{

namespace
{

const QString noneTitle = QStringLiteral("(none)");

/// Whether any step of the element's location path begins with "audio".
bool liesInAudio(XmlNode element)
{
    for (XmlNode up = element; up; up = up.parent()) {
        if (up.isElement() && up.name().startsWith(QStringLiteral("audio")))
            return true;
    }
    return false;
}

QString clipTitle(XmlNode clip, bool inAudio)
{
    static const XmlQuery freezeFrame(QStringLiteral("./stillframeoffset[1]"));
    static const XmlQuery still(QStringLiteral("./stillframe[1]"));
    QString title = QVXMLParser::nameForNode(clip).value_or(QString());
    if (title.isEmpty()) {
        title = clip.isElement("generatoritem") ? QStringLiteral("Unknown generator")
                                                : QStringLiteral("Unknown clip");
    }
    if (freezeFrame.first(clip))
        title += QStringLiteral(" (freeze frame)");
    else if (still.first(clip))
        title += QStringLiteral(" (still)");
    else if (inAudio)
        title += QStringLiteral(" (audio)");
    return title;
}

} // namespace

MenuPtr ClipMenus::menuForSequence(XmlNode sequence)
{
    static const XmlQuery clips(QStringLiteral("./media[1]/*/track/(clipitem | clip | generatoritem)"));
    const auto known = m_menus.find(sequence);
    if (known != m_menus.end())
        return known->second;
    auto menu = std::make_shared<Menu>();
    menu->push_back({noneTitle, QString(), XmlNode()});
    XmlNode track;
    bool inAudio = false;
    for (const XmlNode clip : clips.evaluate(sequence).nodes) {
        if (!(clip.parent() == track)) {
            track = clip.parent();
            inAudio = liesInAudio(track);
        }
        menu->push_back({clipTitle(clip, inAudio), QStringLiteral("clip"), clip});
    }
    if (sequence.isAttached())
        m_menus.emplace(sequence, menu);
    return menu;
}

std::shared_ptr<const QStringList> ClipMenus::idsForSequence(XmlNode sequence)
{
    QVLog::appendLog(u"Populating sequence clips...");
    if (!sequence.isAttached()) {
        QVLog::appendLog(u"Invalid XPath for sequence %@",
                         QVXMLParser::nameForNode(sequence).value_or(QString()));
        return nullptr;
    }
    const auto known = m_ids.find(sequence);
    if (known != m_ids.end())
        return known->second;
    auto ids = std::make_shared<QStringList>();
    const MenuPtr menu = menuForSequence(sequence);
    ids->reserve(qsizetype(menu->size()));
    for (const MenuItem &item : *menu)
        ids->append(QVXMLParser::idAttributeForNode(item.element).value_or(QStringLiteral("")));
    m_ids.emplace(sequence, ids);
    return ids;
}

} // namespace vantrell
