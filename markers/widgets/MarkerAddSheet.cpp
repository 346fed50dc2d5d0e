#include "markers/widgets/MarkerAddSheet.h"

#include "markers/MenuTitles.h"
#include "markers/TimecodeEntry.h"
#include "table/widgets/TableIcons.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <limits>
#include <utility>

namespace vantrell
{

namespace
{

QLabel *makeNote(QWidget *parent)
{
    auto *const note = new QLabel(parent);
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);
    note->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    note->setMinimumHeight(2 * note->fontMetrics().lineSpacing());
    return note;
}

void showReading(const TimecodeEntry::Reading &reading, QLabel &note, QLineEdit &field)
{
    QStringList lines;
    if (field.text().isEmpty() || TimecodeEntry::isTimecode(field.text()))
        lines.append(reading.text);
    for (const QString &warning : reading.warnings)
        lines.append(MarkerAddSheet::tr("⚠ %1").arg(warning));
    note.setText(lines.join(QLatin1Char('\n')));
    field.setAccessibleDescription(note.text());
}

/// The sheet grows with the note, and stays as it is when that gets shorter.
void makeRoom(QLabel &note)
{
    note.setMinimumHeight(std::max(note.minimumHeight(), note.heightForWidth(note.width())));
}

} // namespace

MarkerAddSheet::MarkerAddSheet(MenuPtr sequences, Start start, const QString &name,
                               const QStringList &colorLabels, QWidget *parent)
    : QDialog(parent, Qt::Sheet)
    , m_sequences(std::move(sequences))
    , m_start(std::move(start))
    , m_sequence(new QComboBox(this))
    , m_in(new QLineEdit(this))
    , m_inNote(makeNote(this))
    , m_duration(new QLineEdit(this))
    , m_durationNote(makeNote(this))
    , m_name(new QLineEdit(name, this))
    , m_comment(new QLineEdit(this))
    , m_color(new QComboBox(this))
{
    setWindowTitle(tr("Add Marker"));
    setWindowModality(Qt::WindowModal);
    m_sequence->addItems(MenuTitles::ofSequences(*m_sequences).mid(1));
    m_sequence->setCurrentIndex(std::clamp(int(m_start.item) - 1, 0, std::max(0, m_sequence->count() - 1)));
    m_sequence->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_sequence->setMinimumContentsLength(36);
    for (int color = 0; color < colorLabels.size(); ++color)
        m_color->addItem(TableIcons::marker(color), colorLabels[color]);
    m_duration->setPlaceholderText(tr("none"));
    for (QLineEdit *const field : {m_name, m_comment})
        field->setMaxLength(std::numeric_limits<int>::max());
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_add = buttons->addButton(tr("&Add"), QDialogButtonBox::AcceptRole);
    m_add->setDefault(true);
    auto *const grid = new QGridLayout(this);
    grid->setColumnStretch(1, 1);
    int row = 0;
    const auto place = [&](const QString &title, QWidget *field) {
        auto *const label = new QLabel(title, this);
        label->setBuddy(field);
        grid->addWidget(label, row, 0, Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(field, row++, 1);
    };
    place(tr("&Sequence:"), m_sequence);
    place(tr("&Timecode:"), m_in);
    grid->addWidget(m_inNote, row++, 1);
    place(tr("&Duration:"), m_duration);
    grid->addWidget(m_durationNote, row++, 1);
    place(tr("&Name:"), m_name);
    place(tr("Co&mment:"), m_comment);
    place(tr("C&olor:"), m_color);
    grid->addWidget(buttons, row, 0, 1, 2);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_sequence, &QComboBox::currentIndexChanged, this, &MarkerAddSheet::sequenceChosen);
    connect(m_in, &QLineEdit::textChanged, this, &MarkerAddSheet::follow);
    connect(m_duration, &QLineEdit::textChanged, this, &MarkerAddSheet::follow);
    sequenceChosen();
    m_in->setFocus();
}

std::int64_t MarkerAddSheet::sequence() const
{
    return m_sequence->currentIndex() + 1;
}

XmlNode MarkerAddSheet::sequenceElement() const
{
    const std::int64_t item = sequence();
    return item < std::int64_t(m_sequences->size()) ? (*m_sequences)[std::size_t(item)].element : XmlNode();
}

MarkerEditor::NewMarker MarkerAddSheet::marker() const
{
    MarkerEditor::NewMarker marker;
    marker.name = m_name->text();
    marker.comment = m_comment->text();
    marker.color = m_color->currentIndex();
    marker.inPoint = TimecodeEntry::ofNewInPoint(m_in->text(), sequenceElement()).frames;
    const std::int64_t duration =
        m_duration->text().isEmpty()
            ? 0
            : TimecodeEntry::ofNewDuration(m_duration->text(), sequenceElement(), marker.inPoint).frames;
    marker.outPoint = duration > 0 ? marker.inPoint + duration : -1;
    return marker;
}

/// Begins where the sheet shall, in another sequence at its start, unless the user has typed a place.
void MarkerAddSheet::sequenceChosen()
{
    if (!m_in->isModified()) {
        const bool isGiven = !m_start.timecode.isEmpty() && sequence() == m_start.item;
        m_in->setText(isGiven ? m_start.timecode : TimecodeEntry::startOf(sequenceElement()));
        m_in->selectAll();
    }
    follow();
}

void MarkerAddSheet::follow()
{
    const TimecodeEntry::Reading in = TimecodeEntry::ofNewInPoint(m_in->text(), sequenceElement());
    showReading(in, *m_inNote, *m_in);
    showReading(m_duration->text().isEmpty()
                    ? TimecodeEntry::Reading()
                    : TimecodeEntry::ofNewDuration(m_duration->text(), sequenceElement(), in.frames),
                *m_durationNote, *m_duration);
    m_add->setEnabled(TimecodeEntry::isTimecode(m_in->text()) &&
                      (m_duration->text().isEmpty() || TimecodeEntry::isTimecode(m_duration->text())));
    makeRoomForNotes();
}

void MarkerAddSheet::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    makeRoomForNotes();
}

/// Not before the sheet is laid out.
void MarkerAddSheet::makeRoomForNotes()
{
    if (!isVisible())
        return;
    for (QLabel *const note : {m_inNote, m_durationNote})
        makeRoom(*note);
}

} // namespace vantrell
