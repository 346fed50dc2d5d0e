#pragma once

#include "interchange/notes/NoteWriter.h"
#include "markers/MarkerConditions.h"
#include "rows/RowRecord.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace vantrell
{

class MyDocument;

/// Makes lists for other systems of a document's markers. Main thread.
class NoteExporter
{
public:
    using Flag = MarkerFlag;

    /// Which markers are written; all conditions hold.
    struct Filter {
        std::optional<int> color = {};             ///< index of MarkerColors::table()
        std::optional<std::int64_t> sequence = {}; ///< item of the sequence menu
        /// A text that one of the marker's texts holds, in whatever case: its name, comment and custom
        /// fields, the timecodes, and the names of its sequence and clip.
        QString search = {};
        std::optional<Flag> flag = {}; ///< that is set
    };

    /// The document outlives the exporter.
    explicit NoteExporter(MyDocument &document)
        : m_document(document)
    {
    }

    /// The document's markers that the filter takes, in their order.
    RowList markers(const Filter &filter) const;
    /// Those of the rows, markers of the document.
    RowList markers(const RowList &rows, const Filter &filter) const;

    /// The markers as a list in a format of NoteWriter. The timecodes are those that the marker table shows.
    NoteWriter::Written list(const QString &format, const RowList &markers,
                             const QStringList &columns = {}) const;
    /// What NoteWriter writes of the markers.
    static std::vector<WrittenNote> notes(const RowList &markers);
    /// The titles of all columns that their table has; see NoteWriter.
    static QStringList columnTitles(const RowList &markers);

private:
    MyDocument &m_document;
};

} // namespace vantrell
