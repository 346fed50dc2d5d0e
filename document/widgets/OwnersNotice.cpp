#include "document/widgets/OwnersNotice.h"

#include "document/widgets/NoticeBar.h"
#include "markers/MarkerInventory.h"
#include "workbench/Workbench.h"

#include <QElapsedTimer>
#include <QLocale>
#include <QTimer>

#include <algorithm>

namespace vantrell
{

namespace
{

constexpr int editMs = 100; // after an edit, which another one may follow at once
constexpr std::size_t countedAtOnce = 500;
constexpr int countMsAtOnce = 4;

} // namespace

OwnersNotice::OwnersNotice(NoticeBar &bar)
    : QObject(&bar)
    , m_bar(bar)
    , m_timer(new QTimer(this))
{
    m_timer->setSingleShot(true);
    connect(m_timer, &QTimer::timeout, this, &OwnersNotice::count);
}

void OwnersNotice::follow(Workbench &workbench)
{
    leave();
    m_document = &workbench.document();
    m_inventory = &workbench.markerInventory();
    m_told = 0;
    m_bar.setNotice(QString());
    connect(m_document, &MyDocument::historyChanged, this, &OwnersNotice::countSoon);
}

void OwnersNotice::leave()
{
    if (m_document)
        m_document->disconnect(this);
    m_document = nullptr;
    m_inventory = nullptr;
    m_timer->stop();
    m_count.reset();
}

void OwnersNotice::showListed()
{
    m_timer->stop();
    m_count.reset();
    m_told = 0;
    m_bar.setNotice(QString());
    show();
}

void OwnersNotice::countSoon()
{
    m_count.reset();
    if (!m_document->isPopulating(Tab::Markers))
        m_timer->start(editMs);
}

void OwnersNotice::count()
{
    if (!m_document || m_document->isClosing() || m_document->isPopulating(Tab::Markers))
        return;
    const RowView &view = m_document->rowView(Tab::Markers);
    if (!m_count || m_revision != view.revision()) {
        m_count.emplace();
        m_revision = view.revision();
    }
    QElapsedTimer time;
    time.start();
    while (!m_count->work(view.list(), countedAtOnce)) {
        if (time.elapsed() >= countMsAtOnce) {
            m_timer->start(0);
            return;
        }
    }
    m_inventory->setListedUnderOthers(m_count->count());
    m_count.reset();
    show();
}

void OwnersNotice::show()
{
    const std::size_t count = m_inventory->listedUnderOthers();
    const bool isShown = !m_bar.notice().isEmpty();
    if (!isShown && count <= m_told)
        return;                                       // dismissed
    m_told = count > 0 ? std::max(m_told, count) : 0; // it may come back by Undo
    const QString text = m_inventory->listedUnderOthersText(QLocale());
    m_bar.setNotice(text.isEmpty() ? text : text + QLatin1Char('.'));
}

} // namespace vantrell
