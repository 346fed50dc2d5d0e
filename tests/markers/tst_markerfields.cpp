#include "support/settings/UserDefaults.h"
#include "tests/markers/MarkerProject.h"
#include "tests/support/TemporaryHome.h"

using namespace vantrell;

class MarkerFieldsTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

    static QString columns(MarkerProject &project)
    {
        return project.world.markerColumns().join(QLatin1Char(' '));
    }

private Q_SLOTS:
    void names_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("identifier");
        QTest::newRow("empty") << QString() << QStringLiteral("QVCUSTOM_UNTITLED");
        QTest::newRow("prefixed") << QStringLiteral("qvcustom_x") << QStringLiteral("QVCUSTOM_X");
        QTest::newRow("one wrong") << QStringLiteral("Take 2 b") << QStringLiteral("QVCUSTOM_TAKE2 B");
        QTest::newRow("two wrong") << QStringLiteral("a-b-c") << QStringLiteral("QVCUSTOM_AB-C");
        QTest::newRow("a pair is one character")
            << QStringLiteral("a\U0001F3ACb") << QStringLiteral("QVCUSTOM_AB");
        QTest::newRow("nothing left") << QStringLiteral("1") << QStringLiteral("QVCUSTOM_");
    }
    void names()
    {
        QFETCH(QString, name);
        QTEST(MarkerFields::formatMarkerFieldName(name), "identifier");
    }

    void definitionsAndColumns()
    {
        const QString path = m_home.path(QStringLiteral("settings.plist"));
        UserDefaults defaults(path);
        MarkerProject project("<xmeml/>", &defaults);
        for (const char *column : {"name", "in", "QVCUSTOM_OLD"})
            project.world.addMarkerColumn(QString::fromLatin1(column), QString());
        MarkerFields &fields = project.fields;
        for (const char *title : {"Take", "Cam era"}) {
            fields.markerFieldAdd();
            fields.setObjectValue(QString::fromLatin1(title), QStringLiteral("title"),
                                  fields.markerFieldArray().size() - 1);
        }
        fields.markerFieldAdd(); // stays without an identifier and gets no column
        fields.setObjectValue(QStringLiteral("Take 2"), QStringLiteral("title"), 0);
        fields.setObjectValue(QStringLiteral("none"), QStringLiteral("title"), 9);
        QCOMPARE(columns(project), QStringLiteral("name in QVCUSTOM_OLD"));
        fields.hideMarkerFieldsDialog();
        QCOMPARE(columns(project), QStringLiteral("name in QVCUSTOM_TAKE QVCUSTOM_CAMERA"));

        fields.columnMoved(QStringLiteral("QVCUSTOM_TAKE"), 0);
        fields.columnMoved(QStringLiteral("in"), 3);
        QCOMPARE(fields.markerFieldArray().back().identifier, QStringLiteral("QVCUSTOM_TAKE"));

        UserDefaults again(path);
        MarkerProject other("<xmeml/>", &again);
        QCOMPARE(columns(other), QStringLiteral("QVCUSTOM_TAKE QVCUSTOM_CAMERA"));
        QCOMPARE(other.fields.markerFieldArray().back().title, QStringLiteral("Take 2"));
        other.fields.markerFieldRemove(0);
        other.fields.markerFieldRemove(7);
        other.fields.setObjectValue(QStringLiteral("lens"), QStringLiteral("identifier"), 0);
        other.fields.hideMarkerFieldsDialog();
        QCOMPARE(columns(other), QStringLiteral("QVCUSTOM_TAKE QVCUSTOM_LENS"));
        other.fields.columnMoved(QStringLiteral("QVCUSTOM_TAKE"), 2); // no such index: it stays
        other.fields.setupMarkerFields();
        QCOMPARE(columns(other), QStringLiteral("QVCUSTOM_TAKE QVCUSTOM_LENS"));
    }

    /// What another window defined, renamed and removed while the sheet is open counts when it closes.
    void sheetsTakeInChangesOfOthers()
    {
        UserDefaults defaults(m_home.path(QStringLiteral("two.plist")), UserDefaults::Access::Volatile);
        MarkerProject project("<xmeml/>", &defaults);
        MarkerFields &ours = project.fields;
        const QString title = QStringLiteral("title");
        const auto add = [&title](MarkerFields &fields, const char *name) {
            fields.markerFieldAdd();
            fields.setObjectValue(QString::fromLatin1(name), title, fields.markerFieldArray().size() - 1);
        };
        for (const char *name : {"Take", "Lens", "Crew", "Mood"})
            add(ours, name);
        ours.hideMarkerFieldsDialog();

        MarkerProject otherProject("<xmeml/>", &defaults);
        MarkerFields &theirs = otherProject.fields;
        ours.showMarkerFieldsDialog();
        ours.setObjectValue(QStringLiteral("Lens, ours"), title, 1);
        ours.markerFieldRemove(3);
        add(ours, "Day");
        theirs.showMarkerFieldsDialog();
        theirs.setObjectValue(QStringLiteral("Crew, theirs"), title, 2);
        theirs.markerFieldRemove(0);
        theirs.markerFieldRemove(0);
        add(theirs, "Night");
        theirs.hideMarkerFieldsDialog();
        ours.hideMarkerFieldsDialog();
        QStringList titles;
        for (const MarkerField &field : ours.markerFieldArray())
            titles.append(field.title);
        QCOMPARE(titles.join(QLatin1Char('|')), QStringLiteral("Lens, ours|Crew, theirs|Day|Night"));
    }

    void tellsOfIdentifiersThatOthersHave()
    {
        MarkerProject project("<xmeml/>");
        MarkerFields &fields = project.fields;
        const QString title = QStringLiteral("title");
        const QString identifier = QStringLiteral("identifier");
        for (int i = 0; i < 3; ++i)
            fields.markerFieldAdd();
        fields.setObjectValue(QStringLiteral("Take"), title, 0);
        fields.setObjectValue(QStringLiteral("Lens"), title, 1);
        // One without an identifier gets it from its title, the others keep theirs.
        QVERIFY(
            fields.conflictOf(QStringLiteral("take"), title, 2).contains(QStringLiteral("QVCUSTOM_TAKE")));
        QVERIFY(fields.conflictOf(QStringLiteral("Crew"), title, 2).isNull());
        QVERIFY(fields.conflictOf(QStringLiteral("Take"), title, 1).isNull());
        QVERIFY(
            fields.conflictOf(QStringLiteral("TAKE"), identifier, 1).contains(QStringLiteral("\"Take\"")));
        QVERIFY(fields.conflictOf(QStringLiteral("LENS"), identifier, 1).isNull());
    }

    void strangeDefinitionsDoNoHarm()
    {
        UserDefaults defaults(m_home.path(QStringLiteral("strange.plist")), UserDefaults::Access::Volatile);
        const QString key = QStringLiteral("customMarkerFields");
        const QVariantMap far{{QStringLiteral("identifier"), QStringLiteral("QVCUSTOM_X")},
                              {QStringLiteral("colIndex"), QStringLiteral("-4")}};
        defaults.setValue(key, QVariantList{1, far, QStringLiteral("text"), far});
        MarkerProject project("<xmeml/>", &defaults);
        QCOMPARE(columns(project), QStringLiteral("QVCUSTOM_X"));
        defaults.setValue(key, QStringLiteral("no list"));
        project.fields.setupMarkerFields();
        QCOMPARE(columns(project), QString());
    }
};

QTEST_GUILESS_MAIN(MarkerFieldsTest)
#include "tst_markerfields.moc"
