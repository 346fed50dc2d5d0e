#pragma once

#include <QStyledItemDelegate>

class QPainter;

namespace vantrell
{

enum class CheckShape { Box, Circle };

/// Paints the frame of a check box, or a radio button, in the rectangle of the option on a dark background,
/// where that of most styles cannot be seen; nothing on a light one.
void paintCheckFrame(QPainter &painter, const QStyleOption &box, CheckShape shape, bool isDim);

/// Paints the cells of the style, and frames their check boxes. Main thread.
class FramedCheckDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};

} // namespace vantrell
