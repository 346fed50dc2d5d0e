#pragma once

#include "journal/JournalFolder.h"

#include <QDialog>

#include <vector>

class QPushButton;
class QTreeWidget;

namespace vantrell
{

/// Offers to restore the unsaved changes of processes that have crashed. Works on the selected projects, all
/// of them at first; those that are dealt with leave the list, and the last one closes the panel. Closing it
/// keeps the changes for another time. Deletes itself when closed. Main thread.
class RecoveryPanel final : public QDialog
{
    Q_OBJECT

public:
    RecoveryPanel(std::vector<FoundJournal> journals, QWidget *parent);

    const std::vector<FoundJournal> &journals() const { return m_journals; }

public Q_SLOTS:
    /// Without those whose project is missing.
    void restoreSelected();
    /// After a question.
    void discardSelected();

Q_SIGNALS:
    void restoreRequested(const vantrell::FoundJournal &journal);
    void discardRequested(const vantrell::FoundJournal &journal);

private:
    void fill();
    void updateButtons();
    std::vector<FoundJournal> takeSelected(bool onlyRestorable);

    std::vector<FoundJournal> m_journals;
    QTreeWidget *m_list;
    QPushButton *m_restore;
    QPushButton *m_discard;
};

} // namespace vantrell
