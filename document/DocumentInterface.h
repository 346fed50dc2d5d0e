#pragma once

#include "document/Tab.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <vector>

namespace vantrell
{

class AlertParent;

/// What a document asks of the world above it: a window, the command line, or a script in a test. What has
/// happened to the document it tells by signals instead. Every call comes on the main thread. The object
/// outlives the document.
class DocumentInterface
{
public:
    virtual ~DocumentInterface() = default;

    /// The window that carries the document's alerts; null for none.
    virtual AlertParent *alertParent() = 0;

    /// The indexes of the selected rows in the visible rows of the tab, ascending.
    virtual std::vector<std::size_t> selectedRows(Tab tab) = 0;
    virtual void selectRows(Tab tab, const std::vector<std::size_t> &rows) = 0;
    /// Scrolls the visible row into view.
    virtual void scrollToRow(Tab tab, std::size_t row) = 0;
    /// Selects the tab, whose rows are visible then.
    virtual void showTab(Tab tab) = 0;
    /// Begins editing the cell with its text selected; nothing when the column is not there.
    virtual void editCell(Tab tab, std::size_t row, const QString &column) = 0;

    /// The columns of the marker table in their order, and changes to them.
    virtual QStringList markerColumns() = 0;
    virtual void addMarkerColumn(const QString &identifier, const QString &title) = 0;
    virtual void removeMarkerColumn(const QString &identifier) = 0;
    virtual void moveMarkerColumn(const QString &identifier, int index) = 0;

    virtual void startProgress() = 0;
    virtual void updateProgressLabel(const QString &text) = 0;
    virtual void endProgress() = 0;
};

} // namespace vantrell
