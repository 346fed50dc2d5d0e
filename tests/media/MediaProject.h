#pragma once

#include "media/MediaFilter.h"
#include "media/MediaInventory.h"
#include "media/MediaKeys.h"
#include "tests/support/ScriptedDocumentInterface.h"

#include <QFile>
#include <QTemporaryDir>

namespace vantrell
{

/// A document with its media inventory, and a folder for its file.
class MediaProject
{
public:
    MediaProject()
        : document(world, services())
    {
    }
    ~MediaProject() { document.close(); }

    /// Starts loading the project.
    void start(const QByteArray &xml)
    {
        QFile file(m_folder.filePath(QStringLiteral("project.xml")));
        if (file.open(QIODevice::WriteOnly))
            file.write(xml);
        file.close();
        document.readFromURL(QUrl::fromLocalFile(file.fileName()), DocumentType::publicXML);
    }

    /// Loads it; false when that did not end in a minute.
    bool load(const QByteArray &xml)
    {
        start(xml);
        return MainThread::drainUntil([this] { return world.ended; }, std::chrono::seconds(60));
    }

    QString label(Label label) const { return world.label(label); }

    ScriptedDocumentInterface world;
    MyDocument document;
    MediaFilter filter{document};
    MediaInventory inventory{document, filter};

private:
    MyDocument::Services services()
    {
        MyDocument::Services services;
        services.inventoryBuilders = {[this](MyDocument &) { inventory.populateMediaData(); }};
        return services;
    }

    QTemporaryDir m_folder;
};

/// A video or audio clip item that defines the file in full.
inline QByteArray clipItem(const QByteArray &id, const QByteArray &url)
{
    return "<clipitem><file id=\"" + id + "\"><pathurl>" + url + "</pathurl></file></clipitem>";
}

/// One that only refers to the file.
inline QByteArray clipItem(const QByteArray &id)
{
    return "<clipitem><file id=\"" + id + "\"/></clipitem>";
}

inline QByteArray sequence(const QByteArray &video, const QByteArray &audio = QByteArray())
{
    return "<sequence><media><video><track>" + video + "</track></video><audio><track>" + audio +
           "</track></audio></media></sequence>";
}

inline QByteArray project(const QByteArray &content)
{
    return "<xmeml><project><children>" + content + "</children></project></xmeml>";
}

} // namespace vantrell
