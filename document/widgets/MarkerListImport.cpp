#include "document/widgets/MarkerListImport.h"

#include "document/TableUpdates.h"
#include "support/BackgroundWork.h"
#include "support/QVException.h"

#include <QPointer>
#include <QTimer>

#include <chrono>
#include <utility>

namespace vantrell
{

namespace
{

/// How long a few markers may take to be added: the window answers in between.
constexpr std::chrono::milliseconds slice{15};

} // namespace

MarkerListImport::MarkerListImport(MyDocument &document, const MarkerListImporter &importer,
                                   const QStringList &paths, const QString &format, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_importer(importer)
    , m_paths(paths)
    , m_format(format)
{
}

MarkerListImport::~MarkerListImport()
{
    *m_isWanted = false;
}

void MarkerListImport::start()
{
    const auto gate = m_document.mainThread();
    BackgroundWork::run([this, gate, isWanted = m_isWanted, paths = m_paths, format = m_format] {
        auto rows = std::make_shared<RowList>();
        guarded("-[MyDocument markerOpenDialogDidEnd:returnCode:contextInfo:]",
                [&] { *rows = MarkerListImporter::rowsOfFiles(paths, format); });
        gate->post([this, isWanted, rows] {
            if (*isWanted)
                add(std::move(*rows));
        });
    });
}

void MarkerListImport::cancel()
{
    if (!*m_isWanted || m_updates)
        return;
    *m_isWanted = false;
    Q_EMIT ended(0, 0);
}

void MarkerListImport::add(RowList rows)
{
    if (rows.empty()) {
        const MarkerListImporter &importer = m_importer;
        Q_EMIT ended(0, 0);
        importer.tellNothingToImport();
        return;
    }
    m_rows = std::move(rows);
    m_updates = std::make_unique<TableUpdates>(m_document);
    addSome();
}

void MarkerListImport::addSome()
{
    // An alert on the way takes its answer here: the next few wait for it.
    const QPointer self(this);
    MarkerListImporter::Progress progress = m_progress;
    const bool goesOn = guarded("MarkerListImport::addSome",
                                [&] { progress = m_importer.addMarkers(m_rows, m_progress, slice); });
    if (!self || m_document.isClosing() || m_document.mainThread()->isClosed())
        return;
    m_progress = progress;
    if (!goesOn) {
        m_updates.reset();
        Q_EMIT ended(m_progress.added, m_rows.size());
        return;
    }
    Q_EMIT progressed(progress.next, m_rows.size());
    if (progress.next < m_rows.size()) {
        QTimer::singleShot(0, this, &MarkerListImport::addSome);
        return;
    }
    m_updates.reset(); // the table shows them all at once
    Q_EMIT ended(progress.added, m_rows.size());
}

} // namespace vantrell
