#include "table/widgets/ControlPopUp.h"

#include <QAbstractItemView>
#include <QScrollBar>
#include <QStylePainter>

#include <algorithm>

namespace vantrell
{

namespace
{

constexpr int widestClosed = 24; // characters of average width
constexpr int widestOpen = 60;

} // namespace

ControlPopUp::ControlPopUp(QWidget *parent)
    : QComboBox(parent)
{
    setSizeAdjustPolicy(AdjustToContents);
    setMaximumWidth(fontMetrics().averageCharWidth() * widestClosed);
    setMaxVisibleItems(24);
}

void ControlPopUp::showPopup()
{
    const int content = view()->sizeHintForColumn(0) + view()->verticalScrollBar()->sizeHint().width();
    view()->setMinimumWidth(std::min(content, fontMetrics().averageCharWidth() * widestOpen));
    QComboBox::showPopup();
}

QSize ControlPopUp::sizeHint() const
{
    return QComboBox::sizeHint() + QSize(fontMetrics().averageCharWidth() * 3 / 2, 0);
}

void ControlPopUp::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    const int iconWidth = option.currentIcon.isNull() ? 0 : option.iconSize.width() + 4;
    const int margin = fontMetrics().averageCharWidth() / 2;
    option.currentText =
        fontMetrics().elidedText(option.currentText, Qt::ElideRight, field.width() - iconWidth - 2 * margin);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

} // namespace vantrell
