#include "report/web/ReportView.h"
#include "report/web/WebEngine.h"

#include <QCoreApplication>
#include <QObject>
#include <QOpenGLContext>
#include <QQuickWindow>

QT_BEGIN_NAMESPACE
// Exported by Qt Gui for the web engine, but not declared in any public header.
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext *context);
QT_END_NAMESPACE

namespace vantrell
{

namespace
{

/// The engine expects an OpenGL context that is shared since the program's start. Creating it here avoids
/// loading a driver unless something is printed. Without OpenGL the engine renders in software.
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
