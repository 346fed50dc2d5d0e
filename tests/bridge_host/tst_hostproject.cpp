#include "bridge/host/HostProject.h"
#include "tests/support/TemporaryHome.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <csignal>
#include <memory>
#include <sys/stat.h>

using namespace vantrell;

namespace
{

const QByteArray Head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE xmeml>\n";

/// A project with a bin in a bin, and a sequence within a sequence.
const QByteArray Items = Head + R"(<xmeml version="5"><project><name>Reel</name><children>
<bin><name>Cuts</name><uuid>U-BIN</uuid><children>
<clip id="Shot%201"><uuid>U-CLIP</uuid><name>Shot</name></clip>
<sequence id="S 1"><uuid>U-1</uuid><name>One</name><media><video><track><clipitem id="nest">
<sequence id="U-BIN"><uuid>U-NEST</uuid><name>Nested</name></sequence>
</clipitem></track></video></media></sequence>
</children></bin>
<sequence id="U-1"><name>Two</name></sequence>
</children></project></xmeml>)";

Result<ImportedXml> imported(const QByteArray &xml)
{
    return ImportedXml::read(xml, 5);
}

} // namespace

class HostProjectTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TemporaryHome> m_home;

    QString path(const char *name) const { return m_home->path(QString::fromLatin1(name)); }
    std::unique_ptr<HostProject> opened(const QByteArray &xml) const
    {
        auto project = std::make_unique<HostProject>(m_home->addFile(QStringLiteral("p.xml"), xml));
        const Result<void> outcome = project->open();
        if (!outcome)
            qWarning("%s", qPrintable(outcome.message()));
        return project;
    }

private Q_SLOTS:
    void init() { m_home = std::make_unique<TemporaryHome>(); }
    void cleanup() { m_home.reset(); }

    void imports_data()
    {
        QTest::addColumn<QByteArray>("project");
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QByteArray>("result"); // without line ends and indentation
        const QByteArray bin = "<xmeml version=\"5\"><bin><name>New</name></bin></xmeml>";
        QTest::newRow("behind the project's children")
            << QByteArray("<?p i?><!-- head --><xmeml version=\"4\"><project><name>A</name><children>"
                          "<!-- in --><bin/></children><!-- after --></project></xmeml><!-- tail -->")
            << bin
            << QByteArray("<?p i?><!-- head --><xmeml version=\"4\"><project>"
                          "<name>A</name><children><!-- in --><bin/><bin><name>New</name></bin></children>"
                          "<!-- after --></project></xmeml><!-- tail -->");
        QTest::newRow("a project without children")
            << Head + "<xmeml><project><name>A</name></project></xmeml>" << bin
            << QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?><!DOCTYPE xmeml><xmeml><project>"
                          "<name>A</name><children><bin><name>New</name></bin></children></project></xmeml>");
        QTest::newRow("beside a sequence")
            << QByteArray("<xmeml><sequence id=\"s\"/></xmeml>") << bin
            << QByteArray("<xmeml><sequence id=\"s\"/><bin><name>New</name></bin></xmeml>");
        QTest::newRow("what a project holds")
            << QByteArray("<xmeml/>")
            << QByteArray(
                   "<xmeml><project><name>B</name><children><clip/><!-- c --><bin/></children></project>"
                   "<sequence/></xmeml>")
            << QByteArray("<xmeml><clip/><bin/><sequence/></xmeml>");
        QTest::newRow("empty tags")
            << QByteArray("<xmeml a='/>'><project ><name/><!--<children>--><children b='&lt;' /><children/>"
                          "</project></xmeml>")
            << bin
            << QByteArray("<xmeml a='/>'><project ><name/><!--<children>--><children b='&lt;' ><bin>"
                          "<name>New</name></bin></children><children/></project></xmeml>");
        QTest::newRow("an empty project")
            << QByteArray("\xEF\xBB\xBF<xmeml><project/><project/></xmeml>") << bin
            << QByteArray("\xEF\xBB\xBF<xmeml><project><children><bin><name>New</name></bin></children>"
                          "</project><project/></xmeml>");
        QTest::newRow("what looks like children")
            << QByteArray("<xmeml><bin><children/></bin><project><bin><children/></bin><![CDATA[<children>]]>"
                          "<children></children></project></xmeml>")
            << bin
            << QByteArray("<xmeml><bin><children/></bin><project><bin><children/></bin>"
                          "<![CDATA[<children>]]><children><bin><name>New</name></bin></children></project>"
                          "</xmeml>");
        QTest::newRow("namespaces around the items")
            << QByteArray("<xmeml/>")
            << QByteArray("<xmeml xmlns:a=\"u:a\"><project><children><a:bin>&#233;</a:bin><bin/></children>"
                          "</project></xmeml>")
            << QByteArray("<xmeml><a:bin xmlns:a=\"u:a\">\xC3\xA9</a:bin><bin/></xmeml>");
        QTest::newRow("another encoding")
            << QByteArray("<xmeml/>")
            << QByteArray("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><xmeml><bin>\xE9</bin></xmeml>")
            << QByteArray("<xmeml><bin>\xC3\xA9</bin></xmeml>");
        QTest::newRow("characters as references")
            << Head + "<xmeml/>"
            << QByteArray(
                   "<xmeml><bin><name>Caf&#233; &#55357;&#56832;&#13;&amp;</name><!-- kept --></bin></xmeml>")
            << QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?><!DOCTYPE xmeml><xmeml><bin>"
                          "<name>Caf\xC3\xA9 \xF0\x9F\x98\x80&#13;&amp;</name><!-- kept --></bin></xmeml>");
    }
    void imports()
    {
        QFETCH(QByteArray, project);
        QFETCH(QByteArray, xml);
        const auto host = opened(project);
        const auto import = imported(xml);
        QVERIFY2(import.isOk(), qPrintable(import.message()));
        QVERIFY(host->add(import.value()).isOk());
        const auto exported = host->xml();
        QVERIFY(exported.isOk());
        QByteArray saved;
        for (const QByteArray &line : contentOf(path("p.xml")).split('\n'))
            saved += line.trimmed();
        QTEST(saved, "result");
        QCOMPARE(exported.value(), contentOf(path("p.xml")));
    }

    void refusesImports_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("no XML") << QByteArray("bin");
        QTest::newRow("not well-formed") << QByteArray("<xmeml><bin></xmeml>");
        QTest::newRow("an entity") << QByteArray("<xmeml><bin>&x;</bin></xmeml>");
        QTest::newRow("another root") << QByteArray("<fcpxml><bin/></fcpxml>");
        QTest::newRow("a later version") << QByteArray("<xmeml version=\"6\"><bin/></xmeml>");
        QTest::newRow("no item") << QByteArray("<xmeml version=\"5\"><project><name/></project></xmeml>");
    }
    void refusesImports()
    {
        QFETCH(QByteArray, xml);
        QVERIFY(!imported(xml).isOk());
    }

    void undoesAnImportThatCannotBeSaved()
    {
        const auto host = opened(Items);
        const QByteArray before = host->xml().value();
        QVERIFY(QFile::remove(path("p.xml")) && QDir().mkpath(path("p.xml")));
        const auto import = imported("<xmeml><bin/></xmeml>");
        QVERIFY(!host->add(import.value()).isOk());
        QCOMPARE(host->xml().value(), before);
        QVERIFY(QDir().rmdir(path("p.xml")));
        QVERIFY(host->add(import.value()).isOk());
        QVERIFY(host->add(import.value()).isOk()); // after the save before
        QVERIFY(host->close().isOk());
        QCOMPARE(contentOf(path("p.xml")).count("<bin/>"), 2);
    }

    /// The file is a pipe, which is written when the other end is read.
    void answersBeforeALongSave_data()
    {
        QTest::addColumn<bool>("fails");
        QTest::newRow("that succeeds") << false;
        QTest::newRow("that fails") << true;
    }
    void answersBeforeALongSave()
    {
        QFETCH(bool, fails);
        std::signal(SIGPIPE, SIG_IGN);
        const auto host = opened("<xmeml><comment>" + QByteArray(50'000'000, 'x') + "</comment></xmeml>");
        const QByteArray name = QFile::encodeName(path("p.xml"));
        QVERIFY(QFile::remove(path("p.xml")) && ::mkfifo(name.constData(), 0600) == 0);
        const auto import = imported("<xmeml><bin/></xmeml>");
        QVERIFY(host->add(import.value()).isOk());
        const QByteArray whole = host->xml().value();
        QVERIFY(whole.contains("<bin/>"));
        {
            QFile pipe(path("p.xml"));
            QVERIFY(pipe.open(QIODevice::ReadOnly));
            if (!fails)
                QCOMPARE(pipe.readAll(), whole);
        }
        QVERIFY(QFile::remove(path("p.xml")));
        const QString file = m_home->addFile(QStringLiteral("p.xml"), "old");
        QVERIFY(host->close(file).isOk());
        QCOMPARE(contentOf(file), fails ? whole : QByteArray("old"));
    }

    void findsItems_data()
    {
        QTest::addColumn<QString>("identifier");
        QTest::addColumn<QString>("name"); // null: there is no such item
        QTest::newRow("a UUID") << QStringLiteral("U-CLIP") << QStringLiteral("Shot");
        QTest::newRow("a UUID before an id") << QStringLiteral("U-1") << QStringLiteral("One");
        QTest::newRow("an id") << QStringLiteral("S 1") << QStringLiteral("One");
        QTest::newRow("an id as written") << QStringLiteral("Shot%201") << QStringLiteral("Shot");
        QTest::newRow("an id without escapes") << QStringLiteral("Shot 1") << QStringLiteral("Shot");
        QTest::newRow("a nested sequence") << QStringLiteral("U-NEST") << QStringLiteral("Nested");
        QTest::newRow("a bin before a nested sequence") << QStringLiteral("U-BIN") << QStringLiteral("Cuts");
        QTest::newRow("no item of the project") << QStringLiteral("nest") << QString();
        QTest::newRow("a name") << QStringLiteral("Two") << QString();
        QTest::newRow("empty") << QStringLiteral("") << QString();
    }
    void findsItems()
    {
        QFETCH(QString, identifier);
        QFETCH(QString, name);
        const auto host = opened(Items);
        const auto found = host->itemName(identifier);
        QCOMPARE(found.isOk(), !name.isNull());
        const auto xml = host->itemXml(identifier);
        QCOMPARE(xml.isOk(), found.isOk());
        if (!found)
            return;
        QCOMPARE(found.value(), name);
        const auto parsed = XmlDocument::fromData(xml.value(), {.tolerant = false});
        QVERIFY(parsed.isOk());
        QCOMPARE(parsed.value()->rootElement().attribute("version"), QStringLiteral("5"));
        const XmlNode item = parsed.value()->rootElement().firstChildElement();
        QCOMPARE(item.childElement("name").stringValue(), name);
        QVERIFY(!item.nextSiblingElement());
    }

    void listsBinsAndSequences()
    {
        const auto contents = opened(Items)->tableOfContents();
        QVERIFY(contents.isOk());
        QCOMPARE(contents.value(), Head + R"(<xmeml version="5">
  <project>
    <name>Reel</name>
    <children>
      <bin>
        <uuid>U-BIN</uuid>
        <name>Cuts</name>
        <children>
          <sequence id="S 1">
            <uuid>U-1</uuid>
            <name>One</name>
          </sequence>
        </children>
      </bin>
      <sequence id="U-1">
        <name>Two</name>
      </sequence>
    </children>
  </project>
</xmeml>
)");
    }

    void exportsInUtf8()
    {
        const QString text = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-16\"?>"
                                            "<xmeml><sequence><name>é</name></sequence></xmeml>");
        QByteArray utf16("\xFF\xFE");
        for (const QChar unit : text)
            utf16 += QByteArray(1, char(unit.unicode() & 0xFF)) + char(unit.unicode() >> 8);
        const auto host = opened(utf16);
        const auto xml = host->xml();
        QVERIFY(xml.isOk());
        QVERIFY(xml.value().startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));
        QVERIFY(xml.value().contains("<name>\xC3\xA9</name>"));
        QVERIFY(host->save(path("copy.xml")).isOk());
        QVERIFY(contentOf(path("copy.xml")).contains(QByteArray("\xE9\0", 2))); // as it was read
        QVERIFY(host->add(imported("<xmeml><bin>&#232;</bin></xmeml>").value()).isOk());
        QVERIFY(host->close().isOk());
        QVERIFY(contentOf(path("p.xml")).contains(QByteArray("\xE8\0", 2)));
    }

    void opensOnlyProjects_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("damaged") << QByteArray("<xmeml><sequence></xmeml>");
        QTest::newRow("another root") << QByteArray("<note/>");
        QTest::newRow("empty") << QByteArray();
    }
    void opensOnlyProjects()
    {
        QFETCH(QByteArray, content);
        HostProject project(m_home->addFile(QStringLiteral("p.xml"), content));
        QVERIFY(!project.open().isOk());
        QVERIFY(!project.isOpen());
        QVERIFY(!project.xml().isOk());
        QVERIFY(!project.save(path("p.xml")).isOk());
        QCOMPARE(contentOf(path("p.xml")), content);
    }

    void closing()
    {
        const auto host = opened("<xmeml  ><bin/></xmeml>");
        QVERIFY(!host->close(path("absent/copy.xml")).isOk());
        QVERIFY(host->isOpen());
        QVERIFY(host->close(path("copy.xml")).isOk());
        QVERIFY(!host->isOpen());
        QVERIFY(contentOf(path("copy.xml")).contains("<bin/>"));
        QVERIFY(!host->tableOfContents().isOk());

        QVERIFY(host->open().isOk());
        QVERIFY(host->close(path("p.xml")).isOk());
        QCOMPARE(contentOf(path("p.xml")), QByteArray("<xmeml  ><bin/></xmeml>")); // not written without need
        QVERIFY(host->open().isOk());
        QVERIFY(QFile::remove(path("p.xml")));
        QVERIFY(host->close(path("p.xml")).isOk());
        QVERIFY(contentOf(path("p.xml")).contains("<bin/>"));
    }

    void knowsEachFileOnce()
    {
        const QString file = m_home->addFile(QStringLiteral("a/p.xml"), Items);
        QVERIFY(QFile::link(path("a"), path("link")));
        HostProjects projects(path("new"));
        QVERIFY(projects.open(file).isOk());
        QVERIFY(projects.open(path("link/p.xml")).isOk());
        QVERIFY(projects.open(path("a/../a/p.xml")).isOk());
        QCOMPARE(projects.allOpen().size(), std::size_t(1));
        QCOMPARE(projects.openAt(path("link/p.xml")), projects.openAt(file));
        QVERIFY(!projects.open(path("absent.xml")).isOk());
        QVERIFY(!projects.openAt(path("absent.xml")));
    }

    void namesNewProjects()
    {
        m_home->addFile(QStringLiteral("Vantrell 2.xml"), "other");
        HostProjects projects(m_home->path());
        const auto first = projects.makeNew(4);
        QVERIFY(first.isOk());
        QCOMPARE(first.value()->path(), path("Vantrell.xml"));
        QVERIFY(QFile::remove(path("Vantrell.xml"))); // still open
        const auto third = projects.makeNew(4);
        QVERIFY(third.isOk());
        QCOMPARE(third.value()->path(), path("Vantrell 3.xml"));
        QVERIFY(third.value()->xml().value().contains("<xmeml version=\"4\">"));
        QVERIFY(third.value()->xml().value().contains("<name>Vantrell 3</name>"));
        projects.discard(third.value());
        QVERIFY(!QFile::exists(path("Vantrell 3.xml")));
        QCOMPARE(projects.allOpen().size(), std::size_t(1));
        QVERIFY(!HostProjects(path("absent")).makeNew(4).isOk());
    }
};

QTEST_GUILESS_MAIN(HostProjectTest)
#include "tst_hostproject.moc"
