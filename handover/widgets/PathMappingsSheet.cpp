#include "handover/widgets/PathMappingsSheet.h"

#include "support/widgets/FilePanel.h"
#include "table/widgets/SheetTable.h"
#include "table/widgets/SheetTableModel.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace vantrell
{

namespace
{

const QString fromColumn = QStringLiteral("from");
const QString toColumn = QStringLiteral("to");

class MappingRows final : public SheetTableModel
{
public:
    MappingRows(std::vector<PathMapping> &rows, QObject *parent)
        : SheetTableModel({{fromColumn, PathMappingsSheet::tr("Folder in Projects")},
                           {toColumn, PathMappingsSheet::tr("Folder on This Machine")}},
                          parent)
        , m_rows(rows)
    {
    }

protected:
    int rows() const override { return int(m_rows.size()); }
    QString text(int row, const QString &column) const override
    {
        const PathMapping &mapping = m_rows[std::size_t(row)];
        return column == fromColumn ? mapping.from : mapping.to;
    }
    void setText(int row, const QString &column, const QString &text) override
    {
        PathMapping &mapping = m_rows[std::size_t(row)];
        (column == fromColumn ? mapping.from : mapping.to) = text.trimmed();
    }

private:
    std::vector<PathMapping> &m_rows;
};

} // namespace

PathMappingsSheet::PathMappingsSheet(const PathMappings &mappings, QWidget *window)
    : QDialog(window)
    , m_rows(mappings.list())
    , m_model(new MappingRows(m_rows, this))
    , m_table(new SheetTable(m_model, this))
    , m_remove(new QPushButton(tr("&Remove"), this))
    , m_choose(new QPushButton(tr("&Choose Folder…"), this))
    , m_problem(new QLabel(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Path Mappings"));
    const int character = fontMetrics().averageCharWidth();
    m_table->setAccessibleName(tr("Path mappings"));
    m_table->setTextElideMode(Qt::ElideMiddle);
    m_table->setColumnWidth(0, character * 46);
    m_table->setMinimumSize(character * 92, fontMetrics().height() * 11);
    auto *const hint =
        new QLabel(tr("Files of the first folder are looked for in the second one, in all projects. "
                      "Projects stay as they are. The first folder may also be a path with a drive "
                      "letter, such as C:\\Show, a share, such as //server/share, or a URL."),
                   this);
    hint->setWordWrap(true);
    hint->setForegroundRole(QPalette::PlaceholderText);
    m_problem->setWordWrap(true);
    m_problem->hide();
    auto *const add = new QPushButton(tr("&Add"), this);
    auto *const line = new QHBoxLayout;
    for (QPushButton *const button : {add, m_remove, m_choose}) {
        button->setAutoDefault(false);
        line->addWidget(button);
    }
    line->addStretch();
    setTabOrder(m_table, add);
    setTabOrder(add, m_remove);
    setTabOrder(m_remove, m_choose);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(hint);
    layout->addWidget(m_table, 1);
    layout->addLayout(line);
    layout->addWidget(m_problem);
    layout->addWidget(buttons);
    connect(add, &QPushButton::clicked, this, &PathMappingsSheet::addRow);
    connect(m_remove, &QPushButton::clicked, this, &PathMappingsSheet::removeRow);
    connect(m_choose, &QPushButton::clicked, this, &PathMappingsSheet::chooseFolder);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &PathMappingsSheet::updateControls);
    connect(m_model, &QAbstractItemModel::modelReset, this, &PathMappingsSheet::updateControls);
    updateControls();
    m_table->setFocus();
}

void PathMappingsSheet::addRow()
{
    m_table->endEditing();
    m_model->willReload();
    m_rows.emplace_back();
    m_model->didReload();
    const QModelIndex from = m_model->index(m_model->rowCount() - 1, 0);
    m_table->setFocus();
    m_table->setCurrentIndex(from);
    m_table->scrollTo(from);
    m_table->edit(from);
}

void PathMappingsSheet::removeRow()
{
    m_table->endEditing();
    const int row = m_table->selectedRow();
    if (row < 0)
        return;
    m_model->willReload();
    m_rows.erase(m_rows.begin() + row);
    m_model->didReload();
    m_table->setCurrentIndex(m_model->index(std::min(row, m_model->rowCount() - 1), 0));
}

void PathMappingsSheet::chooseFolder()
{
    m_table->endEditing();
    const int row = m_table->selectedRow();
    if (row < 0)
        return;
    FilePanel::runForFolder(
        {.window = this,
         .title = tr("Folder on This Machine"),
         .folder = m_rows[std::size_t(row)].to,
         .acceptLabel = tr("Choose")},
        [this, row](const QString &path) { m_model->setData(m_model->index(row, 1), path); });
}

void PathMappingsSheet::updateControls()
{
    const bool isSelected = m_table->selectedRow() >= 0;
    m_remove->setEnabled(isSelected);
    m_choose->setEnabled(isSelected);
}

void PathMappingsSheet::accept()
{
    m_table->endEditing();
    PathMappings mappings;
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        const auto &[from, to] = m_rows[row];
        if ((from.isEmpty() && to.isEmpty()) || mappings.add(from, to))
            continue;
        m_problem->setText(from.isEmpty() || to.isEmpty()
                               ? tr("A mapping needs both folders.")
                               : tr("“%1” is no absolute path: it must begin with a slash.").arg(to));
        m_problem->show();
        m_table->selectRow(int(row));
        return;
    }
    hide();
    Q_EMIT chosen(mappings);
    QDialog::accept();
}

} // namespace vantrell
