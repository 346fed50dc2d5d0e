#pragma once

#include "support/alerts/AlertPresenter.h"

#include <QString>

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

namespace vantrell
{

class QVAlert;

/// Receives the end of an alert. Operations go by name, so that one delegate can serve several alerts.
class AlertDelegate
{
public:
    virtual ~AlertDelegate() = default;

    /// Whether perform() knows the operation. On the thread that raises the alert.
    virtual bool respondsTo(const QString &selector) const = 0;

    /// Performs the operation for an alert that was answered with `code`. Main thread.
    virtual void perform(const QString &selector, QVAlert *alert, int code) = 0;
};

/// The one way in which the program shows an alert: a message, an informative text and up to three buttons,
/// as a sheet on a window or on its own.
///
/// The static functions may be called on any thread and give the answer: 1 for the default button, 0 for the
/// alternate, -1 for the other, and also -1 when the call does not wait or the alert cannot be shown or is
/// closed with its window. A null text or title counts as not given. The parent may be null; it and the
/// delegate are not owned and must live until the alert has ended.
class QVAlert final : public AlertDelegate, public std::enable_shared_from_this<QVAlert>
{
public:
    /// A new alert object, on no screen yet.
    static std::shared_ptr<QVAlert> create() { return std::shared_ptr<QVAlert>(new QVAlert); }

    /// Installs how alerts are shown; null takes the presenter away, alerts then answer -1. Main thread.
    static void setPresenter(std::shared_ptr<AlertPresenter> presenter);

    /// One "OK" button; waits.
    static int alertSheetWithMessageText(const QString &messageText, const QString &informativeText,
                                         AlertParent *parentWindow);
    /// Waits when `block` is set.
    static int alertSheetWithMessageText(const QString &messageText, const QString &defaultButton,
                                         const QString &alternateButton, const QString &otherButton,
                                         const QString &informativeText, AlertParent *parentWindow,
                                         bool block);
    /// Always waits; `delegate`, `didEndSelector` and `block` are not looked at.
    static int alertSheetWithMessageText(const QString &messageText, const QString &defaultButton,
                                         const QString &alternateButton, const QString &otherButton,
                                         const QString &informativeText, AlertParent *parentWindow,
                                         AlertDelegate *delegate, const QString &didEndSelector, bool block);
    /// The full form. Without a delegate the alert object is its own; without a selector the end operation is
    /// alertDidEndSelector(). A delegate that does not respond to it ends the call with -1 and a line in the
    /// system log. A waiting call with a delegate of its own returns once that (or anything else) sets the
    /// alert object's alertEnded. `suppressionBinding` is a user-defaults key, see AlertKey.
    static int alertSheetWithMessageText(const QString &messageText, const QString &defaultButton,
                                         const QString &alternateButton, const QString &otherButton,
                                         const QString &informativeText, AlertParent *parentWindow,
                                         AlertDelegate *delegate, const QString &didEndSelector, bool block,
                                         const std::shared_ptr<QVAlert> &alertObject,
                                         const QString &suppressionBinding = {});
    /// Waits; when nobody has answered after `interval` seconds the alert disappears and the answer is 1.
    static int timedAlertSheetWithMessageText(const QString &messageText, const QString &defaultButton,
                                              const QString &alternateButton, const QString &otherButton,
                                              const QString &informativeText, AlertParent *parentWindow,
                                              double interval);

    /// Answers every alert that was raised for `parentWindow` with -1 and takes it off the screen; later ones
    /// for it are answered so at once. Main thread.
    static void closeAlertsForParent(AlertParent *parentWindow);
    /// Answers every alert on show with -1 and takes it off the screen. Main thread.
    static void closeAll() { endAll(nullptr); }

    /// The alert object's own end operation.
    static QString alertDidEndSelector() { return QStringLiteral("alertDidEnd:returnCode:contextInfo:"); }

    /// Shows the alert, and takes it off the screen when it is there. Main thread.
    void alertSheetWithDictionary(const AlertDescription &description);
    void closeAlert();
    /// Stores the answer and sets alertEnded. Any thread.
    void alertDidEnd(int code);
    /// Sleeps for `interval` seconds, then answers with 1; to be run on a thread of its own. Returns sooner,
    /// without a trace, when the call that shows the alert has returned by then.
    void defaultReturnAfterTimeInterval(double interval);

    /// Any thread.
    bool alertEnded() const;
    void setAlertEnded(bool ended);
    int returnCode() const;
    void setReturnCode(int code);

    bool respondsTo(const QString &selector) const override { return selector == alertDidEndSelector(); }
    void perform(const QString &selector, QVAlert *alert, int code) override;

private:
    QVAlert() = default;

    /// Ends every alert that was raised for the window; every one for null.
    static void endAll(AlertParent *parentWindow);
    void prepare(AlertParent *parentWindow, AlertDelegate *delegate, bool block);
    void waitForEnd();
    void finishCall();
    void answer(int code);
    void endWithoutAnswer();

    mutable std::mutex m_mutex; // guards the next four and is what m_changed waits on
    std::condition_variable m_changed;
    int m_returnCode = AlertAnswer::Other;
    bool m_alertEnded = false;
    bool m_intervalPassed = false; // before the alert was raised: it then ends at once
    bool m_callFinished = false;

    // Handed from the caller to the main thread with the work that shows the alert.
    AlertParent *m_parentWindow = nullptr;
    AlertDelegate *m_delegate = nullptr; // null: the alert itself
    bool m_callerWaits = false;

    // Main thread only.
    QString m_didEndSelector;
    std::shared_ptr<AlertPresenter> m_presenter; // the one that shows it
    AlertPresenter::AlertId m_alert = 0;         // 0: not on show
    AlertParent *m_raisedFor = nullptr;          // the window asked for, also when it carries another sheet
    quint64 m_showing = 0; // counts the times it was shown: late answers are passed over
    bool m_awaitsAnswer = false;
};

class AlertParent;
class MainThreadGate;

/// Shows an alert with one button, as QVAlert does, and waits until it has been answered or `isGivenUp`,
/// asked now and then, holds. Unlike a worker that waits in QVAlert, one that waits here ends also while
/// the main thread waits for it in turn. The parent may be null. With a gate (null for none) the alert is
/// shown through it, and the wait ends when it closes. Any thread.
void showAlertUntil(const QString &messageText, const QString &informativeText, AlertParent *parentWindow,
                    const std::shared_ptr<MainThreadGate> &gate, const std::function<bool()> &isGivenUp = {});

} // namespace vantrell
