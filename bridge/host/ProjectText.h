#pragma once

#include "support/files/Result.h"
#include "xml/XmlDocument.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

namespace vantrell
{

/// An imported xmeml document and its items. A value type.
struct ImportedXml {
    QByteArray xml;
    /// Bins, clips and sequences in document order, those inside a project included. They are parts of the
    /// text that can be inserted into any other document. Never empty.
    std::vector<QByteArrayView> items;

    /// Parses a document in UTF-8. Fails, with the reason, when it is not well-formed, not xmeml, of a
    /// version beyond \a maximumVersion, or without items. Any thread.
    static Result<ImportedXml> read(const QByteArray &xml, std::int64_t maximumVersion);
};

/// The xmeml text of a project, identical to that of its file except for inserted items. A value type; copies
/// share the text.
class ProjectText
{
public:
    /// No project.
    ProjectText() = default;
    /// The content of a file. Fails, with the reason, unless it is well-formed xmeml.
    static Result<ProjectText> fromFile(const QString &path);
    /// An empty project of that name.
    static Result<ProjectText> empty(const QString &name, std::int64_t xmemlVersion);

    /// The text in UTF-8. After with() its parts are concatenated first.
    const QByteArray &xml();
    /// Bytes of the text.
    qsizetype size() const;
    /// The text with the items appended to the project's children, or to the root without a project. Nothing
    /// is copied.
    ProjectText with(const ImportedXml &imported) const;

    Result<std::unique_ptr<XmlDocument>> tree() { return XmlDocument::fromData(xml(), {.tolerant = false}); }
    /// Writes the text atomically, in the encoding of the file that it was read from.
    Result<void> save(const QString &path);

private:
    /// Part of a byte array, which it keeps alive.
    struct Part {
        QByteArray bytes;
        qsizetype begin = 0;
        qsizetype size = 0;

        QByteArrayView view() const { return QByteArrayView(bytes).sliced(begin, size); }
    };

    static Result<ProjectText> fromUtf8(QByteArray xml);
    static Part whole(const QByteArray &bytes) { return {bytes, 0, bytes.size()}; }

    std::vector<Part> m_parts;   ///< the text
    std::size_t m_insertion = 0; ///< index of the part before which new elements are inserted
    std::size_t m_gap = 0;       ///< number of parts there that m_opening and m_closing replace
    QByteArray m_opening;        ///< tags before and after the first inserted elements
    QByteArray m_closing;
    QByteArray m_xml;      ///< the whole text; null until it is needed
    QByteArray m_encoding; ///< of the file; empty for UTF-8
};

} // namespace vantrell
