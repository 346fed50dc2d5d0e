#pragma once

#include "document/Menu.h"
#include "rows/SortDescriptor.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <vector>

namespace vantrell
{

class AlertParent;

/// The three tabs of a document, each with one table.
enum class Tab { Media, Effects, Markers };

/// Texts that a tab shows beside its table.
enum class Label {
    MediaTotalSize,
    MediaTotalFiles,
    MediaFilteredTotalSize,
    MediaFilteredTotalFiles,
    MediaLargestFile,
    MediaSmallestFile,
    EffectStatus,
};

/// What a document asks of the world above it: a window, the command line, or a script in a test. Every
/// call comes on the main thread. The object outlives the document.
class DocumentInterface
{
public:
    virtual ~DocumentInterface() = default;

    /// The window that carries the document's alerts; null for none.
    virtual AlertParent *alertParent() = 0;

    virtual void startSpinner(Tab tab) = 0;
    virtual void stopSpinner(Tab tab) = 0;

    /// The rows on show are about to be exchanged, and have been; always in pairs.
    virtual void tableWillReload() = 0;
    virtual void tableDidReload() = 0;

    virtual void setLabel(Label label, const QString &text) = 0;
    /// Shows beside the tab's table, for a while, what was done or why nothing was; a clause without a full
    /// stop.
    virtual void showMessage(Tab tab, const QString &text) = 0;

    /// The menu of the pop-up cells in the marker table's "sequence" column.
    virtual void setSequenceMenu(const MenuPtr &menu) = 0;

    /// The places of the selected rows among the rows on show, ascending.
    virtual std::vector<std::size_t> selectedRows(Tab tab) = 0;
    virtual void selectRows(Tab tab, const std::vector<std::size_t> &rows) = 0;
    /// Begins editing the cell with its text selected; nothing when the column is not there.
    virtual void editCell(Tab tab, std::size_t row, const QString &column) = 0;

    /// What the table is sorted by, most important first; empty for no sorting.
    virtual std::vector<SortDescriptor> sortDescriptors(Tab tab) = 0;

    /// The columns of the marker table in their order, and changes to them.
    virtual QStringList markerColumns() = 0;
    virtual void addMarkerColumn(const QString &identifier, const QString &title) = 0;
    virtual void removeMarkerColumn(const QString &identifier) = 0;
    virtual void moveMarkerColumn(const QString &identifier, int index) = 0;

    /// The items of the marker preset pop-up, a separator where the title is null, and the chosen one.
    virtual void setMarkerPresetMenu(const QStringList &titles, int selected) = 0;
    /// The titles of the eight colours in the marker filter and in the colour cells; they may be empty.
    virtual void setMarkerLabels(const QStringList &labels) = 0;
    /// The sheet that makes a marker preset.
    virtual void showMarkerPresetSheet() = 0;
    virtual void hideMarkerPresetSheet() = 0;

    /// Values of the media chart: bytes of the files on show and free bytes of the start-up volume.
    virtual void setMediaChart(const std::vector<double> &values) = 0;

    virtual void startProgress() = 0;
    virtual void updateProgressLabel(const QString &text) = 0;
    virtual void endProgress() = 0;

    /// Loading ended: the project is there, or the message says why not. The notice is empty unless
    /// the user should know something about the file, such as that it had to be repaired.
    virtual void loadFinished(bool loaded, const QString &message, const QString &notice) = 0;

    /// Every inventory of a loaded project has ended; from now on the tree belongs to the main thread.
    virtual void inventoriesFinished() = 0;

    /// The tree is read to be sent and may not be edited, or may be edited again; see MyDocument::isSaving().
    virtual void editingAllowedChanged() = 0;

    /// The document has changes that were not saved or sent, or has none any more.
    virtual void setEdited(bool edited) = 0;
};

} // namespace vantrell
