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
constexpr int widestNarrow = 21;
constexpr int widestOpen = 60;

} // namespace

ControlPopUp::ControlPopUp(QWidget *parent)
    : QComboBox(parent)
{
    setSizeAdjustPolicy(AdjustToContents);
    setMaximumWidth(fontMetrics().averageCharWidth() * widestClosed);
    setMaxVisibleItems(24);
    connect(this, &QComboBox::currentTextChanged, this, &ControlPopUp::updateGeometry);
}

void ControlPopUp::showPopup()
{
    int content = view()->sizeHintForColumn(0) + view()->verticalScrollBar()->sizeHint().width();
    // Styles that draw the list as a menu do not ask for the column of its icons.
    if (!itemIcon(count() - 1).isNull())
        content += iconSize().width() + 2 * fontMetrics().averageCharWidth();
    view()->setMinimumWidth(std::min(content, fontMetrics().averageCharWidth() * widestOpen));
    QComboBox::showPopup();
}

/// On either side of the title.
int ControlPopUp::margin() const
{
    return fontMetrics().averageCharWidth() / 2;
}

/// The styles leave a title less place than they take for it.
int ControlPopUp::missingWidth() const
{
    constexpr int contentWidth = 200;
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QSize size = style()->sizeFromContents(QStyle::CT_ComboBox, &option,
                                                 QSize(contentWidth, fontMetrics().height()), this);
    option.rect = QRect(QPoint(), size);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    const int missing = contentWidth + 2 * margin() + 2 - field.width();
    return std::max(missing, fontMetrics().averageCharWidth() * 3 / 2);
}

QSize ControlPopUp::sizeHint() const
{
    return QComboBox::sizeHint() + QSize(missingWidth(), 0);
}

QSize ControlPopUp::minimumSizeHint() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const int icon = option.currentIcon.isNull() ? 0 : option.iconSize.width() + 4;
    const QSize content(fontMetrics().horizontalAdvance(option.currentText) + icon, fontMetrics().height());
    const int needed =
        style()->sizeFromContents(QStyle::CT_ComboBox, &option, content, this).width() + missingWidth();
    const QSize usual = QComboBox::sizeHint();
    return {
        std::min({needed, usual.width() + missingWidth(), fontMetrics().averageCharWidth() * widestNarrow}),
        usual.height()};
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
    option.currentText = fontMetrics().elidedText(option.currentText, Qt::ElideRight,
                                                  field.width() - iconWidth - 2 * margin());
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

} // namespace vantrell
