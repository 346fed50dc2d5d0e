#include "tests/support/TemporaryHome.h"
#include "xml/XmlDocument.h"
#include "xml/XmlQuery.h"
#include "xml/XmlQueryFallback.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>

#include <random>

using namespace vantrell;

namespace
{

std::unique_ptr<XmlDocument> parsed(const QByteArray &xml)
{
    Result<std::unique_ptr<XmlDocument>> document = XmlDocument::fromData(xml, {});
    return document ? std::move(document.value()) : nullptr;
}

QString describe(XmlNode node)
{
    if (node.isAttribute())
        return QLatin1Char('@') + node.stringValue();
    return node.isText() ? node.stringValue() : node.locationPath();
}

QStringList described(const XmlNodeList &nodes)
{
    QStringList texts;
    for (const XmlNode node : nodes)
        texts.append(describe(node));
    return texts;
}

/// A tree with few different names, so that queries match at odd positions.
QByteArray randomTree(std::mt19937 &random, int depth)
{
    static const char *const names[] = {"a", "b", "c", "name"};
    const QByteArray name = names[random() % 4];
    QByteArray xml = "<" + name;
    if (random() % 3 == 0)
        xml += " id=\"" + QByteArray::number(int(random() % 3)) + "\"";
    xml += ">";
    const int children = depth > 0 ? int(random() % 4) : 0;
    for (int i = 0; i < children; ++i)
        xml += random() % 4 == 0 ? QByteArray("t") + QByteArray::number(int(random() % 2))
                                 : randomTree(random, depth - 1);
    return xml + "</" + name + ">";
}

/// The texts in a source file that are queries: relative paths, and absolute ones that have an index.
QStringList queriesIn(const QString &source)
{
    static const QRegularExpression literals(
        QStringLiteral("QStringLiteral\\(((?:\\s*\"(?:[^\"\\\\]|\\\\.)*\")+)\\s*\\)"));
    static const QRegularExpression seams(QStringLiteral("^\\s*\"|\"\\s*\"|\"\\s*$"));
    static const QRegularExpression query(QStringLiteral("^\\./|^/\\w+\\[\\d"));
    QStringList queries;
    for (const QRegularExpressionMatch &match : literals.globalMatch(source)) {
        const QString text = match.captured(1).remove(seams);
        if (text.contains(query))
            queries.append(text);
    }
    return queries;
}

} // namespace

class XmlQueryTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

private Q_SLOTS:
    void finds_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QStringList>("found");
        const QString project = QStringLiteral("/xmeml[1]/project[1]/children[1]");
        QTest::newRow("children") << QStringLiteral("./xmeml[1]/project[1]/name[1]/text()")
                                  << QStringList{QStringLiteral("P")};
        QTest::newRow("at any depth, nested ones too")
            << QStringLiteral("./xmeml[1]/project[1]/children[1]//sequence")
            << QStringList{project + QStringLiteral("/sequence[1]"),
                           project + QStringLiteral("/sequence[1]/clipitem[1]/sequence[1]"),
                           project + QStringLiteral("/bin[1]/sequence[1]")};
        QTest::newRow("first of each parent") << QStringLiteral(".//name[1]/text()")
                                              << QStringList{QStringLiteral("P"), QStringLiteral("C1"),
                                                             QStringLiteral("S2"), QStringLiteral("S1")};
        QTest::newRow("parenthesised step in document order")
            << QStringLiteral(".//sequence/(marker | clipitem)")
            << QStringList{project + QStringLiteral("/sequence[1]/clipitem[1]"),
                           project + QStringLiteral("/sequence[1]/marker[1]"),
                           project + QStringLiteral("/bin[1]/sequence[1]/marker[1]")};
        QTest::newRow("outer context's later child comes last")
            << QStringLiteral(".//sequence/name")
            << QStringList{project + QStringLiteral("/sequence[1]/clipitem[1]/sequence[1]/name[1]"),
                           project + QStringLiteral("/sequence[1]/name[1]"),
                           project + QStringLiteral("/sequence[1]/name[2]")};
        QTest::newRow("attribute value")
            << QStringLiteral(".//clipitem/@id") << QStringList{QStringLiteral("@c 1")};
        QTest::newRow("by attribute")
            << QStringLiteral(".//clipitem[@id=\"c 1\"]/name/text()") << QStringList{QStringLiteral("C1")};
        QTest::newRow("by text") << QStringLiteral(".//name[text()=\"S2\"]/..")
                                 << QStringList{project +
                                                QStringLiteral("/sequence[1]/clipitem[1]/sequence[1]")};
        QTest::newRow("parents once")
            << QStringLiteral(".//sequence/name/..")
            << QStringList{project + QStringLiteral("/sequence[1]"),
                           project + QStringLiteral("/sequence[1]/clipitem[1]/sequence[1]")};
        QTest::newRow("absolute") << QStringLiteral("/xmeml/@version") << QStringList{QStringLiteral("@5")};
        QTest::newRow("function") << QStringLiteral(".//name[starts-with(., 'S')]/text()")
                                  << QStringList{QStringLiteral("S2"), QStringLiteral("S1"),
                                                 QStringLiteral("S1b")};
        QTest::newRow("document type declaration")
            << QStringLiteral("/node()") << QStringList{QStringLiteral("/xmeml[1]")};
        QTest::newRow("nothing") << QStringLiteral("./media[1]/video[1]") << QStringList{};
    }
    void finds()
    {
        QFETCH(QString, query);
        const auto document =
            parsed("<!DOCTYPE xmeml><xmeml version=\"5\"><project><name>P</name><children>"
                   "<sequence><clipitem id=\"c "
                   "1\"><name>C1</name><sequence><name>S2</name></sequence></clipitem>"
                   "<name>S1</name><name>S1b</name><marker/></sequence>"
                   "<bin><sequence><marker/></sequence></bin></children></project></xmeml>");
        const XmlQuery::Answer answer = XmlQuery(query).evaluate(document->node());
        QCOMPARE(answer.error, QString());
        QTEST(described(answer.nodes), "found");
    }

    void agreesWithTheLibrary()
    {
        const QStringList queries{QStringLiteral(".//a"),
                                  QStringLiteral(".//a/b"),
                                  QStringLiteral(".//a//b"),
                                  QStringLiteral("./*/a[2]"),
                                  QStringLiteral(".//a[1]"),
                                  QStringLiteral(".//a/b[1]/text()"),
                                  QStringLiteral("//name[1]/text()"),
                                  QStringLiteral(".//(a | b)/c"),
                                  QStringLiteral(".//a[@id=\"1\"]"),
                                  QStringLiteral(".//b[@id='2'][1]"),
                                  QStringLiteral(".//b[2][@id=\"0\"]"),
                                  QStringLiteral(".//c[text()=\"t1\"]"),
                                  QStringLiteral(".//@id"),
                                  QStringLiteral(".//a/.."),
                                  QStringLiteral(".//a | .//b/c"),
                                  QStringLiteral("./*//*[1]"),
                                  QStringLiteral(".//a/node()"),
                                  QStringLiteral(".//name/a[3]//b"),
                                  QStringLiteral("."),
                                  QStringLiteral(".//a/@id[1]")};
        std::mt19937 random(7);
        for (int round = 0; round < 60; ++round) {
            const QByteArray xml = "<r>" + randomTree(random, 5) + randomTree(random, 5) + "</r>";
            const auto document = parsed(xml);
            // As parsed, and with elements removed and moved.
            for (const int step : {0, 1}) {
                if (step == 1) {
                    const XmlNode root = document->rootElement();
                    document->remove(root.firstChild().lastChild());
                    document->moveTo(root.firstChild(), root.lastChild());
                }
                for (const QString &query : queries) {
                    const auto expected = XmlQueryFallback(query).evaluate(document->node());
                    const auto found = XmlQuery(query).evaluate(document->node());
                    QVERIFY2(found.nodes == expected.nodes,
                             qPrintable(query + QLatin1Char(' ') + QString::fromUtf8(xml)));
                    const XmlNode first = XmlQuery(query).first(document->node());
                    QVERIFY(first == (expected.nodes.empty() ? XmlNode() : expected.nodes.front()));
                }
            }
        }
    }

    void relativeToOtherNodes()
    {
        const auto document = parsed("<r><i start=\"3\"><m/></i></r>");
        const XmlNode m = document->rootElement().firstChild().firstChild();
        QCOMPARE(XmlQuery(QStringLiteral("./../@start[1]")).firstText(m).value_or(QString()),
                 QStringLiteral("3"));
        QVERIFY(!XmlQuery(QStringLiteral("../../../..")).first(m));
        QVERIFY(XmlQuery(QStringLiteral("//m")).first(m) == m);
        QVERIFY(XmlQuery(QStringLiteral(".//x")).evaluate(XmlNode()).nodes.empty());
    }

    /// The queries are read from the program's sources.
    void queriesOfTheProgramDoWithoutTheLibrary()
    {
        QVERIFY(XmlQuery(QStringLiteral(".//a[last()]")).needsLibrary());
        const QDir root(qEnvironmentVariable("VANTRELL_SOURCE_DIR"));
        const QStringList others{QStringLiteral("bench"), QStringLiteral("build"), QStringLiteral("tests")};
        QStringList queries;
        for (const QString &folder : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            QDirIterator files(root.filePath(folder), {QStringLiteral("*.cpp"), QStringLiteral("*.h")},
                               QDir::Files, QDirIterator::Subdirectories);
            while (!others.contains(folder) && files.hasNext())
                queries += queriesIn(QString::fromUtf8(contentOf(files.next())));
        }
        queries.removeDuplicates();
        QVERIFY2(queries.size() > 40, qPrintable(QString::number(queries.size())));
        queries.append(QStringLiteral(".//sequence/uuid[text()=\"U 1\"]")); // put together by the program
        for (const QString &query : std::as_const(queries))
            QVERIFY2(!XmlQuery(query).needsLibrary(), qPrintable(query));
    }

    void errorsAreTold_data()
    {
        QTest::addColumn<QString>("query");
        for (const char *query : {"", "./a[", ".//a[@id=\"x]", "a b", "))", "./unknown:a[foo()]"})
            QTest::newRow(query) << QString::fromUtf8(query);
    }
    void errorsAreTold()
    {
        QFETCH(QString, query);
        const auto document = parsed("<a/>");
        QVERIFY(!XmlQuery(query).evaluate(document->node()).error.isEmpty());
    }

    void costGrowsInStepWithTheTree()
    {
        // Nested contexts and 60,000 siblings: a quadratic union or sort would take minutes.
        QByteArray xml("<r>");
        for (int i = 0; i < 60000; ++i)
            xml += "<a><b/><a><c/></a></a>";
        const auto document = parsed(xml + "</r>");
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(XmlQuery(QStringLiteral(".//a//c | .//a/(b | c)")).evaluate(document->node()).nodes.size(),
                 std::size_t(120000));
        QCOMPARE(XmlQuery(QStringLiteral(".//a/c/..")).evaluate(document->node()).nodes.size(),
                 std::size_t(60000));
        QVERIFY(timer.elapsed() < 20000);
    }
};

QTEST_GUILESS_MAIN(XmlQueryTest)
#include "tst_xmlquery.moc"
