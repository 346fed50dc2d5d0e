#include "support/widgets/SymbolView.h"

#include <QPainter>

namespace vantrell
{

SymbolView::SymbolView(const QIcon &icon, int side, QWidget *parent)
    : QWidget(parent)
    , m_icon(icon)
{
    setFixedSize(side, side);
}

void SymbolView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_icon.paint(&painter, rect());
}

} // namespace vantrell
