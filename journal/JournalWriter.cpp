#include "journal/JournalWriter.h"

#include "support/log/QVException.h"
#include "support/log/QVLog.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <memory>
#include <unistd.h>
#include <utility>

namespace vantrell
{

namespace
{

/// So that the file has its name after a power failure too.
void syncFolderOf(const QString &path)
{
    const QByteArray folder = QFile::encodeName(QFileInfo(path).path());
    const Descriptor descriptor(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.isOpen())
        ::fsync(descriptor.number());
}

} // namespace

JournalWriter::JournalWriter(QString folder, std::chrono::milliseconds interval)
    : m_folder(std::move(folder))
    , m_interval(interval)
{
}

JournalWriter::~JournalWriter()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isStopping = true;
        m_changed.notify_all();
    }
    if (m_thread.joinable())
        m_thread.join();
}

void JournalWriter::begin(std::string beginning)
{
    post([this, beginning = std::move(beginning)] {
        if (m_file)
            m_file->remove();
        m_file.reset();
        m_unsynced.reset();
        m_hasFailed = false;
        m_beginning = beginning;
    });
}

void JournalWriter::append(std::string records)
{
    post([this, records = std::move(records)] { writeRecords(records); });
}

void JournalWriter::appendIfThere(std::string records)
{
    post([this, records = std::move(records)] {
        if (m_file)
            writeRecords(records);
    });
}

void JournalWriter::replace(TakenJournal old)
{
    post([this, old = std::make_shared<TakenJournal>(std::move(old))] {
        if (!m_file || m_hasFailed)
            return;
        sync();
        if (m_file->rename(old->path()))
            syncFolderOf(m_file->path());
    });
}

void JournalWriter::remove()
{
    post([this] {
        if (m_file)
            m_file->remove();
        m_file.reset();
        m_unsynced.reset();
        m_hasFailed = false;
    });
}

void JournalWriter::setGivenUp(bool isGivenUp)
{
    post([this, isGivenUp] {
        if (m_file && m_file->setGivenUp(isGivenUp))
            syncFolderOf(m_file->path());
    });
}

void JournalWriter::finish()
{
    const auto done = std::make_shared<bool>(false);
    post([this, done] {
        sync();
        const std::lock_guard lock(m_mutex);
        *done = true;
        m_changed.notify_all();
    });
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [&] { return *done; });
}

void JournalWriter::post(std::function<void()> operation)
{
    std::unique_lock lock(m_mutex);
    m_operations.push_back(std::move(operation));
    m_changed.notify_all();
    if (m_thread.joinable())
        return;
    try {
        m_thread = std::thread([this] { run(); });
    } catch (const std::exception &) {
        m_operations.clear(); // no thread to be had
        throw;
    }
}

void JournalWriter::run()
{
    std::unique_lock lock(m_mutex);
    const auto mustAct = [this] { return m_isStopping || !m_operations.empty(); };
    for (;;) {
        if (!m_unsynced)
            m_changed.wait(lock, mustAct);
        else
            m_changed.wait_until(lock, *m_unsynced + m_interval, mustAct);
        if (!m_operations.empty()) {
            const std::function<void()> operation = std::move(m_operations.front());
            m_operations.pop_front();
            lock.unlock();
            guarded("JournalWriter::run", operation);
            lock.lock();
        }
        const bool isDue = m_unsynced && Clock::now() >= *m_unsynced + m_interval;
        const bool isOver = m_isStopping && m_operations.empty();
        if (isDue || isOver) {
            lock.unlock();
            sync();
            lock.lock();
        }
        if (isOver)
            return;
    }
}

void JournalWriter::writeRecords(const std::string &records)
{
    if (m_hasFailed || m_beginning.empty())
        return;
    const bool isNew = !m_file;
    if (isNew) {
        m_file = TakenJournal::make(m_folder);
        m_size = 0;
    }
    if (!m_file || (isNew && !write(m_beginning)) || !write(records)) {
        fail();
        return;
    }
    if (isNew)
        syncFolderOf(m_file->path());
    if (!m_unsynced)
        m_unsynced = Clock::now();
}

bool JournalWriter::write(const std::string &bytes)
{
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count =
            ::pwrite(m_file->descriptor(), bytes.data() + done, bytes.size() - done, off_t(m_size + done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        done += std::size_t(count);
    }
    m_size += done;
    return true;
}

void JournalWriter::sync()
{
    if (m_unsynced && m_file && ::fsync(m_file->descriptor()) != 0 && errno != EINVAL)
        fail();
    m_unsynced.reset();
}

/// What is whole in the file stays; more would not fit behind what is missing.
void JournalWriter::fail()
{
    const QString reason = QString::fromLocal8Bit(std::strerror(errno));
    m_hasFailed = true;
    if (m_file && (m_size == 0 || ::ftruncate(m_file->descriptor(), off_t(m_size)) != 0)) {
        m_file->remove();
        m_file.reset();
    }
    if (!std::exchange(m_hasToldFailure, true))
        QVLog::appendLog(u"The journal of unsaved changes cannot be written to %@: %@.", m_folder, reason);
}

} // namespace vantrell
