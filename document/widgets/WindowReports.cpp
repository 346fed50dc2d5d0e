#include "document/widgets/WindowReports.h"

#include "document/widgets/DocumentWindow.h"
#include "document/widgets/WindowWork.h"
#include "media/MediaColumns.h"
#include "report/PrintHelper.h"
#include "report/ReportGenerator.h"
#include "report/ReportTable.h"
#include "report/widgets/ExportReportSheet.h"
#include "report/widgets/PrintOperation.h"
#include "report/widgets/PrintPanel.h"
#include "report/widgets/QVPrint.h"
#include "report/widgets/ReportOptions.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/BackgroundWork.h"
#include "table/widgets/TabPane.h"
#include "table/widgets/TableModel.h"
#include "workbench/Workbench.h"

#include <QBuffer>
#include <QFileInfo>
#include <QGuiApplication>

#include <atomic>
#include <memory>

namespace vantrell
{

namespace
{

const QString projectTitleKey = QStringLiteral("projectTitle");
const QString printSettingsKey = QStringLiteral("printSettings");

/// The columns in their present order, without those that tell of the use of media.
Columns columnsOf(const TabPane &pane)
{
    Columns columns;
    for (const QString &identifier : pane.columns()) {
        if (pane.tab() == Tab::Media && !findColumn(mediaColumns, identifier))
            continue;
        columns.push_back(pane.model().columns()[std::size_t(pane.model().columnOf(identifier))]);
    }
    return columns;
}

Result<QVPrint *> makePrint()
{
    // The first call loads the web engine.
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const Result<QVPrint *> print = QVPrint::sharedController(ReportImages::standardFolder());
    QGuiApplication::restoreOverrideCursor();
    return print;
}

} // namespace

bool WindowReports::mayReport() const
{
    return m_window.document() && !m_state.isBusy() && !m_printPanel;
}

/// The generator, set up for the table of the current pane; null when no report may be made.
ReportGenerator *WindowReports::prepareReport()
{
    m_window.commitEditing();
    if (m_window.refusesAfterFailedLoad() || !mayReport())
        return nullptr;
    ReportGenerator &report = m_window.workbench().reportGenerator();
    report.setBodyConsumer({});
    report.setPrintTable(m_window.selectedTab(), columnsOf(m_window.currentPane()));
    return &report;
}

void WindowReports::showPrintFailure(const QString &reason)
{
    m_window.showFailure(tr("The report could not be printed."), reason);
}

void WindowReports::printDocument()
{
    ReportGenerator *const report = prepareReport();
    if (!report)
        return;
    const Result<QVPrint *> shared = makePrint();
    if (!shared) {
        showPrintFailure(shared.message());
        return;
    }
    QVPrint *const print = shared.value();
    if (print->isPrintViewTaken()) {
        m_window.showFailure(tr("Another report is being printed."), tr("Close its print panel first."));
        return;
    }
    m_printPanel = new PrintPanel(*print, PrintPanel::systemPrinters(), &m_window);
    auto *const options = new ReportOptions(*report, m_defaults, m_window.fileTitle(), m_printPanel);
    delete m_printViewController;
    m_printViewController = QVPrintViewController::printViewControllerWithView(options, &m_window);
    m_printPanel->addAccessoryController(m_printViewController);
    print->setPrintViewController(m_printViewController);
    m_work.begin(tr("Preparing the report…"), WindowState::Work::Expendable,
                 [print] { print->cancelLoading(); });
    const QString html = report->generateHTMLForPrinting();
    const QPointer window(&m_window);
    // Without rows an empty page replaces what the view showed before.
    const bool isLoaded = print->setHTMLString(html.isNull() ? QStringLiteral("") : html);
    if (!window || m_state.isClosed() || !m_state.isBusy())
        return;
    m_work.end();
    if (!isLoaded || !m_printPanel) {
        delete m_printPanel;
        return;
    }
    report->setBodyConsumer([print, controller = QPointer(m_printViewController)](const QString &body) {
        if (controller && print->printViewController() == controller)
            print->updateHTMLString(body);
    });
    const Tab tab = m_window.selectedTab();
    printDocumentWithSettings(m_defaults.value(printSettingsKey).toMap(), true, [this, tab](bool didPrint) {
        m_window.selectToolbarItem(tab);
        Q_EMIT m_window.reportPrinted(didPrint);
    });
}

void WindowReports::printDocumentWithSettings(const QVariantMap &settings, bool showPrintPanel,
                                              const std::function<void(bool)> &didPrint)
{
    const Result<QVPrint *> print = makePrint();
    if (!print) {
        showPrintFailure(print.message());
        didPrint(false);
        return;
    }
    const auto jobTitle = [this] {
        const QVariant title = m_defaults.value(projectTitleKey);
        return title.isNull() ? m_window.fileTitle() : title.toString();
    };
    PrintInfo info(settings);
    if (!showPrintPanel) {
        info.jobTitle = jobTitle();
        PrintOperation *const operation = print.value()->printOperationWithPrintInfo(info, &m_window);
        QObject::connect(operation, &PrintOperation::finished, &m_window,
                         [didPrint](const Result<void> &printed) { didPrint(printed.isOk()); });
        print.value()->startPrintOp(operation, &m_window);
        return;
    }
    if (!m_printPanel)
        m_printPanel = new PrintPanel(*print.value(), PrintPanel::systemPrinters(), &m_window);
    m_printPanel->setPrintInfo(info);
    m_printPanel->setJobTitle(jobTitle);
    m_printPanel->setProposedFile(QStringLiteral("%1/%2.pdf").arg(m_window.folder(), m_window.fileTitle()));
    QObject::connect(m_printPanel, &PrintPanel::ended, &m_window,
                     [this, didPrint](bool hasPrinted, const PrintInfo &used) {
                         m_defaults.setValue(printSettingsKey, used.settings());
                         if (hasPrinted) {
                             m_window.currentPane().showMessage(
                                 used.printer.isNull()
                                     ? tr("Report saved to “%1”").arg(QFileInfo(used.file).fileName())
                                     : tr("Report handed to the printer “%1”").arg(used.printer));
                         }
                         didPrint(hasPrinted);
                     });
    m_printPanel->open();
}

void WindowReports::exportReport()
{
    ReportGenerator *const report = prepareReport();
    if (!report)
        return;
    auto *const sheet =
        new ExportReportSheet(*report, m_defaults, m_window.fileTitle(), m_window.folder(), &m_window);
    QObject::connect(sheet, &ExportReportSheet::chosen, &m_window,
                     [this](const QString &path, ReportFormat format) {
                         // What is on show now, whenever it can be written.
                         if (!m_window.document())
                             return;
                         const Result<QByteArray> content = contentOf(format);
                         m_window.whenIdle([this, path, format, content] { write(path, format, content); });
                     });
    sheet->open();
}

void WindowReports::exportReportTo(const QString &path, ReportFormat format)
{
    if (mayReport())
        write(path, format, contentOf(format));
}

Result<QByteArray> WindowReports::contentOf(ReportFormat format)
{
    ReportGenerator &report = m_window.workbench().reportGenerator();
    if (!report.printTableRef())
        report.setPrintTable(m_window.selectedTab(), columnsOf(m_window.currentPane()));
    QBuffer text;
    text.open(QIODevice::WriteOnly);
    const Result<void> made = format == ReportFormat::Page  ? report.writePage(text)
                              : format == ReportFormat::Csv ? report.writeCSV(text)
                                                            : report.writeHTML(text, true);
    return made ? Result<QByteArray>(text.data()) : Result<QByteArray>(made.failure());
}

void WindowReports::write(const QString &path, ReportFormat format, const Result<QByteArray> &content)
{
    if (!mayReport())
        return;
    const QString helper = PrintHelper::find();
    if (!content || (format == ReportFormat::Pdf && helper.isEmpty())) {
        exported(path, content ? Failure{PrintHelper::missingMessage()} : content.failure(), false);
        return;
    }
    const auto isCancelled = std::make_shared<std::atomic<bool>>(false);
    m_work.begin(tr("Writing “%1”…").arg(QFileInfo(path).fileName()), WindowState::Work::Expendable,
                 [isCancelled] { *isCancelled = true; });
    const PrintHelper::Pages pages = PrintInfo(m_defaults.value(printSettingsKey).toMap()).pages();
    const auto writeReport = [path, format, helper, pages, isCancelled, bytes = content.value()] {
        const FileUtilities::Writer write = [&](QIODevice &device) {
            device.write(bytes); // errors are checked by whoever opened the device
            return *isCancelled ? Result<void>(Failure()) : Result<void>();
        };
        const auto mayReplace = [&](int) { return *isCancelled ? Result<void>(Failure()) : Result<void>(); };
        const auto hasEnough = [&] { return isCancelled->load(); };
        return format == ReportFormat::Pdf
                   ? PrintHelper::writePDF(helper, write, ReportImages::standardFolder(), path, pages,
                                           hasEnough)
                   : FileUtilities::writeAtomically(path, write, mayReplace);
    };
    BackgroundWork::run(writeReport, m_window.workbench().document().mainThread(),
                        [this, path, isCancelled](const Result<void> &written) {
                            m_work.end();
                            exported(path, written, *isCancelled);
                        });
}

void WindowReports::exported(const QString &path, const Result<void> &written, bool isCancelled)
{
    const QString name = QFileInfo(path).fileName();
    if (written)
        m_window.currentPane().showMessage(tr("Report exported to “%1”").arg(name));
    else if (!isCancelled)
        m_window.showFailure(tr("The report could not be exported to “%1”.").arg(name), written.message());
    if (!m_state.isClosed())
        Q_EMIT m_window.reportExported(written.isOk());
}

void WindowReports::close()
{
    delete m_printPanel;
    m_window.workbench().reportGenerator().setBodyConsumer({});
}

} // namespace vantrell
