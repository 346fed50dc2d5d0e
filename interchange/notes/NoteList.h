#pragma once

#include "interchange/notes/NoteRate.h"
#include "interchange/notes/NoteTime.h"

#include <QString>
#include <QStringList>
#include <QStringView>

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace vantrell
{

/// What wrote a list of notes.
enum class NoteShape {
    AvidText,
    AvidXml,
    Premiere,
    Audition,
    ResolveEdl,
    EdlLocators,
    ProTools,
    ReviewCsv,
    Chapters,
    Fcpxml,
    Fcp,
    Table
};

/// "avid-text", "edl-locators" and so on. Any thread.
QString nameOf(NoteShape shape);

/// What a column of a list holds. Any thread.
struct NoteRole {
    enum Kind : std::uint8_t {
        Time,
        Duration,
        End,
        Name,
        Comment,
        Color,
        User,
        Track,
        Type,
        Ignore,
        Field,     ///< a custom field; as many columns as there are
        ColorValue ///< an exact colour beside a named one; not to be chosen
    };
    Kind kind = Ignore;
    QString title = {}; ///< of a field

    bool operator==(const NoteRole &) const = default;

    /// "time", "field:Scene" and so on; "ignore" for a colour value.
    QString text() const;
    /// nullopt for what is no role.
    static std::optional<NoteRole> fromText(const QString &text);
};

/// One note as the list has it. The views are null for what is absent or empty, and good as long as the list.
struct NoteRow {
    std::size_t line = 0; ///< in the file, from 1
    QStringView time;
    QStringView end;
    QStringView duration;
    QStringView name;
    QStringView comment;
    QStringView color;
    QStringView colorValue;
    QStringView user;
    QStringView track;
    QStringView type;
    std::vector<std::pair<std::uint32_t, QStringView>> fields = {}; ///< by the index of their column

    /// The value of a role that is neither ignored nor a field; null for those.
    QStringView value(NoteRole::Kind kind) const;
    void setValue(NoteRole::Kind kind, QStringView value);
};

/// A line that is no note, and why.
struct UnreadableNote {
    std::size_t line = 0;
    QString reason;
};

struct NoteTableStart;

/// A list of notes as it was read. Belongs to one thread at a time.
struct NoteList {
    NoteShape shape = NoteShape::Table;
    QString encoding;
    QString delimiter;                    ///< "tab", "comma" or "semicolon"; empty for a list without columns
    std::optional<NoteRate> rate;         ///< what the list says
    NoteUnit timeUnit = NoteUnit::Frames; ///< of plain numbers in the column of times
    NoteUnit durationUnit = NoteUnit::Frames; ///< and of durations
    std::optional<NoteTime> start; ///< the timecode that times in seconds count from; without one, no matter
    QString title;                 ///< the name of the sequence that the list was made from
    QStringList headers;           ///< of the columns; empty for a list without a header
    std::vector<NoteRole> columns;
    QStringList examples; ///< the first value of each column of a table, at most 80 characters
    std::vector<NoteRow> rows;
    std::vector<UnreadableNote> unreadable; ///< in the order of their lines
    /// What reading a table again takes; null for any other list. Never changed.
    std::shared_ptr<const NoteTableStart> tableStart;

    /// Keeps a text for as long as the list, for views into it; null stays null.
    QStringView keep(const QString &text);
    /// Adds a row that has a time, and an unreadable one otherwise.
    void add(NoteRow row);

private:
    std::shared_ptr<std::deque<QString>> m_texts = std::make_shared<std::deque<QString>>();
};

} // namespace vantrell
