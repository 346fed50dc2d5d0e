#include "cli/Console.h"
#include "cli/MediaOptions.h"
#include "cli/TextTable.h"
#include "handover/TransferText.h"
#include "handover/Verification.h"
#include "media/MediaKeys.h"
#include "rows/json/JsonText.h"
#include "support/files/Descriptor.h"
#include "support/files/ProgramArguments.h"

#include <nlohmann/json.hpp>

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vantrell::cli
{

namespace
{

struct FileState {
    QString path;
    const char *state;
};

QByteArray statesAsJson(const std::vector<FileState> &files)
{
    Json list = Json::array();
    for (const FileState &file : files)
        list.push_back({{"path", jsonText(file.path)}, {"state", file.state}});
    return toBytes(Json{{"files", std::move(list)}});
}

QByteArray statesAsTable(const std::vector<FileState> &files)
{
    TextTable table({QStringLiteral("File"), QStringLiteral("State")});
    for (const FileState &file : files)
        table.addRow({file.path, QString::fromLatin1(file.state)});
    return table.toBytes();
}

/// Prints the files and returns the status that suits their states.
int report(const MediaOptions &options, const std::vector<FileState> &files, bool isAllWell)
{
    if (!print(options.json ? statesAsJson(files) : statesAsTable(files)))
        return Failed;
    return isAllWell ? Done : Differs;
}

/// What the disk says of a regular file that can be read; without a size for anything else.
FileFacts lookUpReadable(const QByteArray &path)
{
    FileFacts facts = FileChecks::lookUp(path);
    if (!facts.exists)
        return facts;
    // Opening a pipe would wait for a writer.
    const Descriptor file(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status;
    char byte = 0;
    const bool isReadable = file.isOpen() && ::fstat(file.number(), &status) == 0 &&
                            S_ISREG(status.st_mode) && ::read(file.number(), &byte, 1) >= 0;
    if (!isReadable)
        facts.size.reset();
    return facts;
}

std::optional<HashList> readList(const MediaOptions &options, QString &folder)
{
    const QString path = fromArgument(*options.verify);
    Result<HashList> list = HashList::fromFile(path);
    if (!list) {
        complain(list.message());
        return std::nullopt;
    }
    folder = QDir::cleanPath(QFileInfo(path).absolutePath());
    return std::move(list.value());
}

bool hasChanged(const FileFacts &facts, const HashListEntry &entry)
{
    if (entry.size && facts.size != entry.size)
        return true;
    return facts.modified && !entry.modified.isNull() &&
           QDateTime::fromMSecsSinceEpoch(*facts.modified).toSecsSinceEpoch() !=
               entry.modified.toSecsSinceEpoch();
}

QStringList placesOnShow(const MediaListing &listing)
{
    ProjectSession &session = listing.session;
    QStringList places =
        session.workbench().mediaInventory().placesOf(session.document().rowsOnShow(Tab::Media));
    places.removeDuplicates();
    places.removeAll(QString());
    return places;
}

const char *textOf(Verification::State state)
{
    switch (state) {
    case Verification::State::Same:
        return "same";
    case Verification::State::Changed:
        return "changed";
    case Verification::State::Missing:
        return "missing";
    case Verification::State::Unreadable:
        break;
    }
    return "unreadable";
}

/// Whether the options leave out some of the project's files.
bool isRestricted(const MediaOptions &options)
{
    return !options.kind.empty() || !options.drive.empty() || !options.sequences.empty() ||
           !options.search.empty() || options.missing || options.unused;
}

} // namespace

int printMediaCheck(const MediaOptions &options, const MediaListing &listing)
{
    QString folder;
    QHash<QString, HashListEntry> entries; // by path
    if (options.verify) {
        const std::optional<HashList> list = readList(options, folder);
        if (!list)
            return Failed;
        for (const HashListEntry &entry : list->entries)
            entries.insert(QDir::cleanPath(HashList::placeOf(entry.file, folder)), entry);
    }
    const QStringList places = placesOnShow(listing);
    std::vector<QByteArray> paths;
    for (const QString &place : places)
        paths.push_back(QFile::encodeName(place));
    const FileChecks checks(std::move(paths), lookUpReadable);
    const auto facts = checks.answers([] { return false; }, MediaInventory::patience);
    std::vector<FileState> files;
    for (std::size_t i = 0; i < facts->size(); ++i) {
        const QString &place = places[qsizetype(i)];
        const auto entry = entries.constFind(QDir::cleanPath(place));
        const std::optional<FileFacts> &found = (*facts)[i];
        if (found && !found->exists)
            files.push_back({place, "missing"});
        else if (!found || !found->size)
            files.push_back({place, "unreadable"});
        else if (entry != entries.constEnd() && hasChanged(*found, *entry))
            files.push_back({place, "changed"});
    }
    for (const RowRecordPtr &record : listing.session.document().rowsOnShow(Tab::Media)) {
        if (!record->contains(MediaKey::rawpath))
            complain(QStringLiteral("The place of a file is no URL."));
    }
    return report(options, files, files.empty());
}

int verifyMedia(const MediaOptions &options, const MediaListing *listing)
{
    QString folder;
    std::optional<HashList> list = readList(options, folder);
    if (!list)
        return Failed;
    if (listing && isRestricted(options)) {
        const QStringList places = placesOnShow(*listing);
        const QSet<QString> wanted(places.begin(), places.end());
        std::erase_if(list->entries, [&](const HashListEntry &entry) {
            return !wanted.contains(QDir::cleanPath(HashList::placeOf(entry.file, folder)));
        });
        if (list->entries.empty()) {
            complain(QStringLiteral("None of these files is in the list."));
            return Failed;
        }
    }
    const Verification verification(std::move(list->entries), folder);
    StatusLine status;
    const auto verified = verification.compare(
        [&status](const ChecksumRun::Progress &progress) {
            status.show(transferText(progress));
            return true;
        },
        MediaInventory::patience);
    status.clear();
    std::vector<FileState> files;
    bool isAllSame = true;
    for (const Verification::File &file : *verified) {
        files.push_back({file.file, textOf(file.state)});
        isAllSame = isAllSame && file.state == Verification::State::Same;
    }
    return report(options, files, isAllSame);
}

} // namespace vantrell::cli
