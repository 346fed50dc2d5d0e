#include "bridge/QVAppleEvents.h"
#include "support/log/QVLog.h"
#include "tests/support/CapturedStandardError.h"
#include "tests/support/FcpHost.h"
#include "tests/support/TemporaryHome.h"

#include <QElapsedTimer>
#include <QTest>

#include <functional>
#include <memory>
#include <thread>

using namespace vantrell;

/// Calls an operation for a project's path; returns whether it reported failure.
using Operation = std::function<bool(const QString &)>;
Q_DECLARE_METATYPE(Operation)

namespace
{

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

} // namespace

/// How the program copes with an application that is killed during each event.
class KilledHostTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TemporaryHome> m_home;

private Q_SLOTS:
    void init()
    {
        m_home.reset();
        m_home = std::make_unique<TemporaryHome>();
        QVLog::createNewLog(text("Test"), true);
    }
    void cleanupTestCase()
    {
        QVLog::willTerminate();
        m_home.reset();
    }

    void reportsFailure_data()
    {
        QTest::addColumn<Operation>("fails");
        QTest::addColumn<QList<QByteArray>>("messages");
        using Q = QVAppleEvents;
        const QByteArray sending = "Error sending AppleEvent";
        const QList<QByteArray> noData = {
            sending, "Unable to communicate with Final Cut Pro. Please make sure it is running."};
        const auto row = [](const char *event, const Operation &fails, const QList<QByteArray> &messages) {
            QTest::newRow(event) << fails << messages;
        };
        row("fcLP", [](const QString &) { return Q::listOfOpenFCPProjects() == QStringList(); }, {sending});
        row("iXML", [](const QString &path) { return !Q::sendXMLToFCP(text("<xmeml><bin/></xmeml>"), path); },
            {sending + ": -"});
        row(
            "eXML", [](const QString &path) { return !Q::getProjectXMLData(path, false); }, noData);
        row(
            "gXML", [](const QString &path) { return !Q::getItemXMLData(text("s"), path, false); }, noData);
        row(
            "eTCX", [](const QString &path) { return !Q::getTOCData(path, false); }, noData);
        row("sfcP", [](const QString &path) { return !Q::saveProject(path); }, {sending});
        // These have no result.
        row("fcOI",
            [](const QString &path) {
                Q::openItem(text("s"), path, false);
                return true;
            },
            {sending});
        row("cfcP",
            [](const QString &path) {
                Q::closeProject(path, true);
                return true;
            },
            {sending});
    }
    void reportsFailure()
    {
        QFETCH(Operation, fails);
        QFETCH(QList<QByteArray>, messages);
        const QByteArray project = "<xmeml><sequence id=\"s\"/></xmeml>";
        const QString path = m_home->addFile(text("p.xml"), project);
        FcpHost host(*m_home);
        // Long enough to kill the host during the event, also when a list event comes first.
        QVERIFY(host.start({text("--delay"), text("3"), path}));
        const QString event = text(QTest::currentDataTag());
        bool hasFailed = false;
        QByteArray said;
        QElapsedTimer sinceKilled;
        {
            CapturedStandardError captured;
            std::thread sender([&] { hasFailed = fails(path); });
            const bool isMet = QTest::qWaitFor([&] { return host.allEvents().contains(event); }, 40000);
            host.kill();
            sinceKilled.start();
            sender.join();
            said = captured.text();
            QVERIFY(isMet);
        }
        QVERIFY2(sinceKilled.elapsed() < 5000, qPrintable(QString::number(sinceKilled.elapsed())));
        QVERIFY(hasFailed);
        for (const QByteArray &message : std::as_const(messages))
            QVERIFY2(said.contains(message), said.constData());
        QVERIFY(!QVAppleEvents::isFCPRunning());
        QCOMPARE(contentOf(path), project);
    }
};

QTEST_GUILESS_MAIN(KilledHostTest)
#include "tst_killedhost.moc"
