#include "xml/XmlQueryFallback.h"

#include "xml/XmlLibrary.h"
#include "xml/XmlTree.h"

#include <libxml/tree.h>
#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

#include <QRegularExpression>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <new>

namespace vantrell
{

namespace
{

const QString noMemoryToEvaluate = QStringLiteral("There is not enough memory to evaluate it.");

struct XPathDeleter {
    void operator()(xmlXPathContext *context) const { xmlXPathFreeContext(context); }
    void operator()(xmlXPathObject *object) const { xmlXPathFreeObject(object); }
};
using ContextPointer = std::unique_ptr<xmlXPathContext, XPathDeleter>;
using ObjectPointer = std::unique_ptr<xmlXPathObject, XPathDeleter>;

void keepError(void *error, XmlLibrary::ErrorPointer problem)
{
    *static_cast<QString *>(error) = QString::fromUtf8(problem->message).trimmed();
}

using Kind = XmlTree::Kind;

const xmlChar *bytes(const std::string &text)
{
    return reinterpret_cast<const xmlChar *>(text.c_str());
}

} // namespace

/// A copy of the whole tree of a node in the XML library's types, for evaluations by the library. Throws
/// std::bad_alloc.
class XmlConversion
{
public:
    explicit XmlConversion(XmlNode node);

    xmlDoc *document() const { return m_document.get(); }
    /// The copy of the node.
    xmlNode *node() const { return m_node; }
    /// The original of a copied node; null when it is not a copy.
    XmlNode original(const xmlNode *copy) const;

private:
    struct DocumentDeleter {
        void operator()(xmlDoc *document) const { xmlFreeDoc(document); }
    };

    void convertChildren(XmlNodeId id, xmlNode *copy);
    void convert(XmlNodeId id, xmlNode *parent);
    xmlNode *converted(XmlNodeId id);
    void convertAttributes(XmlNodeId id, xmlNode *copy);
    xmlNs *namespaceOf(XmlNameId name, xmlNode *element);
    template <typename Made>
    Made *keep(XmlNodeId id, Made *made);

    const XmlTree &m_tree;
    const XmlNodeId m_wanted;
    std::unique_ptr<xmlDoc, DocumentDeleter> m_document;
    xmlNode *m_node = nullptr;
};

XmlConversion::XmlConversion(XmlNode node)
    : m_tree(*node.tree())
    , m_wanted(node.id())
    , m_document(xmlNewDoc(nullptr))
{
    if (!m_document)
        throw std::bad_alloc();
    const XmlNodeId root = node.root().id();
    auto *const top = reinterpret_cast<xmlNode *>(m_document.get());
    if (root == XmlTree::documentId) {
        keep(root, m_document.get());
        convertChildren(root, top);
    } else {
        convert(root, top);
    }
}

/// The copy stores the id of its original.
template <typename Made>
Made *XmlConversion::keep(XmlNodeId id, Made *made)
{
    if (!made)
        throw std::bad_alloc();
    made->_private = reinterpret_cast<void *>(std::uintptr_t(id));
    if (id == m_wanted)
        m_node = reinterpret_cast<xmlNode *>(made);
    return made;
}

XmlNode XmlConversion::original(const xmlNode *copy) const
{
    if (copy->type == XML_NAMESPACE_DECL)
        return XmlNode();
    const auto id = std::uintptr_t(copy->_private);
    return m_tree.handle(XmlNodeId(id));
}

void XmlConversion::convertChildren(XmlNodeId id, xmlNode *copy)
{
    for (XmlNodeId child = m_tree.node(id).firstChild; child; child = m_tree.node(child).next) {
        if (m_tree.node(child).kind() != Kind::Doctype)
            convert(child, copy);
    }
}

void XmlConversion::convert(XmlNodeId id, xmlNode *parent)
{
    // Linked by hand, as the library would merge adjacent text nodes.
    xmlNode *const made = converted(id);
    made->parent = parent;
    made->prev = parent->last;
    if (parent->last)
        parent->last->next = made;
    else
        parent->children = made;
    parent->last = made;
    if (m_tree.node(id).isElement()) {
        convertAttributes(id, made);
        convertChildren(id, made);
    }
}

/// The node without its children.
xmlNode *XmlConversion::converted(XmlNodeId id)
{
    const XmlTree::Node &node = m_tree.node(id);
    const std::string text(node.hasChildren() ? std::string_view() : m_tree.text(node.text));
    xmlDoc *const document = m_document.get();
    switch (node.kind()) {
    case Kind::Element: {
        const XmlTree::Name &name = m_tree.name(node.name);
        const std::string local = name.qualified.substr(name.uri ? name.localAt : 0);
        return keep(id, xmlNewDocNode(document, nullptr, bytes(local), nullptr));
    }
    case Kind::CData:
        return keep(id, xmlNewCDataBlock(document, bytes(text), int(text.size())));
    case Kind::Comment:
        return keep(id, xmlNewDocComment(document, bytes(text)));
    case Kind::Instruction:
        return keep(id, xmlNewDocPI(document, bytes(m_tree.name(node.name).qualified), bytes(text)));
    default:
        return keep(id, xmlNewDocText(document, bytes(text)));
    }
}

/// The element's namespaces and attributes; the element has its parent by then.
void XmlConversion::convertAttributes(XmlNodeId id, xmlNode *copy)
{
    XmlNodeId at = m_tree.node(id).firstAttribute;
    for (; at && m_tree.node(at).kind() == Kind::Namespace; at = m_tree.node(at).next) {
        const std::string &prefix = m_tree.name(m_tree.node(at).name).qualified;
        const std::string uri(m_tree.text(m_tree.node(at).text));
        xmlNewNs(copy, bytes(uri), prefix.empty() ? nullptr : bytes(prefix));
    }
    copy->ns = namespaceOf(m_tree.node(id).name, copy);
    for (; at; at = m_tree.node(at).next) {
        const XmlTree::Name &name = m_tree.name(m_tree.node(at).name);
        const std::string local = name.qualified.substr(name.uri ? name.localAt : 0);
        const std::string value(m_tree.text(m_tree.node(at).text));
        keep(at, xmlNewNsProp(copy, namespaceOf(m_tree.node(at).name, copy), bytes(local), bytes(value)));
    }
}

/// Null for a name without a namespace.
xmlNs *XmlConversion::namespaceOf(XmlNameId name, xmlNode *element)
{
    const std::uint32_t uri = m_tree.name(name).uri;
    if (uri == 0)
        return nullptr;
    const std::string prefix(m_tree.prefix(name));
    const xmlChar *const wanted = prefix.empty() ? nullptr : bytes(prefix);
    xmlNs *const known = xmlSearchNs(m_document.get(), element, wanted);
    return known ? known : xmlNewNs(element, bytes(m_tree.uri(uri)), wanted);
}

QString XmlQueryFallback::withoutParenthesisedSteps(const QString &text)
{
    static const QRegularExpression stepOfNames(QStringLiteral("/\\(([\\w.\\s|-]+)\\)"));
    const QRegularExpressionMatch match = stepOfNames.match(text);
    if (!match.hasMatch())
        return text;
    QStringList paths;
    const QStringList names = match.captured(1).split(QLatin1Char('|'));
    for (const QString &name : names) {
        paths.append(withoutParenthesisedSteps(text.first(match.capturedStart()) + QLatin1Char('/') +
                                               name.trimmed() + text.sliced(match.capturedEnd())));
    }
    return paths.join(QStringLiteral(" | "));
}

XmlQueryFallback::XmlQueryFallback(const QString &text)
{
    XmlLibrary::prepare();
    const ContextPointer context(xmlXPathNewContext(nullptr));
    if (!context) {
        m_error = noMemoryToEvaluate;
        return;
    }
    context->error = keepError;
    context->userData = &m_error;
    const QByteArray expression = withoutParenthesisedSteps(text).toUtf8();
    m_expression =
        xmlXPathCtxtCompile(context.get(), reinterpret_cast<const xmlChar *>(expression.constData()));
    if (!m_expression && m_error.isEmpty())
        m_error = QStringLiteral("Invalid expression");
}

XmlQueryFallback::~XmlQueryFallback()
{
    xmlXPathFreeCompExpr(m_expression);
}

XmlQuery::Answer XmlQueryFallback::evaluate(XmlNode context) const
{
    XmlQuery::Answer answer;
    if (!m_expression) {
        answer.error = m_error;
        return answer;
    }
    XmlLibrary::prepare();
    try {
        evaluateOn(XmlConversion(context), answer);
    } catch (const std::bad_alloc &) {
        answer.error = noMemoryToEvaluate;
    }
    return answer;
}

void XmlQueryFallback::evaluateOn(const XmlConversion &tree, XmlQuery::Answer &answer) const
{
    if (!tree.node())
        return;
    const std::lock_guard lock(m_mutex);
    const ContextPointer evaluation(xmlXPathNewContext(tree.document()));
    if (!evaluation)
        throw std::bad_alloc();
    evaluation->error = keepError;
    evaluation->userData = &answer.error;
    evaluation->node = tree.node();
    const ObjectPointer result(xmlXPathCompiledEval(m_expression, evaluation.get()));
    if (!result) {
        if (answer.error.isEmpty())
            answer.error = QStringLiteral("Invalid expression");
        return;
    }
    if (result->type == XPATH_NODESET && result->nodesetval) {
        xmlXPathNodeSetSort(result->nodesetval);
        for (int i = 0; i < result->nodesetval->nodeNr; ++i) {
            if (const XmlNode found = tree.original(result->nodesetval->nodeTab[i]))
                answer.nodes.push_back(found);
        }
    }
}

} // namespace vantrell
