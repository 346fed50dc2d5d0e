#pragma once

#include "bridge/host/ImportedXml.h"
#include "support/files/Result.h"
#include "xml/XmlDocument.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <vector>

namespace vantrell
{

/// A project as its xmeml text, which stays as its file has it but for what is put into it, and the place
/// where that goes. A value whose copies share the text.
class ProjectText
{
public:
    /// No project.
    ProjectText() = default;
    /// What a file holds. Only a well-formed xmeml is a project; the failure says what is wrong.
    static Result<ProjectText> fromFile(const QString &path);
    /// An empty project of that name.
    static Result<ProjectText> empty(const QString &name, std::int64_t xmemlVersion);

    /// The text, in UTF-8. After with() it is put together first.
    const QByteArray &xml();
    /// How many bytes it has.
    qsizetype size() const;
    /// The text with the items as the last that the project's children hold; as the last of the root where
    /// there is no project. Nothing is copied.
    ProjectText with(const ImportedXml &imported) const;

    Result<std::unique_ptr<XmlDocument>> tree();
    /// Writes the text in the encoding that its file had, whole or not at all.
    Result<void> save(const QString &path);

private:
    /// Bytes that somebody holds.
    struct Part {
        QByteArray bytes;
        qsizetype begin = 0;
        qsizetype size = 0;

        QByteArrayView view() const { return QByteArrayView(bytes).sliced(begin, size); }
    };

    static Result<ProjectText> fromUtf8(QByteArray xml);
    static Part whole(const QByteArray &bytes) { return {bytes, 0, bytes.size()}; }

    std::vector<Part> m_parts; ///< the text
    std::size_t m_place = 0;   ///< before this part new elements go
    std::size_t m_gap = 0;     ///< so many parts there are replaced by m_opening and m_closing
    QByteArray m_opening;      ///< what comes before the first new elements, or behind them
    QByteArray m_closing;
    QByteArray m_xml;      ///< the text in one; null until it is put together
    QByteArray m_encoding; ///< of the file; empty for UTF-8
};

} // namespace vantrell
