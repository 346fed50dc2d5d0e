#include "app/FramedCheckStyle.h"

#include "support/widgets/CheckFrame.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QStyleOption>

namespace vantrell
{

namespace
{

const QString fusion = QStringLiteral("fusion");

} // namespace

FramedCheckStyle::FramedCheckStyle()
    : QProxyStyle(fusion)
{
}

void FramedCheckStyle::install()
{
    if (QApplication::style()->name() == fusion)
        QApplication::setStyle(new FramedCheckStyle);
}

void FramedCheckStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                     const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (qobject_cast<const QAbstractItemView *>(widget))
        return;
    const bool isDim = !option->state.testFlag(State_Enabled);
    if (element == PE_IndicatorCheckBox)
        paintCheckFrame(*painter, *option, CheckShape::Box, isDim);
    else if (element == PE_IndicatorRadioButton)
        paintCheckFrame(*painter, *option, CheckShape::Circle, isDim);
}

} // namespace vantrell
