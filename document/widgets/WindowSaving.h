#pragma once

#include "document/ChangeMarks.h"
#include "document/widgets/WindowPart.h"
#include "support/alerts/QVAlert.h"
#include "support/files/Result.h"

#include <QString>

#include <functional>
#include <optional>

namespace vantrell
{

/// Saves and reverts the document of a window, and asks about its changes before it is closed. The window
/// owns it. Main thread.
class WindowSaving final : private WindowPart, private AlertDelegate
{
    Q_DECLARE_TR_FUNCTIONS(vantrell::WindowSaving)

public:
    explicit WindowSaving(const WindowPart &part)
        : WindowPart(part)
    {
    }

    /// How changes are settled: the user is asked, or they are saved, or given up.
    enum class Settling { Ask, Save, Discard };

    /// Passes whether a file is open in another window to `found`: at once, or on the main thread when the
    /// disk has answered. With `thisToo` the window itself counts as well.
    using FindOpen =
        std::function<void(const QString &path, bool thisToo, std::function<void(bool isOpen)> found)>;
    void setFindOpen(FindOpen findOpen) { m_findOpen = std::move(findOpen); }

    /// Calls `found` with whether a file is open in another window, or with `thisToo` in any. While the disk
    /// does not answer the progress sheet shows the text; `cancelled` is called instead (it may be empty)
    /// when the user no longer waits, and nothing once the window closes.
    void findOpen(const QString &path, bool thisToo, const QString &text,
                  const std::function<void(bool isOpen)> &found, const std::function<void()> &cancelled = {});

    void saveTo(const QString &path);
    /// The other path that a save is under way to, from its start to its end; null for none.
    QString target() const { return m_target; }
    void saveAs();
    void revert();
    void revertWithoutQuestion();
    /// Ends a save or a send: tells the window, then closes it if the save was for that.
    void finish(bool isSaved);
    /// Notes in the background what the file holds now, so that touching it does not count as a change.
    void rememberFile();

    /// Whether the window may close now. If not, it closes or reports closeCancelled() later.
    bool mayClose();
    void settleChanges(Settling settling);
    bool hasUnsettledChanges();
    void forgetGivenUpChanges() { m_givenUp.reset(); }
    /// The document is gone, and a save of it that has not begun.
    void reset();
    void closeSettled();

private:
    void write(const QString &path);
    void writeEnded(const QString &path, const Result<void> &written);
    void askAboutChangedFile(const QString &path);
    void saved(const QString &path);
    void runSavePanel(const std::function<void()> &whenCancelled = {});
    void reload();
    void reloadIf(bool isReadable);
    void askBeforeClosing();
    void closeQuestionEnded(int code);
    void saveForClosing();
    void changesEnded(bool areSettled);

    bool respondsTo(const QString &selector) const override;
    void perform(const QString &selector, QVAlert *alert, int code) override;

    FindOpen m_findOpen;
    QString m_target;
    std::optional<ChangeMarks::State> m_givenUp; // the state of the project when the user gave it up
};

} // namespace vantrell
