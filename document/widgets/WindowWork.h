#pragma once

#include "document/widgets/WindowState.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <cstddef>
#include <functional>

class QWidget;

namespace vantrell
{

class ProgressSheet;

/// Shows the progress sheet for an operation that takes a while, and lets it be cancelled. One operation at a
/// time. Main thread.
class WindowWork final : public QObject
{
    Q_OBJECT

public:
    /// The state outlives this object.
    WindowWork(WindowState &state, QWidget *window);

    ProgressSheet &sheet() const { return *m_sheet; }

    /// `cancel` ends the operation early by calling end() sooner or later.
    void begin(const QString &text, WindowState::Work work, std::function<void()> cancel = {},
               WindowState::Next next = WindowState::Next::Nothing);
    /// Another window shows the progress of the operation.
    void hideSheet() { m_delay.stop(); }
    /// The operation can no longer be cancelled.
    void makeFixed(const QString &text, std::size_t done, std::size_t total);
    void end();
    /// Cancels an operation that closing the window may end.
    void cancelIfExpendable();
    void cancel();
    /// The document is gone and the operation with it; nothing is emitted.
    void reset();

Q_SIGNALS:
    /// An operation has started or ended.
    void changed();
    /// It has ended, and this is what follows.
    void ended(vantrell::WindowState::Next next);

private:
    void showSheet();

    WindowState &m_state;
    QWidget *m_window;
    ProgressSheet *m_sheet;
    QTimer m_delay;
    std::function<void()> m_cancel;
    bool m_isCancelled = false; // but has not ended
};

} // namespace vantrell
