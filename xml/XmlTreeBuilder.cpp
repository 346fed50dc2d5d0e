#include "xml/XmlTreeBuilder.h"

#include <libxml/parser.h>

#include <algorithm>
#include <cstring>
#include <memory>

namespace vantrell
{

namespace
{

using Kind = XmlTree::Kind;

const char *chars(const unsigned char *text)
{
    return reinterpret_cast<const char *>(text);
}

std::string_view viewOf(const unsigned char *text)
{
    return text ? std::string_view(chars(text)) : std::string_view();
}

bool isBlank(std::string_view text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return c == ' ' || c == '\n' || c == '\t' || c == '\r'; });
}

/// The text with a blank behind each hyphen that may not stand before the next character.
std::string commentText(std::string_view text)
{
    std::string parted;
    for (std::size_t i = 0; i < text.size(); ++i) {
        parted += text[i];
        if (text[i] == '-' && (i + 1 == text.size() || text[i + 1] == '-'))
            parted += ' ';
    }
    return parted;
}

bool isXmlTarget(std::string_view target)
{
    return target.size() == 3 && (target[0] | 0x20) == 'x' && (target[1] | 0x20) == 'm' &&
           (target[2] | 0x20) == 'l';
}

} // namespace

XmlTreeBuilder::XmlTreeBuilder(XmlTree &tree, bool keepsSpace)
    : m_tree(tree)
    , m_keepsSpace(keepsSpace)
{
}

// Names ------------------------------------------------------------------------------------------

XmlNameId XmlTreeBuilder::nameOf(const RawName &raw)
{
    // Parsers keep each name once, so that most have the address that they had before.
    const auto address = reinterpret_cast<std::uintptr_t>(raw.local);
    KnownName &known = m_knownNames[(address ^ address >> 10) % m_knownNames.size()];
    const bool isKnown = known.raw.local == raw.local && !raw.prefix && !raw.uri &&
                         m_tree.name(known.id).qualified == chars(raw.local);
    if (isKnown)
        return known.id;
    const XmlNameId id = internedName(raw);
    if (!raw.prefix && !raw.uri)
        known = {raw, id};
    return id;
}

XmlNameId XmlTreeBuilder::internedName(const RawName &raw)
{
    // A prefix that nothing declares is a part of the name.
    if (raw.prefix && !raw.uri)
        return m_tree.intern({}, std::string(viewOf(raw.prefix)) + ':' + chars(raw.local), {});
    return m_tree.intern(viewOf(raw.prefix), viewOf(raw.local), viewOf(raw.uri));
}

// Elements ---------------------------------------------------------------------------------------

void XmlTreeBuilder::startElement(const RawName &name)
{
    endRun();
    const XmlNodeId element = m_tree.make(Kind::Element, nameOf(name));
    m_tree.append(parent(), element);
    bool asksForSpace = m_keepsSpace;
    if (!m_open.empty()) {
        m_open.back().hasElements = true;
        asksForSpace = m_open.back().asksForSpace;
    }
    m_open.push_back({element, std::uint32_t(m_blanks.size()), asksForSpace, asksForSpace, false});
}

void XmlTreeBuilder::addNamespace(std::string_view prefix, std::string_view uri)
{
    const XmlNodeId declaration = m_tree.makeText(Kind::Namespace, uri);
    m_tree.node(declaration).name = m_tree.intern({}, prefix, {});
    m_tree.appendAttribute(parent(), declaration);
}

void XmlTreeBuilder::addAttribute(const RawName &name, std::string_view value)
{
    const XmlNameId id = nameOf(name);
    const XmlNodeId element = parent();
    for (XmlNodeId other = m_tree.node(element).firstAttribute; other; other = m_tree.node(other).next) {
        const bool isSame = m_tree.node(other).kind() == Kind::Attribute && m_tree.node(other).name == id;
        if (isSame)
            return;
    }
    const XmlNodeId attribute = m_tree.makeText(Kind::Attribute, value);
    m_tree.node(attribute).name = id;
    m_tree.appendAttribute(element, attribute);
    if (m_tree.name(id).qualified == "xml:space" && (value == "preserve" || value == "default"))
        m_open.back().keepsSpace = m_open.back().asksForSpace = m_keepsSpace || value == "preserve";
}

void XmlTreeBuilder::endElement()
{
    endRun();
    if (m_open.empty())
        return;
    // White space between elements goes, white space that is all stays.
    if (m_blanks.size() > m_open.back().firstBlank) {
        if (!m_open.back().hasElements)
            keepSpace();
        m_blanks.resize(m_open.back().firstBlank);
    }
    m_open.pop_back();
}

void XmlTreeBuilder::finish()
{
    while (!m_open.empty())
        endElement();
}

// Text -------------------------------------------------------------------------------------------

void XmlTreeBuilder::addText(std::string_view text)
{
    addRun(text, Run::Text);
}

void XmlTreeBuilder::addCData(std::string_view text)
{
    addRun(text, Run::CData);
}

void XmlTreeBuilder::addRun(std::string_view text, Run kind)
{
    if (m_runKind != kind)
        endRun();
    m_run += text;
    m_runKind = kind;
}

void XmlTreeBuilder::endRun()
{
    if (m_runKind == Run::None)
        return;
    const Kind kind = m_runKind == Run::Text ? Kind::Text : Kind::CData;
    m_runKind = Run::None;
    const bool isShown = !m_open.empty() && (kind == Kind::CData || m_open.back().keepsSpace || !keepBlank());
    if (isShown) {
        keepSpace();
        m_tree.append(parent(), m_tree.makeText(kind, m_run));
    }
    m_run.clear();
}

/// Puts a run of white space among the pending blanks; false when the run is not that. Indentation repeats:
/// the last blank of each length is looked at first.
bool XmlTreeBuilder::keepBlank()
{
    const std::size_t length = m_run.size();
    std::uint32_t at = length < m_lastBlanks.size() ? m_lastBlanks[length] : 0;
    const bool isLast = at > 0 && std::memcmp(m_blankBytes.data() + (at - 1), m_run.data(), length) == 0;
    if (!isLast) {
        if (!isBlank(m_run))
            return false;
        at = std::uint32_t(m_blankBytes.size()) + 1;
        m_blankBytes += m_run;
        if (length < m_lastBlanks.size())
            m_lastBlanks[length] = at;
    }
    m_blanks.push_back({m_tree.lastChild(parent()), at - 1, std::uint32_t(length)});
    return true;
}

void XmlTreeBuilder::keepSpace()
{
    if (m_open.empty() || m_open.back().keepsSpace)
        return;
    OpenElement &element = m_open.back();
    element.keepsSpace = true;
    for (std::size_t i = element.firstBlank; i < m_blanks.size(); ++i) {
        const PendingBlank &blank = m_blanks[i];
        const std::string_view text(m_blankBytes.data() + blank.at, blank.length);
        m_tree.insertAfter(element.node, blank.after, m_tree.makeText(Kind::Text, text));
    }
    m_blanks.resize(element.firstBlank);
}

// The rest ---------------------------------------------------------------------------------------

void XmlTreeBuilder::addComment(std::string_view text)
{
    endRun();
    const bool isAllowed = text.find("--") == std::string_view::npos && !text.ends_with('-');
    const XmlNodeId made =
        isAllowed ? m_tree.makeText(Kind::Comment, text) : m_tree.makeText(Kind::Comment, commentText(text));
    m_tree.append(parent(), made);
}

void XmlTreeBuilder::addInstruction(std::string_view target, std::string_view data, bool hasData)
{
    endRun();
    // A declaration of XML that stands elsewhere than at the start is none.
    if (isXmlTarget(target))
        return;
    const XmlTextId text = hasData ? m_tree.addText(data) : 0;
    const XmlNodeId made = m_tree.make(Kind::Instruction, m_tree.intern({}, target, {}));
    m_tree.node(made).text = text;
    m_tree.append(parent(), made);
}

void XmlTreeBuilder::addDoctype()
{
    m_doctype = m_tree.make(Kind::Doctype);
    m_tree.append(XmlTree::documentId, m_doctype);
}

void XmlTreeBuilder::setDoctype(const std::string &text)
{
    if (m_doctype == 0)
        return;
    const std::string whole = text + "<a/>";
    const std::unique_ptr<xmlParserCtxt, void (*)(xmlParserCtxt *)> context(xmlNewParserCtxt(),
                                                                            xmlFreeParserCtxt);
    const std::unique_ptr<xmlDoc, void (*)(xmlDoc *)> parsed(
        context
            ? xmlCtxtReadMemory(context.get(), whole.data(), int(whole.size()), nullptr, "UTF-8",
                                XML_PARSE_HUGE | XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING)
            : nullptr,
        xmlFreeDoc);
    if (parsed)
        m_tree.node(m_doctype).text = m_tree.addText(text);
    else
        m_tree.unlink(m_doctype);
}

} // namespace vantrell
