#pragma once

#include "document/MyDocument.h"
#include "support/files/Result.h"

#include <QString>
#include <QStringList>

#include <atomic>

class QIODevice;

namespace vantrell
{

/// The document of a project's changed sequences that goes back to the editing application: one bin that
/// holds a renamed copy of each. The project's tree is only read. Main thread, unless a member says
/// otherwise.
class OutputDocument
{
public:
    /// The document outlives this object.
    explicit OutputDocument(MyDocument &document)
        : m_document(document)
    {
    }

    /// The text of the output document; an empty bin when no sequence was changed.
    QString generateXMLOutput();

    /// Writes it as UTF-8 in place of a file, or to a new one, whole or not at all.
    Result<void> writeChangedSequences(const QString &path);

    /// Writes it as UTF-8 for these UUIDs, in their order. Any thread, while nobody edits the tree. Once
    /// `cancelled` is set (null for never) writing fails.
    Result<void> write(const QStringList &modifiedUUIDs, QIODevice &device,
                       const std::atomic<bool> *cancelled = nullptr);

    /// Gives the sequence its id with "-Processed" as its only attribute and as its name, and a new
    /// UUID; name and UUID only where it has such a child. Returns the element.
    static XmlNode renameSequence(XmlNode sequence);

private:
    MyDocument &m_document;
};

} // namespace vantrell
