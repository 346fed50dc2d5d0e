// The saving side of MyDocument.

#include "document/MyDocument.h"

#include "support/QVAlert.h"
#include "support/QVException.h"

#include <QFileInfo>

#include <memory>
#include <system_error>
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
    Result<void> outcome = Failure{notWritten};
    guarded("-[MyDocument writeToURL:ofType:error:]", [&] { outcome = m_xmlDoc->save(url.toLocalFile()); });
    return noteSaved(std::move(outcome));
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
    const auto write = [this, outcome, path = url.toLocalFile()] {
        *outcome = m_xmlDoc->save(path, &m_savingCancelled);
    };
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
    m_isSaving = true;
    const auto run = [this, work = std::move(work), done = std::move(done)] {
        guarded("MyDocument::runInBackground", work);
        m_mainThread->post([this, done] {
            if (m_saver.joinable())
                m_saver.join();
            m_isSaving = false;
            done();
        });
    };
    try {
        m_saver = std::thread(run);
    } catch (const std::system_error &) {
        run(); // no thread to be had
    }
    return true;
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
    QString question =
        QStringLiteral("Saving replaces the damaged file with the repaired project. Do you want to save it?");
    if (!m_xmlDoc->loss().isEmpty())
        question.prepend(m_xmlDoc->loss() + QLatin1Char(' '));
    const int answer = QVAlert::alertSheetWithMessageText(
        QStringLiteral("This file was repaired when it was opened"), QStringLiteral("Save"),
        QStringLiteral("Cancel"), QString(), question, m_interface.alertParent(), true);
    return answer == AlertAnswer::Default;
}

} // namespace vantrell
