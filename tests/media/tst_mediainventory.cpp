#include "media/AnswerWithin.h"
#include "media/MediaFile.h"
#include "support/desktop/Workspace.h"
#include "support/log/QVLog.h"
#include "tests/media/MediaProject.h"
#include "tests/support/LongSeries.h"
#include "tests/support/NoThreads.h"
#include "tests/support/RandomProject.h"
#include "tests/support/TemporaryHome.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlDocument.h"

#include <QElapsedTimer>
#include <QScopeGuard>
#include <QSemaphore>
#include <QTest>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace vantrell;

namespace
{

/// File checks that hang for paths that contain a text, until they are let go.
class HangingDisk
{
public:
    ~HangingDisk()
    {
        std::unique_lock lock(m_state->mutex);
        m_state->isReleased = true;
        m_state->changed.notify_all();
        m_state->changed.wait(lock, [this] { return m_state->hanging == 0; });
    }

    FileChecks::Check check() const
    {
        return [state = m_state](const QByteArray &path) {
            std::unique_lock lock(state->mutex);
            if (path.contains("/Hung/")) {
                ++state->hanging;
                state->changed.wait(lock, [&] { return state->isReleased; });
                --state->hanging;
                state->changed.notify_all();
            }
            FileFacts facts;
            facts.exists = true;
            facts.size = 10;
            return facts;
        };
    }

    bool isHanging() const
    {
        const std::lock_guard lock(m_state->mutex);
        return m_state->hanging > 0;
    }

private:
    struct State {
        std::mutex mutex; // guards the rest
        std::condition_variable changed;
        int hanging = 0;
        bool isReleased = false;
    };
    std::shared_ptr<State> m_state = std::make_shared<State>();
};

/// A clip item that defines a file in full, and one that only refers to it.
QByteArray item(const QByteArray &id, const QByteArray &url)
{
    return "<clipitem><file id=\"" + id + "\"><pathurl>" + url + "</pathurl></file></clipitem>";
}

QByteArray item(const QByteArray &id)
{
    return "<clipitem><file id=\"" + id + "\"/></clipitem>";
}

QByteArray sequence(const QByteArray &video, const QByteArray &audio = QByteArray())
{
    return "<sequence><media><video><track>" + video + "</track></video><audio><track>" + audio +
           "</track></audio></media></sequence>";
}

/// Files on the tracks of one sequence of a project.
QByteArray used(const QByteArray &items)
{
    return project(sequence(items));
}

QByteArray keysOf(const RowRecord &record)
{
    QByteArrayList keys;
    for (std::size_t i = 0; i < record.size(); ++i)
        keys.append(record.keyAt(i).text().toUtf8());
    return keys.join(' ');
}

} // namespace

class MediaInventoryTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

private Q_SLOTS:
    void initTestCase() { QVLog::createNewLog(QStringLiteral("tests"), true); }

    void usage()
    {
        const QByteArray a = item("a", "file:///a.mov"), ref = item("a"),
                         noId = "<clipitem><file><pathurl>file:///1"
                                "</pathurl></file></clipitem>",
                         accent = "\xC3\xA9\xF0\x9F\x98\x80";
        const std::pair<QByteArray, QByteArray> table[] = {
            // Video and audio are not added; audio counts in a single sequence only.
            {"<xmeml>" + sequence(a + ref + ref, ref + ref) + "</xmeml>", "3"},
            {"<xmeml>" + sequence("", a + ref) + "</xmeml>", "2"},
            {project(sequence("", a + ref)), "0"},
            {"<xmeml>" + sequence(a) + sequence(ref + ref) + "</xmeml>", "1"},
            // Master clips do not count, sequences inside of clip items do.
            {project("<clip><media><video><track>" + a + "</track></video></media></clip>" + sequence(ref)),
             "1"},
            {used(a + "<clipitem>" + sequence(ref + ref) + "</clipitem>"), "3"},
            {used(a + "<clipitem><file id=\"b\"/><file id=\"a\"/></clipitem>"), "1"},
            {used(noId + "<clipitem><file/></clipitem>" + item("", "file:///b") + item("")), "0 2"},
            // Ids are decoded before they are compared with the others as they stand.
            {used(item("a%20b", "file:///1") + item("a%20b") + item("a b", "file:///2")), "1 1"},
            {used(item("50%", "file:///1") + item("50%")), "0"},
            {used(item("&quot;", "file:///1") + item("%22", "file:///2") + item("'][1", "file:///3")),
             "0 0 1"},
            {used(item("&amp;", "file:///1") + item("&amp;") + item("&amp;amp;", "file:///2")), "2 2"},
            {used(item(accent, "file:///1") + item(accent) + item("x%09y", "file:///4") + item("xy")), "2 1"},
            // Of two definitions with one URL the later one counts for both.
            {used(item("a", "file:///1") + item("b", "file:///1") + item("b") + noId), "2 2 2"},
            // The audio of a root that is a `media` itself counts once per sequence.
            {"<media><audio><track>" + a + ref + "</track></audio>" + sequence("") + sequence("") +
                 "</media>",
             "4"},
        };
        for (const auto &[xml, counts] : table) {
            MediaProject opened;
            QVERIFY(opened.load(xml));
            QByteArrayList found;
            for (const RowRecordPtr &file : opened.document.mediaArray())
                found.append(QByteArray::number(qint64(file->get(MediaKey::usageCount))));
            QVERIFY2(found.join(' ') == counts, xml.constData());
        }
    }

    void usageInRandomProjects()
    {
        qint64 found = 0;
        for (quint64 seed = 0; seed < quint64(seriesLength(1200)); ++seed) {
            const auto tree = XmlDocument::fromData(RandomProject(seed).xml(), {});
            QVERIFY(tree);
            const XmlNode document = tree.value()->node();
            const bool isSingle = bool(document.firstChildElement().childElement("sequence"));
            const XmlNodeList sequences =
                *QVXMLParser::nodesForQuery(QStringLiteral(".//sequence"), document);
            const MediaUsage usage(document, isSingle ? 1 : 0, sequences, [] { return false; });
            const QString root = isSingle ? QStringLiteral("/xmeml[1]/sequence[1]") : QString();
            const XmlNodeList files = *QVXMLParser::nodesForQuery(QStringLiteral(".//file"), document);
            for (const XmlNode file : files) {
                const std::optional<QString> id = QVXMLParser::idAttributeForNode(file);
                if (!id)
                    continue;
                const auto count = [&](const QString &path) {
                    const QString query =
                        path + QStringLiteral("/track/clipitem/file[1][@id=\"%1\"]").arg(*id);
                    return qint64(isSingle ? QVXMLParser::nodesForQuery(query, document)->size()
                                           : QVXMLParser::queryNodes(sequences, query).size());
                };
                qint64 expected = count(QLatin1Char('.') + root + QStringLiteral("/media[1]/video[1]"));
                if (expected == 0)
                    expected = count(root + QStringLiteral("/media[1]/audio[1]"));
                QVERIFY2(usage.usageOf(*id) == expected, qPrintable(QString::number(seed)));
                found += expected;
            }
        }
        QVERIFY2(found > qint64(seriesLength(1200)), qPrintable(QString::number(found)));
    }

    void addresses()
    {
        const auto url = [](const QByteArray &text) { return "<pathurl>" + text + "</pathurl>"; };
        const std::pair<QByteArray, QByteArray> table[] = {
            {url("file://localhost/Volumes/Media/a%20b.mov"), "/Volumes/Media|a b.mov"},
            {url("file://server.local/Share/a.mov?x#y"), "/Share|a.mov"},
            {url("file://localhost/D%3a/m/a.mov") + url("file:///x"), "/D:/m|a.mov"},
            {url("c:/m/a.mov"), "/m|a.mov"},
            {url("c:\\m\\a.mov"), "-"},
            {url("a.mov"), "|a.mov"},
            {"<name>a</name>", ""},
            {url(""), ""},
            {url("file://localhost"), "|"},
            {url("file:///"), "/|/"},
            {url(" "), "-"},
            {url("file:///a b.mov"), "-"},
            {url("file:///a<![CDATA[file:///b]]>"), "/|a /|b"},
            {url("file:///" + QByteArray(10000, 'a')), "/|" + QByteArray(10000, 'a')},
            {url("file:///tmp%00x"), QByteArray("/|tmp\0x", 7)},
        };
        for (const auto &[content, expected] : table) {
            MediaProject opened;
            QVERIFY(opened.load(used("<clipitem><file id=\"f\">" + content + "</file></clipitem>")));
            QByteArrayList files;
            for (const RowRecordPtr &file : opened.document.mediaArray()) {
                const QString path =
                    file->get(MediaKey::directory) + QLatin1Char('|') + file->get(MediaKey::filename);
                files.append(keysOf(*file) == "missing" ? QByteArray("-") : path.toUtf8());
                QCOMPARE(file->get(MediaKey::missing), files.last() != "/|/");
            }
            QCOMPARE(files.join(' '), expected);
        }
    }

    void filesOnDisk()
    {
        const QString movie = m_home.addFile(QStringLiteral("m/é 50%.mov"), QByteArray(1500, 'x'));
        m_home.addFile(QStringLiteral("m/empty.wav"), QByteArray());
        const timespec times[2] = {{1000000000, 0}, {1000000000, 250000000}};
        QVERIFY(utimensat(AT_FDCWD, QFile::encodeName(movie).constData(), times, 0) == 0);
        QVERIFY(QFile::link(movie, m_home.path(QStringLiteral("m/link.mov"))));
        QVERIFY(QFile::link(m_home.path(QStringLiteral("none")), m_home.path(QStringLiteral("m/dead.mov"))));
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, QFile::encodeName(m_home.path(QStringLiteral("m/socket"))).constData(),
                 sizeof address.sun_path);
        const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
        QVERIFY(::bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0);
        ::close(socket);
        const std::pair<const char *, qint64> table[] = {
            {"m/é 50%.mov", 1500}, {"m/empty.wav", 0},    {"m/link.mov", 1500},  {"m/dead.mov", -1},
            {"m/socket", 0},       {"m/é 50%.mov", 1500}, {"m/empty.wav/x", -1}, {"m", -2},
        };
        QByteArray items;
        for (const auto &[name, size] : table)
            items += item("f", QUrl::fromLocalFile(m_home.path(QString::fromUtf8(name))).toEncoded());
        MediaProject opened;
        opened.document.viewState().selectedTab = Tab::Markers;
        QVERIFY(opened.load(used(items)));
        const RowList &files = opened.document.mediaArray();
        for (std::size_t i = 0; i < files.size(); ++i) {
            const qint64 size = table[i].second;
            QCOMPARE(keysOf(*files[i]), "filename directory rawpath usageCount filetype " +
                                            QByteArray(size == -1 ? "missing" : "modDate filesize"));
            if (size >= 0)
                QCOMPARE(files[i]->get(MediaKey::filesize), size);
            if (size == 1500)
                QCOMPARE(files[i]->get(MediaKey::modDate).toMSecsSinceEpoch(), 1000000000250);
        }
        const qint64 folder = files.back()->get(MediaKey::filesize);
        QCOMPARE(opened.label(Label::MediaTotalSize),
                 QStringLiteral("Total size: ") + MediaFile::formatFileSize(double(4500 + folder)));
        QCOMPARE(opened.label(Label::MediaTotalFiles), QStringLiteral("Total number of files: 8"));
        QCOMPARE(opened.label(Label::MediaFilteredTotalSize), QString());
        QCOMPARE(opened.world.events.filter(QStringLiteral("stop")), QStringList{QStringLiteral("stop 0")});
        QVERIFY(!opened.document.isPopulating(Tab::Media));
        QVLog::finishWriting();
        QVERIFY(contentOf(QVLog::availableLogs().value(0)).contains("/m/dead.mov: 8\n"));
    }

    void relativePaths()
    {
        MediaProject opened; // in a folder of its own
        const QString folder = QFileInfo(opened.folder.path()).absoluteFilePath();
        QFile file(folder + QStringLiteral("/near.mov"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("12345") == 5);
        file.close();
        const QString here = QDir::currentPath();
        const auto leave = qScopeGuard([&here] { QDir::setCurrent(here); });
        m_home.addFile(QStringLiteral("far.mov"), "1");
        QDir::setCurrent(m_home.path());
        QVERIFY(opened.load(used(item("a", "near.mov") + item("b", "far.mov") + item("c", "./near.mov"))));
        const RowList &files = opened.document.mediaArray();
        QCOMPARE(files.at(0)->get(MediaKey::filesize), 5);
        QVERIFY(files.at(1)->get(MediaKey::missing));
        QCOMPARE(files.at(2)->get(MediaKey::filesize), 5);
        QCOMPARE(files.at(0)->get(MediaKey::directory), QString());
    }

    void attributesThatCannotBeRead()
    {
        MediaProject opened;
        const auto check = [](const QByteArray &path) {
            FileFacts facts;
            facts.exists = path != "/none";
            if (path == "/dated")
                facts.modified = -1000;
            return facts;
        };
        opened.inventory.setFileCheck(check, std::chrono::seconds(60));
        QVERIFY(opened.load(
            used(item("a", "file:///plain") + item("b", "file:///dated") + item("c", "file:///none"))));
        const RowList &files = opened.document.mediaArray();
        QCOMPARE(files[0]->size(), std::size_t(5));
        QCOMPARE(files[1]->get(MediaKey::modDate).toSecsSinceEpoch(), -1);
        QVERIFY(files[2]->get(MediaKey::missing));
    }

    void closingWhileTheDiskHangs()
    {
        HangingDisk disk;
        QElapsedTimer timer;
        {
            MediaProject opened;
            opened.inventory.setFileCheck(disk.check(), std::chrono::hours(1));
            QByteArray items;
            for (int i = 0; i < 200; ++i)
                items += item("f", "file:///Hung/" + QByteArray::number(i));
            opened.start(used(items));
            QVERIFY(MainThread::drainUntil([&disk] { return disk.isHanging(); }, std::chrono::seconds(40)));
            timer.start();
            opened.document.close();
            QVERIFY(opened.document.mediaArray().empty());
            QVERIFY(!opened.document.isPopulating(Tab::Media));
        }
        QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    }

    void filesAreLookedAtWithoutThreads()
    {
        const NoThreads none;
        const FileChecks checks({"/", "/Volumes/a/b"});
        QElapsedTimer timer;
        timer.start();
        const auto answers = checks.answers([] { return false; }, std::chrono::minutes(1));
        QVERIFY(timer.elapsed() < 30'000);
        QVERIFY(answers && answers->size() == 2);
        QVERIFY(answers->at(0) && answers->at(0)->exists && answers->at(1) && !answers->at(1)->exists);
    }

    /// Mount points, and folders of /Volumes where there are none, are volumes of their own.
    void aVolumeThatDoesNotAnswer_data()
    {
        QTest::addColumn<QByteArray>("hanging");
        QTest::addColumn<QByteArray>("answering");
        QTest::newRow("in /Volumes") << QByteArray("/Volumes/Hung/") << QByteArray("/Volumes/Fine/");
        QTest::newRow("mounted") << QByteArray("/proc/Hung/") << QByteArray("/Fine/");
        QTest::newRow("beside a mount point of similar name")
            << QByteArray("/procession/Hung/") << QByteArray("/proc/Fine/");
    }
    void aVolumeThatDoesNotAnswer()
    {
        QFETCH(const QByteArray, hanging);
        QFETCH(const QByteArray, answering);
        HangingDisk disk;
        MediaProject opened;
        opened.inventory.setFileCheck(disk.check(), std::chrono::milliseconds(300));
        QByteArray items;
        for (int i = 0; i < 300; ++i) {
            items += item("h", "file://" + hanging + QByteArray::number(i));
            items += item("f", "file://" + answering + QByteArray::number(i));
        }
        QVERIFY(opened.load(used(items)));
        const RowList &files = opened.document.mediaArray();
        QCOMPARE(files.size(), std::size_t(600));
        for (std::size_t i = 0; i < files.size(); ++i) {
            QCOMPARE(files[i]->contains(MediaKey::filesize), i % 2 == 1);
            QVERIFY(!files[i]->contains(MediaKey::missing));
        }
        QCOMPARE(opened.label(Label::MediaTotalSize), QStringLiteral("Total size: 2.93 KB"));
    }

    void withoutAProject()
    {
        MediaProject opened;
        opened.document.rowView(Tab::Media).setList({std::make_shared<RowRecord>()});
        std::thread run([&opened] {
            opened.inventory.populateMediaData();
            opened.document.mainThread()->post([&opened] { opened.world.ended = true; });
        });
        MainThread::drainUntil([&opened] { return opened.world.ended; }, std::chrono::seconds(40));
        run.join();
        QVERIFY(opened.document.mediaArray().empty());
        QCOMPARE(opened.label(Label::MediaTotalSize), QStringLiteral("Total size: 0 B"));
        QCOMPARE(opened.label(Label::MediaLargestFile), QStringLiteral("Largest file:  (0 B)"));
    }

    void rowsOpenTheirFiles()
    {
        const QString movie = m_home.addFile(QStringLiteral("m/a b.mov"), "x");
        const QString opener = m_home.addFile(
            QStringLiteral("open"), "#!/bin/sh\nprintf %s \"$1\" > \"$0.part\"\nmv \"$0.part\" \"$0.out\"\n");
        QVERIFY(QFile::setPermissions(opener, QFile::permissions(opener) | QFile::ExeOwner));
        Workspace::setOpenProgram(opener);
        MediaProject opened;
        QVERIFY(opened.load(
            used(item("a", "file:///nowhere/x.mov") + item("b", QUrl::fromLocalFile(movie).toEncoded()))));
        const QString output = opener + QStringLiteral(".out");
        opened.inventory.revealMediaInFinder(); // no selection
        for (const int row : {-1, 0, 2, 1})     // only the last has a file; 2 is the number of rows
            opened.inventory.mediaTableViewDoubleClick(row);
        QTRY_VERIFY(QFile::exists(output));
        QCOMPARE(contentOf(output), movie.toUtf8());
        QVERIFY(QFile::remove(output));
        // Without a file browser the folder is opened.
        opened.world.selectRows(Tab::Media, {1, 0});
        opened.inventory.revealMediaInFinder();
        QTRY_VERIFY(QFile::exists(output));
        QCOMPARE(contentOf(output), m_home.path(QStringLiteral("m")).toUtf8());
        // What keeps a file from showing is said below the table.
        opened.world.selectRows(Tab::Media, {0});
        opened.inventory.revealMediaInFinder();
        const auto tells = [&opened](const char *text) {
            const QString told = QString::fromUtf8(text) + QStringLiteral(" 0");
            return MainThread::drainUntil([&] { return opened.world.events.contains(told); },
                                          std::chrono::seconds(30));
        };
        QVERIFY(tells("“x.mov” is missing from “/nowhere”. Media ▸ Relink… finds it in other folders"));
        opened.world.events.clear();
        opened.world.selectRows(Tab::Media, {});
        opened.inventory.revealMediaInFinder();
        QVERIFY(tells("No file is selected. Click its row first"));
        Workspace::setOpenProgram(m_home.path(QStringLiteral("no such program")));
        opened.inventory.mediaTableViewDoubleClick(1);
        QVERIFY(
            tells("There is no program that could open the file. The system’s settings tell which program "
                  "opens files of its kind"));
        Workspace::setOpenProgram(QString());

        // A volume that does not answer keeps nobody waiting.
        const auto hung = std::make_shared<QSemaphore>();
        const auto returned = std::make_shared<std::atomic<bool>>(false);
        opened.inventory.setFileCheck(
            [hung, returned](const QByteArray &path) {
                hung->acquire();
                *returned = true;
                return FileChecks::lookUp(path);
            },
            std::chrono::milliseconds(20));
        opened.inventory.mediaTableViewDoubleClick(1);
        QVERIFY(tells("“a b.mov” is on a volume that does not answer. Check its connection"));
        hung->release();
        QTRY_VERIFY(*returned);
    }

    void anAnswerMayComeLate()
    {
        const auto hung = std::make_shared<QSemaphore>();
        const auto come = std::make_shared<std::atomic<int>>(0);
        const auto ask = [hung] {
            hung->acquire();
            return 7;
        };
        const auto late = [come](const int &answer) { *come = answer; };
        QVERIFY(!answerWithin<int>(std::chrono::milliseconds(20), ask, late));
        QCOMPARE(int(*come), 0);
        hung->release();
        QTRY_COMPARE(int(*come), 7);
        // One that comes in time comes once.
        *come = 0;
        hung->release();
        QCOMPARE(answerWithin<int>(std::chrono::seconds(30), ask, late), std::optional(7));
        QCOMPARE(int(*come), 0);
    }
};

QTEST_GUILESS_MAIN(MediaInventoryTest)
#include "tst_mediainventory.moc"
