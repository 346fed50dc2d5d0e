#include "report/widgets/PrintOperation.h"

#include "report/widgets/WebView.h"
#include "support/BackgroundWork.h"
#include "support/FileUtilities.h"
#include "support/MainThread.h"
#include "support/TaskRunner.h"

#include <QPointer>

namespace vantrell
{

namespace
{

constexpr int spoolTimeoutMs = 10 * 60 * 1000;

/// Hands the pages to the printing system as they are; they are turned already.
Result<void> spool(const PrintInfo &info, const QByteArray &pdf, const std::atomic<bool> &isCancelled)
{
    const Result<TaskRunner::Output> run =
        TaskRunner::run(QStringLiteral("lp"),
                        {QStringLiteral("-s"), QStringLiteral("-d"), info.printer, QStringLiteral("-n"),
                         QString::number(info.copies), QStringLiteral("-t"), info.jobTitle,
                         QStringLiteral("-o"), QStringLiteral("media=") + info.paper()},
                        spoolTimeoutMs, pdf, [&isCancelled] { return isCancelled.load(); });
    if (!run) {
        return Failure{
            PrintOperation::tr("The printing system cannot be reached; the package “cups-client” has its "
                               "program “lp”. %1")
                .arg(run.message())};
    }
    if (run.value().exitCode != 0) {
        return Failure{PrintOperation::tr("The printer “%1” did not take the report. %2")
                           .arg(info.printer, QString::fromUtf8(run.value().standardError).trimmed())};
    }
    return {};
}

} // namespace

PrintOperation::PrintOperation(WebView &webView, const PrintInfo &info, QObject *parent)
    : QObject(parent)
    , m_webView(webView)
    , m_info(info)
    , m_isCancelled(std::make_shared<std::atomic<bool>>(false))
{
}

PrintOperation::~PrintOperation()
{
    cancel();
}

void PrintOperation::run()
{
    if (m_state != State::New)
        return;
    m_state = State::Pages;
    Q_EMIT progressed(tr("Laying out the pages…"));
    m_webView.makePdf(m_info.layout, m_info.jobTitle, m_info.headerAndFooter,
                      [self = QPointer(this)](const Result<QByteArray> &pdf) {
                          if (self && self->m_state == State::Pages)
                              self->pagesMade(pdf);
                      });
}

void PrintOperation::pagesMade(const Result<QByteArray> &pdf)
{
    if (!pdf) {
        end(pdf.failure());
        return;
    }
    m_state = State::Output;
    Q_EMIT progressed(m_info.printer.isNull() ? tr("Writing the file…")
                                              : tr("Handing the pages to “%1”…").arg(m_info.printer));
    const auto done = [self = QPointer(this)](const Result<void> &printed) {
        if (self && self->m_state == State::Output)
            self->end(printed);
    };
    BackgroundWork::run([done, info = m_info, bytes = pdf.value(), isCancelled = m_isCancelled] {
        const Result<void> printed = !info.printer.isNull()
                                         ? spool(info, bytes, *isCancelled)
                                         : FileUtilities::writeAtomically(info.file, [&](QIODevice &device) {
                                               if (*isCancelled)
                                                   return Result<void>(Failure());
                                               device.write(bytes); // the caller looks at its errors
                                               return *isCancelled ? Result<void>(Failure()) : Result<void>();
                                           });
        MainThread::post([done, printed] { done(printed); });
    });
}

void PrintOperation::cancel()
{
    if (!isRunning())
        return;
    *m_isCancelled = true;
    if (m_state == State::Pages)
        m_webView.cancelPdf();
    m_state = State::Cancelled;
    Q_EMIT finished(Failure());
}

void PrintOperation::end(const Result<void> &printed)
{
    m_state = State::Done;
    Q_EMIT finished(printed);
}

} // namespace vantrell
