// How DocumentWindow prints the table of a pane, and writes its report into a file.

#include "document/widgets/DocumentWindow.h"

#include "document/widgets/DocumentWindowInterface.h"
#include "report/PrintHelper.h"
#include "report/ReportImages.h"
#include "report/widgets/ExportReportSheet.h"
#include "report/widgets/PrintOperation.h"
#include "report/widgets/PrintPanel.h"
#include "report/widgets/QVPrint.h"
#include "report/widgets/QVPrintViewController.h"
#include "report/widgets/ReportOptions.h"
#include "support/files/FileUtilities.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/BackgroundWork.h"
#include "support/widgets/NestedEvents.h"
#include "table/widgets/TabPane.h"
#include "table/widgets/TableModel.h"
#include "workbench/Workbench.h"

#include <QActionGroup>
#include <QBuffer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QToolBar>

#include <atomic>
#include <memory>

namespace vantrell
{

namespace
{

const QString projectTitleKey = QStringLiteral("projectTitle");
const QString printSettingsKey = QStringLiteral("printSettings");

/// The columns as they stand.
Columns columnsOf(const TabPane &pane)
{
    Columns columns;
    for (const QString &identifier : pane.columns())
        columns.push_back(pane.model().columns()[std::size_t(pane.model().columnOf(identifier))]);
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

QString DocumentWindow::fileTitle() const
{
    return FileUtilities::deletingPathExtension(QFileInfo(m_path).fileName());
}

bool DocumentWindow::mayReport() const
{
    return document() && m_state != State::Failed && !m_isBusy && !m_printPanel;
}

void DocumentWindow::tellOfReport(const QString &what, const QString &reason)
{
    QVAlert::alertSheetWithMessageText(what, QString(), QString(), QString(), reason,
                                       m_interface->alertParent(), false);
}

void DocumentWindow::printDocument()
{
    commitEditing();
    if (refusesAfterFailedLoad() || !mayReport())
        return;
    const Tab tab = selectedTab();
    ReportGenerator &report = m_workbench->reportGenerator();
    report.setBodyConsumer({});
    report.setPrintTable(tab, columnsOf(pane(tab)));
    const Result<QVPrint *> shared = makePrint();
    if (!shared) {
        tellOfReport(tr("The report could not be printed."), shared.message());
        return;
    }
    QVPrint *const print = shared.value();
    if (print->isPrintViewTaken()) {
        tellOfReport(tr("Another report is being printed."), tr("Close its print panel first."));
        return;
    }
    m_printPanel = new PrintPanel(*print, PrintPanel::systemPrinters(), this);
    auto *const options = new ReportOptions(report, m_defaults, fileTitle(), m_printPanel);
    delete m_printViewController;
    m_printViewController = QVPrintViewController::printViewControllerWithView(options, this);
    m_printPanel->addAccessoryController(m_printViewController);
    print->setPrintViewController(m_printViewController);
    beginBusy(tr("Preparing the report…"), [print] { print->cancelLoading(); });
    m_givesUpForClosing = true;
    const QString html = report.generateHTMLForPrinting();
    const QPointer<DocumentWindow> self(this);
    // Without rows the page is empty, whatever the view showed before.
    const bool isLoaded = print->setHTMLString(html.isNull() ? QStringLiteral("") : html);
    if (!self || m_closing || !m_isBusy)
        return;
    endBusy();
    if (!isLoaded || !m_printPanel) {
        delete m_printPanel;
        return;
    }
    report.setBodyConsumer([print, controller = QPointer(m_printViewController)](const QString &body) {
        if (controller && print->printViewController() == controller)
            print->updateHTMLString(body);
    });
    printDocumentWithSettings(m_defaults.value(printSettingsKey).toMap(), true,
                              [this, tab](bool didPrint) { documentDidPrint(tab, didPrint); });
}

void DocumentWindow::printDocumentWithSettings(const QVariantMap &settings, bool showPrintPanel,
                                               const std::function<void(bool)> &didPrint)
{
    const Result<QVPrint *> print = makePrint();
    if (!print) {
        tellOfReport(tr("The report could not be printed."), print.message());
        didPrint(false);
        return;
    }
    const auto jobTitle = [this] {
        const QVariant title = m_defaults.value(projectTitleKey);
        return title.isNull() ? fileTitle() : title.toString();
    };
    PrintInfo info(settings);
    if (!showPrintPanel) {
        info.jobTitle = jobTitle();
        PrintOperation *const operation = print.value()->printOperationWithPrintInfo(info, this);
        connect(operation, &PrintOperation::finished, this,
                [didPrint](const Result<void> &printed) { didPrint(printed.isOk()); });
        print.value()->startPrintOp(operation, this);
        return;
    }
    if (!m_printPanel)
        m_printPanel = new PrintPanel(*print.value(), PrintPanel::systemPrinters(), this);
    m_printPanel->setPrintInfo(info);
    m_printPanel->setJobTitle(jobTitle);
    m_printPanel->setProposedFile(QStringLiteral("%1/%2.pdf").arg(folder(), fileTitle()));
    connect(m_printPanel, &PrintPanel::ended, this, [this, didPrint](bool hasPrinted, const PrintInfo &used) {
        m_defaults.setValue(printSettingsKey, used.settings());
        if (hasPrinted) {
            pane(selectedTab())
                .showMessage(used.printer.isNull()
                                 ? tr("Report saved to “%1”").arg(QFileInfo(used.file).fileName())
                                 : tr("Report handed to the printer “%1”").arg(used.printer));
        }
        didPrint(hasPrinted);
    });
    m_printPanel->open();
}

void DocumentWindow::documentDidPrint(Tab printed, bool didPrint)
{
    m_selectedToolbarItemIdentifier = toolbarSelectableItemIdentifiers().at(int(printed));
    m_toolBarItems->actions().at(int(printed))->setChecked(true);
    Q_EMIT reportPrinted(didPrint);
}

PrintOperation *DocumentWindow::printOperationWithSettings(const QVariantMap &, QString *)
{
    return nullptr;
}

void DocumentWindow::exportReport()
{
    commitEditing();
    if (refusesAfterFailedLoad() || !mayReport())
        return;
    const Tab tab = selectedTab();
    ReportGenerator &report = m_workbench->reportGenerator();
    report.setBodyConsumer({});
    report.setPrintTable(tab, columnsOf(pane(tab)));
    auto *const sheet = new ExportReportSheet(report, m_defaults, fileTitle(), folder(), this);
    connect(sheet, &ExportReportSheet::chosen, this, &DocumentWindow::exportReportTo);
    sheet->open();
}

void DocumentWindow::exportReportTo(const QString &path, ReportFormat format)
{
    if (!mayReport())
        return;
    ReportGenerator &report = m_workbench->reportGenerator();
    if (!report.printTableRef())
        report.setPrintTable(selectedTab(), columnsOf(pane(selectedTab())));
    QBuffer text;
    text.open(QIODevice::WriteOnly);
    const Result<void> made = format == ReportFormat::Page  ? report.writePage(text)
                              : format == ReportFormat::Csv ? report.writeCSV(text)
                                                            : report.writeHTML(text, true);
    const QString helper = PrintHelper::find();
    if (!made || (format == ReportFormat::Pdf && helper.isEmpty())) {
        reportExportEnded(path, made ? Failure{PrintHelper::missingMessage()} : made.failure(), false);
        return;
    }
    const auto isCancelled = std::make_shared<std::atomic<bool>>(false);
    beginBusy(tr("Writing “%1”…").arg(QFileInfo(path).fileName()), [isCancelled] { *isCancelled = true; });
    m_givesUpForClosing = true;
    const PrintInfo info(m_defaults.value(printSettingsKey).toMap());
    const PrintHelper::Pages pages = info.pages();
    const auto gate = m_workbench->document().mainThread();
    BackgroundWork::run([this, gate, path, format, helper, pages, isCancelled, bytes = text.data()] {
        const FileUtilities::Writer write = [&](QIODevice &device) {
            device.write(bytes); // whoever opened it looks at its errors
            return *isCancelled ? Result<void>(Failure()) : Result<void>();
        };
        const auto hasEnough = [&] { return isCancelled->load(); };
        const Result<void> written =
            format == ReportFormat::Pdf
                ? PrintHelper::writePDF(helper, write, ReportImages::standardFolder(), path, pages, hasEnough)
                : FileUtilities::writeAtomically(path, write);
        gate->post([this, path, written, isCancelled] {
            endBusy();
            reportExportEnded(path, written, *isCancelled);
        });
    });
}

void DocumentWindow::reportExportEnded(const QString &path, const Result<void> &written, bool isCancelled)
{
    const QString name = QFileInfo(path).fileName();
    if (written)
        pane(selectedTab()).showMessage(tr("Report exported to “%1”").arg(name));
    else if (!isCancelled)
        tellOfReport(tr("The report could not be exported to “%1”.").arg(name), written.message());
    if (!m_closing)
        Q_EMIT reportExported(written.isOk());
}

/// The panel holds the view of all documents, and works on this one.
void DocumentWindow::closePrintPanel()
{
    delete m_printPanel;
    if (m_workbench)
        m_workbench->reportGenerator().setBodyConsumer({});
}

} // namespace vantrell
