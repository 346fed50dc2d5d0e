#include "document/widgets/ProgressSheet.h"

#include "support/widgets/ShownText.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
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
    m_cancel = buttons->button(QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::rejected, this, &ProgressSheet::cancelled);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_progressLabel);
    layout->addWidget(m_progressBar);
    layout->addWidget(buttons);
}

void ProgressSheet::startProgress()
{
    if (!isVisible()) {
        m_progressBar->setRange(0, 0);
        setCancellable(true);
    }
    show();
    raise();
}

void ProgressSheet::updateProgressLabel(const QString &text)
{
    m_progressLabel->setText(shownMessage(text));
}

void ProgressSheet::setProgress(std::size_t done, std::size_t total)
{
    constexpr int steps = 1000;
    m_progressBar->setRange(0, steps);
    m_progressBar->setValue(total > 0 ? int(done * steps / total) : 0);
}

void ProgressSheet::setCancellable(bool cancellable)
{
    m_cancel->setEnabled(cancellable);
}

void ProgressSheet::setCancelTitle(const QString &title)
{
    m_cancel->setText(title.isNull() ? tr("Cancel") : title);
}

void ProgressSheet::reject()
{
    if (m_cancel->isEnabled())
        Q_EMIT cancelled();
}

void ProgressSheet::endProgress()
{
    hide();
    m_progressBar->setRange(0, 1); // not animated
}

} // namespace vantrell
