#include "CapturedStandardError.h"
#include "TemporaryHome.h"

#include "support/files/PropertyList.h"
#include "support/files/StandardFolders.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <array>
#include <condition_variable>
#include <mutex>
#include <stdexcept>
#include <thread>

using namespace vantrell;

namespace
{

const QString logs = QStringLiteral(".local/state/Logs/Orvandel");

QString logPath(const TemporaryHome &home, const QString &name, int number = 1)
{
    return home.path(QStringLiteral("%1/%2.%3.log").arg(logs, name).arg(number));
}

/// The texts of the dated lines of a log file, in order.
QStringList textsOf(const QString &path)
{
    static const QRegularExpression line(
        QStringLiteral("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d \\+0000 - (.*)$"),
        QRegularExpression::MultilineOption);
    QStringList texts;
    QRegularExpressionMatchIterator matches = line.globalMatch(QString::fromUtf8(contentOf(path)));
    while (matches.hasNext())
        texts.append(matches.next().captured(1));
    return texts;
}

/// Holds a thread up until it is opened.
class Gate
{
public:
    void wait()
    {
        std::unique_lock lock(m_mutex);
        m_isReached = true;
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return m_isOpen; });
    }

    void waitUntilReached()
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_isReached; });
    }

    void open()
    {
        const std::lock_guard lock(m_mutex);
        m_isOpen = true;
        m_changed.notify_all();
    }

private:
    std::mutex m_mutex; // guards the members below
    std::condition_variable m_changed;
    bool m_isReached = false;
    bool m_isOpen = false;
};

Gate *gate = nullptr;
const std::thread::id testThread = std::this_thread::get_id();

/// The super-user on the test's own thread; on the log's thread an ordinary user, behind the gate.
unsigned gatedUserId()
{
    if (std::this_thread::get_id() == testThread)
        return 0;
    gate->wait();
    return 1000;
}

/// Runs this program again in a role of main() below.
struct Run {
    explicit Run(const char *role)
    {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(role)});
        if (process.waitForFinished(40000))
            output = process.readAllStandardError();
        exitedNormally = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    }

    QByteArray output;
    bool exitedNormally = false;
};

} // namespace

class TestLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVLog::willTerminate(); }

    void formats_data()
    {
        QTest::addColumn<QString>("result");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *tag, const QString &result, const char *expected) {
            QTest::newRow(tag) << result << QString::fromUtf8(expected);
        };
        const QStringList list{QStringLiteral("a"), QStringLiteral("b")};
        row("texts", formatText(u"%@/%s|%@", QStringLiteral("ä"), "c", list), "ä/c|(a, b)");
        row("wide", formatText(u"%li %ld %lu", -5000000000LL, 7, 18446744073709551615ULL),
            "-5000000000 7 18446744073709551615");
        row("narrow", formatText(u"%i %i %u", 4294967295LL, 4294967298ULL, -1), "-1 2 4294967295");
        row("decimals", formatText(u"%0.2f %f %.0f %07.1f", 2.345678, 1, 0.6, -3.25),
            "2.35 1.000000 1 -0003.2");
        row("character", formatText(u"%C%C", u'é', 65), "éA");
        row("padding", formatText(u"%02i:%02li:%5i", 7, 123, -4), "07:123:   -4");
        row("percent", formatText(u"100%% %i%", 5), "100% 5%");
        row("too few", formatText(u"%@ %li %@", QStringLiteral("%@")), "%@ %li %@");
        row("unknown", formatText(u"%q %d %-5i %1$@ %", 3), "%q 3 %-5i %1$@ %");
        row("wrong types", formatText(u"%i %@ %f %C %s", QStringLiteral("x"), 1.5, list, 0.5, u'y'),
            "x 1.5 (a, b) 0.5 y");
        row("huge width", QString::number(formatText(u"%999999999999i", 1).size() < 1000), "1");
        row("null", formatText(u"[%s][%@]", static_cast<const char *>(nullptr), QString()), "[(null)][]");
    }

    void formats()
    {
        QFETCH(QString, result);
        QTEST(result, "expected");
    }

    void writesHeaderAndLines()
    {
        const TemporaryHome home;
        QCoreApplication::setApplicationVersion(QStringLiteral("1.2.3"));
        QVLog::createNewLog(QStringLiteral("demo"), true);
        QVLog::createNewLog(QStringLiteral("other"), true); // the first name stays
        QVLog::appendLog(u" \n\t ");
        QVLog::appendLog(QStringView());
        QVLog::appendLog(u"  trimmed %@, %li of %i \n", QStringLiteral("grün"), 3, 4);
        QVLog::appendLog(u"50% done, 100%. %@: %0.2f%; 5%-7% + 1%+ a%!", QStringLiteral("x"), 0.5);
        QVLog::appendLog(u"50%% done");
        QVLog::appendLogAndDebugPrint(u"  %@ ", QStringLiteral("debug"));
        QVLog::fastAppendLog(u"%@", QStringLiteral("no %li conversion"));
        QVLog::finishWriting();

        const QList<QByteArray> header = contentOf(logPath(home, QStringLiteral("demo"))).split('\n');
        static const QRegularExpression started(
            QStringLiteral("^Log started: \\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d \\+0000$"));
        static const QRegularExpression system(
            QStringLiteral("^System: .+, [1-9]\\d* CPU\\(s\\), \\d+\\.\\d\\d GB RAM$"));
        QVERIFY(started.match(QString::fromUtf8(header.value(0))).hasMatch());
        QCOMPARE(header.value(1), QByteArray("Version: 1.2.3"));
        QCOMPARE(header.value(2), "Path: " + QFile::encodeName(QCoreApplication::applicationFilePath()));
        QVERIFY(system.match(QString::fromUtf8(header.value(3))).hasMatch());
        QCOMPARE(header.value(4), QByteArray("Running in 64-bit mode"));
        const QStringList expected{QStringLiteral("trimmed grün, 3 of 4"),
                                   QStringLiteral("50% done, 100%. x: 0.50%; 5%-7% + 1%+ a%!"),
                                   QStringLiteral("50% done"), QStringLiteral("debug"),
                                   QStringLiteral("no %li conversion")};
        QCOMPARE(textsOf(logPath(home, QStringLiteral("demo"))), expected);
        QCOMPARE(QVLog::availableLogs(), QStringList({logPath(home, QStringLiteral("demo"), 1),
                                                      logPath(home, QStringLiteral("demo"), 2)}));
    }

    void echoes()
    {
        const TemporaryHome home;
        for (const bool noPrinting : {false, true}) {
            CapturedStandardError console;
            QVLog::createNewLog(QStringLiteral("echo"), noPrinting);
            QVLog::appendLog(u"silent");
            QVLog::appendLogAndPrint(u" %@: 50%x \n", QStringLiteral("a%@b"));
            const QString logged = QVException::logException(std::runtime_error("bad %i"), "-[Some method:]");
            QCOMPARE(logged, QStringLiteral("Exception in -[Some method:]. std::runtime_error - bad %i."));
            QVERIFY(!guarded("f()", [] { throw 1; }));
            QVERIFY(guarded("g()", [] {}));
            QVLog::finishWriting();
            QCOMPARE(console.text(),
                     noPrinting ? QByteArray()
                                : QByteArray("ab: 50%%x\n"
                                             "Exception in -[Some method:]. std::runtime_error - bad %%i.\n"
                                             "Exception in f(). int - no reason given.\n"));
            QCOMPARE(textsOf(logPath(home, QStringLiteral("echo"))),
                     QStringList({QStringLiteral("silent"), QStringLiteral("a%@b: 50%x"), logged,
                                  QStringLiteral("Exception in f(). int - no reason given.")}));
        }
    }

    void rotates()
    {
        const TemporaryHome home;
        for (int start = 1; start <= 7; ++start) {
            QVLog::createNewLog(QStringLiteral("turn"), true);
            QVLog::appendLog(u"start %i", start);
            QVLog::finishWriting();
        }
        QCOMPARE(QVLog::availableLogs().size(), 5);
        QCOMPARE(QDir(home.path(logs)).entryList(QDir::Files).size(), 5);
        for (int number = 1; number <= 5; ++number)
            QCOMPARE(textsOf(logPath(home, QStringLiteral("turn"), number)),
                     QStringList(QStringLiteral("start %1").arg(8 - number)));

        // A file that cannot be moved: the lines go on in the old current file.
        QVERIFY(QFile::remove(logPath(home, QStringLiteral("turn"), 5)));
        home.addFile(logs + QStringLiteral("/turn.5.log/in the way"), "");
        CapturedStandardError console;
        QVLog::createNewLog(QStringLiteral("turn"), false);
        QVLog::appendLog(u"still here");
        QVLog::finishWriting();
        QCOMPARE(console.text(), QFile::encodeName(QStringLiteral("Unable to move file %1 to %2.\n")
                                                       .arg(logPath(home, QStringLiteral("turn"), 4),
                                                            logPath(home, QStringLiteral("turn"), 5))));
        QCOMPARE(textsOf(logPath(home, QStringLiteral("turn"))),
                 QStringList({QStringLiteral("start 7"), QStringLiteral("still here")}));
    }

    void worksWithoutAFolder()
    {
        const TemporaryHome home;
        home.addFile(QStringLiteral(".local/state/Logs"), "a file where the folder should be");
        for (const bool noPrinting : {false, true}) {
            CapturedStandardError console;
            QVLog::createNewLog(QStringLiteral("none"), noPrinting);
            QVLog::appendLog(u"lost");
            QVLog::finishWriting();
            QVERIFY(QVLog::availableLogs().isEmpty());
            const QByteArray expected = "Unable to create folder " + QFile::encodeName(home.path(logs)) +
                                        ".\nUnable to log the following information: lost\n"
                                        "Unable to open log for output\n";
            QCOMPARE(console.text(), noPrinting ? QByteArray() : expected);
        }
    }

    void superUserWritesInTheSystemLibrary()
    {
        const TemporaryHome home;
        QVLog::createNewLog(QStringLiteral("su"), true);
        QVLog::appendLog(u"user");
        QVLog::finishWriting();
        QVLog::setUserIdFunction([] { return 0U; });
        const QString systemFile = home.path(QStringLiteral("var/Logs/Orvandel/su.1.log"));
        CapturedStandardError console;
        QVLog::createNewLog(QStringLiteral("su"), false);
        QVLog::appendLog(u"lost");
        QVLog::appendLog(u"as well");
        QVLog::finishWriting();
        QVERIFY(
            console.text().startsWith("Unable to create log file " + QFile::encodeName(systemFile) + " - "));
        QCOMPARE(console.text().count('\n'), 1); // said once, not with every line
        QVERIFY(QDir().mkpath(QFileInfo(systemFile).path()));
        for (int i = 0; i < 2; ++i) {
            QVLog::createNewLog(QStringLiteral("su"), true);
            QVLog::appendLog(u"super %i", i);
            QVLog::finishWriting();
        }
        // The user's file moved once, the super-user's is made anew each time.
        QCOMPARE(textsOf(systemFile), QStringList(QStringLiteral("super 1")));
        QCOMPARE(QVLog::availableLogs(), QStringList(logPath(home, QStringLiteral("su"), 2)));
        QCOMPARE(textsOf(logPath(home, QStringLiteral("su"), 2)), QStringList(QStringLiteral("user")));
        QVERIFY(!QFileInfo::exists(home.path(QStringLiteral("var/Logs/Orvandel/su.2.log"))));
    }

    void startsAnewAtTheLimit()
    {
        const TemporaryHome home;
        QVLog::createNewLog(QStringLiteral("limit"), true);
        // 25 bytes of date, 3 of separator, a line end and 971 of text: the 5000th line meets the limit.
        const QString filling(971 - 5, u'x');
        for (int i = 0; i < 4999; ++i)
            QVLog::appendLog(QStringLiteral("%1").arg(i, 5, 10, QLatin1Char('0')) + filling);
        QVLog::finishWriting();
        QVERIFY(!QFileInfo::exists(logPath(home, QStringLiteral("limit"), 2)));
        for (int i = 4999; i < 5100; ++i)
            QVLog::appendLog(QStringLiteral("%1").arg(i, 5, 10, QLatin1Char('0')) + filling);
        QVLog::finishWriting();
        const QStringList old = textsOf(logPath(home, QStringLiteral("limit"), 2));
        QStringList all = old + textsOf(logPath(home, QStringLiteral("limit")));
        QVERIFY(old.size() >= 5000);
        QCOMPARE(all.removeAll(QStringLiteral("Log truncated at 500KB")), 1);
        QCOMPARE(all.size(), 5100);
        for (int i = 0; i < all.size(); ++i)
            QCOMPARE(all[i].left(5).toInt(), i);
        QVERIFY(contentOf(logPath(home, QStringLiteral("limit"))).startsWith("Log started: "));
        QVERIFY(!QFileInfo::exists(logPath(home, QStringLiteral("limit"), 3)));
    }

    void threadsKeepTheirOrder()
    {
        const TemporaryHome home;
        QVLog::createNewLog(QStringLiteral("threads"), true);
        constexpr int threadCount = 4;
        constexpr int lineCount = 500;
        std::vector<std::thread> threads;
        threads.reserve(threadCount);
        for (int thread = 0; thread < threadCount; ++thread) {
            threads.emplace_back([thread] {
                for (int i = 0; i < lineCount; ++i) {
                    if (i % 2 == 0)
                        QVLog::appendLog(u"%i %i", thread, i);
                    else
                        QVLog::fastAppendLog(u"%i %i", thread, i);
                }
            });
        }
        QVLog::createNewLog(QStringLiteral("threads"), true);
        for (std::thread &thread : threads)
            thread.join();
        bool isThereAtOnce = false;
        std::thread([&] {
            QVLog::finishWriting();
            QVLog::appendLog(u"short");
            isThereAtOnce = contentOf(logPath(home, QStringLiteral("threads"))).endsWith(" - short\n");
        }).join();
        QVERIFY(isThereAtOnce);
        const QStringList texts = textsOf(logPath(home, QStringLiteral("threads"), 2)) +
                                  textsOf(logPath(home, QStringLiteral("threads")));
        QCOMPARE(texts.size(), threadCount * lineCount + 1);
        std::array<int, threadCount> next = {};
        for (const QString &text : texts.first(texts.size() - 1)) {
            const QStringList parts = text.split(u' ');
            QCOMPARE(parts.value(1).toInt(), next.at(parts.value(0).toUInt())++);
        }
    }

    void terminates_data()
    {
        QTest::addColumn<int>("pending");
        QTest::addColumn<int>("written");
        QTest::newRow("ten are written") << 10 << 10;
        QTest::newRow("eleven are dropped") << 11 << 1; // all but the one at work
    }

    void terminates()
    {
        QFETCH(int, pending);
        QFETCH(int, written);
        const TemporaryHome home;
        Gate ownGate;
        gate = &ownGate;
        QVLog::setUserIdFunction(gatedUserId);
        QVLog::createNewLog(QStringLiteral("end"), true); // no file: the system's folder is missing
        const QString path = home.addFile(logs + QStringLiteral("/end.1.log"), "");
        for (int i = 0; i < pending; ++i)
            QVLog::appendLog(u"line %i", i);
        ownGate.waitUntilReached();
        std::thread opener([&ownGate] {
            std::this_thread::sleep_for(std::chrono::milliseconds(400));
            ownGate.open();
        });
        QVLog::willTerminate();
        opener.join();
        QCOMPARE(textsOf(path).size(), written);

        QVLog::appendLog(u"too late");
        QVLog::finishWriting();
        QVLog::willTerminate();
        QCOMPARE(textsOf(path).size(), written);
        QVLog::setUserIdFunction([] { return 1000U; });
        QVLog::createNewLog(QStringLiteral("again"), true); // the name was given up
        QVLog::appendLog(u"back");
        QVLog::finishWriting();
        QCOMPARE(textsOf(logPath(home, QStringLiteral("again"))), QStringList(QStringLiteral("back")));
    }

    void endOfTheProcess_data()
    {
        QTest::addColumn<QByteArray>("role");
        QTest::addColumn<bool>("isNormal");
        QTest::addColumn<QString>("lastText");
        QTest::newRow("end of main") << QByteArray("return") << true << QStringLiteral("last words");
        QTest::newRow("application quits") << QByteArray("quit") << true << QStringLiteral("last words");
        QTest::newRow("after a full file") << QByteArray("fill") << true << QStringLiteral("last words");
        QTest::newRow("uncaught exception") << QByteArray("throw") << false << QStringLiteral("boom 5% off");
    }

    void endOfTheProcess()
    {
        QFETCH(QByteArray, role);
        const TemporaryHome home;
        const Run run(role.constData());
        QTEST(run.exitedNormally, "isNormal");
        const QString path = logPath(home, QStringLiteral("child"));
        QTEST(textsOf(path).value(1), "lastText");
        QCOMPARE(textsOf(path).size(), 2);
    }

    void switchedOff_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("isOff");
        QTest::newRow("text 1") << QVariant(QStringLiteral("1")) << true;
        QTest::newRow("number 1") << QVariant(1) << true;
        QTest::newRow("true") << QVariant(true) << true;
        QTest::newRow("text YES") << QVariant(QStringLiteral("YES")) << false;
        QTest::newRow("number 2") << QVariant(2) << false;
        QTest::newRow("false") << QVariant(false) << false;
        QTest::newRow("absent") << QVariant() << false;
    }

    void switchedOff()
    {
        QFETCH(QVariant, value);
        QFETCH(bool, isOff);
        const TemporaryHome home;
        QVERIFY(PropertyList::toFile(QVariantMap{{QStringLiteral("disable-logging"), value}},
                                     StandardFolders::preferences() +
                                         QStringLiteral("/com.orvandel.global.plist")));
        const Run run("return");
        QVERIFY(run.exitedNormally);
        QCOMPARE(run.output, isOff ? QByteArray("Logging is disabled\n") : QByteArray());
        QCOMPARE(QFileInfo::exists(home.path(logs)), !isOff);
    }
};

namespace
{

/// What the program does when a test runs it again: it has one line in its log and ends in some way.
int runRole(QCoreApplication &application, const QByteArray &role)
{
    QVLog::setUserIdFunction([] { return 1000U; });
    QVLog::createNewLog(QStringLiteral("child"));
    if (role == "fill") {
        QVLog::appendLog(QString(5'000'000, u'x'));
        QVLog::finishWriting();
    } else {
        QVLog::appendLog(u"first words");
    }
    if (role == "throw")
        throw std::runtime_error("boom 5% off");
    if (role == "quit") {
        QObject::connect(&application, &QCoreApplication::aboutToQuit, &application,
                         [] { QVLog::appendLog(u"too late"); });
        QMetaObject::invokeMethod(&application, &QCoreApplication::quit, Qt::QueuedConnection);
        QVLog::appendLog(u"last words");
        return QCoreApplication::exec();
    }
    QVLog::appendLog(u"last words");
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QByteArray role = argc == 2 ? QByteArray(argv[1]) : QByteArray();
    if (role == "return" || role == "quit" || role == "throw" || role == "fill")
        return runRole(application, role);
    TestLog test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_log.moc"
