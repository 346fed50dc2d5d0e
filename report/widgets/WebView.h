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

/// A page of HTML and what can be done with it. Nothing that the page itself asks for happens beyond showing
/// it: it runs no script, loads nothing but the pictures of one folder and follows no link. Main thread; what
/// is called back may come at any later time, and does not once the view is gone.
class WebView
{
public:
    using Loaded = std::function<void(bool isLoaded)>;

    virtual ~WebView() = default;

    /// What shows the page; it belongs to whoever puts it into a window, and must outlive the view.
    virtual QWidget *widget() = 0;

    /// Shows the whole document in place of what is shown; a load that still runs is given up without a word.
    virtual void load(const QString &html, Loaded loaded) = 0;
    /// Runs the script, which gives the page another body, and tells once the page has it.
    virtual void replaceBody(const QString &script, std::function<void()> replaced) = 0;
    /// Runs a script where scripts of the page could not reach it, and hands on its value, null for none.
    virtual void run(const QString &script, std::function<void(const QVariant &)> use) = 0;
    /// Shows the page as wide as it is on paper, with the margins.
    virtual void setPaper(const QPageLayout &paper) = 0;
};

/// What the plug-in of the package vantrell-print holds.
class WebViewPlugin
{
public:
    virtual ~WebViewPlugin() = default;

    /// Starts the web engine if need be. The folder of the pictures is an absolute path.
    virtual Result<std::unique_ptr<WebView>> makeWebView(const QString &imageFolder) = 0;
};

} // namespace vantrell

#define VANTRELL_WEB_VIEW_PLUGIN "com.orvandel.vantrell.WebViewPlugin/1"
Q_DECLARE_INTERFACE(vantrell::WebViewPlugin, VANTRELL_WEB_VIEW_PLUGIN)
