#pragma once

#include "interchange/notes/NoteRoles.h"

#include <QByteArray>
#include <QStringView>

/// One reader for each kind of list, for NoteReader. The text outlives the list that is filled; each fills in
/// its shape, columns, rows and unreadable lines, and the rate and title where the list says them. Any
/// thread.
namespace vantrell::NoteShapes
{

/// Lists with columns: Avid markers, Premiere, Audition, review tools, Final Cut Pro and any other table,
/// those of Markdown included.
void readTable(const QString &text, NoteList &list, const NoteColumnChoices &choices);
/// The records of a list that has a start of its table, with the roles of other choices.
NoteList readTableAgain(const NoteList &list, const NoteColumnChoices &choices);

/// Edit decision lists with locators or with Resolve's markers. A locator stands at the time of its line, a
/// marker at the record in point of its event; the line is that of the locator or the marker.
bool isEdl(QStringView text);
void readEdl(QStringView text, NoteList &list);

/// The markers of a Pro Tools session text. A location that is neither timecode nor minutes and seconds is
/// replaced by the time reference, in seconds from the session's start.
bool isProTools(QStringView text);
void readProTools(QStringView text, NoteList &list);

/// Lines of a time, perhaps an end behind a dash, and a title, as in the description of a video; other lines
/// do not count. WebVTT and SubRip too, of whose cues the first line is the name and the others the comment.
bool isChapters(QStringView text);
void readChapters(QStringView text, NoteList &list);

/// Avid markers as XML: the values that follow the names _ATN_CRM_COLOR, _USER, _COM, _TC, _TRK and _LENGTH.
bool isAvidXml(QStringView text);
void readAvidXml(QStringView text, const QByteArray &bytes, NoteList &list);

/// All markers on the timeline of the first project of an interchange file, whatever holds them; those
/// outside the used part of their clip are left out. The times are timecodes of the project, the durations
/// as they are written. The type is "standard", "to-do", "completed" or "chapter".
bool isFcpxml(QStringView text);
void readFcpxml(QStringView text, const QByteArray &bytes, NoteList &list);

/// An array of objects with the keys of a marker record, or with "time" or "start", "name" and so on.
bool isJson(QStringView text);
void readJson(QStringView text, NoteList &list);

} // namespace vantrell::NoteShapes
