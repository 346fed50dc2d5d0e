#include "support/log/QVLog.h"

#include "support/files/PropertyList.h"
#include "support/files/StandardFolders.h"
#include "support/log/OperationQueue.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace vantrell
{

namespace
{

constexpr quint64 fileLimit = 5000000; // bytes
constexpr int fileCount = 5;

/// The main thread runs the initialisers of the program's static objects.
const std::thread::id mainThread = std::this_thread::get_id();

std::atomic<QVLog::UserIdFunction> userIdFunction = nullptr;

unsigned userId()
{
    const QVLog::UserIdFunction function = userIdFunction.load();
    return function ? function() : static_cast<unsigned>(geteuid());
}

QString logFolder(const QString &library)
{
    return library + QStringLiteral("/Logs/Orvandel");
}

QString numberedFile(const QString &base, qint64 number)
{
    return formatText(u"%@.%li.log", base, number);
}

/// The current date as in "2026-11-21 02:14:00 +0000". By the C library: lines are also written while the
/// process ends, when Qt's locales may be gone.
QByteArray dateText()
{
    const std::time_t now = std::time(nullptr);
    std::tm parts = {};
    gmtime_r(&now, &parts);
    char text[64];
    return {text, qsizetype(std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S +0000", &parts))};
}

bool isLoggingSwitchedOff()
{
    const QString path = StandardFolders::preferences() + QStringLiteral("/com.orvandel.global.plist");
    if (!QFileInfo::exists(path))
        return false;
    const Result<QVariant> list = PropertyList::fromFile(path);
    if (!list)
        return false;
    const QVariant value = list.value().toMap().value(QStringLiteral("disable-logging"));
    return value.typeId() == QMetaType::QString ? value.toString() == QStringLiteral("1")
                                                : PropertyList::isNumber(value) && value.toDouble() == 1;
}

QString executablePath()
{
    if (QCoreApplication::instance())
        return QCoreApplication::applicationFilePath();
    return QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
}

QString systemText()
{
    const qint64 processors = sysconf(_SC_NPROCESSORS_ONLN);
    const double memory = static_cast<double>(sysconf(_SC_PHYS_PAGES)) *
                          static_cast<double>(sysconf(_SC_PAGESIZE)) * 0.0009765625 * 0.0009765625 *
                          0.0009765625;
#ifdef Q_OS_MACOS
    const QString system = QStringLiteral("macOS ") + QSysInfo::productVersion();
#else
    const QString system = QSysInfo::prettyProductName();
#endif
    return formatText(u"System: %@, %li CPU(s), %0.2f GB RAM\n", system, processors, memory);
}

std::terminate_handler previousTerminateHandler = nullptr;

QString currentExceptionReason()
{
    try {
        if (std::current_exception())
            throw;
        return QStringLiteral("The program was terminated without an exception.");
    } catch (const std::exception &exception) {
        return QString::fromUtf8(exception.what());
    } catch (...) {
        return QStringLiteral("An unknown exception was thrown.");
    }
}

[[noreturn]] void logUncaughtException()
{
    static std::atomic_flag isLogged = ATOMIC_FLAG_INIT;
    if (!isLogged.test_and_set()) {
        QVLog::appendLogAndPrint(u"%@", currentExceptionReason());
        QVLog::finishWriting();
    }
    if (previousTerminateHandler)
        previousTerminateHandler();
    std::abort();
}

std::atomic<bool> isSharedObjectMade = false;

/// Runs when the application object has been made.
void observeQuitting()
{
    QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit,
                     QCoreApplication::instance(), [] {
                         if (isSharedObjectMade)
                             QVLog::willTerminate();
                     });
}
Q_COREAPP_STARTUP_FUNCTION(observeQuitting)

} // namespace

QVLog &QVLog::sharedController()
{
    // Never destroyed: other objects log while they die.
    static QVLog *const shared = new QVLog;
    return *shared;
}

QVLog::QVLog()
{
    startQueue();
    previousTerminateHandler = std::set_terminate(logUncaughtException);
    std::atexit([] { willTerminate(); });
    isSharedObjectMade = true;
}

void QVLog::startQueue()
{
    const std::lock_guard lock(m_queueMutex);
    if (m_writeQueue)
        return;
    m_bytesInQueue = 0;
    m_writeQueue = std::make_shared<OperationQueue>(1);
}

std::shared_ptr<OperationQueue> QVLog::queue() const
{
    const std::lock_guard lock(m_queueMutex);
    return m_writeQueue;
}

void QVLog::createNewLog(const QString &name, bool noPrinting)
{
    QVLog &log = sharedController();
    const std::lock_guard lock(log.m_creationMutex);
    log.startLog(name, noPrinting);
}

void QVLog::startLog(const QString &name, bool noPrinting)
{
    m_noPrinting = noPrinting;
    if (m_loggingDisabled)
        return;
    startQueue();
    const std::lock_guard lock(m_fileMutex);
    m_file.close();
    if (isLoggingSwitchedOff()) {
        echo(QStringLiteral("Logging is disabled"));
        m_loggingDisabled = true;
        return;
    }
    if (m_appName.isEmpty())
        m_appName = name;
    if (m_appName.isEmpty())
        m_appName = QStringLiteral("Unknown");
    m_bytesWritten = 0;
    m_isLossTold = true; // by each of the failures below

    const QString folder = logFolder(StandardFolders::userLibrary());
    if (!QDir().mkpath(folder)) {
        echo(formatText(u"Unable to create folder %s.\n", folder));
        return;
    }
    if (!rotateFiles(folder + u'/' + m_appName))
        return;
    const QString path = currentPath();
    m_file = Descriptor(::open(QFile::encodeName(path).constData(),
                               O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, 0644));
    if (!m_file.isOpen()) {
        echo(formatText(u"Unable to create log file %s - %s\n", path, qt_error_string(errno)));
        return;
    }
    m_isLossTold = false;
    writeHeader();
}

/// Numbers the files of the user's folder up; false when one could not be moved.
bool QVLog::rotateFiles(const QString &base)
{
    if (!QFileInfo::exists(numberedFile(base, 1)))
        return true;
    const QString oldest = numberedFile(base, fileCount);
    if (QFileInfo::exists(oldest))
        ::unlink(QFile::encodeName(oldest).constData());
    for (int number = fileCount - 1; number >= 1; --number) {
        const QString from = numberedFile(base, number);
        const QString to = numberedFile(base, number + 1);
        if (!QFileInfo::exists(from))
            continue;
        if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0) {
            echo(formatText(u"Unable to move file %s to %s.\n", from, to));
            return false;
        }
    }
    return true;
}

void QVLog::writeHeader()
{
    QString header = formatText(u"Log started: %@\n", dateText());
    const QString version = QCoreApplication::applicationVersion();
    if (!version.isEmpty())
        header += formatText(u"Version: %@\n", version);
    header += formatText(u"Path: %@\n", executablePath());
    header += systemText();
    header += QStringLiteral("Running in 64-bit mode\n");
    writeBytes(header.toUtf8());
}

/// The file that takes the lines: the super-user's is in the system-wide library folder, while the
/// folder that is made and whose files are numbered is always the user's.
QString QVLog::currentPath() const
{
    const QString library = userId() == 0 ? StandardFolders::systemLibrary() : StandardFolders::userLibrary();
    return numberedFile(logFolder(library) + u'/' + m_appName, 1);
}

void QVLog::appendFormatted(QStringView format, Waiting waiting, std::span<const FormatArgument> arguments)
{
    QVLog &log = sharedController();
    const QString text = format.contains(u'%')
                             ? formatText(escapeTextForLogging(format.toString()), arguments)
                             : format.toString();
    log.appendTextToLog(text);
    if (waiting == Waiting::ShortTexts && std::this_thread::get_id() != mainThread && text.size() >= 1 &&
        text.size() <= 99 && log.m_bytesInQueue.load() <= 99)
        finishWriting();
}

void QVLog::logAndPrint(const QString &text)
{
    appendLog(text);
    QString printed = text;
    printed.remove(QStringLiteral("%@"));
    printed.replace(QStringLiteral("%"), QStringLiteral("%%"));
    sharedController().echo(printed);
}

void QVLog::appendTextToLog(const QString &text)
{
    const QString trimmed = text.trimmed();
    const std::shared_ptr<OperationQueue> writeQueue = trimmed.isEmpty() ? nullptr : queue();
    if (!writeQueue)
        return;
    m_bytesInQueue += static_cast<quint64>(trimmed.size());
    writeQueue->addOperation([this, trimmed] { appendLogOnThread(trimmed); });
}

QString QVLog::escapeTextForLogging(const QString &text)
{
    if (!text.contains(u'%'))
        return text;
    QString escaped = text;
    for (const QChar mark : QStringView(u" .!,-;:+")) {
        const QString single = QString(u'%') + mark;
        escaped.replace(single, u'%' + single);
    }
    return escaped.replace(QStringLiteral("%%%"), QStringLiteral("%%"));
}

void QVLog::appendLogOnThread(const QString &text)
{
    if (m_loggingDisabled)
        return;
    try {
        QString name;
        bool isFull = false;
        {
            const std::lock_guard lock(m_fileMutex);
            writeLine(text);
            name = m_appName;
            isFull = m_file.isOpen() && m_bytesWritten >= fileLimit;
        }
        // What is written while the queue drains goes to the full file and meets no limit.
        if (isFull && !m_rotating.exchange(true)) {
            finishWriting();
            createNewLog(name, m_noPrinting);
            m_rotating = false;
            appendLog(u"Log truncated at 500KB");
        }
    } catch (const std::exception &exception) {
        if (!m_loggingDisabled)
            echo(formatText(u"Exception writing to log: %s\n", exception.what()));
    }
    m_bytesInQueue -= static_cast<quint64>(text.size());
}

void QVLog::writeLine(const QString &text)
{
    if (!m_file.isOpen())
        m_file =
            Descriptor(::open(QFile::encodeName(currentPath()).constData(), O_WRONLY | O_APPEND | O_CLOEXEC));
    if (!m_file.isOpen()) {
        // Nobody makes the folder of the super-user's log, so the loss of one line is that of all.
        if (std::exchange(m_isLossTold, true) && userId() == 0)
            return;
        echo(formatText(u"Unable to log the following information: %s\n", text));
        echo(QStringLiteral("Unable to open log for output"));
        return;
    }
    m_isLossTold = false;
    const QByteArray line = dateText() + " - " + text.toUtf8() + '\n';
    if (writeBytes(line))
        m_bytesWritten += static_cast<quint64>(line.size());
}

bool QVLog::writeBytes(const QByteArray &bytes)
{
    const char *data = bytes.constData();
    std::size_t left = static_cast<std::size_t>(bytes.size());
    while (left > 0) {
        const ssize_t written = ::write(m_file.number(), data, left);
        if (written >= 0) {
            data += written;
            left -= static_cast<std::size_t>(written);
        } else if (errno != EINTR) {
            echo(formatText(u"Exception writing to log: %s\n", qt_error_string(errno)));
            return false;
        }
    }
    return true;
}

/// Shows a text on the console, on a line of its own, unless nothing is to be printed.
void QVLog::echo(const QString &text) const
{
    if (m_noPrinting)
        return;
    QByteArray line = text.toUtf8();
    if (!line.endsWith('\n'))
        line.append('\n');
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
}

void QVLog::finishWriting()
{
    QVLog &log = sharedController();
    const std::shared_ptr<OperationQueue> writeQueue = log.queue();
    if (!writeQueue)
        return;
    std::unique_lock lock(log.m_finishMutex, std::defer_lock);
    if (!writeQueue->isCallerOperation())
        lock.lock();
    writeQueue->waitUntilAllOperationsAreFinished();
}

QStringList QVLog::availableLogs()
{
    QVLog &log = sharedController();
    QString name;
    {
        const std::lock_guard lock(log.m_fileMutex);
        name = log.m_appName;
    }
    const QString base = logFolder(StandardFolders::userLibrary()) + u'/' + name;
    QStringList paths;
    for (int number = 1; number <= fileCount; ++number) {
        const QString path = numberedFile(base, number);
        if (QFileInfo::exists(path))
            paths.append(path);
    }
    return paths;
}

void QVLog::willTerminate()
{
    QVLog &log = sharedController();
    std::shared_ptr<OperationQueue> writeQueue = log.queue();
    if (!writeQueue || writeQueue->isCallerOperation())
        return;
    const std::lock_guard endLock(log.m_endMutex);
    if (writeQueue->operationCount() <= 10)
        finishWriting();
    else
        writeQueue->cancelAllOperations();
    {
        const std::lock_guard lock(log.m_queueMutex);
        if (log.m_writeQueue == writeQueue)
            log.m_writeQueue.reset();
    }
    writeQueue.reset(); // waits for the text that is being written
    const std::lock_guard fileLock(log.m_fileMutex);
    log.m_appName.clear();
    log.m_file.close();
}

void QVLog::setUserIdFunction(UserIdFunction function)
{
    userIdFunction = function;
}

} // namespace vantrell
