#include "xml/XmlTree.h"

#include "xml/XmlChanges.h"

#include <QScopeGuard>

#include <algorithm>
#include <cstring>
#include <functional>
#include <limits>
#include <new>
#include <type_traits>
#include <utility>

namespace vantrell
{

static_assert(sizeof(XmlTree::Node) == 24);
static_assert(std::is_trivially_default_constructible_v<XmlTree::Node>);

namespace
{

/// Where the search for a name begins; one name may be in many namespaces.
std::size_t firstSlot(std::size_t hash, std::uint32_t uri)
{
    return hash + std::size_t(uri) * 0x9E3779B97F4A7C15u;
}

} // namespace

XmlTree::XmlTree(XmlDocument *owner)
    : m_owner(owner)
    , m_uris(1)
    , m_nameTable(256)
{
    m_names.emplace_back();
    make(Kind::Document); // id 0 means no node
    make(Kind::Document);
}

std::size_t XmlTree::hashOf(std::string_view qualified)
{
    return std::hash<std::string_view>()(qualified);
}

XmlNameId XmlTree::find(std::string_view qualified, std::uint32_t uri, std::size_t hash) const
{
    const std::size_t mask = m_nameTable.size() - 1;
    for (std::size_t slot = firstSlot(hash, uri) & mask;; slot = (slot + 1) & mask) {
        const XmlNameId id = m_nameTable[slot];
        if (id == noName || (m_names[id].uri == uri && m_names[id].qualified == qualified))
            return id;
    }
}

XmlNameId XmlTree::internInNamespace(std::string_view prefix, std::string_view local, std::uint32_t uriNumber)
{
    std::string qualified(prefix);
    if (!prefix.empty())
        qualified += ':';
    qualified += local;
    const std::size_t hash = hashOf(qualified);
    if (const XmlNameId known = find(qualified, uriNumber, hash))
        return known;
    if (m_names.size() >= std::size_t(1) << 28)
        throw std::bad_alloc();
    if (m_names.size() * 2 > m_nameTable.size())
        growNameTable();
    const auto id = XmlNameId(m_names.size());
    const auto localAt = std::uint32_t(qualified.size() - local.size());
    const QString text = QString::fromUtf8(qualified.data(), qsizetype(qualified.size()));
    m_names.push_back({std::move(qualified), localAt, uriNumber, text});
    const std::size_t mask = m_nameTable.size() - 1;
    std::size_t slot = firstSlot(hash, uriNumber) & mask;
    while (m_nameTable[slot] != noName)
        slot = (slot + 1) & mask;
    m_nameTable[slot] = id;
    return id;
}

void XmlTree::growNameTable()
{
    std::vector<XmlNameId> larger(m_nameTable.size() * 2);
    const std::size_t mask = larger.size() - 1;
    for (XmlNameId id = 1; id < m_names.size(); ++id) {
        std::size_t slot = firstSlot(hashOf(m_names[id].qualified), m_names[id].uri) & mask;
        while (larger[slot] != noName)
            slot = (slot + 1) & mask;
        larger[slot] = id;
    }
    m_nameTable = std::move(larger);
}

std::uint32_t XmlTree::internUri(std::string_view uri)
{
    if (uri.empty())
        return 0;
    const auto [known, isNew] = m_uriNumbers.try_emplace(std::string(uri), std::uint32_t(m_uris.size()));
    if (isNew)
        m_uris.emplace_back(uri);
    return known->second;
}

std::string_view XmlTree::prefix(XmlNameId id) const
{
    const Name &known = m_names[id];
    return std::string_view(known.qualified).substr(0, known.localAt ? known.localAt - 1 : 0);
}

/// Starts a new region with room for that many more bytes, and moves the open text to it.
void XmlTree::makeRegion(std::size_t wanted)
{
    const bool isFirst = m_texts.empty();
    const std::size_t start = isFirst ? textUnit : 0; // position 0 stands for no text
    const std::size_t size = headerSize + m_openSize + wanted;
    // A text that outgrows one region is likely to grow on.
    const std::size_t room = start + (m_openSize > 0 ? 2 * size : size);
    const std::size_t chunks = (room + textChunkSize - 1) / textChunkSize;
    const bool isTooMuch = m_texts.size() + chunks > std::size_t(1) << (32 - textBits);
    if (isTooMuch || size > std::numeric_limits<std::uint32_t>::max())
        throw std::bad_alloc();
    std::unique_ptr<char[]> memory(new char[chunks * textChunkSize]);
    if (m_openSize > 0)
        std::memcpy(memory.get() + start + headerSize, openedText().data(), m_openSize);
    m_firstUnit = m_texts.size() << textBits;
    m_region = memory.get();
    m_regionSize = chunks * textChunkSize;
    m_textUsed = start;
    m_textMemory.push_back(std::move(memory));
    for (std::size_t i = 0; i < chunks; ++i)
        m_texts.push_back(m_region + i * textChunkSize);
}

void XmlTree::makeChunk()
{
    if (m_nodeCount > std::numeric_limits<XmlNodeId>::max() - nodesPerChunk)
        throw std::bad_alloc();
    m_nodes.emplace_back(new Node[nodesPerChunk]);
}

XmlNodeId XmlTree::makeText(Kind kind, std::string_view text)
{
    const XmlTextId stored = addText(text);
    const XmlNodeId id = make(kind);
    node(id).text = stored;
    return id;
}

void XmlTree::append(XmlNodeId parent, XmlNodeId child)
{
    Node &above = node(parent);
    Node &added = node(child);
    if (m_recorder)
        record(child, parent, lastChild(parent), true);
    noteChange(added);
    added.parent = parent;
    added.next = 0;
    if (above.firstChild == 0) {
        above.firstChild = added.previous = child;
        return;
    }
    XmlNodeId &last = node(above.firstChild).previous;
    node(last).next = child;
    added.previous = last;
    last = child;
}

void XmlTree::insertAfter(XmlNodeId parent, XmlNodeId previous, XmlNodeId child)
{
    Node &above = node(parent);
    const XmlNodeId next = previous ? node(previous).next : above.firstChild;
    if (next == 0) {
        append(parent, child);
        return;
    }
    Node &added = node(child);
    if (m_recorder)
        record(child, parent, previous, true);
    noteChange(added);
    added.parent = parent;
    added.next = next;
    added.previous = node(next).previous; // of a first child: the last one
    node(next).previous = child;
    if (previous)
        node(previous).next = child;
    else
        above.firstChild = child;
}

void XmlTree::appendAttribute(XmlNodeId element, XmlNodeId attribute)
{
    Node &owner = node(element);
    Node &added = node(attribute);
    m_isTextInOrder = false;
    added.parent = element;
    added.next = 0;
    if (owner.firstAttribute == 0) {
        owner.firstAttribute = added.previous = attribute;
        return;
    }
    XmlNodeId &last = node(owner.firstAttribute).previous;
    node(last).next = attribute;
    added.previous = last;
    last = attribute;
}

void XmlTree::removeAttributes(XmlNodeId element)
{
    Node &owner = node(element);
    XmlNodeId lastKept = 0;
    XmlNodeId id = owner.firstAttribute;
    for (; id && node(id).kind() == Kind::Namespace; id = node(id).next)
        lastKept = id;
    if (lastKept == 0) {
        owner.firstAttribute = 0;
    } else {
        node(lastKept).next = 0;
        node(owner.firstAttribute).previous = lastKept;
    }
    while (id) {
        Node &taken = node(id);
        id = taken.next;
        taken.parent = taken.next = taken.previous = 0;
    }
}

void XmlTree::unlink(XmlNodeId child)
{
    Node &taken = node(child);
    Node &above = node(taken.parent);
    if (m_recorder)
        record(child, taken.parent, previousSibling(child), false);
    noteChange(taken);
    const XmlNodeId first = above.firstChild;
    if (first == child)
        above.firstChild = taken.next;
    else
        node(taken.previous).next = taken.next;
    if (taken.next)
        node(taken.next).previous = taken.previous;
    else if (first != child)
        node(first).previous = taken.previous;
    taken.parent = taken.next = taken.previous = 0;
}

XmlNodeId XmlTree::previousSibling(XmlNodeId id) const
{
    const Node &self = node(id);
    return self.previous == 0 || node(self.previous).next == 0 ? 0 : self.previous;
}

XmlNodeId XmlTree::lastChild(XmlNodeId id) const
{
    const Node &self = node(id);
    return self.hasChildren() && self.firstChild ? node(self.firstChild).previous : 0;
}

XmlNodeId XmlTree::following(XmlNodeId id, XmlNodeId top) const
{
    const Node &self = node(id);
    if (self.hasChildren() && self.firstChild)
        return self.firstChild;
    for (XmlNodeId up = id; up && up != top; up = node(up).parent) {
        if (node(up).next)
            return node(up).next;
    }
    return 0;
}

/// Only with a recorder.
void XmlTree::record(XmlNodeId node, XmlNodeId parent, XmlNodeId previous, bool isLinked)
{
    m_recorder->m_changes.push_back({node, parent, previous, isLinked});
}

XmlChanges XmlTree::revert(const XmlChanges &changes)
{
    XmlChanges reverse;
    reverse.m_changes.reserve(changes.m_changes.size()); // from here on there is memory enough
    XmlChanges *const recorder = std::exchange(m_recorder, &reverse);
    for (auto change = changes.m_changes.rbegin(); change != changes.m_changes.rend(); ++change) {
        if (change->isLinked)
            unlink(change->node);
        else
            insertAfter(change->parent, change->previous, change->node);
    }
    m_recorder = recorder;
    return reverse;
}

void XmlTree::stepBack(const XmlChanges &changes) noexcept
{
    XmlChanges *const recorder = setRecorder(nullptr);
    for (auto change = changes.m_changes.rbegin(); change != changes.m_changes.rend(); ++change) {
        if (change->isLinked)
            unlink(change->node);
        else
            insertAfter(change->parent, change->previous, change->node);
    }
    setRecorder(recorder);
}

void XmlTree::stepForward(const XmlChanges &changes) noexcept
{
    XmlChanges *const recorder = setRecorder(nullptr);
    for (const XmlChanges::Change &change : changes.m_changes) {
        if (change.isLinked)
            insertAfter(change.parent, change.previous, change.node);
        else
            unlink(change.node);
    }
    setRecorder(recorder);
}

void XmlTree::setInOrder(bool textToo)
{
    m_orderedEnd = m_nodeCount;
    m_isTextInOrder = textToo;
}

/// Called when a node is linked or unlinked. Changes of text keep elements in order.
void XmlTree::noteChange(const Node &changed)
{
    m_isTextInOrder = false;
    if (!changed.isElement() || !isInOrder())
        return;
    m_orderedEnd = 0;
    m_elements = {};
}

XmlNodeId XmlTree::endOfElementsIn(XmlNodeId id) const
{
    for (XmlNodeId up = id; up; up = node(up).parent) {
        for (XmlNodeId next = node(up).next; next; next = node(next).next) {
            if (node(next).isElement())
                return next;
        }
    }
    return m_orderedEnd;
}

XmlNameId XmlTree::copyName(const XmlTree &from, XmlNameId id)
{
    if (&from == this || id == noName)
        return id;
    const Name &known = from.name(id);
    return intern(from.prefix(id), std::string_view(known.qualified).substr(known.localAt),
                  from.uri(known.uri));
}

/// The node without its children: an element with its attributes, others with their text.
XmlNodeId XmlTree::copyShallow(const XmlTree &from, XmlNodeId id, const std::vector<XmlNameId> &declared)
{
    const Node &original = from.node(id);
    const XmlNodeId made = make(original.kind(), copyName(from, original.name));
    if (!original.hasChildren()) {
        // Texts never change, so copies within a tree share them.
        const bool isShared = &from == this || original.text == 0;
        const XmlTextId text = isShared ? original.text : addText(from.text(original.text));
        node(made).text = text;
        return made;
    }
    XmlNodeId attribute = original.firstAttribute;
    for (; attribute && from.node(attribute).kind() == Kind::Namespace; attribute = from.node(attribute).next)
        appendAttribute(made, copyShallow(from, attribute, {}));
    for (const XmlNameId used : declared) {
        const XmlTextId uri = addText(from.uri(from.name(used).uri));
        const XmlNodeId declaration = make(Kind::Namespace, intern({}, from.prefix(used), {}));
        node(declaration).text = uri;
        appendAttribute(made, declaration);
    }
    for (; attribute; attribute = from.node(attribute).next)
        appendAttribute(made, copyShallow(from, attribute, {}));
    return made;
}

void XmlTree::copyChildren(const XmlTree &from, XmlNodeId original, XmlNodeId made)
{
    for (XmlNodeId child = from.node(original).firstChild; child; child = from.node(child).next) {
        const XmlNodeId added = copyShallow(from, child, {});
        append(made, added);
        if (from.node(child).isElement())
            copyChildren(from, child, added);
    }
}

XmlNodeId XmlTree::copy(const XmlTree &from, XmlNodeId element)
{
    XmlChanges *const recorder = std::exchange(m_recorder, nullptr);
    const auto resume = qScopeGuard([&] { m_recorder = recorder; });
    const XmlNodeId made = copyShallow(from, element, from.inheritedNamespaces(element));
    copyChildren(from, element, made);
    return made;
}

std::vector<XmlNameId> XmlTree::inheritedNamespaces(XmlNodeId element) const
{
    std::vector<XmlNameId> found;
    if (m_uris.size() == 1)
        return found;
    const auto isDeclared = [&](XmlNodeId at, std::string_view prefix) {
        for (;; at = node(at).parent) {
            for (XmlNodeId i = node(at).firstAttribute; i && node(i).kind() == Kind::Namespace;
                 i = node(i).next) {
                if (name(node(i).name).qualified == prefix)
                    return true;
            }
            if (at == element)
                break;
        }
        return std::any_of(found.begin(), found.end(),
                           [&](XmlNameId other) { return this->prefix(other) == prefix; });
    };
    const auto look = [&](XmlNodeId at, XmlNameId used) {
        if (name(used).uri != 0 && prefix(used) != "xml" && !isDeclared(at, prefix(used)))
            found.push_back(used);
    };
    for (XmlNodeId at = element; at; at = following(at, element)) {
        if (!node(at).isElement())
            continue;
        look(at, node(at).name);
        for (XmlNodeId i = node(at).firstAttribute; i; i = node(i).next) {
            if (node(i).kind() == Kind::Attribute)
                look(at, node(i).name);
        }
    }
    return found;
}

} // namespace vantrell
