#include "compare/widgets/CarriedMarkerModel.h"

#include "support/widgets/ShownText.h"
#include "timecode/QVTimecode.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace vantrell
{

namespace
{

bool isGone(const CarriedMarker &marker)
{
    return marker.place.state == MarkerPlace::State::Gone;
}

} // namespace

void CarriedMarkerModel::setComparison(std::shared_ptr<CutComparison> comparison)
{
    beginResetModel();
    m_comparison = std::move(comparison);
    if (m_comparison) {
        for (CarriedMarker &marker : m_comparison->markers)
            marker.isWanted = !isGone(marker) && !marker.isThere;
    }
    endResetModel();
    Q_EMIT wantedChanged();
}

void CarriedMarkerModel::update()
{
    if (count() > 0)
        Q_EMIT dataChanged(index(0, 0), index(int(count()) - 1, columns - 1));
    Q_EMIT wantedChanged();
}

void CarriedMarkerModel::setEditable(bool isEditable)
{
    m_isEditable = isEditable;
    update();
}

std::size_t CarriedMarkerModel::wantedCount() const
{
    if (!m_comparison)
        return 0;
    return std::size_t(
        std::count_if(m_comparison->markers.begin(), m_comparison->markers.end(),
                      [](const CarriedMarker &marker) { return marker.isWanted && !marker.isThere; }));
}

std::size_t CarriedMarkerModel::countOf(MarkerPlace::State state) const
{
    if (!m_comparison)
        return 0;
    return std::size_t(std::count_if(
        m_comparison->markers.begin(), m_comparison->markers.end(),
        [state](const CarriedMarker &marker) { return marker.place.state == state && !marker.isThere; }));
}

std::size_t CarriedMarkerModel::thereCount() const
{
    if (!m_comparison)
        return 0;
    return std::size_t(
        std::count_if(m_comparison->markers.begin(), m_comparison->markers.end(),
                      [](const CarriedMarker &marker) { return marker.isThere && !marker.isAdded; }));
}

std::size_t CarriedMarkerModel::addedCount() const
{
    if (!m_comparison)
        return 0;
    return std::size_t(std::count_if(m_comparison->markers.begin(), m_comparison->markers.end(),
                                     [](const CarriedMarker &marker) { return marker.isAdded; }));
}

void CarriedMarkerModel::wantAll(bool areWanted)
{
    if (!m_comparison || !m_isEditable)
        return;
    for (CarriedMarker &marker : m_comparison->markers)
        marker.isWanted = areWanted && !marker.isThere && !isGone(marker);
    update();
}

std::optional<std::int64_t> CarriedMarkerModel::newFrameOf(std::size_t marker) const
{
    const CarriedMarker &one = m_comparison->markers[marker];
    if (!isGone(one))
        return one.place.newFrame;
    return one.isWanted || one.isAdded ? one.statedFrame : std::nullopt;
}

int CarriedMarkerModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(count());
}

int CarriedMarkerModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columns;
}

Qt::ItemFlags CarriedMarkerModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (!index.isValid())
        return flags;
    const CarriedMarker &marker = m_comparison->markers[std::size_t(index.row())];
    if (marker.isThere || !m_isEditable)
        return flags;
    if (index.column() == Name)
        flags |= Qt::ItemIsUserCheckable;
    if (index.column() == New && isGone(marker))
        flags |= Qt::ItemIsEditable;
    return flags;
}

QVariant CarriedMarkerModel::data(const QModelIndex &index, int role) const
{
    const CarriedMarker &marker = m_comparison->markers[std::size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return text(marker, index.column());
    case Qt::EditRole:
        if (index.column() == New)
            return m_comparison->newTimecode(marker.statedFrame.value_or(marker.place.oldFrame));
        return text(marker, index.column());
    case Qt::CheckStateRole:
        if (index.column() == Name)
            return marker.isWanted && !marker.isThere ? Qt::Checked : Qt::Unchecked;
        break;
    case Qt::FontRole:
        if (index.column() == New && isGone(marker)) {
            QFont font;
            font.setItalic(true);
            return font;
        }
        break;
    case Qt::ForegroundRole:
        if (marker.isThere)
            return QGuiApplication::palette().brush(QPalette::PlaceholderText);
        break;
    case Qt::ToolTipRole:
        return toolTip(marker);
    case Qt::AccessibleDescriptionRole:
        return headerData(index.column(), Qt::Horizontal, Qt::DisplayRole);
    default:
        break;
    }
    return {};
}

QString CarriedMarkerModel::text(const CarriedMarker &marker, int column) const
{
    switch (column) {
    case Name:
        return marker.name;
    case Old:
        return m_comparison->oldTimecode(marker.place.oldFrame);
    case New:
        if (!isGone(marker))
            return m_comparison->newTimecode(marker.place.newFrame);
        return marker.statedFrame && (marker.isWanted || marker.isAdded)
                   ? m_comparison->newTimecode(*marker.statedFrame)
                   : tr("no place left");
    case State: {
        QString name = marker.isAdded ? tr("added") : shownValue(marker.stateName());
        name[0] = name[0].toUpper();
        return name;
    }
    case File:
        return marker.place.file.section(QLatin1Char('/'), -1);
    default:
        return QString();
    }
}

QString CarriedMarkerModel::toolTip(const CarriedMarker &marker)
{
    if (marker.isAdded)
        return tr("It was added to the new cut.");
    if (marker.isThere)
        return tr("The new cut has this marker there already. It is not added again.");
    switch (marker.place.state) {
    case MarkerPlace::State::Carried:
        return tr("It goes to where its picture went.");
    case MarkerPlace::State::Nearest:
        return tr("It goes near its picture, or to a place that has to be looked at.");
    case MarkerPlace::State::Gone:
        break;
    }
    return tr("Its picture is gone. Tick it, or enter a timecode under “New”, to add it nevertheless.");
}

bool CarriedMarkerModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    CarriedMarker &marker = m_comparison->markers[std::size_t(index.row())];
    if (marker.isThere || !m_isEditable)
        return false;
    if (role == Qt::CheckStateRole && index.column() == Name) {
        marker.isWanted = value.toInt() == Qt::Checked;
        if (marker.isWanted && isGone(marker) && !marker.statedFrame)
            marker.statedFrame = marker.place.oldFrame;
    } else if (role == Qt::EditRole && index.column() == New && isGone(marker)) {
        if (!state(marker, value.toString()))
            return false;
    } else {
        return false;
    }
    Q_EMIT dataChanged(this->index(index.row(), 0), this->index(index.row(), columns - 1));
    Q_EMIT wantedChanged();
    return true;
}

/// Takes the typed timecode as the marker's place, if it lies in the new cut.
bool CarriedMarkerModel::state(CarriedMarker &marker, const QString &timecode) const
{
    const SequenceTiming &timing = m_comparison->newTiming;
    const QString whole = QVTimecode::timecodeFromUserString(timecode.trimmed(), timing.dropFrame,
                                                             m_comparison->newTimecode(0));
    const auto frame = std::int64_t(QVTimecode::frameCountFromTimecode(
        whole, timing.timebase, timing.ntsc, timing.dropFrame, quint64(timing.startFrame)));
    if (timecode.trimmed().isEmpty() || frame < 0 || frame > m_comparison->after.duration)
        return false;
    marker.statedFrame = frame;
    marker.isWanted = true;
    return true;
}

QVariant CarriedMarkerModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    const QStringList titles{tr("Marker"), tr("Old"), tr("New"), tr("Place"), tr("File")};
    return titles.value(section);
}

} // namespace vantrell
