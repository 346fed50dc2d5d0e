#pragma once

#include <QString>
#include <QUrl>
#include <QWebEnginePage>
#include <QWebEngineUrlRequestInterceptor>

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
    void makePdf(const QPageLayout &layout, const std::function<void(const QByteArray &)> &use)
    {
        printToPdf(use, layout);
    }

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
    QWebEnginePage *createWindow(WebWindowType) override { return nullptr; }
    QStringList chooseFiles(FileSelectionMode, const QStringList &, const QStringList &) override
    {
        return {};
    }
    /// Messages about blocked content do not concern the user.
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString &, int,
                                  const QString &) override
    {
    }

private:
    ReportPage(QWebEngineProfile *profile, const QString &imageFolder, QObject *parent);

    RequestFilter *m_filter;
    QUrl m_document;
    bool m_mayNavigate = false;
};

/// Allows a page to load its own document, as its main frame only, and the pictures of one folder; blocks all
/// other files and the network. Main thread.
class RequestFilter final : public QWebEngineUrlRequestInterceptor
{
    Q_OBJECT

public:
    /// Allows the PNG files directly in the folder, an absolute path.
    explicit RequestFilter(const QString &imageFolder, QObject *parent = nullptr);

    /// Sets the document that may be loaded.
    void setDocument(const QUrl &document) { m_document = document; }

    bool isOwnImage(const QUrl &url) const;
    void interceptRequest(QWebEngineUrlRequestInfo &request) override;

private:
    QString m_imageFolder;
    QUrl m_document;
};

} // namespace vantrell
