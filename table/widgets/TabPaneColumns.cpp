#include "table/widgets/ColumnLayout.h"
#include "table/widgets/QVTableView.h"
#include "table/widgets/TabPane.h"
#include "table/widgets/TableModel.h"

#include <QAction>
#include <QHeaderView>
#include <QMenu>

namespace vantrell
{

namespace
{

QString menuTitle(const Column &column)
{
    QString title = TableModel::shownName(column);
    return title.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

} // namespace

bool TabPane::isColumnShown(const QString &identifier) const
{
    return m_model->columnOf(identifier) >= 0 && !m_columnLayout->isHidden(identifier);
}

void TabPane::showColumn(const QString &identifier, bool isShown)
{
    m_table->commitEditing();
    m_columnLayout->show(identifier, isShown);
    saveLayout();
}

void TabPane::fitColumn(const QString &identifier)
{
    m_columnLayout->fit(identifier);
    saveLayout();
}

void TabPane::fitAllColumns()
{
    m_columnLayout->fitAll();
    saveLayout();
}

void TabPane::resetColumns()
{
    m_table->commitEditing();
    int position = 0;
    for (const Column &column : m_model->columns())
        moveColumnTo(column.identifier, position++);
    m_columnLayout->reset();
    m_newColumns.clear();
    saveLayout();
}

void TabPane::fillColumnMenu(QMenu &menu, const QString &clicked)
{
    const auto list = [&](const Column &column) {
        const QString identifier = column.identifier;
        const bool isShown = isColumnShown(identifier);
        QAction *const action = menu.addAction(menuTitle(column));
        action->setCheckable(true);
        action->setChecked(isShown);
        action->setEnabled(!isShown || m_columnLayout->mayHide(identifier));
        connect(action, &QAction::triggered, this,
                [this, identifier](bool shows) { showColumn(identifier, shows); });
    };
    for (const QString &identifier : columns())
        list(m_model->columnAt(m_model->columnOf(identifier)));
    for (const Column &column : otherColumns()) {
        if (m_model->columnOf(column.identifier) < 0)
            list(column);
    }
    menu.addSeparator();
    const int current = m_table->currentIndex().column();
    const QString fitted =
        !clicked.isEmpty() || current < 0 ? clicked : m_model->columnAt(current).identifier;
    menu.addAction(tr("Fi&t Column"), this, [this, fitted] { fitColumn(fitted); })
        ->setEnabled(isColumnShown(fitted));
    menu.addAction(tr("Fit &All Columns"), this, &TabPane::fitAllColumns);
    menu.addAction(tr("&Reset Columns"), this, &TabPane::resetColumns);
}

/// At a position in the header; without one, that of the current cell's column.
void TabPane::showHeaderMenu(const QPoint &position)
{
    QHeaderView *const header = m_table->horizontalHeader();
    QPoint place = position;
    if (place.isNull()) {
        const int current = std::max(0, m_table->currentIndex().column());
        place = {header->sectionViewportPosition(current) + header->sectionSize(current) / 2,
                 header->height()};
        place.setX(std::clamp(place.x(), 0, header->width()));
    }
    const int section = header->logicalIndexAt(place.x());
    auto *const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fillColumnMenu(*menu, section < 0 ? QString() : m_model->columnAt(section).identifier);
    if (!header->actions().isEmpty())
        menu->addSeparator();
    menu->addActions(header->actions());
    menu->popup(header->mapToGlobal(place));
}

} // namespace vantrell
