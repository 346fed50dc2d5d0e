#include "document/ChangeMarks.h"

#include <algorithm>
#include <utility>

namespace vantrell
{

void ChangeMarks::Edit::append(const Edit &later)
{
    after = later.after;
    for (const QString &uuid : later.sequences) {
        if (!sequences.contains(uuid))
            sequences.append(uuid);
    }
    if (added && later.added && added->period == later.added->period)
        added->sequences += later.added->sequences;
    else
        added.reset();
}

void ChangeMarks::addSequence(const QString &uuid)
{
    if (!m_sequences)
        m_sequences.emplace();
    m_sequences->append(uuid);
    m_set.insert(uuid);
}

void ChangeMarks::clearSequences()
{
    m_sequences.reset();
    m_set.clear();
    beginPeriod();
    if (m_sending)
        m_sending->sequences = 0;
}

void ChangeMarks::noteSaved()
{
    m_cleanState = m_state;
    if (m_sending)
        m_sending->state = m_state;
}

void ChangeMarks::beginEdit()
{
    m_edit = Edit();
    m_edit->before = m_state;
    m_edit->added = {m_period, {}};
    m_editSet.clear();
}

ChangeMarks::Edit ChangeMarks::takeEdit()
{
    Edit edit = std::move(*m_edit);
    m_edit.reset();
    m_editSet.clear();
    edit.after = m_state;
    return edit;
}

void ChangeMarks::markSequence(const QString &uuid)
{
    noteChange();
    if (uuid.isNull())
        return;
    const bool isNew = !contains(uuid);
    if (isNew)
        addSequence(uuid);
    if (!m_edit)
        return;
    if (!m_editSet.contains(uuid)) {
        m_editSet.insert(uuid);
        m_edit->sequences.append(uuid);
    }
    if (isNew && m_edit->added && m_edit->added->period == m_period)
        m_edit->added->sequences.append(uuid);
}

void ChangeMarks::undo(Edit &edit)
{
    exchangeSequences(edit);
    m_state = edit.before;
}

void ChangeMarks::redo(Edit &edit)
{
    exchangeSequences(edit);
    m_state = edit.after;
}

/// Takes from the list what the edit added in this period; where it added nothing, adds its sequences.
void ChangeMarks::exchangeSequences(Edit &edit)
{
    const std::optional<Edit::Added> added = std::exchange(edit.added, std::nullopt);
    if (!added || added->period != m_period) {
        edit.added = {m_period, {}};
        for (const QString &uuid : std::as_const(edit.sequences)) {
            if (contains(uuid))
                continue;
            addSequence(uuid);
            edit.added->sequences.append(uuid);
        }
        return;
    }
    if (!m_sequences)
        return;
    // They are the last ones: edits are undone and redone in turns.
    m_sequences->resize(std::max(m_sequences->size() - added->sequences.size(), qsizetype(0)));
    for (const QString &uuid : added->sequences)
        m_set.remove(uuid);
    if (m_sequences->isEmpty())
        m_sequences.reset();
}

void ChangeMarks::beginSending()
{
    m_sending = {m_state, m_sequences ? m_sequences->size() : 0, m_period};
    m_set.clear(); // so that a sequence that is changed again is added again
    beginPeriod();
}

void ChangeMarks::endSending(bool isSent, bool takesSequences)
{
    const std::optional<Sending> sending = std::exchange(m_sending, std::nullopt);
    if (!sending)
        return;
    if (isSent)
        m_cleanState = sending->state;
    const QStringList all = m_sequences.value_or(QStringList());
    const qsizetype count = sending->sequences;
    QStringList kept = takesSequences ? QStringList() : all.first(count);
    m_set = QSet<QString>(kept.begin(), kept.end());
    for (const QString &uuid : all.sliced(count)) {
        if (!m_set.contains(uuid))
            kept.append(uuid);
        m_set.insert(uuid);
    }
    if (!isSent && all.size() == count)
        m_period = sending->period; // as if nothing had been sent
    else if (!takesSequences)       // else the list begins with what was added since the sending began
        beginPeriod();
    m_sequences = kept.isEmpty() ? std::nullopt : std::optional(kept);
}

} // namespace vantrell
