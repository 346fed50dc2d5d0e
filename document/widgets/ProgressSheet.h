#pragma once

#include <QDialog>

#include <cstddef>

class QLabel;
class QProgressBar;
class QPushButton;

namespace vantrell
{

/// The sheet on a document window that shows that something long goes on. Main thread.
class ProgressSheet final : public QDialog
{
    Q_OBJECT

public:
    explicit ProgressSheet(QWidget *window);

    /// Shows the sheet, or brings it to the front.
    void startProgress();
    void updateProgressLabel(const QString &text);
    /// How much is done; until it is told the bar shows only that something goes on.
    void setProgress(std::size_t done, std::size_t total);
    /// Whether the Cancel button can be pressed; it can when the sheet is shown.
    void setCancellable(bool cancellable);
    /// What the Cancel button says; "Cancel" when it is null.
    void setCancelTitle(const QString &title);
    void endProgress();

Q_SIGNALS:
    /// The Cancel button or Escape was pressed.
    void cancelled();

private:
    void reject() override;

    QLabel *m_progressLabel;
    QProgressBar *m_progressBar;
    QPushButton *m_cancel;
};

} // namespace vantrell
