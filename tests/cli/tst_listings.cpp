#include "cli/TextTable.h"
#include "tests/support/CliRun.h"
#include "tests/support/TemporaryHome.h"

#include <QTest>

using namespace vantrell;

class ListingsTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;
    QString m_project;

    CliRun run(const char *arguments) const
    {
        QStringList list = QString::fromUtf8(arguments).split(QLatin1Char(' '));
        return runCli(list << m_project);
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_home.addFile(QStringLiteral("m/a.mov"), QByteArray(1536, 'x'));
        m_home.addFile(QStringLiteral("m/b.wav"), QByteArray(512, 'x'));
        QByteArray clips;
        for (const char *name : {"a.mov", "b.wav", "c.png"}) {
            clips += QByteArray("<clipitem id=\"k\"><file id=\"") + name + "\"><pathurl>file://" +
                     m_home.path(QStringLiteral("m/")).toUtf8() + name + "</pathurl></file></clipitem>";
        }
        m_project =
            m_home.addFile(QStringLiteral("p.xml"),
                           "<xmeml><sequence><name>S</name><media><video><track>" + clips +
                               "<generatoritem><enabled>FALSE</enabled><effect><name>Text</name></"
                               "effect><filter><effect><name>-1.5"
                               "</name><mediatype>video</mediatype></effect></"
                               "filter><filter><effect><name>Crop</name></effect>"
                               "</filter></generatoritem></track></video></media></sequence></xmeml>");
    }

    void media()
    {
        const CliRun all = run("media --json --sort filesize:desc");
        QCOMPARE(all.status, 0);
        QCOMPARE(all.messages, QByteArray());
        QVERIFY(all.output.indexOf("\"filename\":\"a.mov\"") < all.output.indexOf("\"filename\":\"b.wav\""));
        QVERIFY(all.output.contains("\"usageCount\":1,\"filetype\":\"Image\",\"missing\":true}],"));
        const CliRun audio = run("media --json --kind audio");
        QVERIFY(audio.output.endsWith(
            "\"statistics\":{\"totalSize\":512,\"largestFileSize\":512,\"largestFile\":\"b.wav\","
            "\"smallestFileSize\":512,\"smallestFile\":\"b.wav\"},\"labels\":[\"Total size: 512 B\","
            "\"Total number of files: 3\",\"Total size of filtered media: 512 B\","
            "\"Number of filtered media files: 1\",\"Largest file: b.wav (512 B)\","
            "\"Smallest file: b.wav (512 B)\"]}\n"));
        QVERIFY(run("media --json --drive /none").output.startsWith("{\"files\":[],"));
        const QByteArray drive = "media --json --drive " + m_home.path().toUtf8() + "/m/";
        QCOMPARE(run(drive.constData()).output.count("filename"), 3);
        const QByteArray table = run("media --kind image").output;
        QVERIFY(table.startsWith("Name\tKind\tSize\tDate Modified\tUsage\tMissing\tFolder\n"
                                 "c.png\tImage\t\t\t1\tmissing\t/"));
    }

    void effects()
    {
        const QByteArray at = "/xmeml[1]/sequence[1]/media[1]/video[1]/track[1]/generatoritem[1]";
        const CliRun all = run("effects --json");
        QCOMPARE(all.status, 0);
        QCOMPARE(all.output, "{\"effects\":[{\"enabled\":1,\"effectType\":\"Filter\",\"effectElement\":\"" +
                                 at +
                                 "/filter[1]\",\"name\":\"-1.5\",\"mediaType\":\"Video\",\"sequence\":\"S\"},"
                                 "{\"enabled\":0,\"effectType\":\"Generator\",\"effectElement\":\"" +
                                 at + "\",\"name\":\"Text\",\"sequence\":\"S\"}],\"status\":\"2 items\"}\n");
        const QByteArray title = "Enabled\tName\tType\tMedia\tClip\tSequence\n";
        const std::pair<const char *, QByteArray> table[] = {
            {"--search -1", "yes\t-1.5\tFilter\tVideo\t\tS\n"},
            {"--type generator", "no\tText\tGenerator\t\t\tS\n"},
            {"--type transition", ""},
            {"--type filter --show-defaults --sort name:desc",
             "yes\tCrop\tFilter\t\t\tS\nyes\t-1.5\tFilter\tVideo\t\tS\n"},
            {"--type video-filter", "yes\t-1.5\tFilter\tVideo\t\tS\n"},
        };
        for (const auto &[options, rows] : table)
            QCOMPARE(run((QByteArray("effects ") + options).constData()).output, title + rows);
    }

    /// Custom fields become columns after the others, also if only a later marker has them.
    void markers()
    {
        const QString path = m_home.addFile(
            QStringLiteral("m.xml"),
            "<xmeml><sequence><name>S</name><marker><name>A</name><in>1</in><out>-1</out></marker><marker>"
            "<name>B</name><comment>c&lt;QVCUSTOM_TAKE&gt;3&lt;_QVCUSTOM_TAKE&gt;</comment><in>30</in>"
            "<out>45</out></marker></sequence></xmeml>");
        const CliRun plain = runCli({QStringLiteral("markers"), path});
        QCOMPARE(plain.messages, QByteArray());
        QCOMPARE(
            plain.output,
            QByteArray("Color\tName\tComment\tIn\tDuration\tSequence\tClip\tChapter\tCompression\tScoring\t"
                       "QVCUSTOM_TAKE\n"
                       "Red\tA\t\t00:00:00:01\t00:00:00:00\tS\t\t\t\t\t\n"
                       "Red\tB\tc\t00:00:01:00\t00:00:00:15\tS\t\t\t\t\t3\n"));
        const struct {
            const char *options;
            int rows; // -1 for a refusal
        } cases[] = {{"--search B", 1},
                     {"--search C", 1},
                     {"--search 3", 1},
                     {"--search s", 2},
                     {"--search 00:15", 1},
                     {"--search x", 0},
                     {"--sequence 1", 2},
                     {"--sequence S --search a", 1},
                     {"--color red --search b", 1},
                     {"--color blue", 0},
                     {"--sequence T", -1}};
        for (const auto &row : cases) {
            const QString options = QStringLiteral("markers --json ") + QLatin1String(row.options);
            const CliRun narrowed = runCli(options.split(QLatin1Char(' ')) << path);
            QCOMPARE(narrowed.status, row.rows < 0 ? 1 : 0);
            QCOMPARE(int(narrowed.output.count("\"display\"")), qMax(row.rows, 0));
        }
    }

    /// On a terminal, all columns but the last are two spaces wider than their widest cell.
    void tables()
    {
        cli::TextTable table({QStringLiteral("A"), QStringLiteral("Title"), QStringLiteral("C")});
        table.addRow({QStringLiteral("wide\tcell"), QString(), QStringLiteral("\r\nx")});
        table.addRow({QString(), QStringLiteral("ü"), QStringLiteral("longer than all")});
        QCOMPARE(table.toBytes(true), QByteArray("A          Title  C\n"
                                                 "wide cell           x\n"
                                                 "           ü      longer than all\n"));
        QCOMPARE(table.toBytes(false), QByteArray("A\tTitle\tC\nwide cell\t\t  x\n\tü\tlonger than all\n"));
    }

    void wrongUsage()
    {
        for (const char *arguments :
             {"media --sort comment", "media --sort filename:asc", "media --kind film", "media --json x",
              "effects --type video", "effects --sort effectElement",
              "effects --sort=", "effects --search"}) {
            const CliRun refused = run(arguments);
            QVERIFY2(refused.status == 2, arguments);
            QCOMPARE(refused.output, QByteArray());
            QVERIFY(!refused.messages.isEmpty());
        }
    }
};

QTEST_GUILESS_MAIN(ListingsTest)
#include "tst_listings.moc"
