#include "support/widgets/MessageLine.h"

#include "support/widgets/WrappedLabel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPushButton>

namespace vantrell
{

MessageLine::MessageLine(QWidget *parent)
    : QWidget(parent)
    , m_text(new WrappedLabel(this))
    , m_copy(new QPushButton(tr("Copy Path"), this))
{
    m_copy->hide();
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_copy, 0, Qt::AlignTop);
    connect(m_copy, &QPushButton::clicked, this, [this] { QGuiApplication::clipboard()->setText(m_path); });
    hide();
}

void MessageLine::setMessage(const QString &text, const QString &path)
{
    m_path = path;
    m_copy->setVisible(!path.isEmpty());
    m_copy->setToolTip(path);
    m_text->setWhole(text.isEmpty() ? text : text + QLatin1Char('.'));
    setVisible(!text.isEmpty());
}

} // namespace vantrell
