#include "markers/MarkerPresets.h"
#include "support/alerts/QVAlert.h"
#include "support/files/PropertyList.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"
#include "tests/support/LoadedProject.h"
#include "tests/support/ScriptedAlertPresenter.h"
#include "tests/support/TemporaryHome.h"

#include <QDir>
#include <QTest>

using namespace vantrell;

namespace
{

const QString defaultLabels = QStringLiteral("Red Orange Yellow Green Turquoise Blue Purple Pink");
const QString selectedPreset = QStringLiteral("selectedPreset");
const QString presetFolder = QStringLiteral(".local/share/Orvandel/Halvex/Vantrell/Marker Presets");

/// A preset that changes the labels of these colours, as "Green=Chapter Blue=" says.
QByteArray preset(const QString &changes, const QString &without = QString())
{
    QVariantMap labels;
    for (const QString &label : defaultLabels.split(QLatin1Char(' '))) {
        if (label != without)
            labels.insert(label, label);
    }
    for (const QString &change : changes.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        labels.insert(change.section(QLatin1Char('='), 0, 0), change.section(QLatin1Char('='), 1));
    return PropertyList::toBytes(labels, PropertyList::Format::Xml).value();
}

/// The presets of a project, and what they tell.
struct Presets : LoadedProject {
    explicit Presets(UserDefaults *defaults)
        : presets(document, defaults)
    {
        QObject::connect(&presets, &MarkerPresets::menuChanged, &presets,
                         [this](const QStringList &titles, int selected) {
                             items = titles;
                             chosen = selected;
                         });
        QObject::connect(&presets, &MarkerPresets::labelsChanged, &presets,
                         [this](const QStringList &titles) { labels = titles.join(QLatin1Char(' ')); });
        QObject::connect(&presets, &MarkerPresets::sheetRequested, &presets,
                         [this] { sheets.append(QStringLiteral("requested")); });
        QObject::connect(&presets, &MarkerPresets::sheetEnded, &presets,
                         [this] { sheets.append(QStringLiteral("ended")); });
    }
    MarkerPresets *operator->() { return &presets; }

    /// The items of the pop-up, with a star after the chosen one and "-" for the separator.
    QString menu() const
    {
        QStringList texts;
        for (int i = 0; i < items.size(); ++i)
            texts.append((items[i].isNull() ? QStringLiteral("-") : items[i]) +
                         (i == chosen ? QStringLiteral("*") : QString()));
        return texts.join(QLatin1Char('|'));
    }

    MarkerPresets presets;
    QStringList items;
    int chosen = -1;
    QString labels;
    QStringList sheets;
};

} // namespace

class MarkerPresetsTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TemporaryHome> m_home;
    std::unique_ptr<UserDefaults> m_defaults;
    std::shared_ptr<ScriptedAlertPresenter> m_alerts;

    QString pathOf(const QString &name) const { return m_home->path(presetFolder + QLatin1Char('/') + name); }
    void addPreset(const QString &name, const QByteArray &content) const
    {
        m_home->addFile(presetFolder + QLatin1Char('/') + name + QStringLiteral(".markerpreset"), content);
    }
    QStringList files() const
    {
        return QDir(m_home->path(presetFolder)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    QString selected() const { return m_defaults->string(selectedPreset); }

private Q_SLOTS:
    void initTestCase()
    {
        const TemporaryHome home; // the log keeps its file open, the tests' homes stay without it
        QVLog::createNewLog(QStringLiteral("markers"), true);
    }
    void init()
    {
        m_home = std::make_unique<TemporaryHome>();
        m_defaults = std::make_unique<UserDefaults>(m_home->path(QStringLiteral("test.plist")));
        m_alerts = std::make_shared<ScriptedAlertPresenter>();
        QVAlert::setPresenter(m_alerts);
    }
    void cleanup()
    {
        QVAlert::setPresenter(nullptr);
        m_defaults.reset();
        m_home.reset();
    }

    void withoutFolder()
    {
        Presets presets(m_defaults.get());
        presets->populateMarkerPresets();
        QCOMPARE(presets.menu(), QStringLiteral("None*|-|Create preset..."));
        QCOMPARE(presets.labels, defaultLabels);
        QVERIFY(!presets->markerLabelDict());
        QVERIFY(!QFile::exists(m_home->path(QStringLiteral(".local"))));
    }

    void choosing_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("expected");
        const QString broken = defaultLabels;
        QTest::newRow("labels") << preset(QStringLiteral("Green=Chapter Pink="))
                                << QStringLiteral("Red Orange Yellow Chapter Turquoise Blue Purple ");
        QTest::newRow("without Blue") << preset(QString(), QStringLiteral("Blue"))
                                      << QStringLiteral("Red Orange Yellow Green Turquoise  Purple Pink");
        QTest::newRow("no dictionary") << QByteArray("<plist><array/></plist>") << broken;
        QTest::newRow("damaged") << preset(QString()).left(200) << broken;
        QTest::newRow("empty") << QByteArray() << broken;
    }
    void choosing()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, expected);
        addPreset(QStringLiteral("Cut 10"), preset(QString()));
        addPreset(QStringLiteral("Cut 9"), content);
        m_home->addFile(presetFolder + QStringLiteral("/notes.txt"), "");
        Presets presets(m_defaults.get());
        presets->populateMarkerPresets();
        QStringList items = presets.items;
        items.sort();
        QCOMPARE(items.join(QLatin1Char('|')), QStringLiteral("|Create preset...|Cut 10|Cut 9|None"));
        const int item = int(presets.items.indexOf(QStringLiteral("Cut 9")));
        presets->changeMarkerPreset(item);
        QCOMPARE(presets.chosen, item);
        QCOMPARE(presets.labels, expected);
        QCOMPARE(presets->markerLabelDict().has_value(), expected != defaultLabels);
        QCOMPARE(selected(), QStringLiteral("Cut 9"));

        // The next document begins with it.
        Presets nextPresets(m_defaults.get());
        nextPresets->populateMarkerPresets();
        QCOMPARE(nextPresets.chosen, item);
        QCOMPARE(nextPresets.labels, expected);
        nextPresets->changeMarkerPreset(0);
        QCOMPARE(nextPresets.labels, defaultLabels);
        QVERIFY(!nextPresets->markerLabelDict());
        QCOMPARE(selected(), QStringLiteral("None"));
    }

    void strangeFiles()
    {
        m_home->addFile(presetFolder + QStringLiteral("/Loud.MarkerPreset"), preset(QString()));
        QDir().mkpath(pathOf(QStringLiteral("Folder.markerpreset")));
        Presets presets(m_defaults.get());
        m_defaults->setValue(selectedPreset, QStringLiteral("Loud"));
        presets->populateMarkerPresets(); // listed by whatever case, read by one
        QCOMPARE(presets.menu(), QStringLiteral("None|Folder|Loud*|-|Create preset..."));
        QVERIFY(!presets->markerLabelDict());
        presets->changeMarkerPreset(1);
        QVERIFY(!presets->markerLabelDict());
        QCOMPARE(presets.labels, defaultLabels);
        presets->changeMarkerPreset(4);
        QCOMPARE(selected(), QStringLiteral("Folder"));
    }

    void aLostPresetIsNone()
    {
        m_defaults->setValue(selectedPreset, QStringLiteral("Create preset..."));
        Presets presets(m_defaults.get());
        presets->populateMarkerPresets();
        QCOMPARE(presets.menu(), QStringLiteral("None*|-|Create preset..."));
        QCOMPARE(selected(), QStringLiteral("None"));
    }

    void saving_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("file"); // without its extension
        QTest::addColumn<QString>("alert");
        const QString unable = QStringLiteral("Unable to create preset");
        QTest::newRow("plain") << QStringLiteral("Cut") << QStringLiteral("Cut") << QString();
        QTest::newRow("dot and name") << QStringLiteral(".hidden") << QStringLiteral("hidden") << QString();
        QTest::newRow("dots and name") << QStringLiteral("..rc") << QStringLiteral(".rc") << QString();
        QTest::newRow("dot") << QStringLiteral(".") << QStringLiteral(".") << QString();
        QTest::newRow("two dots") << QStringLiteral("..") << QStringLiteral(".") << QString();
        QTest::newRow("umlaut") << QStringLiteral("Schnitt für 2 %@") << QStringLiteral("Schnitt für 2 %@")
                                << QString();
        QTest::newRow("empty") << QString() << QString() << QStringLiteral("No name specified");
        QTest::newRow("slash") << QStringLiteral("../Cut") << QString() << unable;
        QTest::newRow("up") << QStringLiteral(".../../x") << QString() << unable;
        QTest::newRow("nul") << QStringLiteral("a") + QChar(u'\0') << QString() << unable;
        QTest::newRow("too long") << QString(300, QLatin1Char('n')) << QString() << unable;
    }
    void saving()
    {
        QFETCH(QString, name);
        QFETCH(QString, file);
        QFETCH(QString, alert);
        m_alerts->queueAnswer(AlertAnswer::Default);
        Presets presets(m_defaults.get());
        presets->populateMarkerPresets();
        presets->showMarkerPresetDialog();
        QCOMPARE(presets->markerPresetTableDataArray().at(4).icon, QStringLiteral("marker-turquoise"));
        presets->setObjectValue(QStringLiteral("Fix"), QStringLiteral("label"), 4);
        presets->setObjectValue(QStringLiteral("no"), QStringLiteral("icon"), 4);
        presets->setObjectValue(QString(), QStringLiteral("label"), 7);
        QCOMPARE(presets->addMarkerPreset(name), alert.isEmpty());
        QStringList sheets{QStringLiteral("requested")};
        if (alert.isEmpty()) {
            sheets.append(QStringLiteral("ended"));
            QCOMPARE(files(), QStringList(file + QStringLiteral(".markerpreset")));
            QCOMPARE(presets.menu(), QStringLiteral("None|%1*|-|Create preset...").arg(file));
            QCOMPARE(presets.labels, QStringLiteral("Red Orange Yellow Green Fix Blue Purple "));
            QCOMPARE(presets->markerLabelDict()->value(QStringLiteral("Turquoise")).toString(),
                     QStringLiteral("Fix"));
            QCOMPARE(selected(), file);
            QVERIFY(m_alerts->shown().empty());
        } else {
            QCOMPARE(files(), QStringList());
            QVERIFY(!QFile::exists(pathOf(QStringLiteral("../Cut.markerpreset"))));
            QCOMPARE(m_alerts->shown().at(0).text(AlertKey::MessageText), alert);
            QCOMPARE(selected(), QStringLiteral("None"));
        }
        QCOMPARE(presets.sheets, sheets);
    }

    /// It stays the chosen one, here and in other windows, beside the item that stands for none.
    void aPresetNamedNone()
    {
        const QString none = QStringLiteral("None");
        Presets presets(m_defaults.get());
        Presets others(m_defaults.get());
        presets->populateMarkerPresets();
        presets->showMarkerPresetDialog();
        presets->setObjectValue(QStringLiteral("Fix"), QStringLiteral("label"), 0);
        QVERIFY(presets->addMarkerPreset(none));
        const QString isChosen = QStringLiteral("None|None*|-|Create preset...");
        presets->refreshMarkerPresets();
        QCOMPARE(presets.menu(), isChosen);
        QVERIFY(presets.labels.startsWith(QStringLiteral("Fix ")));
        others->populateMarkerPresets();
        QCOMPARE(others.menu(), isChosen);

        others->changeMarkerPreset(0);
        presets->refreshMarkerPresets();
        QCOMPARE(presets.menu(), QStringLiteral("None*|None|-|Create preset..."));
        QVERIFY(presets->renameMarkerPreset(none, QStringLiteral("Cut")));
        QCOMPARE(selected(), none);
        presets->changeMarkerPreset(1);
        QVERIFY(presets->renameMarkerPreset(QStringLiteral("Cut"), none));
        QCOMPARE(presets.menu(), isChosen);
        QVERIFY(presets->renameMarkerPreset(none, QStringLiteral("Cut")));
        others->refreshMarkerPresets();
        QCOMPARE(others.menu(), QStringLiteral("None|Cut*|-|Create preset..."));
    }

    void overwriting_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("overwrites");
        QTest::newRow("overwrite") << AlertAnswer::Default << true;
        QTest::newRow("cancel") << AlertAnswer::Alternate << false;
        QTest::newRow("window closed") << AlertAnswer::Other << false;
    }
    void overwriting()
    {
        QFETCH(int, answer);
        QFETCH(bool, overwrites);
        const QByteArray before = preset(QStringLiteral("Red=Old"));
        addPreset(QStringLiteral("Cut"), before);
        m_alerts->queueAnswer(answer);
        Presets presets(m_defaults.get());
        presets->populateMarkerPresets();
        presets->showMarkerPresetDialog();
        QCOMPARE(presets->addMarkerPreset(QStringLiteral("Cut")), overwrites);
        QCOMPARE(contentOf(pathOf(QStringLiteral("Cut.markerpreset"))) == before, !overwrites);
        QCOMPARE(selected(), overwrites ? QStringLiteral("Cut") : QStringLiteral("None"));
        const ScriptedAlertPresenter::Shown &question = m_alerts->shown().at(0);
        QCOMPARE(question.text(AlertKey::MessageText), QStringLiteral("This preset already exists"));
        QCOMPARE(question.text(AlertKey::InformativeText), QStringLiteral("Would you like to overwrite it?"));
        QCOMPARE(question.text(AlertKey::DefaultButtonTitle), QStringLiteral("Overwrite"));
        QCOMPARE(question.text(AlertKey::AlternateButtonTitle), QStringLiteral("Cancel"));
    }

    void editing_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("questions");
        QTest::newRow("the same") << "Cut" << 0;
        QTest::newRow("another") << "New" << 0;
        QTest::newRow("one that is there") << "Loud" << 1;
    }
    void editing()
    {
        QFETCH(QString, name);
        addPreset(QStringLiteral("Cut"), preset(QStringLiteral("Red=Old Blue=Sky")));
        addPreset(QStringLiteral("Loud"), preset(QStringLiteral("Red=Noise")));
        m_alerts->queueAnswer(AlertAnswer::Default);
        Presets presets(m_defaults.get());
        presets->populateMarkerPresets();
        presets->editMarkerPreset(QStringLiteral("Cut"));
        QCOMPARE(presets.sheets, QStringList(QStringLiteral("requested")));
        QCOMPARE(presets->markerPresetTableDataArray()[0].label, QStringLiteral("Old"));
        presets->setObjectValue(QStringLiteral("New"), QStringLiteral("label"), 0);
        QVERIFY(presets->addMarkerPreset(name));
        QTEST(int(m_alerts->shown().size()), "questions");
        QCOMPARE(contentOf(pathOf(name + QStringLiteral(".markerpreset"))),
                 preset(QStringLiteral("Red=New Blue=Sky")));
        QCOMPARE(selected(), name == QStringLiteral("Cut") ? QStringLiteral("None") : name);
        presets->showMarkerPresetDialog();
        QVERIFY(presets->editedPreset().isNull());
        QCOMPARE(presets->markerPresetTableDataArray()[0].label, QStringLiteral("Red"));
    }

    void whereNothingCanBeWritten()
    {
        const QString file = m_home->addFile(presetFolder, "a file");
        m_alerts->queueAnswer(AlertAnswer::Default);
        Presets presets(m_defaults.get());
        presets->populateMarkerPresets();
        QCOMPARE(presets.menu(), QStringLiteral("None*|-|Create preset..."));
        presets->showMarkerPresetDialog();
        QVERIFY(!presets->addMarkerPreset(QStringLiteral("Cut")));
        QCOMPARE(m_alerts->shown().at(0).text(AlertKey::InformativeText),
                 QStringLiteral("Please ensure your permissions are correct for the directory ") + file);
        QCOMPARE(contentOf(file), QByteArray("a file"));
        presets->cancelMarkerPresetDialog();
        QCOMPARE(presets.sheets.last(), QStringLiteral("ended"));
    }

    void changesFromElsewhere()
    {
        addPreset(QStringLiteral("A"), preset(QStringLiteral("Red=a")));
        Presets presets(m_defaults.get());
        presets->populateMarkerPresets();
        presets->changeMarkerPreset(1);
        addPreset(QStringLiteral("B"), preset(QStringLiteral("Red=b")));
        m_defaults->setValue(selectedPreset, QStringLiteral("B"));
        presets->refreshMarkerPresets();
        QCOMPARE(presets.menu(), QStringLiteral("None|A|B*|-|Create preset..."));
        QCOMPARE(presets.labels.section(QLatin1Char(' '), 0, 0), QStringLiteral("b"));
        // The selection is kept while its file is missing.
        QVERIFY(QFile::rename(pathOf(QStringLiteral("B.markerpreset")), pathOf(QStringLiteral("away"))));
        presets->refreshMarkerPresets();
        QCOMPARE(presets.menu(), QStringLiteral("None*|A|-|Create preset..."));
        QCOMPARE(presets.labels, defaultLabels);
        QCOMPARE(selected(), QStringLiteral("B"));
        addPreset(QStringLiteral("B"), preset(QStringLiteral("Red=again")));
        presets->refreshMarkerPresets();
        QCOMPARE(presets.labels.section(QLatin1Char(' '), 0, 0), QStringLiteral("again"));
    }

    void tellsWhyASlashIsRefused()
    {
        m_alerts->queueAnswer(AlertAnswer::Default);
        Presets presets(m_defaults.get());
        presets->showMarkerPresetDialog();
        QVERIFY(!presets->addMarkerPreset(QStringLiteral("Day/Night")));
        QVERIFY(m_alerts->shown().at(0).text(AlertKey::InformativeText).contains(QStringLiteral("slash")));
        QVERIFY(!QFile::exists(m_home->path(presetFolder)));
    }

    void renaming_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("name"); // of the file afterwards
        QTest::addColumn<QString>("failure");
        const QString loud = QStringLiteral("Loud");
        QTest::newRow("plain") << QStringLiteral("Grade") << QStringLiteral("Grade") << QString();
        QTest::newRow("dot and name") << QStringLiteral(".Grade") << QStringLiteral("Grade") << QString();
        QTest::newRow("the same") << loud << loud << QString();
        QTest::newRow("empty") << QString() << loud << QStringLiteral("needs a name");
        QTest::newRow("slash") << QStringLiteral("a/b") << loud << QStringLiteral("slash");
        QTest::newRow("taken") << QStringLiteral("Cut") << loud << QStringLiteral("\"Cut\" already");
        QTest::newRow("too long") << QString(300, QLatin1Char('n')) << loud << QStringLiteral("could not");
    }
    void renaming()
    {
        QFETCH(QString, typed);
        QFETCH(QString, name);
        QFETCH(QString, failure);
        addPreset(QStringLiteral("Cut"), preset(QString()));
        m_home->addFile(presetFolder + QStringLiteral("/Loud.markerpreset"), preset(QStringLiteral("Red=x")));
        Presets presets(m_defaults.get());
        presets->populateMarkerPresets();
        presets->changeMarkerPreset(2);
        const Result<void> renamed = presets->renameMarkerPreset(QStringLiteral("Loud"), typed);
        QCOMPARE(bool(renamed), failure.isEmpty());
        QVERIFY(renamed || renamed.message().contains(failure));
        QStringList expected{QStringLiteral("Cut.markerpreset"), name + QStringLiteral(".markerpreset")};
        QCOMPARE(files(), expected);
        // It stays the chosen one.
        QCOMPARE(selected(), name);
        QCOMPARE(presets.menu(), QStringLiteral("None|Cut|%1*|-|Create preset...").arg(name));
        QCOMPARE(presets.labels.section(QLatin1Char(' '), 0, 0), QStringLiteral("x"));
    }

    void deleting_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("deletes");
        QTest::newRow("delete") << AlertAnswer::Alternate << true;
        QTest::newRow("cancel") << AlertAnswer::Default << false;
        QTest::newRow("window closed") << AlertAnswer::Other << false;
    }
    void deleting()
    {
        QFETCH(int, answer);
        QFETCH(bool, deletes);
        m_home->addFile(presetFolder + QStringLiteral("/Loud.MarkerPreset"), preset(QString()));
        m_alerts->queueAnswer(answer);
        Presets presets(m_defaults.get());
        presets->populateMarkerPresets();
        presets->changeMarkerPreset(1);
        QCOMPARE(presets->deleteMarkerPreset(QStringLiteral("Loud")), deletes);
        QCOMPARE(files().isEmpty(), deletes);
        QCOMPARE(selected(), deletes ? QStringLiteral("None") : QStringLiteral("Loud"));
        QVERIFY(!presets->deleteMarkerPreset(QStringLiteral("None")));
        QCOMPARE(m_alerts->shown().size(), std::size_t(1));
    }

    void withoutDefaultsNothingIsReadOrStored()
    {
        addPreset(QStringLiteral("A"), preset(QStringLiteral("Red=a")));
        Presets presets(nullptr);
        presets->populateMarkerPresets();
        QCOMPARE(presets.menu(), QStringLiteral("None*|-|Create preset..."));
        presets->showMarkerPresetDialog();
        QVERIFY(!presets->addMarkerPreset(QStringLiteral("B")));
        QCOMPARE(files(), QStringList(QStringLiteral("A.markerpreset")));
        QVERIFY(!presets->markerLabelDict());
    }
};

QTEST_GUILESS_MAIN(MarkerPresetsTest)
#include "tst_markerpresets.moc"
