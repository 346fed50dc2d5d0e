#pragma once

#include <QIODevice>
#include <QXmlStreamWriter>

#include <algorithm>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace vantrell::bench
{

/// Passes bytes on to a file and counts them. Without a file it only counts.
class CountingDevice final : public QIODevice
{
public:
    /// \a file is open and stays so; null to count only.
    explicit CountingDevice(QIODevice *file)
        : m_file(file)
    {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }

    std::uint64_t bytes() const { return m_bytes; }
    /// Line ends and tabs, which no text contains.
    std::uint64_t whiteSpaceBytes() const { return m_whiteSpaceBytes; }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 size) override
    {
        m_bytes += std::uint64_t(size);
        m_whiteSpaceBytes +=
            std::uint64_t(std::count_if(data, data + size, [](char c) { return c == '\n' || c == '\t'; }));
        return m_file ? m_file->write(data, size) : size;
    }

private:
    QIODevice *m_file;
    std::uint64_t m_bytes = 0;
    std::uint64_t m_whiteSpaceBytes = 0;
};

/// Writes XML, one element per line, indented with tabs. Texts are UTF-8.
class XmlStream
{
public:
    /// \a whiteSpace: whether there is a line end and indentation between elements.
    XmlStream(QIODevice *file, bool whiteSpace)
        : m_device(file)
        , m_writer(&m_device)
    {
        m_writer.setAutoFormatting(whiteSpace);
        m_writer.setAutoFormattingIndent(-1);
    }

    using Attributes = std::initializer_list<std::pair<std::string_view, std::string_view>>;

    void declaration(std::string_view rootName)
    {
        m_writer.writeStartDocument();
        m_writer.writeDTD(QStringLiteral("<!DOCTYPE %1>").arg(text(rootName)));
    }
    void open(std::string_view name, Attributes attributes = {})
    {
        m_writer.writeStartElement(text(name));
        addAttributes(attributes);
    }
    void close() { m_writer.writeEndElement(); }
    /// An element without children.
    void empty(std::string_view name, Attributes attributes)
    {
        m_writer.writeEmptyElement(text(name));
        addAttributes(attributes);
    }
    /// An element with a text only.
    void leaf(std::string_view name, std::string_view content)
    {
        ++m_elements;
        m_writer.writeTextElement(text(name), text(content));
    }
    void leaf(std::string_view name, std::int64_t number) { leaf(name, std::to_string(number)); }

    /// Ends the document. False when anything could not be written since the start.
    bool finish()
    {
        if (m_writer.autoFormatting())
            m_writer.writeEndDocument();
        return !m_writer.hasError();
    }

    std::uint64_t bytes() const { return m_device.bytes(); }
    std::uint64_t whiteSpaceBytes() const { return m_device.whiteSpaceBytes(); }
    std::uint64_t elements() const { return m_elements; }

private:
    static QString text(std::string_view utf8)
    {
        return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
    }
    void addAttributes(Attributes attributes)
    {
        ++m_elements;
        for (const auto &[name, value] : attributes)
            m_writer.writeAttribute(text(name), text(value));
    }

    CountingDevice m_device;
    QXmlStreamWriter m_writer;
    std::uint64_t m_elements = 0;
};

/// An element that is open during the lifetime of the object.
class Element
{
public:
    Element(XmlStream &xml, std::string_view name, XmlStream::Attributes attributes = {})
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
