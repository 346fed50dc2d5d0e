#include "support/files/TaskRunner.h"
#include "tests/support/TemporaryHome.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <sys/types.h>
#include <thread>
#include <vector>

using namespace vantrell;

namespace
{

Result<TaskRunner::Output> runShell(const QString &command, int timeoutMs = 10000,
                                    const QByteArray &input = {})
{
    return TaskRunner::run(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), command}, timeoutMs, input);
}

/// Whether the process has ended; a zombie has.
bool hasEnded(pid_t process)
{
    const QByteArray status = contentOf(QStringLiteral("/proc/%1/stat").arg(process));
    return status.isEmpty() || status.mid(status.lastIndexOf(')') + 2, 1) == "Z";
}

} // namespace

class TestTaskRunner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void run_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<int>("exitCode"); // -1: a failure
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QByteArray>("error");

        const QByteArray large(3000000, 'x'); // more than any pipe holds
        QTest::newRow("both streams and a code")
            << QStringLiteral("echo out; echo err >&2; exit 3") << QByteArray() << 3 << QByteArray("out\n")
            << QByteArray("err\n");
        QTest::newRow("large input comes back")
            << QStringLiteral("cat") << large << 0 << large << QByteArray();
        QTest::newRow("input that nobody reads")
            << QStringLiteral("exec <&-; echo done") << large << 0 << QByteArray("done\n") << QByteArray();
        QTest::newRow("child left behind holds the output")
            << QStringLiteral("sleep 10 & echo left") << QByteArray() << 0 << QByteArray("left\n")
            << QByteArray();
        QTest::newRow("reads on after its output has ended")
            << QStringLiteral("exec >&- 2>&-; exit $(($(wc -c) / 1000000))") << large << 3 << QByteArray()
            << QByteArray();
        QTest::newRow("killed by a signal")
            << QStringLiteral("kill -9 $$") << QByteArray() << -1 << QByteArray() << QByteArray();
    }

    void run()
    {
        QFETCH(QString, command);
        QFETCH(QByteArray, input);
        QFETCH(int, exitCode);
        QElapsedTimer timer;
        timer.start();
        const auto result = runShell(command, 20000, input);
        QVERIFY(timer.elapsed() < 8000);
        QCOMPARE(result.isOk(), exitCode >= 0);
        if (!result) {
            QVERIFY(!result.message().isEmpty());
            return;
        }
        QCOMPARE(result.value().exitCode, exitCode);
        QTEST(result.value().standardOutput, "output");
        QTEST(result.value().standardError, "error");
    }

    void missingProgramIsAFailure()
    {
        QVERIFY(TaskRunner::run(QStringLiteral("/nowhere/program"), {}, 1000)
                    .message()
                    .contains(QStringLiteral("/nowhere/program")));
        QVERIFY(!TaskRunner::startDetached(QStringLiteral("/nowhere/program"), {}).isOk());
    }

    void timeOutEndsTheWholeFamily()
    {
        QTemporaryDir folder;
        const QString pidFile = folder.filePath(QStringLiteral("pid"));
        QElapsedTimer timer;
        timer.start();
        const auto result =
            runShell(QStringLiteral("trap '' TERM; sleep 60 & echo $! > '%1'; wait").arg(pidFile), 300);
        QVERIFY(!result);
        QVERIFY(result.message().contains(QStringLiteral("0.3 seconds")));
        QVERIFY(timer.elapsed() >= 300);
        QVERIFY(timer.elapsed() < 300 + 2 * TaskRunner::KillTimeMs);
        const auto child = static_cast<pid_t>(contentOf(pidFile).trimmed().toInt());
        QVERIFY(child > 0);
        QTRY_VERIFY_WITH_TIMEOUT(hasEnded(child), 2000);
    }

    void isGivenUpOnRequest()
    {
        QElapsedTimer timer;
        timer.start();
        int looks = 0;
        const auto result =
            TaskRunner::run(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QStringLiteral("sleep 60")},
                            60000, {}, [&looks] { return ++looks > 3; });
        QVERIFY(result.message().contains(QStringLiteral("given up")));
        QVERIFY(timer.elapsed() < 20000);
    }

    void runsOnManyThreadsAtOnce()
    {
        std::atomic<int> right = 0;
        std::vector<std::thread> threads;
        threads.reserve(4);
        for (int i = 0; i < 4; ++i) {
            threads.emplace_back([&right, i] {
                const QByteArray text = QByteArray::number(i);
                const auto result = runShell(QStringLiteral("sleep 0.1; cat; exit %1").arg(i), 10000, text);
                if (result && result.value().exitCode == i && result.value().standardOutput == text)
                    ++right;
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(right.load(), 4);
    }

    void detachedProgramRunsOn()
    {
        QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("done"));
        QElapsedTimer timer;
        timer.start();
        const auto started = TaskRunner::startDetached(
            QStringLiteral("/bin/sh"),
            {QStringLiteral("-c"), QStringLiteral("sleep 1; pwd > tmp; mv tmp done")}, folder.path());
        QVERIFY(started);
        QVERIFY(started.value() > 0);
        QVERIFY(timer.elapsed() < 900);
        QTRY_COMPARE(contentOf(file).trimmed(), QFile::encodeName(folder.path()));
    }
};

QTEST_GUILESS_MAIN(TestTaskRunner)
#include "tst_taskrunner.moc"
