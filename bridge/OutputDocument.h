#pragma once

#include "document/MyDocument.h"
#include "support/files/Result.h"

#include <QString>
#include <QStringList>

#include <atomic>

class QIODevice;

namespace vantrell
{

/// The document that returns a project's changed sequences to the editing application: one bin with a renamed
/// copy of each. The project's tree is only read. Main thread, unless a member says otherwise.
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

    /// Writes it to a file as UTF-8, atomically.
    Result<void> writeChangedSequences(const QString &path);

    /// Writes it as UTF-8 for these UUIDs, in their order. Fails once `cancelled` (which may be null) is set.
    /// Any thread, while nobody edits the tree.
    Result<void> write(const QStringList &modifiedUUIDs, QIODevice &device,
                       const std::atomic<bool> *cancelled = nullptr);

    /// Sets the sequence's only attribute and its name to its id with "-Processed" appended, and gives it a
    /// new UUID; name and UUID only if it has such children. Returns the element.
    static XmlNode renameSequence(XmlNode sequence);

private:
    MyDocument &m_document;
};

} // namespace vantrell
