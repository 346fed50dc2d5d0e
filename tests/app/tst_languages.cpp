#include "DialogKeys.h"
#include "WindowTest.h"

#include "app/AppController.h"
#include "app/Application.h"
#include "app/PreferencesWindow.h"
#include "app/StartWindow.h"
#include "app/Translations.h"
#include "interchange/NoteExporter.h"
#include "markers/MarkerColumns.h"
#include "markers/MarkerKeys.h"
#include "report/ReportGenerator.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/BackgroundWork.h"
#include "support/widgets/CoreTexts.h"
#include "support/widgets/ShownText.h"
#include "table/widgets/QVTableView.h"
#include "table/widgets/TabPane.h"
#include "tests/support/TemporaryHome.h"
#include "workbench/Workbench.h"

#include <QBuffer>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLocale>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTabWidget>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

using namespace vantrell;

namespace
{

struct Message {
    QString context;
    QString source;
    QString translation;
    bool isFinished = true;
};

/// All that the file of a language holds.
std::vector<Message> messagesOf(const QString &language)
{
    QFile file(QStringLiteral("%1/translations/vantrell_%2.ts")
                   .arg(qEnvironmentVariable("VANTRELL_SOURCE_DIR"), language));
    std::vector<Message> messages;
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QXmlStreamReader reader(&file);
    QString context;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1String("name")) {
            context = reader.readElementText();
        } else if (reader.name() == QLatin1String("source")) {
            messages.push_back({context, reader.readElementText(), {}});
        } else if (reader.name() == QLatin1String("translation")) {
            messages.back().isFinished = !reader.attributes().hasAttribute(QLatin1String("type"));
            messages.back().translation = reader.readElementText();
        }
    }
    return messages;
}

/// What a translation must have in common with its source: places, file patterns, line breaks and the number
/// of mnemonics.
QStringList formOf(const QString &text)
{
    static const QRegularExpression parts(
        QStringLiteral("%(?:L?[0-9]|n|@)|\\(\\*[^)]*\\)|\n|&(?=[^& ])|…|\\.\\.\\."));
    QStringList form;
    for (auto match = parts.globalMatch(text); match.hasNext();)
        form.append(match.next().captured().replace(QStringLiteral("..."), QStringLiteral("…")));
    form.sort();
    return form;
}

/// One language while it lives.
class Speaks
{
public:
    explicit Speaks(const QString &language)
        : m_isInstalled(Translations::install(*qApp, language))
    {
    }
    Speaks(const Speaks &) = delete;
    Speaks &operator=(const Speaks &) = delete;
    ~Speaks()
    {
        for (QTranslator *const translator : qApp->findChildren<QTranslator *>())
            delete translator;
    }

    bool isInstalled() const { return m_isInstalled; }

private:
    bool m_isInstalled;
};

/// The literals of a source that are sentences or name a failure, but for those that are written to the log.
QStringList sentencesIn(const QString &code)
{
    static const QRegularExpression literals(QStringLiteral(
        R"re((?:\bu|QStringLiteral\(\s*|QLatin1String\(\s*)((?:u?"(?:[^"\\\n]|\\.)*"\s*)+))re"));
    static const QRegularExpression seams(QStringLiteral(R"re("\s*u?")re"));
    static const QRegularExpression sentences(
        QStringLiteral(R"re(^(?:[A-Z“%"][^\n]* [^\n]*[.?]|(?:Unable|Error) [^\n]*)$)re"));
    QStringList found;
    for (auto match = literals.globalMatch(code); match.hasNext();) {
        const QRegularExpressionMatch literal = match.next();
        const QStringView before = QStringView(code).left(literal.capturedStart()).trimmed();
        if (before.endsWith(u"Log(") || before.endsWith(u"LogAndPrint(") ||
            before.endsWith(u"SystemLog::write("))
            continue;
        QString text = literal.captured(1).trimmed();
        text =
            text.mid(1, text.size() - 2).remove(seams).replace(QStringLiteral("\\\""), QStringLiteral("\""));
        if (sentences.match(text).hasMatch())
            found.append(text);
    }
    return found;
}

QString translated(const char *context, const QString &source)
{
    return QCoreApplication::translate(context, source.toUtf8().constData());
}

} // namespace

/// The windows in other languages than English.
class LanguagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init()
    {
        m_home = std::make_unique<TemporaryHome>();
        m_defaults = std::make_unique<UserDefaults>(m_home->path(QStringLiteral("test.plist")));
        m_defaults->setValue(QStringLiteral("showOpenDialogAtStartup"), 0);
        AppController::startLog();
    }
    void cleanup()
    {
        close();
        QVLog::willTerminate();
        m_defaults.reset();
        m_home.reset();
    }

    void theUserOrTheSystemChooses_data()
    {
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<QStringList>("system");
        QTest::addColumn<QString>("chosen");
        const auto row = [](const char *wanted, const QStringList &system, const char *chosen) {
            QTest::newRow(qPrintable(QLatin1String(wanted) + QLatin1Char('/') + system.join(u',')))
                << QString::fromLatin1(wanted) << system << QString::fromLatin1(chosen);
        };
        const QStringList austrian{QStringLiteral("de-AT"), QStringLiteral("de"), QStringLiteral("en")};
        row("", austrian, "de");
        row("fr", austrian, "fr");
        row("en", austrian, "en");
        row("xx", austrian, "de");
        row("", {QStringLiteral("it-IT"), QStringLiteral("es_MX")}, "es");
        row("", {QStringLiteral("en-US"), QStringLiteral("de")}, "en");
        row("", {QStringLiteral("it")}, "en");
        row("", {QStringLiteral("C")}, "en");
        row("", {}, "en");
    }
    void theUserOrTheSystemChooses()
    {
        QFETCH(QString, wanted);
        QFETCH(QStringList, system);
        QTEST(Translations::chosen(wanted, system), "chosen");
    }

    void theFilesAreComplete_data() { addLanguages(); }
    void theFilesAreComplete()
    {
        QFETCH(QString, language);
        const std::vector<Message> messages = messagesOf(language);
        QVERIFY(messages.size() > 1000);
        QStringList faults;
        QString cancel;
        for (const Message &message : messages) {
            if (!message.isFinished || message.translation.isEmpty())
                faults.append(QStringLiteral("unfinished: ") + message.source);
            else if (formOf(message.source) != formOf(message.translation))
                faults.append(message.source + QStringLiteral(" => ") + message.translation);
            // An alert is left by the button of that title, wherever the title comes from.
            if (message.source == QStringLiteral("Cancel") && !cancel.isEmpty() &&
                message.translation != cancel)
                faults.append(message.context + QStringLiteral(": ") + message.translation);
            if (message.source == QStringLiteral("Cancel"))
                cancel = message.translation;
        }
        QCOMPARE(faults.join(u'\n'), QString());
    }

    void whatIsUnknownStaysEnglish()
    {
        QVERIFY(!Translations::install(*qApp, QStringLiteral("xx")));
        QVERIFY(qApp->findChildren<QTranslator *>().isEmpty());
        QVLog::finishWriting();
        QVERIFY(log().contains(QStringLiteral("\"xx\" cannot be loaded")));
        const Speaks german(QStringLiteral("de"));
        QCOMPARE(shownMessage(QStringLiteral("Neither this nor that.")),
                 QStringLiteral("Neither this nor that."));
    }

    void messagesAreTranslatedByTheirParts_data()
    {
        QTest::addColumn<QString>("english");
        QTest::addColumn<QString>("german");
        const auto row = [](const char *english, const char *german) {
            QTest::newRow(english) << QString::fromUtf8(english) << QString::fromUtf8(german);
        };
        row("XML document cannot be found.", "Das XML-Dokument ist nicht zu finden.");
        row("The file \"/a/b.xml\" is empty.", "Die Datei „/a/b.xml“ ist leer.");
        // A reason in a reason; the parser's own words stay.
        row("The file \"/a/b.xml\" cannot be opened as a project: it is not well-formed XML (line 3: odd).",
            "Die Datei „/a/b.xml“ kann nicht als Projekt geöffnet werden: sie ist kein wohlgeformtes XML "
            "(line 3: odd).");
        row("Content is missing: 10 of 20 bytes could be read, and 3 elements were left out behind that.",
            "Es fehlt Inhalt: 10 von 20 Bytes konnten gelesen werden, dahinter wurden 3 Elemente "
            "ausgelassen.");
        // Sentences and lines.
        row("The file \"/a\" was not read whole. Content is missing: all 5 bytes could be read.",
            "Die Datei „/a“ wurde nicht vollständig gelesen. Es fehlt Inhalt: alle 5 Bytes konnten gelesen "
            "werden.");
        row("line 2, “Day”: “x” is no time.\nshot 4\nColours are left out.",
            "Zeile 2, „Day“: „x“ ist keine Zeit.\nshot 4\nFarben entfallen.");
        row("The comment of 12 markers is left out.", "Der Kommentar von 12 Marker entfällt.");
        row("“a. b”: no", "“a. b”: no");
        // Names look like texts of the program, and are none of them.
        row("Delete the preset \"Cancel\"?", "Die Vorgabe „Cancel“ löschen?");
        row("\"blue items\" could not be renamed: Permission denied.",
            "„blue items“ konnte nicht umbenannt werden: Zugriff verweigert.");
    }
    void messagesAreTranslatedByTheirParts()
    {
        QFETCH(QString, english);
        QCOMPARE(shownMessage(english), english);
        const Speaks german(QStringLiteral("de"));
        QTEST(shownMessage(english), "german");
    }

    void sizesFollowTheLocale()
    {
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::German));
        const auto restore = qScopeGuard([&before] { QLocale::setDefault(before); });
        const Speaks french(QStringLiteral("fr"));
        QCOMPARE(shownSize(QStringLiteral("1.50 GB")), QStringLiteral("1,50 Go"));
        QCOMPARE(shownSize(QStringLiteral("12 B")), QStringLiteral("12 o"));
        QCOMPARE(shownSize(QStringLiteral("Take 1.5")), QStringLiteral("Take 1.5"));
        QVERIFY(shownMessage(QStringLiteral("Total size: 1.50 GB")).endsWith(QStringLiteral("1,50 Go")));
    }

    void nothingIsMarkedInVain()
    {
        // A text that its own pattern does not give back in English would show wrongly in all languages.
        for (const char *const source : CoreTexts::messages()) {
            const QString text = QString::fromUtf8(source).replace(
                QRegularExpression(QStringLiteral("%[0-9]")), QStringLiteral("7"));
            QCOMPARE(shownMessage(text), text);
            const Speaks german(QStringLiteral("de"));
            const QString expected =
                translated("Message", QString::fromUtf8(source))
                    .replace(QRegularExpression(QStringLiteral("%[0-9]")), QStringLiteral("7"));
            QCOMPARE(shownMessage(text), expected);
        }
    }

    /// Complete sentences only, and those that name a failure: other texts do not tell what they are for.
    void sentencesOfTheCoreAreListed()
    {
        const auto plain = [](QString text) {
            static const QRegularExpression places(QStringLiteral("%(?:@|[0-9]|l?[iud])"));
            return text.replace(places, QStringLiteral("%"));
        };
        QSet<QString> listed{
            // Listed as they are once they are completed
            QStringLiteral("Are you sure you wish to remove % marker%?"),
            QStringLiteral("Are you sure you wish to remove % effect%?"),
            // For the log only
            QStringLiteral("A property list cannot hold nothing."),
            QStringLiteral("The file is damaged and cannot be renamed."),
            QStringLiteral("There is not enough memory to evaluate it."),
        };
        for (const auto &texts : {CoreTexts::messages(), CoreTexts::values()}) {
            for (const char *const source : texts)
                listed.insert(plain(QString::fromUtf8(source)));
        }
        QStringList missing;
        int found = 0;
        for (const char *const folder :
             {"support/alerts", "support/files", "support/settings", "support/desktop", "xml", "journal",
              "rows", "timecode", "document", "markers", "media", "effects", "interchange",
              "interchange/notes", "report", "compare", "handover", "workbench"}) {
            const QDir dir(qEnvironmentVariable("VANTRELL_SOURCE_DIR") + QLatin1Char('/') +
                           QString::fromLatin1(folder));
            for (const QString &name : dir.entryList({QStringLiteral("*.cpp"), QStringLiteral("*.h")})) {
                for (const QString &sentence :
                     sentencesIn(QString::fromUtf8(contentOf(dir.filePath(name))))) {
                    ++found;
                    if (!listed.contains(plain(sentence)))
                        missing.append(name + QStringLiteral(": ") + sentence);
                }
            }
        }
        QVERIFY2(found > 50, qPrintable(QString::number(found)));
        QCOMPARE(missing.join(u'\n'), QString());
    }

    void differencesAreTranslated()
    {
        const Speaks german(QStringLiteral("de"));
        QCOMPARE(shownDifference(QStringLiteral("head +00:00:01:00, tail -00:00:00:12")),
                 QStringLiteral("Anfang +00:00:01:00, Ende -00:00:00:12"));
        QCOMPARE(shownDifference(QStringLiteral("switched off, + Blur, Crop on")),
                 QStringLiteral("ausgeschaltet, + Blur, Crop ein"));
        QCOMPARE(shownDifference(QStringLiteral("100% to 50%")), QStringLiteral("100% auf 50%"));
        QCOMPARE(shownEdit(QStringLiteral("Undo Rename Marker")),
                 QStringLiteral("„Marker umbenennen“ rückgängig"));
    }

    void menusHaveEachKeyOnce_data() { addLanguages(); }
    void menusHaveEachKeyOnce()
    {
        QFETCH(QString, language);
        const Speaks speaks(language);
        QVERIFY(speaks.isInstalled());
        open();
        for (const Tab tab : {Tab::Media, Tab::Effects, Tab::Markers}) {
            showTab(tab);
            const TabPane &pane = m_window->pane(tab);
            QCOMPARE(keyFaults(*m_window->menuBar(), pane, pane.table().menu()).join(u'\n'), QString());
        }
        const StartWindow &start = m_controller->startWindow();
        QCOMPARE(keyFaults(*start.menuBar(), *start.centralWidget(), nullptr).join(u'\n'), QString());
        close();
    }

    void buttonsFitInTheSmallestWindow_data() { addLanguages(); }
    void buttonsFitInTheSmallestWindow()
    {
        QFETCH(QString, language);
        const Speaks speaks(language);
        open();
        m_window->resize(m_window->minimumSize());
        for (const Tab tab : {Tab::Media, Tab::Effects, Tab::Markers}) {
            showTab(tab);
            QCoreApplication::processEvents();
            const QWidget &pane = m_window->pane(tab);
            QCOMPARE(pane.width(), m_window->width());
            for (const auto *const button : pane.findChildren<QPushButton *>()) {
                QString text = button->text().remove(QLatin1Char('&'));
                QVERIFY2(!button->isVisible() ||
                             button->width() > button->fontMetrics().horizontalAdvance(text),
                         qPrintable(text));
            }
        }
        close();
    }

    void sheetsHaveEachKeyOnce_data() { addLanguages(); }
    void sheetsHaveEachKeyOnce()
    {
        QFETCH(QString, language);
        const Speaks speaks(language);
        open();
        showTab(Tab::Markers);
        TabPane &pane = m_window->pane(Tab::Markers);
        QVERIFY(editCell(*m_window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("x")));
        for (const char *const command :
             {"Add &Marker…", "Mar&ker Fields…", "Create Marker &Preset…", "Manage Marker Prese&ts…",
              "R&emove…", "Co&mpare with…", "E&xport Notes…", "&Relink…", "&Path Mappings…", "&Export List…",
              "Expor&t Report…", "Re&vert to Saved", "&Go to Timecode…", ""}) {
            pane.selectRows({3, 4});
            const QString title =
                translated("vantrell::MainMenu", QString::fromUtf8(command)).remove(QLatin1Char('&'));
            bool isSeen = false;
            QStringList found;
            QTimer look; // some commands wait for the answer
            connect(&look, &QTimer::timeout, this, [&] {
                QDialog *const dialog = visibleDialog();
                if (!dialog || isSeen)
                    return;
                isSeen = true;
                found = clashes(textsWithKeys(*dialog)) + buttonsWithoutKey(*dialog);
                dialog->reject();
            });
            look.start(20);
            if (title.isEmpty())
                QMetaObject::invokeMethod(&pane, "showMarkerOffsetWindow");
            else
                QVERIFY2(trigger(*m_window, title), qPrintable(title));
            QTRY_VERIFY2(isSeen, command);
            QCOMPARE(title + found.join(QStringLiteral(", ")), title);
            QTRY_VERIFY(!visibleDialog());
        }
        close();
    }

    void thePreferencesHaveEachKeyOnce_data()
    {
        addLanguages();
        QTest::newRow("en") << QStringLiteral("en");
    }
    void thePreferencesHaveEachKeyOnce()
    {
        QFETCH(QString, language);
        const Speaks speaks(language);
        const PreferencesWindow preferences(*m_defaults);
        const auto *const pages = preferences.findChild<QTabWidget *>();
        QStringList common;
        for (const auto *const button : preferences.findChild<QDialogButtonBox *>()->buttons())
            common.append(button->text());
        for (int i = 0; i < pages->count(); ++i)
            common.append(pages->tabText(i));
        for (int i = 0; i < pages->count(); ++i)
            QCOMPARE(clashes(common + textsWithKeys(*pages->widget(i))), QStringList());
    }

    void theTabsSpeakTheLanguage()
    {
        const Speaks french(QStringLiteral("fr"));
        open();
        const auto header = [this](Tab tab, const char *column) {
            const TableModel &model = m_window->pane(tab).model();
            return model
                .headerData(model.columnOf(QString::fromLatin1(column)), Qt::Horizontal, Qt::DisplayRole)
                .toString();
        };
        QCOMPARE(header(Tab::Media, "filetype"), QStringLiteral("Type"));
        QCOMPARE(header(Tab::Markers, "out"), QStringLiteral("Durée"));
        showTab(Tab::Media);
        QVERIFY(columnTexts(*m_window, Tab::Media, QStringLiteral("filetype"))
                    .contains(QStringLiteral("Clip audio")));
        QVERIFY(hasLabel(Tab::Media, QStringLiteral("Taille totale\u00a0: ")));
        showTab(Tab::Effects);
        QVERIFY(columnTexts(*m_window, Tab::Effects, QStringLiteral("effectType"))
                    .contains(QStringLiteral("Filtre")));
        showTab(Tab::Markers);
        QVERIFY(
            columnTexts(*m_window, Tab::Markers, QStringLiteral("color")).contains(QStringLiteral("Rouge")));
        // What the user called so is not translated.
        m_window->pane(Tab::Markers)
            .addColumn(
                markerFieldColumn(MarkerKey::customPrefix + QStringLiteral("x"), QStringLiteral("Kind")));
        QCOMPARE(header(Tab::Markers, qPrintable(MarkerKey::customPrefix + QStringLiteral("x"))),
                 QStringLiteral("Kind"));
        QVERIFY(editCell(*m_window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("x")));
        for (QAction *const menu : m_window->menuBar()->actions())
            Q_EMIT menu->menu()->aboutToShow();
        QVERIFY(commandOf(*m_window, QStringLiteral("Annuler Renommer le marqueur")));
        close();
    }

    void filesAndTheLogStayEnglish()
    {
        const QStringList english = filesOfAnEdit();
        QVERIFY(english.join(u'\n').contains(QStringLiteral("Movie Clip")));
        QVERIFY(english.join(u'\n').contains(QStringLiteral("Duration")));
        const Speaks german(QStringLiteral("de"));
        const QStringList files = filesOfAnEdit();
        for (qsizetype i = 0; i < english.size(); ++i)
            QCOMPARE(files.value(i), english[i]);
        QVLog::finishWriting();
        const QString written =
            log() + QString::fromUtf8(contentOf(m_home->path(QStringLiteral("test.plist"))));
        QVERIFY(written.contains(QStringLiteral("Finished populating markers")));
        for (const Message &message : messagesOf(QStringLiteral("de"))) {
            const bool isTelling = message.translation.size() > 12 && !message.translation.contains(u'%') &&
                                   message.translation != message.source;
            QVERIFY2(!isTelling || !written.contains(message.translation), qPrintable(message.translation));
        }
    }

    void thePreferenceIsStored()
    {
        PreferencesWindow preferences(*m_defaults);
        QComboBox *box = nullptr;
        for (QComboBox *const each : preferences.findChildren<QComboBox *>()) {
            if (each->findText(QStringLiteral("Deutsch")) >= 0)
                box = each;
        }
        QVERIFY(box);
        QCOMPARE(box->currentIndex(), 0);
        const int index = box->findText(QStringLiteral("Deutsch"));
        box->setCurrentIndex(index);
        Q_EMIT box->activated(index);
        QCOMPARE(m_defaults->string(Translations::languageKey), QStringLiteral("de"));
        preferences.restoreDefaults();
        QCOMPARE(box->currentIndex(), 0);
        QVERIFY(!m_defaults->value(Translations::languageKey).isValid());
        // It overrides the system's language, whatever that is.
        m_defaults->setValue(Translations::languageKey, QStringLiteral("fr"));
        const Speaks english(QStringLiteral("en")); // removes what is installed here
        Translations::installChosen(*qApp, *m_defaults);
        QCOMPARE(translated("vantrell::MainMenu", QStringLiteral("&File")), QStringLiteral("&Fichier"));
    }

private:
    static void addLanguages()
    {
        QTest::addColumn<QString>("language");
        for (const Translations::Language &language : Translations::languages()) {
            if (language.code != QStringLiteral("en"))
                QTest::newRow(qPrintable(language.code)) << language.code;
        }
    }

    void open()
    {
        m_controller = std::make_unique<AppController>(*m_defaults);
        m_controller->applicationDidFinishLaunching();
        m_controller->openFiles({copySample(m_home->path(QStringLiteral("project")))});
        m_window = m_controller->currentWindow();
        QTRY_COMPARE_WITH_TIMEOUT(m_window->state(), DocumentWindow::State::Ready, 40000);
    }
    void close()
    {
        m_controller.reset();
        QVERIFY(BackgroundWork::waitForAll(std::chrono::seconds(20)));
    }
    void showTab(Tab tab)
    {
        if (tab == Tab::Media)
            m_window->toolbarMedia();
        else if (tab == Tab::Effects)
            m_window->toolbarEffects();
        else
            m_window->toolbarMarkers();
        QTRY_VERIFY(m_window->pane(tab).model().rowCount() > 0);
    }
    bool hasLabel(Tab tab, const QString &start) const
    {
        const QList<QLabel *> labels = m_window->pane(tab).findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
                           [&start](const QLabel *label) { return label->text().startsWith(start); });
    }
    QString log() const
    {
        QString text;
        QDir folder(m_home->path(QStringLiteral(".local/state/Logs/Orvandel")));
        for (const QString &name : folder.entryList(QDir::Files))
            text += QString::fromUtf8(contentOf(folder.filePath(name)));
        return text;
    }

    /// Reports and lists of the sample after an edit and its saving.
    QStringList filesOfAnEdit()
    {
        open();
        showTab(Tab::Markers);
        editCell(*m_window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("renamed"));
        Workbench &workbench = m_window->workbench();
        QStringList files{workbench.document().undoName()};
        for (const Tab tab : {Tab::Media, Tab::Effects, Tab::Markers}) {
            showTab(tab);
            ReportGenerator &report = workbench.reportGenerator();
            report.setPrintTable(tab, workbench.document().rowView(tab).columns());
            for (std::size_t i = 0; i < report.printColumnArray().size(); ++i)
                report.setColumnSelected(i, true);
            QBuffer csv;
            QBuffer page;
            if (csv.open(QIODevice::WriteOnly) && page.open(QIODevice::WriteOnly) && report.writeCSV(csv) &&
                report.writePage(page))
                files << QString::fromUtf8(csv.data()) << QString::fromUtf8(page.data());
            files << report.generateHTMLForPrinting();
        }
        const NoteExporter notes(workbench.document());
        for (const char *const format : {"csv", "markdown", "avid8", "resolve-edl", "json"})
            files << notes.list(QString::fromLatin1(format), workbench.document().markerArray()).text;
        if (!saves(*m_window))
            return {};
        files << QString::fromUtf8(contentOf(m_window->path()));
        close();
        return files;
    }

    std::unique_ptr<TemporaryHome> m_home;
    std::unique_ptr<UserDefaults> m_defaults;
    std::unique_ptr<AppController> m_controller;
    DocumentWindow *m_window = nullptr;
};

int main(int argc, char **argv)
{
    Application application(argc, argv);
    LanguagesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_languages.moc"
