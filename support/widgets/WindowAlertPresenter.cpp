#include "support/widgets/WindowAlertPresenter.h"

#include "support/settings/UserDefaults.h"
#include "support/widgets/NestedEvents.h"
#include "support/widgets/ShownText.h"

#include <QCheckBox>
#include <QClipboard>
#include <QCoreApplication>
#include <QDialog>
#include <QEventLoop>
#include <QFont>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextDocument>
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

constexpr QChar wordJoiner(0x2060);
constexpr int minimumWidth = 380;     // pixels, of the texts
constexpr int maximumWordWidth = 420; // pixels

/// The text with its paths kept on one line each, and words that are too wide elided in the middle.
QString fitted(const QString &text, const QFontMetrics &metrics)
{
    static const QRegularExpression words(QStringLiteral("\\S+"));
    QString result;
    qsizetype end = 0;
    for (auto match = words.globalMatch(text); match.hasNext();) {
        const QRegularExpressionMatch word = match.next();
        QString shown = metrics.elidedText(word.captured(), Qt::ElideMiddle, maximumWordWidth);
        // A line could be broken behind the slashes.
        if (shown.count(QLatin1Char('/')) > 1)
            shown.replace(QLatin1Char('/'), QString(QLatin1Char('/')) + wordJoiner);
        result += text.mid(end, word.capturedStart() - end) + shown;
        end = word.capturedEnd();
    }
    return result + text.mid(end);
}

/// Copies the texts of an alert as they are, not as they are shown.
class CopiesTexts final : public QObject
{
public:
    CopiesTexts(QMessageBox &box, const AlertDescription &description)
        : QObject(&box)
        , m_texts(description.value(AlertKey::MessageText) + QLatin1Char('\n') +
                  description.value(AlertKey::InformativeText))
    {
        box.installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress ||
            !static_cast<QKeyEvent *>(event)->matches(QKeySequence::Copy))
            return false;
        QGuiApplication::clipboard()->setText(m_texts);
        return true;
    }

private:
    QString m_texts;
};

/// Both texts literally, even if they look like markup: the message in bold, the explanation below.
void setTexts(QMessageBox &box, const AlertDescription &description)
{
    new CopiesTexts(box, description);
    box.setTextFormat(Qt::PlainText);
    box.setText(description.value(AlertKey::MessageText));
    box.setInformativeText(description.value(AlertKey::InformativeText));
    for (QLabel *const label : box.findChildren<QLabel *>()) {
        label->setTextFormat(Qt::PlainText);
        if (label->text().isEmpty())
            continue;
        if (label->text() == description.value(AlertKey::MessageText)) {
            QFont bold = label->font();
            bold.setBold(true);
            label->setFont(bold);
        }
        label->setMinimumWidth(minimumWidth);
        const QString whole = label->text();
        const QString shown = fitted(whole, QFontMetrics(label->font()));
        if (shown == whole)
            continue;
        label->setText(shown);
        if (shown.contains(QChar(0x2026)) && !whole.contains(QChar(0x2026)))
            label->setToolTip(Qt::convertFromPlainText(whole, Qt::WhiteSpaceNormal));
    }
}

} // namespace

void WindowAlertPresenter::setIcon(QMessageBox &box)
{
    constexpr int side = 48;
    const QIcon icon = QGuiApplication::windowIcon();
    if (icon.isNull())
        box.setIcon(QMessageBox::Warning);
    else
        box.setIconPixmap(icon.pixmap(QSize(side, side), box.devicePixelRatio()));
}

AlertPresenter::AlertId WindowAlertPresenter::begin(const AlertDescription &english, AlertParent *parent,
                                                    Answer answered)
{
    const AlertDescription description = inWindowLanguage(english);
    QWidget *const window = windowOf(parent);
    auto *const box = new QMessageBox(window);
    box->setWindowTitle(QCoreApplication::applicationName());
    setIcon(*box);
    setTexts(*box, description);
    const auto answers = addButtons(*box, description);
    addSuppression(*box, description.value(AlertKey::SuppressionBinding));
    box->setWindowModality(window ? Qt::WindowModal : Qt::ApplicationModal);

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
