#include "rows/RowSort.h"
#include "rows/RowView.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <thread>

using namespace vantrell;

namespace
{

const TypedKey<QString> textKey(u"text");
const QString textColumn = QStringLiteral("text");

RowRecordPtr row(const QString &text)
{
    auto record = std::make_shared<RowRecord>();
    if (!text.isNull())
        record->set(textKey, text);
    return record;
}

} // namespace

class RowSortTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Without regard to case, then exactly; what is absent comes first; equal rows keep their order.
    void sortsTexts()
    {
        QRandomGenerator random(7);
        const QStringList letters{QStringLiteral("a"),
                                  QStringLiteral("A"),
                                  QStringLiteral("b"),
                                  QStringLiteral("Z"),
                                  QStringLiteral("_"),
                                  QString(QChar(0)),
                                  QStringLiteral("\u00e9"),
                                  QStringLiteral("\u00c9"),
                                  QStringLiteral("\u00df"),
                                  QStringLiteral("\u0416"),
                                  QStringLiteral("\ufb01"),
                                  QStringLiteral("\U0001f600"),
                                  QStringLiteral("beginning that is long")};
        RowList rows{row(QString()), row(QLatin1String(""))};
        for (int i = 0; i < 500; ++i) {
            QString text = QLatin1String("");
            for (int length = random.bounded(5); length > 0; --length)
                text += letters[random.bounded(letters.size())];
            rows.push_back(row(text));
            if (i % 5 == 0)
                rows.push_back(row(rows.back()->get(textKey))); // in the same memory
            if (i % 9 == 0)
                rows.push_back(row(QString()));
        }
        const auto comesBefore = [](const RowRecordPtr &a, const RowRecordPtr &b) {
            if (a->contains(textKey) != b->contains(textKey))
                return b->contains(textKey);
            const QString textA = a->get(textKey);
            const QString textB = b->get(textKey);
            const int folded = textA.toCaseFolded().compare(textB.toCaseFolded());
            return folded != 0 ? folded < 0 : textA.compare(textB) < 0;
        };
        RowList expected = rows;
        std::stable_sort(expected.begin(), expected.end(), comesBefore);
        QCOMPARE(sortedRows(rows, {{textColumn, false}}, {}) == expected, true);
        expected = rows;
        std::stable_sort(expected.begin(), expected.end(),
                         [&](const auto &a, const auto &b) { return comesBefore(b, a); });
        QCOMPARE(sortedRows(rows, {{textColumn, true}}, {}) == expected, true);
    }

    void sortsByTheMostImportantFirst()
    {
        const TypedKey<std::int64_t> numberKey(u"number");
        RowList rows;
        for (const auto &[text, number] : {std::pair("b", 2), {"a", 1}, {"B", -3}, {"a", 1}, {"a", 0}}) {
            rows.push_back(row(QLatin1String(text)));
            rows.back()->set(numberKey, number);
        }
        const auto order = [&rows](const std::vector<SortDescriptor> &descriptors) {
            RowSorter sorter(descriptors, {});
            for (const RowRecordPtr &one : rows)
                sorter.add(*one);
            return sorter.order();
        };
        const QString number = QStringLiteral("number");
        using Order = std::vector<std::uint32_t>;
        QCOMPARE(order({}), Order({0, 1, 2, 3, 4}));
        QCOMPARE(order({{textColumn, false}, {number, true}}), Order({1, 3, 4, 2, 0}));
        QCOMPARE(order({{number, false}, {textColumn, false}}), Order({2, 4, 1, 3, 0}));
    }

    /// A click on a title while another thread sorts the rows counts.
    void sortsAsChosenMeanwhile()
    {
        MainThreadGate mainThread;
        RowView view;
        const Columns columns;
        std::atomic<bool> isSorting = false;
        std::atomic<bool> isClicked = false;
        view.setFilter(columns, [&] {
            return RowView::Filter{.passes = [&](const RowRecord &) {
                isSorting = true;
                isClicked.wait(false);
                return true;
            }};
        });
        view.setList({row(QStringLiteral("b")), row(QStringLiteral("c")), row(QStringLiteral("a"))});
        view.setSortDescriptors({{textColumn, false}});
        view.show({});
        std::atomic<bool> isDone = false;
        std::thread worker([&] {
            view.rebuild(mainThread, [] { return true; });
            isDone = true;
        });
        MainThread::drainUntil([&] { return isSorting.load(); });
        view.sortBy({{textColumn, true}});
        isClicked = true;
        isClicked.notify_all();
        MainThread::drainUntil([&] { return isDone.load(); });
        worker.join();
        QString texts;
        for (const RowRecordPtr &shown : view.visibleRows())
            texts += shown->get(textKey);
        QCOMPARE(texts, QStringLiteral("cba"));
        QVERIFY(view.order() == RowView::Order::Sorted);
    }
};

QTEST_GUILESS_MAIN(RowSortTest)
#include "tst_rowsort.moc"
