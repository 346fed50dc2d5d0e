#pragma once

#include "interchange/notes/NoteRate.h"

#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace vantrell
{

/// One marker as the lists of other systems need it.
struct WrittenNote {
    QString name;
    QString comment;
    QString time;      ///< timecode of the in point
    QString endTime;   ///< and behind the last frame, which is one behind the in point without a duration
    QString duration;  ///< timecode; zeros for none
    qint64 in = 0;     ///< frames from the sequence's first
    qint64 length = 0; ///< frames; 0 for none
    int color = 0;     ///< index of MarkerColors::table()
    QString sequence;
    QString clip;
    NoteRate rate;
    bool isChapter = false;
    bool isCompression = false;
    bool isScoring = false;
    std::vector<std::pair<QString, QString>> fields = {}; ///< titles and values of custom fields
};

/// Writes lists for other systems. Any thread.
namespace NoteWriter
{

/// A list, and what it could not hold as it was, as sentences.
struct Written {
    QString text;
    QStringList changes;
};

/// The formats: "avid6", "avid8", "resolve-edl", "edl", "csv", "tsv", "markdown", "chapters" and "webvtt".
const QStringList &formats();

/// Lines end in a line feed, those of CSV in a carriage return and a line feed. Edit decision lists, chapters
/// and WebVTT are in the order of time, all else in that of the notes. Nothing for another format.
///
/// Avid lists and edit decision lists have one line a marker, without tabs and line breaks in texts. Avid's
/// six fields hold the marker's name in the place of the user, as the list of five does; of eight, the user
/// is the custom field "USER" where there is one, else "Vantrell", and the last is the exact colour. A marker
/// without a duration is one frame long in Avid and Resolve lists and in WebVTT. Locators and chapters hold
/// the name, without one the comment.
///
/// Tables have the columns with these titles, in this order; without any all of columnTitles().
Written write(const QString &format, const std::vector<WrittenNote> &notes, const QStringList &columns = {});

/// The titles of all columns of a table: the usual ones, then the custom fields.
QStringList columnTitles(const std::vector<WrittenNote> &notes);

/// Whether the columns of the format can be chosen: "csv", "tsv" and "markdown".
bool hasColumns(const QString &format);

} // namespace NoteWriter
} // namespace vantrell
