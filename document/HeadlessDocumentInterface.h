#pragma once

#include "document/DocumentInterface.h"

#include <QHash>

namespace vantrell
{

/// A document without a window: shows nothing, keeps what it is told so that it can be asked for, and
/// lets the owner set the selection and the sort descriptors.
class HeadlessDocumentInterface : public DocumentInterface
{
public:
    AlertParent *alertParent() override { return nullptr; }
    void startSpinner(Tab) override {}
    void stopSpinner(Tab) override {}
    void tableWillReload() override {}
    void tableDidReload() override {}
    void setLabel(Label label, const QString &text) override { m_labels.insert(label, text); }
    void showMessage(Tab, const QString &) override {}
    void setSequenceMenu(const MenuPtr &) override {}
    std::vector<std::size_t> selectedRows(Tab tab) override { return m_selection.value(tab); }
    void selectRows(Tab tab, const std::vector<std::size_t> &rows) override { m_selection.insert(tab, rows); }
    void editCell(Tab, std::size_t, const QString &) override {}
    std::vector<SortDescriptor> sortDescriptors(Tab tab) override { return m_sort.value(tab); }
    QStringList markerColumns() override { return m_markerColumns; }
    void addMarkerColumn(const QString &identifier, const QString &title) override;
    void removeMarkerColumn(const QString &identifier) override;
    void moveMarkerColumn(const QString &identifier, int index) override;
    void setMarkerPresetMenu(const QStringList &, int) override {}
    void setMarkerLabels(const QStringList &) override {}
    void showMarkerPresetSheet() override {}
    void hideMarkerPresetSheet() override {}
    void setMediaChart(const std::vector<double> &values) override { m_chart = values; }
    void startProgress() override {}
    void updateProgressLabel(const QString &) override {}
    void endProgress() override {}
    void loadFinished(bool, const QString &, const QString &) override {}
    void inventoriesFinished() override {}
    void editingAllowedChanged() override {}
    void setEdited(bool) override {}

    /// The text that the label was last given; empty before.
    QString label(Label label) const { return m_labels.value(label); }
    void setSortDescriptors(Tab tab, const std::vector<SortDescriptor> &sort) { m_sort.insert(tab, sort); }
    const std::vector<double> &mediaChart() const { return m_chart; }

private:
    QHash<Label, QString> m_labels;
    QHash<Tab, std::vector<std::size_t>> m_selection;
    QHash<Tab, std::vector<SortDescriptor>> m_sort;
    QStringList m_markerColumns;
    std::vector<double> m_chart;
};

} // namespace vantrell
