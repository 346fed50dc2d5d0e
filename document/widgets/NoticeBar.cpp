#include "document/widgets/NoticeBar.h"

#include "support/widgets/SelectableLabel.h"
#include "support/widgets/ShownText.h"
#include "support/widgets/SymbolIcon.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

namespace vantrell
{

NoticeBar::NoticeBar(QWidget *parent)
    : QFrame(parent)
    , m_text(new QLabel(this))
    , m_dismiss(new QToolButton(this))
    , m_action(new QPushButton(this))
{
    setBackgroundRole(QPalette::AlternateBase);
    setAutoFillBackground(true);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    auto *const icon = new SymbolView(
        themeIcon({QStringLiteral("dialog-warning-symbolic")}, QStringLiteral(":/icons/warning.svg")), side,
        this);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    makeSelectable(*m_text);
    m_dismiss->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    m_dismiss->setAutoRaise(true);
    m_dismiss->setToolTip(tr("Dismiss"));
    m_dismiss->setAccessibleName(tr("Dismiss notice"));
    connect(m_dismiss, &QToolButton::clicked, this, &QWidget::hide);
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(10, 5, 6, 5);
    layout->addWidget(icon);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_action);
    layout->addWidget(m_dismiss);
    m_action->hide();
    hide();
}

void NoticeBar::setNotice(const QString &text, Kind kind)
{
    m_kind = kind;
    m_text->setText(shownMessage(text));
    m_dismiss->setVisible(kind == Kind::Dismissible);
    setVisible(!text.isEmpty());
    if (isVisible()) {
        QAccessibleEvent event(m_text, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

void NoticeBar::setAction(const QString &title, std::function<void()> action)
{
    m_action->setText(title);
    m_action->show();
    connect(m_action, &QPushButton::clicked, this, [this, action = std::move(action)] {
        hide();
        action();
    });
}

void NoticeBar::setVisible(bool visible)
{
    const bool leavesFocus = !visible && isAncestorOf(window()->focusWidget());
    QFrame::setVisible(visible);
    if (leavesFocus)
        Q_EMIT focusLeft();
}

QString NoticeBar::notice() const
{
    return isHidden() ? QString() : m_text->text();
}

} // namespace vantrell
