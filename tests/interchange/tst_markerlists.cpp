#include "interchange/QVMarkerListParser.h"
#include "support/log/QVLog.h"
#include "tests/support/TemporaryHome.h"

#include <QTest>

using namespace vantrell;
using namespace Qt::StringLiterals;

namespace
{

/// ASCII text with 16-bit units in either order.
QByteArray utf16(const QByteArray &ascii, bool bigEndian)
{
    QByteArray bytes;
    for (const char c : ascii)
        bytes += bigEndian ? QByteArray("\0", 1) + c : c + QByteArray("\0", 1);
    return bytes;
}

/// The values of each row in the order of its keys; "unreadable" without rows.
QString text(const std::optional<RowList> &rows)
{
    if (!rows)
        return u"unreadable"_s;
    QStringList texts;
    for (const RowRecordPtr &row : *rows) {
        QStringList values;
        for (std::size_t i = 0; i < row->size(); ++i)
            values.append(row->text(row->keyAt(i)));
        texts.append(values.join(u'|'));
    }
    return texts.join(u" + "_s);
}

struct List {
    QByteArray bytes;
    QString rows;
};

} // namespace

class TestMarkerLists : public QObject
{
    Q_OBJECT

    TemporaryHome m_home;

private Q_SLOTS:
    void initTestCase() { QVLog::createNewLog(u"lists"_s, true); }

    void finalCutProLists()
    {
        const QByteArray header = "Name\tType\tMarker Name\tComment\tStart\tDuration\tColor";
        const QByteArray line = "P\tClip\tA\tc\t1\t2\tRed";
        const QByteArray plain = header + '\n' + line + '\n';
        const QString row = u"A|c|1|2|Red|P|Clip"_s;
        const List lists[] = {
            {plain, row},
            {plain.chopped(1), row},
            {header + '\r' + line + '\r', row},
            {header + "\r\n" + line + "\r\n", u"A|c|1|2|Red\r|P|Clip"_s},
            {header + '\r' + line + "\r\n", QString()},
            {"anything\n" + line + '\n' + line, row + u" + "_s + row},
            {line, QString()},
            {QByteArray(), QString()},
            {"\r", QString()},
            {plain + "1\t2\t3\t4\t5\t6\n1\t2\t3\t4\t5\t6\t7\t8\n\n" + line, row + u" + "_s + row},
            {"\n\t\t\t\t\t\t", u"||||||"_s},
            {QByteArray(plain).replace("A", "\xc3\xa9\xf0\x9f\x8e\xac"),
             u"\u00e9\U0001f3ac|c|1|2|Red|P|Clip"_s},
            {"\xff\xfe" + utf16(plain, false), row},
            {"\xfe\xff" + utf16(plain, true), row},
            {utf16(plain, false), row},
            {"\xff\xfe" + utf16(plain, false).replace(QByteArray("A\0", 2), QByteArray("\0\xd8", 2)),
             QChar(0xd800) + u"|c|1|2|Red|P|Clip"_s},
            {"\xff\xfe", QString()},
            {"\xff\xfe" + utf16(plain, false) + '\n', u"unreadable"_s},
            {plain + "\xe9\n", u"unreadable"_s},
            {plain + "\xc0\x8a", u"unreadable"_s},
            {plain + "\xed\xa0\x80", u"unreadable"_s},
            {plain + "\xf0\x9f\x8e", u"unreadable"_s},
        };
        for (const List &list : lists) {
            const QString path = m_home.addFile(u"list.txt"_s, list.bytes);
            QCOMPARE(text(QVMarkerListParser::fcpMarkerListFromFile(path)), list.rows);
        }
    }

    void avidLists()
    {
        const QByteArray line = "A\t1\tV7\tred\tc";
        const QString row = u"A|c|1|red"_s;
        const List lists[] = {
            {line, row},
            {line + "\nB\t2\tV1\t\t\n", row + u" + B||2|"_s},
            {line + '\r' + line, row + u" + "_s + row},
            {line + "\r\n" + line, u"A|c\r|1|red + "_s + row},
            {"a\tb\tc\td\n" + line + "\t1\n\n", QString()},
            {"\xef\xbb\xbf" + line, row},
            {"\xff\xfe" + utf16(line, false), u"unreadable"_s},
            {line + '\xe9', u"unreadable"_s},
        };
        for (const List &list : lists) {
            const QString path = m_home.addFile(u"list.txt"_s, list.bytes);
            QCOMPARE(text(QVMarkerListParser::avidLocatorListFromFile(path)), list.rows);
        }
        // A header is not told as skipped, a broken row is.
        for (const bool isHeader : {true, false}) {
            const QByteArray first = isHeader ? "Name\tTimecode\tTrack\tColor" : "A\t01:00:00:00\tV1\tred";
            const QString path = m_home.addFile(u"list.txt"_s, first + "\n" + line + "\n\nB\t2\n");
            ListLines lines;
            QVERIFY(QVMarkerListParser::avidLocatorListFromFile(path, &lines));
            std::vector<std::size_t> skipped;
            for (const ListLines::Skipped &found : lines.skipped)
                skipped.push_back(found.line);
            QCOMPARE(skipped, isHeader ? std::vector<std::size_t>({4}) : std::vector<std::size_t>({1, 4}));
        }
    }

    void noFile()
    {
        // The memory of a process can be opened, but not read at its start.
        for (const QString &path :
             {QString(), m_home.path(u"missing.txt"_s), m_home.path(), u"/proc/self/mem"_s}) {
            QVERIFY(!QVMarkerListParser::fcpMarkerListFromFile(path));
            QVERIFY(!QVMarkerListParser::avidLocatorListFromFile(path));
        }
    }

    void hugeFilesTakeLinearTime()
    {
        for (const char c : {'x', '\t', '\n', '\r', '\0'}) {
            const QString path = m_home.addFile(u"huge.txt"_s, QByteArray(4'000'000, c));
            QCOMPARE(text(QVMarkerListParser::fcpMarkerListFromFile(path)), QString());
        }
    }

    void wholeResultIsLogged()
    {
        const QString list = m_home.addFile(u"list.txt"_s, "A\t1\tV1\tred\t100% sure\nB\t2\tV1\tred\t%@\n");
        QVERIFY(QVMarkerListParser::avidLocatorListFromFile(list));
        QVLog::finishWriting();
        QVERIFY(contentOf(QVLog::availableLogs().value(0))
                    .contains(" - Avid locator list: ({name = A; comment = 100% sure; startTimecode = 1; "
                              "color = red}, {name = B; comment = %@; startTimecode = 2; color = red})\n"));
    }
};

QTEST_GUILESS_MAIN(TestMarkerLists)
#include "tst_markerlists.moc"
