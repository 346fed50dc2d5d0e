// Where markers go, in random recuts whose pictures are known frame by frame, and in small ones.

#include "compare/MarkerPlaces.h"
#include "tests/compare/Cut.h"
#include "tests/support/LongSeries.h"
#include "xml/XmlDocument.h"

#include <QTest>

using namespace vantrell;

namespace
{

/// A project read from text.
struct ReadCut {
    explicit ReadCut(const QByteArray &xml)
        : document(std::move(XmlDocument::fromData(xml, {}).value()))
        , events(SequenceEvents::read(document->rootElement().childElement("sequence")))
    {
    }

    std::unique_ptr<XmlDocument> document;
    SequenceEvents events;
};

std::vector<MarkerPlace> carried(const ReadCut &before, const ReadCut &after)
{
    const EventMatch match(before.events, after.events);
    return MarkerPlaces(before.events, after.events, match).placesOf(MarkerSpan::of(before.events));
}

/// A project of one sequence at 25 frames a second.
QByteArray sequence(const QByteArray &content)
{
    return "<xmeml><sequence id='s'><name>S</name><rate><timebase>25</timebase></rate>" + content +
           "</sequence></xmeml>";
}

/// A clip item: a letter for its file, "100-150@20" for its place and its in point, then more elements.
QByteArray clip(const char *file, const char *place, const QByteArray &more = QByteArray())
{
    const QByteArrayList parts = QByteArray(place).replace('@', '-').split('-');
    const qlonglong length = parts[1].toLongLong() - parts[0].toLongLong();
    return "<clipitem id='" + QByteArray(file) + "'><name>" + file + "</name><start>" + parts[0] +
           "</start><end>" + parts[1] + "</end><in>" + parts[2] + "</in><out>" +
           QByteArray::number(parts[2].toLongLong() + length) + "</out><file id='f" + file +
           "'><pathurl>file:///" + file + ".mov</pathurl></file>" + more + "</clipitem>";
}

QByteArray track(const QByteArray &items)
{
    return "<track>" + items + "</track>";
}

QByteArray video(const QByteArray &tracks)
{
    return "<media><video>" + tracks + "</video></media>";
}

QByteArray marker(const char *in, const char *out = "-1")
{
    return QByteArray("<marker><name>m</name><in>") + in + "</in><out>" + out + "</out></marker>";
}

QByteArray remap(const char *id, const char *value)
{
    return QByteArray("<filter><effect><effectid>timeremap</effectid><parameter><parameterid>") + id +
           "</parameterid><value>" + value + "</value></parameter></effect></filter>";
}

QString text(const MarkerPlace &place)
{
    static const char *const states[] = {"carried", "nearest", "gone"};
    QString text = QLatin1String(states[int(place.state)]);
    if (place.state != MarkerPlace::State::Gone) {
        text += QStringLiteral(" %1").arg(place.newFrame);
        if (place.duration > 0)
            text += QStringLiteral("+%1").arg(place.duration);
    }
    return text;
}

} // namespace

class TestCarrying : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomRecuts();
    void places_data();
    void places();
};

/// A marker whose picture is seen once in the recut goes there, to the frame; one whose picture is seen
/// several times to one of these; none that is not flagged to another picture.
void TestCarrying::randomRecuts()
{
    int once = 0;
    for (int seed = 0; seed < seriesLength(1000); ++seed) {
        RandomNumbers random{quint64(seed)};
        Cut cut = Cut::random(random);
        std::vector<std::int64_t> markers(60);
        for (std::int64_t &marker : markers)
            marker = random.below(int(cut.length()) + 5);
        const std::vector<Picture> before = cut.pictures();
        const ReadCut old(cut.xml(markers));
        for (int i = 1 + random.below(30); i > 0; --i)
            cut.recut(random);
        const std::vector<Picture> after = cut.pictures();
        std::map<Picture, std::vector<std::int64_t>> seen;
        for (std::size_t frame = 0; frame < after.size(); ++frame)
            seen[after[frame]].push_back(std::int64_t(frame));
        const ReadCut recut(cut.xml());
        const std::vector<MarkerPlace> places = carried(old, recut);
        QCOMPARE(places.size(), markers.size());
        for (std::size_t i = 0; i < markers.size(); ++i) {
            const std::size_t frame = std::size_t(markers[i]);
            const Picture picture = frame < before.size() ? before[frame] : Picture(-1, 0);
            const auto pictureAt = [&](std::int64_t at) {
                return std::size_t(at) < after.size() ? after[std::size_t(at)] : Picture(-1, 0);
            };
            const MarkerPlace &place = places[i];
            const QByteArray told = QByteArray("seed ") + QByteArray::number(seed) + ", marker " +
                                    QByteArray::number(qlonglong(i)) + " at " +
                                    QByteArray::number(qlonglong(frame)) + ": " + text(place).toUtf8();
            if (picture.first < 0 || picture.first >= Cut::firstGenerator) {
                // Off pictures: unflagged only off pictures.
                if (place.state == MarkerPlace::State::Carried)
                    QVERIFY2(pictureAt(place.newFrame).first == picture.first, told.constData());
                continue;
            }
            const std::vector<std::int64_t> &there = seen[picture];
            if (there.empty()) {
                QVERIFY2(place.state != MarkerPlace::State::Carried, told.constData());
                if (place.state == MarkerPlace::State::Nearest)
                    QVERIFY2(pictureAt(place.newFrame).first == picture.first, told.constData());
            } else {
                QVERIFY2(place.state == MarkerPlace::State::Carried, told.constData());
                QVERIFY2(std::count(there.begin(), there.end(), place.newFrame) == 1, told.constData());
                once += there.size() == 1;
            }
        }
    }
    QVERIFY2(once > seriesLength(1000) * 10, "Too few pictures are left once for the test to mean anything.");
}

void TestCarrying::places_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("expected"); // of all markers

    const QByteArray abc =
        video(track(clip("a", "0-50@0") + clip("b", "50-100@10") + clip("c", "100-150@0")));
    const auto row = [](const char *name, const QByteArray &before, const QByteArray &after,
                        const char *expected) {
        QTest::newRow(name) << sequence(before) << sequence(after) << QString::fromLatin1(expected);
    };
    row("inserted before", marker("60") + abc,
        video(track(clip("x", "0-30@0") + clip("a", "30-80@0") + clip("b", "80-130@10") +
                    clip("c", "130-180@0"))),
        "carried 90");
    row("trimmed away: the nearest frame left", marker("52") + marker("98") + abc,
        video(track(clip("a", "0-50@0") + clip("b", "50-80@20") + clip("c", "80-130@0"))),
        "nearest 50,nearest 79");
    row("gone", marker("60", "70") + abc, video(track(clip("a", "0-50@0") + clip("c", "50-100@0"))), "gone");
    row("twice: between its neighbours", marker("10") + marker("60") + marker("110") + abc,
        video(track(clip("b", "0-50@10") + clip("a", "50-100@0") + clip("b", "100-150@10") +
                    clip("c", "150-200@0"))),
        "carried 60,carried 110,carried 160");
    row("covered by another picture", marker("60") + abc,
        video(track(clip("a", "0-50@0") + clip("b", "50-100@10") + clip("c", "100-150@0")) +
              track(clip("x", "55-70@0"))),
        "nearest 54");
    row("beneath a picture that is switched off", marker("60") + abc,
        video(track(clip("a", "0-50@0") + clip("b", "50-100@10") + clip("c", "100-150@0")) +
              track(clip("x", "55-70@0", "<enabled>FALSE</enabled>"))),
        "carried 60");
    row("a duration ends with its picture", marker("60", "90") + marker("60", "70") + abc,
        video(track(clip("a", "0-50@0") + clip("b", "50-80@10") + clip("c", "80-130@0"))),
        "carried 60+20,carried 60+10");
    row("a duration goes on over a split", marker("60", "90") + abc,
        video(track(clip("b", "0-20@10") + clip("b", "20-50@30"))), "carried 10+30");
    row("half speed", marker("60", "64") + abc, video(track(clip("b", "0-100@20", remap("speed", "50")))),
        "carried 20+8"); // clip frame 40
    row("backwards, shown from 59 to 10", marker("60") + abc,
        video(track(clip("b", "0-50@10", remap("reverse", "TRUE")))), "carried 39");
    row("variable speed is flagged", marker("60") + abc,
        video(track(clip("b", "0-50@10", remap("variablespeed", "1")))), "nearest 10");
    row("in a gap, from the nearest clip",
        marker("52") + marker("78") + video(track(clip("a", "0-50@0") + clip("b", "80-100@0"))),
        video(track(clip("a", "10-60@0") + clip("b", "100-120@0"))), "carried 62,carried 98");
    row("in a gap that has closed", marker("60") + video(track(clip("a", "0-50@0") + clip("b", "80-100@0"))),
        video(track(clip("a", "0-50@0") + clip("b", "50-70@0"))), "nearest 60");
    const QByteArray title = "<generatoritem><name>T</name><start>60</start><end>80</end></generatoritem>";
    row("over a generator, with the clip beneath",
        marker("65") + video(track(clip("a", "50-100@0")) + track(title)),
        video(track(clip("x", "0-5@0") + clip("a", "55-105@0")) +
              track(QByteArray(title).replace("60", "65").replace("80", "85"))),
        "carried 70");
    // Centred, 10 frames with 5 of each side: the cut is at 50.
    const QByteArray dissolve = "<transitionitem><start>45</start><end>55</end><alignment>center</alignment>"
                                "<effect><name>Dissolve</name></effect></transitionitem>";
    row("a dissolve that was added", marker("48") + marker("52") + abc,
        video(track("<clipitem><start>0</start><end>-1</end><in>0</in><out>55</out><file id='fa'><pathurl>"
                    "file:///a.mov</pathurl></file></clipitem>" +
                    dissolve +
                    "<clipitem><start>-1</start><end>100</end><in>5</in><out>60</out><file id='fb'><pathurl>"
                    "file:///b.mov</pathurl></file></clipitem>")),
        "carried 48,carried 52");
    row("files without a path are the same by id",
        marker("5") + video(track("<clipitem><start>0</start><end>9</end><in>0</in><out>9</out><file "
                                  "id='f'><name>n</name></file></clipitem>")),
        video(track("<clipitem><start>3</start><end>12</end><in>0</in><out>9</out><file "
                    "id='f'><name>o</name></file></clipitem>")),
        "carried 8");
    row("sound where there is no picture",
        marker("5") + "<media><audio>" + track(clip("a", "0-50@0")) + "</audio></media>",
        "<media><audio>" + track(clip("x", "0-10@0")) + track(clip("a", "20-70@0")) + "</audio></media>",
        "carried 25");
    row("sound that has a picture over it now",
        marker("5") + "<media><audio>" + track(clip("a", "0-50@0")) + "</audio></media>",
        "<media><video>" + track(clip("x", "0-90@0")) + "</video><audio>" + track(clip("a", "20-70@0")) +
            "</audio></media>",
        "nearest 25");
    row("markers inside clips, too, follow into the part that has them",
        video(track(clip("a", "0-50@0", marker("40")) + clip("b", "50-100@0", marker("7")))),
        video(track(clip("a", "0-20@0") + clip("x", "20-30@0") + clip("a", "30-60@20"))), "carried 50,gone");
}

void TestCarrying::places()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const ReadCut old(before);
    const ReadCut now(after);
    QStringList texts;
    for (const MarkerPlace &place : carried(old, now))
        texts.append(text(place));
    QTEST(texts.join(QLatin1Char(',')), "expected");
}

QTEST_GUILESS_MAIN(TestCarrying)
#include "tst_carrying.moc"
