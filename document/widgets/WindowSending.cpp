#include "document/widgets/WindowSending.h"

#include "bridge/OutputDocument.h"
#include "document/widgets/DocumentWindow.h"
#include "document/widgets/ProgressSheet.h"
#include "document/widgets/WindowWork.h"
#include "support/files/FileUtilities.h"
#include "support/widgets/FilePanel.h"
#include "table/widgets/TabPane.h"
#include "workbench/Workbench.h"

#include <QFileInfo>

#include <atomic>
#include <memory>

namespace vantrell
{

void WindowSending::sendToFCP()
{
    m_window.commitEditing();
    MyDocument *const document = m_window.document();
    if (m_window.refusesAfterFailedLoad() || !document || m_state.isBusy() || m_state.isSending()) {
        m_window.finishSaving(false);
        return;
    }
    if (document->isSaving()) { // the tree is being read for something that the window does not wait for
        m_window.whenIdle([this] { sendToFCP(); });
        return;
    }
    // The sender shows the progress sheet once there is something to send.
    m_state.setSending(true);
    m_work.sheet().setCancelTitle(tr("Hide"));
    Q_EMIT m_window.menusChanged();
    document->writeInBackground(QUrl::fromLocalFile(m_window.path()), DocumentType::finalCutProProject,
                                [this](const Result<void> &) { sent(); });
}

void WindowSending::hide()
{
    if (!m_state.isSending() || !m_work.sheet().isVisible())
        return;
    m_window.workbench().document().cancelProgress();
    m_noticeBefore.emplace(m_window.notice().notice(), m_window.notice().kind());
    m_window.notice().setNotice(tr("The changes are still being sent."));
}

void WindowSending::sent()
{
    if (m_state.isClosed())
        return;
    if (const auto before = std::exchange(m_noticeBefore, std::nullopt))
        m_window.notice().setNotice(before->first, before->second);
    m_state.setSending(false);
    Q_EMIT m_window.menusChanged();
    m_window.finishSaving(!m_window.workbench().document().isEdited());
}

void WindowSending::exportChangedSequences()
{
    m_window.commitEditing();
    if (m_window.refusesAfterFailedLoad() || !m_window.document() || m_state.isBusy() || m_state.isSending())
        return;
    FilePanel::runForSaving(
        {.window = &m_window,
         .title = tr("Export Changed Sequences"),
         .folder = m_window.folder(),
         .filter = tr("XML files (*.xml *.XML)"),
         .extension = QStringLiteral("xml"),
         .proposedName = QStringLiteral("%1 Changed Sequences.xml").arg(m_window.fileTitle()),
         .acceptLabel = tr("Export")},
        [this](const QString &path) { m_window.whenIdle([this, path] { exportChangedSequencesTo(path); }); });
}

void WindowSending::exportChangedSequencesTo(const QString &path)
{
    if (m_window.refusesAfterFailedLoad() || !m_window.document() || m_state.isBusy() || m_state.isSending())
        return;
    const QString name = QFileInfo(path).fileName();
    const auto found = [this, path, name](bool isOpen) {
        if (!isOpen) {
            writeChangedSequences(path);
            return;
        }
        m_window.showFailure(tr("The changed sequences could not be exported."),
                             tr("“%1” is open in a window. Choose another name.").arg(name));
        Q_EMIT m_window.changedSequencesExported(false);
    };
    m_window.findOpen(path, tr("Writing “%1”…").arg(name), found);
}

void WindowSending::writeChangedSequences(const QString &path)
{
    MyDocument *const document = m_window.document();
    struct Export {
        std::atomic<bool> isCancelled = false;
        Result<void> written = Failure{tr("The file could not be written.")};
    };
    const auto run = std::make_shared<Export>();
    const auto write = [document, run, path,
                        uuids = document->modifiedSequenceUUIDs().value_or(QStringList())] {
        const auto writeSequences = [&](QIODevice &device) {
            return OutputDocument(*document).write(uuids, device, &run->isCancelled);
        };
        const auto mayReplace = [&](int) {
            return run->isCancelled ? Result<void>(Failure()) : Result<void>();
        };
        run->written = FileUtilities::writeAtomically(path, writeSequences, mayReplace);
    };
    if (document->runInBackground(write,
                                  [this, run, path] { exported(path, run->written, run->isCancelled); }))
        m_work.begin(tr("Writing “%1”…").arg(QFileInfo(path).fileName()), WindowState::Work::Expendable,
                     [run] { run->isCancelled = true; });
}

void WindowSending::exported(const QString &path, const Result<void> &written, bool isCancelled)
{
    m_work.end();
    const QString name = QFileInfo(path).fileName();
    if (written)
        m_window.currentPane().showMessage(tr("Changed sequences exported to “%1”").arg(name));
    else if (!isCancelled)
        m_window.showFailure(tr("The changed sequences could not be exported to “%1”.").arg(name),
                             written.message());
    Q_EMIT m_window.changedSequencesExported(written.isOk());
}

} // namespace vantrell
