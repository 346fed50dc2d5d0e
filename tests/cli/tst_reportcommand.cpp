#include "tests/support/CliRun.h"
#include "tests/support/TemporaryHome.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace vantrell;
using namespace Qt::StringLiterals;

namespace
{

const QByteArray
    head("<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01//EN\" \"http://www.w3.org/TR/html4/strict.dtd\">"
         "<html><head><style>body {margin: 0 0 0 0; padding: 0; font: 14px 'Lucida Grande', Geneva, Arial, "
         "Verdana, sans-serif; color: #000;} table {width:100%;} th {text-align:left;} td {padding:7px;}"
         "</style></head><body>");

QByteArray marker(const char *name, const char *in, const char *out, const char *more = "")
{
    return QByteArray("<marker><name>") + name + "</name><in>" + in + "</in><out>" + out + "</out>" + more +
           "</marker>";
}

} // namespace

/// Runs a copy of the program that is installed in a folder of its own.
class ReportCommandTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

    /// "~" stands for the home, "__" for a space.
    CliRun run(const char *arguments) const
    {
        QStringList list{u"report"_s};
        for (const QString &argument : QString::fromUtf8(arguments).split(u' '))
            list.append(QString(argument).replace(u'~', m_home.path()).replace(u"__"_s, u" "_s));
        return runProgram(m_home.path(u"bin/vantrell-cli"_s), list);
    }

    void install(const QString &path, const QByteArray &script) const
    {
        QFile file(m_home.addFile(path, script));
        QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

private Q_SLOTS:
    void initTestCase()
    {
        QDir home(m_home.path());
        QVERIFY(home.mkpath(u"bin"_s) && home.mkpath(u"tmp"_s));
        QVERIFY(QFile::copy(qEnvironmentVariable("VANTRELL_BIN_DIR") + u"/vantrell-cli"_s,
                            m_home.path(u"bin/vantrell-cli"_s)));
        qputenv("TMPDIR", QFile::encodeName(m_home.path(u"tmp"_s)));
        for (const char *name : {"red", "blue"})
            m_home.addFile(u"share/vantrell/report-images/marker-%1.png"_s.arg(QLatin1String(name)), "png");
        m_home.addFile(
            u"Night Shift.xml"_s,
            "<xmeml><sequence><name>Reel</name><timecode><rate><timebase>25</timebase></rate></timecode>"
            "<media><video><track><clipitem><name>Quay</name><file "
            "id=\"f\"><pathurl>file:///none/q.mov</pathurl></file>"
            "<filter><enabled>FALSE</enabled><effect><name>Opacity</name></effect></filter>"
            "</clipitem></track></video></media>" +
                marker("A", "25", "-1") + marker("It's", "50", "75", "<comment>cut</comment>") +
                marker("C", "100", "110",
                       "<color><alpha>0</alpha><red>0</red><green>128</green><blue>255</blue></color>") +
                "</sequence></xmeml>");
        m_home.addFile(u"empty.xml"_s, "<xmeml><sequence/></xmeml>");
        // Print settings of the window do not apply to the command line.
        m_home.addFile(u".config/com.orvandel.vantrell.plist"_s,
                       "<plist><dict><key>projectTitle</key><string>X</string>"
                       "<key>printColorLabels</key><integer>1</integer></dict></plist>");
    }

    void printed()
    {
        const QByteArray images = m_home.path(u"share/vantrell/report-images/"_s).toUtf8();
        const QByteArray red = "<img src=\"file://" + images + "marker-red.png\" /> ";
        const QByteArray blue = "<img src=\"file://" + images + "marker-blue.png\" /> ";
        const struct {
            const char *arguments;
            QByteArray output;
        } rows[] = {
            {"~/Night__Shift.xml --tab markers -o -",
             head +
                 "<h1>Night Shift</h1><h2>Markers</h2><table><thead><th>Name</th><th>Comment</th>"
                 "<th>In</th></thead><tbody><tr><td>" +
                 red + "A</td><td>Unknown</td><td>00:00:01:00</td></tr><tr><td>" + red +
                 "It's</td><td>cut</td><td>00:00:02:00</td></tr><tr><td>" + blue +
                 "C</td><td>Unknown</td><td>00:00:04:00</td></tr></tbody></table></body></html>"},
            {"~/Night__Shift.xml --tab markers --rows 2,0,2 --columns clip,out,sequence,name,QVCUSTOM_A "
             "--title It's__50% --print-color-labels --body -o -",
             "<h1>It's 50%</h1><h2>Markers</h2><table><thead><th>Name</th><th>Duration</th><th>Sequence</th>"
             "<th>Clip</th><th>QVCUSTOM_A</th></thead><tbody><tr><td>" +
                 red +
                 "A (Red)</td><td>00:00:00:00</td><td>Reel</td><td>(null)</td><td>Unknown</td></tr><tr><td>" +
                 blue +
                 "C (Blue)</td><td>00:00:00:10</td><td>Reel</td><td>(null)</td><td>Unknown</td></tr>"
                 "</tbody></table>"},
            {"--tab effects --columns enabled,name,clip,sequence --title  --body -o - ~/Night__Shift.xml",
             "<h1></h1><h2>Effects</h2><table><thead><th>Enabled</th><th>Name</th><th>Clip</th><th>Sequence</"
             "th>"
             "</thead><tbody><tr><td>No</td><td>Opacity</td><td>Quay</td><td>Reel</td></tr></tbody></table>"},
            {"~/Night__Shift.xml --tab media --rows 0 --columns filename,usageCount,missing,modDate --body "
             "-o -",
             "<h1>Night Shift</h1><h2>Media</h2><table><thead><th>Name</th><th>Date Modified</th>"
             "<th>Usage</th><th>Missing</th></thead><tbody><tr><td>q.mov</td><td>Unknown</td><td>1</td>"
             "<td>Yes</td></tr></tbody></table>"},
        };
        for (const auto &row : rows) {
            const CliRun result = run(row.arguments);
            QCOMPARE(result.output, row.output);
            QCOMPARE(result.messages, QByteArray());
            QCOMPARE(result.status, 0);
        }
        QCOMPARE(run("~/Night__Shift.xml --tab markers -o ~/out.html").output, QByteArray());
        QCOMPARE(contentOf(m_home.path(u"out.html"_s)), rows[0].output);
    }

    void refused()
    {
        const struct {
            int status;
            const char *arguments;
        } rows[] = {
            {1, "~/missing.xml --tab markers -o ~/never.html"},
            {1, "~/empty.xml --tab markers -o ~/never.html"},
            {1, "~/Night__Shift.xml --tab markers --rows 0,3 -o ~/never.html"},
            {1, "~/Night__Shift.xml --tab media --rows -1 -o ~/never.html"},
            {1, "~/Night__Shift.xml --tab markers -o ~/missing/out.html"},
            {1, "~/Night__Shift.xml --tab markers -o /dev/full"},
            {1, "~/Night__Shift.xml --tab markers -o ~/never.pdf"},
            {2, "~/Night__Shift.xml -o ~/never.html"},
            {2, "~/Night__Shift.xml --tab markers"},
            {2, "~/Night__Shift.xml --tab clips -o ~/never.html"},
            {2, "~/Night__Shift.xml --tab markers --columns color -o ~/never.html"},
            {2, "~/Night__Shift.xml --tab media --columns filename,QVCUSTOM_A -o ~/never.html"},
            {2, "~/Night__Shift.xml --tab markers --columns  -o ~/never.html"},
            {2, "~/Night__Shift.xml --tab markers --rows 0,a -o ~/never.html"},
            {2, "~/Night__Shift.xml --tab markers --rows  -o ~/never.html"},
        };
        for (const auto &row : rows) {
            const CliRun result = run(row.arguments);
            QVERIFY2(result.status == row.status, row.arguments);
            QVERIFY2(result.output.isEmpty() && !result.messages.isEmpty(), row.arguments);
        }
        QVERIFY(!QFile::exists(m_home.path(u"never.html"_s)) && !QFile::exists(m_home.path(u"never.pdf"_s)));
        QVERIFY(run(rows[6].arguments).messages.contains("\"vantrell-print\""));
    }

    void pdf()
    {
        const char *const call = "~/Night__Shift.xml --tab effects --columns name --body -o ~/out.PDF";
        install(u"libexec/vantrell/vantrell-print-pdf"_s,
                "#!/bin/sh\n[ $# = 6 ] && [ \"$1 $3 $5\" = '--html --images -o' ] && [ ! -s \"$6\" ] &&\n"
                "{ printf '%s:' \"$4\" && cat \"$2\" - && echo a warning >&2; } >\"$6\"\n");
        const CliRun done = run(call);
        QCOMPARE(done.messages, QByteArray());
        QVERIFY(done.status == 0 && done.output.isEmpty());
        const QByteArray pdf =
            m_home.path(u"share/vantrell/report-images"_s).toUtf8() +
            ":<h1>Night Shift</h1><h2>Effects</h2><table><thead><th>Name</th></thead><tbody>"
            "<tr><td>Opacity</td></tr></tbody></table>";
        QCOMPARE(contentOf(m_home.path(u"out.PDF"_s)), pdf);
        // The one next to the program takes precedence.
        install(u"bin/vantrell-print-pdf"_s, "#!/bin/sh\necho half >\"$6\"; echo No page. >&2; exit 1\n");
        const CliRun failed = run(call);
        QCOMPARE(failed.messages, "vantrell-cli: No page.\n");
        QCOMPARE(failed.status, 1);
        install(u"bin/vantrell-print-pdf"_s, "#!/bin/sh\n:\n");
        QCOMPARE(run(call).status, 1);
        QCOMPARE(contentOf(m_home.path(u"out.PDF"_s)), pdf);
        QVERIFY(QDir(m_home.path(u"tmp"_s)).isEmpty());
    }
};

QTEST_GUILESS_MAIN(ReportCommandTest)
#include "tst_reportcommand.moc"
