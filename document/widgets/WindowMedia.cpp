#include "document/widgets/WindowMedia.h"

#include "document/widgets/DocumentWindow.h"
#include "document/widgets/ProgressSheet.h"
#include "document/widgets/WindowWork.h"
#include "handover/HashListMaker.h"
#include "handover/Relinker.h"
#include "handover/SendList.h"
#include "handover/TransferText.h"
#include "handover/Verification.h"
#include "handover/widgets/ExportListSheet.h"
#include "handover/widgets/PathMappingsSheet.h"
#include "handover/widgets/RelinkSheet.h"
#include "handover/widgets/VerificationSheet.h"
#include "markers/MenuTitles.h"
#include "media/MediaConditions.h"
#include "media/MediaKeys.h"
#include "media/MediaLook.h"
#include "media/MediaUses.h"
#include "media/PathMapping.h"
#include "support/files/CancellableWrite.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/BackgroundWork.h"
#include "support/widgets/FilePanel.h"
#include "table/widgets/TabPane.h"
#include "workbench/Workbench.h"

#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <mutex>
#include <optional>
#include <utility>

namespace vantrell
{

namespace
{

constexpr int transferProgressMs = 200;

QString mediaCount(std::size_t count)
{
    return QLocale().toString(qulonglong(count));
}

} // namespace

/// Reading files on a thread of its own, with progress. Shared with that thread.
struct WindowMedia::Transfer {
    const std::shared_ptr<CancellableWrite> write = std::make_shared<CancellableWrite>();
    std::shared_ptr<MainThreadGate> gate;

    std::mutex mutex; // guards the progress
    ChecksumRun::Progress progress;

    bool note(const ChecksumRun::Progress &now)
    {
        const std::lock_guard lock(mutex);
        progress = now;
        return !write->isCancelled() && !gate->isClosed();
    }
    ChecksumRun::Progress soFar()
    {
        const std::lock_guard lock(mutex);
        return progress;
    }
};

/// A list that is being written.
struct WindowMedia::ListJob {
    QString path;
    MediaListFormat format = MediaListFormat::Csv;
    std::vector<SendList::File> files;
    std::size_t missing = 0; ///< files left out
    QStringList problems;    ///< files that cannot be listed, or whose content cannot be read
    std::size_t listed = 0;  ///< files in the list
};

WindowMedia::WindowMedia(const WindowPart &part, UserDefaults &defaults)
    : WindowPart(part)
    , m_defaults(defaults)
{
    m_progressTimer.setInterval(transferProgressMs);
    QObject::connect(&m_progressTimer, &QTimer::timeout, &m_progressTimer, [this] { showProgress(); });
}

WindowMedia::~WindowMedia() = default;

void WindowMedia::start()
{
    m_window.workbench().mediaInventory().setPathMappings(PathMappings::stored(m_defaults));
    makeLook();
}

void WindowMedia::resume()
{
    makeLook();
    if (m_state.stage() != WindowState::Stage::Ready)
        return; // listing looks for the files
    m_look->begin();
    applyMappings();
}

void WindowMedia::makeLook()
{
    Workbench &workbench = m_window.workbench();
    m_look = std::make_unique<MediaLook>(workbench.document(), workbench.mediaInventory(),
                                         workbench.mediaFilter());
}

bool WindowMedia::mayChange()
{
    m_window.commitEditing();
    return m_window.mayEdit() && !(m_sheet && m_sheet->isVisible());
}

void WindowMedia::openSheet(QDialog *sheet)
{
    m_sheet = sheet;
    sheet->open();
}

void WindowMedia::close()
{
    delete m_sheet;
    m_look.reset();
    m_progressTimer.stop();
    if (const auto transfer = std::exchange(m_transfer, nullptr))
        transfer->write->cancel();
}

void WindowMedia::showInMedia(const QString &text)
{
    if (m_window.selectedTab() != Tab::Media)
        m_window.toolbarMedia();
    m_window.pane(Tab::Media).showMessage(text);
}

// Finding files

void WindowMedia::relink(const QString &url)
{
    if (m_window.refusesAfterFailedLoad() || !mayChange())
        return;
    std::vector<MissingFile> missing = Relinker(m_window.workbench().document()).missingFiles();
    if (missing.empty()) {
        showInMedia(tr("No file is missing"));
        return;
    }
    auto *const sheet = new RelinkSheet(std::move(missing), m_window.folder(), url, m_defaults, &m_window);
    QObject::connect(sheet, &RelinkSheet::relinkChosen, &m_window,
                     [this](const std::vector<RelinkChoice> &choices) {
                         m_window.whenIdle([this, choices] { relinkTo(choices); });
                     });
    QObject::connect(sheet, &RelinkSheet::mappingChosen, &m_window,
                     [this](const PathMapping &mapping) { storeMapping(mapping); });
    QObject::connect(
        sheet, &RelinkSheet::pathMappingsRequested, &m_window, [this] { editPathMappings(); },
        Qt::QueuedConnection);
    openSheet(sheet);
}

void WindowMedia::relinkTo(const std::vector<RelinkChoice> &choices)
{
    if (!m_window.mayEdit())
        return;
    MyDocument &document = m_window.workbench().document();
    const auto uses = std::make_shared<std::unique_ptr<MediaUses>>();
    m_work.begin(tr("Relinking…"), WindowState::Work::Fixed);
    const bool isStarted =
        document.runInBackground([uses, &document] { *uses = std::make_unique<MediaUses>(document); },
                                 [this, uses, choices, &document] {
                                     m_work.end();
                                     relinked(*uses ? Relinker(document).relink(choices, **uses) : 0);
                                 });
    if (!isStarted)
        m_work.end();
}

void WindowMedia::relinked(std::size_t count)
{
    if (count == 0) {
        Q_EMIT m_window.mediaRelinked(0);
        return;
    }
    m_look->begin([this, count] {
        const RowList &records = m_window.workbench().document().mediaArray();
        const auto missing = std::count_if(records.begin(), records.end(), [](const RowRecordPtr &record) {
            return record->get(MediaKey::missing);
        });
        QString text = count == 1 ? tr("1 file relinked") : tr("%1 files relinked").arg(mediaCount(count));
        if (missing > 0)
            text += missing == 1 ? tr("; 1 is still missing")
                                 : tr("; %1 are still missing").arg(mediaCount(std::size_t(missing)));
        showInMedia(text);
        Q_EMIT m_window.mediaRelinked(count);
    });
}

void WindowMedia::editPathMappings()
{
    if (!mayChange())
        return;
    auto *const sheet = new PathMappingsSheet(PathMappings::stored(m_defaults), &m_window);
    QObject::connect(sheet, &PathMappingsSheet::chosen, &m_window,
                     [this](const PathMappings &mappings) { mappings.store(m_defaults); });
    openSheet(sheet);
}

void WindowMedia::storeMapping(const PathMapping &mapping)
{
    PathMappings mappings = PathMappings::stored(m_defaults);
    mappings.add(mapping.from, mapping.to);
    mappings.store(m_defaults);
    showInMedia(tr("Files of “%1” are looked for in “%2”").arg(mapping.from, mapping.to));
}

void WindowMedia::applyMappings()
{
    if (m_state.stage() != WindowState::Stage::Ready)
        return;
    MediaInventory &inventory = m_window.workbench().mediaInventory();
    PathMappings mappings = PathMappings::stored(m_defaults);
    if (mappings.list() == inventory.pathMappings().list())
        return;
    inventory.setPathMappings(std::move(mappings));
    m_look->begin([this] { Q_EMIT m_window.mediaChecked(); });
}

// Lists

/// Begins a long operation that reads files.
std::shared_ptr<WindowMedia::Transfer> WindowMedia::beginTransfer(const QString &text)
{
    const auto transfer = std::make_shared<Transfer>();
    transfer->gate = m_window.workbench().document().mainThread();
    m_transfer = transfer;
    m_progressText = text;
    m_work.begin(text, WindowState::Work::Expendable, [this, transfer] {
        if (transfer->write->cancel())
            endTransfer(*transfer);
    });
    m_progressTimer.start();
    return transfer;
}

void WindowMedia::showProgress()
{
    const ChecksumRun::Progress progress = m_transfer ? m_transfer->soFar() : ChecksumRun::Progress();
    if (progress.totalBytes == 0)
        return;
    m_work.sheet().updateProgressLabel(m_progressText + QLatin1Char('\n') + transferText(progress));
    m_work.sheet().setProgress(std::size_t(progress.bytes), std::size_t(progress.totalBytes));
}

/// False when it has been ended before.
bool WindowMedia::endTransfer(const Transfer &transfer)
{
    if (m_transfer.get() != &transfer)
        return false;
    m_transfer = nullptr;
    m_progressTimer.stop();
    m_work.end();
    return true;
}

void WindowMedia::exportList()
{
    if (m_window.refusesAfterFailedLoad() || !mayChange())
        return;
    const QStringList sequences = MenuTitles::ofSequences(*m_window.workbench().document().sequenceMenu());
    auto *const sheet = new ExportListSheet(sequences, m_window.fileTitle(), m_window.folder(), &m_window);
    QObject::connect(sheet, &ExportListSheet::chosen, &m_window,
                     [this](const QString &path, MediaListFormat format, const MediaListScope &scope) {
                         m_window.whenIdle([this, listed = recordsOf(scope), path, format, scope] {
                             exportListOf(listed, path, format, scope);
                         });
                     });
    openSheet(sheet);
}

void WindowMedia::exportListTo(const QString &path, MediaListFormat format, const MediaListScope &scope)
{
    if (m_window.mayEdit())
        exportListOf(recordsOf(scope), path, format, scope);
}

/// What the list is made from, before a choice by sequence.
RowList WindowMedia::recordsOf(const MediaListScope &scope) const
{
    const MyDocument &document = m_window.workbench().document();
    return scope.files == MediaListScope::Files::OnShow && document.tableTab() == Tab::Media
               ? document.rowsOnShow(Tab::Media)
               : document.mediaArray();
}

void WindowMedia::exportListOf(const RowList &listed, const QString &path, MediaListFormat format,
                               const MediaListScope &scope)
{
    if (!m_window.mayEdit())
        return;
    using Files = MediaListScope::Files;
    const auto transfer = beginTransfer(tr("Writing “%1”…").arg(QFileInfo(path).fileName()));
    const auto job = std::make_shared<ListJob>();
    job->path = path;
    job->format = format;
    MyDocument &document = m_window.workbench().document();
    const auto uses = std::make_shared<std::unique_ptr<MediaUses>>();
    const bool needsUses = format == MediaListFormat::Csv || scope.files == Files::OfSequence;
    const auto collect = [this, job, transfer, uses, scope, listed] {
        RowList records = listed;
        MediaUses::Choice choice;
        if (scope.files == Files::OfSequence) {
            choice.sequences = {scope.sequence};
            const auto isUsed = mediaCondition({QString(), false, false, choice.sequences},
                                               std::shared_ptr<const MediaUses>(uses, uses->get()));
            std::erase_if(records, [&](const RowRecordPtr &record) { return !isUsed(*record); });
        }
        const QStringList places = m_window.workbench().mediaInventory().placesOf(records);
        const bool missingToo = job->format == MediaListFormat::Csv;
        for (RowRecordPtr &record : records) // those of the document may change while the list is written
            record = std::make_shared<RowRecord>(*record);
        job->files = SendList::files(records, places, uses->get(), choice, missingToo, job->missing);
        job->listed = job->files.size();
        writeList(job, transfer);
    };
    if (!needsUses) {
        collect();
        return;
    }
    const bool isStarted =
        document.runInBackground([uses, &document] { *uses = std::make_unique<MediaUses>(document); },
                                 [collect, transfer] {
                                     if (!transfer->write->isCancelled())
                                         collect();
                                 });
    if (!isStarted)
        m_work.cancel();
}

void WindowMedia::writeList(const std::shared_ptr<ListJob> &job, const std::shared_ptr<Transfer> &transfer)
{
    const auto write = [job, transfer]() -> Result<void> {
        const auto save = [&](const QByteArray &list) {
            return FileUtilities::writeAtomically(job->path, list, transfer->write->check());
        };
        if (job->format == MediaListFormat::Csv)
            return save(SendList::csv(job->files));
        if (job->format != MediaListFormat::Checksums) {
            const bool isByLine = job->format == MediaListFormat::Paths;
            const QByteArray paths = SendList::paths(
                job->files, isByLine ? SendList::PathEnd::Line : SendList::PathEnd::Nul, job->problems);
            job->listed = std::size_t(paths.count(isByLine ? '\n' : '\0'));
            return save(paths);
        }
        QStringList places;
        for (const SendList::File &file : job->files)
            places.append(file.place);
        HashListMaker maker(places, job->path);
        const auto made =
            maker.make([&transfer](const ChecksumRun::Progress &now) { return transfer->note(now); },
                       MediaInventory::patience);
        if (!made)
            return Failure();
        for (const HashListMaker::Made::Problem &problem : made->problems)
            job->problems.append(problem.path);
        job->listed = made->list.entries.size();
        const Result<QByteArray> bytes = made->list.toBytes();
        if (!bytes)
            return bytes.failure();
        Result<void> saved = save(bytes.value());
        if (saved)
            maker.forget();
        return saved;
    };
    BackgroundWork::run(write, transfer->gate, [this, job, transfer](const Result<void> &written) {
        if (endTransfer(*transfer))
            exported(*job, written);
    });
}

void WindowMedia::exported(const ListJob &job, const Result<void> &written)
{
    const QString name = QFileInfo(job.path).fileName();
    if (!written) {
        m_window.showFailure(tr("The list could not be exported to “%1”.").arg(name), written.message());
    } else {
        QString text = job.listed == 1 ? tr("1 file listed in “%1”").arg(name)
                                       : tr("%1 files listed in “%2”").arg(mediaCount(job.listed), name);
        if (job.missing > 0)
            text += tr("; %1 missing left out").arg(mediaCount(job.missing));
        showInMedia(text);
        if (!job.problems.isEmpty()) {
            constexpr qsizetype shown = 5;
            QString names = job.problems.first(std::min(shown, job.problems.size())).join(QLatin1Char('\n'));
            if (job.problems.size() > shown)
                names += QLatin1Char('\n') + tr("and %1 more").arg(job.problems.size() - shown);
            m_window.showFailure(job.format == MediaListFormat::Checksums
                                     ? tr("Some files could not be read, and are not in the list.")
                                     : tr("Some paths hold a line break, and are not in the list."),
                                 names);
        }
    }
    if (!m_state.isClosed())
        Q_EMIT m_window.mediaListExported(written.isOk());
}

void WindowMedia::verifyList()
{
    if (!mayChange())
        return;
    FilePanel::runForOpening({.window = &m_window,
                              .title = tr("Verify List"),
                              .folder = m_window.folder(),
                              .filter = tr("Media hash lists") + QStringLiteral(" (*.mhl *.MHL)"),
                              .acceptLabel = tr("Verify")},
                             [this](const QStringList &paths) {
                                 m_window.whenIdle([this, paths] { verifyListAt(paths.value(0)); });
                             });
}

void WindowMedia::verifyListAt(const QString &path)
{
    if (!m_window.mayEdit())
        return;
    const QString name = QFileInfo(path).fileName();
    const auto transfer = beginTransfer(tr("Verifying the files of “%1”…").arg(name));
    const auto files = std::make_shared<std::vector<Verification::File>>();
    const auto verify = [path, transfer, files]() -> Result<void> {
        Result<HashList> list = HashList::fromFile(path);
        if (!list)
            return list.failure();
        if (list.value().entries.empty())
            return Failure{tr("There is no file in it.")};
        const Verification verification(std::move(list.value().entries), QFileInfo(path).absolutePath());
        auto verified = verification.compare(
            [&transfer](const ChecksumRun::Progress &now) { return transfer->note(now); },
            MediaInventory::patience);
        if (!verified)
            return Failure();
        *files = std::move(*verified);
        return {};
    };
    BackgroundWork::run(verify, transfer->gate, [this, name, transfer, files](const Result<void> &verified) {
        if (!endTransfer(*transfer))
            return;
        if (!verified)
            m_window.showFailure(tr("The list “%1” cannot be verified.").arg(name), verified.message());
        else
            openSheet(new VerificationSheet(name, *files, &m_window));
        if (!m_state.isClosed())
            Q_EMIT m_window.mediaListVerified(verified.isOk());
    });
}

} // namespace vantrell
