#pragma once

#include "cli/ProjectSession.h"
#include "support/alerts/HeadlessAlertPresenter.h"
#include "support/files/Result.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <set>
#include <variant>
#include <vector>

namespace vantrell::cli
{

/// Indexes into an unfiltered list, as given: any of them may be out of range.
using RowIndexes = std::set<std::int64_t>;

struct SetCell {
    RowIndexes rows;
    QString column;
    QString value;
};
struct AddMarker {
};
/// Common to both ways of adding a marker.
struct NewMarker {
    QString name;
    QString comment; ///< null for none
    QString color;
    std::optional<std::int64_t> sequence; ///< in the sequence menu
};
struct AddFrames : NewMarker {
    std::int64_t in = 0;
    std::int64_t out = 0;
};
struct AddTimecode : NewMarker {
    QString start;
    QString duration;
};
struct RemoveMarkers {
    RowIndexes rows;
};
struct OffsetMarkers {
    RowIndexes rows;
    QString text;
};
struct SetEffect {
    std::int64_t row = 0;
    QString key;
    QString value;
};
struct RemoveEffects {
    RowIndexes rows;
};
struct Undo {
};
struct Redo {
};

using EditOperation = std::variant<SetCell, AddMarker, AddFrames, AddTimecode, RemoveMarkers, OffsetMarkers,
                                   SetEffect, RemoveEffects, Undo, Redo>;
using EditScript = std::vector<EditOperation>;

/// Reads the operations from a JSON file, or from standard input for "-". The failure tells which operation
/// is wrong and why: unknown, a missing member or one of the wrong type, or a column that the marker table
/// does not have.
Result<EditScript> readEditScript(const QString &path);

/// Applies the operations of a script to a loaded project, in order; the rows that they name are those of the
/// whole lists. The presenter is the one installed for alerts. False, after a message on standard error, as
/// soon as a row is out of range or a question was refused; earlier operations stay applied. Main thread.
bool applyScript(const EditScript &script, ProjectSession &session, const HeadlessAlertPresenter &presenter);

} // namespace vantrell::cli
