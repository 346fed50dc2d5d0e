#pragma once

// For use inside xml/ only.

#include "xml/XmlTree.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <unordered_map>

namespace vantrell
{

/// The names of a tree that is being parsed. It touches no other part of the tree, so it may run on another
/// thread than the builder.
class XmlNames
{
public:
    /// A name as a parser hands it over: zero-terminated UTF-8; prefix and URI are null when there is none.
    /// The parser keeps a URI where it is for as long as it works.
    struct Raw {
        const unsigned char *local;
        const unsigned char *prefix;
        const unsigned char *uri;
    };

    explicit XmlNames(XmlTree &tree)
        : m_tree(tree)
    {
    }

    XmlNameId idOf(const Raw &raw);
    /// A name without a namespace.
    XmlNameId idOf(std::string_view name) { return m_tree.intern({}, name, {}); }

private:
    /// A known name by its address; the content is compared as well.
    struct Known {
        const unsigned char *local = nullptr;
        const char *text = nullptr;
        XmlNameId id = 0;
    };

    XmlNameId interned(const Raw &raw);

    XmlTree &m_tree;
    std::array<Known, 1024> m_known = {};
    std::unordered_map<const unsigned char *, std::uint32_t> m_uris; // numbers, by where the URI is
};

} // namespace vantrell
