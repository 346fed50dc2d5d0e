#pragma once

#include <utility>

namespace vantrell
{

/// What a document window is doing, and what it does next. Four small state machines run side by side:
///
///   stage     of the document
///             any      → Loading   load()           a file is opened or reloaded; resets the other machines
///             Loading  → Listing   treeLoaded()     the project has been read, its rows are being collected
///             Listing  → Ready     listsFilled()    the project may be edited
///             Loading  → Failed    loadFailed()
///             any      → Closed    close()          final; every later transition is ignored
///
///   work      that has the project to itself
///             None     → any       begin()
///             any      → Fixed     makeFixed()      from here on it runs to its end
///             any      → None      end()            returns what follows
///
///   next      after the work
///             Nothing  → Revert    begin(Expendable, Revert)
///             any      → Close     closeWhenIdle()
///             any      → Nothing   end()
///
///   changes   when the window is to be closed or its changes are to be settled
///             Kept     → Asking    ask()            the question shows
///             Saving   → AskingWhileSaving          the same, for a send that takes long
///             Asking*  → Saving    answerSave()
///             Kept     → Saving    saveForClosing() without a question
///             Asking*  → Kept      endQuestion()    also when a save for closing is under way
///             Saving   → Kept      saveEnded()      AskingWhileSaving → Asking
///
/// Sending runs beside the work and is a flag of its own. Main thread.
class WindowState
{
public:
    enum class Stage { Loading, Listing, Ready, Failed, Closed };

    /// Who may end the work before its time.
    enum class Work {
        None,
        Fixed,       ///< nobody
        Cancellable, ///< the user
        Expendable,  ///< the user, and closing the window
    };

    enum class Next { Nothing, Revert, Close };

    enum class Changes { Kept, Asking, Saving, AskingWhileSaving };

    /// What a decision about the changes leads to: closing the window, or only the news that they are
    /// settled.
    enum class Purpose { Close, Settle };

    Stage stage() const { return m_stage; }
    bool isClosed() const { return m_stage == Stage::Closed; }
    bool hasTree() const { return m_stage == Stage::Listing || m_stage == Stage::Ready; }

    void load()
    {
        const Stage stage = isClosed() ? Stage::Closed : Stage::Loading;
        *this = WindowState();
        m_stage = stage;
    }
    void treeLoaded() { enter(Stage::Listing); }
    void listsFilled() { enter(Stage::Ready); }
    void loadFailed() { enter(Stage::Failed); }
    void close() { m_stage = Stage::Closed; }

    bool isBusy() const { return m_work != Work::None; }
    bool isCancellable() const { return m_work >= Work::Cancellable; }
    bool isExpendable() const { return m_work == Work::Expendable; }
    Next next() const { return m_next; }

    void begin(Work work, Next next = Next::Nothing)
    {
        m_work = work;
        m_next = next;
    }
    void makeFixed() { m_work = isBusy() ? Work::Fixed : Work::None; }
    Next end()
    {
        m_work = Work::None;
        return std::exchange(m_next, Next::Nothing);
    }
    void closeWhenIdle() { m_next = Next::Close; }

    bool isSending() const { return m_isSending; }
    void setSending(bool isSending) { m_isSending = isSending; }

    Changes changes() const { return m_changes; }
    /// False when the question shows already.
    bool ask()
    {
        if (m_changes == Changes::Asking || m_changes == Changes::AskingWhileSaving)
            return false;
        m_changes = m_changes == Changes::Saving ? Changes::AskingWhileSaving : Changes::Asking;
        return true;
    }
    void answerSave() { m_changes = Changes::Saving; }
    void endQuestion() { m_changes = Changes::Kept; }
    void saveForClosing()
    {
        m_changes = m_changes == Changes::Asking ? Changes::AskingWhileSaving : Changes::Saving;
    }
    /// Whether a save, or send, for closing is wanted or under way.
    bool isSaveForClosing() const
    {
        return m_changes == Changes::Saving || m_changes == Changes::AskingWhileSaving;
    }
    /// Whether the save, or send, was for closing.
    bool saveEnded()
    {
        if (!isSaveForClosing())
            return false;
        m_changes = m_changes == Changes::Saving ? Changes::Kept : Changes::Asking;
        return true;
    }

    /// From now on the changes are settled rather than the window closed, until takePurpose().
    void settle() { m_purpose = Purpose::Settle; }
    /// The purpose of the decision that was made; the next one is for closing again.
    Purpose takePurpose() { return std::exchange(m_purpose, Purpose::Close); }

private:
    void enter(Stage stage) { m_stage = isClosed() ? Stage::Closed : stage; }

    Stage m_stage = Stage::Loading;
    Work m_work = Work::None;
    Next m_next = Next::Nothing;
    Changes m_changes = Changes::Kept;
    Purpose m_purpose = Purpose::Close;
    bool m_isSending = false;
};

} // namespace vantrell
