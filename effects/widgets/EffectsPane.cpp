#include "effects/widgets/EffectsPane.h"

#include "effects/EffectKeys.h"
#include "support/widgets/ShownText.h"
#include "table/widgets/QVTableView.h"
#include "table/widgets/SearchBar.h"
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

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace vantrell
{

EffectsPane::EffectsPane(Workbench &workbench, UserDefaults &defaults, QWidget *parent)
    : TabPane(workbench, defaults, new EffectTableModel(workbench.document()), parent)
    , m_types(new QComboBox(this))
    , m_showDefaults(new QCheckBox(tr("Show &defaults"), this))
    , m_remove(new QPushButton(tr("&Remove…"), this))
    , m_showHidden(new QPushButton(tr("Show Hidde&n Effects"), this))
{
    m_types->addItems({tr("All Effects"), tr("Filters"), tr("Video Filters"), tr("Audio Filters"),
                       tr("Generators"), tr("Transitions")});
    m_types->setAccessibleName(tr("Type of effects"));
    m_types->setToolTip(tr("Show effects of one type only"));
    m_showDefaults->setToolTip(
        tr("Also show the effects that every clip has, such as Basic Motion and Opacity"));
    m_remove->setToolTip(tr("Remove the selected effects from the project"));
    addControls({m_types, m_showDefaults, nullptr, m_remove});
    QLineEdit &field = addSearchBar().field();
    field.setAccessibleName(tr("Search by name"));
    field.setToolTip(tr("Show only effects whose name contains this text"));
    footer().addWidget(makeLabel(Label::EffectStatus, this));
    auto *const deleteKey =
        new QLabel(tr("The Delete key takes rows off this list only; View ▸ Show Hidden Effects "
                      "lists them again. Edit ▸ Remove… removes the effects from the project."),
                   this);
    deleteKey->setWordWrap(true);
    deleteKey->setForegroundRole(QPalette::PlaceholderText);
    m_showHidden->setToolTip(tr("List the effects again that the Delete key has taken off the list"));
    m_showHidden->hide();
    returnFocusFrom(m_showHidden);
    auto *const line = new QHBoxLayout;
    line->addWidget(deleteKey, 1);
    line->addWidget(m_showHidden, 0, Qt::AlignTop);
    footer().addLayout(line);

    connect(m_types, &QComboBox::activated, this, &EffectsPane::applyFilters);
    connect(m_showDefaults, &QCheckBox::toggled, this, &EffectsPane::applyFilters);
    connect(m_remove, &QPushButton::clicked, this, &EffectsPane::removeEffects);
    connect(m_showHidden, &QPushButton::clicked, this, &EffectsPane::showHiddenEffects);
    connect(&model().view(), &RowView::didReload, this, &EffectsPane::noteReload);
    connect(this, &TabPane::selectionChanged, this,
            [this] { this->workbench().effectInventory().updateEffectStatusText(); });

    table().setAccessibleName(tr("Effects"));
    connect(&table(), &QAbstractItemView::doubleClicked, this, [this](const QModelIndex &index) {
        if (!isEditingEnabled() || model().columnAt(index.column()).kind == Column::Kind::Text)
            openEffect();
    });
    table().addWatchKeys({13, 3}, "openEffect");
    table().setKeyDownHandler([this](QVTableView &, QKeyEvent &event) {
        const bool isDelete = event.key() == Qt::Key_Delete || event.key() == Qt::Key_Backspace;
        if (!isDelete)
            return false;
        if (!table().selectionModel()->hasSelection()) {
            showMessage(tr("No effect left the list: no row is selected"));
            return false;
        }
        hideSelectedEffects();
        return true;
    });
    auto *menu = new QMenu(this);
    menu->addAction(tr("&Remove…"), this, &EffectsPane::removeEffects);
    menu->addAction(tr("&Copy"), this, &TabPane::copySelection);
    table().setMenu(menu);
    updateControls();
}

void EffectsPane::applyFilters()
{
    ViewState &state = workbench().document().viewState();
    state.effectType = m_types->currentIndex();
    state.effectShowDefaults = m_showDefaults->isChecked();
    const bool isSearch = state.effectSearch != searchBar().text();
    state.effectSearch = searchBar().text();
    if (state.selectedTab != Tab::Effects)
        return; // showing the tab applies them
    dropMessage();
    keepHidden({}); // the list is made anew
    if (isSearch)
        workbench().effectInventory().effectSearchAction();
    else
        workbench().effectInventory().changeEffectFilter();
}

void EffectsPane::openEffect()
{
    if (!isEditingEnabled())
        tellWhyNotEditable();
    else
        showMessage(tr("An effect has nothing to open here. Its box switches it on and off, Remove… takes "
                       "it out, and the editing application changes its settings"));
}

void EffectsPane::hideSelectedEffects()
{
    RowList hidden = m_hidden;
    const std::vector<std::size_t> rows = selectedRows();
    for (const std::size_t row : rows)
        hidden.push_back(model().recordAt(int(row)));
    m_generation = model().view().generation();
    keepHidden(std::move(hidden)); // first: an empty table tells of them
    workbench().effectEditor().hideSelectedEffects();
    const auto count = qsizetype(rows.size());
    showMessage(
        count == 1
            ? tr("1 effect left the list, but is still in the project")
            : tr("%1 effects left the list, but are still in the project").arg(locale().toString(count)));
}

/// Those of an earlier list no longer count.
bool EffectsPane::hidesEffects() const
{
    return !m_hidden.empty() && m_generation == model().view().generation();
}

void EffectsPane::showHiddenEffects()
{
    if (!hidesEffects())
        return;
    table().setFocus(Qt::OtherFocusReason); // the button goes
    applyFilters();
    setMessage(QString());
}

/// All hidden effects come back together, whatever rebuilds the rows.
void EffectsPane::noteReload()
{
    if (m_hidden.empty())
        return;
    const RowView &view = model().view();
    const std::unordered_set<RowRecordPtr> hidden(m_hidden.begin(), m_hidden.end());
    const RowList &rows = view.visibleRows();
    const bool isBack =
        std::any_of(rows.begin(), rows.end(), [&](const RowRecordPtr &row) { return hidden.contains(row); });
    if (isBack || !hidesEffects())
        keepHidden({});
}

void EffectsPane::keepHidden(RowList hidden)
{
    m_hidden = std::move(hidden);
    m_showHidden->setVisible(hidesEffects());
}

void EffectsPane::removeEffects()
{
    if (!isEditingEnabled())
        return;
    // The indexes stay selected, whatever rows have them afterwards.
    const std::vector<std::size_t> rows = selectedRows();
    if (rows.empty())
        showMessage(tr("Nothing was removed: no row is selected"));
    workbench().effectEditor().removeEffects();
    selectRows(rows);
}

QString EffectsPane::countText(const QString &number, std::size_t count) const
{
    return count == 1 ? tr("%1 effect").arg(number) : tr("%1 effects").arg(number);
}

void EffectsPane::commitEdit(int, const QString &column, const QString &text)
{
    MyDocument &document = workbench().document();
    workbench().effectEditor().updateXMLEffects(document.selectedRecords(Tab::Effects), column, text);
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
    if (hidesEffects())
        return tr("All effects were taken off this list. They are still in the project.");
    const QString searched = searchBar().text();
    const bool isOfAll = m_types->currentIndex() == 0;
    QString text;
    if (!searched.isEmpty())
        text = (isOfAll ? tr("No effect has a name with “%1”.")
                        : tr("No effect of this type has a name with “%1”."))
                   .arg(searched);
    else
        text =
            isOfAll ? tr("All effects of this project are default ones.") : tr("No effect is of this type.");
    if (!m_showDefaults->isChecked())
        text += QLatin1Char(' ') + tr("“Show defaults” lists default effects as well.");
    return text;
}

EffectTableModel::EffectTableModel(MyDocument &document, QObject *parent)
    : TableModel(document, Tab::Effects, parent)
{
}

QString EffectTableModel::text(const RowRecord &record, const Column &column) const
{
    const QString text = TableModel::text(record, column);
    const bool isKind = column.key == EffectKey::effectType || column.key == EffectKey::mediaType;
    return isKind ? shownValue(text) : text;
}

QIcon EffectTableModel::icon(const RowRecord &record, const Column &column) const
{
    const bool isOwner = column.key == EffectKey::clip || column.key == EffectKey::sequence;
    return isOwner && record.contains(column.key) ? TableIcons::named(column.identifier) : QIcon();
}

} // namespace vantrell
