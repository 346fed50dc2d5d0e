#include "cli/ProjectSession.h"

#include "cli/Console.h"

#include <vector>

namespace vantrell::cli
{

ProjectSession::ProjectSession(Workbench::Inventories inventories)
    : m_workbench(new Workbench(*this, inventories))
{
    QObject::connect(&document(), &MyDocument::loadFinished, &m_loop,
                     [this](bool loaded, const QString &message, const QString &notice) {
                         loadEnded(loaded, message, notice);
                     });
    QObject::connect(&document(), &MyDocument::inventoriesFinished, &m_loop, [this] { inventoriesEnded(); });
}

ProjectSession::~ProjectSession()
{
    static auto &left = *new std::vector<Workbench *>; // keeps leak checkers from reporting them
    m_workbench->document().close();
    left.push_back(m_workbench.release());
}

void ProjectSession::setOwnOwners(bool own)
{
    m_comparesOwners = !own;
    m_workbench->markerInventory().setOwnerListing(own ? OwnerListing::Own : OwnerListing::ByPosition);
}

bool ProjectSession::open(const QString &path)
{
    return open(path, Workbench::typeNameForPath(path));
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
    if (m_comparesOwners)
        tellOwners();
}

void ProjectSession::tellOwners()
{
    const QString told = m_workbench->markerInventory().listedUnderOthersText();
    if (!told.isEmpty())
        complain(told + QStringLiteral("; --own-owners lists each under its own."));
}

} // namespace vantrell::cli
