#pragma once

#include "report/widgets/PrintInfo.h"
#include "report/widgets/PrintOperation.h"
#include "report/widgets/QVPrintViewController.h"
#include "support/files/Result.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class QWidget;

namespace vantrell
{

class WebView;

/// Shows HTML in a web view and prints it. The view waits in a window off the screen; a print panel takes it
/// as its preview for a while. There is one for all documents, which each take it over in turn. Main thread.
class QVPrint final : public QObject
{
    Q_OBJECT

public:
    /// The shared instance, made with the first call and never released. A Failure when the plug-in is not
    /// installed or the web engine cannot start; the next call tries again. The folder holds the pictures of
    /// reports.
    static Result<QVPrint *> sharedController(const QString &imageFolder);

    /// Prints with that view; for those who want one of their own.
    QVPrint(std::unique_ptr<WebView> webView, PrintOperation::PdfMaker makePdf);
    ~QVPrint() override;

    /// The one whose preview follows the page; null for none.
    QVPrintViewController *printViewController() const { return m_printViewController; }
    void setPrintViewController(QVPrintViewController *controller);

    /// Shows the document and returns once it has been loaded, or failed to load, dispatching events
    /// meanwhile; at once when it is null, as there is nothing to show then. False when another call has
    /// taken its place meanwhile, or cancelLoading() was called.
    bool setHTMLString(const QString &html);
    /// Ends setHTMLString().
    void cancelLoading();
    /// Whether setHTMLString() has not returned yet.
    bool isLoading() const { return m_loads > 0; }

    /// Makes the text what the body of the page holds. While the page still works on such a text, of those
    /// that come meanwhile the last one counts.
    void updateHTMLString(const QString &htmlBody);
    /// What the body of the page holds, as the web view writes it. Dispatches events until it is there.
    QString htmlSource();

    /// What shows the page. A panel may put it into its own window and gives it back with hidePrintView().
    QWidget *printView() const;
    /// Puts the view off the screen again.
    void hidePrintView();
    /// Whether some panel has the view.
    bool isPrintViewTaken() const;
    /// Shows the page as it is on that paper.
    void setPaper(const PrintInfo &info);

    // Print operations, each of them the parent's; they print the page that the view then shows.

    PrintOperation *printOperationWithPrintInfo(const PrintInfo &info, QObject *parent);
    PrintOperation *printOperationWithSettings(const QVariantMap &settings, QObject *parent);
    PrintOperation *printOpFromView(const QString &jobTitle, const QVariantMap &settings, QObject *parent);
    PrintOperation *printOpFromHTMLString(const QString &html, const QString &jobTitle,
                                          const QVariantMap &settings, QObject *parent);
    /// Runs the operation with its progress as a sheet on the window.
    void startPrintOp(PrintOperation *operation, QWidget *parentWindow);
    void printHTMLString(const QString &html, const QString &jobTitle, QWidget *parentWindow,
                         const QVariantMap &settings);

private:
    void runNextBody();
    void pageChanged();

    std::unique_ptr<QWidget> m_window; // off the screen
    std::unique_ptr<WebView> m_webView;
    PrintOperation::PdfMaker m_makePdf;
    QPointer<QVPrintViewController> m_printViewController;
    quint64 m_generation = 0; // of the page
    int m_loads = 0;
    bool m_runsBody = false;
    QString m_nextBody;
};

} // namespace vantrell
