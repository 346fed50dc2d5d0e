#include "bridge/EventCodes.h"
#include "bridge/SocketEventTransport.h"
#include "tests/bridge/ScriptedHost.h"
#include "tests/support/EventBytes.h"
#include "tests/support/TemporaryHome.h"

#include <QElapsedTimer>
#include <QTest>

#include <future>
#include <optional>

using namespace vantrell;
using namespace std::chrono_literals;

namespace
{

EventRecord exportEvent(std::int32_t timeout = EventRecord::systemTimeout)
{
    EventRecord event;
    event.eventClass = EventCode::FinalCutPro;
    event.identifier = EventCode::ExportProjectXml;
    event.address = EventDescriptor::fromSignature(EventCode::FinalCutPro);
    event.timeout = timeout;
    return event;
}

EventRecord textReply(const QByteArray &text)
{
    EventRecord reply = EventRecord::reply();
    reply.setParameter(EventCode::XmlData, EventDescriptor::fromUtf8(text));
    return reply;
}

/// The number of the failure, 0 for none.
std::int32_t numberOf(const EventResult<EventRecord> &result)
{
    return result ? 0 : result.failure().number;
}

} // namespace

Q_DECLARE_METATYPE(vantrell::ScriptedHost::Answer)

class EventTransportTest : public QObject
{
    Q_OBJECT

    std::optional<TemporaryHome> m_home;

private Q_SLOTS:
    void init() { m_home.emplace(); }
    void cleanup() { m_home.reset(); }

    void thereAndBack_data()
    {
        QTest::addColumn<int>("size");
        for (const int size : {0, 1, 100'000, 40'000'000})
            QTest::addRow("%d bytes", size) << size;
    }
    void thereAndBack()
    {
        QFETCH(int, size);
        const ScriptedHost host(ScriptedHost::replying([](const EventRecord &event) {
            return textReply(event.parameter(EventCode::XmlData)->toUtf8().value() + '!');
        }));
        EventRecord sent = exportEvent();
        QByteArray text(size, 'x');
        sent.setParameter(EventCode::XmlData, EventDescriptor::fromUtf8(text));
        auto reply = SocketEventTransport().send(sent, {});
        QVERIFY(reply);
        QCOMPARE(reply.value().parameter(EventCode::XmlData)->toUtf8().value() == text + '!', true);
        QVERIFY(host.events().at(0) == sent);
    }

    void manyAtATime()
    {
        const ScriptedHost host(ScriptedHost::replying(
            [](const EventRecord &event) { return textReply(QByteArray::number(event.transaction)); }));
        SocketEventTransport transport;
        constexpr int count = 32; // more than may wait to be accepted
        std::vector<std::future<bool>> results;
        results.reserve(count);
        for (int i = 0; i < count; ++i)
            results.push_back(std::async(std::launch::async, [&transport, i] {
                EventRecord sent = exportEvent();
                sent.transaction = i;
                auto reply = transport.send(sent, {});
                return reply && reply.value().parameter(EventCode::XmlData)->bytes() == QByteArray::number(i);
            }));
        for (auto &result : results)
            QVERIFY(result.get());
    }

    void answers_data()
    {
        QTest::addColumn<ScriptedHost::Answer>("answer");
        QTest::addColumn<int>("number");
        const auto add = [](const char *name, const ScriptedHost::Answer &answer, int number) {
            QTest::newRow(name) << answer << int(number);
        };
        const auto bytes = [](const QByteArray &answer) {
            return [answer](int socket, const EventRecord &) { ScriptedHost::write(socket, answer); };
        };
        const QByteArray good = EventWire::flatten(textReply("text")).value();
        add("reply", bytes(good), 0);
        add("an error is a reply", bytes(EventWire::flatten(EventRecord::errorReply(-5)).value()), 0);
        add("nothing", bytes({}), EventError::ConnectionInvalid);
        for (const qsizetype size : {qsizetype(1), qsizetype(12), good.size() - 1})
            add(qPrintable(QStringLiteral("ends after %1").arg(size)), bytes(good.first(size)),
                EventError::ConnectionInvalid);
        add("no event", bytes("HTTP/1.1 200 OK\r\n"), EventError::CorruptData);
        add("another version", bytes(QByteArray(good).replace(7, 1, "\2")), EventError::CorruptData);
        add("longer inside", bytes(QByteArray(good).replace(good.size() - 5, 1, "\5")),
            EventError::CorruptData);
        add("no reply", bytes(EventWire::flatten(exportEvent()).value()), EventError::CorruptData);
        add(
            "byte for byte",
            [good](int socket, const EventRecord &) {
                for (const char byte : good)
                    ScriptedHost::write(socket, QByteArray(1, byte));
            },
            0);
        add(
            "never", [](int socket, const EventRecord &) { ScriptedHost::waitForClose(socket); },
            EventError::TimedOut);
        add(
            "never whole",
            [good](int socket, const EventRecord &) {
                ScriptedHost::write(socket, good.first(20));
                ScriptedHost::waitForClose(socket);
            },
            EventError::TimedOut);
        add(
            "endless",
            [good](int socket, const EventRecord &) {
                QByteArray start = good.first(good.size() - 8);
                start.replace(8, 4, "\x7f\xff\xff\xf3");
                ScriptedHost::write(socket, start + "\x7f\xff\xff\1");
                while (ScriptedHost::write(socket, "x"))
                    std::this_thread::sleep_for(1ms);
            },
            EventError::TimedOut);
        add(
            "endless noise",
            [](int socket, const EventRecord &) {
                while (ScriptedHost::write(socket, QByteArray(4096, 'x'))) {
                }
            },
            EventError::CorruptData);
    }
    void answers()
    {
        QFETCH(ScriptedHost::Answer, answer);
        const ScriptedHost host(answer);
        QFETCH(int, number);
        // Only what is to time out may: the others have the time that the slowest of builds needs.
        const auto timeout = number == EventError::TimedOut ? 100ms : 60000ms;
        QCOMPARE(numberOf(SocketEventTransport(timeout).send(exportEvent(), {})), number);
    }

    void hostThatReadsNothing()
    {
        EventRecord sent = exportEvent();
        sent.setParameter(EventCode::XmlData, EventDescriptor::fromUtf8(QByteArray(40'000'000, 'x')));
        const QString path = Workspace::eventSocketPath(QStringLiteral("KeyG"));
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        const auto address = socketAddress(path);
        Descriptor listening(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
        QCOMPARE(::bind(listening.number(), reinterpret_cast<const sockaddr *>(&*address), sizeof(*address)),
                 0);
        SocketEventTransport transport(100ms);
        QCOMPARE(numberOf(transport.send(sent, {})), EventError::ProcessNotFound); // nobody listens
        QCOMPARE(::listen(listening.number(), 1), 0);
        for (int i = 0; i < 4; ++i) // the last ones are not even let in
            QCOMPARE(numberOf(transport.send(sent, {})), EventError::TimedOut);
        listening.close();
        QCOMPARE(numberOf(transport.send(sent, {})), EventError::ProcessNotFound);
    }

    void hostThatDiesWhileItIsWrittenTo()
    {
        EventRecord sent = exportEvent();
        sent.setParameter(EventCode::XmlData, EventDescriptor::fromUtf8(QByteArray(40'000'000, 'x')));
        const QString path = Workspace::eventSocketPath(QStringLiteral("KeyG"));
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        const auto address = socketAddress(path);
        const Descriptor listening(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
        QCOMPARE(::bind(listening.number(), reinterpret_cast<const sockaddr *>(&*address), sizeof(*address)),
                 0);
        QCOMPARE(::listen(listening.number(), 1), 0);
        std::thread host([&] {
            const Descriptor connection(::accept(listening.number(), nullptr, nullptr));
            char bytes[1000];
            QVERIFY(::recv(connection.number(), bytes, sizeof(bytes), 0) > 0);
        });
        QCOMPARE(numberOf(SocketEventTransport().send(sent, {})), EventError::ConnectionInvalid);
        host.join();
    }

    void timeouts_data()
    {
        QTest::addColumn<int>("systemTimeout"); // milliseconds
        QTest::addColumn<int>("ticks");
        QTest::newRow("the system's") << 50 << -1;
        QTest::newRow("the event's") << 600'000 << 3; // 50 ms
        QTest::newRow("none left") << 600'000 << 0;
    }
    void timeouts()
    {
        const ScriptedHost host([](int socket, const EventRecord &) { ScriptedHost::waitForClose(socket); });
        QFETCH(int, systemTimeout);
        QFETCH(int, ticks);
        QElapsedTimer timer;
        timer.start();
        const std::chrono::milliseconds time(systemTimeout);
        QCOMPARE(numberOf(SocketEventTransport(time).send(exportEvent(ticks), {})), EventError::TimedOut);
        if (ticks != 0)
            QVERIFY(timer.elapsed() >= 50);
        QVERIFY(timer.elapsed() < 300'000);
    }

    void cancelling_data()
    {
        QTest::addColumn<int>("when"); // 0 before, 1 while it waits for the reply, 2 in the middle of it
        QTest::newRow("before") << 0;
        QTest::newRow("no answer yet") << 1;
        QTest::newRow("half an answer") << 2;
    }
    void cancelling()
    {
        QFETCH(int, when);
        EventCancel cancel;
        if (when == 0)
            cancel.cancel();
        const ScriptedHost host([&](int socket, const EventRecord &) {
            if (when == 2)
                ScriptedHost::write(socket, EventWire::flatten(textReply("text")).value().first(30));
            EventCancel(cancel).cancel();
            ScriptedHost::waitForClose(socket);
        });
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(numberOf(SocketEventTransport(10min).send(exportEvent(EventRecord::noTimeout), cancel)),
                 EventError::Cancelled);
        QVERIFY(timer.elapsed() < 40000);
        QCOMPARE(host.events().size(), std::size_t(when == 0 ? 0 : 1));
        QVERIFY(cancel.waitFor(10min));
        QVERIFY(!EventCancel().waitFor(0ms));
    }

    void otherUser()
    {
        const ScriptedHost host(
            ScriptedHost::replying([](const EventRecord &) { return EventRecord::reply(); }));
        QCOMPARE(numberOf(SocketEventTransport(1min, ::geteuid() + 1).send(exportEvent(), {})),
                 EventError::NotPermitted);
        QVERIFY(host.events().empty());
        QCOMPARE(numberOf(SocketEventTransport(1min, ::geteuid()).send(exportEvent(), {})), 0);
    }

    void cannotBeSent()
    {
        const ScriptedHost host(
            ScriptedHost::replying([](const EventRecord &) { return EventRecord::reply(); }));
        SocketEventTransport transport;
        EventRecord malformed = exportEvent();
        malformed.setParameter(EventCode::Project, EventDescriptor::fromFileReference("short"));
        QCOMPARE(numberOf(transport.send(malformed, {})), EventError::BadParameter);
        QCOMPARE(numberOf(transport.addParameter(exportEvent(), EventCode::Project,
                                                 EventDescriptor::fromFileReference("short"))),
                 EventError::BadParameter);
        EventRecord nowhere = exportEvent();
        nowhere.address = EventDescriptor();
        QCOMPARE(numberOf(transport.send(nowhere, {})), EventError::BadParameter);
        EventRecord elsewhere = exportEvent();
        elsewhere.address = EventDescriptor::fromSignature(FourCharCode("ABCD"));
        QCOMPARE(numberOf(transport.send(elsewhere, {})), EventError::ProcessNotFound);
        qputenv("XDG_RUNTIME_DIR", QByteArray("/") + QByteArray(200, 'x'));
        QCOMPARE(numberOf(transport.send(exportEvent(), {})), EventError::ProcessNotFound);
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_home->path(QStringLiteral("run"))));
        QVERIFY(host.events().empty());
    }
};

QTEST_GUILESS_MAIN(EventTransportTest)
#include "tst_eventtransport.moc"
