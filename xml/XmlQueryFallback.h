#pragma once

#include "xml/XmlQuery.h"

#include <mutex>

struct _xmlXPathCompExpr;

namespace vantrell
{

/// A query that the XML library evaluates on a copy of the tree: compiled once, evaluated by one thread at a
/// time. An evaluation takes time and memory in proportion to the whole tree. A parenthesised step of names,
/// which XPath 1.0 lacks, is rewritten as the union of the full paths.
class XmlQueryFallback
{
public:
    explicit XmlQueryFallback(const QString &text);
    ~XmlQueryFallback();
    XmlQueryFallback(const XmlQueryFallback &) = delete;
    XmlQueryFallback &operator=(const XmlQueryFallback &) = delete;

    XmlQuery::Answer evaluate(XmlNode context) const;

    /// The query with each parenthesised step of names expanded; unchanged without one.
    static QString withoutParenthesisedSteps(const QString &text);

private:
    void evaluateOn(const class XmlConversion &tree, XmlQuery::Answer &answer) const;

    mutable std::mutex m_mutex; // guards the compiled expression during an evaluation
    _xmlXPathCompExpr *m_expression = nullptr;
    QString m_error;
};

} // namespace vantrell
