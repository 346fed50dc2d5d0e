#pragma once

#include "document/DocumentInterface.h"
#include "support/widgets/WindowAlertPresenter.h"

#include <QObject>

#include <array>

namespace vantrell
{

class ProgressSheet;
class TabPane;

/// The document's interface to its window: forwards to the panes and the progress sheet, and emits signals
/// for the rest. It lives as long as the document, which may outlive the window. Main thread.
class DocumentWindowInterface final : public QObject, public DocumentInterface
{
    Q_OBJECT

public:
    using Panes = std::array<TabPane *, 3>; // by tab

    explicit DocumentWindowInterface(QWidget *window)
        : m_alertParent(window)
    {
    }

    /// Must be called before the document loads.
    void connectTo(const Panes &panes, ProgressSheet *progress);
    /// The panes are about to be deleted; later requests of the document are ignored.
    void disconnectFromWindow();

    AlertParent *alertParent() override { return &m_alertParent; }
    void startSpinner(Tab tab) override;
    void stopSpinner(Tab tab) override;
    void tableWillReload() override;
    void tableDidReload() override;
    void setLabel(Label label, const QString &text) override;
    void showMessage(Tab tab, const QString &text) override;
    void setSequenceMenu(const MenuPtr &menu) override;
    std::vector<std::size_t> selectedRows(Tab tab) override;
    void selectRows(Tab tab, const std::vector<std::size_t> &rows) override;
    void editCell(Tab tab, std::size_t row, const QString &column) override;
    std::vector<SortDescriptor> sortDescriptors(Tab tab) override;
    QStringList markerColumns() override;
    void addMarkerColumn(const QString &identifier, const QString &title) override;
    void removeMarkerColumn(const QString &identifier) override;
    void moveMarkerColumn(const QString &identifier, int index) override;
    void setMarkerPresetMenu(const QStringList &titles, int selected) override;
    void setMarkerLabels(const QStringList &labels) override;
    void showMarkerPresetSheet() override;
    void hideMarkerPresetSheet() override;
    void setMediaChart(const std::vector<double> &values) override;
    void startProgress() override;
    void updateProgressLabel(const QString &text) override;
    void endProgress() override;
    void loadFinished(bool loaded, const QString &message, const QString &notice) override;
    void inventoriesFinished() override;
    void editingAllowedChanged() override;
    void setEdited(bool edited) override;

Q_SIGNALS:
    void loadEnded(bool loaded, const QString &message, const QString &notice);
    void inventoriesEnded();
    void mayEditChanged();
    void editedChanged(bool edited);

private:
    template <typename Operation>
    void withPane(Tab tab, Operation operation);
    template <typename Operation>
    void withPanes(Operation operation);

    WindowAlertParent m_alertParent;
    Panes m_panes = {};
    ProgressSheet *m_progress = nullptr;
};

} // namespace vantrell
