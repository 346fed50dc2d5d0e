#include "tests/support/CliRun.h"
#include "tests/support/TemporaryHome.h"

#include <QFile>
#include <QTest>

using namespace vantrell;
using namespace Qt::StringLiterals;

namespace
{

const QByteArray fcpHeader("Name\tType\tMarker Name\tComment\tStart\tDuration\tColor\n");
const QByteArray fcpRow("Edit\tSequence\tA \"1\"\tnote\t00:00:02:00\t00:00:00:10\tPurple\n");

QByteArray project(const QByteArray &markers)
{
    return "<xmeml version=\"5\"><sequence><name>Edit</name><timecode><rate><timebase>25</timebase></rate>"
           "</timecode>" +
           markers + "</sequence></xmeml>";
}

QByteArray gapWithMarkers(const QByteArray &markers)
{
    return "<fcpxml><resources><format "
           "frameDuration=\"1/25s\"/></resources><library><project><sequence><spine>"
           "<gap duration=\"9s\">" +
           markers + "</gap></spine></sequence></project></library></fcpxml>";
}

} // namespace

class MarkerFilesTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

    CliRun run(const QString &arguments) const
    {
        QStringList list = arguments.split(u' ');
        for (QString &argument : list)
            argument.replace(u'~', m_home.path());
        return runCli(list);
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_home.addFile(u"fcp.txt"_s, fcpHeader + fcpRow);
        m_home.addFile(u"avid.txt"_s, "B\t00:00:00:05\tV1\tred\t\n");
        m_home.addFile(u"header.txt"_s, fcpHeader);
        m_home.addFile(u"latin.txt"_s, "\n\xe9");
        m_home.addFile(u"a.fcpxml"_s,
                       gapWithMarkers("<marker start=\"1s\" value=\"C\"/><marker start=\"1s\"/>"
                                      "<title offset=\"2s\"><marker value=\"D\"/></title>"));
        m_home.addFile(u"broken.fcpxml"_s, gapWithMarkers("<marker>"));
        m_home.addFile(u"empty.fcpxml"_s, QByteArray());
        m_home.addFile(u"Edit.xml"_s, project("<marker><name>M</name><in>25</in><out>50</out></marker>"));
        m_home.addFile(u"damaged.xml"_s, project("<marker><name>M</marker>"));
    }

    void output_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("output");
        const auto row = [](const char *arguments, int status, const QByteArray &output) {
            QTest::newRow(arguments) << status << output;
        };
        row("marker-list ~/fcp.txt --format fcp --json", 0,
            "[{\"name\":\"A "
            "\\\"1\\\"\",\"comment\":\"note\",\"startTimecode\":\"00:00:02:00\",\"durationTimecode\":"
            "\"00:00:00:10\",\"color\":\"Purple\",\"parentName\":\"Edit\",\"parentType\":\"Sequence\"}]\n");
        row("marker-list ~/avid.txt --format avid", 0,
            "name\tcomment\tstartTimecode\tcolor\nB\t\t00:00:00:05\tred\n");
        row("marker-list ~/a.fcpxml --format fcpx --json", 0,
            "[{\"name\":\"C\",\"startTimecode\":\"00:00:01:00\"},{}]\n");
        row("marker-list ~/a.fcpxml --format fcpx --json --relative-hour 5", 0,
            "[{\"name\":\"C\",\"startTimecode\":\"05:00:01:00\"},{}]\n");
        row("marker-list ~/a.fcpxml --format fcpx --json --relative-hour -1", 0,
            "[{\"name\":\"C\",\"startTimecode\":\"00:00:01:00\"},{}]\n");
        row("marker-list --json --format fcpx --seconds --strip-duplicates --all-storylines ~/a.fcpxml", 0,
            "[{\"name\":\"C\",\"seconds\":1.0},{\"name\":\"D\",\"seconds\":2.0}]\n");
        row("marker-list ~/a.fcpxml --format fcpx --seconds", 0, "name\tseconds\nC\t1\n\t\n");
        for (const char *arguments :
             {"marker-list ~/header.txt --format fcp --json", "marker-list ~/fcp.txt --format avid --json",
              "marker-list ~/broken.fcpxml --format fcpx --json",
              "marker-list ~/empty.fcpxml --format fcpx --json",
              "marker-list ~/latin.txt --format fcpx --json"})
            row(arguments, 0, "[]\n");
        row("export ~/Edit.xml --format fcp", 0,
            fcpHeader + "Edit\tSequence\tM\t\t00:00:01:00\t00:00:01:00\tRed\n");
        row("export ~/Edit.xml --format avid -o -", 0, "M\t00:00:01:00\tV1\tred\t\n");
        row("export ~/Edit.xml --format avid -o ~/out.txt", 0, QByteArray());
        row("import ~/Edit.xml ~/fcp.txt ~/latin.txt --format fcp -o ~/out.xml", 0, QByteArray());

        for (const char *arguments :
             {"marker-list ~/missing.txt --format fcp --json", "marker-list ~/missing --format fcpx --json",
              "marker-list ~ --format fcpx", "marker-list ~/latin.txt --format fcp",
              "export ~/missing.xml --format fcp", "export ~/Edit.xml --format fcp -o ~/missing/out.txt",
              "import ~/missing.xml ~/fcp.txt --format fcp -o ~/never.xml",
              "import ~/Edit.xml ~/fcp.txt --format fcp -o ~/missing/out.xml",
              "import ~/damaged.xml ~/fcp.txt --format fcp -o ~/damaged.xml"})
            row(arguments, 1, QByteArray());
        for (const char *arguments :
             {"marker-list ~/fcp.txt", "marker-list ~/fcp.txt --format edl",
              "marker-list ~/fcp.txt --format fcp --seconds",
              "marker-list ~/a.fcpxml --format fcpx --relative-hour x", "export ~/Edit.xml --format fcpx",
              "import ~/Edit.xml --format fcp -o ~/never.xml", "import ~/Edit.xml ~/fcp.txt --format fcp"})
            row(arguments, 2, QByteArray());
    }
    void output()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, output);
        const CliRun result = run(QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(result.output, output);
        QCOMPARE(result.status, status);
        QCOMPARE(result.messages.isEmpty(), status == 0);
    }

    void writtenFiles()
    {
        const QByteArray edit = contentOf(m_home.path(u"Edit.xml"_s));
        QCOMPARE(run(u"export ~/Edit.xml --format avid -o ~/out.txt"_s).status, 0);
        QCOMPARE(contentOf(m_home.path(u"out.txt"_s)), "M\t00:00:01:00\tV1\tred\t\n");

        QCOMPARE(run(u"import ~/Edit.xml ~/fcp.txt ~/fcp.txt --format fcp -o ~/out.xml"_s).status, 0);
        QCOMPARE(run(u"export ~/out.xml --format avid"_s).output,
                 "M\t00:00:01:00\tV1\tred\t\n" +
                     QByteArray("A \"1\"\t00:00:02:00\tV1\tred\tnote\n").repeated(2));
        QCOMPARE(run(u"import ~/Edit.xml ~/fcp.txt ~/fcp.txt --format fcp -o -"_s).output,
                 contentOf(m_home.path(u"out.xml"_s)));
        QCOMPARE(contentOf(m_home.path(u"Edit.xml"_s)), edit);
    }

    void nothingToImport()
    {
        const CliRun result =
            run(u"import ~/Edit.xml ~/header.txt ~/missing.txt --format fcp -o ~/never.xml"_s);
        QCOMPARE(result.status, 1);
        QCOMPARE(result.messages,
                 "No markers to import: There were no markers in the file or it is an invalid format.\n");
        QVERIFY(!QFile::exists(m_home.path(u"never.xml"_s)));
    }

    void repairedFileIsOverwrittenWithConsent()
    {
        QCOMPARE(run(u"import ~/damaged.xml ~/fcp.txt --format fcp --yes -o ~/damaged.xml"_s).status, 0);
        QVERIFY(contentOf(m_home.path(u"damaged.xml"_s)).contains("A \"1\""));
    }
};

QTEST_GUILESS_MAIN(MarkerFilesTest)
#include "tst_markerfiles.moc"
