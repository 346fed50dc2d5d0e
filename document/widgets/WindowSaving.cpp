#include "document/widgets/WindowSaving.h"

#include "document/UnsavedChanges.h"
#include "document/widgets/ChangedFileSheet.h"
#include "document/widgets/CommandValidation.h"
#include "document/widgets/DocumentWindow.h"
#include "document/widgets/WindowWork.h"
#include "media/AnswerWithin.h"
#include "support/threads/BackgroundWork.h"
#include "support/widgets/FilePanel.h"
#include "support/widgets/NestedEvents.h"
#include "workbench/Workbench.h"

#include <QFileInfo>
#include <QPointer>

#include <memory>
#include <utility>

namespace vantrell
{

namespace
{

const QString closeQuestion = QStringLiteral("closeQuestionDidEnd:returnCode:contextInfo:");
const QString failureAnswer = QStringLiteral("saveFailureDidEnd:returnCode:contextInfo:");
const QString revertQuestion = QStringLiteral("revertQuestionDidEnd:returnCode:contextInfo:");

} // namespace

void WindowSaving::saveTo(const QString &path)
{
    if (isProject(m_window.document())) {
        m_window.sendToFCP();
        return;
    }
    const auto *const sheet = m_window.findChild<ChangedFileSheet *>();
    if (sheet && sheet->isVisible())
        return; // its answer decides on this save too
    m_window.commitEditing();
    MyDocument *const document = m_window.document();
    if (m_window.refusesAfterFailedLoad() || !document || m_state.isBusy() || m_state.isSending()) {
        finish(false);
        return;
    }
    if (path == m_window.path()) {
        write(path);
        return;
    }
    m_target = path;
    const QString name = QFileInfo(path).fileName();
    const auto found = [this, path, name](bool isOpen) {
        if (!isOpen) {
            write(path);
            return;
        }
        m_window.showFailure(tr("The document “%1” could not be saved.").arg(name),
                             tr("The file is open in another window. Close that window first, or choose "
                                "another name."));
        finish(false);
    };
    findOpen(path, false, tr("Saving “%1”…").arg(name), found, [this] { finish(false); });
}

void WindowSaving::reset()
{
    forgetGivenUpChanges();
    m_target.clear();
}

void WindowSaving::findOpen(const QString &path, bool thisToo, const QString &text,
                            const std::function<void(bool isOpen)> &found,
                            const std::function<void()> &cancelled)
{
    if (!m_findOpen) {
        found(thisToo && path == m_window.path());
        return;
    }
    const auto isAsking = std::make_shared<bool>(true);
    const auto isLate = std::make_shared<bool>(false);
    m_findOpen(path, thisToo, [this, window = QPointer(&m_window), found, isAsking, isLate](bool isOpen) {
        if (!window || m_state.isClosed() || !std::exchange(*isAsking, false))
            return;
        if (*isLate)
            m_work.end();
        found(isOpen);
    });
    if (!*isAsking)
        return;
    *isLate = true;
    m_work.begin(text, WindowState::Work::Cancellable, [this, cancelled, isAsking] {
        *isAsking = false;
        m_work.end();
        if (cancelled)
            cancelled();
    });
}

void WindowSaving::write(const QString &path)
{
    MyDocument *const document = m_window.document();
    if (document->isSaving()) { // the tree is being read for something that the window does not wait for
        m_window.whenIdle([this, path] { write(path); });
        return;
    }
    const QPointer window(&m_window);
    document->writeInBackground(QUrl::fromLocalFile(path), DocumentType::finalCutProXMLFile,
                                [this, path, window](const Result<void> &written) {
                                    if (window && !m_state.isClosed()) // not closed by a question
                                        writeEnded(path, written);
                                });
    // The question whether to replace a damaged file has been answered by now.
    if (window && !m_state.isClosed() && document->isSaving())
        m_work.begin(tr("Saving “%1”…").arg(QFileInfo(path).fileName()), WindowState::Work::Cancellable,
                     [document] { document->cancelWriting(); });
}

void WindowSaving::writeEnded(const QString &path, const Result<void> &written)
{
    if (m_state.isBusy())
        m_work.end();
    const QString reason = written.message();
    if (reason == SaveFailure::changedElsewhere) {
        askAboutChangedFile(path);
        return;
    }
    const bool isKnown = reason == SaveFailure::notOverwritten || reason == SaveFailure::cancelled;
    if (!written && !isKnown)
        QVAlert::alertSheetWithMessageText(
            tr("The document “%1” could not be saved.").arg(QFileInfo(path).fileName()), tr("Save As…"),
            tr("Cancel"), QString(), reason, m_window.alertParent(), this, failureAnswer, false, nullptr);
    if (written)
        saved(path);
    finish(written.isOk());
}

/// Another program has changed the file: the save ends with the user's choice.
void WindowSaving::askAboutChangedFile(const QString &path)
{
    using Choice = ChangedFileSheet::Choice;
    auto *const sheet = new ChangedFileSheet(QFileInfo(path).fileName(), &m_window);
    QObject::connect(sheet, &ChangedFileSheet::chosen, &m_window, [this, path](Choice choice) {
        if (m_state.isClosed())
            return;
        if (choice == Choice::Overwrite) {
            m_window.document()->overwriteChangedFile();
            m_window.whenIdle([this, path] { saveTo(path); });
        } else if (choice == Choice::SaveAs) {
            runSavePanel([this] { finish(false); });
        } else {
            finish(false);
            if (choice == Choice::Reload && !m_state.isClosed())
                m_window.whenIdle([this] { revertWithoutQuestion(); });
        }
    });
    sheet->open();
}

void WindowSaving::saved(const QString &path)
{
    MyDocument &document = m_window.workbench().document();
    document.setFileURL(QUrl::fromLocalFile(path));
    document.clearChangeCount();
    m_window.setNotice(QString());
    m_window.setFile(path, DocumentType::finalCutProXMLFile);
    rememberFile();
    Q_EMIT m_window.loaded(path);
}

void WindowSaving::finish(bool isSaved)
{
    if (!m_state.isBusy()) // or another save was refused
        m_target.clear();
    Q_EMIT m_window.saved(isSaved);
    if (m_state.saveEnded())
        changesEnded(isSaved);
}

void WindowSaving::rememberFile()
{
    BackgroundWork::run([file = m_window.workbench().document().knownFile()] { file->rememberContent(); });
}

void WindowSaving::saveAs()
{
    m_window.commitEditing();
    if (!m_window.refusesAfterFailedLoad() && m_window.document() && !m_state.isBusy())
        runSavePanel();
}

void WindowSaving::runSavePanel(const std::function<void()> &whenCancelled)
{
    FilePanel::runForSaving(
        {.window = &m_window,
         .title = tr("Save As"),
         .folder = m_window.folder(),
         .filter = tr("XML files (*.xml *.XML)"),
         .extension = QStringLiteral("xml"),
         .proposedName = QFileInfo(m_window.path()).fileName()},
        [this](const QString &path) { m_window.whenIdle([this, path] { saveTo(path); }); }, whenCancelled);
}

void WindowSaving::revert()
{
    m_window.commitEditing();
    MyDocument *const document = m_window.document();
    if (!document || m_state.isBusy())
        return;
    if (!document->isEdited()) {
        revertWithoutQuestion();
        return;
    }
    const QString changes = UnsavedChanges::of(*document).text();
    const QString lost = changes.isEmpty() ? tr("Your changes since it was last saved will be lost.")
                                           : tr("%1 will be lost.").arg(changes);
    QVAlert::alertSheetWithMessageText(
        tr("Do you want to revert to the saved version of “%1”?").arg(QFileInfo(m_window.path()).fileName()),
        tr("Cancel"), tr("Revert"), QString(),
        lost + QLatin1Char(' ') +
            tr("Edit ▸ Undo Revert brings the project back as it is now, until you save, revert again or "
               "close "
               "the window."),
        m_window.alertParent(), this, revertQuestion, false, nullptr);
}

void WindowSaving::revertWithoutQuestion()
{
    if (m_state.isBusy())
        return;
    // An operation that waits for an answer in another window keeps this document alive; edits made until
    // then would be lost.
    m_work.begin(
        tr("Waiting for the question in another window…"), WindowState::Work::Expendable,
        [this] { m_work.end(); }, WindowState::Next::Revert);
    NestedEvents::whenUnwound(&m_window, [this] {
        if (m_state.isClosed() || m_state.next() != WindowState::Next::Revert)
            return;
        m_work.end();
        reload();
    });
}

void WindowSaving::reload()
{
    // If the file has gone, the open document is the only copy of the project.
    const QString path = m_window.path();
    const auto isReadable = [path] { return QFileInfo(path).isReadable(); };
    const auto isAsking = std::make_shared<bool>(true);
    const auto late = [this, isAsking, gate = m_window.document()->mainThread()](const bool &readable) {
        gate->post([this, isAsking, readable] {
            if (m_state.isClosed() || !std::exchange(*isAsking, false))
                return;
            m_work.end();
            reloadIf(readable);
        });
    };
    if (const auto readable = answerWithin<bool>(mainThreadPatience, isReadable, late)) {
        reloadIf(*readable);
        return;
    }
    m_work.begin(tr("Waiting for the volume of “%1”…").arg(QFileInfo(path).fileName()),
                 WindowState::Work::Expendable, [this, isAsking] {
                     *isAsking = false;
                     m_work.end();
                 });
}

void WindowSaving::reloadIf(bool isReadable)
{
    if (isReadable)
        m_window.reload();
    else
        m_window.showFailure(tr("“%1” cannot be read any more.").arg(QFileInfo(m_window.path()).fileName()),
                             tr("The project stays open as it is. You can save it to another place."));
}

bool WindowSaving::mayClose()
{
    m_window.commitEditing();
    if (m_state.isBusy()) {
        m_state.closeWhenIdle();
        m_work.cancelIfExpendable();
        return false;
    }
    const MyDocument *const document = m_window.document();
    if (!document || !document->isEdited())
        return true;
    askBeforeClosing();
    return false;
}

void WindowSaving::settleChanges(Settling settling)
{
    m_window.commitEditing();
    const MyDocument *const document = m_window.document();
    m_state.settle();
    if (!document || !document->isEdited()) {
        changesEnded(true);
    } else if (settling == Settling::Ask) {
        askBeforeClosing();
    } else if (settling == Settling::Discard) {
        m_givenUp = document->marks().state();
        changesEnded(true);
    } else {
        m_state.saveForClosing();
        saveForClosing();
    }
}

bool WindowSaving::hasUnsettledChanges()
{
    m_window.commitEditing();
    const MyDocument *const document = m_window.document();
    return document && document->isEdited() && m_givenUp != document->marks().state();
}

void WindowSaving::closeSettled()
{
    if (!hasUnsettledChanges() && !m_state.isBusy())
        m_window.shutDown();
    else
        m_window.close();
}

void WindowSaving::askBeforeClosing()
{
    if (!m_state.ask())
        return;
    m_window.hideSending(); // or its sheet would cover the question
    QVAlert::alertSheetWithMessageText(
        tr("Do you want to save the changes made to “%1”?").arg(QFileInfo(m_window.path()).fileName()),
        isProject(m_window.document()) ? tr("Send") : tr("Save"), tr("Don’t Save"), tr("Cancel"),
        m_state.isSending() ? tr("They are being sent. Your changes may be lost if you don’t wait for that.")
                            : tr("Your changes will be lost if you don’t save them."),
        m_window.alertParent(), this, closeQuestion, false, nullptr);
}

bool WindowSaving::respondsTo(const QString &selector) const
{
    return selector == closeQuestion || selector == revertQuestion || selector == failureAnswer;
}

void WindowSaving::perform(const QString &selector, QVAlert *, int code)
{
    if (m_state.isClosed())
        return;
    if (selector == closeQuestion)
        closeQuestionEnded(code);
    else if (selector == revertQuestion && code == AlertAnswer::Alternate)
        m_window.whenIdle([this] { revertWithoutQuestion(); });
    else if (selector == failureAnswer && code == AlertAnswer::Default)
        m_window.whenIdle([this] { saveAs(); });
}

void WindowSaving::closeQuestionEnded(int code)
{
    if (code == AlertAnswer::Alternate) {
        m_state.endQuestion();
        m_givenUp = m_window.document()->marks().state();
        changesEnded(true);
    } else if (code != AlertAnswer::Default) {
        m_state.endQuestion();
        changesEnded(false);
    } else if (!m_window.document()->isEdited()) {
        m_state.endQuestion(); // sent while the question showed: nothing is left to save
        changesEnded(true);
    } else {
        m_state.answerSave();
        saveForClosing();
    }
}

/// The window may be busy with something that began after the question.
void WindowSaving::saveForClosing()
{
    if (m_state.isSending())
        return; // what is sent counts as the save
    m_window.whenIdle([this] {
        if (m_state.isSaveForClosing())
            m_window.save();
    });
}

/// The changes have been dealt with, or the user wants to keep the window.
void WindowSaving::changesEnded(bool areSettled)
{
    if (m_state.takePurpose() == WindowState::Purpose::Settle)
        Q_EMIT m_window.changesSettled(areSettled);
    else if (areSettled)
        m_window.shutDown();
    else
        Q_EMIT m_window.closeCancelled();
}

} // namespace vantrell
