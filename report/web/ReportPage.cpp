#include "report/web/ReportPage.h"

#include <QDir>
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

/// Sets a content policy before the page is parsed. It repeats the restrictions of the request filter and
/// also forbids inline resources. The policy stays in force after its element has been removed.
const QString policyScript = QStringLiteral(
    "(() => { const root = document.appendChild(document.createElement('html')),"
    "meta = document.createElement('meta');"
    "meta.httpEquiv = 'Content-Security-Policy';"
    "meta.content = \"default-src 'none'; img-src file:; style-src 'unsafe-inline'; base-uri 'none'; "
    "form-action 'none'\";"
    "root.appendChild(document.createElement('head')).appendChild(meta); root.remove(); })();");

/// The style of reports on paper and screen, in addition to that in their own text: table heads on every
/// page, unbroken rows, text within the page width. Timecodes stay on one line; other words are broken where
/// they would make the table wider than the page. Tables of seven or more columns have a smaller font.
const QString styleRules =
    QStringLiteral("h1 {font-size: 22px; margin: 0 0 2px 7px;}"
                   "h2 {font-size: 15px; font-weight: normal; color: #444; margin: 0 0 14px 7px;}"
                   "h1, h2 {break-after: avoid; overflow-wrap: anywhere;}"
                   "table {border-collapse: collapse;}"
                   "thead {display: table-header-group; break-inside: avoid;}"
                   "tr {break-inside: avoid;}"
                   "th {padding: 7px; vertical-align: bottom; border-bottom: 1.5px solid #000;}"
                   "td {vertical-align: top; border-bottom: 0.5px solid #bbb; overflow-wrap: "
                   "anywhere; min-width: 6.3em;}"
                   "td:first-child {min-width: 9em;}"
                   "td img {height: 1.15em; vertical-align: -0.2em;}"
                   "th:first-child:nth-last-child(n+7), th:first-child:nth-last-child(n+7) ~ th,"
                   "td:first-child:nth-last-child(n+7), td:first-child:nth-last-child(n+7) ~ td"
                   "{font-size: 10px; padding: 4px;}");

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

/// A profile that stores nothing permanently.
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
    // These are enabled by default, or could be enabled through the environment.
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
    // Needed for the pictures; the filter blocks all other files.
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
    // The page must be destroyed before its profile.
    connect(this, &QObject::destroyed, profile, &QObject::deleteLater);
    forbidAll(*settings());
    scripts().insert(script(QStringLiteral("policy"), policyScript, QWebEngineScript::DocumentCreation));
    scripts().insert(script(QStringLiteral("style"),
                            QStringLiteral("document.head.appendChild(document.createElement('style'))"
                                           ".textContent = '%1';")
                                .arg(styleRules),
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

bool ReportPage::acceptNavigationRequest(const QUrl &url, NavigationType, bool isMainFrame)
{
    return m_mayNavigate && isMainFrame && url == m_document;
}

RequestFilter::RequestFilter(const QString &imageFolder, QObject *parent)
    : QWebEngineUrlRequestInterceptor(parent)
    , m_imageFolder(QDir::cleanPath(imageFolder))
{
}

bool RequestFilter::isOwnImage(const QUrl &url) const
{
    const QString path = url.path(QUrl::FullyDecoded);
    const qsizetype name = path.lastIndexOf(u'/') + 1;
    return url.isLocalFile() && url.host().isEmpty() && path.endsWith(QStringLiteral(".png")) &&
           path.left(name - 1) == m_imageFolder;
}

void RequestFilter::interceptRequest(QWebEngineUrlRequestInfo &request)
{
    const bool isAllowed = request.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame
                               ? request.requestUrl() == m_document
                               : request.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeImage &&
                                     isOwnImage(request.requestUrl());
    if (!isAllowed || request.requestMethod() != QByteArrayLiteral("GET"))
        request.block(true);
}

} // namespace vantrell
