#include "markers/MarkerKeys.h"
#include "markers/widgets/MarkerTableModel.h"
#include "media/widgets/MediaTableModel.h"
#include "tests/table_widgets/PaneProject.h"

#include <QAbstractItemModelTester>
#include <QTest>

namespace vantrell
{

class TestModels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void obeyTheRulesOfModels();
    void showValues_data();
    void showValues();
    void haveImages_data();
    void haveImages();
    void offerClipsOfTheRow();
    void knowVolumes_data();
    void knowVolumes();

private:
    std::unique_ptr<PaneProject> m_project;
};

void TestModels::initTestCase()
{
    m_project = std::make_unique<PaneProject>();
    QVERIFY(m_project->load());
}

void TestModels::cleanupTestCase()
{
    m_project.reset();
}

void TestModels::obeyTheRulesOfModels()
{
    using Mode = QAbstractItemModelTester::FailureReportingMode;
    PaneProject project;
    const QAbstractItemModelTester media(&project.media.model(), Mode::QtTest);
    const QAbstractItemModelTester effects(&project.effects.model(), Mode::QtTest);
    const QAbstractItemModelTester markers(&project.markers.model(), Mode::QtTest);
    QVERIFY(project.load());
    for (const Tab tab : {Tab::Media, Tab::Effects, Tab::Markers}) {
        project.show(tab);
        for (const Tab other : {Tab::Media, Tab::Effects, Tab::Markers})
            QCOMPARE(project.pane(other).model().rowCount() > 0, other == tab);
    }
    const int columns = project.markers.model().columnCount();
    project.addMarkerColumn(QStringLiteral("QVCUSTOM_TAKE"), QStringLiteral("Take"));
    project.addMarkerColumn(QStringLiteral("QVCUSTOM_TAKE"), QStringLiteral("Take no."));
    QCOMPARE(project.markers.model().columnCount(), columns + 1);
    project.markers.removeColumn(QStringLiteral("QVCUSTOM_TAKE"));
    QCOMPARE(project.markers.model().columnCount(), columns);
}

void TestModels::showValues_data()
{
    QTest::addColumn<Tab>("tab");
    QTest::addColumn<QString>("row"); // the text of its name
    QTest::addColumn<QString>("column");
    QTest::addColumn<QString>("text");
    const auto add = [](Tab tab, const char *row, const char *column, const char *text) {
        QTest::addRow("%s, %s", row, column)
            << tab << QString::fromUtf8(row) << QString::fromUtf8(column) << QString::fromUtf8(text);
    };
    add(Tab::Media, "Harbour Wide.avi", "filetype", "Movie Clip");
    add(Tab::Media, "Harbour Wide.avi", "filesize", "43.00 KB"); // 44032 bytes
    add(Tab::Media, "Harbour Wide.avi", "missing", "0");
    add(Tab::Markers, "Café du Port", "color", "Orange");
    add(Tab::Markers, "Café du Port", "comment", "Terrasse, été 1978");
    add(Tab::Markers, "Café du Port", "in", "01:00:02;00");  // frame 60 of a sequence from one hour on
    add(Tab::Markers, "Café du Port", "out", "00:00:03;00"); // 90 frames
    add(Tab::Markers, "Café du Port", "sequence", "Harbour Lights – Reel 1");
    add(Tab::Markers, "Café du Port", "clip", "(none)");
    add(Tab::Markers, "Café du Port", "chapter", "1");
    add(Tab::Markers, "Café du Port", "scoring", "0");
    add(Tab::Markers, "Horn", "out", "00:00:00:00"); // no out point
    add(Tab::Markers, "Tide turns", "sequence", "(none)");
    add(Tab::Markers, "Tide turns", "clip", "");
    add(Tab::Effects, "Gaussian Blur", "enabled", "1");
    add(Tab::Effects, "Outline Text", "enabled", "0");
    add(Tab::Effects, "Outline Text", "clip", "");
    add(Tab::Effects, "Outline Text", "effectType", "Generator");
}

void TestModels::showValues()
{
    QFETCH(const Tab, tab);
    QFETCH(const QString, row);
    QFETCH(const QString, column);
    m_project->show(tab);
    const QString name = tab == Tab::Media ? QStringLiteral("filename") : QStringLiteral("name");
    const int modelRow = m_project->rowOf(tab, name, row);
    QVERIFY(modelRow >= 0);
    QTEST(m_project->text(tab, modelRow, column), "text");
}

void TestModels::haveImages_data()
{
    QTest::addColumn<Tab>("tab");
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("column");
    QTest::addColumn<bool>("hasImage");
    const QString clip = QStringLiteral("clip");
    const QString sequence = QStringLiteral("sequence");
    QTest::newRow("file") << Tab::Media << "Harbour Wide.avi"
                          << "filename" << true;
    QTest::newRow("folder") << Tab::Media << "Harbour Wide.avi"
                            << "directory" << true;
    QTest::newRow("kind") << Tab::Media << "Harbour Wide.avi"
                          << "filetype" << false;
    QTest::newRow("effect on a clip") << Tab::Effects << "Gaussian Blur" << clip << true;
    QTest::newRow("generator") << Tab::Effects << "Outline Text" << clip << false;
    QTest::newRow("generator's sequence") << Tab::Effects << "Outline Text" << sequence << true;
    QTest::newRow("color") << Tab::Markers << "Horn"
                           << "color" << true;
    QTest::newRow("marker on a sequence") << Tab::Markers << "Café du Port" << clip << false;
}

void TestModels::haveImages()
{
    QFETCH(const Tab, tab);
    QFETCH(const QString, row);
    QFETCH(const QString, column);
    m_project->show(tab);
    const QString name = tab == Tab::Media ? QStringLiteral("filename") : QStringLiteral("name");
    const int modelRow = m_project->rowOf(tab, name, row);
    QVERIFY(modelRow >= 0);
    const QIcon icon = m_project->cell(tab, modelRow, column).data(Qt::DecorationRole).value<QIcon>();
    QTEST(!icon.isNull(), "hasImage");
    if (!icon.isNull())
        QCOMPARE(icon.pixmap(QSize(16, 16)).size(), QSize(16, 16));
}

void TestModels::offerClipsOfTheRow()
{
    m_project->show(Tab::Markers);
    const TableModel &model = m_project->markers.model();
    const auto titles = [&](const QString &row, const QString &column) {
        const int modelRow = m_project->rowOf(Tab::Markers, QStringLiteral("name"), row);
        QStringList texts;
        for (const PopUpItem &item : model.popUpItems(m_project->cell(Tab::Markers, modelRow, column)))
            texts.append(item.title);
        return texts;
    };
    const QString clip = QStringLiteral("clip");
    const QStringList trailer{QStringLiteral("(none)"),
                              QStringLiteral("Harbour Wide (10:00:00:00 – 10:00:05:00)"),
                              QStringLiteral("Küste bei Nacht (still)"),
                              QStringLiteral("Harbour Wide (10:00:08:00 – 10:00:15:00)")};
    QCOMPARE(titles(QStringLiteral("First light"), clip).mid(0, 4), trailer);
    QVERIFY(titles(QStringLiteral("Opening"), clip).size() > 10);
    // A removed item keeps its index but cannot be selected.
    const QModelIndex cell = m_project->cell(
        Tab::Markers, m_project->rowOf(Tab::Markers, QStringLiteral("name"), QStringLiteral("First light")),
        clip);
    MyDocument &document = model.document();
    const auto sequence = std::size_t(model.recordAt(cell.row())->get(MarkerKey::sequenceIndex));
    const MenuPtr clips = document.clipMenuForSequence(document.sequenceMenu()->at(sequence).element);
    document.xmlDoc()->remove(clips->at(2).element);
    std::vector<bool> enabled;
    for (const PopUpItem &item : model.popUpItems(cell))
        enabled.push_back(item.isEnabled);
    QCOMPARE(std::vector<bool>(enabled.begin(), enabled.begin() + 4),
             std::vector<bool>({false, true, false, true}));
    QCOMPARE(titles(QStringLiteral("First light"), clip).mid(0, 4), trailer);
    // "(none)" takes a marker from a clip; elsewhere, and as a sequence, it would do nothing.
    const auto offersNone = [&](const QString &row, const QString &column) {
        const int modelRow = m_project->rowOf(Tab::Markers, QStringLiteral("name"), row);
        return model.popUpItems(m_project->cell(Tab::Markers, modelRow, column)).front().isEnabled;
    };
    QVERIFY(offersNone(QStringLiteral("Light on"), clip));
    QVERIFY(!offersNone(QStringLiteral("Opening"), clip));
    QVERIFY(!offersNone(QStringLiteral("First light"), QStringLiteral("sequence")));
    QVERIFY(titles(QStringLiteral("Tide turns"), clip).isEmpty());
    QCOMPARE(titles(QStringLiteral("Tide turns"), QStringLiteral("sequence")),
             (QStringList{QStringLiteral("(none)"), QStringLiteral("Trailer selects"),
                          QStringLiteral("Trailer 25 fps"), QStringLiteral("Harbour Lights – Reel 1")}));
    QCOMPARE(titles(QStringLiteral("Opening"), QStringLiteral("color")).value(4),
             QStringLiteral("Turquoise"));
    // A clip in a bin has no menu to be in, so the cell is empty; its tool tip names the clip.
    const QModelIndex inBin = m_project->cell(
        Tab::Markers, m_project->rowOf(Tab::Markers, QStringLiteral("name"), QStringLiteral("Tide turns")),
        clip);
    QCOMPARE(inBin.data(), QString());
    const QString tip = inBin.data(Qt::ToolTipRole).toString();
    QVERIFY2(tip.contains(QStringLiteral("which is in no sequence")), qPrintable(tip));
    // A clip in a multiclip is not in the menu of its sequence, either.
    const QModelIndex inMulticlip = m_project->cell(
        Tab::Markers, m_project->rowOf(Tab::Markers, QStringLiteral("name"), QStringLiteral("Chorus")), clip);
    m_project->markers.model().recordAt(inMulticlip.row())->set(MarkerKey::clipIndex, std::int64_t(0));
    QCOMPARE(inMulticlip.data(), QStringLiteral("Quay camera A"));
}

void TestModels::knowVolumes_data()
{
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QString>("volume");
    QTest::newRow("start-up") << "/home/editor"
                              << "/";
    QTest::newRow("volume") << "/Volumes/Media/Reel 1"
                            << "/Volumes/Media";
    QTest::newRow("volumes") << "/Volumes" << QString();
    QTest::newRow("mapped") << "/run/media/editor/Disk/a"
                            << "/run/media/editor/Disk";
    QTest::newRow("empty") << ""
                           << "/";
}

void TestModels::knowVolumes()
{
    QFETCH(const QString, directory);
    QTEST(MediaTableModel::volumeOf(directory,
                                    {QStringLiteral("/Volumes"), QStringLiteral("/run/media/editor")}),
          "volume");
}

} // namespace vantrell

QTEST_MAIN(vantrell::TestModels)
#include "tst_models.moc"
