#include "table/widgets/EntryHint.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>

#include <algorithm>

namespace vantrell
{

EntryHint::EntryHint(QLineEdit &field, Tell tell)
    : QFrame(field.parentWidget())
    , m_field(field)
    , m_tell(std::move(tell))
    , m_symbol(new QLabel(this))
    , m_text(new QLabel(this))
{
    setFrameShape(QFrame::Box);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    m_symbol->setPixmap(
        style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this).pixmap(QSize(side, side)));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 3, 6, 3);
    layout->setSpacing(6);
    layout->addWidget(m_symbol, 0, Qt::AlignTop);
    layout->addWidget(m_text, 1);
    hide();
    connect(&field, &QLineEdit::textEdited, this, &EntryHint::follow);
    connect(&field, &QObject::destroyed, this, &QObject::deleteLater);
    field.installEventFilter(this);
}

void EntryHint::follow(const QString &typed)
{
    const std::optional<EntryNote> note = m_tell(typed);
    if (!note) {
        hide();
        return;
    }
    QStringList lines(note->text);
    lines += note->warnings;
    m_symbol->setVisible(!note->warnings.isEmpty());
    m_text->setText(lines.join(QLatin1Char('\n')));
    m_field.setAccessibleDescription(m_text->text());
    place();
    show();
    raise();
}

void EntryHint::place()
{
    const QRect room = parentWidget()->rect();
    const QMargins margins = layout()->contentsMargins();
    const int sides = margins.left() + margins.right() + 2 * frameWidth();
    const int symbol = m_symbol->isHidden() ? 0 : m_symbol->sizeHint().width() + layout()->spacing();
    int wanted = 0;
    for (const QString &line : m_text->text().split(QLatin1Char('\n')))
        wanted = std::max(wanted, m_text->fontMetrics().horizontalAdvance(line));
    const int textWidth = std::max(1, std::min(wanted + 2, room.width() - sides - symbol));
    const int textHeight = m_text->heightForWidth(textWidth);
    const int height = std::max(textHeight, symbol > 0 ? m_symbol->sizeHint().height() : 0) + margins.top() +
                       margins.bottom() + 2 * frameWidth();
    QRect place(m_field.geometry().bottomLeft() + QPoint(0, 1), QSize(textWidth + sides + symbol, height));
    if (place.right() > room.right())
        place.moveRight(room.right());
    if (place.left() < room.left())
        place.moveLeft(room.left());
    if (place.bottom() > room.bottom())
        place.moveBottom(m_field.geometry().top() - 1);
    setGeometry(place);
}

bool EntryHint::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Hide)
        hide();
    else if ((event->type() == QEvent::Move || event->type() == QEvent::Resize) && isVisible())
        place();
    return QFrame::eventFilter(object, event);
}

} // namespace vantrell
