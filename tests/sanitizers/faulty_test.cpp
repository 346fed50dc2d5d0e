// A Qt Test program with a race: what is left out of the reports for Qt Test's own sake must not
// hide a race in a test function or in what it calls.

#include <QTest>

#include <thread>

namespace
{

class FaultyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void race()
    {
        int shared = 0;
        std::thread other([&shared] { ++shared; });
        ++shared;
        other.join();
        QVERIFY(shared > 0);
    }
};

} // namespace

QTEST_GUILESS_MAIN(FaultyTest)
#include "faulty_test.moc"
