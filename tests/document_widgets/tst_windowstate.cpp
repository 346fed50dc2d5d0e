#include "document/widgets/WindowState.h"

#include <QTest>

#include <functional>

using namespace vantrell;

using Stage = WindowState::Stage;
using Work = WindowState::Work;
using Next = WindowState::Next;
using Changes = WindowState::Changes;
using Purpose = WindowState::Purpose;

class WindowStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Signals of the loader may arrive after the window has been closed.
    void staysClosed()
    {
        WindowState state;
        state.treeLoaded();
        QVERIFY(state.hasTree());
        state.close();
        QVERIFY(!state.hasTree());
        for (const auto &late : {&WindowState::treeLoaded, &WindowState::listsFilled,
                                 &WindowState::loadFailed, &WindowState::load}) {
            (state.*late)();
            QCOMPARE(state.stage(), Stage::Closed);
        }
    }

    void aReloadResetsAllButClosing()
    {
        WindowState state;
        state.treeLoaded();
        state.listsFilled();
        state.begin(Work::Expendable, Next::Revert);
        state.setSending(true);
        state.settle();
        state.ask();
        state.load();
        QCOMPARE(state.stage(), Stage::Loading);
        QVERIFY(!state.isBusy() && !state.isSending());
        QCOMPARE(state.end(), Next::Nothing);
        QCOMPARE(state.changes(), Changes::Kept);
        QCOMPARE(state.takePurpose(), Purpose::Close);
    }

    void whoMayEndWork_data()
    {
        QTest::addColumn<Work>("work");
        QTest::addColumn<bool>("byUser");
        QTest::addColumn<bool>("byClosing");
        QTest::newRow("none") << Work::None << false << false;
        QTest::newRow("fixed") << Work::Fixed << false << false;
        QTest::newRow("cancellable") << Work::Cancellable << true << false;
        QTest::newRow("expendable") << Work::Expendable << true << true;
    }
    void whoMayEndWork()
    {
        QFETCH(Work, work);
        WindowState state;
        state.begin(work);
        QTEST(state.isCancellable(), "byUser");
        QTEST(state.isExpendable(), "byClosing");
        state.makeFixed();
        QCOMPARE(state.isBusy(), work != Work::None); // an import that was cancelled reports no progress
        QVERIFY(!state.isCancellable());
    }

    /// Closing takes precedence over a revert that waits, and what follows happens once.
    void closesAfterWork()
    {
        WindowState state;
        state.begin(Work::Expendable, Next::Revert);
        state.closeWhenIdle();
        QCOMPARE(state.end(), Next::Close);
        QCOMPARE(state.end(), Next::Nothing);
        state.begin(Work::Expendable, Next::Revert);
        QCOMPARE(state.end(), Next::Revert);
        state.begin(Work::Fixed);
        QCOMPARE(state.end(), Next::Nothing);
    }

    void decidesAboutChanges_data()
    {
        using Steps = std::function<void(WindowState &)>;
        QTest::addColumn<Steps>("steps");
        QTest::addColumn<Changes>("changes");
        QTest::addColumn<bool>("isForClosing"); // the save that ends afterwards
        const auto add = [](const char *name, const Steps &steps, Changes changes, bool isForClosing) {
            QTest::newRow(name) << steps << changes << isForClosing;
        };
        add(
            "a plain save", [](WindowState &) {}, Changes::Kept, false);
        add(
            "the question alone", [](WindowState &s) { s.ask(); }, Changes::Asking, false);
        add(
            "save", [](WindowState &s) { s.ask(), s.answerSave(); }, Changes::Saving, true);
        add(
            "saved without a question", [](WindowState &s) { s.saveForClosing(); }, Changes::Saving, true);
        add(
            "asked again during a send", [](WindowState &s) { s.saveForClosing(), s.ask(); },
            Changes::AskingWhileSaving, true);
        add(
            "saved while the question shows", [](WindowState &s) { s.ask(), s.saveForClosing(); },
            Changes::AskingWhileSaving, true);
        add(
            "cancelled or given up during a save",
            [](WindowState &s) { s.saveForClosing(), s.ask(), s.endQuestion(); }, Changes::Kept, false);
    }
    void decidesAboutChanges()
    {
        QFETCH(std::function<void(WindowState &)>, steps);
        QFETCH(Changes, changes);
        QFETCH(bool, isForClosing);
        WindowState state;
        steps(state);
        QCOMPARE(state.changes(), changes);
        const bool isAsking = changes == Changes::Asking || changes == Changes::AskingWhileSaving;
        QCOMPARE(state.saveEnded(), isForClosing);
        QVERIFY(!state.saveEnded());      // only once
        QCOMPARE(state.ask(), !isAsking); // no second question
    }

    void settlesOnce()
    {
        WindowState state;
        state.settle();
        state.ask();
        state.answerSave();
        QCOMPARE(state.takePurpose(), Purpose::Settle);
        QCOMPARE(state.takePurpose(), Purpose::Close);
    }
};

QTEST_GUILESS_MAIN(WindowStateTest)
#include "tst_windowstate.moc"
