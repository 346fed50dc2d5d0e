#pragma once

#include "markers/SequenceTiming.h"
#include "xml/XmlDocument.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <unordered_map>

namespace vantrell
{

struct SequenceInfo {
    std::optional<QString> uuid;
    std::optional<QString> name;
    SequenceTiming timing; ///< of the first elements
};

/// What adding and moving markers reads of a sequence. A sequence without a name or UUID of its own is known
/// by the first one that it holds at any depth, that of a marker included, and finding that walks all of the
/// sequence: it is kept until something else than append() changes the tree. Main thread.
class SequenceInfoCache
{
public:
    /// The document outlives the cache.
    explicit SequenceInfoCache(XmlDocument &document)
        : m_document(document)
    {
    }

    /// Good until the next call.
    const SequenceInfo &infoOf(XmlNode sequence);

    /// Makes a new marker, which has neither a UUID nor a timecode, the last child of the sequence.
    void append(XmlNode marker, XmlNode sequence);

private:
    struct Entry {
        SequenceInfo info;
        bool holdsName = false; ///< the name is that of an element
    };

    void dropOutdated();

    XmlDocument &m_document;
    std::unordered_map<XmlNode, Entry> m_entries;
    std::uint64_t m_revision = 0; ///< of the document that they were read from
};

} // namespace vantrell
