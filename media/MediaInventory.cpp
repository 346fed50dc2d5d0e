#include "media/MediaInventory.h"

#include "media/AnswerWithin.h"
#include "media/MediaFacts.h"
#include "media/MediaFile.h"
#include "media/MediaKeys.h"
#include "support/desktop/Workspace.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"
#include "support/text/TextFormat.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlQuery.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <functional>
#include <system_error>
#include <thread>

namespace vantrell
{

/// One file definition found in the project.
struct MediaInventory::File {
    QString url;
    std::optional<QString> path; ///< nothing when the URL is none
    std::optional<QString> id;
};

namespace
{

constexpr std::size_t filesPerOperation = 256;

/// Runs the action with the path when something exists there, on a thread that may be left behind. What keeps
/// it from that is passed to `tell`, on such a thread; `failure` is what is told when the action fails.
void withExistingFile(const QString &path, const FileChecks::Check &check, std::chrono::milliseconds wait,
                      bool (*action)(const QString &), const QString &failure,
                      const std::function<void(const QString &)> &tell)
{
    const auto lookAndAct = [path, check, wait, action, failure, tell] {
        const QString name = QFileInfo(path).fileName();
        const auto look = [path, check] { return check(QFile::encodeName(path)).exists; };
        const auto isThere = answerWithin<bool>(wait, look);
        if (!isThere)
            tell(formatText(u"“%@” is on a volume that does not answer. Check its connection", name));
        else if (!*isThere)
            tell(formatText(u"“%@” is missing from “%@”. Media ▸ Relink… finds it in other folders", name,
                            QFileInfo(path).path()));
        else if (!action(path))
            tell(failure);
    };
    try {
        std::thread([lookAndAct] { guarded("MediaInventory::withExistingFile", lookAndAct); }).detach();
    } catch (const std::system_error &error) {
        QVLog::appendLog(u"The file %@ cannot be shown: %@", path, QString::fromLocal8Bit(error.what()));
        tell(failure);
    }
}

} // namespace

MediaInventory::MediaInventory(MyDocument &document, MediaFilter &filter)
    : m_document(document)
    , m_filter(filter)
{
}

void MediaInventory::setFileCheck(const FileChecks::Check &check, std::chrono::milliseconds checkPatience)
{
    m_check = check;
    m_patience = checkPatience;
}

void MediaInventory::populateMediaData()
{
    m_document.populate(Tab::Media, "-[MyDocument populateMediaData]", [this] { build(); });
    if (m_document.isSelected(Tab::Media))
        m_filter.populateFilteredMediaData();
}

void MediaInventory::build()
{
    QVLog::appendLog(u"Populating media...");
    m_mediaOpQueue = std::make_unique<OperationQueue>(OperationQueue::processorCount());
    m_tempUsageDict.clear();
    RowList records;
    std::uint64_t total = 0;
    if (m_document.xmlDoc()) {
        const auto isClosing = [this] { return m_document.isClosing(); };
        std::vector<File> files;
        XmlNodeList sequences;
        if (!collect(files, sequences))
            return;
        std::vector<QByteArray> paths;
        paths.reserve(files.size());
        const QString folder = projectFolder();
        for (const File &file : files) {
            const QString place = m_mappings.placeOf(file.url, file.path.value_or(QString()));
            paths.push_back(QFile::encodeName(MediaFile::absolutePath(place, folder)));
        }
        const FileChecks checks(std::move(paths), m_check);
        countUsage(files, MediaUsage(m_document.xmlNode(), m_document.xmlType(), sequences, isClosing));
        const std::optional<FileChecks::Answers> answers = checks.answers(isClosing, m_patience);
        if (!answers)
            return;
        records = recordsOf(files, *answers, total);
    }
    const std::size_t count = records.size();
    m_document.mainThread()->runAndWait([&] { m_document.rowView(Tab::Media).setList(std::move(records)); });
    QVLog::appendLog(u"Finished populating media");
    m_document.mainThread()->runAndWait([&] {
        m_document.setLabel(Label::MediaTotalSize,
                            formatText(u"Total size: %@", MediaFile::formatFileSize(double(total))));
        m_document.setLabel(Label::MediaTotalFiles, formatText(u"Total number of files: %i", count));
    });
}

/// Every file definition and every sequence, in document order, in one walk. False when the document
/// closes meanwhile.
bool MediaInventory::collect(std::vector<File> &files, XmlNodeList &sequences) const
{
    static const XmlQuery query(QStringLiteral(".//sequence | .//clipitem/file[1]/pathurl[1]/text()"));
    for (const XmlNode node : query.evaluate(m_document.xmlNode()).nodes) {
        if (m_document.isClosing())
            return false;
        if (node.isElement()) {
            sequences.push_back(node);
            continue;
        }
        const QString url = node.stringValue();
        if (url.isEmpty())
            continue;
        files.push_back({url, QVXMLParser::filenameFromPathURLString(url),
                         QVXMLParser::idAttributeForNode(node.parent().parent())});
        m_document.rowView(Tab::Media).setFoundSoFar(files.size());
    }
    return true;
}

void MediaInventory::countUsage(const std::vector<File> &files, const MediaUsage &usage)
{
    for (std::size_t first = 0; first < files.size(); first += filesPerOperation) {
        m_mediaOpQueue->addOperation([this, first, &files, &usage] {
            const std::size_t end = std::min(files.size(), first + filesPerOperation);
            for (std::size_t i = first; i < end && !m_document.isClosing(); ++i) {
                if (files[i].id)
                    populateUsageCountForClipWithSettings({files[i].url, *files[i].id, i, usage});
            }
        });
    }
    if (m_document.isClosing())
        m_mediaOpQueue->cancelAllOperations();
    m_mediaOpQueue->waitUntilAllOperationsAreFinished();
    m_mediaOpQueue.reset();
}

void MediaInventory::populateUsageCountForClipWithSettings(const ClipSettings &settings)
{
    const std::int64_t count = settings.usage.usageOf(settings.clipID);
    {
        const std::lock_guard lock(m_usageMutex);
        const auto stored = m_tempUsageDict.find(settings.filename);
        if (stored == m_tempUsageDict.end())
            m_tempUsageDict.insert(settings.filename, {settings.index, count});
        else if (stored->index <= settings.index)
            *stored = {settings.index, count};
    }
    QVLog::fastAppendLog(u"Usage for file %@: %i", settings.filename, count);
}

RowList MediaInventory::recordsOf(const std::vector<File> &files, const FileChecks::Answers &answers,
                                  std::uint64_t &total) const
{
    RowList records;
    records.reserve(files.size());
    std::size_t unanswered = 0;
    QSet<QString> directories; // one copy of each
    for (std::size_t i = 0; i < files.size(); ++i) {
        const File &file = files[i];
        const auto record = std::make_shared<RowRecord>();
        if (file.path) {
            const MediaFile::PathParts parts = MediaFile::splitPath(*file.path);
            const auto usage = m_tempUsageDict.constFind(file.url);
            record->set(MediaKey::filename, parts.filename);
            record->set(MediaKey::directory, *directories.insert(parts.directory));
            record->set(MediaKey::rawpath, file.url);
            record->set(MediaKey::usageCount, usage != m_tempUsageDict.constEnd() ? usage->count : 0);
            record->set(MediaKey::filetype, MediaFile::fileTypeForPath(*file.path));
        }
        setFileFacts(*record, answers[i]);
        unanswered += answers[i] ? 0 : 1;
        total += std::uint64_t(record->get(MediaKey::filesize));
        records.push_back(record);
    }
    if (unanswered > 0)
        QVLog::appendLog(u"%lu media files are on volumes that do not answer.", unanswered);
    return records;
}

void MediaInventory::revealMediaInFinder()
{
    const std::vector<std::size_t> selected = m_document.interface().selectedRows(Tab::Media);
    if (selected.empty())
        tell(QStringLiteral("No file is selected. Click its row first"));
    else
        withFileOfRow(selected.front(), Workspace::revealFile,
                      QStringLiteral("There is no file browser that could show the file"));
}

void MediaInventory::mediaTableViewDoubleClick(std::ptrdiff_t clickedRow)
{
    if (clickedRow >= 0)
        withFileOfRow(
            std::size_t(clickedRow), Workspace::openFile,
            QStringLiteral("There is no program that could open the file. The system’s settings tell "
                           "which program opens files of its kind"));
}

void MediaInventory::withFileOfRow(std::size_t row, bool (*action)(const QString &), const QString &failure)
{
    if (row >= m_document.rowsOnShow(Tab::Media).size())
        return;
    const QString path = pathOfRow(row);
    if (path.isEmpty()) {
        tell(QStringLiteral("The project names no valid place for this file. Connect it again in the editing "
                            "application"));
        return;
    }
    const auto tellLater = [gate = m_document.mainThread(), document = &m_document](const QString &text) {
        gate->post([document, text] { Q_EMIT document->messageGiven(Tab::Media, text); });
    };
    const auto wait = std::min<std::chrono::milliseconds>(rowPatience, m_patience);
    withExistingFile(path, m_check, wait, action, failure, tellLater);
}

void MediaInventory::tell(const QString &text) const
{
    Q_EMIT m_document.messageGiven(Tab::Media, text);
}

/// What relative paths are relative to.
QString MediaInventory::projectFolder() const
{
    return QFileInfo(m_document.fileURL().toLocalFile()).absolutePath();
}

QStringList MediaInventory::placesOf(const RowList &records) const
{
    const QString folder = projectFolder();
    QStringList places;
    places.reserve(qsizetype(records.size()));
    for (const RowRecordPtr &record : records) {
        const QString path =
            MediaFile::joinedPath(record->get(MediaKey::directory), record->get(MediaKey::filename));
        const QString place = m_mappings.placeOf(record->get(MediaKey::rawpath), path);
        places.append(place.isEmpty() ? QString() : MediaFile::absolutePath(place, folder));
    }
    return places;
}

/// Null for a row that is not there or has no path.
QString MediaInventory::pathOfRow(std::size_t row) const
{
    const RowList &rows = m_document.rowsOnShow(Tab::Media);
    return row < rows.size() ? placesOf({rows[row]}).front() : QString();
}

} // namespace vantrell
