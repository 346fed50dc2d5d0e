#include "document/UnsavedChanges.h"
#include "support/log/QVLog.h"
#include "tests/support/LongSeries.h"
#include "tests/support/RunningProgram.h"
#include "tests/support/TemporaryHome.h"
#include "tests/workbench/RandomEdits.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>

#include <thread>

using namespace vantrell;

namespace
{

QByteArray marker(const QByteArray &name, int in)
{
    return "<marker><name>" + name + "</name><in>" + QByteArray::number(in) + "</in><out>-1</out></marker>";
}

QByteArray sequence(const QByteArray &name, const QByteArray &content)
{
    return "<sequence><uuid>U-" + name + "</uuid><name>" + name + "</name>" + content + "</sequence>";
}

QByteArray xmeml(const QByteArray &content)
{
    return "<xmeml><project><name>P</name><children>" + content + "</children></project></xmeml>";
}

constexpr std::chrono::milliseconds soon{10};

} // namespace

class JournalTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TemporaryHome> m_home;
    QString m_folder;

    std::shared_ptr<DocumentJournal> newJournal() const
    {
        return std::make_shared<DocumentJournal>(m_folder, soon);
    }

    /// A journal that restores the only one in the folder.
    std::shared_ptr<DocumentJournal> restoring(const QString &folder) const
    {
        const std::vector<FoundJournal> found = JournalFolder::find(folder);
        auto journal = newJournal();
        std::optional<JournalFolder::Restorable> taken;
        if (found.size() == 1)
            taken = JournalFolder::take(found[0]);
        if (!taken)
            return nullptr;
        journal->setRestorable(*std::move(taken));
        return journal;
    }

    QStringList journals() const { return QDir(m_folder).entryList(QDir::Files); }

    static bool save(UndoProject &p)
    {
        MyDocument &document = p.document();
        if (!document.writeToURL(document.fileURL(), DocumentType::finalCutProXMLFile))
            return false;
        document.setFileURL(document.fileURL());
        document.clearChangeCount();
        return true;
    }

    static void rename(UndoProject &p, std::size_t row, const char *name)
    {
        p.workbench.markerEditor().setValue(p.rows(Tab::Markers, {row}), QStringLiteral("name"),
                                            QString::fromLatin1(name));
    }

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<TemporaryHome>();
        QVLog::createNewLog(QStringLiteral("Test"), true);
        m_folder = m_home->path(QStringLiteral("journals"));
    }
    void cleanup()
    {
        QVLog::willTerminate();
        m_home.reset();
    }

    /// What another process finds of a project after any edits is the project as it was.
    void restoresRandomEdits()
    {
        for (int seed = 0; seed < seriesLength(200); ++seed) {
            const QByteArray where = "seed " + QByteArray::number(seed);
            const QString path = m_home->addFile(QStringLiteral("p.xml"), RandomProject(quint64(seed)).xml());
            QDir(m_folder).removeRecursively();
            UndoProject p(path, newJournal());
            RandomEdits edits(p, quint64(seed) + 1);
            RandomNumbers random(quint64(seed) + 2);
            for (int i = 0; i < 20; ++i) {
                switch (random.below(12)) {
                case 0:
                case 1:
                    p.document().undo();
                    break;
                case 2:
                    p.document().redo();
                    break;
                case 3:
                    QVERIFY(save(p));
                    break;
                default:
                    edits.editOnce();
                }
            }
            p.document().journal()->finish();
            const ProjectState state = p.state();
            const QByteArray file = contentOf(path);
            QCOMPARE(int(journals().size()), p.document().isEdited() ? 1 : 0);
            if (journals().isEmpty())
                continue;
            // As a killed process leaves it.
            const QString other = m_home->path(QStringLiteral("left"));
            QDir(other).removeRecursively();
            QDir().mkpath(other);
            QVERIFY(QFile::copy(m_folder + QLatin1Char('/') + journals().at(0),
                                other + QStringLiteral("/left.journal")));
            const std::size_t unsaved = countUnsavedChanges(p.document().history(), p.document().marks());
            QCOMPARE(std::size_t(JournalFolder::find(other).at(0).changes), unsaved);
            QCOMPARE(JournalFolder::find(other).at(0).project, FoundJournal::Project::Unchanged);

            UndoProject q(path, restoring(other));
            const DocumentJournal::Outcome outcome = q.document().journal()->outcome().value();
            QVERIFY2(outcome.restored == outcome.total && !outcome.isFileChanged, where.constData());
            QVERIFY2(q.state().file == state.file, where.constData());
            QVERIFY2(q.document().isEdited(), where.constData());
            QVERIFY2(q.state().values == UndoProject(state.file).state().values, where.constData());
            QCOMPARE(contentOf(path), file);
            // The journal goes on: undone, done again and edited further, then left once more.
            int undone = 0;
            while (q.document().undo())
                ++undone;
            if (!q.document().isEdited())
                QVERIFY2(q.state().file == UndoProject(file).state().file, where.constData());
            while (undone-- > 0)
                QVERIFY(q.document().redo());
            QVERIFY2(q.state().file == state.file, where.constData());
            RandomEdits more(q, quint64(seed) + 3);
            more.editOnce();
            more.editOnce();
            const QByteArray edited = q.state().file;
            q.document().journal()->finish();
            const QStringList left = QDir(other).entryList(QDir::Files);
            if (!q.document().isEdited() || left.isEmpty())
                continue;
            const QString third = m_home->path(QStringLiteral("third"));
            QDir(third).removeRecursively();
            QDir().mkpath(third);
            QVERIFY(QFile::copy(other + QLatin1Char('/') + left.at(0), third + QStringLiteral("/x.journal")));
            QVERIFY2(UndoProject(path, restoring(third)).state().file == edited, where.constData());
        }
    }

    /// A process that is killed loses nothing that is older than the interval.
    void survivesAKill()
    {
        const QString editor = qEnvironmentVariable("VANTRELL_BIN_DIR") + QStringLiteral("/journal-editor");
        const QString path = m_home->path(QStringLiteral("p.xml"));
        const QString logPath = m_home->path(QStringLiteral("log"));
        constexpr int interval = 200; // milliseconds
        const bool isFull = qgetenv("VANTRELL_SERIES") == "full";
        RandomNumbers random(17);
        for (int seed = 0; seed < (isFull ? 200 : 10); ++seed) {
            const QByteArray where = "seed " + QByteArray::number(seed);
            const QByteArray xml = RandomProject(quint64(seed)).xml();
            m_home->addFile(QStringLiteral("p.xml"), xml);
            QDir(m_folder).removeRecursively();
            QFile::remove(logPath);
            qint64 killed = 0;
            {
                RunningProgram program(
                    editor, {path, m_folder, logPath, QString::number(seed), QString::number(interval)});
                QVERIFY(program.hasStarted());
                QTRY_VERIFY_WITH_TIMEOUT(contentOf(logPath).contains('\n'), 40000);
                std::this_thread::sleep_for(std::chrono::milliseconds(random.below(500)));
                QVERIFY(JournalFolder::find(m_folder).empty()); // it belongs to a living process
                killed = QDateTime::currentMSecsSinceEpoch();
                program.end();
            }
            QVERIFY2(contentOf(path) == xml, where.constData());
            // All states by then, and the latest one that must not be lost.
            QByteArrayList states = contentOf(logPath).split('\n');
            states.removeLast(); // not whole, or empty
            qsizetype oldest = 0;
            for (qsizetype i = 0; i < states.size(); ++i) {
                if (states[i].split(' ').value(0).toLongLong() < killed - interval)
                    oldest = i;
                states[i] = states[i].mid(states[i].indexOf(' ') + 1);
            }
            const bool isLeft = !JournalFolder::find(m_folder).empty();
            UndoProject q(path, isLeft ? restoring(m_folder) : newJournal());
            const ProjectState state = q.state();
            const QByteArray now = QCryptographicHash::hash(state.file, QCryptographicHash::Sha1).toHex() +
                                   ' ' +
                                   state.modified.value_or(QStringList()).join(QLatin1Char(',')).toUtf8();
            // An edit may have ended whose state was not logged any more.
            const bool isLater = isLeft && q.document().journal()->outcome()->restored ==
                                               q.document().journal()->outcome()->total;
            QVERIFY2(states.lastIndexOf(now) >= oldest || (isLater && !states.contains(now)),
                     where.constData());
            q.document().journal()->discard();
        }
    }

    /// There is a journal only while there are unsaved changes.
    void cleanEnds()
    {
        const QString path =
            m_home->addFile(QStringLiteral("p.xml"), xmeml(sequence("A", marker("a", 1) + marker("b", 2))));
        UndoProject p(path, newJournal());
        const auto count = [&] {
            p.document().journal()->finish();
            return int(journals().size());
        };
        QCOMPARE(count(), 0);
        rename(p, 0, "x");
        QCOMPARE(count(), 1);
        QVERIFY(JournalFolder::find(m_folder).empty()); // it belongs to a living process
        p.document().undo();
        QCOMPARE(count(), 0);
        p.document().redo();
        QCOMPARE(count(), 1);
        QVERIFY(save(p));
        QCOMPARE(count(), 0);
        p.document().undo();
        QCOMPARE(count(), 1);
        p.document().journal()->discard();
        QCOMPARE(count(), 0);
        rename(p, 1, "y");
        QCOMPARE(count(), 0);
    }

    /// What is left of the edits when the file is another one by then.
    void changedFile_data()
    {
        QTest::addColumn<QByteArray>("now");
        QTest::addColumn<int>("restored");
        QTest::addColumn<QByteArray>("result"); // names and in points of the markers
        const QByteArray a = marker("a", 1);
        const QByteArray b = marker("b", 2);
        const QByteArray c = marker("c", 3);
        // Edits: a is renamed, b moved to 01:00:00:07, then renamed; c is removed; a marker is added to B.
        QTest::newRow("the same") << xmeml(sequence("A", a + b + c) + sequence("B", {})) << 5
                                  << QByteArray("x:1 y:108007 new:5");
        QTest::newRow("more in front") << xmeml(sequence("0", marker("a", 1)) +
                                                sequence("A", marker("n", 9) + a + b + c) + sequence("B", {}))
                                       << 5 << QByteArray("a:1 n:9 x:1 y:108007 new:5");
        QTest::newRow("one changed") << xmeml(sequence("A", a + marker("b", 4) + c) + sequence("B", {})) << 3
                                     << QByteArray("x:1 b:4 new:5");
        QTest::newRow("one gone") << xmeml(sequence("A", a + c) + sequence("B", {})) << 3
                                  << QByteArray("x:1 new:5");
        QTest::newRow("one there twice") << xmeml(sequence("A", a + a + b + c) + sequence("B", {})) << 5
                                         << QByteArray("x:1 a:1 y:108007 new:5");
        QTest::newRow("sequences in another order")
            << xmeml(sequence("B", {}) + sequence("A", c + b + a)) << 5 << QByteArray("new:5 y:108007 x:1");
        QTest::newRow("one sequence gone")
            << xmeml(sequence("A", a + b + c)) << 4 << QByteArray("x:1 y:108007");
        QTest::newRow("nothing applies") << xmeml(sequence("C", a + b + c)) << 0 << QByteArray("a:1 b:2 c:3");
    }
    void changedFile()
    {
        const QString path = m_home->addFile(
            QStringLiteral("p.xml"),
            xmeml(sequence("A", marker("a", 1) + marker("b", 2) + marker("c", 3)) + sequence("B", {})));
        {
            UndoProject p(path, newJournal());
            rename(p, 0, "x");
            p.workbench.markerEditor().setValue(p.rows(Tab::Markers, {1}), QStringLiteral("in"),
                                                QStringLiteral("7"));
            rename(p, 1, "y");
            p.alerts->queueAnswer(1);
            p.workbench.markerEditor().remove(p.rows(Tab::Markers, {2}));
            p.workbench.markerEditor().addMarkerWithName(QStringLiteral("new"), 5, -1, QString(),
                                                         QStringLiteral("red"), 2);
            QCOMPARE(p.document().marks().sequences(),
                     std::optional(QStringList{QStringLiteral("U-A"), QStringLiteral("U-B")}));
        }
        QFETCH(QByteArray, now);
        m_home->addFile(QStringLiteral("p.xml"), now);
        QFETCH(int, restored);
        {
            UndoProject q(path, restoring(m_folder));
            QByteArrayList names;
            for (const RowRecordPtr &row : q.document().markerArray())
                names.append(row->get(MarkerKey::name).toUtf8() + ':' + row->get(MarkerKey::in).toUtf8());
            QTEST(names.join(' '), "result");
            const DocumentJournal::Outcome outcome = *q.document().journal()->outcome();
            QVERIFY(outcome.isFileChanged);
            QCOMPARE(int(outcome.total), 5);
            QCOMPARE(int(outcome.restored), restored);
            QCOMPARE(int(outcome.partly), 0);
            QCOMPARE(q.document().isEdited(), restored > 0);
            QCOMPARE(contentOf(path), now);
            int undone = 0;
            while (q.document().undo())
                ++undone;
            QCOMPARE(undone, restored);
            QCOMPARE(q.state().file, UndoProject(now).state().file);
        }
        // Nothing is lost of a journal of which nothing applied.
        QCOMPARE(int(JournalFolder::find(m_folder).size()), restored == 0 ? 1 : 0);
    }

    /// Touched, or replaced by a copy, the file is the same.
    void sameContentElsewhere()
    {
        const QByteArray xml = xmeml(sequence("A", marker("a", 1) + marker("a", 1)));
        const QString path = m_home->addFile(QStringLiteral("p.xml"), xml);
        {
            UndoProject p(path, newJournal());
            p.document().knownFile()->rememberContent();
            rename(p, 1, "x"); // which only its position tells from the other one
        }
        QFile::remove(path);
        m_home->addFile(QStringLiteral("other"), QByteArray());
        m_home->addFile(QStringLiteral("p.xml"), xml);
        UndoProject q(path, restoring(m_folder));
        QVERIFY(!q.document().journal()->outcome()->isFileChanged);
        QCOMPARE(q.document().markerArray().at(1)->get(MarkerKey::name), QStringLiteral("x"));
    }

    /// A crash between replacing the project and removing the journal.
    void savedAlready()
    {
        const QString path = m_home->addFile(QStringLiteral("p.xml"), xmeml(sequence("A", marker("a", 1))));
        UndoProject p(path, newJournal());
        rename(p, 0, "x");
        QVERIFY(p.document().writeToURL(p.document().fileURL(), DocumentType::finalCutProXMLFile));
        QCOMPARE(journals().size(), 1);
        const QString left = m_home->path(QStringLiteral("left"));
        QDir().mkpath(left);
        QVERIFY(QFile::copy(m_folder + QLatin1Char('/') + journals().at(0),
                            left + QStringLiteral("/left.journal")));
        QVERIFY(JournalFolder::find(left).empty());
        QVERIFY(QDir(left).isEmpty());
    }

    /// A journal that cannot be kept changes nothing else.
    void withoutAFolder()
    {
        const QString path = m_home->addFile(QStringLiteral("p.xml"), xmeml(sequence("A", marker("a", 1))));
        UndoProject p(path, std::make_shared<DocumentJournal>(path + QStringLiteral("/no"), soon));
        rename(p, 0, "x");
        QVERIFY(p.document().undo() && p.document().redo());
        p.document().journal()->finish();
        QVERIFY(save(p));
        QVERIFY(contentOf(path).contains("<name>x</name>"));
    }

    /// What reverting tells.
    void unsavedChanges()
    {
        const QString path =
            m_home->addFile(QStringLiteral("p.xml"), xmeml(sequence("A", marker("a", 1) + marker("b", 2)) +
                                                           sequence("B", marker("c", 3))));
        UndoProject p(path, nullptr);
        const auto text = [&p] { return UnsavedChanges::of(p.document()).text(); };
        QCOMPARE(text(), QString());
        rename(p, 0, "x");
        QCOMPARE(text(), QStringLiteral("1 change to 1 marker in 1 sequence"));
        rename(p, 0, "y");
        p.alerts->queueAnswer(1);
        p.workbench.markerEditor().remove(p.rows(Tab::Markers, {2}));
        QCOMPARE(text(), QStringLiteral("3 changes to 2 markers in 2 sequences"));
        p.document().undo();
        QCOMPARE(text(), QStringLiteral("2 changes to 1 marker in 1 sequence"));
        p.document().clearChangeCount();
        p.document().undo();
        QCOMPARE(text(), QStringLiteral("1 change to 1 marker in 1 sequence"));
        p.document().updateChangeCount();
        QCOMPARE(text(), QString());
    }
};

QTEST_GUILESS_MAIN(JournalTest)
#include "tst_journal.moc"
