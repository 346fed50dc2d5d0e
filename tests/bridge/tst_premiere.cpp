#include "bridge/QVPremiereEvents.h"
#include "support/alerts/QVAlert.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/MainThread.h"
#include "tests/support/ApplicationBundle.h"
#include "tests/support/CapturedStandardError.h"
#include "tests/support/LogLines.h"
#include "tests/support/RunningProgram.h"
#include "tests/support/ScriptedAlertPresenter.h"

#include <QElapsedTimer>
#include <QTest>

#include <atomic>
#include <memory>
#include <thread>

using namespace vantrell;

namespace
{

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

const QByteArray scriptFor60 = R"text(#target "premierepro-6.0"

BridgeTalk.prototype.sendSync = function(timeout) {
var self = this;self.onResult = function(res) {
this.result = res.body;
this.complete = true;
}self.complete = false;
self.send();

if (timeout) {
for (var i = 0; i < timeout; i++) {
BridgeTalk.pump(); // process any outstanding messages
if (!self.complete) {
$.sleep(1000);
} else {
break;
}
}
}

var res = self.result;
self.result = self.complete = self.onResult = undefined;
return res;
};var bt = new BridgeTalk;
bt.target = "premierepro-6.0"
bt.body = "app.openFCPXML('/a b/Cut "1"é.xml')";bt.onResult = function(obj) {
};
bt.sendSync(90);)text";

constexpr std::chrono::minutes aMinute{1};

} // namespace

class PremiereTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TemporaryHome> m_home;
    std::shared_ptr<ScriptedAlertPresenter> m_alerts;

    QString path(const QString &relative) const { return m_home->path(relative); }

    /// An installation with that configuration, or with the product version.
    void configure(const char *folder, const QByteArray &configuration)
    {
        m_home->addFile(text("apps/%1/Configuration/XManConfig.xml").arg(text(folder)), configuration);
    }
    void install(const char *folder, const QByteArray &version)
    {
        configure(folder, "<Configuration><VariableForExMan><Data key=\"Name\">x</Data>"
                          "<Data key=\"ProductVersion\">" +
                              version + "</Data></VariableForExMan></Configuration>");
    }

    /// Writes the application's bundle; returns the path for its executable.
    QString installBundle(const QByteArray &version)
    {
        const QString bundle = text("apps/Adobe Premiere Pro CS6/Adobe Premiere Pro CS6.app");
        const QByteArray versionKey = "<key>CFBundleVersion</key><string>" + version + "</string>";
        addBundle(*m_home, bundle, "com.adobe.AdobePremierePro",
                  "<key>CFBundleExecutable</key><string>Premiere</string>" +
                      (version.isEmpty() ? QByteArray() : versionKey));
        return path(bundle + text("/Contents/MacOS/Premiere"));
    }

    /// The opener records its arguments and the script, then runs the commands.
    void setOpener(const QByteArray &commands = {})
    {
        const QByteArray arguments = path(text("arguments")).toUtf8();
        const QByteArray script = path(text("script")).toUtf8();
        QVPremiereEvents::setOpenProgram(addShellScript(*m_home, text("opener"),
                                                        "printf '%s\\n' \"$@\" >> '" + arguments +
                                                            "'\ncat \"$6\" > '" + script + "'\n" + commands));
    }

    QStringList arguments() const
    {
        return QString::fromUtf8(contentOf(path(text("arguments")))).split(QLatin1Char('\n'));
    }

    QString scriptFolder() const { return path(text("Documents/Adobe Scripts")); }

    QStringList scriptsLeft() const { return QDir(scriptFolder()).entryList(QDir::Files); }

    static void waitNoLonger(std::chrono::milliseconds script = aMinute)
    {
        QVPremiereEvents::Waits waits;
        waits.launch = waits.opened = waits.exported = std::chrono::milliseconds(0);
        waits.script = script;
        QVPremiereEvents::setWaits(waits);
    }

private Q_SLOTS:
    void init()
    {
        m_home.reset(); // puts the environment back
        m_home = std::make_unique<TemporaryHome>();
        QVLog::createNewLog(text("Test"), true);
        QDir().mkpath(path(text("apps")));
        UserDefaults::standard().setValue(text("applicationsFolder"), path(text("apps")));
        UserDefaults::standard().setValue(text("adminApplicationsFolder"), path(text("admin")));
        m_alerts = std::make_shared<ScriptedAlertPresenter>();
        QVAlert::setPresenter(m_alerts);
        waitNoLonger();
        setOpener();
    }

    void cleanup()
    {
        QVAlert::setPresenter(nullptr);
        QVPremiereEvents::setOpenProgram({});
        QVPremiereEvents::setWaits({});
        for (const char *key : {"applicationsFolder", "adminApplicationsFolder"})
            UserDefaults::standard().removeValue(text(key));
    }

    void installedVersions()
    {
        QVERIFY(QVPremiere::premiereVersions().isEmpty());
        install("Adobe Premiere Pro CS6", "6.0");
        install("adobe premiere Pro CS5.5", "5.5");
        install("Adobe Premiere Elements", "10.0.1");
        install("Some Adobe Premiere", "1.0");
        configure("Adobe Premiere Pro CS3", "<Configuration><VariableForExMan/></Configuration>");
        configure("Adobe Premiere Pro CS4", "<Configuration><VariableForExMan>");
        m_home->addFile(text("apps/Adobe Premiere Pro CS2.txt"), "");
        QCOMPARE(QVPremiere::premiereVersions().join(QLatin1Char(' ')), text("10.0.1 6.0 5.5"));
        QCOMPARE(QVPremiere::creativeSuiteNumber(text("6.0")), text("6"));
        QCOMPARE(QVPremiere::creativeSuiteNumber(text("5.5")), text("5.5"));
        QCOMPARE(QVPremiere::creativeSuiteNumber(text("10.0.1")), text("10.0.1"));
    }

    void runningVersion_data()
    {
        QTest::addColumn<QByteArray>("bundleVersion");
        QTest::addColumn<QString>("version");
        QTest::newRow("three components") << QByteArray("6.0.5") << text("6.0");
        QTest::newRow("two") << QByteArray("5.5") << text("5.5");
        QTest::newRow("one") << QByteArray("6") << QString();
        QTest::newRow("none") << QByteArray() << QString();
    }
    void runningVersion()
    {
        QFETCH(QByteArray, bundleVersion);
        QVERIFY(QVPremiere::runningPremiereVersion().isNull()); // nothing runs
        const QString program = installBundle(bundleVersion);
        QVERIFY(makeSleeper(program));
        const RunningProgram running(program, {text("60")});
        QVERIFY(running.hasStarted());
        QTEST(QVPremiere::runningPremiereVersion(), "version");
        QFETCH(QString, version);
        QCOMPARE(logLines(*m_home, {text("Unknown Premiere version.")}).size(), qsizetype(version.isNull()));
    }

    void script()
    {
        QCOMPARE(
            QVPremiereEvents::scriptText(QStringLiteral("app.openFCPXML('/a b/Cut \"1\"é.xml')"), text("6.0"))
                .toUtf8(),
            scriptFor60);
    }

    void commands_data()
    {
        QTest::addColumn<int>("operation");
        QTest::addColumn<QByteArray>("body");
        QTest::newRow("import") << 0 << QByteArray("app.openFCPXML('/x.xml')");
        QTest::newRow("export") << 1 << QByteArray("app.project.exportFinalCutProXML('/x.xml')");
        QTest::newRow("open") << 2 << QByteArray("app.openDocument('/x.xml')");
    }
    /// With 5.5 and 6.0 installed and the latter running.
    void commands()
    {
        install("Adobe Premiere Pro CS5.5", "5.5");
        install("Adobe Premiere Pro CS6", "6.0");
        const QString program = installBundle("6.1.2");
        QVERIFY(makeSleeper(program));
        const RunningProgram running(program, {text("60")});
        m_home->addFile(text("Documents/Adobe Scripts/QV_Script.jsx"), "somebody else's");
        m_alerts->queueAnswer(1);
        CapturedStandardError systemLog;
        QFETCH(int, operation);
        const QString file = text("/x.xml");
        if (operation == 0)
            QVPremiereEvents::openFCPXML(file);
        else if (operation == 1)
            QVPremiereEvents::exportFCPXML(file);
        else
            QVPremiereEvents::openProject(file);
        QCOMPARE(systemLog.text(), QByteArray("start\nend\n"));
        QCOMPARE(arguments(),
                 (QStringList{text("-W"), text("-g"), text("-n"), text("-a"),
                              path(text("admin/Adobe Utilities-CS6.localized/ExtendScript Toolkit CS6/"
                                        "ExtendScript Toolkit.app")),
                              scriptFolder() + text("/QV_Script 2.jsx"), QString()}));
        QFETCH(QByteArray, body);
        const QByteArray script = contentOf(path(text("script")));
        QVERIFY2(script.contains("\nbt.target = \"premierepro-6.1\"\nbt.body = \"" + body + "\";bt.onResult"),
                 script.constData());
        QVERIFY(script.startsWith("#target \"premierepro-6.1\"\n"));
        QCOMPARE(scriptsLeft(), QStringList(text("QV_Script.jsx")));
        for (const char *number : {"5.5", "6"}) {
            const QString switchFile =
                path(text("apps/Adobe Premiere Pro CS%1/extendscriptprqe.txt").arg(text(number)));
            QVERIFY(QFile::exists(switchFile) && contentOf(switchFile).isEmpty());
        }
        QCOMPARE(m_alerts->shown().size(), std::size_t(1));
        QCOMPARE(m_alerts->shown()[0].text(AlertKey::MessageText), text("Premiere Pro now configured"));
        QCOMPARE(
            m_alerts->shown()[0].text(AlertKey::InformativeText),
            text("Please close and relaunch Adobe Premiere Pro in order to use it with this application."));
        QVERIFY(!m_alerts->shown()[0].parent);
        QVPremiereEvents::createQeObject(); // all is there
        QCOMPARE(m_alerts->shown().size(), std::size_t(1));
    }

    void startsPremiere()
    {
        install("Adobe Premiere Pro CS6", "6.0");
        const QString program = installBundle("6.0");
        addShellScript(*m_home, program.sliced(m_home->path().size() + 1),
                       "touch '" + path(text("started")).toUtf8() + "'\n");
        QVPremiereEvents::openFCPXML(text("/x.xml"), false);
        QCOMPARE(logLines(*m_home, {text("Error: ")}),
                 QStringList(text("Error: Premiere Pro is not running.")));
        QVERIFY(!QFile::exists(path(text("arguments"))));
        QVPremiereEvents::openFCPXML(text("/x.xml"), true);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path(text("started"))), 40000);
        QCOMPARE(arguments().size(), qsizetype(7));
        QVERIFY(contentOf(path(text("script"))).contains("premierepro-6.0\"\nbt.body"));
        QVERIFY(m_alerts->shown().empty()); // it was not running when it was configured
    }

    void failuresAreLogged()
    {
        const QStringList messages = {text("Premiere Pro not found on this computer."),
                                      text("Unable to create qe file: "),
                                      text("Unable to write script file to disk: ")};
        QVPremiereEvents::openFCPXML(text("/x.xml"));
        QCOMPARE(logLines(*m_home, messages), QStringList({messages[0], messages[0]}));
        install("Adobe Premiere Pro", "7.0"); // and no folder with its number
        m_home->addFile(text("Documents/Adobe Scripts"), "no folder");
        QVPremiereEvents::openFCPXML(text("/x.xml"));
        const QStringList lines = logLines(*m_home, messages).mid(2);
        QCOMPARE(lines.size(), 2);
        QVERIFY2(lines[0].startsWith(messages[1]) && lines[0].contains(text("Adobe Premiere Pro CS7")),
                 qPrintable(lines[0]));
        QVERIFY2(lines[1].startsWith(messages[2]) && lines[1].contains(text("QV_Script.jsx")),
                 qPrintable(lines[1]));
        QVERIFY(!QFile::exists(path(text("arguments"))));
    }

    void waitsNoLongerThanItsTime()
    {
        install("Adobe Premiere Pro CS6", "6.0");
        setOpener("exec sleep 60\n");
        waitNoLonger(std::chrono::milliseconds(200));
        QElapsedTimer timer;
        timer.start();
        QVPremiereEvents::openFCPXML(text("/x.xml"));
        QVERIFY(timer.elapsed() < 20000);
        QVERIFY(scriptsLeft().isEmpty());
    }

    /// Cancelled while the Toolkit runs, after the start of Premiere Pro, after an export, and during an
    /// unanswered alert.
    void cancelling_data()
    {
        QTest::addColumn<QString>("waitsFor");
        for (const char *what : {"script", "launch", "export", "alert"})
            QTest::newRow(what) << text(what);
    }
    void cancelling()
    {
        install("Adobe Premiere Pro CS6", "6.0");
        QFETCH(QString, waitsFor);
        const QString program = installBundle("6.0");
        std::unique_ptr<RunningProgram> running;
        if (waitsFor == text("alert")) {
            QVERIFY(makeSleeper(program));
            running = std::make_unique<RunningProgram>(program, QStringList(text("60")));
        }
        if (waitsFor == text("script"))
            setOpener("exec sleep 60\n");
        QVPremiereEvents::Waits waits;
        waits.launch = waits.exported = std::chrono::milliseconds(0);
        if (waitsFor == text("launch"))
            waits.launch = aMinute;
        if (waitsFor == text("export"))
            waits.exported = aMinute;
        QVPremiereEvents::setWaits(waits);
        EventCancel cancel;
        std::atomic<bool> hasEnded = false;
        QElapsedTimer timer;
        timer.start();
        std::thread command([&] {
            QVPremiereEvents::exportFCPXML(text("/x.xml"), true, cancel);
            hasEnded = true;
        });
        const auto hasBegun = [&] {
            if (waitsFor == text("alert"))
                return m_alerts->openCount() == 1;
            if (waitsFor == text("launch"))
                return QFile::exists(path(text("apps/Adobe Premiere Pro CS6/extendscriptprqe.txt")));
            return QFile::exists(path(text("script")));
        };
        const bool began = MainThread::drainUntil(hasBegun, aMinute);
        QVERIFY(!hasEnded);
        cancel.cancel();
        command.join(); // while the main thread does nothing else
        QVERIFY(began);
        QVERIFY(timer.elapsed() < 40000);
        QVERIFY(MainThread::drainUntil([&] { return m_alerts->openCount() == 0; }, aMinute));
        QVERIFY(scriptsLeft().isEmpty());
    }
};

QTEST_GUILESS_MAIN(PremiereTest)
#include "tst_premiere.moc"
