#pragma once

#include "support/files/Result.h"

#include <QDialog>
#include <QPointer>

class QLabel;
class QProgressBar;
class QPushButton;

namespace vantrell
{

class PrintOperation;

/// The sheet that shows the progress of a print operation, or why it failed. Deletes itself when closed,
/// which cancels a running operation. Main thread.
class PrintProgress final : public QDialog
{
    Q_OBJECT

public:
    PrintProgress(PrintOperation *operation, QWidget *window);

    void reject() override;

private:
    void printed(const Result<void> &result);

    QPointer<PrintOperation> m_operation;
    QLabel *m_text;
    QProgressBar *m_bar;
    QPushButton *m_cancel;
};

} // namespace vantrell
