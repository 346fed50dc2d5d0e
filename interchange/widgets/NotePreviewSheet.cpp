#include "interchange/widgets/NotePreviewSheet.h"

#include "interchange/NotePreview.h"
#include "interchange/widgets/NotePreviewModel.h"
#include "interchange/widgets/NoteStrip.h"
#include "support/widgets/CheckFrame.h"
#include "table/widgets/QVTableView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace vantrell
{

namespace
{

bool needsTimecode(NoteMeaning meaning)
{
    return meaning == NoteMeaning::Offset || meaning == NoteMeaning::First;
}

} // namespace

NotePreviewSheet::NotePreviewSheet(NotePreview *preview, QWidget *window)
    : QDialog(window)
    , m_preview(preview)
    , m_model(new NotePreviewModel(*preview, this))
    , m_description(new QLabel(this))
    , m_sequence(new QComboBox(this))
    , m_meaning(new QComboBox(this))
    , m_timecode(new QLineEdit(this))
    , m_rate(new QComboBox(this))
    , m_table(new QVTableView(this))
    , m_all(new QCheckBox(tr("A&ll"), this))
    , m_summary(new QLabel(this))
{
    preview->setParent(this);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(preview->name().isNull() ? tr("Paste Notes")
                                            : tr("Import Notes from “%1”").arg(preview->name()));
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(makeSettings());
    layout->addWidget(makeTable(), 1);
    layout->addWidget(makeButtons());
    connect(m_preview, &NotePreview::planned, this, &NotePreviewSheet::takePlan);
    connect(m_preview, &NotePreview::checksChanged, this, &NotePreviewSheet::showChecks);
    takePlan();
    resize(QSize(fontMetrics().averageCharWidth() * 165, fontMetrics().height() * 42)
               .boundedTo(screen()->availableSize() * 0.9));
    m_table->setFocus();
}

QWidget *NotePreviewSheet::makeSettings()
{
    auto *const settings = new QWidget(this);
    m_description->setTextFormat(Qt::PlainText);
    m_description->setWordWrap(true);
    m_sequence->addItems(m_preview->sequences());
    m_sequence->setCurrentIndex(int(m_preview->sequence()) - 1);
    m_sequence->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_sequence->setMinimumContentsLength(28);
    fillMeanings();
    m_timecode->setAccessibleName(tr("Timecode"));
    m_timecode->setToolTip(
        tr("A timecode or its last digits; a point stands for two zeros: 100 or 1. is one second"));
    m_timecode->setFixedWidth(m_timecode->fontMetrics().averageCharWidth() * 16);
    m_rate->setSizeAdjustPolicy(QComboBox::AdjustToContents);

    const auto label = [settings](const QString &text, QWidget *buddy) {
        auto *const made = new QLabel(text, settings);
        made->setBuddy(buddy);
        return made;
    };
    auto *const grid = new QGridLayout(settings);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(fontMetrics().averageCharWidth());
    grid->addWidget(m_description, 0, 0, 1, 6);
    grid->addWidget(label(tr("Add &to:"), m_sequence), 1, 0);
    grid->addWidget(m_sequence, 1, 1);
    QLabel *const times = label(tr("Times &are:"), m_meaning);
    times->setContentsMargins(fontMetrics().averageCharWidth() * 2, 0, 0, 0);
    grid->addWidget(times, 1, 2);
    grid->addWidget(m_meaning, 1, 3);
    grid->addWidget(m_timecode, 1, 4);
    grid->addWidget(label(tr("Frame &rate:"), m_rate), 2, 0);
    grid->addWidget(m_rate, 2, 1, Qt::AlignLeft);
    auto *const columns = new NoteColumnStrip(*m_preview, settings);
    auto *const colors = new NoteColorStrip(*m_preview, settings);
    grid->addWidget(new QLabel(tr("Columns:"), settings), 3, 0, Qt::AlignTop);
    grid->addWidget(columns, 3, 1, 1, 5);
    grid->addWidget(new QLabel(tr("Colors:"), settings), 4, 0, Qt::AlignTop);
    grid->addWidget(colors, 4, 1, 1, 5);
    grid->setColumnStretch(5, 1);

    connect(m_sequence, &QComboBox::activated, m_preview,
            [this](int index) { m_preview->setSequence(index + 1); });
    connect(m_meaning, &QComboBox::activated, this, &NotePreviewSheet::meaningChosen);
    m_meaning->installEventFilter(this);
    connect(m_timecode, &QLineEdit::textEdited, this, &NotePreviewSheet::timecodeTyped);
    connect(m_rate, &QComboBox::activated, m_preview, [this](int index) {
        m_preview->setRate(index == 0 ? std::nullopt
                                      : std::optional(usualNoteRates()[std::size_t(index) - 1]));
    });
    return settings;
}

void NotePreviewSheet::fillMeanings()
{
    const std::pair<NoteMeaning, QString> meanings[] = {
        {NoteMeaning::Record, tr("Timecodes of the sequence")},
        {NoteMeaning::Elapsed, tr("Elapsed from the start")},
        {NoteMeaning::Offset, tr("Timecodes, with this added")},
        {NoteMeaning::First, tr("First note is at")}};
    for (const auto &[meaning, title] : meanings)
        m_meaning->addItem(title, int(meaning));
}

/// The first item follows the list and the sequence.
void NotePreviewSheet::fillRates()
{
    const std::optional<NoteRate> &ofList = m_preview->list().rate;
    const QString first = ofList ? tr("As in the list (%1)").arg(titleOf(*ofList))
                                 : tr("As in the sequence (%1)").arg(titleOf(m_preview->target().rate));
    if (m_rate->count() == 0) {
        m_rate->addItem(first);
        for (const NoteRate &rate : usualNoteRates())
            m_rate->addItem(titleOf(rate));
    } else if (m_rate->itemText(0) != first) {
        m_rate->setItemText(0, first);
    }
}

QWidget *NotePreviewSheet::makeTable()
{
    m_table->setModel(m_model);
    m_table->setItemDelegate(new FramedCheckDelegate(m_table));
    m_table->setAccessibleName(tr("Notes"));
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setPlaceholder(tr("Reading…"));
    m_table->horizontalHeader()->setSectionsMovable(false);
    m_table->horizontalHeader()->setSectionsClickable(false);
    const int widths[] = {9, 22, 28, 14, 14, 14, 18, 12};
    for (int column = 0; column < NotePreviewModel::Remark; ++column)
        m_table->setColumnWidth(column, m_table->fontMetrics().averageCharWidth() * widths[column]);
    m_table->setMinimumHeight(m_table->fontMetrics().height() * 8);
    m_table->setKeyDownHandler([this](QVTableView &, QKeyEvent &event) {
        if (event.key() != Qt::Key_Space)
            return false;
        toggleSelected();
        return true;
    });
    return m_table;
}

QWidget *NotePreviewSheet::makeButtons()
{
    auto *const line = new QWidget(this);
    m_all->setToolTip(tr("Check all rows that are not there yet, or none"));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    m_summary->setAccessibleName(tr("Summary"));
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, line);
    m_add = buttons->addButton(tr("A&dd"), QDialogButtonBox::AcceptRole);
    m_add->setDefault(true);
    auto *const layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_all);
    layout->addWidget(m_summary, 1);
    layout->addWidget(buttons);
    connect(m_all, &QCheckBox::clicked, this, [this] { checkAll(m_all->checkState() != Qt::Unchecked); });
    connect(m_add, &QPushButton::clicked, this, &NotePreviewSheet::add);
    connect(buttons, &QDialogButtonBox::rejected, this, &NotePreviewSheet::reject);
    return line;
}

/// Keys that step through the meanings keep the focus for the next step.
bool NotePreviewSheet::eventFilter(QObject *object, QEvent *event)
{
    if (object == m_meaning && event->type() == QEvent::KeyPress) {
        m_isStepping = true;
        QMetaObject::invokeMethod(
            this, [this] { m_isStepping = false; }, Qt::QueuedConnection);
    }
    return QDialog::eventFilter(object, event);
}

void NotePreviewSheet::meaningChosen()
{
    const auto meaning = NoteMeaning(m_meaning->currentData().toInt());
    m_timecode->setVisible(needsTimecode(meaning));
    if (meaning == NoteMeaning::Offset)
        m_timecode->setText(QStringLiteral("00:00:00:00"));
    else if (meaning == NoteMeaning::First)
        m_timecode->setText(m_preview->startTimecode());
    m_preview->setMeaning(meaning, m_timecode->text());
    if (needsTimecode(meaning) && !m_isStepping) {
        m_timecode->setFocus();
        m_timecode->selectAll();
    }
}

void NotePreviewSheet::timecodeTyped()
{
    m_preview->setMeaning(NoteMeaning(m_meaning->currentData().toInt()), m_timecode->text());
}

void NotePreviewSheet::takePlan()
{
    fillRates();
    if (m_preview->meaning() != NoteMeaning::Guessed)
        m_meaning->setCurrentIndex(m_meaning->findData(int(m_preview->meaning())));
    m_timecode->setVisible(needsTimecode(m_preview->meaning()));
    m_description->setText(m_preview->description());
    showColumns();
    showChecks();
    if (m_addsWhenPlanned && !m_preview->isPlanning())
        add();
}

/// Empty columns leave their room to comments or names, and to the remarks.
void NotePreviewSheet::showColumns()
{
    const auto isEmpty = [this](int column) { return m_model->rowCount() > 0 && !m_model->hasTexts(column); };
    const bool hasNames = !isEmpty(NotePreviewModel::Name);
    const bool hasComments = !isEmpty(NotePreviewModel::Comment);
    if (m_table->isColumnHidden(NotePreviewModel::Name) == hasNames ||
        m_table->isColumnHidden(NotePreviewModel::Comment) == hasComments) {
        const int character = m_table->fontMetrics().averageCharWidth();
        m_table->setColumnHidden(NotePreviewModel::Name, !hasNames);
        m_table->setColumnHidden(NotePreviewModel::Comment, !hasComments);
        if (hasNames)
            m_table->setColumnWidth(NotePreviewModel::Name, character * (hasComments ? 22 : 34));
        if (hasComments)
            m_table->setColumnWidth(NotePreviewModel::Comment, character * (hasNames ? 28 : 34));
    }
    m_table->setColumnHidden(NotePreviewModel::User, !m_model->hasTexts(NotePreviewModel::User));
}

void NotePreviewSheet::showChecks()
{
    const std::vector<PlannedNote> &notes = m_preview->notes();
    std::size_t added = 0;
    std::size_t addable = 0;
    for (std::size_t row = 0; row < notes.size(); ++row) {
        if (notes[row].state != PlannedNote::State::Add)
            continue;
        ++addable;
        added += m_preview->isChecked(row) ? 1 : 0;
    }
    m_summary->setText(notes.empty() && m_preview->isPlanning() ? QString() : m_preview->summary());
    m_add->setEnabled(m_preview->checkedCount() > 0);
    m_all->setEnabled(addable > 0);
    m_all->setTristate(added > 0 && added < addable);
    m_all->setCheckState(added == 0 ? Qt::Unchecked : added < addable ? Qt::PartiallyChecked : Qt::Checked);
}

/// All selected rows become checked, or unchecked when they all are.
void NotePreviewSheet::toggleSelected()
{
    std::vector<std::size_t> rows;
    bool areChecked = true;
    for (const QModelIndex &index : m_table->selectionModel()->selectedRows()) {
        const auto row = std::size_t(index.row());
        if (!m_preview->mayCheck(row))
            continue;
        rows.push_back(row);
        areChecked = areChecked && m_preview->isChecked(row);
    }
    m_preview->setChecked(rows, !areChecked);
}

/// Rows that are there already are checked one by one only.
void NotePreviewSheet::checkAll(bool isChecked)
{
    const std::vector<PlannedNote> &notes = m_preview->notes();
    std::vector<std::size_t> rows;
    for (std::size_t row = 0; row < notes.size(); ++row) {
        if (!isChecked || notes[row].state == PlannedNote::State::Add)
            rows.push_back(row);
    }
    m_preview->setChecked(rows, isChecked);
}

void NotePreviewSheet::add()
{
    // The rows on show may be those of the settings before.
    m_addsWhenPlanned = m_preview->isPlanning();
    if (m_addsWhenPlanned || m_preview->checkedCount() == 0)
        return;
    hide(); // an alert then is the window's only sheet
    Q_EMIT chosen();
}

} // namespace vantrell
