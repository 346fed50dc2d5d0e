#include "timecode/TimecodeRuler.h"

#include <QTest>

using namespace vantrell;

class TimecodeRulerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void steps()
    {
        const struct {
            double framesPerSecond;
            double pixelsPerFrame;
            qint64 frames;
        } rows[] = {
            {25, 100, 1}, {25, 40, 5},     {25, 9.5, 10},      {25, 4, 25},
            {25, 1, 125}, {29.97, 1, 150}, {25, 0.001, 90000}, {25, 1e-6, 138240000},
        };
        for (const auto &row : rows)
            QCOMPARE(qint64(TimecodeRuler::step(row.framesPerSecond, row.pixelsPerFrame, 90)), row.frames);
    }

    void ticks_data()
    {
        QTest::addColumn<qint64>("timebase");
        QTest::addColumn<bool>("dropFrame");
        QTest::addColumn<qint64>("startFrame");
        QTest::addColumn<qint64>("first");
        QTest::addColumn<qint64>("last");
        QTest::addColumn<qint64>("step");
        QTest::addColumn<QList<qint64>>("frames");

        const auto row = [](const char *name, qint64 timebase, bool dropFrame, qint64 start, qint64 first,
                            qint64 last, qint64 step, const QList<qint64> &frames) {
            QTest::newRow(name) << timebase << dropFrame << start << first << last << step << frames;
        };
        row("from zero", 25, false, 0, 0, 100, 25, {0, 25, 50, 75, 100});
        row("from within a second", 25, false, 90010, 0, 60, 25, {15, 40});
        row("before the first timecode", 25, false, -10, 0, 40, 25, {10, 35});
        row("no timebase", 0, false, 0, 20, 70, 30, {30, 60});
        // 00:01:00;00 and 00:02:00;00 are left out: 00:01:00;02, 00:01:30;00, 00:02:00;02
        row("drop frame", 30, true, 0, 1700, 3700, 900, {1800, 2698, 3598});
        row("drop frame by frames", 30, true, 0, 1798, 1802, 1, {1798, 1799, 1800, 1801, 1802});
        row("nothing", 25, false, 0, 1, 20, 25, {});
        row("backwards", 25, false, 0, 20, 1, 25, {});
    }
    void ticks()
    {
        QFETCH(qint64, timebase);
        QFETCH(bool, dropFrame);
        QFETCH(qint64, startFrame);
        QFETCH(qint64, first);
        QFETCH(qint64, last);
        QFETCH(qint64, step);
        const auto found = TimecodeRuler::ticks({timebase, dropFrame, startFrame}, first, last, step);
        QTEST(QList<qint64>(found.begin(), found.end()), "frames");
    }

    void neverTooMany()
    {
        QVERIFY(TimecodeRuler::ticks({25, false, 0}, 0, qint64(1) << 40, 1).size() <= 1000);
    }
};

QTEST_GUILESS_MAIN(TimecodeRulerTest)
#include "tst_timecoderuler.moc"
