#include "report/widgets/PrintPlugin.h"

#include "report/widgets/WebView.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPluginLoader>

namespace vantrell::PrintPlugin
{

static WebViewPlugin *s_replacement = nullptr; // main thread only

QString find()
{
    const QFileInfo plugin(QDir(QCoreApplication::applicationDirPath())
                               .filePath(QStringLiteral("../lib/vantrell/plugins/vantrell-print.so")));
    return plugin.isFile() ? plugin.canonicalFilePath() : QString();
}

QString missingMessage()
{
    return QCoreApplication::translate(
        "PrintPlugin", "Printing needs the package “vantrell-print”, which is not installed.");
}

Result<WebViewPlugin *> load()
{
    if (s_replacement)
        return s_replacement;
    const QString path = find();
    if (path.isNull())
        return Failure{missingMessage()};
    QPluginLoader loader(path); // its destructor does not unload the plug-in
    if (auto *const plugin = qobject_cast<WebViewPlugin *>(loader.instance()))
        return plugin;
    return Failure{QCoreApplication::translate("PrintPlugin",
                                               "The package “vantrell-print” does not fit this program: %1")
                       .arg(loader.errorString())};
}

void replace(WebViewPlugin *plugin)
{
    s_replacement = plugin;
}

} // namespace vantrell::PrintPlugin
