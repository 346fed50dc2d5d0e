#pragma once

#include "markers/OwnOwner.h"

#include <QHash>

#include <deque>
#include <unordered_map>

namespace vantrell
{

/// What the sequences and clips above a marker put into its record, for one extraction. With
/// OwnerListing::Own they are the marker's own. By position, what was read of one is kept: of a sequence by
/// its step in the location path (so that like steps anywhere in the project share what the first one gave),
/// of a clip by the path of its parent (so that all clips of a track share what the first one gave). One
/// thread, while nobody edits the tree.
class MarkerOwners
{
public:
    MarkerOwners(MyDocument &document, OwnerListing listing)
        : m_listing(listing)
        , m_indexes(document)
    {
    }

    struct Owner {
        /// The markers lie in a multiclip angle that is switched off.
        bool inInactiveAngle = false;
        /// A step of the path is named like a sequence, but none holds the markers: they get no record.
        bool lacksSequence = false;
        /// The markers' own sequence and clip are those of the keys.
        bool isOwn = false;
        RowRecord keys;
    };

    /// What the markers right below the element get. Good until the next call.
    const Owner &ownerOfMarkersIn(XmlNode parent);

private:
    enum class Kind { None, Sequence, ClipItem, Clip };

    /// A step of location paths that matters for the markers below it.
    struct Ancestor {
        const Ancestor *up = nullptr; ///< the nearest such step above
        XmlNode element;
        Kind kind = Kind::None;
        bool inAngle = false; ///< a step down to here has "angle" in its name
        XmlNode angle;        ///< from here up, the nearest element of each name
        XmlNode sequence;
        XmlNode clipItem;
        XmlNode clip;
        XmlNode ownClip; ///< the nearest clip or clip item inside the sequence
    };

    struct SequencePart {
        RowRecord keys;
        XmlNode sequence;
    };

    const Ancestor &nearestAncestor(XmlNode element);
    const Ancestor &addAncestor(XmlNode element, const Ancestor &up);
    bool isActiveAngle(XmlNode angle);
    const QString &stepOf(XmlNode element);
    void addSequence(const Ancestor &at, const Ancestor &innermost, XmlNode &current);
    void addClip(const Ancestor &at, const Ancestor &innermost, XmlNode current);
    void addOwn(const OwnOwner &own);
    void addByPosition(const Ancestor &innermost);

    const OwnerListing m_listing;
    OwnerIndexes m_indexes;
    XmlNode m_parent;
    Owner m_owner; ///< of the markers in m_parent

    const Ancestor m_root;
    std::deque<Ancestor> m_ancestorList;
    std::unordered_map<XmlNode, const Ancestor *>
        m_ancestors; ///< of elements, themselves or the nearest above
    std::unordered_map<XmlNode, bool> m_angles;
    std::unordered_map<XmlNode, QString> m_steps;

    QHash<QString, SequencePart> m_sequences;
    std::unordered_map<XmlNode, RowRecord> m_clips; ///< by the parent, which stands for its path
    std::unordered_map<XmlNode, RowRecord> m_ownSequences;
};

} // namespace vantrell
