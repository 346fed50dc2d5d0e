// What DocumentWindow hands to an editing application: sending, and the file of the changed sequences.

#include "document/widgets/DocumentWindow.h"

#include "bridge/OutputDocument.h"
#include "document/widgets/DocumentWindowInterface.h"
#include "document/widgets/NoticeBar.h"
#include "document/widgets/ProgressSheet.h"
#include "support/files/FileUtilities.h"
#include "table/widgets/TabPane.h"
#include "workbench/Workbench.h"

#include <QFileDialog>
#include <QFileInfo>

#include <atomic>
#include <memory>
#include <utility>

namespace vantrell
{

bool DocumentWindow::isProject() const
{
    const MyDocument &loaded = m_workbench->document();
    return loaded.isFCPProject() || loaded.isPremiereProject();
}

void DocumentWindow::sendToFCP()
{
    commitEditing();
    MyDocument *const loaded = document();
    if (refusesAfterFailedLoad() || !loaded || m_isBusy || m_isSending) {
        Q_EMIT saved(false);
        closeAfterSave(false);
        return;
    }
    // The sender shows the progress sheet when there is something to send.
    m_isSending = true;
    m_progress->setCancelTitle(tr("Hide"));
    Q_EMIT menusChanged();
    loaded->writeInBackground(QUrl::fromLocalFile(m_path), DocumentType::finalCutProProject,
                              [this](const Result<void> &) { sendEnded(); });
}

/// Takes the progress sheet away; the send goes on.
void DocumentWindow::hideSending()
{
    if (!m_progress->isVisible())
        return;
    m_workbench->document().cancelProgress();
    m_noticeBefore.emplace(m_notice->notice(), m_notice->kind());
    m_notice->setNotice(tr("The changes are still being sent."));
}

void DocumentWindow::sendEnded()
{
    if (m_closing)
        return;
    if (const auto before = std::exchange(m_noticeBefore, std::nullopt))
        m_notice->setNotice(before->first, before->second);
    m_isSending = false;
    Q_EMIT menusChanged();
    const bool isSent = !m_workbench->document().isEdited();
    Q_EMIT saved(isSent);
    closeAfterSave(isSent);
}

void DocumentWindow::exportChangedSequences()
{
    commitEditing();
    if (refusesAfterFailedLoad() || !document() || m_isBusy || m_isSending)
        return;
    auto *const dialog =
        new QFileDialog(this, tr("Export Changed Sequences"), folder(), tr("XML files (*.xml *.XML)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setLabelText(QFileDialog::Accept, tr("Export"));
    dialog->setDefaultSuffix(QStringLiteral("xml"));
    const QString name = FileUtilities::deletingPathExtension(QFileInfo(m_path).fileName());
    dialog->selectFile(tr("%1 Changed Sequences.xml").arg(name));
    dialog->setWindowModality(Qt::WindowModal);
    connect(dialog, &QFileDialog::accepted, this, [this, dialog] {
        dialog->hide(); // an alert then is the window's only sheet
        exportChangedSequencesTo(dialog->selectedFiles().value(0));
    });
    dialog->open();
}

void DocumentWindow::exportChangedSequencesTo(const QString &path)
{
    MyDocument *const loaded = document();
    if (refusesAfterFailedLoad() || !loaded || m_isBusy || m_isSending)
        return;
    struct Export {
        std::atomic<bool> isCancelled = false;
        Result<void> written = Failure{tr("The file could not be written.")};
    };
    const auto run = std::make_shared<Export>();
    const auto write = [loaded, run, path, uuids = loaded->modifiedSequenceUUIDs().value_or(QStringList())] {
        run->written = FileUtilities::writeAtomically(path, [&](QIODevice &device) {
            return OutputDocument(*loaded).write(uuids, device, &run->isCancelled);
        });
    };
    if (!loaded->runInBackground(
            write, [this, run, path] { sequencesExported(path, run->written, run->isCancelled); }))
        return;
    beginBusy(tr("Writing “%1”…").arg(QFileInfo(path).fileName()), [run] { run->isCancelled = true; });
    m_givesUpForClosing = true;
}

void DocumentWindow::sequencesExported(const QString &path, const Result<void> &written, bool isCancelled)
{
    endBusy();
    const QString name = QFileInfo(path).fileName();
    if (written) {
        pane(selectedTab()).showMessage(tr("Changed sequences exported to “%1”").arg(name));
    } else if (!isCancelled) {
        QVAlert::alertSheetWithMessageText(
            tr("The changed sequences could not be exported to “%1”.").arg(name), QString(), QString(),
            QString(), written.message(), m_interface->alertParent(), false);
    }
    Q_EMIT changedSequencesExported(written.isOk());
}

} // namespace vantrell
