#include "report/widgets/PrintProgress.h"

#include "report/widgets/PrintOperation.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace vantrell
{

PrintProgress::PrintProgress(PrintOperation *operation, QWidget *window)
    : QDialog(window)
    , m_operation(operation)
    , m_text(new QLabel(this))
    , m_bar(new QProgressBar(this))
{
    constexpr int narrowest = 320;
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Printing"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setMinimumWidth(narrowest);
    m_bar->setRange(0, 0);
    m_bar->setAccessibleName(tr("Progress"));
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_cancel = buttons->button(QDialogButtonBox::Cancel);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(m_bar);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &PrintProgress::reject);
    connect(operation, &PrintOperation::progressed, m_text, &QLabel::setText);
    connect(operation, &PrintOperation::finished, this, &PrintProgress::printed);
}

void PrintProgress::reject()
{
    if (m_operation)
        m_operation->cancel();
    QDialog::reject();
}

void PrintProgress::printed(const Result<void> &result)
{
    if (result || result.message().isEmpty()) {
        accept();
        return;
    }
    m_bar->hide();
    m_text->setText(result.message());
    m_cancel->setText(tr("Close"));
}

} // namespace vantrell
