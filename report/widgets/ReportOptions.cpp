#include "report/widgets/ReportOptions.h"

#include "markers/MarkerColumns.h"
#include "report/ReportGenerator.h"
#include "support/settings/UserDefaults.h"
#include "support/widgets/CheckFrame.h"
#include "support/widgets/ShownText.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QTimer>
#include <QVBoxLayout>

namespace vantrell
{

const QString projectTitleKey = QStringLiteral("projectTitle");
const QString printColorLabelsKey = QStringLiteral("printColorLabels");

// If generating the report takes longer than slowMs, it follows typing in the title after slowDelayMs.
constexpr int slowMs = 30;
constexpr int slowDelayMs = 400;

ReportOptions::ReportOptions(ReportGenerator &report, UserDefaults &defaults, const QString &fileTitle,
                             QWidget *parent)
    : QWidget(parent)
    , m_defaults(defaults)
    , m_title(new QLineEdit(this))
    , m_colorLabels(new QCheckBox(tr("Color &labels behind marker names"), this))
    , m_columns(new QListWidget(this))
    , m_titleDelay(new QTimer(this))
{
    auto *const titleLabel = new QLabel(tr("Report &title:"), this);
    titleLabel->setBuddy(m_title);
    m_title->setPlaceholderText(fileTitle);
    m_titleDelay->setSingleShot(true);
    connect(m_titleDelay, &QTimer::timeout, this, &ReportOptions::storeTitle);
    connect(m_title, &QLineEdit::textEdited, m_titleDelay, qOverload<>(&QTimer::start));
    connect(m_title, &QLineEdit::editingFinished, this, [this] {
        if (m_titleDelay->isActive())
            storeTitle();
    });

    m_colorLabels->setVisible(report.printTableRef() == Tab::Markers);
    connect(m_colorLabels, &QCheckBox::clicked, this,
            [this](bool isChecked) { m_defaults.setValue(printColorLabelsKey, isChecked ? 1 : 0); });

    auto *const columnsLabel = new QLabel(tr("&Columns:"), this);
    columnsLabel->setBuddy(m_columns);
    m_columns->setAccessibleName(tr("Columns of the report"));
    for (const PrintColumn &column : report.printColumnArray()) {
        auto *const item = new QListWidgetItem(
            isMarkerField(column.tableColumn.identifier) ? column.title : shownColumn(column.title),
            m_columns);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(column.selected == 1 ? Qt::Checked : Qt::Unchecked);
    }
    m_columns->setUniformItemSizes(true);
    m_columns->setItemDelegate(new FramedCheckDelegate(m_columns));
    m_columns->setCurrentRow(0);
    connect(m_columns, &QListWidget::itemChanged, this, [this, &report](const QListWidgetItem *item) {
        report.setColumnSelected(std::size_t(m_columns->row(item)), item->checkState() == Qt::Checked);
    });

    auto *const rows = new QLabel(rowsText(report.rowCounts()), this);
    rows->setWordWrap(true);

    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(rows);
    layout->addWidget(titleLabel);
    layout->addWidget(m_title);
    layout->addWidget(m_colorLabels);
    layout->addWidget(columnsLabel);
    layout->addWidget(m_columns, 1);

    connect(&m_defaults, &UserDefaults::changed, this, &ReportOptions::showDefault);
    showDefault(projectTitleKey);
    showDefault(printColorLabelsKey);
}

QString ReportOptions::rowsText(ReportTable::RowCounts rows)
{
    const auto number = [](std::size_t count) { return QLocale().toString(qulonglong(count)); };
    if (rows.onShow == 0)
        return tr("No row is on show: the report is empty.");
    if (rows.included == rows.onShow)
        return tr("All rows on show are included: %1.").arg(number(rows.onShow));
    return (rows.included == 1 ? tr("Only the selected row of %1 is included.").arg(number(rows.onShow))
                               : tr("Only the %1 selected rows of %2 are included.")
                                     .arg(number(rows.included), number(rows.onShow))) +
           QLatin1Char(' ') + tr("To have all of them, select all (Ctrl+A) first.");
}

void ReportOptions::showDefault(const QString &key)
{
    if (key == projectTitleKey) {
        const QString title = m_defaults.string(projectTitleKey);
        if (!m_titleDelay->isActive() && m_title->text() != title)
            m_title->setText(title);
    } else if (key == printColorLabelsKey) {
        m_colorLabels->setChecked(m_defaults.integer(printColorLabelsKey) == 1);
    }
}

/// Without text the title is that of the file.
void ReportOptions::storeTitle()
{
    m_titleDelay->stop();
    QElapsedTimer taken;
    taken.start();
    if (m_title->text().isEmpty())
        m_defaults.removeValue(projectTitleKey);
    else
        m_defaults.setValue(projectTitleKey, m_title->text());
    m_titleDelay->setInterval(taken.elapsed() > slowMs ? slowDelayMs : 0);
}

} // namespace vantrell
