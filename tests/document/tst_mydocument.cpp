#include "document/MyDocument.h"
#include "support/alerts/QVAlert.h"
#include "support/settings/UserDefaults.h"
#include "tests/support/ApplicationBundle.h"
#include "tests/support/NoMemory.h"
#include "tests/support/NoThreads.h"
#include "tests/support/ScriptedAlertPresenter.h"
#include "tests/support/ScriptedDocumentInterface.h"
#include "tests/support/TemporaryHome.h"
#include "xml/XmlEdit.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <future>
#include <stdexcept>
#include <system_error>
#include <thread>
#include <unistd.h>

using namespace vantrell;

namespace
{

const QString applicationsFolder = QStringLiteral("applicationsFolder");

QString titles(const MenuPtr &menu)
{
    QStringList list;
    for (const MenuItem &item : *menu)
        list.append(item.title);
    return list.join(QLatin1Char('|'));
}

QByteArray sequence(const QByteArray &tracks)
{
    return "<xmeml version=\"5\"><sequence id=\"s\"><name>S</name><media>" + tracks +
           "</media></sequence></xmeml>";
}

} // namespace

class MyDocumentTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

    /// Loads the content as a file and waits for the end of it.
    void load(MyDocument &document, ScriptedDocumentInterface &world, const QByteArray &content,
              const QString &type = DocumentType::publicXML)
    {
        const QUrl url = QUrl::fromLocalFile(m_home.addFile(QStringLiteral("p/project.xml"), content));
        QVERIFY(document.readFromURL(url, type));
        QVERIFY(MainThread::drainUntil([&world] { return world.ended; }, std::chrono::seconds(40)));
    }

    /// An editing application is installed until the end of the test function.
    void installEditor()
    {
        addBundle(m_home, QStringLiteral("apps/F.app"), "com.apple.FinalCutPro");
        UserDefaults::standard().setValue(applicationsFolder, m_home.path(QStringLiteral("apps")));
    }

private Q_SLOTS:
    void cleanup()
    {
        UserDefaults::standard().removeValue(applicationsFolder);
        QVAlert::setPresenter(nullptr);
    }

    void sequences_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<qint64>("type");
        QTest::addColumn<QString>("menu");
        QTest::newRow("single") << sequence("") << qint64(1) << QStringLiteral("(none)|S");
        QTest::newRow("both: the direct sequence counts")
            << QByteArray("<xmeml><project><children><sequence><name>P</name></sequence></children></project>"
                          "<sequence><name>D</name></sequence><sequence><name>E</name></sequence></xmeml>")
            << qint64(1) << QStringLiteral("(none)|D");
        QTest::newRow("project, at any depth")
            << QByteArray("<xmeml><project><children><bin><children><sequence><name>A%20B</name></sequence></"
                          "children></bin>"
                          "<sequence><media><video><track><clipitem><sequence/></clipitem></track></video></"
                          "media></sequence>"
                          "</children></project></xmeml>")
            << qint64(0) << QStringLiteral("(none)|A B|Unknown sequence|Unknown sequence");
        QTest::newRow("no sequences") << QByteArray("<xmeml><project><children/></project></xmeml>")
                                      << qint64(0) << QStringLiteral("(none)");
        QTest::newRow("another root")
            << QByteArray("<fcpxml><sequence/></fcpxml>") << qint64(0) << QStringLiteral("(none)");
    }
    void sequences()
    {
        QFETCH(QByteArray, xml);
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        world.watch(document);
        load(document, world, xml);
        QVERIFY(world.loaded);
        QTEST(qint64(document.xmlType()), "type");
        QTEST(titles(document.sequenceMenu()), "menu");
        QVERIFY(world.sequenceMenu == document.sequenceMenu());
    }

    void clips_data()
    {
        QTest::addColumn<QByteArray>("tracks");
        QTest::addColumn<QString>("menu");
        QTest::addColumn<QString>("ids");
        QTest::newRow("none") << QByteArray() << QStringLiteral("(none)") << QString();
        QTest::newRow("tracks in file order")
            << QByteArray("<video><track><clipitem id=\"c%201\"><name>A</name></clipitem><generatoritem "
                          "id=\"g\"/></track></video>"
                          "<audio><track><clipitem id=\"50%\"><name>B</name></clipitem></track></audio>")
            << QStringLiteral("(none)|A|g|B (audio)") << QStringLiteral("|c 1|g|");
        QTest::newRow("stills")
            << QByteArray("<video><track><clipitem><name>A</name><stillframeoffset>1</"
                          "stillframeoffset><stillframe/></clipitem>"
                          "<clipitem><name>B</name><stillframe>TRUE</stillframe></clipitem></track></video>"
                          "<audio><track><clipitem><name>C</name><stillframe/></clipitem></track></audio>")
            << QStringLiteral("(none)|A (freeze frame)|B (still)|C (still)") << QStringLiteral("|||");
        QTest::newRow("unnamed") << QByteArray("<video><track><clipitem/><generatoritem/><transitionitem/></"
                                               "track></video><audio><track><clip/></track></audio>")
                                 << QStringLiteral(
                                        "(none)|Unknown clip|Unknown generator|Unknown clip (audio)")
                                 << QStringLiteral("|||");
    }
    void clips()
    {
        QFETCH(QByteArray, tracks);
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        world.watch(document);
        load(document, world, sequence(tracks));
        const XmlNode element = document.sequenceMenu()->at(1).element;
        QTEST(titles(document.clipMenuForSequence(element)), "menu");
        QTEST(document.clipIDsForSequence(element)->join(QLatin1Char('|')), "ids");
        QVERIFY(document.clipMenuForSequence(element) == document.clipMenuForSequence(element));
        QVERIFY(!document.clipIDsForSequence(XmlNode()));
        QCOMPARE(titles(document.clipMenuForSequence(XmlNode())), QStringLiteral("(none)"));
    }

    void failedLoadsLeaveTheDocumentOpenAndEmpty_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("type");
        QTest::newRow("no XML") << QByteArray("hello") << DocumentType::finalCutProXMLFile;
        QTest::newRow("empty") << QByteArray() << DocumentType::publicXML;
        QTest::newRow("no editing application") << sequence("") << DocumentType::finalCutProProject;
    }
    void failedLoadsLeaveTheDocumentOpenAndEmpty()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, type);
        const auto alerts = std::make_shared<ScriptedAlertPresenter>(std::initializer_list<int>{1});
        QVAlert::setPresenter(alerts);
        ScriptedDocumentInterface world;
        bool built = false;
        MyDocument document(world, {{[&built](MyDocument &) { built = true; }}, {}, {}});
        world.watch(document);
        load(document, world, content, type);
        QVAlert::setPresenter(nullptr);
        QVERIFY(!world.loaded);
        QVERIFY(!document.xmlDoc());
        QVERIFY(!built);
        for (const Tab tab : {Tab::Media, Tab::Effects, Tab::Markers})
            QVERIFY(document.isPopulating(tab));
        QCOMPARE(world.events.join(QLatin1Char('|')), QStringLiteral("start 0|start 1|start 2"));
        QCOMPARE(titles(document.sequenceMenu()), QStringLiteral("(none)"));
        const bool withAlert = type == DocumentType::finalCutProProject;
        QCOMPARE(alerts->shown().size(), std::size_t(withAlert));
        QCOMPARE(world.message.isEmpty(), withAlert);
        if (withAlert) {
            QCOMPARE(alerts->shown()[0].text(AlertKey::MessageText),
                     QStringLiteral("Unable to load project"));
            QCOMPARE(alerts->shown()[0].text(AlertKey::InformativeText),
                     QStringLiteral("Final Cut Pro 7 is not installed on this system."));
        }
    }

    void projectsComeFromTheEditingApplication_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("message");
        const QString none;
        const auto named = [](const QByteArray &name) {
            return "<xmeml><sequence><name>" + name + "</name></sequence></xmeml>";
        };
        QTest::newRow("project") << named("A") << QStringLiteral("A") << none;
        QTest::newRow("beyond the basic plane") // the clapper board, once in each notation
            << named("x&#55356;&#57260;&#xD83C;&#xDFAC;y") << QStringLiteral("x\U0001F3AC\U0001F3ACy")
            << none;
        QTest::newRow("half a pair") << named("x&#55356;y") << none << QStringLiteral("not well-formed");
        QTest::newRow("not repaired")
            << QByteArray("<xmeml><sequence>") << none << QStringLiteral("not well-formed");
        QTest::newRow("empty") << QByteArray("") << none << QStringLiteral("not well-formed");
        QTest::newRow("nothing") << QByteArray() << none << LoadFailure::noProject;
        QTest::newRow("a source that throws")
            << QByteArray("throw") << none << QStringLiteral("An internal error ended the loading");
    }
    void projectsComeFromTheEditingApplication()
    {
        installEditor();
        QFETCH(QByteArray, xml);
        QString asked;
        const auto source = [&](const QString &path) -> std::optional<QByteArray> {
            asked = path;
            if (xml == "throw")
                throw std::runtime_error("out of order");
            return xml.isNull() ? std::nullopt : std::optional(xml);
        };
        ScriptedDocumentInterface world;
        MyDocument document(world, {{}, source, {}});
        world.watch(document);
        document.setPremiereProject(true);
        load(document, world, "not looked at", DocumentType::finalCutProProject);
        QCOMPARE(asked, m_home.path(QStringLiteral("p/project.xml")));
        QFETCH(QString, message);
        QCOMPARE(world.loaded, message.isEmpty());
        QVERIFY2(world.message.contains(message), qPrintable(world.message));
        QCOMPARE(world.message.isEmpty(), message.isEmpty());
        QCOMPARE(bool(document.xmlDoc()), message.isEmpty());
        QCOMPARE(document.isPopulating(Tab::Markers), !message.isEmpty());
        const bool isFetched = !xml.isNull() && xml != "throw";
        QCOMPARE(document.isFCPProject(), isFetched);
        QCOMPARE(document.isPremiereProject(), !isFetched);
        if (message.isEmpty())
            QTEST(document.sequenceMenu()->at(1).title, "name");
    }

    void closingEndsAFetchAndAnAlert()
    {
        // Nobody answers the alert that there is no editing application.
        const auto alerts = std::make_shared<ScriptedAlertPresenter>();
        QVAlert::setPresenter(alerts);
        {
            ScriptedDocumentInterface world;
            MyDocument document(world, {});
            world.watch(document);
            QVERIFY(
                document.readFromURL(QUrl::fromLocalFile(m_home.path()), DocumentType::finalCutProProject));
            QVERIFY(
                MainThread::drainUntil([&] { return alerts->openCount() == 1; }, std::chrono::seconds(40)));
            document.close();
        }
        QVERIFY(MainThread::drainUntil([&] { return alerts->openCount() == 0; }, std::chrono::seconds(40)));

        installEditor();
        std::atomic<bool> isAsked = false;
        std::promise<void> closed;
        MyDocument::Services services;
        services.projectXMLData = [&](const QString &) -> std::optional<QByteArray> {
            isAsked = true;
            MainThread::wake();
            closed.get_future().wait();
            return std::nullopt;
        };
        services.closing = [&] { closed.set_value(); };
        ScriptedDocumentInterface world;
        MyDocument document(world, services);
        world.watch(document);
        QVERIFY(document.readFromURL(QUrl::fromLocalFile(m_home.path()), DocumentType::finalCutProProject));
        QVERIFY(MainThread::drainUntil([&] { return isAsked.load(); }, std::chrono::seconds(40)));
        document.close();
        document.close(); // tells only once
        QVERIFY(!world.ended);
    }

    void anUnknownTypeIsRefused()
    {
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        world.watch(document);
        QVERIFY(!document.readFromURL(QUrl::fromLocalFile(m_home.path()), QStringLiteral("public.text")));
        QVERIFY(!document.isPopulating(Tab::Media));
    }

    void inventoriesRunSideBySide()
    {
        ScriptedDocumentInterface world;
        std::atomic<int> arrived = 0;
        const auto builder = [&arrived](MyDocument &document) {
            ++arrived;
            while (arrived < 3 && !document.isClosing())
                std::this_thread::yield();
        };
        MyDocument document(world, {{builder, builder, builder}, {}, {}});
        world.watch(document);
        load(document, world, sequence(""));
        QCOMPARE(arrived.load(), 3);
    }

    void closesWhileLoading()
    {
        QByteArray large("<xmeml><project><children>");
        for (int i = 0; i < 200000; ++i)
            large += "<bin><name>b</name></bin>";
        const QString path = m_home.addFile(QStringLiteral("p/large.xml"), large);
        QElapsedTimer timer;
        timer.start();
        for (int delay = 0; delay < 60; delay += 15) {
            ScriptedDocumentInterface world;
            // A worker that waits for the main thread, which is on its way out.
            const auto builder = [](MyDocument &document) {
                while (document.mainThread()->runAndWait([] {}))
                    std::this_thread::yield();
            };
            MyDocument document(world, {{builder}, {}, {}});
            world.watch(document);
            QVERIFY(document.readFromURL(QUrl::fromLocalFile(path), DocumentType::publicXML));
            MainThread::drainUntil([] { return false; }, std::chrono::milliseconds(delay));
            document.close();
            QVERIFY(document.isClosing());
        }
        QVERIFY(timer.elapsed() < 20000);
    }

    void savesPlainDocumentsAndSendsTheOthers()
    {
        ScriptedDocumentInterface world;
        int sent = 0;
        std::function<void()> end;
        bool isStarted = true;
        MyDocument document(world, {{}, {}, [&](MyDocument &, std::function<void()> ended) {
                                        ++sent;
                                        end = std::move(ended);
                                        return isStarted;
                                    }});
        world.watch(document);
        load(document, world, sequence("<video>\n<track/>\n</video>"));
        const QUrl target = QUrl::fromLocalFile(m_home.path(QStringLiteral("p/out.xml")));
        QVERIFY(!document.writeToURL(target, DocumentType::finalCutProProject));
        QCOMPARE(sent, 1);
        int told = 0;
        const auto done = [&told](const Result<void> &outcome) { told += outcome ? 100 : 1; };
        document.writeInBackground(target, DocumentType::finalCutProProject, done);
        QCOMPARE(told, 0); // until the sending is over
        end();
        QCOMPARE(told, 1);
        isStarted = false; // one is under way
        document.writeInBackground(target, DocumentType::finalCutProProject, done);
        QCOMPARE(told, 2);
        QCOMPARE(sent, 3);
        QVERIFY(!QFile::exists(target.toLocalFile()));
        document.setPremiereProject(true);
        QVERIFY(!document.writeToURL(QUrl::fromLocalFile(m_home.path(QStringLiteral("none/out.xml"))),
                                     DocumentType::publicXML));
        QVERIFY(document.isPremiereProject());
        QVERIFY(document.writeToURL(target, DocumentType::publicXML));
        QVERIFY(!document.isPremiereProject());
        QCOMPARE(
            contentOf(target.toLocalFile()),
            QByteArray(
                "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xmeml version=\"5\">\n  <sequence id=\"s\">\n"
                "    <name>S</name>\n    <media>\n      <video>\n        <track/>\n      </video>\n"
                "    </media>\n  </sequence>\n</xmeml>\n"));
    }

    void savesAfterACancelledSave()
    {
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        world.watch(document);
        load(document, world, sequence("<video/>"));
        const QUrl target = QUrl::fromLocalFile(m_home.path(QStringLiteral("p/again.xml")));
        document.cancelWriting();
        QVERIFY(document.writeToURL(target, DocumentType::publicXML));
        QVERIFY(QFile::remove(target.toLocalFile()));
        document.cancelWriting();
        std::optional<bool> isSaved;
        document.writeInBackground(target, DocumentType::publicXML,
                                   [&isSaved](const Result<void> &outcome) { isSaved = outcome.isOk(); });
        QVERIFY(MainThread::drainUntil([&isSaved] { return isSaved.has_value(); }, std::chrono::seconds(40)));
        QVERIFY(*isSaved);
        QVERIFY(QFile::exists(target.toLocalFile()));
    }

    /// The UUIDs changed before and during a send, each when its sequence is not marked as changed, as
    /// the editors do it, and what is left after it.
    void changesDuringASendAreKept_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("during");
        QTest::addColumn<int>("result");
        QTest::addColumn<QString>("after");
        QTest::addColumn<bool>("isEdited");
        const int failed = int(MyDocument::SendResult::Failed);
        const int project = int(MyDocument::SendResult::ProjectSent);
        const int sequences = int(MyDocument::SendResult::SequencesSent);
        QTest::newRow("sent") << "A B"
                              << "" << sequences << "" << false;
        QTest::newRow("sent, the same again") << "A B"
                                              << "B B" << sequences << "B" << true;
        QTest::newRow("sent, another one") << "A"
                                           << "C" << sequences << "C" << true;
        QTest::newRow("failed") << "A B"
                                << "" << failed << "A B" << true;
        QTest::newRow("failed, changed meanwhile") << "A B"
                                                   << "B C B" << failed << "A B C" << true;
        QTest::newRow("to the other application") << "A"
                                                  << "" << project << "A" << false;
        QTest::newRow("the same, changed meanwhile") << "A"
                                                     << "A C" << project << "A C" << true;
        QTest::newRow("the same, nothing before") << ""
                                                  << "" << project << "" << false;
    }
    void changesDuringASendAreKept()
    {
        QFETCH(QString, before);
        QFETCH(QString, during);
        QFETCH(int, result);
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        world.watch(document);
        const auto change = [&document](const QString &uuids) {
            for (const QString &uuid : uuids.split(QLatin1Char(' '), Qt::SkipEmptyParts))
                document.markSequenceModified(uuid);
        };
        change(before);
        document.beginSending();
        QVERIFY(document.isSaving());
        document.endReadingToSend();
        QVERIFY(!document.isSaving());
        change(during);
        document.endSending(MyDocument::SendResult(result));
        QTEST(document.modifiedSequenceUUIDs().value_or(QStringList()).join(QLatin1Char(' ')), "after");
        QTEST(document.isEdited(), "isEdited");
        QTEST(world.edited, "isEdited");
        for (const QString &uuid : document.modifiedSequenceUUIDs().value_or(QStringList()))
            QVERIFY(document.isSequenceModified(uuid));
        QVERIFY(document.modifiedSequenceUUIDs() != QStringList()); // absent, not empty
    }

    void aRepairedFileIsOverwrittenOnlyWhenAsked()
    {
        const auto alerts = std::make_shared<ScriptedAlertPresenter>(std::initializer_list<int>{1, 0});
        QVAlert::setPresenter(alerts);
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        world.watch(document);
        const QByteArray damaged("<xmeml><project><name>A & B</name>");
        load(document, world, damaged);
        QVERIFY(world.notice.contains(QStringLiteral("repaired")));
        const QString loss = QStringLiteral("all 34 bytes could be read");
        QVERIFY(world.notice.contains(loss));
        const QUrl original = document.fileURL();
        const QUrl other = QUrl::fromLocalFile(m_home.path(QStringLiteral("p/other.xml")));
        QVERIFY(document.writeToURL(other, DocumentType::publicXML));
        document.setFileURL(other); // which does not make the damaged file any better
        QVERIFY(alerts->shown().empty());
        QVERIFY(!document.writeToURL(original, DocumentType::publicXML));
        QCOMPARE(contentOf(original.toLocalFile()), damaged);
        QVERIFY(alerts->shown().back().text(AlertKey::InformativeText).contains(loss));
        QVERIFY(document.writeToURL(original, DocumentType::publicXML));
        QVERIFY(contentOf(original.toLocalFile()).endsWith("</xmeml>\n"));
        QCOMPARE(alerts->shown().size(), std::size_t(2));
        QCOMPARE(alerts->shown().front().text(AlertKey::DefaultButtonTitle), QStringLiteral("Cancel"));
    }

    void whatOthersSaveIsNotOverwritten_data()
    {
        QTest::addColumn<QByteArray>("content"); // what another program leaves; null for no file
        QTest::addColumn<bool>("isRemembered");  // what was read
        QTest::addColumn<bool>("asks");
        const QByteArray same("<xmeml/>");
        QTest::newRow("larger") << QByteArray("<xmeml>theirs</xmeml>") << true << true;
        QTest::newRow("same size") << QByteArray("<Xmeml/>") << true << true;
        QTest::newRow("same content") << same << true << false;
        QTest::newRow("same content, not remembered") << same << false << true;
        QTest::newRow("removed") << QByteArray() << true << false;
    }
    void whatOthersSaveIsNotOverwritten()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, isRemembered);
        QFETCH(bool, asks);
        const auto alerts = std::make_shared<ScriptedAlertPresenter>(std::initializer_list<int>{1, 0, 1});
        QVAlert::setPresenter(alerts);
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        world.watch(document);
        load(document, world, "<xmeml/>");
        if (isRemembered)
            document.knownFile()->rememberContent();
        const QUrl url = document.fileURL();
        const QString path = url.toLocalFile();
        // By a path of its own it is the same file.
        const QUrl byLink = QUrl::fromLocalFile(m_home.path(QStringLiteral("link.xml")));
        QFile::remove(byLink.toLocalFile());
        QVERIFY(QFile::link(path, byLink.toLocalFile()));
        QVERIFY(document.writeToURL(QUrl::fromLocalFile(m_home.path(QStringLiteral("p/other.xml"))),
                                    DocumentType::publicXML));
        QVERIFY(QFile::remove(path));
        if (!content.isNull()) {
            QFile other(path);
            QVERIFY(other.open(QIODevice::WriteOnly) && other.write(content) == content.size());
            other.close();
            QVERIFY(other.open(QIODevice::ReadWrite) && other.setFileTime(QDateTime::fromSecsSinceEpoch(1000),
                                                                          QFileDevice::FileModificationTime));
        }
        QCOMPARE(document.writeToURL(byLink, DocumentType::publicXML).isOk(), !asks);
        QCOMPARE(alerts->shown().size(), std::size_t(asks ? 1 : 0));
        if (asks) {
            QCOMPARE(contentOf(path), content);
            QCOMPARE(alerts->shown().front().text(AlertKey::DefaultButtonTitle), QStringLiteral("Cancel"));
            QVERIFY(document.writeToURL(url, DocumentType::publicXML)); // the user overwrites it
            QCOMPARE(alerts->shown().size(), std::size_t(2));
        }
        QVERIFY(contentOf(path).endsWith("<xmeml/>\n"));
        // What the document wrote itself is its own.
        QVERIFY(document.writeToURL(url, DocumentType::publicXML));
        QCOMPARE(alerts->shown().size(), std::size_t(asks ? 2 : 0));
        QVERIFY(QFile::remove(path));
        m_home.addFile(QStringLiteral("p/project.xml"), "<xmeml>again</xmeml>");
        QVERIFY(document.knownFile()->changeAt(path));
    }

    void whatAnotherDocumentWasReadFromIsNotOverwritten()
    {
        const auto alerts = std::make_shared<ScriptedAlertPresenter>(std::initializer_list<int>{1, 0});
        QVAlert::setPresenter(alerts);
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        world.watch(document);
        load(document, world, "<xmeml/>");
        MyDocument old(world, {});
        const QString path = m_home.addFile(QStringLiteral("p/old.xml"), "<xmeml>old</xmeml>");
        old.knownFile()->note(path, FileStamp::ofPath(path));
        QVERIFY(document.confirmReplacing(old, path));
        m_home.addFile(QStringLiteral("p/old.xml"), "<xmeml>theirs</xmeml>");
        const QUrl url = QUrl::fromLocalFile(path);
        QCOMPARE(document.writeToURL(url, DocumentType::publicXML).message(), SaveFailure::changedElsewhere);
        QCOMPARE(contentOf(path), QByteArray("<xmeml>theirs</xmeml>"));
        QVERIFY(document.writeToURL(url, DocumentType::publicXML)); // the user overwrites it
        QCOMPARE(alerts->shown().size(), std::size_t(2));
        QVERIFY(contentOf(path).endsWith("<xmeml/>\n"));
    }

    void aHardLinkLeadsToTheSameFile()
    {
        const auto alerts = std::make_shared<ScriptedAlertPresenter>(std::initializer_list<int>{1});
        QVAlert::setPresenter(alerts);
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        world.watch(document);
        load(document, world, "<xmeml/>");
        const QString linkPath = m_home.path(QStringLiteral("p/hard.xml"));
        QVERIFY(::link(QFile::encodeName(document.fileURL().toLocalFile()).constData(),
                       QFile::encodeName(linkPath).constData()) == 0);
        QFile other(linkPath);
        QVERIFY(other.open(QIODevice::Append) && other.write("<!-- theirs -->") > 0);
        other.close();
        QVERIFY(!document.writeToURL(QUrl::fromLocalFile(linkPath), DocumentType::publicXML));
        QCOMPARE(alerts->shown().size(), std::size_t(1));
        QVERIFY(contentOf(linkPath).endsWith("theirs -->"));
        QVERIFY(QFile::remove(linkPath));
    }

    void namespacesAreTold_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QString>("told");
        QTest::newRow("root") << QByteArray("<p:xmeml xmlns:p=\"urn:x\"><sequence/></p:xmeml>")
                              << QStringLiteral("\"p:xmeml\" is in the namespace \"urn:x\"");
        QTest::newRow("content") << QByteArray("<xmeml><project xmlns=\"urn:y\"/></xmeml>")
                                 << QStringLiteral("\"project\" is in the namespace \"urn:y\"");
    }
    void namespacesAreTold()
    {
        QFETCH(QByteArray, xml);
        QFETCH(QString, told);
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        world.watch(document);
        load(document, world, xml);
        QVERIFY(world.loaded);
        QCOMPARE(titles(document.sequenceMenu()), QStringLiteral("(none)"));
        QVERIFY2(world.notice.contains(told), qPrintable(world.notice));
    }

    void loadsAndSavesWhereThereAreNoThreads()
    {
        const NoThreads none;
        QVERIFY_THROWS_EXCEPTION(std::system_error, std::thread([] {}).join());
        ScriptedDocumentInterface world;
        int inventories = 0;
        const auto count = [&inventories](MyDocument &) { ++inventories; };
        MyDocument document(world, {{count, count}, {}, {}});
        world.watch(document);
        load(document, world, sequence(""));
        QVERIFY(world.loaded && world.ended);
        QCOMPARE(inventories, 2);
        QVERIFY(!document.isIncomplete());
        int told = 0;
        bool isSaved = false;
        document.writeInBackground(QUrl::fromLocalFile(m_home.path(QStringLiteral("p/saved.xml"))),
                                   DocumentType::publicXML, [&](const Result<void> &saved) {
                                       ++told;
                                       isSaved = saved.isOk();
                                   });
        QVERIFY(MainThread::drainUntil([&told] { return told > 0; }, std::chrono::seconds(40)));
        MainThread::drain();
        QCOMPARE(told, 1);
        QVERIFY(isSaved && !document.isSaving());
    }

    void aSaveWithoutMemoryIsTold()
    {
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        world.watch(document);
        load(document, world, sequence(""));
        const QString path = m_home.path(QStringLiteral("p/failed.xml"));
        QStringList told;
        {
            const NoMemory none(40);
            document.writeInBackground(
                QUrl::fromLocalFile(path), DocumentType::publicXML,
                [&](const Result<void> &saved) { told.append(saved ? QString() : saved.message()); });
            QVERIFY(MainThread::drainUntil([&told] { return !told.isEmpty(); }, std::chrono::seconds(40)));
        }
        MainThread::drain();
        QCOMPARE(told.size(), 1);
        QVERIFY(!told.front().isEmpty());
        QVERIFY(!document.isSaving() && !QFileInfo::exists(path));
        QVERIFY(document.writeToURL(QUrl::fromLocalFile(path), DocumentType::publicXML));
    }

    void theEndOfTheLoadIsToldInSpiteOfAnException()
    {
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        int failures = 3;
        connect(&document, &MyDocument::loadFinished, &document, [&failures] {
            if (failures-- > 0)
                throw std::bad_alloc();
        });
        world.watch(document);
        load(document, world, sequence(""));
        QVERIFY(world.loaded && world.ended);
        QCOMPARE(failures, -1);
    }

    void anInventoryThatThrowsIsTold()
    {
        ScriptedDocumentInterface world;
        int others = 0;
        const auto fails = [](MyDocument &) { throw std::bad_alloc(); };
        MyDocument document(world, {{fails, [&others](MyDocument &) { ++others; }}, {}, {}});
        world.watch(document);
        load(document, world, sequence(""));
        QVERIFY(world.loaded && world.ended);
        QCOMPARE(others, 1);
        QVERIFY(document.isIncomplete());
    }

    void timecodesByTheRecord()
    {
        RowRecord record;
        record.set(TimecodeKey::timebase, 30);
        record.set(TimecodeKey::dropFrame, true);
        record.set(TimecodeKey::startFrame, 107892);
        QCOMPARE(MyDocument::timecodeFromFrameCount(0, record), QStringLiteral("01:00:00;00"));
        QCOMPARE(MyDocument::frameCountFromTimecode(QStringLiteral("01:00:00;00"), record), std::int64_t(0));
        QCOMPARE(MyDocument::frameCountFromTimecode(QStringLiteral("00:00:00;01"), record),
                 std::int64_t(-107891));
        // A negative count keeps its sign as it is widened to 64 bits.
        QCOMPARE(MyDocument::timecodeFromFrameCount(-1, RowRecord()), QStringLiteral("09:01:52:00"));
    }

    void theListOfModifiedSequencesKeepsRepetitions()
    {
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        world.watch(document);
        QVERIFY(!document.modifiedSequenceUUIDs());
        for (const char *uuid : {"B", "A", "B"})
            document.addModifiedSequenceUUID(QString::fromLatin1(uuid));
        QCOMPARE(document.modifiedSequenceUUIDs()->join(QLatin1Char(' ')), QStringLiteral("B A B"));
        QVERIFY(document.isSequenceModified(QStringLiteral("A")));
        document.clearModifiedSequenceUUIDs();
        QVERIFY(!document.modifiedSequenceUUIDs());
        QVERIFY(!document.isSequenceModified(QStringLiteral("A")));
    }

    void onlyTheTabOnShowHasRows()
    {
        ScriptedDocumentInterface world;
        MyDocument document(world, {});
        world.watch(document);
        document.rowView(Tab::Markers).show({std::make_shared<RowRecord>()});
        document.rowView(Tab::Markers).append(std::make_shared<RowRecord>());
        QCOMPARE(document.rowsOnShow(Tab::Markers).size(), std::size_t(2));
        QVERIFY(document.rowsOnShow(Tab::Media).empty());
        QCOMPARE(world.events.join(QLatin1Char('|')),
                 QStringLiteral("will reload|did reload|will reload|did reload|will reload|did reload"));
    }
};

QTEST_GUILESS_MAIN(MyDocumentTest)
#include "tst_mydocument.moc"
