#include "xml/XmlOutline.h"

#include <QTest>

using namespace vantrell;

namespace
{

/// "name@depth|text of the element|its content" of each element.
QString described(const QByteArray &xml, const XmlOutline &outline)
{
    QStringList texts;
    for (const XmlOutline::Element &element : outline.elements) {
        texts.append(
            QStringLiteral("%1@%2|%3|%4")
                .arg(QString::fromUtf8(element.name))
                .arg(element.depth)
                .arg(QString::fromUtf8(xml.sliced(element.begin, element.end - element.begin)),
                     QString::fromUtf8(xml.sliced(element.content, element.close - element.content))));
    }
    return texts.join(QLatin1Char('\n'));
}

} // namespace

class XmlOutlineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void elements_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<int>("levels");
        QTest::addColumn<QString>("outline");
        QTest::newRow("levels") << QByteArray("<a><b><c/></b><d>é</d></a>") << 1
                                << QStringLiteral("a@0|<a><b><c/></b><d>é</d></a>|<b><c/></b><d>é</d>\n"
                                                  "b@1|<b><c/></b>|<c/>\nd@1|<d>é</d>|é");
        QTest::newRow("tags with white space")
            << QByteArray("\xEF\xBB\xBF<?xml version='1.0'?>\r\n<a\n ><b\t/><c x='>' y=\"/>\" ></c\n></a >\n")
            << 9
            << QStringLiteral("a@0|<a\n ><b\t/><c x='>' y=\"/>\" ></c\n></a >|"
                              "<b\t/><c x='>' y=\"/>\" ></c\n>\nb@1|<b\t/>|\nc@1|<c x='>' y=\"/>\" ></c\n>|");
        QTest::newRow("what is no tag")
            << QByteArray(
                   "<!DOCTYPE a [<!ELEMENT a ANY>]><!--<z>--><?p <z>?><a><![CDATA[<z></a>]]><!--</a>--></a>")
            << 9
            << QStringLiteral("a@0|<a><![CDATA[<z></a>]]><!--</a>--></a>|<![CDATA[<z></a>]]><!--</a>-->");
        QTest::newRow("prefixes") << QByteArray("<p:a xmlns:p='u'><p:b/></p:a>") << 9
                                  << QStringLiteral("a@0|<p:a xmlns:p='u'><p:b/></p:a>|<p:b/>\nb@1|<p:b/>|");
        const QByteArray filler = "<f t='" + QByteArray(3001, 'x') + "'>" + QByteArray(50000, 'y') + "</f>";
        QTest::newRow("longer than what is read at a time")
            << "<a>" + filler.repeated(40) + "<b/></a>" << 1
            << QStringLiteral("a@0|<a>%1<b/></a>|%1<b/>\n%2b@1|<b/>|")
                   .arg(QString::fromUtf8(filler.repeated(40)),
                        QStringLiteral("f@1|%1|%2\n")
                            .arg(QString::fromUtf8(filler), QString(50000, QLatin1Char('y')))
                            .repeated(40));
    }
    void elements()
    {
        QFETCH(QByteArray, xml);
        QFETCH(int, levels);
        const auto read = XmlOutline::read(xml, levels);
        QVERIFY2(read.isOk(), qPrintable(read.message()));
        QVERIFY(read.value());
        QTEST(described(xml, *read.value()), "outline");
    }

    void faults_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<bool>("isFault"); // else another encoding
        QTest::newRow("empty") << QByteArray() << true;
        QTest::newRow("no XML") << QByteArray("a") << true;
        QTest::newRow("not closed") << QByteArray("<a><b></a>") << true;
        QTest::newRow("something behind it") << QByteArray("<a/><b/>") << true;
        QTest::newRow("not UTF-8") << QByteArray("<a>\xE9</a>") << true;
        QTest::newRow("entity") << QByteArray("<a>&x;</a>") << true;
        QTest::newRow("declared entity") << QByteArray("<!DOCTYPE a [<!ENTITY x 'y'>]><a>&x;</a>") << true;
        QTest::newRow("entity of another file") << QByteArray("<!DOCTYPE a SYSTEM 'x'><a>&x;</a>") << true;
        QTest::newRow("surrogate") << QByteArray("<a>&#55356;</a>") << true;
        QTest::newRow("too deep") << QByteArray("<a>").repeated(1001) + QByteArray("</a>").repeated(1001)
                                  << true;
        QTest::newRow("Latin-1") << QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?><a>\xE9</a>")
                                 << false;
        QTest::newRow("UTF-16") << QByteArray("\xFF\xFE<\0a\0/\0>\0", 10) << false;
    }
    void faults()
    {
        QFETCH(QByteArray, xml);
        QFETCH(bool, isFault);
        const auto outline = XmlOutline::read(xml, 1);
        QCOMPARE(!outline.isOk(), isFault);
        if (!isFault)
            QVERIFY(!outline.value());
        else
            QVERIFY(!outline.message().isEmpty());
    }
};

QTEST_GUILESS_MAIN(XmlOutlineTest)
#include "tst_xmloutline.moc"
