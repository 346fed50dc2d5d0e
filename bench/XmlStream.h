#pragma once

#include <cstdint>
#include <cstdio>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vantrell::bench
{

/// Writes XML, one element per line, indented with tabs, through a buffer of fixed size, and counts the
/// bytes. Without a file it only counts. Texts are UTF-8.
class XmlStream
{
public:
    /// @param file written to and left open; null to count only
    /// @param whiteSpace whether there is a line end and indentation between elements
    XmlStream(std::FILE *file, bool whiteSpace);

    using Attribute = std::pair<std::string_view, std::string_view>;

    void declaration(std::string_view rootName);
    void open(std::string_view name, std::initializer_list<Attribute> attributes = {});
    void close();
    /// An element without children.
    void empty(std::string_view name, std::initializer_list<Attribute> attributes);
    /// An element with a text only.
    void leaf(std::string_view name, std::string_view text);
    void leaf(std::string_view name, std::int64_t number);

    /// Writes out what is buffered. False when anything could not be written since the start.
    bool flush();

    std::uint64_t bytes() const { return m_bytes; }
    /// Bytes of white space between elements: line ends and tabs.
    std::uint64_t whiteSpaceBytes() const { return m_whiteSpaceBytes; }
    std::uint64_t elements() const { return m_elements; }

private:
    void put(std::string_view text);
    void putEscaped(std::string_view text);
    void startTag(std::string_view name, std::initializer_list<Attribute> attributes);
    void startLine();
    void endLine();

    std::FILE *m_file;
    bool m_whiteSpace;
    bool m_ok = true;
    std::string m_buffer;
    std::vector<std::string> m_open;
    std::uint64_t m_bytes = 0;
    std::uint64_t m_whiteSpaceBytes = 0;
    std::uint64_t m_elements = 0;
};

/// An element that is open during the lifetime of the object.
class Element
{
public:
    Element(XmlStream &xml, std::string_view name,
            std::initializer_list<XmlStream::Attribute> attributes = {})
        : m_xml(xml)
    {
        m_xml.open(name, attributes);
    }
    ~Element() { m_xml.close(); }
    Element(const Element &) = delete;
    Element &operator=(const Element &) = delete;

private:
    XmlStream &m_xml;
};

} // namespace vantrell::bench
