#include "support/UserDefaults.h"
#include "tests/support/CliRun.h"
#include "tests/support/TemporaryHome.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace vantrell;

namespace
{

const QByteArray project =
    "<xmeml version=\"5\"><project><children><sequence id=\"s\"><uuid>A</uuid><name>S</name>"
    "<timecode><rate><timebase>25</timebase></rate></timecode></sequence></children>"
    "</project></xmeml>";
const QByteArray addMarker = R"([{"op":"addFrames","name":"new","in":1,"out":2}])";

} // namespace

class SendTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

    static QString text(const char *latin1) { return QString::fromLatin1(latin1); }

    void installEditor()
    {
        m_home.addFile(text("apps/F.app/Contents/Info.plist"),
                       "<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key>"
                       "<string>com.apple.FinalCutPro</string></dict></plist>");
    }

private Q_SLOTS:
    void init()
    {
        QDir(m_home.path(text("apps"))).removeRecursively();
        UserDefaults::standard().setValue(text("applicationsFolder"), m_home.path(text("apps")));
        UserDefaults::standard().synchronize();
    }

    /// Where no editing application runs.
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
