#include "support/log/QVLog.h"
#include "support/threads/MainThread.h"
#include "tests/support/TemporaryHome.h"

#include <QCoreApplication>
#include <QTest>

#include <algorithm>
#include <atomic>
#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

using namespace vantrell;
using namespace std::chrono_literals;

namespace
{

/// Plain members on purpose: the queue alone must make it safe to touch them from work of many threads.
struct Trace {
    std::vector<int> numbers;
    int elsewhere = 0; ///< how many were added off the main thread

    void add(int number)
    {
        numbers.push_back(number);
        elsewhere += MainThread::isMainThread() ? 0 : 1;
    }
};

} // namespace

class TestMainThread : public QObject
{
    Q_OBJECT

    TemporaryHome m_home;

private Q_SLOTS:
    void initTestCase() { QVLog::createNewLog(QStringLiteral("Test"), true); }

    void workRunsInOrder_data()
    {
        QTest::addColumn<bool>("hasEventLoop");
        QTest::newRow("event loop") << true;
        QTest::newRow("no event loop") << false;
    }

    void workRunsInOrder()
    {
        QFETCH(bool, hasEventLoop);
        Trace trace;
        std::vector<int> seenByWorker;
        std::atomic<bool> hasEnded = false;
        MainThread::post([&] {
            MainThread::post([&] { trace.add(0); }); // while the loop's signal is being taken
        });
        std::thread worker([&] {
            for (int i = 1; i < 50; ++i)
                MainThread::post([&trace, i] { trace.add(i); });
            MainThread::runAndWait([] {}); // by now everything is queued
            MainThread::runAndWait([&] { trace.add(50); });
            seenByWorker = trace.numbers; // nobody else adds any more
            hasEnded = true;
            MainThread::wake();
        });
        if (hasEventLoop)
            QTRY_VERIFY(hasEnded);
        else
            QVERIFY(MainThread::drainUntil([&] { return hasEnded.load(); }, 5s));
        worker.join();
        QCOMPARE(trace.elsewhere, 0);
        QCOMPARE(seenByWorker.size(), std::size_t(51));
        seenByWorker.erase(std::find(seenByWorker.begin(), seenByWorker.end(), 0));
        QVERIFY(std::is_sorted(seenByWorker.begin(), seenByWorker.end()));
        QVERIFY(!MainThread::drainUntil([] { return false; }, 20ms));
    }

    void eventLoopWakesForWorkOfTheMainThreadItself()
    {
        bool hasRun = false;
        MainThread::post([&] { MainThread::post([&] { hasRun = true; }); });
        QVERIFY(!hasRun);
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QVERIFY(!hasRun); // a drain leaves what its work queues
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QVERIFY(hasRun);
    }

    void mainThreadDoesNotQueueForItselfWhenItWaits()
    {
        Trace trace;
        MainThread::post([&] { trace.add(2); });
        MainThread::runAndWait([&] { trace.add(1); });
        std::thread([] { MainThread::drain(); }).join(); // of no effect elsewhere
        QCOMPARE(trace.numbers, std::vector<int>({1}));
        MainThread::drain();
        QCOMPARE(trace.numbers, std::vector<int>({1, 2}));
    }

    void exceptionsEndWhereTheyAreThrown()
    {
        std::atomic<int> reached = 0;
        std::thread worker([&] {
            MainThread::runAndWait([] { throw std::runtime_error("in work"); });
            ++reached;
            MainThread::post([] { throw 1; });
            MainThread::runAndWait([&] { ++reached; });
        });
        QVERIFY(MainThread::drainUntil([&] { return reached == 2; }, 5s));
        worker.join();
        QVLog::finishWriting();
        QVERIFY(contentOf(QVLog::availableLogs().value(0)).contains("in work"));
    }

    void closedGateReleasesItsCallers()
    {
        auto gate = std::make_shared<MainThreadGate>();
        std::atomic<int> begun = 0;
        std::atomic<int> refused = 0;
        int runs = 0;
        gate->post([&] { ++runs; });
        std::vector<std::thread> workers;
        workers.reserve(4);
        for (int i = 0; i < 4; ++i) {
            workers.emplace_back([&, gate] {
                ++begun;
                auto local = std::make_unique<int>(1); // gone when the queue gets to the work
                refused += gate->runAndWait([&] { runs += *local; }) ? 0 : 1;
            });
        }
        while (begun < 4)
            std::this_thread::yield();
        std::this_thread::sleep_for(20ms); // most of them are in the queue by now
        gate->close();
        for (std::thread &worker : workers)
            worker.join(); // without a drain
        QCOMPARE(refused.load(), 4);
        QVERIFY(!gate->runAndWait([&] { ++runs; }));
        gate->post([&] { ++runs; });
        MainThread::drain();
        QCOMPARE(runs, 0);
    }

    void workThatClosesTheGateStillEnds()
    {
        MainThreadGate gate;
        std::atomic<bool> hasEnded = false;
        bool hasPassed = false;
        int runs = 0;
        std::thread worker([&] {
            gate.post([&] { ++runs; });
            hasPassed = gate.runAndWait([&] {
                gate.close();
                std::this_thread::sleep_for(20ms); // the caller must not leave meanwhile
                ++runs;
            });
            hasPassed = hasPassed && runs == 2;
            hasEnded = true;
        });
        QVERIFY(MainThread::drainUntil([&] { return hasEnded.load(); }, 5s));
        worker.join();
        QVERIFY(hasPassed);
    }
};

QTEST_GUILESS_MAIN(TestMainThread)
#include "tst_mainthread.moc"
