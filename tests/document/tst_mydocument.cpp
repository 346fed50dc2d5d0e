#include "document/MyDocument.h"
#include "support/QVAlert.h"
#include "tests/support/ScriptedAlertPresenter.h"
#include "tests/support/ScriptedDocumentInterface.h"
#include "tests/support/TemporaryHome.h"
#include "xml/XmlEdit.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

using namespace vantrell;

namespace
{

QString titles(const MenuPtr &menu)
{
    QStringList list;
    for (const MenuItem &item : *menu)
        list.append(item.title);
    return list.join(QLatin1Char('|'));
}

QByteArray sequence(const QByteArray &tracks)
{
    return "<xmeml version=\"5\"><sequence id=\"s\"><name>S</name><media>" + tracks +
           "</media></sequence></xmeml>";
}

} // namespace

class MyDocumentTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

    /// Loads the content as a file and waits for the end of it.
    void load(MyDocument &document, ScriptedDocumentInterface &world, const QByteArray &content,
              const QString &type = DocumentType::publicXML)
    {
        const QUrl url = QUrl::fromLocalFile(m_home.addFile(QStringLiteral("p/project.xml"), content));
        QVERIFY(document.readFromURL(url, type));
        QVERIFY(MainThread::drainUntil([&world] { return world.ended; }, std::chrono::seconds(60)));
    }

private Q_SLOTS:
    void sequences_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<qint64>("type");
        QTest::addColumn<QString>("menu");
        QTest::newRow("single") << sequence("") << qint64(1) << QStringLiteral("(none)|S");
        QTest::newRow("both: the direct sequence counts")
            << QByteArray("<xmeml><project><children><sequence><name>P</name></sequence></children></project>"
                          "<sequence><name>D</name></sequence><sequence><name>E</name></sequence></xmeml>")
            << qint64(1) << QStringLiteral("(none)|D");
        QTest::newRow("project, at any depth")
            << QByteArray("<xmeml><project><children><bin><children><sequence><name>A%20B</name></sequence></"
                          "children></bin>"
                          "<sequence><media><video><track><clipitem><sequence/></clipitem></track></video></"
                          "media></sequence>"
                          "</children></project></xmeml>")
            << qint64(0) << QStringLiteral("(none)|A B|Unknown sequence|Unknown sequence");
        QTest::newRow("no sequences") << QByteArray("<xmeml><project><children/></project></xmeml>")
                                      << qint64(0) << QStringLiteral("(none)");
        QTest::newRow("another root")
            << QByteArray("<fcpxml><sequence/></fcpxml>") << qint64(0) << QStringLiteral("(none)");
    }
    void sequences()
    {
        QFETCH(QByteArray, xml);
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        load(document, world, xml);
        QVERIFY(world.loaded);
        QTEST(qint64(document.xmlType()), "type");
        QTEST(titles(document.sequenceMenu()), "menu");
        QVERIFY(world.sequenceMenu == document.sequenceMenu());
    }

    void clips_data()
    {
        QTest::addColumn<QByteArray>("tracks");
        QTest::addColumn<QString>("menu");
        QTest::addColumn<QString>("ids");
        QTest::newRow("none") << QByteArray() << QStringLiteral("(none)") << QString();
        QTest::newRow("tracks in file order")
            << QByteArray("<video><track><clipitem id=\"c%201\"><name>A</name></clipitem><generatoritem "
                          "id=\"g\"/></track></video>"
                          "<audio><track><clipitem id=\"50%\"><name>B</name></clipitem></track></audio>")
            << QStringLiteral("(none)|A|g|B (audio)") << QStringLiteral("|c 1|g|");
        QTest::newRow("stills")
            << QByteArray("<video><track><clipitem><name>A</name><stillframeoffset>1</"
                          "stillframeoffset><stillframe/></clipitem>"
                          "<clipitem><name>B</name><stillframe>TRUE</stillframe></clipitem></track></video>"
                          "<audio><track><clipitem><name>C</name><stillframe/></clipitem></track></audio>")
            << QStringLiteral("(none)|A (freeze frame)|B (still)|C (still)") << QStringLiteral("|||");
        QTest::newRow("unnamed") << QByteArray("<video><track><clipitem/><generatoritem/><transitionitem/></"
                                               "track></video><audio><track><clip/></track></audio>")
                                 << QStringLiteral(
                                        "(none)|Unknown clip|Unknown generator|Unknown clip (audio)")
                                 << QStringLiteral("|||");
    }
    void clips()
    {
        QFETCH(QByteArray, tracks);
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        load(document, world, sequence(tracks));
        const XmlNode element = document.sequenceMenu()->at(1).element;
        QTEST(titles(document.clipMenuForSequence(element)), "menu");
        QTEST(document.clipIDsForSequence(element)->join(QLatin1Char('|')), "ids");
        QVERIFY(document.clipMenuForSequence(element) == document.clipMenuForSequence(element));
        QVERIFY(!document.clipIDsForSequence(XmlNode()));
        QCOMPARE(titles(document.clipMenuForSequence(XmlNode())), QStringLiteral("(none)"));
    }

    void failedLoadsLeaveTheDocumentOpenAndEmpty_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("type");
        QTest::newRow("no XML") << QByteArray("hello") << DocumentType::finalCutProXMLFile;
        QTest::newRow("empty") << QByteArray() << DocumentType::publicXML;
        QTest::newRow("no editing application") << sequence("") << DocumentType::finalCutProProject;
    }
    void failedLoadsLeaveTheDocumentOpenAndEmpty()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, type);
        const auto alerts = std::make_shared<ScriptedAlertPresenter>(std::initializer_list<int>{1});
        QVAlert::setPresenter(alerts);
        ScriptedDocumentInterface world;
        bool built = false;
        MyDocument document(world, {{[&built](MyDocument &) { built = true; }}, {}, {}});
        load(document, world, content, type);
        QVAlert::setPresenter(nullptr);
        QVERIFY(!world.loaded);
        QVERIFY(!document.xmlDoc());
        QVERIFY(!built);
        for (const Tab tab : {Tab::Media, Tab::Effects, Tab::Markers})
            QVERIFY(document.isPopulating(tab));
        QCOMPARE(world.events.join(QLatin1Char('|')), QStringLiteral("start 0|start 1|start 2"));
        QCOMPARE(titles(document.sequenceMenu()), QStringLiteral("(none)"));
        const bool withAlert = type == DocumentType::finalCutProProject;
        QCOMPARE(alerts->shown().size(), std::size_t(withAlert));
        QCOMPARE(world.message.isEmpty(), withAlert);
        if (withAlert) {
            QCOMPARE(alerts->shown()[0].text(AlertKey::MessageText),
                     QStringLiteral("Unable to load project"));
            QCOMPARE(alerts->shown()[0].text(AlertKey::InformativeText),
                     QStringLiteral("Final Cut Pro 7 is not installed on this system."));
        }
    }

    void anUnknownTypeIsRefused()
    {
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        QVERIFY(!document.readFromURL(QUrl::fromLocalFile(m_home.path()), QStringLiteral("public.text")));
        QVERIFY(!document.isPopulating(Tab::Media));
    }

    void inventoriesRunSideBySide()
    {
        ScriptedDocumentInterface world;
        std::atomic<int> arrived = 0;
        const auto builder = [&arrived](MyDocument &document) {
            ++arrived;
            while (arrived < 3 && !document.isClosing())
                std::this_thread::yield();
        };
        MyDocument document(world, {{builder, builder, builder}, {}, {}});
        load(document, world, sequence(""));
        QCOMPARE(arrived.load(), 3);
    }

    void closesWhileLoading()
    {
        QByteArray large("<xmeml><project><children>");
        for (int i = 0; i < 200000; ++i)
            large += "<bin><name>b</name></bin>";
        const QString path = m_home.addFile(QStringLiteral("p/large.xml"), large);
        QElapsedTimer timer;
        timer.start();
        for (int delay = 0; delay < 60; delay += 15) {
            ScriptedDocumentInterface world;
            // A worker that waits for the main thread, which is on its way out.
            const auto builder = [](MyDocument &document) {
                while (document.mainThread()->runAndWait([] {}))
                    std::this_thread::yield();
            };
            MyDocument document(world, {{builder}, {}, {}});
            QVERIFY(document.readFromURL(QUrl::fromLocalFile(path), DocumentType::publicXML));
            MainThread::drainUntil([] { return false; }, std::chrono::milliseconds(delay));
            document.close();
            QVERIFY(document.isClosing());
        }
        QVERIFY(timer.elapsed() < 20000);
    }

    void savesPlainDocumentsAndSendsTheOthers()
    {
        ScriptedDocumentInterface world;
        int sent = 0;
        MyDocument document(world, {{}, {}, [&sent](MyDocument &) { ++sent; }});
        load(document, world, sequence("<video>\n<track/>\n</video>"));
        const QUrl target = QUrl::fromLocalFile(m_home.path(QStringLiteral("p/out.xml")));
        QVERIFY(!document.writeToURL(target, DocumentType::finalCutProProject));
        QCOMPARE(sent, 1);
        QVERIFY(!QFile::exists(target.toLocalFile()));
        document.setPremiereProject(true);
        QVERIFY(!document.writeToURL(QUrl::fromLocalFile(m_home.path(QStringLiteral("none/out.xml"))),
                                     DocumentType::publicXML));
        QVERIFY(document.isPremiereProject());
        QVERIFY(document.writeToURL(target, DocumentType::publicXML));
        QVERIFY(!document.isPremiereProject());
        QCOMPARE(
            contentOf(target.toLocalFile()),
            QByteArray(
                "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xmeml version=\"5\">\n  <sequence id=\"s\">\n"
                "    <name>S</name>\n    <media>\n      <video>\n        <track/>\n      </video>\n"
                "    </media>\n  </sequence>\n</xmeml>\n"));
    }

    void aRepairedFileIsOverwrittenOnlyWhenAsked()
    {
        const auto alerts = std::make_shared<ScriptedAlertPresenter>(std::initializer_list<int>{0, 1});
        QVAlert::setPresenter(alerts);
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        const QByteArray damaged("<xmeml><project><name>A & B</name>");
        load(document, world, damaged);
        QVERIFY(world.notice.contains(QStringLiteral("repaired")));
        QVERIFY(document.writeToURL(QUrl::fromLocalFile(m_home.path(QStringLiteral("p/other.xml"))),
                                    DocumentType::publicXML));
        QVERIFY(alerts->shown().empty());
        QVERIFY(!document.writeToURL(document.fileURL(), DocumentType::publicXML));
        QCOMPARE(contentOf(document.fileURL().toLocalFile()), damaged);
        QVERIFY(document.writeToURL(document.fileURL(), DocumentType::publicXML));
        QVERIFY(contentOf(document.fileURL().toLocalFile()).endsWith("</xmeml>\n"));
        QCOMPARE(alerts->shown().size(), std::size_t(2));
        QVAlert::setPresenter(nullptr);
    }

    void timecodesByTheRecord()
    {
        RowRecord record;
        record.set(TimecodeKey::timebase, 30);
        record.set(TimecodeKey::dropFrame, true);
        record.set(TimecodeKey::startFrame, 107892);
        QCOMPARE(MyDocument::timecodeFromFrameCount(0, record), QStringLiteral("01:00:00;00"));
        QCOMPARE(MyDocument::frameCountFromTimecode(QStringLiteral("01:00:00;00"), record), std::int64_t(0));
        QCOMPARE(MyDocument::frameCountFromTimecode(QStringLiteral("00:00:00;01"), record),
                 std::int64_t(-107891));
        // A negative count keeps its sign as it is widened to 64 bits.
        QCOMPARE(MyDocument::timecodeFromFrameCount(-1, RowRecord()), QStringLiteral("09:01:52:00"));
    }

    void theListOfModifiedSequencesKeepsRepetitions()
    {
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        QVERIFY(!document.modifiedSequenceUUIDs());
        for (const char *uuid : {"B", "A", "B"})
            document.addModifiedSequenceUUID(QString::fromLatin1(uuid));
        QCOMPARE(document.modifiedSequenceUUIDs()->join(QLatin1Char(' ')), QStringLiteral("B A B"));
        QVERIFY(document.isSequenceModified(QStringLiteral("A")));
        document.clearModifiedSequenceUUIDs();
        QVERIFY(!document.modifiedSequenceUUIDs());
        QVERIFY(!document.isSequenceModified(QStringLiteral("A")));
    }

    void onlyTheTabOnShowHasRows()
    {
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        document.setTableArray(Tab::Markers, {std::make_shared<RowRecord>()});
        document.appendToTableArray(std::make_shared<RowRecord>());
        QCOMPARE(document.rowsOnShow(Tab::Markers).size(), std::size_t(2));
        QVERIFY(document.rowsOnShow(Tab::Media).empty());
        QCOMPARE(world.events.join(QLatin1Char('|')),
                 QStringLiteral("will reload|did reload|will reload|did reload"));
    }
};

QTEST_GUILESS_MAIN(MyDocumentTest)
#include "tst_mydocument.moc"
