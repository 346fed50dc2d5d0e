#include "xml/XmlQueryFallback.h"

#include "xml/XmlConversion.h"
#include "xml/XmlLibrary.h"

#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

#include <QRegularExpression>
#include <QStringList>

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
