#include "support/desktop/Workspace.h"
#include "support/files/PropertyList.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"
#include "tests/support/RunningProgram.h"
#include "tests/support/TemporaryHome.h"

#include <QtDBus/QDBusConnection>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTest>

#include <atomic>
#include <cstring>
#include <memory>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

using namespace vantrell;

namespace
{

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

void makeExecutable(const QString &path)
{
    QVERIFY(QFile::setPermissions(path, QFile::permissions(path) | QFile::ExeOwner));
}

/// A program that puts its arguments, one a line, into a file, in one step.
QByteArray recorderScript(const QString &output)
{
    return QStringLiteral("#!/bin/sh\nprintf '%s\\n' \"$@\" > '%1.part'\nmv '%1.part' '%1'\n")
        .replace(text("%1"), output)
        .toUtf8();
}

/// Stands in for the file browser of a session.
class FakeFileBrowser : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    QStringList shown;

public Q_SLOTS:
    void ShowItems(const QStringList &uris, const QString &startupId)
    {
        Q_UNUSED(startupId);
        shown += uris;
    }
};

} // namespace

class TestWorkspace : public QObject
{
    Q_OBJECT

    std::unique_ptr<TemporaryHome> m_home;

    QString path(const QString &relative) const { return m_home->path(relative); }

    void makeBundle(const QString &relative, const QString &identifier, const QByteArray &script = {})
    {
        const QString contents = path(text("apps/") + relative + text("/Contents"));
        if (!script.isEmpty())
            makeExecutable(
                m_home->addFile(text("apps/") + relative + text("/Contents/MacOS/Main Program"), script));
        QVERIFY(QDir().mkpath(contents));
        const QVariantMap keys{{text("CFBundleIdentifier"), identifier},
                               {text("CFBundleExecutable"), text("Main Program")}};
        QVERIFY(PropertyList::toFile(keys, contents + text("/Info.plist"), PropertyList::Format::Binary));
    }

private Q_SLOTS:
    void init()
    {
        m_home.reset(); // puts the environment back
        m_home = std::make_unique<TemporaryHome>();
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        QVLog::createNewLog(text("Test"), true);
        UserDefaults::standard().setValue(text("applicationsFolder"), path(text("apps")));
    }

    void cleanup()
    {
        UserDefaults::standard().removeValue(text("applicationsFolder"));
        Workspace::setOpenProgram({});
    }

    void findsInstalledApplications()
    {
        makeBundle(text("Zeta.app"), text("org.example.zeta"));
        makeBundle(text("A Suite/Zeta.app"), text("org.example.zeta"));
        makeBundle(text("A Suite/Inner.app"), text("org.example.inner"));
        makeBundle(text("A Suite/Deep/Deeper.app"), text("org.example.deep"));
        makeBundle(text("Plain Folder"), text("org.example.plain"));
        makeBundle(text("B.app"), text("org.example.twice"));
        makeBundle(text("A.app"), text("org.example.twice"));
        makeBundle(text("Nameless.app"), text(""));
        m_home->addFile(text("apps/Broken.app/Contents/Info.plist"), "<plist><dict><key>");
        m_home->addFile(text("apps/File.app"), "no folder");

        const auto found = [](const char *identifier) {
            return Workspace::applicationPathForBundleIdentifier(text(identifier));
        };
        QCOMPARE(found("org.example.zeta"), path(text("apps/Zeta.app")));
        QCOMPARE(found("org.example.inner"), path(text("apps/A Suite/Inner.app")));
        QCOMPARE(found("org.example.twice"), path(text("apps/A.app")));
        for (const char *absent :
             {"org.example.deep", "org.example.plain", "org.example", "ORG.EXAMPLE.ZETA", ""})
            QCOMPARE(found(absent), QString());
        UserDefaults::standard().removeValue(text("applicationsFolder"));
        QCOMPARE(found("org.example.zeta"), QString());
        QCOMPARE(Workspace::applicationsFolder(), text("/opt"));
        QCOMPARE(Workspace::adminApplicationsFolder(), text("/opt/Utilities"));
    }

    void seesRunningApplications_data()
    {
        QTest::addColumn<QByteArray>("script"); // none: a binary
        const QByteArray wait("sleep 30 & wait\n");
        QTest::newRow("binary") << QByteArray();
        QTest::newRow("script with an option") << QByteArray("#! /bin/sh -u\n" + wait);
        QTest::newRow("script looked up") << QByteArray("#!/usr/bin/env sh\n" + wait);
    }

    void seesRunningApplications()
    {
        QFETCH(QByteArray, script);
        const QString identifier = text("org.example.runner");
        makeBundle(text("Suite/Runner.app"), identifier, script);
        makeBundle(text("Run.app"), text("org.example.run"));
        const QString bundle = path(text("apps/Suite/Runner.app"));
        const QString helper = bundle + text("/Contents/Frameworks/helper");
        const QString executable = bundle + text("/Contents/MacOS/Main Program");
        QVERIFY(makeSleeper(helper));
        if (script.isEmpty())
            QVERIFY(makeSleeper(executable));
        // A process that only reads a file of the bundle.
        RunningProgram reader(text("tail"), {text("-f"), script.isEmpty() ? helper : executable});
        QVERIFY(reader.hasStarted());
        QVERIFY(!Workspace::isRunning(identifier));
        QVERIFY(Workspace::runningApplications().empty());

        RunningProgram helping(helper, {text("30")});
        QVERIFY(Workspace::isRunning(identifier));
        RunningProgram process(executable, {text("30")});
        const auto isMainProgram = [&] { // env takes a moment to become the shell
            const auto applications = Workspace::runningApplications();
            return applications.size() == 1 && applications.front().executablePath == executable &&
                   applications.front().processId == process.id() &&
                   applications.front().bundlePath == bundle;
        };
        QTRY_VERIFY(isMainProgram());
        QVERIFY(!Workspace::isRunning(text("org.example.run")));
        helping.end();
        QVERIFY(Workspace::isRunning(identifier));
        process.end();
        QVERIFY(!Workspace::isRunning(identifier));
    }

    void eventSocketCountsAsRunning()
    {
        const QString identifier = text("com.apple.FinalCutPro");
        QVERIFY(!Workspace::isRunning(identifier));
        const QByteArray name = QFile::encodeName(path(text("run/vantrell/KeyG")));
        QVERIFY(QDir().mkpath(path(text("run/vantrell"))));
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        QVERIFY(static_cast<std::size_t>(name.size()) < sizeof(address.sun_path));
        std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
        const int handle = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        QCOMPARE(::bind(handle, reinterpret_cast<const sockaddr *>(&address), sizeof(address)), 0);
        QVERIFY(!Workspace::isRunning(identifier)); // nobody listens yet
        QCOMPARE(::listen(handle, 1), 0);
        for (int i = 0; i < 4; ++i) // nobody accepts either
            QVERIFY(Workspace::isRunning(identifier));
        QVERIFY(!Workspace::isRunning(text("com.adobe.AdobePremierePro")));
        QCOMPARE(Workspace::runningApplications().size(), std::size_t(1));
        makeBundle(text("Editor.app"), identifier);
        QCOMPARE(Workspace::runningApplications().front().bundlePath, path(text("apps/Editor.app")));
        ::close(handle);
        QVERIFY(!Workspace::isRunning(identifier)); // the file is still there
    }

    void opensFiles()
    {
        const QString output = path(text("opened"));
        makeExecutable(m_home->addFile(text("opener"), recorderScript(output)));
        Workspace::setOpenProgram(path(text("opener")));
        const QString file = m_home->addFile(text("-a 'film'.mov"), "x");
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_home->path()));
        const bool hasStarted = Workspace::openFile(text("-a 'film'.mov"));
        QVERIFY(QDir::setCurrent(before));
        QVERIFY(hasStarted);
        QTRY_COMPARE(contentOf(output), QFile::encodeName(file) + '\n');

        QVERIFY(!Workspace::openFile(path(text("absent.mov"))));
        QVERIFY(!Workspace::openFile({}));
        Workspace::setOpenProgram(path(text("no opener")));
        QVERIFY(!Workspace::openFile(file));
    }

    void startsApplications()
    {
        const QString output = path(text("started"));
        makeBundle(text("Player.app"), text("org.example.player"), recorderScript(output));
        makeBundle(text("Empty.app"), text("org.example.empty"));
        const QString file = m_home->addFile(text("a film.mov"), "x");

        QVERIFY(Workspace::openWithApplication(text("org.example.player"), file));
        QTRY_COMPARE(contentOf(output), QFile::encodeName(file) + '\n');
        QVERIFY(QFile::remove(output));
        QVERIFY(Workspace::openFile(path(text("apps/Player.app"))));
        QTRY_COMPARE(contentOf(output), QByteArray("\n"));

        QVERIFY(!Workspace::openWithApplication(text("org.example.empty"), file));
        QVERIFY(!Workspace::openWithApplication(text("org.example.absent"), file));
    }

    void revealsInTheFileBrowserElseOpensTheFolder()
    {
        const QString output = path(text("opened"));
        makeExecutable(m_home->addFile(text("opener"), recorderScript(output)));
        Workspace::setOpenProgram(path(text("opener")));
        const QString file = m_home->addFile(text("media/a film, 50%.mov"), "x");
        QVERIFY(!Workspace::revealFile(path(text("media/absent.mov"))));

        QVERIFY(Workspace::revealFile(file)); // there is no session bus
        QTRY_COMPARE(contentOf(output), QFile::encodeName(path(text("media"))) + '\n');
        QVERIFY(QFile::remove(output));

        const QString daemonProgram = QStandardPaths::findExecutable(text("dbus-daemon"));
        if (daemonProgram.isEmpty())
            QSKIP("no dbus-daemon here");
        const QString address = text("unix:path=") + path(text("bus"));
        RunningProgram daemon(daemonProgram, {text("--session"), text("--nofork"), text("--nopidfile"),
                                              text("--address=") + address});
        QVERIFY(daemon.hasStarted());
        QTRY_VERIFY(QFile::exists(path(text("bus"))));
        qputenv("DBUS_SESSION_BUS_ADDRESS", QFile::encodeName(address));

        FakeFileBrowser browser;
        {
            QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, text("browser"));
            QVERIFY(bus.isConnected());
            QVERIFY(bus.registerService(text("org.freedesktop.FileManager1")));
            QVERIFY(bus.registerObject(text("/org/freedesktop/FileManager1"), &browser,
                                       QDBusConnection::ExportAllSlots));
        }
        std::atomic<int> revealed = -1;
        std::thread worker([&] { revealed = Workspace::revealFile(file) ? 1 : 0; });
        QTRY_VERIFY(revealed >= 0);
        worker.join();
        QCOMPARE(revealed.load(), 1);
        QCOMPARE(browser.shown,
                 QStringList{text("file://") + path(text("media/")) + text("a%20film,%2050%25.mov")});
        QVERIFY(!QFile::exists(output));
        QDBusConnection::disconnectFromBus(text("browser"));
    }
};

QTEST_GUILESS_MAIN(TestWorkspace)
#include "tst_workspace.moc"
