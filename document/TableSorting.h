#pragma once

#include "document/DocumentInterface.h"
#include "rows/Column.h"

#include <QString>

namespace vantrell
{

class MyDocument;
class UserDefaults;

/// What a document's table is sorted by, and what a click on a column's header does. The last choice is
/// kept in the user defaults "%@SortedColumn" and "%@SortedDescending", which all documents share, and
/// is what a new table starts with. Main thread.
class TableSorting
{
public:
    /// All of these outlive this object. What is sorted by may also be a record key that no column shows.
    TableSorting(MyDocument &document, UserDefaults &defaults, Tab tab, const Columns &columns);

    Tab tab() const { return m_tab; }
    /// "media", "effect" or "marker": what the keys of the tab's table begin with in the user defaults.
    static QString prefixOf(Tab tab);

    /// The column that was clicked last; empty before the first click ever. Rows that it does not tell apart
    /// stay in the order of the clicks before.
    const std::vector<SortDescriptor> &descriptors() const { return m_descriptors; }

    /// Sorts the rows on show by the column: ascending at first, the other way round when it is the one
    /// that was sorted by last. What goes wrong is logged, and the click is ignored.
    void tableViewDidClickTableColumn(const QString &column);

private:
    QString key(QStringView format) const;

    MyDocument &m_document;
    UserDefaults &m_defaults;
    Tab m_tab;
    const Columns &m_columns;
    std::vector<SortDescriptor> m_descriptors;
};

} // namespace vantrell
