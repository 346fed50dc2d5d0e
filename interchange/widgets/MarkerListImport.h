#pragma once

#include "interchange/MarkerListImporter.h"

#include <QObject>
#include <QStringList>

#include <cstddef>
#include <memory>
#include <optional>

namespace vantrell
{

class TableUpdates;
class MyDocument;

/// One import of marker lists that holds up no window: the files are read on a thread of its own, which
/// may be given up, then their markers are added a few at a time. Main thread; the document and its
/// importer outlive it.
class MarkerListImport final : public QObject
{
    Q_OBJECT

public:
    MarkerListImport(MyDocument &document, const MarkerListImporter &importer, const QStringList &paths,
                     const QString &format, QObject *parent);
    ~MarkerListImport() override;

    void start();
    /// Ends the import without a change; no effect once markers are being added.
    void cancel();

Q_SIGNALS:
    /// So many of the markers have been added.
    void progressed(std::size_t done, std::size_t total);
    /// The import is over, with so many markers added of so many that the files hold; both are 0 when it
    /// was cancelled and, before an alert, when the files hold none.
    void ended(std::size_t imported, std::size_t total);

private:
    void add(MarkerListImporter::Rows rows);
    void addSome();
    void finish();

    MyDocument &m_document;
    const MarkerListImporter &m_importer;
    const QStringList m_paths;
    const QString m_format;
    std::shared_ptr<bool> m_isWanted = std::make_shared<bool>(true); // what the reading looks at when it ends
    MarkerListImporter::Rows m_rows;
    MarkerListImporter::Progress m_progress;
    std::unique_ptr<TableUpdates> m_updates; // while markers are being added
};

} // namespace vantrell
