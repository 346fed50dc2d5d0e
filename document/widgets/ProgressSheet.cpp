#include "document/widgets/ProgressSheet.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace vantrell
{

ProgressSheet::ProgressSheet(QWidget *window)
    : QDialog(window)
    , m_progressLabel(new QLabel(this))
    , m_progressBar(new QProgressBar(this))
{
    setWindowModality(Qt::WindowModal);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_progressLabel->setTextFormat(Qt::PlainText);
    m_progressBar->setAccessibleName(tr("Progress"));
    m_progressBar->setTextVisible(false);
    m_progressBar->setMinimumWidth(320);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &ProgressSheet::cancelled);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_progressLabel);
    layout->addWidget(m_progressBar);
    layout->addWidget(buttons);
}

void ProgressSheet::startProgress()
{
    m_progressBar->setRange(0, 0);
    show();
    raise();
}

void ProgressSheet::updateProgressLabel(const QString &text)
{
    m_progressLabel->setText(text);
}

void ProgressSheet::endProgress()
{
    hide();
    m_progressBar->setRange(0, 1); // stands still
}

} // namespace vantrell
