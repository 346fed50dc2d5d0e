#include "xml/XmlQuery.h"

#include "xml/XmlQueryFallback.h"
#include "xml/XmlQueryParse.h"

#include <libxml/tree.h>

#include <libxml/dict.h>

#include <QHash>

#include <algorithm>
#include <array>
#include <bit>
#include <mutex>
#include <unordered_set>

namespace vantrell
{

/// One evaluation: visits the nodes below the context once, in document order, and carries along for
/// each node the set of steps that it is a context of.
class XmlQueryWalk
{
public:
    XmlQueryWalk(const std::vector<XmlQuery::Path> &paths, std::size_t limit, const xmlDoc *document,
                 XmlNodeList &found)
        : m_limit(limit)
        , m_found(found)
    {
        for (const XmlQuery::Path &path : paths) {
            m_start |= bit(m_steps.size());
            for (const XmlQuery::Step &step : path.steps)
                addStep(step, &step == &path.steps.back(), document->dict);
        }
    }

    /// How many [n] predicates one evaluation can count at a time.
    static constexpr std::size_t maximumPositions = 16;

    void run(xmlNode *context) { visit(context, m_start); }

private:
    struct StepState {
        const XmlQuery::Step *step;
        std::size_t firstPosition; ///< of its [n] predicates among all
        bool last;
        std::vector<const xmlChar *> names; ///< as the document keeps them; what it has not is left out
    };
    using Counters = std::array<std::int64_t, maximumPositions>;

    static std::uint64_t bit(std::size_t i) { return std::uint64_t(1) << i; }

    bool isFull() const { return m_limit && m_found.size() >= m_limit; }

    void addStep(const XmlQuery::Step &step, bool last, xmlDict *dictionary)
    {
        const std::uint64_t self = bit(m_steps.size());
        if (step.anywhere)
            m_anywhere |= self;
        if (step.axis == XmlQuery::Axis::Attribute)
            m_attributes |= self;
        else if (step.test == XmlQuery::Test::Text || step.test == XmlQuery::Test::AnyNode)
            m_otherNodes |= self;
        StepState state{&step, m_positions, last, {}};
        for (const std::string &name : step.names) {
            const auto *text = reinterpret_cast<const xmlChar *>(name.c_str());
            if (const xmlChar *kept = xmlDictExists(dictionary, text, int(name.size())))
                state.names.push_back(kept);
        }
        for (const XmlQuery::Predicate &predicate : step.predicates)
            m_positions += predicate.kind == XmlQuery::Predicate::Kind::Position;
        m_steps.push_back(std::move(state));
    }

    void visit(xmlNode *node, std::uint64_t contexts)
    {
        for (std::uint64_t rest = contexts & m_attributes; rest; rest &= rest - 1)
            visitAttributes(node, *m_steps[std::size_t(std::countr_zero(rest))].step);
        if (node->type != XML_ELEMENT_NODE && node->type != XML_DOCUMENT_NODE)
            return;
        const std::uint64_t everywhere = contexts & m_anywhere;
        std::uint64_t childSteps = contexts & ~m_attributes;
        Counters counters;
        std::fill_n(counters.begin(), m_positions, 0);
        for (xmlNode *child = node->children; child && !isFull(); child = child->next) {
            const bool element = child->type == XML_ELEMENT_NODE;
            std::uint64_t next = element ? everywhere : 0;
            bool wanted = false;
            for (std::uint64_t rest = element ? childSteps : childSteps & m_otherNodes; rest;
                 rest &= rest - 1) {
                const auto i = std::size_t(std::countr_zero(rest));
                const StepState &state = m_steps[i];
                if (!matchesTest(child, state))
                    continue;
                bool more = true;
                if (state.step->predicates.empty() || passesPredicates(child, state, counters, more)) {
                    if (state.last)
                        wanted = true;
                    else
                        next |= bit(i + 1);
                }
                if (!more)
                    childSteps &= ~bit(i);
            }
            if (wanted)
                m_found.push_back(XmlNode(child));
            if (next && holdsCandidates(child, next) && !isFull())
                visit(child, next);
            if (!everywhere && childSteps == 0)
                break;
        }
    }

    /// Whether anything in the node can match a step that it is a context of. Most elements of a project
    /// hold one text and nothing else.
    bool holdsCandidates(const xmlNode *node, std::uint64_t contexts) const
    {
        if (contexts & (m_attributes | m_otherNodes))
            return true;
        const xmlNode *child = node->children;
        return child && (child->type == XML_ELEMENT_NODE || child->next);
    }

    void visitAttributes(xmlNode *node, const XmlQuery::Step &step)
    {
        if (node->type != XML_ELEMENT_NODE)
            return;
        for (xmlAttr *attribute = node->properties; attribute && !isFull(); attribute = attribute->next) {
            const XmlNode handle(reinterpret_cast<xmlNode *>(attribute));
            if (!handle.hasName(step.names.front()))
                continue;
            // An element has each attribute once: the only position is 1.
            const bool passes = std::all_of(
                step.predicates.begin(), step.predicates.end(), [](const XmlQuery::Predicate &predicate) {
                    return predicate.kind == XmlQuery::Predicate::Kind::Position && predicate.position == 1;
                });
            if (passes)
                m_found.push_back(handle);
        }
    }

    static bool matchesTest(const xmlNode *node, const StepState &state)
    {
        switch (state.step->test) {
        case XmlQuery::Test::AnyNode:
            return true;
        case XmlQuery::Test::Text:
            return node->type == XML_TEXT_NODE || node->type == XML_CDATA_SECTION_NODE;
        case XmlQuery::Test::AnyElement:
            return node->type == XML_ELEMENT_NODE;
        case XmlQuery::Test::Name:
            break;
        }
        if (node->type != XML_ELEMENT_NODE || node->ns)
            return false;
        // A document keeps each name once, also those of elements that are made later.
        return std::find(state.names.begin(), state.names.end(), node->name) != state.names.end();
    }

    /// \a more becomes false once no later sibling can pass.
    static bool passesPredicates(const xmlNode *node, const StepState &state, Counters &counters, bool &more)
    {
        std::size_t position = state.firstPosition;
        for (const XmlQuery::Predicate &predicate : state.step->predicates) {
            switch (predicate.kind) {
            case XmlQuery::Predicate::Kind::Position: {
                const std::int64_t count = ++counters[position++];
                if (count >= predicate.position)
                    more = false;
                if (count != predicate.position)
                    return false;
                break;
            }
            case XmlQuery::Predicate::Kind::AttributeEquals:
                if (!attributeEquals(node, predicate))
                    return false;
                break;
            case XmlQuery::Predicate::Kind::TextEquals:
                if (!textEquals(node, predicate.literal))
                    return false;
                break;
            }
        }
        return true;
    }

    static bool attributeEquals(const xmlNode *node, const XmlQuery::Predicate &predicate)
    {
        if (node->type != XML_ELEMENT_NODE)
            return false;
        for (xmlAttr *attribute = node->properties; attribute; attribute = attribute->next) {
            const XmlNode handle(reinterpret_cast<xmlNode *>(attribute));
            if (handle.hasName(predicate.name))
                return handle.stringValue().toUtf8() == predicate.literal.c_str();
        }
        return false;
    }

    static bool textEquals(const xmlNode *node, const std::string &literal)
    {
        if (node->type != XML_ELEMENT_NODE)
            return false;
        for (const xmlNode *child = node->children; child; child = child->next) {
            const bool text = child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE;
            if (text && literal == reinterpret_cast<const char *>(child->content))
                return true;
        }
        return false;
    }

    std::vector<StepState> m_steps;
    std::uint64_t m_start = 0;      // the first step of each path
    std::uint64_t m_anywhere = 0;   // steps reached by "//"
    std::uint64_t m_attributes = 0; // steps to attributes
    std::uint64_t m_otherNodes = 0; // steps to children that need not be elements
    std::size_t m_positions = 0;
    std::size_t m_limit;
    XmlNodeList &m_found;
};

namespace
{

/// Keeps each node once and puts them into document order, in one walk over the tree.
void orderAndUnify(XmlNodeList &nodes, XmlNode context)
{
    std::unordered_set<XmlNode> wanted(nodes.begin(), nodes.end());
    nodes.clear();
    XmlNode node = context.root();
    if (wanted.contains(node))
        nodes.push_back(node);
    XmlNode next = node.firstChild();
    while (next && nodes.size() < wanted.size()) {
        node = next;
        if (wanted.contains(node))
            nodes.push_back(node);
        next = node.firstChild();
        for (XmlNode up = node; !next && up; up = up.parent())
            next = up.nextSibling();
    }
}

} // namespace

XmlQuery::XmlQuery(const QString &text)
{
    std::optional<std::vector<Path>> paths = XmlQueryParser(text).parse();
    std::size_t positions = 0;
    bool sameContext = paths.has_value();
    if (paths) {
        for (const Path &path : *paths) {
            for (const Step &step : path.steps) {
                positions += std::size_t(
                    std::count_if(step.predicates.begin(), step.predicates.end(),
                                  [](const Predicate &p) { return p.kind == Predicate::Kind::Position; }));
            }
            const Path &first = paths->front();
            const bool alone = paths->size() == 1;
            sameContext = sameContext && path.absolute == first.absolute && path.parents == first.parents &&
                          path.trailingParents == first.trailingParents && (alone || !path.steps.empty());
        }
    }
    if (sameContext && positions <= XmlQueryWalk::maximumPositions)
        m_paths = std::move(*paths);
    else
        m_fallback = std::make_shared<XmlQueryFallback>(text);
}

std::shared_ptr<const XmlQuery> XmlQuery::compiled(const QString &text)
{
    // Texts without data in them are few; the bound only keeps a misuse from growing without end.
    constexpr qsizetype bound = 4096;
    static std::mutex mutex; // guards the table
    static auto &table = *new QHash<QString, std::shared_ptr<const XmlQuery>>;
    {
        const std::lock_guard lock(mutex);
        const auto known = table.constFind(text);
        if (known != table.constEnd())
            return *known;
    }
    auto query = std::make_shared<const XmlQuery>(text);
    const std::lock_guard lock(mutex);
    if (table.size() < bound)
        table.insert(text, query);
    return query;
}

XmlQuery::Answer XmlQuery::evaluate(XmlNode context, std::size_t limit) const
{
    Answer answer;
    if (!context)
        return answer;
    if (m_fallback) {
        answer = m_fallback->evaluate(context);
        if (limit && answer.nodes.size() > limit)
            answer.nodes.resize(limit);
        return answer;
    }
    const Path &path = m_paths.front();
    if (path.absolute)
        context = XmlNode(reinterpret_cast<xmlNode *>(context.handle()->doc));
    for (int i = 0; i < path.parents; ++i)
        context = context.parent();
    if (!context)
        return answer;
    if (path.steps.empty()) {
        answer.nodes.push_back(context);
        return answer;
    }
    XmlQueryWalk(m_paths, path.trailingParents ? 0 : limit, context.handle()->doc, answer.nodes)
        .run(context.handle());
    if (path.trailingParents > 0) {
        for (XmlNode &node : answer.nodes) {
            for (int i = 0; i < path.trailingParents; ++i)
                node = node.parent();
        }
        std::erase(answer.nodes, XmlNode());
        orderAndUnify(answer.nodes, context);
        if (limit && answer.nodes.size() > limit)
            answer.nodes.resize(limit);
    }
    return answer;
}

XmlNode XmlQuery::first(XmlNode context) const
{
    const Answer answer = evaluate(context, 1);
    return answer.nodes.empty() ? XmlNode() : answer.nodes.front();
}

std::optional<QString> XmlQuery::firstText(XmlNode context) const
{
    const XmlNode node = first(context);
    if (!node)
        return std::nullopt;
    return node.stringValue();
}

} // namespace vantrell
