#include "report/widgets/QVPrintViewController.h"

#include "support/widgets/NestedEvents.h"

#include <QCoreApplication>

namespace vantrell
{

QVPrintViewController *QVPrintViewController::printViewControllerWithView(QWidget *view, QObject *parent)
{
    auto *const controller = new QVPrintViewController(parent);
    controller->m_view = view;
    return controller;
}

void QVPrintViewController::updatePreview()
{
    m_dummyValue = !m_dummyValue;
    const NestedEvents nested;
    Q_EMIT dummyValueChanged();
    // The user's input waits: it could end what the caller works on.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace vantrell
