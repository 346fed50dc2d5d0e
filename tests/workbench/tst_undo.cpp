#include "tests/support/LongSeries.h"
#include "tests/support/TemporaryHome.h"
#include "tests/workbench/RandomEdits.h"
#include "tests/workbench/UndoProject.h"

#include <QElapsedTimer>

#include <functional>
#include <unordered_set>

using namespace vantrell;

namespace
{

QByteArray marker(const QByteArray &name, int in)
{
    return "<marker><name>" + name + "</name><in>" + QByteArray::number(in) + "</in><out>-1</out></marker>";
}

QByteArray sequence(const QByteArray &name, const QByteArray &content)
{
    return "<sequence><uuid>U-" + name + "</uuid><name>" + name +
           "</name><media><video><track><clipitem id=\"c\"><name>Clip</name><start>0</start><end>9</end>"
           "<filter><enabled>TRUE</enabled><effect><name>Blur</name><effecttype>filter</effecttype></effect>"
           "</filter></clipitem><generatoritem><name>Text</name><effect><name>Text</name></effect>" +
           marker("on text", 7) + "</generatoritem></track></video></media>" + content + "</sequence>";
}

const QByteArray twoSequences = "<xmeml><project><children>" +
                                sequence("A", marker("a", 5) + marker("b", 3) + marker("c", 9)) +
                                sequence("B", marker("d", 1)) + "</children></project></xmeml>";

} // namespace

class UndoTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

    static bool isShownRight(UndoProject &p)
    {
        for (const Tab tab : {Tab::Media, Tab::Effects, Tab::Markers}) {
            const RowList &list = p.document().rowView(tab).list();
            const std::unordered_set<RowRecordPtr> known(list.begin(), list.end());
            const RowList &rows = p.document().rowsOnShow(tab);
            if (!std::all_of(rows.begin(), rows.end(), [&](const auto &row) { return known.contains(row); }))
                return false;
        }
        return true;
    }

private Q_SLOTS:
    void initTestCase() { QVLog::createNewLog(QStringLiteral("undo"), true); }

    void randomEdits()
    {
        for (int seed = 0; seed < seriesLength(600); ++seed) {
            const QByteArray where = "seed " + QByteArray::number(seed);
            const QByteArray xml = RandomProject(quint64(seed)).xml();
            UndoProject p(xml);
            std::vector<ProjectState> states{p.state()};
            std::vector<int> numbers{0}; // of the states: none is used twice
            std::size_t now = 0;
            int last = 0;
            int saved = 0;
            RandomEdits edits(p, quint64(seed) + 1);
            RandomNumbers random(quint64(seed) + 2);
            for (int i = 0; i < 25; ++i) {
                switch (random.below(8)) {
                case 0:
                    QCOMPARE(p.document().undo(), now > 0);
                    now -= now > 0 ? 1 : 0;
                    break;
                case 1:
                    QCOMPARE(p.document().redo(), now + 1 < states.size());
                    now += now + 1 < states.size() ? 1 : 0;
                    break;
                case 2:
                    p.document().clearChangeCount();
                    saved = numbers[now];
                    break;
                default: {
                    const int before = p.changes;
                    edits.editOnce();
                    if (p.changes == before)
                        break;
                    states.resize(++now);
                    numbers.resize(now);
                    states.push_back(p.state());
                    // Dropping rows of what is no longer in the tree changes nothing that could be saved.
                    const ProjectState &earlier = states[now - 1];
                    const bool dropsOnly = states[now].file == earlier.file &&
                                           (states[now].markers.size() < earlier.markers.size() ||
                                            states[now].effects.size() < earlier.effects.size());
                    numbers.push_back(dropsOnly ? numbers[now - 1] : ++last);
                }
                }
                QVERIFY2(p.state() == states[now] && isShownRight(p), where.constData());
                QCOMPARE(p.document().isEdited(), numbers[now] != saved);
                QCOMPARE(p.world.edited, p.document().isEdited());
            }
            const std::size_t end = states.size() - 1;
            while (p.document().redo())
                ++now;
            QVERIFY2(now == end && p.state() == states[end], where.constData());
            for (int round = 0; round < 2; ++round) {
                for (; p.document().undo(); --now)
                    QVERIFY2(p.state() == states[now - 1] && isShownRight(p), where.constData());
                QCOMPARE(now, std::size_t(0));
                QCOMPARE(p.state().file, UndoProject(xml).state().file);
                for (; p.document().redo(); ++now)
                    QVERIFY2(p.state() == states[now + 1] && isShownRight(p), where.constData());
                QCOMPARE(now, end);
            }
        }
    }

    /// What was undone leaves nothing behind: the same edits have the same result again.
    void sameEditsAgain()
    {
        for (int seed = 0; seed < seriesLength(200); ++seed) {
            const QByteArray xml = RandomProject(quint64(seed)).xml();
            UndoProject p(xml);
            const auto edit = [&] {
                RandomEdits edits(p, quint64(seed) + 7);
                for (int i = 0; i < 12; ++i)
                    edits.editOnce();
            };
            edit();
            const ProjectState edited = p.state();
            while (p.document().undo()) {
            }
            p.document().viewState().markerFilter = 0;
            edit();
            QVERIFY2(p.state().isLike(edited), QByteArray::number(seed).constData());
        }
    }

    /// Each operation is one step with a name, or none.
    void steps_data()
    {
        using Operation = std::function<void(UndoProject &)>;
        QTest::addColumn<Operation>("operation");
        QTest::addColumn<QString>("name");
        const auto add = [](const char *row, const Operation &operation, const char *name) {
            QTest::newRow(row) << operation << QString::fromLatin1(name);
        };
        const auto set = [&add](const char *column, const std::vector<std::size_t> &rows, const char *text,
                                const char *name) {
            add(
                column,
                [=](UndoProject &p) {
                    p.workbench.markerEditor().setValue(
                        p.rows(Tab::Markers, rows), QString::fromLatin1(column), QString::fromLatin1(text));
                },
                name);
        };
        set("name", {1}, "n", "Rename Marker");
        set("comment", {1, 2}, "n", "Change Comments");
        set("color", {1, 2}, "3", "Change Colors");
        set("in", {2}, "5", "Change In Point");
        set("out", {2}, "5", "Change Duration");
        set("chapter", {1}, "1", "Change Chapter Flag");
        set("QVCUSTOM_X", {1}, "1", "Change Marker Field");
        set("sequence", {1, 2}, "2", "Move Marker to Sequence");
        set("clip", {1}, "1", "Move Marker to Clip");
        add(
            "no clip",
            [](UndoProject &p) {
                p.workbench.markerEditor().setValue(p.rows(Tab::Markers, {1}), QStringLiteral("clip"),
                                                    QStringLiteral("9"));
            },
            "");
        add(
            "no row", [](UndoProject &p) { p.workbench.markerEditor().offset({}, QStringLiteral("1"), {}); },
            "");
        add(
            "add", [](UndoProject &p) { p.workbench.markerEditor().addMarker(); }, "Add Marker");
        add(
            "refused marker",
            [](UndoProject &p) {
                p.alerts->queueAnswer(1);
                p.workbench.markerEditor().addMarkerWithName(QStringLiteral("<"), 1, -1, QString(),
                                                             QString());
            },
            "");
        add(
            "remove",
            [](UndoProject &p) {
                p.alerts->queueAnswer(1);
                p.workbench.markerEditor().remove(p.rows(Tab::Markers, {0, 3}));
            },
            "Remove Markers");
        add(
            "keep",
            [](UndoProject &p) {
                p.alerts->queueAnswer(0);
                p.workbench.markerEditor().remove(p.rows(Tab::Markers, {0, 3}));
            },
            "");
        add(
            "offset",
            [](UndoProject &p) {
                p.workbench.markerEditor().offset(p.rows(Tab::Markers, {0, 3}), QStringLiteral("5"), {});
            },
            "Offset Markers");
        add(
            "import",
            [](UndoProject &p) {
                p.import({QStringLiteral("i"), QStringLiteral("<"), QStringLiteral("j")});
            },
            "Import Markers");
        add(
            "effect",
            [](UndoProject &p) {
                p.workbench.effectEditor().updateXMLEffect(p.rows(Tab::Effects, {0}).front(),
                                                           QStringLiteral("enabled"), QStringLiteral("0"));
            },
            "Switch Off Effect");
        add(
            "no effect",
            [](UndoProject &p) {
                p.workbench.effectEditor().updateXMLEffect(p.rows(Tab::Effects, {0}).front(),
                                                           QStringLiteral("1"), QStringLiteral("0"));
            },
            "");
        // A generator goes with its marker.
        add(
            "remove effects",
            [](UndoProject &p) {
                p.alerts->queueAnswer(1);
                p.workbench.effectEditor().remove(p.rows(Tab::Effects, {0, 2}));
            },
            "Remove Effects");
    }
    void steps()
    {
        QFETCH(std::function<void(UndoProject &)>, operation);
        QFETCH(QString, name);
        UndoProject p(twoSequences);
        const ProjectState before = p.state();
        operation(p);
        const ProjectState after = p.state();
        QCOMPARE(p.document().undoName(), name.isEmpty() ? QString() : name);
        QCOMPARE(p.document().canUndo(), !name.isEmpty());
        QCOMPARE(after == before, name.isEmpty());
        if (name.isEmpty())
            return;
        QVERIFY(p.document().undo());
        QVERIFY(p.state() == before);
        QVERIFY(!p.document().canUndo() && !p.document().isEdited());
        QCOMPARE(p.document().redoName(), name);
        QVERIFY(p.document().redo());
        QVERIFY(p.state() == after && p.document().isEdited() && !p.document().canRedo());
    }

    void showsTheRows()
    {
        UndoProject p(twoSequences);
        p.world.show(Tab::Markers);
        MarkerEditor &markers = p.workbench.markerEditor();
        const auto selected = [&p] {
            QStringList names;
            for (const RowRecordPtr &row : p.document().selectedRecords(Tab::Markers))
                names.append(row->get(MarkerKey::name));
            return names.join(QLatin1Char(' '));
        };
        const auto shown = [&p] {
            QStringList names;
            for (const RowRecordPtr &row : p.document().rowsOnShow(Tab::Markers))
                names.append(row->get(MarkerKey::name));
            return names.join(QLatin1Char(' '));
        };
        const QString all = QStringLiteral("on text a b c on text d");
        QCOMPARE(shown(), all);
        p.document().rowView(Tab::Markers).sortBy({{QStringLiteral("name"), true}});
        const QString sorted = QStringLiteral("on text on text d c b a");
        QCOMPARE(shown(), sorted);
        p.world.selectRows(Tab::Markers, {3, 4});
        p.alerts->queueAnswer(1);
        markers.removeMarkers();
        QCOMPARE(shown(), QStringLiteral("on text a on text d"));
        p.world.show(Tab::Effects);
        p.world.scrolledTo.reset();

        QVERIFY(p.document().undo());
        QCOMPARE(p.world.shownTab, std::optional(Tab::Markers));
        QCOMPARE(selected(), QStringLiteral("b c"));
        QCOMPARE(p.world.scrolledTo, std::optional<std::size_t>(2));
        QVERIFY(p.document().redo());
        QCOMPARE(shown(), QStringLiteral("on text a on text d"));
        QCOMPARE(selected(), QString());

        // On its own tab the table is sorted again.
        p.document().undo();
        p.document().rowView(Tab::Markers).sortBy({{QStringLiteral("name"), true}});
        p.world.selectRows(Tab::Markers, {0});
        p.alerts->queueAnswer(1);
        markers.removeMarkers();
        p.document().undo();
        QCOMPARE(shown(), sorted);
        QCOMPARE(selected(), QStringLiteral("on text"));

        markers.addMarker();
        p.world.selectRows(Tab::Markers, {2});
        p.document().undo();
        QCOMPARE(shown(), sorted);
        QCOMPARE(selected(), QStringLiteral("on text"));
        p.document().redo();
        QCOMPARE(selected(), QStringLiteral("Marker 1"));
    }

    void sendingAndUndoing()
    {
        using Result = MyDocument::SendResult;
        UndoProject p(twoSequences);
        MyDocument &document = p.document();
        const auto rename = [&p](std::size_t row) {
            p.workbench.markerEditor().setValue(p.rows(Tab::Markers, {row}), QStringLiteral("name"),
                                                QStringLiteral("x"));
        };
        const auto send = [&document](Result result) {
            document.beginSending();
            document.endReadingToSend();
            document.endSending(result);
        };
        const auto modified = [&document] {
            return document.modifiedSequenceUUIDs().value_or(QStringList()).join(QLatin1Char(' '));
        };
        rename(1);
        rename(5);
        send(Result::Failed);
        QCOMPARE(modified(), QStringLiteral("U-A U-B"));
        document.undo(); // as if nothing had been sent
        QCOMPARE(modified(), QStringLiteral("U-A"));
        document.redo();
        send(Result::SequencesSent);
        QVERIFY(modified().isEmpty() && !document.isEdited());
        document.undo();
        QVERIFY(document.isEdited());
        QCOMPARE(modified(), QStringLiteral("U-B"));
        document.undo();
        QCOMPARE(modified(), QStringLiteral("U-B U-A"));
        document.redo();
        document.redo(); // as it was sent
        QVERIFY(!document.modifiedSequenceUUIDs() && !document.isEdited());
        document.undo();
        rename(1); // the redo is gone
        QCOMPARE(modified(), QStringLiteral("U-B U-A"));
        document.undo();
        QCOMPARE(modified(), QStringLiteral("U-B"));

        // While the tree is read nothing is undone; after that it counts as changed.
        document.beginSending();
        QVERIFY(!document.canUndo() && !document.undo());
        document.endReadingToSend();
        QVERIFY(document.undo());
        document.endSending(Result::SequencesSent);
        QCOMPARE(modified(), QStringLiteral("U-A"));
        QVERIFY(document.isEdited());
        document.redo(); // as it was sent
        QVERIFY(!document.modifiedSequenceUUIDs() && !document.isEdited());
    }

    /// Equal values are no step once project and sequence count as changed.
    void equalValues()
    {
        UndoProject p(twoSequences);
        const auto set = [&p](std::size_t row, const char *column, const char *text) {
            p.workbench.markerEditor().setValue(p.rows(Tab::Markers, {row}), QString::fromLatin1(column),
                                                QString::fromLatin1(text));
        };
        set(1, "name", "a"); // marks the sequence
        QVERIFY(p.document().canUndo() && p.document().isEdited());
        p.document().undo();
        set(1, "name", "x");
        set(1, "comment", "c");
        p.document().undo();
        const ProjectState before = p.state();
        const int changes = p.changes;
        set(1, "name", "x");
        set(1, "out", "0"); // -1 as before
        QCOMPARE(p.changes, changes);
        QVERIFY(p.state() == before);
        QCOMPARE(p.document().undoName(), QStringLiteral("Rename Marker"));
        QCOMPARE(p.document().redoName(), QStringLiteral("Change Comment"));
        QVERIFY(p.document().redo() && p.document().undo() && p.document().undo());
        QVERIFY(!p.document().isEdited());
        QCOMPARE(p.state().file, UndoProject(twoSequences).state().file);
    }

    /// A removed effect costs as much as it holds, not as much as the project has markers.
    void removesEffectsOfManyMarkers()
    {
        const int generators = longWork(1500);
        const QByteArray generator = "<generatoritem><name>Text</name><effect><name>Text</name></effect>" +
                                     marker("on text", 7).repeated(66) + "</generatoritem>";
        UndoProject p("<xmeml><project><children><sequence><name>A</name><media><video><track>" +
                      generator.repeated(generators) +
                      "</track></video></media></sequence></children></project></xmeml>");
        const RowList markers = p.document().markerArray();
        QElapsedTimer timer;
        timer.start();
        for (int i = 1; i < generators; ++i) {
            p.alerts->queueAnswer(1);
            p.workbench.effectEditor().remove(p.rows(Tab::Effects, {0}));
        }
        QVERIFY(p.document().markerArray() == RowList(markers.end() - 66, markers.end()));
        QVERIFY(p.document().undo() && p.document().undo());
        QVERIFY(p.document().markerArray() == RowList(markers.end() - 3 * 66, markers.end()));
        QVERIFY2(timer.elapsed() < 6000, qPrintable(QString::number(timer.elapsed())));
    }

    /// However many rows were selected, all of them are again.
    void largeSelection()
    {
        QByteArray markers;
        for (int i = 0; i < 3000; ++i)
            markers += marker("m" + QByteArray::number(i), i);
        UndoProject p("<xmeml><project><children>" + sequence("A", markers) +
                      "</children></project></xmeml>");
        p.world.show(Tab::Markers);
        std::vector<std::size_t> selected;
        for (std::size_t i = 0; i < 3000; ++i) {
            if (i % 1000 != 500)
                selected.push_back(i);
        }
        p.world.selectRows(Tab::Markers, selected);
        const RowList rows = p.document().selectedRecords(Tab::Markers);
        p.workbench.markerEditor().setValue({rows[7]}, QStringLiteral("name"), QStringLiteral("x"));
        p.world.selectRows(Tab::Markers, {0});
        QVERIFY(p.document().undo());
        QVERIFY(p.document().selectedRecords(Tab::Markers) == rows);

        p.world.selectRows(Tab::Markers, selected);
        p.alerts->queueAnswer(1);
        p.workbench.markerEditor().remove(rows);
        QVERIFY(p.document().undo());
        QVERIFY(p.document().selectedRecords(Tab::Markers) == rows);
    }

    /// The list is made anew where it was replaced since the step.
    void replacedList()
    {
        UndoProject p(twoSequences);
        const QByteArray before = p.state().file;
        const QString values = p.state().values;
        p.workbench.markerEditor().setValue(p.rows(Tab::Markers, {1}), QStringLiteral("name"),
                                            QStringLiteral("x"));
        p.alerts->queueAnswer(1);
        p.workbench.markerEditor().remove(p.rows(Tab::Markers, {2}));
        const ProjectState after = p.state();
        p.workbench.markerInventory().populateMarkerData();
        while (p.document().undo()) {
        }
        QCOMPARE(p.state().file, before);
        QCOMPARE(p.state().values, values);
        while (p.document().redo()) {
        }
        QVERIFY(p.state().isLike(after));
    }
};

QTEST_GUILESS_MAIN(UndoTest)
#include "tst_undo.moc"
