#include "xml/SurrogateReferences.h"

#include <QTest>

using namespace vantrell;

class SurrogateReferencesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void joinsPairs_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QByteArray>("joined");
        const auto row = [](const char *name, const char *xml, const char *joined) {
            QTest::newRow(name) << QByteArray(xml) << QByteArray(joined);
        };
        row("a pair", "<a>x&#55357;&#56832;y</a>", "<a>x&#128512;y</a>");
        row("hexadecimal", "<a>&#xD83D;&#xde00;</a>", "<a>&#128512;</a>");
        row("the first and the last pair", "&#55296;&#56320;&#56319;&#57343;", "&#65536;&#1114111;");
        row("pairs in a row", "&#55357;&#56832;&#55357;&#56833;", "&#128512;&#128513;");
        row("an attribute", "<a b='&#55357;&#56832;'/>", "<a b='&#128512;'/>");
        row("other references", "&#233;&amp;&#13;&lt;&#x1F600;", "&#233;&amp;&#13;&lt;&#x1F600;");
        row("a high half", "a&#55357;b", "ab");
        row("a low half", "a&#56832;b", "ab");
        row("two high halves", "&#55357;&#55357;&#56832;", "&#128512;");
        row("the wrong way round", "&#56832;&#55357;", "");
        row("apart", "&#55357; &#56832;", " ");
        row("a comment", "<!-- &#55357;&#56832; -->&#55357;&#56832;", "<!-- &#55357;&#56832; -->&#128512;");
        row("an open comment", "<!-- &#55357;&#56832;", "<!-- &#55357;&#56832;");
        row("CDATA", "<![CDATA[&#55357;&#56832;]]>", "<![CDATA[&#55357;&#56832;]]>");
        row("an instruction", "<?a &#55357;&#56832;?>", "<?a &#55357;&#56832;?>");
        row("no references", "&#;&#x;&#55357&#56832;&#", "&#;&#x;&#55357&#");
        row("too large", "&#4295022941;&#99999999999999999999;", "&#4295022941;&#99999999999999999999;");
    }
    void joinsPairs()
    {
        QFETCH(QByteArray, xml);
        const QByteArray result = joinSurrogateReferences(xml);
        QTEST(result, "joined");
    }
};

QTEST_GUILESS_MAIN(SurrogateReferencesTest)
#include "tst_surrogatereferences.moc"
