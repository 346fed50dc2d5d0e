#include "tests/cli/CliHome.h"

#include <QFile>
#include <QProcess>
#include <QTest>

#include <sys/prctl.h>
#include <sys/stat.h>

#include <linux/capability.h>

using namespace vantrell;
using namespace Qt::StringLiterals;

namespace
{

const QByteArray fcpHeader("Name\tType\tMarker Name\tComment\tStart\tDuration\tColor\n");

QByteArray project(const QByteArray &markers)
{
    return "<xmeml><sequence><name>Edit</name><timecode><rate><timebase>25</timebase></rate></timecode>" +
           markers + "</sequence></xmeml>";
}

QByteArray fcpxml(const QByteArray &markers)
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

    const CliHome m_home{};

    CliRun run(const QString &arguments) const { return m_home.run(arguments); }

private Q_SLOTS:
    void initTestCase()
    {
        m_home.addFile(u"fcp.txt"_s,
                       fcpHeader + "Edit\tSequence\tA \"1\"\tnote\t00:00:02:00\t00:00:00:10\tPurple\n");
        m_home.addFile(u"avid.txt"_s, "B\t00:00:00:05\tV1\tred\t\n");
        m_home.addFile(u"none.txt"_s, fcpHeader);
        m_home.addFile(u"latin.txt"_s, "\n\xe9");
        m_home.addFile(u"a.fcpxml"_s, fcpxml("<marker start=\"1s\" value=\"C\"/><marker start=\"1s\"/>"
                                             "<title offset=\"2s\"><marker value=\"D\"/></title>"));
        m_home.addFile(u"broken.fcpxml"_s, fcpxml("<marker>"));
        m_home.addFile(u"Edit.xml"_s, project("<marker><name>M</name><in>25</in><out>50</out></marker>"));
        m_home.addFile(u"damaged.xml"_s, project("<marker><name>M</marker>"));
    }

    /// The list comes through a pipe, after another program has changed the project.
    void changedMeanwhile_data()
    {
        QTest::addColumn<bool>("isConfirmed");
        QTest::newRow("refused") << false;
        QTest::newRow("--yes") << true;
    }
    void changedMeanwhile()
    {
        QFETCH(bool, isConfirmed);
        const QString path = m_home.addFile(u"changing.xml"_s, project(QByteArray()));
        const QString pipe = m_home.path(isConfirmed ? u"pipe 2"_s : u"pipe 1"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QProcess program;
        program.start(qEnvironmentVariable("VANTRELL_BIN_DIR") + u"/vantrell-cli"_s,
                      QStringList{u"import"_s, path, pipe, u"--format"_s, u"avid"_s, u"-o"_s, path} +
                          (isConfirmed ? QStringList{u"--yes"_s} : QStringList()));
        QFile list(pipe);
        QVERIFY(list.open(QIODevice::WriteOnly)); // once the program reads it
        const QByteArray theirs = project("<marker><name>theirs</name><in>1</in><out>-1</out></marker>");
        m_home.addFile(u"changing.xml"_s, theirs);
        list.write(contentOf(m_home.path(u"avid.txt"_s)));
        list.close();
        QVERIFY(program.waitForFinished(40000));
        QCOMPARE(program.exitCode(), isConfirmed ? 0 : 1);
        QVERIFY(program.readAllStandardError().contains("changed by another program"));
        QCOMPARE(contentOf(path) == theirs, !isConfirmed);
        QCOMPARE(contentOf(path).contains("<name>B</name>"), isConfirmed);
    }

    void printed()
    {
        const struct {
            const char *arguments;
            QByteArray output;
        } rows[] = {
            {"marker-list ~/fcp.txt --format fcp --json",
             "[{\"name\":\"A \\\"1\\\"\",\"comment\":\"note\",\"startTimecode\":\"00:00:02:00\","
             "\"durationTimecode\":\"00:00:00:10\",\"color\":\"Purple\",\"parentName\":\"Edit\","
             "\"parentType\":\"Sequence\"}]\n"},
            {"marker-list ~/avid.txt --format avid --json",
             "[{\"name\":\"B\",\"comment\":\"\",\"startTimecode\":\"00:00:00:05\",\"color\":\"red\"}]\n"},
            {"marker-list ~/avid.txt --format avid",
             "name\tcomment\tstartTimecode\tcolor\nB\t\t00:00:00:05\tred\n"},
            {"marker-list ~/a.fcpxml --format fcpx --json --relative-hour 5",
             "[{\"name\":\"C\",\"startTimecode\":\"05:00:01:00\"},{}]\n"},
            {"marker-list ~/a.fcpxml --format fcpx --relative-hour -1",
             "name\tstartTimecode\nC\t00:00:01:00\n\t\n"},
            {"marker-list --json --format fcpx --seconds --strip-duplicates --all-storylines ~/a.fcpxml",
             "[{\"name\":\"C\",\"seconds\":1.0},{\"name\":\"D\",\"seconds\":2.0}]\n"},
            {"marker-list ~/none.txt --format fcp --json", "[]\n"},
            {"marker-list ~/broken.fcpxml --format fcpx --json", "[]\n"},
            {"export ~/Edit.xml --format fcp",
             fcpHeader + "Edit\tSequence\tM\t\t00:00:01:00\t00:00:01:00\tRed\n"},
            {"export ~/Edit.xml --format avid -o -", "M\t00:00:01:00\tV1\tred\t\n"},
        };
        for (const auto &row : rows) {
            const CliRun result = run(QString::fromLatin1(row.arguments));
            QCOMPARE(result.output, row.output);
            QCOMPARE(result.status, 0);
            QCOMPARE(result.messages, QByteArray());
        }
    }

    void rowsThatCannotBeAdded()
    {
        m_home.addFile(u"bad.txt"_s, "B <1\t00:00:00:05\tV1\tred\t\nB <2\t00:00:00:06\tV1\tred\t\n");
        CliRun result = run(u"import ~/Edit.xml ~/bad.txt ~/avid.txt --format avid -o ~/some.xml"_s);
        QCOMPARE(result.status, 0);
        const QList<QByteArray> lines = result.messages.split('\n');
        QCOMPARE(lines.size(), 4);
        QVERIFY(lines.at(0).startsWith("vantrell-cli: bad.txt, line 1, “B <1”: "));
        QVERIFY(lines.at(1).startsWith("vantrell-cli: bad.txt, line 2, “B <2”: "));
        QCOMPARE(lines.at(2), QByteArray("vantrell-cli: 1 of 3 rows added"));
        result = run(u"import ~/Edit.xml ~/bad.txt --format avid -o ~/nothing.xml"_s);
        QCOMPARE(result.status, 1);
        QVERIFY(result.messages.endsWith("vantrell-cli: 0 of 2 rows added\n"));
        QVERIFY(!QFile::exists(m_home.path(u"nothing.xml"_s)));
    }

    void rowsThatNobodyCanRead()
    {
        m_home.addFile(u"tabs.xml"_s,
                       project("<marker><name>a&#9;b</name></marker><marker><name>c</name>"
                               "<comment>d\ne</comment></marker><marker><name>f</name></marker>"));
        QCOMPARE(
            run(u"export ~/tabs.xml --format avid"_s).messages,
            QByteArray("vantrell-cli: 2 rows hold a tab or a line break; other systems will not be able to "
                       "read them.\n"));
    }

    void ownOwners()
    {
        const QByteArray clips = "<media><video><track><clipitem><name>A</name><marker/></clipitem><clipitem>"
                                 "<name>Bravo</name><marker/></clipitem></track></video></media>";
        m_home.addFile(u"owners.xml"_s, project(clips));
        m_home.addFile(u"none.json"_s, "[]");
        const QByteArray told =
            "vantrell-cli: 1 of 2 markers is listed under another sequence or clip than their "
            "own; --own-owners lists each under its own.\n";
        for (const QString &command :
             {u"markers ~/owners.xml --json"_s, u"export ~/owners.xml --format fcp"_s,
              u"edit ~/owners.xml --script ~/none.json"_s,
              u"report ~/owners.xml --tab markers --columns clip -o -"_s}) {
            const CliRun byPosition = run(command);
            QCOMPARE(byPosition.messages, told);
            QVERIFY(!byPosition.output.contains("Bravo"));
            const CliRun own = run(command + u" --own-owners"_s);
            QCOMPARE(own.messages, QByteArray());
            QVERIFY2(own.output.contains("Bravo"), own.output.constData());
        }
    }

    void written()
    {
        const QByteArray edit = contentOf(m_home.path(u"Edit.xml"_s));
        const CliRun result = run(u"import ~/Edit.xml ~/fcp.txt ~/latin.txt --format fcp -o ~/out.xml"_s);
        QVERIFY(result.status == 0 && result.output.isEmpty());
        QVERIFY(result.messages.endsWith(" rows added\n"));
        QCOMPARE(run(u"import ~/Edit.xml ~/fcp.txt --format fcp -o -"_s).output,
                 contentOf(m_home.path(u"out.xml"_s)));
        QCOMPARE(run(u"export ~/out.xml --format avid -o ~/out.txt"_s).status, 0);
        QCOMPARE(contentOf(m_home.path(u"out.txt"_s)),
                 "M\t00:00:01:00\tV1\tred\t\nA \"1\"\t00:00:02:00\tV1\tred\tnote\n");
        QCOMPARE(contentOf(m_home.path(u"Edit.xml"_s)), edit);
        QCOMPARE(run(u"import ~/damaged.xml ~/fcp.txt --format fcp --yes -o ~/damaged.xml"_s).status, 0);
        QVERIFY(contentOf(m_home.path(u"damaged.xml"_s)).contains("A \"1\""));
    }

    /// Without the capability of the superuser to read every file.
    void unreadable()
    {
        const QString path = m_home.addFile(u"secret.txt"_s, "A\t00:00:00:05\tV1\tred\t\n");
        QVERIFY(QFile::setPermissions(path, {}));
        QProcess program;
        program.setChildProcessModifier([] {
            ::prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE);
            ::prctl(PR_CAPBSET_DROP, CAP_DAC_READ_SEARCH);
        });
        program.start(qEnvironmentVariable("VANTRELL_BIN_DIR") + u"/vantrell-cli"_s,
                      {u"marker-list"_s, path, u"--format"_s, u"avid"_s});
        QVERIFY(program.waitForFinished(40000));
        QCOMPARE(program.exitCode(), 1);
        QCOMPARE(program.readAllStandardError(),
                 "vantrell-cli: The file \"" + path.toUtf8() + "\" may not be read.\n");
    }

    void refused()
    {
        m_home.addFile(u"damaged.xml"_s, project("<marker><name>M</marker>"));
        const struct {
            int status;
            const char *arguments;
        } rows[] = {
            {1, "marker-list ~/missing --format fcp --json"},
            {1, "marker-list ~/missing --format fcpx --json"},
            {1, "marker-list ~ --format fcpx"},
            {1, "marker-list ~/latin.txt --format fcp"},
            {1, "export ~/missing.xml --format fcp"},
            {1, "export ~/Edit.xml --format fcp -o ~/missing/out.txt"},
            {1, "import ~/missing.xml ~/fcp.txt --format fcp -o ~/never.xml"},
            {1, "import ~/Edit.xml ~/fcp.txt --format fcp -o ~/missing/out.xml"},
            {1, "import ~/damaged.xml ~/fcp.txt --format fcp -o ~/damaged.xml"},
            {1, "import ~/Edit.xml ~/none.txt ~/missing --format fcp -o ~/never.xml"},
            {2, "marker-list ~/fcp.txt"},
            {2, "marker-list ~/fcp.txt --format fcp --seconds"},
            {2, "marker-list ~/a.fcpxml --format fcpx --relative-hour x"},
            {2, "export ~/Edit.xml --format fcpx"},
            {2, "import ~/Edit.xml ~/fcp.txt --format fcp"},
        };
        for (const auto &row : rows) {
            const CliRun result = run(QString::fromLatin1(row.arguments));
            QVERIFY2(result.status == row.status, row.arguments);
            QVERIFY2(result.output.isEmpty() && !result.messages.isEmpty(), row.arguments);
        }
        QVERIFY(!QFile::exists(m_home.path(u"never.xml"_s)));
        QVERIFY(!contentOf(m_home.path(u"damaged.xml"_s)).contains("A \"1\""));
        QCOMPARE(run(QString::fromLatin1(rows[9].arguments)).messages,
                 "No markers to import: There were no markers in the file or it is an invalid format.\n");
    }
};

QTEST_GUILESS_MAIN(MarkerFilesTest)
#include "tst_markerfiles.moc"
