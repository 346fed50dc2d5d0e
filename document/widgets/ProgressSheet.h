#pragma once

#include <QDialog>

#include <cstddef>

class QLabel;
class QProgressBar;
class QPushButton;

namespace vantrell
{

/// The sheet on a document window that shows the progress of a long operation. Main thread.
class ProgressSheet final : public QDialog
{
    Q_OBJECT

public:
    explicit ProgressSheet(QWidget *window);

    /// Shows the sheet, or brings it to the front.
    void startProgress();
    void updateProgressLabel(const QString &text);
    /// Sets the progress; until then the bar is indeterminate.
    void setProgress(std::size_t done, std::size_t total);
    /// Enables or disables the Cancel button, which is enabled when the sheet appears.
    void setCancellable(bool cancellable);
    /// Sets the title of the Cancel button; null for "Cancel".
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
