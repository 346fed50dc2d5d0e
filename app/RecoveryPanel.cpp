#include "app/RecoveryPanel.h"

#include "support/widgets/AlertBox.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace vantrell
{

namespace
{

enum RecoveryColumn { ProjectColumn, ChangesColumn, TimeColumn, StateColumn, FolderColumn };

QString stateText(FoundJournal::Project project)
{
    switch (project) {
    case FoundJournal::Project::Changed:
        return RecoveryPanel::tr("Changed since");
    case FoundJournal::Project::Missing:
        return RecoveryPanel::tr("Missing");
    case FoundJournal::Project::Unchanged:
        break;
    }
    return RecoveryPanel::tr("As it was");
}

QString stateHint(FoundJournal::Project project)
{
    switch (project) {
    case FoundJournal::Project::Changed:
        return RecoveryPanel::tr("The project was saved by someone else since. Changes that still apply are "
                                 "restored.");
    case FoundJournal::Project::Missing:
        return RecoveryPanel::tr("The project is not where it was. Its changes are kept until it is back.");
    case FoundJournal::Project::Unchanged:
        break;
    }
    return RecoveryPanel::tr("All changes can be restored.");
}

} // namespace

RecoveryPanel::RecoveryPanel(std::vector<FoundJournal> journals, QWidget *parent)
    : QDialog(parent)
    , m_journals(std::move(journals))
    , m_list(new QTreeWidget(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Unsaved Changes"));
    auto *const message = new QLabel(this);
    setMessageText(*message, m_journals.size() == 1
                                 ? tr("The program ended before the changes to this project were saved.")
                                 : tr("The program ended before the changes to these projects were saved."));
    auto *const explanation = new QLabel(this);
    setExplanationText(*explanation, tr("A restored project opens with its changes, which are not saved yet. "
                                        "Those left for later are offered again."));
    m_list->setAccessibleName(tr("Projects with unsaved changes"));
    m_list->setHeaderLabels({tr("Project"), tr("Changes"), tr("Last Change"), tr("File"), tr("Folder")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setTextElideMode(Qt::ElideMiddle);
    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &RecoveryPanel::updateButtons);
    connect(m_list, &QTreeWidget::itemDoubleClicked, this, &RecoveryPanel::restoreSelected);

    auto *const buttons = new QDialogButtonBox(this);
    m_restore = buttons->addButton(tr("&Restore"), QDialogButtonBox::AcceptRole);
    m_discard = buttons->addButton(tr("&Discard…"), QDialogButtonBox::DestructiveRole);
    const QPushButton *const later = buttons->addButton(tr("&Later"), QDialogButtonBox::RejectRole);
    m_restore->setDefault(true);
    connect(m_restore, &QPushButton::clicked, this, &RecoveryPanel::restoreSelected);
    connect(m_discard, &QPushButton::clicked, this, &RecoveryPanel::discardSelected);
    connect(later, &QPushButton::clicked, this, &QDialog::reject);

    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(message);
    layout->addWidget(explanation);
    layout->addWidget(m_list, 1);
    layout->addWidget(buttons);
    fill();
    for (int column = ProjectColumn; column < FolderColumn; ++column)
        m_list->resizeColumnToContents(column);
    resize(fontMetrics().averageCharWidth() * 110, fontMetrics().height() * 16);
    m_list->setFocus();
}

void RecoveryPanel::fill()
{
    m_list->clear();
    for (const FoundJournal &journal : m_journals) {
        const QFileInfo file(journal.header.projectPath);
        const QDateTime time = QDateTime::fromMSecsSinceEpoch(journal.lastChange);
        auto *const item = new QTreeWidgetItem(m_list);
        item->setText(ProjectColumn, file.fileName());
        item->setText(ChangesColumn, QLocale().toString(journal.changes));
        item->setTextAlignment(ChangesColumn, Qt::AlignCenter);
        item->setText(TimeColumn, QLocale().toString(time, QLocale::ShortFormat));
        item->setText(StateColumn, stateText(journal.project));
        item->setText(FolderColumn, file.path());
        for (const int column : {ProjectColumn, FolderColumn})
            item->setToolTip(column, journal.header.projectPath);
        item->setToolTip(StateColumn, stateHint(journal.project));
    }
    m_list->selectAll();
    updateButtons();
}

void RecoveryPanel::updateButtons()
{
    bool isAnyRestorable = false;
    for (std::size_t i = 0; i < m_journals.size(); ++i) {
        const QTreeWidgetItem *const item = m_list->topLevelItem(int(i));
        isAnyRestorable = isAnyRestorable || (item && item->isSelected() &&
                                              m_journals[i].project != FoundJournal::Project::Missing);
    }
    m_restore->setEnabled(isAnyRestorable);
    m_discard->setEnabled(!m_list->selectedItems().isEmpty());
}

/// Takes the selected journals out of the list, and closes the panel behind the last one.
std::vector<FoundJournal> RecoveryPanel::takeSelected(bool onlyRestorable)
{
    std::vector<FoundJournal> taken;
    std::vector<FoundJournal> kept;
    for (std::size_t i = 0; i < m_journals.size(); ++i) {
        const bool isRestorable = m_journals[i].project != FoundJournal::Project::Missing;
        const bool isTaken = m_list->topLevelItem(int(i))->isSelected() && (isRestorable || !onlyRestorable);
        (isTaken ? taken : kept).push_back(std::move(m_journals[i]));
    }
    m_journals = std::move(kept);
    fill();
    if (m_journals.empty())
        accept();
    return taken;
}

void RecoveryPanel::restoreSelected()
{
    const std::vector<FoundJournal> taken = takeSelected(true);
    // The window below loads its project again; the other changes are offered the next time.
    if (parentWidget() && !taken.empty())
        accept();
    for (const FoundJournal &journal : taken)
        Q_EMIT restoreRequested(journal);
}

void RecoveryPanel::discardSelected()
{
    const qsizetype count = m_list->selectedItems().size();
    if (count == 0)
        return;
    auto *const question = new QMessageBox(this);
    question->setAttribute(Qt::WA_DeleteOnClose);
    setUpAlert(*question,
               count == 1 ? tr("Do you want to discard the unsaved changes to this project?")
                          : tr("Do you want to discard the unsaved changes to %1 projects?").arg(count),
               tr("They cannot be restored after that."));
    QPushButton *const cancel = question->addButton(tr("Cancel"), QMessageBox::RejectRole);
    QPushButton *const discard = question->addButton(tr("Discard"), QMessageBox::DestructiveRole);
    question->setDefaultButton(cancel);
    question->setEscapeButton(cancel);
    connect(discard, &QPushButton::clicked, this, [this] {
        for (const FoundJournal &journal : takeSelected(false))
            Q_EMIT discardRequested(journal);
    });
    question->open();
}

} // namespace vantrell
