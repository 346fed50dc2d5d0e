#include "xml/XmlWriter.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace vantrell
{

namespace
{

using Kind = XmlTree::Kind;

/// Which characters are escaped.
template <std::size_t count>
constexpr std::array<bool, 256> escaped(const char (&characters)[count])
{
    std::array<bool, 256> set = {};
    for (std::size_t i = 0; i + 1 < count; ++i)
        set[static_cast<unsigned char>(characters[i])] = true;
    return set;
}

constexpr std::array<bool, 256> inText = escaped("<>&\r");
constexpr std::array<bool, 256> inAttributes = escaped("<>&\r\n\t\"");
constexpr std::array<bool, 256> inAsciiAttributes = [] {
    std::array<bool, 256> set = inAttributes;
    std::fill(set.begin() + 0x80, set.end(), true);
    return set;
}();
constexpr std::array<bool, 256> inNamespaces = escaped("<&\r\n\t");

std::string_view replacement(char c)
{
    switch (c) {
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '&':
        return "&amp;";
    case '"':
        return "&quot;";
    case '\r':
        return "&#13;";
    case '\n':
        return "&#10;";
    default:
        return "&#9;";
    }
}

/// A hexadecimal reference to the character at the index, which moves to its last byte.
void writeReference(XmlOutput &output, std::string_view text, std::size_t &at)
{
    const auto first = static_cast<unsigned char>(text[at]);
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    std::uint32_t character = first & (0xFFu >> (length + 1));
    for (std::size_t i = 1; i < length && at + i < text.size(); ++i)
        character = character << 6 | (static_cast<unsigned char>(text[at + i]) & 0x3Fu);
    at += length - 1;
    std::array<char, 8> digits;
    char *const end = std::to_chars(digits.data(), digits.data() + digits.size(), character, 16).ptr;
    std::transform(digits.data(), end, digits.data(), [](char c) { return c >= 'a' ? char(c - 32) : c; });
    output.write("&#x");
    output.write(std::string_view(digits.data(), std::size_t(end - digits.data())));
    output.write(';');
}

void writeEscaped(XmlOutput &output, std::string_view text, const std::array<bool, 256> &set)
{
    std::size_t written = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!set[static_cast<unsigned char>(text[i])])
            continue;
        output.write(text.substr(written, i - written));
        if (static_cast<unsigned char>(text[i]) >= 0x80)
            writeReference(output, text, i);
        else
            output.write(replacement(text[i]));
        written = i + 1;
    }
    output.write(text.substr(std::min(written, text.size())));
}

} // namespace

XmlWriter::XmlWriter(const XmlTree &tree, XmlOutput &output, bool isIndented, bool asciiAttributes)
    : m_tree(tree)
    , m_output(output)
    , m_isIndented(isIndented)
    , m_asciiAttributes(asciiAttributes)
{
}

void XmlWriter::writeDocument(std::string_view encoding)
{
    m_output.write("<?xml version=\"");
    m_output.write({m_tree.version.constData(), std::size_t(m_tree.version.size())});
    m_output.write("\" encoding=\"");
    m_output.write(encoding);
    m_output.write('"');
    if (m_tree.isStandalone == 0 || m_tree.isStandalone == 1)
        m_output.write(m_tree.isStandalone == 1 ? " standalone=\"yes\"" : " standalone=\"no\"");
    m_output.write("?>\n");
    const XmlTree::Node &document = m_tree.node(XmlTree::documentId);
    for (XmlNodeId child = document.firstChild; child; child = m_tree.node(child).next) {
        writeNode(child);
        m_output.write('\n');
    }
}

void XmlWriter::writeNode(XmlNodeId top)
{
    const bool isIndented = m_isIndented;
    XmlNodeId unformatted = 0; // the element whose text keeps its content from being indented
    m_level = 0;
    XmlNodeId at = top;
    while (!m_output.hasFailed()) {
        const XmlTree::Node &node = m_tree.node(at);
        if (at != top && m_isIndented && !node.isText())
            indent();
        if (node.isElement()) {
            writeStartTag(at);
            if (node.firstChild) {
                if (m_isIndented && holdsText(at)) {
                    m_isIndented = false;
                    unformatted = at;
                }
                m_output.write('>');
                if (m_isIndented)
                    m_output.write('\n');
                ++m_level;
                at = node.firstChild;
                continue;
            }
            m_output.write("/>");
        } else {
            writeLeaf(node);
        }
        while (at != top) {
            if (m_isIndented)
                m_output.write('\n');
            if (const XmlNodeId next = m_tree.node(at).next) {
                at = next;
                break;
            }
            at = m_tree.node(at).parent;
            --m_level;
            if (m_isIndented)
                indent();
            writeEndTag(at);
            if (at == unformatted) {
                m_isIndented = isIndented;
                unformatted = 0;
            }
        }
        if (at == top)
            break;
    }
    m_isIndented = isIndented;
}

/// The indentation does not grow for deeply nested elements.
void XmlWriter::indent()
{
    static constexpr std::string_view blanks = "                                                            ";
    m_output.write(blanks.substr(0, std::size_t(m_level) * 2));
}

bool XmlWriter::holdsText(XmlNodeId element) const
{
    for (XmlNodeId child = m_tree.node(element).firstChild; child; child = m_tree.node(child).next) {
        if (m_tree.node(child).isText())
            return true;
    }
    return false;
}

void XmlWriter::writeStartTag(XmlNodeId element)
{
    m_output.write('<');
    writeName(m_tree.node(element).name);
    if (m_tree.node(element).firstAttribute) {
        writeNamespaces(element);
        writeAttributes(element);
    }
}

void XmlWriter::writeEndTag(XmlNodeId element)
{
    m_output.write("</");
    writeName(m_tree.node(element).name);
    m_output.write('>');
}

void XmlWriter::writeName(XmlNameId name)
{
    m_output.write(m_tree.name(name).qualified);
}

void XmlWriter::writeNamespaces(XmlNodeId element)
{
    for (XmlNodeId id = m_tree.node(element).firstAttribute; id; id = m_tree.node(id).next) {
        const XmlTree::Node &node = m_tree.node(id);
        if (node.kind() == Kind::Namespace)
            writeNamespace(m_tree.name(node.name).qualified, m_tree.text(node.text));
    }
}

void XmlWriter::writeNamespace(std::string_view prefix, std::string_view uri)
{
    if (prefix == "xml")
        return;
    m_output.write(prefix.empty() ? " xmlns" : " xmlns:");
    m_output.write(prefix);
    m_output.write('=');
    const bool isInSingleQuotes =
        uri.find('"') != std::string_view::npos && uri.find('\'') == std::string_view::npos;
    m_output.write(isInSingleQuotes ? '\'' : '"');
    std::size_t written = 0;
    for (std::size_t i = 0; i < uri.size(); ++i) {
        const bool isQuote = uri[i] == '"' && !isInSingleQuotes;
        if (!isQuote && !inNamespaces[static_cast<unsigned char>(uri[i])])
            continue;
        m_output.write(uri.substr(written, i - written));
        m_output.write(uri[i] == '&' ? "&#38;" : replacement(uri[i]));
        written = i + 1;
    }
    m_output.write(uri.substr(written));
    m_output.write(isInSingleQuotes ? '\'' : '"');
}

void XmlWriter::writeAttributes(XmlNodeId element)
{
    for (XmlNodeId id = m_tree.node(element).firstAttribute; id; id = m_tree.node(id).next) {
        const XmlTree::Node &node = m_tree.node(id);
        if (node.kind() == Kind::Attribute)
            writeAttribute(m_tree.name(node.name).qualified, m_tree.text(node.text));
    }
}

void XmlWriter::writeAttribute(std::string_view name, std::string_view value)
{
    m_output.write(' ');
    m_output.write(name);
    m_output.write("=\"");
    writeEscaped(m_output, value, m_asciiAttributes ? inAsciiAttributes : inAttributes);
    m_output.write('"');
}

void XmlWriter::writeText(std::string_view text)
{
    writeEscaped(m_output, text, inText);
}

/// Splits the section at its end mark, which it cannot contain.
void XmlWriter::writeCData(std::string_view text)
{
    constexpr std::string_view end = "]]>";
    std::size_t from = 0;
    for (std::size_t at = text.find(end); at != std::string_view::npos; at = text.find(end, from)) {
        m_output.write("<![CDATA[");
        m_output.write(text.substr(from, at + 2 - from));
        m_output.write(end);
        from = at + 2;
    }
    m_output.write("<![CDATA[");
    m_output.write(text.substr(from));
    m_output.write(end);
}

void XmlWriter::writeLeaf(const XmlTree::Node &node)
{
    const std::string_view text = m_tree.text(node.text);
    switch (node.kind()) {
    case Kind::Text:
        writeText(text);
        break;
    case Kind::CData:
        writeCData(text);
        break;
    case Kind::Comment:
        m_output.write("<!--");
        m_output.write(text);
        m_output.write("-->");
        break;
    case Kind::Instruction:
        m_output.write("<?");
        writeName(node.name);
        if (node.text) {
            m_output.write(' ');
            m_output.write(text);
        }
        m_output.write("?>");
        break;
    default:
        m_output.write(text);
    }
}

} // namespace vantrell
