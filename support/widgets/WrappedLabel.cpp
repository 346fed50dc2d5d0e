#include "support/widgets/WrappedLabel.h"

#include "support/widgets/SelectableLabel.h"

#include <QEvent>
#include <QRegularExpression>
#include <QTextDocument>

#include <algorithm>

namespace vantrell
{

static constexpr int narrowestLines = 20; // characters of average width

WrappedLabel::WrappedLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    makeSelectable(*this);
}

void WrappedLabel::setWhole(const QString &text)
{
    m_whole = text;
    fit();
}

QSize WrappedLabel::minimumSizeHint() const
{
    const QSize size = QLabel::minimumSizeHint();
    return {std::min(size.width(), fontMetrics().averageCharWidth() * narrowestLines), size.height()};
}

void WrappedLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    fit();
}

void WrappedLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fit();
}

void WrappedLabel::fit()
{
    static const QRegularExpression words(QStringLiteral("\\S+"));
    const int width = contentsRect().width() - 2 * margin() - 1;
    QString shown;
    qsizetype end = 0;
    for (auto match = words.globalMatch(m_whole); match.hasNext();) {
        const QRegularExpressionMatch word = match.next();
        shown += m_whole.mid(end, word.capturedStart() - end) +
                 fontMetrics().elidedText(word.captured(), Qt::ElideMiddle, width);
        end = word.capturedEnd();
    }
    shown += m_whole.mid(end);
    if (shown == text())
        return;
    setText(shown);
    setToolTip(shown == m_whole ? QString() : Qt::convertFromPlainText(m_whole, Qt::WhiteSpaceNormal));
}

} // namespace vantrell
