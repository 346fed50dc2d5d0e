#include "rows/RowSearch.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <thread>

using namespace vantrell;

namespace
{

const TypedKey<QString> first(u"first");
const TypedKey<QString> second(u"second");

RowRecordPtr row(const QString &a, const QString &b = QString())
{
    auto record = std::make_shared<RowRecord>();
    record->set(first, a);
    record->set(second, b);
    return record;
}

} // namespace

class RowSearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsATextOfARow_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<bool>("isFound");
        const auto add = [](const char *name, const char16_t *text, const char16_t *a, const char16_t *b,
                            bool isFound) {
            QTest::newRow(name) << QString::fromUtf16(text) << QString::fromUtf16(a) << QString::fromUtf16(b)
                                << isFound;
        };
        add("in another case", u"HORN", u"Fog horn", u"", true);
        add("in the second text", u"two", u"One", u"Take two", true);
        add("across two texts", u"onetwo", u"One", u"Two", false);
        add("nowhere", u"three", u"One", u"Two", false);
        add("composed in a decomposed one", u"\u00fcber", u"U\u0308BER allem", u"", true);
        add("decomposed in a composed one", u"u\u0308ber", u"\u00dcber allem", u"", true);
        add("with a space", u"g h", u"Fog horn", u"", true);
        add("other letters", u"\u0413\u0410\u0412", u"\u0433\u0430\u0432\u0430\u043d\u044c", u"", true);
    }
    void findsATextOfARow()
    {
        QFETCH(QString, text);
        QFETCH(QString, a);
        QFETCH(QString, b);
        RowSearch search(texts());
        search.setText(text);
        const RowRecordPtr record = row(a, b);
        QTEST(search.condition()(*record), "isFound");
        search.prepare({row(QStringLiteral("Other")), record});
        QTEST(search.condition()(*record), "isFound"); // in what is kept
        bool isFoundElsewhere = false;
        std::thread([&] { isFoundElsewhere = search.condition()(*record); }).join();
        QTEST(isFoundElsewhere, "isFound");
    }

    void readsEachRowOnce()
    {
        RowSearch search(texts());
        RowList rows;
        for (int i = 0; i < 300; ++i)
            rows.push_back(row(QStringLiteral("Row %1").arg(i)));
        while (!search.prepare(rows, std::chrono::milliseconds(0))) {
        }
        QCOMPARE(m_read, 300);
        search.setText(QStringLiteral("row 29"));
        int found = 0;
        for (const RowRecordPtr &record : rows)
            found += search.condition()(*record) ? 1 : 0;
        QCOMPARE(found, 11); // 29 and 290 to 299
        // In another order, with rows left out
        QVERIFY(search.condition()(*rows[299]));
        QVERIFY(!search.condition()(*rows[28]));
        QVERIFY(search.condition()(*rows[29]));
        QVERIFY(search.condition()(*rows[290]));
        QCOMPARE(m_read, 300);

        // What has changed is found once the old text is forgotten.
        rows[0]->set(first, QStringLiteral("Row 29 again"));
        QVERIFY(!search.condition()(*rows[0]));
        search.forget();
        QVERIFY(search.condition()(*rows[0]));
    }

    /// Texts of few letters, so that many hold what is looked for: letter by letter, and back.
    void findsWhatALookAtEachTextFinds()
    {
        QRandomGenerator random(18);
        const QStringList letters{
            QStringLiteral("a"),      QStringLiteral("B"),          QStringLiteral("b"),
            QStringLiteral(" "),      QStringLiteral("\u00e9"),     QStringLiteral("e\u0301"),
            QStringLiteral("\u00df"), QStringLiteral("ss"),         QStringLiteral("\u0416"),
            QStringLiteral("\u4e2d"), QStringLiteral("\U0001f600"), QString(QChar(0xd83d)),
            QStringLiteral("\n")};
        const auto word = [&](int most) {
            QString text;
            for (int length = random.bounded(most + 1); length > 0; --length)
                text += letters[random.bounded(letters.size())];
            return text;
        };
        RowList rows;
        QString shared;
        for (int i = 0; i < 400; ++i) {
            if (i % 7 == 0)
                shared = word(6);
            rows.push_back(row(word(8), shared));
        }
        RowSearch search(texts());
        search.prepare({rows.begin(), rows.begin() + 150});
        for (int run = 0; run < 60; ++run) {
            if (run == 20)
                search.prepare(rows);
            const QString whole = word(5);
            QStringList typed;
            for (qsizetype length = 0; length <= whole.size(); ++length)
                typed.append(whole.left(length));
            for (qsizetype length = whole.size(); length > 0; --length)
                typed.append(whole.left(length));
            for (const QString &text : std::as_const(typed)) {
                search.setText(text);
                const QString folded = RowSearch::folded(text);
                const auto holds = [&](const RowRecordPtr &record) {
                    return RowSearch::folded(record->get(first)).contains(folded) ||
                           RowSearch::folded(record->get(second)).contains(folded);
                };
                const RowSearch::Condition condition = search.condition();
                const RowSearch::Places places = search.placesOf(rows);
                for (std::size_t i = 0; i < rows.size(); ++i) {
                    QCOMPARE(condition(*rows[i]), holds(rows[i]));
                    if (places[i] != RowSearch::nowhere)
                        QCOMPARE(bool(search.hits()[places[i]]), holds(rows[i]));
                }
            }
        }
    }

    void takesLittleTimeAtOnce()
    {
        int read = 0;
        RowSearch search([&read](const RowRecord &, QStringList &) {
            ++read;
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        });
        RowList rows;
        while (rows.size() < 200)
            rows.push_back(row(QString()));
        QVERIFY(!search.prepare(rows, std::chrono::milliseconds(1)));
        QVERIFY(read < 200);
        QVERIFY(search.prepare(rows));
        QCOMPARE(read, 200);
    }

private:
    RowSearch::Texts texts()
    {
        m_read = 0;
        return [this](const RowRecord &record, QStringList &list) {
            ++m_read;
            list << record.get(first) << record.get(second);
        };
    }

    std::atomic<int> m_read = 0;
};

QTEST_GUILESS_MAIN(RowSearchTest)
#include "tst_rowsearch.moc"
