#pragma once

#include "journal/JournalFolder.h"

#include <QString>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace vantrell
{

/// Writes one journal on a thread of its own: each record at once, and to the disk within an interval. There
/// is a file only while there is something in it. When it cannot be written, a line of the log tells it,
/// once, and what was written before stays. Any thread.
class JournalWriter
{
public:
    JournalWriter(QString folder, std::chrono::milliseconds interval);
    /// Writes all that was appended. The file stays where it is.
    ~JournalWriter();
    JournalWriter(const JournalWriter &) = delete;
    JournalWriter &operator=(const JournalWriter &) = delete;

    // None of these waits

    /// Removes the file. The next one begins so; until then nothing is written.
    void begin(std::string beginning);
    void append(std::string records);
    /// The same, but without a file none is made for it.
    void appendIfThere(std::string records);
    /// The file takes the place of that one, which it replaces. Without a file, that one stays.
    void replace(TakenJournal old);
    /// Removes the file; what is appended later makes another one.
    void remove();
    /// See TakenJournal::setGivenUp().
    void setGivenUp(bool isGivenUp);

    /// Waits until all that was appended is on the disk.
    void finish();

private:
    using Clock = std::chrono::steady_clock;

    void post(std::function<void()> operation);
    void run();
    void writeRecords(const std::string &records);
    bool write(const std::string &bytes);
    void sync();
    void fail();

    const QString m_folder;
    const std::chrono::milliseconds m_interval;

    std::mutex m_mutex; // guards the next four
    std::condition_variable m_changed;
    std::deque<std::function<void()>> m_operations;
    bool m_isStopping = false;
    std::thread m_thread; // started with the first operation

    // The thread's
    std::optional<TakenJournal> m_file;
    std::string m_beginning;
    std::size_t m_size = 0;                      ///< of the file, in bytes
    std::optional<Clock::time_point> m_unsynced; ///< since when
    bool m_hasFailed = false;
    bool m_hasToldFailure = false;
};

} // namespace vantrell
