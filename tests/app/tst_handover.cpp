#include "WindowTest.h"

#include "handover/widgets/ExportListSheet.h"
#include "handover/widgets/PathMappingsSheet.h"
#include "handover/widgets/RelinkSheet.h"
#include "handover/widgets/RelinkTableModel.h"
#include "handover/widgets/VerificationSheet.h"
#include "media/MediaKeys.h"
#include "media/PathMapping.h"
#include "report/widgets/ExportReportSheet.h"
#include "support/alerts/QVAlert.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/BackgroundWork.h"
#include "support/widgets/WindowAlertPresenter.h"
#include "table/widgets/SheetTableModel.h"
#include "tests/support/TemporaryHome.h"
#include "workbench/Workbench.h"

#include <QComboBox>
#include <QTest>
#include <QThread>

using namespace vantrell;
using namespace Qt::StringLiterals;

/// Relinking, path mappings, and lists of media in the window.
class TestHandover : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<TemporaryHome>();
        m_defaults = std::make_unique<UserDefaults>(m_home->path(u"test.plist"_s));
        QVAlert::setPresenter(std::make_shared<WindowAlertPresenter>(*m_defaults));
        QVLog::createNewLog(u"test"_s, true);
        m_path = copySample(m_home->path(u"project"_s));
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

    /// The sample's media are beside it, with names in capitals: one Relink finds them all, and a list of
    /// them is true.
    void completesTheMovedSample()
    {
        addMedia(u"project/media"_s, [](const QString &name) { return name.toUpper(); });
        QVERIFY(open());
        QCOMPARE(missingCount(), 11);
        RelinkSheet *const sheet = search();
        QVERIFY(sheet);
        QCOMPARE(sheet->folders(), QStringList(m_home->path(u"project"_s)));
        RelinkTableModel &found = sheet->model();
        QCOMPARE(found.rowCount(), 11);
        for (int row = 0; row < found.rowCount(); ++row) {
            QVERIFY(found.index(row, RelinkTableModel::Match).data().toString().startsWith(u"other case"_s));
            QCOMPARE(found.index(row, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        }
        QVERIFY(!sheet->model().plan().mapping()); // the names differ
        QSignalSpy relinked(m_window, &DocumentWindow::mediaRelinked);
        clickButton(sheet, u"Relink"_s);
        QTRY_COMPARE(relinked.size(), 1);
        QCOMPARE(relinked.at(0).at(0).toUInt(), 11U);
        QCOMPARE(missingCount(), 0);
        QCOMPARE(message(), u"11 files relinked."_s);
        QVERIFY(columnTexts(*m_window, Tab::Media, u"filename"_s).contains(u"ГАВАНЬ.TIF"_s));
        QVERIFY(m_window->isWindowModified());

        // Back and forth, as the disk has it
        MyDocument &document = *m_window->document();
        QCOMPARE(document.undoName(), u"Relink"_s);
        const int changed = int(document.modifiedSequenceUUIDs()->size());
        QCOMPARE(changed, 3);
        m_window->undo();
        QTRY_COMPARE(missingCount(), 11);
        QCOMPARE(document.modifiedSequenceUUIDs().value_or(QStringList()).size(), 0);
        m_window->redo();
        QTRY_COMPARE(missingCount(), 0);
        QVERIFY(saves(*m_window));
        QVERIFY(!contentOf(m_path).contains("/Volumes/Harbour"));

        const QString list = m_home->path(u"project/harbour.mhl"_s);
        QVERIFY(exports(list, MediaListFormat::Checksums, {}));
        QCOMPARE(contentOf(list).count("<file>media/"), 11);
        QCOMPARE(verify(list), u"11 files: 11 OK."_s);
        m_home->addFile(u"project/media/NARRATION.WAV"_s, "other");
        QFile::remove(m_home->path(u"project/media/HARBOUR MAP.JPG"_s));
        QCOMPARE(verify(list), u"11 files: 9 OK, 1 missing, 1 changed."_s);
        QVERIFY(verify(m_path).isEmpty()); // no list
    }

    /// Of two files with a name none is taken until one is chosen; unticked ones stay missing.
    void choosesAmongSeveral()
    {
        for (const char *path : {"a/1/Narration.wav", "a/2/Narration.wav", "a/Harbour map.jpg"})
            m_home->addFile(QString::fromLatin1(path), "x");
        m_defaults->setValue(RelinkSheet::foldersKey, QVariantList{m_home->path(u"a"_s)});
        QVERIFY(open());
        RelinkSheet *const sheet = search();
        QVERIFY(sheet);
        RelinkTableModel &found = sheet->model();
        const int narration = rowOf(found, u"Narration.wav"_s);
        const int map = rowOf(found, u"Harbour map.jpg"_s);
        const int keeper = rowOf(found, u"Lighthouse keeper.mov"_s);
        const auto tick = [&found](int row, Qt::CheckState state) {
            return found.setData(found.index(row, 0), state, Qt::CheckStateRole);
        };
        QCOMPARE(found.plan().choices().size(), std::size_t(1));
        QVERIFY(!tick(keeper, Qt::Checked)); // not found
        QVERIFY(tick(map, Qt::Unchecked));
        QVERIFY(found.setData(found.index(narration, RelinkTableModel::FoundIn), 1));
        QCOMPARE(found.plan().choices().size(), std::size_t(1));
        QSignalSpy relinked(m_window, &DocumentWindow::mediaRelinked);
        clickButton(sheet, u"Relink"_s);
        QTRY_COMPARE(relinked.size(), 1);
        QCOMPARE(missingCount(), 10);
        QVERIFY(columnTexts(*m_window, Tab::Media, u"directory"_s).contains(m_home->path(u"a/2"_s)));
    }

    /// Where the folders alone differ, a mapping finds the files and leaves the project as it is; without it
    /// they are missing again.
    void mapsFolders()
    {
        addMedia(u"mnt/Media"_s, [](const QString &name) { return name; });
        QFile::remove(m_home->path(u"mnt/Media/Lighthouse keeper.mov"_s));
        m_defaults->setValue(RelinkSheet::foldersKey, QVariantList{m_home->path(u"mnt"_s)});
        QVERIFY(open());
        RelinkSheet *const sheet = search();
        QVERIFY(sheet);
        const std::optional<PathMapping> mapping = sheet->model().plan().mapping();
        QCOMPARE(mapping, std::optional(PathMapping{u"/Volumes/Harbour"_s, m_home->path(u"mnt"_s)}));
        QSignalSpy checked(m_window, &DocumentWindow::mediaChecked);
        clickButton(sheet, u"Use Mapping Instead"_s);
        QTRY_COMPARE(checked.size(), 1);
        QCOMPARE(missingCount(), 1);
        QVERIFY(!m_window->isWindowModified());
        QVERIFY(columnTexts(*m_window, Tab::Media, u"directory"_s).contains(u"/Volumes/Harbour/Media"_s));

        m_window->editPathMappings();
        auto *const mappings = m_window->findChild<PathMappingsSheet *>();
        QVERIFY(mappings && mappings->isVisible());
        QCOMPARE(mappings->rows().size(), std::size_t(1));
        mappings->model().setData(mappings->model().index(0, 1), u"relative"_s);
        mappings->accept(); // refused
        QVERIFY(mappings->isVisible());
        mappings->model().setData(mappings->model().index(0, 1), u"/nowhere"_s);
        mappings->accept();
        QTRY_COMPARE(checked.size(), 2);
        QCOMPARE(missingCount(), 11);
        QCOMPARE(PathMappings::stored(*m_defaults).list().size(), std::size_t(1));
    }

    void stopsASearch()
    {
        QVERIFY(open());
        m_window->relinkMedia();
        auto *const sheet = m_window->findChild<RelinkSheet *>();
        QVERIFY(sheet && sheet->isVisible());
        sheet->search();
        QVERIFY(sheet->isSearching());
        sheet->search();
        QVERIFY(!sheet->isSearching());
        QVERIFY(sheet->model().plan().choices().empty());
        sheet->search();
        m_window->close(); // with the sheet and its search
        QTRY_VERIFY(!m_window);
    }

    void exportsLists()
    {
        addMedia(u"project/Media"_s, [](const QString &name) { return name; });
        PathMappings mappings;
        mappings.add(u"/Volumes/Harbour"_s, m_home->path(u"project"_s));
        mappings.store(*m_defaults);
        QVERIFY(open());
        QCOMPARE(missingCount(), 1);
        using enum MediaListScope::Files;
        const QString list = m_home->path(u"list"_s);
        QVERIFY(exports(list, MediaListFormat::Csv, {}));
        QCOMPARE(contentOf(list).count("\r\n"), 12);
        QVERIFY(exports(list, MediaListFormat::PathsByNul, {}));
        QCOMPARE(contentOf(list).count('\0'), 10);
        QVERIFY(exports(list, MediaListFormat::Paths, {OfSequence, 2}));
        const QByteArray folder = m_home->path(u"project/Media/"_s).toUtf8();
        QCOMPARE(contentOf(list), folder + "Harbour Wide.avi\n" + folder + "Küste bei Nacht.png\n" + folder +
                                      "Narration.wav\n");
        auto *const kinds = m_window->pane(Tab::Media).findChild<QComboBox *>();
        kinds->setCurrentIndex(2);
        Q_EMIT kinds->activated(2);
        QVERIFY(exports(list, MediaListFormat::Paths, {OnShow, 0}));
        QCOMPARE(contentOf(list).count(".wav\n"), 3);
        QCOMPARE(contentOf(list).count('\n'), 3);
    }

    /// The columns of the uses come behind the others, can be sorted by, and are in no report.
    void showsUses()
    {
        QVERIFY(open());
        TabPane &pane = m_window->pane(Tab::Media);
        const QStringList usual = pane.columns();
        QCOMPARE(usual, u"filename filetype filesize modDate usageCount missing directory"_s.split(u' '));
        m_window->showMediaUses(true);
        QCOMPARE(pane.columns(),
                 usual + u"sourceTimecode reel length used uses sequences notes"_s.split(u' '));
        const auto texts = [this](const char *column) {
            return columnTexts(*m_window, Tab::Media, QString::fromLatin1(column));
        };
        QTRY_COMPARE(texts("used").constFirst(), u"00:00:27:00 (45 %)"_s);
        QTRY_VERIFY(m_window->mayEdit());
        QCOMPARE(texts("length").constFirst(), u"00:01:00:00"_s);
        QCOMPARE(texts("sourceTimecode").constFirst(), u"10:15:00:00"_s);
        QCOMPARE(texts("reel").constFirst(), u"HL01"_s);
        QCOMPARE(texts("uses"), u"4 2 1 1 1 1 2 1 1 1 0"_s.split(u' '));
        QCOMPARE(texts("usageCount"), u"4 2 0 0 1 1 2 1 0 0 0"_s.split(u' '));
        QCOMPARE(texts("notes").constLast(), u"unused"_s);
        QCOMPARE(texts("sequences").constFirst().count(u", "_s), 2);
        pane.sortBy(u"uses"_s);
        pane.sortBy(u"uses"_s);
        QCOMPARE(texts("uses"), u"4 2 2 1 1 1 1 1 1 1 0"_s.split(u' '));
        pane.selectRows({0});
        QSignalSpy exported(m_window, &DocumentWindow::reportExported);
        const QString report = m_home->path(u"report.csv"_s);
        m_window->exportReportTo(report, ReportFormat::Csv);
        QVERIFY(!exported.isEmpty() || exported.wait(20000));
        for (const PrintColumn &column : m_window->workbench().reportGenerator().printColumnArray())
            QVERIFY2(column.title != u"Used"_s && column.title != u"Uses"_s, qPrintable(column.title));
        m_window->showMediaUses(false);
        QCOMPARE(pane.columns(), usual);
    }

    /// Nothing is edited while the uses are read, which begins when a project has been opened.
    void usesLeaveProjectsEditable()
    {
        m_defaults->setValue(u"mediaUseColumns"_s, QVariantList{u"uses"_s});
        QVERIFY(open());
        QTRY_COMPARE(columnTexts(*m_window, Tab::Media, u"uses"_s).value(0), u"4"_s);
        QTRY_VERIFY(m_window->mayEdit());
        m_window->toolbarMarkers();
        const TableModel &markers = m_window->pane(Tab::Markers).model();
        QVERIFY(markers.index(0, markers.columnOf(u"name"_s)).flags().testFlag(Qt::ItemIsEditable));
        // A save waits for them.
        m_window->showMediaUses(false);
        m_window->workbench().markerEditor().addMarker();
        m_window->document()->runInBackground([] { QThread::msleep(200); }, [] {});
        QSignalSpy saved(m_window, &DocumentWindow::saved);
        m_window->save();
        QVERIFY(saved.isEmpty() && !m_window->isBusy());
        QTRY_COMPARE(saved.count(), 1);
        QVERIFY(saved.at(0).at(0).toBool());
        QVERIFY(!m_window->isBusy() && !m_window->isWindowModified());
    }

    void usesWaitForAnImport()
    {
        QVERIFY(open());
        const QString list =
            m_home->addFile(u"list.txt"_s, QByteArray("Cue\t01:00:20:00\tV1\tred\t\n").repeated(3000));
        QSignalSpy imported(m_window, &DocumentWindow::markersImported);
        m_window->importMarkerLists({list}, MarkerListFormat::avid);
        m_window->showMediaUses(true);
        while (imported.isEmpty()) {
            QVERIFY(!m_window->document()->isSaving());
            QTest::qWait(1);
        }
        m_window->toolbarMedia();
        QTRY_COMPARE(columnTexts(*m_window, Tab::Media, u"uses"_s).value(0), u"4"_s);
    }

private:
    bool open()
    {
        m_window = new DocumentWindow(*m_defaults);
        m_window->show();
        return m_window->open(m_path) &&
               QTest::qWaitFor([this] { return m_window->state() == DocumentWindow::State::Ready; }, 30000);
    }

    /// Copies the sample's media, and a stand-in for the one that it lacks, under other names.
    void addMedia(const QString &folder, const std::function<QString(const QString &)> &nameOf) const
    {
        const QDir samples(qEnvironmentVariable("VANTRELL_SOURCE_DIR") + u"/samples/Media"_s);
        for (const QString &name : samples.entryList(QDir::Files))
            m_home->addFile(folder + u'/' + nameOf(name), contentOf(samples.filePath(name)));
        m_home->addFile(folder + u'/' + nameOf(u"Lighthouse keeper.mov"_s), "keeper");
    }

    int missingCount() const
    {
        int missing = 0;
        for (const RowRecordPtr &record : m_window->document()->rowsOnShow(Tab::Media))
            missing += record->get(MediaKey::missing) ? 1 : 0;
        return missing;
    }

    /// The line below the table of media.
    QString message() const
    {
        for (const QLabel *const label : m_window->pane(Tab::Media).findChildren<QLabel *>()) {
            if (label->isVisible() && label->text().contains(u"relinked"_s))
                return label->text();
        }
        return QString();
    }

    /// The sheet with the result of a search; null when it does not come up.
    RelinkSheet *search() const
    {
        m_window->relinkMedia();
        auto *const sheet = m_window->findChild<RelinkSheet *>();
        if (!sheet || !sheet->isVisible())
            return nullptr;
        sheet->search();
        const bool isOver = QTest::qWaitFor([sheet] { return !sheet->isSearching(); }, 30000);
        return isOver ? sheet : nullptr;
    }

    static int rowOf(const RelinkTableModel &model, const QString &name)
    {
        for (int row = 0; row < model.rowCount(); ++row) {
            if (model.index(row, 0).data().toString() == name)
                return row;
        }
        return -1;
    }

    static void clickButton(const QWidget *sheet, const QString &title)
    {
        for (QPushButton *const button : sheet->findChildren<QPushButton *>()) {
            if (button->text().remove(u'&') == title && button->isVisible() && button->isEnabled()) {
                button->click();
                return;
            }
        }
        QFAIL(qPrintable(u"There is no button "_s + title));
    }

    bool exports(const QString &path, MediaListFormat format, const MediaListScope &scope) const
    {
        QSignalSpy exported(m_window, &DocumentWindow::mediaListExported);
        m_window->exportMediaListTo(path, format, scope);
        const bool hasEnded = !exported.isEmpty() || exported.wait(30000);
        return hasEnded && exported.at(0).at(0).toBool();
    }

    /// What the sheet says of the list; empty when it cannot be verified.
    QString verify(const QString &path) const
    {
        QSignalSpy verified(m_window, &DocumentWindow::mediaListVerified);
        pressLater(u"OK"_s);
        m_window->verifyMediaListAt(path);
        const bool hasEnded = !verified.isEmpty() || verified.wait(30000);
        auto *const sheet = m_window->findChild<VerificationSheet *>();
        const QString summary = hasEnded && sheet ? sheet->summary() : QString();
        delete sheet;
        return summary;
    }

    std::unique_ptr<TemporaryHome> m_home;
    std::unique_ptr<UserDefaults> m_defaults;
    QString m_path;
    QPointer<DocumentWindow> m_window;
};

QTEST_MAIN(TestHandover)
#include "tst_handover.moc"
