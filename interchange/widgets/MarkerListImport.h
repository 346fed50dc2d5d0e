#pragma once

#include "interchange/MarkerListImporter.h"
#include "rows/RowView.h"

#include <QObject>
#include <QStringList>

#include <cstddef>
#include <memory>
#include <optional>

namespace vantrell
{

class MyDocument;

/// One import of marker lists that does not block the window: the files are read on a background thread,
/// which can be cancelled, and then markers are added a few at a time. Main thread; the document and its
/// importer outlive it.
class MarkerListImport final : public QObject
{
    Q_OBJECT

public:
    MarkerListImport(MyDocument &document, const MarkerListImporter &importer, const QStringList &paths,
                     const QString &format, QObject *parent);
    ~MarkerListImport() override;

    void start();
    /// Cancels the import; no effect once markers are being added.
    void cancel();

Q_SIGNALS:
    /// `done` of the markers have been added.
    void progressed(std::size_t done, std::size_t total);
    /// The import has ended with `imported` of the files' `total` markers added. Both are 0 when it was
    /// cancelled and when the files contain no markers; an alert then follows.
    void ended(std::size_t imported, std::size_t total);

private:
    void add(MarkerListImporter::Rows rows);
    void addSome();
    void finish();

    MyDocument &m_document;
    const MarkerListImporter &m_importer;
    const QStringList m_paths;
    const QString m_format;
    std::shared_ptr<bool> m_isWanted = std::make_shared<bool>(true); // checked when reading has ended
    MarkerListImporter::Rows m_rows;
    MarkerListImporter::Progress m_progress;
    std::unique_ptr<RowView::Updates> m_updates; // while markers are being added
};

} // namespace vantrell
