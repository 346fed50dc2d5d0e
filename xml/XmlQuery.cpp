#include "xml/XmlQuery.h"

#include "xml/XmlQueryFallback.h"
#include "xml/XmlQueryParse.h"
#include "xml/XmlTree.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <bit>
#include <mutex>
#include <unordered_set>

namespace vantrell
{

/// One evaluation: visits the nodes below the context once, in document order, and tracks for each node the
/// set of steps that it is a context of.
class XmlQueryWalk
{
public:
    XmlQueryWalk(const std::vector<XmlQuery::Path> &paths, std::size_t limit, const XmlTree &tree,
                 XmlNodeList &found)
        : m_tree(tree)
        , m_limit(limit)
        , m_found(found)
    {
        for (const XmlQuery::Path &path : paths) {
            m_start |= bit(m_steps.size());
            for (const XmlQuery::Step &step : path.steps)
                addStep(step, &step == &path.steps.back());
        }
        if (m_anywhere && limit == 0 && tree.isInOrder())
            findScannedSteps();
    }

    /// How many [n] predicates one evaluation can count at a time.
    static constexpr std::size_t maximumPositions = 16;

    void run(XmlNodeId context)
    {
        visit(context, m_start);
        if (!m_isScanned)
            return;
        const auto isBefore = [](XmlNode a, XmlNode b) { return a.id() < b.id(); };
        if (!std::is_sorted(m_found.begin(), m_found.end(), isBefore))
            std::sort(m_found.begin(), m_found.end(), isBefore);
        m_found.erase(std::unique(m_found.begin(), m_found.end()), m_found.end());
    }

private:
    struct StepState {
        const XmlQuery::Step *step;
        std::size_t firstPosition; ///< of its [n] predicates among all
        bool last;
        std::vector<XmlNameId> names; ///< those that the tree has
    };
    using Counters = std::array<std::int64_t, maximumPositions>;

    static std::uint64_t bit(std::size_t i) { return std::uint64_t(1) << i; }

    bool isFull() const { return m_limit && m_found.size() >= m_limit; }

    void addStep(const XmlQuery::Step &step, bool last)
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
            if (const XmlNameId id = m_tree.find(name, 0, XmlTree::hashOf(name)))
                state.names.push_back(id);
        }
        for (const XmlQuery::Predicate &predicate : step.predicates)
            m_positions += predicate.kind == XmlQuery::Predicate::Kind::Position;
        m_steps.push_back(std::move(state));
    }

    void visit(XmlNodeId id, std::uint64_t contexts)
    {
        const XmlTree::Node &node = m_tree.node(id);
        for (std::uint64_t rest = contexts & m_attributes; rest; rest &= rest - 1)
            visitAttributes(node, *m_steps[std::size_t(std::countr_zero(rest))].step);
        if (!node.hasChildren())
            return;
        const std::uint64_t everywhere = contexts & m_anywhere;
        if (contexts && (contexts & ~m_scanned) == 0 && id < m_tree.orderedEnd()) {
            scan(id, contexts);
            return;
        }
        std::uint64_t childSteps = contexts & ~m_attributes;
        Counters counters;
        std::fill_n(counters.begin(), m_positions, 0);
        XmlNodeId childId = node.firstChild;
        while (childId && !isFull()) {
            const XmlTree::Node &child = m_tree.node(childId);
            const bool element = child.isElement();
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
                m_found.push_back(m_tree.handle(childId));
            if (next && holdsCandidates(child, next) && !isFull())
                visit(childId, next);
            if (!everywhere && childSteps == 0)
                break;
            childId = child.next;
        }
    }

    /// Finds the steps to named elements at any depth whose paths continue with children only: while node ids
    /// are in document order, the tree lists such elements.
    void findScannedSteps()
    {
        if ((m_otherNodes | m_attributes) && !m_tree.isTextInOrder())
            return;
        bool isAlone = true; // no later step of the path is reached by "//"
        for (std::size_t i = m_steps.size(); i-- > 0;) {
            const XmlQuery::Step &step = *m_steps[i].step;
            isAlone = isAlone || m_steps[i].last;
            const bool hasName = step.axis == XmlQuery::Axis::Child && step.test == XmlQuery::Test::Name;
            if (step.anywhere && isAlone && hasName && step.predicates.empty())
                m_scanned |= bit(i);
            isAlone = isAlone && !step.anywhere;
        }
    }

    /// What visit() does when all steps are scanned ones. run() sorts the nodes afterwards.
    void scan(XmlNodeId id, std::uint64_t contexts)
    {
        m_isScanned = true;
        std::vector<XmlNameId> names;
        std::uint64_t lastChildren = 0; // steps before the last one, which is searched for directly
        for (std::uint64_t rest = contexts; rest; rest &= rest - 1) {
            const auto i = std::size_t(std::countr_zero(rest));
            const bool leads = !m_steps[i].last && isPlainLastChild(m_steps[i + 1]);
            if (leads)
                lastChildren |= bit(i);
            for (const XmlNameId name : m_steps[leads ? i + 1 : i].names)
                names.push_back(name);
        }
        std::sort(names.begin(), names.end());
        names.erase(std::unique(names.begin(), names.end()), names.end());
        const XmlNodeId end = m_tree.endOfElementsIn(id);
        const auto look = [&](XmlNodeId element) {
            const XmlTree::Node &node = m_tree.node(element);
            std::uint64_t next = 0;
            bool wanted = false;
            for (std::uint64_t rest = contexts; rest; rest &= rest - 1) {
                const auto i = std::size_t(std::countr_zero(rest));
                if (lastChildren & bit(i)) {
                    wanted = wanted || (node.parent != id && matchesTest(node, m_steps[i + 1]) &&
                                        matchesTest(m_tree.node(node.parent), m_steps[i]));
                } else if (matchesTest(node, m_steps[i])) {
                    if (m_steps[i].last)
                        wanted = true;
                    else
                        next |= bit(i + 1);
                }
            }
            if (wanted)
                m_found.push_back(m_tree.handle(element));
            if (next)
                visit(element, next);
        };
        for (const XmlNameId name : names)
            m_tree.findElements(name, id + 1, end, look);
    }

    static bool isPlainLastChild(const StepState &state)
    {
        const XmlQuery::Step &step = *state.step;
        return state.last && step.axis == XmlQuery::Axis::Child && step.test == XmlQuery::Test::Name &&
               step.predicates.empty();
    }

    /// Whether any child of the node can match a step that it is a context of. Most elements of a project
    /// contain a single text.
    bool holdsCandidates(const XmlTree::Node &node, std::uint64_t contexts) const
    {
        if (contexts & (m_attributes | m_otherNodes))
            return true;
        if (!node.hasChildren() || node.firstChild == 0)
            return false;
        const XmlTree::Node &child = m_tree.node(node.firstChild);
        return child.isElement() || child.next;
    }

    void visitAttributes(const XmlTree::Node &node, const XmlQuery::Step &step)
    {
        if (!node.isElement())
            return;
        for (XmlNodeId id = node.firstAttribute; id && !isFull(); id = m_tree.node(id).next) {
            if (!isAttributeNamed(id, step.names.front()))
                continue;
            // Attribute names are unique in an element: the only position is 1.
            const bool passes = std::all_of(
                step.predicates.begin(), step.predicates.end(), [](const XmlQuery::Predicate &predicate) {
                    return predicate.kind == XmlQuery::Predicate::Kind::Position && predicate.position == 1;
                });
            if (passes)
                m_found.push_back(m_tree.handle(id));
        }
    }

    bool isAttributeNamed(XmlNodeId id, const std::string &name) const
    {
        const XmlTree::Node &node = m_tree.node(id);
        return node.kind() == XmlTree::Kind::Attribute && m_tree.name(node.name).qualified == name;
    }

    static bool matchesTest(const XmlTree::Node &node, const StepState &state)
    {
        switch (state.step->test) {
        case XmlQuery::Test::AnyNode:
            return node.kind() != XmlTree::Kind::Doctype; // which is no node to a query
        case XmlQuery::Test::Text:
            return node.isText();
        case XmlQuery::Test::AnyElement:
            return node.isElement();
        case XmlQuery::Test::Name:
            break;
        }
        // A tree keeps each name once, also for elements created later.
        return node.isElement() &&
               std::find(state.names.begin(), state.names.end(), node.name) != state.names.end();
    }

    /// \a more becomes false when no later sibling can pass.
    bool passesPredicates(const XmlTree::Node &node, const StepState &state, Counters &counters,
                          bool &more) const
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

    bool attributeEquals(const XmlTree::Node &node, const XmlQuery::Predicate &predicate) const
    {
        if (!node.isElement())
            return false;
        for (XmlNodeId id = node.firstAttribute; id; id = m_tree.node(id).next) {
            if (isAttributeNamed(id, predicate.name))
                return m_tree.text(m_tree.node(id).text) == predicate.literal;
        }
        return false;
    }

    bool textEquals(const XmlTree::Node &node, const std::string &literal) const
    {
        if (!node.isElement())
            return false;
        for (XmlNodeId id = node.firstChild; id; id = m_tree.node(id).next) {
            const XmlTree::Node &child = m_tree.node(id);
            if (child.isText() && m_tree.text(child.text) == literal)
                return true;
        }
        return false;
    }

    const XmlTree &m_tree;
    std::vector<StepState> m_steps;
    std::uint64_t m_start = 0;    // the first step of each path
    std::uint64_t m_anywhere = 0; // steps reached by "//"
    std::uint64_t m_scanned = 0;  // those of them that scan() answers
    bool m_isScanned = false;
    std::uint64_t m_attributes = 0; // steps to attributes
    std::uint64_t m_otherNodes = 0; // steps to children of any kind
    std::size_t m_positions = 0;
    std::size_t m_limit;
    XmlNodeList &m_found;
};

namespace
{

/// Removes duplicates and sorts into document order, in one walk over the tree.
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
    for (Path &path : m_paths) {
        for (Step &step : path.steps)
            step.nameHash = step.names.empty() ? 0 : XmlTree::hashOf(step.names.front());
    }
    m_form = formOf();
}

std::shared_ptr<const XmlQuery> XmlQuery::compiled(const QString &text)
{
    // Texts without data in them are few; the limit only stops misuse from growing the table without bound.
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

/// The node that the paths' steps start from, or null.
XmlNode XmlQuery::contextOf(XmlNode context) const
{
    const Path &path = m_paths.front();
    if (context && path.absolute)
        context = XmlNode(context.tree(), XmlTree::documentId);
    for (int i = 0; i < path.parents; ++i)
        context = context.parent();
    return context;
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
    context = contextOf(context);
    if (!context)
        return answer;
    if (path.steps.empty()) {
        answer.nodes.push_back(context);
        return answer;
    }
    XmlQueryWalk(m_paths, path.trailingParents ? 0 : limit, *context.tree(), answer.nodes).run(context.id());
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

/// The first node found by a path of children alone, from one of its steps on. Their cost is what most
/// queries have; it takes no memory.
XmlNodeId XmlQuery::firstBelow(const XmlTree &tree, XmlNodeId parent, std::size_t stepIndex) const
{
    const std::vector<Step> &steps = m_paths.front().steps;
    const Step &step = steps[stepIndex];
    const XmlTree::Node &above = tree.node(parent);
    if (!above.hasChildren())
        return 0;
    XmlNameId name = XmlTree::noName;
    if (step.test == Test::Name) {
        name = tree.find(step.names.front(), 0, step.nameHash);
        if (name == XmlTree::noName)
            return 0;
    }
    std::int64_t position = 0;
    for (XmlNodeId id = above.firstChild; id; id = tree.node(id).next) {
        const XmlTree::Node &child = tree.node(id);
        const bool matches = step.test == Test::Name   ? child.isElement() && child.name == name
                             : step.test == Test::Text ? child.isText()
                                                       : child.isElement();
        if (!matches)
            continue;
        ++position;
        if (!step.predicates.empty() && step.predicates.front().position != position)
            continue;
        const XmlNodeId found = stepIndex + 1 == steps.size() ? id : firstBelow(tree, id, stepIndex + 1);
        if (found || !step.predicates.empty())
            return found;
    }
    return 0;
}

/// The first node found by a query of the form .//a, .//a[1], or these with /text(), from the lists of a tree
/// that is in order; nullopt when a walk is needed.
std::optional<XmlNodeId> XmlQuery::firstAnywhere(const XmlTree &tree, XmlNodeId context) const
{
    const std::vector<Step> &steps = m_paths.front().steps;
    const XmlNameId name = tree.find(steps.front().names.front(), 0, steps.front().nameHash);
    if (name == XmlTree::noName)
        return 0;
    const XmlNodeId end = tree.endOfElementsIn(context);
    for (XmlNodeId id = tree.firstElementNamed(name, context + 1, end); id;
         id = tree.firstElementNamed(name, id + 1, end)) {
        bool isWanted = true;
        if (!steps.front().predicates.empty()) {
            XmlNodeId before = tree.previousSibling(id);
            while (before && !(tree.node(before).isElement() && tree.node(before).name == name))
                before = tree.previousSibling(before);
            isWanted = before == 0;
        }
        if (!isWanted)
            continue;
        const XmlNodeId child = tree.node(id).firstChild;
        if (steps.size() == 1)
            return id;
        if (child && tree.node(child).isText())
            return child;
        if (child)
            return std::nullopt;
    }
    return 0;
}

/// The shape of the query, for first().
XmlQuery::Form XmlQuery::formOf() const
{
    if (m_paths.size() != 1 || m_paths.front().steps.empty() || m_paths.front().trailingParents > 0)
        return Form::Any;
    const std::vector<Step> &steps = m_paths.front().steps;
    const auto isNarrow = [](const Step &step) {
        const std::vector<Predicate> &predicates = step.predicates;
        const bool hasPosition =
            predicates.size() == 1 && predicates.front().kind == Predicate::Kind::Position;
        return step.axis == Axis::Child && step.test != Test::AnyNode && step.names.size() <= 1 &&
               (predicates.empty() || hasPosition);
    };
    if (!std::all_of(steps.begin(), steps.end(), isNarrow))
        return Form::Any;
    if (std::none_of(steps.begin(), steps.end(), [](const Step &step) { return step.anywhere; }))
        return Form::Children;
    const Step &start = steps.front();
    const bool isFirst = start.predicates.empty() || start.predicates.front().position == 1;
    const bool endsInText = steps.size() == 2 && steps.back().test == Test::Text && !steps.back().anywhere &&
                            steps.back().predicates.empty();
    const bool isAnywhere = start.anywhere && start.test == Test::Name && isFirst;
    return isAnywhere && (steps.size() == 1 || endsInText) ? Form::Anywhere : Form::Any;
}

XmlNode XmlQuery::first(XmlNode context) const
{
    if (!context || m_form == Form::Any)
        return firstOfAnswer(context);
    const XmlNode start = contextOf(context);
    if (!start)
        return XmlNode();
    const XmlTree &tree = *start.tree();
    if (m_form == Form::Children)
        return tree.handle(firstBelow(tree, start.id(), 0));
    const bool isInOrder = tree.isInOrder() && start.id() < tree.orderedEnd();
    const std::optional<XmlNodeId> found = isInOrder ? firstAnywhere(tree, start.id()) : std::nullopt;
    return found ? tree.handle(*found) : firstOfAnswer(context);
}

XmlNode XmlQuery::firstOfAnswer(XmlNode context) const
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
