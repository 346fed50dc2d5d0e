#include "bridge/EventCodes.h"
#include "bridge/FileReference.h"
#include "bridge/QVAppleEvents.h"
#include "bridge/SocketEventTransport.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"
#include "tests/bridge/ScriptedHost.h"
#include "tests/support/ApplicationBundle.h"
#include "tests/support/CapturedStandardError.h"
#include "tests/support/TemporaryHome.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>

#include <optional>
#include <stdexcept>
#include <thread>

using namespace vantrell;
using namespace std::chrono_literals;

namespace
{

const QString projectName = QStringLiteral("Caf\u00e9 50%?#.fcp");

QString textOf(const EventDescriptor &value)
{
    if (const auto reference = value.toFileReference())
        return QFileInfo(pathForFileReference(*reference).value_or(QStringLiteral("?"))).fileName();
    if (const auto text = value.toUtf8())
        return QString::fromUtf8(*text);
    if (const auto url = value.toFileUrl())
        return QString::fromUtf8(*url).section(QLatin1Char('/'), -1);
    return QString::fromLatin1(value.bytes().toHex());
}

/// "identifier keyword:type=value …" of an event whose other fields are those that all events have; the
/// time-out stands behind the identifier when it is not the system's.
QString textOf(const EventRecord &event)
{
    EventRecord usual;
    usual.eventClass = FourCharCode("KeyG");
    usual.identifier = event.identifier;
    usual.address = EventDescriptor(FourCharCode("sign"), "KeyG");
    usual.returnId = -1;
    usual.transaction = 0;
    usual.sendMode = 3;
    usual.priority = 1;
    usual.timeout = event.timeout;
    usual.parameters = event.parameters;
    QString text = event.identifier.text();
    if (!(event == usual))
        text += QStringLiteral(" unusual");
    if (event.timeout != -1)
        text += QStringLiteral(" %1").arg(event.timeout);
    for (const EventParameter &parameter : event.parameters)
        text += QStringLiteral(" %1:%2=%3")
                    .arg(parameter.keyword.text(), parameter.value.type().text(), textOf(parameter.value));
    return text;
}

EventRecord xmlReply(const QByteArray &xml)
{
    EventRecord reply = EventRecord::reply();
    reply.setParameter(EventCode::XmlData, EventDescriptor::fromUtf8(xml));
    return reply;
}

EventRecord openProjectsReply(const QStringList &paths)
{
    std::vector<EventDescriptor> items;
    for (const QString &path : paths) {
        const QByteArray reference = fileReferenceForPath(path).value_or(QByteArray(80, 'x'));
        items.push_back(EventDescriptor::fromRecord(
            {{EventCode::ProjectFile, EventDescriptor::fromFileReference(reference)}}));
    }
    EventRecord reply = EventRecord::reply();
    reply.setParameter(EventCode::OpenProjects, EventDescriptor::fromList(items));
    return reply;
}

/// Returns once the file holds this.
void waitForFile(const QString &path, const QByteArray &content)
{
    while (contentOf(path) != content)
        std::this_thread::sleep_for(5ms);
}

/// Answers what a host with this project open answers.
ScriptedHost::Answer openProject(const QString &path, const QByteArray &xml = "<xmeml/>")
{
    return ScriptedHost::replying([path, xml](const EventRecord &event) {
        return event.identifier == EventCode::ListOpenProjects ? openProjectsReply({path}) : xmlReply(xml);
    });
}

/// Fails in one step, and throws in it when the number is 0.
class FailingTransport : public SocketEventTransport
{
public:
    FailingTransport(const QByteArray &step, std::int32_t number)
        : m_step(step)
        , m_number(number)
    {
    }

    EventResult<EventDescriptor> createAddress(FourCharCode signature) override
    {
        if (fails("address"))
            return failure();
        return SocketEventTransport::createAddress(signature);
    }
    EventResult<EventRecord> createEvent(FourCharCode eventClass, FourCharCode identifier,
                                         const EventDescriptor &address) override
    {
        if (fails("event"))
            return failure();
        return SocketEventTransport::createEvent(eventClass, identifier, address);
    }
    EventResult<EventRecord> addParameter(EventRecord event, FourCharCode keyword,
                                          EventDescriptor value) override
    {
        if (fails(keyword.text().toLatin1()))
            return failure();
        return SocketEventTransport::addParameter(std::move(event), keyword, std::move(value));
    }
    EventResult<EventRecord> send(const EventRecord &event, const EventCancel &cancel) override
    {
        if (event.identifier != EventCode::ListOpenProjects && fails("send"))
            return failure();
        return SocketEventTransport::send(event, cancel);
    }

private:
    bool fails(const QByteArray &step) const
    {
        if (step == m_step && m_number == 0)
            throw std::runtime_error("broken");
        return step == m_step;
    }
    EventFailure failure() const { return {m_number, QStringLiteral("scripted")}; }

    const QByteArray m_step;
    const std::int32_t m_number;
};

} // namespace

/// One call of an operation; what it gives back as text.
using Call = std::function<QString(const QString &project)>;
Q_DECLARE_METATYPE(Call)

class AppleEventsTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;
    QString m_project;

    static QString shown(bool value) { return value ? QStringLiteral("true") : QStringLiteral("false"); }
    static QString shown(const std::optional<QString> &text) { return text.value_or(QStringLiteral("nil")); }
    static QString shown(const std::optional<QByteArray> &data)
    {
        return data ? QString::fromUtf8(*data) : QStringLiteral("nil");
    }

    /// Every operation that sends an event, by name.
    static std::vector<std::pair<const char *, Call>> operations()
    {
        using Q = QVAppleEvents;
        const QString item = QStringLiteral("\u00e9-1");
        return {
            {"list",
             [](const QString &) {
                 const auto list = Q::listOfOpenFCPProjects();
                 return list ? QStringLiteral("%1 open").arg(list->size()) : QStringLiteral("nil");
             }},
            {"import",
             [](const QString &p) { return shown(Q::sendXMLToFCP(QStringLiteral("<\u00e9\r/>"), p)); }},
            {"project", [](const QString &p) { return shown(Q::getProjectXMLData(p, false)); }},
            {"item", [item](const QString &p) { return shown(Q::getItemXMLData(item, p, false)); }},
            {"contents", [](const QString &p) { return shown(Q::getTOCData(p, false)); }},
            {"open",
             [item](const QString &p) {
                 Q::openItem(item, p, false);
                 return QString();
             }},
            {"save", [](const QString &p) { return shown(Q::saveProject(p)); }},
            {"close",
             [](const QString &p) {
                 Q::closeProject(p, true);
                 return QString();
             }},
            {"discard",
             [](const QString &p) {
                 Q::closeProject(p, false);
                 return QString();
             }},
        };
    }
    static Call operation(const char *name)
    {
        for (const auto &[key, call] : operations()) {
            if (QByteArrayView(key) == name)
                return call;
        }
        qFatal("There is no operation %s.", name);
    }

    static QString eventsOf(const ScriptedHost &host)
    {
        QStringList texts;
        for (const EventRecord &event : host.events())
            texts.append(textOf(event));
        return texts.join(QLatin1Char('\n'));
    }

    /// Installs an application that writes what it is asked to open to the file "launched", a line each.
    void install(const QByteArray &version = "7.0.3")
    {
        addBundle(m_home, QStringLiteral("apps/Final Cut Pro.app"), "com.apple.FinalCutPro",
                  "<key>CFBundleExecutable</key><string>fcp</string>"
                  "<key>CFBundleShortVersionString</key><string>" +
                      version + "</string>");
        const QString program =
            m_home.addFile(QStringLiteral("apps/Final Cut Pro.app/Contents/MacOS/fcp"),
                           "#!/bin/sh\necho \"$1\" >>'" + QFile::encodeName(launchedFile()) + "'\n");
        QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    QString launchedFile() const { return m_home.path(QStringLiteral("launched")); }
    QByteArray openedOnce() const { return QFile::encodeName(m_project) + '\n'; }

private Q_SLOTS:
    void initTestCase()
    {
        QVLog::createNewLog(QStringLiteral("test"), false);
        m_project = m_home.addFile(projectName, "p");
        UserDefaults::standard().setValue(QStringLiteral("applicationsFolder"),
                                          m_home.path(QStringLiteral("apps")));
    }
    void cleanup()
    {
        setSharedEventTransport(nullptr);
        QDir(m_home.path(QStringLiteral("apps"))).removeRecursively();
        QFile::remove(launchedFile());
    }
    void cleanupTestCase() { QVLog::willTerminate(); }

    void events_data()
    {
        QTest::addColumn<Call>("call");
        QTest::addColumn<QString>("result");
        QTest::addColumn<QString>("events");
        const auto add = [](const char *name, const char *result, const QString &events) {
            QTest::newRow(name) << operation(name) << QString::fromLatin1(result) << events;
        };
        const QString project = QStringLiteral(" fcpP:fsrf=") + projectName;
        const QString url = QStringLiteral(" fcpU:furl=Caf%C3%A9%2050%25%3F%23.fcp");
        const QString item = QStringLiteral(" fcIU:utf8=\u00e9-1");
        const QString list = QStringLiteral("fcLP");
        add("list", "1 open", list);
        add("import", "true",
            QStringLiteral("iXML 36000") + project + QStringLiteral(" xmlD:utf8=<&#233;&#13;/>"));
        add("project", "<xmeml/>", list + QStringLiteral("\neXML") + project);
        add("item", "<xmeml/>", list + QStringLiteral("\ngXML") + project + item);
        add("contents", "<xmeml/>", list + QStringLiteral("\neTCX") + project);
        add("open", "", QStringLiteral("fcOI") + project + item);
        add("save", "true", QStringLiteral("sfcP") + project + url + QStringLiteral(" fsOF:bool=01"));
        add("close", "", QStringLiteral("cfcP") + project + url + QStringLiteral(" fcCF:long=00000000"));
        add("discard", "", QStringLiteral("cfcP") + project + url + QStringLiteral(" fcCF:long=00000001"));
    }
    void events()
    {
        const ScriptedHost host(openProject(m_project));
        QFETCH(Call, call);
        CapturedStandardError errors;
        QTEST(call(m_project), "result");
        QTEST(eventsOf(host), "events");
        QCOMPARE(errors.text(), QByteArray());
    }

    void importWithoutAProject()
    {
        const ScriptedHost host(openProject(m_project));
        QVERIFY(QVAppleEvents::sendXMLToFCP(QStringLiteral("x"), {}));
        QVERIFY(QVAppleEvents::sendXMLToFCP(QStringLiteral("y"), m_home.path(QStringLiteral("absent"))));
        QCOMPARE(eventsOf(host), QStringLiteral("iXML 36000 xmlD:utf8=x\niXML 36000 xmlD:utf8=y"));
    }

    void failures_data()
    {
        QTest::addColumn<Call>("call");
        QTest::addColumn<QByteArray>("step"); // that fails; "off": nobody answers; "closed": nothing open
        QTest::addColumn<QString>("result");
        QTest::addColumn<QByteArray>("messages");
        const auto add = [](const char *name, const char *step, const char *result,
                            const QByteArray &messages) {
            QTest::addRow("%s, %s", name, step)
                << operation(name) << QByteArray(step) << QString::fromLatin1(result) << messages;
        };
        const QByteArray off = "Error: Final Cut Pro is not running.\n";
        const QByteArray address = "Error creating app description\n";
        const QByteArray event = "Error creating AppleEvent\n";
        const QByteArray project = "Error adding project file to AppleEvent query\n";
        const QByteArray destination = "Error adding destination project file to AppleEvent query\n";
        const QByteArray source = "Error adding source project file to AppleEvent query\n";
        const QByteArray flag = "Error adding overwrite flag to AppleEvent query\n";
        const QByteArray send = "Error sending AppleEvent\n";
        const QByteArray noData =
            "Unable to communicate with Final Cut Pro. Please make sure it is running.\n";

        add("list", "off", "nil", off);
        add("list", "address", "0 open", address);
        add("list", "event", "0 open", event);
        add("list", "refused", "0 open", send);
        add("import", "off", "false", "Error sending AppleEvent: -600\n");
        add("import", "address", "false", "Error creating AEDescription: -7\n");
        add("import", "event", "false", "Error creating AppleEvent: -7\n");
        add("import", "fcpP", "false", "Error creating project FSRef: -7\n");
        add("import", "xmlD", "false", "Error adding XML data to event: -7\n");
        add("import", "send", "false", "Error sending AppleEvent: -7\n");
        add("import", "refused", "false", "Error sending AppleEvent: -1708\n");
        for (const char *name : {"project", "item"}) {
            add(name, "off", "nil", noData);
            add(name, "closed", "nil", "Error: project is not open.\n" + noData);
            add(name, "address", "nil", address + "Error: project is not open.\n" + noData);
            add(name, "fcpP", "nil", project + noData);
            add(name, "send", "nil", send + noData);
            add(name, "no text", "nil", "Error getting XML information\n" + noData);
            add(name, "other text", "nil", "Error retrieving XML data\n" + noData);
        }
        add("item", "fcIU", "nil", destination + noData);
        add("contents", "off", "nil", noData);
        add("contents", "closed", "<xmeml/>", "");
        add("contents", "address", "nil", address + address + noData);
        add("contents", "event", "nil", event + event + noData);
        add("contents", "fcpP", "nil", project + noData);
        add("contents", "refused", "nil", send + send + noData);
        add("open", "off", "", "");
        add("open", "address", "", address);
        add("open", "event", "", event);
        add("open", "fcpP", "", project);
        add("open", "fcIU", "", destination);
        add("open", "send", "", send);
        add("save", "off", "false", off);
        add("save", "address", "false", address);
        add("save", "event", "false", event);
        add("save", "fcpP", "false", source);
        add("save", "fcpU", "false", destination);
        add("save", "fsOF", "false", flag);
        add("save", "send", "false", send);
        add("save", "refused", "false", send);
        add("close", "off", "", off);
        add("close", "address", "", address);
        add("close", "event", "", event);
        add("close", "fcpP", "", source);
        add("close", "fcpU", "", destination);
        add("close", "fcCF", "", flag);
        add("close", "send", "", send);
    }
    void failures()
    {
        QFETCH(Call, call);
        QFETCH(QByteArray, step);
        std::optional<ScriptedHost> host;
        if (step != "off")
            host.emplace(ScriptedHost::replying([&](const EventRecord &event) {
                if (step == "refused")
                    return EventRecord::errorReply(EventError::EventNotHandled);
                if (event.identifier == EventCode::ListOpenProjects)
                    return openProjectsReply(step == "closed" ? QStringList() : QStringList(m_project));
                EventRecord reply = EventRecord::reply();
                if (step == "other text")
                    reply.setParameter(EventCode::XmlData, EventDescriptor::fromInteger(1));
                else if (step != "no text")
                    reply = xmlReply("<xmeml/>");
                return reply;
            }));
        setSharedEventTransport(std::make_shared<FailingTransport>(step, -7));
        CapturedStandardError errors;
        QTEST(call(m_project), "result");
        QTEST(errors.text(), "messages");
    }

    void failureCausesAreLogged()
    {
        QVERIFY(!QVAppleEvents::sendXMLToFCP(QStringLiteral("x"), {}));
        QVLog::finishWriting();
        const QByteArray log = contentOf(QVLog::availableLogs().value(0));
        QVERIFY2(log.contains("Error sending AppleEvent: -600 (iXML: nobody answers on its event socket: "),
                 log.constData());
    }

    void missingProjectFile()
    {
        const ScriptedHost host(openProject(m_project));
        const QString absent = m_home.path(QStringLiteral("absent"));
        const auto messages = [&](const char *name) {
            CapturedStandardError errors;
            operation(name)(absent);
            return errors.text();
        };
        QCOMPARE(messages("open"), QByteArray("Error adding project file to AppleEvent query\n"));
        QCOMPARE(messages("save"), QByteArray("Error adding source project file to AppleEvent query\n"));
    }

    void exceptions_data()
    {
        QTest::addColumn<Call>("call");
        QTest::addColumn<QString>("result");
        QTest::addColumn<QByteArray>("method");
        const auto add = [](const char *name, const char *result, const char *method) {
            QTest::newRow(name) << operation(name) << QString::fromLatin1(result) << QByteArray(method);
        };
        add("list", "nil", "listOfOpenFCPProjects");
        add("import", "false", "sendXMLToFCP");
        add("open", "", "openItem");
        add("save", "false", "saveProject");
        add("close", "", "closeProject");
        add("project", "nil", "getProjectXMLData");
        add("item", "nil", "getItemXMLData");
        add("contents", "nil", "getTOCData");
    }
    void exceptions()
    {
        const ScriptedHost host(openProject(m_project));
        QFETCH(Call, call);
        QFETCH(QByteArray, method);
        const bool throwsInList = method == "listOfOpenFCPProjects";
        setSharedEventTransport(std::make_shared<FailingTransport>(throwsInList ? "event" : "send", 0));
        CapturedStandardError errors;
        QTEST(call(m_project), "result");
        const QByteArray expected =
            "Exception in QVAppleEvents::" + method + ". std::runtime_error - broken.\n";
        QVERIFY2(errors.text().startsWith(expected), errors.text().constData());
    }

    void openProjectsAsFarAsTheyCanBeRead()
    {
        const QString other = m_home.addFile(QStringLiteral("other.fcp"), "p");
        EventRecord reply = openProjectsReply({other, m_home.path(QStringLiteral("gone")), m_project});
        std::vector<EventDescriptor> items = reply.parameter(EventCode::OpenProjects)->items();
        items.insert(items.begin(), {EventDescriptor(), EventDescriptor::fromUtf8("x"),
                                     EventDescriptor::fromRecord({}), EventDescriptor::fromList({})});
        items.insert(items.begin(), EventDescriptor::fromRecord(
                                        {{EventCode::ProjectFile, EventDescriptor::fromUtf8("/x")}}));
        reply.setParameter(EventCode::OpenProjects, EventDescriptor::fromList(items));
        for (const EventRecord &answer : {reply, EventRecord::reply(), xmlReply("x")}) {
            const ScriptedHost host(ScriptedHost::replying([&](const EventRecord &) { return answer; }));
            const QStringList expected = answer == reply ? QStringList{other, m_project} : QStringList();
            QCOMPARE(QVAppleEvents::listOfOpenFCPProjects(), std::optional(expected));
        }
    }

    void receivedText()
    {
        const ScriptedHost host(openProject(m_project, QByteArray("caf\xc3\xa9 &#55356;&#57260;\0\0", 24)));
        const QByteArray text("caf\xc3\xa9 &#55356;&#57260;\0", 23);
        QCOMPARE(QVAppleEvents::getProjectXMLData(m_project, false), std::optional(text));
        QCOMPARE(QVAppleEvents::getTOC(m_project), std::optional(QString::fromUtf8(text)));
        QCOMPARE(QVAppleEvents::getProjectXML(m_project), std::optional(QString::fromUtf8(text)));
        QCOMPARE(QVAppleEvents::getItemXML(QStringLiteral("i"), m_project, false, true),
                 std::optional(QString::fromUtf8(text)));
    }

    void pathOfTheSameFile()
    {
        const QString link = m_home.path(QStringLiteral("link"));
        QVERIFY(QFile::link(m_project, link));
        const ScriptedHost host(openProject(link));
        QVERIFY(QVAppleEvents::getProjectXMLData(m_project, false));
    }

    void launching_data()
    {
        QTest::addColumn<bool>("isRunning");
        QTest::addColumn<bool>("close");
        QTest::addColumn<QByteArray>("event");
        for (const char *event : {"eXML", "gXML", "eTCX"}) {
            QTest::addRow("%s, not running", event) << false << false << QByteArray(event);
            QTest::addRow("%s, running", event) << true << false << QByteArray(event);
        }
        QTest::newRow("eXML, not running, closed") << false << true << QByteArray("eXML");
        QTest::newRow("gXML, running, closed") << true << true << QByteArray("gXML");
    }
    void launching()
    {
        QFETCH(bool, isRunning);
        QFETCH(bool, close);
        QFETCH(QByteArray, event);
        install();
        const auto start = [this] {
            return std::make_unique<ScriptedHost>(ScriptedHost::replying([this](const EventRecord &record) {
                if (record.identifier != EventCode::ListOpenProjects)
                    return xmlReply("<xmeml/>");
                const bool wasOpened = QFile::exists(launchedFile());
                return openProjectsReply(wasOpened ? QStringList(m_project) : QStringList());
            }));
        };
        std::unique_ptr<ScriptedHost> host;
        if (isRunning)
            host = start();
        // One that has to start takes events only once it was asked for the second time.
        const QByteArray asked = isRunning ? openedOnce() : openedOnce() + openedOnce();
        std::thread application([&] {
            waitForFile(launchedFile(), asked);
            if (!isRunning)
                host = start();
        });
        std::optional<QByteArray> data;
        if (event == "eXML")
            data = QVAppleEvents::getProjectXMLData(m_project, true, close);
        else if (event == "gXML")
            data = QVAppleEvents::getItemXMLData(QStringLiteral("i"), m_project, true, close);
        else
            data = QVAppleEvents::getTOCData(m_project, true);
        application.join();
        QCOMPARE(data, std::optional(QByteArray("<xmeml/>")));

        QStringList events = eventsOf(*host).split(QLatin1Char('\n'));
        events.removeAll(QStringLiteral("fcLP"));
        QVERIFY(events.value(0).startsWith(QString::fromLatin1(event)));
        QCOMPARE(events.size(), close ? 2 : 1);
        if (close)
            QVERIFY2(events.at(1).startsWith(QStringLiteral("cfcP")) &&
                         events.at(1).endsWith(QStringLiteral("fcCF:long=00000000")),
                     qPrintable(events.at(1)));
        QCOMPARE(contentOf(launchedFile()), asked);
    }

    void openProjectIsNotClosed()
    {
        const ScriptedHost host(openProject(m_project));
        QVERIFY(QVAppleEvents::getProjectXMLData(m_project, true, true));
        QVERIFY(!eventsOf(host).contains(QStringLiteral("cfcP")));
    }

    void openingAnItemLaunches()
    {
        install();
        std::unique_ptr<ScriptedHost> host;
        std::thread application([&] {
            waitForFile(launchedFile(), openedOnce());
            host = std::make_unique<ScriptedHost>(openProject(m_project));
        });
        QVAppleEvents::openItem(QStringLiteral("i"), m_project, true);
        application.join();
        QVERIFY(eventsOf(*host).endsWith(QStringLiteral("fcOI fcpP:fsrf=%1 fcIU:utf8=i").arg(projectName)));
        QCOMPARE(contentOf(launchedFile()), openedOnce());
    }

    void launchedInVain()
    {
        install();
        setSharedEventTransport(std::make_shared<SocketEventTransport>(100ms));
        CapturedStandardError errors;
        QVERIFY(!QVAppleEvents::getProjectXMLData(m_project, true));
        // The program that was started may still run when the projects are asked for.
        QVERIFY2(QRegularExpression(
                     QStringLiteral("^Error(: Final Cut Pro is not running\\.| sending AppleEvent)\n"
                                    "Error sending AppleEvent\nUnable to communicate with Final Cut "
                                    "Pro\\. Please make sure it is running\\.\n$"))
                     .match(QString::fromUtf8(errors.text()))
                     .hasMatch(),
                 errors.text().constData());
        QTRY_COMPARE(contentOf(launchedFile()), openedOnce() + openedOnce());
    }

    void cancelling_data()
    {
        QTest::addColumn<bool>("isRunning");
        QTest::newRow("waiting for a reply") << true;
        QTest::newRow("waiting for the application") << false;
    }
    void cancelling()
    {
        QFETCH(bool, isRunning);
        install();
        EventCancel cancel;
        std::optional<ScriptedHost> host;
        if (isRunning)
            host.emplace([&](int socket, const EventRecord &) {
                EventCancel(cancel).cancel();
                ScriptedHost::waitForClose(socket);
            });
        std::thread user([&] {
            if (!isRunning) {
                waitForFile(launchedFile(), openedOnce() + openedOnce());
                EventCancel(cancel).cancel();
            }
        });
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!QVAppleEvents::getProjectXMLData(m_project, true, false, cancel));
        QVERIFY(timer.elapsed() < 30'000);
        user.join();
    }

    void sequences_data()
    {
        QTest::addColumn<QByteArray>("version");
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QString>("names"); // "nil" for nothing
        QTest::addColumn<QByteArray>("messages");
        const QByteArray xml = "<xmeml><sequence><name>A &#55356;&#57260;</name><name>x</name></sequence>"
                               "<sequence/><bin><sequence><name>B</name></sequence></bin></xmeml>";
        const QString names = QStringLiteral(" A \U0001F3ACx, B");
        QTest::newRow("contents") << QByteArray("7.0.3") << xml << QStringLiteral("eTCX") + names
                                  << QByteArray();
        QTest::newRow("project") << QByteArray("6.0") << xml << QStringLiteral("eXML") + names
                                 << QByteArray();
        QTest::newRow("none") << QByteArray("7") << QByteArray("<x/>") << QStringLiteral("eTCX ")
                              << QByteArray();
        QTest::newRow("empty") << QByteArray("7") << QByteArray() << QStringLiteral("eTCX nil")
                               << QByteArray();
        QTest::newRow("malformed") << QByteArray("7") << QByteArray("<x>") << QStringLiteral("eTCX nil")
                                   << QByteArray("Error: it is not well-formed XML (");
    }
    void sequences()
    {
        QFETCH(QByteArray, version);
        QFETCH(QByteArray, xml);
        QFETCH(QByteArray, messages);
        install(version);
        const ScriptedHost host(openProject(m_project, xml));
        CapturedStandardError errors;
        const auto found = QVAppleEvents::sequencesInProject(m_project);
        QStringList names;
        for (const XmlNode sequence : found ? found->sequences : XmlNodeList())
            names.append(sequence.stringValue());
        QTEST(host.events().back().identifier.text() + QLatin1Char(' ') +
                  (found ? names.join(QStringLiteral(", ")) : QStringLiteral("nil")),
              "names");
        if (messages.isEmpty())
            QCOMPARE(errors.text(), QByteArray());
        else
            QVERIFY2(errors.text().startsWith(messages), errors.text().constData());
    }
};

QTEST_GUILESS_MAIN(AppleEventsTest)
#include "tst_appleevents.moc"
