#include "markers/widgets/GoToTimecodeSheet.h"

#include "document/MyDocument.h"
#include "markers/MarkerKeys.h"
#include "markers/MarkerNavigation.h"
#include "markers/MarkerTableValues.h"
#include "markers/MenuTitles.h"
#include "markers/TimecodeEntry.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace vantrell
{

GoToTimecodeSheet::GoToTimecodeSheet(RowList rows, const RowRecordPtr &current, QWidget *parent)
    : QDialog(parent, Qt::Sheet)
    , m_rows(std::move(rows))
    , m_timecode(new QLineEdit(this))
    , m_sequences(new QComboBox(this))
    , m_hint(new QLabel(this))
{
    setWindowTitle(tr("Go to Timecode"));
    setWindowModality(Qt::WindowModal);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_go = buttons->addButton(tr("&Go"), QDialogButtonBox::AcceptRole);
    m_go->setDefault(true);
    m_timecode->setToolTip(tr("Digits fill the timecode from the right; a full stop stands for two zeros"));
    m_sequences->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_sequences->setMinimumContentsLength(24);
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    m_hint->setMinimumSize(fontMetrics().averageCharWidth() * 44, fontMetrics().lineSpacing() * 3);
    auto *const form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("&Timecode:"), m_timecode);
    form->addRow(tr("&Sequence:"), m_sequences);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_hint, 1);
    layout->addWidget(buttons);
    fillSequences(current);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_timecode, &QLineEdit::textChanged, this, &GoToTimecodeSheet::look);
    connect(m_sequences, &QComboBox::currentIndexChanged, this, &GoToTimecodeSheet::look);
    look();
    m_timecode->setFocus();
}

void GoToTimecodeSheet::fillSequences(const RowRecordPtr &current)
{
    Menu menu;
    int chosen = 0;
    std::unordered_set<XmlNode> seen;
    for (const RowRecordPtr &row : m_rows) {
        const XmlNode sequence = row->get(MarkerKey::sequence);
        if (!seen.insert(sequence).second)
            continue;
        const QString name = row->get(MarkerKey::sequenceName);
        if (sequence == current->get(MarkerKey::sequence))
            chosen = int(menu.size());
        menu.push_back({name.isEmpty() ? tr("No sequence") : name, {}, sequence});
        m_examples.push_back(row);
    }
    m_sequences->addItems(MenuTitles::ofSequences(menu));
    m_sequences->setCurrentIndex(chosen);
    m_sequences->setEnabled(m_sequences->count() > 1);
}

void GoToTimecodeSheet::look()
{
    const RowRecord &example = *m_examples[std::size_t(m_sequences->currentIndex())];
    m_timecode->setPlaceholderText(MyDocument::timecodeFromFrameCount(0, example));
    const QString typed = m_timecode->text().trimmed();
    m_marker = nullptr;
    if (typed.isEmpty()) {
        m_hint->setText(
            tr("Goes to the marker that is nearest to the timecode, among those that are shown."));
    } else {
        const TimecodeEntry::Reading place = TimecodeEntry::ofPlace(typed, example);
        m_marker = m_rows[MarkerNavigation::nearestRow(m_rows, example, place.frames).value()];
        const QString name = m_marker->get(MarkerKey::name);
        const QString in = MarkerTableValues::inText(*m_marker);
        QString text = tr("Timecode %1.").arg(place.timecode) + QLatin1Char(' ');
        if (name.isEmpty())
            text += tr("Nearest: a marker without a name at %1.").arg(in);
        else
            text += tr("Nearest: “%1” at %2.").arg(name, in);
        QStringList lines;
        if (TimecodeEntry::isTimecode(typed))
            lines.append(text);
        for (const QString &warning : place.warnings)
            lines.append(tr("⚠ %1").arg(warning));
        m_hint->setText(lines.join(QLatin1Char('\n')));
        if (isVisible()) // the sheet grows with the text
            m_hint->setMinimumHeight(
                std::max(m_hint->minimumHeight(), m_hint->heightForWidth(m_hint->width())));
    }
    m_go->setEnabled(m_marker && TimecodeEntry::isTimecode(typed));
}

} // namespace vantrell
