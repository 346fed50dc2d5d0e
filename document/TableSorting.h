#pragma once

#include "document/Tab.h"
#include "rows/RowView.h"

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
    /// Sets what the tab's view is sorted by. Document and defaults outlive this object.
    TableSorting(MyDocument &document, UserDefaults &defaults, Tab tab);

    Tab tab() const { return m_tab; }
    /// "media", "effect" or "marker": what the keys of the tab's table begin with in the user defaults.
    static QString prefixOf(Tab tab);

    /// The column that was clicked last; empty before the first click ever. Rows that it does not tell apart
    /// stay in the order of the clicks before.
    const std::vector<SortDescriptor> &descriptors() const { return m_view.sortDescriptors(); }

    /// Sorts the rows on show by the column: ascending at first, the other way round when it is the one
    /// that was sorted by last. What goes wrong is logged, and the click is ignored.
    void tableViewDidClickTableColumn(const QString &column);

private:
    QString key(QStringView format) const;

    RowView &m_view;
    UserDefaults &m_defaults;
    Tab m_tab;
};

} // namespace vantrell
