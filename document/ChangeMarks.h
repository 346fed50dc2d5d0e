#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace vantrell
{

/// What counts as changed in a project: the list of modified sequences since it was sent last, and whether
/// the project differs from the one that was saved or sent last. Main thread.
class ChangeMarks
{
public:
    /// The state of a project. Two states are the same only when undoing and redoing leads from one to the
    /// other.
    using State = std::uint64_t;

    /// The share of one edit in the marks.
    struct Edit {
        State before = 0; ///< states of the project
        State after = 0;
        QStringList sequences; ///< UUIDs of those that it changed, each once
        /// What the edit, or undoing it, added to the list last; nothing when it was taken away again. It
        /// holds only within a period.
        struct Added {
            std::uint64_t period;
            QStringList sequences;
        };
        std::optional<Added> added;

        /// Adds the share of a later edit.
        void append(const Edit &later);
    };

    // The list of modified sequences

    /// Absent when nothing was ever added.
    const std::optional<QStringList> &sequences() const { return m_sequences; }
    /// Appends without a check.
    void addSequence(const QString &uuid);
    /// In constant time. During a sending: among those that were added since it began.
    bool contains(const QString &uuid) const { return m_set.contains(uuid); }
    void clearSequences();

    // The edited mark

    bool isEdited() const { return m_state != m_cleanState; }
    State state() const { return m_state; }
    /// Of the project as it was saved or sent last.
    State cleanState() const { return m_cleanState; }
    void noteChange() { m_state = ++m_lastState; }
    /// The project has been saved as it is now.
    void noteSaved();

    // Edits

    /// What is changed from now on belongs to a new edit, until it is taken.
    void beginEdit();
    Edit takeEdit();
    bool isInEdit() const { return m_edit.has_value(); }
    /// An edit changed the sequence with that UUID, or one without a UUID (null).
    void markSequence(const QString &uuid);
    /// Undoes the edit's changes of the marks, or redoes them when they are undone. Sequences that were sent
    /// since count as modified again.
    void undo(Edit &edit);
    void redo(Edit &edit);

    // Sending

    void beginSending();
    /// Whether it arrived, and whether the sequences in the list arrived one by one and are taken from it.
    void endSending(bool isSent, bool takesSequences);
    bool isSending() const { return m_sending.has_value(); }

private:
    struct Sending {
        State state;
        qsizetype sequences; ///< how many are in the list
        std::uint64_t period;
    };

    void beginPeriod() { m_period = ++m_lastPeriod; }
    void exchangeSequences(Edit &edit);

    std::optional<QStringList> m_sequences;
    QSet<QString> m_set;
    State m_state = 0;
    State m_lastState = 0;
    State m_cleanState = 0;
    // Within a period only edits change the list
    std::uint64_t m_period = 0;
    std::uint64_t m_lastPeriod = 0;
    std::optional<Edit> m_edit;
    QSet<QString> m_editSet; // of the edit's sequences
    std::optional<Sending> m_sending;
};

} // namespace vantrell
