#include "effects/EffectReader.h"
#include "media/MediaInventory.h"
#include "support/QVLog.h"
#include "tests/effects/EffectProject.h"
#include "tests/support/RandomProject.h"
#include "tests/support/TemporaryHome.h"
#include "xml/QVXMLParser.h"

#include <QTest>

#include <thread>

using namespace vantrell;

namespace
{

/// "key=value …" in the record's order, without the element.
QString textOf(const RowRecord &record)
{
    QStringList parts;
    for (std::size_t i = 0; i < record.size(); ++i) {
        const RecordKey key = record.keyAt(i);
        if (key == EffectKey::effectElement)
            continue;
        const auto *number = std::get_if<std::int64_t>(&record.valueAt(i));
        parts.append(key.text() + QLatin1Char('=') + (number ? QString::number(*number) : record.text(key)));
    }
    return parts.join(QLatin1Char(' '));
}

QString listOf(const MyDocument &document)
{
    QStringList rows;
    for (const RowRecordPtr &row : document.effectArray())
        rows.append(textOf(*row));
    return rows.join(QLatin1Char('\n'));
}

} // namespace

class EffectInventoryTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

private Q_SLOTS:
    void initTestCase() { QVLog::createNewLog(QStringLiteral("tests"), true); }

    void records_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QByteArray>("rows");
        const QByteArray inS = " sequence=S sequenceUUID=U-S";
        QTest::newRow("filters before generators, a generator's filters among the filters")
            << project(sequence(
                   "S", "<generatoritem>" + filter(named("A")) + "<effect>" + named("G") +
                            "</effect></generatoritem><clipitem id=\"c%201\"><name>C</name><uuid>V</uuid>" +
                            filter(named("B", "AUDIO")) + "</clipitem>"))
            << "enabled=1 effectType=Filter name=A mediaType=Video" + inS +
                   "\nenabled=1 effectType=Filter name=B mediaType=Audio" + inS +
                   " clip=C clipUUID=V clipID=c%201" +
                   "\nenabled=1 effectType=Generator name=G mediaType=Video" + inS;
        QTest::newRow("a single sequence: direct tracks only")
            << "<xmeml>" +
                   sequence("S", "<clipitem>" + filter(named("A")) + sequence("N", "<generatoritem/>") +
                                     "</clipitem><clip>" + filter(named("no")) + "</clip>") +
                   sequence("T", "<generatoritem/>") + "</xmeml>"
            << "enabled=1 effectType=Filter name=A mediaType=Video" + inS + " clip=A clipUUID=U-N";
        QTest::newRow("a project: at any depth; the nearest owners")
            << project(
                   "<bin><children><clip id=\"k\"><name>K</name><media><video><track><clipitem "
                   "id=\"i\"><name>I</name>"
                   "<filter/></clipitem><generatoritem/></track></video></media></clip></children></bin>" +
                   sequence("S", "<clipitem id=\"o\"><name>O</name>" +
                                     sequence("N", "<clipitem id=\"n\"/><generatoritem/>") + "</clipitem>"))
            << QByteArray(
                   "enabled=1 effectType=Filter clip=I clipID=i\n"
                   "enabled=1 effectType=Generator clip=K clipID=k\n"
                   "enabled=1 effectType=Generator sequence=N sequenceUUID=U-N clip=O clipUUID=U-N clipID=o");
        QTest::newRow("outside the project's children")
            << QByteArray(
                   "<xmeml><project><clipitem><filter/></clipitem><children/><children><generatoritem/>"
                   "</children></project></xmeml>")
            << QByteArray();
        QTest::newRow("enabled or not")
            << project("<clipitem>" + filter("", "<enabled>false</enabled>") +
                       filter("", "<enabled>False</enabled><enabled>TRUE</enabled>") +
                       filter("", "<enabled/>") + filter("", "<enabled> FALSE</enabled>") +
                       filter("", "<enabled>0</enabled>") + "</clipitem>")
            << QByteArray(
                   "enabled=0 effectType=Filter\nenabled=0 effectType=Filter\nenabled=1 effectType=Filter\n"
                   "enabled=1 effectType=Filter\nenabled=1 effectType=Filter");
        QTest::newRow("names and media types")
            << project("<clipitem>" +
                       filter("<name>A%20B</name><mediatype>vIDEO left-hand o'NEIL\tx</mediatype>") +
                       filter("<x><name>deep</name></x>") +
                       "<filter><effect id=\"E\"/><effect><name>second</name></effect></filter>" +
                       "<filter><name>own</name></filter></clipitem>")
            << QByteArray(
                   "enabled=1 effectType=Filter name=A B mediaType=Video Left-hand O'neil\tX clip=A B\n"
                   "enabled=1 effectType=Filter name=deep clip=A B\n"
                   "enabled=1 effectType=Filter name=E clip=A B\nenabled=1 effectType=Filter clip=A B");
    }
    void records()
    {
        QFETCH(QByteArray, xml);
        QFETCH(QByteArray, rows);
        EffectProject opened;
        QVERIFY(opened.load(xml));
        QCOMPARE(listOf(opened.document), QString::fromUtf8(rows));
        QCOMPARE(opened.document.rowsOnShow(Tab::Effects).size(), opened.document.effectArray().size());
        QVERIFY(!opened.document.isPopulating(Tab::Effects));
        QCOMPARE(opened.world.events.filter(QStringLiteral("stop")), QStringList{QStringLiteral("stop 1")});
    }

    void randomProjects()
    {
        std::size_t found = 0;
        for (quint64 seed = 0; seed < 300; ++seed) {
            const auto tree = XmlDocument::fromData(RandomProject(seed).xml(), {});
            QVERIFY(tree);
            const XmlNode document = tree.value()->node();
            const bool isSingle = bool(document.firstChildElement().childElement("sequence"));
            const QString scope = isSingle ? QStringLiteral("./xmeml[1]/sequence[1]/media[1]/*/track/")
                                           : QStringLiteral("./xmeml[1]/project[1]/children[1]//");
            XmlNodeList expected = *QVXMLParser::nodesForQuery(
                scope + QStringLiteral("(clipitem | generatoritem)/filter"), document);
            const XmlNodeList generators =
                *QVXMLParser::nodesForQuery(scope + QStringLiteral("generatoritem"), document);
            expected.insert(expected.end(), generators.begin(), generators.end());
            const XmlNodeList elements = EffectReader::effectElements(document, isSingle ? 1 : 0);
            QVERIFY(elements == expected);
            found += elements.size();
            EffectReader reader;
            for (const XmlNode element : elements) {
                const RowRecordPtr record = reader.recordOf(element);
                const XmlNode effect = QVXMLParser::nodeForQuery(QStringLiteral("./effect[1]"), element);
                const XmlNode sequence = QVXMLParser::parentWithName(element, "sequence");
                XmlNode clip = QVXMLParser::parentWithName(element, "clipitem");
                if (!clip)
                    clip = QVXMLParser::parentWithName(element, "clip");
                const std::pair<TypedKey<QString>, std::optional<QString>> texts[] = {
                    {EffectKey::name, QVXMLParser::nameForNode(effect)},
                    {EffectKey::sequence, QVXMLParser::nameForNode(sequence)},
                    {EffectKey::sequenceUUID, QVXMLParser::uuidForNode(sequence)},
                    {EffectKey::clip, QVXMLParser::nameForNode(clip)},
                    {EffectKey::clipUUID, QVXMLParser::uuidForNode(clip)},
                    {EffectKey::clipID, QVXMLParser::stringValueForQuery(QStringLiteral("./@id[1]"), clip)},
                };
                for (const auto &[key, text] : texts) {
                    QCOMPARE(record->contains(key), text.has_value());
                    QCOMPARE(record->get(key), text.value_or(QString()));
                }
                const bool isOff =
                    element.childElement("enabled").stringValue().toUpper() == QStringLiteral("FALSE");
                QCOMPARE(record->get(EffectKey::enabled), isOff ? 0 : 1);
            }
        }
        QVERIFY2(found > 300, qPrintable(QString::number(found)));
    }

    void view_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("defaults");
        QTest::addColumn<QString>("search");
        QTest::addColumn<QString>("sort");
        QTest::addColumn<QString>("names");
        const auto none = QString();
        QTest::newRow("all") << 0 << false << none << none << "Gaussian Blur|opacity|Opacity 2|-|Hum|Text";
        QTest::newRow("with defaults")
            << 0 << true << none << none << "Gaussian Blur|Opacity|opacity|Opacity 2|Motion Blur|-|Hum|Text";
        QTest::newRow("filters") << 1 << false << none << none << "Gaussian Blur|opacity|Opacity 2|-|Hum";
        QTest::newRow("video filters") << 2 << false << none << none << "Gaussian Blur|opacity";
        QTest::newRow("audio filters") << 3 << false << none << none << "Hum";
        QTest::newRow("generators") << 4 << true << none << none << "Text";
        QTest::newRow("transitions") << 5 << true << none << none << "";
        QTest::newRow("beyond the menu") << 6 << false << QStringLiteral("text") << none << "-|Text";
        QTest::newRow("search") << 0 << false << QStringLiteral("BLUR") << none << "Gaussian Blur|-";
        QTest::newRow("search with defaults")
            << 0 << true << QStringLiteral("blur") << none << "Gaussian Blur|Motion Blur|-";
        QTest::newRow("sorted") << 0 << true << none << QStringLiteral("name")
                                << "-|Gaussian Blur|Hum|Motion Blur|Opacity|opacity|Opacity 2|Text";
        QTest::newRow("sorted by what is switched off, then backwards by name")
            << 0 << false << none << QStringLiteral("enabled name:desc")
            << "Hum|Text|Opacity 2|opacity|Gaussian Blur|-";
    }
    void view()
    {
        EffectProject opened;
        QVERIFY(opened.load(project(
            "<clipitem>" + filter(named("Gaussian Blur")) + filter(named("Opacity")) +
            filter(named("opacity")) + filter("<name>Opacity 2</name>") + filter(named("Motion Blur")) +
            "<filter/>" + filter(named("Hum", "audio"), "<enabled>FALSE</enabled>") +
            "</clipitem><generatoritem><effect>" + named("Text") + "</effect></generatoritem>")));
        QFETCH(QString, sort);
        std::vector<SortDescriptor> descriptors;
        for (const QString &part : sort.split(QLatin1Char(' '), Qt::SkipEmptyParts))
            descriptors.push_back({part.section(QLatin1Char(':'), 0, 0), part.contains(QLatin1Char(':'))});
        opened.world.setSortDescriptors(Tab::Effects, descriptors);
        QFETCH(int, type);
        QFETCH(bool, defaults);
        QFETCH(QString, search);
        ViewState &view = opened.document.viewState();
        view.effectType = type;
        view.effectShowDefaults = defaults;
        view.effectSearch = search;
        opened.inventory.changeEffectFilter();
        QTEST(opened.shownNames(), "names");
        const std::size_t count = opened.document.rowsOnShow(Tab::Effects).size();
        QCOMPARE(opened.status(),
                 QStringLiteral("%1 item%2").arg(count).arg(count == 1 ? QString() : QStringLiteral("s")));
    }

    void statusCountsTheSelection()
    {
        EffectProject opened;
        QVERIFY(opened.load(project("<clipitem><filter/><filter/></clipitem>")));
        opened.world.selectRows(Tab::Effects, {1});
        opened.inventory.updateEffectStatusText();
        QCOMPARE(opened.status(), QStringLiteral("2 items (1 selected)"));
    }

    void threeInventoriesAtOnce()
    {
        QByteArray sequences;
        for (int i = 0; i < 40; ++i) {
            QByteArray clips;
            for (int k = 0; k < 20; ++k)
                clips += "<clipitem><file id=\"f\"><pathurl>file:///x/" + QByteArray::number(k) +
                         "</pathurl></file>" + filter(named("Blur")) + "</clipitem>";
            sequences += sequence(QByteArray::number(i), clips);
        }
        EffectProject opened;
        MediaFilter mediaFilter(opened.document);
        MediaInventory media(opened.document, mediaFilter);
        opened.others = {[&](MyDocument &document) {
            std::thread menus([&document] {
                for (const MenuItem &item : *document.sequenceMenu())
                    document.clipIDsForSequence(item.element);
            });
            media.populateMediaData();
            menus.join();
        }};
        QVERIFY(opened.load(project(sequences)));
        QCOMPARE(opened.document.effectArray().size(), std::size_t(800));
        QCOMPARE(opened.document.mediaArray().size(), std::size_t(800));
        // The Effects tab shows, whichever ended last.
        QCOMPARE(opened.document.rowsOnShow(Tab::Effects).size(), std::size_t(800));
        QCOMPARE(opened.world.label(Label::MediaTotalFiles), QStringLiteral("Total number of files: 800"));
    }

    void closingKeepsTheList()
    {
        EffectProject opened;
        opened.document.close();
        const RowList before{std::make_shared<RowRecord>()};
        opened.document.setListOf(Tab::Effects, before);
        std::thread([&opened] { opened.inventory.populateEffectData(); }).join();
        QVERIFY(opened.document.effectArray() == before);
        QVERIFY(!opened.document.isPopulating(Tab::Effects));
    }
};

QTEST_GUILESS_MAIN(EffectInventoryTest)
#include "tst_effectinventory.moc"
