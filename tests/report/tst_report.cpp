#include "document/MyDocument.h"
#include "effects/EffectColumns.h"
#include "effects/EffectKeys.h"
#include "markers/MarkerColumns.h"
#include "markers/MarkerPresets.h"
#include "media/MediaColumns.h"
#include "media/MediaKeys.h"
#include "report/PrintHelper.h"
#include "report/ReportGenerator.h"
#include "report/ReportWriter.h"
#include "support/settings/UserDefaults.h"
#include "tests/support/ScriptedDocumentInterface.h"
#include "tests/support/TemporaryHome.h"

#include <QBuffer>
#include <QRegularExpression>
#include <QTest>

#include <csignal>
#include <malloc.h>

using namespace vantrell;
using namespace Qt::StringLiterals;

namespace
{

/// A document without a file behind it, and its report. The folder of pictures lacks "sequence" and
/// "marker-pink".
struct Report {
    Report()
    {
        document.setFileURL(QUrl::fromLocalFile(u"/projects/Night Shift.v2.xml"_s));
        for (const char *name : {"marker-red", "marker-green", "marker-blue", "clip"})
            home.addFile(u"images/%1.png"_s.arg(QLatin1String(name)), name);
    }

    void show(Tab tab, const Columns &columns, const RowList &rows)
    {
        document.rowView(tab).show(rows);
        generator.setPrintTable(tab, columns);
    }

    void selectAllColumns()
    {
        for (std::size_t i = 0; i < generator.printColumnArray().size(); ++i)
            generator.setColumnSelected(i, true);
    }

    /// The file of that name with its lines joined and the folder of the pictures put in.
    QString expected(const QString &name) const
    {
        const QString folder = qEnvironmentVariable("VANTRELL_SOURCE_DIR") + u"/tests/report/expected/"_s;
        const QString text = QString::fromUtf8(contentOf(folder + name));
        return QString(text).remove(u'\n').replace(u"@IMAGES@"_s, home.path(u"images"_s));
    }

    QByteArray csv() const
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        return generator.writeCSV(buffer) ? buffer.data() : QByteArray();
    }

    QByteArray page() const
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        return generator.writePage(buffer) ? buffer.data() : QByteArray();
    }

    TemporaryHome home;
    ScriptedDocumentInterface world;
    MyDocument document{world, {}};
    UserDefaults defaults{QString(), UserDefaults::Access::Volatile};
    MarkerPresets presets{document, &defaults};
    ReportGenerator generator{document, presets, &defaults, home.path(u"images"_s)};
};

RowRecordPtr record(std::initializer_list<std::pair<const char16_t *, RecordValue>> values)
{
    auto row = std::make_shared<RowRecord>();
    for (const auto &[key, value] : values)
        row->set(RecordKey(QString::fromUtf16(key)), value);
    return row;
}

/// A marker in a sequence of 25 frames a second that starts at one hour.
RowRecordPtr marker(std::initializer_list<std::pair<const char16_t *, RecordValue>> values)
{
    RowRecordPtr row = record(values);
    row->set(TimecodeKey::timebase, 25);
    row->set(TimecodeKey::startFrame, 90000);
    return row;
}

RecordValue text(const char16_t *value)
{
    return QString::fromUtf16(value);
}

RecordValue number(std::int64_t value)
{
    return value;
}

RowList markers()
{
    return {
        marker({{u"color", number(3)},
                {u"name", text(u"Hero's shot")},
                {u"comment", text(u"Push in")},
                {u"in", text(u"25")},
                {u"out", text(u"50")},
                {u"sequence", XmlNode()},
                {u"sequenceName", text(u"Reel 1")},
                {u"chapter", number(1)},
                {u"QVCUSTOM_TAKE", text(u"3B")},
                {u"parent", text(u"Quay")},
                {u"parentType", text(u"clip")}}),
        marker({{u"color", number(0)},
                {u"name", text(u"A & <b>B</b>")},
                {u"in", text(u"0")},
                {u"out", text(u"-1")},
                {u"sequence", XmlNode()},
                {u"sequenceName", text(u"Reel 1")},
                {u"clip", XmlNode()},
                {u"clipName", text(u"Quay")},
                {u"compression", number(2)},
                {u"scoring", text(u"1")},
                {u"parent", text(u"Reel 1")},
                {u"parentType", text(u"sequence")}}),
        marker({{u"color", number(9)}, {u"sequence", XmlNode()}}),
        marker({{u"color", number(7)}, {u"name", text(u"")}, {u"in", text(u"100")}, {u"out", text(u"-2")}}),
        marker({{u"color", number(5)},
                {u"name", text(u"Late")},
                {u"in", text(u"4294967297")},
                {u"out", text(u"4294967295")},
                {u"compression", true}}),
    };
}

RowRecordPtr named(const char16_t *name, std::int64_t color = 0)
{
    return marker({{u"color", number(color)}, {u"name", text(name)}});
}

/// Counts what is written and keeps nothing; notes how far the heap has grown meanwhile.
class CountingDevice : public QIODevice
{
public:
    CountingDevice() { open(QIODevice::WriteOnly | QIODevice::Unbuffered); }
    bool isSequential() const override { return true; }

    qint64 bytes = 0;
    qint64 largestWrite = 0;
    qint64 heapGrowth = 0; // bytes

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *, qint64 size) override
    {
        bytes += size;
        largestWrite = std::max(largestWrite, size);
        heapGrowth = std::max(heapGrowth, qint64(::mallinfo2().uordblks) - m_heapBefore);
        return size;
    }

private:
    const qint64 m_heapBefore = qint64(::mallinfo2().uordblks);
};

} // namespace

class ReportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void markerTable()
    {
        Report report;
        Columns columns = markerColumns;
        columns.push_back({u"QVCUSTOM_TAKE"_s, u"Take"_s});
        columns.push_back({u"parent"_s, u"Parent"_s});
        report.show(Tab::Markers, columns, markers());
        report.selectAllColumns();
        QCOMPARE(report.generator.generateHTMLForPrinting(), report.expected(u"markers.html"_s));
    }

    void effectTable()
    {
        Report report;
        report.show(Tab::Effects, effectColumns,
                    {record({{u"enabled", number(1)},
                             {u"effectType", text(u"Filter")},
                             {u"name", text(u"Blur")},
                             {u"mediaType", text(u"Video")},
                             {u"sequence", text(u"Reel 1")},
                             {u"clip", text(u"Quay")}}),
                     record({{u"enabled", number(0)}, {u"effectType", text(u"Generator")}})});
        report.selectAllColumns();
        QCOMPARE(report.generator.generateHTMLForPrinting(), report.expected(u"effects.html"_s));
    }

    void mediaTable()
    {
        Report report;
        report.show(Tab::Media, mediaColumns,
                    {record({{u"filename", text(u"Quay.mov")},
                             {u"directory", text(u"/Volumes/Media")},
                             {u"usageCount", number(3)},
                             {u"filetype", text(u"Movie Clip")},
                             {u"modDate", QDateTime({2026, 11, 21}, {2, 14}, Qt::UTC)},
                             {u"filesize", number(5368709120)}}),
                     record({{u"missing", true}})});
        report.selectAllColumns();
        QCOMPARE(report.generator.generateHTMLForPrinting(), report.expected(u"media.html"_s));
    }

    /// The first three titled columns in the table's order, and the selected rows in the table's order.
    void columnsAndRows()
    {
        Report report;
        Columns columns = markerColumns;
        std::swap(columns[1], columns[7]); // name and chapter
        report.show(Tab::Markers, columns, {named(u"a"), named(u"b"), named(u"c"), named(u"d"), named(u"e")});
        report.generator.setColumnSelected(1, false);
        report.generator.setColumnSelected(2, false);
        report.generator.setColumnSelected(6, true);
        report.generator.setColumnSelected(99, true);
        report.world.selectRows(Tab::Markers, {3, 1, 7});
        const QString image =
            u"<img src=\"file://%1/marker-red.png\" /> "_s.arg(report.home.path(u"images"_s));
        QCOMPARE(report.generator.generateHTMLForPrinting(false),
                 u"<h1>Night Shift.v2</h1><h2>Markers</h2><table><thead><th>Chapter</th><th>Name</th></thead>"
                 "<tbody><tr><td>No</td><td>"_s +
                     image + u"b</td></tr><tr><td>No</td><td>"_s + image + u"d</td></tr></tbody></table>"_s);
    }

    void noRows()
    {
        Report report;
        report.show(Tab::Media, mediaColumns, {});
        QVERIFY(report.generator.generateHTMLForPrinting().isNull());
        QVERIFY(report.csv().isEmpty() && report.page().isEmpty());
        report.show(Tab::Media, mediaColumns, {record({})});
        report.world.selectRows(Tab::Media, {1});
        QVERIFY(report.generator.generateHTMLForPrinting().isNull());
        // Another tab shows its rows now.
        report.world.selectRows(Tab::Media, {});
        report.document.rowView(Tab::Markers).show({named(u"a")});
        QVERIFY(report.generator.generateHTMLForPrinting().isNull());
    }

    void titleAndLabels()
    {
        Report report;
        report.show(Tab::Markers, markerColumns, {named(u"a", 3), named(u"b", 0), named(u"c", 7)});
        report.generator.setColumnSelected(1, false);
        report.generator.setColumnSelected(2, false);
        const auto body = [&report] {
            const QString text = report.generator.generateHTMLForPrinting(false);
            return text.section(u"<h2>"_s, 0, 0) + QString(text.section(u"<tbody>"_s, 1))
                                                       .remove(QRegularExpression(u"<[^>]*>"_s))
                                                       .simplified();
        };
        const auto store = [&report](const char *key, const QVariant &value) {
            report.defaults.setValue(QString::fromLatin1(key), value);
        };
        QCOMPARE(body(), u"<h1>Night Shift.v2</h1>a bc"_s);
        store("projectTitle", u"It's 50%"_s);
        store("printColorLabels", 1);
        QCOMPARE(body(), u"<h1>It's 50%</h1>a (Green) b (Red)c (Pink)"_s);
        report.presets.showMarkerPresetDialog();
        report.presets.setObjectValue(u"Chapter"_s, u"label"_s, 3);
        report.presets.setObjectValue(u""_s, u"label"_s, 0);
        QVERIFY(report.presets.addMarkerPreset(u"Show"_s));
        store("projectTitle", u""_s);
        QCOMPARE(body(), u"<h1></h1>a (Chapter) bc (Pink)"_s);
        report.home.addFile(u".local/share/Orvandel/Halvex/Vantrell/Marker Presets/Part.markerpreset"_s,
                            "<plist><dict><key>Red</key><string>Fix</string></dict></plist>");
        store("selectedPreset", u"Part"_s);
        report.presets.refreshMarkerPresets();
        QCOMPARE(body(), u"<h1></h1>a (Green) b (Fix)c (Pink)"_s);
        store("printColorLabels", 2);
        QCOMPARE(body(), u"<h1></h1>a bc"_s);
    }

    void consumerOfTheBody()
    {
        Report report;
        QStringList titles;
        report.generator.setBodyConsumer([&titles](const QString &body) {
            QVERIFY(body.startsWith(u"<h1>"_s));
            titles.append(body.section(u"</h1>"_s, 0, 0).mid(4) + u':' +
                          QString::number(body.count(u"<th>"_s)));
        });
        report.defaults.setValue(u"projectTitle"_s, u"A"_s); // nothing to show yet
        report.show(Tab::Effects, effectColumns, {record({})});
        report.defaults.setValue(u"projectTitle"_s, u"B"_s);
        report.defaults.setValue(u"projectTitle"_s, u"B"_s);
        report.defaults.setValue(u"selectedPreset"_s, u"None"_s);
        report.generator.setColumnSelected(5, true);
        report.defaults.setValue(u"printColorLabels"_s, 1);
        report.generator.setBodyConsumer(nullptr);
        report.defaults.setValue(u"projectTitle"_s, u"C"_s);
        QCOMPARE(titles, QStringList({u"B:3"_s, u"B:4"_s, u"B:4"_s}));
    }

    void bodyScript()
    {
        const struct {
            const char16_t *body;
            const char16_t *script;
        } rows[] = {
            {u"", u"document.body.innerHTML = '';"},
            {u"Hero's 'shot'", u"document.body.innerHTML = 'Hero\\'s \\'shot\\'';"},
            {u"a\nb\r\nc\td", u"document.body.innerHTML = 'abcd';"},
            {u"C:\\new \\'", u"document.body.innerHTML = 'C:\\new \\\\'';"},
            {u"100 %@ %1 \"q\"", u"document.body.innerHTML = '100 %@ %1 \"q\"';"},
        };
        for (const auto &row : rows)
            QCOMPARE(ReportWriter::bodyScript(QString::fromUtf16(row.body)), QString::fromUtf16(row.script));
    }

    void csv()
    {
        Report report;
        report.defaults.setValue(u"printColorLabels"_s, 1);
        report.show(Tab::Markers,
                    {{u"name"_s, u"Name, first"_s},
                     {u"comment"_s, u"Com\"ment"_s},
                     *findColumn(markerColumns, u"clip"_s)},
                    {marker({{u"name", text(u"=1+1")}, {u"comment", text(u"a,b")}}),
                     marker({{u"comment", text(u"\"q\"\r\nnext")},
                             {u"clip", XmlNode()},
                             {u"clipName", text(u" Küste\r")}}),
                     marker({{u"name", text(u"line\nfeed")}, {u"comment", text(u"<b>\t'")}})});
        QCOMPARE(report.csv(), "\xEF\xBB\xBF\"Name, first\",\"Com\"\"ment\",Clip\r\n"
                               "=1+1 (Red),\"a,b\",\r\n"
                               "(Red),\"\"\"q\"\"\r\nnext\",\" K\xC3\xBCste\r\"\r\n"
                               "\"line\nfeed (Red)\",<b>\t',\r\n");
        report.world.selectRows(Tab::Markers, {0});
        report.generator.setColumnSelected(0, false);
        QCOMPARE(report.csv(), "\xEF\xBB\xBF\"Com\"\"ment\",Clip\r\n\"a,b\",\r\n");
    }

    void page()
    {
        Report report;
        report.defaults.setValue(u"projectTitle"_s, u"<i>%1"_s);
        report.show(Tab::Markers, markerColumns, {named(u"<script>\"A\" & B"), named(u"c"), named(u"d", 7)});
        const QByteArray page = report.page();
        QVERIFY(page.startsWith("<!DOCTYPE html>") && page.contains("<h1>&lt;i&gt;%1</h1><h2>Markers</h2>"));
        QVERIFY(
            page.contains("<tr><td><span class=\"marker-red\"></span> &lt;script&gt;&quot;A&quot; &amp; "
                          "B</td><td>Unknown</td>"
                          "<td>01:00:00:00</td></tr>\n<tr><td><span class=\"marker-red\"></span> c</td>"));
        QVERIFY(page.contains("<tr><td>d</td>"));
        QCOMPARE(page.count("base64," + QByteArray("marker-red").toBase64()), 1);
        QVERIFY(!page.contains("file:"));
    }

    /// A long report is written as it is made: the bytes are those of the rows, and the memory does not
    /// grow with them.
    void longReport()
    {
        Report report;
        RowList rows(1000, named(u"a"));
        report.show(Tab::Markers, markerColumns, rows);
        CountingDevice thousand;
        QVERIFY(report.generator.writeHTML(thousand, true));
        rows.resize(100000, rows.front());
        report.document.rowView(Tab::Markers).show(rows);
        CountingDevice all;
        QVERIFY(report.generator.writeHTML(all, true));
        const QByteArray row = "<tr><td><img src=\"file://" + report.home.path(u"images"_s).toUtf8() +
                               "/marker-red.png\" /> a</td><td>Unknown</td><td>01:00:00:00</td></tr>";
        QCOMPARE(all.bytes - thousand.bytes, 99000 * row.size());
        constexpr qint64 block = 64 * 1024;
        QVERIFY(all.largestWrite < 2 * block);
        QVERIFY2(all.heapGrowth < 8 * block, qPrintable(QString::number(all.heapGrowth)));
    }

    /// Also once the helper has ended.
    void aCancelledPdfLeavesTheOldFile()
    {
        const TemporaryHome home;
        const QString output = home.addFile(u"report.pdf"_s, "old");
        const QString pid = home.path(u"pid"_s);
        QFile helper(
            home.addFile(u"helper"_s, "#!/bin/sh\necho new >\"$6\"; echo $$ >" + QFile::encodeName(pid)));
        QVERIFY(helper.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        const auto write = [&](bool isCancelled) {
            const auto html = [](QIODevice &) { return Result<void>(); };
            return PrintHelper::writePDF(helper.fileName(), html, QString(), output, std::nullopt, [&] {
                const int process = contentOf(pid).simplified().toInt();
                return isCancelled && process > 0 && ::kill(process, 0) != 0;
            });
        };
        QVERIFY(!write(true));
        QCOMPARE(contentOf(output), QByteArray("old"));
        QVERIFY(write(false));
        QCOMPARE(contentOf(output), QByteArray("new\n"));
    }

    void unwritableDevice()
    {
        Report report;
        report.show(Tab::Markers, markerColumns, RowList(10000, named(u"a")));
        QFile full(u"/dev/full"_s);
        QVERIFY(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        const Result<void> written = report.generator.writeHTML(full, true);
        QVERIFY(!written && !written.message().isEmpty());
    }
};

QTEST_GUILESS_MAIN(ReportTest)
#include "tst_report.moc"
