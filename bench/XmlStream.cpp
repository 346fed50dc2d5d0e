#include "bench/XmlStream.h"

namespace vantrell::bench
{

namespace
{

constexpr std::size_t kBufferSize = 1 << 18;
constexpr std::string_view kTabs = "\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t";

} // namespace

XmlStream::XmlStream(std::FILE *file, bool whiteSpace)
    : m_file(file)
    , m_whiteSpace(whiteSpace)
{
    m_buffer.reserve(kBufferSize + 4096);
}

void XmlStream::declaration(std::string_view rootName)
{
    put("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    endLine();
    put("<!DOCTYPE ");
    put(rootName);
    put(">");
    endLine();
}

void XmlStream::open(std::string_view name, std::initializer_list<Attribute> attributes)
{
    startLine();
    startTag(name, attributes);
    put(">");
    endLine();
    m_open.emplace_back(name);
}

void XmlStream::close()
{
    const std::string name = std::move(m_open.back());
    m_open.pop_back();
    startLine();
    put("</");
    put(name);
    put(">");
    endLine();
}

void XmlStream::empty(std::string_view name, std::initializer_list<Attribute> attributes)
{
    startLine();
    startTag(name, attributes);
    put("/>");
    endLine();
}

void XmlStream::leaf(std::string_view name, std::string_view text)
{
    startLine();
    startTag(name, {});
    put(">");
    putEscaped(text);
    put("</");
    put(name);
    put(">");
    endLine();
}

void XmlStream::leaf(std::string_view name, std::int64_t number)
{
    leaf(name, std::to_string(number));
}

bool XmlStream::flush()
{
    if (m_file) {
        m_ok = std::fwrite(m_buffer.data(), 1, m_buffer.size(), m_file) == m_buffer.size() && m_ok;
        m_ok = std::fflush(m_file) == 0 && m_ok;
    }
    m_buffer.clear();
    return m_ok;
}

void XmlStream::put(std::string_view text)
{
    m_bytes += text.size();
    m_buffer.append(text);
    if (m_buffer.size() >= kBufferSize)
        flush();
}

void XmlStream::putEscaped(std::string_view text)
{
    for (std::size_t special = text.find_first_of("&<>\""); special != std::string_view::npos;
         special = text.find_first_of("&<>\"")) {
        put(text.substr(0, special));
        switch (text[special]) {
        case '&':
            put("&amp;");
            break;
        case '<':
            put("&lt;");
            break;
        case '>':
            put("&gt;");
            break;
        default:
            put("&quot;");
        }
        text.remove_prefix(special + 1);
    }
    put(text);
}

void XmlStream::startTag(std::string_view name, std::initializer_list<Attribute> attributes)
{
    ++m_elements;
    put("<");
    put(name);
    for (const auto &[attribute, value] : attributes) {
        put(" ");
        put(attribute);
        put("=\"");
        putEscaped(value);
        put("\"");
    }
}

void XmlStream::startLine()
{
    if (!m_whiteSpace)
        return;
    const std::string_view tabs = kTabs.substr(0, m_open.size());
    put(tabs);
    m_whiteSpaceBytes += tabs.size();
}

void XmlStream::endLine()
{
    if (!m_whiteSpace)
        return;
    put("\n");
    ++m_whiteSpaceBytes;
}

} // namespace vantrell::bench
