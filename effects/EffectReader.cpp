#include "effects/EffectReader.h"

#include "effects/EffectKeys.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlQuery.h"

#include <algorithm>

namespace vantrell
{

namespace
{

/// Each word's first letter as a capital, the rest small. Words are parted by white space alone:
/// hyphens and apostrophes belong to them.
QString capitalized(const QString &text)
{
    QString result = text.toLower();
    bool startsWord = true;
    for (QChar &c : result) {
        if (startsWord)
            c = c.toTitleCase();
        startsWord = c.isSpace();
    }
    return result;
}

void setIfThere(RowRecord &record, TypedKey<QString> key, const std::optional<QString> &value)
{
    if (value)
        record.set(key, *value);
}

} // namespace

XmlNodeList EffectReader::effectElements(XmlNode document, std::int64_t xmlType)
{
    static const XmlQuery single(
        QStringLiteral("./xmeml[1]/sequence[1]/media[1]/*/track/(clipitem | generatoritem)/filter | "
                       "./xmeml[1]/sequence[1]/media[1]/*/track/generatoritem"));
    static const XmlQuery project(
        QStringLiteral("./xmeml[1]/project[1]/children[1]//(clipitem | generatoritem)/filter | "
                       "./xmeml[1]/project[1]/children[1]//generatoritem"));
    XmlNodeList elements = (xmlType == 1 ? single : project).evaluate(document).nodes;
    std::stable_partition(elements.begin(), elements.end(),
                          [](XmlNode element) { return element.isElement("filter"); });
    return elements;
}

RowRecordPtr EffectReader::recordOf(XmlNode element)
{
    static const XmlQuery effectChild(QStringLiteral("./effect[1]"));
    static const XmlQuery mediaTypeText(QStringLiteral("./mediatype[1]/text()"));
    static const XmlQuery enabledText(QStringLiteral("./enabled[1]/text()"));
    const auto record = std::make_shared<RowRecord>();
    const bool isOff =
        enabledText.firstText(element).value_or(QString()).toUpper() == QStringLiteral("FALSE");
    record->set(EffectKey::enabled, isOff ? 0 : 1);
    record->set(EffectKey::effectType,
                element.isElement("generatoritem") ? EffectType::generator : EffectType::filter);
    record->set(EffectKey::effectElement, element);
    if (const XmlNode effect = effectChild.first(element)) {
        setIfThere(*record, EffectKey::name, shared(QVXMLParser::nameForNode(effect)));
        if (const std::optional<QString> type = mediaTypeText.firstText(effect))
            record->set(EffectKey::mediaType, *shared(capitalized(*type)));
    }
    const Surroundings around = surroundingsAt(element.parent());
    if (around.sequence) {
        const Owner &sequence = ownerOf(around.sequence);
        setIfThere(*record, EffectKey::sequence, sequence.name);
        setIfThere(*record, EffectKey::sequenceUUID, sequence.uuid);
    }
    if (const XmlNode clipElement = around.clipItem ? around.clipItem : around.clip) {
        const Owner &clip = ownerOf(clipElement);
        setIfThere(*record, EffectKey::clip, clip.name);
        setIfThere(*record, EffectKey::clipUUID, clip.uuid);
        setIfThere(*record, EffectKey::clipID, clip.id);
    }
    return record;
}

EffectReader::Surroundings EffectReader::surroundingsAt(XmlNode element)
{
    XmlNodeList unknown; // upwards
    while (element && !m_surroundings.contains(element)) {
        unknown.push_back(element);
        element = element.parent();
    }
    Surroundings around = element ? m_surroundings[element] : Surroundings();
    for (auto below = unknown.rbegin(); below != unknown.rend(); ++below) {
        if (below->isElement("sequence"))
            around.sequence = *below;
        else if (below->isElement("clipitem"))
            around.clipItem = *below;
        else if (below->isElement("clip"))
            around.clip = *below;
        m_surroundings.emplace(*below, around);
    }
    return around;
}

const EffectReader::Owner &EffectReader::ownerOf(XmlNode element)
{
    const auto known = m_owners.find(element);
    if (known != m_owners.end())
        return known->second;
    static const XmlQuery id(QStringLiteral("./@id[1]"));
    return m_owners
        .emplace(element, Owner{shared(QVXMLParser::nameForNode(element)),
                                shared(QVXMLParser::uuidForNode(element)), shared(id.firstText(element))})
        .first->second;
}

/// The text in the one copy that all records hold.
std::optional<QString> EffectReader::shared(const std::optional<QString> &text)
{
    return text ? std::optional<QString>(*m_texts.insert(*text)) : std::nullopt;
}

} // namespace vantrell
