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
    // User input could delete objects that the caller is using.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace vantrell
