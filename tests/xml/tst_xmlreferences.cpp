#include "tests/support/LongSeries.h"
#include "xml/XmlReferences.h"

#include <QElapsedTimer>
#include <QTest>

using namespace vantrell;

class XmlReferencesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void joinsSurrogates_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QByteArray>("joined");
        const auto add = [](const char *name, const QByteArray &xml, const QByteArray &joined) {
            QTest::newRow(name) << xml << joined;
        };
        const auto same = [&](const char *name, const QByteArray &xml) { add(name, xml, xml); };
        add("pair", "<a>x&#55356;&#57260;y</a>", "<a>x&#127916;y</a>");
        add("hexadecimal", "&#xD83C;&#xdfac;", "&#127916;");
        add("mixed, zeros in front", "&#055356;&#x00DFAC;", "&#127916;");
        add("first and last characters", "&#55296;&#56320;|&#56319;&#57343;", "&#65536;|&#1114111;");
        add("pairs in a row", "&#55356;&#57260;&#55356;&#57260;b&#55356;&#57260;",
            "&#127916;&#127916;b&#127916;");
        add("high, high, low", "&#55356;&#55356;&#57260;", "&#55356;&#127916;");
        add("in an attribute", "<a b='&#55356;&#57260;'/>", "<a b='&#127916;'/>");
        add("around what is no text", "&#55356;&#57260;<![CDATA[&#55356;&#57260;]]>&#55356;&#57260;",
            "&#127916;<![CDATA[&#55356;&#57260;]]>&#127916;");
        same("empty", "");
        same("nothing to join", "<a>caf&#233;&#13;&amp;&lt;</a>");
        same("low, high", "&#57260;&#55356;");
        same("something between", "&#55356; &#57260;&#55356;<b/>&#57260;");
        same("other references", "&#55356;&#233;&#233;&#57260;");
        same("cut off", "&#55356;&#57260");
        same("no digits", "&#;&#x;&#55356;&#;");
        same("no number", "&#5x5356;&#57260;&#X D83C;&#xdfac;");
        same("beyond all characters", "&#4295022652;&#57260;&#99999999999999999999;");
        same("CDATA section", "<![CDATA[&#55356;&#57260;]]>");
        same("comment", "<!-- &#55356;&#57260; -->");
        same("processing instruction", "<?x &#55356;&#57260; ?>");
        same("comment without end", "<!-- &#55356;&#57260;");
    }
    void joinsSurrogates()
    {
        QFETCH(QByteArray, xml);
        const QByteArray before(xml.constData(), xml.size());
        QTEST(XmlReferences::joinedSurrogates(xml), "joined");
        QCOMPARE(xml, before);
    }

    void putsCharacters_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QByteArray>("characters");
        const auto add = [](const char *name, const QByteArray &xml, const QByteArray &characters) {
            QTest::newRow(name) << xml << characters;
        };
        add("each kind", "<a b='&#233;'>&#xE9;|&#55356;&#57260;|&#127916;</a>",
            "<a b='\xC3\xA9'>\xC3\xA9|\xF0\x9F\x8E\xAC|\xF0\x9F\x8E\xAC</a>");
        add("at the limits", "&#159;&#160;&#65533;&#65534;&#65535;&#1114111;&#1114112;",
            "&#159;\xC2\xA0\xEF\xBF\xBD&#65534;&#65535;\xF4\x8F\xBF\xBF&#1114112;");
        add("markup and line ends", "&#60;&#38;&#13;&amp;&lt;", "&#60;&#38;&#13;&amp;&lt;");
        add("half a pair", "&#55356;&#233;&#57260;", "&#55356;\xC3\xA9&#57260;");
        add("around what is no text", "&#233;<![CDATA[&#233;]]>&#233;<!--&#233;-->",
            "\xC3\xA9<![CDATA[&#233;]]>\xC3\xA9<!--&#233;-->");
    }
    void putsCharacters()
    {
        QFETCH(QByteArray, xml);
        QTEST(XmlReferences::asCharacters(xml), "characters");
    }

    void copiesOnlyWhatItMust()
    {
        QByteArray plain("<a>caf&#233;</a>");
        QCOMPARE(XmlReferences::joinedSurrogates(plain).constData(), plain.constData());
        QByteArray paired(1000, 'x');
        paired += "&#55356;&#57260;";
        const char *bytes = paired.constData();
        QCOMPARE(XmlReferences::joinedSurrogates(std::move(paired)).constData(), bytes);
    }

    void linear()
    {
        QElapsedTimer timer;
        timer.start();
        for (const QByteArray &part :
             {QByteArray("&#55356;"), QByteArray("&#55356;&#57260;"), QByteArray("<!--"), QByteArray("&#00"),
              QByteArray("<a>&#55356;&#57260;")})
            XmlReferences::joinedSurrogates(part.repeated(longWork(1'000'000)));
        QVERIFY(timer.elapsed() < 40000);
    }
};

QTEST_GUILESS_MAIN(XmlReferencesTest)
#include "tst_xmlreferences.moc"
