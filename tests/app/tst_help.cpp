#include "ProgramTest.h"

#include "app/KeyList.h"
#include "app/KeyboardHelp.h"
#include "app/StartWindow.h"
#include "app/UserManual.h"
#include "support/desktop/Workspace.h"
#include "table/widgets/QVTableView.h"
#include "timecode/QVTimecode.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTest>
#include <QTreeWidget>

using namespace vantrell;

namespace
{

// Manuals in the home of a test.
const QString site = QStringLiteral("share/Documentation/Orvandel/Halvex User Manual.pdf");
const QString pagesPath = QStringLiteral("opt/share/vantrell/manual/index.html");

/// The shown lines of the list as "command: keys".
QStringList linesOf(const KeyboardHelp &help)
{
    QStringList lines;
    const auto *const list = help.findChild<QTreeWidget *>();
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *const group = list->topLevelItem(i);
        for (int line = 0; !group->isHidden() && line < group->childCount(); ++line) {
            const QTreeWidgetItem *const item = group->child(line);
            if (!item->isHidden())
                lines.append(item->text(0) + QStringLiteral(": ") + item->text(1));
        }
    }
    return lines;
}

/// The commands of the window by their keys. Two with the same key would both do nothing.
QMap<QString, QString> titlesByKey(const DocumentWindow &window)
{
    QMap<QString, QString> titles;
    for (const QAction *const action : window.findChildren<QAction *>()) {
        for (const QKeySequence &shortcut : action->shortcuts()) {
            const QString key = shortcut.toString();
            if (titles.contains(key))
                qWarning("%s: %s, %s", qPrintable(key), qPrintable(titles[key]), qPrintable(action->text()));
            titles.insert(key, action->text());
        }
    }
    return titles;
}

QString manualFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/../share/vantrell/manual"));
}

/// The texts that the pattern's first group matches.
QStringList matchesIn(const QString &text, const QString &pattern)
{
    QStringList found;
    QRegularExpressionMatchIterator matches =
        QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured(1));
    return found;
}

} // namespace

class TestHelp : public QObject, private ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        makeHome();
        makeProgram();
    }
    void cleanup()
    {
        Workspace::setOpenProgram({});
        QVERIFY(end());
    }

    void everyShortcutIsListed()
    {
        DocumentWindow *const window = openSample();
        QVERIFY(window);
        // Commands that are made later appear by themselves, wherever they are.
        QMenu *const inner = window->menuBar()->actions().front()->menu()->addMenu(QStringLiteral("Inner"));
        inner->addAction(QStringLiteral("&Salt && Pepper…"))->setShortcut(QKeySequence(Qt::ALT | Qt::Key_F9));
        auto *const elsewhere = new QAction(QStringLiteral("Elsewhere"), window);
        elsewhere->setShortcuts({QKeySequence(Qt::Key_F7), QKeySequence(Qt::CTRL | Qt::Key_F7)});
        window->addAction(elsewhere);

        QVERIFY(trigger(*window, QStringLiteral("Keyboard Shortcuts")));
        const auto *const help = window->findChild<KeyboardHelp *>();
        QVERIFY(help && help->isVisible());
        const QStringList lines = linesOf(*help);
        QVERIFY(lines.contains(QStringLiteral("Salt & Pepper: Alt+F9")));
        QVERIFY(lines.contains(QStringLiteral("Elsewhere: F7, Ctrl+F7")));
        QVERIFY(lines.contains(QStringLiteral("Keyboard Shortcuts: Ctrl+/, ?")));
        QVERIFY(lines.contains(QStringLiteral("Save: Ctrl+S")));
        const QString keys = lines.join(QLatin1Char('\n'));
        int count = 0;
        for (const QAction *const action : window->findChildren<QAction *>()) {
            for (const QKeySequence &shortcut : action->shortcuts()) {
                ++count;
                QVERIFY2(keys.contains(shortcut.toString(QKeySequence::NativeText)),
                         qPrintable(action->text()));
            }
        }
        QVERIFY(count > 15);
        QCOMPARE(titlesByKey(*window).size(), count);
        for (const QString &line : lines)
            QVERIFY2(QRegularExpression(QStringLiteral("^\\S.*: \\S")).match(line).hasMatch(),
                     qPrintable(line));
    }

    void keysShowAndHideTheList()
    {
        DocumentWindow *const window = openSample();
        QVERIFY(window);
        const auto help = [window] { return window->findChild<KeyboardHelp *>(); };
        for (const bool isQuestionMark : {false, true}) {
            window->activateWindow();
            QTRY_COMPARE(QApplication::activeWindow(), window);
            window->currentPane().table().setFocus();
            if (isQuestionMark)
                QTest::keyClick(&window->currentPane().table(), Qt::Key_Question);
            else
                QTest::keyClick(&window->currentPane().table(), Qt::Key_Slash, Qt::ControlModifier);
            QTRY_VERIFY(help() && help()->isVisible());
            // Escape clears the search, then closes.
            auto *const search = help()->findChild<QLineEdit *>();
            QTest::keyClicks(search, QStringLiteral("select all"));
            QCOMPARE(linesOf(*help()), QStringList(QStringLiteral("Select All: Ctrl+A")));
            search->setText(QStringLiteral("no such key"));
            QVERIFY(linesOf(*help()).isEmpty());
            QTest::keyClick(search, Qt::Key_Escape);
            QVERIFY(search->text().isEmpty());
            QVERIFY(linesOf(*help()).size() > 30);
            QTest::keyClick(search, Qt::Key_Escape);
            QTRY_VERIFY(!help());
        }
        // While a text is edited, the question mark is typed.
        window->toolbarEffects();
        window->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), window);
        auto *const field = window->pane(Tab::Effects).findChild<QLineEdit *>();
        QVERIFY(field);
        field->setFocus();
        QTest::keyClick(field, Qt::Key_Question);
        QCOMPARE(field->text(), QStringLiteral("?"));
        QVERIFY(!help());
    }

    void theListGoesWithItsWindow()
    {
        DocumentWindow *const window = openSample();
        QVERIFY(window);
        const QPointer<KeyboardHelp> help = KeyboardHelp::showFor(*window);
        QCOMPARE(KeyboardHelp::showFor(*window), help.data());
        window->close();
        QTRY_VERIFY(!help);
        // The start window is hidden when a project opens.
        m_controller->startWindow().show();
        const QPointer<KeyboardHelp> first = KeyboardHelp::showFor(m_controller->startWindow());
        QVERIFY(linesOf(*first).contains(QStringLiteral("Open: Ctrl+O")));
        QVERIFY(openSample());
        QTRY_VERIFY(!first);
    }

    void theSiteManualComesFirst_data()
    {
        QTest::addColumn<bool>("hasSiteManual");
        QTest::addColumn<bool>("hasPages");
        QTest::addColumn<QString>("opened");
        QTest::newRow("both") << true << true << site;
        QTest::newRow("the site's") << true << false << site;
        QTest::newRow("the program's") << false << true << pagesPath;
        QTest::newRow("none") << false << false << QString();
    }
    void theSiteManualComesFirst()
    {
        QFETCH(const bool, hasSiteManual);
        QFETCH(const bool, hasPages);
        QFETCH(const QString, opened);
        if (hasSiteManual)
            m_home->addFile(site, "%PDF");
        if (hasPages)
            m_home->addFile(pagesPath, "<html>");
        makeOpener();
        const Result<void> result = open();
        QCOMPARE(result.isOk(), !opened.isEmpty());
        if (result)
            QTRY_COMPARE(openedFile(), m_home->path(opened));
        else
            QVERIFY2(result.message().contains(m_home->path(pagesPath)), qPrintable(result.message()));
    }

    void withoutABrowserItSaysSo()
    {
        m_home->addFile(pagesPath, "<html>");
        Workspace::setOpenProgram(m_home->path(QStringLiteral("no opener")));
        QVERIFY(open().message().contains(QStringLiteral("no program")));
    }

    void f1OpensThePages()
    {
        DocumentWindow *const window = openSample();
        QVERIFY(window);
        makeOpener();
        QTRY_COMPARE(QApplication::activeWindow(), window);
        QTest::keyClick(window, Qt::Key_F1);
        QTRY_COMPARE(openedFile(), manualFolder() + QStringLiteral("/index.html"));
    }

    /// Every link and picture of every page is there, and nothing is loaded from elsewhere.
    void thePagesHoldTogether()
    {
        const QDir folder(manualFolder());
        const QStringList pages = folder.entryList({QStringLiteral("*.html")}, QDir::Files);
        const QDir source(qEnvironmentVariable("VANTRELL_SOURCE_DIR") + QStringLiteral("/docs/manual"));
        QCOMPARE(pages.size(), source.entryList({QStringLiteral("*.md")}, QDir::Files).size());
        QHash<QString, QStringList> anchors;
        for (const QString &page : pages)
            anchors.insert(page, matchesIn(textOf(page), QStringLiteral(" id=\"([^\"]+)\"")));
        int pictures = 0;
        for (const QString &page : pages) {
            const QString html = textOf(page);
            QVERIFY2(!html.contains(QStringLiteral(".md\"")), qPrintable(page));
            QVERIFY(QSet<QString>(anchors[page].begin(), anchors[page].end()).size() == anchors[page].size());
            for (const QString &link : matchesIn(html, QStringLiteral("href=\"([^\"]+)\""))) {
                const QString target = link.startsWith(QLatin1Char('#')) ? page + link : link;
                const QString file = target.section(QLatin1Char('#'), 0, 0);
                const QString anchor = target.section(QLatin1Char('#'), 1);
                QVERIFY2(QFileInfo::exists(folder.filePath(file)), qPrintable(page + u' ' + link));
                QVERIFY2(anchor.isEmpty() || anchors[file].contains(anchor), qPrintable(page + u' ' + link));
            }
            for (const QString &picture : matchesIn(html, QStringLiteral("src(?:set)?=\"([^\"]+)\""))) {
                ++pictures;
                QVERIFY2(!QImage(folder.filePath(picture)).isNull(), qPrintable(page + u' ' + picture));
            }
            // A table or a picture that stayed as it was typed, or a piece of a tag.
            QVERIFY2(!html.contains(QStringLiteral("<p>|")) && !html.contains(QStringLiteral("![")),
                     qPrintable(page));
            QString text = html;
            text.remove(QRegularExpression(QStringLiteral("<[^>]*>")));
            QVERIFY2(!text.contains(QStringLiteral("/>")), qPrintable(page));
        }
        QVERIFY(pictures > 20);
        for (const QString &page : pages)
            QVERIFY2(textOf(QStringLiteral("index.html")).contains(QStringLiteral("href=\"%1\"").arg(page)),
                     qPrintable(page));
        QVERIFY(!textOf(QStringLiteral("manual.css")).contains(QStringLiteral("url(")));
    }

    /// What the manual says of typing timecode holds.
    void theTimecodesOfTheManualAreRight()
    {
        const QString page = textOf(QStringLiteral("timecode.html"));
        const QString table = page.section(QStringLiteral("<tbody>"), 1, 1);
        const QStringList typed = matchesIn(table, QStringLiteral("<tr>\n<td><code>([^<]+)</code>"));
        const QStringList expected =
            matchesIn(table, QStringLiteral("^<td>(\\d\\d:\\d\\d:\\d\\d:\\d\\d)</td>"));
        QVERIFY(typed.size() > 5);
        QCOMPARE(expected.size(), typed.size());
        for (qsizetype i = 0; i < typed.size(); ++i)
            QCOMPARE(QVTimecode::timecodeFromUserString(typed[i], false, QStringLiteral("01:00:00:00")),
                     expected[i]);
    }

private:
    /// A window with the sample, in front; null when it does not open.
    DocumentWindow *openSample()
    {
        m_controller->applicationOpenFile(copySample(m_home->path(QStringLiteral("project"))));
        DocumentWindow *const window = m_controller->currentWindow();
        const auto isReady = [window] { return window->state() == DocumentWindow::State::Ready; };
        if (!window || !QTest::qWaitFor(isReady, 20000) || !QTest::qWaitForWindowActive(window, 20000))
            return nullptr;
        return window;
    }

    /// Opens the manual of the home.
    Result<void> open() const
    {
        return UserManual::open(m_home->path(QStringLiteral("share")),
                                m_home->path(QStringLiteral("opt/bin")));
    }

    /// What opens files notes their paths.
    void makeOpener()
    {
        const QString script = m_home->addFile(
            QStringLiteral("opener"),
            "#!/bin/sh\nprintf %s \"$1\" >" + QFile::encodeName(m_home->path(QStringLiteral("opened.new"))) +
                " && mv " + QFile::encodeName(m_home->path(QStringLiteral("opened.new"))) + ' ' +
                QFile::encodeName(m_home->path(QStringLiteral("opened"))) + '\n');
        QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        Workspace::setOpenProgram(script);
    }
    QString openedFile() const
    {
        return QFile::decodeName(contentOf(m_home->path(QStringLiteral("opened"))));
    }
    static QString textOf(const QString &page)
    {
        return QString::fromUtf8(contentOf(manualFolder() + QLatin1Char('/') + page));
    }
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    TestHelp test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_help.moc"
