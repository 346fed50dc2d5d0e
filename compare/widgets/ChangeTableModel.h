#pragma once

#include "compare/ChangeRanks.h"

#include <QAbstractTableModel>
#include <QIcon>

#include <array>
#include <bitset>
#include <cstddef>
#include <memory>
#include <vector>

namespace vantrell
{

/// The changes between two cuts of the kinds that are wanted, as a table. What sorts many changes by a text
/// is made in the background: until it is there, they stay in the order of the tracks. Main thread.
class ChangeTableModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Kind, Event, Track, Old, New, Difference, File, columns };

    /// Bit k stands for the kind with the number k.
    using Kinds = std::bitset<16>;

    using QAbstractTableModel::QAbstractTableModel;

    /// Null for none. It may change its markers meanwhile, nothing else.
    void setComparison(std::shared_ptr<const CutComparison> comparison);
    void setKinds(Kinds kinds);
    Kinds kinds() const { return m_kinds; }
    /// How many changes of the kind there are, shown or not.
    std::size_t countOf(EventChange::Kind kind) const { return m_counts[std::size_t(kind)]; }

    /// The indexes of the changes on show, from the top.
    const std::vector<std::size_t> &shown() const { return m_shown; }
    std::size_t changeAt(int row) const { return m_shown[std::size_t(row)]; }
    /// The row of a change; -1 when it is not on show.
    int rowOf(std::size_t change) const;

    /// What is told of a change where the mouse rests on it, as rich text.
    static QString toolTip(const CutComparison &comparison, std::size_t change);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// Column -1 is the order of the tracks.
    void sort(int column, Qt::SortOrder order) override;

private:
    void fill();
    void applySort();
    void rankTexts();
    bool sortsByText() const { return m_sortColumn == Event || m_sortColumn == File; }
    QString text(const EventChange &change, int column) const;

    std::shared_ptr<const CutComparison> m_comparison;
    std::shared_ptr<const ChangeRanks> m_ranks;     // of the comparison; null until they are there
    std::shared_ptr<const ChangeRanks> m_nextRanks; // that are being made in the background
    Kinds m_kinds = ~Kinds().set(std::size_t(EventChange::Kind::Unchanged));
    std::array<std::size_t, 16> m_counts = {};
    std::vector<std::size_t> m_shown;
    std::vector<int> m_rows; // by change; -1 when it is not on show
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    mutable std::array<QIcon, 16> m_swatches; // by kind, made when first needed
};

} // namespace vantrell
