#pragma once

#include "markers/MarkerEditor.h"

namespace vantrell
{

class MarkerEditor::Candidates
{
public:
    /// Without a list (null): all markers of the document.
    Candidates(const MyDocument &document, const XmlNodeList *list)
        : m_document(document)
        , m_list(list)
    {
    }

    /// The first marker that has the record's in point and name, lies in a sequence with its UUID and, if
    /// it lies in a clip, in one with its UUID and id; null when there is none.
    XmlNode find(const RowRecord &record);

private:
    const MyDocument &m_document;
    const XmlNodeList *m_list;
    XmlNodeList m_all;
};

} // namespace vantrell
