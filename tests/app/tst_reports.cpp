#include "WindowTest.h"

#include "report/widgets/ExportReportSheet.h"
#include "report/widgets/PrintPanel.h"
#include "report/widgets/PrintPlugin.h"
#include "report/widgets/QVPrint.h"
#include "support/alerts/QVAlert.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/BackgroundWork.h"
#include "support/widgets/WindowAlertPresenter.h"
#include "table/widgets/QVTableView.h"
#include "tests/report_widgets/FakeWebView.h"
#include "tests/support/TemporaryHome.h"
#include "workbench/Workbench.h"

#include <QHeaderView>
#include <QListView>
#include <QTest>

using namespace vantrell;
using namespace Qt::StringLiterals;

/// Printing and exporting reports from the window, with a view that needs no web engine.
class TestReports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVAlert::setPresenter(std::make_shared<WindowAlertPresenter>(m_defaults));
        QVLog::createNewLog(u"test"_s, true);
        m_window = std::make_unique<DocumentWindow>(m_defaults);
        m_window->setAttribute(Qt::WA_DeleteOnClose, false);
        m_window->show();
        QVERIFY(m_window->open(copySample(m_home.path(u"project"_s))));
        QTRY_COMPARE(m_window->state(), DocumentWindow::State::Ready);
        m_window->toolbarMarkers();
    }
    void cleanupTestCase()
    {
        m_window.reset();
        QVAlert::closeAll();
        QVERIFY(BackgroundWork::waitForAll(std::chrono::seconds(20)));
        QVAlert::setPresenter(nullptr);
        QVLog::willTerminate();
        PrintPlugin::replace(nullptr);
    }

    /// The first call that prints: nothing is there yet.
    void namesTheMissingPackage()
    {
        if (!PrintPlugin::find().isNull())
            QSKIP("The plug-in is built here.");
        QTimer::singleShot(0, m_window.get(), &DocumentWindow::printDocument);
        QTRY_VERIFY(visibleBox());
        QVERIFY(visibleBox()->informativeText().contains(u"vantrell-print"_s) ||
                visibleBox()->text().contains(u"vantrell-print"_s));
        visibleBox()->close();
        QTRY_VERIFY(!visibleBox());
    }

    /// Selected rows, the columns as they stand, live ticks and title; then the table's tab is selected
    /// again.
    void prints()
    {
        PrintPlugin::replace(&m_plugin);
        m_window->pane(Tab::Markers).selectRows({1, 3});
        auto *const header = m_window->pane(Tab::Markers).table().horizontalHeader();
        header->moveSection(m_window->pane(Tab::Markers).columns().indexOf(u"in"_s), 0);
        m_window->pane(Tab::Markers).showColumn(u"comment"_s, false); // in the window alone
        QSignalSpy printed(m_window.get(), &DocumentWindow::reportPrinted);
        m_window->printDocument();
        auto *const panel = m_window->findChild<PrintPanel *>();
        QVERIFY(panel && panel->isVisible());
        FakeWebView &view = *m_plugin.view;
        QVERIFY(view.html.startsWith(u"<!DOCTYPE HTML PUBLIC"_s));
        QCOMPARE(view.html.count(u"<tr>"_s), 2);
        QVERIFY(view.html.contains(u"<thead><th>In</th><th>Name</th><th>Comment</th></thead>"_s));
        auto *const columns = panel->findChild<QListView *>();
        columns->model()->setData(columns->model()->index(0, 0), Qt::Unchecked, Qt::CheckStateRole);
        QTRY_VERIFY(view.bodies.constLast().contains(u"<thead><th>Name</th><th>Comment</th></thead>"_s));
        m_defaults.setValue(u"projectTitle"_s, u"Delivery"_s);
        QTRY_VERIFY(view.bodies.constLast().contains(u"<h1>Delivery</h1>"_s));
        QVERIFY(!m_window->mayReport()); // the panel has the report
        panel->reject();
        QCOMPARE(printed.size(), 1);
        QVERIFY(!printed.at(0).at(0).toBool());
        QCOMPARE(m_window->selectedToolbarItemIdentifier(), u"markers"_s);
        QTRY_VERIFY(!m_window->findChild<PrintPanel *>());
        QVERIFY(!m_defaults.value(u"printSettings"_s).toMap().isEmpty());
        header->moveSection(0, 3);
    }

    void cancelsThePreparation()
    {
        m_plugin.view->loadDelayMs = 1000000;
        QTimer::singleShot(50, m_window.get(), [] {
            const Result<QVPrint *> print = QVPrint::sharedController(QString());
            print.value()->cancelLoading();
        });
        m_window->printDocument();
        m_plugin.view->loadDelayMs = 0;
        QVERIFY(!m_window->findChild<PrintPanel *>() && !m_window->isBusy());
    }

    void exports()
    {
        m_defaults.removeValue(u"projectTitle"_s);
        m_window->pane(Tab::Markers).selectRows({0});
        m_window->exportReport();
        auto *const sheet = m_window->findChild<ExportReportSheet *>();
        QVERIFY(sheet && sheet->isVisible());
        QStringList labels;
        for (const auto *const label : sheet->findChildren<QLabel *>())
            labels.append(label->text());
        QVERIFY2(labels.join(u' ').contains(u"Only the selected row of "_s), qPrintable(labels.join(u' ')));
        // A report that can be written only later holds what was selected when it was chosen.
        QSignalSpy late(m_window.get(), &DocumentWindow::reportExported);
        m_window->beginReading({});
        Q_EMIT sheet->chosen(m_home.path(u"late.csv"_s), ReportFormat::Csv);
        sheet->reject();
        m_window->pane(Tab::Markers).selectRows({1});
        m_window->endReading();
        QTRY_COMPARE(late.count(), 1);
        QCOMPARE(contentOf(m_home.path(u"late.csv"_s)).count('\n'), 2);
        QVERIFY(contentOf(m_home.path(u"late.csv"_s)).contains("Tide turns"));
        m_window->pane(Tab::Markers).selectRows({0});
        const struct {
            const char *name;
            ReportFormat format;
            const char *part;
        } rows[] = {
            {"out.html", ReportFormat::Page, "data:image/png;base64,"},
            {"out.csv", ReportFormat::Csv, "\xEF\xBB\xBFName,Comment,In\r\nTide turns,Note,00:00:10:10\r\n"},
        };
        for (const auto &row : rows) {
            QSignalSpy exported(m_window.get(), &DocumentWindow::reportExported);
            const QString path = m_home.path(QLatin1String(row.name));
            m_window->exportReportTo(path, row.format);
            QVERIFY(!exported.isEmpty() || exported.wait(20000));
            QVERIFY2(contentOf(path).contains(row.part), contentOf(path).constData());
        }
    }

private:
    const TemporaryHome m_home;
    UserDefaults m_defaults{QString(), UserDefaults::Access::Volatile};
    FakeWebViewPlugin m_plugin;
    std::unique_ptr<DocumentWindow> m_window;
};

QTEST_MAIN(TestReports)
#include "tst_reports.moc"
