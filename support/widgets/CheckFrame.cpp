#include "support/widgets/CheckFrame.h"

#include <QApplication>
#include <QPainter>

namespace vantrell
{

void paintCheckFrame(QPainter &painter, const QStyleOption &box, CheckShape shape, bool isDim)
{
    if (box.palette.color(QPalette::Base).lightness() >= 128)
        return;
    QColor ink = box.palette.color(QPalette::Text);
    ink.setAlphaF(isDim ? 0.2F : 0.5F);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, 1));
    painter.setBrush(Qt::NoBrush);
    const QRectF frame = QRectF(box.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (shape == CheckShape::Box)
        painter.drawRoundedRect(frame, 2, 2);
    else
        painter.drawEllipse(frame);
    painter.restore();
}

void FramedCheckDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    if (!cell.features.testFlag(QStyleOptionViewItem::HasCheckIndicator))
        return;
    const QStyle &style = cell.widget ? *cell.widget->style() : *QApplication::style();
    cell.rect = style.subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &cell, cell.widget);
    const bool isUsable =
        index.flags().testFlag(Qt::ItemIsUserCheckable) && cell.state.testFlag(QStyle::State_Enabled);
    paintCheckFrame(*painter, cell, CheckShape::Box, !isUsable);
}

} // namespace vantrell
