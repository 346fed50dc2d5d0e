#pragma once

#include "xml/XmlNode.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vantrell
{

/// One compiled query: location paths with child, descendant and attribute steps, parent steps at the start
/// and the end, and the predicates [n], [@name="text"] and [text()="text"]; alternatives are joined by "|",
/// also inside a parenthesised step such as (clipitem | clip). Such a query is answered in one walk that
/// finds the nodes in document order, each once, and ends as soon as enough are found; the cost is in
/// proportion to the nodes visited. The rest of XPath 1.0 goes to the XML library's evaluator. Immutable; any
/// thread.
class XmlQuery
{
public:
    /// Compiles. Never fails: every evaluation of an invalid query gives its error.
    explicit XmlQuery(const QString &text);

    /// The query, compiled on its first use and cached; for texts without data in them.
    static std::shared_ptr<const XmlQuery> compiled(const QString &text);

    /// Whether the XML library's evaluator is needed, which copies the whole tree for each evaluation.
    bool needsLibrary() const { return m_fallback != nullptr; }

    struct Answer {
        XmlNodeList nodes;
        QString error; ///< empty on success
    };

    /// The nodes found from the context, at most \a limit (0: all). A null context finds none.
    Answer evaluate(XmlNode context, std::size_t limit = 0) const;

    /// The first node found, or null.
    XmlNode first(XmlNode context) const;

    /// The string value of the first node found; nullopt without one.
    std::optional<QString> firstText(XmlNode context) const;

private:
    friend class XmlQueryParser;
    friend class XmlQueryWalk;

    enum class Axis { Child, Attribute };
    enum class Test { Name, AnyElement, Text, AnyNode };

    struct Predicate {
        enum class Kind { Position, AttributeEquals, TextEquals } kind;
        std::int64_t position = 0; ///< 1-based
        std::string name;          ///< of the attribute
        std::string literal;       ///< UTF-8
    };

    struct Step {
        bool anywhere = false; ///< reached by "//": below the context at any depth
        Axis axis = Axis::Child;
        Test test = Test::Name;
        std::vector<std::string> names;
        std::size_t nameHash = 0; ///< of the first
        std::vector<Predicate> predicates;
    };

    struct Path {
        bool absolute = false;
        int parents = 0; ///< leading ".." steps
        std::vector<Step> steps;
        int trailingParents = 0; ///< ".." steps at the end
    };

    /// Queries with a short cut in first(): child steps only, and elements of one name at any depth.
    enum class Form { Any, Children, Anywhere };

    Form formOf() const;
    XmlNode contextOf(XmlNode context) const;
    XmlNode firstOfAnswer(XmlNode context) const;
    std::uint32_t firstBelow(const XmlTree &tree, std::uint32_t parent, std::size_t stepIndex) const;
    std::optional<std::uint32_t> firstAnywhere(const XmlTree &tree, std::uint32_t context) const;

    Form m_form = Form::Any;
    std::vector<Path> m_paths;                                ///< when the walk answers it
    std::shared_ptr<const class XmlQueryFallback> m_fallback; ///< otherwise
};

} // namespace vantrell
