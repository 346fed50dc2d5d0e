#include "rows/RowRecord.h"
#include "rows/RowSort.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <cmath>

#include <thread>

using namespace vantrell;

namespace
{

const TypedKey<QString> name(u"name");
const TypedKey<std::int64_t> count(u"count");
const TypedKey<bool> flag(u"flag");

QStringList keysOf(const RowRecord &record)
{
    QStringList keys;
    for (std::size_t i = 0; i < record.size(); ++i)
        keys.append(record.keyAt(i).text());
    return keys;
}

RowRecordPtr row(const QString &text, std::optional<std::int64_t> number)
{
    auto record = std::make_shared<RowRecord>();
    record->set(name, text);
    if (number)
        record->set(count, *number);
    return record;
}

} // namespace

class RowRecordTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheOrderOfFirstSetting()
    {
        RowRecord record;
        record.set(name, QStringLiteral("a"));
        record.set(count, 1);
        record.set(flag, false);
        record.set(name, QStringLiteral("b"));
        QCOMPARE(keysOf(record).join(QLatin1Char(' ')), QStringLiteral("name count flag"));
        QCOMPARE(record.get(name), QStringLiteral("b"));
        record.remove(count);
        record.remove(count);
        QVERIFY(!record.contains(count));
        record.set(count, 0);
        QCOMPARE(keysOf(record).join(QLatin1Char(' ')), QStringLiteral("name flag count"));
        QVERIFY(record.contains(count));
        QCOMPARE(record.get(TypedKey<QString>(u"count")), QString());
        RowRecord other;
        other.set(TypedKey<QString>(u"extra"), QStringLiteral("x"));
        other.set(name, QStringLiteral("c"));
        record.merge(other);
        QCOMPARE(keysOf(record).join(QLatin1Char(' ')), QStringLiteral("name flag count extra"));
        QCOMPARE(record.get(name), QStringLiteral("c"));
    }

    void namesOfFilesStandAmongConstants()
    {
        const auto made = [](const char *text) { return RecordKey(QString::fromLatin1(text)); };
        RowRecord record;
        for (const char *key : {"name", "x one", "count", "x two", "x three", "x two"})
            record.set(made(key), QString::fromLatin1(key));
        QCOMPARE(keysOf(record).join(QLatin1Char('|')), QStringLiteral("name|x one|count|x two|x three"));
        RowRecord copy = record;
        record.remove(made("x two"));
        record.remove(name);
        record.remove(made("x four"));
        QCOMPARE(keysOf(record).join(QLatin1Char('|')), QStringLiteral("x one|count|x three"));
        for (std::size_t i = 0; i < record.size(); ++i)
            QCOMPARE(record.text(record.keyAt(i)), record.keyAt(i).text());
        QVERIFY(!record.contains(made("x two")) && copy.contains(made("x two")));
        record.merge(copy);
        QCOMPARE(keysOf(record).join(QLatin1Char('|')), QStringLiteral("x one|count|x three|name|x two"));
        QVERIFY(made("name") == name && made("x one").text() == QStringLiteral("x one"));
        QVERIFY(made("x one") == made("x one") && !(made("x one") == made("x two")));
        QVERIFY(!made("x one").isConstant() && made("count").isConstant());
    }

    void threadsBuildRecordsAtOnce()
    {
        std::vector<std::thread> threads;
        std::atomic<int> wrong = 0;
        threads.reserve(4);
        for (int t = 0; t < 4; ++t) {
            threads.emplace_back([&wrong, t] {
                for (int i = 0; i < 300; ++i) {
                    RowRecord record;
                    for (int k = 0; k < 20; ++k) {
                        const QString key = QStringLiteral("k%1").arg((k * (t + 1) + i) % 150);
                        record.set(TypedKey<QString>(key), key);
                    }
                    for (std::size_t k = 0; k < record.size(); ++k)
                        wrong += record.keyAt(k).text() != std::get<QString>(record.valueAt(k));
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(wrong.load(), 0);
    }

    void sorts_data()
    {
        QTest::addColumn<QString>("columns");
        QTest::addColumn<QString>("order");
        QTest::newRow("none") << QString() << QStringLiteral("b2 B1 a- a1");
        QTest::newRow("text: case last") << QStringLiteral("name") << QStringLiteral("a- a1 B1 b2");
        QTest::newRow("text, descending") << QStringLiteral("-name") << QStringLiteral("b2 B1 a- a1");
        QTest::newRow("number: absent first, ties kept")
            << QStringLiteral("count") << QStringLiteral("a- B1 a1 b2");
        QTest::newRow("number, descending: ties kept")
            << QStringLiteral("-count") << QStringLiteral("b2 B1 a1 a-");
        QTest::newRow("two columns") << QStringLiteral("count name") << QStringLiteral("a- a1 B1 b2");
        QTest::newRow("no such column") << QStringLiteral("none") << QStringLiteral("b2 B1 a- a1");
    }
    void sorts()
    {
        QFETCH(QString, columns);
        const RowList rows{row(QStringLiteral("b"), 2), row(QStringLiteral("B"), 1),
                           row(QStringLiteral("a"), std::nullopt), row(QStringLiteral("a"), 1)};
        std::vector<SortDescriptor> descriptors;
        for (const QString &column : columns.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const bool descending = column.startsWith(QLatin1Char('-'));
            descriptors.push_back({descending ? column.sliced(1) : column, descending});
        }
        QStringList order;
        for (const RowRecordPtr &record : sortedRows(rows, descriptors)) {
            order.append(record->get(name) + (record->contains(count) ? QString::number(record->get(count))
                                                                      : QStringLiteral("-")));
        }
        QTEST(order.join(QLatin1Char(' ')), "order");
    }

    void sortsTextsOfAnyLength()
    {
        const QString letters = QString::fromUtf8("aaaAbB éÉþÿŸāĀżЖж\0", -1) + QChar(0xfe) + QChar(0xff);
        QRandomGenerator random(20);
        RowList rows;
        for (int i = 0; i < 3000; ++i) {
            QString text;
            for (int length = random.bounded(12); length > 0; --length)
                text += letters[random.bounded(int(letters.size()))];
            rows.push_back(row(text, i));
        }
        for (const bool descending : {false, true}) {
            RowList expected = rows;
            std::stable_sort(expected.begin(), expected.end(), [&](const auto &a, const auto &b) {
                const QString first = (descending ? b : a)->get(name);
                const QString second = (descending ? a : b)->get(name);
                const int folded = first.toCaseFolded().compare(second.toCaseFolded());
                return folded != 0 ? folded < 0 : first < second;
            });
            QVERIFY(sortedRows(rows, {{QStringLiteral("name"), descending}}) == expected);
        }
    }

    void sortsNumbersByValue()
    {
        const TypedKey<double> size(u"size");
        RowList rows;
        for (const double value : {2.5, -1e300, 0.0, -2.5, 1e-9, -0.0, 1e300}) {
            rows.push_back(std::make_shared<RowRecord>());
            rows.back()->set(size, value);
        }
        std::vector<double> sorted;
        for (const RowRecordPtr &record : sortedRows(rows, {{QStringLiteral("size"), false}}))
            sorted.push_back(record->get(size));
        QCOMPARE(sorted, (std::vector<double>{-1e300, -2.5, 0.0, -0.0, 1e-9, 2.5, 1e300}));
        QVERIFY(!std::signbit(sorted[2])); // equal to the other zero, and first as before
    }
};

QTEST_GUILESS_MAIN(RowRecordTest)
#include "tst_rowrecord.moc"
