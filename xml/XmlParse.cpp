#include "xml/XmlParse.h"

#include "xml/XmlEnumerations.h"
#include "xml/XmlEvents.h"
#include "xml/XmlLibrary.h"
#include "xml/XmlNames.h"
#include "xml/XmlTreeBuilder.h"
#include "xml/XmlViews.h"

#include <libxml/SAX2.h>
#include <libxml/hash.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>

namespace vantrell
{

namespace
{

struct ContextDeleter {
    void operator()(xmlParserCtxt *context) const { xmlFreeParserCtxt(context); }
};

struct DocumentDeleter {
    void operator()(xmlDoc *document) const { xmlFreeDoc(document); }
};

/// Comparisons, which the library makes between the values of an enumeration and between attributes.
constexpr std::int64_t maximumValuesCost = 50'000'000;
constexpr std::int64_t identifierCost = 50; // such comparisons; of an identifier with an attribute
constexpr std::int64_t namespaceCost = 10;  // of an attribute with a namespace
/// Bytes. The library copies a comment at each double hyphen in it.
constexpr std::int64_t maximumHyphenCost = 500'000'000;

bool isXmlTarget(std::string_view target)
{
    return target.size() == 3 && (target[0] | 0x20) == 'x' && (target[1] | 0x20) == 'm' &&
           (target[2] | 0x20) == 'l';
}

/// One parse: passes what the parser's callbacks report to the builder of the tree; the callbacks reach it
/// through the parser's private pointer. The library also builds a document of its own, with nothing but the
/// DTD.
class Parse
{
public:
    Parse(xmlParserCtxt *context, const ParseRequest &request, XmlTree &tree)
        : m_context(context)
        , m_request(request)
        , m_input(request.source, !request.tolerant, request.cancelled)
        , m_tree(tree)
        , m_names(tree)
        , m_builder(tree, request.keepsSpace)
        , m_events(m_builder)
    {
        m_emptyEntity.etype = XML_INTERNAL_PARAMETER_ENTITY;
        m_emptyEntity.content = m_noText;
        m_emptyEntity.orig = m_noText; // or the library would leave it a text to free
        context->_private = this;
        xmlSAXHandler *sax = context->sax;
        sax->internalSubset = internalSubset;
        sax->externalSubset = externalSubset;
        sax->startElementNs = startElement;
        sax->endElementNs = endElement;
        sax->characters = characters;
        sax->ignorableWhitespace = characters;
        sax->cdataBlock = cdata;
        sax->comment = comment;
        sax->processingInstruction = processingInstruction;
        sax->reference = reference;
        sax->getEntity = getEntity;
        sax->getParameterEntity = getParameterEntity;
        sax->attributeDecl = attributeDeclaration;
        sax->entityDecl = entityDeclaration;
        sax->unparsedEntityDecl = [](void *parser, const xmlChar *, const xmlChar *, const xmlChar *,
                                     const xmlChar *) { of(parser)->m_hasEntities = true; };
        sax->serror = error;
    }

    ParseOutcome run()
    {
        int options = XML_PARSE_HUGE | XML_PARSE_NONET | XML_PARSE_NOENT | XML_PARSE_IGNORE_ENC |
                      XML_PARSE_OLDSAX | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;
        if (m_request.tolerant)
            options |= XML_PARSE_RECOVER;
        const std::unique_ptr<xmlDoc, DocumentDeleter> document(
            xmlCtxtReadIO(m_context, read, nullptr, this, nullptr, nullptr, options));
        ParseOutcome outcome;
        guard([&] { finish(document.get(), outcome); });
        outcome.hasTree = document != nullptr && !m_input.isUnreadable() &&
                          (m_request.tolerant || m_input.fault().isEmpty());
        outcome.repaired = m_repaired || !m_context->wellFormed || !m_input.fault().isEmpty();
        outcome.tooDeep = m_tooDeep;
        outcome.tooManyValues = hasTooManyValues();
        outcome.tooManyHyphens = m_hyphenCost > maximumHyphenCost;
        outcome.readFailed = m_input.failed();
        outcome.cancelled = m_cancelled || m_input.wasCancelled() || isCancelled();
        outcome.outOfMemory = m_outOfMemory;
        const bool hasFault = !m_input.fault().isEmpty();
        const bool inputIsFirst =
            m_firstError.isEmpty() || m_input.isUnreadable() || m_input.faultLine() <= m_firstErrorLine;
        outcome.firstError = hasFault && inputIsFirst ? m_input.fault() : m_firstError;
        outcome.lastError = hasFault && !m_request.tolerant ? m_input.fault() : m_lastError;
        return outcome;
    }

private:
    static xmlParserCtxt *contextOf(void *context) { return static_cast<xmlParserCtxt *>(context); }
    static Parse *of(void *context) { return static_cast<Parse *>(contextOf(context)->_private); }

    /// Runs the body of a callback; no exception may pass through the library.
    template <typename Action>
    void guard(const Action &action)
    {
        try {
            action();
        } catch (const std::exception &) { // that a text cannot be so long is the other one
            m_outOfMemory = true;
            xmlStopParser(m_context);
        }
    }

    static int read(void *parse, char *buffer, int length)
    {
        // The parser is in the middle of its buffer and must not be stopped here: its input ends.
        Parse *const self = static_cast<Parse *>(parse);
        try {
            const int size = self->m_outOfMemory ? 0 : self->m_input.read(buffer, length);
            if (size > 0 && self->m_isBeforeElements)
                self->m_enumerations.note({buffer, std::size_t(size)});
            return self->hasTooManyValues() ? 0 : size;
        } catch (const std::exception &) {
            self->m_outOfMemory = true;
            return 0;
        }
    }

    static void internalSubset(void *context, const xmlChar *name, const xmlChar *externalId,
                               const xmlChar *systemId)
    {
        Parse *const self = of(context);
        xmlSAX2InternalSubset(context, name, externalId, systemId);
        self->m_inSubset = true;
        self->guard([&] { self->m_events.addDoctype(); });
    }

    /// Called after the internal subset. There is no external one: nothing is fetched. Neither attributes nor
    /// namespaces get defaults, which the library would compare with one another at each element.
    static void externalSubset(void *context, const xmlChar *, const xmlChar *, const xmlChar *)
    {
        of(context)->m_inSubset = false;
        if (xmlHashTable *const defaults = std::exchange(contextOf(context)->attsDefault, nullptr))
            xmlHashFree(defaults, xmlHashDefaultDeallocator);
    }

    static void startElement(void *context, const xmlChar *name, const xmlChar *prefix, const xmlChar *uri,
                             int namespaces, const xmlChar **namespaceList, int attributes, int defaulted,
                             const xmlChar **attributeList)
    {
        Parse *const self = of(context);
        self->guard([&] {
            self->onStartElement({name, prefix, uri}, namespaces, namespaceList, attributes - defaulted,
                                 attributeList);
        });
    }

    static void endElement(void *context, const xmlChar *, const xmlChar *, const xmlChar *)
    {
        Parse *const self = of(context);
        self->guard([&] { self->onEndElement(); });
    }

    static void characters(void *context, const xmlChar *text, int length)
    {
        Parse *const self = of(context);
        self->guard([&] {
            self->restoreBracket(text);
            // A library that does not drop references reports them here as well.
            if (!self->m_passedReference || text != std::exchange(self->m_passedReference, nullptr))
                self->onText(viewOf(text, length));
        });
    }

    /// Of the predefined entities; others are never declared.
    static xmlEntity *getEntity(void *context, const xmlChar *name)
    {
        xmlEntity *const entity = xmlGetPredefinedEntity(name);
        Parse *const self = of(context);
        if (entity)
            self->guard([&] { self->onReference(entity->content); });
        return entity;
    }

    /// What is declared is known, and empty.
    static xmlEntity *getParameterEntity(void *context, const xmlChar *name)
    {
        Parse *const self = of(context);
        return self->m_parameterEntities.contains(viewOf(name)) ? &self->m_emptyEntity : nullptr;
    }

    /// For an identifier the library looks at all attributes of its element, and for what is no namespace at
    /// those that are.
    static void attributeDeclaration(void *context, const xmlChar *element, const xmlChar *name, int type,
                                     int use, const xmlChar *value, xmlEnumeration *values)
    {
        Parse *const self = of(context);
        const std::string_view text = viewOf(name);
        self->guard([&] {
            Declared &declared = self->m_declared[std::string(viewOf(element))];
            if (text == "xmlns" || text.starts_with("xmlns:") || text.ends_with(":xmlns"))
                ++declared.namespaces;
            else
                self->m_attributesCost += namespaceCost * declared.namespaces;
            ++declared.attributes;
            if (type == XML_ATTRIBUTE_ID)
                self->m_attributesCost += identifierCost * declared.attributes;
        });
        if (self->hasTooManyValues())
            xmlFreeEnumeration(values); // the input ends, too
        else
            xmlSAX2AttributeDecl(context, element, name, type, use, value, values);
    }

    /// Of an element.
    struct Declared {
        std::int64_t attributes = 0;
        std::int64_t namespaces = 0;
    };

    bool hasTooManyValues() const { return m_enumerations.cost() + m_attributesCost > maximumValuesCost; }

    static void entityDeclaration(void *context, const xmlChar *name, int type, const xmlChar *,
                                  const xmlChar *, xmlChar *)
    {
        Parse *const self = of(context);
        self->m_hasEntities = true;
        if (type == XML_INTERNAL_PARAMETER_ENTITY || type == XML_EXTERNAL_PARAMETER_ENTITY)
            self->guard([&] { self->m_parameterEntities.emplace(viewOf(name)); });
    }

    static void cdata(void *context, const xmlChar *text, int length)
    {
        Parse *const self = of(context);
        self->guard([&] { self->m_events.addCData(viewOf(text, length)); });
    }

    static void comment(void *context, const xmlChar *text)
    {
        Parse *const self = of(context);
        if (self->m_inSubset)
            xmlSAX2Comment(context, text);
        else
            self->guard([&] { self->onComment(viewOf(text)); });
    }

    static void processingInstruction(void *context, const xmlChar *target, const xmlChar *data)
    {
        Parse *const self = of(context);
        if (self->m_inSubset) {
            xmlSAX2ProcessingInstruction(context, target, data);
            // One without an end goes on behind the document type.
            const std::string_view text = data ? viewOf(data) : std::string_view();
            if (text.find("]>") != std::string_view::npos)
                self->countElementsIn(text);
        } else
            self->guard([&] { self->onInstruction(viewOf(target), data); });
    }

    /// A reference to an undeclared entity is dropped; the white space around it is data.
    static void reference(void *context, const xmlChar *)
    {
        Parse *const self = of(context);
        self->m_repaired = true;
        self->guard([&] { self->m_events.keepSpace(); });
    }

    static void error(void *context, XmlLibrary::ErrorPointer problem)
    {
        Parse *const self = of(context);
        self->guard([&] { self->onError(*problem); });
    }

    void onError(const xmlError &problem)
    {
        const bool undeclaredEntity = problem.code == XML_WAR_UNDECLARED_ENTITY;
        // It may quote a name of any length.
        constexpr qsizetype longest = 200;
        QString text = QString::fromUtf8(problem.message).simplified();
        if (text.size() > longest)
            text = text.first(longest) + QStringLiteral("…");
        m_lastError = text;
        m_hasDoubledAttributes = m_hasDoubledAttributes || problem.code == XML_NS_ERR_ATTRIBUTE_REDEFINED;
        if (problem.domain == XML_FROM_NAMESPACE || problem.domain == XML_FROM_VALID)
            return;
        if (problem.level < XML_ERR_ERROR && !undeclaredEntity)
            return;
        m_repaired = true;
        m_errorAt = std::max(m_errorAt, xmlByteConsumed(m_context));
        m_outOfMemory = m_outOfMemory || problem.code == XML_ERR_NO_MEMORY;
        noteBrokenMarkup(problem);
        const bool inContent = m_context->instate != XML_PARSER_ATTRIBUTE_VALUE;
        if ((problem.code == XML_ERR_UNDECLARED_ENTITY || undeclaredEntity) && inContent)
            m_events.keepSpace();
        if (m_firstError.isEmpty()) {
            m_firstErrorLine = problem.line;
            m_firstError =
                problem.line > 0 ? QStringLiteral("line %1: %2").arg(problem.line).arg(text) : text;
        }
    }

    /// Behind its first error the library drops the references in content.
    void onReference(const xmlChar *character)
    {
        if (m_context->wellFormed || m_context->instate != XML_PARSER_CONTENT)
            return;
        onText(viewOf(character));
        m_passedReference = character;
    }

    /// Text in front of a misplaced "]]>" is passed over when it was not reported yet; what follows its first
    /// bracket comes as text.
    void saveTextBeforeBrackets()
    {
        constexpr std::string_view brackets = "]]>";
        const xmlParserInput *const input = m_context->input;
        const std::string_view rest = viewOf(input->cur, input->end - input->cur);
        const std::size_t at = rest.find(brackets);
        restoreBracket(input->cur);
        if (at == 0)
            m_bracketAt = textOffset();
        else if (at != std::string_view::npos)
            onText(rest.substr(0, at + 1));
    }

    /// Where no text precedes "]]>" its first bracket is passed over, unless the library collects the text
    /// outside of its input.
    void restoreBracket(const xmlChar *text)
    {
        const long at = std::exchange(m_bracketAt, -1);
        if (at >= 0 && text == m_context->input->cur && textOffset() == at + 1)
            onText("]");
    }

    /// Whether the error drops a "&" or "<" that starts no reference or tag.
    bool dropsMarkup(int code) const
    {
        switch (code) {
        case XML_ERR_ENTITYREF_SEMICOL_MISSING:
        case XML_ERR_UNDECLARED_ENTITY:
        case XML_WAR_UNDECLARED_ENTITY:
        case XML_ERR_INVALID_DEC_CHARREF:
        case XML_ERR_INVALID_HEX_CHARREF:
            return true;
        case XML_ERR_NAME_REQUIRED: {
            const xmlParserInput *const input = m_context->input;
            return input->cur > input->base && (input->cur[-1] == '&' || input->cur[-1] == '<');
        }
        default:
            return false;
        }
    }

    /// Content that is lost, or in another element, without an event that tells.
    void noteBrokenMarkup(const xmlError &problem)
    {
        const bool isUnended = problem.code == XML_ERR_COMMENT_NOT_FINISHED ||
                               problem.code == XML_ERR_CDATA_NOT_FINISHED ||
                               problem.code == XML_ERR_PI_NOT_FINISHED;
        if (isUnended && m_depth > 0 && m_swallowedFrom < 0)
            m_swallowedFrom = m_lastTagEnd;
        // With the name of the element it is a start tag.
        m_isTagBroken = m_isTagBroken || (problem.code == XML_ERR_GT_REQUIRED && problem.str1);
        if (problem.code == XML_ERR_TAG_NAME_MISMATCH) {
            m_firstMismatch = m_firstMismatch > 0 ? m_firstMismatch : problem.line;
            m_hasMisplaced = m_hasMisplaced || !m_isLeaf;
        }
        if (problem.code == XML_ERR_MISPLACED_CDATA_END && m_context->instate == XML_PARSER_CONTENT)
            saveTextBeforeBrackets();
        if (m_depth > 0 && dropsMarkup(problem.code)) {
            ++m_droppedReferences;
            m_firstDropped = m_firstDropped > 0 ? m_firstDropped : problem.line;
        }
        m_hasContentAfterRoot = m_hasContentAfterRoot || problem.code == XML_ERR_DOCUMENT_END;
        if (problem.code == XML_ERR_HYPHEN_IN_COMMENT) {
            m_hyphenCost += problem.str1 ? std::int64_t(std::strlen(problem.str1)) : 0;
            if (m_hyphenCost > maximumHyphenCost || isCancelled())
                xmlStopParser(m_context);
        }
    }

    bool isCancelled() const
    {
        return m_request.cancelled && m_request.cancelled->load(std::memory_order_relaxed);
    }

    /// A comment whose end is broken, or has three hyphens, goes on to the next end.
    void onComment(std::string_view text)
    {
        const bool isWhole = text.find("--") == std::string_view::npos && !text.ends_with('-') &&
                             !text.starts_with('>') && !text.starts_with("->");
        if (!isWhole)
            countElementsIn(text);
        m_events.addComment(text);
    }

    void countElementsIn(std::string_view text)
    {
        for (std::size_t i = 0; i + 1 < text.size(); ++i)
            m_elementsInComments += text[i] == '<' && startsXmlName(text[i + 1]);
    }

    void onStartElement(const XmlNames::Raw &name, int namespaces, const xmlChar **namespaceList,
                        int attributes, const xmlChar **attributeList)
    {
        m_inSubset = false;
        m_isBeforeElements = false;
        if (isCancelled()) {
            m_cancelled = true;
            xmlStopParser(m_context);
            return;
        }
        if (m_depth >= maximumElementDepth) {
            m_tooDeep = true;
            xmlStopParser(m_context);
            return;
        }
        ++m_depth;
        m_isTagBroken = false;
        m_isLeaf = true;
        m_hasStartAfterMismatch = m_firstMismatch > 0;
        m_lastTagEnd = textOffset();
        m_events.startElement(m_names.idOf(name));
        for (int i = 0; i < namespaces; ++i)
            m_events.addNamespace(m_names.idOf(viewOf(namespaceList[2 * i])),
                                  viewOf(namespaceList[2 * i + 1]));
        std::set<std::pair<std::string_view, std::string_view>> known;
        for (int i = 0; i < attributes; ++i) {
            // Five pointers each: local name, prefix, URI, begin and end of the value.
            const xmlChar **const parts = attributeList + std::ptrdiff_t(5) * i;
            const std::string_view value = viewOf(parts[3], parts[4] - parts[3]);
            // One name with two prefixes of the same namespace is a fault that only this element has.
            if (m_hasDoubledAttributes && parts[2] &&
                !known.emplace(viewOf(parts[2]), viewOf(parts[0])).second)
                continue;
            m_events.addAttribute(m_names.idOf({parts[0], parts[1], parts[2]}), value);
            const bool isSpace = parts[1] && viewOf(parts[1]) == "xml" && viewOf(parts[0]) == "space";
            if (isSpace && (value == "preserve" || value == "default"))
                m_events.setSpace(value == "preserve");
        }
        m_hasDoubledAttributes = false;
    }

    /// What xmlByteConsumed() tells of a text in UTF-8. It is wanted at every tag.
    long textOffset() const
    {
        const xmlParserInput *const input = m_context->input;
        return input ? long(input->consumed) + long(input->cur - input->base) : m_lastTagEnd;
    }

    void onEndElement()
    {
        --m_depth;
        m_isTagBroken = false;
        m_isLeaf = false;
        m_lastTagEnd = textOffset();
        m_events.endElement();
    }

    /// A start tag that is broken has no end of its own. Its element gets the next end tag, but not where the
    /// rest of the tag, which comes as text, tells that it has none.
    void onText(std::string_view text)
    {
        if (m_isTagBroken && isRestOfEmptyTag(text))
            onEndElement();
        m_isTagBroken = false;
        m_events.addText(text);
    }

    static bool isRestOfEmptyTag(std::string_view text)
    {
        const std::string_view rest = text.substr(0, text.find('>'));
        const std::size_t last = rest.find_last_not_of(" \t\r\n");
        return rest.starts_with('/') ||
               (rest.size() < text.size() && last != std::string_view::npos && rest[last] == '/');
    }

    void onInstruction(std::string_view target, const xmlChar *data)
    {
        // An XML declaration is one only at the start of the text.
        if (isXmlTarget(target))
            return;
        const XmlNameId name = m_names.idOf(target);
        if (data)
            m_events.addInstruction(name, viewOf(data));
        else
            m_events.addInstruction(name);
    }

    void finish(xmlDoc *document, ParseOutcome &outcome)
    {
        m_events.finish();
        outcome.loss.bytesTotal = m_request.source.size;
        outcome.loss.hasDroppedEntities = m_hasEntities;
        outcome.loss.droppedReferences = m_droppedReferences;
        outcome.loss.firstDropped = m_firstDropped;
        const bool isOpen = m_depth > 0;
        // A parser that gave up no longer knows how far it came; the error tells it.
        const bool isSwallowed = m_swallowedFrom >= 0;
        const long consumed = isSwallowed ? m_swallowedFrom : std::max(xmlByteConsumed(m_context), m_errorAt);
        const bool stops = m_tooDeep || m_cancelled || m_outOfMemory || !m_request.tolerant;
        if (document && !stops && !m_context->wellFormed && consumed >= 0) {
            outcome.loss.bytesRead = m_input.sourceOffset(consumed);
            if (!isSwallowed) {
                const XmlInput::Rest rest = m_input.restFrom(consumed);
                outcome.loss.droppedElements = rest.startTags;
                outcome.loss.droppedText = m_hasContentAfterRoot && rest.startTags == 0 && rest.hasText;
            }
            if (outcome.loss.bytesTotal < 0)
                outcome.loss.bytesTotal = m_input.bytesRead();
            // Where only end tags are missing the last one is there.
            outcome.loss.isCutOff = isOpen && (isSwallowed || !m_input.endsWith("</" + rootName() + '>'));
            outcome.loss.elementsInComments = m_elementsInComments;
            // An end tag that does not match ends the element all the same. Where that has no elements it is
            // misspelt, and nothing else is wrong; else elements may be in others than they should.
            const bool hasMismatch = m_firstMismatch > 0;
            const bool isShifted = isOpen ? !hasMismatch || m_hasStartAfterMismatch
                                          : m_hasContentAfterRoot && m_hasStartAfterMismatch;
            if (m_hasMisplaced || isShifted)
                outcome.loss.misplacedLine = int(hasMismatch ? m_firstMismatch : m_firstErrorLine);
        }
        m_builder.finish();
        if (!document)
            return;
        // Parsers refuse versions other than 1.
        const QByteArray version(reinterpret_cast<const char *>(document->version));
        const bool isAllowed = version.size() > 2 && version.startsWith("1.");
        if (isAllowed)
            m_tree.version = version;
        m_tree.isStandalone = document->standalone;
        m_tree.encoding = m_input.declaredEncoding();
        xmlDtd *const doctype = xmlGetIntSubset(document);
        m_builder.setDoctype(doctype ? textOfDoctype(document, doctype) : std::string());
    }

    std::string rootName() const
    {
        const XmlNode root = m_tree.handle(XmlTree::documentId).firstChildElement();
        return root ? m_tree.name(m_tree.node(root.id()).name).qualified : std::string();
    }

    static std::string textOfDoctype(xmlDoc *document, xmlDtd *doctype)
    {
        const std::unique_ptr<xmlBuffer, void (*)(xmlBuffer *)> buffer(xmlBufferCreate(), xmlBufferFree);
        if (!buffer)
            throw std::bad_alloc();
        const auto dumped = [&](xmlNode *node) {
            xmlBufferEmpty(buffer.get());
            xmlNodeDump(buffer.get(), document, node, 0, 0);
            const std::string_view text = viewOf(xmlBufferContent(buffer.get()));
            if (text.empty())
                throw std::bad_alloc();
            return std::string(text);
        };
        std::string text = dumped(reinterpret_cast<xmlNode *>(doctype));
        if (!doctype->children || text.ends_with("]>"))
            return text;
        // The library leaves out an internal subset that declares nothing.
        text.back() = ' ';
        text += "[\n";
        for (xmlNode *node = doctype->children; node; node = node->next)
            text += dumped(node) + '\n';
        return text + "]>";
    }

    xmlParserCtxt *m_context;
    const ParseRequest &m_request;
    XmlInput m_input;
    XmlTree &m_tree;
    XmlNames m_names;
    alignas(xmlThreadAlignment) XmlTreeBuilder m_builder;
    XmlEvents m_events; // destroyed before the builder
    int m_depth = 0;
    bool m_inSubset = false;
    bool m_isBeforeElements = true;
    bool m_repaired = false;
    bool m_tooDeep = false;
    bool m_cancelled = false;
    bool m_outOfMemory = false;
    bool m_isTagBroken = false;          // the start tag that came last
    bool m_hasDoubledAttributes = false; // the start tag to come
    bool m_hasContentAfterRoot = false;
    int m_firstMismatch = 0;     // line of the first end tag that is not that of the open element; 0 for none
    bool m_hasMisplaced = false; // elements, where its end tag is the one that is missing
    bool m_hasStartAfterMismatch = false;
    bool m_isLeaf = false;      // whether nothing but text came after the last start tag
    bool m_hasEntities = false; // declared ones
    std::set<std::string, std::less<>> m_parameterEntities;
    xmlChar m_noText[1] = {};
    xmlEntity m_emptyEntity = {};
    std::int64_t m_elementsInComments = 0;
    std::int64_t m_droppedReferences = 0;
    int m_firstDropped = 0;                     // line
    const xmlChar *m_passedReference = nullptr; // the character of the reference passed on last
    long m_bracketAt = -1;                      // bytes of the text: where a misplaced "]]>" is; -1 for none
    XmlEnumerations m_enumerations;
    std::unordered_map<std::string, Declared> m_declared; // by element
    std::int64_t m_attributesCost = 0;
    std::int64_t m_hyphenCost = 0;
    long m_lastTagEnd = 0;     // bytes of the text
    long m_swallowedFrom = -1; // the same: what no end was found of begins behind; -1 for nothing
    long m_errorAt = 0;        // the same
    QString m_firstError;
    std::int64_t m_firstErrorLine = 0;
    QString m_lastError;
};

} // namespace

ParseOutcome parseXml(const ParseRequest &request, XmlTree &tree)
{
    XmlLibrary::prepare();
    const std::unique_ptr<xmlParserCtxt, ContextDeleter> context(xmlNewParserCtxt());
    if (!context) {
        ParseOutcome outcome;
        outcome.outOfMemory = true;
        return outcome;
    }
    return Parse(context.get(), request, tree).run();
}

} // namespace vantrell
