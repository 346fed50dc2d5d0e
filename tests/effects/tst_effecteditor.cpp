#include "support/alerts/QVAlert.h"
#include "support/log/QVLog.h"
#include "tests/effects/EffectProject.h"
#include "tests/support/ScriptedAlertPresenter.h"
#include "tests/support/TemporaryHome.h"

#include <QTest>

using namespace vantrell;

namespace
{

QByteArray textOf(const LoadedProject &opened)
{
    return XmlDocument::textOfElement(opened.document.xmlDoc()->rootElement()).toUtf8();
}

} // namespace

class EffectEditorTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;
    std::shared_ptr<ScriptedAlertPresenter> m_alerts;

    QString lastQuestion(const QString &key = AlertKey::MessageText)
    {
        return m_alerts->shown().back().text(key);
    }

private Q_SLOTS:
    void initTestCase() { QVLog::createNewLog(QStringLiteral("tests"), true); }
    void init()
    {
        m_alerts = std::make_shared<ScriptedAlertPresenter>();
        QVAlert::setPresenter(m_alerts);
    }
    void cleanup() { QVAlert::setPresenter(nullptr); }

    void settings()
    {
        const auto state = [](const QByteArray &text) { return "<enabled>" + text + "</enabled>"; };
        struct Case {
            QByteArray before; // what the filter holds
            const char *key;
            const char *value;
            QByteArray after;
            std::int64_t enabled;
        };
        const Case table[] = {
            {state("TRUE") + "<a/>", "enabled", "0", state("FALSE") + "<a/>", 0},
            {state("FALSE"), "enabled", "1", state("TRUE"), 1},
            {"<a/>" + state("x") + state("FALSE"), "enabled", "1", "<a/>" + state("TRUE") + state("FALSE"),
             1},
            {"<a>" + state("TRUE") + "</a>", "enabled", "", "<a>" + state("TRUE") + "</a>" + state("FALSE"),
             0},
            {"<a/>", "enabled", "TRUE", "<a/>" + state("FALSE"), 0},
            {"<a/>", "enabled", "1 ", "<a/>" + state("FALSE"), 0},
            {"<a/>", "Enabled", "1", "<a/><Enabled>1</Enabled>", 1},
            {"<start>1<x/></start>", "start", "a <b> & 1", "<start>a &lt;b&gt; &amp; 1</start>", 1},
            {"<start>1</start>", "start", "", "<start/>", 1},
        };
        for (const Case &row : table) {
            EffectProject opened;
            QVERIFY(opened.load(project(sequence("S", clip(filter(row.before))))));
            const RowRecordPtr effect = opened.document.effectArray().at(0);
            for (int i = 0; i < 2; ++i) {
                opened.editor.updateXMLEffect(effect, QString::fromLatin1(row.key),
                                              QString::fromLatin1(row.value));
                QCOMPARE(textOf(opened), project(sequence("S", clip(filter(row.after)))));
                QCOMPARE(effect->get(EffectKey::enabled), row.enabled);
                QCOMPARE(opened.document.modifiedSequenceUUIDs(), QStringList{QStringLiteral("U-S")});
                QVERIFY(opened.world.edited);
            }
        }
    }

    void switchesSeveralInOneStep()
    {
        EffectProject opened;
        const QByteArray before = project(sequence("S", clip(filter("<enabled>TRUE</enabled>")) +
                                                            clip(filter("<a/>")) + clip(filter("<b/>"))));
        QVERIFY(opened.load(before));
        for (const Tab tab : {Tab::Media, Tab::Markers})
            opened.document.populate(tab, "none", [] {}); // or nothing could be undone
        const RowList &effects = opened.document.effectArray();
        opened.editor.updateXMLEffects({effects.at(0), effects.at(2)}, QStringLiteral("enabled"),
                                       QStringLiteral("0"));
        QCOMPARE(effects.at(0)->get(EffectKey::enabled), 0);
        QCOMPARE(effects.at(1)->get(EffectKey::enabled), 1);
        QCOMPARE(effects.at(2)->get(EffectKey::enabled), 0);
        QCOMPARE(opened.document.undoName(), QStringLiteral("Switch Off Effects"));
        QVERIFY(opened.document.undo());
        QCOMPARE(textOf(opened), before);
        QVERIFY(!opened.document.canUndo());
    }

    /// One alert tells of all that are gone, before anything is written.
    void switchesThoseThatAreLeft()
    {
        EffectProject opened;
        QVERIFY(opened.load(
            project(sequence("S", clip(filter("<a/>")) + clip(filter("<b/>")) + clip(filter("<c/>"))))));
        const RowList effects = opened.document.effectArray();
        opened.editor.removeXMLEffect(effects.at(0));
        opened.editor.removeXMLEffect(effects.at(2));
        const std::size_t before = m_alerts->shown().size();
        m_alerts->queueAnswer(1);
        opened.editor.updateXMLEffects(effects, QStringLiteral("enabled"), QStringLiteral("0"));
        QCOMPARE(m_alerts->shown().size(), before + 1);
        QCOMPARE(lastQuestion(), QStringLiteral("Unable to change setting"));
        QCOMPARE(lastQuestion(AlertKey::InformativeText),
                 QStringLiteral("2 of the effects were removed from the project."));
        QCOMPARE(effects.at(0)->get(EffectKey::enabled), 1);
        QCOMPARE(effects.at(1)->get(EffectKey::enabled), 0);
    }

    void aKeyThatIsNoNameChangesNothing()
    {
        EffectProject opened;
        QVERIFY(opened.load(project(sequence("S", clip("<filter/>")))));
        for (const char *key : {"", "a b", "<a/>", "1", "a:b"})
            opened.editor.updateXMLEffect(opened.document.effectArray().at(0), QString::fromLatin1(key),
                                          QString());
        QCOMPARE(textOf(opened), project(sequence("S", clip("<filter/>"))));
        QVERIFY(!opened.document.isEdited());
        QVERIFY(!opened.document.modifiedSequenceUUIDs());
    }

    void withoutAProject()
    {
        EffectProject opened;
        const auto effect = std::make_shared<RowRecord>();
        m_alerts->queueAnswer(1);
        opened.editor.updateXMLEffect(effect, QStringLiteral("enabled"), QStringLiteral("1"));
        QCOMPARE(lastQuestion(), QStringLiteral("Unable to change setting"));
        m_alerts->queueAnswer(1);
        opened.editor.removeXMLEffect(effect);
        QCOMPARE(lastQuestion(), QStringLiteral("Unable to remove effect"));
        QCOMPARE(lastQuestion(AlertKey::InformativeText), QStringLiteral("XML document cannot be found."));
        QCOMPARE(effect->size(), std::size_t(0));
        QVERIFY(!opened.document.isEdited());
    }

    void removal()
    {
        const QByteArray outside = "<clip>" + clip(filter(named("Z"))) + "</clip>";
        const QByteArray before = project(
            sequence("S", clip(filter(named("A")) + filter(named("B")) + filter(named("C"))) +
                              "<generatoritem>" + filter(named("On it")) + named("G") + "</generatoritem>") +
            outside);
        EffectProject opened;
        QVERIFY(opened.load(before));
        opened.editor.removeEffects(); // nothing is selected
        QVERIFY(m_alerts->shown().empty());

        opened.world.selectRows(Tab::Effects, {1});
        opened.world.selectRows(Tab::Markers, {3});
        m_alerts->queueAnswer(0);
        opened.editor.removeEffects();
        QCOMPARE(lastQuestion(), QStringLiteral("Are you sure you wish to remove this effect?"));
        QCOMPARE(lastQuestion(AlertKey::DefaultButtonTitle), QStringLiteral("Remove"));
        QCOMPARE(lastQuestion(AlertKey::AlternateButtonTitle), QStringLiteral("Cancel"));
        QVERIFY(!m_alerts->shown().back().description.contains(AlertKey::OtherButtonTitle));
        QCOMPARE(textOf(opened), before);
        QCOMPARE(opened.shownNames(), QStringLiteral("A|B|C|On it|Z|G"));
        QVERIFY(!opened.document.isEdited());
        QCOMPARE(opened.world.selectedRows(Tab::Markers).size(), std::size_t(1));

        // The view is sorted backwards: row numbers are those of the view.
        opened.document.rowView(Tab::Effects).setSortDescriptors(sortDescriptors("name:desc"));
        opened.inventory.populateFilteredEffectData();
        QCOMPARE(opened.shownNames(), QStringLiteral("Z|On it|G|C|B|A"));
        opened.world.selectRows(Tab::Effects, {2, 3, 5, 99});
        m_alerts->queueAnswer(1);
        opened.editor.removeEffects();
        QCOMPARE(lastQuestion(), QStringLiteral("Are you sure you wish to remove these effects?"));
        QCOMPARE(textOf(opened), project(sequence("S", clip(filter(named("B")))) + outside));
        QCOMPARE(opened.shownNames(), QStringLiteral("Z|On it|B"));
        QCOMPARE(opened.document.effectArray().size(), std::size_t(3));
        QCOMPARE(opened.document.modifiedSequenceUUIDs(), QStringList{QStringLiteral("U-S")});
        QVERIFY(opened.world.selectedRows(Tab::Markers).empty());
        QCOMPARE(opened.world.selectedRows(Tab::Effects).size(), std::size_t(4));

        // The row of the filter on the removed generator stays; edits of it are refused. An effect outside of
        // any sequence modifies none.
        const RowList rows = opened.document.rowsOnShow(Tab::Effects);
        opened.document.clearModifiedSequenceUUIDs();
        opened.document.clearChangeCount();
        m_alerts->queueAnswer(1);
        opened.editor.updateXMLEffect(rows[1], QStringLiteral("enabled"), QString());
        QCOMPARE(lastQuestion(), QStringLiteral("Unable to change setting"));
        QCOMPARE(rows[1]->get(EffectKey::enabled), 1);
        m_alerts->queueAnswer(1);
        opened.editor.removeXMLEffect(rows[1]);
        QCOMPARE(lastQuestion(), QStringLiteral("Unable to remove effect"));
        QVERIFY(!opened.document.isEdited() && !opened.document.modifiedSequenceUUIDs());
        opened.editor.removeXMLEffect(rows[0]);
        QVERIFY(!opened.document.modifiedSequenceUUIDs());
        QVERIFY(!textOf(opened).contains("<name>Z"));
    }

    void removalOfWhatIsNotSelected()
    {
        EffectProject opened;
        QVERIFY(opened.load(project(clip(filter(named("A")) + filter(named("B")) + filter(named("C"))))));
        opened.world.selectRows(Tab::Effects, {0});
        opened.world.selectRows(Tab::Markers, {3});
        QVERIFY(!opened.editor.remove({}));
        m_alerts->queueAnswer(0);
        QVERIFY(!opened.editor.remove({opened.document.effectArray().at(2)}));
        m_alerts->queueAnswer(1);
        QVERIFY(opened.editor.remove({opened.document.effectArray().at(1)}));
        QCOMPARE(opened.shownNames(), QStringLiteral("A|C"));
        QCOMPARE(opened.world.selectedRows(Tab::Markers), std::vector<std::size_t>{3});
    }

    void deleteKeyOnlyHides()
    {
        const QByteArray xml = project(clip(filter(named("A")) + filter(named("B")) + filter(named("C"))));
        EffectProject opened;
        QVERIFY(opened.load(xml));
        opened.world.events.clear();
        opened.editor.hideSelectedEffects();
        QVERIFY(opened.world.events.isEmpty());
        opened.world.selectRows(Tab::Effects, {0, 2});
        opened.editor.hideSelectedEffects();
        QCOMPARE(opened.shownNames(), QStringLiteral("B"));
        QCOMPARE(opened.status(), QStringLiteral("1 item"));
        QCOMPARE(opened.document.effectArray().size(), std::size_t(3));
        QCOMPARE(textOf(opened), xml);
        QVERIFY(!opened.document.isEdited());
        opened.inventory.effectSearchAction();
        QCOMPARE(opened.shownNames(), QStringLiteral("A|B|C"));
    }
};

QTEST_GUILESS_MAIN(EffectEditorTest)
#include "tst_effecteditor.moc"
