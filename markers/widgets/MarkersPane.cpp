#include "markers/widgets/MarkersPane.h"

#include "markers/widgets/MarkerFieldsSheet.h"
#include "markers/widgets/MarkerOffsetSheet.h"
#include "markers/widgets/MarkerPresetPopUp.h"
#include "markers/widgets/MarkerPresetSheet.h"
#include "markers/widgets/MarkerTableModel.h"
#include "support/files/FolderWatcher.h"
#include "support/settings/UserDefaults.h"
#include "support/widgets/SelectableLabel.h"
#include "table/widgets/ControlPopUp.h"
#include "table/widgets/QVTableView.h"
#include "table/widgets/TableIcons.h"
#include "workbench/Workbench.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QPushButton>

namespace vantrell
{

namespace
{

/// A sheet that was closed stays until events are dispatched.
bool isOpen(const QDialog *sheet)
{
    return sheet && sheet->isVisible();
}

} // namespace

MarkersPane::MarkersPane(Workbench &workbench, UserDefaults &defaults, QWidget *parent)
    : TabPane(workbench, defaults, new MarkerTableModel(workbench.document()), parent)
    , m_defaults(defaults)
    , m_filter(new ControlPopUp(this))
    , m_add(new QPushButton(tr("&Add"), this))
    , m_remove(new QPushButton(tr("Re&move…"), this))
    , m_offset(new QPushButton(tr("&Offset…"), this))
    , m_markerPresetPopUp(new MarkerPresetPopUp(this))
    , m_fields(new QPushButton(tr("Fie&lds…"), this))
    , m_ownOwners(new QCheckBox(tr("Own se&quence and clip"), this))
    , m_status(new QLabel(this))
{
    m_filter->addItem(tr("All Colors"));
    for (int i = 0; i < markerModel().colorLabels().size(); ++i)
        m_filter->addItem(TableIcons::marker(i), markerModel().colorLabels()[i]);
    m_filter->setAccessibleName(tr("Color of markers"));
    m_filter->setToolTip(tr("Show markers of one color only"));
    m_add->setToolTip(tr("Add a marker to the first sequence"));
    m_remove->setToolTip(tr("Remove the selected markers from the project"));
    m_offset->setToolTip(tr("Move the in points of the selected markers"));
    auto *const preset = new QLabel(tr("&Preset:"), this);
    preset->setBuddy(m_markerPresetPopUp);
    m_markerPresetPopUp->setAccessibleName(tr("Marker preset"));
    m_markerPresetPopUp->setToolTip(tr("Choose labels of your own for the colors"));
    m_fields->setToolTip(tr("Define columns of your own for the markers"));
    addControls(
        {m_filter, preset, m_markerPresetPopUp, nullptr, m_add, m_remove, m_offset, nullptr, m_fields});
    m_ownOwners->setToolTip(
        tr("List each marker under its own sequence and clip. Otherwise sequences at the same "
           "position in different bins share one name, and so do the clips of a track"));
    m_ownOwners->setChecked(defaults.boolean(MarkerInventory::ownOwnersDefault));
    connect(m_ownOwners, &QCheckBox::clicked, this,
            [this](bool own) { m_defaults.setValue(MarkerInventory::ownOwnersDefault, own); });
    auto *const line = new QHBoxLayout;
    line->addWidget(m_status, 1);
    line->addWidget(m_ownOwners);
    footer().addLayout(line);
    m_status->setTextFormat(Qt::PlainText);
    makeSelectable(*m_status);

    connect(m_filter, &QComboBox::activated, this, [this](int item) {
        table().commitEditing();
        this->workbench().document().viewState().markerFilter = item;
        this->workbench().markerInventory().changeMarkerFilter();
    });
    connect(m_add, &QPushButton::clicked, this, &MarkersPane::addMarker);
    connect(m_remove, &QPushButton::clicked, this, &MarkersPane::removeMarkers);
    connect(m_offset, &QPushButton::clicked, this, &MarkersPane::showMarkerOffsetWindow);

    table().setAccessibleName(tr("Markers"));
    connect(&workbench.document(), &MyDocument::sequenceMenuChanged, &markerModel(),
            &MarkerTableModel::sequenceMenuChanged);
    table().addWatchKeys({13, 3}, "editCurrentCell");
    connect(&table(), &QAbstractItemView::doubleClicked, this, [this](const QModelIndex &index) {
        const bool isText = model().columnAt(index.column()).kind == Column::Kind::Text;
        if (isText && index.flags().testFlag(Qt::ItemIsEditable))
            table().edit(index);
        else
            tellWhyNotEditable();
    });
    makeMenus();
    updateControls();

    MarkerPresets *const presets = &workbench.markerPresets();
    connect(presets, &MarkerPresets::menuChanged, m_markerPresetPopUp, &MarkerPresetPopUp::setMenu);
    connect(presets, &MarkerPresets::labelsChanged, this, &MarkersPane::setMarkerLabels);
    connect(presets, &MarkerPresets::sheetRequested, this, &MarkersPane::openPresetSheet);
    connect(presets, &MarkerPresets::sheetEnded, this, &MarkersPane::closePresetSheet);
    connect(m_markerPresetPopUp, &MarkerPresetPopUp::presetChosen, presets,
            &MarkerPresets::changeMarkerPreset);
    connect(m_markerPresetPopUp, &MarkerPresetPopUp::createRequested, this,
            &MarkersPane::showMarkerPresetDialog);
    connect(m_fields, &QPushButton::clicked, this, &MarkersPane::showMarkerFieldsDialog);
    auto *const presetFiles = new FolderWatcher(MarkerPresets::folder(), this);
    connect(presetFiles, &FolderWatcher::changed, presets, &MarkerPresets::refreshMarkerPresets);
}

MarkersPane::~MarkersPane()
{
    if (m_fieldsSheet)
        m_fieldsSheet->done(QDialog::Accepted);
}

void MarkersPane::makeMenus()
{
    auto *menu = new QMenu(this);
    menu->addAction(tr("Offset…"), this, &MarkersPane::showMarkerOffsetWindow);
    menu->addAction(tr("Remove…"), this, &MarkersPane::removeMarkers);
    menu->addAction(tr("Copy"), this, &TabPane::copySelection);
    table().setMenu(menu);
    QHeaderView *const header = table().horizontalHeader();
    header->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(header->addAction(tr("Marker Fields…")), &QAction::triggered, this,
            &MarkersPane::showMarkerFieldsDialog);
    connect(header->addAction(tr("Create Marker Preset…")), &QAction::triggered, this,
            &MarkersPane::showMarkerPresetDialog);
}

MarkerTableModel &MarkersPane::markerModel() const
{
    return static_cast<MarkerTableModel &>(model());
}

void MarkersPane::setMarkerLabels(const QStringList &labels)
{
    if (labels == markerModel().colorLabels())
        return;
    markerModel().setColorLabels(labels);
    for (int i = 0; i < labels.size() && i + 1 < m_filter->count(); ++i)
        m_filter->setItemText(i + 1, labels[i]);
}

void MarkersPane::setMessage(const QString &text)
{
    m_message = text;
    updateControls();
}

void MarkersPane::addMarker()
{
    if (isEditingEnabled())
        workbench().markerEditor().addMarker();
}

void MarkersPane::removeMarkers()
{
    if (isEditingEnabled())
        workbench().markerEditor().removeMarkers();
}

void MarkersPane::editCurrentCell()
{
    const QModelIndex index = table().currentIndex();
    if (index.isValid() && index.flags().testFlag(Qt::ItemIsEditable))
        table().edit(index);
}

void MarkersPane::showMarkerOffsetWindow()
{
    if (!isEditingEnabled())
        return;
    auto *sheet = new MarkerOffsetSheet(this);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &QDialog::accepted, this, [this, sheet] {
        if (!isEditingEnabled())
            return;
        workbench().markerEditor().offsetMarkers(sheet->text());
        model().rowsChanged(0, model().rowCount() - 1);
    });
    sheet->open();
}

void MarkersPane::showMarkerPresetDialog()
{
    if (!isOpen(m_presetSheet))
        workbench().markerPresets().showMarkerPresetDialog();
}

void MarkersPane::openPresetSheet()
{
    m_presetSheet = new MarkerPresetSheet(workbench().markerPresets(), this);
    m_presetSheet->setAttribute(Qt::WA_DeleteOnClose);
    m_presetSheet->open();
}

void MarkersPane::closePresetSheet()
{
    if (m_presetSheet)
        m_presetSheet->done(QDialog::Accepted);
}

void MarkersPane::showMarkerFieldsDialog()
{
    if (isOpen(m_fieldsSheet))
        return;
    m_fieldsSheet = new MarkerFieldsSheet(workbench().markerFields(), this);
    m_fieldsSheet->setAttribute(Qt::WA_DeleteOnClose);
    m_fieldsSheet->open();
}

void MarkersPane::applyDefaultsChange(const QString &key)
{
    TabPane::applyDefaultsChange(key);
    if (key == QStringLiteral("customMarkerFields"))
        workbench().markerFields().definitionsChanged();
    else if (key == QStringLiteral("selectedPreset"))
        workbench().markerPresets().refreshMarkerPresets();
    else if (key == MarkerInventory::ownOwnersDefault)
        m_ownOwners->setChecked(m_defaults.boolean(key));
}

void MarkersPane::commitEdit(int, const QString &column, const QString &text)
{
    workbench().markerEditor().setObjectValue(text, column);
}

void MarkersPane::columnMoved(const QString &identifier, int index)
{
    workbench().markerFields().columnMoved(identifier, index);
}

void MarkersPane::setEditingEnabled(bool enabled)
{
    TabPane::setEditingEnabled(enabled);
    for (QAction *action : table().menu()->actions().mid(0, 2))
        action->setEnabled(enabled);
}

void MarkersPane::updateControls()
{
    const bool hasSelection = table().selectionModel()->hasSelection();
    m_add->setEnabled(isEditingEnabled());
    m_remove->setEnabled(isEditingEnabled() && hasSelection);
    m_offset->setEnabled(isEditingEnabled() && hasSelection);
    const std::size_t selected = hasSelection ? selectedRows().size() : 0;
    const int count = model().rowCount();
    const QLocale locale;
    QString text = count == 1 ? tr("1 marker") : tr("%1 markers").arg(locale.toString(count));
    if (selected > 0)
        text = tr("%1 (%2 selected)").arg(text, locale.toString(qulonglong(selected)));
    m_status->setText(m_message.isEmpty() ? text : tr("%1. %2.").arg(text, m_message));
}

QString MarkersPane::loadingText(std::size_t found) const
{
    return found == 0 ? tr("Looking for markers…")
                      : tr("Looking for markers: %1 so far…").arg(QLocale().toString(qulonglong(found)));
}

QString MarkersPane::emptyText() const
{
    return tr("This project has no markers yet.");
}

QString MarkersPane::filteredText() const
{
    return tr("No marker has this color.");
}

} // namespace vantrell
