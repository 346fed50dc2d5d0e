#include "ProgramTest.h"

#include "app/Application.h"
#include "app/PreferencesWindow.h"
#include "app/SampleProject.h"
#include "app/StartWindow.h"
#include "app/ThemeColors.h"
#include "document/DocumentJournal.h"
#include "document/MyDocument.h"
#include "markers/MarkerInventory.h"
#include "support/files/StandardFolders.h"
#include "table/widgets/QVTableView.h"
#include "workbench/Workbench.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QFontComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QPalette>
#include <QSpinBox>
#include <QTest>
#include <QThread>

using namespace vantrell;

/// The start window and the preferences, over two projects.
class PreferencesTest : public QObject, private ProgramTest
{
    Q_OBJECT

public Q_SLOTS:
    void noteAddress(const QUrl &url) { m_address = url.toString(); }

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init()
    {
        makeHome();
        makeProgram();
    }
    void cleanup() { QVERIFY(end()); }

    /// Some themes of desktops leave secondary texts black when they turn dark.
    void secondaryTextsCanBeRead_data()
    {
        QTest::addColumn<QColor>("window");
        QTest::addColumn<QColor>("text");
        QTest::addColumn<QColor>("secondary");
        QTest::addColumn<bool>("isKept");
        const QColor dark(49, 54, 59);
        QTest::newRow("dark") << dark << QColor(Qt::white) << QColor(Qt::black) << false;
        QTest::newRow("dark, half black") << dark << QColor(Qt::white) << QColor(0, 0, 0, 128) << false;
        QTest::newRow("light, white") << QColor(Qt::white) << QColor(Qt::black) << QColor(Qt::white) << false;
        QTest::newRow("light") << QColor(Qt::white) << QColor(Qt::black) << QColor(0, 0, 0, 128) << true;
        QTest::newRow("dark, gray") << dark << QColor(Qt::white) << QColor(150, 150, 150) << true;
    }
    void secondaryTextsCanBeRead()
    {
        QFETCH(QColor, window);
        QFETCH(QColor, text);
        QFETCH(QColor, secondary);
        QFETCH(bool, isKept);
        const QPalette before = QApplication::palette();
        QPalette theme;
        theme.setColor(QPalette::Window, window);
        theme.setColor(QPalette::Base, window);
        theme.setColor(QPalette::Text, text);
        theme.setColor(QPalette::PlaceholderText, secondary);
        QApplication::setPalette(theme);
        QCoreApplication::processEvents();
        const QPalette shown = QApplication::palette();
        QApplication::setPalette(before);
        QCOMPARE(shown.color(QPalette::PlaceholderText) == secondary, isKept);
        QCOMPARE(shown.color(QPalette::Window), window);
        QColor readable = shown.color(QPalette::PlaceholderText);
        QVERIFY(isKept || (readable.alpha() > 128 && readable.alpha() < 255));
        readable.setAlpha(255);
        QVERIFY(contrastOf(readable, window) > 2.5);
    }

    void toolTipsCanBeRead()
    {
        const QPalette before = QApplication::palette();
        QPalette theme(QColor(53, 53, 56), QColor(45, 45, 48));
        theme.setColor(QPalette::ToolTipBase, QColor(255, 255, 220));
        theme.setColor(QPalette::ToolTipText, Qt::white);
        QApplication::setPalette(theme);
        QCoreApplication::processEvents();
        const QPalette shown = QApplication::palette();
        QApplication::setPalette(before);
        QVERIFY(contrastOf(shown.color(QPalette::ToolTipText), shown.color(QPalette::ToolTipBase)) > 4);
        theme.setColor(QPalette::ToolTipText, Qt::black);
        QApplication::setPalette(theme);
        QCoreApplication::processEvents();
        const QColor kept = QApplication::palette().color(QPalette::ToolTipBase);
        QApplication::setPalette(before);
        QCOMPARE(kept, QColor(255, 255, 220));
    }

    void theStartWindowOffersAllWaysIn()
    {
        StartWindow &start = m_controller->startWindow();
        start.show();
        QCheckBox *const box = start.findChild<QCheckBox *>();
        QVERIFY(box->isChecked());
        box->click();
        QCOMPARE(m_defaults->value(QStringLiteral("showOpenDialogAtStartup")).toInt(), 0);
        m_controller->performStartupAction();
        QVERIFY(!visiblePanel());
        m_defaults->setValue(QStringLiteral("showOpenDialogAtStartup"), 1); // as another process would
        QVERIFY(box->isChecked());

        QVERIFY(pressButton(start, QStringLiteral("Open…")));
        QVERIFY(visiblePanel());
        visiblePanel()->close();
        QVERIFY(pressButton(start, QStringLiteral("Open Sample Project")));
        QTRY_VERIFY(m_controller->currentWindow());
        DocumentWindow *const window = m_controller->currentWindow();
        QTRY_COMPARE(window->state(), DocumentWindow::State::Ready);
        QCOMPARE(window->path(),
                 m_home->path(QStringLiteral(".local/share/vantrell/sample/Harbour Lights.xml")));
        // Its media are there, but for the one that is meant to be missing.
        QCOMPARE(missingIn(*window), 1);
        QCOMPARE(start.findChild<QListWidget *>()->item(0)->data(Qt::UserRole).toString(), window->path());

        // The copy is the user's own: it is kept.
        window->toolbarMarkers();
        QVERIFY(editCell(*window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("Mine")));
        QVERIFY(saves(*window));
        const Result<QString> again = SampleProject::prepare(SampleProject::folder());
        QVERIFY(again && again.value() == window->path());
        QVERIFY(contentOf(window->path()).contains("<name>Mine</name>"));
    }

    void tablesFollowInAllWindows()
    {
        openTwo();
        const QFont usual = table(0).font();
        const int usualHeight = table(0).verticalHeader()->defaultSectionSize();
        PreferencesWindow &preferences = show();
        button(preferences, QStringLiteral("Use the font of the other controls"))->click();
        preferences.findChild<QSpinBox *>()->setValue(usual.pointSize() + 9);
        for (const int i : {0, 1}) {
            QCOMPARE(table(i).font().pointSize(), usual.pointSize() + 9);
            QCOMPARE(table(i).horizontalHeader()->font().pointSize(), usual.pointSize() + 9);
            QVERIFY(table(i).verticalHeader()->defaultSectionSize() > usualHeight);
        }
        QCOMPARE(m_controller->currentWindow()->font().pointSize(), usual.pointSize());
        QVTableView later; // a table to come
        later.ensurePolished();
        QCOMPARE(later.font().pointSize(), usual.pointSize() + 9);

        QComboBox *dates = nullptr;
        for (QComboBox *const box : preferences.findChildren<QComboBox *>()) {
            if (box->findData(QStringLiteral("iso")) >= 0)
                dates = box;
        }
        QVERIFY(dates);
        dates->setCurrentIndex(1);
        Q_EMIT dates->activated(1);
        for (const int i : {0, 1})
            QCOMPARE(dateOf(i), QStringLiteral("2024-02-29 07:05"));
        dates->setCurrentIndex(2);
        Q_EMIT dates->activated(2);
        QCOMPARE(dateOf(1), QStringLiteral("29 February 2024 07:05"));

        QVERIFY(pressButton(preferences, QStringLiteral("Restore Defaults")));
        for (const int i : {0, 1}) {
            QCOMPARE(table(i).font().pointSize(), usual.pointSize());
            QCOMPARE(table(i).verticalHeader()->defaultSectionSize(), usualHeight);
            QCOMPARE(dateOf(i), QLocale().toString(QDateTime({2024, 2, 29}, {7, 5}), QLocale::ShortFormat));
        }
        QVERIFY(!m_defaults->value(QStringLiteral("tableFontSize")).isValid());
    }

    void ownersFollowInAllWindows()
    {
        openTwo();
        MyDocument *const busy = m_controller->documentWindows().front()->document();
        QVERIFY(busy->runInBackground([] { QThread::msleep(100); }, [] {})); // it follows when that is over
        button(show(), QStringLiteral("List each marker under its own sequence and clip"))->click();
        for (DocumentWindow *const window : m_controller->documentWindows())
            QTRY_COMPARE(window->workbench().markerInventory().ownerListing(), OwnerListing::Own);
    }

    void theJournalLosesNothingWhenItIsSwitched()
    {
        openTwo();
        DocumentWindow &changed = *m_controller->documentWindows()[0];
        DocumentWindow &unchanged = *m_controller->documentWindows()[1];
        QVERIFY(rename(changed, 0));
        QCOMPARE(journals(), 1);
        QAbstractButton *const box = button(show(), QStringLiteral("Keep them in a journal"));
        box->click();
        QVERIFY(!unchanged.document()->journal()->isRecording());
        QVERIFY(rename(unchanged, 0));
        QVERIFY(rename(changed, 1)); // its journal goes on
        QVERIFY(changed.document()->journal()->isRecording());
        QCOMPARE(journals(), 1);
        QVERIFY(saves(changed));
        QVERIFY(!changed.document()->journal()->isRecording());
        QCOMPARE(journals(), 0);
        QVERIFY(rename(changed, 2));
        QCOMPARE(journals(), 0);

        // A journal never begins in the middle.
        box->click();
        QVERIFY(rename(unchanged, 1));
        QCOMPARE(journals(), 0);
        unchanged.undo();
        unchanged.undo();
        QVERIFY(!unchanged.isWindowModified());
        QVERIFY(rename(unchanged, 1));
        QCOMPARE(journals(), 1);
        QVERIFY(saves(changed));
        QVERIFY(rename(changed, 3));
        QCOMPARE(journals(), 2);
    }

    void helpAddressesAreUsedAtOnce()
    {
        QDesktopServices::setUrlHandler(QStringLiteral("help"), this, "noteAddress");
        QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "noteAddress");
        PreferencesWindow &preferences = show();
        QLineEdit *const support =
            fieldWith(preferences, QStringLiteral("https://www.orvandel.example/support/%@"));
        QVERIFY(support && support->text().isEmpty());
        QTest::keyClicks(support, QStringLiteral("help:%@/desk"));
        preferences.close(); // without Return
        m_controller->helpSupport();
        QCOMPARE(m_address, QStringLiteral("help:halvex/desk"));
        show();
        support->selectAll();
        QTest::keyClick(support, Qt::Key_Delete);
        QTest::keyClick(support, Qt::Key_Return);
        QVERIFY(preferences.isVisible());
        m_controller->helpSupport();
        QCOMPARE(m_address, QStringLiteral("https://www.orvandel.example/support/halvex"));
        // An address that is none is told.
        m_defaults->setValue(QStringLiteral("supportAddress"), QStringLiteral("the desk"));
        QCOMPARE(support->text(), QStringLiteral("the desk"));
        QString told;
        whenAsked(0, [&told](QMessageBox *box) {
            told = box->informativeText();
            press(box, QStringLiteral("OK"));
        });
        m_controller->helpSupport();
        QVERIFY(told.contains(QStringLiteral("Preferences")));
        QDesktopServices::unsetUrlHandler(QStringLiteral("help"));
        QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
    }

private:
    static QAbstractButton *button(const QWidget &window, const QString &title)
    {
        for (QAbstractButton *const each : window.findChildren<QAbstractButton *>()) {
            if (each->text().remove(QLatin1Char('&')) == title)
                return each;
        }
        return nullptr;
    }
    static bool pressButton(const QWidget &window, const QString &title)
    {
        QAbstractButton *const found = button(window, title);
        if (found)
            found->click();
        return found;
    }
    static QLineEdit *fieldWith(const QWidget &window, const QString &placeholder)
    {
        for (QLineEdit *const field : window.findChildren<QLineEdit *>()) {
            if (field->placeholderText() == placeholder)
                return field;
        }
        return nullptr;
    }
    static int missingIn(const DocumentWindow &window)
    {
        const TableModel &model = window.pane(Tab::Media).model();
        int missing = 0;
        for (int row = 0; row < model.rowCount(); ++row) {
            const QModelIndex index = model.index(row, model.columnOf(QStringLiteral("missing")));
            missing += index.data(Qt::CheckStateRole).toInt() == Qt::Checked ? 1 : 0;
        }
        return missing;
    }

    /// The preferences, by way of the menu.
    PreferencesWindow &show()
    {
        const auto windows = m_controller->documentWindows();
        const QMainWindow &window =
            windows.empty() ? static_cast<QMainWindow &>(m_controller->startWindow()) : *windows.front();
        if (!trigger(window, QStringLiteral("Preferences…"), QStringLiteral("Edit")))
            qFatal("There is no such command.");
        for (QWidget *const widget : QApplication::topLevelWidgets()) {
            auto *const found = qobject_cast<PreferencesWindow *>(widget);
            if (found && found->isVisible() && !found->isModal())
                return *found;
        }
        qFatal("The preferences do not show.");
    }

    /// Opens the sample twice, with a file whose date is known.
    void openTwo()
    {
        for (const char *const name : {"a", "b"}) {
            const QString folder = m_home->path(QString::fromLatin1(name));
            const Result<QString> path = SampleProject::prepare(folder);
            QVERIFY(path.isOk());
            QFile narration(folder + QStringLiteral("/Media/Narration.wav"));
            QVERIFY(narration.open(QIODevice::ReadWrite));
            QVERIFY(
                narration.setFileTime(QDateTime({2024, 2, 29}, {7, 5}), QFileDevice::FileModificationTime));
            narration.close();
            QVERIFY(m_controller->applicationOpenFile(path.value()));
            QTRY_COMPARE(m_controller->documentWindows().back()->state(), DocumentWindow::State::Ready);
        }
    }
    QVTableView &table(int window) const
    {
        return m_controller->documentWindows()[std::size_t(window)]->pane(Tab::Media).table();
    }
    QString dateOf(int window) const
    {
        const DocumentWindow &shown = *m_controller->documentWindows()[std::size_t(window)];
        const QStringList names = columnTexts(shown, Tab::Media, QStringLiteral("filename"));
        return columnTexts(shown, Tab::Media, QStringLiteral("modDate"))
            .value(names.indexOf(QStringLiteral("Narration.wav")));
    }
    static bool rename(DocumentWindow &window, int row)
    {
        window.toolbarMarkers();
        const bool isEdited =
            editCell(window, Tab::Markers, row, QStringLiteral("name"), QStringLiteral("New %1").arg(row));
        window.document()->journal()->finish();
        return isEdited;
    }
    int journals()
    {
        for (DocumentWindow *const window : m_controller->documentWindows())
            window->document()->journal()->finish();
        return int(QDir(JournalFolder::standard()).entryList(QDir::Files).size());
    }

    QString m_address;
};

int main(int argc, char **argv)
{
    Application application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(QLocale::c());
    PreferencesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_preferences.moc"
