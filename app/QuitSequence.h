#pragma once

#include "support/alerts/QVAlert.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <vector>

namespace vantrell
{

class DocumentWindow;

/// Asks about the changes in all windows before any of them closes: one changed project with the question
/// of its window, several with one question for all, which are saved or reviewed one after the other. What
/// a window is busy with ends first. Main thread.
class QuitSequence final : public QObject, private AlertDelegate
{
    Q_OBJECT

public:
    /// `windows` gives the windows that are open.
    QuitSequence(std::function<std::vector<DocumentWindow *>()> windows, QObject *parent);

    /// Once. settled() or cancelled() tells the end of it.
    void start();

Q_SIGNALS:
    /// No changes are left, but for those that the user gives up.
    void settled();
    /// The user does not want to quit, after all, or something could not be saved.
    void cancelled();

private:
    enum class Stage { Waiting, Asking, Saving, Reviewing };

    void proceed();
    bool waitsForBusyWindow();
    void ask(const std::vector<DocumentWindow *> &changed);
    void settleNext();
    void windowSettled(bool isSettled);
    std::vector<DocumentWindow *> changedWindows() const;

    bool respondsTo(const QString &selector) const override;
    void perform(const QString &selector, QVAlert *alert, int code) override;

    std::function<std::vector<DocumentWindow *>()> m_windows;
    Stage m_stage = Stage::Waiting;
    std::vector<QPointer<DocumentWindow>> m_settled;
};

} // namespace vantrell
