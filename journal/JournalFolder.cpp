#include "journal/JournalFolder.h"

#include "support/files/FileUtilities.h"
#include "support/files/StandardFolders.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace vantrell
{

namespace
{

const QString extension = QStringLiteral(".journal");
const QString damagedExtension = QStringLiteral(".damaged");
const QString givenUpExtension = QStringLiteral(".reverted");
const QString unfinishedExtension = QStringLiteral(".new");

constexpr int leftoverSeconds = 60; // a younger one may be about to be taken

bool lock(const Descriptor &file)
{
    int result = -1;
    do {
        result = ::flock(file.number(), LOCK_EX | LOCK_NB);
    } while (result != 0 && errno == EINTR);
    return result == 0;
}

/// Whether the path still leads to the open file: it may have been replaced or renamed before it was locked.
bool isAt(const Descriptor &file, const QString &path)
{
    const std::optional<FileStamp> open = FileStamp::ofDescriptor(file.number());
    const std::optional<FileStamp> there = FileStamp::ofPath(path);
    return open && there && open->device == there->device && open->number == there->number;
}

void setAside(TakenJournal &journal)
{
    const QString path = FileUtilities::uniqueFilePath(FileUtilities::deletingPathExtension(journal.path()) +
                                                       damagedExtension);
    const QString before = journal.path();
    if (journal.rename(path))
        QVLog::appendLog(u"The journal %@ is damaged and was renamed to %@.", before, path);
    else
        QVLog::appendLog(u"The journal %@ is damaged.", before);
}

/// Reads the journal and deals with one that is of no use; false for such.
bool isUsable(TakenJournal &journal, JournalContents &contents)
{
    const std::optional<std::string> bytes = journal.read();
    if (!bytes) {
        QVLog::appendLog(u"The journal %@ cannot be read.", journal.path());
        return false;
    }
    switch (JournalFile::read(*bytes, contents)) {
    case JournalFile::Fault::Empty:
        journal.remove();
        return false;
    case JournalFile::Fault::Foreign:
        QVLog::appendLog(u"The journal %@ was written by another version of the program.", journal.path());
        return false;
    case JournalFile::Fault::Damaged:
        setAside(journal);
        return false;
    case JournalFile::Fault::None:
        break;
    }
    const bool isSaved = contents.saved && FileStamp::ofPath(contents.header.projectPath) == contents.saved;
    const bool isNothing = contents.steps.empty() || contents.steps.back().changes == 0;
    if (isSaved || isNothing) {
        journal.remove();
        return false;
    }
    return true;
}

FoundJournal::Project stateOf(const JournalHeader &header)
{
    const std::optional<FileStamp> now = FileStamp::ofPath(header.projectPath);
    if (!now)
        return FoundJournal::Project::Missing;
    return !header.file || header.file == now ? FoundJournal::Project::Unchanged
                                              : FoundJournal::Project::Changed;
}

/// What a process left behind that ended while it made or gave up a journal.
void removeLeftovers(const QDir &folder)
{
    const QDateTime recent = QDateTime::currentDateTimeUtc().addSecs(-leftoverSeconds);
    const QFileInfoList files = folder.entryInfoList(
        {QLatin1Char('*') + givenUpExtension, QLatin1Char('*') + unfinishedExtension}, QDir::Files);
    for (const QFileInfo &info : files) {
        std::optional<TakenJournal> file;
        if (info.lastModified() < recent)
            file = TakenJournal::take(info.filePath());
        if (file)
            file->remove();
    }
}

} // namespace

std::optional<TakenJournal> TakenJournal::take(const QString &path)
{
    Descriptor file(::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC));
    if (!file.isOpen() || !lock(file) || !isAt(file, path))
        return std::nullopt;
    return TakenJournal(path, std::move(file));
}

std::optional<TakenJournal> TakenJournal::make(const QString &folder)
{
    if (!QDir().mkpath(folder))
        return std::nullopt;
    const QString path = folder + QLatin1Char('/') + QUuid::createUuid().toString(QUuid::WithoutBraces);
    const QString unfinished = path + unfinishedExtension;
    const QByteArray name = QFile::encodeName(unfinished);
    Descriptor file(::open(name.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!file.isOpen())
        return std::nullopt;
    TakenJournal journal(unfinished, std::move(file));
    if (lock(journal.m_file) && journal.rename(path + extension))
        return journal;
    journal.remove();
    return std::nullopt;
}

std::optional<std::string> TakenJournal::read() const
{
    std::string bytes;
    char part[1 << 16];
    for (off_t at = 0;;) {
        const ssize_t count = ::pread(m_file.number(), part, sizeof part, at);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            return bytes;
        bytes.append(part, std::size_t(count));
        at += count;
    }
}

bool TakenJournal::setGivenUp(bool isGivenUp)
{
    return rename(FileUtilities::deletingPathExtension(m_path) + (isGivenUp ? givenUpExtension : extension));
}

bool TakenJournal::rename(const QString &path)
{
    if (std::rename(QFile::encodeName(m_path).constData(), QFile::encodeName(path).constData()) != 0)
        return false;
    m_path = path;
    return true;
}

void TakenJournal::remove()
{
    if (isAt(m_file, m_path))
        ::unlink(QFile::encodeName(m_path).constData());
    m_file.close();
}

QString JournalFolder::standard()
{
    return StandardFolders::userLibrary() + QStringLiteral("/vantrell/journals");
}

std::vector<FoundJournal> JournalFolder::find(const QString &folder, const QString &projectPath)
{
    std::vector<FoundJournal> found;
    const QDir directory(folder);
    removeLeftovers(directory);
    for (const QString &name : directory.entryList({QLatin1Char('*') + extension}, QDir::Files)) {
        std::optional<TakenJournal> journal = TakenJournal::take(directory.filePath(name));
        JournalContents contents;
        if (!journal || !isUsable(*journal, contents))
            continue;
        if (!projectPath.isNull() && contents.header.projectPath != projectPath)
            continue;
        found.push_back({journal->path(), contents.header, contents.steps.back().changes,
                         contents.steps.back().time, stateOf(contents.header)});
    }
    std::sort(found.begin(), found.end(),
              [](const FoundJournal &a, const FoundJournal &b) { return a.lastChange > b.lastChange; });
    return found;
}

std::optional<JournalFolder::Restorable> JournalFolder::take(const FoundJournal &journal)
{
    std::optional<TakenJournal> file = TakenJournal::take(journal.path);
    JournalContents contents;
    if (!file || !isUsable(*file, contents))
        return std::nullopt;
    if (contents.isTorn)
        QVLog::appendLog(u"What was written last to the journal %@ is not whole and was left out.",
                         journal.path);
    return Restorable{std::move(*file), std::move(contents)};
}

bool JournalFolder::discard(const FoundJournal &journal)
{
    std::optional<TakenJournal> file = TakenJournal::take(journal.path);
    if (!file)
        return false;
    file->remove();
    return true;
}

} // namespace vantrell
