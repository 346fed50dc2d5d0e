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
        record->setIfThere(EffectKey::name, shared(QVXMLParser::nameForNode(effect)));
        if (const std::optional<QString> type = mediaTypeText.firstText(effect)) {
            if (m_lastMediaType.isNull() || m_lastMediaType != *type) {
                m_lastMediaType = *type;
                m_shownMediaType = capitalized(*type);
            }
            record->set(EffectKey::mediaType, m_shownMediaType);
        }
    }
    lookAround(element.parent());
    if (m_sequence) {
        record->setIfThere(EffectKey::sequence, m_sequence->name);
        record->setIfThere(EffectKey::sequenceUUID, m_sequence->uuid);
    }
    if (m_clip) {
        record->setIfThere(EffectKey::clip, m_clip->name);
        record->setIfThere(EffectKey::clipUUID, m_clip->uuid);
        record->setIfThere(EffectKey::clipID, m_clip->id);
    }
    return record;
}

/// Finds the owners of what the element holds.
void EffectReader::lookAround(XmlNode parent)
{
    if (parent == m_parent)
        return;
    const Surroundings around = surroundingsAt(parent);
    m_parent = parent;
    m_sequence = ownerOf(around.sequence, m_lastSequence);
    m_clip = ownerOf(around.clipItem ? around.clipItem : around.clip, m_lastClip);
}

EffectReader::Surroundings EffectReader::surroundingsAt(XmlNode element)
{
    XmlNodeList unknown; // upwards
    for (XmlNode up = element.parent(); up && !m_surroundings.contains(up); up = up.parent())
        unknown.push_back(up);
    const XmlNode known = unknown.empty() ? element.parent() : unknown.back().parent();
    Surroundings around = known ? m_surroundings[known] : Surroundings();
    for (auto below = unknown.rbegin(); below != unknown.rend(); ++below) {
        enter(*below, around);
        m_surroundings.emplace(*below, around);
    }
    // Effects stand side by side, so that this one is not asked for again: it needs no entry in the table.
    enter(element, around);
    return around;
}

void EffectReader::enter(XmlNode element, Surroundings &around)
{
    if (element.isElement("sequence"))
        around.sequence = element;
    else if (element.isElement("clipitem"))
        around.clipItem = element;
    else if (element.isElement("clip"))
        around.clip = element;
}

/// Null for a null element.
const EffectReader::Owner *EffectReader::ownerOf(XmlNode element, LastOwner &last)
{
    static const XmlQuery id(QStringLiteral("./@id[1]"));
    if (!element)
        return nullptr;
    if (last.element != element) {
        last.element = element;
        last.owner = {QVXMLParser::nameForNode(element), QVXMLParser::uuidForNode(element),
                      id.firstText(element)};
    }
    return &last.owner;
}

/// The text in the one copy that all records hold.
std::optional<QString> EffectReader::shared(const std::optional<QString> &text)
{
    return text ? std::optional<QString>(*m_texts.insert(*text)) : std::nullopt;
}

} // namespace vantrell
