#include "WindowTest.h"

#include "interchange/NotePreview.h"
#include "interchange/widgets/ExportNotesSheet.h"
#include "interchange/widgets/NotePreviewModel.h"
#include "interchange/widgets/NotePreviewSheet.h"
#include "interchange/widgets/NoteStrip.h"
#include "markers/MarkerKeys.h"
#include "support/alerts/QVAlert.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/BackgroundWork.h"
#include "support/widgets/WindowAlertPresenter.h"
#include "table/widgets/QVTableView.h"
#include "tests/support/TemporaryHome.h"
#include "workbench/Workbench.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QStringEncoder>
#include <QTest>

using namespace vantrell;
using namespace Qt::StringLiterals;

namespace
{

/// Ten minutes at 25 frames from 01:00:00:00, and at 23.976 frames.
const QByteArray
    projectXml("<xmeml version=\"5\"><project><name>P</name><children>"
               "<sequence id=\"a\"><uuid>A</uuid><name>Edit</name><duration>15000</duration>"
               "<rate><timebase>25</timebase><ntsc>FALSE</ntsc></rate><timecode><rate><timebase>25</timebase>"
               "<ntsc>FALSE</ntsc></rate><frame>90000</frame></timecode><media/></sequence>"
               "<sequence id=\"b\"><uuid>B</uuid><name>Film</name><duration>14386</duration>"
               "<rate><timebase>24</timebase><ntsc>TRUE</ntsc></rate><timecode><rate><timebase>24</timebase>"
               "<ntsc>TRUE</ntsc></rate><frame>86400</frame></timecode><media/></sequence>"
               "</children></project></xmeml>");

QByteArray avidXmlAttribute(const char *name, const char *kind, const char *value)
{
    return QByteArray("<ListElem><AvProp name=\"OMFI:ATTB:Kind\">1</AvProp><AvProp name=\"OMFI:ATTB:Name\">"
                      "_ATN_CRM_") +
           name + "</AvProp><AvProp name=\"OMFI:ATTB:" + kind + "\">" + value + "</AvProp></ListElem>";
}

template <typename Sheet>
Sheet *sheetOf(const DocumentWindow &window)
{
    for (Sheet *const sheet : window.findChildren<Sheet *>()) {
        if (sheet->isVisible())
            return sheet;
    }
    return nullptr;
}

void clickButton(const QWidget &sheet, const QString &title)
{
    for (QPushButton *const button : sheet.findChildren<QPushButton *>()) {
        if (button->text().remove(u'&') == title) {
            button->click();
            return;
        }
    }
    qFatal("The sheet has no such button.");
}

/// Chooses an item as the user does.
void choose(QComboBox *popUp, const QString &item)
{
    const int index = popUp->findText(item);
    if (index < 0)
        qFatal("There is no item %s.", qPrintable(item));
    popUp->setCurrentIndex(index);
    Q_EMIT popUp->activated(index);
}

/// The pop-up whose items include that one.
QComboBox *popUpWith(const QWidget &sheet, const QString &item)
{
    for (QComboBox *const popUp : sheet.findChildren<QComboBox *>()) {
        if (popUp->findText(item) >= 0)
            return popUp;
    }
    return nullptr;
}

} // namespace

class NotesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<TemporaryHome>();
        m_defaults = std::make_unique<UserDefaults>(m_home->path(u"test.plist"_s));
        QVAlert::setPresenter(std::make_shared<WindowAlertPresenter>(*m_defaults));
        QVLog::createNewLog(u"test"_s, true);
        m_window = new DocumentWindow(*m_defaults);
        m_window->show();
        m_window->open(m_home->addFile(u"project.xml"_s, projectXml));
        QTRY_COMPARE_WITH_TIMEOUT(m_window->state(), DocumentWindow::State::Ready, 40000);
    }
    void cleanup()
    {
        delete m_window;
        QVAlert::closeAll();
        QVERIFY(BackgroundWork::waitForAll(std::chrono::seconds(20)));
        QVAlert::setPresenter(nullptr);
        QVLog::willTerminate();
        m_defaults.reset();
        m_home.reset();
    }

    void everyShapeIsImported_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("markers"); // name, comment, in and out
        const auto row = [](const char *name, const QByteArray &content, const QString &markers) {
            QTest::newRow(name) << QString::fromLatin1(name) << content << markers;
        };
        row("avid.txt",
            "kim\t01:00:10:00\tV1\tred\tfive\rkim\t01:00:11:00\tV1\tcyan\tsix\t10\r\n"
            "kim\t01:00:12:00\tV1\tgreen\teight\t1\tN\t#FF8000\n",
            u"/five 250--1, /six 275-285, N/eight 300-301"_s);
        row("avid.xml",
            "<?xml version=\"1.0\"?><Avid:StreamItems xmlns:Avid=\"x\"><List>" +
                avidXmlAttribute("COM", "StringAttribute", "a &lt;b&gt;") +
                avidXmlAttribute("TC", "StringAttribute", "01:00:00:10") +
                avidXmlAttribute("LENGTH", "IntAttribute", "5") + "</List></Avid:StreamItems>",
            u"/a <b> 10-15"_s);
        // 300 and 15 frames of 29.97 are 10.01 and 0.5005 seconds.
        QStringEncoder utf16(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
        row("premiere.csv",
            utf16.encode(u"Markername\tBeschreibung\tIn\tOut\tDauer\tMarkertyp\n"
                         "Ä\tx\t00;00;10;00\t00;00;10;15\t00;00;00;15\tKommentar\n"),
            u"Ä/x 250-263"_s);
        row("audition.csv",
            "Name\tStart\tDuration\tTime Format\tType\tDescription\n"
            "M 1\t00:00:05;00\t00:00:00;00\t59.94 fps drop\tCue\tnote\n",
            u"M 1/note 125--1"_s);
        row("resolve.edl",
            "TITLE: Cut\nFCM: NON-DROP FRAME\n\n"
            "001  001      V     C        01:00:10:05 01:00:10:06 01:00:10:05 01:00:10:06  \n"
            "see this |C:ResolveColorBlue |M:Name |D:12\n",
            u"Name/see this 255-267"_s);
        row("locators.edl", "TITLE: Cut\n* LOC: 01:00:10:05 RED     some text\n", u"some text/ 255--1"_s);
        row("session.txt",
            "SESSION NAME:\tMix\rSESSION START TIMECODE:\t01:00:00:00\rTIMECODE FORMAT:\t25 Frame\r\r"
            "M A R K E R S  L I S T I N G\r#   \tLOCATION     \tTIME REFERENCE    \tUNITS    \tNAME     "
            "\tCOMMENTS\r1   \t01:00:02:12  \t120120            \tSamples  \tCaf\x8e    \tA \r",
            u"Café/A 62--1"_s);
        row("review.csv",
            "\"Comment\",\"Commenter\",\"Timecode In\",\"Timecode Out\"\n"
            "\"She says \"\"no\"\", twice\nhere\",Kim,00:00:10:00,00:00:11:00\n",
            u"/She says \"no\", twice\nhere 250-275"_s);
        row("chapters.txt", "My film\n00:00 Intro\n1:30 Title\n", u"Intro/ 0--1, Title/ 2250--1"_s);
        row("nested.fcpxml",
            "<?xml version=\"1.0\"?><fcpxml><resources><format id=\"r1\" "
            "frameDuration=\"1/25s\"/></resources>"
            "<library><event><project name=\"Edit\"><sequence format=\"r1\" tcStart=\"3600s\"><spine>"
            "<asset-clip offset=\"3600s\" start=\"100s\" duration=\"10s\">"
            "<marker start=\"102s\" duration=\"2/25s\" value=\"A\" note=\"n\"/>"
            "<asset-clip lane=\"1\" offset=\"109s\" start=\"0s\" duration=\"4s\">"
            "<chapter-marker start=\"2s\" value=\"B\"/></asset-clip></asset-clip>"
            "</spine></sequence></project></event></library></fcpxml>",
            u"A/n 50-52, B/ 275--1"_s);
        row("seconds.csv", "Zeit (s);Kommentar\n12,5;\x84Sch\xf6n\x93\n", u"/„Schön“ 313--1"_s);
        row("notes.json", "[{\"time\":\"01:00:01:00\",\"name\":\"J\",\"color\":\"blue\"}]", u"J/ 25--1"_s);
    }
    void everyShapeIsImported()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        const QString path = m_home->addFile(name, content);
        NotePreviewSheet *sheet = openPreview(path);
        QVERIFY(sheet);
        const std::size_t count = sheet->preview().checkedCount();
        QCOMPARE(count, sheet->preview().notes().size());
        QVERIFY(add(*sheet));
        QTEST(markers(), "markers");
        QCOMPARE(m_window->selectedTab(), Tab::Markers);
        QCOMPARE(m_window->pane(Tab::Markers).selectedRows().size(), count);
        sheet = openPreview(path);
        QVERIFY(sheet);
        QCOMPARE(sheet->preview().checkedCount(), std::size_t(0));
        sheet->reject();

        m_window->undo();
        QVERIFY(markers().isEmpty() && !m_window->document()->canUndo());
    }

    void settingsAreChosenInTheSheet()
    {
        const QString path =
            m_home->addFile(u"a.csv"_s, "Timecode,Comment,Name,Scene,Color\n01:00:10:00,dark,A,12,blue\n"
                                        "01:00:20:00,,B,,\nlater,,C,,\n");
        NotePreviewSheet *const sheet = openPreview(path);
        QVERIFY(sheet);
        const auto *const columns = sheet->findChild<NoteColumnStrip *>();
        QCOMPARE(columns->popUps().size(), std::size_t(5));
        QCOMPARE(columns->popUps()[3]->currentText(), u"Ignored"_s);
        choose(columns->popUps()[3], u"Custom field"_s);
        choose(columns->popUps()[1], u"Name"_s);
        QVERIFY(isPlanned(*sheet));
        QCOMPARE(columns->popUps()[2]->currentText(), u"Ignored"_s);
        choose(sheet->findChild<NoteColorStrip *>()->popUps()[0], u"Pink"_s);
        choose(popUpWith(*sheet, u"Film"_s), u"Film"_s);
        QComboBox *const meaning = popUpWith(*sheet, u"First note is at"_s);
        auto *const timecode = sheet->findChild<QLineEdit *>();
        meaning->setFocus();
        QTest::keyClick(meaning, Qt::Key_End); // steps on with the next key
        QVERIFY(timecode->isVisible());
        QCOMPARE(sheet->focusWidget(), meaning);
        QCoreApplication::processEvents();
        choose(meaning, u"First note is at"_s);
        QCOMPARE(sheet->focusWidget(), timecode);
        QCOMPARE(timecode->text(), u"01:00:00:00"_s);
        QTest::keyClicks(timecode, u"9.."_s); // which was selected
        choose(popUpWith(*sheet, u"29.97 drop frame"_s), u"25"_s);
        QVERIFY(isPlanned(*sheet));

        // The second row is unchecked with the space bar.
        auto *const table = sheet->findChild<QVTableView *>();
        QCOMPARE(table->model()->index(2, NotePreviewModel::Remark).data().toString(),
                 u"“later” is no time."_s);
        table->selectRow(1);
        QTest::keyClick(table, Qt::Key_Space);
        QCOMPARE(sheet->preview().summary(),
                 u"1 of 3 notes will be added; 1 is unreadable, 1 is not checked"_s);
        QTest::keyClick(table, Qt::Key_Return);
        QTRY_COMPARE(m_window->document()->markerArray().size(), std::size_t(1));
        QCOMPARE(markers(), u"dark/ 12960--1"_s); // nine minutes of 24 counted frames
        const RowRecord &marker = *m_window->document()->markerArray().front();
        QCOMPARE(marker.get(MarkerKey::sequenceName), u"Film"_s);
        QCOMPARE(marker.get(MarkerKey::color), 7);
        QCOMPARE(columnTexts(*m_window, Tab::Markers, u"QVCUSTOM_SCENE"_s), QStringList(u"12"_s));

        NotePreviewSheet *const next = openPreview(path); // the roles are remembered
        QVERIFY(next);
        const auto *const remembered = next->findChild<NoteColumnStrip *>();
        QCOMPARE(remembered->popUps()[1]->currentText(), u"Name"_s);
        QCOMPARE(remembered->popUps()[3]->currentText(), u"Custom field"_s);
        next->reject();
    }

    void severalListsFollowEachOther()
    {
        m_window->importNoteFiles({m_home->addFile(u"a.txt"_s, "00:01 a\n"), m_home->addFile(u"b.txt"_s, "b"),
                                   m_home->addFile(u"c.txt"_s, "00:03 c\n")});
        QTRY_VERIFY(sheetOf<NotePreviewSheet>(*m_window));
        QPointer<NotePreviewSheet> first = sheetOf<NotePreviewSheet>(*m_window);
        QVERIFY(isPlanned(*first));
        clickButton(*first, u"Add"_s);
        QTRY_VERIFY(visibleBox());
        QVERIFY(visibleBox()->text().contains(u"b.txt"_s));
        press(visibleBox(), u"OK"_s);
        QTRY_VERIFY(!first && sheetOf<NotePreviewSheet>(*m_window));
        QVERIFY(add(*sheetOf<NotePreviewSheet>(*m_window)));
        QCOMPARE(markers(), u"a/ 25--1, c/ 75--1"_s);
    }

    void listsAreDroppedAndPasted()
    {
        QSignalSpy handedOn(m_window, &DocumentWindow::filesDropped);
        const QString other = m_home->addFile(u"other.xml"_s, projectXml);
        QMimeData data;
        data.setUrls(
            {QUrl::fromLocalFile(m_home->addFile(u"a.txt"_s, "00:01 a\n")), QUrl::fromLocalFile(other)});
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window, &enter);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window, &event);
        QTRY_VERIFY(sheetOf<NotePreviewSheet>(*m_window));
        QCOMPARE(handedOn.at(0).at(0).toStringList(), QStringList(other));
        QVERIFY(add(*sheetOf<NotePreviewSheet>(*m_window)));

        QGuiApplication::clipboard()->setText(u"01:00:02:00\tpasted\n01:00:03:00\tmore\n"_s);
        m_window->paste();
        QTRY_VERIFY(sheetOf<NotePreviewSheet>(*m_window));
        QVERIFY(add(*sheetOf<NotePreviewSheet>(*m_window)));
        QCOMPARE(markers(), u"a/ 25--1, pasted/ 50--1, more/ 75--1"_s);

        // What is pasted goes where the selected markers are.
        const RowRecordPtr film =
            m_window->workbench().markerEditor().addMarkerWithName(u"film"_s, 1, -1, QString(), u"red"_s, 2);
        QVERIFY(film);
        m_window->pane(Tab::Markers).selectRows({m_window->document()->rowsOnShow(Tab::Markers).size() - 1});
        QGuiApplication::clipboard()->setText(u"01:00:04:00\tthere\n"_s);
        m_window->paste();
        QTRY_VERIFY(sheetOf<NotePreviewSheet>(*m_window));
        QCOMPARE(sheetOf<NotePreviewSheet>(*m_window)->preview().sequence(), 2);
        sheetOf<NotePreviewSheet>(*m_window)->reject();

        QGuiApplication::clipboard()->setText(u"no list"_s);
        m_window->paste();
        QTRY_VERIFY(!m_window->isBusy());
        QVERIFY(!sheetOf<NotePreviewSheet>(*m_window) && !visibleBox());
        // A text that is being edited takes what is pasted.
        m_window->pane(Tab::Markers).editCell(0, u"name"_s);
        auto *const field = m_window->pane(Tab::Markers).table().findChild<QLineEdit *>();
        field->setFocus();
        QGuiApplication::clipboard()->setText(u"00:04 d"_s);
        m_window->paste();
        QCOMPARE(field->text(), u"00:04 d"_s);
    }

    void notesAreExported()
    {
        NotePreviewSheet *const preview =
            openPreview(m_home->addFile(u"a.txt"_s, "00:01 first\n00:02 second\n00:03 third\n"));
        QVERIFY(preview && add(*preview));
        m_window->pane(Tab::Markers).selectRows({1, 2});
        m_window->exportNotes();
        ExportNotesSheet *sheet = sheetOf<ExportNotesSheet>(*m_window);
        QVERIFY(sheet);
        QCOMPARE(sheet->markers().size(), std::size_t(2)); // the selected ones
        choose(popUpWith(*sheet, u"EDL with locators"_s), u"EDL with locators"_s);
        QCOMPARE(exported(*sheet, u"out.edl"_s),
                 QByteArray("TITLE: Edit\nFCM: NON-DROP FRAME\n* LOC: 01:00:02:00 RED     second\n"
                            "* LOC: 01:00:03:00 RED     third\n"));

        m_window->exportNotes();
        sheet = sheetOf<ExportNotesSheet>(*m_window);
        choose(popUpWith(*sheet, u"CSV for spreadsheets"_s), u"CSV for spreadsheets"_s);
        choose(popUpWith(*sheet, u"All markers (3)"_s), u"All markers (3)"_s);
        sheet->findChild<QLineEdit *>()->setText(u"ir"_s); // first and third
        auto *const columns = sheet->findChild<QListWidget *>();
        for (int i = 0; i < columns->count(); ++i) {
            const QString title = columns->item(i)->text();
            columns->item(i)->setCheckState(title == u"In"_s || title == u"Name"_s ? Qt::Checked
                                                                                   : Qt::Unchecked);
        }
        QCOMPARE(exported(*sheet, u"out.csv"_s),
                 QByteArray("Name,In\r\nfirst,01:00:01:00\r\nthird,01:00:03:00\r\n"));

        m_window->exportNotes();
        sheet = sheetOf<ExportNotesSheet>(*m_window);
        choose(popUpWith(*sheet, u"JSON for scripts"_s), u"JSON for scripts"_s);
        choose(popUpWith(*sheet, u"All markers (3)"_s), u"All markers (3)"_s);
        const QByteArray json = exported(*sheet, u"out.json"_s);
        QVERIFY2(json.startsWith(
                     "[{\"markerElement\":\"/xmeml[1]/project[1]/children[1]/sequence[1]/marker[1]\","),
                 json.constData());
        QVERIFY2(json.endsWith("\"name\":\"third\",\"comment\":\"\",\"color\":0,\"in\":\"75\",\"out\":\"-1\","
                               "\"display\":{\"in\":\"01:00:03:00\",\"out\":\"00:00:00:00\"}}]\n"),
                 json.constData());
        NotePreviewSheet *const again = openPreview(m_home->path(u"out.json"_s));
        QVERIFY(again);
        QCOMPARE(again->preview().summary(), u"0 of 3 notes will be added; 3 are already there"_s);
        again->reject();
    }

    void tellsWhatAFormatCannotHold()
    {
        NotePreviewSheet *const preview =
            openPreview(m_home->addFile(u"a.csv"_s, "Timecode,Name,Duration\n01:00:01:00,a,00:00:01:00\n"));
        QVERIFY(preview && add(*preview));
        m_window->exportNotes();
        ExportNotesSheet *const sheet = sheetOf<ExportNotesSheet>(*m_window);
        choose(popUpWith(*sheet, u"EDL with locators"_s), u"EDL with locators"_s);
        clickButton(*sheet, u"Export…"_s);
        choosePath(m_home->path(u"out.edl"_s));
        QTRY_VERIFY(visibleBox());
        QVERIFY(visibleBox()->informativeText().contains(u"duration"_s));
        press(visibleBox(), u"OK"_s);

        // A folder that is not there: the user hears of it, and nothing is left behind.
        m_window->exportNotes();
        clickButton(*sheetOf<ExportNotesSheet>(*m_window), u"Export…"_s);
        QSignalSpy ended(m_window, &DocumentWindow::markersExported);
        choosePath(m_home->path(u"missing/out.csv"_s));
        QTRY_VERIFY(visibleBox());
        press(visibleBox(), u"OK"_s);
        QTRY_COMPARE(ended.count(), 1);
        QVERIFY(!ended.at(0).at(0).toBool());
    }

    void closingEndsTheSheet()
    {
        QVERIFY(openPreview(m_home->addFile(u"a.txt"_s, "00:01 first\n")));
        m_window->shutDown();
        QTRY_VERIFY(!m_window);
    }

private:
    NotePreviewSheet *openPreview(const QString &path)
    {
        m_window->importNoteFiles({path});
        if (!QTest::qWaitFor([this] { return sheetOf<NotePreviewSheet>(*m_window) != nullptr; }, 20000))
            return nullptr;
        NotePreviewSheet *const sheet = sheetOf<NotePreviewSheet>(*m_window);
        return isPlanned(*sheet) ? sheet : nullptr;
    }
    static bool isPlanned(const NotePreviewSheet &sheet)
    {
        return QTest::qWaitFor([&sheet] { return !sheet.preview().isPlanning(); }, 20000);
    }
    bool add(const NotePreviewSheet &sheet)
    {
        QSignalSpy imported(m_window, &DocumentWindow::markersImported);
        if (!isPlanned(sheet))
            return false;
        clickButton(sheet, u"Add"_s);
        return !imported.isEmpty() || imported.wait(20000);
    }
    QByteArray exported(const ExportNotesSheet &sheet, const QString &name)
    {
        QSignalSpy ended(m_window, &DocumentWindow::markersExported);
        clickButton(sheet, u"Export…"_s);
        choosePath(m_home->path(name));
        return !ended.isEmpty() || ended.wait(20000) ? contentOf(m_home->path(name)) : QByteArray();
    }
    QString markers() const
    {
        QStringList texts;
        for (const RowRecordPtr &marker : m_window->document()->markerArray())
            texts.append(u"%1/%2 %3-%4"_s.arg(marker->get(MarkerKey::name), marker->get(MarkerKey::comment),
                                              marker->get(MarkerKey::in), marker->get(MarkerKey::out)));
        return texts.join(u", "_s);
    }

    std::unique_ptr<TemporaryHome> m_home;
    std::unique_ptr<UserDefaults> m_defaults;
    QPointer<DocumentWindow> m_window;
};

QTEST_MAIN(NotesTest)
#include "tst_notesheets.moc"
