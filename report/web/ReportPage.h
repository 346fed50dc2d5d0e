#pragma once

#include <QString>
#include <QUrl>
#include <QWebEnginePage>

#include <functional>

class QPageLayout;

namespace vantrell
{

class RequestFilter;

/// A page that only shows one report. The text of a report may contain any markup, so the page runs no
/// scripts of its own, loads only the pictures of one folder, follows no links, opens no windows, stores
/// nothing and requests no permissions. The scripts of this class run in a separate world that page scripts
/// cannot reach.
///
/// Main thread, after WebEngine::prepare().
class ReportPage final : public QWebEnginePage
{
    Q_OBJECT

public:
    /// The folder is an absolute path.
    explicit ReportPage(const QString &imageFolder, QObject *parent = nullptr);
    ~ReportPage() override;

    /// Loads an HTML file in UTF-8 by its absolute path, which ends in ".html". loadFinished() reports the
    /// result.
    void loadReport(const QString &file);

    /// Runs a script and passes on its value, null for none. After loadFinished().
    void run(const QString &script, const std::function<void(const QVariant &)> &use = {});

    /// Passes on a PDF of the page; empty if that failed.
    void makePdf(const QPageLayout &layout, const std::function<void(const QByteArray &)> &use);

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
    QWebEnginePage *createWindow(WebWindowType type) override;
    QStringList chooseFiles(FileSelectionMode mode, const QStringList &, const QStringList &) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString &, int,
                                  const QString &) override;

private:
    ReportPage(QWebEngineProfile *profile, const QString &imageFolder, QObject *parent);

    RequestFilter *m_filter;
    QUrl m_document;
    bool m_mayNavigate = false;
};

} // namespace vantrell
