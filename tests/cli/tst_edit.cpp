#include "tests/support/CliRun.h"
#include "tests/support/TemporaryHome.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace vantrell;

namespace
{

QByteArray marker(const QByteArray &name, int in, int green = 0)
{
    return "<marker><name>" + name + "</name><color><alpha>0</alpha><red>255</red><green>" +
           QByteArray::number(green) + "</green><blue>0</blue></color><in>" + QByteArray::number(in) +
           "</in><out>-1</out></marker>";
}

const QByteArray project =
    "<xmeml version=\"5\"><project><children><sequence id=\"s\"><uuid>A</uuid><name>S</name><timecode><rate>"
    "<timebase>25</timebase></rate></timecode><media><video><track><clipitem id=\"c\"><name>C</name>"
    "<filter><enabled>TRUE</enabled><effect><name>Blur</name><effectid>Blur</effectid><effecttype>filter"
    "</effecttype><mediatype>video</mediatype></effect></filter></clipitem></track></video></media>" +
    marker("é", 5) + marker("b", 3, 127) + marker("a", 9, 127) + "</sequence></children></project></xmeml>";

} // namespace

class EditTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

    QString input(const QByteArray &content = project)
    {
        return m_home.addFile(QStringLiteral("in.xml"), content);
    }
    QString output() { return m_home.path(QStringLiteral("out.xml")); }

    CliRun edit(const QByteArray &script, const QStringList &options = {},
                const QByteArray &content = project)
    {
        QFile::remove(output());
        const QString file = input(content);
        return runCli(
            QStringList{QStringLiteral("edit"), file, QStringLiteral("--script"), QStringLiteral("-")} +
                options,
            script);
    }

private Q_SLOTS:
    void result()
    {
        const QByteArray script =
            R"([{"op":"set","rows":[2,0,2],"column":"name","value":"n"},{"op":"add"},
                {"op":"addFrames","name":"f","in":10,"out":20,"color":"Green","sequence":7},
                {"op":"addTimecode","name":"t","start":"00:00:01:00","duration":"00:00:00:05","comment":"c"},
                {"op":"offset","rows":[1],"text":"2"},{"op":"setEffect","row":0,"value":"0"},
                {"op":"remove","rows":[0]}])";
        const CliRun run = edit(script, {QStringLiteral("--yes"), QStringLiteral("-o"), output()});
        QCOMPARE(run.status, 0);
        const QJsonObject json = QJsonDocument::fromJson(run.output).object();
        QCOMPARE(json.keys().size(), 3);
        QCOMPARE(json[QStringLiteral("modifiedSequenceUUIDs")].toArray(), QJsonArray{QStringLiteral("A")});
        QStringList markers;
        for (const auto &value : json[QStringLiteral("markers")].toArray()) {
            const QJsonObject one = value.toObject();
            markers.append(one[QStringLiteral("name")].toString() + QLatin1Char(' ') +
                           one[QStringLiteral("in")].toString() + QLatin1Char(' ') +
                           one[QStringLiteral("out")].toString() + QLatin1Char(' ') +
                           QString::number(one[QStringLiteral("color")].toInt(-1)) + QLatin1Char(' ') +
                           one[QStringLiteral("markerElement")].toString().section(QLatin1Char('/'), -1));
        }
        QCOMPARE(markers,
                 (QStringList{QStringLiteral("b 5 -1 1 marker[1]"), QStringLiteral("n 9 -1 1 marker[2]"),
                              QStringLiteral("Marker 1 0 -1 0 marker[3]"),
                              QStringLiteral("f 10 20 3 marker[4]"), QStringLiteral("t 25 30 0 marker[5]")}));
        const QJsonObject effect = json[QStringLiteral("effects")].toArray().at(0).toObject();
        QCOMPARE(effect[QStringLiteral("enabled")].toInt(-1), 0);
        QVERIFY(contentOf(output()).contains("<enabled>FALSE</enabled>"));
        QCOMPARE(contentOf(input()), project);
    }

    /// Exit status 1, a message, and nothing written.
    void refused_data()
    {
        QTest::addColumn<QByteArray>("script");
        const auto add = [](const char *script) { QTest::newRow(script) << QByteArray(script); };
        add("");
        add("{}");
        add("[1]");
        add("[{}]");
        add(R"([{"op":"none"}])");
        add(R"([{"op":1}])");
        add(R"([{"op":"add"},{"op":"set","rows":[0],"column":"name"}])");
        add(R"([{"op":"set","rows":[0],"column":"name","value":1}])");
        add(R"([{"op":"set","rows":[0],"column":"none","value":"1"}])");
        add(R"([{"op":"set","rows":0,"column":"name","value":"1"}])");
        add(R"([{"op":"set","rows":[0.5],"column":"name","value":"1"}])");
        add(R"([{"op":"set","rows":[3],"column":"name","value":"1"}])");
        add(R"([{"op":"set","rows":[-1],"column":"name","value":"1"}])");
        add(R"([{"op":"offset","rows":[18446744073709551615],"text":"1"}])");
        add(R"([{"op":"addFrames","name":"n","in":"1","out":2}])");
        add(R"([{"op":"addFrames","name":"n","in":1}])");
        add(R"([{"op":"addFrames","name":"n","in":1,"out":2,"sequence":"1"}])");
        add(R"([{"op":"addTimecode","name":"n"}])");
        add(R"([{"op":"setEffect","row":1,"value":"1"}])");
        add(R"([{"op":"setEffect","row":0,"key":1,"value":"1"}])");
        add(R"([{"op":"remove","rows":[0]}])");        // the question is refused
        add(R"([{"op":"removeEffects","rows":[0]}])"); // the same
    }
    void refused()
    {
        QFETCH(QByteArray, script);
        const QString bin = m_home.path(QStringLiteral("bin.xml"));
        const CliRun run =
            edit(script, {QStringLiteral("-o"), output(), QStringLiteral("--output-bin"), bin});
        QCOMPARE(run.status, 1);
        QCOMPARE(run.output, QByteArray());
        QVERIFY(!run.messages.isEmpty());
        QVERIFY(!QFile::exists(output()) && !QFile::exists(bin));
    }

    /// Odd values are up to the operations: status 0.
    void oddValues_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QByteArray>("message");
        QTest::newRow("nothing") << QByteArray("[]") << QByteArray();
        QTest::newRow("no rows") << QByteArray(
                                        R"([{"op":"remove","rows":[]},{"op":"offset","rows":[],"text":""}])")
                                 << QByteArray();
        QTest::newRow("menu index") << QByteArray(R"([{"op":"set","rows":[0],"column":"clip","value":"x9"}])")
                                    << QByteArray();
        QTest::newRow("(none)")
            << QByteArray(R"([{"op":"addFrames","name":"n","in":1,"out":2,"sequence":0,"x":null}])")
            << QByteArray();
        QTest::newRow("alert") << QByteArray(R"([{"op":"addFrames","name":"<","in":1,"out":2},{"op":"add"}])")
                               << QByteArray("Unable to create marker: ");
        QTest::newRow("effects and markers")
            << QByteArray(R"([{"op":"add"},{"op":"removeEffects","rows":[0]},{"op":"remove","rows":[3]}])")
            << QByteArray();
    }
    void oddValues()
    {
        QFETCH(QByteArray, script);
        QFETCH(QByteArray, message);
        const CliRun run = edit(script, {QStringLiteral("--yes"), QStringLiteral("-o"), output()});
        QCOMPARE(run.status, 0);
        QVERIFY(!run.output.isEmpty() && QFile::exists(output()));
        QVERIFY2(run.messages.startsWith(message), run.messages.constData());
    }

    /// What is undone leaves no trace, what is redone stands as it was.
    void undoing_data()
    {
        QTest::addColumn<QByteArray>("undone");
        QTest::addColumn<QByteArray>("plain");
        const QByteArray rename = R"({"op":"set","rows":[2,0],"column":"name","value":"n"})";
        const QByteArray others = R"({"op":"offset","rows":[1],"text":"2"},{"op":"remove","rows":[0]},)"
                                  R"({"op":"removeEffects","rows":[0]})";
        const QByteArray undo = R"({"op":"undo"})";
        const QByteArray redo = R"({"op":"redo"})";
        const QByteArray undoOthers = ',' + undo + ',' + undo + ',' + undo;
        QTest::newRow("all") << '[' + rename + ',' + others + undoOthers + ',' + undo + ']'
                             << QByteArray("[]");
        QTest::newRow("some") << '[' + rename + ',' + others + undoOthers + ']' << '[' + rename + ']';
        QTest::newRow("redone") << '[' + rename + ',' + undo + ',' + redo + ',' + others + ']'
                                << '[' + rename + ',' + others + ']';
        QTest::newRow("without a step")
            << '[' + undo + ',' + redo + ',' + rename + ',' + redo + ']' << '[' + rename + ']';
        QTest::newRow("what changes nothing")
            << '[' + rename + R"(,{"op":"offset","rows":[],"text":"1"},{"op":"set","rows":[0],"column":)" +
                   R"("clip","value":"9"},)" + undo + ']'
            << QByteArray("[]");
    }
    void undoing()
    {
        QFETCH(QByteArray, undone);
        QFETCH(QByteArray, plain);
        const QStringList options{QStringLiteral("--yes"), QStringLiteral("-o"), output()};
        const CliRun expected = edit(plain, options);
        const QByteArray file = contentOf(output());
        QVERIFY(expected.status == 0 && !file.isEmpty());
        const CliRun run = edit(undone, options);
        QCOMPARE(run.status, 0);
        QCOMPARE(run.output, expected.output);
        QCOMPARE(contentOf(output()), file);
    }

    void outputs()
    {
        const QByteArray script = R"([{"op":"set","rows":[0],"column":"comment","value":"now"}])";
        const CliRun quiet = edit(script, {QStringLiteral("--quiet")});
        QCOMPARE(quiet.output, QByteArray());
        QVERIFY(quiet.status == 0 && !QFile::exists(output()));
        const CliRun stream = edit(script, {QStringLiteral("-o"), QStringLiteral("-")});
        QVERIFY(stream.status == 0 && stream.output.startsWith("<?xml") &&
                stream.output.endsWith("</xmeml>\n"));
        QVERIFY(stream.output.contains("<comment>now</comment>"));
        const QString bin = m_home.path(QStringLiteral("bin.xml"));
        QCOMPARE(edit(script, {QStringLiteral("--output-bin"), bin}).status, 0);
        QVERIFY(contentOf(bin).contains("<sequence id=\"s-Processed\"><uuid>"));
        QCOMPARE(edit(script, {QStringLiteral("-o"), input()}).status, 0); // named as the output
        QVERIFY(contentOf(m_home.path(QStringLiteral("in.xml"))).contains("now"));
        QCOMPARE(edit(script, {QStringLiteral("-o"), m_home.path(QStringLiteral("no/out.xml"))}).status, 1);
        QCOMPARE(edit(script, {QStringLiteral("--output-bin"), m_home.path(QStringLiteral("in.xml"))}).status,
                 2);
        QCOMPARE(edit(script, {QStringLiteral("-o"), QString()}).status, 1); // never as if it were not given
        // Links to what the same run is about to write.
        const QString link = m_home.path(QStringLiteral("link"));
        const QString folder = m_home.path(QStringLiteral("folder"));
        QVERIFY(QFile::link(output(), link) && QFile::link(m_home.path(), folder));
        for (const QString &alias : {link, folder + QStringLiteral("/out.xml")})
            QCOMPARE(
                edit(script, {QStringLiteral("-o"), output(), QStringLiteral("--output-bin"), alias}).status,
                2);
    }

    void repairedProject()
    {
        const QByteArray damaged = "<xmeml><sequence><uuid>A</uuid>" + marker("m", 1);
        const QStringList over{QStringLiteral("-o"), m_home.path(QStringLiteral("in.xml"))};
        const QByteArray script = R"([{"op":"add"}])";
        QCOMPARE(edit(script, over, damaged).status, 1);
        QCOMPARE(contentOf(over.at(1)), damaged);
        QCOMPARE(edit(script, over + QStringList(QStringLiteral("--yes")), damaged).status, 0);
        QVERIFY(contentOf(over.at(1)).contains("Marker 1"));
        QCOMPARE(edit(script, {QStringLiteral("-o"), output()}, damaged).status, 0);
    }

    void listing()
    {
        const QString file = input();
        const auto names = [&file](const QStringList &options) {
            const CliRun run =
                runCli(QStringList{QStringLiteral("markers"), QStringLiteral("--json"), file} + options);
            QString text = run.status == 0 ? QString() : QString::number(run.status);
            for (const auto &value : QJsonDocument::fromJson(run.output).array())
                text += value.toObject()[QStringLiteral("name")].toString();
            return text;
        };
        const QString color = QStringLiteral("--color");
        const QString sort = QStringLiteral("--sort");
        QCOMPARE(names({}), QStringLiteral("éba"));
        QCOMPARE(names({sort, QStringLiteral("name")}), QStringLiteral("éba"));
        QCOMPARE(names({color, QStringLiteral("Orange")}), QStringLiteral("ba"));
        QCOMPARE(names({color, QStringLiteral("1"), sort, QStringLiteral("name")}), QStringLiteral("ab"));
        QCOMPARE(names({color, QStringLiteral("1"), sort, QStringLiteral("in:desc")}), QStringLiteral("ab"));
        QCOMPARE(names({color, QStringLiteral("0")}), QStringLiteral("é"));
        for (const char *wrong : {"8", "-1", "brown", ""})
            QCOMPARE(names({color, QString::fromLatin1(wrong)}), QStringLiteral("2"));
        QCOMPARE(names({sort, QStringLiteral("none")}), QStringLiteral("2"));
        QCOMPARE(names({sort, QStringLiteral("QVCUSTOM_X:desc")}), QStringLiteral("éba"));

        const CliRun json =
            runCli({QStringLiteral("markers"), QStringLiteral("--json"), file, color, QStringLiteral("red")});
        const QByteArray path = "/xmeml[1]/project[1]/children[1]/sequence[1]";
        QCOMPARE(
            json.output,
            "[{\"color\":0,\"markerElement\":\"" + path +
                "/marker[1]\",\"name\":\"é\",\"in\":\"5\","
                "\"out\":\"-1\",\"sequence\":\"" +
                path +
                "\",\"sequenceUUID\":\"A\",\"sequenceName\":\"S\","
                "\"ntsc\":false,\"dropFrame\":false,\"timebase\":25,\"startFrame\":0,\"sequenceIndex\":1,"
                "\"display\":{\"in\":\"00:00:00:05\",\"out\":\"00:00:00:00\"}}]\n");
        const CliRun table = runCli({QStringLiteral("markers"), file});
        QVERIFY(table.output.contains("\nOrange\tb\t\t00:00:00:03\t00:00:00:00\tS\t"));
    }
};

QTEST_GUILESS_MAIN(EditTest)
#include "tst_edit.moc"
