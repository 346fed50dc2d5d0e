#include "effects/EffectInventory.h"
#include "media/MediaInventory.h"
#include "support/log/QVLog.h"
#include "tests/effects/EffectProject.h"
#include "tests/support/LongSeries.h"
#include "tests/support/RandomProject.h"
#include "tests/support/TemporaryHome.h"
#include "xml/QVXMLParser.h"

#include <QTest>

#include <thread>

using namespace vantrell;

namespace
{

/// One line a record, "key=value …" in the record's order, without the element.
QByteArray listOf(const MyDocument &document)
{
    QByteArrayList rows;
    for (const RowRecordPtr &row : document.effectArray()) {
        QByteArrayList parts;
        for (std::size_t i = 0; i < row->size(); ++i) {
            const RecordKey key = row->keyAt(i);
            if (const auto *number = std::get_if<std::int64_t>(&row->valueAt(i)))
                parts.append(key.text().toUtf8() + '=' + QByteArray::number(qint64(*number)));
            else if (std::holds_alternative<QString>(row->valueAt(i)))
                parts.append(key.text().toUtf8() + '=' + row->text(key).toUtf8());
        }
        rows.append(parts.join(' '));
    }
    return rows.join('\n');
}

} // namespace

class EffectInventoryTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

private Q_SLOTS:
    void initTestCase() { QVLog::createNewLog(QStringLiteral("tests"), true); }

    void records()
    {
        const QByteArray inS = " sequence=S sequenceUUID=U-S", f = "enabled=1 effectType=Filter",
                         off = "enabled=0 effectType=Filter", g = "enabled=1 effectType=Generator";
        const std::pair<QByteArray, QByteArray> table[] = {
            // Filters before generators, a generator's filters among the filters.
            {project(sequence("S", "<generatoritem>" + filter(named("A")) + named("G") +
                                       "</generatoritem><clipitem id=\"c%201\"><name>C</name><uuid>V</uuid>" +
                                       filter(named("B", "AUDIO")) + "</clipitem>")),
             f + " name=A mediaType=Video" + inS + '\n' + f + " name=B mediaType=Audio" + inS +
                 " clip=C clipUUID=V clipID=c%201\n" + g + " name=G mediaType=Video" + inS},
            // In a single sequence only the tracks count.
            {"<xmeml>" +
                 sequence("S", clip(filter(named("A")) + sequence("N", "<generatoritem/>")) +
                                   "<clip><filter/></clip>") +
                 sequence("T", "<generatoritem/>") + "</xmeml>",
             f + " name=A mediaType=Video" + inS + " clip=A clipUUID=U-N"},
            {"<xmeml><project>" + clip("<filter/>") +
                 "<children/><children><generatoritem/></children></project></xmeml>",
             ""},
            {project(clip(filter("<enabled>False</enabled><enabled>TRUE</enabled>") + filter("<enabled/>") +
                          filter("<enabled> FALSE</enabled>"))),
             off + '\n' + f + '\n' + f},
            // Words are separated by white space only; a name is searched for within the effect.
            {project(clip("<name>C</name>" + filter(named("A%20B", "vIDEO left-hand o'NEIL\tx")) +
                          filter("<effect><x><name>deep</name></x></effect>") +
                          filter("<effect id=\"E\"/><effect><name>second</name></effect>") +
                          filter("<name>own</name>"))),
             f + " name=A B mediaType=Video Left-hand O'neil\tX clip=C\n" + f + " name=deep clip=C\n" + f +
                 " name=E clip=C\n" + f + " clip=C"},
        };
        for (const auto &[xml, rows] : table) {
            EffectProject opened;
            QVERIFY(opened.load(xml));
            QCOMPARE(listOf(opened.document), rows);
            QCOMPARE(opened.document.rowsOnShow(Tab::Effects).size(), opened.document.effectArray().size());
            QVERIFY(!opened.document.isPopulating(Tab::Effects));
            QCOMPARE(opened.world.events.filter(QStringLiteral("stop")),
                     QStringList{QStringLiteral("stop 1")});
        }
    }

    void randomProjects()
    {
        std::size_t found = 0;
        for (quint64 seed = 0; seed < quint64(seriesLength(1200)); ++seed) {
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
                const XmlNode owner = QVXMLParser::parentWithName(element, "sequence");
                const XmlNode clipItem = QVXMLParser::parentWithName(element, "clipitem");
                const XmlNode holder = clipItem ? clipItem : QVXMLParser::parentWithName(element, "clip");
                const std::pair<TypedKey<QString>, std::optional<QString>> texts[] = {
                    {EffectKey::name, QVXMLParser::nameForNode(effect)},
                    {EffectKey::sequence, QVXMLParser::nameForNode(owner)},
                    {EffectKey::sequenceUUID, QVXMLParser::uuidForNode(owner)},
                    {EffectKey::clip, QVXMLParser::nameForNode(holder)},
                    {EffectKey::clipUUID, QVXMLParser::uuidForNode(holder)},
                    {EffectKey::clipID, QVXMLParser::stringValueForQuery(QStringLiteral("./@id[1]"), holder)},
                };
                for (const auto &[key, text] : texts) {
                    QCOMPARE(record->contains(key), text.has_value());
                    QCOMPARE(record->get(key), text.value_or(QString()));
                }
            }
        }
        QVERIFY2(found > std::size_t(seriesLength(1200)), qPrintable(QString::number(found)));
    }

    void view()
    {
        struct Case {
            int type;
            bool showDefaults;
            const char *search;
            const char *sort;
            const char *names;
        };
        const Case table[] = {
            {0, false, "", "", "Gaussian Blur|opacity|Opacity 2|-|Hum|Text"},
            {0, true, "", "", "Gaussian Blur|Opacity|opacity|Opacity 2|Motion Blur|-|Hum|Text"},
            {1, false, "", "", "Gaussian Blur|opacity|Opacity 2|-|Hum"},
            {2, false, "", "", "Gaussian Blur|opacity"},
            {3, false, "", "", "Hum"},
            {4, true, "", "", "Text"},
            {5, true, "", "", ""},
            {6, false, "text", "", "-|Text"},
            {0, false, "BLUR", "", "Gaussian Blur|-"},
            {0, true, "blur", "", "Gaussian Blur|Motion Blur|-"},
            {0, true, "", "name", "-|Gaussian Blur|Hum|Motion Blur|Opacity|opacity|Opacity 2|Text"},
            {0, false, "", "enabled name:desc", "Hum|Text|Opacity 2|opacity|Gaussian Blur|-"},
        };
        EffectProject opened;
        QVERIFY(opened.load(project(
            clip(filter(named("Gaussian Blur")) + filter(named("Opacity")) + filter(named("opacity")) +
                 filter("<effect><name>Opacity 2</name></effect>") + filter(named("Motion Blur")) +
                 filter("") + filter(named("Hum", "audio") + "<enabled>FALSE</enabled>")) +
            "<generatoritem>" + named("Text") + "</generatoritem>")));
        for (const Case &row : table) {
            opened.document.rowView(Tab::Effects).setSortDescriptors(sortDescriptors(row.sort));
            ViewState &view = opened.document.viewState();
            view.effectType = row.type;
            view.effectShowDefaults = row.showDefaults;
            view.effectSearch = QString::fromLatin1(row.search);
            opened.inventory.changeEffectFilter();
            QCOMPARE(opened.shownNames(), QString::fromLatin1(row.names));
            const std::size_t count = opened.document.rowsOnShow(Tab::Effects).size();
            const QString plural = count == 1 ? QString() : QStringLiteral("s");
            QCOMPARE(opened.status(), QStringLiteral("%1 item%2").arg(count).arg(plural));
        }
        opened.world.selectRows(Tab::Effects, {1});
        opened.inventory.updateEffectStatusText();
        QCOMPARE(opened.status(), QStringLiteral("6 items (1 selected)"));
    }

    void threeInventoriesAtOnce()
    {
        QByteArray sequences;
        for (int i = 0; i < 800; ++i) {
            const QByteArray number = QByteArray::number(i);
            sequences += sequence(number, clip("<file id=\"f\"><pathurl>file:///x/" + number +
                                               "</pathurl></file>" + filter("")));
        }
        EffectProject opened;
        MediaFilter mediaFilter(opened.document);
        MediaInventory media(opened.document, mediaFilter);
        opened.builders.push_back([&] {
            std::thread menus([&] {
                for (const MenuItem &item : *opened.document.sequenceMenu())
                    opened.document.clipIDsForSequence(item.element);
            });
            media.populateMediaData();
            menus.join();
        });
        QVERIFY(opened.load(project(sequences)));
        QCOMPARE(opened.document.effectArray().size(), std::size_t(800));
        QCOMPARE(opened.document.mediaArray().size(), std::size_t(800));
        // The Effects tab shows, whichever ended last.
        QCOMPARE(opened.document.rowsOnShow(Tab::Effects).size(), std::size_t(800));
    }

    void closingKeepsTheList()
    {
        EffectProject opened;
        opened.document.close();
        const RowList before{std::make_shared<RowRecord>()};
        opened.document.rowView(Tab::Effects).setList(before);
        std::thread([&opened] { opened.inventory.populateEffectData(); }).join();
        QVERIFY(opened.document.effectArray() == before);
        QVERIFY(!opened.document.isPopulating(Tab::Effects));
    }
};

QTEST_GUILESS_MAIN(EffectInventoryTest)
#include "tst_effectinventory.moc"
