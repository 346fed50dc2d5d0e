#pragma once

#include <QObject>
#include <QPointer>

#include <functional>
#include <set>
#include <vector>

class QMessageBox;

namespace vantrell
{

class DocumentWindow;

/// Asks about the changes in all windows before any of them closes. A single changed project is asked about
/// in its window; for several, one question offers to save all, discard all or review each in turn. A project
/// that is edited after its question was answered is asked about again. Waits for windows that are busy. Main
/// thread.
class QuitSequence final : public QObject
{
    Q_OBJECT

public:
    /// `windows` returns the open windows.
    QuitSequence(std::function<std::vector<DocumentWindow *>()> windows, QObject *parent);
    ~QuitSequence() override;

    /// Called once; settled() or cancelled() reports the result.
    void start();

Q_SIGNALS:
    /// All changes are saved or given up.
    void settled();
    /// The user has cancelled, or something could not be saved.
    void cancelled();

private:
    enum class Stage { Waiting, Asking, Saving, Discarding, Reviewing };

    void proceed();
    bool waitsForBusyWindow();
    void ask(const std::vector<DocumentWindow *> &changed);
    void settleNext();
    void windowSettled(bool isSettled);
    std::vector<DocumentWindow *> changedWindows() const;

    std::function<std::vector<DocumentWindow *>()> m_windows;
    Stage m_stage = Stage::Waiting;
    std::set<DocumentWindow *> m_settled; ///< as was answered for all
    QPointer<QMessageBox> m_question;
};

} // namespace vantrell
