#include "app/AboutPanel.h"

#include "support/text/TextFormat.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QVBoxLayout>

namespace vantrell
{

AboutPanel *AboutPanel::load(QWidget *parent)
{
    QFile file(QStringLiteral(":/about/QVAbout.html"));
    if (!file.open(QIODevice::ReadOnly))
        return nullptr;
    QString format = QString::fromUtf8(file.readAll());
    for (const char *const text :
         {QT_TR_NOOP("Version %@"), QT_TR_NOOP("Media, effects and markers of an editing project."),
          QT_TR_NOOP("Made by Orvandel.")})
        format.replace(QString::fromUtf8(text), tr(text));
    return new AboutPanel(formatText(format, QCoreApplication::applicationVersion()), parent);
}

AboutPanel::AboutPanel(const QString &html, QWidget *parent)
    : QDialog(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("About Vantrell"));
    auto *const icon = new QLabel(this);
    icon->setPixmap(QIcon(QStringLiteral(":/icons/vantrell.svg")).pixmap(96, 96));
    icon->setAlignment(Qt::AlignTop);
    auto *const text = new QLabel(html, this);
    text->setTextFormat(Qt::RichText);
    text->setTextInteractionFlags(Qt::TextBrowserInteraction);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *const content = new QHBoxLayout;
    content->setSpacing(20);
    content->addWidget(icon);
    content->addWidget(text, 1);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 16);
    layout->addLayout(content);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace vantrell
