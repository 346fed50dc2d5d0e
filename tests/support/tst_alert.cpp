#include "support/alerts/HeadlessAlertPresenter.h"
#include "support/alerts/QVAlert.h"
#include "support/log/QVLog.h"
#include "support/threads/MainThread.h"
#include "tests/support/CapturedStandardError.h"
#include "tests/support/ScriptedAlertPresenter.h"
#include "tests/support/TemporaryHome.h"

#include <QElapsedTimer>
#include <QTest>

#include <atomic>
#include <functional>
#include <memory>
#include <stdexcept>
#include <thread>

using namespace vantrell;
using namespace std::chrono_literals;

namespace
{

constexpr int Nothing = -100;

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

/// An alert raised on a thread of its own, while the test is the main thread.
class Raised
{
public:
    explicit Raised(std::function<int()> call)
        : m_thread([this, call = std::move(call)] {
            m_code = call();
            m_returned = true;
            MainThread::wake();
        })
    {
    }
    ~Raised() { m_thread.join(); }

    bool hasReturned() const { return m_returned; }

    /// What the call gave back; Nothing when it does not return.
    int code()
    {
        return MainThread::drainUntil([this] { return m_returned.load(); }, 5s) ? m_code : Nothing;
    }

private:
    int m_code = Nothing;
    std::atomic<bool> m_returned = false;
    std::thread m_thread;
};

int ask(AlertParent *parent, AlertDelegate *delegate = nullptr, const QString &selector = {},
        bool block = true, const std::shared_ptr<QVAlert> &object = nullptr)
{
    return QVAlert::alertSheetWithMessageText(text("Remove?"), text("Remove"), text("Cancel"), text("Other"),
                                              text(""), parent, delegate, selector, block, object);
}

class RecordingDelegate : public AlertDelegate
{
public:
    bool respondsTo(const QString &selector) const override { return selector == text("ended:"); }
    void perform(const QString &selector, QVAlert *, int code) override
    {
        calls.push_back(selector + QString::number(code));
        throw std::runtime_error("in a delegate"); // harms nobody
    }

    QStringList calls;
};

} // namespace

class TestAlert : public QObject
{
    Q_OBJECT

    TemporaryHome m_home;
    std::shared_ptr<ScriptedAlertPresenter> m_presenter;

    bool waitUntilShown(std::size_t count)
    {
        return MainThread::drainUntil([&] { return m_presenter->shown().size() == count; }, 5s);
    }

private Q_SLOTS:
    void initTestCase() { QVLog::createNewLog(text("Test"), true); }
    void init()
    {
        m_presenter = std::make_shared<ScriptedAlertPresenter>();
        QVAlert::setPresenter(m_presenter);
    }
    void cleanup() { QVAlert::setPresenter(nullptr); }

    void waitingCallsReturnTheAnswer()
    {
        for (const int code : {1, 0, -1}) {
            m_presenter->queueEvent([&] { m_presenter->answerOpenAlert(code); });
            QCOMPARE(ask(nullptr), code); // the main thread dispatches the event itself

            const std::size_t count = m_presenter->shown().size();
            Raised raised([] { return ask(nullptr); });
            QVERIFY(waitUntilShown(count + 1));
            QVERIFY(!raised.hasReturned());
            QVERIFY(m_presenter->answerOpenAlert(code));
            QCOMPARE(raised.code(), code);

            // Whatever delegate, selector and flag this form is given; answered before it is on the screen.
            RecordingDelegate delegate;
            m_presenter->queueAnswer(code);
            QCOMPARE(QVAlert::alertSheetWithMessageText(text("Q"), text("A"), text("B"), {}, {}, nullptr,
                                                        &delegate, text("unknown:"), false),
                     code);
            QVERIFY(delegate.calls.isEmpty());
            QCOMPARE(m_presenter->openCount(), 0);
        }
    }

    void descriptionHoldsWhatWasGiven()
    {
        const QString selector = text("alertDidEnd:returnCode:contextInfo:");
        m_presenter->queueAnswer(1);
        QVAlert::alertSheetWithMessageText(text("100 %@"), text("%i and 50% of %1"), nullptr);
        m_presenter->queueAnswer(1);
        QVAlert::alertSheetWithMessageText({}, text("Yes"), {}, text("Maybe"), {}, nullptr, nullptr, {}, true,
                                           nullptr, text("hideThis"));
        const AlertDescription plain{{text("messageText"), text("100 %@")},
                                     {text("informativeText"), text("%i and 50% of %1")},
                                     {text("didEndSelector"), selector}};
        const AlertDescription full{{text("messageText"), text("")},
                                    {text("informativeText"), text("")},
                                    {text("defaultButtonTitle"), text("Yes")},
                                    {text("otherButtonTitle"), text("Maybe")},
                                    {text("suppressionBinding"), text("hideThis")},
                                    {text("didEndSelector"), selector}};
        QCOMPARE(m_presenter->shown().at(0).description, plain);
        QCOMPARE(m_presenter->shown().at(1).description, full);
    }

    void windowThatCarriesASheetGetsNoSecond()
    {
        AlertParent free;
        AlertParent busy;
        m_presenter->setForeignSheet(&busy);
        for (AlertParent *parent : {&free, &busy}) {
            m_presenter->queueAnswer(1);
            ask(parent);
        }
        QCOMPARE(m_presenter->shown().at(0).parent, &free);
        QCOMPARE(m_presenter->shown().at(1).parent, nullptr);
        QCOMPARE(m_presenter->broughtToFront(), std::vector<AlertParent *>{&free});
    }

    void callThatDoesNotWaitIsAnsweredLater()
    {
        RecordingDelegate delegate;
        QCOMPARE(ask(nullptr, &delegate, text("ended:"), false), -1);
        QVERIFY(delegate.calls.isEmpty());
        QVERIFY(m_presenter->answerOpenAlert(0));
        QCOMPARE(delegate.calls, QStringList{text("ended:0")});

        const auto object = QVAlert::create();
        QCOMPARE(ask(nullptr, nullptr, {}, false, object), -1);
        QVERIFY(!object->alertEnded());
        QVERIFY(m_presenter->answerOpenAlert(0));
        QVERIFY(object->alertEnded());
        object->defaultReturnAfterTimeInterval(0); // too late
        QCOMPARE(object->returnCode(), 0);
    }

    void waitingCallWithADelegateEndsWhenSomebodySaysSo()
    {
        RecordingDelegate delegate;
        const auto object = QVAlert::create();
        Raised raised([&] { return ask(nullptr, &delegate, text("ended:"), true, object); });
        QVERIFY(waitUntilShown(1));
        QVERIFY(m_presenter->answerOpenAlert(0));
        QCOMPARE(delegate.calls, QStringList{text("ended:0")});
        QVERIFY(!MainThread::drainUntil([&] { return raised.hasReturned(); }, 250ms));
        object->setReturnCode(7);
        object->setAlertEnded(true);
        QCOMPARE(raised.code(), 7);
    }

    void delegateMustRespond()
    {
        RecordingDelegate delegate;
        CapturedStandardError standardError;
        QCOMPARE(ask(nullptr, &delegate, text("closed:")), -1);
        QCOMPARE(ask(nullptr, &delegate), -1);
        QCOMPARE(ask(nullptr, nullptr, text("ended:")), -1);
        QVERIFY(m_presenter->shown().empty());
        const QByteArray line("Alert error: delegate does not respond to selector ");
        QCOMPARE(standardError.text(),
                 line + "closed:\n" + line + "alertDidEnd:returnCode:contextInfo:\n" + line + "ended:\n");
    }

    void timedAlert_data()
    {
        QTest::addColumn<double>("interval");
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("code");
        QTest::newRow("nobody answers") << 0.05 << Nothing << 1;
        QTest::newRow("over before it begins") << -5.0 << Nothing << 1;
        QTest::newRow("answered with the alternate button") << 60.0 << 0 << 0;
        QTest::newRow("answered with the other button") << 1e300 << -1 << -1;
    }

    void timedAlert()
    {
        QFETCH(double, interval);
        QFETCH(int, answer);
        const auto call = [&] {
            return QVAlert::timedAlertSheetWithMessageText(text("Q"), text("A"), text("B"), {}, {}, nullptr,
                                                           interval);
        };
        QElapsedTimer timer;
        timer.start();
        if (answer != Nothing)
            m_presenter->queueEvent([&] { m_presenter->answerOpenAlert(answer); });
        QTEST(call(), "code");
        QVERIFY(answer != Nothing || static_cast<double>(timer.elapsed()) >= interval * 1000);
        if (answer != Nothing)
            m_presenter->queueAnswer(answer);
        Raised raised(call);
        QTEST(raised.code(), "code");
        QCOMPARE(m_presenter->openCount(), 0);
    }

    void intervalMayEndBeforeTheAlertIsRaised()
    {
        const auto object = QVAlert::create();
        object->defaultReturnAfterTimeInterval(0);
        QCOMPARE(ask(nullptr, nullptr, {}, true, object), 1);
        m_presenter->queueAnswer(0);
        QCOMPARE(ask(nullptr, nullptr, {}, true, object), 0); // once only
    }

    void closingAWindowAnswersItsAlerts()
    {
        AlertParent closing;
        AlertParent staying;
        RecordingDelegate delegate;
        Raised asked([&] { return ask(&closing); });
        QVERIFY(waitUntilShown(1));
        // The second is shown on its own, for the window carries a sheet; it belongs to it all the same.
        Raised withDelegate([&] { return ask(&closing, &delegate, text("ended:")); });
        QVERIFY(waitUntilShown(2));
        QCOMPARE(m_presenter->shown().at(1).parent, nullptr);
        QVERIFY(m_presenter->answerOpenAlert(0)); // its caller waits on
        Raised other([&] { return ask(&staying); });
        QVERIFY(waitUntilShown(3));

        QVAlert::closeAlertsForParent(&closing);
        QCOMPARE(asked.code(), -1);
        QCOMPARE(withDelegate.code(), -1);
        QCOMPARE(delegate.calls, QStringList{text("ended:0")});
        QVERIFY(!other.hasReturned());
        QCOMPARE(m_presenter->openCount(), 1);
        Raised late([&] { return ask(&closing); });
        QCOMPARE(late.code(), -1);
        QCOMPARE(m_presenter->shown().size(), std::size_t(3));
        QVERIFY(m_presenter->answerOpenAlert(1));
        QCOMPARE(other.code(), 1);
    }

    void closeAllAnswersEveryAlertButThoseAnswered()
    {
        RecordingDelegate delegate;
        ask(nullptr, &delegate, text("ended:"), false);
        const auto answered = QVAlert::create();
        m_presenter->queueAnswer(1);
        Raised first([&] { return ask(nullptr, nullptr, {}, true, answered); });
        while (!answered->alertEnded())
            MainThread::drain(); // its caller has yet to take the alert off the screen
        QVAlert::closeAll();
        QCOMPARE(first.code(), 1);
        QCOMPARE(delegate.calls, QStringList{text("ended:-1")});
        QCOMPARE(m_presenter->openCount(), 0);
        m_presenter->queueEvent([] { QVAlert::closeAll(); });
        QCOMPARE(ask(nullptr), -1); // closed while the main thread itself waits
    }

    void aWaitThatCanBeGivenUp()
    {
        AlertParent parent;
        const auto gate = std::make_shared<MainThreadGate>();
        const auto raise = [&](const std::function<bool()> &isGivenUp) {
            return [&parent, gate, isGivenUp] {
                showAlertUntil(text("M"), text("I"), &parent, gate, isGivenUp);
                return 1;
            };
        };
        {
            Raised raised(raise({}));
            QVERIFY(waitUntilShown(1));
            QVERIFY(!raised.hasReturned());
            QCOMPARE(m_presenter->shown()[0].parent, &parent);
            m_presenter->answerOpenAlert(1);
            QCOMPARE(raised.code(), 1);
        }
        {
            std::atomic<bool> isGivenUp = false;
            Raised raised(raise([&isGivenUp] { return isGivenUp.load(); }));
            QVERIFY(waitUntilShown(2));
            isGivenUp = true;
        } // the main thread waits for it and does nothing else
        MainThread::drain();
        QCOMPARE(m_presenter->openCount(), 0);
        m_presenter->queueAnswer(1);
        raise({})(); // on the main thread
        QCOMPARE(m_presenter->shown().size(), std::size_t(3));
        {
            Raised raised(raise({}));
            QVERIFY(waitUntilShown(4));
            gate->close();
        }
        MainThread::drain();
        QCOMPARE(m_presenter->openCount(), 0);
        raise({})(); // not shown any more
        QCOMPARE(m_presenter->shown().size(), std::size_t(4));
    }

    void alertThatCannotBeShownAnswersAtOnce()
    {
        m_presenter->refuseToShow();
        QCOMPARE(ask(nullptr), -1);
        QVAlert::setPresenter(nullptr);
        Raised raised([] { return ask(nullptr); });
        QCOMPARE(raised.code(), -1);
    }

    void headless_data()
    {
        QTest::addColumn<QString>("alternate");
        QTest::addColumn<QString>("other");
        QTest::addColumn<QString>("informative");
        QTest::addColumn<bool>("assumeYes");
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("line");
        const QString none;
        QTest::newRow("plain") << none << none << text("100%.") << false << 1 << QByteArray("M: 100%.\n");
        QTest::newRow("plain, one text") << none << none << none << false << 1 << QByteArray("M\n");
        QTest::newRow("question") << text("Cancel") << none << text("") << false << 0 << QByteArray("M\n");
        QTest::newRow("third button")
            << none << text("More") << text("I") << false << 0 << QByteArray("M: I\n");
        QTest::newRow("yes") << text("Cancel") << text("More") << none << true << 1 << QByteArray("M\n");
    }

    void headless()
    {
        QFETCH(QString, alternate);
        QFETCH(QString, other);
        QFETCH(QString, informative);
        QFETCH(bool, assumeYes);
        QFETCH(int, code);
        QFETCH(QByteArray, line);
        const auto presenter = std::make_shared<HeadlessAlertPresenter>(assumeYes);
        QVAlert::setPresenter(presenter);
        CapturedStandardError standardError;
        Raised raised([&] {
            return QVAlert::alertSheetWithMessageText(text("M"), text("Go"), alternate, other, informative,
                                                      nullptr, true);
        });
        QCOMPARE(raised.code(), code);
        QCOMPARE(standardError.text(), line);
        QVLog::finishWriting();
        QVERIFY(contentOf(QVLog::availableLogs().value(0)).endsWith(" - " + line));
        QVAlert::alertSheetWithMessageText(text("Plain"), {}, nullptr); // takes no refusal back
        QCOMPARE(presenter->questionRefused(), code == 0);
    }

    /// The button that goes ahead is the other one then.
    void answersAQuestionThatDefaultsToCancel()
    {
        for (const bool assumeYes : {false, true}) {
            const auto presenter = std::make_shared<HeadlessAlertPresenter>(assumeYes);
            QVAlert::setPresenter(presenter);
            const CapturedStandardError standardError;
            Raised raised([] {
                return QVAlert::alertSheetWithMessageText(text("M"), text("Cancel"), text("Go"), {}, {},
                                                          nullptr, true);
            });
            QCOMPARE(raised.code(), assumeYes ? 0 : 1);
            QCOMPARE(presenter->questionRefused(), !assumeYes);
        }
    }
};

QTEST_GUILESS_MAIN(TestAlert)
#include "tst_alert.moc"
