#include "table/widgets/FocusReturn.h"

#include <QFocusEvent>
#include <QWidget>

#include <utility>

namespace vantrell
{

FocusReturn::FocusReturn(QWidget *table)
    : QObject(table)
    , m_table(table)
{
}

void FocusReturn::watch(QWidget *control)
{
    control->installEventFilter(this);
}

bool FocusReturn::eventFilter(QObject *object, QEvent *event)
{
    auto *const control = static_cast<QWidget *>(object);
    bool isUsed = false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        m_clicked = control;
        break;
    case QEvent::Wheel:
        m_clicked = control;
        isUsed = true;
        break;
    case QEvent::MouseButtonRelease:
        isUsed = true;
        break;
    case QEvent::FocusIn: // a pop-up's list was closed
        isUsed = static_cast<QFocusEvent *>(event)->reason() == Qt::PopupFocusReason;
        break;
    case QEvent::KeyPress:
        m_clicked = nullptr;
        break;
    default:
        break;
    }
    // After the control has done what it was clicked for.
    if (isUsed && m_clicked == control)
        QMetaObject::invokeMethod(this, &FocusReturn::giveBack, Qt::QueuedConnection);
    return false;
}

void FocusReturn::giveBack()
{
    const QPointer<QWidget> control = std::exchange(m_clicked, nullptr);
    if (!control)
        return;
    const QWidget *const focus = m_table->window()->focusWidget();
    // A control that was hidden or disabled has lost the focus to the next one.
    const bool isLost = !control->isVisible() || !control->isEnabled();
    if (focus == control || (isLost && focus != m_table && !m_table->isAncestorOf(focus)))
        m_table->setFocus();
}

} // namespace vantrell
