#pragma once

#include "document/DocumentInterface.h"

#include <QHash>

namespace vantrell
{

/// A document without a window: shows nothing, and keeps the selection and the columns that it is told.
class HeadlessDocumentInterface : public DocumentInterface
{
public:
    AlertParent *alertParent() override { return nullptr; }
    std::vector<std::size_t> selectedRows(Tab tab) override { return m_selection.value(tab); }
    void selectRows(Tab tab, const std::vector<std::size_t> &rows) override { m_selection.insert(tab, rows); }
    void scrollToRow(Tab, std::size_t) override {}
    void showTab(Tab) override {}
    void editCell(Tab, std::size_t, const QString &) override {}
    QStringList markerColumns() override { return m_markerColumns; }
    void addMarkerColumn(const QString &identifier, const QString &title) override;
    void removeMarkerColumn(const QString &identifier) override;
    void moveMarkerColumn(const QString &identifier, int index) override;
    void startProgress() override {}
    void updateProgressLabel(const QString &) override {}
    void endProgress() override {}

private:
    QHash<Tab, std::vector<std::size_t>> m_selection;
    QStringList m_markerColumns;
};

} // namespace vantrell
