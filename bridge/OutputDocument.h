#pragma once

#include "document/MyDocument.h"

namespace vantrell
{

/// The document of a project's changed sequences that goes back to the editing application: one bin that
/// holds a renamed copy of each. Main thread.
class OutputDocument
{
public:
    /// The document outlives this object.
    explicit OutputDocument(MyDocument &document)
        : m_document(document)
    {
    }

    /// The text of the output document; an empty bin when no sequence was changed. The project's tree is
    /// left as it is.
    QString generateXMLOutput();

    /// Gives the sequence its id with "-Processed" as its only attribute and as its name, and a new
    /// UUID; name and UUID only where it has such a child. Returns the element.
    static XmlNode renameSequence(XmlNode sequence);

private:
    MyDocument &m_document;
};

} // namespace vantrell
