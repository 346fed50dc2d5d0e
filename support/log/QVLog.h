#pragma once

#include "support/files/Descriptor.h"
#include "support/text/TextFormat.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <array>
#include <atomic>
#include <memory>
#include <mutex>
#include <span>

namespace vantrell
{

class OperationQueue;

/// The program's log: time-stamped lines in a rotating set of five files in the folder
/// "Logs/Orvandel" of the user's library folder, written by a serial queue, with an echo on the
/// console (standard error) where asked. Its failures show on the console alone; that there is no file
/// the super-user is told once, others with every line. One shared object, which lives as long as the
/// process; any thread may call any of its operations.
///
/// Formats are those of formatText(). In a format a percent sign before a blank or a punctuation mark
/// stands for itself.
class QVLog
{
public:
    /// The shared object; made at the first call, together with the handler that logs what an uncaught
    /// exception says before the process ends.
    static QVLog &sharedController();

    /// Starts a new log file and numbers the older ones up. The base name of the files is the first name that
    /// was ever given (an empty one counts as none), else "Unknown". With noPrinting nothing is echoed to the
    /// console. After willTerminate() this takes the log up again.
    static void createNewLog(const QString &name = QString(), bool noPrinting = false);

    /// Logs one text; one that holds white space only is dropped, as is a null format. Off the main
    /// thread a short text is in the file when this returns, unless many others wait.
    template <typename... Args>
    static void appendLog(QStringView format, const Args &...arguments)
    {
        append(format, Waiting::ShortTexts, arguments...);
    }

    /// The same, never waiting.
    template <typename... Args>
    static void fastAppendLog(QStringView format, const Args &...arguments)
    {
        append(format, Waiting::Never, arguments...);
    }

    /// Logs the trimmed text and echoes it to the console, there without "%@" and with every percent
    /// sign doubled.
    template <typename... Args>
    static void appendLogAndPrint(QStringView format, const Args &...arguments)
    {
        if (format.isNull())
            return;
        const std::array<FormatArgument, sizeof...(Args)> list{formatArgument(arguments)...};
        logAndPrint(formatText(format, std::span<const FormatArgument>(list)).trimmed());
    }

    /// Logs the trimmed text.
    template <typename... Args>
    static void appendLogAndDebugPrint(QStringView format, const Args &...arguments)
    {
        if (format.isNull())
            return;
        const std::array<FormatArgument, sizeof...(Args)> list{formatArgument(arguments)...};
        appendLog(formatText(format, std::span<const FormatArgument>(list)).trimmed());
    }

    /// Returns when every text handed over before has been written; on the queue's own thread it writes them
    /// at once.
    static void finishWriting();
    /// The paths of the user's log files that exist, the current one first.
    static QStringList availableLogs();
    /// The text with each percent sign doubled that stands before a blank or one of ".!,-;:+".
    static QString escapeTextForLogging(const QString &text);
    /// Writes the texts that wait if they are ten or fewer, drops them otherwise, closes the file and ends
    /// the queue. What is logged later is dropped. Runs when the application is about to quit and when the
    /// process ends; may be called by hand, and more than once.
    static void willTerminate();

    /// Where the numeric user id comes from: user 0 writes the current file in the system-wide library
    /// folder. A null pointer stands for the process's own id.
    using UserIdFunction = unsigned (*)();
    static void setUserIdFunction(UserIdFunction function);

    /// Hands a text to the queue, trimmed; an empty one is dropped.
    void appendTextToLog(const QString &text);
    /// Writes one text; what the queue runs for it. It makes no objects that Qt ties to a thread, such as
    /// QFile: the queue may outlive what Qt keeps about threads.
    void appendLogOnThread(const QString &text);

private:
    enum class Waiting { ShortTexts, Never };

    QVLog();
    ~QVLog() = default;

    template <typename... Args>
    static void append(QStringView format, Waiting waiting, const Args &...arguments)
    {
        if (format.isNull() || sharedController().m_loggingDisabled.load())
            return;
        const std::array<FormatArgument, sizeof...(Args)> list{formatArgument(arguments)...};
        appendFormatted(format, waiting, list);
    }
    static void appendFormatted(QStringView format, Waiting waiting,
                                std::span<const FormatArgument> arguments);
    static void logAndPrint(const QString &text);

    void startLog(const QString &name, bool noPrinting);
    bool rotateFiles(const QString &base);
    void writeHeader();
    void writeLine(const QString &text);
    QString currentPath() const;
    bool writeBytes(const QByteArray &bytes);
    void echo(const QString &text) const;
    void startQueue();
    std::shared_ptr<OperationQueue> queue() const;

    std::atomic<quint64> m_bytesInQueue = 0; ///< UTF-16 units handed to the queue and not written yet
    std::atomic<bool> m_loggingDisabled = false;
    std::atomic<bool> m_noPrinting = false;
    std::atomic<bool> m_rotating = false; ///< the limit has been met and the new file is not there yet

    std::mutex m_creationMutex; ///< lets one createNewLog run at a time
    std::mutex m_finishMutex;   ///< held by finishWriting while it waits
    std::mutex m_endMutex;      ///< lets one willTerminate run at a time

    mutable std::mutex m_queueMutex; ///< guards m_writeQueue
    std::shared_ptr<OperationQueue> m_writeQueue;

    std::mutex m_fileMutex; ///< guards the members below
    QString m_appName;
    Descriptor m_file; ///< the current file, written at its end
    quint64 m_bytesWritten = 0;
    bool m_isLossTold = false; ///< the console says that there is no file
};

} // namespace vantrell
