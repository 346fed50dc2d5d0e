#pragma once

#include "document/HeadlessDocumentInterface.h"

#include <QStringList>

namespace vantrell
{

/// The interface of a document in a test: records the requests. Main thread.
class ScriptedDocumentInterface : public HeadlessDocumentInterface
{
public:
    void startSpinner(Tab tab) override { note(QStringLiteral("start"), tab); }
    void stopSpinner(Tab tab) override { note(QStringLiteral("stop"), tab); }
    void tableWillReload() override { events.append(QStringLiteral("will reload")); }
    void tableDidReload() override { events.append(QStringLiteral("did reload")); }
    void showMessage(Tab tab, const QString &text) override { note(text, tab); }
    void setSequenceMenu(const MenuPtr &menu) override { sequenceMenu = menu; }
    void setMarkerPresetMenu(const QStringList &titles, int selected) override
    {
        presetMenu = titles;
        selectedPreset = selected;
    }
    void setMarkerLabels(const QStringList &labels) override { markerLabels = labels; }
    void showMarkerPresetSheet() override { events.append(QStringLiteral("show preset sheet")); }
    void hideMarkerPresetSheet() override { events.append(QStringLiteral("hide preset sheet")); }
    void startProgress() override { events.append(QStringLiteral("start progress")); }
    void updateProgressLabel(const QString &text) override
    {
        events.append(QStringLiteral("progress: ") + text);
    }
    void endProgress() override { events.append(QStringLiteral("end progress")); }
    void setEdited(bool isEdited) override { edited = isEdited; }
    void inventoriesFinished() override { ended = true; }
    void loadFinished(bool wasLoaded, const QString &failure, const QString &loadNotice) override
    {
        loaded = wasLoaded;
        message = failure;
        notice = loadNotice;
        ended = ended || !loaded;
    }

    QStringList events;
    MenuPtr sequenceMenu;
    QStringList presetMenu;
    int selectedPreset = -1; ///< its index in the menu
    QStringList markerLabels;
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
