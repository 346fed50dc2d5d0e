#include "xml/XmlNames.h"

#include "xml/XmlViews.h"

#include <cstdint>
#include <cstring>
#include <string>

namespace vantrell
{

XmlNameId XmlNames::idOf(const Raw &raw)
{
    if (raw.prefix || raw.uri)
        return interned(raw);
    // Parsers keep each name once, so most names come with an address seen before.
    const auto address = reinterpret_cast<std::uintptr_t>(raw.local);
    Known &known = m_known[(address ^ address >> 10) % m_known.size()];
    if (known.local != raw.local || std::strcmp(known.text, reinterpret_cast<const char *>(raw.local)) != 0) {
        const XmlNameId id = interned(raw);
        known = {raw.local, m_tree.name(id).qualified.c_str(), id};
    }
    return known.id;
}

XmlNameId XmlNames::interned(const Raw &raw)
{
    // An undeclared prefix is part of the name.
    if (raw.prefix && !raw.uri) {
        const std::string name = std::string(viewOf(raw.prefix)) + ':' + std::string(viewOf(raw.local));
        return m_tree.intern({}, name, {});
    }
    if (!raw.uri)
        return m_tree.intern({}, viewOf(raw.local), {});
    // A URI is written once and may be long; names in its namespace are many.
    const auto [known, isNew] = m_uris.try_emplace(raw.uri);
    if (isNew)
        known->second = m_tree.internUri(viewOf(raw.uri));
    return m_tree.internInNamespace(viewOf(raw.prefix), viewOf(raw.local), known->second);
}

} // namespace vantrell
