#include "markers/widgets/MarkerOffsetSheet.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace vantrell
{

MarkerOffsetSheet::MarkerOffsetSheet(QWidget *parent)
    : QDialog(parent, Qt::Sheet)
    , m_markerOffsetText(new QLineEdit(this))
{
    setWindowTitle(tr("Offset Markers"));
    setWindowModality(Qt::WindowModal);
    auto *label = new QLabel(tr("Move the in points of the selected markers &by:"), this);
    label->setBuddy(m_markerOffsetText);
    auto *hint =
        new QLabel(tr("Frames, such as 12 or -12, or a timecode, such as 00:00:01:00 or -1:00."), this);
    hint->setWordWrap(true);
    hint->setForegroundRole(QPalette::PlaceholderText);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setEnabled(false);
    auto *layout = new QVBoxLayout(this);
    for (QWidget *widget : std::initializer_list<QWidget *>{label, m_markerOffsetText, hint, buttons})
        layout->addWidget(widget);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_markerOffsetText, &QLineEdit::textChanged, this, [buttons](const QString &text) {
        buttons->button(QDialogButtonBox::Ok)->setEnabled(!text.trimmed().isEmpty());
    });
    m_markerOffsetText->setFocus();
}

QString MarkerOffsetSheet::text() const
{
    return m_markerOffsetText->text();
}

} // namespace vantrell
