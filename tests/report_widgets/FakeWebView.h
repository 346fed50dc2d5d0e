#pragma once

#include "report/widgets/WebView.h"

#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QWidget>

namespace vantrell
{

/// A web view without a web engine: records its calls, and answers after a time set by the test.
class FakeWebView final : public WebView
{
public:
    ~FakeWebView() override { delete m_widget; }

    QWidget *widget() override { return m_widget; }
    void load(const QString &text, Loaded loaded) override
    {
        html = text;
        ++loads;
        QTimer::singleShot(loadDelayMs, &m_context, [loaded] { loaded(true); });
    }
    void replaceBody(const QString &script, std::function<void()> replaced) override
    {
        bodies.append(script);
        QTimer::singleShot(0, &m_context, replaced);
    }
    void run(const QString &, std::function<void(const QVariant &)> use) override
    {
        QTimer::singleShot(0, &m_context, [this, use] { use(source); });
    }
    void setPaper(const QPageLayout &layout) override { paper = layout; }
    QString html;
    QString source = QStringLiteral("<p>"); ///< what scripts find
    int loads = 0;
    QStringList bodies; ///< the scripts
    QPageLayout paper;
    int loadDelayMs = 0;

private:
    QPointer<QWidget> m_widget = new QWidget;
    QObject m_context;
};

/// Hands out such a view, or says why not.
class FakeWebViewPlugin final : public WebViewPlugin
{
public:
    Result<std::unique_ptr<WebView>> makeWebView(const QString &) override
    {
        auto made = std::make_unique<FakeWebView>();
        view = made.get();
        return Result<std::unique_ptr<WebView>>(std::move(made));
    }

    FakeWebView *view = nullptr; ///< the last
};

} // namespace vantrell
