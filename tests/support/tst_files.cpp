#include "TemporaryHome.h"

#include "support/files/CancellableWrite.h"
#include "support/files/FileUtilities.h"
#include "support/files/StandardFolders.h"
#include "support/files/TransientFile.h"

#include <QTest>

#include <atomic>
#include <csignal>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <vector>

using namespace vantrell;

namespace
{

unsigned modeOf(const QString &path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777U : 0;
}

QStringList namesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

/// Limits the size of files during its lifetime, which looks like a full disk to a writer.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_old);
        const rlimit limit = {bytes, m_old.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_old = {};
    void (*m_handler)(int) = nullptr;
};

} // namespace

class TestFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesAndReads()
    {
        const TemporaryHome home;
        const QString path = home.path(QStringLiteral("out/Grüße %1.xml"));
        const QString folder = home.path(QStringLiteral("out"));
        QVERIFY(QDir().mkpath(folder));
        const QByteArray large = QByteArray("0123456789\n").repeated(30'000);
        for (const QByteArray &content : {QByteArray("first"), large, QByteArray()}) {
            QVERIFY(FileUtilities::writeAtomically(path, content));
            const Result<QByteArray> read = FileUtilities::readFile(path);
            QVERIFY(read);
            QCOMPARE(read.value(), content);
            QCOMPARE(namesIn(folder).size(), 1);
        }
        // The longest name that a file system takes can be replaced.
        const QString longest = home.path(QString(255, u'n'));
        QVERIFY(FileUtilities::writeAtomically(longest, QByteArray("old")));
        QVERIFY(FileUtilities::writeAtomically(longest, QByteArray("new")));
        QCOMPARE(contentOf(longest), QByteArray("new"));
        // In small and large pieces the order stays.
        QVERIFY(FileUtilities::writeAtomically(path, [&large](QIODevice &device) -> Result<void> {
            device.write("head\n");
            device.write(large);
            for (int i = 0; i < 1000; ++i)
                device.write(large.left(110));
            return {};
        }));
        QCOMPARE(contentOf(path), "head\n" + large + large.left(110).repeated(1000));
    }

    /// Of two who look at the file and replace it at the same time, neither overwrites what the other has
    /// written.
    void looksAndReplacesAtOnce()
    {
        const TemporaryHome home;
        const QString path = home.addFile(QStringLiteral("out/count"), "0");
        std::atomic<int> written = 0;
        const auto count = [&path, &written] {
            for (int i = 0; i < 60; ++i) {
                const QByteArray old = contentOf(path);
                const auto look = [&](int) -> Result<void> {
                    if (contentOf(path) != old)
                        return Failure{QStringLiteral("changed")};
                    std::this_thread::yield();
                    return {};
                };
                written +=
                    bool(FileUtilities::writeAtomically(path, QByteArray::number(old.toInt() + 1), look));
            }
        };
        std::thread other(count);
        count();
        other.join();
        QCOMPARE(contentOf(path).toInt(), written.load());
        QVERIFY(written > 0);
    }

    void cancelledUntilItReplaces()
    {
        const TemporaryHome home;
        const QString path = home.addFile(QStringLiteral("out/list.txt"), "old");
        const auto cancelled = std::make_shared<CancellableWrite>();
        const auto slowWriter = [&cancelled](QIODevice &device) -> Result<void> {
            device.write("new");
            cancelled->cancel(); // while the content is on its way to the disk
            return {};
        };
        QVERIFY(!FileUtilities::writeAtomically(path, slowWriter, cancelled->check()));
        QCOMPARE(contentOf(path), QByteArray("old"));
        QCOMPARE(namesIn(home.path(QStringLiteral("out"))).size(), 1);
        const auto late = std::make_shared<CancellableWrite>();
        QVERIFY(FileUtilities::writeAtomically(path, QByteArray("new"), late->check()));
        QVERIFY(!late->cancel() && !late->isCancelled());
        QCOMPARE(contentOf(path), QByteArray("new"));
    }

    void theLastWordKeepsTheOldFile()
    {
        const TemporaryHome home;
        const QString path = home.addFile(QStringLiteral("out/a.txt"), "old");
        QByteArray seen;
        const auto write = [](QIODevice &device) -> Result<void> {
            device.write("new");
            return {};
        };
        const auto refuse = [&](int) -> Result<void> {
            seen = contentOf(path);
            return Failure{QStringLiteral("no")};
        };
        QCOMPARE(FileUtilities::writeAtomically(path, write, refuse).message(), QStringLiteral("no"));
        QCOMPARE(seen, QByteArray("old"));
        QCOMPARE(contentOf(path), QByteArray("old"));
        QCOMPARE(namesIn(home.path(QStringLiteral("out"))), QStringList(QStringLiteral("a.txt")));
    }

    void keepsPermissionsAndLinks()
    {
        const TemporaryHome home;
        const QString target = home.addFile(QStringLiteral("real/target.txt"), "old");
        QVERIFY(QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
        const QString link = home.path(QStringLiteral("link.txt"));
        const QString linkToLink = home.path(QStringLiteral("second.txt"));
        QVERIFY(QFile::link(QStringLiteral("real/target.txt"), link));
        QVERIFY(QFile::link(QStringLiteral("link.txt"), linkToLink));

        QVERIFY(FileUtilities::writeAtomically(linkToLink, QByteArray("new")));
        QCOMPARE(contentOf(target), QByteArray("new"));
        QVERIFY(QFileInfo(link).isSymLink());
        QVERIFY(QFileInfo(linkToLink).isSymLink());
        QCOMPARE(modeOf(target), 0640U);
        QCOMPARE(namesIn(home.path(QStringLiteral("real"))), QStringList(QStringLiteral("target.txt")));

        QVERIFY(QFile::link(QStringLiteral("real/later.txt"), home.path(QStringLiteral("dangling"))));
        QVERIFY(FileUtilities::writeAtomically(home.path(QStringLiteral("dangling")), QByteArray("made")));
        QCOMPARE(contentOf(home.path(QStringLiteral("real/later.txt"))), QByteArray("made"));

        const mode_t mask = ::umask(027);
        QVERIFY(FileUtilities::writeAtomically(home.path(QStringLiteral("fresh")), QByteArray("x")));
        ::umask(mask);
        QCOMPARE(modeOf(home.path(QStringLiteral("fresh"))), 0640U);
    }

    void failedWriteLeavesTheOldFile_data()
    {
        QTest::addColumn<int>("fault");
        QTest::newRow("writer fails") << 0;
        QTest::newRow("writer throws") << 1;
        QTest::newRow("disk full, writer looks away") << 2;
        QTest::newRow("disk full at the last bytes") << 3;
    }

    void failedWriteLeavesTheOldFile()
    {
        QFETCH(int, fault);
        const TemporaryHome home;
        const QString path = home.addFile(QStringLiteral("folder/project.xml"), "whole");
        const auto writer = [fault](QIODevice &device) -> Result<void> {
            device.write(QByteArray(fault == 3 ? 10'001 : 200'000, 'x'));
            if (fault == 0)
                return Failure{QStringLiteral("gave up")};
            if (fault == 1)
                throw std::runtime_error("broken");
            return {};
        };
        Result<void> written;
        if (fault >= 2) {
            const FileSizeLimit limit(10'000);
            written = FileUtilities::writeAtomically(path, writer);
        } else {
            written = FileUtilities::writeAtomically(path, writer);
        }
        QVERIFY(!written);
        if (fault == 0)
            QCOMPARE(written.message(), QStringLiteral("gave up"));
        else
            QVERIFY2(written.message().contains(path), qPrintable(written.message()));
        QCOMPARE(contentOf(path), QByteArray("whole"));
        QCOMPARE(namesIn(home.path(QStringLiteral("folder"))), QStringList(QStringLiteral("project.xml")));
    }

    void refusesWhatIsNoFile()
    {
        const TemporaryHome home;
        const QString file = home.addFile(QStringLiteral("file"), "x");
        const QString ring = home.path(QStringLiteral("ring"));
        QVERIFY(QFile::link(ring, ring));
        const QStringList paths{home.path(), QString(), file + QStringLiteral("/below"), ring,
                                home.path(QStringLiteral("missing/file"))};
        for (const QString &path : paths) {
            QVERIFY2(!FileUtilities::writeAtomically(path, QByteArray("y")), qPrintable(path));
            QVERIFY2(!FileUtilities::readFile(path), qPrintable(path));
        }
        // A device is written to, not replaced.
        QVERIFY(!FileUtilities::writeAtomically(QStringLiteral("/dev/full"), QByteArray("y")));
        QVERIFY(FileUtilities::writeAtomically(QStringLiteral("/dev/null"), QByteArray("y")));
        QVERIFY(!QFileInfo(QStringLiteral("/dev/null")).isFile());
    }

    void uniqueNames_data()
    {
        QTest::addColumn<QStringList>("existing");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *tag, const QStringList &existing, const char *name,
                            const char *expected) {
            QTest::newRow(tag) << existing << QString::fromLatin1(name) << QString::fromLatin1(expected);
        };
        row("free", {}, "a.xml", "a.xml");
        row("taken", {QStringLiteral("a.xml")}, "a.xml", "a 2.xml");
        row("gap", {QStringLiteral("a.xml"), QStringLiteral("a 2.xml"), QStringLiteral("a 4.xml")}, "a.xml",
            "a 3.xml");
        row("no extension", {QStringLiteral("a")}, "a", "a 2");
        row("hidden", {QStringLiteral(".a")}, ".a", ".a 2");
        row("two dots", {QStringLiteral("a.tar.gz")}, "a.tar.gz", "a.tar 2.gz");
        row("dot in the folder", {QStringLiteral("b.c/a")}, "b.c/a", "b.c/a 2");
    }

    void uniqueNames()
    {
        QFETCH(QStringList, existing);
        QFETCH(QString, name);
        QFETCH(QString, expected);
        const TemporaryHome home;
        for (const QString &file : existing)
            home.addFile(file, "");
        QCOMPARE(FileUtilities::uniqueFilePath(home.path(name)), home.path(expected));
    }

    void filesForAWhile()
    {
        const TemporaryHome home;
        const QString path = home.path(QStringLiteral("while/A.txt"));
        QVERIFY(TransientFile::make(path).message().contains(QStringLiteral("while/A.txt")));
        QDir().mkpath(home.path(QStringLiteral("while")));
        QString second;
        {
            const auto one = TransientFile::make(path);
            const auto two = TransientFile::make(path);
            QCOMPARE(one.value().path(), path);
            second = two.value().path();
            QCOMPARE(second, home.path(QStringLiteral("while/A 2.txt")));
            QVERIFY(QFile::exists(path) && QFile::exists(second));
        }
        QVERIFY(!QFile::exists(path) && !QFile::exists(second));
        auto gone = TransientFile::make(path);
        QVERIFY(QFile::remove(path));
        QVERIFY(!gone.value().remove());
        // A dangling link occupies the name without being a file.
        QVERIFY(QFile::link(home.path(QStringLiteral("nowhere")), path));
        QVERIFY(!TransientFile::make(path));
    }

    void folders()
    {
        const TemporaryHome home;
        QCOMPARE(StandardFolders::documents(), home.path(QStringLiteral("Documents")));
        QCOMPARE(StandardFolders::documentsOrHome(), home.path(QString()));
        home.addFile(
            QStringLiteral(".config/user-dirs.dirs"),
            "# comment\nXDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n"
            "XDG_DOCUMENTS_DIR=\"relative\"\nXDG_DOCUMENTS_DIR=\"/srv/papers/\"\nXDG_MUSIC_DIR=\"/m");
        QCOMPARE(StandardFolders::desktop(), home.path(QStringLiteral("Schreibtisch")));
        QCOMPARE(StandardFolders::documents(), QStringLiteral("/srv/papers"));
        qputenv("XDG_DOCUMENTS_DIR", "/elsewhere");
        QCOMPARE(StandardFolders::documents(), QStringLiteral("/elsewhere"));

        // Unset and relative settings give the folders below the home.
        qunsetenv("XDG_STATE_HOME");
        qputenv("XDG_CONFIG_HOME", "config");
        qputenv("XDG_DATA_HOME", "/data");
        QCOMPARE(StandardFolders::userLibrary(), home.path(QStringLiteral(".local/state")));
        QCOMPARE(StandardFolders::preferences(), home.path(QStringLiteral(".config")));
        QCOMPARE(StandardFolders::applicationSupport(), QStringLiteral("/data"));

        StandardFolders::setVolumesFolder(home.path());
        QCOMPARE(StandardFolders::volumesFolders(), QStringList(home.path()));
        StandardFolders::setVolumesFolder(QString());
        QVERIFY(!StandardFolders::volumesFolders().contains(home.path()));
    }

    void manyAtATime()
    {
        QTemporaryDir folder;
        std::atomic<int> written = 0;
        std::vector<std::thread> threads;
        threads.reserve(6);
        for (int i = 0; i < 6; ++i) {
            threads.emplace_back([&, i] {
                for (int n = 0; n < 40; ++n) {
                    const QString path = folder.filePath(QStringLiteral("%1-%2").arg(i).arg(n % 3));
                    written += FileUtilities::writeAtomically(path, QByteArray::number(n)).isOk();
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(written.load(), 240);
        QCOMPARE(namesIn(folder.path()).size(), 18);
    }
};

QTEST_GUILESS_MAIN(TestFiles)
#include "tst_files.moc"
