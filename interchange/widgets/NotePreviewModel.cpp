#include "interchange/widgets/NotePreviewModel.h"

#include "interchange/NotePreview.h"
#include "markers/MarkerColors.h"
#include "support/widgets/ShownText.h"
#include "table/widgets/TableIcons.h"

#include <QGuiApplication>
#include <QPalette>

namespace vantrell
{

NotePreviewModel::NotePreviewModel(NotePreview &preview, QObject *parent)
    : QAbstractTableModel(parent)
    , m_preview(preview)
{
    takePlan();
    connect(&m_preview, &NotePreview::planned, this, &NotePreviewModel::takePlan);
    connect(&m_preview, &NotePreview::checksChanged, this, &NotePreviewModel::takeChecks);
}

void NotePreviewModel::takePlan()
{
    const int rows = int(m_preview.notes().size());
    const bool isReset = rows != m_rows;
    if (isReset)
        beginResetModel();
    m_rows = rows;
    m_owner = m_preview.sequences().value(qsizetype(m_preview.sequence()) - 1);
    m_columnsWithTexts = 0;
    for (const PlannedNote &note : m_preview.notes()) {
        m_columnsWithTexts |= (note.name.isEmpty() ? 0U : 1U << Name) |
                              (note.comment.isEmpty() ? 0U : 1U << Comment) |
                              (note.user.isEmpty() ? 0U : 1U << User);
    }
    if (isReset)
        endResetModel();
    else
        takeChecks();
}

void NotePreviewModel::takeChecks()
{
    if (m_rows > 0)
        Q_EMIT dataChanged(index(0, 0), index(m_rows - 1, ColumnCount - 1));
}

int NotePreviewModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int NotePreviewModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant NotePreviewModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case Line:
        return tr("Line");
    case Name:
        return tr("Name");
    case Comment:
        return tr("Comment");
    case Timecode:
        return tr("In");
    case Duration:
        return tr("Duration");
    case Color:
        return tr("Color");
    case Owner:
        return tr("Sequence");
    case User:
        return tr("User");
    case Remark:
        return tr("Remark");
    default:
        return QVariant();
    }
}

Qt::ItemFlags NotePreviewModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.isValid() && index.column() == Line && m_preview.mayCheck(std::size_t(index.row())))
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

QString NotePreviewModel::text(std::size_t row, int column) const
{
    const PlannedNote &note = m_preview.notes()[row];
    switch (column) {
    case Line:
        return QString::number(note.line);
    case Name:
        return note.name;
    case Comment:
        return note.comment;
    case Timecode:
        return m_preview.timecode(row);
    case Duration:
        return m_preview.duration(row);
    case Color:
        return note.isRow ? shownValue(MarkerColors::table()[std::size_t(note.color)].label) : QString();
    case Owner:
        return note.isRow ? m_owner : QString();
    case User:
        return note.user;
    case Remark:
        return shownMessage(m_preview.remark(row));
    default:
        return QString();
    }
}

QVariant NotePreviewModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows)
        return QVariant();
    const auto row = std::size_t(index.row());
    const PlannedNote &note = m_preview.notes()[row];
    switch (role) {
    case Qt::DisplayRole:
        return text(row, index.column()).left(1000).replace(QLatin1Char('\n'), QLatin1Char(' '));
    case Qt::ToolTipRole:
        return text(row, index.column()).left(4000).toHtmlEscaped();
    case Qt::CheckStateRole:
        return index.column() == Line ? QVariant(m_preview.isChecked(row) ? Qt::Checked : Qt::Unchecked)
                                      : QVariant();
    case Qt::DecorationRole:
        return index.column() == Color && note.isRow ? QVariant(TableIcons::marker(note.color)) : QVariant();
    case Qt::ForegroundRole:
        return m_preview.isChecked(row) || index.column() == Remark
                   ? QVariant()
                   : QVariant(QGuiApplication::palette().brush(QPalette::PlaceholderText));
    case Qt::AccessibleTextRole:
        return index.column() == Line ? tr("Line %1").arg(note.line) : text(row, index.column());
    default:
        return QVariant();
    }
}

bool NotePreviewModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !flags(index).testFlag(Qt::ItemIsUserCheckable))
        return false;
    m_preview.setChecked({std::size_t(index.row())}, value.toInt() == Qt::Checked);
    return true;
}

} // namespace vantrell
