#include "support/text/TextNumbers.h"
#include "timecode/QVTimecode.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace vantrell;
using namespace Qt::StringLiterals;

namespace
{

constexpr qint64 kHugeTimebase = qint64(1) << 62;
constexpr quint64 kMinusOne = std::numeric_limits<quint64>::max();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
const double kNoNumber = std::nan("");

/// Compares to the last bit and prints both sides and the row when they differ.
template <typename T>
void compare(const T &actual, const T &expected, const QString &row)
{
    const auto text = [](const T &value) {
        if constexpr (std::is_same_v<T, double>)
            return QString::number(value, 'g', 17);
        else
            return QStringLiteral("%1").arg(value);
    };
    QVERIFY2(actual == expected, qPrintable(row + u": "_s + text(actual) + u" for "_s + text(expected)));
}

} // namespace

class TestTimecode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersOfTexts();
    void droppedFrames();
    void fromFrames();
    void toFrames();
    void elapsedTime();
    void ratesAndSeconds();
    void shorthand();
    void sumsAndRanges();
    void timeOfDay();
    void textForms();
};

void TestTimecode::numbersOfTexts()
{
    constexpr qint64 smallest = std::numeric_limits<qint64>::min();
    constexpr qint64 largest = std::numeric_limits<qint64>::max();
    const struct {
        QString text;
        qint64 integer;
        double number;
    } rows[] = {
        {QString(), 0, 0},
        {u"NaN"_s, 0, 0},
        {u"inf"_s, 0, 0},
        {u"-"_s, 0, 0},
        {u"-+4"_s, 0, 0},
        {u"\u00a0\t\n -12x3"_s, -12, -12},
        {u"+ 7"_s, 0, 0},
        {u"0x1F"_s, 0, 0},
        {u"\u0663"_s, 0, 0}, // an Arabic digit
        {u"1.75"_s, 1, 1.75},
        {u"-.5.5"_s, 0, -0.5},
        {u".e3"_s, 0, 0},
        {u"+2,5"_s, 2, 2},
        {u"25E-1"_s, 25, 2.5},
        {u"3.e+"_s, 3, 3},
        {u"1e999"_s, 1, kInfinity},
        {u"9223372036854775807"_s, largest, 0x1p63},
        {u"9223372036854775808"_s, largest, 0x1p63},
        {u"-9223372036854775808"_s, smallest, -0x1p63},
        {u"-100000000000000000000"_s, smallest, -1e20},
    };
    for (const auto &row : rows) {
        compare(integerValue(row.text), row.integer, row.text);
        compare(doubleValue(row.text), row.number, row.text);
    }
    QCOMPARE(intValue(u"4294967295"), -1);
    QCOMPARE(intValue(u"-99999999999999999999"), 0);
}

void TestTimecode::droppedFrames()
{
    const struct {
        quint64 count;
        double fps;
        quint64 added, subtracted;
    } rows[] = {
        {2, 30, 2, 2},
        {1799, 30, 1799, 1799},
        {1800, 30, 1802, 1798},
        {1802, 30, 1804, 1800},
        {17982, 30, 18002, 17962},
        {17999, 30, 18019, 17979},
        {18000, 30, 18018, 17982},
        {18001, 30, 18019, 17983},
        {18018, 30, 18036, 18000},
        {107892, 30, 108000, 107784},
        {108000, 30, 108108, 107892},
        {3600, 60, 3604, 3596},
        {1440, 24, 1442, 1438},
        {4321, 1, 4321, 4321}, // drops none
        // Blocks of no frames, minutes of no frames, blocks beyond 64 bits.
        {5000, 0, 5000, 5000},
        {5000, -30, 5000, 5000},
        {5000, kNoNumber, 5000, 5000},
        {500, 0.4, 500, 500},
        {kMinusOne - 5, 0x1p62, kMinusOne - 5, kMinusOne - 5},
        // 4003199668773 blocks and 17521 frames, 9 minutes beyond the first two. Doubles are 16 apart
        // there: the count becomes 2^56 + 3584, its sum with 18 2^56 + 3600, the whole is 6 too large.
        {(quint64(1) << 56) + 3585, 30, 72129651631969456, 71985608501487624},
        // 1024819115206086 blocks and 3615 frames: the sum passes 2^64, by a multiple of 4096.
        {kMinusOne, 30, 18446744073707520, 18428315776379917797ULL},
    };
    for (const auto &row : rows) {
        const QString name = u"%1 at %2"_s.arg(row.count).arg(row.fps);
        compare(QVTimecode::addDroppedFrames(row.count, row.fps), row.added, name);
        compare(QVTimecode::subtractDroppedFrames(row.count, row.fps), row.subtracted, name);
    }
}

void TestTimecode::fromFrames()
{
    const struct {
        quint64 frames;
        qint64 timebase;
        bool dropFrame;
        quint64 start;
        QString timecode;
    } rows[] = {
        {0, 30, false, 0, u"00:00:00:00"_s},
        {1800, 30, true, 0, u"00:01:00;02"_s},
        {17982, 30, true, 0, u"00:10:00;02"_s},
        {18000, 30, true, 0, u"00:10:00;18"_s},
        {1, 30, true, 107891, u"01:00:00;00"_s},
        {2592005, 30, false, 0, u"00:00:00:05"_s},
        {31, 0, false, 0, u"00:00:01:01"_s},
        {31, -25, false, 0, u"00:00:01:01"_s},
        {120 * 61 + 101, 120, false, 0, u"00:01:01:101"_s},
        {kMinusOne, 30, false, 0, u"09:01:52:00"_s},
        {kMinusOne, 25, false, 90000, u"00:59:59:24"_s},
        {5, kHugeTimebase, true, 0, u"00:00:00;05"_s},
        {kMinusOne, kHugeTimebase, false, 0, u"00:00:04:00"_s}, // 2^64 as a double
        {kMinusOne, 1, false, 0, u"00:00:00:00"_s},             // 2^64 seconds wrap around
        // Beyond 2^53 a division rounds: 49 times the quotient of 2^63 is one step of 1024 below it, 25
        // times that of 7 × 2^60 one step above.
        {quint64(1) << 63, 49, false, 0, u"18:55:28:1024"_s},
        {quint64(7) << 60, 25, false, 0, u"12:33:04:-1024"_s},
    };
    for (const auto &row : rows) {
        for (const bool ntsc : {false, true}) {
            compare(
                QVTimecode::timecodeFromFrameCount(row.frames, row.timebase, ntsc, row.dropFrame, row.start),
                row.timecode, row.timecode);
        }
    }
}

void TestTimecode::toFrames()
{
    const struct {
        QString timecode;
        qint64 timebase;
        bool dropFrame;
        quint64 start, frames;
    } rows[] = {
        {u" \r\n01:02:03:04\n"_s, 25, false, 0, 93079},
        {u"00;00:01;05"_s, 24, false, 0, 29},
        {u"01:00:00;00"_s, 30, true, 0, 107892},
        {u"01:00:00;00"_s, 30, false, 0, 108000},
        {u"01:00:01;00"_s, 30, true, 107892, 30},
        {u"00:59:59:24"_s, 25, false, 90000, kMinusOne},
        {u"01:00:00"_s, 25, false, 90000, 0},
        {QString(), 25, false, 5, 0},
        {u"00:00:02:03:99"_s, 25, false, 0, 53},
        {u"x::1s: 3f"_s, 25, false, 0, 28},
        {u"00:00:01:-26"_s, 25, false, 0, kMinusOne},
        {u"00:00:01:00"_s, 0, false, 0, 30},
        {u"00:00:01:00"_s, -1, false, 0, 30},
        {u"00:99:99:99"_s, 10, false, 0, 60489},
        {u"00:00:04:07"_s, kHugeTimebase, false, 0, 7},
        {u"00:00:00:07"_s, kHugeTimebase, true, 0, 7},
        // 2^63 − 1 hours: 3600 × 2^63 is a multiple of 2^64.
        {u"99999999999999999999:0:0:0"_s, 1, false, 0, kMinusOne - 3599},
    };
    for (const auto &row : rows) {
        compare(
            QVTimecode::frameCountFromTimecode(row.timecode, row.timebase, true, row.dropFrame, row.start),
            row.frames, row.timecode);
    }
}

void TestTimecode::elapsedTime()
{
    const struct {
        quint64 frames;
        double fps;
        QString text;
        quint64 back;
    } rows[] = {
        {90051, 25, u"01:00:02:01"_s, 90051}, {31, 0, u"00:00:01:01"_s, 31}, {31, -5, u"00:00:01:01"_s, 31},
        {38, 12.5, u"00:00:03:00"_s, 38}, // half a frame over; 3 seconds are 37.5 frames
        {7, kInfinity, u"00:00:00:00"_s, 0},
    };
    for (const auto &row : rows) {
        compare(QVTimecode::elapsedTimeFromFrameCount(row.frames, row.fps), row.text, row.text);
        compare(QVTimecode::frameCountFromElapsedTime(row.text, row.fps), row.back, row.text);
    }
    // An hour and a half, half a minute, half a second (12.5 frames go away from zero), whole frames.
    QCOMPARE(QVTimecode::frameCountFromElapsedTime(u"1.5:0.5;0.5:7.9"_s, 25), quint64(135000 + 750 + 13 + 7));
    QCOMPARE(QVTimecode::frameCountFromElapsedTime(u"0:0:-0.5:0"_s, 25), kMinusOne - 12);
    QCOMPARE(QVTimecode::frameCountFromElapsedTime(u"0:1:2"_s, 25), quint64(0));
}

void TestTimecode::ratesAndSeconds()
{
    compare(QVTimecode::frameRateFromTimebase(24, true), 24000.0 / 1001, u"24"_s);
    compare(QVTimecode::frameRateFromTimebase(60, true), 60000.0 / 1001, u"60"_s);
    compare(QVTimecode::frameRateFromTimebase(25, true), 0.0, u"25"_s);
    compare(QVTimecode::frameRateFromTimebase(-3, false), -3.0, u"below 0"_s);

    const struct {
        double seconds;
        float fps;
        bool dropFrame;
        QString timecode;
    } rows[] = {
        {0.5, 25, false, u"00:00:00:13"_s},
        {3600, 29.97f, true, u"01:00:00;00"_s},
        {-0.02, 25, false, u"01:14:40:00"_s}, // half a frame before zero is 2^64 − 1
        {kNoNumber, 25, false, u"00:00:00:00"_s},
        {2, float(kNoNumber), false, u"00:00:00:00"_s},
        {1e300, 25, true, u"00:00:00;00"_s}, // a multiple of 2^64
        {0, 1e30f, true, u"00:00:00;00"_s},
        {1, 0x1p63f, false, u"00:00:01:00"_s}, // 2^63 frames at a timebase of 2^63 − 1, the same as a double
    };
    for (const auto &row : rows) {
        compare(QVTimecode::timecodeFromSeconds(row.seconds, row.fps, row.dropFrame), row.timecode,
                u"%1 at %2"_s.arg(row.seconds).arg(row.fps));
    }
}

void TestTimecode::shorthand()
{
    const QString hour = u"01:00:00:00"_s;
    const struct {
        QString text;
        bool dropFrame;
        QString start, timecode;
    } rows[] = {
        {u"5"_s, false, QString(), u"00:00:00:05"_s},
        {u"17"_s, true, QString(), u"00:00:00;17"_s},
        {u"1."_s, false, QString(), u"00:00:01:00"_s},
        {u"1.."_s, false, hour, u"01:01:00:00"_s},
        {u"2..."_s, true, hour, u"02:00:00;00"_s},
        {u"1...."_s, false, hour, u"00:00:00:00"_s},
        {u"1,,"_s, true, QString(), u"00:01:00;00"_s},
        {u"1,,,"_s, false, QString(), u"01:00:00:00"_s},
        {u"1,,,,"_s, false, hour, u"00:00:00:00"_s},
        {u"1.2,"_s, false, QString(), u"00:01:02:00"_s},
        {u"3,."_s, false, QString(), u"00:00:03:00"_s},
        {u"123"_s, false, QString(), u"00:00:01:23"_s},
        {u"1020304"_s, true, QString(), u"01:02:03;04"_s},
        {u"1:2;03"_s, false, QString(), u"00:00:12:03"_s},
        {u"9912345678"_s, false, QString(), u"12:34:56:78"_s},
        {u"not a time!"_s, true, hour, u"not a time!"_s},
        {QString(), true, QString(), u"00:00:00;00"_s},
        {u"010203"_s, true, u"00:00"_s, u"01:02;03"_s},
    };
    for (const auto &row : rows)
        compare(QVTimecode::timecodeFromUserString(row.text, row.dropFrame, row.start), row.timecode,
                row.text);
}

void TestTimecode::sumsAndRanges()
{
    // Read as 1800 frames, written as the 1800th of drop frame.
    QCOMPARE(QVTimecode::timecodeIncrementBy(u"00:00:59;29"_s, 1, 30, true, true), u"00:01:00;02"_s);
    QCOMPARE(QVTimecode::timecodeIncrementBy(u"00:00:01:00"_s, -26, 25, false, false), u"01:14:40:00"_s);

    QCOMPARE(QVTimecode::addTimecode(u"23:59:59:24"_s, u"00:00:00:02"_s, 25, false, false), u"00:00:00:01"_s);
    QCOMPARE(QVTimecode::addTimecode(u"00:00:59;29"_s, u"00:00:00;01"_s, 30, true, true), u"00:01:00;02"_s);
    QCOMPARE(QVTimecode::subtractTimecode(u"0:0:1:20"_s, u"0:0:3:0"_s, 25, false, false), u"00:00:01:05"_s);
    QCOMPARE(QVTimecode::subtractTimecode(u"1:0:0:0"_s, u"1:0:0:0"_s, 25, false, false), u"00:00:00:00"_s);
    QVERIFY(QVTimecode::subtractTimecode(u"00:00:00:02"_s, u"00:00:00:01"_s, 25, false, false).isNull());

    // At 24 frames a second frame 29 is the fifth of the next second. A range that runs backwards holds
    // the two texts that it is given by.
    const struct {
        QString timecode, start, end;
        bool inRange;
    } rows[] = {
        {u"00:00:06:00"_s, u"00:00:04:00"_s, u"0:0:6:0"_s, true},
        {u"00:00:06:01"_s, u"00:00:04:00"_s, u"00:00:06:00"_s, false},
        {u"00:00:03:23"_s, u"00:00:04:00"_s, u"00:00:06:00"_s, false},
        {u"00:00:00;29"_s, u"00:00:01:05"_s, u"00:00:01;05"_s, true},
        {u"00:00:06:00"_s, u"00:00:06:00"_s, u"00:00:04:00"_s, true},
        {u"00:00:04:00"_s, u"00:00:06:00"_s, u"00:00:04:00"_s, true},
        {u"00:00:05:00"_s, u"00:00:06:00"_s, u"00:00:04:00"_s, false},
    };
    for (const auto &row : rows)
        compare(QVTimecode::timecodeInRange(row.timecode, row.start, row.end), row.inRange, row.timecode);
}

void TestTimecode::timeOfDay()
{
    const QTime time(7, 5, 59, 509);
    QCOMPARE(QVTimecode::timeOfDayTimecode(30, false, false, time), u"07:05:59:15"_s);
    QCOMPARE(QVTimecode::timeOfDayTimecode(30, true, true, time), u"07:05:59;14"_s);
    QCOMPARE(QVTimecode::timeOfDayTimecode(25, true, false, time), u"07:05:59:00"_s);
    QCOMPARE(QVTimecode::timeOfDayTimecode(-2, false, false, time), u"07:05:59:0-1"_s);

    const QString before = QTime::currentTime().toString(u"HH:mm:ss"_s);
    const QString now = QVTimecode::timeOfDayTimecode(100, false, true);
    const QString after = QTime::currentTime().toString(u"HH:mm:ss"_s);
    QVERIFY2(now.startsWith(before + u';') || now.startsWith(after + u';'), qPrintable(now));
}

void TestTimecode::textForms()
{
    QCOMPARE(QVTimecode::sanitizeTimecodeForFilename(u"01:00:00;00"_s), u"01.00.00.00"_s);
    QCOMPARE(QVTimecode::formatHours(1, 10, 9, 100, true), u"01:10:09;100"_s);
    QCOMPARE(QVTimecode::formatHours(0, 0, -1, 0, false), u"00:00:018446744073709551615:00"_s);
    QCOMPARE(modulus(7.5, 2), 1.5);
    QCOMPARE(modulus(-7.5, 2), -1.5);
    QVERIFY(std::isnan(modulus(1, 0)));
}

QTEST_GUILESS_MAIN(TestTimecode)
#include "tst_timecode.moc"
