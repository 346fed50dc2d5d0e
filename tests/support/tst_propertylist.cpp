#include "TemporaryHome.h"

#include "support/files/PropertyList.h"

#include <QTest>

using namespace vantrell;
using Dictionary = QVariantMap;
using Array = QVariantList;

namespace
{

QByteArray xml(const QByteArray &body)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + body + "</plist>\n";
}

/// A binary list from its objects; offsets and references take one byte each.
QByteArray binary(const QList<QByteArray> &objects, char top = 0)
{
    QByteArray bytes("bplist00");
    QByteArray offsets;
    for (const QByteArray &object : objects) {
        offsets.append(static_cast<char>(bytes.size()));
        bytes.append(object);
    }
    const char table = static_cast<char>(bytes.size());
    bytes.append(offsets).append(QByteArray(6, '\0')).append("\1\1");
    const auto appendNumber = [&bytes](char number) { bytes.append(QByteArray(7, '\0')).append(number); };
    appendNumber(static_cast<char>(objects.size()));
    appendNumber(top);
    appendNumber(table);
    return bytes;
}

QVariant everything()
{
    return Dictionary{
        {QStringLiteral("zebra & <q>"), QStringLiteral("a & b < c > \"d\" 'e'")},
        {QStringLiteral("apple"), QStringLiteral("Grüße 日本 \U0001F3AC\n\tsecond line  ")},
        {QStringLiteral("blank"), QStringLiteral("   ")},
        {QStringLiteral("empty"), QString(QLatin1String(""))},
        {QStringLiteral("yes"), true},
        {QStringLiteral("no"), false},
        {QStringLiteral("least"), std::numeric_limits<qint64>::min()},
        {QStringLiteral("most"), std::numeric_limits<qint64>::max()},
        {QStringLiteral("third"), 0.1 + 0.2},
        {QStringLiteral("huge"), -1.5e300},
        {QStringLiteral("date"), QDateTime(QDate(2026, 11, 21), QTime(2, 14, 0), Qt::UTC)},
        {QStringLiteral("data"), QByteArray("\0\xff&<", 4)},
        {QStringLiteral("list"), Array{1, QStringLiteral("two"), Array{}, Dictionary{}}},
    };
}

QByteArray nested(int levels)
{
    return xml(QByteArray("<array>").repeated(levels) + QByteArray("</array>").repeated(levels));
}

} // namespace

class TestPropertyList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roundTrip_data()
    {
        QTest::addColumn<PropertyList::Format>("format");
        QTest::newRow("xml") << PropertyList::Format::Xml;
        QTest::newRow("binary") << PropertyList::Format::Binary;
    }

    void roundTrip()
    {
        QFETCH(PropertyList::Format, format);
        const TemporaryHome home;
        const QString path = home.path(QStringLiteral("list.plist"));
        QVERIFY(PropertyList::toFile(everything(), path, format));
        const Result<QVariant> read = PropertyList::fromFile(path);
        QVERIFY2(read, qPrintable(read.message()));
        QVERIFY(read.value() == everything());
    }

    void reading_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QVariant>("expected");
        const QString text = QStringLiteral("é<b");
        QTest::newRow("entities") << xml("<string>&#233;&lt;b</string>") << QVariant(text);
        QTest::newRow("CDATA, comment")
            << xml("<string>\xc3\xa9<!-- x --><![CDATA[<b]]></string>") << QVariant(text);
        QTest::newRow("byte-order mark") << "\xef\xbb\xbf" + xml("<true/>") << QVariant(true);
        QTest::newRow("repeated key") << xml("<dict><key>a</key><integer>1</integer>"
                                             "<key>a</key><integer>2</integer></dict>")
                                      << QVariant(Dictionary{{QStringLiteral("a"), 2}});
        QTest::newRow("binary dictionary")
            << binary({"\xd1\1\2", "Qa", "\x09"}) << QVariant(Dictionary{{QStringLiteral("a"), true}});
        QTest::newRow("binary UTF-16")
            << binary({QByteArray("\x61\0\xe9", 3)}) << QVariant(QStringLiteral("é"));
        QTest::newRow("binary shared object")
            << binary({"\xa2\1\1", QByteArray("\x13\xff\xff\xff\xff\xff\xff\xff\xfe", 9)})
            << QVariant(Array{-2, -2});
    }

    void reading()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QVariant, expected);
        const Result<QVariant> read = PropertyList::fromBytes(bytes);
        QVERIFY2(read, qPrintable(read.message()));
        QVERIFY(read.value() == expected);
    }

    void refused_data()
    {
        // Forty arrays that each hold the next one twice unfold to 2^40 values.
        QList<QByteArray> bomb;
        for (char i = 1; i <= 40; ++i)
            bomb.append(QByteArray("\xa2") + i + i);
        bomb.append("\x09");

        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("text") << QByteArray("no property list");
        QTest::newRow("root not closed") << QByteArray("<plist><string>a</string>");
        QTest::newRow("cut in a value") << QByteArray("<plist><dict><key>a</key><str");
        QTest::newRow("no value") << xml("");
        QTest::newRow("unknown element") << xml("<marker/>");
        QTest::newRow("text as key") << xml("<dict><string>a</string></dict>");
        QTest::newRow("entities declared") << QByteArray(
            "<!DOCTYPE plist [<!ENTITY a \"<array><array>\">]><plist><string>&a;</string></plist>");
        QTest::newRow("too deep") << nested(PropertyList::maximumDepth + 2);
        QTest::newRow("endlessly deep") << QByteArray("<plist>") + QByteArray("<array>").repeated(1'000'000);
        QTest::newRow("binary trailer only") << QByteArray("bplist00") + QByteArray(32, '\xff');
        QTest::newRow("binary without objects") << binary({});
        QTest::newRow("binary top out of range") << binary({"\x09"}, 1);
        QTest::newRow("binary ring") << binary({"\xa1\1", QByteArray("\xa1\0", 2)});
        QTest::newRow("binary long text") << binary({"\x5f\x13\x7f\xff\xff\xff\xff\xff\xff\xff"});
        QTest::newRow("binary null in a key") << binary({"\xd1\1\2", QByteArray("Ra\0", 3), "\x09"});
        QTest::newRow("binary bomb") << binary(bomb);
    }

    void refused()
    {
        QFETCH(QByteArray, bytes);
        const Result<QVariant> read = PropertyList::fromBytes(bytes);
        QVERIFY(!read);
        QVERIFY(!read.message().isEmpty());
    }

    void depthLimitHoldsBothWays()
    {
        const Result<QVariant> deepest = PropertyList::fromBytes(nested(PropertyList::maximumDepth + 1));
        QVERIFY(deepest);
        for (const PropertyList::Format format : {PropertyList::Format::Xml, PropertyList::Format::Binary}) {
            const Result<QByteArray> written = PropertyList::toBytes(deepest.value(), format);
            QVERIFY(written);
            QVERIFY(PropertyList::fromBytes(written.value()));
            QVERIFY(!PropertyList::toBytes(Array{deepest.value()}, format));
        }
    }

    /// Whatever is cut off or overwritten, the result is a value or a failure.
    void survivesDamage()
    {
        for (const PropertyList::Format format : {PropertyList::Format::Xml, PropertyList::Format::Binary}) {
            const Result<QByteArray> whole = PropertyList::toBytes(everything(), format);
            QVERIFY(whole);
            const qsizetype size = whole.value().size();
            for (qsizetype i = 0; i < size; ++i) {
                const bool isCutValid = PropertyList::fromBytes(whole.value().left(i)).isOk();
                // Only the line end after the root element may be missing.
                QVERIFY2(!isCutValid || (format == PropertyList::Format::Xml && i == size - 1),
                         qPrintable(QString::number(i)));
                for (const char byte : {'\0', '<', '\x7f', '\xff'}) {
                    QByteArray changed = whole.value();
                    changed[i] = byte;
                    const Result<QVariant> read = PropertyList::fromBytes(changed);
                    QVERIFY(read || !read.message().isEmpty());
                }
            }
        }
    }

    void writingDropsWhatHasNoForm()
    {
        const QString text = QString(u'a') + QChar(0) + QChar(0x1b) + QChar(0xd83c) + u'b' + QChar(0xfffe);
        const QVariant value =
            Dictionary{{QStringLiteral("texts"), Array{text, QVariant(), QStringLiteral("c")}}};
        const QVariant expected =
            Dictionary{{QStringLiteral("texts"), Array{QStringLiteral("ab"), QStringLiteral("c")}}};
        const Result<QByteArray> written = PropertyList::toBytes(value, PropertyList::Format::Xml);
        QVERIFY(written);
        const Result<QVariant> read = PropertyList::fromBytes(written.value());
        QVERIFY(read);
        QVERIFY(read.value() == expected);
        QVERIFY(!PropertyList::toBytes(QVariant(), PropertyList::Format::Xml));
    }

    void conversions_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("boolean");
        QTest::addColumn<qint64>("integer");
        QTest::addColumn<QString>("text");
        QTest::newRow("text number") << QVariant(QStringLiteral(" -12x")) << true << qint64(-12)
                                     << QStringLiteral(" -12x");
        QTest::newRow("YES") << QVariant(QStringLiteral("YES")) << true << qint64(0) << QStringLiteral("YES");
        QTest::newRow("text 0") << QVariant(QStringLiteral("00")) << false << qint64(0)
                                << QStringLiteral("00");
        QTest::newRow("boolean") << QVariant(true) << true << qint64(1) << QStringLiteral("1");
        QTest::newRow("real") << QVariant(-2.75) << true << qint64(-2) << QStringLiteral("-2.75");
        QTest::newRow("huge real") << QVariant(1e19) << true << std::numeric_limits<qint64>::max()
                                   << QStringLiteral("10000000000000000000");
        QTest::newRow("not a number") << QVariant(std::nan("")) << true << qint64(0) << QStringLiteral("nan");
        QTest::newRow("array") << QVariant(Array{1}) << false << qint64(0) << QString();
    }

    void conversions()
    {
        QFETCH(QVariant, value);
        QTEST(PropertyList::boolean(value), "boolean");
        QTEST(PropertyList::integer(value), "integer");
        if (value.typeId() != QMetaType::Double || value.toDouble() < 1e18)
            QTEST(PropertyList::text(value), "text");
    }
};

QTEST_GUILESS_MAIN(TestPropertyList)
#include "tst_propertylist.moc"
