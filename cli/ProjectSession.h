#pragma once

#include "document/HeadlessDocumentInterface.h"
#include "document/MyDocument.h"
#include "workbench/Workbench.h"

#include <QEventLoop>
#include <QString>

#include <memory>

namespace vantrell::cli
{

/// The help text of --own-owners.
inline constexpr char ownOwnersHelp[] =
    "List each marker under its own sequence and clip, not under those that share their position";

/// One project opened for a command. Main thread.
class ProjectSession : private HeadlessDocumentInterface
{
public:
    explicit ProjectSession(Workbench::Inventories inventories);
    /// Ends background work. The memory is left to the end of the process: freeing a large project would only
    /// cost time.
    ~ProjectSession() override;

    /// To be called before open(). On: lists each marker under its own sequence and clip. Off: by position,
    /// with a message on standard error when that makes a difference.
    void setOwnOwners(bool own);

    /// Loads the file and waits for the inventories. False, after a message on standard error, when that
    /// fails; a repaired file is opened with a message.
    bool open(const QString &path) { return open(path, Workbench::typeNameForPath(path)); }
    /// The same as a document of that type, whatever the file's name.
    bool open(const QString &path, const QString &typeName);

    Workbench &workbench() { return *m_workbench; }
    MyDocument &document() { return m_workbench->document(); }

    using HeadlessDocumentInterface::selectRows;

private:
    void loadEnded(bool loaded, const QString &message, const QString &notice);
    void inventoriesEnded();

    QEventLoop m_loop;
    bool m_loaded = false;
    bool m_ended = false;
    bool m_comparesOwners = false;
    std::unique_ptr<Workbench> m_workbench;
};

/// Writes the project as plain XML, atomically; "-" is standard output. False, after a message on standard
/// error, when writing fails or a question about it was refused.
bool writeProject(MyDocument &document, const QString &path);

} // namespace vantrell::cli
