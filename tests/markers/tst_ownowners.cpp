#include "tests/markers/MarkerProject.h"
#include "tests/support/LongSeries.h"
#include "tests/support/RandomProject.h"
#include "tests/support/TemporaryHome.h"

using namespace vantrell;

namespace
{

QByteArray marker(const char *name)
{
    return QByteArray("<marker><name>") + name + "</name><in>5</in><out>-1</out></marker>";
}

QByteArray sequence(const char *name, const QByteArray &clips, const QByteArray &markers, int timebase = 25)
{
    return QByteArray("<sequence><uuid>U") + name + "</uuid><name>" + name +
           "</name><timecode><rate><timebase>" + QByteArray::number(timebase) +
           "</timebase></rate></timecode><media><video><track>" + clips + "</track></video></media>" +
           markers + "</sequence>";
}

QByteArray clip(const char *id, const QByteArray &content)
{
    return QByteArray("<clipitem id=\"") + id + "\">" + content + "</clipitem>";
}

/// Two sequences at the same position in different bins, the first with three clips on one track, the third
/// unnamed, and a sequence inside the last; a clip with a marker in a bin.
QByteArray project()
{
    const QByteArray nested =
        clip("n", "<name>Nest</name>" + marker("on nest") + sequence("Inner", "", marker("inner"), 30));
    return "<xmeml><project><children><bin><children>" +
           sequence("One",
                    clip("a", "<name>A</name>" + marker("on A")) +
                        clip("b", "<name>B</name>" + marker("on B")) +
                        "<clipitem><marker><in>5</in></marker></clipitem>",
                    marker("on One")) +
           "</children></bin><bin><children>" +
           sequence("Two", clip("a", "<name>A2</name>" + marker("on A2")) + nested, marker("on Two"), 24) +
           "</children></bin><clip id=\"m\"><name>Master</name>" + marker("on master") +
           "</clip></children></project></xmeml>";
}

const QString owners =
    QStringLiteral("name sequenceUUID sequenceName timebase sequenceIndex clipID clipName clipIndex");

} // namespace

class OwnOwnersTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

    static void listOwn(MarkerProject &p, bool own = true)
    {
        p.inventory.setOwnerListing(own ? OwnerListing::Own : OwnerListing::ByPosition);
        p.inventory.populateMarkerData();
    }

    /// The records with their owners and elements, as text.
    static QString all(const MarkerProject &p)
    {
        return p.values(owners + QStringLiteral(" markerElement sequence clip clipUUID ntsc startFrame in"));
    }

private Q_SLOTS:
    void listed()
    {
        MarkerProject p(project());
        QCOMPARE(p.inventory.listedUnderOthersText(),
                 QStringLiteral("6 of 9 markers are listed under another sequence or clip than their own"));
        const QString byPosition = p.values(owners);
        listOwn(p);
        QCOMPARE(p.values(owners), QStringLiteral("on A|UOne|One|25|1|a|A|1\n"
                                                  "on B|UOne|One|25|1|b|B|2\n"
                                                  "-|UOne|One|25|1|-|-|3\n"
                                                  "on One|UOne|One|25|1|-|-|-\n"
                                                  "on A2|UTwo|Two|24|2|a|A2|1\n"
                                                  "on nest|UTwo|Two|24|2|n|Nest|2\n"
                                                  "inner|UInner|Inner|30|3|-|-|-\n"
                                                  "on Two|UTwo|Two|24|2|-|-|-\n"
                                                  "on master|-|-|0|-|m|Master|-"));
        QCOMPARE(p.inventory.listedUnderOthersText(), QString());
        listOwn(p, false);
        QCOMPARE(p.values(owners), byPosition);
    }

    void edits()
    {
        MarkerProject p(project());
        listOwn(p);
        const auto sameAfterReading = [&p] {
            const QString before = all(p);
            listOwn(p);
            return all(p) == before;
        };
        p.editor.addMarkerWithName(QStringLiteral("new"), 7, -1, QString(), QString(), 2);
        QCOMPARE(MarkerProject::values(*p.document.markerArray().back(), owners),
                 QStringLiteral("new|UTwo|Two|24|2|-|-|-"));
        QCOMPARE(p.document.modifiedSequenceUUIDs(), QStringList{QStringLiteral("UTwo")});
        p.set({4}, "clip", QStringLiteral("2")); // on A2, onto the nest
        QCOMPARE(MarkerProject::values(*p.marker(4), owners), QStringLiteral("on A2|UTwo|Two|24|2|n|Nest|2"));
        p.set({2}, "clip",
              QStringLiteral("1")); // off the unnamed clip, and back: it now is called like its marker
        QCOMPARE(MarkerProject::values(*p.marker(2), owners), QStringLiteral("-|UOne|One|25|1|a|A|1"));
        p.set({0}, "clip", QStringLiteral("3"));
        QCOMPARE(MarkerProject::values(*p.marker(0), owners), QStringLiteral("on A|UOne|One|25|1|-|on A|3"));
        p.set({5}, "clip", QStringLiteral("0")); // off the nest
        QCOMPARE(MarkerProject::values(*p.marker(5), owners), QStringLiteral("on nest|UTwo|Two|24|2|-|-|-"));
        p.set({1}, "sequence", QStringLiteral("3"));
        QCOMPARE(MarkerProject::values(*p.marker(1), owners), QStringLiteral("on B|UInner|Inner|30|3|-|-|-"));
        QCOMPARE(p.document.modifiedSequenceUUIDs()->last(), QStringLiteral("UInner"));
        p.set({8}, "clip", QStringLiteral("0")); // no sequence holds it
        QCOMPARE(MarkerProject::values(*p.marker(8), owners), QStringLiteral("on master|-|-|0|-|m|Master|-"));
        p.document.rowView(Tab::Markers).setList(RowList(p.document.markerArray()));
        QVERIFY(!sameAfterReading()); // the order is another
        QVERIFY(sameAfterReading());
    }

    /// After any edit the records equal those of a new load.
    void randomEdits()
    {
        for (quint64 seed = 0; seed < quint64(seriesLength(400)); ++seed) {
            MarkerProject p(RandomProject(seed).xml());
            listOwn(p);
            RandomNumbers random(seed);
            const std::size_t count = p.document.markerArray().size();
            for (int step = 0; step < 4 && count > 0; ++step) {
                const std::size_t row = std::size_t(random.below(int(count)));
                const RowRecordPtr edited = p.marker(row);
                p.set({row}, random.oneIn(2) ? "clip" : "sequence", QString::number(random.below(4)));
                const XmlNode element = edited->get(MarkerKey::markerElement);
                const QString keys = owners + QStringLiteral(" sequence clip clipUUID ntsc startFrame");
                const QString now = MarkerProject::values(*edited, keys);
                MarkerInventory fresh(p.document, p.fields);
                fresh.setOwnerListing(OwnerListing::Own);
                const RowList before = p.document.markerArray();
                fresh.populateMarkerData();
                for (const RowRecordPtr &read : p.document.markerArray()) {
                    if (read->get(MarkerKey::markerElement) == element)
                        QVERIFY2(
                            MarkerProject::values(*read, keys) == now,
                            qPrintable(QString::number(seed) + now + MarkerProject::values(*read, keys)));
                }
                p.document.rowView(Tab::Markers).setList(before);
                p.document.rowView(Tab::Markers).show(before);
            }
        }
    }
};

QTEST_GUILESS_MAIN(OwnOwnersTest)
#include "tst_ownowners.moc"
