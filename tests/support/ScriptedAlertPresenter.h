#pragma once

#include "support/alerts/AlertPresenter.h"

#include <deque>
#include <vector>

namespace vantrell
{

/// Answers alerts from a script. After the end of the script an alert stays open until answerOpenAlert(), as
/// if the user were reading it. Main thread only.
class ScriptedAlertPresenter final : public AlertPresenter
{
public:
    struct Shown {
        AlertId id;
        AlertDescription description;
        AlertParent *parent;
        bool isOpen;

        QString text(const QString &key) const { return description.value(key); }
    };

    explicit ScriptedAlertPresenter(std::initializer_list<int> answers = {})
        : m_answers(answers)
    {
    }

    void queueAnswer(int code) { m_answers.push_back(code); }

    /// Presses a button of the last alert; false when it is not open.
    bool answerOpenAlert(int code);

    /// Run once by the next dispatchOneEvent().
    void queueEvent(std::function<void()> event) { m_events.push_back(std::move(event)); }

    /// From now on no alert can be shown.
    void refuseToShow() { m_refuses = true; }

    /// A window with a sheet that is not an alert.
    void setForeignSheet(AlertParent *parent) { m_foreignSheet = parent; }

    const std::vector<Shown> &shown() const { return m_shown; }
    int openCount() const;
    const std::vector<AlertParent *> &broughtToFront() const { return m_broughtToFront; }

    AlertId begin(const AlertDescription &description, AlertParent *parent, Answer answered) override;
    void close(AlertId alert) override;
    void closeAll(AlertParent *parent) override;
    bool parentHasSheet(AlertParent *parent) override;
    void bringToFront(AlertParent *parent) override { m_broughtToFront.push_back(parent); }
    void dispatchOneEvent(std::chrono::milliseconds limit) override;

private:
    std::deque<int> m_answers;
    std::deque<std::function<void()>> m_events;
    std::vector<Shown> m_shown;
    std::vector<Answer> m_callbacks; // one per alert shown
    std::vector<AlertParent *> m_broughtToFront;
    AlertParent *m_foreignSheet = nullptr;
    bool m_refuses = false;
};

} // namespace vantrell
