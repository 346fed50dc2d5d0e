#pragma once

#include "interchange/notes/NoteList.h"

#include <QStringView>

#include <optional>

namespace vantrell
{

/// What the title of a column says in English, German, French, Spanish, Italian, Portuguese, Dutch, Japanese,
/// Chinese, Korean and Russian.
struct NoteHeader {
    NoteRole::Kind kind = NoteRole::Ignore;
    /// Of several columns with one role the one with the lowest rank has it: "Timecode In" before "Frame".
    int rank = 0;
    std::optional<NoteUnit> unit; ///< of plain numbers below it, where it says so

    /// nullopt for a title that says nothing. Any thread.
    static std::optional<NoteHeader> ofTitle(QStringView title);
};

} // namespace vantrell
