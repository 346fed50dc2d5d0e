#include "journal/JournalWriter.h"
#include "support/log/QVLog.h"
#include "tests/support/LogLines.h"
#include "tests/support/TemporaryHome.h"

#include <QDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

using namespace vantrell;

namespace
{

JournalHeader header(const QString &project)
{
    return {project, QStringLiteral("public.xml"), FileStamp::ofPath(project), 12};
}

JournalStep step(int number)
{
    return {1000 + number, std::uint32_t(number), std::string(std::size_t(number * 20), char('a' + number))};
}

} // namespace

class JournalFileTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TemporaryHome> m_home;
    QString m_folder;
    QString m_project;

    std::string whole() const
    {
        return JournalFile::beginning(header(m_project)) + JournalFile::record(step(1)) +
               JournalFile::digestRecord("digest") + JournalFile::record(step(2)) +
               JournalFile::record(step(3));
    }

    QString add(const std::string &bytes) const
    {
        return m_home->addFile(QStringLiteral("state/journals/a.journal"), QByteArray::fromStdString(bytes));
    }

    QStringList names() const { return QDir(m_folder).entryList(QDir::Files); }

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<TemporaryHome>();
        QVLog::createNewLog(QStringLiteral("Test"), true);
        m_folder = m_home->path(QStringLiteral("state/journals"));
        m_project = m_home->addFile(QStringLiteral("My Project.xml"), "<xmeml/>");
    }
    void cleanup()
    {
        QVLog::willTerminate();
        m_home.reset();
    }

    void readsWhatWasWritten()
    {
        JournalContents contents;
        QCOMPARE(JournalFile::read(whole(), contents), JournalFile::Fault::None);
        QCOMPARE(contents.header.projectPath, m_project);
        QCOMPARE(contents.header.typeName, QStringLiteral("public.xml"));
        QVERIFY(contents.header.file && contents.header.file == FileStamp::ofPath(m_project));
        QCOMPARE(contents.header.elements, 12u);
        QCOMPARE(contents.digest, QByteArray("digest"));
        QVERIFY(!contents.saved && !contents.isTorn);
        QCOMPARE(contents.steps.size(), std::size_t(3));
        QCOMPARE(contents.steps[1].time, std::int64_t(1002));
        QCOMPARE(contents.steps[2].content, std::string(60, 'd'));
    }

    /// Wherever it ends, what was whole by then is there.
    void losesOnlyTheTail()
    {
        const std::string bytes = whole();
        std::size_t last = 0;
        for (std::size_t size = 0; size < bytes.size(); ++size) {
            JournalContents contents;
            const JournalFile::Fault fault = JournalFile::read(bytes.substr(0, size), contents);
            QVERIFY(fault == JournalFile::Fault::None || fault == JournalFile::Fault::Empty);
            QVERIFY(fault == JournalFile::Fault::None || last == 0);
            QVERIFY(contents.steps.size() >= last && contents.steps.size() <= last + 1);
            last = contents.steps.size();
        }
        QCOMPARE(last, std::size_t(2));
    }

    /// A byte that is another one costs the journal, or what stands behind it.
    void noticesEveryChange()
    {
        const std::string bytes = whole();
        for (std::size_t at = 0; at < bytes.size(); ++at) {
            std::string changed = bytes;
            changed[at] = char(changed[at] ^ 0x21);
            JournalContents contents;
            const JournalFile::Fault fault = JournalFile::read(changed, contents);
            QVERIFY(fault != JournalFile::Fault::None || contents.isTorn);
            for (std::size_t i = 0; i < contents.steps.size(); ++i)
                QCOMPARE(contents.steps[i].content, step(int(i) + 1).content);
        }
    }

    void finds_data()
    {
        QTest::addColumn<QByteArray>("change"); // what is done to the file
        QTest::addColumn<int>("found");
        QTest::addColumn<QStringList>("left");
        QTest::addColumn<QString>("logged");
        const QStringList same{QStringLiteral("a.journal")};
        QTest::newRow("whole") << QByteArray() << 1 << same << QString();
        QTest::newRow("torn") << QByteArray("torn") << 1 << same << QString();
        QTest::newRow("empty") << QByteArray("empty") << 0 << QStringList() << QString();
        QTest::newRow("without a step") << QByteArray("header") << 0 << QStringList() << QString();
        QTest::newRow("damaged") << QByteArray("damaged") << 0 << QStringList(QStringLiteral("a.damaged"))
                                 << QStringLiteral("a.journal is damaged and was renamed");
        QTest::newRow("foreign") << QByteArray("foreign") << 0 << same
                                 << QStringLiteral("was written by another version");
        QTest::newRow("saved") << QByteArray("saved") << 0 << QStringList() << QString();
        QTest::newRow("undone") << QByteArray("undone") << 0 << QStringList() << QString();
    }
    void finds()
    {
        QFETCH(QByteArray, change);
        std::string bytes = whole();
        if (change == "torn")
            bytes.resize(bytes.size() - 3);
        else if (change == "empty")
            bytes.clear();
        else if (change == "header")
            bytes = JournalFile::beginning(header(m_project));
        else if (change == "damaged")
            bytes[30] = char(bytes[30] ^ 1);
        else if (change == "foreign")
            bytes[9] = 2;
        else if (change == "saved")
            bytes += JournalFile::savedRecord(*FileStamp::ofPath(m_project));
        else if (change == "undone")
            bytes += JournalFile::record({2000, 0, "x"});
        add(bytes);
        const std::vector<FoundJournal> found = JournalFolder::find(m_folder);
        QTEST(int(found.size()), "found");
        QTEST(names(), "left");
        QFETCH(QString, logged);
        const QStringList log = logLines(*m_home, {QStringLiteral("The journal ")});
        QCOMPARE(log.size(), logged.isEmpty() ? 0 : 1);
        QVERIFY2(log.value(0).contains(logged), qPrintable(log.value(0)));
    }

    void tellsOfTheProject()
    {
        add(whole());
        FoundJournal found = JournalFolder::find(m_folder).at(0);
        QCOMPARE(found.changes, 3u);
        QCOMPARE(found.lastChange, std::int64_t(1003));
        QCOMPARE(found.project, FoundJournal::Project::Unchanged);
        QVERIFY(JournalFolder::find(m_folder, m_project + QLatin1Char('x')).empty());
        m_home->addFile(QStringLiteral("My Project.xml"), "<xmeml> </xmeml>");
        QCOMPARE(JournalFolder::find(m_folder, m_project).at(0).project, FoundJournal::Project::Changed);
        QFile::remove(m_project);
        QCOMPARE(JournalFolder::find(m_folder).at(0).project, FoundJournal::Project::Missing);
        QVERIFY(JournalFolder::discard(found));
        QVERIFY(JournalFolder::find(m_folder).empty() && names().isEmpty());
    }

    /// What one has nobody else gets, until it is gone.
    void isSharedByNobody()
    {
        const QString path = add(whole());
        const FoundJournal found = JournalFolder::find(m_folder).at(0);
        std::optional<JournalFolder::Restorable> taken = JournalFolder::take(found);
        QVERIFY(taken);
        QVERIFY(JournalFolder::find(m_folder).empty());
        QVERIFY(!JournalFolder::take(found) && !JournalFolder::discard(found));
        taken.reset();
        QCOMPARE(JournalFolder::find(m_folder).size(), std::size_t(1));

        JournalWriter writer(m_folder, std::chrono::milliseconds(10));
        writer.begin(JournalFile::beginning(header(m_project)));
        writer.append(JournalFile::record(step(1)));
        writer.finish();
        QCOMPARE(names().size(), 2);
        QCOMPARE(JournalFolder::find(m_folder).size(), std::size_t(1));
        writer.replace(*TakenJournal::take(path));
        writer.finish();
        QCOMPARE(names(), QStringList(QStringLiteral("a.journal")));
        QVERIFY(JournalFolder::find(m_folder).empty());
    }

    void writesAndRemoves()
    {
        {
            JournalWriter writer(m_folder, std::chrono::seconds(60));
            writer.begin(JournalFile::beginning(header(m_project)));
            writer.appendIfThere(JournalFile::savedRecord({}));
            writer.finish();
            QVERIFY(names().isEmpty());
            writer.append(JournalFile::record(step(1)));
            writer.remove();
            writer.append(JournalFile::record(step(2)));
            writer.setGivenUp(true);
            writer.finish();
            QVERIFY(names().size() == 1 && names().at(0).endsWith(QStringLiteral(".reverted")));
            writer.setGivenUp(false);
            writer.append(JournalFile::record(step(3)));
        }
        const std::vector<FoundJournal> found = JournalFolder::find(m_folder);
        QCOMPARE(found.size(), std::size_t(1));
        QCOMPARE(JournalFolder::take(found[0])->contents.steps.size(), std::size_t(2));
    }

    /// What fits is there, and one line tells of the rest.
    void fullDisk_data()
    {
        QTest::addColumn<int>("limit"); // bytes a file may have; -1 for a folder that cannot be made
        QTest::addColumn<int>("steps");
        QTest::newRow("no folder") << -1 << 0;
        QTest::newRow("no step fits") << 1000 << 0;
        QTest::newRow("some fits") << 3000 << 2;
    }
    void fullDisk()
    {
        QFETCH(int, limit);
        QVLog::finishWriting();
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit before;
        ::getrlimit(RLIMIT_FSIZE, &before);
        const QString folder = limit < 0 ? m_project + QStringLiteral("/journals") : m_folder;
        {
            JournalWriter writer(folder, std::chrono::milliseconds(10));
            writer.begin(JournalFile::beginning(header(m_project)));
            QVERIFY(limit < 0 || QDir().mkpath(m_folder));
            const rlimit narrow{rlim_t(limit < 0 ? 100000 : limit), before.rlim_max};
            ::setrlimit(RLIMIT_FSIZE, &narrow);
            for (int i = 0; i < 5; ++i)
                writer.append(JournalFile::record({1, 1, std::string(1200, 'x')}));
            writer.finish();
            ::setrlimit(RLIMIT_FSIZE, &before);
            writer.append(JournalFile::record({1, 1, "later"}));
        }
        QFETCH(int, steps);
        const std::vector<FoundJournal> found = JournalFolder::find(folder);
        QCOMPARE(int(found.size()), steps > 0 ? 1 : 0);
        if (steps > 0)
            QCOMPARE(int(JournalFolder::take(found[0])->contents.steps.size()), steps);
        QCOMPARE(logLines(*m_home, {QStringLiteral("journal of unsaved changes cannot")}).size(), 1);
    }
};

QTEST_GUILESS_MAIN(JournalFileTest)
#include "tst_journalfile.moc"
