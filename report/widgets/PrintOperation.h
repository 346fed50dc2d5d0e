#pragma once

#include "report/widgets/PrintInfo.h"
#include "support/files/Result.h"

#include <QDialog>
#include <QObject>
#include <QPointer>

#include <atomic>
#include <functional>
#include <memory>

class QLabel;
class QProgressBar;
class QPushButton;

namespace vantrell
{

class WebView;

/// Prints the page of a web view to a printer or a PDF file. The layout is done by another process, so that
/// the window stays responsive and cancelling takes effect at once. Main thread.
class PrintOperation final : public QObject
{
    Q_OBJECT

public:
    /// Makes a PDF file of the HTML, atomically; gives up once `isCancelled` returns true. Any thread.
    using PdfMaker = std::function<Result<void>(const QByteArray &html, const QString &output,
                                                const PrintHelper::Pages &pages,
                                                const std::function<bool()> &isCancelled)>;

    /// The view outlives the operation.
    PrintOperation(WebView &webView, PdfMaker makePdf, const PrintInfo &info, QObject *parent);
    ~PrintOperation() override { cancel(); }

    const PrintInfo &printInfo() const { return m_info; }
    void setPrintInfo(const PrintInfo &info) { m_info = info; }

    /// Called once; finished() reports the result.
    void run();
    /// Cancels a running operation: no file is changed and nothing is sent to the printer.
    void cancel();
    bool isRunning() const { return m_state == State::Running; }
    bool isCancelled() const { return m_state == State::Cancelled; }

Q_SIGNALS:
    /// The current step, for the user.
    void progressed(const QString &text);
    /// The failure has no message when the operation was cancelled.
    void finished(const vantrell::Result<void> &printed);

private:
    enum class State { New, Running, Done, Cancelled };

    void makePages(const QString &html);
    void end(const Result<void> &printed);

    WebView &m_webView;
    PdfMaker m_makePdf;
    PrintInfo m_info;
    State m_state = State::New;
    std::shared_ptr<std::atomic<bool>> m_isCancelled;
};

class PrintOperation;

/// The sheet that shows the progress of a print operation, or why it failed. Deletes itself when closed,
/// which cancels a running operation. Main thread.
class PrintProgress final : public QDialog
{
    Q_OBJECT

public:
    PrintProgress(PrintOperation *operation, QWidget *window);

    void reject() override;

private:
    void printed(const Result<void> &result);

    QPointer<PrintOperation> m_operation;
    QLabel *m_text;
    QProgressBar *m_bar;
    QPushButton *m_cancel;
};

} // namespace vantrell
