#include "interchange/widgets/ExportNotesSheet.h"

#include "document/MyDocument.h"
#include "markers/MarkerColors.h"
#include "markers/MenuTitles.h"
#include "support/widgets/CheckFrame.h"
#include "support/widgets/FilePanel.h"
#include "support/widgets/ShownText.h"
#include "table/widgets/TableIcons.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <utility>

namespace vantrell
{

namespace
{

enum WhichMarkers { AllMarkers, SelectedMarkers, ShownMarkers };

} // namespace

ExportNotesSheet::ExportNotesSheet(MyDocument &document, Markers markers, const FieldTitles &fields,
                                   const QString &fileTitle, const QString &folder, QWidget *window)
    : QDialog(window)
    , m_document(document)
    , m_exporter(document)
    , m_markers(std::move(markers))
    , m_fileTitle(fileTitle)
    , m_folder(folder)
    , m_format(new QComboBox(this))
    , m_which(new QComboBox(this))
    , m_color(new QComboBox(this))
    , m_sequence(new QComboBox(this))
    , m_flag(new QComboBox(this))
    , m_search(new QLineEdit(this))
    , m_columns(new QListWidget(this))
    , m_count(new QLabel(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Export Notes"));
    fillFormats();
    fillMarkers();
    auto *const form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("&Format:"), m_format);
    form->addRow(tr("&Markers:"), m_which);
    form->addRow(tr("Co&lor:"), m_color);
    form->addRow(tr("Se&quence:"), m_sequence);
    form->addRow(tr("Fla&g:"), m_flag);
    form->addRow(tr("&Containing:"), m_search);
    m_search->setClearButtonEnabled(true);

    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_export = buttons->addButton(tr("&Export…"), QDialogButtonBox::AcceptRole);
    m_export->setDefault(true);
    m_columnsBox = makeColumns(fields);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_columnsBox, 1);
    layout->addStretch(0);
    layout->addWidget(m_count);
    layout->addWidget(buttons);

    connect(m_format, &QComboBox::currentIndexChanged, this, &ExportNotesSheet::updateColumns);
    for (QComboBox *const popUp : {m_which, m_color, m_sequence, m_flag})
        connect(popUp, &QComboBox::currentIndexChanged, this, &ExportNotesSheet::countMarkers);
    connect(m_search, &QLineEdit::textChanged, this, &ExportNotesSheet::countMarkers);
    connect(m_columns, &QListWidget::itemChanged, this, &ExportNotesSheet::countMarkers);
    connect(m_export, &QPushButton::clicked, this, &ExportNotesSheet::askForFile);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExportNotesSheet::reject);
    countMarkers();
    updateColumns();
    resize(fontMetrics().averageCharWidth() * 60, sizeHint().height());
}

void ExportNotesSheet::fillFormats()
{
    const std::pair<const char *, QString> formats[] = {
        {"csv", tr("CSV for spreadsheets")},
        {"tsv", tr("Text, separated by tabs")},
        {"markdown", tr("Markdown table")},
        {"avid6", tr("Avid markers, six fields")},
        {"avid8", tr("Avid markers with names, eight fields")},
        {"resolve-edl", tr("Resolve markers (EDL)")},
        {"edl", tr("EDL with locators")},
        {"chapters", tr("Chapters for a video description")},
        {"webvtt", tr("WebVTT")},
        {"json", tr("JSON for scripts")}};
    for (const auto &[format, title] : formats)
        m_format->addItem(title, QString::fromLatin1(format));
}

void ExportNotesSheet::fillMarkers()
{
    const QLocale locale;
    const auto add = [&](const QString &title, const RowList &markers) {
        m_which->addItem(title.arg(locale.toString(qulonglong(markers.size()))));
        if (markers.empty())
            static_cast<QStandardItemModel *>(m_which->model())
                ->item(m_which->count() - 1)
                ->setEnabled(false);
    };
    add(tr("All markers (%1)"), m_document.markerArray());
    add(tr("Selected markers (%1)"), m_markers.selected);
    add(tr("Shown markers (%1)"), m_markers.shown);
    if (m_markers.selected.size() > 1)
        m_which->setCurrentIndex(SelectedMarkers);

    m_color->addItem(tr("All colors"));
    for (std::size_t i = 0; i < MarkerColors::count; ++i)
        m_color->addItem(TableIcons::marker(int(i)), shownValue(MarkerColors::table()[i].label));
    m_sequence->addItem(tr("All sequences"));
    m_sequence->addItems(MenuTitles::ofSequences(*m_document.sequenceMenu()).mid(1));
    m_sequence->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_flag->addItem(tr("Any"));
    m_flag->addItem(tr("Chapter"), int(NoteExporter::Flag::Chapter));
    m_flag->addItem(tr("Compression"), int(NoteExporter::Flag::Compression));
    m_flag->addItem(tr("Scoring"), int(NoteExporter::Flag::Scoring));
}

QWidget *ExportNotesSheet::makeColumns(const FieldTitles &fields)
{
    auto *const box = new QWidget(this);
    auto *const label = new QLabel(tr("Col&umns, in the order of the list:"), box);
    label->setBuddy(m_columns);
    m_columns->setAccessibleName(tr("Columns"));
    m_columns->setToolTip(tr("Drag a column to another place"));
    m_columns->setItemDelegate(new FramedCheckDelegate(m_columns));
    m_columns->setDragDropMode(QAbstractItemView::InternalMove);
    for (const QString &title : NoteExporter::columnTitles(m_document.markerArray())) {
        const QString field = fields.value(title);
        const QString name = field.isEmpty()  ? shownColumn(title)
                             : field == title ? field
                                              : tr("%1 (%2)", "custom field").arg(field, title);
        auto *const item = new QListWidgetItem(name, m_columns);
        item->setData(Qt::UserRole, title); // as the list has it
        item->setFlags((item->flags() | Qt::ItemIsUserCheckable) & ~Qt::ItemIsDropEnabled);
        item->setCheckState(Qt::Checked);
    }
    m_columns->setMinimumHeight(m_columns->fontMetrics().height() * 8);
    auto *const layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(m_columns, 1);
    return box;
}

QString ExportNotesSheet::format() const
{
    return m_format->currentData().toString();
}

RowList ExportNotesSheet::markers() const
{
    NoteExporter::Filter filter;
    filter.search = m_search->text();
    if (m_color->currentIndex() > 0)
        filter.color = m_color->currentIndex() - 1;
    if (m_sequence->currentIndex() > 0)
        filter.sequence = m_sequence->currentIndex();
    if (m_flag->currentIndex() > 0)
        filter.flag = NoteExporter::Flag(m_flag->currentData().toInt());
    switch (m_which->currentIndex()) {
    case SelectedMarkers:
        return m_exporter.markers(m_markers.selected, filter);
    case ShownMarkers:
        return m_exporter.markers(m_markers.shown, filter);
    default:
        return m_exporter.markers(filter);
    }
}

QStringList ExportNotesSheet::columns() const
{
    QStringList titles;
    for (int i = 0; i < m_columns->count() && NoteWriter::hasColumns(format()); ++i) {
        if (m_columns->item(i)->checkState() == Qt::Checked)
            titles.append(m_columns->item(i)->data(Qt::UserRole).toString());
    }
    return titles;
}

void ExportNotesSheet::countMarkers()
{
    const std::size_t count = markers().size();
    m_count->setText(count == 1
                         ? tr("1 marker will be exported.")
                         : tr("%1 markers will be exported.").arg(QLocale().toString(qulonglong(count))));
    m_export->setEnabled(count > 0 && (!NoteWriter::hasColumns(format()) || !columns().isEmpty()));
}

void ExportNotesSheet::updateColumns()
{
    m_columnsBox->setEnabled(NoteWriter::hasColumns(format()));
    countMarkers();
}

QString ExportNotesSheet::extensionOf(const QString &format)
{
    if (format == QStringLiteral("csv") || format == QStringLiteral("tsv") ||
        format == QStringLiteral("edl") || format == QStringLiteral("json"))
        return format;
    if (format == QStringLiteral("resolve-edl"))
        return QStringLiteral("edl");
    if (format == QStringLiteral("markdown"))
        return QStringLiteral("md");
    return format == QStringLiteral("webvtt") ? QStringLiteral("vtt") : QStringLiteral("txt");
}

void ExportNotesSheet::askForFile()
{
    const QString extension = extensionOf(format());
    FilePanel::runForSaving(
        {.window = this,
         .title = tr("Export Notes"),
         .folder = m_folder,
         .filter = QStringLiteral("%1 (*.%2 *.%3)")
                       .arg(m_format->currentText().remove(QLatin1Char('(')).remove(QLatin1Char(')')),
                            extension, extension.toUpper()),
         .extension = extension,
         .proposedName = QStringLiteral("%1 Notes.%2").arg(m_fileTitle, extension),
         .acceptLabel = tr("Export")},
        [this](const QString &path) {
            hide(); // an alert then is the window's only sheet
            Q_EMIT chosen(path);
            accept();
        });
}

} // namespace vantrell
