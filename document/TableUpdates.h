#pragma once

#include "document/MyDocument.h"

namespace vantrell
{

/// The table reloads once for all rows that are added while this lives. Main thread; the document outlives
/// it.
class TableUpdates
{
public:
    explicit TableUpdates(MyDocument &document)
        : m_document(document)
    {
        m_document.beginTableUpdates();
    }
    ~TableUpdates() { m_document.endTableUpdates(); }
    TableUpdates(const TableUpdates &) = delete;
    TableUpdates &operator=(const TableUpdates &) = delete;

private:
    MyDocument &m_document;
};

} // namespace vantrell
