#pragma once

#include "document/HeadlessDocumentInterface.h"
#include "document/MyDocument.h"

#include <QStringList>

namespace vantrell
{

/// The interface of a document in a test: records the requests. Main thread.
class ScriptedDocumentInterface : public HeadlessDocumentInterface
{
public:
    /// From now on also notes what the document tells.
    void watch(MyDocument &document)
    {
        for (const Tab tab : {Tab::Media, Tab::Effects, Tab::Markers}) {
            const RowView *view = &document.rowView(tab);
            QObject::connect(view, &RowView::willReload, view,
                             [this] { events.append(QStringLiteral("will reload")); });
            QObject::connect(view, &RowView::didReload, view,
                             [this] { events.append(QStringLiteral("did reload")); });
            QObject::connect(view, &RowView::populatingChanged, view, [this, tab](bool isPopulating) {
                note(isPopulating ? QStringLiteral("start") : QStringLiteral("stop"), tab);
            });
        }
        const MyDocument *watched = &document;
        QObject::connect(watched, &MyDocument::messageGiven, watched,
                         [this](Tab tab, const QString &text) { note(text, tab); });
        QObject::connect(watched, &MyDocument::sequenceMenuChanged, watched,
                         [this, watched] { sequenceMenu = watched->sequenceMenu(); });
        QObject::connect(watched, &MyDocument::editedChanged, watched,
                         [this](bool isEdited) { edited = isEdited; });
        QObject::connect(watched, &MyDocument::inventoriesFinished, watched, [this] { ended = true; });
        QObject::connect(watched, &MyDocument::loadFinished, watched,
                         [this](bool wasLoaded, const QString &failure, const QString &loadNotice) {
                             loaded = wasLoaded;
                             message = failure;
                             notice = loadNotice;
                             ended = ended || !loaded;
                         });
    }

    void startProgress() override { events.append(QStringLiteral("start progress")); }
    void updateProgressLabel(const QString &text) override
    {
        events.append(QStringLiteral("progress: ") + text);
    }
    void endProgress() override { events.append(QStringLiteral("end progress")); }

    QStringList events;
    MenuPtr sequenceMenu;
    bool loaded = false;
    bool ended = false; ///< loading is over: every inventory has ended, or it failed
    bool edited = false;
    QString message;
    QString notice;

private:
    void note(const QString &what, Tab tab)
    {
        events.append(QStringLiteral("%1 %2").arg(what).arg(int(tab)));
    }
};

} // namespace vantrell
