#pragma once

#include "support/alerts/QVAlert.h"

#include <QObject>

#include <functional>
#include <set>
#include <vector>

namespace vantrell
{

class DocumentWindow;

/// Asks about the changes in all windows before any of them closes. A single changed project is asked about
/// in its window; for several, one question offers to save all or review each in turn. A project that is
/// edited after its question was answered is asked about again. Waits for windows that are busy. Main thread.
class QuitSequence final : public QObject, private AlertDelegate
{
    Q_OBJECT

public:
    /// `windows` returns the open windows.
    QuitSequence(std::function<std::vector<DocumentWindow *>()> windows, QObject *parent);

    /// Called once; settled() or cancelled() reports the result.
    void start();

Q_SIGNALS:
    /// All changes are saved or given up.
    void settled();
    /// The user has cancelled, or something could not be saved.
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
    std::set<DocumentWindow *> m_saved;
};

} // namespace vantrell
