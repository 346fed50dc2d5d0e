#include "tests/interchange/RowText.h"

#include "interchange/QVMarkerListParser.h"
#include "support/QVLog.h"
#include "tests/support/TemporaryHome.h"

#include <QtTest>

using namespace vantrell;
using namespace Qt::StringLiterals;

namespace
{

constexpr auto header = "Name\tType\tMarker Name\tComment\tStart\tDuration\tColor";

/// ASCII text with 16-bit units in either order.
QByteArray utf16(const QByteArray &ascii, bool bigEndian)
{
    QByteArray bytes;
    for (const char c : ascii)
        bytes += bigEndian ? QByteArray("\0", 1) + c : c + QByteArray("\0", 1);
    return bytes;
}

QByteArray fcpList(const QByteArray &lineEnd)
{
    return header + lineEnd + "Reel\tClip\tM 1\tnote\t01:00:00:00\t00:00:01:00\tGreen" + lineEnd;
}

QString fcpRow(const QString &name, const QString &color)
{
    return u"name="_s + name +
           u"|comment=note|startTimecode=01:00:00:00|durationTimecode=00:00:01:00|color="_s + color +
           u"|parentName=Reel|parentType=Clip"_s;
}

QString avidRow(const QString &name, const QString &comment)
{
    return u"name="_s + name + u"|comment="_s + comment + u"|startTimecode=01:02:03:04|color=red"_s;
}

} // namespace

class TestMarkerLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVLog::createNewLog(u"lists"_s, true); }
    void finalCutProList_data();
    void finalCutProList();
    void avidList_data();
    void avidList();
    void whatCannotBeRead();
    void hugeFilesTakeLinearTime();
    void wholeResultIsLogged();

private:
    TemporaryHome m_home;
};

void TestMarkerLists::finalCutProList_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("readable");
    QTest::addColumn<QStringList>("rows");
    const QStringList one{fcpRow(u"M 1"_s, u"Green"_s)};
    const QStringList carriageReturnKept{fcpRow(u"M 1"_s, u"Green\r"_s)};
    const QByteArray line = "Reel\tClip\tM 1\tnote\t01:00:00:00\t00:00:01:00\tGreen";
    const QByteArray plain = fcpList("\n");

    QTest::newRow("line feeds") << plain << true << one;
    QTest::newRow("carriage returns") << fcpList("\r") << true << one;
    QTest::newRow("both") << fcpList("\r\n") << true << carriageReturnKept;
    QTest::newRow("one line feed among carriage returns") << fcpList("\r") + '\n' << true << QStringList();
    QTest::newRow("no end to the last line") << plain.chopped(1) << true << one;
    QTest::newRow("one line is the header") << line << true << QStringList();
    QTest::newRow("any header") << "\xef\xbb\xbf\n" + line << true << one;
    QTest::newRow("rows before a header are one")
        << line + '\n' + header << true
        << QStringList{u"name=Marker Name|comment=Comment|startTimecode="
                       "Start|durationTimecode=Duration|color=Color"
                       "|parentName=Name|parentType=Type"_s};
    QTest::newRow("six, eight and no fields")
        << plain + "a\tb\tc\td\te\tf\n" + line + "\tx\n\n\t\t\t\t\t\t\t\n"
        << true << one;
    QTest::newRow("empty fields") << QByteArray("\n\t\t\t\t\t\t") << true
                                  << QStringList{u"name=|comment=|startTimecode=|durationTimecode=|color="
                                                 "|parentName=|parentType="_s};
    QTest::newRow("empty") << QByteArray() << true << QStringList();
    QTest::newRow("lone carriage return") << QByteArray("\r") << true << QStringList();
    QTest::newRow("UTF-8") << QByteArray(plain).replace("M 1", "\xc3\xa9\xf0\x9f\x8e\xac") << true
                           << QStringList{fcpRow(u"\u00e9\U0001f3ac"_s, u"Green"_s)};
    QTest::newRow("UTF-16, little-endian") << "\xff\xfe" + utf16(plain, false) << true << one;
    QTest::newRow("UTF-16, big-endian") << "\xfe\xff" + utf16(plain, true) << true << one;
    QTest::newRow("UTF-16 without a mark") << utf16(plain, false) << true << one;
    QTest::newRow("UTF-16, unpaired surrogate")
        << "\xff\xfe" + utf16(plain, false).replace(utf16("M 1", false), QByteArray("\x00\xd8", 2)) << true
        << QStringList{fcpRow(QString(QChar(0xd800)), u"Green"_s)};
    QTest::newRow("a mark alone") << QByteArray("\xff\xfe") << true << QStringList();
    QTest::newRow("UTF-16, half a unit") << "\xff\xfe" + utf16(plain, false) + '\n' << false << QStringList();
    QTest::newRow("Latin-1") << QByteArray(plain).replace("M 1", "\xe9") << false << QStringList();
    QTest::newRow("overlong UTF-8") << plain + "\xc0\x8a" << false << QStringList();
    QTest::newRow("surrogate in UTF-8") << plain + "\xed\xa0\x80" << false << QStringList();
    QTest::newRow("cut UTF-8") << plain + "\xf0\x9f\x8e" << false << QStringList();
}

void TestMarkerLists::finalCutProList()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, readable);
    QFETCH(QStringList, rows);
    const auto read = QVMarkerListParser::fcpMarkerListFromFile(m_home.addFile(u"list.txt"_s, bytes));
    QCOMPARE(read.has_value(), readable);
    QCOMPARE(textsOf(read.value_or(RowList())), rows);
}

void TestMarkerLists::avidList_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("readable");
    QTest::addColumn<QStringList>("rows");
    const QByteArray line = "A\t01:02:03:04\tV7\tred\tnote";
    const QString row = avidRow(u"A"_s, u"note"_s);

    QTest::newRow("one line without an end") << line << true << QStringList{row};
    QTest::newRow("first line counts") << line + "\nB\t01:02:03:04\tV1\tred\t\n"
                                       << true << QStringList{row, avidRow(u"B"_s, QString())};
    QTest::newRow("carriage returns") << line + '\r' + line << true << QStringList{row, row};
    QTest::newRow("both") << line + "\r\n" + line << true << QStringList{avidRow(u"A"_s, u"note\r"_s), row};
    QTest::newRow("four, six and no fields") << "a\tb\tc\td\n" + line + "\t1\n\n" << true << QStringList();
    QTest::newRow("mark before UTF-8") << "\xef\xbb\xbf" + line << true << QStringList{row};
    QTest::newRow("UTF-16 is no UTF-8") << "\xff\xfe" + utf16(line, false) << false << QStringList();
    QTest::newRow("Latin-1") << line + '\xe9' << false << QStringList();
}

void TestMarkerLists::avidList()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, readable);
    QFETCH(QStringList, rows);
    const auto read = QVMarkerListParser::avidLocatorListFromFile(m_home.addFile(u"list.txt"_s, bytes));
    QCOMPARE(read.has_value(), readable);
    QCOMPARE(textsOf(read.value_or(RowList())), rows);
}

void TestMarkerLists::whatCannotBeRead()
{
    for (const QString &path : {QString(), m_home.path(u"missing.txt"_s), m_home.path()}) {
        QVERIFY(!QVMarkerListParser::fcpMarkerListFromFile(path));
        QVERIFY(!QVMarkerListParser::avidLocatorListFromFile(path));
    }
    const QString list = m_home.addFile(u"list.txt"_s, fcpList("\n"));
    QVERIFY(!QVMarkerListParser::dvdspChapterListFromFile(list));
}

void TestMarkerLists::hugeFilesTakeLinearTime()
{
    constexpr qsizetype size = 4'000'000;
    for (const char c : {'x', '\t', '\n', '\r', '\0'}) {
        const QString path = m_home.addFile(u"huge.txt"_s, QByteArray(size, c));
        const auto read = QVMarkerListParser::fcpMarkerListFromFile(path);
        QVERIFY(read && read->empty());
    }
}

void TestMarkerLists::wholeResultIsLogged()
{
    const QString list = m_home.addFile(u"list.txt"_s, "A\t1\tV1\tred\t100% sure\nB\t2\tV1\tred\t%@\n");
    QVERIFY(QVMarkerListParser::avidLocatorListFromFile(list));
    QVLog::finishWriting();
    QVERIFY(contentOf(QVLog::availableLogs().value(0))
                .contains(
                    " - Avid locator list: ({name = A; comment = 100% sure; startTimecode = 1; color = red}, "
                    "{name = B; comment = %@; startTimecode = 2; color = red})\n"));
}

QTEST_GUILESS_MAIN(TestMarkerLists)
#include "tst_markerlists.moc"
