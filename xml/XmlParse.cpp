#include "xml/XmlParse.h"

#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <vector>

namespace vantrell
{

namespace
{

struct ContextDeleter {
    void operator()(xmlParserCtxt *context) const { xmlFreeParserCtxt(context); }
};

/// White space met in an element that may turn out to stand between elements only.
struct PendingBlank {
    xmlNode *after;      ///< the child that it follows; null at the element's start
    const xmlChar *text; ///< in the parser's dictionary
    int length;          ///< bytes
};

struct OpenElement {
    xmlNode *node;
    std::size_t firstBlank; ///< its first one in the list of pending blanks
    bool keepsBlanks;       ///< it holds text, CDATA or a reference, or asks for its space to be kept
    bool hasElements;
};

/// The builder's state, reached from the parser's callbacks through its private pointer.
class TreeBuilder
{
public:
    TreeBuilder(xmlParserCtxt *context, const ParseRequest &request, TreeMemory::Arena &arena)
        : m_context(context)
        , m_request(request)
        , m_arena(arena)
    {
        context->_private = this;
        xmlSAXHandler *sax = context->sax;
        sax->startDocument = startDocument;
        sax->startElementNs = startElement;
        sax->endElementNs = endElement;
        sax->characters = characters;
        sax->ignorableWhitespace = characters;
        sax->cdataBlock = cdata;
        sax->comment = comment;
        sax->processingInstruction = processingInstruction;
        sax->reference = reference;
        sax->entityDecl = [](void *, const xmlChar *, int, const xmlChar *, const xmlChar *, xmlChar *) {};
        sax->unparsedEntityDecl = [](void *, const xmlChar *, const xmlChar *, const xmlChar *,
                                     const xmlChar *) {};
        sax->externalSubset = [](void *, const xmlChar *, const xmlChar *, const xmlChar *) {};
        sax->serror = error;
    }

    static int read(void *builder, char *buffer, int length)
    {
        auto *self = static_cast<TreeBuilder *>(builder);
        // Read ahead in large steps: the parser asks for a few thousand bytes at a time.
        if (self->m_readPosition == self->m_readEnd) {
            const int got = self->m_request.read(self->m_readAhead.data(), int(self->m_readAhead.size()));
            if (got < 0)
                self->m_readFailed = true;
            if (got <= 0)
                return got;
            self->m_readPosition = 0;
            self->m_readEnd = got;
        }
        const int count = std::min(length, self->m_readEnd - self->m_readPosition);
        std::copy_n(self->m_readAhead.data() + self->m_readPosition, count, buffer);
        self->m_readPosition += count;
        return count;
    }

    void finish(ParseOutcome &outcome)
    {
        // Elements that the input's end left open.
        while (outcome.tree && !m_open.empty())
            settleBlanks();
        outcome.repaired = m_repaired || !m_context->wellFormed;
        outcome.tooDeep = m_tooDeep;
        outcome.readFailed = m_readFailed;
        outcome.cancelled = m_cancelled;
        outcome.firstError = m_firstError;
    }

private:
    static TreeBuilder *of(void *context) { return static_cast<TreeBuilder *>(contextOf(context)->_private); }
    static xmlParserCtxt *contextOf(void *context) { return static_cast<xmlParserCtxt *>(context); }

    static void startDocument(void *context)
    {
        // Nodes keep no line numbers; their memory has no place for them.
        contextOf(context)->linenumbers = 0;
        xmlSAX2StartDocument(context);
    }

    static void startElement(void *context, const xmlChar *name, const xmlChar *prefix, const xmlChar *uri,
                             int namespaces, const xmlChar **namespaceList, int attributes, int defaulted,
                             const xmlChar **attributeList)
    {
        of(context)->onStartElement(name, prefix, uri, namespaces, namespaceList, attributes - defaulted,
                                    attributeList);
    }

    static void endElement(void *context, const xmlChar *name, const xmlChar *prefix, const xmlChar *uri)
    {
        of(context)->settleBlanks();
        xmlSAX2EndElementNs(context, name, prefix, uri);
    }

    static void characters(void *context, const xmlChar *text, int length)
    {
        of(context)->onCharacters(text, length);
    }

    static void cdata(void *context, const xmlChar *text, int length)
    {
        TreeBuilder *self = of(context);
        self->keepBlanks();
        const TreeMemory::Scope scope(&self->m_arena);
        xmlSAX2CDataBlock(context, text, length);
    }

    static void comment(void *context, const xmlChar *text)
    {
        const TreeMemory::Scope scope(&of(context)->m_arena);
        xmlSAX2Comment(context, text);
    }

    static void processingInstruction(void *context, const xmlChar *target, const xmlChar *data)
    {
        const TreeMemory::Scope scope(&of(context)->m_arena);
        xmlSAX2ProcessingInstruction(context, target, data);
    }

    /// A reference to an entity that nothing declares: it is left out, what stands beside it is text.
    static void reference(void *context, const xmlChar *)
    {
        of(context)->m_repaired = true;
        of(context)->keepBlanks();
    }

    static void error(void *context, xmlErrorPtr problem)
    {
        TreeBuilder *self = of(context);
        const bool undeclaredEntity = problem->code == XML_WAR_UNDECLARED_ENTITY;
        if (problem->domain == XML_FROM_NAMESPACE || problem->domain == XML_FROM_VALID)
            return;
        if (problem->level < XML_ERR_ERROR && !undeclaredEntity)
            return;
        self->m_repaired = true;
        const bool inContent = self->m_context->instate != XML_PARSER_ATTRIBUTE_VALUE;
        if ((problem->code == XML_ERR_UNDECLARED_ENTITY || undeclaredEntity) && inContent)
            self->keepBlanks();
        if (self->m_firstError.isEmpty()) {
            const QString text = QString::fromUtf8(problem->message).simplified();
            self->m_firstError =
                problem->line > 0 ? QStringLiteral("line %1: %2").arg(problem->line).arg(text) : text;
        }
    }

    void onStartElement(const xmlChar *name, const xmlChar *prefix, const xmlChar *uri, int namespaces,
                        const xmlChar **namespaceList, int attributes, const xmlChar **attributeList)
    {
        if (m_request.cancelled && m_request.cancelled->load(std::memory_order_relaxed)) {
            m_cancelled = true;
            xmlStopParser(m_context);
            return;
        }
        if (int(m_open.size()) >= maximumElementDepth) {
            m_tooDeep = true;
            xmlStopParser(m_context);
            return;
        }
        if (!m_open.empty())
            m_open.back().hasElements = true;
        {
            const TreeMemory::Scope scope(&m_arena);
            xmlSAX2StartElementNs(m_context, name, prefix, uri, namespaces, namespaceList, attributes, 0,
                                  attributeList);
        }
        const bool preserved = m_context->space && *m_context->space == 1;
        m_open.push_back({m_context->node, m_blanks.size(), preserved, false});
    }

    void onCharacters(const xmlChar *text, int length)
    {
        if (m_open.empty() || m_open.back().node != m_context->node)
            return;
        if (!m_open.back().keepsBlanks) {
            if (const xmlChar *blank = keptBlank(text, length)) {
                m_blanks.push_back({m_context->node->last, blank, length});
                return;
            }
            keepBlanks();
        }
        const TreeMemory::Scope scope(&m_arena);
        xmlSAX2Characters(m_context, text, length);
    }

    /// The text in the parser's dictionary when it is white space alone, else null. Indentation repeats:
    /// the last text of each length is looked at first.
    const xmlChar *keptBlank(const xmlChar *text, int length)
    {
        const auto bytes = std::size_t(length);
        const xmlChar *last = bytes < m_lastBlanks.size() ? m_lastBlanks[bytes] : nullptr;
        if (last && std::memcmp(last, text, bytes) == 0)
            return last;
        const bool blank = std::all_of(
            text, text + length, [](xmlChar c) { return c == ' ' || c == '\n' || c == '\t' || c == '\r'; });
        if (!blank)
            return nullptr;
        const xmlChar *kept = xmlDictLookup(m_context->dict, text, length);
        if (bytes < m_lastBlanks.size())
            m_lastBlanks[bytes] = kept;
        return kept;
    }

    /// The open element turns out to hold text: its white space is data, that met so far included.
    void keepBlanks()
    {
        if (m_open.empty() || m_open.back().keepsBlanks)
            return;
        OpenElement &element = m_open.back();
        element.keepsBlanks = true;
        const TreeMemory::Scope scope(&m_arena);
        std::size_t i = element.firstBlank;
        while (i < m_blanks.size()) {
            xmlNode *after = m_blanks[i].after;
            if (after == element.node->last && element.node == m_context->node) {
                // At the end so far, where text that follows joins it.
                for (; i < m_blanks.size(); ++i)
                    xmlSAX2Characters(m_context, m_blanks[i].text, m_blanks[i].length);
                break;
            }
            xmlNode *text = xmlNewDocText(m_context->myDoc, nullptr);
            if (!text)
                break;
            for (; i < m_blanks.size() && m_blanks[i].after == after; ++i)
                xmlNodeAddContentLen(text, m_blanks[i].text, m_blanks[i].length);
            insertAfter(element.node, after, text);
        }
        m_blanks.resize(element.firstBlank);
    }

    static void insertAfter(xmlNode *parent, xmlNode *after, xmlNode *text)
    {
        text->parent = parent;
        text->prev = after;
        text->next = after ? after->next : parent->children;
        if (after)
            after->next = text;
        else
            parent->children = text;
        if (text->next)
            text->next->prev = text;
        else
            parent->last = text;
    }

    /// The open element ends: white space between elements goes, white space that is all stays.
    void settleBlanks()
    {
        if (m_open.empty())
            return;
        if (m_blanks.size() > m_open.back().firstBlank && !m_open.back().hasElements)
            keepBlanks();
        m_blanks.resize(m_open.back().firstBlank);
        m_open.pop_back();
    }

    xmlParserCtxt *m_context;
    const ParseRequest &m_request;
    TreeMemory::Arena &m_arena;
    std::vector<OpenElement> m_open;
    std::vector<PendingBlank> m_blanks;
    std::array<const xmlChar *, 128> m_lastBlanks = {};
    std::vector<char> m_readAhead = std::vector<char>(std::size_t(1) << 18);
    int m_readPosition = 0;
    int m_readEnd = 0;
    bool m_repaired = false;
    bool m_tooDeep = false;
    bool m_readFailed = false;
    bool m_cancelled = false;
    QString m_firstError;
};

} // namespace

ParseOutcome parseXml(const ParseRequest &request, TreeMemory::Arena &arena)
{
    TreeMemory::install();
    ParseOutcome outcome;
    const std::unique_ptr<xmlParserCtxt, ContextDeleter> context(xmlNewParserCtxt());
    if (!context) {
        outcome.firstError = QStringLiteral("There is not enough memory to read it.");
        return outcome;
    }
    TreeBuilder builder(context.get(), request, arena);
    int options =
        XML_PARSE_HUGE | XML_PARSE_NONET | XML_PARSE_COMPACT | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;
    if (request.tolerant)
        options |= XML_PARSE_RECOVER;
    outcome.tree =
        xmlCtxtReadIO(context.get(), TreeBuilder::read, nullptr, &builder, nullptr, nullptr, options);
    builder.finish(outcome);
    return outcome;
}

} // namespace vantrell
