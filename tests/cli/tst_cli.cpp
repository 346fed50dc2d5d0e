#include "tests/support/CliRun.h"
#include "tests/support/TemporaryHome.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

using namespace vantrell;

class CliTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

private Q_SLOTS:
    void timecodes_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<QByteArray>("output");
        QTest::newRow("format") << QStringLiteral("format --drop-frame 0 1800 107892") << QByteArray()
                                << QByteArray("00:00:00;00\n00:01:00;02\n01:00:00;00\n");
        QTest::newRow("format -1") << QStringLiteral("format -1") << QByteArray()
                                   << QByteArray("09:01:52:00\n");
        QTest::newRow("format beyond signed")
            << QStringLiteral("format 18446744073709551615") << QByteArray() << QByteArray("09:01:52:00\n");
        QTest::newRow("format with a start") << QStringLiteral("format --timebase 25 --start 90000 5 --ntsc")
                                             << QByteArray() << QByteArray("01:00:00:05\n");
        QTest::newRow("format from input")
            << QStringLiteral("format") << QByteArray("5\r\n30") << QByteArray("00:00:00:05\n00:00:01:00\n");
        QTest::newRow("parse") << QStringLiteral("parse --start 10 00:00:00:09 1:2 00:00:01:00")
                               << QByteArray() << QByteArray("18446744073709551615\n0\n20\n");
        QTest::newRow("parse from input")
            << QStringLiteral("parse") << QByteArray(" 00:00:01:00 \n\n") << QByteArray("30\n0\n");
        QTest::newRow("expand") << QStringLiteral("expand --drop-frame 1.. --start 01:00:00;00 5 -1.")
                                << QByteArray() << QByteArray("01:01:00;00\n01:00:00;05\n01:00:-1;00\n");
        QTest::newRow("add") << QStringLiteral("add 00:00:01:00 00:00:00:15") << QByteArray()
                             << QByteArray("00:00:01:15\n");
        QTest::newRow("subtract") << QStringLiteral("subtract 00:00:01:00 00:00:03:05") << QByteArray()
                                  << QByteArray("00:00:02:05\n");
        QTest::newRow("subtract the later")
            << QStringLiteral("subtract 00:00:03:05 00:00:01:00") << QByteArray() << QByteArray("\n");
    }
    void timecodes()
    {
        QFETCH(QString, arguments);
        QFETCH(QByteArray, input);
        const CliRun run =
            runCli(QStringList(QStringLiteral("timecode")) + arguments.split(QLatin1Char(' ')), input);
        QTEST(run.output, "output");
        QCOMPARE(run.status, 0);
        QCOMPARE(run.messages, QByteArray());
    }

    void wrongUsage_data()
    {
        QTest::addColumn<QString>("arguments");
        for (const char *arguments :
             {"", "none", "load", "load a b", "load --none a", "timecode", "timecode format x",
              "timecode format 1.5", "timecode format --timebase x 1", "timecode add 1", "info"})
            QTest::newRow(*arguments ? arguments : "nothing") << QString::fromLatin1(arguments);
    }
    void wrongUsage()
    {
        QFETCH(QString, arguments);
        const CliRun run = runCli(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
        QCOMPARE(run.status, 2);
        QCOMPARE(run.output, QByteArray());
        QVERIFY(!run.messages.isEmpty());
    }

    void argumentsThatBeginWithAMinusSign()
    {
        QTemporaryDir folder;
        const QString before = QDir::currentPath();
        const auto leave = qScopeGuard([&before] { QDir::setCurrent(before); });
        QDir::setCurrent(folder.path());
        for (const char *name : {"-1.xml", "-x.xml"}) {
            QFile file(QString::fromLatin1(name));
            QVERIFY(file.open(QIODevice::WriteOnly) &&
                    file.write("<xmeml><sequence><marker/></sequence></xmeml>") > 0);
        }
        QFile script(QStringLiteral("-s"));
        QVERIFY(script.open(QIODevice::WriteOnly) && script.write("[]") > 0);
        script.close();
        const struct {
            const char *arguments;
            int status;
            const char *made;
        } table[] = {
            {"info -1.xml", 0, ""},
            {"info -- -x.xml", 0, ""},
            {"info -x.xml", 2, ""},
            {"import -1.xml --format auto --preview -- -s -x.xml", 0, ""},
            {"timecode expand 1 -- -x", 0, ""},
            {"effects -1.xml --search= --json", 0, ""},
            {"export -1.xml --format=fcp --search=\1x -o [1,2]", 0, "[1,2]"},
            {"timecode expand [1,2]", 0, ""},
            {"compare -1.xml -1.xml --sequence 1 -x", 1, ""},
            {"export -1.xml --format fcp -o \1x", 0, "\1x"},
            {"export -1.xml --format fcp -o\1y", 0, "\1y"},
            {"edit -1.xml --quiet --script -s -o -1.out", 0, "-1.out"},
            {"edit -1.xml --quiet -o -out.xml --script -s", 0, "-out.xml"},
            {"edit -1.xml --script -o -2.out", 2, ""},
            {"export -1.xml --format fcp -o -.5", 0, "-.5"},
            {"effects -1.xml --search -Blur --json", 0, ""},
            {"media -1.xml --drive -5", 0, ""},
            {"report -1.xml --tab markers --title -t -o -r", 0, "-r"},
        };
        for (const auto &row : table) {
            const QStringList arguments = QString::fromLatin1(row.arguments).split(QLatin1Char(' '));
            const CliRun run = runCli(arguments);
            QVERIFY2(run.status == row.status, (row.arguments + QByteArray(": ") + run.messages).constData());
            QVERIFY2(!*row.made || QFile::remove(QString::fromLatin1(row.made)), row.arguments);
            QVERIFY(!run.messages.contains('\1'));
        }
    }

    void helpIsNoError()
    {
        for (const char *arguments : {"--help", "load --help", "timecode expand --help", "--version"}) {
            const CliRun run = runCli(QString::fromLatin1(arguments).split(QLatin1Char(' ')));
            QCOMPARE(run.status, 0);
            QVERIFY(!run.output.isEmpty());
        }
    }

    void info()
    {
        const QString path = m_home.addFile(
            QStringLiteral("p/a b.xml"),
            "<xmeml><project><children><sequence><name>É</name><uuid>U</uuid><media><video><track>"
            "<clipitem id=\"c\"><name>C</name></clipitem></track></video></media></sequence>"
            "<bin><children><sequence/></children></bin></children></project></xmeml>");
        const CliRun json = runCli({QStringLiteral("info"), QStringLiteral("--json"), path});
        QCOMPARE(
            json.output,
            QByteArray(
                "{\"xmlType\":0,\"sequences\":[{\"index\":1,\"name\":\"É\",\"uuid\":\"U\",\"element\":"
                "\"/xmeml[1]/project[1]/children[1]/"
                "sequence[1]\",\"clips\":[{\"index\":1,\"title\":\"C\",\"id\":\"c\"}]},"
                "{\"index\":2,\"name\":\"Unknown sequence\",\"uuid\":null,\"element\":"
                "\"/xmeml[1]/project[1]/children[1]/bin[1]/children[1]/sequence[1]\",\"clips\":[]}]}\n"));
        QCOMPARE(json.status, 0);
        const CliRun table = runCli({QStringLiteral("info"), path});
        QVERIFY(table.output.contains("1\t1\tC\tc\n"));
        const CliRun counts = runCli({QStringLiteral("load"), path, QStringLiteral("--no-inventories")});
        QCOMPARE(counts.output, QByteArray("{\"xmlType\":0,\"sequences\":2}\n"));
    }

    void whatCannotBeRead()
    {
        const QString text = m_home.addFile(QStringLiteral("p/letter.txt"), "Dear editor,\n");
        for (const QString &path : {text, m_home.path(), m_home.path(QStringLiteral("p/none.xml"))}) {
            const CliRun run = runCli({QStringLiteral("info"), path});
            QCOMPARE(run.status, 1);
            QCOMPARE(run.output, QByteArray());
            QVERIFY2(run.messages.startsWith("vantrell-cli: ") && run.messages.contains(path.toUtf8()),
                     run.messages.constData());
        }
        const QString damaged = m_home.addFile(QStringLiteral("p/damaged.xml"), "<xmeml><sequence><name>A");
        const CliRun repaired = runCli({QStringLiteral("load"), QStringLiteral("--no-inventories"), damaged});
        QCOMPARE(repaired.status, 0);
        QVERIFY(repaired.messages.contains("repaired"));
        QCOMPARE(repaired.output, QByteArray("{\"xmlType\":1,\"sequences\":1}\n"));
    }

    void saysThatNoDescriptorIsLeft()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("The sanitizer needs a descriptor to look at an object's type.");
#endif
        const QString path = m_home.addFile(QStringLiteral("p/few.xml"), "<xmeml/>");
        const QString program = qEnvironmentVariable("VANTRELL_BIN_DIR") + QStringLiteral("/vantrell-cli");
        const CliRun run =
            runProgram(QStringLiteral("/bin/sh"),
                       {QStringLiteral("-c"),
                        QStringLiteral("exec 3<&- 4<&- 5<&- 6<&- 7<&-; ulimit -n 4; exec \"$0\" info \"$1\""),
                        program, path});
        QCOMPARE(run.status, 1);
        QVERIFY2(run.messages.contains("Too many open files"), run.messages.constData());
    }

    void keepsALogOfItsOwn()
    {
        runCli({QStringLiteral("timecode"), QStringLiteral("format"), QStringLiteral("1")});
        // The log file is elsewhere for the superuser.
        QVERIFY(QDir(m_home.path(QStringLiteral(".local/state/Logs/Orvandel"))).exists());
    }
};

QTEST_GUILESS_MAIN(CliTest)
#include "tst_cli.moc"
