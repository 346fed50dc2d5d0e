#include "cli/Console.h"
#include "cli/MediaOptions.h"
#include "cli/TransferText.h"
#include "handover/ChecksumJournal.h"
#include "handover/HashList.h"
#include "handover/SendList.h"
#include "media/MediaKeys.h"
#include "support/files/FileUtilities.h"
#include "support/files/ProgramArguments.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <memory>

namespace vantrell::cli
{

namespace
{

const QString outputToConsole = QStringLiteral("-");

/// The rows on show; those of missing files only where \a missingToo.
std::vector<SendList::File> filesToSend(const MediaListing &listing, bool missingToo)
{
    const RowList &rows = listing.session.document().rowsOnShow(Tab::Media);
    const QStringList places = listing.session.workbench().mediaInventory().placesOf(rows);
    std::vector<MediaUses::File> uses;
    if (listing.uses)
        uses = listing.uses->files(listing.choice);
    std::vector<SendList::File> files;
    qsizetype missing = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (!missingToo && rows[i]->get(MediaKey::missing)) {
            ++missing;
            continue;
        }
        SendList::File file{rows[i], places[qsizetype(i)], std::nullopt};
        if (const auto index =
                listing.uses ? listing.uses->indexOf(rows[i]->get(MediaKey::rawpath)) : std::nullopt)
            file.uses = uses[*index];
        files.push_back(std::move(file));
    }
    if (missing > 0)
        complain(QStringLiteral("%1 missing files are not in the list.").arg(missing));
    return files;
}

int writeList(const QString &output, const QByteArray &list)
{
    if (output.isEmpty() || output == outputToConsole)
        return print(list) ? Done : Failed;
    const Result<void> written = FileUtilities::writeAtomically(output, list);
    if (!written)
        complain(written.message());
    return written ? Done : Failed;
}

/// Fills the entries with checksums. False, after a message each, when a file cannot be read or changes
/// meanwhile; it is then taken from the list.
bool addChecksums(HashList &list, const std::vector<QByteArray> &paths, ChecksumJournal *journal)
{
    std::vector<ChecksumRun::Task> tasks;
    std::vector<std::size_t> entryOfTask;
    std::vector<ChecksumResult> results(paths.size());
    const FileChecks checks(paths);
    const auto facts = checks.answers([] { return false; }, MediaInventory::patience);
    for (std::size_t i = 0; i < paths.size(); ++i) {
        const FileFacts found = (*facts)[i].value_or(FileFacts());
        const auto known = journal && found.size && found.modified
                               ? journal->find(paths[i], *found.size, *found.modified)
                               : std::nullopt;
        if (known) {
            results[i] = *known;
            continue;
        }
        tasks.push_back({paths[i], {.md5 = true, .sha1 = false, .xxhash64 = true}, found.size.value_or(0)});
        entryOfTask.push_back(i);
    }
    ChecksumRun run(std::move(tasks));
    StatusLine status;
    const auto made = run.results(
        [&status](const ChecksumRun::Progress &progress) {
            status.show(transferText(progress));
            return true;
        },
        [&](std::size_t task, const ChecksumResult &result) {
            if (journal && result.state == ChecksumResult::State::Done)
                journal->add(paths[entryOfTask[task]], result);
        },
        MediaInventory::patience);
    status.clear();
    for (std::size_t i = 0; i < made->size(); ++i)
        results[entryOfTask[i]] = (*made)[i];
    std::vector<HashListEntry> entries;
    for (std::size_t i = 0; i < paths.size(); ++i) {
        const ChecksumResult &result = results[i];
        if (result.state != ChecksumResult::State::Done) {
            const char *const reason = result.state == ChecksumResult::State::Changed
                                           ? "was changed while it was read"
                                           : "cannot be read";
            complain(QStringLiteral("The file \"%1\" %2.")
                         .arg(QFile::decodeName(paths[i]), QLatin1String(reason)));
            continue;
        }
        HashListEntry entry = list.entries[i];
        entry.size = result.size;
        entry.modified = QDateTime::fromMSecsSinceEpoch(result.modified, Qt::UTC);
        entry.checksums = result.checksums;
        entry.made = result.made;
        entries.push_back(std::move(entry));
    }
    const bool isWhole = entries.size() == paths.size();
    list.entries = std::move(entries);
    return isWhole;
}

int writeHashList(const std::vector<SendList::File> &files, const QString &output)
{
    const bool isFile = !output.isEmpty() && output != outputToConsole;
    const QString target =
        QDir::cleanPath(QFileInfo(isFile ? output : QStringLiteral("list")).absoluteFilePath());
    const QString folder = QFileInfo(target).path();
    HashList list;
    list.tool =
        QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion();
    list.started = QDateTime::currentDateTimeUtc();
    std::vector<QByteArray> paths;
    QSet<QString> seen;
    for (const SendList::File &file : files) {
        const QString place = QDir::cleanPath(file.place);
        if (file.place.isEmpty() || seen.contains(place))
            continue;
        seen.insert(place);
        paths.push_back(QFile::encodeName(place));
        HashListEntry entry;
        entry.file = HashList::entryName(place, folder);
        list.entries.push_back(std::move(entry));
    }
    const auto journal = isFile ? std::make_unique<ChecksumJournal>(target) : nullptr;
    const bool isWhole = addChecksums(list, paths, journal.get());
    list.finished = QDateTime::currentDateTimeUtc();
    const Result<QByteArray> bytes = list.toBytes();
    if (!bytes) {
        complain(bytes.message());
        return Failed;
    }
    const int status = writeList(output, bytes.value());
    if (status == Done && journal)
        journal->remove();
    return isWhole ? status : Failed;
}

} // namespace

int writeMediaList(const MediaOptions &options, const MediaListing &listing)
{
    const bool isTable = options.list == "csv";
    const std::vector<SendList::File> files = filesToSend(listing, isTable || options.missing);
    const QString output = fromArgument(options.output);
    if (isTable)
        return writeList(output, SendList::csv(files));
    if (options.list == "mhl")
        return writeHashList(files, output);
    QStringList leftOut;
    const auto end = options.list == "rsync0" ? SendList::PathEnd::Nul : SendList::PathEnd::Line;
    const QByteArray paths = SendList::paths(files, end, leftOut);
    for (const QString &path : leftOut)
        complain(QStringLiteral("The path \"%1\" holds a line break; --list rsync0 can list it.").arg(path));
    const int status = writeList(output, paths);
    return leftOut.isEmpty() ? status : Failed;
}

} // namespace vantrell::cli
