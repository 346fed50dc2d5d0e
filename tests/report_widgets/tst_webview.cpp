#include "report/ReportTable.h"
#include "report/widgets/PrintOperation.h"
#include "report/widgets/QVPrint.h"
#include "support/threads/BackgroundWork.h"
#include "tests/support/TemporaryHome.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

using namespace vantrell;
using namespace Qt::StringLiterals;

namespace
{

QString table(int rows, const QString &name)
{
    QString text = u"<h1>Reel</h1><table><thead><th>Name</th></thead><tbody>"_s;
    for (int i = 0; i < rows; ++i)
        text +=
            u"<tr><td>%1 %2</td><td>01:00:00:00</td><td>a comment of some length</td></tr>"_s.arg(name).arg(
                i);
    return text + u"</tbody></table>"_s;
}

QString document(const QString &body)
{
    return u"<html><head><style>td {padding:7px;}</style></head><body>"_s + body + u"</body></html>"_s;
}

QByteArray output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished(40000) ? process.readAllStandardOutput() : QByteArray();
}

} // namespace

/// The plug-in itself, as the window loads it.
class TestWebView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const Result<QVPrint *> print = QVPrint::sharedController(ReportImages::standardFolder());
        QVERIFY2(print, qPrintable(print.message()));
        m_print = print.value();
        QCOMPARE(QVPrint::sharedController(QString()).value(), m_print);
        m_controller.reset(QVPrintViewController::printViewControllerWithView(nullptr));
        m_print->setPrintViewController(m_controller.get());
    }

    void cleanupTestCase() { m_print->setPrintViewController(nullptr); }

    /// Whole documents one after the other, and of a size that no address could hold.
    void showsDocuments()
    {
        QVERIFY(m_print->setHTMLString(document(u"<p>one</p>"_s)));
        QCOMPARE(m_print->htmlSource(), u"<p>one</p>"_s);
        const QString large(3'000'000, u'x');
        QVERIFY(m_print->setHTMLString(document(large)));
        QCOMPARE(m_print->htmlSource(), large);
        QVERIFY(m_print->setHTMLString(QString())); // no text: the page stays
        QCOMPARE(m_print->htmlSource(), large);
        QVERIFY(m_print->setHTMLString(document(u"<p>zwei – два</p>"_s)));
        QCOMPARE(m_print->htmlSource(), u"<p>zwei – два</p>"_s);
    }

    void replacesBody()
    {
        const struct {
            const char *body;
            const char *source;
        } rows[] = {
            {"<p>it's</p>", "<p>it's</p>"},
            {"<p>a\n\tb\r</p>", "<p>ab</p>"},
            {R"(<p>c:\new</p>)", "<p>c:\new</p>"}, // a backslash acts on what follows it
        };
        for (const auto &row : rows) {
            m_print->updateHTMLString(QString::fromUtf8(row.body));
            QCOMPARE(m_print->htmlSource(), QString::fromUtf8(row.source));
        }
    }

    /// What a user waits for after a tick or a letter.
    void followsWithin100ms()
    {
        QVERIFY(m_print->setHTMLString(document(table(1000, u"Marker"_s))));
        QSignalSpy redrawn(m_controller.get(), &QVPrintViewController::dummyValueChanged);
        qint64 quickest = 1000000;
        for (int i = 0; i < 5; ++i) {
            QElapsedTimer time;
            time.start();
            redrawn.clear();
            m_print->updateHTMLString(table(1000, u"Take %1"_s.arg(i)));
            QVERIFY(!redrawn.isEmpty() || redrawn.wait(10000));
            quickest = std::min(quickest, time.elapsed());
        }
        QVERIFY2(quickest < 100, qPrintable(QString::number(quickest)));
    }

    void makesPdf()
    {
        QVERIFY(m_print->setHTMLString(document(table(200, u"Märker"_s))));
        PrintInfo info;
        info.setPaper(u"A4"_s);
        info.layout.setOrientation(QPageLayout::Landscape);
        info.file = m_home.path(u"out.pdf"_s);
        PrintOperation *const operation = m_print->printOperationWithPrintInfo(info, this);
        QSignalSpy finished(operation, &PrintOperation::finished);
        operation->run();
        QVERIFY(finished.wait(40000));
        const QByteArray facts = output(u"pdfinfo"_s, {info.file});
        QVERIFY2(facts.contains("Reel") && facts.contains("841.92 x 594.96"), facts.constData());
        QVERIFY(output(u"pdftotext"_s, {info.file, u"-"_s}).contains("Märker 199"));
        delete operation;
    }

    /// Nothing is written, and what is shown, with its new body, stays.
    void cancelsPdf()
    {
        QVERIFY(m_print->setHTMLString(document(table(20000, u"A"_s))));
        m_print->updateHTMLString(u"<p>body</p>"_s + table(20000, u"B"_s));
        QVERIFY(m_print->htmlSource().startsWith(u"<p>body</p>"_s));
        PrintInfo info;
        info.file = m_home.path(u"never.pdf"_s);
        PrintOperation *const operation = m_print->printOperationWithPrintInfo(info, this);
        QSignalSpy finished(operation, &PrintOperation::finished);
        operation->run();
        QTest::qWait(600); // it lays out the pages
        QElapsedTimer time;
        time.start();
        operation->cancel();
        QVERIFY(time.elapsed() < 500);
        QCOMPARE(finished.size(), 1);
        QVERIFY(m_print->htmlSource().startsWith(u"<p>body</p>"_s));
        QVERIFY(BackgroundWork::waitForAll(std::chrono::seconds(20)));
        QVERIFY(!QFile::exists(info.file));
        delete operation;
    }

private:
    const TemporaryHome m_home;
    std::unique_ptr<QVPrintViewController> m_controller;
    QVPrint *m_print = nullptr;
};

QTEST_MAIN(TestWebView)
#include "tst_webview.moc"
