#pragma once

#include "compare/CutComparison.h"

#include <QAbstractTableModel>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>

namespace vantrell
{

/// The markers of the old cut with where they go in the new one; the check box says which are to be added. A
/// marker without a place is added where its cell in the column "New" says. Main thread.
class CarriedMarkerModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, Old, New, State, File, columns };

    using QAbstractTableModel::QAbstractTableModel;

    /// Null for none. Markers that have no place are not wanted from the start.
    void setComparison(std::shared_ptr<CutComparison> comparison);
    /// Shows what was done to the markers.
    void update();
    /// While it does not hold, the check boxes and places stay as they are.
    void setEditable(bool isEditable);
    bool isEditable() const { return m_isEditable; }

    /// How many markers would be added, and how many there are.
    std::size_t wantedCount() const;
    std::size_t count() const { return m_comparison ? m_comparison->markers.size() : 0; }
    /// Those of the state that are not there.
    std::size_t countOf(MarkerPlace::State state) const;
    /// Those that the new cut had already, and those that were added to it.
    std::size_t thereCount() const;
    std::size_t addedCount() const;
    /// Wants all that have a place and are not there, or none.
    void wantAll(bool areWanted);

    /// The frame of the new cut at which the marker is or would be; nothing without one.
    std::optional<std::int64_t> newFrameOf(std::size_t marker) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    /// Another number of markers is wanted.
    void wantedChanged();

private:
    QString text(const CarriedMarker &marker, int column) const;
    static QString toolTip(const CarriedMarker &marker);
    bool state(CarriedMarker &marker, const QString &timecode) const;

    std::shared_ptr<CutComparison> m_comparison;
    bool m_isEditable = true;
};

} // namespace vantrell
