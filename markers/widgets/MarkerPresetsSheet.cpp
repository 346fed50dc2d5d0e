#include "markers/widgets/MarkerPresetsSheet.h"

#include "markers/MarkerPresets.h"
#include "support/widgets/ShownText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace vantrell
{

MarkerPresetsSheet::MarkerPresetsSheet(MarkerPresets &presets, QWidget *parent)
    : QDialog(parent, Qt::Sheet)
    , m_presets(presets)
    , m_list(new QListWidget(this))
    , m_hint(new QLabel(
          tr("There are no presets yet.\nEdit ▸ Create Marker Preset… makes one, as does “%1” in the pop-up "
             "“Preset” above the markers.")
              .arg(shownValue(QStringLiteral("Create preset..."))),
          m_list->viewport()))
    , m_failure(new QLabel(this))
    , m_rename(new QPushButton(tr("&Rename"), this))
    , m_edit(new QPushButton(tr("Edit &Labels…"), this))
    , m_delete(new QPushButton(tr("D&elete…"), this))
{
    setWindowTitle(tr("Marker Presets"));
    setWindowModality(Qt::WindowModal);
    m_list->setAccessibleName(tr("Marker presets"));
    m_list->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::DoubleClicked |
                            QAbstractItemView::SelectedClicked);
    m_list->setAlternatingRowColors(true);
    m_list->setSpacing(2);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setMinimumSize(fontMetrics().averageCharWidth() * 44, fontMetrics().height() * 10);
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    auto *const empty = new QVBoxLayout(m_list->viewport());
    empty->addWidget(m_hint);
    m_failure->setTextFormat(Qt::PlainText);
    m_failure->setWordWrap(true);
    m_failure->hide();
    auto *const close = new QPushButton(tr("&Done"), this);
    close->setDefault(true);
    for (QPushButton *const button : {m_rename, m_edit, m_delete})
        button->setAutoDefault(false);
    auto *const buttons = new QHBoxLayout;
    buttons->addWidget(m_rename);
    buttons->addWidget(m_edit);
    buttons->addWidget(m_delete);
    buttons->addStretch();
    buttons->addWidget(close);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_failure);
    layout->addLayout(buttons);
    connect(m_rename, &QPushButton::clicked, this, &MarkerPresetsSheet::rename);
    connect(m_edit, &QPushButton::clicked, this, &MarkerPresetsSheet::editLabels);
    connect(m_delete, &QPushButton::clicked, this, &MarkerPresetsSheet::remove);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_list, &QListWidget::itemChanged, this,
            [this](QListWidgetItem *item) { nameTyped(m_list->row(item), item->text()); });
    connect(m_list, &QListWidget::currentRowChanged, this, &MarkerPresetsSheet::updateButtons);
    connect(&m_presets, &MarkerPresets::menuChanged, this, [this] {
        if (m_presets.presetNames() != m_names)
            QTimer::singleShot(0, this, &MarkerPresetsSheet::fill); // an editor may be open just now
    });
    fill();
    m_list->setFocus();
}

/// Keeps the current row.
void MarkerPresetsSheet::fill()
{
    const int row = m_list->currentRow();
    const QString current = m_names.value(row);
    m_names = m_presets.presetNames();
    const QSignalBlocker blocker(m_list);
    m_list->clear();
    for (const QString &name : m_names) {
        auto *const item = new QListWidgetItem(name, m_list);
        item->setFlags(item->flags() | Qt::ItemIsEditable);
    }
    const int same = int(m_names.indexOf(current));
    m_list->setCurrentRow(same >= 0 ? same : std::clamp(row, 0, std::max(0, int(m_names.size()) - 1)));
    updateButtons();
}

void MarkerPresetsSheet::rename()
{
    tell(QString());
    m_list->setFocus();
    if (QListWidgetItem *const item = m_list->currentItem())
        m_list->editItem(item);
}

void MarkerPresetsSheet::nameTyped(int row, const QString &name)
{
    if (row < 0 || row >= m_names.size() || name == m_names[row])
        return;
    const Result<void> renamed = m_presets.renameMarkerPreset(m_names[row], name);
    tell(renamed ? QString() : renamed.message());
    if (renamed) {
        const int at = int(m_presets.presetNames().indexOf(name));
        m_names[row] = name;
        QTimer::singleShot(0, this, [this, at] {
            fill();
            if (at >= 0)
                m_list->setCurrentRow(at);
        });
        return;
    }
    const QSignalBlocker blocker(m_list);
    m_list->item(row)->setText(m_names[row]);
}

void MarkerPresetsSheet::select(const QString &name)
{
    const int row = int(m_names.indexOf(name));
    if (row >= 0)
        m_list->setCurrentRow(row);
}

void MarkerPresetsSheet::editLabels()
{
    const QString name = m_names.value(m_list->currentRow());
    if (name.isNull())
        return;
    accept();
    Q_EMIT labelsRequested(name);
}

void MarkerPresetsSheet::remove()
{
    tell(QString());
    const int row = m_list->currentRow();
    if (row < 0)
        return;
    const QPointer<MarkerPresetsSheet> self(this);
    m_presets.deleteMarkerPreset(m_names[row]);
    if (!self || !isVisible())
        return;
    fill();
    activateWindow();
    m_list->setFocus();
}

void MarkerPresetsSheet::tell(const QString &failure)
{
    m_failure->setText(tr("⚠ %1").arg(shownMessage(failure)));
    m_failure->setVisible(!failure.isEmpty());
}

void MarkerPresetsSheet::updateButtons()
{
    const bool isChosen = m_list->currentRow() >= 0;
    m_hint->setVisible(m_names.isEmpty());
    m_rename->setEnabled(isChosen);
    m_edit->setEnabled(isChosen);
    m_delete->setEnabled(isChosen);
}

} // namespace vantrell
