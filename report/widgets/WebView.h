#pragma once

#include "support/files/Result.h"

#include <QPageLayout>
#include <QString>
#include <QVariant>
#include <QtPlugin>

#include <functional>
#include <memory>

class QWidget;

namespace vantrell
{

/// A view of an HTML page. The page itself can only be shown: it runs no scripts, loads only the pictures of
/// one folder and follows no links. Main thread; callbacks may be called at any later time, but not once the
/// view is destroyed.
class WebView
{
public:
    using Loaded = std::function<void(bool isLoaded)>;

    virtual ~WebView() = default;

    /// The widget of the page. It belongs to the window that it is put into and must outlive the view.
    virtual QWidget *widget() = 0;

    /// Loads a document; a running load is dropped without calling its callback.
    virtual void load(const QString &html, Loaded loaded) = 0;
    /// Runs the script, which replaces the body of the page, and calls back when that is done.
    virtual void replaceBody(const QString &script, std::function<void()> replaced) = 0;
    /// Runs a script separately from those of the page, and passes on its value, null for none.
    virtual void run(const QString &script, std::function<void(const QVariant &)> use) = 0;
    /// Shows the page as on that paper, with its margins.
    virtual void setPaper(const QPageLayout &paper) = 0;
};

/// The plug-in of the package vantrell-print.
class WebViewPlugin
{
public:
    virtual ~WebViewPlugin() = default;

    /// Starts the web engine if necessary. The folder of the pictures is an absolute path.
    virtual Result<std::unique_ptr<WebView>> makeWebView(const QString &imageFolder) = 0;
};

} // namespace vantrell

#define VANTRELL_WEB_VIEW_PLUGIN "com.orvandel.vantrell.WebViewPlugin/1"
Q_DECLARE_INTERFACE(vantrell::WebViewPlugin, VANTRELL_WEB_VIEW_PLUGIN)
