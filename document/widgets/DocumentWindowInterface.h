#pragma once

#include "document/DocumentInterface.h"
#include "support/widgets/WindowAlertPresenter.h"

#include <array>
#include <functional>

namespace vantrell
{

class ProgressSheet;
class TabPane;

/// The document's interface to its window: forwards to the panes and the progress sheet. It lives as long as
/// the document, which may outlive the window. Main thread.
class DocumentWindowInterface final : public DocumentInterface
{
public:
    using Panes = std::array<TabPane *, 3>; // by tab

    explicit DocumentWindowInterface(QWidget *window)
        : m_alertParent(window)
    {
    }

    /// Must be called before the document loads. `showTab` selects a tab and fills its table.
    void connectTo(const Panes &panes, ProgressSheet *progress, std::function<void(Tab)> showTab);
    /// The panes are about to be deleted; later requests of the document are ignored.
    void disconnectFromWindow();

    AlertParent *alertParent() override { return &m_alertParent; }
    std::vector<std::size_t> selectedRows(Tab tab) override;
    void selectRows(Tab tab, const std::vector<std::size_t> &rows) override;
    void scrollToRow(Tab tab, std::size_t row) override;
    void showTab(Tab tab) override;
    void editCell(Tab tab, std::size_t row, const QString &column) override;
    QStringList markerColumns() override;
    void addMarkerColumn(const QString &identifier, const QString &title) override;
    void removeMarkerColumn(const QString &identifier) override;
    void moveMarkerColumn(const QString &identifier, int index) override;
    void startProgress() override;
    void updateProgressLabel(const QString &text) override;
    void endProgress() override;

private:
    template <typename Operation>
    void withPane(Tab tab, Operation operation);

    WindowAlertParent m_alertParent;
    Panes m_panes = {};
    ProgressSheet *m_progress = nullptr;
    std::function<void(Tab)> m_showTab;
};

} // namespace vantrell
