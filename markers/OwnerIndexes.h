#pragma once

#include "document/MyDocument.h"

#include <QHash>

#include <cstdint>
#include <memory>
#include <optional>
#include <unordered_map>

namespace vantrell
{

/// Where sequences and clips stand in a document's menus, each menu looked through once. One thread; the
/// document outlives it.
class OwnerIndexes
{
public:
    explicit OwnerIndexes(MyDocument &document)
        : m_document(document)
    {
    }

    /// The first item of the sequence menu whose sequence has the UUID; nothing when none has.
    std::optional<std::int64_t> ofSequence(const QString &uuid);
    /// The first item of the sequence's clip menu that has the id; nothing when none has.
    std::optional<std::int64_t> ofClip(const QString &id, XmlNode sequence);

    // The item that stands for the element; where none does, the same by its UUID or id, if it has one

    std::optional<std::int64_t> ofOwnSequence(XmlNode element, const QString &uuid);
    std::optional<std::int64_t> ofOwnClip(XmlNode element, const QString &id, XmlNode sequence);

private:
    struct Indexes {
        QHash<QString, std::int64_t> byText;
        std::unordered_map<XmlNode, std::int64_t> byElement;

        void add(XmlNode element, const QString &text, std::int64_t index);
        std::optional<std::int64_t> find(const QString &text) const;
        std::optional<std::int64_t> find(XmlNode element, const QString &text) const;
    };

    const Indexes &sequences();
    const Indexes &clipsOf(XmlNode sequence);

    MyDocument &m_document;
    std::unique_ptr<Indexes> m_sequences; ///< made when first asked
    std::unordered_map<XmlNode, Indexes> m_clips;
};

} // namespace vantrell
