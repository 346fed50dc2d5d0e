// The saving and closing side of DocumentWindow.

#include "document/widgets/DocumentWindow.h"

#include "document/widgets/DocumentWindowInterface.h"
#include "document/widgets/NoticeBar.h"
#include "media/AnswerWithin.h"
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
    commitEditing();
    MyDocument *const loaded = document();
    if (!loaded || m_isBusy || m_isSending) {
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

void DocumentWindow::saveEnded(const QString &path, bool isSaved)
{
    MyDocument *const loaded = document();
    if (isSaved && loaded) {
        loaded->setFileURL(QUrl::fromLocalFile(path));
        loaded->clearChangeCount();
        m_notice->setNotice(QString());
        m_typeName = DocumentType::finalCutProXMLFile;
        setPath(path);
        Q_EMIT this->loaded(path);
    }
    Q_EMIT saved(isSaved);
    closeAfterSave(isSaved);
}

/// Closes the window when that is what the save was for.
void DocumentWindow::closeAfterSave(bool isSaved)
{
    if (!std::exchange(m_closesWhenSaved, false))
        return;
    if (isSaved)
        shutDown();
    else
        Q_EMIT closeCancelled();
}

void DocumentWindow::saveAs()
{
    commitEditing();
    if (!document() || m_isBusy)
        return;
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
        tr("Revert"), tr("Cancel"), QString(), tr("Your changes since it was last saved will be lost."),
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
        if (m_givesUpForClosing)
            cancelProgress();
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
    else if (code == AlertAnswer::Default)
        revertWithoutQuestion();
}

void DocumentWindow::closeQuestionEnded(int code)
{
    m_asksBeforeClosing = false;
    if (code == AlertAnswer::Default && !document()->isEdited()) {
        shutDown(); // sent while the question stood
    } else if (code == AlertAnswer::Default) {
        m_closesWhenSaved = true;
        if (!m_isSending)
            save();
    } else if (code == AlertAnswer::Alternate) {
        shutDown();
    } else {
        Q_EMIT closeCancelled();
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
