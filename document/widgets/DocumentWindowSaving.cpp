// The saving and closing side of DocumentWindow.

#include "document/widgets/DocumentWindow.h"

#include "document/widgets/ChangedFileSheet.h"
#include "document/widgets/DocumentWindowInterface.h"
#include "document/widgets/NoticeBar.h"
#include "media/AnswerWithin.h"
#include "support/threads/BackgroundWork.h"
#include "support/widgets/NestedEvents.h"
#include "workbench/Workbench.h"

#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>

#include <chrono>
#include <utility>

namespace vantrell
{

namespace
{

const QString closeQuestion = QStringLiteral("closeQuestionDidEnd:returnCode:contextInfo:");
constexpr std::chrono::milliseconds patience{500}; // with a volume that may have gone
const QString revertQuestion = QStringLiteral("revertQuestionDidEnd:returnCode:contextInfo:");

} // namespace

void DocumentWindow::save()
{
    saveTo(m_path);
}

void DocumentWindow::saveTo(const QString &path)
{
    if (document() && isProject()) {
        sendToFCP();
        return;
    }
    const auto *const sheet = findChild<ChangedFileSheet *>();
    if (sheet && sheet->isVisible())
        return; // the answer decides on this save as well
    commitEditing();
    MyDocument *const loaded = document();
    if (refusesAfterFailedLoad() || !loaded || m_isBusy || m_isSending) {
        saveEnded(path, false);
        return;
    }
    if (path != m_path && m_isOpenElsewhere && m_isOpenElsewhere(path)) {
        tellOfFailedSave(path, tr("The file is open in another window. Close that window first, or choose "
                                  "another name."));
        saveEnded(path, false);
        return;
    }
    const QPointer self(this);
    loaded->writeInBackground(QUrl::fromLocalFile(path), DocumentType::finalCutProXMLFile,
                              [this, path, self](const Result<void> &written) {
                                  if (self && !m_closing) // else the user closed it while asked a question
                                      writeEnded(path, written);
                              });
    // A question whether to replace a damaged file has been answered by now.
    if (self && !m_closing && loaded->isSaving())
        beginBusy(tr("Saving “%1”…").arg(QFileInfo(path).fileName()), [loaded] { loaded->cancelWriting(); });
}

void DocumentWindow::writeEnded(const QString &path, const Result<void> &written)
{
    if (m_isBusy)
        endBusy();
    if (!written && written.message() == SaveFailure::changedElsewhere) {
        askAboutChangedFile(path);
        return;
    }
    if (!written)
        tellOfFailedSave(path, written.message());
    saveEnded(path, written.isOk());
}

void DocumentWindow::tellOfFailedSave(const QString &path, const QString &reason)
{
    if (reason == SaveFailure::notOverwritten || reason == SaveFailure::cancelled)
        return; // the user knows
    QVAlert::alertSheetWithMessageText(
        tr("The document “%1” could not be saved.").arg(QFileInfo(path).fileName()), QString(), QString(),
        QString(), reason, m_interface->alertParent(), false);
}

/// Another program has changed the file: the save is over once the user has chosen.
void DocumentWindow::askAboutChangedFile(const QString &path)
{
    using Choice = ChangedFileSheet::Choice;
    auto *const sheet = new ChangedFileSheet(QFileInfo(path).fileName(), this);
    connect(sheet, &ChangedFileSheet::chosen, this, [this, path](Choice choice) {
        if (m_closing)
            return;
        if (choice == Choice::Overwrite) {
            document()->overwriteChangedFile();
            saveTo(path);
        } else if (choice == Choice::SaveAs) {
            runProjectPanel([this, path] { saveEnded(path, false); });
        } else {
            saveEnded(path, false);
            if (choice == Choice::Reload && !m_closing)
                revertWithoutQuestion();
        }
    });
    sheet->open();
}

void DocumentWindow::saveEnded(const QString &path, bool isSaved)
{
    MyDocument *const loaded = document();
    if (isSaved && loaded) {
        loaded->setFileURL(QUrl::fromLocalFile(path));
        loaded->clearChangeCount();
        m_notice->setNotice(QString());
        m_typeName = DocumentType::finalCutProXMLFile;
        setPath(path);
        rememberFile();
        Q_EMIT this->loaded(path);
    }
    Q_EMIT saved(isSaved);
    closeAfterSave(isSaved);
}

/// Beside the window: what the file holds now is known should it be touched or copied back.
void DocumentWindow::rememberFile()
{
    BackgroundWork::run([file = m_workbench->document().knownFile()] { file->rememberContent(); });
}

/// Goes on with what the save was for.
void DocumentWindow::closeAfterSave(bool isSaved)
{
    if (std::exchange(m_closesWhenSaved, false))
        changesEnded(isSaved);
}

/// The user has decided about the changes; what is to be lost is lost with the window.
void DocumentWindow::changesEnded(bool areSettled)
{
    if (std::exchange(m_isSettling, false))
        Q_EMIT changesSettled(areSettled);
    else if (areSettled)
        shutDown();
    else
        Q_EMIT closeCancelled();
}

void DocumentWindow::settleChanges(Settling settling)
{
    commitEditing();
    const MyDocument *const loaded = document();
    m_isSettling = true;
    m_givesUpChanges = false;
    if (!loaded || !loaded->isEdited()) {
        changesEnded(true);
    } else if (settling == Settling::Ask) {
        askBeforeClosing();
    } else {
        m_closesWhenSaved = true;
        if (!m_isSending)
            save();
    }
}

void DocumentWindow::closeSettled()
{
    if (m_givesUpChanges && !m_isBusy)
        shutDown();
    else
        close();
}

void DocumentWindow::giveUpForClosing()
{
    if (m_isBusy && m_givesUpForClosing)
        cancelProgress();
}

void DocumentWindow::saveAs()
{
    commitEditing();
    if (refusesAfterFailedLoad() || !document() || m_isBusy)
        return;
    runProjectPanel();
}

/// Asks where to save the project; `whenCancelled` may be empty.
void DocumentWindow::runProjectPanel(const std::function<void()> &whenCancelled)
{
    auto *const dialog = new QFileDialog(this, tr("Save As"), folder(), tr("XML files (*.xml *.XML)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("xml"));
    dialog->selectFile(QFileInfo(m_path).fileName());
    dialog->setWindowModality(Qt::WindowModal);
    connect(dialog, &QFileDialog::accepted, this, [this, dialog] {
        dialog->hide(); // an alert then is the window's only sheet
        saveTo(dialog->selectedFiles().value(0));
    });
    if (whenCancelled)
        connect(dialog, &QDialog::rejected, this, whenCancelled);
    dialog->open();
}

void DocumentWindow::revert()
{
    commitEditing();
    const MyDocument *const loaded = document();
    if (!loaded || m_isBusy)
        return;
    if (!loaded->isEdited()) {
        revertWithoutQuestion();
        return;
    }
    QVAlert::alertSheetWithMessageText(
        tr("Do you want to revert to the saved version of “%1”?").arg(QFileInfo(m_path).fileName()),
        tr("Cancel"), tr("Revert"), QString(), tr("Your changes since it was last saved will be lost."),
        m_interface->alertParent(), this, revertQuestion, false, nullptr);
}

void DocumentWindow::revertWithoutQuestion()
{
    if (m_isBusy)
        return;
    // Until an operation in another window has been answered nothing may be changed that would be lost.
    m_revertsWhenUnwound = true;
    beginBusy(tr("Waiting for the question in another window…"), [this] {
        m_revertsWhenUnwound = false;
        endBusy();
    });
    m_givesUpForClosing = true;
    NestedEvents::whenUnwound(this, [this] {
        if (m_closing || !std::exchange(m_revertsWhenUnwound, false))
            return;
        endBusy();
        // What is open is all there is of a project whose file has gone.
        const auto isReadable = [path = m_path] { return QFileInfo(path).isReadable(); };
        if (!answerWithin<bool>(patience, isReadable).value_or(false)) {
            QVAlert::alertSheetWithMessageText(
                tr("“%1” cannot be read any more.").arg(QFileInfo(m_path).fileName()), QString(), QString(),
                QString(), tr("The project stays open as it is. You can save it to another place."),
                m_interface->alertParent(), false);
            return;
        }
        const Tab tab = selectedTab();
        endSession();
        open(m_path, m_typeName);
        if (m_state != State::Failed && !m_closing && tab != Tab::Media)
            toolbar(tab);
    });
}

void DocumentWindow::closeEvent(QCloseEvent *event)
{
    if (m_closing) {
        event->accept();
        return;
    }
    commitEditing();
    if (m_isBusy) { // what runs ends first
        event->ignore();
        m_closesWhenIdle = true;
        giveUpForClosing();
        return;
    }
    const MyDocument *const loaded = document();
    if (loaded && loaded->isEdited()) {
        event->ignore();
        askBeforeClosing();
        return;
    }
    event->accept();
    shutDown();
}

void DocumentWindow::askBeforeClosing()
{
    if (m_asksBeforeClosing)
        return;
    m_asksBeforeClosing = true;
    if (m_isSending)
        hideSending(); // or the question could not be the window's sheet
    QVAlert::alertSheetWithMessageText(
        tr("Do you want to save the changes made to “%1”?").arg(QFileInfo(m_path).fileName()),
        isProject() ? tr("Send") : tr("Save"), tr("Don’t Save"), tr("Cancel"),
        m_isSending ? tr("They are being sent. Your changes may be lost if you don’t wait for that.")
                    : tr("Your changes will be lost if you don’t save them."),
        m_interface->alertParent(), this, closeQuestion, false, nullptr);
}

bool DocumentWindow::respondsTo(const QString &selector) const
{
    return selector == closeQuestion || selector == revertQuestion;
}

void DocumentWindow::perform(const QString &selector, QVAlert *, int code)
{
    if (m_closing)
        return;
    if (selector == closeQuestion)
        closeQuestionEnded(code);
    else if (code == AlertAnswer::Alternate)
        revertWithoutQuestion();
}

void DocumentWindow::closeQuestionEnded(int code)
{
    m_asksBeforeClosing = false;
    if (code == AlertAnswer::Default && !document()->isEdited()) {
        changesEnded(true); // sent while the question stood
    } else if (code == AlertAnswer::Default) {
        m_closesWhenSaved = true;
        if (!m_isSending)
            save();
    } else {
        m_givesUpChanges = code == AlertAnswer::Alternate;
        changesEnded(m_givesUpChanges);
    }
}

void DocumentWindow::shutDown()
{
    m_closing = true;
    storePlace();
    if (m_workbench) {
        QVAlert::closeAlertsForParent(m_interface->alertParent());
        m_workbench->document().mainThread()->close();
    }
    hide();
    Q_EMIT closed();
    NestedEvents::whenUnwound(this, [this] { deleteLater(); });
}

} // namespace vantrell
