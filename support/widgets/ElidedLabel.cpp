#include "support/widgets/ElidedLabel.h"

#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>

namespace vantrell
{

static constexpr int narrowestLabel = 8; // characters of average width

QSize ElidedLabel::minimumSizeHint() const
{
    return {std::min(sizeHint().width(), fontMetrics().averageCharWidth() * narrowestLabel),
            QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::isElided() const
{
    return fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !isElided())
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                       Qt::convertFromPlainText(text(), Qt::WhiteSpaceNormal), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent *event)
{
    if (!isElided() || hasSelectedText()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
    style()->drawItemText(&painter, contentsRect(), QStyle::visualAlignment(layoutDirection(), alignment()),
                          palette(), isEnabled(), shown, foregroundRole());
}

} // namespace vantrell
