// compare and carry, by their outcome.

#include "tests/cli/CliHome.h"

#include <QFile>
#include <QTest>

using namespace vantrell;
using namespace Qt::StringLiterals;

namespace
{

QByteArray clip(const char *name, int start, int end, int in, const QByteArray &more = QByteArray())
{
    const auto number = [](int value) { return QByteArray::number(value); };
    return "<clipitem id='" + QByteArray(name) + "'><name>" + name + "</name><start>" + number(start) +
           "</start><end>" + number(end) + "</end><in>" + number(in) + "</in><out>" +
           number(in + end - start) + "</out><file id='f-" + name + "'><pathurl>file://localhost/m/" + name +
           ".mov</pathurl></file>" + more + "</clipitem>";
}

QByteArray sequence(const char *name, const QByteArray &clips, const QByteArray &markers = QByteArray())
{
    return "<sequence id='" + QByteArray(name) + "'><uuid>U-" + name + "</uuid><name>" + name +
           "</name><duration>150</duration><rate><timebase>25</timebase></rate><media><video><track>" +
           clips + "</track></video></media>" + markers + "</sequence>";
}

QByteArray project(const QByteArray &sequences)
{
    return "<xmeml><project><children>" + sequences + "</children></project></xmeml>";
}

/// With markup, a tag, a field, a colour that the program has no name for and an element that it does not
/// know.
const QByteArray richMarker = "<marker><name>A &lt;b&gt; &amp;amp; \xF0\x9F\x8E\xAC %41</name><comment> "
                              "&lt;CHAPTER&gt; mind &amp;\n this"
                              "&lt;QVCUSTOM_TAKE&gt;7&lt;_QVCUSTOM_TAKE&gt;</comment><in>60</in><out>70</"
                              "out><color><red>1</red><green>2"
                              "</green></color><pproColor>77</pproColor></marker>";
const QByteArray plainMarker = "<marker><name>gone</name><in>110</in><out>-1</out></marker>";
const QByteArray clipMarker =
    "<marker><name>in clip</name><comment>c</comment><in>15</in><out>-1</out></marker>";

} // namespace

class CutsTest : public QObject
{
    Q_OBJECT

    const CliHome m_home{};

    CliRun run(const QString &arguments) const { return m_home.run(arguments); }
    QByteArray textOf(const QString &name) const
    {
        QFile file(m_home.path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private Q_SLOTS:
    void initTestCase()
    {
        const QByteArray old =
            clip("a", 0, 50, 0) + clip("b", 50, 100, 10, clipMarker) + clip("c", 100, 150, 0);
        const QByteArray recut = clip("x", 0, 20, 0) + clip("a", 20, 70, 0) + clip("b", 70, 90, 10);
        m_home.addFile(u"old.xml"_s,
                       project(sequence("Other", old) + sequence("Cut", old, richMarker + plainMarker)));
        m_home.addFile(u"new.xml"_s, project(sequence("Cut", recut) + sequence("Cut2", old)));
    }

    void comparing()
    {
        // The name of the first sequence of the old project is not in the new one: its first is taken.
        const CliRun json = run(u"compare ~/old.xml ~/new.xml --json"_s);
        QCOMPARE(
            json.output.simplified().replace(" ", ""),
            QByteArray(R"({"old":{"name":"Other","uuid":"U-Other","duration":150},)"
                       R"("new":{"name":"Cut","uuid":"U-Cut","duration":150},"changes":[)"
                       R"({"kind":"added","track":"V1","name":"x","file":"/m/x.mov","new":[0,20]},)"
                       R"({"kind":"moved","track":"V1","name":"a","file":"/m/a.mov","old":[0,50],)"
                       R"("new":[20,70],"by":20},)"
                       R"({"kind":"trimmed","track":"V1","name":"b","file":"/m/b.mov","old":[50,100],)"
                       R"("new":[70,90]},)"
                       R"({"kind":"removed","track":"V1","name":"c","file":"/m/c.mov","old":[100,150]}]})"));
        QCOMPARE(json.status, 0);
        const CliRun table = run(u"compare ~/old.xml ~/new.xml --sequence Cut 1 --exit-code"_s);
        QCOMPARE(table.output, QByteArray("Change\tTrack\tName\tOld\tNew\tBy\nadded\tV1\tx\t\t0-20\t\n"
                                          "moved\tV1\ta\t0-50\t20-70\t+20\ntrimmed\tV1\tb\t50-100\t70-90\t\n"
                                          "removed\tV1\tc\t100-150\t\t\n"));
        QCOMPARE(table.status, 3);
        QCOMPARE(run(u"compare ~/old.xml ~/new.xml --sequence 1 Cut2 --exit-code"_s).status, 0);
        QCOMPARE(run(u"compare ~/old.xml ~/new.xml --sequence 1 No"_s).status, 1);
        QCOMPARE(run(u"compare ~/old.xml"_s).status, 2);
    }

    void carrying()
    {
        const QByteArray expected =
            R"({"markers":[{"name":"incl","old":55,"new":75,"state":"carried","file":"/m/b.mov","sourceFrame":15},)"
            R"({"name":"rich","old":60,"new":80,"state":"carried","file":"/m/b.mov","sourceFrame":20},)"
            R"({"name":"gone","old":110,"state":"gone","file":"/m/c.mov","sourceFrame":10}]})";
        const auto listed = [](const CliRun &run) {
            QByteArray text = run.output;
            text.replace("in clip", "incl").replace("A <b> &amp; \xF0\x9F\x8E\xAC %41", "rich");
            return text.simplified().replace(" ", "");
        };
        QCOMPARE(listed(run(u"carry ~/old.xml ~/new.xml --sequence Cut Cut --preview --json"_s)), expected);
        const CliRun written = run(u"carry ~/old.xml ~/new.xml --sequence Cut Cut --json -o ~/out.xml"_s);
        QCOMPARE(listed(written), expected);
        QCOMPARE(written.messages, QByteArray("vantrell-cli: 2 of 3 markers added\n"));
        // Every character and element, the duration up to the end of the picture.
        const QByteArray out = textOf(u"out.xml"_s).replace("\t", "").replace("\n", "").replace("  ", "");
        QVERIFY2(out.contains(
                     "<marker><name>A &lt;b&gt; &amp;amp; \xF0\x9F\x8E\xAC %41</name><comment> &lt;CHAPTER"
                     "&gt; mind &amp; this&lt;QVCUSTOM_TAKE&gt;7&lt;_QVCUSTOM_TAKE&gt;</comment><in>80</in>"
                     "<out>90</out><color><red>1</red><green>2</green></color><pproColor>77</pproColor>"
                     "</marker></sequence>"),
                 out.constData());
        QVERIFY2(out.contains("<comment>c</comment><in>15</in><out>-1</out></marker></clipitem>"),
                 out.constData());
        // Carried again, all of it is there.
        const CliRun again = run(u"carry ~/old.xml ~/out.xml --sequence Cut Cut --json -o ~/again.xml"_s);
        QCOMPARE(listed(again), QByteArray(expected).replace("carried", "there"));
        QCOMPARE(textOf(u"again.xml"_s), textOf(u"out.xml"_s));
        QCOMPARE(run(u"carry ~/old.xml ~/new.xml"_s).status, 2);
        QCOMPARE(run(u"carry ~/old.xml ~/new.xml --preview -o ~/no.xml"_s).status, 2);
    }

    void aRepairedOldCutIsNotReplacedUnasked()
    {
        const QByteArray damaged = project(sequence("Cut", QByteArray(), plainMarker)).chopped(8);
        const QString path = m_home.addFile(u"cut off.xml"_s, damaged);
        QStringList arguments{u"carry"_s, path, m_home.path(u"new.xml"_s), u"-o"_s, path};
        const CliRun refused = runCli(arguments);
        QCOMPARE(refused.status, 1);
        QVERIFY2(refused.messages.contains("was not overwritten"), refused.messages.constData());
        QCOMPARE(textOf(u"cut off.xml"_s), damaged);
        QCOMPARE(runCli(arguments << u"--yes"_s).status, 0);
    }
};

QTEST_GUILESS_MAIN(CutsTest)
#include "tst_cuts.moc"
