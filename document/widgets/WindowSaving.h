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
public:
    explicit WindowSaving(const WindowPart &part)
        : WindowPart(part)
    {
    }

    /// How changes are settled: the user is asked, or they are saved.
    enum class Settling { Ask, Save };

    /// Tells whether a file is open in another window.
    void setOpenElsewhere(std::function<bool(const QString &path)> isOpenElsewhere)
    {
        m_isOpenElsewhere = std::move(isOpenElsewhere);
    }

    bool isOpenElsewhere(const QString &path) const { return m_isOpenElsewhere && m_isOpenElsewhere(path); }

    void saveTo(const QString &path);
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
    void closeSettled();

private:
    void writeEnded(const QString &path, const Result<void> &written);
    void askAboutChangedFile(const QString &path);
    void saved(const QString &path);
    void runSavePanel(const std::function<void()> &whenCancelled = {});
    void reload();
    void askBeforeClosing();
    void closeQuestionEnded(int code);
    void changesEnded(bool areSettled);

    bool respondsTo(const QString &selector) const override;
    void perform(const QString &selector, QVAlert *alert, int code) override;

    std::function<bool(const QString &path)> m_isOpenElsewhere;
    std::optional<ChangeMarks::State> m_givenUp; // the state of the project when the user gave it up
};

} // namespace vantrell
