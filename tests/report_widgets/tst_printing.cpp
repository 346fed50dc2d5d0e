#include "document/MyDocument.h"
#include "markers/MarkerColumns.h"
#include "markers/MarkerKeys.h"
#include "markers/MarkerPresets.h"
#include "report/ReportGenerator.h"
#include "report/widgets/PrintOperation.h"
#include "report/widgets/PrintPanel.h"
#include "report/widgets/QVPrint.h"
#include "report/widgets/ReportOptions.h"
#include "support/files/FileUtilities.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/BackgroundWork.h"
#include "tests/report_widgets/FakeWebView.h"
#include "tests/support/ScriptedDocumentInterface.h"
#include "tests/support/TemporaryHome.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QListView>
#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <thread>

using namespace vantrell;
using namespace Qt::StringLiterals;

class TestPrinting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        auto view = std::make_unique<FakeWebView>();
        m_view = view.get();
        m_print =
            std::make_unique<QVPrint>(std::move(view), [this](const QByteArray &html, const QString &output,
                                                              const PrintHelper::Pages &pages,
                                                              const std::function<bool()> &isCancelled) {
                while (m_pdfIsSlow && !isCancelled())
                    std::this_thread::sleep_for(std::chrono::milliseconds(1));
                if (isCancelled())
                    return Result<void>(Failure{u"cancelled"_s});
                if (!m_pdfFailure.isNull())
                    return Result<void>(Failure{m_pdfFailure});
                return FileUtilities::writeAtomically(output, "%PDF " + html + pages.paper.toUtf8());
            });
        m_pdfIsSlow = false;
        m_pdfFailure = QString();
        m_window = std::make_unique<QWidget>();
        m_window->show();
    }
    void cleanup()
    {
        m_window.reset();
        m_print.reset();
        QVERIFY(BackgroundWork::waitForAll(std::chrono::seconds(20)));
    }

    void settings()
    {
        QVariantMap odd{{u"paper"_s, u"B12"_s},
                        {u"margin"_s, 1000},
                        {u"copies"_s, -4},
                        {u"landscape"_s, u"no"_s},
                        {u"printer"_s, 7}};
        const PrintInfo cleaned(odd);
        QVERIFY(PrintInfo::papers().contains(cleaned.paper()));
        QCOMPARE(cleaned.margin(), 50.0);
        QCOMPARE(cleaned.copies, 1);
        QCOMPARE(cleaned.layout.orientation(), QPageLayout::Portrait);
        QVERIFY(cleaned.printer.isNull());
        QVariantMap stored{{u"paper"_s, u"Legal"_s},      {u"landscape"_s, true},
                           {u"margin"_s, 20.0},           {u"copies"_s, 3},
                           {u"headerAndFooter"_s, false}, {u"printer"_s, u"Office"_s}};
        QCOMPARE(PrintInfo(stored).settings(), stored);
        QCOMPARE(PrintInfo(stored).layout.fullRect(QPageLayout::Point).size(), QSizeF(1008, 612));
    }

    /// Of the bodies that come while the page works on one, the last counts.
    void updatesBody()
    {
        std::unique_ptr<QVPrintViewController> controller(
            QVPrintViewController::printViewControllerWithView(nullptr));
        m_print->setPrintViewController(controller.get());
        QSignalSpy redrawn(controller.get(), &QVPrintViewController::dummyValueChanged);
        for (const char *body : {"it's", "b\n", "c", "d"})
            m_print->updateHTMLString(QString::fromLatin1(body));
        QTRY_COMPARE(m_view->bodies, QStringList({u"document.body.innerHTML = 'it\\'s';"_s,
                                                  u"document.body.innerHTML = 'd';"_s}));
        QTRY_COMPARE(redrawn.size(), 2);
        QVERIFY(!controller->dummyValue()); // flipped twice
    }

    void waitsForTheLoad()
    {
        m_view->loadDelayMs = 120;
        QVERIFY(m_print->setHTMLString(u"<p>"_s));
        QCOMPARE(m_view->html, u"<p>"_s);
        QVERIFY(m_print->setHTMLString(QString()));
        QCOMPARE(m_view->loads, 1); // no text, no load
        m_view->loadDelayMs = 1000000;
        QTimer::singleShot(20, m_print.get(), [this] { m_print->cancelLoading(); });
        QVERIFY(!m_print->setHTMLString(u"<b>"_s));
        QVERIFY(!m_print->isLoading());
    }

    void savesPdf()
    {
        const QString path = m_home.path(u"out.pdf"_s);
        auto *const panel = new PrintPanel(*m_print, {}, m_window.get());
        PrintInfo info;
        info.setPaper(u"A5"_s);
        panel->setPrintInfo(info);
        QCOMPARE(m_print->printView()->window(), static_cast<QWidget *>(panel));
        QSignalSpy ended(panel, &PrintPanel::ended);
        panel->open();
        panel->printTo(path);
        QVERIFY(ended.wait(10000));
        QCOMPARE(contentOf(path), QByteArray("%PDF <p>A5"));
        QVERIFY(ended.at(0).at(0).toBool());
        QTRY_VERIFY(!m_print->isPrintViewTaken());
    }

    /// A cancelled operation leaves the panel, and what was in the file.
    void cancels()
    {
        const QString path = m_home.addFile(u"kept.pdf"_s, "before");
        m_pdfIsSlow = true;
        auto *const panel = new PrintPanel(*m_print, {}, m_window.get());
        panel->open();
        panel->printTo(path);
        auto *const operation = panel->findChild<PrintOperation *>();
        QVERIFY(operation && operation->isRunning());
        operation->cancel();
        QVERIFY(panel->isVisible());
        QVERIFY(BackgroundWork::waitForAll(std::chrono::seconds(20)));
        QCOMPARE(contentOf(path), QByteArray("before"));
        panel->reject();
    }

    void tellsOfFailure()
    {
        m_pdfFailure = u"No paper."_s;
        auto *const panel = new PrintPanel(*m_print, {}, m_window.get());
        QSignalSpy ended(panel, &PrintPanel::ended);
        panel->open();
        panel->printTo(m_home.path(u"no.pdf"_s));
        QTRY_VERIFY(!panel->findChild<PrintOperation *>());
        QVERIFY(panel->isVisible() && ended.isEmpty());
        panel->reject();
        QVERIFY(!ended.at(0).at(0).toBool() && !QFile::exists(m_home.path(u"no.pdf"_s)));
    }

    /// The pages go to the printing system's own program.
    void handsToPrinter()
    {
        const QString log = m_home.path(u"lp.log"_s);
        QFile program(
            m_home.addFile(u"bin/lp"_s, "#!/bin/sh\n{ echo \"$@\"; cat; } >'" + log.toUtf8() +
                                            "'\ncase \"$*\" in *Broken*) echo jam >&2; exit 1;; esac\n"));
        QVERIFY(program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(m_home.path(u"bin"_s)) + ':' + path);
        for (const QString &printer : {u"Office"_s, u"Broken"_s}) {
            PrintInfo info;
            info.setPaper(u"A3"_s);
            info.printer = printer;
            info.copies = 2;
            info.jobTitle = u"It's"_s;
            PrintOperation *const operation = m_print->printOperationWithPrintInfo(info, m_window.get());
            QString message;
            bool isDone = false;
            connect(operation, &PrintOperation::finished, this, [&](const Result<void> &printed) {
                isDone = true;
                message = printed.message();
            });
            operation->run();
            QTRY_VERIFY(isDone);
            QCOMPARE(contentOf(log), "-s -d " + printer.toUtf8() + " -n 2 -t It's -o media=A3\n%PDF <p>A3");
            QCOMPARE(message.contains(u"jam"_s), printer == u"Broken"_s);
        }
        qputenv("PATH", path);
    }

    /// Ticks and settings reach the report at once, and settings of elsewhere reach the boxes.
    void options()
    {
        ScriptedDocumentInterface interface;
        MyDocument document(interface, {});
        UserDefaults defaults(QString(), UserDefaults::Access::Volatile);
        MarkerPresets presets(document, &defaults);
        ReportGenerator report(document, presets, &defaults, QString());
        auto row = std::make_shared<RowRecord>();
        row->set(MarkerKey::name, u"Cut"_s);
        document.rowView(Tab::Markers).show({row});
        report.setPrintTable(
            Tab::Markers,
            {{u"name"_s, u"Name"_s},
             {.identifier = u"chapter"_s, .title = u"Chapter"_s, .kind = Column::Kind::CheckBox},
             {u"clip"_s, u"Clip"_s},
             {u"sequence"_s, u"Sequence"_s}});
        QStringList bodies;
        report.setBodyConsumer([&bodies](const QString &body) { bodies.append(body); });
        ReportOptions options(report, defaults, u"File"_s, nullptr);
        auto *const model = options.findChild<QListView *>()->model();
        QCOMPARE(model->rowCount(), 4);
        QCOMPARE(model->index(3, 0).data().toString(), u"Sequence"_s);
        QCOMPARE(model->index(3, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
        QVERIFY(model->setData(model->index(3, 0), Qt::Checked, Qt::CheckStateRole));
        QVERIFY(model->setData(model->index(1, 0), Qt::Unchecked, Qt::CheckStateRole));
        QCOMPARE(bodies.size(), 2);
        QVERIFY(bodies.at(1).contains(u"<th>Name</th><th>Clip</th><th>Sequence</th></thead>"_s));
        auto *const title = options.findChild<QLineEdit *>();
        QCOMPARE(title->placeholderText(), u"File"_s);
        QTest::keyClicks(title, u"T2"_s);
        QTRY_COMPARE(defaults.string(u"projectTitle"_s), u"T2"_s);
        QVERIFY(bodies.constLast().startsWith(u"<h1>T2</h1>"_s));
        title->selectAll();
        QTest::keyClick(title, Qt::Key_Backspace);
        QTRY_VERIFY(defaults.value(u"projectTitle"_s).isNull());
        auto *const labels = options.findChild<QCheckBox *>();
        labels->click();
        QVERIFY(bodies.constLast().contains(u"Cut (Red)"_s));
        defaults.setValue(u"printColorLabels"_s, 0);
        QVERIFY(!labels->isChecked());
    }

private:
    const TemporaryHome m_home;
    FakeWebView *m_view = nullptr;
    std::atomic<bool> m_pdfIsSlow = false;
    QString m_pdfFailure; // while no operation runs
    std::unique_ptr<QVPrint> m_print;
    std::unique_ptr<QWidget> m_window;
};

QTEST_MAIN(TestPrinting)
#include "tst_printing.moc"
