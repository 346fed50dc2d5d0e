// What a comparison tells: differences, exported lists, and the sequences that it starts with.

#include "WrittenCut.h"

#include "compare/ChangeDifference.h"
#include "compare/ChangeListFile.h"
#include "compare/ChangeRanks.h"
#include "compare/CutGuess.h"
#include "xml/XmlDocument.h"

#include <QBuffer>
#include <QTest>

#include <numeric>

using namespace vantrell;

namespace
{

std::unique_ptr<XmlDocument> documentOf(const QByteArray &xml)
{
    return std::move(XmlDocument::fromData(xml, {}).value());
}

CutComparison comparisonOf(const XmlDocument &before, const XmlDocument &after)
{
    return CutComparison::of(before.rootElement().childElement("sequence"),
                             after.rootElement().childElement("sequence"));
}

/// A sequence of 25 frames a second that starts at 01:00:00:00, with clips of one track.
QByteArray timedSequence(const QByteArray &name, const QByteArray &clips)
{
    return "<xmeml><sequence><name>" + name +
           "</name><rate><timebase>25</timebase><ntsc>FALSE</ntsc></rate><timecode><rate><timebase>25"
           "</timebase><ntsc>FALSE</ntsc></rate><frame>90000</frame><displayformat>NDF</displayformat>"
           "</timecode><media><video><track>" +
           clips + "</track></video></media></sequence></xmeml>";
}

QByteArray clip(const QByteArray &name, const QByteArray &file, int start, int end, int in)
{
    return "<clipitem><name>" + name + "</name><start>" + QByteArray::number(start) + "</start><end>" +
           QByteArray::number(end) + "</end><in>" + QByteArray::number(in) + "</in><out>" +
           QByteArray::number(in + end - start) + "</out><file><pathurl>file:///" + file +
           "</pathurl></file></clipitem>";
}

Menu menuOf(const XmlDocument &document)
{
    Menu menu{{QStringLiteral("(none)"), {}, {}}};
    for (XmlNode child = document.rootElement().firstChildElement(); child;
         child = child.nextSiblingElement())
        menu.push_back({child.childElement("name").stringValue(), {}, child});
    return menu;
}

/// "name 100, name 200": sequences with their durations.
QByteArray sequences(const QByteArray &list)
{
    QByteArray xml = "<xmeml>";
    for (const QByteArray &one : list.split(',')) {
        const QByteArray text = one.trimmed();
        const auto space = text.lastIndexOf(' ');
        xml += "<sequence><name>" + text.left(space) + "</name><duration>" + text.mid(space + 1) +
               "</duration></sequence>";
    }
    return xml + "</xmeml>";
}

} // namespace

class TestChangeList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void differences_data();
    void differences();
    void files_data();
    void files();
    void tellsFailures();
    void guesses_data();
    void guesses();
    void stopsWhenCancelled();
    void ranksNamesAndFiles();
};

void TestChangeList::differences_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("expected"); // of all changes, at 30 frames a second

    const auto row = [](const char *name, const char *before, const char *after, const char *expected) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after) << QString::fromLatin1(expected);
    };
    row("added, moved later", "a 0-50@0", "x 0-31@0, a 31-81@0", "added +00:00:01:01|moved +00:00:01:01");
    row("removed, moved earlier", "a 0-45@0, b 45-60@0", "b 0-15@0",
        "removed -00:00:01:15|moved -00:00:01:15");
    row("shorter at its tail", "a 0-50@0", "a 0-40@0", "trimmed tail -00:00:00:10");
    row("longer at its head", "x 0-20@0, a 20-50@30", "x 0-5@0, a 5-50@15",
        "trimmed tail -00:00:00:15|trimmed head +00:00:00:15");
    row("both ends", "a 0-50@10", "a 0-47@15", "trimmed head -00:00:00:05, tail +00:00:00:02");
    row("head of a clip at half speed", "a 0-50@20*50", "a 0-40@30*50", "trimmed head -00:00:00:10");
    row("a gap", "a 0-50@0, b 80-90@0", "a 0-50@0, b 110-120@0", "trimmed +00:00:01:00|moved +00:00:01:00");
    row("slipped to later pictures", "a 0-50@10", "a 0-50@45", "slipped +00:00:01:05");
    row("speed", "a 0-50@20", "a 0-100@20*50", "speed 100% to 50%");
    row("replaced", "a 0-50@0, b 50-90@0", "x 0-50@0, b 50-90@0", "replaced was a");
    row("another track", "a 0-50@0, b 50-90@0|c 0-9@0", "a 0-50@0|c 0-9@0, b 9-49@0", "track V1 to V2");
    row("filter on", "a 0-50@0", "a 0-50@0+blur", "effects + blur");
    row("filter away", "a 0-50@0+blur", "a 0-50@0", "effects - blur");
    row("filter switched off", "a 0-50@0+blur", "a 0-50@0-blur", "effects blur off");
    row("filter switched on, one added", "a 0-50@0-blur", "a 0-50@0+blur-crop", "effects blur on, + crop");
    row("clip switched off", "a 0-50@0", "a 0-50@0!", "effects switched off");
}

void TestChangeList::differences()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const auto old = documentOf(sequenceOf(before));
    const auto now = documentOf(sequenceOf(after));
    const CutComparison comparison = comparisonOf(*old, *now);
    QStringList texts;
    for (const EventChange &change : comparison.changes) {
        if (change.kind != EventChange::Kind::Unchanged)
            texts.append(change.kindName() + QLatin1Char(' ') + differenceOf(comparison, change));
    }
    QTEST(texts.join(QLatin1Char('|')), "expected");
}

void TestChangeList::files_data()
{
    QTest::addColumn<ChangeListFormat>("format");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("csv") << ChangeListFormat::Csv
                         << QByteArray("\xEF\xBB\xBF"
                                       "Change,Event,Track,Old In,Old Out,New In,New Out,Difference,File\r\n"
                                       "added,<b>New & bold</b>,V1,,,01:00:00:00,01:00:01:00,+00:00:01:00,"
                                       "/new.mov\r\n"
                                       "moved,\"Shot \"\"1\"\", wide\",V1,01:00:00:00,01:00:02:00,"
                                       "01:00:01:00,01:00:03:00,+00:00:01:00,/shot.mov\r\n"
                                       "removed,=SUM(A1),V1,01:00:02:00,01:00:04:00,,,-00:00:02:00,"
                                       "/sum.mov\r\n");
    QTest::newRow("edl") << ChangeListFormat::Edl
                         << QByteArray("TITLE: New cut\n"
                                       "FCM: NON-DROP FRAME\n"
                                       "* CHANGES SINCE: Old cut\n"
                                       "\n"
                                       "001  AX       V     C        00:00:00:10 00:00:01:10 01:00:00:00 "
                                       "01:00:01:00\n"
                                       "* CHANGE: ADDED +00:00:01:00\n"
                                       "* TRACK: V1\n"
                                       "* FROM CLIP NAME: <b>New & bold</b>\n"
                                       "* SOURCE FILE: /new.mov\n"
                                       "\n"
                                       "002  AX       V     C        00:00:04:00 00:00:06:00 01:00:01:00 "
                                       "01:00:03:00\n"
                                       "* CHANGE: MOVED +00:00:01:00\n"
                                       "* OLD RECORD: 01:00:00:00 01:00:02:00\n"
                                       "* TRACK: V1\n"
                                       "* FROM CLIP NAME: Shot \"1\", wide\n"
                                       "* SOURCE FILE: /shot.mov\n"
                                       "\n"
                                       "003  AX       V     C        00:00:00:00 00:00:02:00 01:00:02:00 "
                                       "01:00:04:00\n"
                                       "* CHANGE: REMOVED -00:00:02:00\n"
                                       "* TRACK: V1\n"
                                       "* FROM CLIP NAME: =SUM(A1)\n"
                                       "* SOURCE FILE: /sum.mov\n");
    QTest::newRow("html")
        << ChangeListFormat::Html
        << QByteArray("<tr><td>added</td><td>&lt;b&gt;New &amp; bold&lt;/b&gt;</td><td>V1</td><td></td>"
                      "<td></td><td>01:00:00:00</td><td>01:00:01:00</td><td>+00:00:01:00</td>"
                      "<td>/new.mov</td></tr>\n"
                      "<tr><td>moved</td><td>Shot &quot;1&quot;, wide</td><td>V1</td><td>01:00:00:00</td>"
                      "<td>01:00:02:00</td><td>01:00:01:00</td><td>01:00:03:00</td><td>+00:00:01:00</td>"
                      "<td>/shot.mov</td></tr>\n"
                      "<tr><td>removed</td><td>=SUM(A1)</td><td>V1</td><td>01:00:02:00</td>"
                      "<td>01:00:04:00</td><td></td><td></td><td>-00:00:02:00</td><td>/sum.mov</td></tr>\n");
}

void TestChangeList::files()
{
    QFETCH(ChangeListFormat, format);
    QFETCH(QByteArray, expected);
    const auto old = documentOf(timedSequence("Old cut", clip("Shot \"1\", wide", "shot.mov", 0, 50, 100) +
                                                             clip("=SUM(A1)", "sum.mov", 50, 100, 0)));
    const auto now =
        documentOf(timedSequence("New cut", clip("&lt;b>New &amp; bold&lt;/b>", "new.mov", 0, 25, 10) +
                                                clip("Shot \"1\", wide", "shot.mov", 25, 75, 100)));
    const CutComparison comparison = comparisonOf(*old, *now);
    std::vector<std::size_t> all(comparison.changes.size());
    std::iota(all.begin(), all.end(), std::size_t(0));
    QBuffer text;
    text.open(QIODevice::WriteOnly);
    QVERIFY(writeChangeList(comparison, all, format, text).isOk());
    QByteArray written = text.data();
    if (format == ChangeListFormat::Html) { // its rows
        QVERIFY(written.startsWith("<!DOCTYPE html>"));
        QVERIFY(written.contains("<h1>New cut</h1>"));
        const auto start = written.indexOf("<tbody>\n") + 8;
        written = written.mid(start, written.indexOf("</tbody>") - start);
    }
    QCOMPARE(written, expected);
}

/// A device that is full.
class FullDevice : public QIODevice
{
protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *, qint64) override
    {
        setErrorString(QStringLiteral("No space left"));
        return -1;
    }
};

void TestChangeList::tellsFailures()
{
    const auto old = documentOf(timedSequence("Old", ""));
    const CutComparison comparison = comparisonOf(*old, *old);
    FullDevice device;
    device.open(QIODevice::WriteOnly);
    const Result<void> written = writeChangeList(comparison, {}, ChangeListFormat::Csv, device);
    QCOMPARE(written.message(), QStringLiteral("No space left"));
}

void TestChangeList::guesses_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after"); // empty: one project
    QTest::addColumn<int>("oldItem");
    QTest::addColumn<int>("newItem");

    QTest::newRow("same name") << QByteArray("Reel 900, Trailer 50") << QByteArray("Teaser 999, Trailer 40")
                               << 2 << 2;
    QTest::newRow("the longest of the same names")
        << QByteArray("Trailer 50, Reel 900") << QByteArray("Trailer 40, Strings 2000, Reel 800") << 2 << 3;
    QTest::newRow("no common name") << QByteArray("A 5, B 9") << QByteArray("C 7, D 3") << 2 << 1;
    QTest::newRow("one project: like its name")
        << QByteArray("Trailer 80, Reel v1 70, Reel v2 90, Reel v1 copy 60") << QByteArray() << 2 << 3;
    QTest::newRow("one sequence") << QByteArray("A 5") << QByteArray() << 0 << 1;
}

void TestChangeList::guesses()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const auto old = documentOf(sequences(before));
    const auto now = documentOf(sequences(after.isEmpty() ? before : after));
    const CutGuess guess = after.isEmpty() ? CutGuess::inProject(menuOf(*old))
                                           : CutGuess::inProjects(menuOf(*old), menuOf(*now));
    QTEST(int(guess.before), "oldItem");
    QTEST(int(guess.after), "newItem");
}

void TestChangeList::stopsWhenCancelled()
{
    const auto old = documentOf(sequenceOf("a 0-50@0"));
    const std::atomic<bool> isCancelled = true;
    const XmlNode sequence = old->rootElement().childElement("sequence");
    QVERIFY(CutComparison::of(sequence, sequence, &isCancelled).changes.empty());
}

void TestChangeList::ranksNamesAndFiles()
{
    const QByteArray clips = clip("b", "two/X.mov", 0, 10, 0) + clip("C", "one/y.mov", 10, 20, 0) +
                             clip("a", "one/x.mov", 20, 30, 0) + clip("b", "one/X.mov", 30, 40, 0);
    const auto old = documentOf(timedSequence("Old", clips));
    const ChangeRanks ranks = ChangeRanks::of(comparisonOf(*old, *old));
    QCOMPARE(ranks.names, std::vector<std::uint32_t>({1, 2, 0, 1}));
    QCOMPARE(ranks.files, std::vector<std::uint32_t>({0, 2, 1, 0})); // X.mov, x.mov, y.mov
}

QTEST_GUILESS_MAIN(TestChangeList)
#include "tst_changelist.moc"
