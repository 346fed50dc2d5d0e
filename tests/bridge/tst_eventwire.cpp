#include "bridge/EventCodes.h"
#include "bridge/FileReference.h"
#include "tests/support/EventBytes.h"

#include <QTest>

#include <algorithm>

using namespace vantrell;

namespace
{

QByteArray number(quint32 value)
{
    QByteArray bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.append(char(value >> shift & 0xff));
    return bytes;
}

/// The bytes of a value.
QByteArray value(const char *type, const QByteArray &content)
{
    return type + number(quint32(content.size())) + content;
}

/// The bytes of a reply whose parameters read so.
QByteArray reply(const QByteArray &parameters)
{
    const QByteArray body = "aevtansr" + number(0xffffffff) + number(0) + number(3) + number(1) +
                            number(0xffffffff) + value("null", {}) + parameters;
    return "vAev" + number(1) + number(quint32(body.size())) + body;
}

/// One parameter with that value.
QByteArray replyWith(const QByteArray &value)
{
    return reply(number(1) + "xmlD" + value);
}

QByteArray nested(int lists)
{
    QByteArray inner = value("utf8", "x");
    for (int i = 0; i < lists; ++i)
        inner = value("list", number(1) + inner);
    return inner;
}

EventDescriptor nestedLists(int lists)
{
    EventDescriptor inner = EventDescriptor::fromUtf8("x");
    for (int i = 0; i < lists; ++i)
        inner = EventDescriptor::fromList({inner});
    return inner;
}

EventRecord withParameter(const EventDescriptor &value)
{
    EventRecord record = EventRecord::reply();
    record.setParameter(EventCode::XmlData, value);
    return record;
}

/// An event with values of every type.
EventRecord everything()
{
    EventRecord record;
    record.eventClass = EventCode::FinalCutPro;
    record.identifier = EventCode::ImportXml;
    record.address = EventDescriptor::fromSignature(EventCode::FinalCutPro);
    record.returnId = -7;
    record.transaction = 2;
    record.sendMode = 1;
    record.priority = 0;
    record.timeout = 36000;
    record.parameters = {
        {EventCode::XmlData, EventDescriptor::fromUtf8("caf\xc3\xa9")},
        {EventCode::ProjectUrl, EventDescriptor::fromFileUrl("/a%20b")},
        {EventCode::Overwrite, EventDescriptor::fromBool(true)},
        {EventCode::DiscardChanges, EventDescriptor::fromInteger(-2)},
        {EventCode::Project, EventDescriptor::fromFileReference(QByteArray(80, 'r'))},
        {EventCode::ItemIdentifier, EventDescriptor()},
        {EventCode::OpenProjects,
         EventDescriptor::fromList(
             {EventDescriptor::fromList({}),
              EventDescriptor::fromRecord({{EventCode::ProjectFile, EventDescriptor::fromBool(false)},
                                           {EventCode::ItemIdentifier, EventDescriptor::fromUtf8("")}})})},
    };
    return record;
}

} // namespace

class EventWireTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bytesOfAnEvent()
    {
        EventRecord record;
        record.eventClass = EventCode::FinalCutPro;
        record.identifier = EventCode::CloseProject;
        record.address = EventDescriptor::fromSignature(EventCode::FinalCutPro);
        record.setParameter(EventCode::DiscardChanges, EventDescriptor::fromInteger(1));
        const auto bytes = EventWire::flatten(record);
        QVERIFY(bytes);
        const char expected[] = "vAev\0\0\0\1\0\0\0\x3c"
                                "KeyGcfcP\xff\xff\xff\xff\0\0\0\0\0\0\0\3\0\0\0\1\xff\xff\xff\xff"
                                "sign\0\0\0\4KeyG\0\0\0\1"
                                "fcCFlong\0\0\0\4\0\0\0\1";
        QCOMPARE(bytes.value().toHex(), QByteArray(expected, sizeof(expected) - 1).toHex());
    }

    void roundTrips_data()
    {
        QTest::addColumn<EventRecord>("record");
        QTest::newRow("reply") << EventRecord::reply();
        QTest::newRow("error") << EventRecord::errorReply(-1708);
        QTest::newRow("everything") << everything();
        for (const int size : {4095, 4096, 4097, 65536, 65537, 20'000'000})
            QTest::addRow("%d bytes", size)
                << withParameter(EventDescriptor::fromUtf8(QByteArray(size, 'x')));
        QTest::newRow("deep") << withParameter(nestedLists(EventWire::maximumDepth));
        const std::size_t most = EventWire::maximumValues - 2; // beside the address and the list itself
        QTest::newRow("many") << withParameter(EventDescriptor::fromList(std::vector<EventDescriptor>(most)));
    }
    void roundTrips()
    {
        QFETCH(EventRecord, record);
        const auto bytes = EventWire::flatten(record);
        QVERIFY2(bytes, qPrintable(bytes.message()));
        const auto back = EventWire::unflatten(bytes.value());
        QVERIFY2(back, qPrintable(back.message()));
        QVERIFY(back.value() == record);
    }

    void arrivesInAnyPortions()
    {
        const QByteArray next = "next record";
        const auto bytes = EventWire::flatten(everything());
        for (const qsizetype portion : {1, 3, 100, 100000}) {
            QByteArray stream = bytes.value() + next;
            const auto back = EventWire::read([&](char *buffer, qsizetype maximum) {
                const qsizetype count = std::min({portion, maximum, stream.size()});
                std::copy_n(stream.cbegin(), count, buffer);
                stream.remove(0, count);
                return count;
            });
            QVERIFY(back);
            QVERIFY(back.value() == everything());
            QCOMPARE(stream, next);
        }
    }

    void cutOffAnywhere()
    {
        const QByteArray bytes = EventWire::flatten(everything()).value();
        for (qsizetype size = 0; size < bytes.size(); ++size)
            QVERIFY2(!EventWire::unflatten(bytes.first(size)), qPrintable(QString::number(size)));
    }

    void anyByteChanged()
    {
        QByteArray bytes = EventWire::flatten(everything()).value();
        for (char &byte : bytes) {
            for (const int flip : {1, 0x80, 0xff}) {
                byte = char(byte ^ flip);
                const auto back = EventWire::unflatten(bytes);
                if (back) // then it is another event, and one that can be written again
                    QCOMPARE(EventWire::flatten(back.value()).value(), bytes);
                byte = char(byte ^ flip);
            }
        }
    }

    void malformed_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("fault");
        const auto add = [](const char *name, const QByteArray &bytes, const char *fault) {
            QTest::newRow(name) << bytes << QString::fromLatin1(fault);
        };
        const QByteArray good = reply(number(0));
        const auto changed = [&](qsizetype at, const QByteArray &to) {
            return QByteArray(good).replace(at, to.size(), to);
        };
        add("good", good, "");
        add("empty", "", "The event is cut off.");
        add("other magic", changed(0, "VAev"), "The bytes are no event.");
        add("other version", changed(4, number(2)), "The event has the unknown version 2.");
        add("one byte more", good + 'x', "The event is longer than it says.");
        add("says less", changed(8, number(quint32(good.size() - 13))), "The event is longer than it says.");
        add("says more, is more", changed(8, number(quint32(good.size() - 11))) + 'x',
            "The event is shorter than it says.");
        add("says more", changed(8, number(quint32(good.size() - 11))), "The event is shorter than it says.");
        add("says nothing", "vAev" + number(1) + number(0), "The event is longer than it says.");
        add("too large", "vAev" + number(1) + number(0x7ffffff4),
            "The event is larger than 2147483647 bytes.");
        add("as large as can be", "vAev" + number(1) + number(0x7ffffff3), "The event is cut off.");
        add("unknown type", replyWith(value("utxt", "ab")), "A value of type \"utxt\" cannot have 2 bytes.");
        add("unprintable type", replyWith(value("\1\2\3\4", "")),
            "A value of type \"0x01020304\" cannot have 0 bytes.");
        add("long of 3", replyWith(value("long", "abc")), "A value of type \"long\" cannot have 3 bytes.");
        add("bool of 0", replyWith(value("bool", "")), "A value of type \"bool\" cannot have 0 bytes.");
        add("reference of 79", replyWith(value("fsrf", QByteArray(79, 'x'))),
            "A value of type \"fsrf\" cannot have 79 bytes.");
        add("null of 1", replyWith(value("null", "x")), "A value of type \"null\" cannot have 1 bytes.");
        add("value beyond the event", replyWith("utf8" + number(3) + "ab"),
            "A value is longer than its event.");
        add("huge value", replyWith("utf8" + number(0xffffffff)), "A value is longer than its event.");
        add("huge number of parameters", reply(number(0xffffffff)),
            "The event announces more values than it holds.");
        add("huge list", replyWith(value("list", number(0xffffffff))),
            "The event announces more values than it holds.");
        add("huge record", replyWith(value("reco", number(0x10000000) + QByteArray(64, '\0'))),
            "The event announces more values than it holds.");
        add("list that holds more", replyWith(value("list", number(0) + value("null", ""))),
            "A list or record is shorter than it says.");
        add("list without a number", replyWith(value("list", "")), "The event is longer than it says.");
        add("value beyond its list",
            replyWith(value("list", number(1) + "utf8" + number(8)) + value("null", "")),
            "A value is longer than its event.");
        add("as deep as can be", replyWith(nested(EventWire::maximumDepth)), "");
        add("too deep", replyWith(nested(EventWire::maximumDepth + 1)),
            "Values are nested more than 16 deep.");
        add("far too deep", replyWith(nested(20000)), "Values are nested more than 16 deep.");
        const int most = EventWire::maximumValues;
        add("too many values",
            replyWith(value("list", number(quint32(most - 1)) + value("null", "").repeated(most - 1))),
            "The event holds more than 65536 values.");
    }
    void malformed()
    {
        QFETCH(QByteArray, bytes);
        QTEST(EventWire::unflatten(bytes).message(), "fault");
    }

    void roomGrowsWithWhatArrives()
    {
        // Two gigabytes are announced and a few bytes come: the room asked for at once stays small.
        const QByteArray start = "vAev" + number(1) + number(0x7ffffff3) + "aevtansr" + QByteArray(20, '\0') +
                                 value("null", {}) + number(1) + "xmlDutf8" + number(0x7fffff00);
        qsizetype largest = 0;
        qsizetype sent = 0;
        const auto result = EventWire::read([&](char *buffer, qsizetype maximum) -> qsizetype {
            largest = std::max(largest, maximum);
            if (sent == start.size())
                return 0;
            const qsizetype count = std::min(maximum, start.size() - sent);
            std::copy_n(start.cbegin() + sent, count, buffer);
            sent += count;
            return count;
        });
        QCOMPARE(result.message(), QStringLiteral("The event is cut off."));
        QVERIFY2(largest <= 65536, qPrintable(QString::number(largest)));
    }

    void cannotBeWritten_data()
    {
        QTest::addColumn<EventRecord>("record");
        QTest::newRow("unknown type") << withParameter({FourCharCode("utxt"), "ab"});
        QTest::newRow("short reference") << withParameter(EventDescriptor::fromFileReference("ab"));
        QTest::newRow("too deep") << withParameter(nestedLists(EventWire::maximumDepth + 1));
        QTest::newRow("too many") << withParameter(
            EventDescriptor::fromList(std::vector<EventDescriptor>(EventWire::maximumValues - 1)));
        EventRecord large = EventRecord::reply();
        const EventDescriptor half = EventDescriptor::fromUtf8(QByteArray(1 << 26, 'x'));
        large.parameters.assign(32, {EventCode::XmlData, half}); // 2 GiB that share 64 MiB
        QTest::newRow("too large") << large;
    }
    void cannotBeWritten()
    {
        QFETCH(EventRecord, record);
        QVERIFY(!EventWire::pieces(record));
    }

    void largeTextsAreShared()
    {
        const QByteArray text(100000, 'x');
        const auto pieces = EventWire::pieces(withParameter(EventDescriptor::fromUtf8(text)));
        QVERIFY(std::any_of(pieces.value().begin(), pieces.value().end(),
                            [&](const QByteArray &piece) { return piece.constData() == text.constData(); }));
    }

    void typedValues()
    {
        QCOMPARE(EventDescriptor::fromInteger(-2).bytes().toHex(), QByteArray("fffffffe"));
        QCOMPARE(EventDescriptor::fromInteger(-2).toInteger(), std::optional<std::int32_t>(-2));
        QVERIFY(!EventDescriptor::fromBool(true).toInteger());
        QVERIFY(!EventDescriptor(EventCode::Integer, "abc").toInteger());
        QVERIFY(!EventDescriptor(EventCode::Bool, "ab").toBool());
        QVERIFY(!EventDescriptor::fromUtf8("x").toFileUrl());
        QVERIFY(!EventDescriptor::fromFileReference("x").toFileReference());
        QCOMPARE(EventRecord::errorReply(-43).errorNumber(), -43);
        QCOMPARE(EventRecord::reply().errorNumber(), 0);
        EventRecord record = everything();
        record.setParameter(EventCode::Overwrite, EventDescriptor::fromBool(false));
        QCOMPARE(record.parameters.size(), everything().parameters.size());
        QCOMPARE(record.takeParameter(EventCode::Overwrite)->toBool(), std::optional(false));
        QVERIFY(!record.takeParameter(EventCode::Overwrite));
    }
};

QTEST_GUILESS_MAIN(EventWireTest)
#include "tst_eventwire.moc"
