#pragma once

#include "effects/EffectEditor.h"
#include "effects/EffectInventory.h"
#include "effects/EffectKeys.h"
#include "tests/support/LoadedProject.h"

namespace vantrell
{

/// A document with its effect inventory and editor, on the Effects tab with the defaults shown.
struct EffectProject : LoadedProject {
    EffectProject()
    {
        builders = {[this] { inventory.populateEffectData(); }};
        document.viewState().selectedTab = Tab::Effects;
        document.viewState().effectShowDefaults = true;
    }
    ~EffectProject() { document.close(); }

    /// The names on show, joined by bars; "-" for an effect without one.
    QString shownNames() const
    {
        QStringList names;
        for (const RowRecordPtr &row : document.rowsOnShow(Tab::Effects))
            names.append(row->contains(EffectKey::name) ? row->get(EffectKey::name) : QStringLiteral("-"));
        return names.join(QLatin1Char('|'));
    }

    QString status() const { return label(Label::EffectStatus); }

    EffectInventory inventory{document};
    EffectEditor editor{document, inventory};
};

/// An effect's name and media type.
inline QByteArray named(const QByteArray &name, const QByteArray &media = "video")
{
    return "<effect><name>" + name + "</name><mediatype>" + media + "</mediatype></effect>";
}

inline QByteArray filter(const QByteArray &content)
{
    return "<filter>" + content + "</filter>";
}

inline QByteArray clip(const QByteArray &content)
{
    return "<clipitem>" + content + "</clipitem>";
}

/// A sequence with a name, a UUID and one video track.
inline QByteArray sequence(const QByteArray &name, const QByteArray &track)
{
    return "<sequence><name>" + name + "</name><uuid>U-" + name + "</uuid><media><video><track>" + track +
           "</track></video></media></sequence>";
}

} // namespace vantrell
