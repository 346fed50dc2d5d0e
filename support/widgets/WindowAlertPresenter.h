#pragma once

#include "support/alerts/AlertPresenter.h"

#include <QMessageBox>
#include <QPointer>
#include <QWidget>

#include <map>

namespace vantrell
{

class UserDefaults;

/// A window as the parent of alerts. It may outlive the window: alerts for it then have no parent.
class WindowAlertParent final : public AlertParent
{
public:
    explicit WindowAlertParent(QWidget *window)
        : m_window(window)
    {
    }

    /// Null once the window is gone. Main thread.
    QWidget *window() const { return m_window; }

private:
    QPointer<QWidget> m_window;
};

/// Shows alerts as sheets, which are window-modal boxes on their window, or as a box of their own that
/// comes before every window. Main thread only.
class WindowAlertPresenter final : public AlertPresenter
{
public:
    /// The defaults hold what the suppression check boxes show and set; they outlive the presenter.
    explicit WindowAlertPresenter(UserDefaults &defaults)
        : m_defaults(defaults)
    {
    }
    ~WindowAlertPresenter() override { closeAll(nullptr); }

    AlertId begin(const AlertDescription &description, AlertParent *parent, Answer answered) override;
    void close(AlertId alert) override;
    void closeAll(AlertParent *parent) override;
    /// Whether the window carries any sheet, an alert or another.
    bool parentHasSheet(AlertParent *parent) override;
    void bringToFront(AlertParent *parent) override;
    void dispatchOneEvent(std::chrono::milliseconds limit) override;

private:
    struct Shown {
        AlertParent *parent;
        QPointer<QMessageBox> box;
    };

    void addSuppression(QMessageBox &box, const QString &key);

    UserDefaults &m_defaults;
    std::map<AlertId, Shown> m_shown;
    AlertId m_lastId = 0;
};

} // namespace vantrell
