#include "markers/widgets/OverviewPopUp.h"

#include <QStyleOptionComboBox>

namespace vantrell
{

OverviewPopUp::OverviewPopUp(QWidget *parent)
    : ControlPopUp(parent)
{
}

void OverviewPopUp::setFollowedTitle(const QString &title)
{
    m_followed = title;
    update();
}

void OverviewPopUp::initStyleOption(QStyleOptionComboBox *option) const
{
    ControlPopUp::initStyleOption(option);
    if (currentIndex() == 0 && !m_followed.isEmpty())
        option->currentText = m_followed;
}

} // namespace vantrell
