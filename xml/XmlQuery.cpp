#include "xml/XmlQuery.h"

#include "xml/XmlQueryFallback.h"
#include "xml/XmlQueryParse.h"

#include <libxml/tree.h>

#include <QHash>

#include <algorithm>
#include <array>
#include <mutex>
#include <unordered_set>

namespace vantrell
{

/// One evaluation: visits the nodes below the context once, in document order, and carries along for
/// each node the set of steps that it is a context of.
class XmlQueryWalk
{
public:
    XmlQueryWalk(const std::vector<XmlQuery::Path> &paths, std::size_t limit, XmlNodeList &found)
        : m_limit(limit)
        , m_found(found)
    {
        for (const XmlQuery::Path &path : paths) {
            m_start |= bit(m_steps.size());
            for (const XmlQuery::Step &step : path.steps) {
                const bool last = &step == &path.steps.back();
                m_steps.push_back({&step, m_positions, last});
                for (const XmlQuery::Predicate &predicate : step.predicates)
                    m_positions += predicate.kind == XmlQuery::Predicate::Kind::Position;
            }
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
    };
    using Counters = std::array<std::int64_t, maximumPositions>;

    static std::uint64_t bit(std::size_t i) { return std::uint64_t(1) << i; }

    bool isFull() const { return m_limit && m_found.size() >= m_limit; }

    void visit(xmlNode *node, std::uint64_t contexts)
    {
        std::uint64_t everywhere = 0;
        std::uint64_t childSteps = 0;
        for (std::size_t i = 0; i < m_steps.size(); ++i) {
            if (!(contexts & bit(i)))
                continue;
            const XmlQuery::Step &step = *m_steps[i].step;
            if (step.anywhere)
                everywhere |= bit(i);
            if (step.axis == XmlQuery::Axis::Attribute)
                visitAttributes(node, step);
            else
                childSteps |= bit(i);
        }
        if (node->type != XML_ELEMENT_NODE && node->type != XML_DOCUMENT_NODE)
            return;
        Counters counters;
        std::fill_n(counters.begin(), m_positions, 0);
        std::uint64_t exhausted = 0;
        for (xmlNode *child = node->children; child && !isFull(); child = child->next) {
            std::uint64_t next = child->type == XML_ELEMENT_NODE ? everywhere : 0;
            bool wanted = false;
            for (std::size_t i = 0; i < m_steps.size(); ++i) {
                if (!(childSteps & bit(i)) || (exhausted & bit(i)) || !matchesTest(child, *m_steps[i].step))
                    continue;
                bool more = true;
                if (!passesPredicates(child, m_steps[i], counters, more)) {
                    if (!more)
                        exhausted |= bit(i);
                    continue;
                }
                if (m_steps[i].last)
                    wanted = true;
                else
                    next |= bit(i + 1);
                if (!more)
                    exhausted |= bit(i);
            }
            if (wanted)
                m_found.push_back(XmlNode(child));
            if (next && !isFull())
                visit(child, next);
            if (!everywhere && (childSteps & ~exhausted) == 0)
                break;
        }
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

    static bool matchesTest(const xmlNode *node, const XmlQuery::Step &step)
    {
        switch (step.test) {
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
        const char *name = reinterpret_cast<const char *>(node->name);
        return std::any_of(step.names.begin(), step.names.end(),
                           [name](const std::string &accepted) { return accepted == name; });
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
    std::uint64_t m_start = 0;
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
    XmlQueryWalk(m_paths, path.trailingParents ? 0 : limit, answer.nodes).run(context.handle());
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
