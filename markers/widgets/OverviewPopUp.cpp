#include "markers/widgets/OverviewPopUp.h"

#include <QStyle>
#include <QStyleOptionComboBox>

namespace vantrell
{

OverviewPopUp::OverviewPopUp(QWidget *parent)
    : ControlPopUp(parent)
{
}

void OverviewPopUp::setShownTitle(const QString &title)
{
    m_shown = title;
    update();
}

void OverviewPopUp::initStyleOption(QStyleOptionComboBox *option) const
{
    ControlPopUp::initStyleOption(option);
    if (!m_shown.isEmpty())
        option->currentText = m_shown;
    // The names of sequences differ at their ends.
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxEditField, this);
    option->currentText = fontMetrics().elidedText(option->currentText, Qt::ElideMiddle,
                                                   field.width() - fontMetrics().averageCharWidth() - 2);
}

} // namespace vantrell
