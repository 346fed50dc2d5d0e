#include "markers/MarkerElement.h"

#include "markers/MarkerColors.h"
#include "support/text/TextFormat.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlEdit.h"
#include "xml/XmlReferences.h"

namespace vantrell::MarkerElement
{

Result<XmlNode> make(XmlDocument &document, const QString &name, const QString &comment, int color,
                     std::int64_t inPoint, std::int64_t outPoint)
{
    const MarkerColor &rgb = MarkerColors::table()[std::size_t(color)];
    const QString text =
        formatText(u"<marker><name>%@</name><comment>%@</comment><color><alpha>0</alpha><red>%i</red>"
                   u"<green>%i</green><blue>%i</blue></color><in>%i</in><out>%i</out></marker>",
                   QVXMLParser::escapeQueryString(name), QVXMLParser::escapeQueryString(comment), rgb.red,
                   rgb.green, rgb.blue, inPoint, outPoint);
    // A character beyond the basic plane is escaped as the two halves of its surrogate pair.
    Result<XmlNode> made =
        document.elementFromText(QString::fromUtf8(XmlReferences::joinedSurrogates(text.toUtf8())));
    const QLatin1Char markup('<');
    if (!made || !(name.contains(markup) || comment.contains(markup)))
        return made;
    return Failure{QStringLiteral("The name or comment holds XML markup.")};
}

Result<XmlNode> makeWithTexts(XmlDocument &document, const QString &name, const QString &comment, int color,
                              std::int64_t inPoint, std::int64_t outPoint)
{
    const QString none = QStringLiteral("");
    Result<XmlNode> made = make(document, none, none, color, inPoint, outPoint);
    if (made) {
        XmlEdit::setText(made.value().childElement("name"), name);
        XmlEdit::setText(made.value().childElement("comment"), comment);
    }
    return made;
}

} // namespace vantrell::MarkerElement
