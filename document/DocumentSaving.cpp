// The saving side of MyDocument.

#include "document/MyDocument.h"

#include "document/DocumentJournal.h"
#include "support/alerts/QVAlert.h"
#include "support/files/FileUtilities.h"
#include "support/log/QVException.h"
#include "support/threads/Persistently.h"
#include "xml/XmlElementOrder.h"

#include <QFileInfo>
#include <QPointer>

#include <exception>
#include <memory>
#include <utility>

namespace vantrell
{

namespace
{

const QString notWritten = QStringLiteral("The project could not be written.");
const QString alreadySaving = QStringLiteral("The project is being saved already.");
const Failure sentInstead{QStringLiteral("The project is sent to Final Cut Pro instead of being saved.")};

} // namespace

Result<void> MyDocument::writeToURL(const QUrl &url, const QString &typeName)
{
    if (typeName == DocumentType::finalCutProProject) {
        const Result<void> started = startSending({});
        return started ? sentInstead : started;
    }
    const Result<void> mayWrite = prepareSaving(url);
    if (!mayWrite)
        return mayWrite;
    m_savingCancelled = false;
    const QString path = url.toLocalFile();
    Result<void> saved = tryWriting(path);
    while (!saved && saved.message() == SaveFailure::changedElsewhere && confirmOverwriting(path)) {
        overwriteChangedFile();
        saved = tryWriting(path);
    }
    return noteSaved(saved);
}

void MyDocument::writeInBackground(const QUrl &url, const QString &typeName,
                                   std::function<void(const Result<void> &)> done)
{
    const bool isSent = typeName == DocumentType::finalCutProProject;
    const Result<void> started = isSent ? startSending([done] { done(sentInstead); }) : prepareSaving(url);
    if (!started)
        done(started);
    if (!started || isSent)
        return;
    m_savingCancelled = false;
    const auto outcome = std::make_shared<Result<void>>(Failure{notWritten});
    const auto write = [this, outcome, path = url.toLocalFile()] { *outcome = writeFile(path); };
    const auto ended = [this, outcome, done = std::move(done)] {
        if (!*outcome && m_savingCancelled)
            *outcome = Failure{SaveFailure::cancelled};
        done(noteSaved(*outcome));
    };
    runInBackground(write, ended);
}

bool MyDocument::runInBackground(std::function<void()> work, std::function<void()> done)
{
    if (isSaving())
        return false;
    const auto end = [this, done = std::move(done)] {
        if (m_saver.joinable())
            m_saver.join();
        m_isSaving = false;
        const QPointer<MyDocument> document(this);
        done();
        if (document)
            Q_EMIT editingAllowedChanged();
    };
    const auto run = [this, work = std::move(work), end] {
        guarded("MyDocument::runInBackground", work);
        persistently("MyDocument::runInBackground", [&] { m_mainThread->post(end); });
    };
    m_isSaving = true;
    Q_EMIT editingAllowedChanged();
    try {
        m_saver = std::thread(run);
    } catch (const std::exception &) {
        run(); // no thread to be had
    }
    return true;
}

/// As writeFile(), but an exception is a failure too.
Result<void> MyDocument::tryWriting(const QString &path)
{
    Result<void> outcome = Failure{notWritten};
    guarded("MyDocument::tryWriting", [&] { outcome = writeFile(path); });
    return outcome;
}

/// On the thread that saves.
Result<void> MyDocument::writeFile(const QString &path)
{
    std::optional<FileStamp> written;
    const auto write = [this](QIODevice &device) { return m_xmlDoc->write(device, &m_savingCancelled); };
    const auto mayReplace = [&](int descriptor) -> Result<void> {
        if (m_savingCancelled)
            return Failure{SaveFailure::cancelled};
        if (isChangedElsewhere(path))
            return Failure{SaveFailure::changedElsewhere};
        written = FileStamp::ofDescriptor(descriptor);
        if (m_journal && written && m_knownFile->isAt(path))
            m_journal->willReplaceFile(*written);
        return {};
    };
    if (isChangedElsewhere(path)) // or all would be written in vain
        return Failure{SaveFailure::changedElsewhere};
    const Result<void> saved = FileUtilities::writeAtomically(path, write, mayReplace);
    if (!saved)
        return saved;
    m_written = {path, written, nullptr};
    if (m_journal)
        guarded("MyDocument::writeFile", [this] { m_written.order = XmlElementOrder::of(*m_xmlDoc); });
    if (m_knownFile->isAt(path))
        m_knownFile->note(path, written);
    return saved;
}

/// On the thread that saves.
bool MyDocument::isChangedElsewhere(const QString &path)
{
    m_changed = {};
    for (const std::shared_ptr<KnownFile> &file : {m_knownFile, m_replacedFile}) {
        if (!m_changed.stamp && file)
            m_changed = {file, file->changeAt(path)};
    }
    return m_changed.stamp.has_value();
}

void MyDocument::overwriteChangedFile()
{
    if (m_changed.stamp)
        m_changed.file->accept(*m_changed.stamp);
}

/// Starts sending the document in place of saving it; a failure says why not.
Result<void> MyDocument::startSending(std::function<void()> ended)
{
    if (isSaving())
        return Failure{alreadySaving};
    if (!m_services.sendToFCP)
        return sentInstead;
    if (!m_services.sendToFCP(*this, std::move(ended)))
        return Failure{QStringLiteral("The project is being sent already.")};
    return {};
}

Result<void> MyDocument::prepareSaving(const QUrl &url)
{
    if (isSaving())
        return Failure{alreadySaving};
    if (!m_xmlDoc) {
        const QString reason = m_loadFailure.isEmpty() ? QString() : QLatin1Char(' ') + m_loadFailure;
        return Failure{QStringLiteral("There is no project to save.") + reason};
    }
    if (!confirmSavingRepaired(url.toLocalFile()))
        return Failure{SaveFailure::notOverwritten};
    if (isSaving()) // since the question was raised
        return Failure{alreadySaving};
    return {};
}

Result<void> MyDocument::noteSaved(Result<void> saved)
{
    if (saved) {
        m_isFCPProject = false;
        m_isPremiereProject = false;
    }
    return saved;
}

bool MyDocument::refusesWhileSaving(const QString &alertTitle)
{
    if (!isSaving())
        return false;
    showAlert(alertTitle,
              QStringLiteral("The project is being saved or sent and was left as it is. Please try "
                             "again when that is over."));
    return true;
}

Result<void> MyDocument::confirmReplacing(const MyDocument &other, const QString &path)
{
    m_replacedFile = other.m_knownFile;
    return other.confirmSavingRepaired(path) ? Result<void>() : Failure{SaveFailure::notOverwritten};
}

bool MyDocument::confirmSavingRepaired(const QString &path) const
{
    const bool isDamaged = !m_damagedFile.isNull() && QFileInfo(path) == QFileInfo(m_damagedFile);
    if (!isDamaged || !QFileInfo::exists(path))
        return true;
    QString question =
        QStringLiteral("Saving replaces the damaged file with the repaired project. Do you want to save it?");
    if (!m_xmlDoc->loss().isEmpty())
        question.prepend(m_xmlDoc->loss() + QLatin1Char(' '));
    const int answer = QVAlert::alertSheetWithMessageText(
        QStringLiteral("This file was repaired when it was opened"), QStringLiteral("Cancel"),
        QStringLiteral("Save"), QString(), question, m_interface.alertParent(), true);
    return answer == AlertAnswer::Alternate;
}

bool MyDocument::confirmOverwriting(const QString &path)
{
    const int answer = QVAlert::alertSheetWithMessageText(
        QStringLiteral("The file \"%1\" was changed by another program since it was opened").arg(path),
        QStringLiteral("Cancel"), QStringLiteral("Overwrite"), QString(),
        QStringLiteral(
            "Overwriting the file loses what the other program saved. Do you want to overwrite it?"),
        m_interface.alertParent(), true);
    return answer == AlertAnswer::Alternate;
}

} // namespace vantrell
