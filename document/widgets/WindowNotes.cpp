#include "document/widgets/WindowNotes.h"

#include "document/widgets/DocumentWindow.h"
#include "document/widgets/WindowMarkerLists.h"
#include "document/widgets/WindowWork.h"
#include "interchange/MarkerJson.h"
#include "interchange/NotePreview.h"
#include "interchange/widgets/ExportNotesSheet.h"
#include "interchange/widgets/NoteAddition.h"
#include "interchange/widgets/NotePreviewSheet.h"
#include "markers/MarkerFields.h"
#include "markers/MarkerKeys.h"
#include "markers/widgets/MarkersPane.h"
#include "support/files/CancellableWrite.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/BackgroundWork.h"
#include "support/widgets/FilePanel.h"
#include "support/widgets/ShownText.h"
#include "table/widgets/TabPane.h"
#include "workbench/Workbench.h"
#include "xml/QVXMLParser.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>
#include <QMimeData>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <memory>
#include <optional>
#include <unordered_set>
#include <utility>

namespace vantrell
{

namespace
{

/// What a background thread gives to the main thread.
struct ReadNotes {
    std::atomic<bool> isCancelled = false;
    Result<NoteSource> source = Failure();
};

} // namespace

/// A list that is to be written.
struct WindowNotes::Export {
    QString format;
    QStringList columns;
    std::size_t count = 0; ///< of markers
    std::vector<WrittenNote> notes = {};
    std::optional<MarkerJson> json = std::nullopt; ///< instead of the notes
    QStringList changes = {};
};

bool WindowNotes::mayImport()
{
    if (!m_lists.mayChangeMarkers() || m_state.isClosed() || m_preview || m_addition)
        return false;
    Workbench &workbench = m_window.workbench();
    if (!workbench.markerListImporter().showMarkerListOpenDialog(MarkerListFormat::fcp)) // which says why
        return false;
    if (workbench.document().sequenceMenu()->size() > 1)
        return true;
    m_window.showFailure(tr("There is no sequence"),
                         tr("The project has no sequence that notes could be added to."));
    return false;
}

void WindowNotes::runOpenPanel()
{
    m_window.commitEditing();
    if (!mayImport())
        return;
    FilePanel::runForOpening(
        {.window = &m_window,
         .title = tr("Import Notes"),
         .folder = m_window.folder(),
         .filter = tr("Lists of notes (*.txt *.csv *.tsv *.edl *.xml *.fcpxml *.md "
                      "*.json *.vtt *.srt *.TXT *.CSV *.EDL *.XML)") +
                   QStringLiteral(";;") + tr("All files (*)"),
         .acceptLabel = tr("Open")},
        [this](const QStringList &paths) { m_window.whenIdle([this, paths] { importFiles(paths); }); });
}

void WindowNotes::importFiles(const QStringList &paths)
{
    m_window.commitEditing();
    if (m_preview || m_addition) {
        m_waiting += paths; // after those that are being imported
        return;
    }
    if (paths.isEmpty() || !mayImport())
        return;
    m_waiting += paths;
    importNext();
}

void WindowNotes::importNext()
{
    if (m_waiting.isEmpty() || m_state.isClosed())
        return;
    const QString path = m_waiting.takeFirst();
    read(QFileInfo(path).fileName(),
         [path, memory = NoteRoleMemory(m_defaults)] { return NoteSource::ofFile(path, memory); });
}

void WindowNotes::importClipboard()
{
    const QMimeData *const data = QGuiApplication::clipboard()->mimeData();
    const QStringList paths = data ? FilePanel::localFiles(data) : QStringList();
    if (!paths.isEmpty()) {
        takeDropped(paths);
        return;
    }
    const QString text = data ? data->text() : QString();
    if (text.trimmed().isEmpty()) {
        tellUnusable(QString(), QString());
        return;
    }
    if (mayImport())
        read(QString(),
             [text, memory = NoteRoleMemory(m_defaults)] { return NoteSource::ofText(text, memory); });
}

void WindowNotes::takeDropped(const QStringList &paths)
{
    struct Sorted {
        QStringList lists;
        QStringList projects;
    };
    const auto sorted = std::make_shared<Sorted>();
    BackgroundWork::run(
        [sorted, paths] {
            for (const QString &path : paths)
                (isNoteFile(path) ? sorted->lists : sorted->projects).append(path);
            return Result<void>();
        },
        m_window.workbench().document().mainThread(),
        [this, sorted](const Result<void> &) {
            if (!sorted->projects.isEmpty())
                Q_EMIT m_window.filesDropped(sorted->projects);
            m_window.whenIdle([this, lists = sorted->lists] { importFiles(lists); });
        });
}

/// Reads a list on another thread and shows it. The name is that of the file; null for the clipboard.
void WindowNotes::read(const QString &name, std::function<Result<NoteSource>()> read)
{
    const auto notes = std::make_shared<ReadNotes>();
    m_work.begin(name.isNull() ? tr("Reading the notes…") : tr("Reading “%1”…").arg(name),
                 WindowState::Work::Expendable, [this, notes] {
                     notes->isCancelled = true;
                     m_waiting.clear();
                     m_work.end();
                 });
    BackgroundWork::run(
        [notes, read = std::move(read)] {
            notes->source = read();
            return Result<void>();
        },
        m_window.workbench().document().mainThread(),
        [this, notes, name](const Result<void> &done) {
            if (notes->isCancelled)
                return;
            m_work.end();
            if (m_state.isClosed())
                return;
            if (done && notes->source && notes->source.value().isUsable()) {
                show(notes->source.value());
                return;
            }
            tellUnusable(name, done ? notes->source.message() : done.message());
            importNext();
        });
}

void WindowNotes::tellUnusable(const QString &name, const QString &reason)
{
    if (name.isNull())
        m_window.currentPane().showMessage(tr("The clipboard holds no list of notes"));
    else if (reason.isEmpty())
        m_window.showFailure(tr("There are no notes in “%1”").arg(name),
                             tr("No line of the file has a timecode, a frame number or a time."));
    else
        m_window.showFailure(tr("“%1” could not be read").arg(name), reason);
}

/// What is pasted belongs to the sequence of the first selected marker; without any to that of the overview.
std::int64_t WindowNotes::selectedSequence() const
{
    MyDocument &document = m_window.workbench().document();
    const RowList selected = document.selectedRecords(Tab::Markers);
    const std::int64_t inOverview = static_cast<MarkersPane &>(m_window.pane(Tab::Markers)).overviewItem();
    if (selected.empty())
        return inOverview;
    // Which need not be the one that the marker is listed under.
    const XmlNode sequence =
        QVXMLParser::parentWithName(selected.front()->get(MarkerKey::markerElement), "sequence");
    const MenuPtr menu = document.sequenceMenu();
    const auto item = std::find_if(menu->begin(), menu->end(),
                                   [sequence](const auto &entry) { return entry.element == sequence; });
    return !sequence || item == menu->end() ? inOverview : item - menu->begin();
}

void WindowNotes::show(const NoteSource &source)
{
    Workbench &workbench = m_window.workbench();
    const std::int64_t item = source.path.isNull() ? selectedSequence() : 1;
    m_preview = new NotePreviewSheet(
        new NotePreview(workbench.document(), workbench.markerEditor(), source, item), &m_window);
    NotePreviewSheet *const sheet = m_preview;
    QObject::connect(sheet, &NotePreviewSheet::chosen, &m_window, [this, sheet] {
        m_window.whenIdle([this, sheet] {
            m_preview = nullptr;
            add(sheet->preview());
            sheet->deleteLater();
        });
    });
    QObject::connect(sheet, &QDialog::rejected, &m_window, [this] {
        m_preview = nullptr;
        QTimer::singleShot(0, &m_window, [this] { importNext(); });
    });
    sheet->open();
}

void WindowNotes::add(const NotePreview &preview)
{
    Workbench &workbench = m_window.workbench();
    if (workbench.document().refusesWhileSaving(tr("Unable to add the notes")) || !m_window.mayEdit())
        return;
    NoteRoleMemory::remember(m_defaults, preview.list().headers, preview.choices());
    // Rows that are added to the visible table show whatever its filter.
    if (m_window.selectedTab() != Tab::Markers)
        m_window.toolbarMarkers();
    defineFields(preview);
    m_addition = new NoteAddition(workbench.document(), workbench.markerEditor(), preview.checkedNotes(),
                                  preview.sequence(), &m_window);
    NoteAddition *const addition = m_addition;
    QObject::connect(
        addition, &NoteAddition::progressed, &m_window,
        [this](std::size_t done, std::size_t total) { m_work.makeFixed(tr("Adding notes…"), done, total); });
    QObject::connect(addition, &NoteAddition::ended, &m_window, [this, addition] {
        m_addition = nullptr;
        addition->deleteLater();
        added(*addition);
    });
    m_work.begin(tr("Adding notes…"), WindowState::Work::Fixed);
    addition->start();
}

/// Fields without a column would not show.
void WindowNotes::defineFields(const NotePreview &preview)
{
    MarkerFields &fields = m_window.workbench().markerFields();
    QStringList identifiers;
    for (const MarkerField &field : fields.markerFieldArray())
        identifiers.append(field.identifier);
    QStringList titles;
    for (const NoteColumnChoice &choice : preview.choices()) {
        const QString identifier = MarkerFields::formatMarkerFieldName(choice.role.title);
        if (choice.role.kind != NoteRole::Field || identifiers.contains(identifier))
            continue;
        identifiers.append(identifier);
        titles.append(choice.role.title);
    }
    if (titles.isEmpty())
        return;
    fields.showMarkerFieldsDialog();
    for (const QString &title : titles) {
        fields.markerFieldAdd();
        fields.setObjectValue(title, QStringLiteral("title"), fields.markerFieldArray().size() - 1);
    }
    fields.hideMarkerFieldsDialog();
}

void WindowNotes::added(const NoteAddition &addition)
{
    m_work.end();
    if (m_state.isClosed())
        return;
    select(addition);
    const std::size_t count = addition.rows().size();
    m_lists.showInMarkers(count == 1 ? tr("1 note added")
                                     : tr("%1 notes added").arg(QLocale().toString(qulonglong(count))));
    tellRejected(addition);
    Q_EMIT m_window.markersImported(count);
    importNext();
}

void WindowNotes::select(const NoteAddition &addition)
{
    const std::unordered_set<RowRecordPtr> rows(addition.rows().begin(), addition.rows().end());
    const RowList &shown = m_window.workbench().document().rowsOnShow(Tab::Markers);
    std::vector<std::size_t> indexes;
    for (std::size_t i = 0; i < shown.size(); ++i) {
        if (rows.contains(shown[i]))
            indexes.push_back(i);
    }
    TabPane &pane = m_window.pane(Tab::Markers);
    pane.selectRows(indexes);
    if (indexes.empty())
        return;
    pane.scrollToRow(indexes.back());
    pane.scrollToRow(indexes.front()); // all of them are visible if there is room
}

void WindowNotes::tellRejected(const NoteAddition &addition)
{
    constexpr qsizetype maximumListed = 20;
    QStringList reasons;
    for (const PlannedNote &note : addition.notes()) {
        if (note.state == PlannedNote::State::Unreadable)
            reasons.append(
                tr("Line %1, “%2”: %3").arg(note.line).arg(note.name, shownMessage(note.reason.trimmed())));
    }
    if (reasons.isEmpty())
        return;
    const QString title = reasons.size() == 1 ? tr("1 note could not be added")
                                              : tr("%1 notes could not be added").arg(reasons.size());
    if (reasons.size() > maximumListed) {
        const qsizetype more = reasons.size() - maximumListed;
        reasons = reasons.first(maximumListed) << tr("… and %1 more").arg(more);
    }
    m_window.showFailure(title, reasons.join(QLatin1Char('\n')));
}

void WindowNotes::exportNotes()
{
    m_window.commitEditing();
    if (m_state.isBusy() || m_window.refusesAfterFailedLoad() || m_export)
        return;
    Workbench &workbench = m_window.workbench();
    if (!workbench.markerListExporter().showMarkerListSaveDialog(MarkerListFormat::fcp)) // which says why
        return;
    if (m_window.selectedTab() != Tab::Markers)
        m_window.toolbarMarkers();
    const RowList &shown = workbench.document().rowsOnShow(Tab::Markers);
    RowList selected;
    for (const std::size_t row : m_window.pane(Tab::Markers).selectedRows())
        selected.push_back(shown[row]);
    ExportNotesSheet::FieldTitles fields;
    for (const MarkerField &field : workbench.markerFields().markerFieldArray())
        fields.insert(field.identifier.mid(MarkerKey::customPrefix.size()), field.title);
    m_export = new ExportNotesSheet(workbench.document(), {std::move(selected), shown}, fields,
                                    m_window.fileTitle(), m_window.folder(), &m_window);
    ExportNotesSheet *const sheet = m_export;
    QObject::connect(sheet, &ExportNotesSheet::chosen, &m_window, [this, sheet](const QString &path) {
        m_window.whenIdle([this, path, list = exportOf(*sheet)] { exportTo(path, list); });
    });
    QObject::connect(sheet, &QDialog::finished, &m_window, [this] { m_export = nullptr; });
    sheet->open();
}

std::shared_ptr<WindowNotes::Export> WindowNotes::exportOf(const ExportNotesSheet &sheet) const
{
    const RowList markers = sheet.markers();
    const auto list = std::make_shared<Export>(Export{sheet.format(), sheet.columns(), markers.size()});
    if (list->format == QStringLiteral("json"))
        list->json.emplace(markers);
    else
        list->notes = NoteExporter::notes(markers);
    return list;
}

void WindowNotes::exportTo(const QString &path, const std::shared_ptr<Export> &list)
{
    if (!m_window.document())
        return;
    const auto write = std::make_shared<CancellableWrite>();
    m_work.begin(tr("Writing “%1”…").arg(QFileInfo(path).fileName()), WindowState::Work::Expendable,
                 [this, write] {
                     if (write->cancel())
                         m_work.end();
                 });
    BackgroundWork::run(
        [write, path, list] {
            if (list->json)
                return FileUtilities::writeAtomically(path, list->json->text(), write->check());
            NoteWriter::Written written = NoteWriter::write(list->format, list->notes, list->columns);
            list->changes = std::move(written.changes);
            return FileUtilities::writeAtomically(path, written.text.toUtf8(), write->check());
        },
        m_window.document()->mainThread(),
        [this, write, path, list](const Result<void> &written) {
            if (write->isCancelled())
                return;
            m_work.end();
            const std::size_t count = list->count;
            const QString name = QFileInfo(path).fileName();
            if (!written) {
                m_window.showFailure(tr("The notes could not be exported to “%1”.").arg(name),
                                     written.message());
            } else {
                m_lists.showInMarkers(
                    count == 1
                        ? tr("1 marker exported to “%1”").arg(name)
                        : tr("%1 markers exported to “%2”").arg(QLocale().toString(qulonglong(count)), name));
                if (!list->changes.isEmpty())
                    m_window.showFailure(tr("“%1” cannot hold everything").arg(name),
                                         list->changes.join(QLatin1Char('\n')));
            }
            if (!m_state.isClosed())
                Q_EMIT m_window.markersExported(written.isOk());
        });
}

void WindowNotes::close()
{
    m_waiting.clear();
    delete m_preview;
    delete m_export;
    delete m_addition;
}

} // namespace vantrell
