#include "xml/XmlStepRecorder.h"

#include "support/files/PackedBytes.h"
#include "xml/XmlChanges.h"
#include "xml/XmlDocument.h"
#include "xml/XmlStepFormat.h"
#include "xml/XmlTree.h"

#include <QScopeGuard>

#include <algorithm>
#include <unordered_set>
#include <utility>
#include <vector>

namespace vantrell
{

namespace
{

using namespace XmlStepFormat;
using Kind = XmlTree::Kind;

Child childOf(Kind kind)
{
    switch (kind) {
    case Kind::CData:
        return Child::CData;
    case Kind::Comment:
        return Child::Comment;
    case Kind::Instruction:
        return Child::Instruction;
    case Kind::Doctype:
        return Child::Doctype;
    default:
        return Child::Text;
    }
}

void sortUnique(std::vector<XmlNodeId> &ids)
{
    std::sort(ids.begin(), ids.end());
    ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
}

XmlTree &writable(XmlDocument &document)
{
    return const_cast<XmlTree &>(*document.node().tree()); // XmlNode gives it for reading
}

} // namespace

/// One step while it is written.
class XmlStepRecorder::Step
{
public:
    Step(XmlStepRecorder &recorder, XmlTree &tree, const XmlChanges &changes)
        : m_recorder(recorder)
        , m_tree(tree)
        , m_changes(changes)
    {
        findTouched();
    }

    std::string encode()
    {
        findPlacements();
        introduceAll();
        writeContents();
        for (const auto &[element, placement] : m_placements)
            m_waiting.insert(element);
        for (const Placement &placement : m_placementOrder)
            writePlacements(placement.element);
        writeRemovals();
        return m_out.take();
    }

    bool leftAllEqual()
    {
        if (!m_elements.empty())
            return false;
        const auto contents = [this] {
            std::vector<std::uint64_t> digests;
            for (const XmlNodeId home : m_homes)
                digests.push_back(contentOf(m_tree, home));
            return digests;
        };
        const std::vector<std::uint64_t> after = contents();
        m_tree.stepBack(m_changes);
        const auto forward = qScopeGuard([this] { m_tree.stepForward(m_changes); });
        return contents() == after;
    }

private:
    struct Element {
        XmlNodeId id;
        bool wasLinked;
    };
    struct Placement {
        XmlNodeId element;
        XmlNodeId parent;
        XmlNodeId previous; ///< sibling element; 0 for none
        std::uint32_t others;
    };

    /// Each node that was linked or unlinked, by where it was before and is now.
    void findTouched()
    {
        const auto &all = m_changes.m_changes;
        std::vector<std::pair<XmlNodeId, std::uint32_t>> order;
        order.reserve(all.size());
        for (std::size_t i = 0; i < all.size(); ++i)
            order.emplace_back(all[i].node, std::uint32_t(i));
        std::sort(order.begin(), order.end());
        for (std::size_t i = 0; i < order.size(); ++i) {
            if (i > 0 && order[i - 1].first == order[i].first)
                continue;
            const XmlChanges::Change &first = all[order[i].second];
            const XmlTree::Node &node = m_tree.node(first.node);
            if (node.isElement()) {
                m_elements.push_back({first.node, !first.isLinked});
                continue;
            }
            if (!first.isLinked)
                m_homes.push_back(first.parent);
            if (node.parent)
                m_homes.push_back(node.parent);
        }
        sortUnique(m_homes);
    }

    bool isHome(XmlNodeId id) const { return std::binary_search(m_homes.begin(), m_homes.end(), id); }

    /// Where the elements are now, unless the content of their parent is written whole.
    void findPlacements()
    {
        for (const Element &element : m_elements) {
            const XmlNodeId parent = m_tree.node(element.id).parent;
            if (parent == 0 || isHome(parent))
                continue;
            Placement placement{element.id, parent, 0, 0};
            XmlNodeId at = m_tree.previousSibling(element.id);
            for (; at && !m_tree.node(at).isElement(); at = m_tree.previousSibling(at))
                ++placement.others;
            placement.previous = at;
            m_placements.emplace(element.id, placement);
            m_placementOrder.push_back(placement);
        }
    }

    /// Gives numbers to the elements of the file that the step concerns, by what they were before it.
    void introduceAll()
    {
        std::vector<XmlNodeId> wanted = m_homes;
        for (const Element &element : m_elements)
            wanted.push_back(element.id);
        for (const Placement &placement : m_placementOrder) {
            wanted.push_back(placement.parent);
            if (placement.previous)
                wanted.push_back(placement.previous);
        }
        sortUnique(wanted);
        m_tree.stepBack(m_changes);
        const auto forward = qScopeGuard([this] { m_tree.stepForward(m_changes); });
        for (const XmlNodeId id : wanted)
            introduce(id);
        for (const XmlNodeId home : m_homes)
            m_contents.push_back(numberOf(home) ? contentOf(m_tree, home) : 0);
    }

    std::uint32_t numberOf(XmlNodeId id) const
    {
        const auto known = m_recorder.m_numbers.find(id);
        return known == m_recorder.m_numbers.end() ? 0 : known->second;
    }

    /// The element's number; 0 when it is not part of the document.
    std::uint32_t introduce(XmlNodeId id)
    {
        if (const std::uint32_t known = numberOf(id))
            return known;
        const XmlTree::Node &node = m_tree.node(id);
        const std::uint32_t parent = node.parent ? introduce(node.parent) : 0;
        if (parent == 0)
            return 0;
        const Identity identity = identityOf(m_tree, id);
        write(Operation::Introduce);
        m_out.number(parent);
        writeName(node.name);
        m_out.number(std::uint64_t(identity.kind) << 1 | (identity.isOnly ? 1 : 0));
        m_out.fixed(identity.key);
        m_out.number(identity.index);
        m_out.number(m_recorder.m_order ? m_recorder.m_order->positionOf(id) : 0);
        return addNumber(id);
    }

    std::uint32_t addNumber(XmlNodeId id)
    {
        m_recorder.m_numbers.emplace(id, m_recorder.m_lastNumber + 1);
        return ++m_recorder.m_lastNumber;
    }

    void writeContents()
    {
        for (std::size_t i = 0; i < m_homes.size(); ++i) {
            const std::uint32_t number = numberOf(m_homes[i]);
            if (number == 0)
                continue;
            write(Operation::SetContent);
            m_out.number(number);
            m_out.fixed(m_contents[i]);
            writeChildren(m_homes[i]);
        }
    }

    /// Behind those of the siblings that it follows.
    void writePlacements(XmlNodeId element)
    {
        std::vector<XmlNodeId> chain;
        while (m_waiting.erase(element) > 0) {
            chain.push_back(element);
            element = m_placements.at(element).previous;
        }
        for (auto at = chain.rbegin(); at != chain.rend(); ++at) {
            const Placement &placement = m_placements.at(*at);
            const std::uint32_t parent = numberOf(placement.parent);
            if (parent == 0 || m_placed.contains(*at))
                continue;
            write(Operation::Place);
            m_out.number(parent);
            m_out.number(placement.previous ? numberOf(placement.previous) : 0);
            m_out.number(placement.others);
            writeElement(*at);
        }
    }

    void writeRemovals()
    {
        for (const Element &element : m_elements) {
            const std::uint32_t number = element.wasLinked ? numberOf(element.id) : 0;
            if (number == 0 || m_placed.contains(element.id))
                continue;
            write(Operation::Remove);
            m_out.number(number);
        }
    }

    void writeChildren(XmlNodeId parent)
    {
        for (XmlNodeId child = m_tree.node(parent).firstChild; child; child = m_tree.node(child).next) {
            const XmlTree::Node &node = m_tree.node(child);
            if (node.isElement()) {
                writeElement(child);
                continue;
            }
            const Child kind = childOf(node.kind());
            write(kind);
            if (kind == Child::Instruction)
                writeName(node.name);
            m_out.bytes(m_tree.text(node.text));
        }
        write(Child::End);
    }

    void writeElement(XmlNodeId id)
    {
        m_placed.insert(id);
        if (const std::uint32_t known = numberOf(id)) {
            write(Child::Known);
            m_out.number(known);
            return;
        }
        addNumber(id);
        const XmlTree::Node &node = m_tree.node(id);
        write(Child::Element);
        writeName(node.name);
        std::uint32_t attributes = 0;
        for (XmlNodeId at = node.firstAttribute; at; at = m_tree.node(at).next)
            ++attributes;
        m_out.number(attributes);
        for (XmlNodeId at = node.firstAttribute; at; at = m_tree.node(at).next) {
            m_out.number(m_tree.node(at).kind() == Kind::Namespace ? 1 : 0);
            writeName(m_tree.node(at).name);
            m_out.bytes(m_tree.text(m_tree.node(at).text));
        }
        writeChildren(id);
    }

    void writeName(XmlNameId id)
    {
        const auto [index, isNew] =
            m_recorder.m_names.try_emplace(id, std::uint32_t(m_recorder.m_names.size()));
        m_out.number(index->second);
        if (!isNew)
            return;
        const XmlTree::Name &name = m_tree.name(id);
        m_out.bytes(m_tree.prefix(id));
        m_out.bytes(std::string_view(name.qualified).substr(name.localAt));
        m_out.bytes(m_tree.uri(name.uri));
    }

    template <typename Code>
    void write(Code code)
    {
        m_out.number(std::uint64_t(code));
    }

    XmlStepRecorder &m_recorder;
    XmlTree &m_tree;
    const XmlChanges &m_changes;
    std::vector<Element> m_elements;
    std::vector<XmlNodeId> m_homes;        // whose children changed other than elements; ascending
    std::vector<std::uint64_t> m_contents; // of the homes before the step
    std::unordered_map<XmlNodeId, Placement> m_placements;
    std::vector<Placement> m_placementOrder;
    std::unordered_set<XmlNodeId> m_waiting;
    std::unordered_set<XmlNodeId> m_placed;
    PackedWriter m_out;
};

XmlStepRecorder::XmlStepRecorder(std::shared_ptr<const XmlElementOrder> order)
    : m_order(std::move(order))
    , m_numbers({{XmlTree::documentId, documentNumber}})
    , m_lastNumber(documentNumber)
{
}

XmlStepRecorder::~XmlStepRecorder() = default;

std::string XmlStepRecorder::encode(XmlDocument &document, const XmlChanges &changes)
{
    return Step(*this, writable(document), changes).encode();
}

bool XmlStepRecorder::leftAllEqual(XmlDocument &document, const XmlChanges &changes)
{
    XmlStepRecorder none(nullptr);
    return Step(none, writable(document), changes).leftAllEqual();
}

} // namespace vantrell
