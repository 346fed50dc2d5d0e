#include "handover/FolderWalk.h"
#include "tests/support/TemporaryHome.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace vantrell;

namespace
{

constexpr std::chrono::seconds longPatience{30};

bool always(const FolderWalk::Progress &)
{
    return true;
}

QByteArray namesIn(const FolderWalk::Result &result, const QString &folder)
{
    QByteArrayList names;
    for (const FolderWalk::Found &file : result.files)
        names.append(QDir(folder).relativeFilePath(file.path).toUtf8());
    return names.join(' ');
}

} // namespace

class FolderWalkTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

private Q_SLOTS:
    /// Names in another form are found, pipes and folders of the name are not; links lead to what is found
    /// once, and do not lead in circles.
    void finds()
    {
        const QString top = m_home.path(QStringLiteral("top"));
        for (const char *name :
             {"top/a.mov", "top/x/A.MOV", "top/x/e\xCC\x81.mov", "top/b.mov", "else/a.mov"})
            m_home.addFile(QString::fromUtf8(name), "12345");
        QVERIFY(QDir().mkpath(top + QStringLiteral("/y/a.mov/z")));
        QCOMPARE(::mkfifo(QFile::encodeName(top + QStringLiteral("/y/A.mov")).constData(), 0600), 0);
        QVERIFY(QFile::link(m_home.path(QStringLiteral("else")), top + QStringLiteral("/aLink")));
        QVERIFY(QFile::link(top, top + QStringLiteral("/x/up")));
        QVERIFY(QFile::link(top + QStringLiteral("/a.mov"), top + QStringLiteral("/A.Mov")));
        const FolderWalk walk({top}, {QStringLiteral("a.mov"), QString::fromUtf8("\xC3\xA9.mov")});
        const auto result = walk.result(always, longPatience);
        QVERIFY(result);
        QCOMPARE(namesIn(*result, top), QByteArray("a.mov aLink/a.mov x/A.MOV x/e\xCC\x81.mov"));
        QCOMPARE(result->files.front().facts.size, std::int64_t(5));
        QVERIFY(result->unreadable.isEmpty() && result->unanswered.isEmpty());
    }

    void unreadableFolders()
    {
        if (::geteuid() == 0)
            QSKIP("The super-user may read every folder.");
        const QString closed = m_home.path(QStringLiteral("rights/closed"));
        m_home.addFile(QStringLiteral("rights/closed/a.mov"), "x");
        m_home.addFile(QStringLiteral("rights/open/a.mov"), "x");
        QVERIFY(QFile::setPermissions(closed, QFileDevice::Permissions()));
        const QString top = m_home.path(QStringLiteral("rights"));
        const auto result = FolderWalk({top}, {QStringLiteral("a.mov")}).result(always, longPatience);
        QFile::setPermissions(closed,
                              QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        QVERIFY(result);
        QCOMPARE(namesIn(*result, top), QByteArray("open/a.mov"));
        QCOMPARE(result->unreadable, QStringList(closed));
    }

    /// A folder that does not answer holds up neither the others nor the one who waits.
    void hangingVolume()
    {
        int ends[2];
        QCOMPARE(::pipe(ends), 0);
        const int pipe = ends[0];
        const FolderWalk::Lister lister = [pipe](const QByteArray &folder) {
            char byte = 0;
            if (folder.endsWith("/hung"))
                while (::read(pipe, &byte, 1) < 0)
                    continue;
            return FolderWalk::list(folder);
        };
        m_home.addFile(QStringLiteral("hang/hung/a.mov"), "x");
        m_home.addFile(QStringLiteral("hang/well/a.mov"), "x");
        const QString top = m_home.path(QStringLiteral("hang"));
        {
            const FolderWalk walk({top}, {QStringLiteral("a.mov")}, lister);
            QElapsedTimer timer;
            timer.start();
            const auto cancelled = walk.result(
                [](const FolderWalk::Progress &progress) { return progress.found == 0; }, longPatience);
            QVERIFY(!cancelled);
            const auto result = walk.result(always, std::chrono::milliseconds(200));
            QVERIFY(result && timer.elapsed() < 20'000);
            QCOMPARE(namesIn(*result, top), QByteArray("well/a.mov"));
            QCOMPARE(result->unanswered, QStringList(top + QStringLiteral("/hung")));
        }
        QCOMPARE(::write(ends[1], "x", 1), ssize_t(1)); // lets the thread end that was left behind
    }
};

QTEST_GUILESS_MAIN(FolderWalkTest)
#include "tst_folderwalk.moc"
