#include "table/widgets/SearchBar.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTimer>

#include <algorithm>

namespace vantrell
{

namespace
{

// In characters of average width
constexpr int narrowestField = 12;
constexpr int widestField = 40;
constexpr int narrowestPopUp = 15;
constexpr int narrowestCounts = 36;

} // namespace

/// A text at the right that is shortened where it has no place, and then shown by its tool tip.
class CountLabel : public QLabel
{
public:
    using QLabel::QLabel;

    void setTexts(const QString &text, const QString &shorter)
    {
        m_shorter = shorter.isEmpty() ? text : shorter;
        setText(text);
        updateGeometry();
        update();
    }

    QSize minimumSizeHint() const override
    {
        return {std::min(fontMetrics().horizontalAdvance(m_shorter) + 1,
                         fontMetrics().averageCharWidth() * narrowestCounts),
                QLabel::minimumSizeHint().height()};
    }

    QString shownText() const
    {
        const bool fits = fontMetrics().horizontalAdvance(text()) <= width();
        return fits ? text() : fontMetrics().elidedText(m_shorter, Qt::ElideRight, width());
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const QString shown = shownText();
        setToolTip(shown == text() ? QString() : text());
        QPainter painter(this);
        painter.setPen(palette().color(foregroundRole()));
        painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, shown);
    }

private:
    QString m_shorter;
};

SearchBar::SearchBar(QWidget *parent)
    : QWidget(parent)
    , m_line(new QHBoxLayout(this))
    , m_field(new QLineEdit(this))
    , m_counts(new CountLabel(this))
    , m_change(new QTimer(this))
{
    m_line->setContentsMargins(0, 0, 0, 0);
    m_line->addWidget(m_field, 2);
    m_line->addWidget(m_counts, 3);
    m_field->setPlaceholderText(tr("Search"));
    m_field->setClearButtonEnabled(true);
    m_field->setAcceptDrops(false); // a file that is dropped there is opened
    const int characterWidth = fontMetrics().averageCharWidth();
    m_field->setMinimumWidth(characterWidth * narrowestField);
    m_field->setMaximumWidth(characterWidth * widestField);
    m_field->installEventFilter(this);
    m_counts->setTextFormat(Qt::PlainText);
    m_counts->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    m_change->setSingleShot(true);
    m_change->setInterval(0);
    connect(m_field, &QLineEdit::textChanged, m_change, qOverload<>(&QTimer::start));
    connect(m_change, &QTimer::timeout, this, &SearchBar::changed);
}

QString SearchBar::text() const
{
    return m_field->text();
}

void SearchBar::addPopUp(QComboBox *popUp)
{
    m_line->insertWidget(m_line->indexOf(m_counts), popUp);
    popUp->setMinimumWidth(fontMetrics().averageCharWidth() * narrowestPopUp);
    setTabOrder(m_popUps.isEmpty() ? static_cast<QWidget *>(m_field) : m_popUps.last(), popUp);
    m_popUps.append(popUp);
    connect(popUp, &QComboBox::activated, this, &SearchBar::applyNow);
}

void SearchBar::clear()
{
    for (QComboBox *const popUp : std::as_const(m_popUps))
        popUp->setCurrentIndex(0);
    m_field->clear();
    applyNow();
}

bool SearchBar::isNarrowing() const
{
    return !text().isEmpty() || std::any_of(m_popUps.begin(), m_popUps.end(),
                                            [](const QComboBox *popUp) { return popUp->currentIndex() > 0; });
}

void SearchBar::setCounts(const QString &text, const QString &shorter)
{
    m_counts->setTexts(text, shorter);
}

QString SearchBar::counts() const
{
    return m_counts->text();
}

QString SearchBar::shownCounts() const
{
    return m_counts->shownText();
}

void SearchBar::applyNow()
{
    m_change->stop();
    Q_EMIT changed();
}

bool SearchBar::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        if (handleKey(static_cast<QKeyEvent *>(event)->key()))
            return true;
        break;
    case QEvent::FocusIn:
        Q_EMIT entered();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(object, event);
}

bool SearchBar::handleKey(int key)
{
    switch (key) {
    case Qt::Key_Escape:
        if (text().isEmpty()) {
            Q_EMIT left();
        } else {
            m_field->clear();
            applyNow();
        }
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        applyNow();
        Q_EMIT left();
        return true;
    default:
        return false;
    }
}

} // namespace vantrell
