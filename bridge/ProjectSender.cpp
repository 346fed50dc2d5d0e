#include "bridge/ProjectSender.h"

#include "bridge/EscapedXmlBuffer.h"
#include "bridge/EventCancel.h"
#include "bridge/OutputDocument.h"
#include "bridge/QVAppleEvents.h"
#include "bridge/QVPremiereEvents.h"
#include "support/files/FileUtilities.h"
#include "support/files/TransientFile.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"

#include <QFileInfo>

#include <system_error>

namespace vantrell
{

ProjectSender::ProjectSender(MyDocument &document)
    : m_document(document)
    , m_cancel(std::make_unique<EventCancel>())
{
}

ProjectSender::~ProjectSender()
{
    close();
}

void ProjectSender::close()
{
    m_isClosed = true;
    m_cancel->cancel();
    if (!m_document.mainThread()->isClosed())
        m_document.mainThread()->close(); // or joining could wait for ever
    if (m_thread.joinable())
        m_thread.join();
}

bool ProjectSender::start(std::function<void(Outcome)> ended)
{
    if (m_isSending || m_document.isSaving())
        return false;
    m_isSending = true;
    const auto run = [this, ended = std::move(ended)] {
        const Outcome outcome = sendToFCP();
        m_document.mainThread()->post([this, ended, outcome] {
            if (m_thread.joinable())
                m_thread.join();
            m_isSending = false;
            if (ended)
                ended(outcome);
        });
    };
    try {
        m_thread = std::thread(run);
    } catch (const std::system_error &) {
        run(); // no thread available
    }
    return true;
}

ProjectSender::Outcome ProjectSender::sendToFCP()
{
    Outcome outcome = Outcome::Failed;
    if (!guarded("-[MyDocument sendToFCP]", [&] { outcome = send(); }))
        end(MyDocument::SendResult::Failed);
    return outcome;
}

ProjectSender::Outcome ProjectSender::send()
{
    bool toPremiere = false;
    bool isChanged = false;
    QString path;
    bool isFirst = false;
    m_document.mainThread()->runAndWait([&] {
        isFirst = !m_document.isSending();
        toPremiere = m_document.isPremiereProject();
        isChanged = !m_document.modifiedSequenceUUIDs().value_or(QStringList()).isEmpty();
        path = QFileInfo(m_document.fileURL().toLocalFile()).absoluteFilePath();
    });
    if (!isFirst)
        return Outcome::Closed;
    return toPremiere ? sendToPremierePro(path) : sendToFinalCutPro(path, isChanged);
}

ProjectSender::Outcome ProjectSender::sendToFinalCutPro(const QString &path, bool isChanged)
{
    const QString label = QStringLiteral("Sending to Final Cut Pro...");
    QVLog::appendLog(u"%@", label);
    if (!isChanged) {
        m_document.showAlert(QStringLiteral("No changes to send to Final Cut Pro"),
                             QStringLiteral("Vantrell only sends modified sequences to Final Cut Pro and no "
                                            "sequences have been changed yet."));
        return Outcome::NothingToSend;
    }
    const std::optional<QStringList> modifiedUUIDs = begin(label);
    if (!modifiedUUIDs)
        return Outcome::Closed;
    QByteArray xml = outputDocument(*modifiedUUIDs);
    const bool isSent = !xml.isNull() && QVAppleEvents::sendEscapedXMLToFCP(std::move(xml), path, *m_cancel);
    if (m_isClosed)
        return Outcome::Closed;
    end(isSent ? MyDocument::SendResult::SequencesSent : MyDocument::SendResult::Failed);
    if (isSent) {
        m_document.showAlert(
            QStringLiteral("Changes successfully sent to Final Cut Pro"),
            QStringLiteral("Sequences have been duplicated and placed inside the Vantrell bin."));
    } else {
        m_document.showAlert(QStringLiteral("Unable to send to Final Cut Pro"),
                             QStringLiteral("An error occurred while sending data."));
    }
    return isSent ? Outcome::Sent : Outcome::Failed;
}

ProjectSender::Outcome ProjectSender::sendToPremierePro(const QString &path)
{
    const QString label = QStringLiteral("Sending to Premiere Pro...");
    QVLog::appendLog(u"%@", label);
    if (!begin(label))
        return Outcome::Closed;
    const Result<TransientFile> file = writeProject(path);
    if (m_isClosed)
        return Outcome::Closed;
    if (!file) {
        end(MyDocument::SendResult::Failed);
        QVLog::appendLog(u"Error sending data: %@", file.message());
        m_document.showAlert(QStringLiteral("Unable to send to Premiere Pro"),
                             QStringLiteral("An error occurred while sending data."));
        return Outcome::Failed;
    }
    QVPremiereEvents::openFCPXML(file.value().path(), true, *m_cancel);
    if (m_cancel->waitFor(QVPremiereEvents::waits().opened))
        return Outcome::Closed;
    end(MyDocument::SendResult::ProjectSent);
    m_document.showAlert(QStringLiteral("Project successfully sent to Premiere Pro"),
                         QStringLiteral("A duplicate project has been created."));
    return Outcome::Sent;
}

/// The output document, escaped for Final Cut Pro; null when it could not be made.
QByteArray ProjectSender::outputDocument(const QStringList &modifiedUUIDs)
{
    EscapedXmlBuffer xml;
    const Result<void> written = OutputDocument(m_document).write(modifiedUUIDs, xml, &m_isClosed);
    m_document.mainThread()->runAndWait([this] { m_document.endReadingToSend(); });
    if (written)
        return xml.take();
    QVLog::appendLog(u"%@", written.message());
    return QByteArray();
}

/// Writes the whole project to a file beside the document's.
Result<TransientFile> ProjectSender::writeProject(const QString &path)
{
    const auto write = [&]() -> Result<TransientFile> {
        const XmlDocument *const tree = m_document.xmlDoc();
        if (!tree)
            return Failure{QStringLiteral("There is no project to send.")};
        Result<TransientFile> file =
            TransientFile::make(FileUtilities::deletingPathExtension(path) + QStringLiteral("-Vantrell.xml"));
        if (!file)
            return file;
        const Result<void> saved = tree->save(file.value().path(), &m_isClosed, XmlDocument::Layout::Compact);
        if (!saved)
            return saved.failure();
        return file;
    };
    Result<TransientFile> file = write();
    m_document.mainThread()->runAndWait([this] { m_document.endReadingToSend(); });
    return file;
}

/// Shows the progress sheet, locks the tree against edits and returns the changed sequences. Nothing once the
/// document has been closed.
std::optional<QStringList> ProjectSender::begin(const QString &label)
{
    m_document.startProgress();
    m_document.updateProgressLabel(label);
    std::optional<QStringList> modifiedUUIDs;
    m_document.mainThread()->runAndWait([&] {
        modifiedUUIDs = m_document.modifiedSequenceUUIDs().value_or(QStringList());
        m_document.beginSending();
    });
    return modifiedUUIDs;
}

void ProjectSender::end(MyDocument::SendResult result)
{
    m_document.mainThread()->runAndWait([&] { m_document.endSending(result); });
    m_document.endProgress();
}

} // namespace vantrell
