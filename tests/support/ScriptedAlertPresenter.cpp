#include "tests/support/ScriptedAlertPresenter.h"

#include <algorithm>
#include <thread>

namespace vantrell
{

bool ScriptedAlertPresenter::answerOpenAlert(int code)
{
    if (m_shown.empty() || !m_shown.back().isOpen)
        return false;
    m_shown.back().isOpen = false;
    const Answer answered = m_callbacks.back();
    answered(code);
    return true;
}

int ScriptedAlertPresenter::openCount() const
{
    return static_cast<int>(
        std::count_if(m_shown.begin(), m_shown.end(), [](const Shown &shown) { return shown.isOpen; }));
}

AlertPresenter::AlertId ScriptedAlertPresenter::begin(const AlertDescription &description,
                                                      AlertParent *parent, Answer answered)
{
    if (m_refuses)
        return 0;
    const AlertId id = m_shown.size() + 1;
    m_shown.push_back({id, description, parent, m_answers.empty()});
    m_callbacks.push_back(answered);
    if (!m_answers.empty()) {
        const int code = m_answers.front();
        m_answers.pop_front();
        answered(code);
    }
    return id;
}

void ScriptedAlertPresenter::close(AlertId alert)
{
    m_shown.at(alert - 1).isOpen = false;
}

void ScriptedAlertPresenter::closeAll(AlertParent *parent)
{
    for (Shown &shown : m_shown) {
        if (!parent || shown.parent == parent)
            shown.isOpen = false;
    }
}

bool ScriptedAlertPresenter::parentHasSheet(AlertParent *parent)
{
    return parent == m_foreignSheet ||
           std::any_of(m_shown.begin(), m_shown.end(),
                       [parent](const Shown &shown) { return shown.isOpen && shown.parent == parent; });
}

void ScriptedAlertPresenter::dispatchOneEvent(std::chrono::milliseconds limit)
{
    if (m_events.empty()) {
        std::this_thread::sleep_for(limit);
        return;
    }
    const std::function<void()> event = std::move(m_events.front());
    m_events.pop_front();
    event();
}

} // namespace vantrell
