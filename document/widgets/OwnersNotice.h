#pragma once

#include "markers/UnderOthers.h"

#include <QObject>
#include <QPointer>

#include <cstddef>
#include <cstdint>
#include <optional>

class QTimer;

namespace vantrell
{

class MarkerInventory;
class MyDocument;
class NoticeBar;
class Workbench;

/// The notice of a window that markers are listed under another sequence or clip than their own. It follows
/// the edits of the project: some time after one the markers are counted again, in steps. A notice that the
/// user has dismissed comes back when there are more. Main thread; the bar outlives it.
class OwnersNotice final : public QObject
{
    Q_OBJECT

public:
    explicit OwnersNotice(NoticeBar &bar);

    /// Follows that project from now on, which shows nothing before the next showListed().
    void follow(Workbench &workbench);
    /// No longer follows a project; to be called before it is disposed of.
    void leave();
    /// Shows what was found when the markers were listed.
    void showListed();

private:
    void countSoon();
    void count();
    void show();

    NoticeBar &m_bar;
    QTimer *m_timer;
    QPointer<MyDocument> m_document;
    MarkerInventory *m_inventory = nullptr; ///< while there is the document
    std::optional<UnderOthers> m_count;     ///< that goes on
    std::uint64_t m_revision = 0;           ///< of the list that it counts
    std::size_t m_told = 0;                 ///< the number that the user has been told
};

} // namespace vantrell
