#include "document/MyDocument.h"
#include "document/TableSorting.h"
#include "support/settings/UserDefaults.h"
#include "tests/support/ScriptedDocumentInterface.h"
#include "tests/support/TemporaryHome.h"

#include <QTest>

namespace vantrell
{

class TestTableSorting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clicks_data();
    void clicks();
    void staysWithoutTheTable();

private:
    const TemporaryHome m_home;
};

namespace
{

const RecordKey nameKey(u"name");
const RecordKey inKey(u"in");

RowList rowsOf(const QString &texts)
{
    RowList rows;
    const QStringList parts = texts.split(QLatin1Char(' '));
    for (const QString &text : parts) {
        auto row = std::make_shared<RowRecord>();
        row->set(nameKey, RecordValue(text));
        // A number that several rows may share.
        row->set(inKey, RecordValue(std::int64_t(text.back().digitValue())));
        rows.push_back(row);
    }
    return rows;
}

const Columns columns{
    {.identifier = QStringLiteral("in"), .reversesWhole = true},
    {.identifier = QStringLiteral("bad"),
     .sortValue = [](const RowRecord &) -> std::optional<RecordValue> {
         throw std::runtime_error("no such column");
     }},
};

QString textsOf(const RowList &rows)
{
    QStringList texts;
    for (const RowRecordPtr &row : rows)
        texts.append(row->text(nameKey));
    return texts.join(QLatin1Char(' '));
}

} // namespace

void TestTableSorting::clicks_data()
{
    QTest::addColumn<QString>("storedColumn");
    QTest::addColumn<bool>("storedDescending");
    QTest::addColumn<QStringList>("clicks");
    QTest::addColumn<QString>("order");
    QTest::addColumn<QString>("column");
    QTest::addColumn<bool>("descending");
    const QString in = QStringLiteral("in");
    const QString name = QStringLiteral("name");
    // The rows are "b2 c1 a2 d1"; equal numbers keep their order when ascending, and are reversed when
    // descending.
    QTest::newRow("first click") << QString() << false << QStringList{in} << "c1 d1 b2 a2" << in << false;
    QTest::newRow("twice") << QString() << false << QStringList{in, in} << "a2 b2 d1 c1" << in << true;
    QTest::newRow("three times") << QString() << false << QStringList{in, in, in} << "d1 c1 a2 b2" << in
                                 << false;
    QTest::newRow("another column") << QString() << false << QStringList{in, in, name} << "a2 b2 c1 d1"
                                    << name << false;
    QTest::newRow("text downwards") << QString() << false << QStringList{name, name} << "d1 c1 b2 a2" << name
                                    << true;
    QTest::newRow("goes on from the defaults")
        << name << false << QStringList{name} << "d1 c1 b2 a2" << name << true;
    QTest::newRow("direction of another column")
        << name << true << QStringList{in} << "c1 d1 b2 a2" << in << false;
}

void TestTableSorting::clicks()
{
    QFETCH(const QString, storedColumn);
    QFETCH(const bool, storedDescending);
    QFETCH(const QStringList, clicks);
    UserDefaults defaults(QString(), UserDefaults::Access::Volatile);
    if (!storedColumn.isNull()) {
        defaults.setValue(QStringLiteral("markerSortedColumn"), storedColumn);
        defaults.setValue(QStringLiteral("markerSortedDescending"), storedDescending);
    }
    ScriptedDocumentInterface world;
    MyDocument document(world, {});
    document.rowView(Tab::Markers).setFilter(columns, {});
    world.watch(document);
    document.rowView(Tab::Markers).show(rowsOf(QStringLiteral("b2 c1 a2 d1")));
    world.events.clear();

    TableSorting sorting(document, defaults, Tab::Markers);
    QCOMPARE(sorting.descriptors().size(), std::size_t(storedColumn.isNull() ? 0 : 1));
    for (const QString &column : clicks)
        sorting.tableViewDidClickTableColumn(column);

    QTEST(textsOf(document.tableArray()), "order");
    QCOMPARE(world.events.count(QStringLiteral("did reload")), clicks.size());
    QTEST(sorting.descriptors().front().column, "column");
    QTEST(sorting.descriptors().front().descending, "descending");
    const TableSorting next(document, defaults, Tab::Markers);
    QTEST(next.descriptors().front().column, "column");
    QTEST(next.descriptors().front().descending, "descending");
    QVERIFY(TableSorting(document, defaults, Tab::Effects).descriptors().empty());
}

void TestTableSorting::staysWithoutTheTable()
{
    UserDefaults defaults(QString(), UserDefaults::Access::Volatile);
    ScriptedDocumentInterface world;
    MyDocument document(world, {});
    document.rowView(Tab::Media).setFilter(columns, {});
    document.rowView(Tab::Media).show(rowsOf(QStringLiteral("b2 a1")));
    TableSorting markers(document, defaults, Tab::Markers);
    markers.tableViewDidClickTableColumn(QStringLiteral("name"));
    QCOMPARE(document.tableTab(), Tab::Media);
    QCOMPARE(textsOf(document.tableArray()), QStringLiteral("b2 a1"));

    TableSorting media(document, defaults, Tab::Media);
    media.tableViewDidClickTableColumn(QStringLiteral("bad"));
    QCOMPARE(textsOf(document.tableArray()), QStringLiteral("b2 a1"));
    QVERIFY(media.descriptors().empty());
    QVERIFY(defaults.string(QStringLiteral("mediaSortedColumn")).isNull());
    for (int i = 0; i < 2; ++i)
        media.tableViewDidClickTableColumn(QStringLiteral("name"));
    QCOMPARE(defaults.string(QStringLiteral("mediaSortedColumn")), QStringLiteral("name"));
    QVERIFY(defaults.boolean(QStringLiteral("mediaSortedDescending")));
}

} // namespace vantrell

QTEST_GUILESS_MAIN(vantrell::TestTableSorting)
#include "tst_tablesorting.moc"
