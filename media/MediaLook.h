#pragma once

#include "media/FileChecks.h"
#include "rows/RowRecord.h"

#include <QStringList>

#include <functional>
#include <memory>

namespace vantrell
{

class MediaFilter;
class MediaInventory;
class MyDocument;

/// Looks at the media files of a document again once the inventory has listed them: when they are looked for
/// elsewhere, and when a change of their records is undone or redone. Main thread; document, inventory and
/// filter outlive it.
class MediaLook
{
public:
    MediaLook(MyDocument &document, MediaInventory &inventory, MediaFilter &filter);
    ~MediaLook();
    MediaLook(const MediaLook &) = delete;
    MediaLook &operator=(const MediaLook &) = delete;

    /// Looks in the background, and then brings the records, the label of the total size and the rows on show
    /// up to date. `done` (may be empty) is called after that, unless another look has begun or the document
    /// is closed by then.
    void begin(const std::function<void()> &done = {});

private:
    void update(const RowList &records, const QStringList &urls, const FileChecks::Answers &answers);

    MyDocument &m_document;
    MediaInventory &m_inventory;
    MediaFilter &m_filter;
    std::shared_ptr<int> m_look; ///< of the look that was begun last
};

} // namespace vantrell
