#pragma once

#include "interchange/notes/NotePlan.h"

#include <QByteArray>

#include <cstdint>

namespace vantrell::cli
{

/// What the reader of notes made of a list, as one JSON document.
QByteArray notesAsJson(const NoteList &list);

/// What becomes of notes in the sequence of that item of the menu, as one JSON document.
QByteArray plannedNotesAsJson(std::int64_t sequence, const std::vector<PlannedNote> &notes);

} // namespace vantrell::cli
