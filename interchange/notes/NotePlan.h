#pragma once

#include "interchange/notes/NoteRoles.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace vantrell
{

/// What a list is added to.
struct NoteSequence {
    NoteRate rate;
    qint64 startFrame = 0;          ///< the number of the first frame, in frames
    std::optional<qint64> duration; ///< in frames; nothing where the sequence does not say
};

/// What the times of a list mean.
enum class NoteMeaning {
    /// Record or elapsed, whichever puts more rows into the sequence. Of two that put as many, record for
    /// timecodes and elapsed for seconds and frame counts.
    Guessed,
    Record,  ///< timecodes of the sequence
    Elapsed, ///< from the first frame
    Offset,  ///< with a timecode added to each, timecodes of the sequence
    First    ///< the first row's time is that timecode of the sequence
};

struct NoteSettings {
    NoteMeaning meaning = NoteMeaning::Guessed;
    /// Of Offset and First, in the user shorthand. An offset fills up with zeros and may begin with a minus
    /// sign; a first timecode fills up with the sequence's own.
    QString timecode;
    std::optional<NoteRate> rate; ///< of the list; nothing for what it says, else the sequence's
    /// The columns that the user chose: those chosen as fields become custom fields.
    NoteColumnChoices choices;
    /// The colours that the user chose, as indexes of MarkerColors::table(), by the keys of NoteColorUse.
    QHash<QString, int> colors = {};
};

/// A colour of a list: what stands for it there, and what it becomes unless the user chooses another one.
struct NoteColorUse {
    QString key;           ///< the same for the same colour in whatever case; empty for rows without one
    QString text;          ///< as the list has it; empty for none
    int color = 0;         ///< index of MarkerColors::table()
    std::size_t count = 0; ///< of rows that have it
};

/// The colours of a list in the order in which they come first. Any thread.
std::vector<NoteColorUse> colorsOf(const NoteList &list);

/// The markers that a sequence has, to tell which notes are there already. Two are the same at the same in
/// point with the same name and comment; blanks around these, colours and durations do not count.
class NoteMatches
{
public:
    /// False when there is the same already.
    bool add(qint64 in, const QString &name, const QString &comment);

private:
    QSet<QString> m_keys;
};

/// One row of a list as a marker.
struct PlannedNote {
    enum class State { Add, Outside, There, Unreadable };

    std::size_t line = 0;
    State state = State::Unreadable;
    QString reason;     ///< why an unreadable row is not added; null for any other
    bool isRow = false; ///< false for a line that is no row: only line, state and reason hold
    QString name;       ///< empty for none, as is the comment
    QString comment;
    qint64 in = 0;       ///< frames from the sequence's first; not for an unreadable row
    qint64 duration = 0; ///< frames; 0 for none
    /// The timecode in a drop frame sequence: as the list has it where both count alike, else by the usual
    /// rule. Nothing in other sequences and for times that are no timecodes.
    std::optional<NoteRate::Label> label = std::nullopt;
    int color = 0; ///< index of MarkerColors::table()
    QString user;  ///< who wrote it; empty where the list does not say
    bool isChapter = false;
    std::vector<std::pair<QString, QString>> fields = {}; ///< titles and values
};

/// "add", "outside", "there" or "unreadable". Any thread.
QString nameOf(PlannedNote::State state);

/// Where the notes of a list go. Any thread.
///
/// Times at another rate are converted in real time, to the nearest frame. A record timecode is first taken
/// from the sequence's first timecode: 01:00:10:00 at 25 frames is ten seconds after 01:00:00:00, whatever
/// the sequence's rate. Durations are converted on their own; without one the end counts. A row that lies
/// before the first or behind the last frame is outside. Characters that XML forbids are dropped. The rows
/// come in the order of their lines, unreadable ones included; each that is to be added is in `matches` then.
///
/// Nothing, for a timecode of the settings that is none.
std::optional<std::vector<PlannedNote>> planNotes(const NoteList &list, const NoteSequence &sequence,
                                                  const NoteSettings &settings, NoteMatches &matches);

/// What the times of a list mean by the settings: Record or Elapsed where they leave it to the list. Any
/// thread.
NoteMeaning meaningOf(const NoteList &list, const NoteSequence &sequence, const NoteSettings &settings);

} // namespace vantrell
