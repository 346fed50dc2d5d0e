#include "handover/ChecksumJournal.h"
#include "handover/HashList.h"
#include "handover/HashListMaker.h"
#include "handover/Verification.h"
#include "support/log/QVLog.h"
#include "tests/support/TemporaryHome.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace vantrell;

namespace
{

constexpr std::chrono::seconds longPatience{30};
constexpr ChecksumKinds allKinds{true, true, true};

bool always(const ChecksumRun::Progress &)
{
    return true;
}

ChecksumResult readFile(
    const QString &path, const ChecksumRun::Advance &advance = [](std::int64_t) { return true; })
{
    return ChecksumRun::read({QFile::encodeName(path), allKinds, 0}, advance);
}

/// What another program says of a file; empty where it is not installed.
QByteArray sumBy(const char *program, const QStringList &options, const QString &path)
{
    const QString found = QStandardPaths::findExecutable(QString::fromLatin1(program));
    QProcess process;
    process.start(found, QStringList(options) << path);
    return !found.isEmpty() && process.waitForFinished() ? process.readAllStandardOutput().split(' ').first()
                                                         : QByteArray();
}

} // namespace

class ChecksumsTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

private Q_SLOTS:
    void initTestCase() { QVLog::createNewLog(QStringLiteral("tests"), true); }

    /// What a cancelled run has read is not read again, until the list is there.
    void resumesLists()
    {
        QStringList places;
        for (int i = 0; i < 40; ++i)
            places.append(m_home.addFile(QStringLiteral("resume/%1").arg(i), "before"));
        places.append(m_home.addFile(QStringLiteral("resume/large"), "")); // still being read then
        QVERIFY(QFile::resize(places.last(), 200 << 20));
        places.append({QString(), places.front(), m_home.path(QStringLiteral("resume/none"))});
        const QString target = m_home.path(QStringLiteral("resume/list.mhl"));
        QVERIFY(!HashListMaker(places, target)
                     .make([](const ChecksumRun::Progress &progress) { return progress.files == 0; },
                           longPatience));
        for (int i = 0; i < 40; ++i) { // with the same size and date
            QFile file(places[i]);
            QVERIFY(file.open(QIODevice::ReadWrite));
            const QDateTime modified = file.fileTime(QFileDevice::FileModificationTime);
            file.write("behind");
            file.flush();
            QVERIFY(file.setFileTime(modified, QFileDevice::FileModificationTime));
        }
        const auto known = [](const HashListMaker::Made &made) {
            return std::count_if(made.list.entries.begin(), made.list.entries.end(),
                                 [](const HashListEntry &entry) {
                                     return entry.checksums.md5 == "2f44417567bc123bd7c60de8c2a2b444";
                                 });
        };
        HashListMaker again(places, target);
        const auto made = again.make(always, longPatience);
        QVERIFY(made);
        QCOMPARE(made->list.entries.size(), std::size_t(41));
        QCOMPARE(made->list.entries[7].file, QStringLiteral("7"));
        QCOMPARE(made->problems.size(), std::size_t(1));
        QVERIFY(known(*made) > 0);
        again.forget();
        QCOMPARE(known(*HashListMaker(places, target).make(always, longPatience)), 0);
    }

    void knownSums()
    {
        const ChecksumResult empty = readFile(m_home.addFile(QStringLiteral("empty"), ""));
        QVERIFY(empty.state == ChecksumResult::State::Done);
        QCOMPARE(empty.checksums,
                 (Checksums{"d41d8cd98f00b204e9800998ecf8427e", "da39a3ee5e6b4b0d3255bfef95601890afd80709",
                            "ef46db3751d8e999"}));
        const ChecksumResult text = readFile(m_home.addFile(QStringLiteral("abc"), "abc"));
        QCOMPARE(text.checksums, (Checksums{"900150983cd24fb0d6963f7d28e17f72",
                                            "a9993e364706816aba3e25717850c26c9cd0d89d", "44bc2cf5ad770999"}));
        QCOMPARE(text.size, 3);
    }

    /// Files of several blocks, as other programs see them.
    void otherPrograms()
    {
        for (const int size : {(1 << 20) - 1, 1 << 20, 3'000'001}) {
            QByteArray content(size, Qt::Uninitialized);
            for (int i = 0; i < size; ++i)
                content[i] = char((quint64(i) * 7919) >> 5);
            const QString path = m_home.addFile(QStringLiteral("blocks"), content);
            const Checksums sums = readFile(path).checksums;
            QCOMPARE(sums.md5, sumBy("md5sum", {}, path));
            QCOMPARE(sums.sha1, sumBy("sha1sum", {}, path));
            const QByteArray xxhsum = sumBy("xxhsum", {QStringLiteral("-H1")}, path);
            if (!xxhsum.isEmpty())
                QCOMPARE(sums.xxhash64, xxhsum);
        }
    }

    void whatIsNoFile()
    {
        using State = ChecksumResult::State;
        QVERIFY(readFile(m_home.path(QStringLiteral("none"))).state == State::Missing);
        QVERIFY(readFile(m_home.path()).state == State::Unreadable);
        const QString pipe = m_home.path(QStringLiteral("pipe"));
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QVERIFY(readFile(pipe).state == State::Unreadable);
        if (::geteuid() != 0) {
            const QString closed = m_home.addFile(QStringLiteral("closed"), "x");
            QVERIFY(QFile::setPermissions(closed, QFileDevice::Permissions()));
            QVERIFY(readFile(closed).state == State::Unreadable);
        }
    }

    void changedWhileRead()
    {
        const QString path = m_home.addFile(QStringLiteral("growing"), QByteArray(3 << 20, 'x'));
        int blocks = 0;
        const ChecksumResult result = readFile(path, [&](std::int64_t) {
            if (++blocks == 2) {
                QFile file(path);
                if (!file.open(QIODevice::Append) || file.write("y") != 1)
                    return false;
            }
            return true;
        });
        QCOMPARE(blocks, 13);
        QVERIFY(result.state == ChecksumResult::State::Changed);
    }

    /// Files that hang hold up neither the others nor the one who waits; cancelling takes no time.
    void hangingVolume()
    {
        int ends[2];
        QCOMPARE(::pipe(ends), 0);
        const int pipe = ends[0];
        const ChecksumRun::Reader reader = [pipe](const ChecksumRun::Task &task,
                                                  const ChecksumRun::Advance &advance) {
            char byte = 0;
            if (task.path.startsWith("/hung"))
                while (::read(pipe, &byte, 1) < 0)
                    continue;
            return ChecksumRun::read(task, advance);
        };
        const QByteArray path = QFile::encodeName(m_home.addFile(QStringLiteral("well"), "abc"));
        {
            ChecksumRun run({{"/hung", allKinds, 5}, {path, allKinds, 3}, {path, allKinds, 3}}, 2, reader);
            QElapsedTimer timer;
            timer.start();
            std::size_t finished = 0;
            const auto count = [&finished](std::size_t, const ChecksumResult &) { ++finished; };
            QVERIFY(!run.results([](const ChecksumRun::Progress &progress) { return progress.files < 2; },
                                 count, longPatience));
            QCOMPARE(finished, std::size_t(2));
            const auto results = run.results(
                [](const ChecksumRun::Progress &progress) {
                    return progress.totalBytes == 11 && progress.bytes == 6;
                },
                {}, std::chrono::milliseconds(200));
            QVERIFY(results && timer.elapsed() < 20'000);
            QVERIFY((*results)[0].state == ChecksumResult::State::Unreadable);
            QCOMPARE((*results)[2].size, 3);
        }
        QCOMPARE(::write(ends[1], "x", 1), ssize_t(1)); // lets the thread end that was left behind
    }

    void journal()
    {
        const QString list = QStringLiteral("/somewhere/list.mhl");
        const QByteArray path = "/a\tb\nc";
        const ChecksumResult made{ChecksumResult::State::Done,
                                  {"00", "", "11"},
                                  5,
                                  6000,
                                  QDateTime::fromMSecsSinceEpoch(7000, Qt::UTC)};
        ChecksumJournal(list).add(path, made);
        {
            ChecksumJournal again(list);
            const auto known = again.find(path, 5, 6000);
            QVERIFY(known);
            QCOMPARE(known->checksums, made.checksums);
            QCOMPARE(known->made, made.made);
            QVERIFY(!again.find(path, 4, 6000) && !again.find(path, 5, 6001) && !again.find("/a", 5, 6000));
            QVERIFY(!ChecksumJournal(list + QLatin1Char('x')).find(path, 5, 6000));
            again.remove();
        }
        QVERIFY(!ChecksumJournal(list).find(path, 5, 6000));
    }

    /// A list says of the files what is written into it, and is compared with the files again.
    void lists()
    {
        const QString folder = m_home.path(QStringLiteral("sent"));
        HashList list;
        list.tool = QStringLiteral("a & b");
        list.started = list.finished = QDateTime::fromMSecsSinceEpoch(1'000'000'000, Qt::UTC);
        QStringList paths;
        for (const char *name : {"a <b>.mov", "sub/e\xCC\x81.mov", "changed.mov", "grown.mov", "gone.mov"})
            paths.append(m_home.addFile(QStringLiteral("sent/") + QString::fromUtf8(name), name));
        for (const QString &path : paths) {
            const ChecksumResult result = readFile(path);
            list.entries.push_back({HashList::entryName(path, folder), result.size,
                                    QDateTime::fromMSecsSinceEpoch(1'500'000'000, Qt::UTC), result.checksums,
                                    result.made});
        }
        list.entries.push_back({QStringLiteral("a <b>.mov"), 9, QDateTime(), Checksums(), QDateTime()});
        const auto bytes = list.toBytes();
        QVERIFY(bytes);
        QVERIFY(bytes.value().startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<hashlist "
                                         "version=\"1.1\">\n  <creatorinfo>\n    <name>"));
        QVERIFY(bytes.value().contains(
            "\n    <tool>a &amp; b</tool>\n    <startdate>1970-01-12T13:46:40Z</startdate>"));
        QVERIFY(bytes.value().contains(
            "\n  <hash>\n    <file>a &lt;b&gt;.mov</file>\n    <size>9</size>\n"
            "    <lastmodificationdate>1970-01-18T08:40:00Z</lastmodificationdate>\n    <md5>"));
        const QString path = m_home.addFile(QStringLiteral("sent/list.mhl"), bytes.value());
        const auto read = HashList::fromFile(path);
        QVERIFY(read);
        QCOMPARE(read.value().tool, list.tool);
        QCOMPARE(read.value().entries.size(), list.entries.size());
        QCOMPARE(read.value().entries[1].checksums, list.entries[1].checksums);
        QCOMPARE(read.value().entries[1].modified, list.entries[1].modified);

        m_home.addFile(QStringLiteral("sent/changed.mov"), "CHANGED.mov");
        m_home.addFile(QStringLiteral("sent/grown.mov"), "grown.mov.");
        QVERIFY(QFile::remove(folder + QStringLiteral("/gone.mov")));
        // On the way the name has got the other Unicode form.
        QVERIFY(QFile::rename(folder + QString::fromUtf8("/sub/e\xCC\x81.mov"),
                              folder + QString::fromUtf8("/sub/\xC3\xA9.mov")));
        const auto verified = Verification(read.value().entries, folder).compare(always, longPatience);
        QVERIFY(verified);
        using State = Verification::State;
        const State expected[] = {State::Same,    State::Same,    State::Changed,
                                  State::Changed, State::Missing, State::Unreadable};
        for (std::size_t i = 0; i < verified->size(); ++i)
            QVERIFY2((*verified)[i].state == expected[i], qPrintable((*verified)[i].file));
    }

    void foreignLists()
    {
        const auto entryOf = [this](const QByteArray &content) {
            const auto list = HashList::fromFile(
                m_home.addFile(QStringLiteral("foreign.mhl"),
                               "<hashlist><hash><file>abc</file>" + content + "</hash></hashlist>"));
            return list ? list.value().entries.front() : HashListEntry();
        };
        const Checksums found{"900150983cd24fb0d6963f7d28e17f72", "a9993e364706816aba3e25717850c26c9cd0d89d",
                              "44bc2cf5ad770999"};
        QVERIFY(entryOf("<md5>900150983CD24FB0D6963F7D28E17F72</md5>").agreesWith(found));
        QVERIFY(entryOf("<xxhash64>990977adf52cbc44</xxhash64>").agreesWith(found));
        QVERIFY(!entryOf("<xxhash64be>990977adf52cbc45</xxhash64be>").agreesWith(found));
        QVERIFY(!entryOf("<md5>900150983cd24fb0d6963f7d28e17f72</md5><sha1>00</sha1>").agreesWith(found));
        QVERIFY(!entryOf("<null/>").agreesWith(found));
        QVERIFY(!HashList::fromFile(m_home.addFile(QStringLiteral("other"), "<xmeml/>")));
        const auto cut = HashList::fromFile(m_home.addFile(QStringLiteral("cut"), "<hashlist>"));
        QVERIFY(!cut);
        QVERIFY(cut.message().contains(QStringLiteral("is no media hash list: it is not well-formed")));
    }
};

QTEST_GUILESS_MAIN(ChecksumsTest)
#include "tst_checksums.moc"
