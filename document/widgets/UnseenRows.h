#pragma once

#include "document/EditHistory.h"
#include "rows/RowRecord.h"

#include <unordered_set>

namespace vantrell
{

class MyDocument;

/// Tells whether an undone or redone step changes rows that its table does not show, neither before nor
/// after. Main thread.
class UnseenRows
{
public:
    /// Before the step.
    UnseenRows(const MyDocument &document, const EditStep &step);

    Tab tab() const { return m_tab; }
    /// After the step. False when its rows are not known.
    bool remain(const MyDocument &document) const;

private:
    Tab m_tab;
    std::unordered_set<RowRecordPtr> m_rows;
};

} // namespace vantrell
