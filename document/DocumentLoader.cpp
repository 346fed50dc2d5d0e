// The loading side of MyDocument: what runs on the loader and the inventory threads.

#include "document/MyDocument.h"

#include "document/DocumentJournal.h"
#include "support/desktop/Workspace.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"
#include "support/threads/Persistently.h"
#include "xml/XmlQuery.h"
#include "xml/XmlReferences.h"

#include <exception>

namespace vantrell
{

namespace
{

/// Why nothing of a project can be found under that root; empty for a project's.
QString whyNoProject(XmlNode root)
{
    const QString xmeml = QStringLiteral("xmeml");
    const XmlNode content = root.firstChildElement();
    if (root.name() == xmeml && root.namespaceUri().isNull() && content && !content.namespaceUri().isNull()) {
        return QStringLiteral(
                   "its element \"%1\" is in the namespace \"%2\", while those of a project are in none")
            .arg(content.name(), content.namespaceUri());
    }
    if (root.name().section(QLatin1Char(':'), -1) == xmeml && !root.namespaceUri().isNull()) {
        return QStringLiteral(
                   "its root element \"%1\" is in the namespace \"%2\", while those of a project are "
                   "in none")
            .arg(root.name(), root.namespaceUri());
    }
    if (root.name() != xmeml)
        return QStringLiteral("its root element is \"%1\" instead of \"xmeml\"").arg(root.name());
    return QString();
}

} // namespace

bool MyDocument::readFromURL(const QUrl &url, const QString &typeName)
{
    QVLog::appendLog(u"type name: %@", typeName);
    const bool known = typeName == DocumentType::finalCutProProject ||
                       typeName == DocumentType::finalCutProXMLFile || typeName == DocumentType::publicXML;
    if (!known) {
        QVLog::appendLogAndPrint(u"Error loading document: wrong type");
        return false;
    }
    m_fileURL = url;
    m_loadIsReported = false;
    const auto load = [this, typeName, url] {
        const bool ended = guarded("-[MyDocument loadProjectWithSettings:]",
                                   [&] { loadProjectWithSettings(typeName, url); });
        if (!ended)
            failLoading(QStringLiteral("An internal error ended the loading; the log tells more."));
    };
    try {
        m_loader = std::thread(load);
    } catch (const std::exception &) {
        const bool isQueued = guarded("MyDocument::readFromURL", [&] {
            QVLog::appendLog(u"There is no thread for loading; it holds up the program.");
            m_mainThread->post(load);
        });
        if (!isQueued)
            load();
    }
    return true;
}

void MyDocument::loadProjectWithSettings(const QString &typeName, const QUrl &url)
{
    for (const Tab tab : {Tab::Media, Tab::Effects, Tab::Markers})
        setPopulating(tab, true);
    if (!loadTree(typeName, url))
        return;
    if (m_journal)
        m_journal->projectLoaded({url.toLocalFile(), typeName, m_knownFile}, *m_xmlDoc);
    static const XmlQuery sequence(QStringLiteral("./xmeml[1]/sequence[1]"));
    m_xmlType = sequence.first(xmlNode()) ? 1 : 0;
    if (m_xmlType == 1)
        QVLog::appendLog(u"XML type: sequence");
    else
        QVLog::appendLog(u"XML type: project");
    populateSequences();
    QString notice;
    if (m_xmlDoc->wasRepaired() || !m_xmlDoc->loss().isEmpty()) {
        m_damagedFile = url.toLocalFile();
        notice = m_xmlDoc->wasRepaired()
                     ? QStringLiteral("The file \"%1\" is damaged and was repaired while it was opened (%2).")
                           .arg(url.toLocalFile(), m_xmlDoc->firstFault())
                     : QStringLiteral("The file \"%1\" was not read whole.").arg(url.toLocalFile());
        if (!m_xmlDoc->loss().isEmpty())
            notice += QLatin1Char(' ') + m_xmlDoc->loss();
        QVLog::appendLog(u"%@", notice);
    }
    const QString reason = whyNoProject(m_xmlDoc->rootElement());
    if (!reason.isEmpty()) {
        notice += notice.isEmpty() ? QString() : QStringLiteral("\n");
        notice += QStringLiteral("The file \"%1\" is no editing project: %2. Nothing in it can be shown.")
                      .arg(url.toLocalFile(), reason);
    }
    reportLoad(true, QString(), notice);
    runInventories();
}

bool MyDocument::loadTree(const QString &typeName, const QUrl &url)
{
    const bool isProject = typeName == DocumentType::finalCutProProject;
    std::optional<QByteArray> data;
    if (isProject) {
        if (Workspace::applicationPathForBundleIdentifier(QStringLiteral("com.apple.FinalCutPro"))
                .isEmpty()) {
            showAlert(QStringLiteral("Unable to load project"),
                      QStringLiteral("Final Cut Pro 7 is not installed on this system."));
            failLoading(QString());
            return false;
        }
        if (m_services.projectXMLData)
            data = m_services.projectXMLData(url.toLocalFile());
        if (!data) {
            failLoading(LoadFailure::noProject);
            return false;
        }
    }
    m_isFCPProject = isProject;
    m_isPremiereProject = false;
    // Before it is read: what changes meanwhile has changed.
    if (!isProject)
        m_knownFile->note(url.toLocalFile(), FileStamp::ofPath(url.toLocalFile()));
    // A character beyond the basic plane comes as two references.
    Result<std::unique_ptr<XmlDocument>> parsed =
        isProject
            ? XmlDocument::fromData(XmlReferences::joinedSurrogates(*std::move(data)), {false, &m_closing})
            : XmlDocument::fromFile(url.toLocalFile(), {true, &m_closing});
    if (!parsed) {
        if (!isClosing())
            QVLog::appendLogAndPrint(u"Error loading document: %@", parsed.message());
        m_xmlDoc.reset();
        failLoading(parsed.message());
        return false;
    }
    m_xmlDoc = std::move(parsed.value());
    return true;
}

void MyDocument::failLoading(const QString &message)
{
    reportLoad(false, message, QString());
}

/// Tells the outcome, once for each load.
void MyDocument::reportLoad(bool loaded, const QString &message, const QString &notice)
{
    const auto report = [&] {
        if (m_loadIsReported.exchange(true))
            return;
        if (!loaded)
            m_loadFailure = message.isNull() ? QStringLiteral("") : message;
        else
            adoptRestored();
        // The queue goes on after an exception; the window would wait for ever.
        constexpr int attempts = 50;
        persistently(
            "MyDocument::reportLoad", [&] { Q_EMIT loadFinished(loaded, message, notice); }, attempts);
    };
    persistently("MyDocument::reportLoad", [&] { m_mainThread->runAndWait(report); });
}

/// Takes over what the loader has restored of a journal. On the main thread.
void MyDocument::adoptRestored()
{
    std::optional<DocumentJournal::Restored> restored;
    if (m_journal)
        restored = m_journal->takeRestored();
    if (!restored)
        return;
    m_history = std::move(restored->history);
    m_marks = std::move(restored->marks);
    m_lastGroup = restored->lastGroup;
    Q_EMIT historyChanged();
    Q_EMIT editedChanged(isEdited());
}

void MyDocument::runInventories()
{
    const auto reportEnd = [this] {
        persistently("MyDocument::runInventories",
                     [this] { m_mainThread->post([this] { Q_EMIT inventoriesFinished(); }); });
    };
    m_runningInventories = int(m_services.inventoryBuilders.size());
    if (m_runningInventories == 0) {
        for (const Tab tab : {Tab::Media, Tab::Effects, Tab::Markers})
            rowView(tab).setPopulating(false);
        reportEnd();
        return;
    }
    for (const auto &builder : m_services.inventoryBuilders) {
        const auto run = [this, &builder, reportEnd] {
            if (!isClosing() && !guarded("inventory", [&] { builder(*this); }))
                noteIncomplete();
            if (--m_runningInventories == 0)
                reportEnd();
        };
        try {
            m_inventories.emplace_back(run);
        } catch (const std::exception &) {
            run(); // no thread to be had
        }
    }
}

} // namespace vantrell
