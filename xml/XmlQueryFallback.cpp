#include "xml/XmlQueryFallback.h"

#include "xml/TreeMemory.h"

#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

#include <QRegularExpression>
#include <QStringList>

#include <memory>

namespace vantrell
{

namespace
{

struct XPathDeleter {
    void operator()(xmlXPathContext *context) const { xmlXPathFreeContext(context); }
    void operator()(xmlXPathObject *object) const { xmlXPathFreeObject(object); }
};
using ContextPointer = std::unique_ptr<xmlXPathContext, XPathDeleter>;
using ObjectPointer = std::unique_ptr<xmlXPathObject, XPathDeleter>;

void keepError(void *error, xmlErrorPtr problem)
{
    *static_cast<QString *>(error) = QString::fromUtf8(problem->message).trimmed();
}

} // namespace

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
    TreeMemory::install();
    const ContextPointer context(xmlXPathNewContext(nullptr));
    if (!context) {
        m_error = QStringLiteral("There is not enough memory to evaluate it.");
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
    const std::lock_guard lock(m_mutex);
    const ContextPointer evaluation(xmlXPathNewContext(context.handle()->doc));
    if (!evaluation) {
        answer.error = QStringLiteral("There is not enough memory to evaluate it.");
        return answer;
    }
    evaluation->error = keepError;
    evaluation->userData = &answer.error;
    evaluation->node = context.handle();
    const ObjectPointer result(xmlXPathCompiledEval(m_expression, evaluation.get()));
    if (!result) {
        if (answer.error.isEmpty())
            answer.error = QStringLiteral("Invalid expression");
        return answer;
    }
    if (result->type == XPATH_NODESET && result->nodesetval) {
        xmlXPathNodeSetSort(result->nodesetval);
        for (int i = 0; i < result->nodesetval->nodeNr; ++i) {
            if (result->nodesetval->nodeTab[i]->type != XML_NAMESPACE_DECL)
                answer.nodes.push_back(XmlNode(result->nodesetval->nodeTab[i]));
        }
    }
    return answer;
}

} // namespace vantrell
