#include "table/widgets/ColumnLayout.h"

#include "table/widgets/QVTableView.h"
#include "table/widgets/TableModel.h"

#include <QEvent>
#include <QHeaderView>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QStyle>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace vantrell
{

namespace
{

// In characters of average width
constexpr int smallestText = 10;
constexpr int smallestPopUp = 14; // with an icon and an arrow
constexpr int smallestStretched = 14;
constexpr int widestFit = 60;
constexpr int aroundDigits = 4; // of a column's characters, those that leave room about its digits

/// Which column cannot be hidden, how narrow it may become in characters, and which columns take the
/// remaining width: the first one that is shown.
struct Roles {
    QString key;
    int smallestKey;
    std::array<QString, 2> stretched;
};

Roles rolesOf(Tab tab)
{
    using namespace Qt::StringLiterals;
    switch (tab) {
    case Tab::Media:
        return {u"filename"_s, 26, {u"directory"_s, u"filename"_s}};
    case Tab::Effects:
        return {u"name"_s, 18, {u"name"_s, u"name"_s}};
    case Tab::Markers:
        break;
    }
    return {u"name"_s, 18, {u"comment"_s, u"name"_s}};
}

/// Whether the cells may be shortened: their texts can be read elsewhere.
bool canShorten(const Column &column)
{
    return column.kind != Column::Kind::CheckBox && (column.hasToolTip || column.elidesMiddle);
}

struct SectionWidth {
    int section;
    int wished;
    int smallest;
};

/// Takes the missing pixels from the wished widths. Each section gives up the same share of what it can; the
/// stretched one gives up less as long as the others have room.
void narrow(std::vector<SectionWidth> &widths, int stretched, qint64 missing)
{
    qint64 ofStretched = 0;
    qint64 ofOthers = 0;
    for (const SectionWidth &one : widths)
        (one.section == stretched ? ofStretched : ofOthers) += one.wished - one.smallest;
    const double share = double(missing) / double(ofStretched + ofOthers);
    const qint64 others = std::min(ofOthers, missing - qint64(double(ofStretched) * share * share));
    for (SectionWidth &one : widths) {
        if (one.section == stretched)
            one.wished -= int(missing - others);
        else if (ofOthers > 0)
            one.wished -= int((one.wished - one.smallest) * others / ofOthers);
    }
}

} // namespace

ColumnLayout::ColumnLayout(QVTableView &table, TableModel &model, QObject *parent)
    : QObject(parent)
    , m_table(table)
    , m_model(model)
{
    takeFont();
    QHeaderView *const header = m_table.horizontalHeader();
    header->setStretchLastSection(false);
    disconnect(header, &QHeaderView::sectionHandleDoubleClicked, &m_table, nullptr);
    connect(header, &QHeaderView::sectionHandleDoubleClicked, this, [this](int section) {
        fit(column(section).identifier);
        Q_EMIT resized();
    });
    connect(header, &QHeaderView::sectionResized, this, &ColumnLayout::noteResize);
    m_table.installEventFilter(this);
    m_table.viewport()->installEventFilter(this);
    header->viewport()->installEventFilter(this);
}

const Column &ColumnLayout::column(int section) const
{
    return m_model.columnAt(section);
}

int ColumnLayout::width(const QString &identifier) const
{
    const auto width = m_widths.constFind(identifier);
    if (width != m_widths.constEnd())
        return *width;
    const Column *const found = findColumn(m_model.columns(), identifier);
    return usualWidth(found ? *found : Column());
}

void ColumnLayout::setWidth(const QString &identifier, int width)
{
    m_widths.insert(identifier, width);
}

void ColumnLayout::apply()
{
    {
        const QScopedValueRollback<bool> arranges(m_arranges, true);
        for (int section = 0; section < m_model.columnCount(); ++section) {
            const bool isShown = !m_hidden.contains(column(section).identifier);
            if (m_table.isColumnHidden(section) == isShown)
                m_table.setColumnHidden(section, !isShown);
        }
    }
    // A hidden cell is not to be the current one.
    const QModelIndex current = m_table.currentIndex();
    if (current.isValid() && m_table.isColumnHidden(current.column()))
        m_table.selectionModel()->setCurrentIndex(current.siblingAtColumn(m_model.columnOf(key())),
                                                  QItemSelectionModel::NoUpdate);
    arrange();
}

QString ColumnLayout::key() const
{
    return rolesOf(m_model.tab()).key;
}

void ColumnLayout::setHidden(const QStringList &identifiers)
{
    m_hidden = QSet<QString>(identifiers.begin(), identifiers.end());
    m_hidden.remove(key());
}

bool ColumnLayout::mayHide(const QString &identifier) const
{
    const auto &columns = m_model.columns();
    const auto shown = std::count_if(columns.begin(), columns.end(),
                                     [this](const Column &one) { return !isHidden(one.identifier); });
    return identifier != key() && shown > 1 && m_model.columnOf(identifier) >= 0 && !isHidden(identifier);
}

void ColumnLayout::show(const QString &identifier, bool isShown)
{
    if (isShown)
        m_hidden.remove(identifier);
    else if (mayHide(identifier))
        m_hidden.insert(identifier);
    apply();
}

void ColumnLayout::fit(const QString &identifier)
{
    const int section = m_model.columnOf(identifier);
    if (section < 0 || isHidden(identifier))
        return;
    m_widths.insert(identifier, fittingWidth(section));
    pin(section);
    arrange();
}

void ColumnLayout::fitAll()
{
    for (int section = 0; section < m_model.columnCount(); ++section) {
        if (!m_table.isColumnHidden(section))
            m_widths.insert(column(section).identifier, fittingWidth(section));
    }
    m_pinned.clear();
    arrange();
}

void ColumnLayout::reset()
{
    m_widths.clear();
    m_pinned.clear();
    m_hidden.clear();
    apply();
}

bool ColumnLayout::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Resize:
        if (object == m_table.viewport()) {
            m_hasRoom = true;
            if (std::exchange(m_pinnedAt, m_table.width()) != m_table.width())
                m_pinned.clear(); // not when a scroll bar comes and goes
            arrange();
        }
        break;
    case QEvent::FontChange:
    case QEvent::StyleChange:
        // When table and header have followed it.
        if (object == &m_table)
            QMetaObject::invokeMethod(this, &ColumnLayout::followFont, Qt::QueuedConnection);
        break;
    case QEvent::MouseButtonPress:
        // Not the button that opens the menu, which takes its release.
        if (object == m_table.horizontalHeader()->viewport() &&
            static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
            m_isPressed = true;
        break;
    case QEvent::MouseButtonRelease:
        if (m_isPressed) // the header comes first
            QMetaObject::invokeMethod(this, &ColumnLayout::endDrag, Qt::QueuedConnection);
        m_isPressed = false;
        break;
    default:
        break;
    }
    return false;
}

/// While the mouse drags an edge the other columns stay, or the edge would not follow the mouse.
void ColumnLayout::noteResize(int section, int from, int to)
{
    if (m_arranges || from == 0 || to == 0)
        return;
    if (!m_isPressed) {
        m_widths.insert(column(section).identifier, to);
        pin(section);
        arrange();
        return;
    }
    if (m_dragged != section) {
        m_dragged = section;
        m_draggedFrom = from;
        m_neighbour = -1;
        const QHeaderView &header = *m_table.horizontalHeader();
        if (section == stretchedSection()) {
            for (int i = header.visualIndex(section) + 1; i < header.count() && m_neighbour < 0; ++i) {
                if (!header.isSectionHidden(header.logicalIndex(i)))
                    m_neighbour = header.logicalIndex(i);
            }
        }
        m_neighbourFrom = m_neighbour < 0 ? 0 : header.sectionSize(m_neighbour);
    }
    m_widths.insert(column(section).identifier, to);
    // The column that takes what is left would fill it again at once: its neighbour gets what it gives up.
    if (m_neighbour >= 0)
        m_widths.insert(column(m_neighbour).identifier,
                        std::max(smallestWidth(m_neighbour), m_neighbourFrom + m_draggedFrom - to));
}

void ColumnLayout::endDrag()
{
    if (m_dragged < 0)
        return;
    const int dragged = std::exchange(m_dragged, -1);
    pin(m_neighbour >= 0 ? m_neighbour : dragged);
    arrange();
    Q_EMIT resized();
}

void ColumnLayout::takeFont()
{
    m_characterWidth = std::max(1, m_table.fontMetrics().averageCharWidth());
    m_table.horizontalHeader()->setMinimumSectionSize(m_table.fontMetrics().height() * 2);
}

void ColumnLayout::followFont()
{
    const int before = m_characterWidth;
    {
        const QScopedValueRollback<bool> arranges(m_arranges, true);
        takeFont();
    }
    for (int &width : m_widths)
        width = width * m_characterWidth / before;
    arrange();
}

/// What a new table has: room for the title, too, where the cells cannot be shortened.
int ColumnLayout::usualWidth(const Column &column) const
{
    const int usual = column.width * m_characterWidth;
    if (canShorten(column))
        return usual;
    const int section = m_model.columnOf(column.identifier);
    const int title = section < 0 ? 0 : m_table.horizontalHeader()->sectionSizeHint(section);
    if (column.kind == Column::Kind::CheckBox)
        return std::max(usual, title);
    // Digits may be wider than the average.
    const int digits =
        m_table.fontMetrics().horizontalAdvance(QLatin1Char('0')) * std::max(0, column.width - aroundDigits);
    const int margins = 2 * (m_table.style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
    return std::max({usual, title, digits + margins + m_characterWidth});
}

/// To which the column is narrowed where there is little room.
int ColumnLayout::smallestWidth(int section) const
{
    const Column &one = column(section);
    const int title = m_table.horizontalHeader()->sectionSizeHint(section);
    int smallest = 0;
    if (one.kind == Column::Kind::CheckBox)
        smallest = title;
    else if (!canShorten(one) || one.title.isEmpty()) // what tells the color
        smallest = usualWidth(one);
    else if (one.identifier == key())
        smallest = rolesOf(m_model.tab()).smallestKey * m_characterWidth;
    else if (section == stretchedSection())
        smallest = smallestStretched * m_characterWidth;
    else
        smallest = (one.kind == Column::Kind::PopUp ? smallestPopUp : smallestText) * m_characterWidth;
    return std::max(m_table.horizontalHeader()->minimumSectionSize(),
                    std::min(width(one.identifier), smallest));
}

int ColumnLayout::fittingWidth(int section) const
{
    const auto &view = static_cast<const QAbstractItemView &>(m_table);
    const int needed =
        std::max(view.sizeHintForColumn(section), m_table.horizontalHeader()->sectionSizeHint(section));
    return std::clamp(needed, m_table.horizontalHeader()->minimumSectionSize(), widestFit * m_characterWidth);
}

/// The column that takes what the others leave; -1 when all are hidden.
int ColumnLayout::stretchedSection() const
{
    for (const QString &identifier : rolesOf(m_model.tab()).stretched) {
        const int section = m_model.columnOf(identifier);
        if (section >= 0 && !m_hidden.contains(identifier))
            return section;
    }
    return -1;
}

void ColumnLayout::pin(int section)
{
    m_pinned.insert(column(section).identifier);
}

/// Gives all columns their widths; pinned ones get the wished ones in any case.
void ColumnLayout::arrange()
{
    if (m_isPressed && m_dragged >= 0)
        return;
    const QScopedValueRollback<bool> arranges(m_arranges, true);
    std::vector<SectionWidth> widths;
    qint64 wished = 0;
    qint64 smallest = 0;
    for (int section = 0; section < m_model.columnCount(); ++section) {
        if (m_table.isColumnHidden(section))
            continue;
        const int wish =
            std::max(width(column(section).identifier), m_table.horizontalHeader()->minimumSectionSize());
        const bool isPinned = m_pinned.contains(column(section).identifier);
        widths.push_back({section, wish, isPinned ? wish : std::min(wish, smallestWidth(section))});
        wished += wish;
        smallest += widths.back().smallest;
    }
    const int stretched = stretchedSection();
    const qint64 room = m_hasRoom ? m_table.viewport()->width() : wished;
    // A table that scrolls in any case keeps its texts readable.
    const qint64 missing =
        smallest > room ? (wished - smallest) / 2 : std::clamp<qint64>(wished - room, 0, wished - smallest);
    qint64 left = std::max(room, wished - missing);
    if (missing > 0)
        narrow(widths, stretched, missing);
    for (const SectionWidth &one : widths)
        left -= one.wished;
    for (const SectionWidth &one : widths) {
        // What the rounding left, too; it may be missing by some pixels.
        const int width =
            one.section == stretched ? std::max(one.smallest, one.wished + int(left)) : one.wished;
        if (m_table.columnWidth(one.section) != width)
            m_table.setColumnWidth(one.section, width);
    }
}

} // namespace vantrell
