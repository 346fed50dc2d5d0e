#pragma once

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
#include <vector>

namespace vantrell
{

/// A project of the host: an xmeml file and, while the project is open, its text, unchanged down to the
/// comments. Any thread; operations on one project are serialised, and fail while it is not open.
class HostProject
{
public:
    /// A closed project. The path is made absolute.
    explicit HostProject(const QString &path);
    HostProject(const HostProject &) = delete;
    HostProject &operator=(const HostProject &) = delete;
    /// Waits for a running save; a failed one is repeated.
    ~HostProject();

    const QString &path() const { return m_path; }
    /// Never blocks: false while the file is still being read.
    bool isOpen() const { return m_isOpen; }

    /// Reads the file unless the project is open. Fails unless it is well-formed xmeml.
    Result<void> open();
    /// Opens an empty project named after the file, which is not touched.
    Result<void> openEmpty(std::int64_t xmemlVersion);
    /// Closes the project if it is open. If \a savesTo is not empty, the project is first saved there, unless
    /// that is its own existing file; it stays open if that fails.
    Result<void> close(const QString &savesTo = QString());

    /// The whole project in UTF-8.
    Result<QByteArray> xml();
    /// The item with that UUID or id as an xmeml document in UTF-8.
    Result<QByteArray> itemXml(const QString &identifier);
    /// The bins and sequences as an xmeml document in UTF-8.
    Result<QByteArray> tableOfContents();
    /// The name of the item with that UUID or id.
    Result<QString> itemName(const QString &identifier);

    /// Appends the items to the project and saves its file, reporting both on standard error. A project of
    /// more than 50 MB is saved in the background. If saving fails before the function returns, the import is
    /// undone and the result is a failure; a background save that fails is repeated by the next import, save
    /// or close and by the destructor.
    Result<void> add(const ImportedXml &imported);
    /// Writes the project to that file atomically.
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

/// The projects of the host, open or closed, in the order in which they were added. Any thread; only open()
/// waits for an operation on a project.
class HostProjects
{
public:
    /// New projects are created beside the first known one, or in \a folder without one.
    explicit HostProjects(const QString &folder)
        : m_folder(folder)
    {
    }

    /// Adds a project, closed, unless it is known.
    void add(const QString &path) { at(path); }
    /// Opens the project of that file, adding it if necessary. Blocks until it is open.
    Result<void> open(const QString &path) { return at(path)->open(); }
    /// The open project of that file; null without one.
    std::shared_ptr<HostProject> openAt(const QString &path) const;
    std::vector<std::shared_ptr<HostProject>> allOpen() const;

    /// Creates an empty open project "Vantrell.xml", "Vantrell 2.xml" and so on, and its file, still empty.
    Result<std::shared_ptr<HostProject>> makeNew(std::int64_t xmemlVersion);
    /// Removes a new project whose import failed, and its file.
    void discard(const std::shared_ptr<HostProject> &project);

private:
    std::shared_ptr<HostProject> at(const QString &path);
    std::shared_ptr<HostProject> find(const QString &path) const; // with the mutex held

    const QString m_folder;
    mutable std::mutex m_mutex; // guards the list
    std::vector<std::shared_ptr<HostProject>> m_projects;
};

} // namespace vantrell
