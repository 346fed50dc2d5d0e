#pragma once

#include "markers/SequenceTiming.h"
#include "xml/XmlDocument.h"
#include "xml/XmlQuery.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <unordered_map>

namespace vantrell
{

struct SequenceInfo {
    QString uuid;          ///< null when it has none
    QString name;          ///< null when it has none
    SequenceTiming timing; ///< of the first elements
};

/// What adding and moving markers reads of a sequence, kept for as long as no change of the tree could
/// make it another. The marker edits tell the cache what they do;
/// after any other change of the tree it starts afresh. Main thread.
///
/// A sequence without a name or UUID of its own is known by the first one that it holds at any depth,
/// that of a marker included, and finding that walks all of the sequence.
class SequenceInfoCache
{
public:
    /// The document outlives the cache.
    explicit SequenceInfoCache(XmlDocument &document)
        : m_document(document)
    {
    }

    const SequenceInfo &infoOf(XmlNode sequence);

    /// Just before a child element of the marker gets another text or is added. \a wholeElements: the
    /// change takes elements out of the tree.
    void willChangeChild(XmlNode marker, const QString &child, bool wholeElements);
    /// Just before the marker is taken out of the tree or moved.
    void willDetach(XmlNode marker);
    /// After a change that was announced.
    void didChange();
    /// After the marker became the last child of the parent; nothing else changed since the last call.
    void didAppend(XmlNode marker, XmlNode parent);

    /// To be called before a change that only didAppend() reports.
    void synchronize();

private:
    /// Where a name or UUID was found.
    struct Place {
        enum class Kind { Unknown, Own, Within, None } kind = Kind::Unknown; ///< Unknown: to be looked for
        XmlNode element;       ///< the element that holds one that is Within
        bool lacksOwn = false; ///< known to stay so

        void forget()
        {
            if (kind != Kind::Own)
                kind = Kind::Unknown;
        }
    };

    struct Entry {
        SequenceInfo info;
        Place name;
        Place uuid;
    };

    using Finder = std::optional<QString> (*)(XmlNode, bool);
    static void look(XmlNode sequence, const XmlQuery &query, Finder finder, Place &place, QString &text);

    template <typename Change>
    void changeAround(XmlNode element, Change change);

    XmlDocument &m_document;
    std::unordered_map<XmlNode, Entry> m_entries;
    std::uint64_t m_revision = 0;
};

} // namespace vantrell
