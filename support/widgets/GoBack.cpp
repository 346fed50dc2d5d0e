#include "support/widgets/GoBack.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <vector>

namespace vantrell
{

void goBackTo(QWidget &window)
{
    std::vector<QPointer<QWidget>> windows;
    for (QWidget *next = &window; next;
         next = next->parentWidget() ? next->parentWidget()->window() : nullptr)
        windows.emplace_back(next);
    QTimer::singleShot(0, qApp, [windows] {
        if (QApplication::activeModalWidget())
            return;
        for (const QPointer<QWidget> &shown : windows) {
            if (shown && shown->isVisible()) {
                shown->activateWindow();
                return;
            }
        }
    });
}

} // namespace vantrell
