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

/// The sheet that shows how far a print operation is, cancels it, and says why it failed. It deletes itself
/// once it is closed; the operation is cancelled then if it still runs. Main thread.
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
