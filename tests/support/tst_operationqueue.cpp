#include "support/log/OperationQueue.h"
#include "support/log/QVLog.h"
#include "tests/support/TemporaryHome.h"

#include <QTest>

#include <algorithm>
#include <atomic>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <vector>

using namespace vantrell;
using namespace std::chrono_literals;

class TestOperationQueue : public QObject
{
    Q_OBJECT

    TemporaryHome m_home;

private Q_SLOTS:
    void initTestCase() { QVLog::createNewLog(QStringLiteral("Test"), true); }

    void keepsItsWidthAndRunsAll()
    {
        for (const int width : {1, 3, -4}) {
            std::mutex mutex;
            int running = 0;
            int mostRunning = 0;
            std::vector<int> order;
            OperationQueue queue(width);
            for (int i = 0; i < 12; ++i) {
                queue.addOperation([&, i] {
                    {
                        const std::lock_guard lock(mutex);
                        order.push_back(i);
                        mostRunning = std::max(mostRunning, ++running);
                    }
                    std::this_thread::sleep_for(5ms);
                    const std::lock_guard lock(mutex);
                    --running;
                    throw std::runtime_error("in an operation");
                });
            }
            queue.waitUntilAllOperationsAreFinished();
            QCOMPARE(order.size(), std::size_t(12)); // no lock: the wait itself hands everything over
            QCOMPARE(mostRunning, std::max(width, 1));
            QVERIFY(width == 3 || std::is_sorted(order.begin(), order.end()));
            QCOMPARE(queue.operationCount(), 0);
        }
        QVLog::finishWriting();
        QCOMPARE(contentOf(QVLog::availableLogs().value(0)).count("in an operation"), 36);
    }

    void cancellingDropsWhatHasNotBegun()
    {
        std::atomic<bool> begun = false;
        std::atomic<bool> mayEnd = false;
        std::atomic<int> ran = 0;
        auto queue = std::make_unique<OperationQueue>(1);
        queue->addOperation([&, last = queue.get()] {
            begun = true;
            while (!mayEnd)
                std::this_thread::yield();
            ++ran;
            last->addOperation([&] { ran += 100; }); // the queue is being destroyed
        });
        while (!begun)
            std::this_thread::yield();
        for (int i = 0; i < 5; ++i)
            queue->addOperation([&] { ran += 100; });
        QCOMPARE(queue->operationCount(), 6);
        queue->cancelAllOperations();
        QCOMPARE(queue->operationCount(), 1);
        queue->addOperation([&] { ran += 100; });
        std::thread releaser([&] {
            std::this_thread::sleep_for(30ms);
            mayEnd = true;
        });
        queue.reset(); // waits for the one that has begun
        QCOMPARE(ran.load(), 1);
        releaser.join();
    }

    void waitingInsideTheQueueRunsTheRestOnTheSpot()
    {
        std::vector<int> order;
        OperationQueue queue(1);
        queue.addOperation([&] {
            queue.addOperation([&] { order.push_back(1); });
            queue.waitUntilAllOperationsAreFinished();
            order.push_back(2);
        });
        queue.waitUntilAllOperationsAreFinished();
        QCOMPARE(order, std::vector<int>({1, 2}));
    }
};

QTEST_GUILESS_MAIN(TestOperationQueue)
#include "tst_operationqueue.moc"
