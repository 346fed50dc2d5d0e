#pragma once

#include "bridge/host/ImportedXml.h"
#include "support/Result.h"
#include "xml/XmlDocument.h"

#include <QByteArray>
#include <QString>

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>

namespace vantrell
{

/// A project that the host knows: an xmeml file and, while the project is open, its tree, which is kept as
/// it is, comments and all. Any thread; operations on one project wait for one another. Each fails while
/// the project is not open.
class HostProject
{
public:
    /// A closed project. The path is made absolute.
    explicit HostProject(const QString &path);
    HostProject(const HostProject &) = delete;
    HostProject &operator=(const HostProject &) = delete;

    const QString &path() const { return m_path; }
    /// Never waits: false while the file is still being read.
    bool isOpen() const { return m_isOpen; }

    /// Reads the file, unless the project is open. Only a well-formed xmeml is opened.
    Result<void> open();
    /// Opens an empty project that bears the file's name. The file is left as it is.
    void openEmpty(std::int64_t xmemlVersion);
    /// Closes it; nothing happens to one that is closed. With \a savesTo a path, it is saved there first
    /// unless that is its own file and is there; a project that cannot be saved stays open.
    Result<void> close(const QString &savesTo = QString());

    /// The whole project in UTF-8. Fails once `cancelled` is set (null for never).
    Result<QByteArray> xml(const std::atomic<bool> *cancelled = nullptr) const;
    /// The item with that UUID or id as an xmeml of its own, in UTF-8.
    Result<QByteArray> itemXml(const QString &identifier) const;
    /// The bins and sequences as an xmeml, in UTF-8.
    Result<QByteArray> tableOfContents() const;
    /// The name of the item with that UUID or id.
    Result<QString> itemName(const QString &identifier) const;

    /// Adds copies of the items at the end of the project and saves its file; when that fails, the project
    /// is left as it was.
    Result<void> add(const ImportedXml &imported);
    /// Writes the project to that file, whole or not at all.
    Result<void> save(const QString &path) const;

private:
    Failure notOpen() const;
    Result<XmlNode> item(const QString &identifier) const; // with the mutex held

    const QString m_path;
    std::atomic<bool> m_isOpen = false;
    mutable std::mutex m_mutex; // guards the document, and its use by the XML library
    std::unique_ptr<XmlDocument> m_document;
};

} // namespace vantrell
