#include "document/widgets/PopUpCell.h"

namespace vantrell
{

PopUpCell::PopUpCell(QWidget *parent)
    : QComboBox(parent)
{
    connect(this, &QComboBox::activated, this, [this] {
        m_isChosen = true;
        Q_EMIT chosen();
    });
}

void PopUpCell::hidePopup()
{
    QComboBox::hidePopup();
    Q_EMIT popupHidden();
}

} // namespace vantrell
