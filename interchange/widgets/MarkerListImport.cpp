#include "interchange/widgets/MarkerListImport.h"

#include "document/MyDocument.h"
#include "support/log/QVException.h"
#include "support/threads/BackgroundWork.h"
#include "support/threads/Persistently.h"

#include <QTimer>

#include <chrono>
#include <utility>

namespace vantrell
{

namespace
{

/// How long markers are added before the window handles events again.
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
    const auto rows = std::make_shared<MarkerListImporter::Rows>();
    const auto end = [this, isWanted = m_isWanted, rows] {
        if (*isWanted)
            add(std::move(*rows));
    };
    BackgroundWork::run([gate, rows, end, paths = m_paths, format = m_format] {
        *rows = MarkerListImporter::rowsOfFiles(paths, format);
        persistently("MarkerListImport::start", [&] { gate->post(end); });
    });
}

void MarkerListImport::cancel()
{
    if (!*m_isWanted || m_updates)
        return;
    *m_isWanted = false;
    Q_EMIT ended(0, 0);
}

void MarkerListImport::add(MarkerListImporter::Rows rows)
{
    m_rows = std::move(rows);
    const bool isReady = guarded("MarkerListImport::add", [this] {
        m_updates = std::make_unique<RowView::Updates>(m_document.rowView(Tab::Markers));
    });
    if (isReady && !m_rows.rows.empty())
        addSome();
    else
        finish();
}

void MarkerListImport::addSome()
{
    if (m_document.isClosing() || m_document.mainThread()->isClosed())
        return;
    const std::size_t total = m_rows.rows.size();
    const bool goesOn = guarded("MarkerListImport::addSome", [this, total] {
        m_importer.addMarkers(m_rows, m_progress, slice);
        Q_EMIT progressed(m_progress.next, total);
        if (m_progress.next < total)
            QTimer::singleShot(0, this, &MarkerListImport::addSome);
    });
    if (!goesOn || m_progress.next == total)
        finish();
}

/// Tells the outcome, whatever went wrong.
void MarkerListImport::finish()
{
    m_updates.reset(); // the table shows them all at once
    const MarkerListImporter &importer = m_importer;
    const MarkerListImporter::Rows rows = std::move(m_rows);
    const MarkerListImporter::Progress progress = std::move(m_progress);
    guarded("MarkerListImport::finish", [&] { Q_EMIT ended(progress.added, rows.rows.size()); });
    if (rows.rows.empty())
        importer.tellNothingToImport(rows);
    else
        importer.tellOfRejected(progress);
}

} // namespace vantrell
