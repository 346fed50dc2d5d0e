#include "interchange/NoteExporter.h"
#include "interchange/NotePreview.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/BackgroundWork.h"
#include "tests/markers/MarkerProject.h"
#include "tests/support/TemporaryHome.h"

#include <QTest>

using namespace vantrell;
using namespace Qt::StringLiterals;

namespace
{

QByteArray sequenceXml(const char *name, int timebase, bool ntsc, int startFrame, int duration,
                       const QByteArray &markers = {})
{
    const QByteArray rate = "<rate><timebase>" + QByteArray::number(timebase) + "</timebase><ntsc>" +
                            (ntsc ? "TRUE" : "FALSE") + "</ntsc></rate>";
    return QByteArray("<sequence><name>") + name + "</name><duration>" + QByteArray::number(duration) +
           "</duration>" + rate + "<timecode>" + rate + "<frame>" + QByteArray::number(startFrame) +
           "</frame></timecode><media/>" + markers + "</sequence>";
}

/// Two sequences of ten minutes from 01:00:00:00; the first has a marker at 01:00:10:00.
QByteArray projectXml()
{
    return project(
        sequenceXml("Edit", 25, false, 90000, 15000,
                    "<marker><name>A</name><comment>dark</comment><in>250</in><out>-1</out></marker>") +
        sequenceXml("Film", 24, true, 86400, 14386));
}

const QByteArray list("Timecode,Comment,Name,Scene,Color,Duration\n"
                      "01:00:10:00,dark,A,1,red,\n"
                      "01:00:20:00,bright,B,2,blue,00:00:02:00\n"
                      "02:00:00:00,far,C,3,blue,\n"
                      "soon,,D,4,,\n");

NoteSource sourceOf(const QByteArray &bytes, const NoteRoleMemory &memory,
                    const QString &path = u"notes.csv"_s)
{
    Result<NoteSource> source = NoteSource::ofText(QString::fromUtf8(bytes), memory);
    source.value().path = path;
    return source.value();
}

} // namespace

class TestNotePreview : public QObject
{
    Q_OBJECT

    TemporaryHome m_home;
    UserDefaults m_defaults{QString(), UserDefaults::Access::Volatile};

    /// "name@timecode+frames remark", with "x" in front of the rows that are checked.
    static QStringList rowsOf(const NotePreview &preview)
    {
        if (!MainThread::drainUntil([&] { return !preview.isPlanning(); }, std::chrono::seconds(40)))
            return {u"no plan"_s};
        QStringList rows;
        for (std::size_t i = 0; i < preview.notes().size(); ++i) {
            const PlannedNote &note = preview.notes()[i];
            QString row = u"%1%2@%3+%4"_s
                              .arg(preview.isChecked(i) ? u"x "_s : QString(), note.name, preview.timecode(i))
                              .arg(note.duration);
            if (const QString remark = preview.remark(i); !remark.isEmpty())
                row += u' ' + remark;
            rows.append(row);
        }
        return rows;
    }

private Q_SLOTS:
    void cleanup() { QVERIFY(BackgroundWork::waitForAll(std::chrono::seconds(20))); }

    void everySettingPlansAnew()
    {
        MarkerProject project(projectXml());
        NotePreview preview(project.document, project.editor, sourceOf(list, NoteRoleMemory(m_defaults)));
        const QString unreadable = u"@+0 “soon” is no time."_s;
        QCOMPARE(rowsOf(preview),
                 QStringList({u"A@01:00:10:00+0 Already there"_s, u"x B@01:00:20:00+50"_s,
                              u"C@02:00:00:00+0 Outside the sequence: after its last frame"_s, unreadable}));
        QCOMPARE(preview.summary(), u"1 of 4 notes will be added; 1 is already there, 1 is outside the "
                                    u"sequence, 1 is unreadable"_s);
        QCOMPARE(preview.meaning(), NoteMeaning::Record);
        QCOMPARE(preview.description(), u"Recognized as table, separated by commas, UTF-8, 4 rows"_s);

        preview.setRole(3, NoteRole::Field);
        preview.setRole(2, NoteRole::Comment); // taken from the other column
        QCOMPARE(rowsOf(preview).at(1), u"x @01:00:20:00+50 Scene: 2"_s);
        QCOMPARE(preview.notes()[1].comment, u"B"_s);
        preview.setRole(2, NoteRole::Name); // which the other column has again
        QCOMPARE(rowsOf(preview).at(1), u"x B@01:00:20:00+50 Scene: 2"_s);
        QCOMPARE(preview.notes()[1].comment, u"bright"_s);
        preview.setRole(3, NoteRole::Ignore);

        preview.setRate(NoteRate{50, false, false});
        QCOMPARE(rowsOf(preview).at(1), u"x B@01:00:20:00+50"_s);
        preview.setMeaning(NoteMeaning::First, u"01:01:00:00"_s);
        QCOMPARE(rowsOf(preview).at(1), u"x B@01:01:10:00+50"_s);
        preview.setMeaning(NoteMeaning::Offset, u"-10.."_s); // ten minutes
        QCOMPARE(rowsOf(preview).at(1), u"B@00:50:20:00+50 Outside the sequence: before its first frame"_s);
        preview.setMeaning(NoteMeaning::Offset, u"soon"_s);
        rowsOf(preview);
        QCOMPARE(preview.summary(), u"“soon” is no timecode"_s);
        QVERIFY(preview.checkedNotes().empty());
        preview.setMeaning(NoteMeaning::Record);
        preview.setRate(std::nullopt);

        // Only the markers of the target count. 10 and 20 seconds of 24 counted frames are as many there.
        preview.setSequence(2);
        QCOMPARE(rowsOf(preview).mid(0, 2), QStringList({u"x A@01:00:10:00+0"_s, u"x B@01:00:20:00+48"_s}));
    }

    /// The table's numbers of drop frame are not everywhere those of other systems.
    void otherNumbersInDropFrameAreTold()
    {
        const QByteArray rate = "<rate><timebase>30</timebase><ntsc>TRUE</ntsc></rate>";
        MarkerProject project(::project("<sequence><name>Reel</name><duration>17982</duration>" + rate +
                                        "<timecode>" + rate +
                                        "<frame>107892</frame><displayformat>DF</displayformat></timecode>"
                                        "<media/></sequence>"));
        NotePreview preview(project.document, project.editor,
                            sourceOf("Timecode,Name\n01:00:02;29,a\n01:00:03;00,b\n01:01:00;02,c\n",
                                     NoteRoleMemory(m_defaults)));
        QCOMPARE(rowsOf(preview),
                 QStringList({u"x a@01:00:02;29+0"_s, u"x b@01:00:03;02+0 Shown as 01:00:03;02"_s,
                              u"x c@01:01:00;00+0 Shown as 01:01:00;00"_s}));
        // 60.08 seconds are 1801 frames, 01:01:00;03 elsewhere.
        preview.setRate(NoteRate{25, false, false});
        QCOMPARE(rowsOf(preview).at(2), u"x c@01:01:00;01+0 Shown as 01:01:00;01"_s);
    }

    void colorsAreMapped()
    {
        MarkerProject project(projectXml());
        NotePreview preview(project.document, project.editor, sourceOf(list, NoteRoleMemory(m_defaults)));
        rowsOf(preview);
        QStringList colors;
        for (const NoteColorUse &color : preview.colors())
            colors.append(u"%1 %2 %3"_s.arg(color.text).arg(color.color).arg(color.count));
        QCOMPARE(colors, QStringList({u"red 0 1"_s, u"blue 5 2"_s}));
        preview.setColor(u"blue"_s, 7);
        rowsOf(preview);
        QCOMPARE(preview.notes()[0].color, 0);
        QCOMPARE(preview.notes()[1].color, 7);
        QCOMPARE(preview.colors()[1].color, 7);
    }

    void checksDecideWhatIsAdded()
    {
        MarkerProject project(projectXml());
        NotePreview preview(project.document, project.editor, sourceOf(list, NoteRoleMemory(m_defaults)));
        rowsOf(preview);
        preview.setChecked({0, 1, 2, 3}, true); // two of them may not be
        QCOMPARE(preview.checkedCount(), std::size_t(2));
        QCOMPARE(preview.remark(0), u"Already there; will be added again"_s);
        preview.setChecked({0, 1}, false);
        QCOMPARE(preview.summary(), u"0 of 4 notes will be added; 1 is already there, 1 is outside the "
                                    u"sequence, 1 is unreadable, 1 is not checked"_s);
        preview.setColor(u"blue"_s, 7); // the rows stay as they are checked
        rowsOf(preview);
        QCOMPARE(preview.checkedCount(), std::size_t(0));
        preview.setChecked({1}, true);

        std::vector<PlannedNote> notes = preview.checkedNotes();
        const NoteImporter importer(project.document, project.editor);
        QCOMPARE(importer.add(notes, preview.sequence()), std::size_t(1));
        QCOMPARE(project.values(u"name in out color"_s), u"A|250|-1|0\nB|500|550|7"_s);
        NotePreview again(project.document, project.editor, sourceOf(list, NoteRoleMemory(m_defaults)));
        QCOMPARE(rowsOf(again).at(1), u"B@01:00:20:00+50 Already there"_s);
    }

    void rolesAreRememberedByHeader()
    {
        MarkerProject project(projectXml());
        {
            NotePreview preview(project.document, project.editor, sourceOf(list, NoteRoleMemory(m_defaults)));
            preview.setRole(3, NoteRole::Name);
            NoteRoleMemory::remember(m_defaults, preview.list().headers, preview.choices());
        }
        const QByteArray other("timecode, COMMENT,Name,scene,color,duration\n01:00:20:00,x,B,9,,\n");
        NotePreview same(project.document, project.editor, sourceOf(other, NoteRoleMemory(m_defaults)));
        QCOMPARE(rowsOf(same), QStringList(u"x 9@01:00:20:00+0"_s));
        NotePreview different(project.document, project.editor,
                              sourceOf("Timecode,Name,Scene\n01:00:20:00,B,9\n", NoteRoleMemory(m_defaults)));
        QCOMPARE(rowsOf(different), QStringList(u"x B@01:00:20:00+0"_s));
        NoteRoleMemory::remember(m_defaults, same.list().headers, {});
        NotePreview forgotten(project.document, project.editor, sourceOf(other, NoteRoleMemory(m_defaults)));
        QCOMPARE(rowsOf(forgotten), QStringList(u"x B@01:00:20:00+0"_s));
    }

    void theListNamesItsSequence()
    {
        MarkerProject project(projectXml());
        NotePreview preview(project.document, project.editor,
                            sourceOf(list, NoteRoleMemory(m_defaults), u"/a/film notes.csv"_s));
        QCOMPARE(preview.sequence(), std::int64_t(2));
        QCOMPARE(preview.startTimecode(), u"01:00:00:00"_s);
    }

    void droppedFiles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("isNotes");
        QTest::newRow("table") << u"a.csv"_s << list << true;
        QTest::newRow("UTF-16") << u"a.txt"_s << QByteArray("\xff\xfe\x31\x00\x09\x00", 6) << true;
        QTest::newRow("Avid markers") << u"a.xml"_s << QByteArray("<Avid:StreamItems/>") << true;
        QTest::newRow("project") << u"a.xml"_s << projectXml() << false;
        QTest::newRow("project under another name") << u"a.txt"_s << projectXml() << false;
        QTest::newRow("other XML") << u"a.xml"_s << QByteArray("<svg/>") << false;
        QTest::newRow("Final Cut Pro project") << u"a.FCP"_s << list << false;
        QTest::newRow("media") << u"a.mov"_s
                               << QByteArray("\0\0\0\x14"
                                             "ftypqt  \0\0\0\0\x01\x02",
                                             18)
                               << false;
    }
    void droppedFiles()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QTEST(isNoteFile(m_home.addFile(name, content)), "isNotes");
        QVERIFY(!isNoteFile(m_home.path(u"missing.txt"_s)) && !isNoteFile(m_home.path()));
    }

    void exportTakesTheMarkersAndColumnsWanted()
    {
        const auto marker = [](const char *name, const char *flag, const char *field) {
            return QByteArray("<marker><name>") + name + "</name><comment>" + field +
                   "</comment><in>5</in><out>-1" + "</out>" + flag + "</marker>";
        };
        MarkerProject project(vantrell::project(sequenceXml(
            "Edit", 25, false, 0, 100,
            marker("A", "", "") + marker("B", "<chapter>TRUE</chapter>", "") + marker("C", "", ""))));
        const NoteExporter exporter(project.document);
        RowList markers = exporter.markers(RowList{project.marker(0), project.marker(1)}, {});
        QCOMPARE(exporter.list(u"csv"_s, markers, {u"In"_s, u"Name"_s}).text,
                 u"In,Name\r\n00:00:00:05,A\r\n00:00:00:05,B\r\n"_s);
        for (const RowRecordPtr &row : project.document.markerArray())
            row->set(MarkerKey::chapter, row->get(MarkerKey::name) == u"B"_s ? 1 : 0);
        markers = exporter.markers({.flag = NoteExporter::Flag::Chapter});
        QCOMPARE(exporter.list(u"tsv"_s, markers, {u"Name"_s}).text, u"Name\nB\n"_s);
    }
};

QTEST_GUILESS_MAIN(TestNotePreview)
#include "tst_notepreview.moc"
