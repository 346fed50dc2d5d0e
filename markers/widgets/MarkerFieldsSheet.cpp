#include "markers/widgets/MarkerFieldsSheet.h"

#include "markers/MarkerFields.h"
#include "support/widgets/ShownText.h"
#include "table/widgets/SheetTable.h"
#include "table/widgets/SheetTableModel.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>
#include <utility>

namespace vantrell
{

namespace
{

const QString titleColumn = QStringLiteral("title");
const QString identifierColumn = QStringLiteral("identifier");

class FieldRows final : public SheetTableModel
{
public:
    using Refused = std::function<void(const QString &conflict)>;

    /// `refused` is told why a text was not taken; null when the last one was.
    FieldRows(MarkerFields &fields, Refused refused, QObject *parent)
        : SheetTableModel({{titleColumn, MarkerFieldsSheet::tr("Title")},
                           {identifierColumn, MarkerFieldsSheet::tr("Identifier")}},
                          parent)
        , m_fields(fields)
        , m_refused(std::move(refused))
    {
    }

protected:
    int rows() const override { return int(m_fields.markerFieldArray().size()); }
    QString text(int row, const QString &column) const override
    {
        const MarkerField &field = m_fields.markerFieldArray()[std::size_t(row)];
        return column == titleColumn ? field.title : field.identifier;
    }
    /// A title that is left as it was still gives the field its identifier; an identifier would lose
    /// another character.
    void setText(int row, const QString &column, const QString &newText) override
    {
        const QString conflict = m_fields.conflictOf(newText, column, std::size_t(row));
        m_refused(conflict);
        if (conflict.isNull() && (column == titleColumn || newText != text(row, column)))
            m_fields.setObjectValue(newText, column, std::size_t(row));
    }

private:
    MarkerFields &m_fields;
    Refused m_refused;
};

} // namespace

MarkerFieldsSheet::MarkerFieldsSheet(MarkerFields &fields, QWidget *parent)
    : QDialog(parent, Qt::Sheet)
    , m_fields(fields)
    , m_model(new FieldRows(
          fields, [this](const QString &conflict) { tell(conflict); }, this))
    , m_table(new SheetTable(m_model, this))
    , m_remove(new QPushButton(tr("&Remove"), this))
    , m_conflict(new QLabel(this))
{
    m_conflict->setTextFormat(Qt::PlainText);
    m_conflict->setWordWrap(true);
    m_conflict->hide();
    m_model->willReload();
    m_fields.showMarkerFieldsDialog();
    m_model->didReload();
    setWindowTitle(tr("Marker Fields"));
    setWindowModality(Qt::WindowModal);
    m_table->setAccessibleName(tr("Marker fields"));
    m_table->setColumnWidth(0, fontMetrics().averageCharWidth() * 26);
    m_table->setMinimumSize(fontMetrics().averageCharWidth() * 56, fontMetrics().height() * 11);
    auto *const hint =
        new QLabel(tr("Each field is a column of the marker table. What you type there is kept "
                      "in the marker’s comment, under the identifier."),
                   this);
    hint->setWordWrap(true);
    hint->setForegroundRole(QPalette::PlaceholderText);
    auto *const add = new QPushButton(tr("&Add"), this);
    auto *const close = new QPushButton(tr("&Done"), this);
    for (QPushButton *const button : {add, m_remove})
        button->setAutoDefault(false);
    close->setDefault(true);
    auto *const buttons = new QHBoxLayout;
    buttons->addWidget(add);
    buttons->addWidget(m_remove);
    buttons->addStretch();
    buttons->addWidget(close);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_conflict);
    layout->addWidget(hint);
    layout->addLayout(buttons);
    connect(add, &QPushButton::clicked, this, &MarkerFieldsSheet::markerFieldAdd);
    connect(m_remove, &QPushButton::clicked, this, &MarkerFieldsSheet::markerFieldRemove);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MarkerFieldsSheet::updateRemove);
    connect(m_model, &QAbstractItemModel::modelReset, this, &MarkerFieldsSheet::updateRemove);
    updateRemove();
    m_table->setFocus();
}

void MarkerFieldsSheet::done(int result)
{
    if (!std::exchange(m_isDone, true)) {
        m_table->endEditing();
        m_fields.hideMarkerFieldsDialog();
    }
    QDialog::done(result);
}

void MarkerFieldsSheet::accept()
{
    if (endEditing())
        QDialog::accept();
}

void MarkerFieldsSheet::reject()
{
    if (endEditing())
        QDialog::reject();
}

/// Takes over what is being typed; false when that was refused.
bool MarkerFieldsSheet::endEditing()
{
    tell(QString());
    m_table->endEditing();
    return m_conflict->isHidden();
}

void MarkerFieldsSheet::tell(const QString &conflict)
{
    m_conflict->setText(tr("⚠ %1 It was left as it was.").arg(shownMessage(conflict)));
    m_conflict->setVisible(!conflict.isEmpty());
    // The sheet grows with a text of several lines.
    const QMargins margins = layout()->contentsMargins();
    m_conflict->setMinimumHeight(m_conflict->heightForWidth(width() - margins.left() - margins.right()));
}

void MarkerFieldsSheet::markerFieldAdd()
{
    if (!endEditing())
        return;
    m_model->willReload();
    m_fields.markerFieldAdd();
    m_model->didReload();
    const QModelIndex title = m_model->index(m_model->rowCount() - 1, 0);
    m_table->setFocus();
    m_table->setCurrentIndex(title);
    m_table->scrollTo(title);
    m_table->edit(title);
}

void MarkerFieldsSheet::markerFieldRemove()
{
    endEditing();
    const int row = m_table->selectedRow();
    if (row < 0)
        return;
    m_model->willReload();
    m_fields.markerFieldRemove(std::size_t(row));
    m_model->didReload();
    m_table->setCurrentIndex(m_model->index(std::min(row, m_model->rowCount() - 1), 0));
}

void MarkerFieldsSheet::updateRemove()
{
    m_remove->setEnabled(m_table->selectedRow() >= 0);
}

} // namespace vantrell
