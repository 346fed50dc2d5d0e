#include "media/widgets/SharesBar.h"

#include <QEvent>
#include <QHelpEvent>
#include <QLocale>
#include <QPainter>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace vantrell
{

namespace
{

constexpr int narrowestBar = 24; // characters of average width

QString percentText(double part)
{
    if (part > 0 && part < 0.01)
        return SharesBar::tr("<1 %");
    return SharesBar::tr("%1 %").arg(QLocale().toString(int(part * 100 + 0.5)));
}

} // namespace

SharesBar::SharesBar(const QString &title, QWidget *parent)
    : QWidget(parent)
    , m_title(title)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QString SharesBar::textOf(const Share &share)
{
    return tr("%1 %2 (%3)", "name, size, percentage").arg(share.name, share.figure, percentText(share.part));
}

void SharesBar::setShares(std::vector<Share> shares)
{
    m_shares = std::move(shares);
    QStringList texts;
    for (const Share &share : m_shares)
        texts.append(textOf(share));
    setAccessibleDescription(texts.join(QStringLiteral(", ")));
    update();
}

QSize SharesBar::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * narrowestBar * 2, minimumSizeHint().height()};
}

QSize SharesBar::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * narrowestBar, fontMetrics().height() * 2};
}

/// Above the line with the names.
QRect SharesBar::barRect() const
{
    const int line = fontMetrics().height();
    return {0, line / 4, width(), line * 5 / 8};
}

QRect SharesBar::partRect(std::size_t share) const
{
    const QRect bar = barRect();
    double before = 0;
    for (std::size_t i = 0; i < share; ++i)
        before += m_shares[i].part;
    const int left = int(before * bar.width() + 0.5);
    const int right = int((before + m_shares[share].part) * bar.width() + 0.5);
    return {bar.left() + left, bar.top(), right - left, bar.height()};
}

const SharesBar::Share *SharesBar::shareAt(const QPoint &position) const
{
    for (std::size_t i = 0; i < m_shares.size(); ++i) {
        if (partRect(i).contains(position))
            return &m_shares[i];
    }
    return nullptr;
}

bool SharesBar::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *const help = static_cast<QHelpEvent *>(event);
    const Share *const pointed = shareAt(help->pos());
    QString text = pointed ? textOf(*pointed) : m_title;
    for (const Share &share : m_shares) {
        if (!pointed)
            text += QLatin1Char('\n') + textOf(share);
    }
    QToolTip::showText(help->globalPos(), Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal), this);
    return true;
}

void SharesBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QColor ground = palette().color(QPalette::WindowText);
    ground.setAlphaF(0.12F);
    painter.fillRect(barRect(), ground);
    const QColor gap = palette().color(QPalette::Window);
    for (std::size_t i = 0; i < m_shares.size(); ++i) {
        QRect part = partRect(i);
        if (i > 0 && part.width() > 2) {
            painter.fillRect(part, gap);
            part.setLeft(part.left() + 1);
        }
        painter.fillRect(part, m_shares[i].color);
    }
    paintLegend(painter);
}

void SharesBar::paintLegend(QPainter &painter) const
{
    const int line = fontMetrics().height();
    const int space = fontMetrics().averageCharWidth();
    const int top = line;
    const auto write = [&](int left, const QString &text, QPalette::ColorRole role, int right) {
        painter.setPen(palette().color(role));
        painter.drawText(QRect(left, top, right - left, line), Qt::AlignLeft | Qt::AlignVCenter,
                         fontMetrics().elidedText(text, Qt::ElideRight, right - left));
        return left + fontMetrics().horizontalAdvance(text);
    };
    int left = write(0, m_title, QPalette::PlaceholderText, width()) + space;
    for (std::size_t i = 0; i < m_shares.size(); ++i) {
        const QString text = textOf(m_shares[i]);
        const QString others =
            tr("+%1", "further shares").arg(QLocale().toString(qulonglong(m_shares.size() - i)));
        const int swatch = line / 2;
        const int needed = swatch + space / 2 + fontMetrics().horizontalAdvance(text);
        const bool isLast = i + 1 == m_shares.size();
        const int room = width() - (isLast ? 0 : space * 2 + fontMetrics().horizontalAdvance(others));
        if (i > 0 && left + needed > room) {
            write(left, others, QPalette::PlaceholderText, width());
            return;
        }
        painter.fillRect(left, top + (line - swatch) / 2, swatch, swatch, m_shares[i].color);
        left = write(left + swatch + space / 2, text, QPalette::WindowText, room) + space * 2;
    }
}

} // namespace vantrell
