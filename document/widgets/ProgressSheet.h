#pragma once

#include <QDialog>

class QLabel;
class QProgressBar;

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
    void endProgress();

Q_SIGNALS:
    /// The Cancel button or Escape was pressed.
    void cancelled();

private:
    void reject() override { Q_EMIT cancelled(); }

    QLabel *m_progressLabel;
    QProgressBar *m_progressBar;
};

} // namespace vantrell
