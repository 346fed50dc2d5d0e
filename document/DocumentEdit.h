#pragma once

#include "document/MyDocument.h"

namespace vantrell
{

/// What is changed in the document while one of these lives is one step for the user to undo; those within
/// another one belong to its step. No step is made when nothing changes. Main thread; the document outlives
/// it.
class DocumentEdit
{
public:
    /// The tab that shows the changed rows, and the name of the step; see MyDocument::beginEdit().
    DocumentEdit(MyDocument &document, Tab tab, const QString &name, EditGroup group = 0)
        : m_document(document)
    {
        m_document.beginEdit(tab, name, group);
    }
    ~DocumentEdit() { m_document.endEdit(); }
    DocumentEdit(const DocumentEdit &) = delete;
    DocumentEdit &operator=(const DocumentEdit &) = delete;

private:
    MyDocument &m_document;
};

} // namespace vantrell
