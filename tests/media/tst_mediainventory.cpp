#include "media/MediaFile.h"
#include "support/QVLog.h"
#include "support/Workspace.h"
#include "tests/media/MediaProject.h"
#include "tests/support/RandomProject.h"
#include "tests/support/TemporaryHome.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlDocument.h"

#include <QElapsedTimer>
#include <QTest>

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
    explicit HangingDisk(QByteArray marker)
        : m_state(std::make_shared<State>())
    {
        m_state->marker = std::move(marker);
    }
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
            if (path.contains(state->marker)) {
                ++state->hanging;
                state->changed.notify_all();
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
        QByteArray marker;
        int hanging = 0;
        bool isReleased = false;
    };
    std::shared_ptr<State> m_state;
};

QList<qint64> usageCounts(const MyDocument &document)
{
    QList<qint64> counts;
    for (const RowRecordPtr &file : document.mediaArray())
        counts.append(file->get(MediaKey::usageCount));
    return counts;
}

QStringList keysOf(const RowRecord &record)
{
    QStringList keys;
    for (std::size_t i = 0; i < record.size(); ++i)
        keys.append(record.keyAt(i).text());
    return keys;
}

QByteArray urlOf(const QString &path)
{
    return QUrl::fromLocalFile(path).toEncoded();
}

} // namespace

class MediaInventoryTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

private Q_SLOTS:
    void initTestCase() { QVLog::createNewLog(QStringLiteral("tests"), true); }

    void usage_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QList<qint64>>("counts");
        const auto single = [](const QByteArray &video, const QByteArray &audio) {
            return "<xmeml>" + sequence(video, audio) + "</xmeml>";
        };
        const QByteArray a = clipItem("a", "file:///a.mov");
        const QByteArray refA = clipItem("a");
        QTest::newRow("video and audio are not added")
            << single(a + refA + refA, refA + refA) << QList<qint64>{3};
        QTest::newRow("audio alone, single sequence") << single("", a + refA) << QList<qint64>{2};
        QTest::newRow("audio alone, project") << project(sequence("", a + refA)) << QList<qint64>{0};
        QTest::newRow("a second sequence of a single one does not count")
            << "<xmeml>" + sequence(a, "") + sequence(refA + refA, "") + "</xmeml>" << QList<qint64>{1};
        QTest::newRow("master clip and two sequences")
            << project("<clip><media><video><track>" + a + "</track></video></media></clip>" +
                       sequence(refA) + "<bin><children>" + sequence(refA + refA) + "</children></bin>")
            << QList<qint64>{3};
        QTest::newRow("nested in a clip item")
            << project(sequence(a + "<clipitem>" + sequence(refA + refA) + "</clipitem>"))
            << QList<qint64>{3};
        QTest::newRow("only the first file of a clip item")
            << project(sequence("<clipitem><file id=\"b\"/><file id=\"a\"/></clipitem>" + a))
            << QList<qint64>{1};
        QTest::newRow("only the first media and video")
            << project("<sequence><media><video/><video><track>" + a +
                       "</track></video></media><media><video><track>" + refA +
                       "</track></video></media></sequence>")
            << QList<qint64>{0};
        QTest::newRow("generators do not count")
            << project(sequence(a + "<generatoritem><file id=\"a\"/></generatoritem>")) << QList<qint64>{1};
        QTest::newRow("no id; an empty id")
            << project(sequence("<clipitem><file><pathurl>file:///a</pathurl></file></clipitem>"
                                "<clipitem><file/></clipitem>" +
                                clipItem("", "file:///b") + clipItem("")))
            << QList<qint64>{0, 2};
        QTest::newRow("an escaped id is compared decoded with the raw ones")
            << project(sequence(clipItem("a%20b", "file:///1") + clipItem("a%20b") +
                                clipItem("a b", "file:///2")))
            << QList<qint64>{1, 1};
        QTest::newRow("an id with a malformed escape counts nothing")
            << project(sequence(clipItem("50%", "file:///1") + clipItem("50%"))) << QList<qint64>{0};
        QTest::newRow("quotes and brackets")
            << project(sequence(clipItem("&quot;", "file:///1") + clipItem("%22", "file:///2") +
                                clipItem("'][1", "file:///3") + clipItem("'][1")))
            << QList<qint64>{0, 0, 2};
        QTest::newRow("ampersands, letters beyond ASCII, stripped characters")
            << project(sequence(
                   clipItem("&amp;", "file:///1") + clipItem("&amp;") + clipItem("&amp;amp;", "file:///2") +
                   clipItem("\xC3\xA9\xF0\x9F\x98\x80", "file:///3") + clipItem("\xC3\xA9\xF0\x9F\x98\x80") +
                   clipItem("x%09y", "file:///4") + clipItem("xy")))
            << QList<qint64>{2, 2, 2, 1};
        QTest::newRow("two definitions with one URL: the later count for both")
            << project(sequence(clipItem("a", "file:///1") + clipItem("b", "file:///1") + clipItem("b") +
                                "<clipitem><file><pathurl>file:///1</pathurl></file></clipitem>"))
            << QList<qint64>{2, 2, 2};
        QTest::newRow("a root of its own: its audio counts once per sequence")
            << "<media><audio><track>" + a + refA + "</track></audio>" + sequence("") + sequence("") +
                   sequence("") + "</media>"
            << QList<qint64>{6};
    }
    void usage()
    {
        QFETCH(QByteArray, xml);
        MediaProject opened;
        QVERIFY(opened.load(xml));
        QTEST(usageCounts(opened.document), "counts");
    }

    void usageInRandomProjects()
    {
        qint64 found = 0;
        for (quint64 seed = 0; seed < 300; ++seed) {
            const auto tree = XmlDocument::fromData(RandomProject(seed).xml(), {});
            QVERIFY(tree);
            const XmlNode document = tree.value()->node();
            const bool isSingle = bool(document.firstChildElement().childElement("sequence"));
            const XmlNodeList sequences =
                *QVXMLParser::nodesForQuery(QStringLiteral(".//sequence"), document);
            const MediaUsage usage(document, isSingle ? 1 : 0, sequences, [] { return false; });
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
                const QString root = isSingle ? QStringLiteral("/xmeml[1]/sequence[1]") : QString();
                const qint64 video = count(QStringLiteral(".") + root + QStringLiteral("/media[1]/video[1]"));
                const qint64 expected =
                    video != 0 ? video : count(root + QStringLiteral("/media[1]/audio[1]"));
                QVERIFY2(usage.usageOf(*id) == expected, qPrintable(QString::number(seed)));
                found += expected;
            }
        }
        QVERIFY2(found > 300, qPrintable(QString::number(found)));
    }

    void records_data()
    {
        QTest::addColumn<QByteArray>("pathurl"); // the whole content of the file element
        QTest::addColumn<QStringList>(
            "files"); // directory, a bar, file name; "-" for an address that is none
        const auto url = [](const QByteArray &text) { return "<pathurl>" + text + "</pathurl>"; };
        QTest::newRow("localhost") << url("file://localhost/Volumes/Media/a%20b.mov")
                                   << QStringList{QStringLiteral("/Volumes/Media|a b.mov")};
        QTest::newRow("another host")
            << url("file://server.local/Share/a.mov") << QStringList{QStringLiteral("/Share|a.mov")};
        QTest::newRow("Windows drives") << url("file://localhost/D%3a/m/a.mov") + url("file:///x")
                                        << QStringList{QStringLiteral("/D:/m|a.mov")};
        QTest::newRow("a bare drive is a scheme")
            << url("c:/m/a.mov") << QStringList{QStringLiteral("/m|a.mov")};
        QTest::newRow("backslashes") << url("c:\\m\\a.mov") << QStringList{QStringLiteral("-")};
        QTest::newRow("a bare name") << url("a.mov") << QStringList{QStringLiteral("|a.mov")};
        QTest::newRow("missing") << QByteArray("<name>a</name>") << QStringList();
        QTest::newRow("empty") << url("") << QStringList();
        QTest::newRow("empty path") << url("file://localhost") << QStringList{QStringLiteral("|")};
        QTest::newRow("root") << url("file:///") << QStringList{QStringLiteral("/|/")};
        QTest::newRow("white space") << url(" ") << QStringList{QStringLiteral("-")};
        QTest::newRow("blank inside") << url("file:///a b.mov") << QStringList{QStringLiteral("-")};
        QTest::newRow("two texts") << url("file:///a<![CDATA[file:///b]]>")
                                   << QStringList{QStringLiteral("/|a"), QStringLiteral("/|b")};
        QTest::newRow("10,000 characters")
            << url("file:///" + QByteArray(10000, 'a'))
            << QStringList{QStringLiteral("/|") + QString(10000, QLatin1Char('a'))};
        QTest::newRow("a zero byte") << url("file:///tmp%00x")
                                     << QStringList{QStringLiteral("/|tmp") + QChar(0) + QLatin1Char('x')};
    }
    void records()
    {
        QFETCH(QByteArray, pathurl);
        MediaProject opened;
        QVERIFY(opened.load(project("<clipitem><file id=\"f\">" + pathurl + "</file></clipitem>")));
        QStringList files;
        for (const RowRecordPtr &record : opened.document.mediaArray()) {
            files.append(record->contains(MediaKey::directory)
                             ? record->get(MediaKey::directory) + QLatin1Char('|') +
                                   record->get(MediaKey::filename)
                             : QStringLiteral("-"));
            if (files.last() == QStringLiteral("-"))
                QCOMPARE(keysOf(*record), QStringList{QStringLiteral("missing")});
            QCOMPARE(record->get(MediaKey::missing), files.last() != QStringLiteral("/|/"));
        }
        QTEST(files, "files");
    }

    void filesOnDisk()
    {
        const QString movie = m_home.addFile(QStringLiteral("m/é 50%.mov"), QByteArray(1500, 'x'));
        const QString empty = m_home.addFile(QStringLiteral("m/empty.wav"), QByteArray());
        const timespec times[2] = {{1000000000, 0}, {1000000000, 250000000}};
        QVERIFY(utimensat(AT_FDCWD, QFile::encodeName(movie).constData(), times, 0) == 0);
        QVERIFY(QFile::link(movie, m_home.path(QStringLiteral("m/link.mov"))));
        QVERIFY(
            QFile::link(m_home.path(QStringLiteral("m/none")), m_home.path(QStringLiteral("m/dead.mov"))));
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, QFile::encodeName(m_home.path(QStringLiteral("m/socket"))).constData(),
                 sizeof address.sun_path);
        const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
        QVERIFY(::bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0);
        ::close(socket);
        const char *names[] = {"m/é 50%.mov", "m/empty.wav", "m/link.mov",  "m/dead.mov",
                               "m/socket",    "m",           "m/é 50%.mov", "m/empty.wav/x"};
        QByteArray clips;
        for (const char *name : names)
            clips += clipItem("f", urlOf(m_home.path(QString::fromUtf8(name))));
        MediaProject opened;
        opened.document.viewState().selectedTab = Tab::Markers;
        QVERIFY(opened.load(project(clips)));
        const RowList &files = opened.document.mediaArray();
        const bool isMissing[] = {false, false, false, true, false, false, false, true};
        for (std::size_t i = 0; i < 8; ++i) {
            QCOMPARE(files[i]->contains(MediaKey::missing), isMissing[i]);
            QCOMPARE(files[i]->contains(MediaKey::filesize), !isMissing[i]);
            QCOMPARE(files[i]->contains(MediaKey::modDate), !isMissing[i]);
        }
        for (const std::size_t i : {0, 2, 6}) {
            QCOMPARE(files[i]->get(MediaKey::filesize), 1500);
            QCOMPARE(files[i]->get(MediaKey::modDate).toMSecsSinceEpoch(), 1000000000250);
        }
        QCOMPARE(files[1]->get(MediaKey::filesize), 0);
        QCOMPARE(keysOf(*files[0]).join(QLatin1Char(' ')),
                 QStringLiteral("filename directory rawpath usageCount filetype modDate filesize"));
        // Three times the movie, and what the system says of the folder.
        const qint64 folder = files[5]->get(MediaKey::filesize);
        QCOMPARE(opened.label(Label::MediaTotalSize),
                 QStringLiteral("Total size: ") + MediaFile::formatFileSize(double(4500 + folder)));
        QCOMPARE(opened.label(Label::MediaTotalFiles), QStringLiteral("Total number of files: 8"));
        QCOMPARE(opened.label(Label::MediaFilteredTotalSize), QString());
        QCOMPARE(
            opened.world.events.filter(QStringLiteral(" 0")),
            (QStringList{QStringLiteral("start 0"), QStringLiteral("start 0"), QStringLiteral("stop 0")}));
        QVERIFY(!opened.document.isPopulating(Tab::Media));
    }

    void attributesThatCannotBeRead()
    {
        MediaProject opened;
        opened.inventory.setFileCheck(
            [](const QByteArray &path) {
                FileFacts facts;
                facts.exists = path != "/none";
                if (path == "/dated")
                    facts.modified = -1000;
                return facts;
            },
            std::chrono::seconds(60));
        QVERIFY(opened.load(project(clipItem("a", "file:///plain") + clipItem("b", "file:///dated") +
                                    clipItem("c", "file:///none"))));
        const RowList &files = opened.document.mediaArray();
        QCOMPARE(files[0]->size(), std::size_t(5));
        QCOMPARE(files[1]->get(MediaKey::modDate).toUTC().toString(Qt::ISODate),
                 QStringLiteral("1969-12-31T23:59:59Z"));
        QVERIFY(files[2]->get(MediaKey::missing));
        QCOMPARE(opened.label(Label::MediaTotalSize), QStringLiteral("Total size: 0 B"));
    }

    void closingWhileTheDiskHangs()
    {
        HangingDisk disk("/hang/");
        QElapsedTimer timer;
        {
            MediaProject opened;
            opened.inventory.setFileCheck(disk.check(), std::chrono::hours(1));
            QByteArray clips;
            for (int i = 0; i < 200; ++i)
                clips += clipItem("f", "file:///hang/" + QByteArray::number(i));
            opened.start(project(clips));
            QVERIFY(MainThread::drainUntil([&disk] { return disk.isHanging(); }, std::chrono::seconds(60)));
            timer.start();
            opened.document.close();
            QVERIFY(opened.document.mediaArray().empty());
            QVERIFY(!opened.document.isPopulating(Tab::Media));
        }
        QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    }

    void aVolumeThatDoesNotAnswer()
    {
        HangingDisk disk("/Volumes/Hung/");
        MediaProject opened;
        opened.inventory.setFileCheck(disk.check(), std::chrono::milliseconds(300));
        QByteArray clips;
        for (int i = 0; i < 300; ++i) {
            clips += clipItem("h", "file:///Volumes/Hung/" + QByteArray::number(i));
            clips += clipItem("f", "file:///Volumes/Fine/" + QByteArray::number(i));
        }
        QVERIFY(opened.load(project(clips)));
        const RowList &files = opened.document.mediaArray();
        QCOMPARE(files.size(), std::size_t(600));
        for (std::size_t i = 0; i < files.size(); ++i) {
            QCOMPARE(files[i]->contains(MediaKey::filesize), i % 2 == 1);
            QVERIFY(!files[i]->contains(MediaKey::missing));
        }
        QCOMPARE(opened.label(Label::MediaFilteredTotalSize),
                 QStringLiteral("Total size of filtered media: 2.93 KB"));
    }

    void manyFilesAndManyUses()
    {
        QByteArray clips;
        QByteArray uses;
        for (int i = 0; i < 2000; ++i) {
            const QByteArray id = "file-" + QByteArray::number(i);
            clips += clipItem(id, "file:///m/" + id);
            for (int k = 0; k < i % 10; ++k)
                uses += clipItem(id);
        }
        MediaProject opened;
        QVERIFY(opened.load(project("<clip>" + clips + "</clip>" + sequence(uses))));
        const QList<qint64> counts = usageCounts(opened.document);
        QCOMPARE(counts.size(), 2000);
        for (qsizetype i = 0; i < counts.size(); ++i)
            QCOMPARE(counts[i], i % 10);
        QVLog::finishWriting();
        const QByteArray log = contentOf(QVLog::availableLogs().value(0));
        QVERIFY(log.contains("Usage for file file:///m/file-7: 7"));
        QVERIFY(log.contains("Usage for file file:///m/file-1990: 0"));
    }

    void withoutAProject()
    {
        MediaProject opened;
        opened.document.setListOf(Tab::Media, {std::make_shared<RowRecord>()});
        std::thread run([&opened] {
            opened.inventory.populateMediaData();
            opened.document.mainThread()->post([&opened] { opened.world.ended = true; });
        });
        MainThread::drainUntil([&opened] { return opened.world.ended; }, std::chrono::seconds(60));
        run.join();
        QVERIFY(opened.document.mediaArray().empty());
        QCOMPARE(opened.label(Label::MediaTotalSize), QStringLiteral("Total size: 0 B"));
        QCOMPARE(opened.label(Label::MediaTotalFiles), QStringLiteral("Total number of files: 0"));
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
        QVERIFY(opened.load(project(clipItem("a", "file:///nowhere/x.mov") + clipItem("b", urlOf(movie)))));
        const QString output = opener + QStringLiteral(".out");
        opened.inventory.revealMediaInFinder(); // no selection
        opened.inventory.mediaTableViewDoubleClick(-1);
        opened.inventory.mediaTableViewDoubleClick(0); // not there
        opened.inventory.mediaTableViewDoubleClick(7);
        opened.inventory.mediaTableViewDoubleClick(1);
        QTRY_VERIFY(QFile::exists(output));
        QCOMPARE(contentOf(output), movie.toUtf8());
        QVERIFY(QFile::remove(output));
        // Without a file browser the folder is opened.
        opened.world.selectRows(Tab::Media, {1, 0});
        opened.inventory.revealMediaInFinder();
        QTRY_VERIFY(QFile::exists(output));
        QCOMPARE(contentOf(output), m_home.path(QStringLiteral("m")).toUtf8());
        Workspace::setOpenProgram(QString());
    }
};

QTEST_GUILESS_MAIN(MediaInventoryTest)
#include "tst_mediainventory.moc"
