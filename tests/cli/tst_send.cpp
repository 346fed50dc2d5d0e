#include "support/settings/UserDefaults.h"
#include "tests/support/ApplicationBundle.h"
#include "tests/support/CliRun.h"
#include "tests/support/FcpHost.h"
#include "tests/support/TemporaryHome.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlDocument.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <thread>
#include <vector>

using namespace vantrell;

namespace
{

const QString name = QStringLiteral("é\U0001F3AC & 片");
const QByteArray project =
    "<xmeml version=\"5\"><project><children><sequence id=\"s\"><uuid>A</uuid><name>é\xF0\x9F\x8E\xAC &amp; "
    "片"
    "</name><comment>é\xF0\x9F\x8E\xAC &amp; "
    "片</comment><timecode><rate><timebase>25</timebase></rate></timecode></sequence></children>"
    "</project></xmeml>";
const QByteArray addMarker = R"([{"op":"addFrames","name":"new","in":1,"out":2}])";

} // namespace

class SendTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

    static QString text(const char *latin1) { return QString::fromLatin1(latin1); }

    void installEditor() { addBundle(m_home, text("apps/F.app"), "com.apple.FinalCutPro"); }

private Q_SLOTS:
    void init()
    {
        QDir(m_home.path(text("apps"))).removeRecursively();
        UserDefaults::standard().setValue(text("applicationsFolder"), m_home.path(text("apps")));
        UserDefaults::standard().synchronize();
    }

    /// Without a running editing application.
    void withoutAnApplication_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<bool>("isInstalled");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("messages"); // the last line of standard error
        const QStringList script = {text("--script"), text("-")};
        QTest::newRow("nothing changed")
            << text("p.xml") << QStringList() << false << 1
            << QByteArray(
                   "No changes to send to Final Cut Pro: Vantrell only sends modified sequences to Final "
                   "Cut Pro and no sequences have been changed yet.");
        QTest::newRow("nobody there")
            << text("p.xml") << script << false << 1
            << QByteArray("Unable to send to Final Cut Pro: An error occurred while "
                          "sending data.");
        QTest::newRow("to Premiere Pro") // which tells nothing of itself
            << text("p.xml") << QStringList{text("--premiere")} << false << 0
            << QByteArray("Project successfully sent to Premiere Pro: A duplicate project has been created.");
        QTest::newRow("not installed")
            << text("p.fcp") << script << false << 1
            << QByteArray("Unable to load project: Final Cut Pro 7 is not installed on this system.");
        QTest::newRow("gives no project")
            << text("p.fcp") << script << true << 1
            << QByteArray("vantrell-cli: Final Cut Pro gave no XML of the project.");
    }
    void withoutAnApplication()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, options);
        QFETCH(bool, isInstalled);
        if (isInstalled)
            installEditor();
        const QString path = m_home.addFile(text("projects/") + file, project);
        const CliRun run = runCli(QStringList{text("send"), path} + options, addMarker);
        QTEST(run.status, "status");
        QTEST(run.messages.trimmed().split('\n').last(), "messages");
        QCOMPARE(run.output, QByteArray());
        QCOMPARE(contentOf(path), project);
        QCOMPARE(QDir(m_home.path(text("projects"))).entryList({text("*-Vantrell*")}), QStringList());
    }

    /// Between processes: fetched from the application, changed, sent, and read back from its file.
    void betweenProcesses_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("hostOptions"); // "%" is the file
        QTest::addColumn<QString>("events");
        QTest::newRow("a project by its name")
            << text("p.fcp") << QStringList{text("%")} << text("eXML iXML");
        QTest::newRow("open under another name")
            << text("p.xml") << QStringList{text("%")} << text("eXML iXML");
        QTest::newRow("known to it") << text("p.fcp") << QStringList{text("--closed"), text("%")}
                                     << text("odoc eXML iXML");
    }
    void betweenProcesses()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, hostOptions);
        const QString path = m_home.addFile(text("projects/") + file, project);
        QVERIFY(FcpHost::installBundle(m_home.path(text("apps"))));
        FcpHost host(m_home);
        QVERIFY(host.start(hostOptions.replaceInStrings(text("%"), path)));
        const CliRun run = runCli({text("send"), path, text("--script"), text("-")}, addMarker);
        QCOMPARE(run.messages,
                 QByteArray("Changes successfully sent to Final Cut Pro: Sequences have been duplicated and "
                            "placed inside the Vantrell bin.\n"));
        QCOMPARE(run.status, 0);
        QTEST(host.events(), "events");

        const auto saved = XmlDocument::fromFile(path, {false, nullptr});
        QVERIFY2(saved, qPrintable(saved.message()));
        const XmlNode children =
            QVXMLParser::nodeForQuery(text("./xmeml/project/children"), saved.value()->node());
        const XmlNode original = children.childElement("sequence");
        QCOMPARE(original.attribute("id"), text("s"));
        QCOMPARE(original.childElement("name").stringValue(), name);
        QVERIFY(!original.childElement("marker"));
        const XmlNode bin = children.childElement("bin");
        QCOMPARE(bin.childElement("name").stringValue(), text("Vantrell"));
        const XmlNode sent = bin.childElement("children").childElement("sequence");
        QCOMPARE(sent.attribute("id"), text("s-Processed"));
        QCOMPARE(sent.childElement("name").stringValue(), text("s-Processed"));
        QVERIFY(sent.childElement("uuid").stringValue() != text("A"));
        QCOMPARE(sent.childElement("comment").stringValue(), name); // every character of it
        QCOMPARE(sent.childElement("marker").childElement("name").stringValue(), text("new"));
    }

    void severalProcessesAtOnce()
    {
        const QString path = m_home.addFile(text("projects/p.fcp"), project);
        QVERIFY(FcpHost::installBundle(m_home.path(text("apps"))));
        FcpHost host(m_home);
        QVERIFY(host.start({path}));
        std::vector<CliRun> runs(3);
        std::vector<std::thread> threads;
        threads.reserve(runs.size());
        for (CliRun &run : runs)
            threads.emplace_back([&] {
                run = runCli({text("send"), path, text("--script"), text("-")}, addMarker);
            });
        for (std::thread &thread : threads)
            thread.join();
        for (const CliRun &run : runs)
            QCOMPARE(run.status, 0);
        const auto saved = XmlDocument::fromFile(path, {false, nullptr});
        const auto bins =
            QVXMLParser::nodesForQuery(text(".//bin/children/sequence/marker"), saved.value()->node());
        QVERIFY2(bins.value_or(XmlNodeList()).size() == std::size_t(3), contentOf(path).constData());
    }

    void withAnApplicationThatFails_data()
    {
        QTest::addColumn<QStringList>("hostOptions");
        QTest::addColumn<QByteArray>("message"); // the last line of standard error
        const QByteArray failed("Unable to send to Final Cut Pro: An error occurred while sending data.");
        const QByteArray none("vantrell-cli: Final Cut Pro gave no XML of the project.");
        QTest::newRow("refuses the import") << QStringList{text("--fail"), text("iXML")} << failed;
        QTest::newRow("exports nothing") << QStringList{text("--fail"), text("eXML")} << none;
    }
    void withAnApplicationThatFails()
    {
        QFETCH(QStringList, hostOptions);
        const QString path = m_home.addFile(text("projects/p.fcp"), project);
        QVERIFY(FcpHost::installBundle(m_home.path(text("apps"))));
        FcpHost host(m_home);
        QVERIFY(host.start(hostOptions + QStringList{path}));
        const CliRun run = runCli({text("send"), path, text("--script"), text("-")}, addMarker);
        QCOMPARE(run.status, 1);
        QTEST(run.messages.trimmed().split('\n').last(), "message");
        QCOMPARE(contentOf(path), project);
    }

    void projectsOfTheApplicationForOtherSubcommands()
    {
        const QString path = m_home.addFile(text("projects/p.fcp"), project);
        QVERIFY(FcpHost::installBundle(m_home.path(text("apps"))));
        FcpHost host(m_home);
        QVERIFY(host.start({path}));
        QCOMPARE(runCli({text("load"), path}).output,
                 QByteArray("{\"xmlType\":0,\"sequences\":1,\"media\":0,\"effects\":0,\"markers\":0}\n"));
        const QString output = m_home.path(text("out.xml"));
        QCOMPARE(
            runCli({text("edit"), path, text("--script"), text("-"), text("-o"), output}, addMarker).status,
            0);
        QVERIFY(contentOf(output).contains("<name>new</name>"));
        QCOMPARE(runCli({text("send"), path}).status, 1); // nothing was changed
        QCOMPARE(host.events(), text("eXML eXML eXML"));
        QCOMPARE(contentOf(path), project);
    }

    void wrongScripts()
    {
        const QString path = m_home.addFile(text("p.xml"), project);
        for (const char *script : {"{}", R"([{"op":"none"}])", R"([{"op":"remove","rows":[7]}])"}) {
            const CliRun run = runCli({text("send"), path, text("--script"), text("-")}, script);
            QCOMPARE(run.status, 1);
            QVERIFY(run.messages.startsWith("vantrell-cli: "));
            QVERIFY(!run.messages.contains("Final Cut Pro"));
        }
        QCOMPARE(runCli({text("send")}).status, 2);
    }
};

QTEST_GUILESS_MAIN(SendTest)
#include "tst_send.moc"
