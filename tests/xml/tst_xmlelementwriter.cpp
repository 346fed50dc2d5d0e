#include "xml/QVXMLParser.h"
#include "xml/XmlDocument.h"
#include "xml/XmlEdit.h"
#include "xml/XmlElementWriter.h"

#include <QBuffer>
#include <QTest>

using namespace vantrell;

namespace
{

const QString newId = QStringLiteral("<new>&\"é\"");
const QString newName = QStringLiteral("N & é");

} // namespace

class XmlElementWriterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changed_data()
    {
        QTest::addColumn<QByteArray>("xml"); // of a document whose first "s" is written
        QTest::addColumn<QByteArray>("expected");
        const auto add = [](const char *name, const QByteArray &xml, const QByteArray &expected) {
            QTest::newRow(name) << xml << expected;
        };
        const QByteArray start = "<s id=\"&lt;new&gt;&amp;&quot;&#xE9;&quot;\"";
        add("empty", "<s a=\"1\" id=\"2\"/>", start + "/>");
        add("children", "<a> <s id=\"1\" b=\"2\"><n c=\"3\">old<i/></n><x d=\"é\">é</x>t</s></a>",
            start + "><n c=\"3\">N &amp; é</n><x d=\"&#xE9;\">é</x>t</s>");
        add("text alone", "<s>a&lt;b</s>", start + ">a&lt;b</s>");
        add("CDATA and comments", "<s><n/><![CDATA[<&>]]><!--c--></s>",
            start + "><n>N &amp; é</n><![CDATA[<&>]]><!--c--></s>");
        add("the first child of that name", "<s><x><n>1</n></x><n>2</n><n>3</n></s>",
            start + "><x><n>1</n></x><n>N &amp; é</n><n>3</n></s>");
        add("white space is data", "<s> <n>a</n>b </s>", start + "> <n>N &amp; é</n>b </s>");
        add("a declared encoding", "<?xml version=\"1.0\" encoding=\"UTF-8\"?><s><x d=\"é\"/></s>",
            "<s id=\"&lt;new&gt;&amp;&quot;é&quot;\"><x d=\"é\"/></s>");
        add("a namespace of its own", "<s xmlns:p=\"u\" p:a=\"1\"><p:x/></s>",
            "<s xmlns:p=\"u\" id=\"&lt;new&gt;&amp;&quot;&#xE9;&quot;\"><p:x/></s>");
        add("a namespace declared above",
            "<a xmlns:p=\"u\" xmlns:q=\"v\"><s><n>1</n><p:x p:y=\"1\"/></s></a>",
            "<s xmlns:p=\"u\" id=\"&lt;new&gt;&amp;&quot;&#xE9;&quot;\"><n>N &amp; é</n><p:x "
            "p:y=\"1\"/></s>");
    }
    void changed()
    {
        QFETCH(QByteArray, xml);
        const auto document = XmlDocument::fromData(xml, {});
        QVERIFY(document);
        const XmlNode root = document.value()->rootElement();
        const XmlNode element = root.isElement("s") ? root : root.childElement("s");
        const XmlNode name = element.childElement("n");
        const QString before = XmlDocument::textOfElement(root);
        const std::uint64_t revision = document.value()->revision();
        QBuffer output;
        output.open(QIODevice::WriteOnly);
        QVERIFY(XmlElementWriter::writeChanged(
            element, {QStringLiteral("id"), newId, {{name, newName}, {XmlNode(), newId}}}, output));
        QTEST(output.data(), "expected");
        QCOMPARE(XmlDocument::textOfElement(root), before);
        QCOMPARE(document.value()->revision(), revision);

        // The same as the edits would make of a copy.
        const XmlNode copy = document.value()->copyOfElement(element);
        XmlEdit::setOnlyAttribute(copy, QStringLiteral("id"), newId);
        XmlEdit::setText(copy.childElement("n"), newName);
        QCOMPARE(XmlDocument::textOfElement(copy), QString::fromUtf8(output.data()));
    }

    void cancelled()
    {
        QByteArray xml("<s>");
        for (int i = 0; i < 10000; ++i)
            xml += "<x>1</x>";
        const auto document = XmlDocument::fromData(xml + "</s>", {});
        QBuffer output;
        output.open(QIODevice::WriteOnly);
        const std::atomic<bool> isCancelled = true;
        QVERIFY(!XmlElementWriter::write(document.value()->rootElement(), output, &isCancelled));
        QVERIFY(!XmlElementWriter::writeChanged(document.value()->rootElement(),
                                                {QStringLiteral("id"), newId, {}}, output, &isCancelled));
    }
};

QTEST_GUILESS_MAIN(XmlElementWriterTest)
#include "tst_xmlelementwriter.moc"
