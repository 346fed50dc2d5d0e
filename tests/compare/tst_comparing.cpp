// What is told to have changed from one cut to another.

#include "WrittenCut.h"

#include "compare/SequenceComparison.h"
#include "tests/support/LongSeries.h"
#include "xml/XmlDocument.h"

#include <QTest>

using namespace vantrell;

namespace
{

SequenceEvents eventsOf(const XmlDocument &document)
{
    return SequenceEvents::read(document.rootElement().childElement("sequence"));
}

} // namespace

class TestComparing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changes_data();
    void changes();
    void largeCuts();
};

void TestComparing::changes_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("expected"); // all but what is unchanged

    const auto row = [](const char *name, const char *before, const char *after, const char *expected) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after) << QString::fromLatin1(expected);
    };
    const char *const abc = "a 0-50@0, b 50-100@10, c 100-150@0";
    row("nothing", abc, abc, "");
    row("inserted at the start", abc, "x 0-20@0, a 20-70@0, b 70-120@10, c 120-170@0",
        "added V1 x, moved V1 a 20, moved V1 b 20, moved V1 c 20");
    row("inserted between what repeats", "a 0-9@0, a 9-18@0, a 18-27@0",
        "a 0-9@0, x 9-12@0, a 12-21@0, a 21-30@0", "added V1 x, moved V1 a 3, moved V1 a 3");
    row("deleted, the rest follows", abc, "a 0-50@0, c 50-100@0", "removed V1 b, moved V1 c -50");
    row("lifted: a gap", abc, "a 0-50@0, c 100-150@0", "removed V1 b, added V1 Gap");
    row("tail trimmed, the rest follows", abc, "a 0-40@0, b 40-90@10, c 90-140@0",
        "trimmed V1 a, moved V1 b -10, moved V1 c -10");
    row("head trimmed in place", abc, "a 0-50@0, b 60-100@20, c 100-150@0", "added V1 Gap, trimmed V1 b");
    row("slipped", abc, "a 0-50@0, b 50-100@15, c 100-150@0", "slipped V1 b");
    row("slipped further than it is long", abc, "a 0-50@0, b 50-100@500, c 100-150@0", "slipped V1 b");
    row("swapped", abc, "b 0-50@10, a 50-100@0, c 100-150@0", "moved V1 b -50, moved V1 a 50");
    row("replaced", abc, "x 0-50@0, b 50-100@10, c 100-150@0", "replaced V1 x");
    row("replaced after an insert", abc, "y 0-5@0, a 5-55@0, x 55-105@10, c 105-155@0",
        "added V1 y, moved V1 a 5, replaced V1 x, moved V1 c 5");
    row("overwritten within a clip", abc, "a 0-50@0, b 50-60@10, x 60-70@0, b 70-100@30, c 100-150@0",
        "trimmed V1 b, added V1 x, added V1 b");
    row("half speed", abc, "a 0-50@0, b 50-150@20*50, c 150-200@0", "speed V1 b, moved V1 c 50");
    row("to another track, later", "a 0-50@0, b 50-100@10|c 0-20@0", "a 0-50@0|c 0-20@0, b 60-110@10",
        "added V2 Gap, track V2 b");
    row("filter added", abc, "a 0-50@0, b 50-100@10+blur, c 100-150@0", "effects V1 b");
    row("filter switched", "a 0-50@0+blur", "a 0-50@0-blur", "effects V1 a");
    row("clip switched", abc, "a 0-50@0, b 50-100@10!, c 100-150@0", "effects V1 b");
    row("moved counts before its filters", "a 0-50@0", "a 9-59@0+blur", "added V1 Gap, moved V1 a 9");
    row("transition added", abc, "a 0-50@0, =dissolve 45-55, b 50-100@10, c 100-150@0", "added V1 dissolve");
    row("transition longer", "a 0-50@0, =dissolve 45-55, b 50-100@10",
        "a 0-50@0, =dissolve 40-60, b 50-100@10", "trimmed V1 dissolve");
    row("another transition", "a 0-50@0, =dissolve 45-55, b 50-100@10", "a 0-50@0, =wipe 45-55, b 50-100@10",
        "replaced V1 wipe");
    row("a gap that is shorter", "a 0-50@0, b 80-90@0, c 90-95@0", "a 0-50@0, b 70-80@0, c 80-85@0",
        "trimmed V1 Gap, moved V1 b -10, moved V1 c -10");
}

void TestComparing::changes()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const auto old = std::move(XmlDocument::fromData(sequenceOf(before), {}).value());
    const auto now = std::move(XmlDocument::fromData(sequenceOf(after), {}).value());
    const SequenceEvents oldCut = eventsOf(*old);
    const SequenceEvents newCut = eventsOf(*now);
    QStringList texts;
    for (const EventChange &change : changesBetween(oldCut, newCut, EventMatch(oldCut, newCut))) {
        if (change.kind == EventChange::Kind::Unchanged)
            continue;
        const TrackEvent &event = change.after ? newCut.events[*change.after] : oldCut.events[*change.before];
        QString text =
            change.kindName() + QLatin1Char(' ') + event.trackName() + QLatin1Char(' ') + event.name;
        if (change.by != 0)
            text += QLatin1Char(' ') + QString::number(change.by);
        texts.append(text);
    }
    QTEST(texts.join(QStringLiteral(", ")), "expected");
}

/// The same clips of one file, moved by an insert at the start, and all of them slipped: no pair of these
/// takes the time of all pairs.
void TestComparing::largeCuts()
{
    const int count = longWork(20000);
    const auto cut = [count](int first, int slip) {
        QByteArray items = first > 0 ? "x 0-10@0," : "";
        for (int i = 0; i < count; ++i) {
            const int start = first + i * 10;
            items += "a " + QByteArray::number(start) + '-' + QByteArray::number(start + 10) + '@' +
                     QByteArray::number(i * 40 + slip) + ',';
        }
        return std::move(XmlDocument::fromData(sequenceOf(items), {}).value());
    };
    const auto old = cut(0, 0);
    const auto inserted = cut(10, 0);
    const auto slipped = cut(0, 15);
    const auto countsOf = [&](const XmlDocument &now) {
        const SequenceEvents oldCut = eventsOf(*old);
        const SequenceEvents newCut = eventsOf(now);
        std::map<QString, int> counts;
        for (const EventChange &change : changesBetween(oldCut, newCut, EventMatch(oldCut, newCut)))
            ++counts[change.kindName() + QLatin1Char(' ') + QString::number(change.by)];
        return counts;
    };
    QCOMPARE(countsOf(*inserted),
             (std::map<QString, int>{{QStringLiteral("added 0"), 1}, {QStringLiteral("moved 10"), count}}));
    QCOMPARE(countsOf(*slipped), (std::map<QString, int>{{QStringLiteral("slipped 0"), count}}));
}

QTEST_GUILESS_MAIN(TestComparing)
#include "tst_comparing.moc"
