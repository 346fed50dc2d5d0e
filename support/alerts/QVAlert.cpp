#include "support/alerts/QVAlert.h"

#include "support/log/QVException.h"
#include "support/log/QVLog.h"
#include "support/log/SystemLog.h"
#include "support/threads/MainThread.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace vantrell
{

namespace
{

constexpr std::chrono::milliseconds EventWait{10};
constexpr std::chrono::milliseconds PollInterval{200};
constexpr double LongestIntervalSeconds = 1e8;

/// Main thread only.
struct AlertsInProgress {
    std::shared_ptr<AlertPresenter> presenter;
    /// Those that wait for an answer and those whose caller does.
    std::vector<std::shared_ptr<QVAlert>> alerts;

    void add(std::shared_ptr<QVAlert> alert)
    {
        remove(alert.get());
        alerts.push_back(std::move(alert));
    }

    void remove(const QVAlert *alert)
    {
        std::erase_if(alerts, [alert](const auto &entry) { return entry.get() == alert; });
    }
};

AlertsInProgress &inProgress()
{
    // Never destroyed: an alert may still be waited for while the program ends.
    static AlertsInProgress *const alerts = new AlertsInProgress;
    return *alerts;
}

constexpr std::chrono::milliseconds AskInterval{20};

} // namespace

void QVAlert::setPresenter(std::shared_ptr<AlertPresenter> presenter)
{
    inProgress().presenter = std::move(presenter);
}

int QVAlert::alertSheetWithMessageText(const QString &messageText, const QString &informativeText,
                                       AlertParent *parentWindow)
{
    return alertSheetWithMessageText(messageText, {}, {}, {}, informativeText, parentWindow, nullptr, {},
                                     true, nullptr);
}

int QVAlert::alertSheetWithMessageText(const QString &messageText, const QString &defaultButton,
                                       const QString &alternateButton, const QString &otherButton,
                                       const QString &informativeText, AlertParent *parentWindow, bool block)
{
    return alertSheetWithMessageText(messageText, defaultButton, alternateButton, otherButton,
                                     informativeText, parentWindow, nullptr, {}, block, nullptr);
}

int QVAlert::alertSheetWithMessageText(const QString &messageText, const QString &defaultButton,
                                       const QString &alternateButton, const QString &otherButton,
                                       const QString &informativeText, AlertParent *parentWindow,
                                       AlertDelegate *, const QString &, bool)
{
    return alertSheetWithMessageText(messageText, defaultButton, alternateButton, otherButton,
                                     informativeText, parentWindow, nullptr, {}, true, nullptr);
}

int QVAlert::alertSheetWithMessageText(const QString &messageText, const QString &defaultButton,
                                       const QString &alternateButton, const QString &otherButton,
                                       const QString &informativeText, AlertParent *parentWindow,
                                       AlertDelegate *delegate, const QString &didEndSelector, bool block,
                                       const std::shared_ptr<QVAlert> &alertObject,
                                       const QString &suppressionBinding)
{
    const std::shared_ptr<QVAlert> alert = alertObject ? alertObject : create();
    alert->prepare(parentWindow, delegate, block);

    const QString selector = didEndSelector.isNull() ? alertDidEndSelector() : didEndSelector;
    bool responds = false;
    guarded("QVAlert::alertSheetWithMessageText",
            [&] { responds = (delegate ? delegate : alert.get())->respondsTo(selector); });
    if (!responds) {
        SystemLog::write(formatText(u"Alert error: delegate does not respond to selector %@", selector));
        return AlertAnswer::Other;
    }

    AlertDescription description{{AlertKey::MessageText, messageText},
                                 {AlertKey::DefaultButtonTitle, defaultButton},
                                 {AlertKey::AlternateButtonTitle, alternateButton},
                                 {AlertKey::OtherButtonTitle, otherButton},
                                 {AlertKey::InformativeText, informativeText},
                                 {AlertKey::DidEndSelector, selector},
                                 {AlertKey::SuppressionBinding, suppressionBinding}};
    description.removeIf([](AlertDescription::iterator value) { return value->isNull(); });
    MainThread::runAndWait([&] { alert->alertSheetWithDictionary(description); });
    if (!block)
        return AlertAnswer::Other;

    alert->waitForEnd();
    MainThread::runAndWait([&] { alert->closeAlert(); });
    const int code = alert->returnCode();
    alert->finishCall();
    return code;
}

int QVAlert::timedAlertSheetWithMessageText(const QString &messageText, const QString &defaultButton,
                                            const QString &alternateButton, const QString &otherButton,
                                            const QString &informativeText, AlertParent *parentWindow,
                                            double interval)
{
    const std::shared_ptr<QVAlert> alert = create();
    try {
        std::thread([alert, interval] { alert->defaultReturnAfterTimeInterval(interval); }).detach();
    } catch (const std::system_error &) {
        alert->defaultReturnAfterTimeInterval(0); // no thread to be had: nobody would end the wait
    }
    return alertSheetWithMessageText(messageText, defaultButton, alternateButton, otherButton,
                                     informativeText, parentWindow, nullptr, {}, true, alert);
}

void QVAlert::closeAlertsForParent(AlertParent *parentWindow)
{
    if (!parentWindow)
        return;
    parentWindow->setClosing();
    endAll(parentWindow);
}

void QVAlert::endAll(AlertParent *parentWindow)
{
    const auto alerts = inProgress().alerts; // a delegate that is told may raise or end others
    for (const std::shared_ptr<QVAlert> &alert : alerts) {
        if (!parentWindow || alert->m_raisedFor == parentWindow)
            alert->endWithoutAnswer();
    }
    if (const auto presenter = inProgress().presenter)
        guarded("QVAlert::endAll", [&] { presenter->closeAll(parentWindow); });
}

void QVAlert::alertSheetWithDictionary(const AlertDescription &description)
{
    closeAlert();
    const std::shared_ptr<QVAlert> self = shared_from_this();
    inProgress().add(self);
    AlertDescription shown = description;
    shown[AlertKey::MessageText] = description.value(AlertKey::MessageText, QStringLiteral(""));
    shown[AlertKey::InformativeText] = description.value(AlertKey::InformativeText, QStringLiteral(""));
    m_didEndSelector = description.value(AlertKey::DidEndSelector, alertDidEndSelector());
    m_presenter = inProgress().presenter;
    m_raisedFor = m_parentWindow;
    m_awaitsAnswer = true;
    const quint64 showing = ++m_showing;

    if (m_presenter && !(m_parentWindow && m_parentWindow->isClosing())) {
        guarded("QVAlert::alertSheetWithDictionary", [&] {
            if (m_parentWindow && m_presenter->parentHasSheet(m_parentWindow))
                m_parentWindow = nullptr;
            if (m_parentWindow)
                m_presenter->bringToFront(m_parentWindow);
            const std::weak_ptr<QVAlert> weakSelf = self;
            m_alert = m_presenter->begin(shown, m_parentWindow, [weakSelf, showing](int code) {
                const std::shared_ptr<QVAlert> alert = weakSelf.lock();
                if (alert && alert->m_showing == showing)
                    alert->answer(code);
            });
        });
    }
    if (m_alert == 0 && m_awaitsAnswer) {
        QVLog::appendLog(u"Alert not shown: %@ %@", shown.value(AlertKey::MessageText),
                         shown.value(AlertKey::InformativeText));
        endWithoutAnswer();
    }
}

void QVAlert::alertDidEnd(int code)
{
    const std::lock_guard lock(m_mutex);
    m_returnCode = code;
    m_alertEnded = true;
    m_changed.notify_all();
}

void QVAlert::defaultReturnAfterTimeInterval(double interval)
{
    const double seconds = interval > 0 ? std::min(interval, LongestIntervalSeconds) : 0;
    std::unique_lock lock(m_mutex);
    if (m_changed.wait_for(lock, std::chrono::duration<double>(seconds), [this] { return m_callFinished; }))
        return;
    m_intervalPassed = true;
    if (m_alertEnded)
        return;
    m_returnCode = AlertAnswer::Default;
    m_alertEnded = true;
    m_changed.notify_all();
}

void QVAlert::closeAlert()
{
    m_awaitsAnswer = false;
    const auto presenter = std::exchange(m_presenter, nullptr);
    const AlertPresenter::AlertId alert = std::exchange(m_alert, 0);
    if (presenter && alert != 0)
        guarded("QVAlert::closeAlert", [&] { presenter->close(alert); });
    m_raisedFor = nullptr;
    inProgress().remove(this);
}

bool QVAlert::alertEnded() const
{
    const std::lock_guard lock(m_mutex);
    return m_alertEnded;
}

void QVAlert::setAlertEnded(bool ended)
{
    const std::lock_guard lock(m_mutex);
    m_alertEnded = ended;
    m_changed.notify_all();
}

int QVAlert::returnCode() const
{
    const std::lock_guard lock(m_mutex);
    return m_returnCode;
}

void QVAlert::setReturnCode(int code)
{
    const std::lock_guard lock(m_mutex);
    m_returnCode = code;
}

void QVAlert::perform(const QString &selector, QVAlert *alert, int code)
{
    if (alert && respondsTo(selector))
        alert->alertDidEnd(code);
}

void QVAlert::prepare(AlertParent *parentWindow, AlertDelegate *delegate, bool block)
{
    m_parentWindow = parentWindow;
    m_delegate = delegate;
    m_callerWaits = block;
    const std::lock_guard lock(m_mutex);
    m_alertEnded = m_intervalPassed;
    m_callFinished = false;
}

void QVAlert::waitForEnd()
{
    if (!MainThread::isMainThread()) {
        std::unique_lock lock(m_mutex);
        while (!m_changed.wait_for(lock, PollInterval, [this] { return m_alertEnded; })) {
        }
        return;
    }
    while (!alertEnded()) {
        MainThread::drain();
        guarded("QVAlert::waitForEnd", [this] {
            if (const auto presenter = m_presenter)
                presenter->dispatchOneEvent(EventWait);
            else
                std::this_thread::sleep_for(EventWait);
        });
    }
}

void QVAlert::finishCall()
{
    const std::lock_guard lock(m_mutex);
    m_intervalPassed = false;
    m_callFinished = true;
    m_changed.notify_all();
}

/// Takes the answer of an alert that is on show, once, to its delegate.
void QVAlert::answer(int code)
{
    if (!m_awaitsAnswer)
        return;
    m_awaitsAnswer = false;
    const std::shared_ptr<QVAlert> self = shared_from_this();
    guarded("QVAlert::answer",
            [&] { (m_delegate ? m_delegate : this)->perform(m_didEndSelector, this, code); });
    if (!m_callerWaits)
        inProgress().remove(this);
}

/// Ends the alert with -1, for its delegate and for a caller that waits, whatever the delegate does. An
/// answer that was given before stands.
void QVAlert::endWithoutAnswer()
{
    const std::shared_ptr<QVAlert> self = shared_from_this();
    const bool ended = alertEnded();
    answer(AlertAnswer::Other);
    if (!ended)
        alertDidEnd(AlertAnswer::Other);
    closeAlert();
}

void showAlertUntil(const QString &messageText, const QString &informativeText, AlertParent *parentWindow,
                    const std::shared_ptr<MainThreadGate> &gate, const std::function<bool()> &isGivenUp)
{
    const auto givesUp = [&] { return (gate && gate->isClosed()) || (isGivenUp && isGivenUp()); };
    if (givesUp())
        return;
    if (MainThread::isMainThread()) {
        QVAlert::alertSheetWithMessageText(messageText, informativeText, parentWindow);
        return;
    }
    const auto alert = QVAlert::create();
    const auto wasGivenUp = std::make_shared<std::atomic<bool>>(false);
    const auto show = [=] {
        if (!*wasGivenUp)
            QVAlert::alertSheetWithMessageText(messageText, {}, {}, {}, informativeText, parentWindow,
                                               nullptr, {}, false, alert);
    };
    if (gate)
        gate->post(show);
    else
        MainThread::post(show);
    while (!alert->alertEnded()) {
        if (givesUp()) {
            *wasGivenUp = true;
            MainThread::post([alert] { alert->closeAlert(); });
            return;
        }
        std::this_thread::sleep_for(AskInterval);
    }
}

} // namespace vantrell
