#include "cli/Console.h"
#include "cli/MediaOptions.h"
#include "handover/HashListMaker.h"
#include "handover/SendList.h"
#include "handover/TransferText.h"
#include "support/files/FileUtilities.h"
#include "support/files/ProgramArguments.h"

#include <QDir>
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
    std::size_t missing = 0;
    std::vector<SendList::File> files =
        SendList::files(rows, places, listing.uses, listing.choice, missingToo, missing);
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

int writeHashList(const std::vector<SendList::File> &files, const QString &output)
{
    const bool isFile = !output.isEmpty() && output != outputToConsole;
    const QString target =
        QDir::cleanPath(QFileInfo(isFile ? output : QStringLiteral("list")).absoluteFilePath());
    QStringList places;
    for (const SendList::File &file : files)
        places.append(file.place);
    HashListMaker maker(places, target, isFile);
    StatusLine status;
    const auto made = maker.make(
        [&status](const ChecksumRun::Progress &progress) {
            if (progress.totalBytes > 0 || progress.files > 0)
                status.show(transferText(progress));
            return true;
        },
        MediaInventory::patience);
    status.clear();
    for (const HashListMaker::Made::Problem &problem : made->problems) {
        const char *const reason = problem.hasChanged ? "was changed while it was read" : "cannot be read";
        complain(QStringLiteral("The file \"%1\" %2.").arg(problem.path, QLatin1String(reason)));
    }
    const Result<QByteArray> bytes = made->list.toBytes();
    if (!bytes) {
        complain(bytes.message());
        return Failed;
    }
    const int written = writeList(output, bytes.value());
    if (written == Done)
        maker.forget();
    return made->problems.empty() ? written : Failed;
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
