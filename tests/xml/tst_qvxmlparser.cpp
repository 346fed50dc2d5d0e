#include "tests/support/TemporaryHome.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlDocument.h"

#include <QTest>

using namespace vantrell;

namespace
{

std::unique_ptr<XmlDocument> parsed(const QByteArray &xml)
{
    Result<std::unique_ptr<XmlDocument>> document = XmlDocument::fromData(xml, {});
    return document ? std::move(document.value()) : nullptr;
}

const QString absent = QStringLiteral("(absent)");

} // namespace

class QVXMLParserTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

private Q_SLOTS:
    void names_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("ownName");
        QTest::newRow("own") << QByteArray("<s id=\"i\"><name>A%20B</name></s>") << QStringLiteral("A B")
                             << QStringLiteral("A B");
        QTest::newRow("deeper") << QByteArray("<s id=\"i\"><x><name>In</name></x></s>")
                                << QStringLiteral("In") << absent;
        QTest::newRow("empty own, deeper")
            << QByteArray("<s><name/><x><name>In</name></x></s>") << QStringLiteral("In") << absent;
        QTest::newRow("id") << QByteArray("<s id=\"I%20D\"/>") << QStringLiteral("I D") << absent;
        QTest::newRow("nothing") << QByteArray("<s/>") << absent << absent;
        QTest::newRow("lone percent")
            << QByteArray("<s><name>50%</name></s>") << QStringLiteral("50%") << QStringLiteral("50%");
        QTest::newRow("one bad escape") << QByteArray("<s><name>a%20b%zz</name></s>")
                                        << QStringLiteral("a%20b%zz") << QStringLiteral("a%20b%zz");
        QTest::newRow("escape beyond ASCII") << QByteArray("<s><name>%C3%A9</name></s>")
                                             << QStringLiteral("%C3%A9") << QStringLiteral("%C3%A9");
        QTest::newRow("plain text beyond ASCII")
            << QByteArray("<s><name>é%20è</name></s>") << QStringLiteral("é è") << QStringLiteral("é è");
        QTest::newRow("CDATA") << QByteArray("<s><name><![CDATA[<x>]]></name></s>") << QStringLiteral("<x>")
                               << QStringLiteral("<x>");
    }
    void names()
    {
        QFETCH(QByteArray, xml);
        const auto document = parsed(xml);
        QTEST(QVXMLParser::nameForNode(document->rootElement()).value_or(absent), "name");
        QTEST(QVXMLParser::nameForNode(document->rootElement(), true).value_or(absent), "ownName");
    }

    void uuidsAndIds()
    {
        const auto document = parsed("<s id=\"a%20b\"><x><uuid>U%2DV</uuid></x></s>");
        const XmlNode s = document->rootElement();
        QCOMPARE(QVXMLParser::uuidForNode(s).value_or(absent), QStringLiteral("U-V"));
        QCOMPARE(QVXMLParser::uuidForNode(s, true).value_or(absent), absent);
        QCOMPARE(QVXMLParser::uuidForNode(parsed("<s id=\"1\"/>")->rootElement()).value_or(absent), absent);
        QCOMPARE(QVXMLParser::idAttributeForNode(s).value_or(absent), QStringLiteral("a b"));
        QCOMPARE(QVXMLParser::idAttributeForNode(parsed("<s id=\"\"/>")->rootElement()).value_or(absent),
                 QString());
        for (const char *without : {"<s/>", "<s id=\"50%\"/>", "<s id=\"%FF\"/>"})
            QCOMPARE(QVXMLParser::idAttributeForNode(parsed(without)->rootElement()).value_or(absent),
                     absent);
    }

    void nullNodesGiveNothing()
    {
        const QString query = QStringLiteral(".//a");
        QVERIFY(!QVXMLParser::stringValuesForQuery(query, XmlNode()));
        QVERIFY(!QVXMLParser::stringValueForQuery(query, XmlNode()));
        QVERIFY(!QVXMLParser::nodeForQuery(query, XmlNode()));
        QVERIFY(QVXMLParser::nodesForQuery(query, XmlNode()).value().empty());
        QVERIFY(!QVXMLParser::nameForNode(XmlNode()));
        QVERIFY(!QVXMLParser::uuidForNode(XmlNode()));
        QVERIFY(!QVXMLParser::idAttributeForNode(XmlNode()));
        QVERIFY(QVXMLParser::affectedNodesForClip(XmlNode()).empty());
        QVERIFY(!QVXMLParser::parentWithName(XmlNode(), "a"));
        QVERIFY(!QVXMLParser::nextSiblingForNode(XmlNode()));
    }

    void queries()
    {
        const auto document =
            parsed("<r><f id=\"é &amp; \U0001F3AC\"><p>1</p></f><f id=\"2\"><p>2</p><p>3</p></f></r>");
        const XmlNode r = document->rootElement();
        const XmlNodeList files = QVXMLParser::nodesForQuery(QStringLiteral("./f"), r).value();
        QCOMPARE(files.size(), std::size_t(2));
        QVERIFY(!QVXMLParser::stringValuesForQuery(QStringLiteral(".//none"), r));
        QCOMPARE(QVXMLParser::stringValuesForQuery(QStringLiteral(".//p"), r).value().join(QLatin1Char(',')),
                 QStringLiteral("1,2,3"));
        QVERIFY(!QVXMLParser::nodesForQuery(QStringLiteral("./f["), r));
        QVERIFY(!QVXMLParser::nodeForQuery(QStringLiteral("./f["), r));
        // References made by the escaping count as their characters, as do those already there.
        const QStringList sameId{QStringLiteral("./f[@id=\"é & \U0001F3AC\"]"),
                                 QStringLiteral("./f[@id=\"é &amp; \U0001F3AC\"]"),
                                 QStringLiteral("./f\t[@id=\"é &\x01 \U0001F3AC\"]")};
        for (const QString &query : sameId)
            QVERIFY2(QVXMLParser::nodeForQuery(query, r) == files[0], qPrintable(query));
        QVERIFY(!QVXMLParser::nodeForQuery(QStringLiteral("./f[@id=\"&#233; & \U0001F3AC\"]"), r));
        const XmlNodeList united = QVXMLParser::nodesFromQueries(
            r, {QStringLiteral("./f[2]"), QStringLiteral("./f["), QStringLiteral("./f")});
        QVERIFY((united == XmlNodeList{files[1], files[0]}));
        QCOMPARE(QVXMLParser::queryNodes({files[1], files[1], files[0]}, QStringLiteral("./p")).size(),
                 std::size_t(5));
        QVERIFY(QVXMLParser::queryNodes(files, QStringLiteral("./none")).empty());
    }

    void escaping_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("escaped");
        QTest::newRow("empty") << QString() << QStringLiteral("");
        QTest::newRow("beyond 159") << QStringLiteral("Café\u009f\u00a0")
                                    << QStringLiteral("Caf&#233;\u009f&#160;");
        QTest::newRow("surrogates") << QStringLiteral("\U0001F3AC") << QStringLiteral("&#55356;&#57260;");
        QTest::newRow("ampersand") << QStringLiteral("a & b") << QStringLiteral("a &amp; b");
        QTest::newRow("short ampersand") << QStringLiteral("&") << QStringLiteral("&amp;");
        QTest::newRow("four units") << QStringLiteral("&amp") << QStringLiteral("&amp;amp");
        QTest::newRow("reference passes") << QStringLiteral("a&amp;") << QStringLiteral("a&amp;");
        QTest::newRow("other reference")
            << QStringLiteral("&lt;&amp;lt;") << QStringLiteral("&amp;lt;&amp;lt;");
        QTest::newRow("controls") << QStringLiteral("a\tb\nc\rd\x13\x14\x1f")
                                  << QStringLiteral("abc&#13;d\x14\x1f");
        QTest::newRow("markup passes") << QStringLiteral("<a>\"'") << QStringLiteral("<a>\"'");
    }
    void escaping()
    {
        QFETCH(QString, text);
        QTEST(QVXMLParser::escapeQueryString(text), "escaped");
    }

    void paths_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("path");
        QTest::newRow("host") << QStringLiteral("file://localhost/Volumes/Media/a%20b.mov")
                              << QStringLiteral("/Volumes/Media/a b.mov");
        QTest::newRow("no host") << QStringLiteral("file:///a/%D0%AF.mov") << QStringLiteral("/a/Я.mov");
        QTest::newRow("other host") << QStringLiteral("file://server/share/a.mov")
                                    << QStringLiteral("/share/a.mov");
        QTest::newRow("drive") << QStringLiteral("file://localhost/C%3a/Users/a.mov")
                               << QStringLiteral("/C:/Users/a.mov");
        QTest::newRow("bad bytes") << QStringLiteral("file:///a%FFb") << QStringLiteral("/a\uFFFDb");
        QTest::newRow("folder") << QStringLiteral("file:///a/b/") << QStringLiteral("/a/b");
        QTest::newRow("root") << QStringLiteral("file:///") << QStringLiteral("/");
        QTest::newRow("host alone") << QStringLiteral("file://localhost") << QStringLiteral("");
        QTest::newRow("relative") << QStringLiteral("media/a.mov") << QStringLiteral("media/a.mov");
        QTest::newRow("query and fragment") << QStringLiteral("http://h:80/a?b/c#d") << QStringLiteral("/a");
        QTest::newRow("blank") << QStringLiteral("file:///a b") << absent;
        QTest::newRow("backslash") << QStringLiteral("C:\\a\\b.mov") << absent;
        QTest::newRow("cut escape") << QStringLiteral("file:///a%2") << absent;
        QTest::newRow("beyond ASCII") << QStringLiteral("file:///é") << absent;
        QTest::newRow("null") << QString() << absent;
    }
    void paths()
    {
        QFETCH(QString, url);
        QTEST(QVXMLParser::filenameFromPathURLString(url).value_or(absent), "path");
    }

    void ancestors()
    {
        const auto document =
            parsed("<sequence><clip><file><sequence><m/></sequence></file></clip></sequence>");
        const XmlNode outer = document->rootElement();
        const XmlNode inner = outer.firstChild().firstChild().firstChild();
        const XmlNode m = inner.firstChild();
        QVERIFY(QVXMLParser::parentWithName(m, "sequence") == inner);
        QVERIFY(QVXMLParser::parentWithName(inner, "sequence") == outer);
        QVERIFY(!QVXMLParser::parentWithName(outer, "sequence"));
        QVERIFY(QVXMLParser::parentWithName(m, "clip", {"other"}) == outer.firstChild());
        QVERIFY(!QVXMLParser::parentWithName(m, "clip", {"file"}));
        // A limit that is the wanted name itself ends the search.
        QVERIFY(!QVXMLParser::parentWithName(m, "sequence", {"sequence"}));
        QVERIFY(QVXMLParser::nextSiblingForNode(m) == XmlNode());
    }

    void transitionGroups_data()
    {
        QTest::addColumn<QByteArray>("track");
        QTest::addColumn<int>("item");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("count");
        QTest::addColumn<qint64>("start");
        QTest::addColumn<qint64>("end");
        const QByteArray joined = "<clipitem><start>0</start><end>-1</end></clipitem>"
                                  "<transitionitem><start>40</start><end>60</end></transitionitem>"
                                  "<clipitem><start>-1</start><end>-1</end></clipitem>"
                                  "<transitionitem><start>90</start><end>110</end></transitionitem>"
                                  "<clipitem><start>-1</start><end>150</end></clipitem>";
        // A transition whose far neighbour is open too belongs to the group and gives no edge itself.
        QTest::newRow("joined, middle") << joined << 2 << 0 << 5 << qint64(0) << qint64(150);
        QTest::newRow("joined, first") << joined << 0 << 0 << 5 << qint64(0) << qint64(150);
        const QByteArray fades = "<clipitem><start>0</start><end>10</end></clipitem>"
                                 "<transitionitem><start>20</start><end>30</end></transitionitem>"
                                 "<clipitem><start>-1</start><end>-1</end></clipitem>"
                                 "<transitionitem><start>80</start><end>95</end></transitionitem>"
                                 "<clipitem><start>100</start><end>120</end></clipitem>";
        QTest::newRow("fades") << fades << 2 << 1 << 3 << qint64(20) << qint64(95);
        QTest::newRow("closed") << fades << 0 << 0 << 1 << qint64(0) << qint64(10);
        const QByteArray open = "<clipitem><start>-1</start><end>-1</end></clipitem>";
        QTest::newRow("nothing beside it") << open << 0 << 0 << 1 << qint64(-1) << qint64(-1);
        QTest::newRow("no edges") << QByteArray("<clipitem/>") << 0 << 0 << 1 << qint64(0) << qint64(0);
        QTest::newRow("neighbour without an edge")
            << QByteArray("<clipitem/>") + open << 1 << 0 << 2 << qint64(0) << qint64(-1);
    }
    void transitionGroups()
    {
        QFETCH(QByteArray, track);
        QFETCH(int, item);
        QFETCH(int, first);
        QFETCH(int, count);
        const auto document = parsed("<track>" + track + "</track>");
        XmlNodeList items;
        for (XmlNode node = document->rootElement().firstChild(); node; node = node.nextSibling())
            items.push_back(node);
        std::int64_t start = 7;
        std::int64_t end = 7;
        const XmlNodeList group = QVXMLParser::affectedNodesForClip(items[std::size_t(item)], &start, &end);
        QVERIFY(group == XmlNodeList(items.begin() + first, items.begin() + first + count));
        QVERIFY(QVXMLParser::affectedNodesForClip(items[std::size_t(item)]) == group);
        QTEST(qint64(start), "start");
        QTEST(qint64(end), "end");
    }
};

QTEST_GUILESS_MAIN(QVXMLParserTest)
#include "tst_qvxmlparser.moc"
