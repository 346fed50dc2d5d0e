#pragma once

#include "interchange/notes/NoteRoles.h"
#include "support/files/Result.h"

#include <QByteArray>

namespace vantrell
{

/// Reads lists of notes in the forms in which they are exchanged, recognised by their content. Memory and
/// time are proportional to the file. Any thread.
///
/// Of a table the columns have the roles of NoteRoles unless they are chosen. Empty values are absent. Names
/// and comments keep every character; blanks around other values are dropped. Blank lines do not count; a
/// line without a time is unreadable. A file that is no list gives a table whose lines are all unreadable.
///
/// A list whose timecodes have a semicolon and that does not say its rate has 29.97 frames with drop frame,
/// or 59.94 where a frame number is above 29.
namespace NoteReader
{

NoteList read(const QByteArray &bytes, const NoteColumnChoices &choices = {});

/// A list that was read from these bytes, read with other choices; faster than the first time where it is a
/// table.
NoteList readAgain(const NoteList &list, const QByteArray &bytes, const NoteColumnChoices &choices);

/// The failure tells why the file cannot be read.
Result<NoteList> readFile(const QString &path, const NoteColumnChoices &choices = {});

} // namespace NoteReader
} // namespace vantrell
