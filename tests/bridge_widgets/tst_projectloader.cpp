#include "bridge/widgets/QVFCPProjectLoader.h"

#include "support/alerts/QVAlert.h"
#include "support/desktop/Workspace.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/BackgroundWork.h"
#include "tests/support/FcpHost.h"
#include "tests/support/ScriptedAlertPresenter.h"
#include "tests/support/TemporaryHome.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QLocalServer>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace vantrell;

namespace
{

const QByteArray project = "<xmeml version=\"5\"><project><name>P</name><children/></project></xmeml>";

QStringList names(std::initializer_list<const char *> texts)
{
    QStringList list;
    for (const char *const text : texts)
        list.append(QString::fromLatin1(text));
    return list;
}

} // namespace

class TestProjectLoader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<TemporaryHome>();
        UserDefaults::standard().setValue(QStringLiteral("applicationsFolder"),
                                          m_home->path(QStringLiteral("apps")));
        m_alerts = std::make_shared<ScriptedAlertPresenter>();
        QVAlert::setPresenter(m_alerts);
        QVLog::createNewLog(QStringLiteral("test"), true);
        m_opened.clear();
        m_failure.clear();
        m_icons.clear();
    }
    void cleanup()
    {
        delete m_dialog;
        QVERIFY(BackgroundWork::waitForAll(std::chrono::seconds(5)));
        QVAlert::closeAll();
        QVAlert::setPresenter(nullptr);
        QVLog::willTerminate();
        m_home.reset();
    }

    void saysWhyTheListIsEmpty_data()
    {
        QTest::addColumn<bool>("isRunning");
        QTest::addColumn<QString>("message");
        QTest::newRow("not running") << false << "Final Cut Pro is not running.";
        QTest::newRow("nothing open") << true << "No project is open in Final Cut Pro.";
    }
    void saysWhyTheListIsEmpty()
    {
        QFETCH(bool, isRunning);
        FcpHost host(*m_home);
        if (isRunning)
            QVERIFY(host.start({}));
        show();
        QTRY_VERIFY(!m_dialog->isReading());
        QVERIFY(m_dialog->projects().isEmpty());
        QFETCH(QString, message);
        QVERIFY(texts().contains(message));
        QVERIFY(!button(QDialogButtonBox::Open)->isEnabled());
        m_dialog->openProject();
        QVERIFY(m_dialog->isVisible());
        QVERIFY(m_opened.isEmpty());
    }

    void opensTheChosenProjects_data()
    {
        QTest::addColumn<QList<int>>("rows"); // in the order in which they are selected
        QTest::addColumn<QStringList>("opened");
        QTest::newRow("all") << QList<int>{2, 0, 1} << names({"b.xml", "a.fcp", "c.xml"});
        QTest::newRow("some") << QList<int>{2, 0} << names({"b.xml", "c.xml"});
        QTest::newRow("none") << QList<int>{} << QStringList{};
    }
    void opensTheChosenProjects()
    {
        QFETCH(QList<int>, rows);
        QFETCH(QStringList, opened);
        FcpHost host(*m_home);
        QStringList paths;
        for (const QString &name : names({"b.xml", "a.fcp", "c.xml"}))
            paths.append(m_home->addFile(name, project));
        QVERIFY(host.start(paths));
        show();
        QTRY_VERIFY(!m_dialog->isReading());
        QCOMPARE(m_dialog->projects(), paths);
        QCOMPARE(m_icons, paths);
        QCOMPARE(table()->item(1)->text(), paths.at(1)); // the full path
        QCOMPARE(table()->selectedItems().size(), 1);
        QVERIFY(button(QDialogButtonBox::Open)->isEnabled());
        table()->clearSelection();
        for (const int row : rows)
            table()->item(row)->setSelected(true);
        button(QDialogButtonBox::Open)->click();
        QStringList openedNames;
        for (const QString &path : std::as_const(m_opened))
            openedNames.append(QFileInfo(path).fileName());
        QCOMPARE(openedNames, opened);
        QCOMPARE(!m_dialog || !m_dialog->isVisible(), !opened.isEmpty());
        QVERIFY(!m_wasVisible); // it goes before the first document opens
        if (!opened.isEmpty())
            QTRY_VERIFY(!m_dialog);
    }

    void tellsOfAProjectThatDoesNotOpen()
    {
        FcpHost host(*m_home);
        const QStringList paths{m_home->addFile(QStringLiteral("a.xml"), project),
                                m_home->addFile(QStringLiteral("b.xml"), project)};
        QVERIFY(host.start(paths));
        m_failure = QStringLiteral("Not today.");
        m_alerts->queueAnswer(AlertAnswer::Default);
        m_alerts->queueAnswer(AlertAnswer::Default);
        show();
        QTRY_VERIFY(!m_dialog->isReading());
        table()->selectAll();
        m_dialog->openProject();
        QCOMPARE(m_opened, paths); // the second one in spite of the first
        QCOMPARE(m_alerts->shown().size(), std::size_t(2));
        QCOMPARE(m_alerts->shown()[0].text(AlertKey::MessageText), QStringLiteral("Error loading project"));
        QCOMPARE(m_alerts->shown()[0].text(AlertKey::InformativeText), m_failure);
    }

    void aHungApplicationHoldsNothingUp()
    {
        const QString path = Workspace::eventSocketPath(QStringLiteral("KeyG"));
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QLocalServer hung;
        QVERIFY(hung.listen(path));
        QElapsedTimer time;
        time.start();
        show();
        QTRY_VERIFY(hung.hasPendingConnections());
        QVERIFY(m_dialog->isReading());
        QVERIFY(texts().contains(QStringLiteral("Asking Final Cut Pro for its open projects…")));
        QVERIFY(!button(QDialogButtonBox::Open)->isEnabled());
        button(QDialogButtonBox::Close)->click();
        QVERIFY(!m_dialog->isVisible());
        QTRY_VERIFY(!m_dialog);
        QVERIFY(BackgroundWork::waitForAll(std::chrono::seconds(2))); // the question has been given up
        QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
    }

private:
    void show()
    {
        m_wasVisible = false;
        const auto open = [this](const QString &path) -> Result<void> {
            m_wasVisible = m_wasVisible || (m_dialog && m_dialog->isVisible());
            m_opened.append(path);
            return m_failure.isEmpty() ? Result<void>() : Result<void>(Failure{m_failure});
        };
        const auto icon = [this](const QString &path) {
            m_icons.append(path);
            return QIcon();
        };
        m_dialog = QVFCPProjectLoader::showOpenDialog({open, icon}, nullptr);
        QVERIFY(m_dialog);
        QVERIFY(m_dialog->isModal());
    }
    QListWidget *table() const { return m_dialog->findChild<QListWidget *>(); }
    QPushButton *button(QDialogButtonBox::StandardButton which) const
    {
        return m_dialog->findChild<QDialogButtonBox *>()->button(which);
    }
    /// What the dialog says, without what is hidden.
    QStringList texts() const
    {
        QStringList visible;
        for (const QLabel *const label : m_dialog->findChildren<QLabel *>()) {
            if (label->isVisible())
                visible.append(label->text());
        }
        return visible;
    }

    std::unique_ptr<TemporaryHome> m_home;
    std::shared_ptr<ScriptedAlertPresenter> m_alerts;
    QPointer<QVFCPProjectLoader> m_dialog;
    QStringList m_opened;
    QStringList m_icons;
    QString m_failure;
    bool m_wasVisible = false;
};

QTEST_MAIN(TestProjectLoader)
#include "tst_projectloader.moc"
