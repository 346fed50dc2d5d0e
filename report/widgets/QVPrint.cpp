#include "report/widgets/QVPrint.h"

#include "report/PrintHelper.h"
#include "report/ReportWriter.h"
#include "report/widgets/PrintOperation.h"
#include "report/widgets/PrintPlugin.h"
#include "report/widgets/WebView.h"
#include "support/widgets/NestedEvents.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QIODevice>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

#include <mutex>
#include <optional>
#include <utility>

namespace vantrell
{

namespace
{

constexpr int roundMs = 50; // of waiting for events
constexpr int windowSize = 10;
const QString bodySourceScript = QStringLiteral("document.body.innerHTML");

/// Dispatches events until `isDone` returns true.
template <typename Predicate>
void waitUntil(const Predicate &isDone)
{
    const NestedEvents nested;
    while (!isDone()) {
        QEventLoop loop;
        QTimer::singleShot(roundMs, &loop, &QEventLoop::quit);
        loop.processEvents(QEventLoop::WaitForMoreEvents);
    }
}

} // namespace

Result<QVPrint *> QVPrint::sharedController(const QString &imageFolder)
{
    static std::mutex creation;
    static QVPrint *shared = nullptr; // guarded by creation
    const std::lock_guard lock(creation);
    if (shared)
        return shared;
    const Result<WebViewPlugin *> plugin = PrintPlugin::load();
    if (!plugin)
        return plugin.failure();
    Result<std::unique_ptr<WebView>> webView = plugin.value()->makeWebView(imageFolder);
    if (!webView)
        return webView.failure();
    shared =
        new QVPrint(std::move(webView.value()),
                    [imageFolder](const QByteArray &html, const QString &output,
                                  const PrintHelper::Pages &pages, const std::function<bool()> &isCancelled) {
                        const QString program = PrintHelper::find();
                        if (program.isNull())
                            return Result<void>(Failure{PrintHelper::missingMessage()});
                        const auto write = [&html](QIODevice &device) {
                            device.write(html); // errors are checked by whoever opened the device
                            return Result<void>();
                        };
                        return PrintHelper::writePDF(program, write, imageFolder, output, pages, isCancelled);
                    });
    return shared;
}

QVPrint::QVPrint(std::unique_ptr<WebView> webView, PrintOperation::PdfMaker makePdf)
    : m_window(std::make_unique<QWidget>(nullptr, Qt::FramelessWindowHint))
    , m_webView(std::move(webView))
    , m_makePdf(std::move(makePdf))
{
    m_window->setGeometry(0, 0, windowSize, windowSize);
    auto *const layout = new QVBoxLayout(m_window.get());
    layout->setContentsMargins(0, 0, 0, 0);
    hidePrintView();
}

QVPrint::~QVPrint() = default;

bool QVPrint::setHTMLString(const QString &html)
{
    if (html.isNull())
        return true;
    const quint64 generation = ++m_generation;
    m_runsBody = false;
    m_nextBody = QString();
    bool isLoaded = false;
    m_webView->load(html, [this, generation, &isLoaded](bool) {
        if (generation != m_generation)
            return;
        isLoaded = true;
        // Queued: updating the preview dispatches events, which the engine does not expect here.
        QTimer::singleShot(0, this, &QVPrint::pageChanged);
    });
    ++m_loads;
    waitUntil([&] { return isLoaded || generation != m_generation; });
    --m_loads;
    return generation == m_generation;
}

void QVPrint::cancelLoading()
{
    if (isLoading())
        ++m_generation;
}

void QVPrint::updateHTMLString(const QString &htmlBody)
{
    m_nextBody = htmlBody;
    if (!m_runsBody)
        runNextBody();
}

void QVPrint::runNextBody()
{
    const QString body = std::exchange(m_nextBody, QString());
    m_runsBody = !body.isNull();
    if (!m_runsBody)
        return;
    m_webView->replaceBody(ReportWriter::bodyScript(body), [this, generation = m_generation] {
        if (generation != m_generation)
            return;
        QTimer::singleShot(0, this, &QVPrint::pageChanged);
        runNextBody();
    });
}

void QVPrint::pageChanged()
{
    if (m_printViewController)
        m_printViewController->updatePreview();
}

QString QVPrint::htmlSource()
{
    const auto answer = std::make_shared<std::optional<QString>>();
    m_webView->run(bodySourceScript, [answer](const QVariant &value) { *answer = value.toString(); });
    waitUntil([&] { return answer->has_value(); });
    return **answer;
}

QWidget *QVPrint::printView() const
{
    return m_webView->widget();
}

void QVPrint::hidePrintView()
{
    m_window->layout()->addWidget(printView());
}

bool QVPrint::isPrintViewTaken() const
{
    return printView()->window() != m_window.get();
}

void QVPrint::setPaper(const PrintInfo &info)
{
    m_webView->setPaper(info.layout);
}

PrintOperation *QVPrint::printOperationWithPrintInfo(const PrintInfo &info, QObject *parent)
{
    return new PrintOperation(*m_webView, m_makePdf, info, parent);
}

PrintOperation *QVPrint::printOperationWithSettings(const QVariantMap &settings, QObject *parent)
{
    return printOperationWithPrintInfo(PrintInfo(settings), parent);
}

PrintOperation *QVPrint::printOpFromView(const QString &jobTitle, const QVariantMap &settings,
                                         QObject *parent)
{
    QVariantMap copy = settings;
    copy.insert(QStringLiteral("headerAndFooter"), true);
    PrintInfo info(copy);
    info.jobTitle = jobTitle;
    return printOperationWithPrintInfo(info, parent);
}

PrintOperation *QVPrint::printOpFromHTMLString(const QString &html, const QString &jobTitle,
                                               const QVariantMap &settings, QObject *parent)
{
    setHTMLString(html);
    return printOpFromView(jobTitle, settings, parent);
}

void QVPrint::startPrintOp(PrintOperation *operation, QWidget *parentWindow)
{
    (new PrintProgress(operation, parentWindow))->open();
    operation->run();
}

void QVPrint::printHTMLString(const QString &html, const QString &jobTitle, QWidget *parentWindow,
                              const QVariantMap &settings)
{
    startPrintOp(printOpFromHTMLString(html, jobTitle, settings, parentWindow), parentWindow);
}

QVPrintViewController *QVPrintViewController::printViewControllerWithView(QWidget *view, QObject *parent)
{
    auto *const controller = new QVPrintViewController(parent);
    controller->m_view = view;
    return controller;
}

void QVPrintViewController::updatePreview()
{
    m_dummyValue = !m_dummyValue;
    const NestedEvents nested;
    Q_EMIT dummyValueChanged();
    // User input could delete objects that the caller is using.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace vantrell
