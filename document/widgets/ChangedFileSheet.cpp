#include "document/widgets/ChangedFileSheet.h"

#include "support/widgets/AlertBox.h"

#include <QPushButton>

#include <map>

namespace vantrell
{

ChangedFileSheet::ChangedFileSheet(const QString &fileName, QWidget *parent)
    : QMessageBox(parent)
{
    setUpAlert(
        *this, tr("“%1” was changed by another program.").arg(fileName),
        tr("Someone else has saved it since you opened it. If you overwrite it, those changes are lost; "
           "if you reload it, yours are."));
    QPushButton *const cancel = addButton(tr("Cancel"), RejectRole);
    setDefaultButton(cancel);
    setEscapeButton(cancel);
    const std::map<QAbstractButton *, Choice> choices{
        {addButton(tr("Overwrite"), DestructiveRole), Choice::Overwrite},
        {addButton(tr("Reload"), ActionRole), Choice::Reload},
        {addButton(tr("Save As…"), ActionRole), Choice::SaveAs}};
    connect(this, &QDialog::finished, this, [this, choices] {
        const auto choice = choices.find(clickedButton());
        deleteLater();
        Q_EMIT chosen(choice == choices.end() ? Choice::Cancel : choice->second);
    });
}

} // namespace vantrell
