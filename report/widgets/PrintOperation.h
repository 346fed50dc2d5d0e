#pragma once

#include "report/widgets/PrintInfo.h"
#include "support/files/Result.h"

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>

namespace vantrell
{

class WebView;

/// One page on its way to paper or into a PDF file. Another process lays it out, so that the window goes on
/// meanwhile and a cancelled operation takes no more time. Main thread.
class PrintOperation final : public QObject
{
    Q_OBJECT

public:
    /// Makes a PDF of the HTML, whole or not at all; gives up once `isCancelled` holds. Any thread.
    using PdfMaker = std::function<Result<void>(const QByteArray &html, const QString &output,
                                                const PrintHelper::Pages &pages,
                                                const std::function<bool()> &isCancelled)>;

    /// The view outlives the operation.
    PrintOperation(WebView &webView, PdfMaker makePdf, const PrintInfo &info, QObject *parent);
    ~PrintOperation() override;

    const PrintInfo &printInfo() const { return m_info; }
    void setPrintInfo(const PrintInfo &info) { m_info = info; }

    /// Starts it; finished() tells the end. Once.
    void run();
    /// Ends it, if it has not ended: no file is changed then and nothing goes to the printer.
    void cancel();
    bool isRunning() const { return m_state == State::Running; }
    bool isCancelled() const { return m_state == State::Cancelled; }

Q_SIGNALS:
    /// What is being done now, for the user.
    void progressed(const QString &text);
    /// A Failure says what went wrong, without a message when the operation was cancelled.
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

} // namespace vantrell
