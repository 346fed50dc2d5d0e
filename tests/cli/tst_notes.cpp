#include "tests/cli/CliHome.h"

#include <QFile>
#include <QTest>

using namespace vantrell;
using namespace Qt::StringLiterals;

namespace
{

QByteArray sequence(const char *name, const QByteArray &markers)
{
    return QByteArray("<sequence><name>") + name +
           "</name><duration>1000</duration><timecode><rate><timebase>25</timebase></rate><frame>90000</"
           "frame>"
           "</timecode>" +
           markers + "</sequence>";
}

} // namespace

class NotesTest : public QObject
{
    Q_OBJECT

    const CliHome m_home{};

    CliRun run(const QString &arguments) const { return m_home.run(arguments); }

private Q_SLOTS:
    void initTestCase()
    {
        m_home.addFile(u"project.xml"_s,
                       "<xmeml><project><children>" +
                           sequence("Edit",
                                    "<marker><name>M</name><comment>c</comment><in>25</in><out>-1</out>"
                                    "</marker>") +
                           sequence("Reel 2", "") + "</children></project></xmeml>");
        m_home.addFile(u"notes.csv"_s, "Name,Comment,In,Colour,Scene\n"
                                       "A & <b>,\"x \"\"y\"\"\nz\",01:00:02:00,blue,12\n"
                                       "M,c,01:00:01:00,,\n"
                                       "late,,01:01:00:00,,\nnone,,,,\n");
        m_home.addFile(u"show_reel 2_v3.txt"_s, "00:00 Intro\n00:10 Title\n");
    }

    void read()
    {
        const CliRun result = run(u"marker-list ~/notes.csv --format auto --json"_s);
        QCOMPARE(result.status, 0);
        QCOMPARE(
            result.output,
            QByteArray(
                "{\"shape\":\"table\",\"encoding\":\"UTF-8\",\"delimiter\":\"comma\","
                "\"columns\":[\"name\",\"comment\",\"time\",\"color\",\"field:Scene\"],\"rows\":["
                "{\"line\":2,\"time\":\"01:00:02:00\",\"name\":\"A & <b>\",\"comment\":\"x \\\"y\\\"\\nz\","
                "\"color\":\"blue\",\"fields\":{\"Scene\":\"12\"}},"
                "{\"line\":4,\"time\":\"01:00:01:00\",\"name\":\"M\",\"comment\":\"c\"},"
                "{\"line\":5,\"time\":\"01:01:00:00\",\"name\":\"late\"}],"
                "\"unreadable\":[{\"line\":6,\"reason\":\"There is no time.\"}]}\n"));
        QCOMPARE(run(u"marker-list ~/missing --format auto --json"_s).status, 1);
    }

    void addedOnce()
    {
        const QString import = u"import ~/project.xml ~/notes.csv --format auto --map scene=field:Scene"_s;
        const QByteArray planned(
            "{\"sequence\":1,\"rows\":["
            "{\"line\":2,\"name\":\"A & <b>\",\"comment\":\"x \\\"y\\\"\\nz\",\"in\":50,"
            "\"duration\":0,\"color\":5,\"state\":\"add\"},"
            "{\"line\":4,\"name\":\"M\",\"comment\":\"c\",\"in\":25,\"duration\":0,\"color\":0,"
            "\"state\":\"there\"},"
            "{\"line\":5,\"name\":\"late\",\"comment\":\"\",\"in\":1500,\"duration\":0,"
            "\"color\":0,\"state\":\"outside\"},"
            "{\"line\":6,\"state\":\"unreadable\",\"reason\":\"There is no time.\"}]}\n");
        QCOMPARE(run(import + u" --preview --json"_s).output, planned);
        const CliRun result = run(import + u" --json -o ~/out.xml"_s);
        QCOMPARE(result.status, 0);
        QCOMPARE(result.output, planned);
        QCOMPARE(result.messages,
                 QByteArray("vantrell-cli: notes.csv, line 5: It lies outside the sequence.\n"
                            "vantrell-cli: notes.csv, line 6: There is no time.\n"
                            "vantrell-cli: 1 of 4 rows are there already\n"
                            "vantrell-cli: 1 of 4 rows added\n"));
        const QByteArray markers = run(u"markers ~/out.xml --json"_s).output;
        QVERIFY2(markers.contains("\"name\":\"A & <b>\""), markers.constData());
        QVERIFY2(markers.contains("\"comment\":\"x \\\"y\\\"\\nz\""), markers.constData());
        QVERIFY2(markers.contains("\"QVCUSTOM_SCENE\":\"12\""), markers.constData());
        const CliRun again = run(u"import ~/out.xml ~/notes.csv --format auto -o ~/again.xml"_s);
        QCOMPARE(again.status, 1);
        QVERIFY(again.messages.endsWith("2 of 4 rows are there already\nvantrell-cli: 0 of 4 rows added\n"));
        QVERIFY(!QFile::exists(m_home.path(u"again.xml"_s)));
    }

    void fieldsOfTheSameName()
    {
        m_home.addFile(u"scenes.csv"_s, "Name,In,Scene,Scene#\nN,01:00:02:00,12,3\nO,01:00:03:00,,4\n");
        const CliRun result = run(u"import ~/project.xml ~/scenes.csv --format auto --map Scene=field:Scene "
                                  "--map Scene#=field:Scene# -o ~/scenes.xml"_s);
        QCOMPARE(result.messages, QByteArray("vantrell-cli: 2 of 2 rows added\n"));
        const QByteArray markers = run(u"markers ~/scenes.xml --json"_s).output;
        QVERIFY2(markers.contains("\"QVCUSTOM_SCENE\":\"12, 3\""), markers.constData());
        QVERIFY2(markers.contains("\"QVCUSTOM_SCENE\":\"4\""), markers.constData());
        // Of several fields one is read back; the row is known by what is left.
        const QString import = u"import ~/%1 ~/scenes.csv --format auto --map Scene=field:Scene "
                               "--map Scene#=field:Take -o ~/twice.xml"_s;
        QVERIFY(run(import.arg(u"project.xml"_s)).messages.endsWith("2 of 2 rows added\n"));
        QVERIFY(run(import.arg(u"twice.xml"_s)).messages.endsWith("0 of 2 rows added\n"));
    }

    void chosenSequence()
    {
        const auto sequenceOf = [this](const QString &options) {
            return run(u"import ~/project.xml %1 --format auto --preview --json"_s.arg(options))
                .output.left(14);
        };
        QCOMPARE(sequenceOf(u"~/notes.csv"_s), QByteArray("{\"sequence\":1,"));
        QCOMPARE(sequenceOf(u"~/notes.csv --sequence 2"_s), QByteArray("{\"sequence\":2,"));
        const CliRun guessed =
            runCli({u"import"_s, m_home.path(u"project.xml"_s), m_home.path(u"show_reel 2_v3.txt"_s),
                    u"--format"_s, u"auto"_s, u"--preview"_s, u"--json"_s});
        QVERIFY2(guessed.output.startsWith("{\"sequence\":2,") && guessed.output.contains("\"in\":250,"),
                 guessed.output.constData());
    }

    void exported()
    {
        const struct {
            const char *arguments;
            QByteArray output;
        } rows[] = {
            {"--format avid8", "Vantrell\t01:00:01:00\tV1\tred\tc\t1\tM\t#FF0000\n"},
            {"--format edl --search m", "TITLE: Edit\nFCM: NON-DROP FRAME\n* LOC: 01:00:01:00 RED     M\n"},
            {"--format chapters --color 0 --sequence Edit", "00:01 M\n"},
            {"--format chapters --color blue", ""},
            {"--format chapters --sequence 2", ""},
            {"--format chapters --search nothing", ""},
        };
        for (const auto &row : rows) {
            const CliRun result = run(u"export ~/project.xml "_s + QString::fromLatin1(row.arguments));
            QCOMPARE(result.output, row.output);
            QCOMPARE(result.status, 0);
        }
        QCOMPARE(run(u"export ~/project.xml --format json"_s).output,
                 run(u"markers ~/project.xml --json"_s).output);
    }

    void jsonIsReadBack()
    {
        m_home.addFile(u"chapters.csv"_s,
                       "In,Name,Comment,Color,Duration,Scene,Type\n"
                       "01:00:02:00,A & <b>,\"x \"\"y\"\"\nz\",blue,00:00:01:00,12,Chapter\n"
                       "01:00:03:00,,,pink,,,\n");
        QCOMPARE(
            run(u"import ~/project.xml ~/chapters.csv --format auto --map Scene=field:Scene -o ~/from.xml"_s)
                .status,
            0);
        QCOMPARE(run(u"export ~/from.xml --format json -o ~/from.json"_s).status, 0);
        QCOMPARE(
            run(u"import ~/from.xml ~/from.json --format auto --preview --json"_s).output.count("\"there\""),
            3);
        QCOMPARE(run(u"import ~/project.xml ~/from.json --format auto --map 10=field:Scene -o ~/back.xml"_s)
                     .status,
                 0);
        QCOMPARE(run(u"markers ~/back.xml --json"_s).output, run(u"markers ~/from.xml --json"_s).output);
    }

    void refused()
    {
        for (const char *arguments :
             {"import ~/project.xml ~/notes.csv --format auto",
              "import ~/project.xml ~/notes.csv --format fcp --preview",
              "import ~/project.xml ~/notes.csv --format auto --preview --rate 26",
              "import ~/project.xml ~/notes.csv --format auto --preview --time offset=soon",
              "import ~/project.xml ~/notes.csv --format auto --preview --map 1=title",
              "export ~/project.xml --format csv --color mauve"})
            QVERIFY2(run(QString::fromLatin1(arguments)).status == 2, arguments);
        QCOMPARE(run(u"export ~/project.xml --format csv --sequence 3"_s).status, 1);
    }
};

QTEST_GUILESS_MAIN(NotesTest)
#include "tst_notes.moc"
