#include "report/web/ReportView.h"
#include "report/web/WebEngine.h"

#include <QCoreApplication>
#include <QObject>
#include <QOpenGLContext>
#include <QQuickWindow>

QT_BEGIN_NAMESPACE
// Qt Gui has it for the web engine; no header of the public ones declares it.
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext *context);
QT_END_NAMESPACE

namespace vantrell
{

namespace
{

/// The engine takes for granted that the program shares contexts of OpenGL from its start on. It gets one
/// now, so that only those who print load a driver. Where there is none, it draws without.
void shareContexts()
{
    if (QOpenGLContext::globalShareContext())
        return;
    auto *const context = new QOpenGLContext(QCoreApplication::instance());
    const bool hasOpenGL = context->create();
    QQuickWindow::setGraphicsApi(hasOpenGL ? QSGRendererInterface::OpenGL : QSGRendererInterface::Software);
    qt_gl_set_global_share_context(context);
}

} // namespace

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
        shareContexts();
        std::unique_ptr<WebView> view = std::make_unique<ReportView>(imageFolder);
        WebEngine::restoreEnvironment();
        return view;
    }
};

} // namespace vantrell

#include "ReportViewPlugin.moc"
