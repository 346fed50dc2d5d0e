#include "table/widgets/PopUpCell.h"

#include <QAbstractListModel>
#include <QKeyEvent>
#include <QListView>
#include <QStyle>

#include <algorithm>

namespace vantrell
{

namespace
{

class PopUpItems final : public QAbstractListModel
{
public:
    PopUpItems(std::vector<PopUpItem> items, QObject *parent)
        : QAbstractListModel(parent)
        , m_items(std::move(items))
    {
    }

    int rowCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : int(m_items.size());
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        const PopUpItem &item = m_items[std::size_t(index.row())];
        if (role == Qt::DisplayRole)
            return item.title;
        return role == Qt::DecorationRole ? QVariant(item.icon) : QVariant();
    }
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        return index.isValid() && m_items[std::size_t(index.row())].isEnabled
                   ? QAbstractListModel::flags(index)
                   : Qt::NoItemFlags;
    }

private:
    const std::vector<PopUpItem> m_items;
};

/// In pixels. Of many titles the ones with the most characters are measured.
int widthOfTitles(const std::vector<PopUpItem> &items, const QFontMetrics &metrics)
{
    constexpr std::ptrdiff_t maximumMeasured = 50;
    std::vector<QStringView> titles;
    titles.reserve(items.size());
    for (const PopUpItem &item : items)
        titles.emplace_back(item.title);
    const auto end = titles.begin() + std::min(std::ptrdiff_t(titles.size()), maximumMeasured);
    std::partial_sort(titles.begin(), end, titles.end(),
                      [](QStringView a, QStringView b) { return a.size() > b.size(); });
    int width = 0;
    for (auto title = titles.begin(); title != end; ++title)
        width = std::max(width, metrics.horizontalAdvance(title->toString()));
    return width;
}

} // namespace

PopUpCell::PopUpCell(std::vector<PopUpItem> items, QWidget *parent)
    : QComboBox(parent)
{
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto *const list = new QListView(this);
    list->setUniformItemSizes(true);
    setView(list);
    const int margins = iconSize().width() + 4 * style()->pixelMetric(QStyle::PM_FocusFrameHMargin) +
                        style()->pixelMetric(QStyle::PM_ScrollBarExtent) +
                        fontMetrics().averageCharWidth() * 4;
    view()->setMinimumWidth(widthOfTitles(items, fontMetrics()) + margins);
    setModel(new PopUpItems(std::move(items), this));
    view()->installEventFilter(this);
    connect(this, &QComboBox::activated, this, [this] {
        m_isChosen = true;
        Q_EMIT chosen();
    });
}

/// Return on an item that cannot be chosen, such as the one that the cell shows, closes the list.
bool PopUpCell::eventFilter(QObject *object, QEvent *event)
{
    if (object == view() && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
        if (isReturn && !view()->currentIndex().flags().testFlag(Qt::ItemIsEnabled)) {
            hidePopup();
            return true;
        }
    }
    return QComboBox::eventFilter(object, event);
}

void PopUpCell::hidePopup()
{
    QComboBox::hidePopup();
    Q_EMIT popupHidden();
}

} // namespace vantrell
