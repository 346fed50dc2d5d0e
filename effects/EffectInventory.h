#pragma once

#include "document/MyDocument.h"
#include "rows/RowRecord.h"
#include "xml/XmlNode.h"

#include <QSet>
#include <QString>

#include <cstdint>
#include <optional>
#include <string_view>
#include <unordered_map>

namespace vantrell
{

/// The list of all effects of a project, and those of it that are on show: what the type menu, the
/// show-defaults box and the search leave, sorted as the table is. Main thread unless a member says
/// otherwise. The document must be closed before the object goes away.
class EffectInventory
{
public:
    explicit EffectInventory(MyDocument &document);

    /// Rebuilds the document's list of effects, then the rows on show when the Effects tab is chosen.
    /// Leaves the list as it is when the document closes meanwhile. On a thread of its own, one run at a
    /// time.
    void populateEffectData();

    /// Rebuilds the rows on show and the status text; see MyDocument::rebuildRows(). Any thread.
    void populateFilteredEffectData();

    /// The actions of the type menu (and of the show-defaults box) and of the search field.
    void changeEffectFilter() { populateFilteredEffectData(); }
    void effectSearchAction() { populateFilteredEffectData(); }

    /// Sets the text under the effects table: how many rows are on show and how many are selected.
    void updateEffectStatusText();

private:
    void build();

    MyDocument &m_document;
};

/// Makes effect records (EffectKey) of the elements of one tree that nobody edits meanwhile. What an
/// owner has in common for all its effects is looked up and stored once, and so are the effects' names. One
/// thread.
class EffectReader
{
public:
    /// The effect elements of a project (\a xmlType 0) or a single sequence (1): all filters in document
    /// order, then all generators in document order. \a document is the document node.
    static XmlNodeList effectElements(XmlNode document, std::int64_t xmlType);

    RowRecordPtr recordOf(XmlNode element);

private:
    /// Name, UUID and id of a sequence or clip.
    struct Owner {
        std::optional<QString> name;
        std::optional<QString> uuid;
        std::optional<QString> id;
    };

    /// The nearest elements of those names at or above one element; null where there is none.
    struct Surroundings {
        XmlNode sequence;
        XmlNode clipItem;
        XmlNode clip;
    };

    struct LastOwner {
        XmlNode element;
        Owner owner;
    };

    void lookAround(XmlNode parent);
    Surroundings surroundingsAt(XmlNode element);
    static void enter(XmlNode element, Surroundings &around);
    const Owner *ownerOf(XmlNode element, LastOwner &last);
    std::optional<QString> shared(const std::optional<QString> &text);

    std::unordered_map<XmlNode, Surroundings> m_surroundings; // by the element that they are seen from
    LastOwner m_lastSequence;
    LastOwner m_lastClip;

    XmlNode m_parent; // of the effect that was read last: most have several
    const Owner *m_sequence = nullptr;
    const Owner *m_clip = nullptr;
    QString m_lastMediaType;  // as it is in the tree
    QString m_shownMediaType; // the same as it is shown
    QSet<QString> m_texts;
};

} // namespace vantrell
