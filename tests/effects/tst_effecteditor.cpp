#include "support/QVAlert.h"
#include "support/QVLog.h"
#include "tests/effects/EffectProject.h"
#include "tests/support/ScriptedAlertPresenter.h"
#include "tests/support/TemporaryHome.h"
#include "xml/XmlDocument.h"

#include <QTest>

using namespace vantrell;

class EffectEditorTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;
    std::shared_ptr<ScriptedAlertPresenter> m_alerts;

    static QString textOf(const EffectProject &opened)
    {
        return XmlDocument::textOfElement(opened.document.xmlDoc()->rootElement());
    }

private Q_SLOTS:
    void initTestCase() { QVLog::createNewLog(QStringLiteral("tests"), true); }
    void init()
    {
        m_alerts = std::make_shared<ScriptedAlertPresenter>();
        QVAlert::setPresenter(m_alerts);
    }
    void cleanup() { QVAlert::setPresenter(nullptr); }

    void settings_data()
    {
        QTest::addColumn<QByteArray>("before"); // what the filter holds
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<qint64>("enabled");
        const QString enabled = QStringLiteral("enabled");
        const auto state = [](const QByteArray &text) { return "<enabled>" + text + "</enabled>"; };
        QTest::newRow("off") << state("TRUE") + "<a/>" << enabled << "0" << state("FALSE") + "<a/>"
                             << qint64(0);
        QTest::newRow("on") << state("FALSE") << enabled << "1" << state("TRUE") << qint64(1);
        QTest::newRow("the first of two") << "<a/>" + state("x") + state("FALSE") << enabled << "1"
                                          << "<a/>" + state("TRUE") + state("FALSE") << qint64(1);
        QTest::newRow("not one deeper down") << "<a>" + state("TRUE") + "</a>" << enabled << ""
                                             << "<a>" + state("TRUE") + "</a>" + state("FALSE") << qint64(0);
        QTest::newRow("a word") << QByteArray() << enabled << "TRUE" << state("FALSE") << qint64(0);
        QTest::newRow("nearly one") << QByteArray() << enabled << "1 " << state("FALSE") << qint64(0);
        QTest::newRow("another key, as typed")
            << QByteArray("<start>1<x/></start>") << "start"
            << "a <b> & 1" << QByteArray("<start>a &lt;b&gt; &amp; 1</start>") << qint64(1);
        QTest::newRow("a key of other case") << QByteArray() << "Enabled"
                                             << "1" << QByteArray("<Enabled>1</Enabled>") << qint64(1);
        QTest::newRow("no text") << QByteArray("<start>1</start>") << "start"
                                 << "" << QByteArray("<start/>") << qint64(1);
    }
    void settings()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        QFETCH(QString, key);
        QFETCH(QString, value);
        const auto around = [](const QByteArray &content) {
            return project(sequence("S", "<clipitem><filter>" + content + "</filter></clipitem>"));
        };
        EffectProject opened;
        QVERIFY(opened.load(around(before)));
        const RowRecordPtr effect = opened.document.effectArray().at(0);
        for (int i = 0; i < 2; ++i) {
            opened.editor.updateXMLEffect(effect, key, value);
            QString text = textOf(opened);
            QCOMPARE(text.replace(QStringLiteral("<filter></filter>"), QStringLiteral("<filter/>")),
                     QString::fromUtf8(around(after)));
            QTEST(qint64(effect->get(EffectKey::enabled)), "enabled");
            QCOMPARE(opened.document.modifiedSequenceUUIDs(), QStringList{QStringLiteral("U-S")});
            QVERIFY(opened.world.edited);
        }
    }

    void aKeyThatIsNoNameChangesNothing()
    {
        EffectProject opened;
        QVERIFY(opened.load(project(sequence("S", "<clipitem><filter/></clipitem>"))));
        const QString before = textOf(opened);
        for (const char *key : {"", "a b", "<a/>", "1", "a:b"})
            opened.editor.updateXMLEffect(opened.document.effectArray().at(0), QString::fromLatin1(key),
                                          QStringLiteral("1"));
        QCOMPARE(textOf(opened), before);
        QVERIFY(!opened.document.isEdited());
        QVERIFY(!opened.document.modifiedSequenceUUIDs());
    }

    void withoutAProject()
    {
        EffectProject opened;
        const auto effect = std::make_shared<RowRecord>();
        m_alerts->queueAnswer(1);
        m_alerts->queueAnswer(1);
        opened.editor.updateXMLEffect(effect, QStringLiteral("enabled"), QStringLiteral("1"));
        opened.editor.removeXMLEffect(effect);
        QCOMPARE(m_alerts->shown().size(), std::size_t(2));
        QCOMPARE(m_alerts->shown()[0].text(AlertKey::MessageText),
                 QStringLiteral("Unable to change setting"));
        QCOMPARE(m_alerts->shown()[1].text(AlertKey::MessageText), QStringLiteral("Unable to remove effect"));
        QCOMPARE(m_alerts->shown()[1].text(AlertKey::InformativeText),
                 QStringLiteral("XML document cannot be found."));
        QCOMPARE(effect->size(), std::size_t(0));
        QVERIFY(!opened.document.isEdited());
    }

    void removal()
    {
        EffectProject opened;
        const QByteArray generator = "<generatoritem>" + filter(named("On it")) + "<effect>" + named("G") +
                                     "</effect></generatoritem>";
        QVERIFY(opened.load(project(sequence("S", "<clipitem>" + filter(named("A")) + filter(named("B")) +
                                                      filter(named("C")) + "</clipitem>" + generator) +
                                    "<clip><media><clipitem>" + filter(named("Z")) +
                                    "</clipitem></media></clip>")));
        QCOMPARE(opened.shownNames(), QStringLiteral("A|B|C|On it|Z|G"));
        opened.editor.removeEffects(); // nothing is selected
        QVERIFY(m_alerts->shown().empty());

        const QString before = textOf(opened);
        opened.world.selectRows(Tab::Effects, {1});
        opened.world.selectRows(Tab::Markers, {3});
        m_alerts->queueAnswer(0);
        opened.editor.removeEffects();
        QCOMPARE(textOf(opened), before);
        QCOMPARE(opened.document.effectArray().size(), std::size_t(6));
        QVERIFY(!opened.document.isEdited());
        QCOMPARE(opened.world.selectedRows(Tab::Markers).size(), std::size_t(1));
        const auto &question = m_alerts->shown().back();
        QCOMPARE(question.text(AlertKey::MessageText),
                 QStringLiteral("Are you sure you wish to remove this effect?"));
        QCOMPARE(question.text(AlertKey::DefaultButtonTitle), QStringLiteral("Remove"));
        QCOMPARE(question.text(AlertKey::AlternateButtonTitle), QStringLiteral("Cancel"));
        QVERIFY(!question.description.contains(AlertKey::OtherButtonTitle));

        // The view is sorted backwards: the places are those on show.
        opened.world.setSortDescriptors(Tab::Effects, {{QStringLiteral("name"), true}});
        opened.inventory.populateFilteredEffectData();
        QCOMPARE(opened.shownNames(), QStringLiteral("Z|On it|G|C|B|A"));
        opened.world.selectRows(Tab::Effects, {2, 3, 5, 99});
        m_alerts->queueAnswer(1);
        opened.editor.removeEffects();
        QCOMPARE(m_alerts->shown().back().text(AlertKey::MessageText),
                 QStringLiteral("Are you sure you wish to remove these effects?"));
        QCOMPARE(textOf(opened),
                 QString::fromUtf8(project(sequence("S", "<clipitem>" + filter(named("B")) + "</clipitem>") +
                                           "<clip><media><clipitem>" + filter(named("Z")) +
                                           "</clipitem></media></clip>")));
        QCOMPARE(opened.shownNames(), QStringLiteral("Z|On it|B"));
        QCOMPARE(opened.document.effectArray().size(), std::size_t(3));
        QCOMPARE(opened.document.modifiedSequenceUUIDs(), QStringList{QStringLiteral("U-S")});
        QVERIFY(opened.world.selectedRows(Tab::Markers).empty());
        QCOMPARE(opened.world.selectedRows(Tab::Effects).size(), std::size_t(4));

        // The row of the filter on the removed generator stays, and edits on it do no harm; an effect
        // outside of any sequence modifies none.
        opened.editor.updateXMLEffect(opened.document.rowsOnShow(Tab::Effects)[1], QStringLiteral("enabled"),
                                      QString());
        opened.editor.removeXMLEffect(opened.document.rowsOnShow(Tab::Effects)[1]);
        opened.editor.removeXMLEffect(opened.document.rowsOnShow(Tab::Effects)[1]);
        opened.document.clearModifiedSequenceUUIDs();
        opened.editor.removeXMLEffect(opened.document.rowsOnShow(Tab::Effects)[0]);
        QVERIFY(!opened.document.modifiedSequenceUUIDs());
        QVERIFY(!textOf(opened).contains(QStringLiteral("<name>Z")));
    }

    void deleteKeyOnlyHides()
    {
        EffectProject opened;
        QVERIFY(opened.load(project("<clipitem>" + filter(named("A")) + filter(named("B")) +
                                    filter(named("C")) + "</clipitem>")));
        const QString before = textOf(opened);
        opened.world.events.clear();
        opened.editor.hideSelectedEffects();
        QVERIFY(opened.world.events.isEmpty());
        opened.world.selectRows(Tab::Effects, {0, 2});
        opened.editor.hideSelectedEffects();
        QCOMPARE(opened.shownNames(), QStringLiteral("B"));
        QCOMPARE(opened.status(), QStringLiteral("1 item"));
        QVERIFY(opened.world.selectedRows(Tab::Effects).empty());
        QCOMPARE(opened.document.effectArray().size(), std::size_t(3));
        QCOMPARE(textOf(opened), before);
        QVERIFY(!opened.document.isEdited());
        QVERIFY(m_alerts->shown().empty());
        opened.inventory.effectSearchAction();
        QCOMPARE(opened.shownNames(), QStringLiteral("A|B|C"));
    }

    void removingThousands()
    {
        QByteArray clips;
        for (int i = 0; i < 3000; ++i)
            clips += "<clipitem>" + filter(named("F")) + "</clipitem>";
        EffectProject opened;
        QVERIFY(opened.load(project(sequence("S", clips))));
        std::vector<std::size_t> even;
        for (std::size_t i = 0; i < 3000; i += 2)
            even.push_back(i);
        opened.world.selectRows(Tab::Effects, even);
        m_alerts->queueAnswer(1);
        opened.editor.removeEffects();
        QCOMPARE(opened.document.effectArray().size(), std::size_t(1500));
        QCOMPARE(textOf(opened).count(QStringLiteral("<filter>")), 1500);
    }
};

QTEST_GUILESS_MAIN(EffectEditorTest)
#include "tst_effecteditor.moc"
