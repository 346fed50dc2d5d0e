#include "xml/XmlStepPlayer.h"

#include "support/files/PackedBytes.h"
#include "xml/XmlDocument.h"
#include "xml/XmlStepFormat.h"
#include "xml/XmlTree.h"

#include <QScopeGuard>

#include <algorithm>
#include <tuple>
#include <utility>

namespace vantrell
{

namespace
{

using namespace XmlStepFormat;
using Kind = XmlTree::Kind;

constexpr int deepest = 2048; // elements within one another; a project has fewer

Kind kindOf(Child child)
{
    switch (child) {
    case Child::CData:
        return Kind::CData;
    case Child::Comment:
        return Kind::Comment;
    case Child::Instruction:
        return Kind::Instruction;
    case Child::Doctype:
        return Kind::Doctype;
    default:
        return Kind::Text;
    }
}

} // namespace

/// One step while it is read and done.
class XmlStepPlayer::Step
{
public:
    Step(XmlStepPlayer &player, std::string_view bytes)
        : m_player(player)
        , m_tree(player.m_tree)
        , m_in(bytes)
    {
    }

    bool read()
    {
        while (!m_in.atEnd() && m_in.isOk() && m_isValid)
            readOperation();
        m_outcome.isReadable = m_in.isOk() && m_isValid;
        return m_outcome.isReadable;
    }

    Outcome outcome() const { return m_outcome; }

    Outcome play()
    {
        if (!read())
            return m_outcome;
        for (const XmlNodeId element : m_removals)
            count(element != 0 && takeOut(element));
        for (const Placing &placing : m_placings) {
            if (mayPlace(placing))
                takeOut(placing.element);
        }
        for (const Content &content : m_contents)
            count(setContent(content));
        for (const Placing &placing : m_placings)
            count(place(placing));
        return m_outcome;
    }

private:
    struct Content {
        XmlNodeId home;
        std::uint64_t before;
        std::vector<XmlNodeId> children; ///< 0 for one that was not found
    };
    struct Placing {
        XmlNodeId parent;
        bool isFirst; ///< without a sibling element in front
        XmlNodeId previous;
        std::uint64_t others;
        XmlNodeId element;
    };

    void count(bool isDone) { ++(isDone ? m_outcome.done : m_outcome.leftOut); }

    void readOperation()
    {
        switch (Operation(m_in.number())) {
        case Operation::Introduce:
            introduce();
            break;
        case Operation::SetContent: {
            Content content;
            content.home = readElement();
            content.before = m_in.fixed();
            readChildren([&](XmlNodeId child, bool) { content.children.push_back(child); }, 0);
            m_contents.push_back(std::move(content));
            break;
        }
        case Operation::Remove:
            m_removals.push_back(readElement());
            break;
        case Operation::Place: {
            Placing placing;
            placing.parent = readElement();
            const std::uint64_t previous = m_in.number();
            placing.isFirst = previous == 0;
            placing.previous = elementOf(previous);
            placing.others = m_in.number();
            placing.element = readChild(Child(m_in.number()), 0);
            m_placings.push_back(placing);
            break;
        }
        default:
            m_isValid = false;
        }
    }

    XmlNodeId elementOf(std::uint64_t number)
    {
        if (number >= m_player.m_elements.size()) {
            m_isValid = false;
            return 0;
        }
        return m_player.m_elements[std::size_t(number)];
    }
    XmlNodeId readElement() { return elementOf(m_in.number()); }

    XmlNameId readName()
    {
        std::vector<XmlNameId> &names = m_player.m_names;
        const std::uint64_t index = m_in.number();
        if (index == names.size() && m_in.isOk()) {
            const std::string_view prefix = m_in.bytes();
            const std::string_view local = m_in.bytes();
            names.push_back(m_tree.intern(prefix, local, m_in.bytes()));
        }
        m_isValid = m_isValid && index < names.size();
        return m_isValid ? names[std::size_t(index)] : XmlTree::noName;
    }

    void introduce()
    {
        const XmlNodeId parent = readElement();
        const XmlNameId name = readName();
        Identity identity;
        const std::uint64_t flags = m_in.number();
        identity.kind = KeyKind(flags >> 1);
        identity.isOnly = (flags & 1) != 0;
        identity.key = m_in.fixed();
        identity.index = std::uint32_t(m_in.number());
        identity.position = std::uint32_t(m_in.number());
        if (m_in.isOk() && m_isValid)
            m_player.m_elements.push_back(parent ? find(parent, name, identity) : 0);
    }

    XmlNodeId find(XmlNodeId parent, XmlNameId name, const Identity &identity)
    {
        if (m_player.m_order) {
            const XmlNodeId there = m_player.m_order->at(identity.position);
            if (there && m_tree.node(there).name == name && m_tree.node(there).parent == parent)
                return there;
        }
        if (identity.isOnly && identity.kind == KeyKind::Content) {
            const XmlNodeId only = onlyChildNamed(parent, name);
            if (only)
                return only;
        }
        const std::vector<Sibling> &children = m_player.childrenOf(parent);
        const auto [begin, end] =
            std::equal_range(children.begin(), children.end(), Sibling{name, identity.key, 0, 0},
                             [](const Sibling &a, const Sibling &b) {
                                 return std::tie(a.name, a.key) < std::tie(b.name, b.key);
                             });
        if (end - begin == 1)
            return begin->id;
        const auto same =
            std::find_if(begin, end, [&](const Sibling &sibling) { return sibling.index == identity.index; });
        return same == end ? 0 : same->id;
    }

    XmlNodeId onlyChildNamed(XmlNodeId parent, XmlNameId name) const
    {
        XmlNodeId found = 0;
        for (XmlNodeId at = m_tree.node(parent).firstChild; at; at = m_tree.node(at).next) {
            if (!m_tree.node(at).isElement() || m_tree.node(at).name != name)
                continue;
            if (found)
                return 0;
            found = at;
        }
        return found;
    }

    template <typename Found>
    void readChildren(Found found, int depth)
    {
        for (auto child = Child(m_in.number()); child != Child::End && m_in.isOk() && m_isValid;
             child = Child(m_in.number()))
            found(readChild(child, depth), child == Child::Known);
    }

    /// A new node belongs to nothing yet.
    XmlNodeId readChild(Child child, int depth)
    {
        switch (child) {
        case Child::Known:
            return readElement();
        case Child::Element:
            return makeElement(depth);
        case Child::Text:
        case Child::CData:
        case Child::Comment:
        case Child::Instruction:
        case Child::Doctype: {
            const XmlNameId name = child == Child::Instruction ? readName() : XmlTree::noName;
            const XmlNodeId made = m_tree.makeText(kindOf(child), m_in.bytes());
            m_tree.node(made).name = name;
            return made;
        }
        default:
            m_isValid = false;
            return 0;
        }
    }

    XmlNodeId makeElement(int depth)
    {
        m_isValid = m_isValid && depth < deepest;
        const XmlNodeId element = m_tree.make(Kind::Element, readName());
        m_player.m_elements.push_back(element);
        const std::uint64_t attributes = m_in.number();
        for (std::uint64_t i = 0; i < attributes && m_in.isOk() && m_isValid; ++i) {
            const Kind kind = m_in.number() == 1 ? Kind::Namespace : Kind::Attribute;
            const XmlNameId name = readName();
            const XmlNodeId attribute = m_tree.makeText(kind, m_in.bytes());
            m_tree.node(attribute).name = name;
            m_tree.appendAttribute(element, attribute);
        }
        readChildren(
            [&](XmlNodeId child, bool isKnown) {
                if (child == 0)
                    return;
                if (isKnown)
                    takeOut(child);
                XmlChanges *const recorder = isKnown ? nullptr : m_tree.setRecorder(nullptr);
                m_tree.append(element, child);
                if (!isKnown)
                    m_tree.setRecorder(recorder); // what is new as a whole is no change
            },
            depth + 1);
        return element;
    }

    bool takeOut(XmlNodeId node)
    {
        if (m_tree.node(node).parent)
            m_tree.unlink(node);
        return true;
    }

    bool isWithin(XmlNodeId node, XmlNodeId outer) const
    {
        for (; node; node = m_tree.node(node).parent) {
            if (node == outer)
                return true;
        }
        return false;
    }

    bool setContent(const Content &content)
    {
        const bool isFound =
            content.home && contentOf(m_tree, content.home) == content.before &&
            std::none_of(content.children.begin(), content.children.end(),
                         [&](XmlNodeId child) { return child == 0 || isWithin(content.home, child); });
        if (!isFound)
            return false;
        while (const XmlNodeId child = m_tree.node(content.home).firstChild)
            m_tree.unlink(child);
        for (const XmlNodeId child : content.children) {
            takeOut(child);
            m_tree.append(content.home, child);
        }
        return true;
    }

    bool mayPlace(const Placing &placing) const
    {
        return placing.parent && placing.element && !isWithin(placing.parent, placing.element);
    }

    bool place(const Placing &placing)
    {
        if (!mayPlace(placing))
            return false;
        XmlNodeId previous = placing.previous;
        const bool isThere = placing.isFirst || (previous && m_tree.node(previous).parent == placing.parent);
        if (!isThere)
            previous = m_tree.lastChild(placing.parent);
        for (std::uint64_t i = 0; isThere && i < placing.others; ++i) {
            const XmlNodeId next =
                previous ? m_tree.node(previous).next : m_tree.node(placing.parent).firstChild;
            if (next == 0 || m_tree.node(next).isElement())
                break;
            previous = next;
        }
        m_tree.insertAfter(placing.parent, previous, placing.element);
        return true;
    }

    XmlStepPlayer &m_player;
    XmlTree &m_tree;
    PackedReader m_in;
    Outcome m_outcome;
    bool m_isValid = true;
    std::vector<Content> m_contents;
    std::vector<XmlNodeId> m_removals;
    std::vector<Placing> m_placings;
};

XmlStepPlayer::XmlStepPlayer(XmlDocument &document, std::shared_ptr<const XmlElementOrder> order)
    : m_document(document)
    , m_tree(const_cast<XmlTree &>(*document.node().tree())) // XmlNode gives it for reading
    , m_order(std::move(order))
    , m_firstNew(m_tree.endOfNodes())
    , m_elements({0, XmlTree::documentId})
{
}

XmlStepPlayer::~XmlStepPlayer() = default;

XmlStepPlayer::Outcome XmlStepPlayer::play(std::string_view step)
{
    m_document.noteChange();
    return Step(*this, step).play();
}

XmlStepPlayer::Outcome XmlStepPlayer::pass(std::string_view step)
{
    Step passed(*this, step);
    passed.read();
    return passed.outcome();
}

/// Sorted by name and key.
const std::vector<XmlStepPlayer::Sibling> &XmlStepPlayer::childrenOf(std::uint32_t parent)
{
    const auto [known, isNew] = m_children.try_emplace(parent);
    std::vector<Sibling> &children = known->second;
    if (!isNew)
        return children;
    std::unordered_map<XmlNameId, std::uint32_t> counts;
    for (XmlNodeId at = m_tree.node(parent).firstChild; at; at = m_tree.node(at).next) {
        const XmlNameId name = m_tree.node(at).name;
        if (m_tree.node(at).isElement() && at < m_firstNew)
            children.push_back({name, keyOf(m_tree, at), ++counts[name], at});
    }
    std::sort(children.begin(), children.end(), [](const Sibling &a, const Sibling &b) {
        return std::tie(a.name, a.key, a.index) < std::tie(b.name, b.key, b.index);
    });
    return children;
}

} // namespace vantrell
