#include "bridge/EventCodes.h"
#include "bridge/FileReference.h"
#include "bridge/QVAppleEvents.h"
#include "support/desktop/Workspace.h"
#include "support/files/Descriptor.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"
#include "tests/support/EventBytes.h"
#include "tests/support/TemporaryHome.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>
#include <QtEndian>

#include <csignal>
#include <memory>
#include <optional>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace vantrell;

namespace
{

constexpr int Patience = 40000; // milliseconds

const QByteArray Project = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE xmeml>
<xmeml version="5">
  <project>
    <name>Reel</name>
    <children>
      <!-- kept -->
      <sequence id="Cut">
        <uuid>U-CUT</uuid>
        <name>Cut</name>
      </sequence>
    </children>
  </project>
</xmeml>
)";

/// The XML sent for a bin with that name.
QByteArray binNamed(const QByteArray &name)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><!DOCTYPE xmeml><xmeml version=\"5\"><bin><name>" +
           name + "</name><children></children></bin></xmeml>";
}

QString latin(const char *text)
{
    return QString::fromLatin1(text);
}

EventRecord madeEvent(FourCharCode identifier, std::vector<EventParameter> parameters = {})
{
    EventRecord made;
    made.eventClass = EventCode::FinalCutPro;
    made.identifier = identifier;
    made.address = EventDescriptor::fromSignature(EventCode::FinalCutPro);
    made.parameters = std::move(parameters);
    return made;
}

EventParameter project(const QString &path)
{
    return {EventCode::Project,
            EventDescriptor::fromFileReference(fileReferenceForPath(path).value_or(QByteArray(80, '\0')))};
}

EventParameter xmlData(const QByteArray &xml)
{
    return {EventCode::XmlData, EventDescriptor::fromUtf8(xml)};
}

EventParameter item(const char *identifier)
{
    return {EventCode::ItemIdentifier, EventDescriptor::fromUtf8(identifier)};
}

EventParameter target(const QByteArray &url)
{
    return {EventCode::ProjectUrl, EventDescriptor::fromFileUrl(url)};
}

/// A connection to a host, closed with this object.
class Connection
{
public:
    explicit Connection(const QString &socketPath)
        : m_socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        const QByteArray name = QFile::encodeName(socketPath);
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        std::copy_n(name.constData(),
                    std::min<std::size_t>(std::size_t(name.size()), sizeof(address.sun_path) - 1),
                    address.sun_path);
        const timeval limit = {Patience / 1000, 0};
        ::setsockopt(m_socket.number(), SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof(limit));
        m_isConnected =
            ::connect(m_socket.number(), reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0;
    }

    bool isConnected() const { return m_isConnected; }

    pid_t peer() const
    {
        ucred credentials = {};
        socklen_t size = sizeof(credentials);
        ::getsockopt(m_socket.number(), SOL_SOCKET, SO_PEERCRED, &credentials, &size);
        return credentials.pid;
    }

    bool send(const QByteArray &bytes)
    {
        return ::send(m_socket.number(), bytes.constData(), std::size_t(bytes.size()), MSG_NOSIGNAL) ==
               bytes.size();
    }
    bool send(const EventRecord &record) { return send(EventWire::flatten(record).value()); }
    void endSending() { ::shutdown(m_socket.number(), SHUT_WR); }

    /// The next reply; nullopt when the host closes the connection before its end.
    std::optional<EventRecord> reply()
    {
        const auto record = EventWire::read([this](char *buffer, qsizetype maximum) {
            return qsizetype(::recv(m_socket.number(), buffer, std::size_t(maximum), 0));
        });
        return record ? std::optional(record.value()) : std::nullopt;
    }

    /// All bytes until the host closes the connection.
    QByteArray rest()
    {
        QByteArray all;
        char buffer[4096];
        for (;;) {
            const ssize_t got = ::recv(m_socket.number(), buffer, sizeof(buffer), 0);
            if (got <= 0)
                return all;
            all.append(buffer, got);
        }
    }

private:
    Descriptor m_socket;
    bool m_isConnected = false;
};

std::optional<EventRecord> ask(const QString &socketPath, const EventRecord &record)
{
    Connection connection(socketPath);
    return connection.isConnected() && connection.send(record) ? connection.reply() : std::nullopt;
}

/// The error number of the reply; 1 when there is no reply.
int errorOf(const std::optional<EventRecord> &reply)
{
    return reply ? reply->errorNumber() : 1;
}

QByteArray xmlOf(const std::optional<EventRecord> &reply)
{
    const EventDescriptor *data = reply ? reply->parameter(EventCode::XmlData) : nullptr;
    return data ? data->toUtf8().value_or("no text") : QByteArray("no data");
}

QStringList openProjects(const QString &socketPath)
{
    const auto reply = ask(socketPath, madeEvent(EventCode::ListOpenProjects));
    const EventDescriptor *list = reply ? reply->parameter(EventCode::OpenProjects) : nullptr;
    if (!list || !list->isList())
        return {latin("no list")};
    QStringList paths;
    for (const EventDescriptor &entry : list->items()) {
        const EventDescriptor *file = entry.field(EventCode::ProjectFile);
        const auto reference = file ? file->toFileReference() : std::nullopt;
        paths.append(reference ? pathForFileReference(*reference).value_or(QString()) : QString());
    }
    return paths;
}

/// The program, running.
class Host
{
public:
    Host(const QString &folder, const QStringList &arguments)
        : m_socketPath(folder + latin("/KeyG"))
    {
        m_process.setReadChannel(QProcess::StandardError);
        m_process.start(program(), QStringList{latin("--socket-dir"), folder} + arguments);
    }
    ~Host()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    static QString program() { return qEnvironmentVariable("VANTRELL_BIN_DIR") + latin("/fcp-host"); }

    /// Whether it listens.
    bool isReady() { return hasSaid("fcp-host: listening on " + QFile::encodeName(m_socketPath) + '\n'); }
    bool hasSaid(const QByteArray &text)
    {
        while (!m_messages.contains(text) && m_process.waitForReadyRead(Patience))
            m_messages += m_process.readAllStandardError();
        m_messages += m_process.readAllStandardError();
        return m_messages.contains(text);
    }
    /// The exit status after the signal (0 for none); -1 when it did not end by itself.
    int statusAfter(int signal)
    {
        if (signal != 0)
            ::kill(pid_t(m_process.processId()), signal);
        const bool hasEnded = m_process.waitForFinished(Patience);
        return hasEnded && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }

    const QString &socketPath() const { return m_socketPath; }
    std::optional<EventRecord> ask(const EventRecord &record) const { return ::ask(m_socketPath, record); }

private:
    QString m_socketPath;
    QProcess m_process;
    QByteArray m_messages;
};

} // namespace

class FcpHostTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TemporaryHome> m_home;

    QString path(const char *relative) const { return m_home->path(latin(relative)); }
    QString addProject(const char *name, const QByteArray &xml = Project) const
    {
        return m_home->addFile(latin(name), xml);
    }
    Host host(const QStringList &arguments = {}) const { return Host(path("s"), arguments); }

private Q_SLOTS:
    void init()
    {
        m_home.reset(); // puts the environment back
        m_home = std::make_unique<TemporaryHome>();
        QVLog::createNewLog(latin("Test"), true);
    }
    void cleanupTestCase()
    {
        QVLog::willTerminate();
        m_home.reset();
    }

    void answersEachEvent()
    {
        const QString file = addProject("a project.xml");
        Host running = host({file});
        QVERIFY(running.isReady());
        QCOMPARE(openProjects(running.socketPath()), QStringList{file});

        EventRecord export_ = madeEvent(EventCode::ExportProjectXml, {project(file)});
        export_.returnId = 4711;
        const auto exported = running.ask(export_);
        QCOMPARE(xmlOf(exported), Project);
        QVERIFY(exported->eventClass == EventCode::CoreClass && exported->identifier == EventCode::Answer);
        QCOMPARE(exported->returnId, 4711);
        QCOMPARE(
            xmlOf(running.ask(madeEvent(EventCode::ExportItemXml, {project(file), item("U-CUT")}))),
            QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE xmeml>\n<xmeml version=\"5\">"
                       "<sequence id=\"Cut\"><uuid>U-CUT</uuid><name>Cut</name></sequence></xmeml>\n"));
        QByteArray contents = Project;
        QCOMPARE(xmlOf(running.ask(madeEvent(EventCode::ExportContents, {project(file)}))),
                 contents.replace("      <!-- kept -->\n", ""));
        QCOMPARE(errorOf(running.ask(madeEvent(EventCode::OpenItem, {project(file), item("Cut")}))), 0);
        QVERIFY(running.hasSaid("opened the item \"Cut\" of \"" + QFile::encodeName(file) + '"'));

        const EventParameter mayReplace{EventCode::Overwrite, EventDescriptor::fromBool(true)};
        const EventParameter mayNotReplace{EventCode::Overwrite, EventDescriptor::fromBool(false)};
        const QByteArray url = QFile::encodeName(m_home->path()) + "/50%25%20%3F.xml";
        const QByteArray copy = "\n" + Project;
        m_home->addFile(latin("50% ?.xml"), "old");
        const auto save = [&](std::vector<EventParameter> parameters) {
            parameters.insert(parameters.begin(), project(file));
            return errorOf(running.ask(madeEvent(EventCode::SaveProject, std::move(parameters))));
        };
        QCOMPARE(save({target(url), mayNotReplace}), -48);
        QCOMPARE(save({target(url)}), -48);
        QCOMPARE(contentOf(path("50% ?.xml")), QByteArray("old"));
        QCOMPARE(save({target(url), mayReplace}), 0);
        QCOMPARE(contentOf(path("50% ?.xml")), Project);
        QCOMPARE(save({target("file://localhost" + url.chopped(4) + "2.xml"), mayNotReplace}), 0);
        QCOMPARE(contentOf(path("50% ?2.xml")), Project);
        QCOMPARE(save({target("relative.xml"), mayReplace}), -1701);
        QCOMPARE(save({target("/absent/folder.xml"), mayReplace}), -36);

        const auto close = [&](int discard, const QByteArray &to) {
            return errorOf(
                running.ask(madeEvent(EventCode::CloseProject,
                                      {project(file),
                                       target(to),
                                       {EventCode::DiscardChanges, EventDescriptor::fromInteger(discard)}})));
        };
        const QByteArray closed = QFile::encodeName(m_home->path()) + "/closed.xml";
        QCOMPARE(close(1, closed), 0);
        QVERIFY(!QFile::exists(path("closed.xml")));
        QCOMPARE(openProjects(running.socketPath()), QStringList());
        QCOMPARE(close(0, closed), -1728);
        const EventRecord open = [&] {
            EventRecord documents = madeEvent(FourCharCode("odoc"));
            documents.eventClass = EventCode::CoreClass;
            documents.setParameter(FourCharCode("----"), EventDescriptor::fromList({project(file).value}));
            return documents;
        }();
        QCOMPARE(errorOf(running.ask(open)), 0);
        QCOMPARE(openProjects(running.socketPath()), QStringList{file});
        QCOMPARE(close(0, closed), 0);
        QCOMPARE(contentOf(path("closed.xml")), Project);
    }

    void importsWhereItIsTold()
    {
        const QString first = addProject("films/first.xml");
        const QString second = addProject("second.xml", "<xmeml><sequence id=\"s\"/></xmeml>");
        const QString closed = addProject("closed.xml");
        Host running = host({latin("--closed"), closed, latin("--closed"), closed, first, second});
        QVERIFY(running.isReady());
        const auto import = [&](std::vector<EventParameter> parameters) {
            EventRecord record = madeEvent(EventCode::ImportXml, std::move(parameters));
            record.timeout = 36000;
            return errorOf(running.ask(record));
        };
        QCOMPARE(import({project(second), xmlData(binNamed("Caf&#233; &#55357;&#56832;"))}), 0);
        QCOMPARE(contentOf(second),
                 QByteArray("<xmeml><sequence id=\"s\"/><bin><name>Caf\xC3\xA9 "
                            "\xF0\x9F\x98\x80</name><children></children></bin>\n</xmeml>"));
        QCOMPARE(xmlOf(running.ask(madeEvent(EventCode::ExportProjectXml, {project(second)}))),
                 contentOf(second));

        QCOMPARE(import({xmlData(binNamed("without a project"))}), 0);
        QCOMPARE(import({project(closed), xmlData(binNamed("for a closed one"))}), 0);
        QCOMPARE(import({xmlData("<xmeml version=\"6\"><bin/></xmeml>")}), -10000);
        const QStringList made{path("films/Vantrell.xml"), path("films/Vantrell 2.xml")};
        QCOMPARE(openProjects(running.socketPath()), (QStringList{first, second} + made));
        QVERIFY(contentOf(made.at(0)).contains("<name>without a project</name>"));
        QVERIFY(contentOf(made.at(1)).contains("<name>for a closed one</name>"));
        QCOMPARE(contentOf(first), Project);
        QCOMPARE(contentOf(closed), Project);
    }

    void refusesWhatItCannotDo_data()
    {
        QTest::addColumn<QByteArray>("code");
        QTest::addColumn<QStringList>("parameters"); // of the open project
        QTest::addColumn<int>("number");
        const auto row = [](const char *name, const char *code, const QStringList &parameters, int number) {
            QTest::newRow(name) << QByteArray(code) << parameters << number;
        };
        row("unknown event", "fcXX", {}, -1708);
        row("event of another class", "odoc", {}, -1708);
        row("import without text", "iXML", {latin("project")}, -1701);
        row("malformed import", "iXML", {latin("project"), latin("text")}, -10000);
        row("export of nothing", "eXML", {}, -1728);
        row("contents of nothing", "eTCX", {}, -1728);
        row("export of a project that is not open", "eXML", {latin("closed")}, -1728);
        row("item without identifier", "gXML", {latin("project")}, -1701);
        row("unknown item", "gXML", {latin("project"), latin("item")}, -1728);
        row("open an unknown item", "fcOI", {latin("project"), latin("item")}, -1728);
        row("save nothing", "sfcP", {}, -1728);
        row("close nothing", "cfcP", {}, -1728);
    }
    void refusesWhatItCannotDo()
    {
        QFETCH(QByteArray, code);
        QFETCH(QStringList, parameters);
        QFETCH(int, number);
        const QString file = addProject("a.xml");
        const QString closed = addProject("b.xml");
        Host running = host({file, latin("--closed"), closed});
        QVERIFY(running.isReady());
        EventRecord record = madeEvent(FourCharCode(qFromBigEndian<quint32>(code.constData())));
        for (const QString &parameter : parameters) {
            if (parameter == latin("project") || parameter == latin("closed"))
                record.parameters.push_back(project(parameter == latin("project") ? file : closed));
            else if (parameter == latin("text"))
                record.parameters.push_back(xmlData("<xmeml><bin>"));
            else
                record.parameters.push_back(item("absent"));
        }
        const auto reply = running.ask(record);
        QCOMPARE(errorOf(reply), number);
        QVERIFY(reply->parameter(FourCharCode("errs")));
        QCOMPARE(contentOf(file), Project);
        QCOMPARE(openProjects(running.socketPath()), QStringList{file});
    }

    void logsEvents()
    {
        const QString file = addProject("a.xml");
        Host running = host({file, latin("--log"), path("log")});
        QVERIFY(running.isReady());
        const QByteArray longText(100000, 'x');
        EventRecord import =
            madeEvent(EventCode::ImportXml, {project(file), xmlData("caf\xC3\xA9 \"" + longText)});
        import.timeout = 36000;
        running.ask(import);
        EventRecord other = madeEvent(
            FourCharCode("test"),
            {{FourCharCode("lst "),
              EventDescriptor::fromList({EventDescriptor::fromBool(true), EventDescriptor()})},
             {FourCharCode("rec "),
              EventDescriptor::fromRecord({{FourCharCode("num "), EventDescriptor::fromInteger(-7)}})},
             {FourCharCode("file"), EventDescriptor::fromFileReference(QByteArray(80, '\0'))},
             {FourCharCode("url "), EventDescriptor::fromFileUrl("/a%20b")}});
        other.returnId = 5;
        other.transaction = 6;
        other.sendMode = 1;
        other.priority = 0;
        running.ask(other);

        const QList<QByteArray> lines = contentOf(path("log")).split('\n');
        QCOMPARE(lines.size(), 3);
        const QJsonObject first = QJsonDocument::fromJson(lines.at(0)).object();
        const QJsonArray parameters = first.value(latin("parameters")).toArray();
        QCOMPARE(parameters.at(1).toObject().value(latin("value")).toString(),
                 QString::fromUtf8("café \"") + QString::fromLatin1(longText));
        QCOMPARE(QJsonDocument(parameters.at(0).toObject()).toJson(QJsonDocument::Compact),
                 "{\"keyword\":\"fcpP\",\"type\":\"fsrf\",\"value\":{\"length\":80,\"path\":\"" +
                     QFile::encodeName(file) + "\"}}");
        QVERIFY(lines.at(0).startsWith(
            "{\"class\":\"KeyG\",\"id\":\"iXML\",\"address\":{\"type\":\"sign\",\"value\":\"KeyG\"},"
            "\"returnId\":-1,\"transaction\":0,\"sendMode\":3,\"priority\":1,\"timeoutTicks\":36000,"
            "\"parameters\":[{\"keyword\":\"fcpP\","));
        QCOMPARE(
            lines.at(1),
            QByteArray(
                "{\"class\":\"KeyG\",\"id\":\"test\",\"address\":{\"type\":\"sign\",\"value\":\"KeyG\"},"
                "\"returnId\":5,\"transaction\":6,\"sendMode\":1,\"priority\":0,\"timeoutTicks\":-1,"
                "\"parameters\":[{\"keyword\":\"lst \",\"type\":\"list\",\"value\":[{\"type\":\"bool\","
                "\"value\":true},{\"type\":\"null\",\"value\":null}]},{\"keyword\":\"rec \",\"type\":"
                "\"reco\",\"value\":[{\"keyword\":\"num \",\"type\":\"long\",\"value\":-7}]},{\"keyword\":"
                "\"file\",\"type\":\"fsrf\",\"value\":{\"length\":80}},{\"keyword\":\"url \",\"type\":"
                "\"furl\",\"value\":\"/a%20b\"}]}"));
    }

    void failsOnDemand()
    {
        const QString file = addProject("a.xml");
        Host running = host({latin("--fail"), latin("iXML"), file});
        QVERIFY(running.isReady());
        QCOMPARE(
            errorOf(running.ask(madeEvent(EventCode::ImportXml, {project(file), xmlData(binNamed("x"))}))),
            -10000);
        QCOMPARE(contentOf(file), Project);
        QCOMPARE(openProjects(running.socketPath()), QStringList{file});
    }

    void breaksOffOnDemand()
    {
        const QString file = addProject("a.xml");
        QByteArray whole;
        {
            Host running = host({file});
            QVERIFY(running.isReady());
            Connection connection(running.socketPath());
            QVERIFY(connection.send(madeEvent(EventCode::ExportProjectXml, {project(file)})));
            connection.endSending();
            whole = connection.rest();
            QVERIFY(EventWire::unflatten(whole).isOk());
        }
        Host running = host({latin("--truncate"), file});
        QVERIFY(running.isReady());
        Connection connection(running.socketPath());
        QVERIFY(connection.send(madeEvent(EventCode::ExportProjectXml, {project(file)})));
        QCOMPARE(connection.rest(), whole.first(whole.size() / 2));
    }

    void delaysOneWithoutTheOthers()
    {
        Host running = host({latin("--delay"), latin("1.5")});
        QVERIFY(running.isReady());
        QElapsedTimer timer;
        timer.start();
        std::vector<std::unique_ptr<Connection>> connections;
        for (int i = 0; i < 12; ++i) {
            connections.push_back(std::make_unique<Connection>(running.socketPath()));
            QVERIFY(connections.back()->send(madeEvent(EventCode::ListOpenProjects)));
        }
        for (const auto &connection : connections)
            QCOMPARE(errorOf(connection->reply()), 0);
        QVERIFY(timer.elapsed() >= 1500);
        QVERIFY(timer.elapsed() < 12 * 1500);
    }

    void answersSeveralEventsOfOneConnection()
    {
        const QString file = addProject("a.xml");
        Host running = host({file});
        QVERIFY(running.isReady());
        Connection idle(running.socketPath());
        Connection unfinished(running.socketPath());
        QVERIFY(
            unfinished.send(EventWire::flatten(madeEvent(EventCode::ListOpenProjects)).value().chopped(1)));
        Connection connection(running.socketPath());
        const QByteArray export_ =
            EventWire::flatten(madeEvent(EventCode::ExportProjectXml, {project(file)})).value();
        QVERIFY(connection.send(export_ + export_));
        QCOMPARE(xmlOf(connection.reply()), Project);
        QCOMPARE(xmlOf(connection.reply()), Project);
    }

    void closesOnWhatIsNoEvent_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("isEndless");
        const QByteArray whole = EventWire::flatten(madeEvent(EventCode::ListOpenProjects)).value();
        QTest::newRow("another protocol") << QByteArray("GET / HTTP/1.1\r\n\r\n") << false;
        QTest::newRow("cut off") << whole.chopped(1) << false;
        QTest::newRow("another version")
            << QByteArray(whole).replace(4, 4, QByteArray("\0\0\0\2", 4)) << false;
        QTest::newRow("more values than bytes")
            << QByteArray(whole).replace(whole.size() - 4, 4, QByteArray("\x7f\xff\xff\xff", 4)) << false;
        QTest::newRow("endless") << QByteArray(65536, 'v') << true;
        QTest::newRow("an endless list")
            << whole.first(8) + QByteArray("\x7f\xff\xff\xf3", 4) + whole.sliced(12).chopped(4) +
                   QByteArray("\0\0\0\1----list\x70\0\0\0\x6f\xff\xff\xff", 20)
            << true;
    }
    void closesOnWhatIsNoEvent()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, isEndless);
        Host running = host();
        QVERIFY(running.isReady());
        Connection connection(running.socketPath());
        bool isOpen = connection.send(bytes);
        for (int i = 0; isEndless && isOpen && i < 100000; ++i)
            isOpen = connection.send(bytes);
        QCOMPARE(isOpen, !isEndless);
        connection.endSending();
        QCOMPARE(connection.rest(), QByteArray());
        QVERIFY(running.hasSaid("fcp-host: closed a connection: "));
        QCOMPARE(openProjects(running.socketPath()), QStringList());
        QCOMPARE(running.statusAfter(SIGTERM), 0);
    }

    void endsOnSignals_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("interrupt") << SIGINT;
        QTest::newRow("terminate") << SIGTERM;
        QTest::newRow("hang-up") << SIGHUP;
    }
    void endsOnSignals()
    {
        QFETCH(int, signal);
        Host running = host({latin("--delay"), latin("3600"), latin("--log"), path("log")});
        QVERIFY(running.isReady());
        struct stat folder = {};
        QCOMPARE(::stat(QFile::encodeName(path("s")).constData(), &folder), 0);
        QCOMPARE(int(folder.st_mode & 07777), 0700);
        Connection waiting(running.socketPath());
        QVERIFY(waiting.send(madeEvent(EventCode::ListOpenProjects)));
        QTRY_VERIFY_WITH_TIMEOUT(contentOf(path("log")).contains("fcLP"), Patience);
        QCOMPARE(running.statusAfter(signal), 0);
        QCOMPARE(waiting.rest(), QByteArray());
        QCOMPARE(
            QDir(path("s")).entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList());
    }

    void oneListensAtATime()
    {
        const QString file = addProject("a.xml");
        Host first = host({file});
        QVERIFY(first.isReady());
        Host second = host();
        QCOMPARE(second.statusAfter(0), 1);
        QVERIFY(second.hasSaid("another host listens on \"" + QFile::encodeName(first.socketPath()) +
                               "\" already"));
        QCOMPARE(openProjects(first.socketPath()), QStringList{file});

        QCOMPARE(first.statusAfter(SIGKILL), -1);
        QVERIFY(QFileInfo(first.socketPath()).exists());
        Host third = host({file});
        QVERIFY(third.isReady());
        QCOMPARE(openProjects(third.socketPath()), QStringList{file});
    }

    void handsOver()
    {
        const QString a = addProject("a.xml");
        const QString b = addProject("b.xml");
        const QString damaged = addProject("c.xml", "<xmeml>");
        // Whichever of two comes first is the host.
        Host first = host({latin("--hand-over"), a});
        Host second = host({latin("--hand-over"), b});
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(first.socketPath()), Patience);
        QTRY_COMPARE_WITH_TIMEOUT(
            [&] {
                QStringList paths = openProjects(first.socketPath());
                paths.sort();
                return paths;
            }(),
            (QStringList{a, b}), Patience);
        Host third = host({latin("--hand-over"), b, a});
        QCOMPARE(third.statusAfter(0), 0);
        QCOMPARE(openProjects(first.socketPath()).size(), 2);
        Host fourth = host({latin("--hand-over"), damaged});
        QCOMPARE(fourth.statusAfter(0), 1);
        QVERIFY(fourth.hasSaid("cannot be opened as a project"));
    }

    void isFoundAndStartedAsAnApplication()
    {
        const QString identifier = latin("com.apple.FinalCutPro");
        UserDefaults::standard().setValue(latin("applicationsFolder"), path("apps"));
        QCOMPARE(QProcess::execute(Host::program(), {latin("--install-bundle"), path("apps")}), 0);
        QCOMPARE(QVAppleEvents::finalCutProVersionString(), latin("7.0.3"));
        QCOMPARE(
            QProcess::execute(Host::program(), {latin("--install-bundle"), path("apps"), latin("--version"),
                                                latin("5.1.1"), latin("--log"), path("it's a log")}),
            0);
        QCOMPARE(QVAppleEvents::maximumXMEMLVersion(), 2);
        QVERIFY(!Workspace::isRunning(identifier));

        const QString a = addProject("a.xml");
        const QString b = addProject("-b c.xml");
        const QString socketPath = Workspace::eventSocketPath(latin("KeyG"));
        QVERIFY(Workspace::openWithApplication(identifier, a));
        // It may not listen yet; it is found by its socket as soon as it does.
        QTRY_COMPARE_WITH_TIMEOUT(openProjects(socketPath), QStringList{a}, Patience);
        QVERIFY(Workspace::isRunning(identifier));
        QVERIFY(Workspace::openWithApplication(identifier, b));
        QTRY_COMPARE_WITH_TIMEOUT(openProjects(socketPath), (QStringList{a, b}), Patience);
        QCOMPARE(xmlOf(ask(socketPath, madeEvent(EventCode::ExportProjectXml, {project(b)}))), Project);
        QCOMPARE(
            errorOf(ask(socketPath, madeEvent(EventCode::ImportXml, {project(a), xmlData(binNamed("5"))}))),
            -10000);
        QVERIFY(contentOf(path("it's a log")).contains("\"id\":\"odoc\""));

        QCOMPARE(::kill(Connection(socketPath).peer(), SIGTERM), 0);
        QTRY_VERIFY_WITH_TIMEOUT(!Workspace::isRunning(identifier), Patience);
        UserDefaults::standard().removeValue(latin("applicationsFolder"));
    }

    void worksWithTheProgramsOwnEnd()
    {
        UserDefaults::standard().setValue(latin("applicationsFolder"), path("apps"));
        QCOMPARE(QProcess::execute(Host::program(), {latin("--install-bundle"), path("apps")}), 0);
        const QString file = addProject("a.xml");
        const QString other =
            addProject("a folder with a name that is longer than a reference has room for/b.xml");
        QVERIFY(!QVAppleEvents::getProjectXMLData(file, false));
        QCOMPARE(QVAppleEvents::getProjectXMLData(file, true), Project); // starts it
        const pid_t host = Connection(Workspace::eventSocketPath(latin("KeyG"))).peer();
        QCOMPARE(QVAppleEvents::getProjectXMLData(other, true, true),
                 Project); // opens it there and closes it
        QCOMPARE(QVAppleEvents::listOfOpenFCPProjects(), QStringList{file});
        QVERIFY(QVAppleEvents::sendXMLToFCP(QString::fromUtf8(binNamed("Küste 😀")), file));
        QVERIFY(contentOf(file).contains("<name>Küste 😀</name>"));
        const auto sequences = QVAppleEvents::sequencesInProject(other);
        QVERIFY(sequences);
        QCOMPARE(sequences->sequences.size(), std::size_t(1));
        QCOMPARE(sequences->sequences.front().attribute("id"), latin("Cut"));
        QVERIFY(QFile::remove(other));
        m_home->addFile(QDir(m_home->path()).relativeFilePath(other), "old");
        QVERIFY(QVAppleEvents::saveProject(other));
        QCOMPARE(contentOf(other), Project);
        QVAppleEvents::closeProject(other, false);
        QCOMPARE(QVAppleEvents::listOfOpenFCPProjects(), QStringList{file});

        QCOMPARE(::kill(host, SIGTERM), 0);
        QTRY_VERIFY_WITH_TIMEOUT(!QVAppleEvents::isFCPRunning(), Patience);
        QVERIFY(!QVAppleEvents::listOfOpenFCPProjects());
        UserDefaults::standard().removeValue(latin("applicationsFolder"));
    }

    void leavesOtherBundlesAlone()
    {
        const QString executable =
            m_home->addFile(latin("apps/Final Cut Pro.app/Contents/MacOS/Final Cut Pro"), "another program");
        QCOMPARE(QProcess::execute(Host::program(), {latin("--install-bundle"), path("apps")}), 1);
        QCOMPARE(contentOf(executable), QByteArray("another program"));
        QVERIFY(!QFile::exists(path("apps/Final Cut Pro.app/Contents/Info.plist")));
    }

    void refusesToStart_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        const auto row = [](const char *arguments, int status) {
            QTest::newRow(arguments) << latin(arguments).split(QLatin1Char(' ')) << status;
        };
        row("--version", 2);
        row("--version seven", 2);
        row("--delay -1", 2);
        row("--delay nan", 2);
        row("--delay 3601", 2);
        row("--fail none", 2);
        row("--none", 2);
        row("--install-bundle apps a.xml", 2);
        row("absent.xml", 1);
        row("--closed absent.xml", 1);
        row("--log /absent/log", 1);
        row("--socket-dir /dev/null", 1);
        row("/dev/null", 1);
        row("--help", 0);
        row("--program-version", 0);
    }
    void refusesToStart()
    {
        QFETCH(QStringList, arguments);
        QProcess process;
        process.setWorkingDirectory(m_home->path());
        process.start(Host::program(), arguments);
        QVERIFY(process.waitForFinished(Patience));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QTEST(process.exitCode(), "status");
        QCOMPARE(process.readAllStandardOutput().isEmpty(), process.exitCode() != 0);
        QCOMPARE(process.readAllStandardError().isEmpty(), process.exitCode() == 0);
        QVERIFY(!QFile::exists(path("run/vantrell/KeyG")));
    }

    void saysWhenThereIsNoPlaceForTheSocket()
    {
        qunsetenv("XDG_RUNTIME_DIR");
        QCOMPARE(QProcess::execute(Host::program(), QStringList()), 1);
        Host tooLong(path("s") + QString(100, QLatin1Char('x')), {});
        QCOMPARE(tooLong.statusAfter(0), 1);
        QVERIFY(tooLong.hasSaid("cannot be made"));
    }
};

QTEST_GUILESS_MAIN(FcpHostTest)
#include "tst_fcphost.moc"
