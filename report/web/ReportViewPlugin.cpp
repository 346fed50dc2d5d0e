#include "report/web/ReportView.h"
#include "report/web/WebEngine.h"

#include <QObject>
#include <QQuickWindow>

namespace vantrell
{

class ReportViewPlugin final : public QObject, public WebViewPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID VANTRELL_WEB_VIEW_PLUGIN)
    Q_INTERFACES(vantrell::WebViewPlugin)

public:
    Result<std::unique_ptr<WebView>> makeWebView(const QString &imageFolder) override
    {
        const Result<void> prepared = WebEngine::prepare();
        if (!prepared)
            return prepared.failure();
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); // what the engine draws in
        std::unique_ptr<WebView> view = std::make_unique<ReportView>(imageFolder);
        WebEngine::restoreEnvironment();
        return view;
    }
};

} // namespace vantrell

#include "ReportViewPlugin.moc"
