#include "cli/ProjectSession.h"

#include "cli/Console.h"

#include <vector>

namespace vantrell::cli
{

namespace
{

/// Those of all sessions, which end with the process: this list keeps leak checkers from reporting them.
std::vector<Workbench *> &workbenches()
{
    static auto &all = *new std::vector<Workbench *>;
    return all;
}

} // namespace

ProjectSession::ProjectSession(Workbench::Inventories inventories)
    : m_workbench(new Workbench(*this, inventories))
{
    workbenches().push_back(m_workbench.get());
    QObject::connect(&document(), &MyDocument::loadFinished, &m_loop,
                     [this](bool loaded, const QString &message, const QString &notice) {
                         loadEnded(loaded, message, notice);
                     });
    QObject::connect(&document(), &MyDocument::inventoriesFinished, &m_loop, [this] { inventoriesEnded(); });
}

ProjectSession::~ProjectSession()
{
    m_workbench->document().close();
    static_cast<void>(m_workbench.release());
}

void ProjectSession::setOwnOwners(bool own)
{
    m_comparesOwners = !own;
    m_workbench->markerInventory().setOwnerListing(own ? OwnerListing::Own : OwnerListing::ByPosition);
}

bool ProjectSession::open(const QString &path, const QString &typeName)
{
    if (!m_workbench->open(path, typeName)) {
        complain(QStringLiteral("The file \"%1\" is of no type that can be opened.").arg(path));
        return false;
    }
    if (!m_ended)
        m_loop.exec();
    return m_loaded;
}

void ProjectSession::loadEnded(bool loaded, const QString &message, const QString &notice)
{
    m_loaded = loaded;
    if (!notice.isEmpty())
        complain(notice);
    if (loaded)
        return;
    if (!message.isEmpty())
        complain(message);
    m_ended = true;
    m_loop.quit();
}

void ProjectSession::inventoriesEnded()
{
    m_ended = true;
    m_loop.quit(); // whatever goes wrong now
    if (document().isIncomplete()) {
        complain(incompleteLists);
        m_loaded = false;
    }
    QString told;
    if (m_comparesOwners)
        told = m_workbench->markerInventory().listedUnderOthersText();
    if (!told.isEmpty())
        complain(told + QStringLiteral("; --own-owners lists each under its own."));
}

bool writeProject(MyDocument &document, const QString &path)
{
    const auto write = [&]() -> Result<void> {
        if (path != QLatin1String("-"))
            return document.writeToURL(QUrl::fromLocalFile(path), DocumentType::finalCutProXMLFile);
        if (!document.xmlDoc())
            return Failure{QStringLiteral("There is no project to write.")};
        return writeOutput(path, [&](QIODevice &output) { return document.xmlDoc()->write(output); });
    };
    const Result<void> written = write();
    if (!written)
        complain(written.message());
    return written.isOk();
}

} // namespace vantrell::cli
