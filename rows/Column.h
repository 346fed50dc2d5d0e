#pragma once

#include "rows/RowRecord.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace vantrell
{

/// The value that a row is sorted by; nothing when it has none.
using SortValue = std::function<std::optional<RecordValue>(const RowRecord &row)>;

/// A column of a table: all that is particular to it, wherever the table is shown, sorted, listed or printed.
/// Its functions may be called on any thread.
struct Column {
    enum class Kind { Text, CheckBox, PopUp };
    /// What an edit of a cell writes to: nothing, as the column is read-only; the selected rows; the first of
    /// these alone.
    enum class Edits { Nothing, Rows, FirstRow };
    using Text = std::function<QString(const RowRecord &row)>;

    QString identifier;                    ///< its key's text
    QString title = {};                    ///< in the header and in reports; a report lacks columns without
    QString name = title;                  ///< what it is called where there must be a name
    RecordKey key = RecordKey(identifier); ///< of the value that it shows
    std::optional<RecordKey> nameKey = {}; ///< of the text that stands for a value that is an element
    Kind kind = Kind::Text;                ///< of its cells
    Edits edits = Edits::Nothing;
    int width = 16; ///< at first, in characters of average width
    Qt::AlignmentFlag alignment = kind == Kind::CheckBox ? Qt::AlignHCenter : Qt::AlignLeft;
    bool elidesMiddle = false; ///< its texts are told apart by both of their ends
    bool hasToolTip = false;   ///< pointing at a cell shows its text
    Text text = {};            ///< what a list shows; empty: the value as plainText() has it
    Text reportText = {};      ///< what a report shows; empty: the value
    QString missingText = QStringLiteral("Unknown"); ///< what a report shows without a value
    SortValue sortValue = {};                        ///< empty: the value
    bool reversesWhole = false; ///< descending is ascending turned round, equal rows as well

    /// What a list shows of the row; empty without a value.
    QString textOf(const RowRecord &row) const;
    /// What the row is sorted by.
    std::optional<RecordValue> sortValueOf(const RowRecord &row) const;
};

using Columns = std::vector<Column>;

/// The column with the identifier; null when there is none.
const Column *findColumn(const Columns &columns, const QString &identifier);

} // namespace vantrell
