#pragma once

#include "document/DocumentJournal.h"
#include "interchange/ImportedMarker.h"
#include "support/alerts/QVAlert.h"
#include "tests/markers/MarkerProject.h"
#include "tests/support/ScriptedAlertPresenter.h"
#include "tests/support/ScriptedDocumentInterface.h"
#include "workbench/Workbench.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>

namespace vantrell
{

/// All that undoing and redoing must bring back.
struct ProjectState {
    QByteArray file; ///< as it would be saved
    RowList markers;
    RowList effects;
    QString values; ///< of all rows, in their order
    std::optional<QStringList> modified;

    friend bool operator==(const ProjectState &, const ProjectState &) = default;
    /// The same but for the identity of the rows.
    bool isLike(const ProjectState &other) const
    {
        return file == other.file && values == other.values && modified == other.modified;
    }
};

/// The interface of a window that shows the tab that it is told to. Main thread.
struct TabbedInterface : ScriptedDocumentInterface {
    void showTab(Tab tab) override
    {
        shownTab = tab;
        if (workbench)
            show(tab);
    }
    void scrollToRow(Tab, std::size_t row) override { scrolledTo = row; }

    void show(Tab tab)
    {
        workbench->document().viewState().selectedTab = tab;
        if (!workbench->document().rowView(tab).isVisible())
            workbench->document().rebuildRows(tab);
    }

    Workbench *workbench = nullptr;
    std::optional<Tab> shownTab;
    std::optional<std::size_t> scrolledTo;
};

/// A loaded project with its editors, whose questions are answered with the button that goes ahead. Main
/// thread.
struct UndoProject {
    explicit UndoProject(const QByteArray &xml)
    {
        QFile file(folder.filePath(QStringLiteral("project.xml")));
        if (!file.open(QIODevice::WriteOnly) || file.write(xml) != xml.size() || !file.flush())
            qFatal("The project could not be written.");
        open(file.fileName());
    }
    /// The project of that file, which keeps the journal.
    UndoProject(const QString &path, std::shared_ptr<DocumentJournal> journal)
    {
        document().setJournal(std::move(journal));
        open(path);
    }

    void open(const QString &path)
    {
        QVAlert::setPresenter(alerts);
        world.watch(document());
        const bool isLoaded = workbench.open(path) && MainThread::drainUntil([this] { return world.ended; },
                                                                             std::chrono::seconds(40));
        if (!isLoaded || !world.loaded)
            qFatal("The project could not be loaded.");
        world.workbench = &workbench;
        document().viewState().effectShowDefaults = true;
        QObject::connect(&document(), &MyDocument::historyChanged, &document(), [this] { ++changes; });
    }
    ~UndoProject()
    {
        document().close();
        QVAlert::setPresenter(nullptr);
    }

    MyDocument &document() { return workbench.document(); }

    ProjectState state()
    {
        ProjectState now;
        QBuffer file;
        if (file.open(QIODevice::WriteOnly) && document().xmlDoc()->write(file))
            now.file = file.data();
        now.markers = document().markerArray();
        now.effects = document().effectArray();
        for (const RowList *rows : {&now.markers, &now.effects}) {
            for (const RowRecordPtr &row : *rows)
                now.values += MarkerProject::whole(*row) + QLatin1Char('\n');
        }
        now.modified = document().modifiedSequenceUUIDs();
        return now;
    }

    /// The rows with these indexes in the tab's list.
    RowList rows(Tab tab, const std::vector<std::size_t> &indexes)
    {
        RowList chosen;
        for (const std::size_t index : indexes)
            chosen.push_back(document().rowView(tab).list().at(index));
        return chosen;
    }

    /// Adds markers as an import does that takes a pause after each.
    void import(const QStringList &names)
    {
        MarkerListImporter::Rows rows;
        for (const QString &name : names) {
            rows.rows.push_back(std::make_shared<RowRecord>());
            rows.rows.back()->set(ImportedMarkerKey::name, name);
            rows.rows.back()->set(ImportedMarkerKey::startTimecode, QStringLiteral("00:00:01:00"));
            rows.sources.append(QString());
        }
        MarkerListImporter::Progress progress;
        while (progress.next < rows.rows.size())
            workbench.markerListImporter().addMarkers(rows, progress, std::chrono::milliseconds(0));
    }

    const QTemporaryDir folder;
    const std::shared_ptr<ScriptedAlertPresenter> alerts = std::make_shared<ScriptedAlertPresenter>();
    TabbedInterface world;
    Workbench workbench{world};
    int changes = 0; ///< of the history
};

} // namespace vantrell
