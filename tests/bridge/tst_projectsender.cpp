#include "bridge/EventCodes.h"
#include "bridge/FileReference.h"
#include "bridge/ProjectSender.h"
#include "bridge/QVPremiereEvents.h"
#include "bridge/SocketEventTransport.h"
#include "support/alerts/QVAlert.h"
#include "support/settings/UserDefaults.h"
#include "tests/support/LogLines.h"
#include "tests/support/RunningProgram.h"
#include "tests/support/ScriptedAlertPresenter.h"
#include "tests/support/ScriptedDocumentInterface.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlEdit.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>

#include <condition_variable>
#include <mutex>

using namespace vantrell;

namespace
{

using Outcome = ProjectSender::Outcome;

constexpr std::chrono::minutes aMinute{1};

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

/// The editing application: records what it is sent and answers when allowed to.
class ScriptedTransport : public AppleEventTransport
{
public:
    EventResult<EventRecord> send(const EventRecord &event, const EventCancel &cancel) override
    {
        std::unique_lock lock(m_mutex);
        m_events.push_back(event);
        MainThread::wake();
        while (m_answers == 0) {
            if (cancel.isCancelled())
                return EventFailure{-1, text("cancelled")};
            m_changed.wait_for(lock, std::chrono::milliseconds(10));
        }
        --m_answers;
        if (m_fails)
            return EventFailure{-609, text("gone")};
        return EventRecord::reply();
    }

    void answer(int count)
    {
        const std::lock_guard lock(m_mutex);
        m_answers += count;
        m_changed.notify_all();
    }
    void setFailing() { m_fails = true; }

    std::size_t count()
    {
        const std::lock_guard lock(m_mutex);
        return m_events.size();
    }
    EventRecord event(std::size_t i)
    {
        const std::lock_guard lock(m_mutex);
        return m_events.at(i);
    }

private:
    std::mutex m_mutex; // guards what follows
    std::condition_variable m_changed;
    std::vector<EventRecord> m_events;
    int m_answers = 0;
    bool m_fails = false;
};

/// An open document and its sender.
class Project
{
public:
    Project(const QString &path, const QStringList &changed, bool toPremiere = false)
        : document(world, services())
    {
        world.watch(document);
        document.readFromURL(QUrl::fromLocalFile(path), DocumentType::publicXML);
        MainThread::drainUntil([this] { return world.ended; }, aMinute);
        world.events.clear();
        document.setPremiereProject(toPremiere);
        for (const QString &uuid : changed)
            change(uuid);
    }
    ~Project() { document.close(); }

    void change(const QString &uuid) { document.markSequenceModified(uuid); }

    void start()
    {
        outcome.reset();
        QVERIFY(sender.start([this](Outcome reached) { outcome = reached; }));
    }
    bool waitForEnd()
    {
        return MainThread::drainUntil([this] { return outcome.has_value(); }, aMinute);
    }

    QString changed() const
    {
        return document.modifiedSequenceUUIDs().value_or(QStringList()).join(QLatin1Char(' '));
    }

    ScriptedDocumentInterface world;
    MyDocument document;
    ProjectSender sender{document};
    std::optional<Outcome> outcome;

private:
    MyDocument::Services services()
    {
        MyDocument::Services services;
        services.closing = [this] { sender.close(); };
        return services;
    }
};

const QByteArray xml =
    "<xmeml version=\"5\">\n <project>\n  <children>\n   <sequence id=\"Sequence 1\" x=\"1\">\n"
    "    <name>My Cut é\xF0\x9F\x8E\xAC</name>\n    <uuid>A</uuid>\n   </sequence>\n"
    "  </children>\n </project>\n</xmeml>\n";
const QString newUuid = QStringLiteral("[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}");

const char *const sentTexts[] = {"Changes successfully sent to Final Cut Pro",
                                 "Sequences have been duplicated and placed inside the Vantrell bin."};
const char *const failedTexts[] = {"Unable to send to Final Cut Pro",
                                   "An error occurred while sending data."};
const char *const nothingTexts[] = {
    "No changes to send to Final Cut Pro",
    "Vantrell only sends modified sequences to Final Cut Pro and no sequences have been changed yet."};

} // namespace

class ProjectSenderTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TemporaryHome> m_home;
    std::shared_ptr<ScriptedAlertPresenter> m_alerts;
    std::shared_ptr<ScriptedTransport> m_host;

    QString path(const char *relative) const { return m_home->path(text(relative)); }
    QString addProject(const char *relative) const { return m_home->addFile(text(relative), xml); }

    /// The number of alerts, and the texts of the last one.
    void compareLastAlert(const char *const *texts, std::size_t count)
    {
        QCOMPARE(m_alerts->shown().size(), count);
        QCOMPARE(m_alerts->shown().back().text(AlertKey::MessageText), text(texts[0]));
        QCOMPARE(m_alerts->shown().back().text(AlertKey::InformativeText), text(texts[1]));
    }

    void installPremiere()
    {
        m_home->addFile(text("apps/Adobe Premiere Pro CS6/Configuration/XManConfig.xml"),
                        "<Configuration><VariableForExMan><Data key=\"ProductVersion\">6.0</Data>"
                        "</VariableForExMan></Configuration>");
        UserDefaults::standard().setValue(text("applicationsFolder"), path("apps"));
        QVPremiereEvents::Waits waits;
        waits.launch = waits.opened = std::chrono::milliseconds(0);
        QVPremiereEvents::setWaits(waits);
        // What the script has imported is kept under the same name.
        setOpener("cp \"$(sed -n \"s/.*app.openFCPXML('\\(.*\\)').*/\\1/p\" \"$6\")\" '" + path("").toUtf8() +
                  "/imported/'\n");
        QDir().mkpath(path("imported"));
    }
    void setOpener(const QByteArray &commands)
    {
        QVPremiereEvents::setOpenProgram(addShellScript(*m_home, text("opener"), commands));
    }

private Q_SLOTS:
    void init()
    {
        m_home.reset(); // puts the environment back
        m_home = std::make_unique<TemporaryHome>();
        QVLog::createNewLog(text("Test"), true);
        m_alerts = std::make_shared<ScriptedAlertPresenter>();
        QVAlert::setPresenter(m_alerts);
        m_host = std::make_shared<ScriptedTransport>();
        setSharedEventTransport(m_host);
    }

    void cleanup()
    {
        QVAlert::setPresenter(nullptr);
        setSharedEventTransport(nullptr);
        QVPremiereEvents::setOpenProgram({});
        QVPremiereEvents::setWaits({});
        UserDefaults::standard().removeValue(text("applicationsFolder"));
    }

    void sendsTheChangedSequences()
    {
        Project project(addProject("Cut.fcp"), {text("A")});
        project.start();
        QVERIFY(!project.sender.start({})); // one at a time
        QVERIFY(MainThread::drainUntil([this] { return m_host->count() == 1; }, aMinute));
        QCOMPARE(project.world.events.join(QLatin1Char('|')),
                 text("start progress|progress: Sending to Final Cut Pro..."));
        m_host->answer(1);
        QVERIFY(MainThread::drainUntil([this] { return m_alerts->openCount() == 1; }, aMinute));
        compareLastAlert(sentTexts, 1);
        QCOMPARE(project.world.events.last(), text("end progress"));
        QVERIFY(!project.document.modifiedSequenceUUIDs());
        QVERIFY(!project.document.isEdited() && !project.world.edited);
        QVERIFY(!project.outcome);
        m_alerts->answerOpenAlert(1);
        QVERIFY(project.waitForEnd());
        QVERIFY(project.outcome == Outcome::Sent);

        const EventRecord event = m_host->event(0);
        QCOMPARE(event.identifier.text(), text("iXML"));
        QCOMPARE(event.timeout, 36000);
        QCOMPARE(pathForFileReference(event.parameter("fcpP")->bytes()), path("Cut.fcp"));
        const QString expected =
            QStringLiteral(
                "<\\?xml version=\"1.0\" encoding=\"UTF-8\"\\?><!DOCTYPE xmeml><xmeml version=\"5\">"
                "<bin><uuid>%1</uuid><updatebehavior>add</updatebehavior><name>Vantrell</name>"
                "<children><sequence id=\"Sequence 1-Processed\"><name>Sequence 1-Processed</name>"
                "<uuid>%1</uuid></sequence></children></bin></xmeml>")
                .arg(newUuid);
        const QString sent = QString::fromUtf8(event.parameter("xmlD")->bytes());
        QVERIFY2(QRegularExpression(QRegularExpression::anchoredPattern(expected)).match(sent).hasMatch(),
                 qPrintable(sent));
        QCOMPARE(logLines(*m_home, {text("Sending to"), text("Modified sequence UUIDs")}),
                 (QStringList{text("Sending to Final Cut Pro..."), text("Modified sequence UUIDs: (A)")}));

        m_alerts->queueAnswer(1);
        project.start(); // nothing is left
        QVERIFY(project.waitForEnd());
        QVERIFY(project.outcome == Outcome::NothingToSend);
        compareLastAlert(nothingTexts, 2);
        QCOMPARE(m_host->count(), std::size_t(1));
        QCOMPARE(project.world.events.size(), 3); // no progress sheet
    }

    void escapesWhatItSends()
    {
        // The name is outside the sequence that is replaced.
        const QString file = m_home->addFile(
            text("Cut.xml"),
            QByteArray(xml).replace("<uuid>A", "<rest>é\xF0\x9F\x8E\xAC&#13;&lt;</rest><uuid>A"));
        Project project(file, {text("A")});
        m_host->answer(1);
        m_alerts->queueAnswer(1);
        QVERIFY(project.sender.sendToFCP() == Outcome::Sent); // on the main thread
        const QByteArray sent = m_host->event(0).parameter("xmlD")->bytes();
        QVERIFY2(sent.contains("<rest>&#233;&#55356;&#57260;&#13;&lt;</rest>"), sent.constData());
    }

    void keepsTheChangesWhenItFails()
    {
        Project project(addProject("Cut.fcp"), {text("A"), text("gone")});
        m_host->setFailing();
        m_host->answer(1);
        m_alerts->queueAnswer(1);
        project.start();
        QVERIFY(project.waitForEnd());
        QVERIFY(project.outcome == Outcome::Failed);
        compareLastAlert(failedTexts, 1);
        QCOMPARE(project.changed(), text("A gone"));
        QVERIFY(project.document.isEdited());
        QCOMPARE(project.world.events.last(), text("end progress"));
    }

    void sendsAnEmptyBinForSequencesThatAreGone()
    {
        Project project(addProject("Cut.fcp"), {text("gone")});
        m_host->answer(1);
        m_alerts->queueAnswer(1);
        project.start();
        QVERIFY(project.waitForEnd());
        QVERIFY(project.outcome == Outcome::Sent);
        QVERIFY(m_host->event(0).parameter("xmlD")->bytes().contains("<children></children>"));
    }

    void editsMeanwhileAreSentTheNextTime()
    {
        Project project(addProject("Cut.fcp"), {text("A")});
        project.start();
        QVERIFY(MainThread::drainUntil([this] { return m_host->count() == 1; }, aMinute));
        QVERIFY(!project.document.isSaving());
        const XmlNode sequence = QVXMLParser::nodeForQuery(text(".//sequence"), project.document.xmlNode());
        XmlEdit::appendElement(sequence, text("marker"), text("new"));
        project.change(text("A"));
        m_host->answer(1);
        m_alerts->queueAnswer(1);
        QVERIFY(project.waitForEnd());
        QVERIFY(!m_host->event(0).parameter("xmlD")->bytes().contains("marker"));
        QCOMPARE(project.changed(), text("A"));
        QVERIFY(project.document.isEdited() && project.world.edited);

        m_host->answer(1);
        m_alerts->queueAnswer(1);
        project.start();
        QVERIFY(project.waitForEnd());
        QVERIFY(m_host->event(1).parameter("xmlD")->bytes().contains("<marker>new</marker>"));
        QVERIFY(!project.document.isEdited());
        QVERIFY(!project.document.modifiedSequenceUUIDs());
    }

    void severalDocumentsAtOnce()
    {
        Project first(addProject("First.fcp"), {text("A")});
        Project second(addProject("Second.fcp"), {text("A")});
        m_alerts->queueAnswer(1);
        m_alerts->queueAnswer(1);
        first.start();
        second.start();
        QVERIFY(MainThread::drainUntil([this] { return m_host->count() == 2; }, aMinute));
        m_host->answer(2);
        QVERIFY(first.waitForEnd() && second.waitForEnd());
        QVERIFY(first.outcome == Outcome::Sent && second.outcome == Outcome::Sent);
        QVERIFY(!first.document.isEdited() && !second.document.isEdited());

        installPremiere();
        Project third(addProject("Third.fcp"), {}, true);
        Project fourth(addProject("Third.xml"), {}, true); // beside it
        m_alerts->queueAnswer(1);
        m_alerts->queueAnswer(1);
        third.start();
        fourth.start();
        QVERIFY(third.waitForEnd() && fourth.waitForEnd());
        QVERIFY(third.outcome == Outcome::Sent && fourth.outcome == Outcome::Sent);
        QCOMPARE(QDir(path("imported")).entryList(QDir::Files).size(), 2);
    }

    void closingEndsIt_data()
    {
        QTest::addColumn<QString>("waitsFor");
        for (const char *what : {"reply", "alert", "script", "opened"})
            QTest::newRow(what) << text(what);
    }
    void closingEndsIt()
    {
        QFETCH(QString, waitsFor);
        installPremiere();
        QVPremiereEvents::Waits waits;
        waits.launch = std::chrono::milliseconds(0);
        waits.opened = aMinute;
        QVPremiereEvents::setWaits(waits);
        const QByteArray begun = "touch '" + path("begun").toUtf8() + "'\n";
        setOpener(waitsFor == text("script") ? begun + "exec sleep 60\n" : begun);
        const bool toPremiere = waitsFor == text("script") || waitsFor == text("opened");
        if (waitsFor == text("alert"))
            m_host->answer(1);
        Project project(addProject("Cut.fcp"), {text("A")}, toPremiere);
        project.start();
        QVERIFY(MainThread::drainUntil(
            [&] {
                if (toPremiere)
                    return QFile::exists(path("begun"));
                return waitsFor == text("alert") ? m_alerts->openCount() == 1 : m_host->count() == 1;
            },
            aMinute));
        QElapsedTimer timer;
        timer.start();
        project.document.close();
        QVERIFY(timer.elapsed() < 5000);
        MainThread::drain();
        QVERIFY(!project.outcome);
        QCOMPARE(m_alerts->shown().size(), std::size_t(waitsFor == text("alert")));
        QCOMPARE(m_alerts->openCount(), 0);
        QVERIFY(!QFile::exists(path("Cut-Vantrell.xml")));
        QCOMPARE(QDir(path("Documents/Adobe Scripts")).entryList(QDir::Files), QStringList());
    }

    void sendsTheWholeProjectToPremiere()
    {
        installPremiere();
        m_home->addFile(text("Cut-Vantrell.xml"), "somebody else's");
        Project project(addProject("Cut.fcp"), {}, true);
        project.document.updateChangeCount();
        project.start();
        QVERIFY(MainThread::drainUntil([this] { return m_alerts->openCount() == 1; }, aMinute));
        const char *const texts[] = {"Project successfully sent to Premiere Pro",
                                     "A duplicate project has been created."};
        compareLastAlert(texts, 1);
        QCOMPARE(project.world.events.join(QLatin1Char('|')),
                 text("start progress|progress: Sending to Premiere Pro...|end progress"));
        QVERIFY(!project.document.isEdited());
        QVERIFY(QFile::exists(path("Cut-Vantrell 2.xml"))); // until the alert has been answered
        m_alerts->answerOpenAlert(1);
        QVERIFY(project.waitForEnd());
        QVERIFY(project.outcome == Outcome::Sent);
        QVERIFY(!QFile::exists(path("Cut-Vantrell 2.xml")));
        QCOMPARE(contentOf(path("Cut-Vantrell.xml")), QByteArray("somebody else's"));
        QCOMPARE(
            contentOf(path("imported/Cut-Vantrell 2.xml")),
            QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xmeml version=\"5\"><project><children>"
                       "<sequence id=\"Sequence 1\" x=\"1\"><name>My Cut é\xF0\x9F\x8E\xAC</name>"
                       "<uuid>A</uuid></sequence></children></project></xmeml>\n"));
        QCOMPARE(logLines(*m_home, {text("Sending to"), text("Modified sequence")}),
                 QStringList(text("Sending to Premiere Pro...")));
        QVERIFY(m_host->count() == 0);
    }

    void premiereLeavesTheListOfChangesAlone()
    {
        Project project(addProject("Cut.fcp"), {text("A")}, true); // where there is no Premiere Pro
        QVPremiereEvents::Waits waits;
        waits.opened = std::chrono::milliseconds(0);
        QVPremiereEvents::setWaits(waits);
        m_alerts->queueAnswer(1);
        project.start();
        QVERIFY(project.waitForEnd());
        QVERIFY(project.outcome == Outcome::Sent); // nothing comes back that could tell
        QVERIFY(!project.document.isEdited());
        QCOMPARE(project.changed(), text("A"));
    }

    void tellsWhenTheProjectCannotBeWritten()
    {
        Project project(addProject("folder/Cut.fcp"), {text("A")}, true);
        QVERIFY(QDir(path("folder")).removeRecursively());
        m_alerts->queueAnswer(1);
        project.start();
        QVERIFY(project.waitForEnd());
        QVERIFY(project.outcome == Outcome::Failed);
        const char *const texts[] = {"Unable to send to Premiere Pro",
                                     "An error occurred while sending data."};
        compareLastAlert(texts, 1);
        QCOMPARE(project.world.events.last(), text("end progress"));
        QVERIFY(project.document.isEdited());
        const QStringList lines = logLines(*m_home, {text("Sending to"), text("Error sending data: ")});
        QCOMPARE(lines.size(), 2);
        QVERIFY2(lines[1].contains(text("Cut-Vantrell.xml")), qPrintable(lines[1]));
    }
};

QTEST_GUILESS_MAIN(ProjectSenderTest)
#include "tst_projectsender.moc"
