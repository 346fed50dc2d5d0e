#include "markers/widgets/MarkerOffsetSheet.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace vantrell
{

MarkerOffsetSheet::MarkerOffsetSheet(const QString &rate, Preview preview, QWidget *parent)
    : QDialog(parent, Qt::Sheet)
    , m_preview(std::move(preview))
    , m_markerOffsetText(new QLineEdit(this))
    , m_result(new QLabel(this))
{
    setWindowTitle(tr("Offset Markers"));
    setWindowModality(Qt::WindowModal);
    auto *label = new QLabel(tr("Move the in points of the selected markers &by:"), this);
    label->setBuddy(m_markerOffsetText);
    auto *hint = new QLabel(tr("Frames, such as 12 or -12, or a timecode, such as 00:00:01:00 or -1:00.") +
                                QLatin1Char('\n') + rate,
                            this);
    hint->setTextFormat(Qt::PlainText);
    m_result->setTextFormat(Qt::PlainText);
    m_result->setWordWrap(true);
    m_result->setMinimumHeight(3 * fontMetrics().lineSpacing());
    m_result->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    hint->setWordWrap(true);
    hint->setForegroundRole(QPalette::PlaceholderText);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setEnabled(false);
    auto *layout = new QVBoxLayout(this);
    for (QWidget *widget :
         std::initializer_list<QWidget *>{label, m_markerOffsetText, m_result, hint, buttons})
        layout->addWidget(widget);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_markerOffsetText, &QLineEdit::textChanged, this, [this, buttons](const QString &text) {
        buttons->button(QDialogButtonBox::Ok)->setEnabled(!text.trimmed().isEmpty());
        follow(text);
    });
    setMinimumWidth(fontMetrics().averageCharWidth() * 64);
    m_markerOffsetText->setFocus();
}

void MarkerOffsetSheet::follow(const QString &typed)
{
    const TimecodeEntry::Reading reading =
        typed.trimmed().isEmpty() ? TimecodeEntry::Reading() : m_preview(typed);
    QStringList lines(reading.text);
    for (const QString &warning : reading.warnings)
        lines.append(tr("⚠ %1").arg(warning));
    m_result->setText(lines.join(QLatin1Char('\n')));
    m_markerOffsetText->setAccessibleDescription(m_result->text());
}

QString MarkerOffsetSheet::text() const
{
    return m_markerOffsetText->text();
}

} // namespace vantrell
