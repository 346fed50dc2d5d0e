#include "effects/widgets/EffectsPane.h"

#include "effects/EffectKeys.h"
#include "table/widgets/QVTableView.h"
#include "table/widgets/TableIcons.h"
#include "workbench/Workbench.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QTimer>

namespace vantrell
{

constexpr int searchDelay = 120; // milliseconds after the last key

EffectsPane::EffectsPane(Workbench &workbench, UserDefaults &defaults, QWidget *parent)
    : TabPane(workbench, defaults, new EffectTableModel(workbench.document()), parent)
    , m_types(new QComboBox(this))
    , m_showDefaults(new QCheckBox(tr("Show &defaults"), this))
    , m_search(new QLineEdit(this))
    , m_remove(new QPushButton(tr("Re&move…"), this))
{
    m_types->addItems({tr("All Effects"), tr("Filters"), tr("Video Filters"), tr("Audio Filters"),
                       tr("Generators"), tr("Transitions")});
    m_types->setAccessibleName(tr("Type of effects"));
    m_types->setToolTip(tr("Show effects of one type only"));
    m_showDefaults->setToolTip(
        tr("Also show the effects that every clip has, such as Basic Motion and Opacity"));
    m_search->setPlaceholderText(tr("Search"));
    m_search->setClearButtonEnabled(true);
    m_search->setAccessibleName(tr("Search by name"));
    m_search->setToolTip(tr("Show only effects whose name contains this text"));
    m_search->setAcceptDrops(false); // a file that is dropped there is opened
    m_search->setMinimumWidth(fontMetrics().averageCharWidth() * 28);
    m_remove->setToolTip(tr("Remove the selected effects from the project"));
    addControls({m_types, m_showDefaults, m_search, m_remove});
    footer().addWidget(makeLabel(Label::EffectStatus, this));

    auto *delay = new QTimer(this);
    delay->setSingleShot(true);
    delay->setInterval(searchDelay);
    connect(m_search, &QLineEdit::textChanged, delay, qOverload<>(&QTimer::start));
    connect(delay, &QTimer::timeout, this, &EffectsPane::applyFilters);
    connect(m_search, &QLineEdit::returnPressed, this, &EffectsPane::applyFilters);
    connect(m_types, &QComboBox::activated, this, &EffectsPane::applyFilters);
    connect(m_showDefaults, &QCheckBox::toggled, this, &EffectsPane::applyFilters);
    connect(m_remove, &QPushButton::clicked, this, &EffectsPane::removeEffects);
    connect(this, &TabPane::selectionChanged, this,
            [this] { this->workbench().effectInventory().updateEffectStatusText(); });

    table().setAccessibleName(tr("Effects"));
    connect(&table(), &QAbstractItemView::doubleClicked, this, [this](const QModelIndex &index) {
        if (!isEditingEnabled())
            tellWhyNotEditable();
        else if (model().columnAt(index.column()).kind == Column::Kind::Text)
            showMessage(
                tr("An effect has nothing to open here. Its box switches it on and off, Remove… takes "
                   "it out, and the editing application changes its settings"));
    });
    table().setKeyDownHandler([this](QVTableView &, QKeyEvent &event) {
        const bool isDelete = event.key() == Qt::Key_Delete || event.key() == Qt::Key_Backspace;
        if (!isDelete || !table().selectionModel()->hasSelection())
            return false;
        this->workbench().effectEditor().hideSelectedEffects();
        return true;
    });
    auto *menu = new QMenu(this);
    menu->addAction(tr("Remove…"), this, &EffectsPane::removeEffects);
    menu->addAction(tr("Copy"), this, &TabPane::copySelection);
    table().setMenu(menu);
    updateControls();
}

void EffectsPane::applyFilters()
{
    ViewState &state = workbench().document().viewState();
    state.effectType = m_types->currentIndex();
    state.effectShowDefaults = m_showDefaults->isChecked();
    const bool isSearch = state.effectSearch != m_search->text();
    state.effectSearch = m_search->text();
    if (state.selectedTab != Tab::Effects)
        return; // showing the tab applies them
    if (isSearch)
        workbench().effectInventory().effectSearchAction();
    else
        workbench().effectInventory().changeEffectFilter();
}

void EffectsPane::removeEffects()
{
    if (!isEditingEnabled())
        return;
    // The indexes stay selected, whatever rows have them afterwards.
    const std::vector<std::size_t> rows = selectedRows();
    workbench().effectEditor().removeEffects();
    selectRows(rows);
}

void EffectsPane::focusSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

void EffectsPane::commitEdit(int row, const QString &column, const QString &text)
{
    workbench().effectEditor().updateXMLEffect(model().recordAt(row), column, text);
}

void EffectsPane::setEditingEnabled(bool enabled)
{
    TabPane::setEditingEnabled(enabled);
    table().menu()->actions().first()->setEnabled(enabled);
}

void EffectsPane::updateControls()
{
    m_remove->setEnabled(isEditingEnabled() && table().selectionModel()->hasSelection());
}

QString EffectsPane::loadingText(std::size_t found) const
{
    return found == 0 ? tr("Looking for effects…")
                      : tr("Looking for effects: %1 so far…").arg(QLocale().toString(qulonglong(found)));
}

QString EffectsPane::filteredText() const
{
    return m_search->text().isEmpty()
               ? tr("No effect is of this type.")
               : tr("No effect of this type has a name with “%1”.").arg(m_search->text());
}

EffectTableModel::EffectTableModel(MyDocument &document, QObject *parent)
    : TableModel(document, Tab::Effects, parent)
{
}

QIcon EffectTableModel::icon(const RowRecord &record, const Column &column) const
{
    const bool isOwner = column.key == EffectKey::clip || column.key == EffectKey::sequence;
    return isOwner && record.contains(column.key) ? TableIcons::named(column.identifier) : QIcon();
}

} // namespace vantrell
