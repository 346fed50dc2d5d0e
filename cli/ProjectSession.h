#pragma once

#include "document/HeadlessDocumentInterface.h"
#include "workbench/Workbench.h"

#include <QEventLoop>
#include <QString>

#include <memory>

namespace vantrell::cli
{

/// What --own-owners does, for the help of the commands that have it.
inline constexpr char ownOwnersHelp[] =
    "List each marker under its own sequence and clip, not under those that share their position";

/// One project opened for a command. Main thread.
class ProjectSession : private HeadlessDocumentInterface
{
public:
    explicit ProjectSession(Workbench::Inventories inventories);
    /// Ends what runs for the project and leaves its memory to the end of the process, which is near:
    /// taking a large project apart would only cost time.
    ~ProjectSession() override;

    /// To be called before open(): lists each marker under its own sequence and clip, or, by position, says
    /// on standard error when that would make a difference.
    void setOwnOwners(bool own);

    /// Loads the file and waits for it, inventories included. False, with a message on standard error,
    /// when there is no project then; a file that had to be repaired is opened with a message.
    bool open(const QString &path);
    /// The same as a document of that type, whatever the file's name.
    bool open(const QString &path, const QString &typeName);

    Workbench &workbench() { return *m_workbench; }
    MyDocument &document() { return m_workbench->document(); }

    using HeadlessDocumentInterface::selectRows;

private:
    void loadEnded(bool loaded, const QString &message, const QString &notice);
    void inventoriesEnded();
    void tellOwners();

    QEventLoop m_loop;
    bool m_loaded = false;
    bool m_ended = false;
    bool m_comparesOwners = false;
    std::unique_ptr<Workbench> m_workbench;
};

} // namespace vantrell::cli
