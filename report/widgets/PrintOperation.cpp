#include "report/widgets/PrintOperation.h"

#include "report/widgets/WebView.h"
#include "support/files/FileUtilities.h"
#include "support/files/TaskRunner.h"
#include "support/threads/BackgroundWork.h"
#include "support/threads/MainThread.h"
#include "support/widgets/ShownText.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include <utility>

namespace vantrell
{

namespace
{

constexpr int spoolTimeoutMs = 10 * 60 * 1000;

const QString sourceScript = QStringLiteral("'<!DOCTYPE html>' + document.documentElement.outerHTML");

/// Sends the pages, which already have the right orientation, to the printing system.
Result<void> spool(const PrintInfo &info, const QByteArray &pdf, const std::function<bool()> &isCancelled)
{
    const Result<TaskRunner::Output> run =
        TaskRunner::run(QStringLiteral("lp"),
                        {QStringLiteral("-s"), QStringLiteral("-d"), info.printer, QStringLiteral("-n"),
                         QString::number(info.copies), QStringLiteral("-t"), info.jobTitle,
                         QStringLiteral("-o"), QStringLiteral("media=") + info.paper()},
                        spoolTimeoutMs, pdf, isCancelled);
    if (!run) {
        return Failure{PrintOperation::tr("The printing system cannot be reached; the package “cups-client” "
                                          "has its program “lp”. %1")
                           .arg(run.message())};
    }
    if (run.value().exitCode != 0) {
        return Failure{PrintOperation::tr("The printer “%1” did not take the report. %2")
                           .arg(info.printer, QString::fromUtf8(run.value().standardError).trimmed())};
    }
    return {};
}

Result<void> print(const PrintInfo &info, const PrintOperation::PdfMaker &makePdf, const QByteArray &html,
                   const std::function<bool()> &isCancelled)
{
    if (info.printer.isNull())
        return makePdf(html, info.file, info.pages(), isCancelled);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("report.pdf"));
    const Result<void> made = makePdf(html, file, info.pages(), isCancelled);
    if (!made)
        return made;
    const Result<QByteArray> pdf = FileUtilities::readFile(file);
    return pdf ? spool(info, pdf.value(), isCancelled) : Result<void>(pdf.failure());
}

} // namespace

PrintOperation::PrintOperation(WebView &webView, PdfMaker makePdf, const PrintInfo &info, QObject *parent)
    : QObject(parent)
    , m_webView(webView)
    , m_makePdf(std::move(makePdf))
    , m_info(info)
    , m_isCancelled(std::make_shared<std::atomic<bool>>(false))
{
}

void PrintOperation::run()
{
    if (m_state != State::New)
        return;
    m_state = State::Running;
    Q_EMIT progressed(m_info.printer.isNull() ? tr("Making the pages…")
                                              : tr("Making the pages for “%1”…").arg(m_info.printer));
    m_webView.run(sourceScript, [self = QPointer(this)](const QVariant &html) {
        if (self && self->isRunning())
            self->makePages(html.toString());
    });
}

void PrintOperation::makePages(const QString &html)
{
    const auto done = [self = QPointer(this)](const Result<void> &printed) {
        if (self && self->isRunning())
            self->end(printed);
    };
    BackgroundWork::run([done, info = m_info, makePdf = m_makePdf, bytes = html.toUtf8(),
                         cancelled = m_isCancelled] {
        const Result<void> printed = print(info, makePdf, bytes, [cancelled] { return cancelled->load(); });
        MainThread::post([done, printed] { done(printed); });
    });
}

void PrintOperation::cancel()
{
    if (!isRunning())
        return;
    *m_isCancelled = true;
    m_state = State::Cancelled;
    Q_EMIT finished(Failure());
}

void PrintOperation::end(const Result<void> &printed)
{
    m_state = State::Done;
    Q_EMIT finished(printed);
}

PrintProgress::PrintProgress(PrintOperation *operation, QWidget *window)
    : QDialog(window)
    , m_operation(operation)
    , m_text(new QLabel(this))
    , m_bar(new QProgressBar(this))
{
    constexpr int narrowest = 320;
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Printing"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setMinimumWidth(narrowest);
    m_bar->setRange(0, 0);
    m_bar->setAccessibleName(tr("Progress"));
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_cancel = buttons->button(QDialogButtonBox::Cancel);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(m_bar);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &PrintProgress::reject);
    connect(operation, &PrintOperation::progressed, m_text, &QLabel::setText);
    connect(operation, &PrintOperation::finished, this, &PrintProgress::printed);
}

void PrintProgress::reject()
{
    if (m_operation)
        m_operation->cancel();
    QDialog::reject();
}

void PrintProgress::printed(const Result<void> &result)
{
    if (result || result.message().isEmpty()) {
        accept();
        return;
    }
    m_bar->hide();
    m_text->setText(shownMessage(result.message()));
    m_cancel->setText(tr("Close"));
}

} // namespace vantrell
