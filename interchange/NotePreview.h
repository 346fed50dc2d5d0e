#pragma once

#include "interchange/NoteImporter.h"
#include "interchange/NoteSource.h"
#include "interchange/notes/NotePlan.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace vantrell
{

class MarkerEditor;
class MyDocument;

/// What an import of one list would add, with the settings that decide on it and the rows that the user
/// wants. Every setting starts a new plan, which is made on another thread; planned() tells when it is there.
/// Main thread; the document and its editor outlive it. The document has a sequence.
class NotePreview final : public QObject
{
    Q_OBJECT

public:
    /// Begins with the sequence that the list names, else the one of that item of the sequence menu, and what
    /// the list says and suggests.
    NotePreview(MyDocument &document, MarkerEditor &editor, NoteSource source, std::int64_t item = 1,
                QObject *parent = nullptr);
    ~NotePreview() override;

    // The list

    /// Null for a text that was pasted.
    QString name() const { return m_source.name(); }
    const NoteList &list() const { return *m_source.list; }
    /// What the list was recognised as: kind, delimiter, encoding, frame rate.
    QString description() const;

    struct Column {
        QString title;   ///< or "Column 3" where the list has none
        QString example; ///< the first value; empty when it is not known
        NoteRole role;   ///< columns that no one chose as fields are ignored
    };
    std::vector<Column> columns() const;
    /// With the colours that the user chose.
    std::vector<NoteColorUse> colors() const;

    // The settings

    /// The titles of the sequence menu without its first item.
    QStringList sequences() const;
    /// An item of that menu, from 1.
    std::int64_t sequence() const { return m_item; }
    const NoteSequence &target() const { return m_target; }
    /// The first timecode of the sequence.
    QString startTimecode() const;
    void setSequence(std::int64_t item);

    /// Never Guessed once the first plan is there.
    NoteMeaning meaning() const { return m_meaning; }
    /// The timecode is that of an offset or of the first note, in the user shorthand.
    void setMeaning(NoteMeaning meaning, const QString &timecode = QString());

    /// The rate of the list; nothing for what it says, else the sequence's.
    const std::optional<NoteRate> &rate() const { return m_settings.rate; }
    void setRate(const std::optional<NoteRate> &rate);

    /// Gives a column a role. A role that only one column can have is taken from the others; a field takes
    /// the title of its column.
    void setRole(std::size_t column, NoteRole::Kind role);
    const NoteColumnChoices &choices() const { return m_settings.choices; }
    /// What a colour of colors() becomes: an index of MarkerColors::table().
    void setColor(const QString &key, int color);

    // The plan

    /// Whether the settings have changed since the plan was made.
    bool isPlanning() const { return m_isPlanning; }
    /// In the order of the list.
    const std::vector<PlannedNote> &notes() const { return m_notes; }
    bool isChecked(std::size_t row) const;
    /// Whether the row can be added: not when it lies outside the sequence or is unreadable.
    bool mayCheck(std::size_t row) const;
    /// Rows that may not be checked stay as they are.
    void setChecked(const std::vector<std::size_t> &rows, bool isChecked);
    std::size_t checkedCount() const;

    /// The timecode in the sequence; null for a row without one.
    QString timecode(std::size_t row) const;
    QString duration(std::size_t row) const;
    /// Why the row is not added, the timecode of the table where the list has another one, or the values of
    /// its custom fields; empty when there is nothing to say.
    QString remark(std::size_t row) const;
    /// Such as "11 of 12 notes will be added; 1 is already there".
    QString summary() const;

    /// The checked rows, to be added.
    std::vector<PlannedNote> checkedNotes() const;

Q_SIGNALS:
    /// The rows, columns, colours and summary are new.
    void planned();
    /// Other rows are checked.
    void checksChanged();

private:
    struct Plan;
    enum class Check : std::uint8_t { AsPlanned, On, Off };

    void refresh(bool rereads = false);
    void start();
    void take(Plan &plan, const Result<void> &made);
    QString columnTitle(std::size_t column) const;

    MyDocument &m_document;
    NoteImporter m_importer;
    NoteSource m_source;
    std::int64_t m_item = 1;
    NoteSequence m_target;
    NoteMatches m_matches; ///< of the target
    NoteSettings m_settings;
    NoteMeaning m_meaning = NoteMeaning::Guessed;
    bool m_rereads = false; ///< with the next plan
    bool m_isPlanning = false;
    bool m_isOutdated = false; ///< what is being planned
    QString m_failure;         ///< why there is no plan; empty when there is one
    std::vector<PlannedNote> m_notes;
    std::vector<Check> m_checks; ///< by row
    std::vector<NoteColorUse> m_colors;
    std::shared_ptr<bool> m_isWanted = std::make_shared<bool>(true); ///< checked when a plan is made
};

/// The frame rates that lists have, with those of drop frame.
const std::vector<NoteRate> &usualNoteRates();
/// Such as "29.97 drop frame".
QString titleOf(const NoteRate &rate);

} // namespace vantrell
