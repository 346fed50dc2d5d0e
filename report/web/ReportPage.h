#pragma once

#include <QString>
#include <QUrl>
#include <QWebEnginePage>

#include <functional>

class QPageLayout;

namespace vantrell
{

class RequestFilter;

/// The page that shows one report and does nothing else. Texts of a report may hold any markup, so it runs no
/// script of the page, loads nothing but the pictures of one folder, follows no link, opens no window, stores
/// nothing and asks for nothing. Scripts of this class run where those of a page cannot reach them.
///
/// Main thread, after WebEngine::prepare().
class ReportPage final : public QWebEnginePage
{
    Q_OBJECT

public:
    /// An absolute path.
    explicit ReportPage(const QString &imageFolder, QObject *parent = nullptr);
    ~ReportPage() override;

    /// Shows the HTML of a file in UTF-8 whose name ends in ".html", an absolute path. loadFinished() tells
    /// the end of it.
    void loadReport(const QString &file);

    /// Runs a script and hands on its value, null for none. After loadFinished().
    void run(const QString &script, const std::function<void(const QVariant &)> &use = {});

    /// Hands on a PDF of what is shown; empty when none could be made.
    void makePdf(const QPageLayout &layout, const std::function<void(const QByteArray &)> &use);

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
    QWebEnginePage *createWindow(WebWindowType type) override;
    QStringList chooseFiles(FileSelectionMode mode, const QStringList &, const QStringList &) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString &, int,
                                  const QString &) override;

private:
    ReportPage(QWebEngineProfile *profile, const QString &imageFolder, QObject *parent);
    void addScripts();

    RequestFilter *m_filter;
    QUrl m_document;
    bool m_mayNavigate = false;
};

} // namespace vantrell
