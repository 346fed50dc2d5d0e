#include "report/web/ReportPage.h"

#include "report/web/ReportStyle.h"
#include "report/web/RequestFilter.h"

#include <QPageLayout>
#include <QPageRanges>
#include <QVariant>
#include <QWebEngineCookieStore>
#include <QWebEngineDownloadRequest>
#include <QWebEngineFullScreenRequest>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>

namespace vantrell
{

namespace
{

constexpr quint32 ownWorld = QWebEngineScript::ApplicationWorld;

/// Forbids the page, before any of it is read, what the filter of requests forbids it too, and beyond that
/// what it could take out of its own text. The policy holds from when it is inserted; its element goes again.
const QString policyScript = QStringLiteral(
    "(() => { const root = document.appendChild(document.createElement('html')),"
    "meta = document.createElement('meta');"
    "meta.httpEquiv = 'Content-Security-Policy';"
    "meta.content = \"default-src 'none'; img-src file:; style-src 'unsafe-inline'; base-uri 'none'; "
    "form-action 'none'\";"
    "root.appendChild(document.createElement('head')).appendChild(meta); root.remove(); })();");

QWebEngineScript script(const QString &name, const QString &source, QWebEngineScript::InjectionPoint when)
{
    QWebEngineScript script;
    script.setName(name);
    script.setSourceCode(source);
    script.setInjectionPoint(when);
    script.setWorldId(ownWorld);
    script.setRunsOnSubFrames(false);
    return script;
}

/// Keeps nothing beyond its own life.
QWebEngineProfile *makeProfile()
{
    auto *const profile = new QWebEngineProfile;
    profile->setHttpCacheType(QWebEngineProfile::NoCache);
    profile->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    profile->cookieStore()->setCookieFilter([](const auto &) { return false; });
    profile->setSpellCheckEnabled(false);
    QObject::connect(profile, &QWebEngineProfile::downloadRequested, profile,
                     [](QWebEngineDownloadRequest *download) { download->cancel(); });
    return profile;
}

void forbidAll(QWebEngineSettings &settings)
{
    // What is named here is on by default, or could be made so by the environment.
    for (const QWebEngineSettings::WebAttribute attribute :
         {QWebEngineSettings::JavascriptEnabled, QWebEngineSettings::JavascriptCanOpenWindows,
          QWebEngineSettings::JavascriptCanAccessClipboard, QWebEngineSettings::LocalStorageEnabled,
          QWebEngineSettings::LocalContentCanAccessRemoteUrls, QWebEngineSettings::HyperlinkAuditingEnabled,
          QWebEngineSettings::PluginsEnabled, QWebEngineSettings::FullScreenSupportEnabled,
          QWebEngineSettings::ScreenCaptureEnabled, QWebEngineSettings::WebGLEnabled,
          QWebEngineSettings::Accelerated2dCanvasEnabled, QWebEngineSettings::AutoLoadIconsForPage,
          QWebEngineSettings::AllowRunningInsecureContent, QWebEngineSettings::DnsPrefetchEnabled,
          QWebEngineSettings::PdfViewerEnabled, QWebEngineSettings::NavigateOnDropEnabled,
          QWebEngineSettings::FocusOnNavigationEnabled})
        settings.setAttribute(attribute, false);
    // The pictures are files, as the page is; the filter lets no other through.
    settings.setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, true);
    settings.setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
    settings.setDefaultTextEncoding(QStringLiteral("utf-8"));
}

} // namespace

ReportPage::ReportPage(const QString &imageFolder, QObject *parent)
    : ReportPage(makeProfile(), imageFolder, parent)
{
}

ReportPage::ReportPage(QWebEngineProfile *profile, const QString &imageFolder, QObject *parent)
    : QWebEnginePage(profile, parent)
    , m_filter(new RequestFilter(imageFolder, profile))
{
    profile->setUrlRequestInterceptor(m_filter);
    // The page must be gone before its profile.
    connect(this, &QObject::destroyed, profile, &QObject::deleteLater);
    forbidAll(*settings());
    scripts().insert(script(QStringLiteral("policy"), policyScript, QWebEngineScript::DocumentCreation));
    scripts().insert(script(QStringLiteral("style"),
                            QStringLiteral("document.head.appendChild(document.createElement('style'))"
                                           ".textContent = '%1';")
                                .arg(ReportStyle::rules()),
                            QWebEngineScript::DocumentReady));
    connect(this, &QWebEnginePage::loadFinished, this, [this] { m_mayNavigate = false; });
    connect(this, &QWebEnginePage::fullScreenRequested, this,
            [](QWebEngineFullScreenRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::featurePermissionRequested, this,
            [this](const QUrl &origin, Feature feature) {
                setFeaturePermission(origin, feature, PermissionDeniedByUser);
            });
}

ReportPage::~ReportPage() = default;

void ReportPage::loadReport(const QString &file)
{
    m_document = QUrl::fromLocalFile(file);
    m_filter->setDocument(m_document);
    m_mayNavigate = true;
    load(m_document);
}

void ReportPage::run(const QString &script, const std::function<void(const QVariant &)> &use)
{
    runJavaScript(
        script, ownWorld, use ? use : [](const QVariant &) {});
}

void ReportPage::makePdf(const QPageLayout &layout, const std::function<void(const QByteArray &)> &use)
{
    printToPdf(use, layout);
}

bool ReportPage::acceptNavigationRequest(const QUrl &url, NavigationType, bool isMainFrame)
{
    return m_mayNavigate && isMainFrame && url == m_document;
}

QWebEnginePage *ReportPage::createWindow(WebWindowType)
{
    return nullptr;
}

QStringList ReportPage::chooseFiles(FileSelectionMode, const QStringList &, const QStringList &)
{
    return {};
}

void ReportPage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString &, int,
                                          const QString &)
{
    // What was blocked is nothing that the user needs to hear of.
}

} // namespace vantrell
