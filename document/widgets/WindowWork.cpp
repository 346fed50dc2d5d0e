#include "document/widgets/WindowWork.h"

#include "document/widgets/ProgressSheet.h"

#include <QDialog>

#include <algorithm>
#include <chrono>
#include <utility>

namespace vantrell
{

namespace
{

constexpr std::chrono::milliseconds sheetDelay{400}; // shorter operations show no sheet

} // namespace

WindowWork::WindowWork(WindowState &state, QWidget *window)
    : m_state(state)
    , m_window(window)
    , m_sheet(new ProgressSheet(window))
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(sheetDelay);
    connect(&m_delay, &QTimer::timeout, this, &WindowWork::showSheet);
}

void WindowWork::begin(const QString &text, WindowState::Work work, std::function<void()> cancel,
                       WindowState::Next next)
{
    m_state.begin(work, next);
    m_isCancelled = false;
    m_cancel = std::move(cancel);
    m_sheet->setCancelTitle(QString());
    m_sheet->updateProgressLabel(text);
    m_delay.start();
    Q_EMIT changed();
}

void WindowWork::makeFixed(const QString &text, std::size_t done, std::size_t total)
{
    m_state.makeFixed();
    m_sheet->updateProgressLabel(text);
    m_sheet->setProgress(done, total);
    m_sheet->setCancellable(false);
}

void WindowWork::end()
{
    m_delay.stop();
    m_sheet->endProgress();
    m_cancel = nullptr;
    const WindowState::Next next = m_state.end();
    Q_EMIT changed();
    Q_EMIT ended(next);
}

void WindowWork::cancelIfExpendable()
{
    if (m_state.isExpendable())
        cancel();
}

void WindowWork::cancel()
{
    const auto cancel = m_cancel; // which may replace it
    if (!cancel)
        return;
    m_isCancelled = true;
    cancel();
    if (!m_isCancelled || !m_cancel) // it has ended, or the next one has begun
        return;
    // The worker may have to wait for a volume that does not answer.
    m_sheet->updateProgressLabel(tr("Cancelling…"));
    m_sheet->setCancellable(false);
}

void WindowWork::reset()
{
    m_delay.stop();
    m_sheet->endProgress();
    m_cancel = nullptr;
}

void WindowWork::showSheet()
{
    // Over an alert or another sheet it would keep the user from answering that. Panels stay beside it.
    const auto dialogs = m_window->findChildren<QDialog *>();
    const bool isCovered = std::any_of(dialogs.begin(), dialogs.end(), [this](const QDialog *dialog) {
        return dialog != m_sheet && dialog->isVisible() && dialog->isModal();
    });
    if (isCovered) {
        m_delay.start();
        return;
    }
    m_sheet->startProgress();
    m_sheet->setCancellable(m_state.isCancellable() && !m_isCancelled);
}

} // namespace vantrell
