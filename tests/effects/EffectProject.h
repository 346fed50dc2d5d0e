#pragma once

#include "effects/EffectEditor.h"
#include "effects/EffectInventory.h"
#include "effects/EffectKeys.h"
#include "tests/support/ScriptedDocumentInterface.h"

#include <QFile>
#include <QTemporaryDir>

namespace vantrell
{

/// A document with its effect inventory and editor on the Effects tab, and a folder for its file.
class EffectProject
{
public:
    EffectProject()
        : document(world, services())
    {
        document.viewState().selectedTab = Tab::Effects;
        document.viewState().effectShowDefaults = true;
    }
    ~EffectProject() { document.close(); }

    /// Loads the project; false when that did not end in a minute.
    bool load(const QByteArray &xml)
    {
        QFile file(m_folder.filePath(QStringLiteral("project.xml")));
        if (file.open(QIODevice::WriteOnly))
            file.write(xml);
        file.close();
        document.readFromURL(QUrl::fromLocalFile(file.fileName()), DocumentType::publicXML);
        return MainThread::drainUntil([this] { return world.ended; }, std::chrono::seconds(60));
    }

    /// The names on show, joined by bars; "-" for an effect without one.
    QString shownNames() const
    {
        QStringList names;
        for (const RowRecordPtr &row : document.rowsOnShow(Tab::Effects))
            names.append(row->contains(EffectKey::name) ? row->get(EffectKey::name) : QStringLiteral("-"));
        return names.join(QLatin1Char('|'));
    }

    QString status() const { return world.label(Label::EffectStatus); }

    ScriptedDocumentInterface world;
    MyDocument document;
    EffectInventory inventory{document};
    EffectEditor editor{document, inventory};
    /// Further work on the inventories' threads.
    std::vector<std::function<void(MyDocument &)>> others;

private:
    MyDocument::Services services()
    {
        MyDocument::Services services;
        services.inventoryBuilders = {[this](MyDocument &) { inventory.populateEffectData(); },
                                      [this](MyDocument &loaded) {
                                          for (const auto &other : others)
                                              other(loaded);
                                      }};
        return services;
    }

    QTemporaryDir m_folder;
};

/// A filter with that content in its effect.
inline QByteArray filter(const QByteArray &effect, const QByteArray &rest = QByteArray())
{
    return "<filter>" + rest + "<effect>" + effect + "</effect></filter>";
}

inline QByteArray named(const QByteArray &name, const QByteArray &media = "video")
{
    return "<name>" + name + "</name><mediatype>" + media + "</mediatype>";
}

inline QByteArray project(const QByteArray &content)
{
    return "<xmeml><project><children>" + content + "</children></project></xmeml>";
}

/// A sequence with a name, a UUID and one video track.
inline QByteArray sequence(const QByteArray &name, const QByteArray &track)
{
    return "<sequence><name>" + name + "</name><uuid>U-" + name + "</uuid><media><video><track>" + track +
           "</track></video></media></sequence>";
}

} // namespace vantrell
