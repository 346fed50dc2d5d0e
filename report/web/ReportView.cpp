#include "report/web/ReportView.h"

#include "report/web/ReportPage.h"

#include <QEvent>
#include <QFile>
#include <QWebEngineLoadingInfo>
#include <QWebEngineView>

#include <algorithm>
#include <utility>

namespace vantrell
{

constexpr double cssPixelsPerMillimetre = 96 / 25.4;
constexpr double smallestZoom = 0.25; // of the engine
constexpr double largestZoom = 5;

ReportView::ReportView(const QString &imageFolder)
    : m_imageFolder(imageFolder)
    , m_view(new QWebEngineView)
    , m_paper(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF())
{
    m_view->setContextMenuPolicy(Qt::NoContextMenu);
    m_view->setAcceptDrops(false);
    m_view->setAccessibleName(tr("Preview"));
    m_view->installEventFilter(this);
    makePage();
}

ReportView::~ReportView()
{
    delete m_page; // before the view, which it would notify
}

QWidget *ReportView::widget()
{
    return m_view;
}

void ReportView::makePage()
{
    m_page = new ReportPage(m_imageFolder, this);
    connect(m_page, &QWebEnginePage::loadingChanged, this, [this](const QWebEngineLoadingInfo &info) {
        // Ignore a load that was replaced by another one.
        const bool isCurrent = info.url().fileName() == QStringLiteral("%1.html").arg(m_file);
        if (isCurrent && info.status() != QWebEngineLoadingInfo::LoadStartedStatus)
            loadEnded(info.status() == QWebEngineLoadingInfo::LoadSucceededStatus);
    });
    connect(m_page, &QWebEnginePage::renderProcessTerminated, this, &ReportView::processEnded,
            Qt::QueuedConnection);
    m_view->setPage(m_page);
}

void ReportView::load(const QString &html, Loaded loaded)
{
    m_loaded = std::move(loaded);
    m_bodyScript = QString();
    QFile::remove(m_folder.filePath(QStringLiteral("%1.html").arg(m_file)));
    QFile file(m_folder.filePath(QStringLiteral("%1.html").arg(++m_file)));
    const QByteArray text = html.toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush()) {
        qWarning("The report could not be written to %s: %s", qPrintable(file.fileName()),
                 qPrintable(file.errorString()));
        QMetaObject::invokeMethod(
            this, [this] { loadEnded(false); }, Qt::QueuedConnection);
        return;
    }
    m_page->loadReport(file.fileName());
}

void ReportView::loadEnded(bool isLoaded)
{
    if (isLoaded) {
        fitToPaper();
        if (!m_bodyScript.isNull())
            m_page->run(m_bodyScript);
    }
    if (const Loaded loaded = std::exchange(m_loaded, nullptr))
        loaded(isLoaded);
}

void ReportView::replaceBody(const QString &script, std::function<void()> replaced)
{
    m_bodyScript = script;
    m_page->run(script, [replaced = std::move(replaced)](const QVariant &) { replaced(); });
}

void ReportView::run(const QString &script, std::function<void(const QVariant &)> use)
{
    m_page->run(script, use);
}

void ReportView::setPaper(const QPageLayout &paper)
{
    m_paper = paper;
    fitToPaper();
}

/// Scales the page so that the paper is as wide as the widget, and adds its margins.
void ReportView::fitToPaper()
{
    const double width = m_paper.fullRect(QPageLayout::Millimeter).width() * cssPixelsPerMillimetre;
    m_page->setZoomFactor(std::clamp(m_view->width() / width, smallestZoom, largestZoom));
    const QMarginsF margins = m_paper.margins(QPageLayout::Millimeter);
    m_page->run(
        QStringLiteral("globalThis.paper = globalThis.paper || "
                       "document.head.appendChild(document.createElement('style'));"
                       "paper.textContent = '@media screen {html {background: #fff; padding: %1mm %2mm "
                       "%3mm %4mm;}}';")
            .arg(margins.top())
            .arg(margins.right())
            .arg(margins.bottom())
            .arg(margins.left()));
}

bool ReportView::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        fitToPaper();
    return QObject::eventFilter(watched, event);
}

/// The render process has crashed: loads the page again, unless the crash happened while loading.
void ReportView::processEnded()
{
    if (m_loaded)
        loadEnded(false);
    else if (m_file > 0)
        m_page->loadReport(m_folder.filePath(QStringLiteral("%1.html").arg(m_file)));
}

} // namespace vantrell
