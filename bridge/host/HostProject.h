#pragma once

#include "bridge/host/ImportedXml.h"
#include "bridge/host/ProjectText.h"
#include "support/files/Result.h"
#include "xml/XmlDocument.h"

#include <QByteArray>
#include <QString>

#include <atomic>
#include <cstdint>
#include <future>
#include <memory>
#include <mutex>

namespace vantrell
{

/// A project that the host knows: an xmeml file and, while the project is open, its text, which is kept as
/// it is, comments and all. Any thread; operations on one project wait for one another. Each fails while
/// the project is not open.
class HostProject
{
public:
    /// A closed project. The path is made absolute.
    explicit HostProject(const QString &path);
    HostProject(const HostProject &) = delete;
    HostProject &operator=(const HostProject &) = delete;
    /// Waits for a save that goes on; one that failed is tried once more.
    ~HostProject();

    const QString &path() const { return m_path; }
    /// Never waits: false while the file is still being read.
    bool isOpen() const { return m_isOpen; }

    /// Reads the file, unless the project is open. Only a well-formed xmeml is opened.
    Result<void> open();
    /// Opens an empty project that bears the file's name. The file is left as it is.
    Result<void> openEmpty(std::int64_t xmemlVersion);
    /// Closes it; nothing happens to one that is closed. With \a savesTo a path, it is saved there first
    /// unless that is its own file and is there; a project that cannot be saved stays open.
    Result<void> close(const QString &savesTo = QString());

    /// The whole project in UTF-8.
    Result<QByteArray> xml();
    /// The item with that UUID or id as an xmeml of its own, in UTF-8.
    Result<QByteArray> itemXml(const QString &identifier);
    /// The bins and sequences as an xmeml, in UTF-8.
    Result<QByteArray> tableOfContents();
    /// The name of the item with that UUID or id.
    Result<QString> itemName(const QString &identifier);

    /// Puts the items at the end of the project and saves its file; standard error tells both. Returns when
    /// that is done, and for a project of more than 50 MB before. A save that fails before the return undoes
    /// the import and is a failure; one that fails later is tried again with the next import, save or close
    /// and by the destructor.
    Result<void> add(const ImportedXml &imported);
    /// Writes the project to that file, whole or not at all.
    Result<void> save(const QString &path);

private:
    Failure notOpen() const;
    // With the mutex held:
    void set(ProjectText text);
    Result<XmlNode> root();
    Result<XmlNode> item(const QString &identifier);
    void startSaving();
    void finishSaving();

    const QString m_path;
    std::atomic<bool> m_isOpen = false;
    std::mutex m_mutex; // guards what follows
    ProjectText m_text;
    std::unique_ptr<XmlDocument> m_tree; ///< of the text; made when it is needed
    bool m_isSaved = true;               ///< the file holds what the text does
    std::future<Result<void>> m_saving;  ///< valid until finishSaving()
};

} // namespace vantrell
