#pragma once

#include "effects/widgets/EffectsPane.h"
#include "markers/MarkerColumns.h"
#include "markers/widgets/MarkersPane.h"
#include "media/widgets/MediaPane.h"
#include "support/settings/UserDefaults.h"
#include "table/widgets/QVTableView.h"
#include "table/widgets/TableModel.h"
#include "tests/support/ScriptedDocumentInterface.h"
#include "tests/support/TemporaryHome.h"
#include "workbench/Workbench.h"

#include <QProcess>

#include <array>

namespace vantrell
{

/// The three panes over a copy of the sample project, in a home of their own.
class PaneProject : public ScriptedDocumentInterface
{
public:
    PaneProject()
        : defaults(QString(), UserDefaults::Access::Volatile)
        , bench(*this, Workbench::Inventories::All, &defaults)
        , media(bench, defaults)
        , effects(bench, defaults)
        , markers(bench, defaults)
    {
        watch(bench.document());
    }
    ~PaneProject() override { bench.document().close(); }

    /// Loads the project; false when that fails or does not end in 40 seconds.
    bool load()
    {
        QProcess prepare;
        prepare.start(qEnvironmentVariable("VANTRELL_SOURCE_DIR") + QStringLiteral("/samples/prepare"),
                      {home.path(QStringLiteral("sample"))});
        if (!prepare.waitForFinished() || prepare.exitCode() != 0)
            return false;
        const QString path = QString::fromUtf8(prepare.readAllStandardOutput()).trimmed();
        if (!bench.open(path) ||
            !MainThread::drainUntil([this] { return ended; }, std::chrono::seconds(40)) || !loaded)
            return false;
        for (TabPane *pane : panes)
            pane->setEditingEnabled(true);
        return true;
    }

    void show(Tab tab)
    {
        bench.document().viewState().selectedTab = tab;
        if (tab == Tab::Media) {
            media.prepareToShow();
            bench.mediaFilter().populateFilteredMediaData();
        } else if (tab == Tab::Effects) {
            bench.effectInventory().populateFilteredEffectData();
        } else {
            bench.markerInventory().populateFilteredMarkerData();
        }
        pane(tab).resize(1200, 600);
        pane(tab).show();
    }

    TabPane &pane(Tab tab) { return *panes[std::size_t(tab)]; }

    /// The first row whose text in the column is that; -1 for none.
    int rowOf(Tab tab, const QString &column, const QString &text)
    {
        const TableModel &model = pane(tab).model();
        for (int row = 0; row < model.rowCount(); ++row) {
            if (model.cellText(model.index(row, model.columnOf(column))) == text)
                return row;
        }
        return -1;
    }
    QModelIndex cell(Tab tab, int row, const QString &column)
    {
        const TableModel &model = pane(tab).model();
        return model.index(row, model.columnOf(column));
    }
    QString text(Tab tab, int row, const QString &column)
    {
        return pane(tab).model().cellText(cell(tab, row, column));
    }

    std::vector<std::size_t> selectedRows(Tab tab) override { return pane(tab).selectedRows(); }
    void selectRows(Tab tab, const std::vector<std::size_t> &rows) override { pane(tab).selectRows(rows); }
    void editCell(Tab tab, std::size_t row, const QString &column) override
    {
        pane(tab).editCell(row, column);
    }
    QStringList markerColumns() override { return markers.columns(); }
    void addMarkerColumn(const QString &identifier, const QString &title) override
    {
        markers.addColumn(markerFieldColumn(identifier, title));
    }
    void removeMarkerColumn(const QString &identifier) override { markers.removeColumn(identifier); }
    void moveMarkerColumn(const QString &identifier, int index) override
    {
        markers.moveColumn(identifier, index);
    }

    TemporaryHome home;
    UserDefaults defaults;
    Workbench bench;
    MediaPane media;
    EffectsPane effects;
    MarkersPane markers;
    const std::array<TabPane *, 3> panes{&media, &effects, &markers};
};

} // namespace vantrell
