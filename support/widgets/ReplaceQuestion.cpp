#include "support/widgets/ReplaceQuestion.h"

#include "support/widgets/AlertBox.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace vantrell
{

void askToReplace(const QString &path, QWidget *window, const std::function<void(bool replaces)> &answered)
{
    const QFileInfo file(path);
    auto *const box = new QMessageBox(window);
    setUpAlert(
        *box,
        QCoreApplication::translate("ReplaceQuestion", "“%1” already exists. Do you want to replace it?")
            .arg(file.fileName()),
        QCoreApplication::translate("ReplaceQuestion", "What the file in “%1” contains will be lost.")
            .arg(file.path()));
    QPushButton *const cancel =
        box->addButton(QCoreApplication::translate("ReplaceQuestion", "Cancel"), QMessageBox::RejectRole);
    const QPushButton *const replace = box->addButton(
        QCoreApplication::translate("ReplaceQuestion", "Replace"), QMessageBox::DestructiveRole);
    box->setDefaultButton(cancel);
    box->setEscapeButton(cancel);
    QObject::connect(box, &QDialog::finished, window, [box, replace, answered] {
        const bool replaces = box->clickedButton() == replace;
        box->deleteLater();
        answered(replaces);
    });
    box->open();
}

} // namespace vantrell
