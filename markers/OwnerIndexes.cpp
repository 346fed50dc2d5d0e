#include "markers/OwnerIndexes.h"

#include "xml/QVXMLParser.h"

namespace vantrell
{

void OwnerIndexes::Indexes::add(XmlNode element, const QString &text, std::int64_t index)
{
    if (!text.isNull() && !byText.contains(text))
        byText.insert(text, index);
    byElement.emplace(element, index);
}

std::optional<std::int64_t> OwnerIndexes::Indexes::find(const QString &text) const
{
    const auto index = byText.constFind(text);
    return index == byText.constEnd() ? std::nullopt : std::optional(*index);
}

std::optional<std::int64_t> OwnerIndexes::Indexes::find(XmlNode element, const QString &text) const
{
    const auto index = byElement.find(element);
    return index == byElement.end() ? find(text) : std::optional(index->second);
}

std::optional<std::int64_t> OwnerIndexes::ofSequence(const QString &uuid)
{
    return sequences().find(uuid);
}

std::optional<std::int64_t> OwnerIndexes::ofOwnSequence(XmlNode element, const QString &uuid)
{
    return sequences().find(element, uuid);
}

std::optional<std::int64_t> OwnerIndexes::ofClip(const QString &id, XmlNode sequence)
{
    return sequence ? clipsOf(sequence).find(id) : std::nullopt;
}

std::optional<std::int64_t> OwnerIndexes::ofOwnClip(XmlNode element, const QString &id, XmlNode sequence)
{
    return sequence ? clipsOf(sequence).find(element, id) : std::nullopt;
}

const OwnerIndexes::Indexes &OwnerIndexes::sequences()
{
    if (!m_sequences) {
        m_sequences = std::make_unique<Indexes>();
        const MenuPtr menu = m_document.sequenceMenu();
        for (std::size_t i = 1; i < menu->size(); ++i) {
            const XmlNode element = (*menu)[i].element;
            m_sequences->add(element, QVXMLParser::uuidForNode(element).value_or(QString()), std::int64_t(i));
        }
    }
    return *m_sequences;
}

const OwnerIndexes::Indexes &OwnerIndexes::clipsOf(XmlNode sequence)
{
    const auto [known, isNew] = m_clips.try_emplace(sequence);
    Indexes &indexes = known->second;
    if (isNew) {
        const std::shared_ptr<const QStringList> ids = m_document.clipIDsForSequence(sequence);
        const MenuPtr menu = ids ? m_document.clipMenuForSequence(sequence) : MenuPtr();
        for (qsizetype i = 0; ids && i < ids->size(); ++i)
            indexes.add((*menu)[std::size_t(i)].element, ids->at(i), i);
    }
    return indexes;
}

} // namespace vantrell
