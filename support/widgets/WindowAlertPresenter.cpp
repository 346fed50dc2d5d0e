#include "support/widgets/WindowAlertPresenter.h"

#include "support/settings/UserDefaults.h"
#include "support/widgets/AlertBox.h"
#include "support/widgets/NestedEvents.h"
#include "support/widgets/ShownText.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDialog>
#include <QEventLoop>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <utility>
#include <vector>

namespace vantrell
{

namespace
{

QWidget *windowOf(AlertParent *parent)
{
    const auto *windowParent = dynamic_cast<WindowAlertParent *>(parent);
    return windowParent ? windowParent->window() : nullptr;
}

bool isCancel(const QString &title)
{
    const QString cancel = QStringLiteral("Cancel");
    return title == cancel || title == shownMessage(cancel) ||
           title == QCoreApplication::translate("Alert", "Cancel");
}

/// Texts of the core come in English.
AlertDescription inWindowLanguage(const AlertDescription &description)
{
    AlertDescription shown = description;
    for (const QString &key : {AlertKey::MessageText, AlertKey::InformativeText, AlertKey::DefaultButtonTitle,
                               AlertKey::AlternateButtonTitle, AlertKey::OtherButtonTitle}) {
        if (const auto text = shown.find(key); text != shown.end())
            *text = shownMessage(*text);
    }
    return shown;
}

/// The buttons, in the order that the platform gives to their roles, each with its answer. Escape presses
/// "Cancel" if there is one, else the alternate button, else the default one.
std::map<QAbstractButton *, int> addButtons(QMessageBox &box, const AlertDescription &description)
{
    std::map<QAbstractButton *, int> answers;
    const QString title = description.value(AlertKey::DefaultButtonTitle);
    const QString alternate = description.value(AlertKey::AlternateButtonTitle);
    const QString other = description.value(AlertKey::OtherButtonTitle);
    const bool defaultCancels = isCancel(title);
    const bool otherCancels = isCancel(other);

    QPushButton *const button =
        title.isEmpty()
            ? box.addButton(QMessageBox::Ok)
            : box.addButton(title, defaultCancels ? QMessageBox::RejectRole : QMessageBox::AcceptRole);
    answers[button] = AlertAnswer::Default;
    box.setDefaultButton(button);
    box.setEscapeButton(button);
    if (!alternate.isEmpty()) {
        const auto role = otherCancels     ? QMessageBox::DestructiveRole
                          : defaultCancels ? QMessageBox::AcceptRole
                                           : QMessageBox::RejectRole;
        QPushButton *const alternateButton = box.addButton(alternate, role);
        answers[alternateButton] = AlertAnswer::Alternate;
        if (!defaultCancels)
            box.setEscapeButton(alternateButton);
    }
    if (!other.isEmpty()) {
        QPushButton *const otherButton =
            box.addButton(other, otherCancels ? QMessageBox::RejectRole : QMessageBox::DestructiveRole);
        answers[otherButton] = AlertAnswer::Other;
        if (otherCancels)
            box.setEscapeButton(otherButton);
    }
    return answers;
}

} // namespace

AlertPresenter::AlertId WindowAlertPresenter::begin(const AlertDescription &english, AlertParent *parent,
                                                    Answer answered)
{
    const AlertDescription description = inWindowLanguage(english);
    QWidget *const window = windowOf(parent);
    auto *const box = new QMessageBox(window);
    setUpAlert(*box, description.value(AlertKey::MessageText), description.value(AlertKey::InformativeText));
    const auto answers = addButtons(*box, description);
    addSuppression(*box, description.value(AlertKey::SuppressionBinding));

    const AlertId alert = ++m_lastId;
    m_shown[alert] = {parent, box};
    QObject::connect(box, &QDialog::finished, box, [this, alert, box, answers, answered] {
        m_shown.erase(alert);
        box->deleteLater();
        const auto answer = answers.find(box->clickedButton());
        answered(answer == answers.end() ? AlertAnswer::Other : answer->second);
    });
    box->show();
    return alert;
}

void WindowAlertPresenter::close(AlertId alert)
{
    const auto shown = m_shown.find(alert);
    if (shown == m_shown.end())
        return;
    const QPointer<QMessageBox> box = shown->second.box;
    m_shown.erase(shown);
    if (!box) // its window went first and took it along
        return;
    box->disconnect();
    box->hide();
    box->deleteLater();
}

void WindowAlertPresenter::closeAll(AlertParent *parent)
{
    std::vector<AlertId> alerts;
    for (const auto &[alert, shown] : m_shown) {
        if (!parent || shown.parent == parent)
            alerts.push_back(alert);
    }
    for (const AlertId alert : alerts)
        close(alert);
}

bool WindowAlertPresenter::parentHasSheet(AlertParent *parent)
{
    const QWidget *const window = windowOf(parent);
    if (!window)
        return false;
    for (const QDialog *const dialog : window->findChildren<QDialog *>()) {
        if (dialog->isVisible() && dialog->isModal())
            return true;
    }
    return false;
}

void WindowAlertPresenter::bringToFront(AlertParent *parent)
{
    QWidget *const window = windowOf(parent);
    if (!window || !window->isVisible())
        return;
    if (window->isMinimized())
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->raise();
    window->activateWindow();
}

void WindowAlertPresenter::dispatchOneEvent(std::chrono::milliseconds limit)
{
    const NestedEvents nested;
    QTimer wakeUp; // an event that comes in any case
    wakeUp.setSingleShot(true);
    wakeUp.start(limit);
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

void WindowAlertPresenter::addSuppression(QMessageBox &box, const QString &key)
{
    if (key.isEmpty())
        return;
    auto *const checkBox =
        new QCheckBox(QCoreApplication::translate("Alert", "Do not show this message again"));
    checkBox->setChecked(m_defaults.boolean(key));
    UserDefaults *const defaults = &m_defaults;
    QObject::connect(checkBox, &QCheckBox::toggled, checkBox,
                     [defaults, key](bool checked) { defaults->setValue(key, checked); });
    QObject::connect(defaults, &UserDefaults::changed, checkBox,
                     [defaults, key, checkBox](const QString &changed) {
                         if (changed == key)
                             checkBox->setChecked(defaults->boolean(key));
                     });
    box.setCheckBox(checkBox);
}

} // namespace vantrell
