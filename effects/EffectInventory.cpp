#include "effects/EffectInventory.h"

#include "effects/EffectColumns.h"
#include "effects/EffectKeys.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlQuery.h"

#include <QHash>
#include <QSet>
#include <QStringMatcher>

#include <algorithm>
#include <memory>

namespace vantrell
{

namespace
{

/// Whether the item of the type menu with that index includes the effect.
bool passesType(const RowRecord &record, int type)
{
    const QString effectType = record.get(EffectKey::effectType);
    const QString mediaType = record.get(EffectKey::mediaType);
    switch (type) {
    case 1:
        return effectType == EffectType::filter;
    case 2:
        return effectType == EffectType::filter && mediaType == QStringLiteral("Video");
    case 3:
        return effectType == EffectType::filter && mediaType == QStringLiteral("Audio");
    case 4:
        return effectType == EffectType::generator;
    case 5:
        return effectType == EffectType::transition;
    default:
        return true;
    }
}

/// The effects that every clip has, hidden unless they are asked for.
bool isDefaultEffect(const QString &name)
{
    static const QSet<QString> defaults{QStringLiteral("Audio Pan"),    QStringLiteral("Audio Levels"),
                                        QStringLiteral("Basic Motion"), QStringLiteral("Drop Shadow"),
                                        QStringLiteral("Motion Blur"),  QStringLiteral("Crop"),
                                        QStringLiteral("Distort"),      QStringLiteral("Opacity")};
    return defaults.contains(name);
}

/// Whether the user wants to see effects of a name, found out once for each: most effects share theirs. On
/// the thread of one rebuild.
class NameChoice
{
public:
    explicit NameChoice(const ViewState &state)
        : m_search(state.effectSearch, Qt::CaseInsensitive)
        , m_showsDefaults(state.effectShowDefaults)
    {
    }

    bool takes(const QString &name)
    {
        if (name.isNull()) // such an effect passes every search
            return true;
        const auto known = m_known.constFind(name.constData());
        return known != m_known.constEnd() ? *known : *m_known.insert(name.constData(), decide(name));
    }

private:
    bool decide(const QString &name) const
    {
        if (!m_showsDefaults && isDefaultEffect(name))
            return false;
        return m_search.pattern().isEmpty() || m_search.indexIn(name) >= 0;
    }

    QStringMatcher m_search;
    bool m_showsDefaults;
    QHash<const QChar *, bool> m_known; // by the one copy of a name that the records hold
};

/// Whether an effect is one that the user wants to see, for any thread.
std::function<bool(const RowRecord &)> chosen(const ViewState &state)
{
    return [type = state.effectType, names = std::make_shared<NameChoice>(state)](const RowRecord &effect) {
        return passesType(effect, type) && names->takes(effect.get(EffectKey::name));
    };
}

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

EffectInventory::EffectInventory(MyDocument &document)
    : m_document(document)
{
    m_document.rowView(Tab::Effects).setFilter(effectColumns, [this] {
        return RowView::Filter{.passes = chosen(m_document.viewState()),
                               .shown = [this] { updateEffectStatusText(); }};
    });
}

void EffectInventory::populateEffectData()
{
    m_document.populate(Tab::Effects, "EffectInventory::populateEffectData", [this] { build(); });
    QVLog::appendLog(u"Finished populating effects");
    if (m_document.isSelected(Tab::Effects))
        populateFilteredEffectData();
}

void EffectInventory::build()
{
    QVLog::appendLog(u"Populating effects...");
    RowView &view = m_document.rowView(Tab::Effects);
    RowList records;
    if (m_document.xmlDoc()) {
        EffectReader reader;
        const XmlNodeList elements = EffectReader::effectElements(m_document.xmlNode(), m_document.xmlType());
        records.reserve(elements.size());
        for (const XmlNode element : elements) {
            if (m_document.isClosing())
                return;
            records.push_back(reader.recordOf(element));
            view.setFoundSoFar(records.size());
        }
    }
    m_document.mainThread()->runAndWait([&] { view.setList(std::move(records)); });
}

void EffectInventory::populateFilteredEffectData()
{
    guarded("EffectInventory::populateFilteredEffectData", [this] {
        QVLog::appendLog(u"Filtering effects...");
        m_document.rebuildRows(Tab::Effects);
    });
    QVLog::appendLog(u"Finished filtering effects");
}

void EffectInventory::updateEffectStatusText()
{
    const std::size_t count = m_document.rowsOnShow(Tab::Effects).size();
    const std::size_t selected = m_document.interface().selectedRows(Tab::Effects).size();
    QString text = formatText(u"%i item%@", count, count == 1 ? u"" : u"s");
    if (selected > 0)
        text += formatText(u" (%i selected)", selected);
    m_document.setLabel(Label::EffectStatus, text);
}

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
