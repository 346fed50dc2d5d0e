#include "xml/XmlOutline.h"

#include "xml/XmlLibrary.h"
#include "xml/XmlParse.h"

#include <libxml/SAX2.h>
#include <libxml/parser.h>

#include <algorithm>
#include <cstring>
#include <memory>

namespace vantrell
{

namespace
{

const QString noMemoryForOutline = QStringLiteral("There is not enough memory to read it.");

QByteArray bytesOf(const xmlChar *text)
{
    return QByteArray(reinterpret_cast<const char *>(text));
}

/// Follows the parser through a text; the parser's callbacks reach it through their private pointer.
class OutlineBuilder
{
public:
    OutlineBuilder(xmlParserCtxt *context, const QByteArray &xml, int levels)
        : m_context(context)
        , m_xml(xml)
        , m_levels(levels)
    {
        context->_private = this;
        xmlSAXHandler *sax = context->sax;
        sax->startElementNs = startElement;
        sax->endElementNs = endElement;
        sax->characters = nullptr;
        sax->ignorableWhitespace = nullptr;
        sax->cdataBlock = nullptr;
        sax->comment = nullptr;
        sax->processingInstruction = nullptr;
        sax->reference = [](void *parser, const xmlChar *name) {
            of(parser)->guard([name](OutlineBuilder &self) {
                self.fail(QStringLiteral("Entity '%1' not defined").arg(QString::fromUtf8(bytesOf(name))));
            });
        };
        sax->entityDecl = [](void *, const xmlChar *, int, const xmlChar *, const xmlChar *, xmlChar *) {};
        sax->unparsedEntityDecl = [](void *, const xmlChar *, const xmlChar *, const xmlChar *,
                                     const xmlChar *) {};
        sax->externalSubset = [](void *, const xmlChar *, const xmlChar *, const xmlChar *) {};
        sax->serror = error;
    }

    static int read(void *builder, char *buffer, int length)
    {
        auto *self = static_cast<OutlineBuilder *>(builder);
        const qsizetype count = std::min<qsizetype>(length, self->m_xml.size() - self->m_read);
        std::memcpy(buffer, self->m_xml.constData() + self->m_read, std::size_t(count));
        self->m_read += count;
        return int(count);
    }

    Result<std::optional<XmlOutline>> outcome()
    {
        if (m_outOfMemory)
            return Failure{noMemoryForOutline};
        if (m_isOtherEncoding)
            return std::optional<XmlOutline>();
        if (m_fault.isEmpty() && (!m_context->wellFormed || m_outline.elements.empty()))
            return Failure{QStringLiteral("nothing in it can be read")};
        if (!m_fault.isEmpty())
            return Failure{m_fault};
        return std::optional<XmlOutline>(std::move(m_outline));
    }

private:
    static OutlineBuilder *of(void *context)
    {
        return static_cast<OutlineBuilder *>(static_cast<xmlParserCtxt *>(context)->_private);
    }

    static void startElement(void *context, const xmlChar *name, const xmlChar *, const xmlChar *,
                             int namespaces, const xmlChar **, int attributes, int defaulted,
                             const xmlChar **attributeList)
    {
        of(context)->guard([&](OutlineBuilder &self) {
            self.onStartElement(name, namespaces > 0, attributes - defaulted, attributeList);
        });
    }

    static void endElement(void *context, const xmlChar *, const xmlChar *, const xmlChar *)
    {
        of(context)->guard([](OutlineBuilder &self) { self.onEndElement(); });
    }

    static void error(void *context, XmlLibrary::ErrorPointer problem)
    {
        const bool undeclaredEntity = problem->code == XML_WAR_UNDECLARED_ENTITY;
        if (problem->domain == XML_FROM_NAMESPACE || problem->domain == XML_FROM_VALID)
            return;
        if (problem->level < XML_ERR_ERROR && !undeclaredEntity)
            return;
        of(context)->guard([&](OutlineBuilder &self) {
            const QString text = QString::fromUtf8(problem->message).simplified();
            self.fail(problem->line > 0 ? QStringLiteral("line %1: %2").arg(problem->line).arg(text) : text);
        });
    }

    /// Runs the body of a callback; no exception may pass through the library.
    template <typename Action>
    void guard(const Action &action)
    {
        try {
            action(*this);
        } catch (const std::bad_alloc &) {
            m_outOfMemory = true;
            xmlStopParser(m_context);
        }
    }

    void fail(const QString &fault)
    {
        if (m_fault.isEmpty())
            m_fault = fault;
    }

    void onStartElement(const xmlChar *name, bool declaresNamespaces, int attributes,
                        const xmlChar **attributeList)
    {
        const int depth = m_depth++;
        if (depth == 0 && (m_context->input->buf->encoder || !isUtf8(m_context->encoding))) {
            m_isOtherEncoding = true;
            xmlStopParser(m_context);
            return;
        }
        if (depth >= maximumElementDepth) {
            fail(QStringLiteral("its elements are nested more than %1 deep.").arg(maximumElementDepth));
            xmlStopParser(m_context);
            return;
        }
        if (depth > m_levels)
            return;
        // The parser has read the attributes, in which no "<" can stand.
        const qsizetype begin = m_xml.lastIndexOf('<', position() - 1);
        const qsizetype content = m_xml.indexOf('>', position()) + 1;
        m_open.push_back(m_outline.elements.size());
        m_outline.elements.push_back({bytesOf(name), depth, begin, content, 0, 0, declaresNamespaces});
        for (int i = 0; depth == 0 && i < attributes; ++i) {
            const xmlChar **attribute = attributeList + std::ptrdiff_t(i) * 5;
            m_outline.rootAttributes.emplace_back(
                QString::fromUtf8(bytesOf(attribute[0])),
                QString::fromUtf8(reinterpret_cast<const char *>(attribute[3]), attribute[4] - attribute[3]));
        }
    }

    void onEndElement()
    {
        if (--m_depth > m_levels || m_open.empty())
            return;
        XmlOutline::Element &element = m_outline.elements[m_open.back()];
        m_open.pop_back();
        element.end = position();
        const bool isEmptyTag = m_xml.at(element.end - 2) == '/';
        element.close = isEmptyTag ? element.end - 2 : m_xml.lastIndexOf("</", element.end - 1);
        if (isEmptyTag)
            element.content = element.close;
    }

    static bool isUtf8(const xmlChar *encoding)
    {
        return !encoding || bytesOf(encoding).compare("UTF-8", Qt::CaseInsensitive) == 0;
    }

    qsizetype position() const { return qsizetype(xmlByteConsumed(m_context)); }

    xmlParserCtxt *m_context;
    const QByteArray &m_xml;
    const int m_levels;
    qsizetype m_read = 0;
    int m_depth = 0;
    std::vector<std::size_t> m_open; ///< indexes of the open elements in the outline
    XmlOutline m_outline;
    bool m_isOtherEncoding = false;
    bool m_outOfMemory = false;
    QString m_fault;
};

} // namespace

Result<std::optional<XmlOutline>> XmlOutline::read(const QByteArray &xml, int levels)
{
    XmlLibrary::prepare();
    const std::unique_ptr<xmlParserCtxt, void (*)(xmlParserCtxt *)> context(xmlNewParserCtxt(),
                                                                            xmlFreeParserCtxt);
    if (!context)
        return Failure{noMemoryForOutline};
    OutlineBuilder builder(context.get(), xml, levels);
    xmlFreeDoc(xmlCtxtReadIO(context.get(), OutlineBuilder::read, nullptr, &builder, nullptr, nullptr,
                             XML_PARSE_HUGE | XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING));
    return builder.outcome();
}

QString XmlOutline::rootAttribute(QStringView name) const
{
    const auto found = std::find_if(rootAttributes.begin(), rootAttributes.end(),
                                    [&](const auto &attribute) { return attribute.first == name; });
    return found == rootAttributes.end() ? QString() : found->second;
}

qsizetype XmlOutline::childOf(qsizetype parent, QByteArrayView name) const
{
    const std::vector<qsizetype> children = childrenOf(parent);
    const auto found = std::find_if(children.begin(), children.end(), [&](qsizetype child) {
        return elements[std::size_t(child)].name == name;
    });
    return found == children.end() ? -1 : *found;
}

std::vector<qsizetype> XmlOutline::childrenOf(qsizetype parent) const
{
    std::vector<qsizetype> children;
    const int depth = elements[std::size_t(parent)].depth;
    for (auto i = std::size_t(parent) + 1; i < elements.size() && elements[i].depth > depth; ++i) {
        if (elements[i].depth == depth + 1)
            children.push_back(qsizetype(i));
    }
    return children;
}

} // namespace vantrell
