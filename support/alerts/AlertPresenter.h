#pragma once

#include <QMap>
#include <QString>

#include <chrono>
#include <functional>

namespace vantrell
{

/// What an alert says, by the keys below. A key is there only when its value was given.
using AlertDescription = QMap<QString, QString>;

namespace AlertKey
{
inline const QString MessageText = QStringLiteral("messageText");
inline const QString InformativeText = QStringLiteral("informativeText");
/// Without a title the default button is the platform's "OK"; the other two are left out.
inline const QString DefaultButtonTitle = QStringLiteral("defaultButtonTitle");
inline const QString AlternateButtonTitle = QStringLiteral("alternateButtonTitle");
inline const QString OtherButtonTitle = QStringLiteral("otherButtonTitle");
/// The name of the operation that the alert's delegate performs at its end.
inline const QString DidEndSelector = QStringLiteral("didEndSelector");
/// A user-defaults key; the alert then has a suppression check box that shows and sets its value.
inline const QString SuppressionBinding = QStringLiteral("suppressionBinding");
} // namespace AlertKey

/// The codes with which an alert is answered.
namespace AlertAnswer
{
inline constexpr int Default = 1;
inline constexpr int Alternate = 0;
/// The other button; also that there is no answer: not waited for, not shown, or closed with its window.
inline constexpr int Other = -1;
} // namespace AlertAnswer

/// What an alert can be attached to; the windows that carry alerts derive from it. The core only passes
/// pointers to it around. It is made and destroyed on the main thread and outlives the workers that
/// raise alerts for it.
class AlertParent
{
public:
    AlertParent() = default;
    virtual ~AlertParent() = default;
    AlertParent(const AlertParent &) = delete;
    AlertParent &operator=(const AlertParent &) = delete;

    /// Whether it is closing: no alert is shown for it any more. Main thread.
    bool isClosing() const { return m_closing; }
    void setClosing() { m_closing = true; }
    /// What was closing is shown again.
    void setOpen() { m_closing = false; }

private:
    bool m_closing = false;
};

/// How alerts reach the screen. One presenter is installed at a time (QVAlert::setPresenter). All its
/// functions are called on the main thread, and it calls back on the main thread.
class AlertPresenter
{
public:
    /// Names an alert on show; never 0.
    using AlertId = quint64;
    using Answer = std::function<void(int code)>;

    AlertPresenter() = default;
    virtual ~AlertPresenter() = default;
    AlertPresenter(const AlertPresenter &) = delete;
    AlertPresenter &operator=(const AlertPresenter &) = delete;

    /// Shows an alert as a sheet on `parent`, or on its own when that is null, and returns without waiting.
    /// `answered` is called once with the code of the button that the user pressed, after the alert has left
    /// the screen; it may be called before begin() returns. Returns 0 when the alert cannot be shown.
    virtual AlertId begin(const AlertDescription &description, AlertParent *parent, Answer answered) = 0;
    /// Takes an alert off the screen without an answer; no effect when it is gone already.
    virtual void close(AlertId alert) = 0;
    /// Takes every alert on `parent` (null: every alert) off the screen without an answer.
    virtual void closeAll(AlertParent *parent) = 0;

    virtual bool parentHasSheet(AlertParent *parent) = 0;
    /// Brings the window to the front and makes it the one that has the keyboard.
    virtual void bringToFront(AlertParent *parent) = 0;
    /// Dispatches the next user-interface event that arrives within `limit`; returns when there was none.
    virtual void dispatchOneEvent(std::chrono::milliseconds limit) = 0;
};

} // namespace vantrell
