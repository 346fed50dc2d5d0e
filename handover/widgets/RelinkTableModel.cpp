#include "handover/widgets/RelinkTableModel.h"

#include "media/MediaFile.h"
#include "support/widgets/ShownText.h"

namespace vantrell
{

void RelinkTableModel::setPlan(RelinkPlan plan, bool isSearched)
{
    beginResetModel();
    m_plan = std::move(plan);
    m_isSearched = isSearched;
    endResetModel();
    Q_EMIT planChanged();
}

int RelinkTableModel::rowOf(const QString &url) const
{
    for (std::size_t row = 0; row < m_plan.size(); ++row) {
        if (m_plan.match(row).missing.url == url)
            return int(row);
    }
    return -1;
}

QStringList RelinkTableModel::candidatesOf(int row) const
{
    QStringList paths;
    for (const RelinkCandidate &candidate : m_plan.match(std::size_t(row)).candidates)
        paths.append(candidate.file.path);
    return paths;
}

int RelinkTableModel::chosenOf(int row) const
{
    const RelinkCandidate *const chosen = m_plan.chosen(std::size_t(row));
    return chosen ? int(chosen - m_plan.match(std::size_t(row)).candidates.data()) : -1;
}

int RelinkTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_plan.size());
}

int RelinkTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant RelinkTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return QVariant();
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case Name:
        return tr("Name");
    case Match:
        return tr("Match");
    case FoundIn:
        return tr("Found");
    default:
        return tr("Folder in the Project");
    }
}

Qt::ItemFlags RelinkTableModel::flags(const QModelIndex &index) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return Qt::NoItemFlags;
    const std::size_t candidates = m_plan.match(std::size_t(index.row())).candidates.size();
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (index.column() == Name && candidates > 0)
        flags |= Qt::ItemIsUserCheckable;
    if (index.column() == FoundIn && candidates > 1)
        flags |= Qt::ItemIsEditable;
    return flags;
}

QString RelinkTableModel::matchText(int row) const
{
    const std::vector<RelinkCandidate> &candidates = m_plan.match(std::size_t(row)).candidates;
    if (candidates.empty())
        return m_isSearched ? tr("not found") : QString();
    const RelinkCandidate *const chosen = m_plan.chosen(std::size_t(row));
    QString text = shownValue(FileNames::textOf((chosen ? *chosen : candidates.front()).name));
    if (candidates.size() > 1)
        text += tr(", %1 files").arg(candidates.size());
    if (chosen) {
        for (const QString &other : Relinker::contradictions(m_plan.match(std::size_t(row)).missing, *chosen))
            text += QStringLiteral(", ") + shownValue(other);
    }
    return text;
}

QString RelinkTableModel::text(int row, int column) const
{
    const RelinkMatch &match = m_plan.match(std::size_t(row));
    switch (column) {
    case Name:
        return match.missing.name.isEmpty() ? match.missing.url : match.missing.name;
    case Match:
        return matchText(row);
    case FoundIn:
        if (const RelinkCandidate *const chosen = m_plan.chosen(std::size_t(row)))
            return chosen->file.path;
        return match.candidates.empty() ? QString() : tr("Choose one of %1…").arg(match.candidates.size());
    default:
        return MediaFile::splitPath(match.missing.path).directory;
    }
}

QVariant RelinkTableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return text(index.row(), index.column());
    case Qt::ToolTipRole:
        return Qt::convertFromPlainText(text(index.row(), index.column()), Qt::WhiteSpaceNormal);
    case Qt::EditRole:
        return chosenOf(index.row());
    case Qt::CheckStateRole:
        // A file without a candidate has a box that cannot be ticked.
        if (index.column() == Name)
            return int(m_plan.isRelinked(std::size_t(index.row())) ? Qt::Checked : Qt::Unchecked);
        return QVariant();
    default:
        return QVariant();
    }
}

bool RelinkTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const Qt::ItemFlags can = flags(index);
    const auto row = std::size_t(index.row());
    if (role == Qt::CheckStateRole && can.testFlag(Qt::ItemIsUserCheckable))
        m_plan.setRelinked(row, value.toInt() == Qt::Checked);
    else if (role == Qt::EditRole && can.testFlag(Qt::ItemIsEditable) && value.toInt() >= 0)
        m_plan.choose(row, std::size_t(value.toInt()));
    else
        return false;
    Q_EMIT dataChanged(this->index(index.row(), 0), this->index(index.row(), ColumnCount - 1));
    Q_EMIT planChanged();
    return true;
}

} // namespace vantrell
