#include "markers/widgets/MarkerPresetSheet.h"

#include "markers/MarkerColors.h"
#include "markers/MarkerPresets.h"
#include "support/widgets/ShownText.h"
#include "table/widgets/SheetTable.h"
#include "table/widgets/SheetTableModel.h"
#include "table/widgets/TableIcons.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace vantrell
{

namespace
{

const QString iconColumn = QStringLiteral("icon");
const QString labelColumn = QStringLiteral("label");

/// The rows are in the order of the colours.
class PresetRows final : public SheetTableModel
{
public:
    PresetRows(MarkerPresets &presets, QObject *parent)
        : SheetTableModel(
              {{iconColumn, MarkerPresetSheet::tr("Color")}, {labelColumn, MarkerPresetSheet::tr("Label")}},
              parent)
        , m_presets(presets)
    {
    }

protected:
    int rows() const override { return int(m_presets.markerPresetTableDataArray().size()); }
    QString text(int row, const QString &column) const override
    {
        return column == labelColumn ? m_presets.markerPresetTableDataArray()[std::size_t(row)].label
                                     : shownValue(MarkerColors::table()[std::size_t(row)].label);
    }
    void setText(int row, const QString &column, const QString &text) override
    {
        m_presets.setObjectValue(text, column, std::size_t(row));
    }
    QIcon icon(int row, const QString &column) const override
    {
        return column == iconColumn ? TableIcons::marker(row) : QIcon();
    }
    QString description(int row, int) const override
    {
        return MarkerPresetSheet::tr("Label of %1")
            .arg(shownValue(MarkerColors::table()[std::size_t(row)].label));
    }

private:
    MarkerPresets &m_presets;
};

} // namespace

MarkerPresetSheet::MarkerPresetSheet(MarkerPresets &presets, QWidget *parent)
    : QDialog(parent, Qt::Sheet)
    , m_presets(presets)
    , m_markerPresetNameText(new QLineEdit(this))
    , m_table(new SheetTable(new PresetRows(presets, this), this))
{
    const QString &edited = presets.editedPreset();
    setWindowTitle(edited.isNull() ? tr("Create Marker Preset") : tr("Edit Marker Preset"));
    m_markerPresetNameText->setText(edited);
    setWindowModality(Qt::WindowModal);
    auto *const name = new QLabel(tr("Preset &name:"), this);
    name->setBuddy(m_markerPresetNameText);
    m_table->setAccessibleName(tr("Labels of the colors"));
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->resizeColumnToContents(0);
    const int rowsHeight = m_table->rowHeight(0) * m_table->model()->rowCount();
    m_table->setFixedHeight(m_table->horizontalHeader()->sizeHint().height() + rowsHeight +
                            2 * m_table->frameWidth());
    m_table->setMinimumWidth(fontMetrics().averageCharWidth() * 44);
    m_table->selectionModel()->setCurrentIndex(m_table->model()->index(0, 1), QItemSelectionModel::NoUpdate);
    auto *const hint =
        new QLabel(tr("The labels stand for the colors in the filter and in the table."), this);
    hint->setWordWrap(true);
    hint->setForegroundRole(QPalette::PlaceholderText);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &MarkerPresetSheet::save);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *const nameLine = new QHBoxLayout;
    nameLine->addWidget(name);
    nameLine->addWidget(m_markerPresetNameText, 1);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(nameLine);
    layout->addWidget(m_table);
    layout->addWidget(hint);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    if (edited.isNull())
        m_markerPresetNameText->setFocus();
    else
        m_table->setFocus();
}

void MarkerPresetSheet::reject()
{
    m_presets.cancelMarkerPresetDialog();
}

void MarkerPresetSheet::save()
{
    m_table->endEditing();
    const QPointer<MarkerPresetSheet> self(this);
    if (m_presets.addMarkerPreset(m_markerPresetNameText->text()) || !self || !isVisible())
        return;
    activateWindow();
    m_markerPresetNameText->setFocus();
    m_markerPresetNameText->selectAll();
}

} // namespace vantrell
