// The saving side of MyDocument.

#include "document/MyDocument.h"

#include "support/QVAlert.h"

#include <QFileInfo>

#include <system_error>

namespace vantrell
{

namespace
{

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
    return mayWrite ? noteSaved(m_xmlDoc->save(url.toLocalFile())) : mayWrite;
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
    m_isSaving = true;
    m_savingCancelled = false;
    const auto write = [this, path = url.toLocalFile(), done = std::move(done)] {
        const Result<void> saved = m_xmlDoc->save(path, &m_savingCancelled);
        const bool isCancelled = !saved && m_savingCancelled;
        m_mainThread->post([this, done, outcome = isCancelled ? Failure{SaveFailure::cancelled} : saved] {
            if (m_saver.joinable())
                m_saver.join();
            m_isSaving = false;
            done(noteSaved(outcome));
        });
    };
    try {
        m_saver = std::thread(write);
    } catch (const std::system_error &) {
        write(); // no thread to be had
    }
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
    if (!m_xmlDoc)
        return Failure{QStringLiteral("There is no project to save.")};
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

bool MyDocument::confirmSavingRepaired(const QString &path)
{
    if (!m_xmlDoc->wasRepaired() || m_fileIsOurs)
        return true;
    const bool overItself = QFileInfo(path) == QFileInfo(m_fileURL.toLocalFile());
    if (!overItself || !QFileInfo::exists(path))
        return true;
    const int answer = QVAlert::alertSheetWithMessageText(
        QStringLiteral("This file was repaired when it was opened"), QStringLiteral("Save"),
        QStringLiteral("Cancel"), QString(),
        QStringLiteral("Saving replaces the damaged file with the repaired project. Do you want to save it?"),
        m_interface.alertParent(), true);
    return answer == AlertAnswer::Default;
}

} // namespace vantrell
