#include "xml/XmlTreeBuilder.h"

#include <libxml/parser.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <utility>

namespace vantrell
{

namespace
{

using Kind = XmlTree::Kind;

bool isBlank(std::string_view text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return c == ' ' || c == '\n' || c == '\t' || c == '\r'; });
}

/// The text with a blank after each hyphen that must not precede the next character.
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

} // namespace

XmlTreeBuilder::XmlTreeBuilder(XmlTree &tree, bool keepsSpace)
    : m_tree(tree)
    , m_keepsSpace(keepsSpace)
{
}

void XmlTreeBuilder::append(XmlNodeId child)
{
    if (m_open.empty()) {
        m_tree.append(XmlTree::documentId, child);
        return;
    }
    OpenElement &element = m_open.back();
    XmlTree::Node &added = m_tree.node(child);
    added.parent = element.node;
    added.previous = element.lastChild;
    if (element.lastChild)
        m_tree.node(element.lastChild).next = child;
    else
        m_tree.node(element.node).firstChild = child;
    element.lastChild = child;
}

/// Stores the open element's last child in the tree.
void XmlTreeBuilder::setLastChild()
{
    const OpenElement &element = m_open.back();
    if (element.lastChild)
        m_tree.node(m_tree.node(element.node).firstChild).previous = element.lastChild;
}

void XmlTreeBuilder::startElement(XmlNameId name)
{
    endRun();
    const XmlNodeId element = m_tree.makeListed(name);
    append(element);
    bool asksForSpace = m_keepsSpace;
    if (!m_open.empty()) {
        m_open.back().hasElements = true;
        asksForSpace = m_open.back().asksForSpace;
    }
    m_open.push_back({element, 0, std::uint32_t(m_blanks.size()), asksForSpace, asksForSpace, false});
}

void XmlTreeBuilder::addNamespace(XmlNameId prefix, std::string_view uri)
{
    const XmlNodeId declaration = m_tree.makeText(Kind::Namespace, uri);
    m_tree.node(declaration).name = prefix;
    m_tree.appendAttribute(parent(), declaration);
}

void XmlTreeBuilder::addAttribute(XmlNameId name, std::string_view value)
{
    const XmlNodeId element = parent();
    if (name >= m_attributeOwners.size())
        m_attributeOwners.resize(std::size_t(name) + 1);
    if (std::exchange(m_attributeOwners[name], element) == element)
        return;
    const XmlNodeId attribute = m_tree.makeText(Kind::Attribute, value);
    m_tree.node(attribute).name = name;
    m_tree.appendAttribute(element, attribute);
}

void XmlTreeBuilder::setSpace(bool isKept)
{
    m_open.back().keepsSpace = m_open.back().asksForSpace = m_keepsSpace || isKept;
}

void XmlTreeBuilder::endElement()
{
    endRun();
    if (m_open.empty())
        return;
    // White space between elements is dropped; white space that is all the content is kept.
    if (m_blanks.size() > m_open.back().firstBlank) {
        if (!m_open.back().hasElements)
            keepSpace();
        m_blanks.resize(m_open.back().firstBlank);
    }
    setLastChild();
    m_open.pop_back();
}

void XmlTreeBuilder::finish()
{
    while (!m_open.empty())
        endElement();
    m_tree.setInOrder(!m_hasLateBlanks);
}

void XmlTreeBuilder::addText(std::string_view text)
{
    if (m_run == Run::CData)
        endRun();
    if (m_run == Run::None) {
        if (m_open.empty())
            return;
        if (isKnownBlank(text)) {
            m_run = Run::Blank;
            return;
        }
        m_tree.openText();
    } else if (m_run == Run::Blank) {
        m_tree.openText();
        m_tree.extendText(textOf(m_blank));
    }
    m_run = Run::Text;
    m_tree.extendText(text);
}

void XmlTreeBuilder::addCData(std::string_view text)
{
    if (m_run != Run::CData) {
        endRun();
        m_tree.openText();
    }
    m_run = Run::CData;
    m_tree.extendText(text);
}

void XmlTreeBuilder::storeRun()
{
    const Run run = std::exchange(m_run, Run::None);
    OpenElement &element = m_open.back();
    const bool isBlank =
        !element.keepsSpace && (run == Run::Blank || (run == Run::Text && storeAsBlank(m_tree.openedText())));
    if (isBlank) {
        m_blank.after = element.lastChild;
        m_blanks.push_back(m_blank);
        return;
    }
    const XmlTextId text = run == Run::Blank ? m_tree.addText(textOf(m_blank)) : m_tree.closeText();
    keepSpace();
    const XmlNodeId made = m_tree.make(run == Run::CData ? Kind::CData : Kind::Text);
    m_tree.node(made).text = text;
    append(made);
}

/// Whether the text equals the last white space of its length, as indentation repeats. Then m_blank is set to
/// it.
bool XmlTreeBuilder::isKnownBlank(std::string_view text)
{
    const std::uint32_t last = text.size() < m_lastBlanks.size() ? m_lastBlanks[text.size()] : 0;
    if (last == 0 || std::memcmp(m_blankBytes.data() + (last - 1), text.data(), text.size()) != 0)
        return false;
    m_blank = {0, last - 1, std::uint32_t(text.size())};
    return true;
}

/// Sets m_blank when the text is all white space; false otherwise.
bool XmlTreeBuilder::storeAsBlank(std::string_view text)
{
    if (!isBlank(text))
        return false;
    m_blank = {0, std::uint32_t(m_blankBytes.size()), std::uint32_t(text.size())};
    m_blankBytes += text;
    if (text.size() < m_lastBlanks.size())
        m_lastBlanks[text.size()] = m_blank.at + 1;
    return true;
}

void XmlTreeBuilder::keepSpace()
{
    if (m_open.empty())
        return;
    m_open.back().keepsSpace = true;
    // While a text is open, its end does this.
    const bool isOpen = m_run == Run::Text || m_run == Run::CData;
    if (!isOpen && m_blanks.size() > m_open.back().firstBlank)
        addBlanks();
}

/// Adds the open element's pending blanks to the tree.
void XmlTreeBuilder::addBlanks()
{
    OpenElement &element = m_open.back();
    m_hasLateBlanks = m_hasLateBlanks || element.hasElements;
    setLastChild();
    for (std::size_t i = element.firstBlank; i < m_blanks.size(); ++i)
        m_tree.insertAfter(element.node, m_blanks[i].after, m_tree.makeText(Kind::Text, textOf(m_blanks[i])));
    element.lastChild = m_tree.lastChild(element.node);
    m_blanks.resize(element.firstBlank);
}

void XmlTreeBuilder::addComment(std::string_view text)
{
    endRun();
    const bool isAllowed = text.find("--") == std::string_view::npos && !text.ends_with('-');
    const XmlNodeId made =
        isAllowed ? m_tree.makeText(Kind::Comment, text) : m_tree.makeText(Kind::Comment, commentText(text));
    append(made);
}

void XmlTreeBuilder::addInstruction(XmlNameId target)
{
    endRun();
    append(m_tree.make(Kind::Instruction, target));
}

void XmlTreeBuilder::addInstruction(XmlNameId target, std::string_view data)
{
    addInstruction(target);
    const XmlTextId text = m_tree.addText(data);
    m_tree.node(m_open.empty() ? m_tree.lastChild(XmlTree::documentId) : m_open.back().lastChild).text = text;
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
    if (!context || context->errNo == XML_ERR_NO_MEMORY)
        throw std::bad_alloc();
    if (parsed)
        m_tree.node(m_doctype).text = m_tree.addText(text);
    else
        m_tree.unlink(m_doctype);
}

} // namespace vantrell
