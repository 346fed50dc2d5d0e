#pragma once

#include "report/widgets/PrintInfo.h"
#include "report/widgets/PrintOperation.h"
#include "support/files/Result.h"

#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QVariantMap>
#include <QWidget>

#include <memory>

namespace vantrell
{

class WebView;

/// The pane that a program adds to the print panel. It makes the panel redraw its preview by changing a
/// property that the preview depends on. Main thread.
class QVPrintViewController final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool dummyValue READ dummyValue NOTIFY dummyValueChanged)

public:
    /// A new controller that shows the view but does not own it.
    static QVPrintViewController *printViewControllerWithView(QWidget *view, QObject *parent = nullptr);

    QWidget *view() const { return m_view; }

    /// The delegate; may be null.
    QObject *delegate() const { return m_delegate; }
    void setDelegate(QObject *delegate) { m_delegate = delegate; }

    /// Makes the panel redraw its preview, then dispatches pending events.
    void updatePreview();

    bool dummyValue() const { return m_dummyValue; }
    static QSet<QString> keyPathsForValuesAffectingPreview() { return {QStringLiteral("dummyValue")}; }
    /// The summary of the pane's settings: one empty item.
    static QList<QVariantMap> localizedSummaryItems() { return {QVariantMap()}; }

Q_SIGNALS:
    void dummyValueChanged();

private:
    using QObject::QObject;

    QPointer<QWidget> m_view;
    QPointer<QObject> m_delegate;
    bool m_dummyValue = false;
};

/// Shows HTML in a web view and prints it. The view is in an off-screen window until a print panel uses it as
/// its preview. All documents share one instance. Main thread.
class QVPrint final : public QObject
{
    Q_OBJECT

public:
    /// The shared instance, created by the first call and never released. Fails when the plug-in is not
    /// installed or the web engine cannot start; the next call tries again. The folder holds the pictures of
    /// reports.
    static Result<QVPrint *> sharedController(const QString &imageFolder);

    /// An instance of its own with that view.
    QVPrint(std::unique_ptr<WebView> webView, PrintOperation::PdfMaker makePdf);
    ~QVPrint() override;

    /// The controller whose preview is updated with the page; may be null.
    QVPrintViewController *printViewController() const { return m_printViewController; }
    void setPrintViewController(QVPrintViewController *controller) { m_printViewController = controller; }

    /// Loads the document, unless it is null, and dispatches events until that has succeeded or failed. False
    /// when another call has replaced it meanwhile, or cancelLoading() was called.
    bool setHTMLString(const QString &html);
    /// Makes a running setHTMLString() return.
    void cancelLoading();
    /// Whether setHTMLString() is running.
    bool isLoading() const { return m_loads > 0; }

    /// Replaces the content of the page's body. Of several texts that arrive while the page is busy with one,
    /// only the last is shown.
    void updateHTMLString(const QString &htmlBody);
    /// The content of the page's body, as serialised by the web view. Dispatches events until it is
    /// available.
    QString htmlSource();

    /// The widget of the page. A panel may move it into its own window, and returns it with hidePrintView().
    QWidget *printView() const;
    /// Moves the view back to the off-screen window.
    void hidePrintView();
    /// Whether a panel is using the view.
    bool isPrintViewTaken() const;
    /// Sets the paper that the view shows.
    void setPaper(const PrintInfo &info);

    // Print operations for the page that the view shows when they run, owned by `parent`.

    PrintOperation *printOperationWithPrintInfo(const PrintInfo &info, QObject *parent);
    PrintOperation *printOperationWithSettings(const QVariantMap &settings, QObject *parent);
    PrintOperation *printOpFromView(const QString &jobTitle, const QVariantMap &settings, QObject *parent);
    PrintOperation *printOpFromHTMLString(const QString &html, const QString &jobTitle,
                                          const QVariantMap &settings, QObject *parent);
    /// Runs the operation, showing its progress in a sheet on the window.
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
    quint64 m_generation = 0; // counts the loads of the page
    int m_loads = 0;
    bool m_runsBody = false;
    QString m_nextBody;
};

} // namespace vantrell
