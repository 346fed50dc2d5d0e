#include "markers/widgets/MarkerPresetPopUp.h"

#include "support/widgets/ShownText.h"

#include <QAbstractItemView>
#include <QStandardItemModel>
#include <QTimer>

namespace vantrell
{

MarkerPresetPopUp::MarkerPresetPopUp(QWidget *parent)
    : ControlPopUp(parent)
{
    connect(this, &QComboBox::activated, this, [this](int item) {
        if (item == count() - 1)
            Q_EMIT createRequested();
        else
            Q_EMIT presetChosen(item);
    });
}

void MarkerPresetPopUp::setMenu(const QStringList &titles, int selected)
{
    if (m_titles != titles) {
        m_titles = titles;
        clear();
        for (const QString &title : titles) {
            const bool isOwn = &title == &titles.first() || &title == &titles.last();
            if (title.isNull())
                insertSeparator(count());
            else
                addItem(isOwn ? shownValue(title) : title);
        }
        setCreateEnabled(view()->isVisible());
    }
    setCurrentIndex(selected);
}

void MarkerPresetPopUp::showPopup()
{
    setCreateEnabled(true);
    ControlPopUp::showPopup();
}

void MarkerPresetPopUp::hidePopup()
{
    ControlPopUp::hidePopup();
    // The choice is reported after this.
    QTimer::singleShot(0, this, [this] { setCreateEnabled(view()->isVisible()); });
}

void MarkerPresetPopUp::setCreateEnabled(bool enabled)
{
    if (auto *const items = qobject_cast<QStandardItemModel *>(model()); items && count() > 0)
        items->item(count() - 1)->setEnabled(enabled);
}

} // namespace vantrell
